#include "media/Mp4Index.h"

#include <limits>

namespace velvane {

// libavformat writes a whole movie of which all but the index is thrown away: it takes note of
// where each picture goes, and each is put where it lies in the file already.
Mp4Index::Mp4Index(const Mp4Context::Track &track)
    : m_end(std::numeric_limits<qint64>::max())
    , m_context(track, *this, {})
{}

void Mp4Index::add(const EncodedPicture &picture, qint64 position, qint64 duration)
{
    m_context.setPosition(position);
    m_context.write(picture, duration);
}

QByteArray Mp4Index::made(qint64 end)
{
    m_context.setPosition(end);
    m_end = end;
    m_context.finish();
    return m_bytes;
}

void Mp4Index::write(qint64 position, const quint8 *bytes, int count)
{
    const qint64 place = position - m_end;
    if (place < 0)
        return;
    Q_ASSERT(place <= m_bytes.size());
    m_bytes.replace(place, std::min<qint64>(count, m_bytes.size() - place),
                    reinterpret_cast<const char *>(bytes), count);
}

} // namespace velvane
