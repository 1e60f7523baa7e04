#pragma once

#include <QRegion>

#include <xcb/xcb.h>

#include <algorithm>
#include <vector>

namespace velvane {

/// Between the toolkit's regions and the server's rectangles, which hold 16 bits.
namespace X11Rects {

inline xcb_rectangle_t rect(const QRect &rect)
{
    return {int16_t(rect.x()), int16_t(rect.y()), uint16_t(rect.width()), uint16_t(rect.height())};
}

inline std::vector<xcb_rectangle_t> list(const QRegion &region)
{
    std::vector<xcb_rectangle_t> rects;
    for (const QRect &part : region)
        rects.push_back(rect(part));
    return rects;
}

/// The union of `count` rectangles.
inline QRegion region(const xcb_rectangle_t *rects, int count)
{
    QRegion whole;
    std::for_each_n(rects, std::max(0, count), [&](const xcb_rectangle_t &part) {
        whole += QRect(part.x, part.y, part.width, part.height);
    });
    return whole;
}

} // namespace X11Rects

} // namespace velvane
