#include "platform/x11/capture/X11PixelReader.h"

#include <cstring>

#include <sys/ipc.h>
#include <sys/shm.h>

namespace velvane {

namespace {

constexpr std::size_t pixelSize = 4;
// What the server sends in one reply without shared memory.
constexpr int sentAtOnce = 1 << 20;

std::size_t bytesOf(const QRect &rect)
{
    return std::size_t(rect.width()) * std::size_t(rect.height()) * pixelSize;
}

void copy(const uchar *pixels, const QRect &to, QImage &image)
{
    const std::size_t line = std::size_t(to.width()) * pixelSize;
    for (int y = 0; y < to.height(); ++y, pixels += line)
        std::memcpy(image.scanLine(to.y() + y) + std::size_t(to.x()) * pixelSize, pixels, line);
}

} // namespace

X11PixelReader::X11PixelReader(const X11Connection &connection)
    : m_connection(connection)
    , m_canShare(connection.hasExtension("MIT-SHM"))
{}

X11PixelReader::~X11PixelReader()
{
    unshare();
}

void X11PixelReader::unshare()
{
    if (m_memory.empty())
        return;
    xcb_shm_detach(m_connection.get(), m_segment);
    shmdt(m_memory.data());
    m_memory = {};
}

bool X11PixelReader::share(std::size_t bytes)
{
    if (!m_canShare || bytes <= m_memory.size())
        return m_canShare;
    unshare();
    m_canShare = false;
    const int id = shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
    if (id < 0)
        return false;
    void *memory = shmat(id, nullptr, 0);
    if (memory != reinterpret_cast<void *>(-1)) {
        m_segment = xcb_generate_id(m_connection.get());
        // A server on another machine refuses.
        const XReply<xcb_generic_error_t> error(xcb_request_check(
            m_connection.get(),
            xcb_shm_attach_checked(m_connection.get(), m_segment, uint32_t(id), 0)));
        m_canShare = !error && m_connection.isOpen();
        if (m_canShare)
            m_memory = {static_cast<uchar *>(memory), bytes};
        else
            shmdt(memory);
    }
    // It lives on until both have let go of it, however they end.
    shmctl(id, IPC_RMID, nullptr);
    return m_canShare;
}

bool X11PixelReader::read(xcb_drawable_t drawable, QPoint origin, const QRegion &region,
                          QImage &image)
{
    const Rects rects(region.begin(), region.end());
    if (share(bytesOf(image.rect())))
        return readShared(drawable, origin, rects, image);
    for (const QRect &rect : rects) {
        const int rows = std::max(1, sentAtOnce / (rect.width() * int(pixelSize)));
        for (int y = rect.top(); y <= rect.bottom(); y += rows) {
            const QRect part(rect.left(), y, rect.width(), std::min(rows, rect.bottom() + 1 - y));
            if (!readSent(drawable, origin, part, image))
                return false;
        }
    }
    return true;
}

// All are asked for before the first is waited for.
bool X11PixelReader::readShared(xcb_drawable_t drawable, QPoint origin, Rects rects, QImage &image)
{
    xcb_connection_t *c = m_connection.get();
    std::vector<xcb_shm_get_image_cookie_t> asked;
    std::size_t at = 0;
    for (const QRect &rect : rects) {
        const QPoint from = rect.topLeft() + origin;
        asked.push_back(xcb_shm_get_image(c, drawable, int16_t(from.x()), int16_t(from.y()),
                                          uint16_t(rect.width()), uint16_t(rect.height()), ~0U,
                                          XCB_IMAGE_FORMAT_Z_PIXMAP, m_segment, uint32_t(at)));
        at += bytesOf(rect);
    }
    bool complete = true;
    at = 0;
    for (std::size_t i = 0; i < asked.size(); ++i) {
        const XReply<xcb_shm_get_image_reply_t> reply(
            xcb_shm_get_image_reply(c, asked[i], nullptr));
        if (reply)
            copy(m_memory.data() + at, rects[i], image);
        complete = complete && reply;
        at += bytesOf(rects[i]);
    }
    return complete;
}

bool X11PixelReader::readSent(xcb_drawable_t drawable, QPoint origin, const QRect &rect,
                              QImage &image)
{
    xcb_connection_t *c = m_connection.get();
    const QPoint from = rect.topLeft() + origin;
    const XReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(
        c,
        xcb_get_image(c, XCB_IMAGE_FORMAT_Z_PIXMAP, drawable, int16_t(from.x()), int16_t(from.y()),
                      uint16_t(rect.width()), uint16_t(rect.height()), ~0U),
        nullptr));
    if (!reply || std::size_t(xcb_get_image_data_length(reply.get())) < bytesOf(rect))
        return false;
    copy(xcb_get_image_data(reply.get()), rect, image);
    return true;
}

} // namespace velvane
