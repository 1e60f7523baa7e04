#include "media/ColorConversion.h"

#include <memory>

extern "C" {
#include <libavutil/frame.h>
#include <libavutil/pixdesc.h>
#include <libswscale/swscale.h>
}

namespace velvane::ColorConversion {

namespace {

// The quick path to pixels cuts fractions off; made brighter by nearly half a step it rounds.
constexpr int halfAStep = 110;

struct Free {
    void operator()(SwsContext *context) const { sws_freeContext(context); }
};

struct Picture {
    AVPixelFormat format;
    int width;
    int height;
};

struct Colors {
    int matrix;
    bool isFullRange;
};

// Kept per thread: setting one up takes longer than converting a small picture.
SwsContext *contextFor(const Picture &from, const Picture &to)
{
    thread_local std::unique_ptr<SwsContext, Free> kept;
    kept.reset(sws_getCachedContext(kept.release(), from.width, from.height, from.format, to.width,
                                    to.height, to.format, SWS_BILINEAR, nullptr, nullptr, nullptr));
    return kept.get();
}

// Untagged pictures are taken for what their size makes likely, as players do.
Colors colorsOf(const AVFrame &frame)
{
    constexpr int leastHdHeight = 577;
    const bool isFull =
        frame.color_range == AVCOL_RANGE_JPEG || frame.format == AV_PIX_FMT_YUVJ420P;
    if (frame.colorspace != AVCOL_SPC_UNSPECIFIED && frame.colorspace != AVCOL_SPC_RGB)
        return {frame.colorspace, isFull};
    return {frame.height >= leastHdHeight ? AVCOL_SPC_BT709 : AVCOL_SPC_SMPTE170M, isFull};
}

void setColors(SwsContext &context, Colors from, Colors to, int brightness)
{
    constexpr int one = 1 << 16;
    sws_setColorspaceDetails(&context, sws_getCoefficients(from.matrix), from.isFullRange,
                             sws_getCoefficients(to.matrix), to.isFullRange, brightness, one, one);
}

Picture pictureOf(const AVFrame &frame)
{
    return {AVPixelFormat(frame.format), frame.width, frame.height};
}

bool isRgb(const AVFrame &frame)
{
    const AVPixFmtDescriptor *about = av_pix_fmt_desc_get(AVPixelFormat(frame.format));
    return about && (about->flags & (AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL));
}

} // namespace

bool toPixels(const AVFrame &from, unsigned char *pixels, int bytesPerRow, int width, int height)
{
    SwsContext *context = contextFor(pictureOf(from), {AV_PIX_FMT_BGRA, width, height});
    if (!context)
        return false;
    const Colors colors = colorsOf(from);
    setColors(*context, colors, {colors.matrix, true}, halfAStep);
    return sws_scale(context, from.data, from.linesize, 0, from.height, &pixels, &bytesPerRow)
           == height;
}

bool toPlanes(const AVFrame &from, AVFrame &to)
{
    to.format = AV_PIX_FMT_YUV420P;
    to.width = from.width;
    to.height = from.height;
    if (av_frame_get_buffer(&to, 0) < 0)
        return false;
    Colors source = colorsOf(from);
    Colors target = source;
    if (isRgb(from)) {
        source = {AVCOL_SPC_BT709, true};
        target = {AVCOL_SPC_BT709, false};
    }
    to.colorspace = AVColorSpace(target.matrix);
    to.color_range = target.isFullRange ? AVCOL_RANGE_JPEG : AVCOL_RANGE_MPEG;
    SwsContext *context = contextFor(pictureOf(from), pictureOf(to));
    if (!context)
        return false;
    setColors(*context, source, target, 0);
    return sws_scale(context, from.data, from.linesize, 0, from.height, to.data, to.linesize)
           == to.height;
}

} // namespace velvane::ColorConversion
