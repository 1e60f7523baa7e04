#pragma once

#include "media/MoviePicture.h"

#include <deque>
#include <unordered_map>

namespace velvane {

/// The pictures of a movie that were asked for last, by their moment in steps of 10 ms.
///
/// First in, first out: looking at a picture does not keep it.
class FrameCache {
public:
    /// How many pictures it holds.
    static constexpr std::size_t cacheCap = 120;

    static qint64 key(Seconds time);

    /// Null when there is none.
    const MoviePicture *find(qint64 key) const;
    /// Replaces the key's picture in its place, or adds one and lets the oldest go.
    void store(qint64 key, const MoviePicture &image);
    void clear();
    std::size_t count() const { return m_cache.size(); }

private:
    std::unordered_map<qint64, MoviePicture> m_cache;
    std::deque<qint64> m_order;
};

} // namespace velvane
