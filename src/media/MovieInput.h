#pragma once

#include "media/MovieBytes.h"
#include "media/MoviePicture.h"

#include <QString>

#include <cstdint>

struct AVCodecParameters;
struct AVFormatContext;
struct AVPacket;
struct AVStream;

namespace velvane {

/// The packets of a movie file's first picture track, in the order they are decoded.
///
/// Only a local, regular file in an MPEG-4, QuickTime, Matroska or WebM container is read, and
/// nothing that such a file may refer to. A recording that was broken off reaches to the end of its
/// last whole fragment. Blocking; one thread at a time.
class MovieInput {
public:
    /// Null, and the reason in `error`, when there is no such movie or the check said so.
    static std::unique_ptr<MovieInput> open(const QString &path, const CancelCheck &shouldCancel,
                                            QString &error);
    ~MovieInput();
    Q_DISABLE_COPY_MOVE(MovieInput)

    /// Of the whole movie; positive.
    Seconds duration() const { return m_duration; }
    PictureShape shape() const;
    const AVCodecParameters &codec() const;

    /// The next packet, valid until the next call; null at the end or where the file breaks off.
    const AVPacket *next();
    /// The moment of something in the track's own ticks.
    Seconds timeOf(std::int64_t ticks) const;
    /// Goes to the last key picture at or before the moment, as far as the file tells.
    bool seek(Seconds time);
    /// Does a key picture that is not read yet lie before that moment? Seeking is then quicker than
    /// reading on. Where the file does not tell, a long way counts as one.
    bool hasKeyBefore(Seconds time) const;

private:
    struct Free {
        void operator()(AVFormatContext *context) const;
        void operator()(AVPacket *packet) const;
    };

    MovieInput();
    QString openContainer();
    QString findTrack();
    void findDuration();
    Seconds scanDuration();
    bool isCancelled() const { return m_shouldCancel && m_shouldCancel(); }

    MovieBytes m_bytes;
    /// While the file is opened; afterwards reading is quick and never broken off.
    CancelCheck m_shouldCancel;
    std::unique_ptr<AVFormatContext, Free> m_format;
    std::unique_ptr<AVPacket, Free> m_packet;
    AVStream *m_track = nullptr;
    std::int64_t m_lastRead = 0; ///< decoding time of the last packet, in ticks
    Seconds m_duration{0};
};

} // namespace velvane
