#include "platform/x11/capture/X11ComposedScene.h"

#include "platform/x11/capture/X11Rects.h"

#include <xcb/composite.h>

#include <utility>

namespace velvane {

namespace {

// Each rectangle is composed and read on its own; more are taken as one.
constexpr int mostRectangles = 32;

QRegion coarse(const QRegion &region)
{
    return region.rectCount() > mostRectangles ? QRegion(region.boundingRect()) : region;
}

// Until the connection ends the server keeps all windows' contents; beside a compositor, which has
// it do so already, this changes nothing.
const X11Connection &redirected(const X11Connection &connection)
{
    xcb_composite_redirect_subwindows(connection.get(), connection.root(),
                                      XCB_COMPOSITE_REDIRECT_AUTOMATIC);
    return connection;
}

} // namespace

X11ComposedScene::X11ComposedScene(const X11Connection &connection, const X11CaptureSource &source)
    : m_connection(connection)
    , m_formats(connection)
    , m_backdrop(connection, m_formats, source.wallpaper)
    , m_tree(redirected(connection), source.ours)
{}

X11ComposedScene::~X11ComposedScene()
{
    release();
}

void X11ComposedScene::release()
{
    if (m_pixmap == XCB_NONE)
        return;
    xcb_render_free_picture(m_connection.get(), m_picture);
    xcb_free_pixmap(m_connection.get(), m_pixmap);
    m_pixmap = XCB_NONE;
}

void X11ComposedScene::setArea(const QRect &area)
{
    release();
    m_area = area;
    m_changes = area;
    if (area.isEmpty())
        return;
    xcb_connection_t *c = m_connection.get();
    m_pixmap = xcb_generate_id(c);
    xcb_create_pixmap(c, 24, m_pixmap, m_connection.root(), uint16_t(area.width()),
                      uint16_t(area.height()));
    m_picture = xcb_generate_id(c);
    xcb_render_create_picture(c, m_picture, m_pixmap, m_formats.rgb(), 0, nullptr);
}

void X11ComposedScene::handle(const xcb_generic_event_t &event)
{
    if (m_backdrop.handle(event))
        m_changes = m_area;
    m_tree.handle(event);
}

QRegion X11ComposedScene::update()
{
    QRegion changes = std::exchange(m_changes, {});
    if (m_tree.hasChanges())
        changes += m_tree.takeChanges();
    changes = coarse(changes & m_area);
    if (!changes.isEmpty())
        compose(changes);
    return changes.translated(-m_area.topLeft());
}

// From the top down each window takes what it shows of what is missing; what is left is the
// backdrop's. They are painted from the bottom up, for those that let others shine through.
void X11ComposedScene::compose(QRegion missing)
{
    std::vector<std::pair<X11CapturedWindow *, QRegion>> visible;
    const X11WindowTree::Windows &windows = m_tree.windows();
    for (auto at = windows.rbegin(); at != windows.rend() && !missing.isEmpty(); ++at) {
        X11CapturedWindow &window = **at;
        if (!window.isShown() || !missing.intersects(window.frame()) || !window.surface(m_formats))
            continue;
        const QRegion part = missing & window.area();
        if (part.isEmpty())
            continue;
        visible.emplace_back(&window, part);
        if (window.isOpaque())
            missing -= part;
    }
    if (!missing.isEmpty())
        m_backdrop.paint(m_picture, m_area.topLeft(), missing);
    for (auto at = visible.rbegin(); at != visible.rend(); ++at)
        paint(*at->first, at->second);
}

void X11ComposedScene::paint(X11CapturedWindow &window, const QRegion &region)
{
    const X11WindowSurface &surface = *window.surface(m_formats);
    const auto clip = X11Rects::list(region.translated(-m_area.topLeft()));
    const QRect extent = region.boundingRect();
    const QPoint from = extent.topLeft() - window.frame().topLeft();
    const xcb_rectangle_t to = X11Rects::rect(extent.translated(-m_area.topLeft()));
    xcb_connection_t *c = m_connection.get();
    xcb_render_set_picture_clip_rectangles(c, m_picture, 0, 0, uint32_t(clip.size()), clip.data());
    xcb_render_composite(c, surface.hasAlpha() ? XCB_RENDER_PICT_OP_OVER : XCB_RENDER_PICT_OP_SRC,
                         surface.picture(), XCB_NONE, m_picture, int16_t(from.x()),
                         int16_t(from.y()), 0, 0, to.x, to.y, to.width, to.height);
}

} // namespace velvane
