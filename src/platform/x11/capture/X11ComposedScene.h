#pragma once

#include "platform/x11/capture/X11Backdrop.h"
#include "platform/x11/capture/X11CaptureSource.h"
#include "platform/x11/capture/X11Scene.h"
#include "platform/x11/capture/X11WindowTree.h"

namespace velvane {

/// The screen without this program's windows: the contents that the server keeps of each other
/// window, put together by the server where something changed.
///
/// It works with and without a compositor, whose shadows it lacks.
class X11ComposedScene final : public X11Scene {
public:
    X11ComposedScene(const X11Connection &connection, const X11CaptureSource &source);
    ~X11ComposedScene() override;

    void setArea(const QRect &area) override;
    void handle(const xcb_generic_event_t &event) override;
    bool hasChanges() const override { return !m_changes.isEmpty() || m_tree.hasChanges(); }
    QRegion update() override;
    xcb_drawable_t drawable() const override { return m_pixmap; }
    QPoint origin() const override { return {0, 0}; }

private:
    void compose(QRegion missing);
    void paint(X11CapturedWindow &window, const QRegion &region);
    void release();

    const X11Connection &m_connection;
    const X11Formats m_formats;
    X11Backdrop m_backdrop;
    X11WindowTree m_tree;
    QRect m_area;
    /// In root-window pixels.
    QRegion m_changes;
    /// As large as the area.
    xcb_pixmap_t m_pixmap = XCB_NONE;
    xcb_render_picture_t m_picture = XCB_NONE;
};

} // namespace velvane
