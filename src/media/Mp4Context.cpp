#include "media/Mp4Context.h"

#include "media/MovieError.h"

#include <cstring>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
}

namespace velvane {

namespace {

constexpr int bufferBytes = 64 * 1024;

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

void describe(AVCodecParameters &codec, const Mp4Context::Track &track)
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

void Mp4Context::Free::operator()(AVFormatContext *context) const
{
    avformat_free_context(context);
}

void Mp4Context::Free::operator()(AVIOContext *io) const
{
    av_freep(&io->buffer);
    avio_context_free(&io);
}

void Mp4Context::Free::operator()(AVPacket *packet) const
{
    av_packet_free(&packet);
}

Mp4Context::Mp4Context(const Track &track, Output &output, Options options)
    : m_output(output)
    , m_ticks(track.ticks)
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
    writeHeader(options);
}

Mp4Context::~Mp4Context() = default;

void Mp4Context::addStream(const Track &track)
{
    AVStream *stream = required(avformat_new_stream(m_format.get(), nullptr));
    describe(*stream->codecpar, track);
    stream->time_base = {1, track.ticks};
}

void Mp4Context::writeHeader(Options options)
{
    AVDictionary *dictionary = nullptr;
    for (const auto &[name, value] : options)
        av_dict_set(&dictionary, name, value.constData(), 0);
    const int result = avformat_write_header(m_format.get(), &dictionary);
    av_dict_free(&dictionary);
    require(result);
    flush();
}

void Mp4Context::write(const EncodedPicture &picture, qint64 duration)
{
    const AVStream *stream = m_format->streams[0];
    const AVRational tick{1, m_ticks};
    m_packet->data = const_cast<quint8 *>(picture.bytes);
    m_packet->size = picture.size;
    m_packet->pts = m_packet->dts = av_rescale_q(picture.index, tick, stream->time_base);
    m_packet->duration = av_rescale_q(duration, tick, stream->time_base);
    m_packet->flags = picture.isKey ? AV_PKT_FLAG_KEY : 0;
    m_packet->stream_index = 0;
    require(av_write_frame(m_format.get(), m_packet.get()));
}

void Mp4Context::endFragment()
{
    require(av_write_frame(m_format.get(), nullptr));
    flush();
}

void Mp4Context::finish()
{
    require(av_write_trailer(m_format.get()));
    flush();
}

qint64 Mp4Context::position() const
{
    return avio_tell(m_io.get());
}

void Mp4Context::setPosition(qint64 position)
{
    avio_seek(m_io.get(), position, SEEK_SET);
}

void Mp4Context::flush()
{
    avio_flush(m_io.get());
}

void Mp4Context::setOption(const char *name, qint64 value)
{
    av_opt_set_int(m_format->priv_data, name, value, 0);
}

template <typename Byte>
int Mp4Context::writeBytes(void *self, Byte *bytes, int count)
{
    auto &context = *static_cast<Mp4Context *>(self);
    context.m_output.write(context.m_outputPosition, bytes, count);
    context.m_outputPosition += count;
    return count;
}

std::int64_t Mp4Context::seek(void *self, std::int64_t offset, int whence)
{
    auto &context = *static_cast<Mp4Context *>(self);
    switch (whence & ~AVSEEK_FORCE) {
    case SEEK_SET:
        return context.m_outputPosition = offset;
    case SEEK_CUR:
        return context.m_outputPosition += offset;
    case SEEK_END:
        return context.m_outputPosition = context.m_output.end() + offset;
    default:
        return AVERROR(ENOSYS);
    }
}

} // namespace velvane
