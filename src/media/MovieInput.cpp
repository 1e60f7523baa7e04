#include "media/MovieInput.h"

#include <QCoreApplication>

#include <limits>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/display.h>
}

namespace velvane {

namespace {

// Enough for one picture of the largest size; a file that asks for more is broken.
constexpr size_t greatestAllocation = size_t(1) << 28;
// Sides and area as H.264 level 6.2 has them.
constexpr int greatestSide = 16'384;
constexpr int greatestArea = 35'651'584;
constexpr const char *containers = "mov,mp4,m4a,3gp,3g2,mj2,matroska,webm";

// For the whole process: what libav meets in a broken movie is no message of ours.
void setUpLibav()
{
    [[maybe_unused]] static const bool done = [] {
        av_log_set_level(AV_LOG_FATAL);
        av_max_alloc(greatestAllocation);
        return true;
    }();
}

QString reasonOf(int error)
{
    char text[AV_ERROR_MAX_STRING_SIZE]{};
    av_strerror(error, text, sizeof text);
    return QString::fromUtf8(text);
}

// Movies may name other files and addresses; none is followed.
int refuse(AVFormatContext *, AVIOContext **, const char *, int, AVDictionary **)
{
    return AVERROR(EPERM);
}

// FFmpeg 6.1 moved it. `size` in bytes.
const std::uint8_t *sideData(const AVStream &track, AVPacketSideDataType type, size_t &size)
{
#if LIBAVFORMAT_VERSION_INT >= AV_VERSION_INT(60, 15, 100)
    const AVPacketSideData *data = av_packet_side_data_get(
        track.codecpar->coded_side_data, track.codecpar->nb_coded_side_data, type);
    size = data ? data->size : 0;
    return data ? data->data : nullptr;
#else
    return av_stream_get_side_data(&track, type, &size);
#endif
}

bool isEncrypted(const AVStream &track)
{
    size_t size = 0;
    return sideData(track, AV_PKT_DATA_ENCRYPTION_INIT_INFO, size)
           || av_dict_get(track.metadata, "enc_key_id", nullptr, 0);
}

// The display matrix maps with y downwards, as ours; what is no quarter turn is left out.
QTransform turnOf(const AVStream &track)
{
    size_t size = 0;
    const auto *bytes = sideData(track, AV_PKT_DATA_DISPLAYMATRIX, size);
    if (!bytes || size < 9 * sizeof(std::int32_t))
        return {};
    const auto *matrix = reinterpret_cast<const std::int32_t *>(bytes);
    const auto unit = [matrix](int at) { return std::round(matrix[at] / 65'536.0); };
    const QTransform turn(unit(0), unit(1), unit(3), unit(4), 0, 0);
    const bool isSquare = turn.m11() * turn.m12() == 0 && turn.m21() * turn.m22() == 0;
    return isSquare && std::abs(turn.determinant()) == 1 ? turn : QTransform();
}

} // namespace

void MovieInput::Free::operator()(AVFormatContext *context) const
{
    avformat_close_input(&context);
}

void MovieInput::Free::operator()(AVPacket *packet) const
{
    av_packet_free(&packet);
}

std::unique_ptr<MovieInput> MovieInput::open(const QString &path, const CancelCheck &shouldCancel,
                                             QString &error)
{
    setUpLibav();
    std::unique_ptr<MovieInput> input(new MovieInput);
    input->m_shouldCancel = shouldCancel;
    error = input->m_bytes.open(path, shouldCancel);
    if (error.isEmpty())
        error = input->openContainer();
    if (error.isEmpty())
        error = input->findTrack();
    if (error.isEmpty()) {
        input->findDuration();
        if (!(input->m_duration > Seconds(0)))
            error = QCoreApplication::translate("MovieInput", "The movie has no duration.");
    }
    if (input->isCancelled())
        error = reasonOf(AVERROR_EXIT);
    input->m_shouldCancel = {};
    input->m_bytes.doNotCancel();
    if (!error.isEmpty())
        return nullptr;
    return input;
}

MovieInput::MovieInput() : m_packet(av_packet_alloc()) {}

MovieInput::~MovieInput() = default;

QString MovieInput::openContainer()
{
    AVFormatContext *format = avformat_alloc_context();
    if (!m_packet || !m_bytes.io() || !format) {
        avformat_free_context(format);
        return reasonOf(AVERROR(ENOMEM));
    }
    format->pb = m_bytes.io();
    format->io_open = refuse;
    format->interrupt_callback = {
        [](void *self) { return int(static_cast<MovieInput *>(self)->isCancelled()); }, this};
    AVDictionary *options = nullptr;
    av_dict_set(&options, "format_whitelist", containers, 0);
    const int opened = avformat_open_input(&format, "", nullptr, &options);
    av_dict_free(&options);
    if (opened < 0) // which has freed the context
        return reasonOf(opened);
    m_format.reset(format);
    return {};
}

QString MovieInput::findTrack()
{
    std::vector<AVDictionary *> options(m_format->nb_streams, nullptr);
    for (AVDictionary *&limit : options) {
        av_dict_set_int(&limit, "max_pixels", greatestArea, 0);
        av_dict_set_int(&limit, "threads", 1, 0);
    }
    const int found = avformat_find_stream_info(m_format.get(), options.data());
    for (AVDictionary *&limit : options)
        av_dict_free(&limit);
    if (found < 0)
        return reasonOf(found);
    for (unsigned i = 0; i < m_format->nb_streams; ++i) {
        AVStream *stream = m_format->streams[i];
        const bool isMovie = stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO
                             && !(stream->disposition & AV_DISPOSITION_ATTACHED_PIC);
        if (isMovie && !m_track)
            m_track = stream;
        else
            stream->discard = AVDISCARD_ALL;
    }
    if (!m_track)
        return QCoreApplication::translate("MovieInput", "The file holds no pictures.");
    if (isEncrypted(*m_track))
        return QCoreApplication::translate("MovieInput", "The movie is encrypted.");
    const QSize size = shape().size;
    if (size.isEmpty() || std::max(size.width(), size.height()) > greatestSide
        || qint64(size.width()) * size.height() > greatestArea)
        return QCoreApplication::translate("MovieInput", "No movie can have this size.");
    return {};
}

void MovieInput::findDuration()
{
    const bool isTold = m_format->duration > 0
                        && m_format->duration_estimation_method != AVFMT_DURATION_FROM_BITRATE;
    m_duration = isTold ? Seconds(double(m_format->duration) / AV_TIME_BASE) : scanDuration();
    // Matroska reads its table of places when it is first needed.
    seek(Seconds(0));
}

// A recording that was cut off tells no duration; its last picture does.
Seconds MovieInput::scanDuration()
{
    std::int64_t end = 0;
    while (av_read_frame(m_format.get(), m_packet.get()) >= 0) {
        if (m_packet->pts != AV_NOPTS_VALUE)
            end = std::max(end, m_packet->pts + std::max<std::int64_t>(m_packet->duration, 1));
        av_packet_unref(m_packet.get());
        if (isCancelled())
            return Seconds(0);
    }
    return timeOf(end);
}

PictureShape MovieInput::shape() const
{
    const AVCodecParameters &codec = *m_track->codecpar;
    QSize size(codec.width, codec.height);
    const AVRational aspect = av_guess_sample_aspect_ratio(m_format.get(), m_track, nullptr);
    if (aspect.num > 0 && aspect.den > 0)
        size.setWidth(int(std::min(std::round(size.width() * av_q2d(aspect)), greatestSide + 1.0)));
    return {size, turnOf(*m_track)};
}

const AVCodecParameters &MovieInput::codec() const
{
    return *m_track->codecpar;
}

const AVPacket *MovieInput::next()
{
    int result = 0;
    do {
        av_packet_unref(m_packet.get());
        result = av_read_frame(m_format.get(), m_packet.get());
    } while (result >= 0 && m_packet->stream_index != m_track->index);
    // What is encrypted decodes to noise.
    if (result < 0 || av_packet_get_side_data(m_packet.get(), AV_PKT_DATA_ENCRYPTION_INFO, nullptr))
        return nullptr;
    if (m_packet->dts != AV_NOPTS_VALUE)
        m_lastRead = m_packet->dts;
    return m_packet.get();
}

Seconds MovieInput::timeOf(std::int64_t ticks) const
{
    return Seconds(double(ticks) * av_q2d(m_track->time_base));
}

bool MovieInput::seek(Seconds time)
{
    const auto ticks = std::int64_t(time.count() / av_q2d(m_track->time_base));
    m_lastRead = std::numeric_limits<std::int64_t>::min() / 2; // nothing
    return av_seek_frame(m_format.get(), m_track->index, ticks, AVSEEK_FLAG_BACKWARD) >= 0;
}

bool MovieInput::hasKeyBefore(Seconds time) const
{
    constexpr Seconds longWay = 2s;
    const int count = avformat_index_get_entries_count(m_track);
    const AVIndexEntry *last = avformat_index_get_entry(m_track, count - 1);
    // Some files tell of places only as they are read.
    if (!last || last->timestamp <= m_lastRead)
        return time - timeOf(m_lastRead) > longWay;
    const auto ticks = std::int64_t(time.count() / av_q2d(m_track->time_base));
    const AVIndexEntry *key =
        avformat_index_get_entry_from_timestamp(m_track, ticks, AVSEEK_FLAG_BACKWARD);
    return key && key->timestamp > m_lastRead;
}

} // namespace velvane
