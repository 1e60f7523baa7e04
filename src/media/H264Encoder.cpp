#include "media/H264Encoder.h"

#include "media/MovieError.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include <x264.h>

namespace velvane {

namespace {

constexpr int macroblock = 16;

// Constant quantisers: x264 takes a macroblock for unchanged only where the picture it refers to
// is not coarser than the present one, which a rate control that moves them would break.
constexpr int quantizer = 18;
constexpr int keyQuantizer = 16;

constexpr int framesBetweenKeys = 600;
// One frame is encoded while the next is drawn and converted: a quarter sooner done than with one
// thread, for a seventh more work.
constexpr int threads = 2;

MovieError encodingError(const char *reason)
{
    return {MovieError::Cause::writing, QString::fromLatin1(reason)};
}

void tagColours(x264_param_t &param)
{
    constexpr int bt709 = 1;
    param.vui.i_colorprim = bt709;
    param.vui.i_transfer = bt709;
    param.vui.i_colmatrix = bt709;
    param.vui.b_fullrange = 0;
    param.vui.i_chroma_loc = 0; // left
}

// Everything that looks ahead or weighs is off: the content is still, and what moves is known.
void chooseTools(x264_param_t &param)
{
    param.i_bframe = 0;
    param.i_frame_reference = 1;
    param.i_scenecut_threshold = 0;
    param.i_keyint_max = framesBetweenKeys;
    param.rc.i_lookahead = 0;
    param.i_sync_lookahead = 0;
    param.rc.b_mb_tree = 0;
    param.rc.i_rc_method = X264_RC_CQP;
    param.rc.i_qp_constant = quantizer;
    param.rc.f_ip_factor = float(std::exp2((quantizer - keyQuantizer) / 6.0));
    param.analyse.i_weighted_pred = X264_WEIGHTP_NONE;
    // Whole pixels: saves filtering every picture, and screens move by those.
    param.analyse.i_subpel_refine = 0;
    param.analyse.b_mb_info = 1;
    // Beside text it would leave errors in unchanged macroblocks, and nothing would repair them.
    param.b_deblocking_filter = 0;
}

void setPace(x264_param_t &param, const H264Encoder::Pace &pace)
{
    // Whatever the times are counted in: x264 would keep a picture back to learn how long it shows,
    // and has no use for that.
    param.b_vfr_input = 0;
    param.i_fps_num = param.i_timebase_den = uint32_t(pace.fps);
    param.i_fps_den = param.i_timebase_num = 1;
    if (pace.keysOnRequest)
        param.i_keyint_max = X264_KEYINT_MAX_INFINITE;
}

x264_param_t parameters(QSize size, const H264Encoder::Pace &pace)
{
    x264_param_t param;
    if (x264_param_default_preset(&param, "medium", nullptr) < 0)
        throw encodingError("x264 does not know its presets");
    param.i_log_level = X264_LOG_NONE;
    param.i_threads = threads;
    param.i_width = size.width();
    param.i_height = size.height();
    param.i_csp = X264_CSP_I420;
    param.i_bitdepth = 8;
    param.b_annexb = 0;
    param.b_repeat_headers = 0;
    tagColours(param);
    chooseTools(param);
    setPace(param, pace);
    x264_param_apply_profile(&param, "high");
    return param;
}

x264_image_t imageOf(const Yuv420Converter &picture)
{
    x264_image_t image{};
    image.i_csp = X264_CSP_I420;
    image.i_plane = 3;
    const Yuv420Converter::Plane planes[]{picture.luma(), picture.cb(), picture.cr()};
    for (int i = 0; i < 3; ++i) {
        image.plane[i] = const_cast<quint8 *>(planes[i].samples); // x264 only copies from it
        image.i_stride[i] = planes[i].stride;
    }
    return image;
}

// One flag per macroblock, for std::free: x264 reads them after the call, on its own threads.
quint8 *macroblockFlags(QSize macroblocks, const QRegion &changed)
{
    const size_t all = size_t(macroblocks.width()) * size_t(macroblocks.height());
    auto *flags = static_cast<quint8 *>(std::malloc(all));
    if (!flags)
        throw std::bad_alloc();
    std::memset(flags, X264_MBINFO_CONSTANT, all);
    for (const QRect &rect : changed &QRect({}, macroblocks * macroblock)) {
        const int left = rect.left() / macroblock;
        const auto count = size_t(rect.right() / macroblock) - size_t(left) + 1;
        for (int y = rect.top() / macroblock; y <= rect.bottom() / macroblock; ++y)
            std::memset(flags + qsizetype(y) * macroblocks.width() + left, 0, count);
    }
    return flags;
}

std::optional<EncodedPicture> encoded(x264_t *encoder, x264_picture_t *picture)
{
    x264_nal_t *units = nullptr;
    int count = 0;
    x264_picture_t out;
    const int size = x264_encoder_encode(encoder, &units, &count, picture, &out);
    if (size < 0)
        throw encodingError("x264 cannot encode a picture");
    if (size == 0)
        return {};
    return EncodedPicture{units[0].p_payload, size, out.i_pts, out.b_keyframe != 0};
}

void appendParameterSet(QByteArray &to, const x264_nal_t &unit)
{
    constexpr int lengthBytes = 4;
    const QByteArray set(reinterpret_cast<const char *>(unit.p_payload) + lengthBytes,
                         unit.i_payload - lengthBytes);
    to += char(set.size() >> 8);
    to += char(set.size() & 0xff);
    to += set;
}

} // namespace

H264Encoder::H264Encoder(QSize size, const Pace &pace)
    : m_macroblocks((size.width() + macroblock - 1) / macroblock,
                    (size.height() + macroblock - 1) / macroblock)
{
    x264_param_t param = parameters(size, pace);
    m_encoder = x264_encoder_open(&param);
    if (!m_encoder)
        throw encodingError("x264 cannot encode this size and rate");
}

H264Encoder::~H264Encoder()
{
    x264_encoder_close(m_encoder);
}

QByteArray H264Encoder::configuration() const
{
    x264_nal_t *units = nullptr;
    int count = 0;
    if (x264_encoder_headers(m_encoder, &units, &count) < 0)
        throw encodingError("x264 has no headers");
    const auto unitOf = [&](int type) {
        return std::find_if(units, units + count,
                            [type](const x264_nal_t &unit) { return unit.i_type == type; });
    };
    const x264_nal_t *sequence = unitOf(NAL_SPS);
    const x264_nal_t *picture = unitOf(NAL_PPS);
    if (sequence == units + count || picture == units + count)
        throw encodingError("x264 has no parameter sets");
    // Version, profile with its constraints and level as in the sequence's set, lengths of four
    // bytes, one set of each kind; then, for the High profile, 4:2:0 and 8 bits.
    QByteArray record(1, char(1));
    record.append(reinterpret_cast<const char *>(sequence->p_payload) + 5, 3);
    record += "\xff\xe1";
    appendParameterSet(record, *sequence);
    record += char(1);
    appendParameterSet(record, *picture);
    constexpr char highProfile = 100;
    if (record[1] == highProfile)
        record.append("\xfd\xf8\xf8\x00", 4);
    return record;
}

std::optional<EncodedPicture> H264Encoder::encode(const Yuv420Converter &picture,
                                                  const QRegion &changed, qint64 index, bool asKey)
{
    x264_picture_t in;
    x264_picture_init(&in);
    in.img = imageOf(picture);
    in.i_pts = index;
    in.i_type = asKey ? X264_TYPE_IDR : X264_TYPE_AUTO;
    in.prop.mb_info = macroblockFlags(m_macroblocks, changed);
    in.prop.mb_info_free = std::free;
    return encoded(m_encoder, &in);
}

std::optional<EncodedPicture> H264Encoder::drain()
{
    while (x264_encoder_delayed_frames(m_encoder) > 0) {
        if (const auto picture = encoded(m_encoder, nullptr))
            return picture;
    }
    return {};
}

} // namespace velvane
