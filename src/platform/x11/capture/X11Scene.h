#pragma once

#include <QRegion>

#include <xcb/xcb.h>

namespace velvane {

/// What a capture reads its pictures from. One thread.
class X11Scene {
public:
    virtual ~X11Scene() = default;
    X11Scene(const X11Scene &) = delete;
    X11Scene &operator=(const X11Scene &) = delete;

    /// What pictures show, in root-window pixels. All of it counts as changed.
    virtual void setArea(const QRect &area) = 0;
    virtual void handle(const xcb_generic_event_t &event) = 0;

    /// May the area look different from the last update()?
    virtual bool hasChanges() const = 0;
    /// Brings drawable() up to date. Returns what may differ from before, in pixels of the area.
    virtual QRegion update() = 0;

    virtual xcb_drawable_t drawable() const = 0;
    /// Where in the drawable the area begins.
    virtual QPoint origin() const = 0;

protected:
    X11Scene() = default;
};

} // namespace velvane
