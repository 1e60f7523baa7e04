#include "media/Mp4Muxer.h"

#include <QtEndian>

#include <algorithm>

namespace velvane {

namespace {

// The index without its tables takes about 900 bytes; the rest is reserve.
constexpr qint64 fixedIndexBytes = 4096;
// A table of sizes takes 4 bytes a picture; the other 4 suffice up to about 85 kB a picture.
constexpr qint64 indexBytesPerPicture = 8;
constexpr qint64 greatestReserve = 1 << 24;
// Before the index comes the file's type, after it the head of the pictures.
constexpr qint64 headBytes = 256;

// Makes sure of the room in front; how many bytes of it are the index's.
qint64 reserve(MovieFile &file, qint64 frames)
{
    const qint64 room = std::min(fixedIndexBytes + frames * indexBytesPerPicture, greatestReserve);
    file.claim(room + headBytes);
    return room;
}

} // namespace

Mp4Muxer::Mp4Muxer(MovieFile &file, const Mp4Context::Track &track, qint64 expectedFrames)
    : m_file(file)
    , m_reserved(reserve(file, expectedFrames))
    , m_context(track, *this, {{"moov_size", QByteArray::number(m_reserved)}})
{}

bool Mp4Muxer::write(const EncodedPicture &picture)
{
    const qint64 step = picture.index - m_lastIndex;
    m_durations += m_pictures > 0 && step != m_lastStep;
    ++m_pictures;
    m_keys += picture.isKey;
    m_pictureBytes += picture.size;
    // Only what surely has its place may enter the index, and the index must have its own.
    const qint64 index = indexFitsInFront() ? 0 : indexBound();
    if (!m_file.claim(m_context.position() + picture.size + index))
        return false;
    m_lastStep = step;
    m_lastIndex = picture.index;

    m_context.write(picture, 1);
    return true;
}

void Mp4Muxer::finish()
{
    if (!indexFitsInFront())
        giveUpReservedRoom();
    m_context.finish();
}

// No more than the index can take: libavformat joins pictures to chunks of up to 1 MiB, so any two
// neighbours hold that much together, and each chunk takes an offset and a run of equal lengths.
qint64 Mp4Muxer::indexBound() const
{
    constexpr qint64 chunkBytes = 1 << 20;
    constexpr qint64 freeBoxBytes = 8;
    const qint64 chunks = std::min(m_pictures, 2 * (m_pictureBytes / chunkBytes) + 2);
    return fixedIndexBytes / 2 + freeBoxBytes + 4 * m_pictures + 4 * m_keys + 20 * chunks
           + 8 * m_durations;
}

// Makes the reserved room a box that players skip; libavformat then appends the index.
void Mp4Muxer::giveUpReservedRoom()
{
    m_context.flush();
    // The file's type comes before it: a box that begins with its size.
    quint8 typeSize[4]{};
    m_file.read(0, typeSize, sizeof typeSize);
    quint8 box[8]{0, 0, 0, 0, 'f', 'r', 'e', 'e'};
    qToBigEndian(quint32(m_reserved), box);
    m_file.write(qFromBigEndian<quint32>(typeSize), box, sizeof box);
    m_context.setOption("moov_size", 0);
}

// After a failure what still has its place must get there. The file remembers.
void Mp4Muxer::write(qint64 position, const quint8 *bytes, int count)
{
    m_file.write(position, bytes, count);
}

} // namespace velvane
