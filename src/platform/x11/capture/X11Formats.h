#pragma once

#include "platform/x11/X11Connection.h"

#include <xcb/render.h>

#include <map>

namespace velvane {

/// How the server's visuals store their pixels, for drawing with the Render extension.
class X11Formats {
public:
    explicit X11Formats(const X11Connection &connection);

    /// Render's format of a visual; 0 when it has none.
    xcb_render_pictformat_t of(xcb_visualid_t visual) const;
    bool hasAlpha(xcb_visualid_t visual) const;

    /// 24 bits of depth, as QImage::Format_RGB32 has them; 0 without Render.
    xcb_render_pictformat_t rgb() const { return m_rgb; }
    /// The root window's visual.
    xcb_visualid_t rootVisual() const { return m_rootVisual; }
    uint8_t rootDepth() const { return m_rootDepth; }

private:
    struct Format {
        xcb_render_pictformat_t id = 0;
        bool alpha = false;
    };

    std::map<xcb_visualid_t, Format> m_visuals;
    xcb_render_pictformat_t m_rgb = 0;
    xcb_visualid_t m_rootVisual = 0;
    uint8_t m_rootDepth = 0;
};

} // namespace velvane
