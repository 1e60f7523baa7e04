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
    /// How pictures follow one another.
    struct Pace {
        int fps = 60; ///< how many a second at most; at least 1
        /// Is a picture decodable by itself only where that is asked for, instead of now and then?
        bool keysOnRequest = false;
    };

    /// `size` in pixels, even.
    H264Encoder(QSize size, const Pace &pace);
    H264Encoder(QSize size, int fps) : H264Encoder(size, Pace{.fps = fps}) {}
    ~H264Encoder();
    Q_DISABLE_COPY_MOVE(H264Encoder)

    /// The decoder configuration record (avcC) of the stream.
    QByteArray configuration() const;

    /// Encodes the converter's picture; the result is an earlier one, or none yet.
    ///
    /// `changed` is in pixels and covers all that differs from the picture encoded before: where
    /// it leaves out a change, the movie goes on showing what was there. `asKey` asks for a picture
    /// that is decodable by itself; the first always is.
    std::optional<EncodedPicture> encode(const Yuv420Converter &picture, const QRegion &changed,
                                         qint64 index, bool asKey = false);

    /// The next picture that is still inside; none when all are out. Nothing is encoded after it.
    std::optional<EncodedPicture> drain();

private:
    QSize m_macroblocks;
    x264_t *m_encoder;
};

} // namespace velvane
