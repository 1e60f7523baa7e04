#include "capture/ScreenStream.h"

#include "capture/FrameMailbox.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace velvane {

namespace {

constexpr double mostPicturesPerSecond = 12;
constexpr Seconds untilListed = 0.2s;
constexpr auto watchInterval = std::chrono::seconds(2);
constexpr Seconds stalledAfter = 3s;

} // namespace

ScreenStream::ScreenStream(Desktop &desktop, QObject *parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_lastFrame(desktop.clock().now())
{
    m_watchdog.setInterval(watchInterval);
    connect(&m_watchdog, &QTimer::timeout, this, &ScreenStream::tick);
}

ScreenStream::~ScreenStream()
{
    stop();
}

QCoro::Task<> ScreenStream::start()
{
    m_wantRunning = true;
    if (m_stream)
        co_return;
    if (!mayCapture()) {
        setPermissionDenied(true);
        co_return;
    }
    if (!m_desktop.screens().primaryDisplay())
        co_return;
    if (!isListed()) {
        // Once only: what a system does not know yet it cannot leave out of the picture.
        const QPointer<ScreenStream> alive(this);
        co_await m_desktop.clock().delay(untilListed);
        if (!alive || !m_wantRunning || m_stream)
            co_return;
    }
    openStream();
}

bool ScreenStream::mayCapture()
{
    Permissions &permissions = m_desktop.permissions();
    return permissions.granted(Permission::screenRecording)
           || permissions.request(Permission::screenRecording);
}

bool ScreenStream::isListed()
{
    const std::vector<AppInfo> apps = m_desktop.apps().running();
    return std::ranges::any_of(apps, &AppInfo::ours);
}

void ScreenStream::openStream()
{
    CaptureRequest request;
    request.showsCursor = false;
    request.maxRate = mostPicturesPerSecond;
    const auto mailbox = std::make_shared<FrameMailbox>();
    // A picture that comes on this thread is shown at once.
    const auto captured = [this, mailbox](const Frame &frame) {
        if (mailbox->put(frame))
            QMetaObject::invokeMethod(this, [this, mailbox] { deliver(mailbox); });
    };
    const auto ended = [this, mailbox](const QString &) {
        const auto again = [this, mailbox] {
            if (mailbox == m_mailbox)
                recover();
        };
        QMetaObject::invokeMethod(this, again, Qt::QueuedConnection);
    };
    m_mailbox = mailbox;
    CaptureOpening opening = m_desktop.capture().open(request, captured, ended);
    if (!opening.stream) {
        m_mailbox.reset();
        setPermissionDenied(true);
        return;
    }
    m_stream = std::move(opening.stream);
    m_lastFrame = m_desktop.clock().now();
    m_watchdog.start();
    setPermissionDenied(false);
    setRunning(true);
}

void ScreenStream::deliver(const std::shared_ptr<FrameMailbox> &mailbox)
{
    const std::optional<Frame> frame = mailbox->take();
    if (!frame || mailbox != m_mailbox)
        return;
    m_lastFrame = m_desktop.clock().now();
    m_live.show(*frame);
}

void ScreenStream::tick()
{
    if (m_wantRunning && m_isRunning && m_desktop.clock().now() - m_lastFrame > stalledAfter)
        recover();
}

void ScreenStream::recover()
{
    if (!m_wantRunning)
        return;
    endStream();
    const auto again = [this] {
        if (m_wantRunning)
            start();
    };
    QMetaObject::invokeMethod(this, again, Qt::QueuedConnection);
}

void ScreenStream::stop()
{
    m_wantRunning = false;
    m_watchdog.stop();
    endStream();
}

void ScreenStream::endStream()
{
    m_mailbox.reset();
    m_stream.reset();
    setRunning(false);
}

void ScreenStream::openScreenRecordingSettings()
{
    m_desktop.shell().open(QUrl(SettingsAddress::screenRecording));
}

void ScreenStream::setRunning(bool running)
{
    if (std::exchange(m_isRunning, running) != running)
        Q_EMIT isRunningChanged();
}

void ScreenStream::setPermissionDenied(bool denied)
{
    if (std::exchange(m_permissionDenied, denied) != denied)
        Q_EMIT permissionDeniedChanged();
}

} // namespace velvane
