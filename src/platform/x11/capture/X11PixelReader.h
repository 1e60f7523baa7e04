#pragma once

#include "platform/x11/X11Connection.h"

#include <QImage>
#include <QRegion>

#include <xcb/shm.h>

#include <span>
#include <vector>

namespace velvane {

/// Reads pixels of 24-bit drawables, through shared memory where the server can.
class X11PixelReader {
public:
    explicit X11PixelReader(const X11Connection &connection);
    ~X11PixelReader();
    X11PixelReader(const X11PixelReader &) = delete;
    X11PixelReader &operator=(const X11PixelReader &) = delete;

    /// Brings `region` of an image up to date from a drawable; the image's first pixel is the
    /// drawable's `origin`. The image has Format_RGB32. False when the server refuses.
    bool read(xcb_drawable_t drawable, QPoint origin, const QRegion &region, QImage &image);

private:
    using Rects = std::span<const QRect>;

    bool share(std::size_t bytes);
    void unshare();
    bool readShared(xcb_drawable_t drawable, QPoint origin, Rects rects, QImage &image);
    bool readSent(xcb_drawable_t drawable, QPoint origin, const QRect &rect, QImage &image);

    const X11Connection &m_connection;
    bool m_canShare;
    xcb_shm_seg_t m_segment = XCB_NONE;
    std::span<uchar> m_memory;
};

} // namespace velvane
