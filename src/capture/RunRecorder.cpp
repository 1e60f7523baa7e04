#include "capture/RunRecorder.h"

#include "base/Background.h"
#include "capture/Bookmark.h"
#include "capture/ScreenMovie.h"
#include "media/QueuedWriter.h"
#include "media/RecordingWriter.h"

#include <QDir>
#include <QFile>
#include <QPointer>

#include <mutex>
#include <stdexcept>
#include <utility>

namespace velvane {

namespace {

constexpr double picturesPerSecond = 60;
constexpr Seconds longestStop = 2s;
// How soon stop() notices that the movie is complete.
constexpr Seconds glance = 0.02s;
// Points that a main window exceeds.
constexpr QSizeF smallWindow(120, 80);

RunRecorder::Making usual()
{
    const auto writer = [](const QString &path, QSize size) {
        return std::make_unique<QueuedWriter>(std::make_unique<RecordingWriter>(path, size));
    };
    return {.writer = writer, .date = [] { return QDateTime::currentDateTime(); }};
}

// A movie's sides are even and not 0.
int side(qreal points, qreal scale)
{
    return std::max(qRound(points * scale) & ~1, 2);
}

double area(const WindowInfo &window)
{
    return window.frame.width() * window.frame.height();
}

} // namespace

struct RunRecorder::Take {
    Take(std::unique_ptr<MovieWriter> writer, QSize size, Seconds begun, ScreenMovie::Ended ended)
        : movie(std::move(writer), size, begun, std::move(ended))
    {}

    /// Then nothing more comes. Any thread; another's call is waited for.
    void closeStream()
    {
        const std::lock_guard lock(mutex);
        stream.reset();
    }

    ScreenMovie movie;
    std::mutex mutex;
    /// Last, so that it ends before what it calls.
    Token stream;
};

RunRecorder::RunRecorder(Desktop &desktop, QObject *parent) : RunRecorder(desktop, usual(), parent)
{}

RunRecorder::RunRecorder(Desktop &desktop, Making making, QObject *parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_making(std::move(making))
{}

RunRecorder::~RunRecorder()
{
    if (!m_take)
        return;
    m_take->closeStream();
    m_take->movie.finish(m_desktop.clock().now());
    removeIfEmpty(*m_take);
}

QString RunRecorder::start(RecordScope scope, const QString &appName, bool showsCursor,
                           bool pointScaled)
{
    const std::optional<Display> display = m_desktop.screens().primaryDisplay();
    if (!display)
        throw std::runtime_error(tr("No display to record").toStdString());
    CaptureRequest request;
    request.showsCursor = showsCursor;
    request.maxRate = picturesPerSecond;
    if (scope == RecordScope::window) {
        request.region = windowRegion(appName, *display);
        m_fellBackToScreen = !request.region;
    }
    const QSizeF points = request.region ? request.region->size() : display->frame.size();
    const qreal scale = pointScaled ? 1 : display->scale;
    open(request, {side(points.width(), scale), side(points.height(), scale)});
    return m_url;
}

// The part of the main window that lies on the display.
std::optional<QRectF> RunRecorder::windowRegion(const QString &appName, const Display &display)
{
    const auto window = mainWindow(appName, m_desktop.windows().windows());
    const QRectF region = window ? window->frame & display.frame : QRectF();
    return region.isEmpty() ? std::nullopt : std::optional(region);
}

void RunRecorder::open(const CaptureRequest &request, QSize size)
{
    const QString path = makeOutputURL();
    const QPointer<RunRecorder> self(this);
    const auto tell = [self](const QString &reason) {
        onMainThread([self, reason] {
            if (self)
                self->endByItself(reason);
        });
    };
    m_begun = m_desktop.clock().now();
    const auto take = std::make_shared<Take>(m_making.writer(path, size), size, m_begun, tell);
    const Clock &clock = m_desktop.clock();
    CaptureOpening opening = m_desktop.capture().open(
        request, [movie = &take->movie](const Frame &frame) { movie->append(frame); },
        [movie = &take->movie, &clock](const QString &reason) { movie->end(clock.now(), reason); });
    if (!opening.stream) {
        take->movie.finish(m_begun);
        QFile::remove(path);
        throw std::runtime_error(opening.error.toStdString());
    }
    take->stream = std::move(opening.stream);
    m_take = take;
    m_url = path;
}

QString RunRecorder::makeOutputURL() const
{
    const QString folder = Bookmark::recordingsFolder();
    QDir().mkpath(folder); // where this fails, creating the file says why
    return folder + m_making.date().toString(QStringLiteral("'/run-'yyyy-MM-dd-HHmmss'.mp4'"));
}

std::optional<WindowInfo> RunRecorder::mainWindow(const QString &ofApp,
                                                  const std::vector<WindowInfo> &in)
{
    const QString name = ofApp.trimmed();
    const WindowInfo *found = nullptr;
    for (const WindowInfo &window : in) {
        const QSizeF size = window.frame.size();
        const bool isCandidate = window.onScreen && window.owner.isNamed(name)
                                 && size.width() > smallWindow.width()
                                 && size.height() > smallWindow.height();
        if (isCandidate && (!found || area(window) > area(*found)))
            found = &window;
    }
    return found ? std::optional(*found) : std::nullopt;
}

QCoro::Task<> RunRecorder::stop()
{
    if (!m_take)
        co_return;
    const std::shared_ptr<Take> take = std::exchange(m_take, nullptr);
    const auto isDone = std::make_shared<bool>(false);
    Clock &clock = m_desktop.clock();
    const Seconds deadline = clock.now() + longestStop;
    finish(take, clock.now(), isDone);
    while (!*isDone && clock.now() < deadline)
        co_await clock.delay(glance);
    removeIfEmpty(*take);
}

QCoro::Task<> RunRecorder::finish(std::shared_ptr<Take> take, Seconds at,
                                  std::shared_ptr<bool> isDone)
{
    const std::function<void()> work = [take, at] {
        take->closeStream();
        take->movie.finish(at);
    };
    co_await inBackground(work);
    *isDone = true;
}

// The stream has nobody left to work for. Closing it may take a while.
void RunRecorder::endByItself(const QString &reason)
{
    if (m_take) {
        const std::function<void()> close = [take = m_take] { take->closeStream(); };
        inBackground(close);
    }
    Q_EMIT ended(reason);
}

void RunRecorder::removeIfEmpty(const Take &take)
{
    if (!take.movie.isEmpty())
        return;
    QFile::remove(m_url);
    m_url.clear();
}

} // namespace velvane
