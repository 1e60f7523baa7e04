#pragma once

#include "platform/AppControl.h"
#include "platform/WindowControl.h"
#include "platform/x11/X11Screens.h"
#include "platform/x11/X11WindowManager.h"

namespace velvane {

/// The windows that the window manager manages, named by their X ids.
class X11WindowControl final : public WindowControl {
public:
    X11WindowControl(const X11Connection &connection, const X11WindowManager &manager,
                     const X11Screens &screens, AppControl &apps);

    QString missing() const override { return m_manager.missing(); }
    std::vector<WindowInfo> windows() override;
    void moveWindow(quint64 id, QPointF topLeft) override;

private:
    const X11Connection &m_connection;
    const X11WindowManager &m_manager;
    const X11Screens &m_screens;
    AppControl &m_apps;
};

} // namespace velvane
