#include "RecordedMovie.h"

#include <algorithm>
#include <cmath>

namespace velvane {

namespace {

constexpr int unlike = 12; // steps of a plane that no encoding of a plain area makes

std::array<int, 3> yuvOf(const QColor &color)
{
    const double y = 0.2126 * color.redF() + 0.7152 * color.greenF() + 0.0722 * color.blueF();
    return {int(std::lround(16 + 219 * y)),
            int(std::lround(128 + 224 * (color.blueF() - y) / 1.8556)),
            int(std::lround(128 + 224 * (color.redF() - y) / 1.5748))};
}

std::array<int, 3> yuvAt(const MovieProbe::Picture &picture, int x, int y)
{
    const int width = picture.size.width();
    const qsizetype chroma = qsizetype(y / 2) * (width / 2) + x / 2;
    return {quint8(picture.luma[qsizetype(y) * width + x]), quint8(picture.cb[chroma]),
            quint8(picture.cr[chroma])};
}

bool isAlike(const std::array<int, 3> &a, const std::array<int, 3> &b)
{
    for (size_t i = 0; i < a.size(); ++i) {
        if (std::abs(a[i] - b[i]) > unlike)
            return false;
    }
    return true;
}

} // namespace

bool RecordedMovie::Change::shows(const QColor &color) const
{
    return isAlike(yuv, yuvOf(color));
}

double RecordedMovie::duration() const
{
    const MovieProbe movie(m_path);
    return double(movie.duration()) / double(movie.timeScale());
}

std::vector<RecordedMovie::Change> RecordedMovie::changesAt(QPoint place) const
{
    std::vector<Change> changes;
    MovieProbe movie(m_path);
    while (const auto picture = movie.next()) {
        const auto yuv = yuvAt(*picture, place.x(), place.y());
        if (changes.empty() || !isAlike(changes.back().yuv, yuv))
            changes.push_back({double(picture->ticks) / double(movie.timeScale()), yuv});
    }
    return changes;
}

bool RecordedMovie::differs(const QRect &area, const QColor &color) const
{
    MovieProbe movie(m_path);
    std::optional<MovieProbe::Picture> last;
    while (auto picture = movie.next())
        last = std::move(picture);
    if (!last)
        return true;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (!isAlike(yuvAt(*last, x, y), yuvOf(color)))
                return true;
        }
    }
    return false;
}

bool RecordedMovie::everShows(const QColor &color) const
{
    MovieProbe movie(m_path);
    while (const auto picture = movie.next()) {
        for (int y = 0; y < picture->size.height(); y += 2) {
            for (int x = 0; x < picture->size.width(); x += 2) {
                if (isAlike(yuvAt(*picture, x, y), yuvOf(color)))
                    return true;
            }
        }
    }
    return false;
}

} // namespace velvane
