#include "platform/x11/capture/X11Camera.h"

#include "platform/x11/X11Screens.h"
#include "platform/x11/capture/X11ComposedScene.h"
#include "platform/x11/capture/X11Events.h"
#include "platform/x11/capture/X11RootScene.h"

#include <QCoreApplication>

#include <xcb/composite.h>
#include <xcb/randr.h>

#include <algorithm>
#include <utility>

namespace velvane {

namespace {

// The server refuses an extension's other requests until it has been told which version is known.
void beginExtensions(const X11Connection &connection)
{
    xcb_connection_t *c = connection.get();
    xcb_discard_reply(c, xcb_composite_query_version(c, 0, 4).sequence);
    xcb_discard_reply(c, xcb_damage_query_version(c, 1, 1).sequence);
    xcb_discard_reply(c, xcb_xfixes_query_version(c, 5, 0).sequence);
}

std::unique_ptr<X11Scene> sceneOf(const X11Connection &connection, const X11CaptureSource &source)
{
    const X11Formats formats(connection);
    const bool isPlain = formats.of(formats.rootVisual()) == formats.rgb();
    if (source.ours.mayExist() || !isPlain)
        return std::make_unique<X11ComposedScene>(connection, source);
    return std::make_unique<X11RootScene>(connection);
}

bool storesPixelsAsWeDo(const X11Connection &connection)
{
    const bool isLittle = Q_BYTE_ORDER == Q_LITTLE_ENDIAN;
    const uint8_t order = xcb_get_setup(connection.get())->image_byte_order;
    return (order == XCB_IMAGE_ORDER_LSB_FIRST) == isLittle;
}

} // namespace

X11Camera::X11Camera(const X11CaptureSource &source, const CaptureRequest &request)
    : m_connection(source.display)
    , m_request(request)
    , m_reader(m_connection)
{
    if (!m_connection.isOpen())
        return;
    beginExtensions(m_connection);
    m_scene = sceneOf(m_connection, source);
    if (request.showsCursor)
        m_pointer.emplace(m_connection);
    selectDisplayChanges();
    frameDisplay();
}

QString X11Camera::refusal() const
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("X11Camera", text); };
    if (!m_connection.isOpen())
        return tr("There is no connection to an X server.");
    if (!storesPixelsAsWeDo(m_connection))
        return tr("The X server stores pixels in another byte order.");
    if (m_area.isEmpty())
        return tr("The region to record lies outside the display.");
    return {};
}

int X11Camera::descriptor() const
{
    return xcb_get_file_descriptor(m_connection.get());
}

void X11Camera::selectDisplayChanges()
{
    xcb_connection_t *c = m_connection.get();
    m_displayEvent = X11Events::first(m_connection, &xcb_randr_id);
    if (m_displayEvent >= 0)
        xcb_randr_select_input(c, m_connection.root(),
                               XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE
                                   | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE
                                   | XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE);
}

void X11Camera::frameDisplay()
{
    const std::vector<X11Monitor> monitors = monitorsOf(m_connection, m_displayEvent >= 0);
    const auto primary = std::ranges::find(monitors, originOf(monitors),
                                           [](const X11Monitor &m) { return m.frame.topLeft(); });
    QRect area = primary == monitors.end() ? QRect() : primary->frame;
    if (m_request.region)
        area &= m_request.region->toAlignedRect().translated(area.topLeft());
    if (area == m_area)
        return;
    m_area = area;
    m_scene->setArea(area);
    m_image = QImage(area.size(), QImage::Format_RGB32);
    m_isNew = true;
    if (m_pointer)
        m_pointer->forget();
}

bool X11Camera::listen()
{
    while (const XReply<xcb_generic_event_t> event = nextEvent())
        hear(*event);
    if (std::exchange(m_isDisplayChanged, false)) {
        frameDisplay();
        return listen();
    }
    return m_connection.isOpen();
}

// Sending and waiting for answers may receive events, which would not wake who waits for more.
XReply<xcb_generic_event_t> X11Camera::nextEvent() const
{
    xcb_connection_t *c = m_connection.get();
    XReply<xcb_generic_event_t> event(xcb_poll_for_event(c));
    if (event)
        return event;
    xcb_flush(c);
    return XReply<xcb_generic_event_t>(xcb_poll_for_queued_event(c));
}

void X11Camera::hear(const xcb_generic_event_t &event)
{
    const int type = X11Events::type(event);
    const bool isRoot =
        type == XCB_CONFIGURE_NOTIFY
        && X11Events::as<xcb_configure_notify_event_t>(event).window == m_connection.root();
    const bool isDisplay = m_displayEvent >= 0
                           && (type == m_displayEvent + XCB_RANDR_SCREEN_CHANGE_NOTIFY
                               || type == m_displayEvent + XCB_RANDR_NOTIFY);
    // Errors are about windows that have gone.
    if (isRoot || isDisplay)
        m_isDisplayChanged = true;
    else if (type != 0)
        m_scene->handle(event);
    if (m_pointer)
        m_pointer->handle(event);
}

Frame X11Camera::take()
{
    if (m_area.isEmpty())
        return {};
    QRegion changed = m_scene->update();
    // The pointer is taken out before the picture changes below it.
    const bool isPointerDue = m_pointer && (m_pointer->follow() || !changed.isEmpty());
    const QRegion lifted = isPointerDue ? m_pointer->lift(m_image) : QRegion();
    if (!m_reader.read(m_scene->drawable(), m_scene->origin(), changed, m_image)) {
        // The display is changing its size; what was missed is read again.
        m_scene->setArea(m_area);
        return {};
    }
    if (isPointerDue)
        changed += lifted + m_pointer->drop(m_image, m_area.topLeft());
    if (std::exchange(m_isNew, false))
        changed = m_image.rect();
    return {m_image, changed, {}};
}

} // namespace velvane
