#include "media/Mp4Muxer.h"

#include "media/MovieError.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
}

namespace velvane {

namespace {

constexpr int bufferBytes = 64 * 1024;

// The index without its tables takes about 900 bytes; the rest is reserve.
constexpr qint64 fixedIndexBytes = 4096;
// A table of sizes takes 4 bytes a picture; the other 4 suffice up to about 85 kB a picture.
constexpr qint64 indexBytesPerPicture = 8;
constexpr qint64 greatestReserve = 1 << 24;
// Before the index comes the file's type, after it the head of the pictures.
constexpr qint64 headBytes = 256;

void require(int result)
{
    if (result >= 0)
        return;
    char text[AV_ERROR_MAX_STRING_SIZE]{};
    av_strerror(result, text, sizeof text);
    throw MovieError(MovieError::Cause::writing, QString::fromUtf8(text));
}

template <typename T>
T *required(T *made)
{
    if (!made)
        throw std::bad_alloc();
    return made;
}

AVFormatContext *mp4Context()
{
    AVFormatContext *context = nullptr;
    require(avformat_alloc_output_context2(&context, nullptr, "mp4", nullptr));
    return context;
}

void describe(AVCodecParameters &codec, const Mp4Muxer::Track &track)
{
    codec.codec_type = AVMEDIA_TYPE_VIDEO;
    codec.codec_id = AV_CODEC_ID_H264;
    codec.width = track.size.width();
    codec.height = track.size.height();
    codec.format = AV_PIX_FMT_YUV420P;
    codec.color_range = AVCOL_RANGE_MPEG;
    codec.color_primaries = AVCOL_PRI_BT709;
    codec.color_trc = AVCOL_TRC_BT709;
    codec.color_space = AVCOL_SPC_BT709;
    codec.chroma_location = AVCHROMA_LOC_LEFT;
    const auto size = size_t(track.configuration.size());
    codec.extradata =
        required(static_cast<quint8 *>(av_mallocz(size + AV_INPUT_BUFFER_PADDING_SIZE)));
    std::memcpy(codec.extradata, track.configuration.constData(), size);
    codec.extradata_size = int(size);
}

} // namespace

void Mp4Muxer::Free::operator()(AVFormatContext *context) const
{
    avformat_free_context(context);
}

void Mp4Muxer::Free::operator()(AVIOContext *io) const
{
    av_freep(&io->buffer);
    avio_context_free(&io);
}

void Mp4Muxer::Free::operator()(AVPacket *packet) const
{
    av_packet_free(&packet);
}

Mp4Muxer::Mp4Muxer(MovieFile &file, const Track &track)
    : m_file(file)
    , m_fps(track.fps)
    , m_reserved(
          std::min(fixedIndexBytes + track.expectedFrames * indexBytesPerPicture, greatestReserve))
    , m_format(mp4Context())
    , m_packet(required(av_packet_alloc()))
{
    auto *buffer = required(static_cast<quint8 *>(av_malloc(bufferBytes)));
    m_io.reset(avio_alloc_context(buffer, bufferBytes, 1, this, nullptr, writeBytes, seek));
    if (!m_io) {
        av_free(buffer);
        throw std::bad_alloc();
    }
    m_format->pb = m_io.get();
    m_format->flags |= AVFMT_FLAG_BITEXACT; // the same frames, the same file
    addStream(track);
    writeHeader();
}

Mp4Muxer::~Mp4Muxer() = default;

void Mp4Muxer::addStream(const Track &track)
{
    AVStream *stream = required(avformat_new_stream(m_format.get(), nullptr));
    describe(*stream->codecpar, track);
    stream->time_base = {1, track.fps};
    stream->avg_frame_rate = {track.fps, 1};
    stream->r_frame_rate = {track.fps, 1};
}

void Mp4Muxer::writeHeader()
{
    m_file.claim(m_reserved + headBytes);
    AVDictionary *options = nullptr;
    av_dict_set_int(&options, "moov_size", m_reserved, 0);
    const int result = avformat_write_header(m_format.get(), &options);
    av_dict_free(&options);
    require(result);
    avio_flush(m_io.get());
}

bool Mp4Muxer::write(const EncodedPicture &picture)
{
    const qint64 step = picture.index - m_lastIndex;
    m_durations += m_pictures > 0 && step != m_lastStep;
    ++m_pictures;
    m_keys += picture.isKey;
    m_pictureBytes += picture.size;
    // Only what surely has its place may enter the index, and the index must have its own.
    const qint64 index = indexFitsInFront() ? 0 : indexBound();
    if (!m_file.claim(avio_tell(m_io.get()) + picture.size + index))
        return false;
    m_lastStep = step;
    m_lastIndex = picture.index;

    const AVStream *stream = m_format->streams[0];
    const AVRational frame{1, m_fps};
    m_packet->data = const_cast<quint8 *>(picture.bytes);
    m_packet->size = picture.size;
    m_packet->pts = m_packet->dts = av_rescale_q(picture.index, frame, stream->time_base);
    m_packet->duration = av_rescale_q(1, frame, stream->time_base);
    m_packet->flags = picture.isKey ? AV_PKT_FLAG_KEY : 0;
    m_packet->stream_index = 0;
    require(av_write_frame(m_format.get(), m_packet.get()));
    return true;
}

void Mp4Muxer::finish()
{
    if (!indexFitsInFront())
        giveUpReservedRoom();
    require(av_write_trailer(m_format.get()));
    avio_flush(m_io.get());
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
    avio_flush(m_io.get());
    // The file's type comes before it: a box that begins with its size.
    quint8 typeSize[4]{};
    m_file.read(0, typeSize, sizeof typeSize);
    quint8 box[8]{0, 0, 0, 0, 'f', 'r', 'e', 'e'};
    qToBigEndian(quint32(m_reserved), box);
    m_file.write(qFromBigEndian<quint32>(typeSize), box, sizeof box);
    av_opt_set_int(m_format->priv_data, "moov_size", 0, 0);
}

// Never reports a failure: libavformat would stop writing for good, and what still has its place
// must get there. The file remembers.
int Mp4Muxer::writeBytes(void *self, quint8 *bytes, int count)
{
    auto &muxer = *static_cast<Mp4Muxer *>(self);
    muxer.m_file.write(muxer.m_position, bytes, count);
    muxer.m_position += count;
    return count;
}

std::int64_t Mp4Muxer::seek(void *self, std::int64_t offset, int whence)
{
    auto &muxer = *static_cast<Mp4Muxer *>(self);
    switch (whence & ~AVSEEK_FORCE) {
    case SEEK_SET:
        return muxer.m_position = offset;
    case SEEK_CUR:
        return muxer.m_position += offset;
    case SEEK_END:
        return muxer.m_position = muxer.m_file.size() + offset;
    default:
        return AVERROR(ENOSYS);
    }
}

} // namespace velvane
