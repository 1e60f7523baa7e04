#pragma once

#include "platform/x11/X11Connection.h"
#include "platform/x11/capture/X11Scene.h"

#include <xcb/damage.h>
#include <xcb/xfixes.h>

namespace velvane {

/// The screen as it is shown, a compositor's shadows included: for a program that has no windows.
class X11RootScene final : public X11Scene {
public:
    explicit X11RootScene(const X11Connection &connection);
    ~X11RootScene() override;

    void setArea(const QRect &area) override;
    void handle(const xcb_generic_event_t &event) override;
    bool hasChanges() const override { return m_isDrawn || !m_changes.isEmpty(); }
    QRegion update() override;
    xcb_drawable_t drawable() const override { return m_connection.root(); }
    QPoint origin() const override { return m_area.topLeft(); }

private:
    const X11Connection &m_connection;
    const int m_damageEvent;
    xcb_damage_damage_t m_damage;
    xcb_xfixes_region_t m_drawn;
    QRect m_area;
    /// In root-window pixels.
    QRegion m_changes;
    bool m_isDrawn = false;
};

} // namespace velvane
