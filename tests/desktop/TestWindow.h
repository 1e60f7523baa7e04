#pragma once

#include "platform/x11/X11Connection.h"

#include <QRect>
#include <QString>

namespace velvane {

/// A window as another program would show it, made with plain X requests.
class TestWindow {
public:
    /// One that draws itself, frame and shadow included, has a shadow of 20, 22, 14 and 26 pixels
    /// at its left, right, top and bottom.
    /// What the window manager is told that it is; a panel is a dock that takes its part of the
    /// screen's top edge.
    enum class Type { normal, dock, panel, helper, shadowed };

    /// Shows a window whose class is `name`; returns once the window manager manages it. Its
    /// process is this one.
    TestWindow(X11Connection &connection, const QString &name, const QRect &frame,
               Type type = Type::normal);
    ~TestWindow();
    TestWindow(const TestWindow &) = delete;
    TestWindow &operator=(const TestWindow &) = delete;

    xcb_window_t id() const { return m_id; }
    bool isManaged() const;

    void setNumbers(const QByteArray &property, xcb_atom_t type,
                    const std::vector<uint32_t> &numbers);
    /// Asks the window manager something about this window, as an application does.
    void ask(const QByteArray &message, const std::vector<uint32_t> &data);

    void setBytes(const QByteArray &property, xcb_atom_t type, const QByteArray &bytes);

private:
    X11Connection &m_connection;
    const xcb_window_t m_id;
};

} // namespace velvane
