#pragma once

#include "media/EncodedPicture.h"
#include "media/Yuv420Converter.h"

#include <QByteArray>
#include <QRegion>
#include <QSize>

#include <optional>

struct x264_t;

namespace velvane {

/// Turns 4:2:0 pictures into H.264 with x264, doing nearly nothing where nothing changed.
///
/// Every picture refers to the one before only; there are no B pictures, so the order of coding is
/// that of showing. Quality is constant. Throws MovieError.
class H264Encoder {
public:
    /// `size` in pixels, even; `fps` at least 1.
    H264Encoder(QSize size, int fps);
    ~H264Encoder();
    Q_DISABLE_COPY_MOVE(H264Encoder)

    /// The decoder configuration record (avcC) of the stream.
    QByteArray configuration() const;

    /// Encodes the converter's picture; the result is an earlier one, or none yet.
    ///
    /// `changed` is in pixels and covers all that differs from the picture encoded before: where
    /// it leaves out a change, the movie goes on showing what was there.
    std::optional<EncodedPicture> encode(const Yuv420Converter &picture, const QRegion &changed,
                                         qint64 index);

    /// The next picture that is still inside; none when all are out. Nothing is encoded after it.
    std::optional<EncodedPicture> drain();

private:
    QSize m_macroblocks;
    x264_t *m_encoder;
};

} // namespace velvane
