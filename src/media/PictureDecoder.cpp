#include "media/PictureDecoder.h"

#include "media/ColorConversion.h"

#include <QCoreApplication>

#include <thread>

extern "C" {
#include <libavcodec/avcodec.h>
}

namespace velvane {

namespace {

constexpr int greatestArea = 35'651'584; // pixels; H.264 level 6.2
// Each thread is a picture that a seek decodes in vain.
constexpr int mostThreads = 4;

std::shared_ptr<AVFrame> newFrame()
{
    return {av_frame_alloc(), [](AVFrame *frame) { av_frame_free(&frame); }};
}

bool isPlanes(const AVFrame &frame)
{
    return frame.format == AV_PIX_FMT_YUV420P || frame.format == AV_PIX_FMT_YUVJ420P;
}

} // namespace

void PictureDecoder::Free::operator()(AVCodecContext *context) const
{
    avcodec_free_context(&context);
}

std::unique_ptr<PictureDecoder> PictureDecoder::open(const AVCodecParameters &track, QString &error)
{
    const AVCodec *codec = avcodec_find_decoder(track.codec_id);
    AVCodecContext *context = codec ? avcodec_alloc_context3(codec) : nullptr;
    if (!context) {
        error = QCoreApplication::translate("PictureDecoder", "Nothing here decodes %1.")
                    .arg(QString::fromUtf8(avcodec_get_name(track.codec_id)));
        return nullptr;
    }
    std::unique_ptr<PictureDecoder> decoder(new PictureDecoder(context));
    context->max_pixels = greatestArea;
    context->thread_count = std::clamp(int(std::thread::hardware_concurrency()), 1, mostThreads);
    if (avcodec_parameters_to_context(context, &track) < 0
        || avcodec_open2(context, codec, nullptr) < 0) {
        error = QCoreApplication::translate("PictureDecoder",
                                            "The movie's pictures cannot be decoded.");
        return nullptr;
    }
    return decoder;
}

PictureDecoder::~PictureDecoder() = default;

void PictureDecoder::send(const AVPacket *packet)
{
    avcodec_send_packet(m_context.get(), packet);
}

std::optional<PictureDecoder::Picture> PictureDecoder::receive()
{
    std::shared_ptr<AVFrame> frame = newFrame();
    if (!frame)
        return {};
    int result = 0;
    // Damage costs a picture, no more.
    do {
        result = avcodec_receive_frame(m_context.get(), frame.get());
    } while (result < 0 && result != AVERROR(EAGAIN) && result != AVERROR_EOF
             && result != AVERROR(ENOMEM));
    if (result < 0)
        return {};
    const std::int64_t ticks = frame->best_effort_timestamp;
    if (!isPlanes(*frame)) {
        std::shared_ptr<AVFrame> planes = newFrame();
        if (!planes || !ColorConversion::toPlanes(*frame, *planes))
            return {};
        frame = planes;
    }
    return Picture{frame, ticks == AV_NOPTS_VALUE ? 0 : ticks};
}

void PictureDecoder::flush()
{
    avcodec_flush_buffers(m_context.get());
}

} // namespace velvane
