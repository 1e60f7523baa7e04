#pragma once

#include "platform/SystemClock.h"
#include "platform/x11/capture/X11Capture.h"

#include <QColor>

#include <atomic>
#include <mutex>

namespace velvane {

/// A plain window that no window manager frames, as a menu is.
class BareWindow {
public:
    BareWindow(X11Connection &connection, const QRect &frame, const QColor &color)
        : BareWindow(connection, connection.root(), frame, color)
    {}
    BareWindow(X11Connection &connection, xcb_window_t parent, const QRect &frame,
               const QColor &color);
    ~BareWindow();
    BareWindow(const BareWindow &) = delete;
    BareWindow &operator=(const BareWindow &) = delete;

    xcb_window_t id() const { return m_id; }
    void paint(const QRect &rect, const QColor &color);
    void configure(uint16_t mask, std::initializer_list<uint32_t> values);
    void setMapped(bool mapped);

private:
    void sync();

    X11Connection &m_connection;
    const xcb_window_t m_id;
};

/// Keeps a stream's newest picture, counts, and looks for a colour that is to be in none.
class Viewer {
public:
    CaptureOpening open(ScreenCapture &capture, const CaptureRequest &request = {});

    /// Before open().
    void forbid(const QColor &color) { m_forbidden = color.rgb(); }
    bool sawForbidden() const { return m_sawForbidden; }

    Frame newest() const;
    /// Is any pixel of the area of another colour?
    bool differs(const QRect &area, const QColor &color) const;
    QColor colorAt(QPoint place) const;
    int count() const { return m_count; }
    int changes() const { return m_changes; }
    bool hasEnded() const { return m_ended; }

private:
    bool isForbiddenIn(const Frame &frame) const;

    mutable std::mutex m_mutex;
    std::optional<QRgb> m_forbidden;
    std::atomic<bool> m_sawForbidden = false;
    Frame m_newest;
    std::atomic<int> m_count = 0;
    std::atomic<int> m_changes = 0;
    std::atomic<bool> m_ended = false;
};

} // namespace velvane
