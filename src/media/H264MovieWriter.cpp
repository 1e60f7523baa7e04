#include "media/H264MovieWriter.h"

#include "media/H264Encoder.h"
#include "media/MovieError.h"
#include "media/MovieFile.h"
#include "media/Mp4Muxer.h"
#include "media/Yuv420Converter.h"

#include <QCoreApplication>
#include <QtDebug>

#include <cmath>

namespace velvane {

namespace {

constexpr int longestSide = 16'384;

// H.264 level 6.2, the highest there is.
constexpr int macroblock = 16;
constexpr qint64 macroblocksPerFrame = 139'264;
constexpr qint64 macroblocksPerSecond = 16'711'680;

qint64 macroblocksOf(QSize size)
{
    const auto along = [](int side) { return (qint64(side) + macroblock - 1) / macroblock; };
    return along(size.width()) * along(size.height());
}

QString tr(const char *english)
{
    return QCoreApplication::translate("H264MovieWriter", english);
}

MovieError refusal(const QString &reason)
{
    return {MovieError::Cause::size, reason};
}

} // namespace

class H264MovieWriter::Impl {
public:
    Impl(const QString &path, QSize size, int fps, qint64 expectedFrames)
        : m_size(size)
        , m_fps(fps)
        , m_converter(size)
        , m_encoder(m_converter.paddedSize(), fps)
        , m_file(path)
        , m_muxer(m_file, {m_converter.paddedSize(), fps, m_encoder.configuration()},
                  std::max<qint64>(expectedFrames, 0))
    {}

    void append(const Frame &frame);
    void finish();

private:
    void write(const EncodedPicture &picture);
    [[noreturn]] void fail() const;

    QSize m_size;
    int m_fps;
    qint64 m_lastIndex = -1;
    bool m_finished = false;
    Yuv420Converter m_converter;
    H264Encoder m_encoder;
    MovieFile m_file;
    Mp4Muxer m_muxer;
};

void H264MovieWriter::Impl::append(const Frame &frame)
{
    if (m_file.hasFailed())
        fail();
    if (frame.image.size() != m_size)
        throw MovieError(MovieError::Cause::writing,
                         QStringLiteral("a frame has another size than the movie"));
    const qint64 index = std::llround(frame.time.count() * m_fps);
    if (index <= m_lastIndex)
        throw MovieError(MovieError::Cause::writing,
                         QStringLiteral("a frame is not later than the one before"));
    const QRegion changed = m_lastIndex < 0 ? QRegion(frame.image.rect()) : frame.changed;
    m_lastIndex = index;
    m_converter.convert(frame.image, changed);
    if (const auto picture = m_encoder.encode(m_converter, changed, index))
        write(*picture);
}

void H264MovieWriter::Impl::write(const EncodedPicture &picture)
{
    if (!m_muxer.write(picture))
        fail();
}

void H264MovieWriter::Impl::finish()
{
    if (m_finished)
        return;
    m_finished = true;
    while (!m_file.hasFailed()) {
        const auto picture = m_encoder.drain();
        if (!picture || !m_muxer.write(*picture))
            break;
    }
    m_muxer.finish();
    m_file.close();
    if (m_file.hasFailed())
        fail();
}

void H264MovieWriter::Impl::fail() const
{
    throw MovieError(MovieError::Cause::writing, m_file.failure());
}

void H264MovieWriter::check(QSize size, int fps)
{
    if (std::min(size.width(), size.height()) < 1
        || std::max(size.width(), size.height()) > longestSide)
        throw refusal(tr("a movie of %1 × %2 pixels is not possible: sides are from 1 to %3 pixels")
                          .arg(size.width())
                          .arg(size.height())
                          .arg(longestSide));
    const qint64 macroblocks = macroblocksOf(size);
    if (macroblocks > macroblocksPerFrame)
        throw refusal(tr("a movie of %1 × %2 pixels is not possible: it has %3 macroblocks, and "
                         "H.264 allows %4")
                          .arg(size.width())
                          .arg(size.height())
                          .arg(macroblocks)
                          .arg(macroblocksPerFrame));
    if (fps < 1)
        throw refusal(tr("%1 frames per second are not possible: at least 1").arg(fps));
    if (macroblocks * fps > macroblocksPerSecond)
        throw refusal(tr("a movie of %1 × %2 pixels at %3 frames per second is not possible: it "
                         "has %4 macroblocks per second, and H.264 allows %5")
                          .arg(size.width())
                          .arg(size.height())
                          .arg(fps)
                          .arg(macroblocks * fps)
                          .arg(macroblocksPerSecond));
}

H264MovieWriter::H264MovieWriter(const QString &path, QSize size, int fps, qint64 expectedFrames)
    : m_impl((check(size, fps), std::make_unique<Impl>(path, size, fps, expectedFrames)))
{}

H264MovieWriter::~H264MovieWriter()
{
    try {
        m_impl->finish();
    } catch (const std::exception &error) {
        qWarning("A movie was closed with an error: %s", error.what());
    }
}

void H264MovieWriter::append(const Frame &frame)
{
    m_impl->append(frame);
}

void H264MovieWriter::finish()
{
    m_impl->finish();
}

} // namespace velvane
