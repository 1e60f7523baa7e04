#include "render/Exporter.h"

#include "base/Background.h"
#include "media/H264MovieWriter.h"
#include "media/MovieError.h"
#include "render/ExportError.h"
#include "render/FramePainter.h"
#include "render/ProgressRelay.h"
#include "timeline/Timeline.h"

#include <QCoreApplication>

#include <cmath>
#include <limits>

namespace velvane::Exporter {

namespace {

// A movie file counts its frames in 32 bits.
constexpr double maxFrames = std::numeric_limits<qint32>::max();

int rateOf(const Snapshot &snap)
{
    return std::max(snap.fps, 1);
}

qint64 framesIn(Seconds total, int fps)
{
    const double frames = std::ceil(total.count() * fps);
    if (!(frames <= maxFrames))
        return 0;
    return std::max<qint64>(static_cast<qint64>(frames), 1);
}

// Drops what is still on its way to the caller when the export has ended, however it ended.
class Closing {
public:
    explicit Closing(ProgressRelay &relay) : m_relay(relay) {}
    ~Closing() { m_relay.close(); }
    Q_DISABLE_COPY_MOVE(Closing)

private:
    ProgressRelay &m_relay;
};

void check(const Snapshot &snap)
{
    const QSize size = FrameRenderer::pixelSize(snap);
    if (size.isEmpty()) {
        throw MovieError(
            MovieError::Cause::size,
            QCoreApplication::translate("Exporter", "No movie is %1 × %2 pixels large.")
                .arg(snap.canvasSize.width(), 0, 'g', 10)
                .arg(snap.canvasSize.height(), 0, 'g', 10));
    }
    H264MovieWriter::check(size, rateOf(snap));
    if (Exporter::frameCount(snap) == 0) {
        throw MovieError(
            MovieError::Cause::size,
            QCoreApplication::translate("Exporter", "The demo is too long for a movie."));
    }
}

void writeFrames(const Snapshot &snap, const QString &path, ProgressRelay &progress,
                 const CancelCheck &shouldCancel)
{
    const Timeline timeline(snap);
    const int fps = rateOf(snap);
    const qint64 count = framesIn(timeline.total(), fps);
    // Closes the movie when anything below is thrown.
    H264MovieWriter writer(path, FrameRenderer::pixelSize(snap), fps, count);
    FramePainter painter(snap);
    if (painter.frame().isNull())
        throw ExportError(ExportError::Kind::noPool);
    for (qint64 i = 0; i < count; ++i) {
        if (shouldCancel())
            throw ExportCancelled();
        const Seconds time(static_cast<double>(i) / fps);
        const QRegion changed = painter.paint(timeline.state(time));
        writer.append({painter.frame(), changed, time});
        const double done = static_cast<double>(i + 1) / static_cast<double>(count);
        if (!progress.send(done, shouldCancel))
            throw ExportCancelled();
    }
    writer.finish();
}

void writeMovie(const Snapshot &snap, const QString &path, ProgressRelay &progress,
                const CancelCheck &shouldCancel)
{
    try {
        writeFrames(snap, path, progress, shouldCancel);
    } catch (const MovieError &error) {
        if (error.cause() != MovieError::Cause::writing)
            throw;
        throw ExportError(ExportError::Kind::writerFailed, error.reason());
    }
    progress.drain(shouldCancel);
}

} // namespace

qint64 frameCount(const Snapshot &snap)
{
    return framesIn(Timeline::total(snap.steps), rateOf(snap));
}

QCoro::Task<> exportTo(Snapshot snap, QString path, std::function<void(double)> progress,
                       CancelCheck shouldCancel)
{
    check(snap);
    const auto relay = std::make_shared<ProgressRelay>(std::move(progress));
    const Closing closing(*relay);
    const std::function<void()> work = [&] { writeMovie(snap, path, *relay, shouldCancel); };
    co_await inBackground(work);
}

} // namespace velvane::Exporter
