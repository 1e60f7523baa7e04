#pragma once

#include "media/MoviePicture.h"

#include <QString>

#include <cstdint>

struct AVCodecContext;
struct AVCodecParameters;
struct AVFrame;
struct AVPacket;

namespace velvane {

/// Decodes packets of one track to pictures. One thread at a time; it has helpers of its own.
class PictureDecoder {
public:
    /// Null, and the reason in `error`, when nothing here decodes such a track.
    static std::unique_ptr<PictureDecoder> open(const AVCodecParameters &track, QString &error);
    ~PictureDecoder();
    Q_DISABLE_COPY_MOVE(PictureDecoder)

    /// Takes a packet, or null for the end. Damaged packets are passed over.
    void send(const AVPacket *packet);

    /// A decoded picture as 8-bit 4:2:0 planes, in the order of display, and its moment.
    struct Picture {
        std::shared_ptr<const AVFrame> planes;
        std::int64_t ticks = 0; ///< in those of the track
    };
    /// The next picture that is ready; none when more packets are needed first.
    std::optional<Picture> receive();

    /// Forgets all packets so far: after a seek.
    void flush();

private:
    struct Free {
        void operator()(AVCodecContext *context) const;
    };

    explicit PictureDecoder(AVCodecContext *context) : m_context(context) {}

    std::unique_ptr<AVCodecContext, Free> m_context;
};

} // namespace velvane
