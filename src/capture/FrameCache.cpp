#include "capture/FrameCache.h"

namespace velvane {

namespace {

constexpr double keysPerSecond = 100;

} // namespace

qint64 FrameCache::key(Seconds time)
{
    return std::llround(time.count() * keysPerSecond);
}

const MoviePicture *FrameCache::find(qint64 key) const
{
    const auto found = m_cache.find(key);
    return found == m_cache.end() ? nullptr : &found->second;
}

void FrameCache::store(qint64 key, const MoviePicture &image)
{
    if (m_cache.insert_or_assign(key, image).second)
        m_order.push_back(key);
    if (m_order.size() > cacheCap) {
        m_cache.erase(m_order.front());
        m_order.pop_front();
    }
}

void FrameCache::clear()
{
    m_cache.clear();
    m_order.clear();
}

} // namespace velvane
