#include "media/EncoderInfo.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavformat/version.h>
}
#include <cstdint>
#include <x264.h>

namespace velvane::EncoderInfo {

QString encoder()
{
    return QStringLiteral("x264 " X264_POINTVER);
}

QString muxer()
{
    const unsigned version = avformat_version();
    return QStringLiteral("libavformat %1.%2.%3")
        .arg(AV_VERSION_MAJOR(version))
        .arg(AV_VERSION_MINOR(version))
        .arg(AV_VERSION_MICRO(version));
}

} // namespace velvane::EncoderInfo
