#include "support/MovieProbe.h"

#include <QFile>
#include <QtEndian>

#include <stdexcept>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

namespace velvane {

namespace {

void require(int result)
{
    if (result >= 0)
        return;
    char text[AV_ERROR_MAX_STRING_SIZE]{};
    av_strerror(result, text, sizeof text);
    throw std::runtime_error(text);
}

QByteArray plane(const AVFrame &frame, int index, QSize size)
{
    QByteArray samples;
    samples.reserve(qsizetype(size.width()) * size.height());
    for (int y = 0; y < size.height(); ++y)
        samples.append(
            reinterpret_cast<const char *>(frame.data[index] + y * frame.linesize[index]),
            size.width());
    return samples;
}

} // namespace

class MovieProbe::Impl {
public:
    explicit Impl(const QString &path)
    {
        require(
            avformat_open_input(&format, QFile::encodeName(path).constData(), nullptr, nullptr));
        require(avformat_find_stream_info(format, nullptr));
        if (format->nb_streams != 1)
            throw std::runtime_error("not one stream");
        stream = format->streams[0];
        const AVCodec *codec = avcodec_find_decoder(stream->codecpar->codec_id);
        decoder = avcodec_alloc_context3(codec);
        require(avcodec_parameters_to_context(decoder, stream->codecpar));
        // A picture that is damaged is no picture.
        decoder->err_recognition = AV_EF_EXPLODE;
        decoder->thread_count = 1;
        require(avcodec_open2(decoder, codec, nullptr));
    }

    ~Impl()
    {
        av_frame_free(&frame);
        av_packet_free(&packet);
        avcodec_free_context(&decoder);
        avformat_close_input(&format);
    }

    bool receive()
    {
        for (;;) {
            const int result = avcodec_receive_frame(decoder, frame);
            if (result == AVERROR_EOF)
                return false;
            if (result != AVERROR(EAGAIN)) {
                require(result);
                return true;
            }
            feed();
        }
    }

    void feed()
    {
        const int result = av_read_frame(format, packet);
        if (result == AVERROR_EOF) {
            require(avcodec_send_packet(decoder, nullptr));
            return;
        }
        require(result);
        require(avcodec_send_packet(decoder, packet));
        av_packet_unref(packet);
    }

    AVFormatContext *format = nullptr;
    AVStream *stream = nullptr;
    AVCodecContext *decoder = nullptr;
    AVPacket *packet = av_packet_alloc();
    AVFrame *frame = av_frame_alloc();
};

MovieProbe::MovieProbe(const QString &path) : m_impl(std::make_unique<Impl>(path)) {}

MovieProbe::~MovieProbe() = default;
MovieProbe::MovieProbe(MovieProbe &&) noexcept = default;

QSize MovieProbe::size() const
{
    return {m_impl->stream->codecpar->width, m_impl->stream->codecpar->height};
}

qint64 MovieProbe::timeScale() const
{
    if (m_impl->stream->time_base.num != 1)
        throw std::runtime_error("ticks are not whole parts of a second");
    return m_impl->stream->time_base.den;
}

qint64 MovieProbe::duration() const
{
    return m_impl->stream->duration;
}

QByteArray MovieProbe::codec() const
{
    return avcodec_get_name(m_impl->stream->codecpar->codec_id);
}

MovieProbe::Tags MovieProbe::tags() const
{
    const AVCodecParameters &codec = *m_impl->stream->codecpar;
    return {codec.color_primaries, codec.color_trc, codec.color_space,
            codec.color_range == AVCOL_RANGE_MPEG, codec.chroma_location == AVCHROMA_LOC_LEFT};
}

std::optional<MovieProbe::Picture> MovieProbe::next()
{
    if (!m_impl->receive())
        return {};
    const AVFrame &frame = *m_impl->frame;
    if (frame.format != AV_PIX_FMT_YUV420P)
        throw std::runtime_error("not 4:2:0");
    const QSize size(frame.width, frame.height);
    const QSize half((size.width() + 1) / 2, (size.height() + 1) / 2);
    return Picture{size,      plane(frame, 0, size), plane(frame, 1, half), plane(frame, 2, half),
                   frame.pts, frame.key_frame != 0};
}

QList<QByteArray> movieBoxes(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot be opened");
    QList<QByteArray> types;
    while (!file.atEnd()) {
        const qint64 start = file.pos();
        const QByteArray head = file.read(16);
        if (head.size() < 8)
            throw std::runtime_error("a box is cut off");
        quint64 size = qFromBigEndian<quint32>(head.constData());
        if (size == 1 && head.size() == 16)
            size = qFromBigEndian<quint64>(head.constData() + 8);
        if (size < 8 || start + qint64(size) > file.size())
            throw std::runtime_error("a box has an impossible size");
        types += head.mid(4, 4);
        file.seek(start + qint64(size));
    }
    return types;
}

} // namespace velvane
