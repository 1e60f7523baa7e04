#include "CaptureStage.h"

namespace velvane {

namespace {

uint32_t pixelOf(const QColor &color)
{
    return color.rgb();
}

} // namespace

BareWindow::BareWindow(X11Connection &connection, xcb_window_t parent, const QRect &frame,
                       const QColor &color)
    : m_connection(connection)
    , m_id(xcb_generate_id(connection.get()))
{
    const uint32_t values[] = {pixelOf(color), 1};
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_id, parent, int16_t(frame.x()),
                      int16_t(frame.y()), uint16_t(frame.width()), uint16_t(frame.height()), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
    setMapped(true);
}

BareWindow::~BareWindow()
{
    xcb_destroy_window(m_connection.get(), m_id);
    sync();
}

void BareWindow::paint(const QRect &rect, const QColor &color)
{
    const xcb_gcontext_t context = xcb_generate_id(m_connection.get());
    const uint32_t pixel = pixelOf(color);
    xcb_create_gc(m_connection.get(), context, m_id, XCB_GC_FOREGROUND, &pixel);
    const xcb_rectangle_t area{int16_t(rect.x()), int16_t(rect.y()), uint16_t(rect.width()),
                               uint16_t(rect.height())};
    xcb_poly_fill_rectangle(m_connection.get(), m_id, context, 1, &area);
    xcb_free_gc(m_connection.get(), context);
    sync();
}

void BareWindow::configure(uint16_t mask, std::initializer_list<uint32_t> values)
{
    xcb_configure_window(m_connection.get(), m_id, mask, values.begin());
    sync();
}

void BareWindow::setMapped(bool mapped)
{
    if (mapped)
        xcb_map_window(m_connection.get(), m_id);
    else
        xcb_unmap_window(m_connection.get(), m_id);
    sync();
}

void BareWindow::sync()
{
    std::free(xcb_get_input_focus_reply(m_connection.get(), xcb_get_input_focus(m_connection.get()),
                                        nullptr));
}

CaptureOpening Viewer::open(ScreenCapture &capture, const CaptureRequest &request)
{
    return capture.open(
        request,
        [this](const Frame &frame) {
            if (isForbiddenIn(frame))
                m_sawForbidden = true;
            const std::lock_guard lock(m_mutex);
            m_newest = {frame.image.copy(), frame.changed, frame.time};
            m_changes += frame.changed.isEmpty() ? 0 : 1;
            ++m_count;
        },
        [this](const QString &) { m_ended = true; });
}

bool Viewer::isForbiddenIn(const Frame &frame) const
{
    if (!m_forbidden)
        return false;
    for (const QRect &rect : frame.changed) {
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(frame.image.constScanLine(y));
            for (int x = rect.left(); x <= rect.right(); ++x) {
                if ((line[x] | 0xff000000) == *m_forbidden)
                    return true;
            }
        }
    }
    return false;
}

bool Viewer::differs(const QRect &area, const QColor &color) const
{
    const QImage part = newest().image.copy(area);
    QImage plain(part.size(), part.format());
    plain.fill(color);
    return part != plain;
}

Frame Viewer::newest() const
{
    const std::lock_guard lock(m_mutex);
    return m_newest;
}

QColor Viewer::colorAt(QPoint place) const
{
    const std::lock_guard lock(m_mutex);
    return m_newest.image.valid(place) ? m_newest.image.pixelColor(place) : QColor();
}

} // namespace velvane
