#include "platform/x11/capture/X11Formats.h"

namespace velvane {

namespace {

bool isRgb(const xcb_render_pictforminfo_t &format)
{
    const xcb_render_directformat_t &direct = format.direct;
    return format.type == XCB_RENDER_PICT_TYPE_DIRECT && format.depth == 24
           && direct.red_shift == 16 && direct.red_mask == 0xff && direct.green_shift == 8
           && direct.green_mask == 0xff && direct.blue_shift == 0 && direct.blue_mask == 0xff;
}

} // namespace

X11Formats::X11Formats(const X11Connection &connection)
{
    xcb_connection_t *c = connection.get();
    xcb_discard_reply(c, xcb_render_query_version(c, 0, 11).sequence);
    const XReply<xcb_render_query_pict_formats_reply_t> reply(
        xcb_render_query_pict_formats_reply(c, xcb_render_query_pict_formats(c), nullptr));
    if (!reply)
        return;
    std::map<xcb_render_pictformat_t, bool> alpha;
    for (auto at = xcb_render_query_pict_formats_formats_iterator(reply.get()); at.rem > 0;
         xcb_render_pictforminfo_next(&at)) {
        alpha[at.data->id] = at.data->direct.alpha_mask != 0;
        if (m_rgb == 0 && isRgb(*at.data))
            m_rgb = at.data->id;
    }
    for (auto screen = xcb_render_query_pict_formats_screens_iterator(reply.get()); screen.rem > 0;
         xcb_render_pictscreen_next(&screen)) {
        for (auto depth = xcb_render_pictscreen_depths_iterator(screen.data); depth.rem > 0;
             xcb_render_pictdepth_next(&depth)) {
            for (auto at = xcb_render_pictdepth_visuals_iterator(depth.data); at.rem > 0;
                 xcb_render_pictvisual_next(&at))
                m_visuals[at.data->visual] = {at.data->format, alpha[at.data->format]};
        }
    }
    for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(c)); screen.rem > 0;
         xcb_screen_next(&screen)) {
        if (screen.data->root != connection.root())
            continue;
        m_rootVisual = screen.data->root_visual;
        m_rootDepth = screen.data->root_depth;
    }
}

xcb_render_pictformat_t X11Formats::of(xcb_visualid_t visual) const
{
    const auto found = m_visuals.find(visual);
    return found == m_visuals.end() ? 0 : found->second.id;
}

bool X11Formats::hasAlpha(xcb_visualid_t visual) const
{
    const auto found = m_visuals.find(visual);
    return found != m_visuals.end() && found->second.alpha;
}

} // namespace velvane
