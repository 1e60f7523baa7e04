#pragma once

#include "capture/LiveFrame.h"
#include "platform/Desktop.h"

#include <QTimer>

namespace velvane {

class FrameMailbox;

/// Keeps a picture of the primary display up to date at a low rate, without our own windows and
/// without the pointer. A watchdog starts it anew when pictures stop coming. Main thread only; the
/// pictures come from the capture's own thread.
class ScreenStream : public QObject {
    Q_OBJECT
public:
    explicit ScreenStream(Desktop &desktop, QObject *parent = nullptr);
    ~ScreenStream() override;

    /// Begins; nothing happens while a stream runs. What is missing sets permissionDenied() or,
    /// without a display, nothing.
    QCoro::Task<> start();
    /// Ends the stream and the watchdog; the last picture stays.
    void stop();
    /// Starts a wanted stream anew.
    void recover();

    LiveFrame &live() { return m_live; }
    bool isRunning() const { return m_isRunning; }
    /// Is it the user's wish that it runs?
    bool wantRunning() const { return m_wantRunning; }
    /// Is access to the screen missing, or did the last start fail?
    bool permissionDenied() const { return m_permissionDenied; }
    /// When the newest picture came, in Clock::now()'s time.
    Seconds lastFrame() const { return m_lastFrame; }

    void openScreenRecordingSettings();

    /// The watchdog looks: recovers when no picture came for more than three seconds. It does so
    /// every two seconds while a stream runs.
    void tick();

Q_SIGNALS:
    void isRunningChanged();
    void permissionDeniedChanged();

private:
    bool mayCapture();
    bool isListed();
    void openStream();
    void deliver(const std::shared_ptr<FrameMailbox> &mailbox);
    void endStream();
    void setRunning(bool running);
    void setPermissionDenied(bool denied);

    Desktop &m_desktop;
    LiveFrame m_live;
    QTimer m_watchdog{this};
    Seconds m_lastFrame;
    bool m_isRunning = false;
    bool m_permissionDenied = false;
    bool m_wantRunning = false;
    /// Of the stream that runs; what older ones left behind is not read.
    std::shared_ptr<FrameMailbox> m_mailbox;
    /// Last, so that it ends before what it calls.
    Token m_stream;
};

} // namespace velvane
