#include "platform/x11/X11WindowIcon.h"

#include "platform/x11/X11Property.h"

#include <algorithm>
#include <cstring>

namespace velvane {

namespace {

constexpr uint32_t longestProperty = 4 * 1024 * 1024;
constexpr uint32_t largestSide = 1024;

} // namespace

QImage pickIcon(const std::vector<uint32_t> &numbers, int side)
{
    const uint32_t *best = nullptr;
    const auto width = [](const uint32_t *picture) { return static_cast<int>(picture[0]); };
    for (std::size_t at = 0; at + 2 < numbers.size();) {
        const uint32_t *picture = numbers.data() + at;
        if (picture[0] == 0 || picture[1] == 0 || picture[0] > largestSide
            || picture[1] > largestSide)
            break;
        at += 2 + std::size_t(picture[0]) * picture[1];
        if (at > numbers.size())
            break;
        const bool closer =
            best
            && (width(best) < side ? width(picture) > width(best)
                                   : width(picture) >= side && width(picture) < width(best));
        if (!best || closer)
            best = picture;
    }
    if (!best)
        return {};
    QImage image(width(best), static_cast<int>(best[1]), QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(image.scanLine(y), best + 2 + std::size_t(y) * best[0],
                    std::size_t(best[0]) * 4);
    return image;
}

QImage windowIcon(const X11Connection &connection, xcb_window_t window, int side)
{
    return pickIcon(X11Property(connection, window, "_NET_WM_ICON", longestProperty).numbers(),
                    side);
}

} // namespace velvane
