#include "media/Mp4Fragments.h"

#include <utility>

namespace velvane {

Mp4Fragments::Mp4Fragments(const Mp4Context::Track &track)
    : m_context(track, *this,
                {{"movflags", "frag_custom+empty_moov+default_base_moof+skip_trailer"}})
{
    m_head = m_bytes;
}

const QByteArray &Mp4Fragments::fragment(const EncodedPicture &picture, qint64 duration)
{
    m_written += m_bytes.size();
    m_bytes.clear();
    m_context.write(picture, duration);
    m_context.endFragment();
    return m_bytes;
}

// Anywhere in what is being made; what was handed out is not changed any more.
void Mp4Fragments::write(qint64 position, const quint8 *bytes, int count)
{
    const qint64 place = position - m_written;
    Q_ASSERT(place >= 0 && place <= m_bytes.size());
    m_bytes.replace(place, std::min<qint64>(count, m_bytes.size() - place),
                    reinterpret_cast<const char *>(bytes), count);
}

} // namespace velvane
