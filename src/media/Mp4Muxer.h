#pragma once

#include "media/EncodedPicture.h"
#include "media/MovieFile.h"

#include <QByteArray>
#include <QSize>

#include <cstdint>
#include <memory>

struct AVFormatContext;
struct AVIOContext;
struct AVPacket;

namespace velvane {

/// Puts H.264 pictures into an MPEG-4 file.
///
/// The index (moov) goes into room kept for it in front of the pictures, so that closing never
/// moves them, and always has its room: the file plays even when the disk was full. If that room
/// is too small after all, the index follows the pictures.
class Mp4Muxer {
public:
    struct Track {
        QSize size;                ///< in pixels, even
        int fps = 1;               ///< at least 1
        QByteArray configuration;  ///< the encoder's avcC
        qint64 expectedFrames = 0; ///< how many pictures to keep room for; more may come
    };

    /// The file must outlive the muxer. Throws MovieError; a failure to write shows at write().
    Mp4Muxer(MovieFile &file, const Track &track);
    ~Mp4Muxer();
    Q_DISABLE_COPY_MOVE(Mp4Muxer)

    /// Adds a picture; false, and nothing added, when there is no room for it.
    bool write(const EncodedPicture &picture);

    /// Writes the index of the pictures so far. Once, at the end.
    void finish();

private:
    struct Free {
        void operator()(AVFormatContext *context) const;
        void operator()(AVIOContext *io) const;
        void operator()(AVPacket *packet) const;
    };

    void addStream(const Track &track);
    void writeHeader();
    qint64 indexBound() const;
    bool indexFitsInFront() const { return indexBound() <= m_reserved; }
    void giveUpReservedRoom();

    static int writeBytes(void *self, quint8 *bytes, int count);
    static std::int64_t seek(void *self, std::int64_t offset, int whence);

    MovieFile &m_file;
    int m_fps;
    qint64 m_position = 0; // of the next byte that libavformat writes
    qint64 m_reserved;     // bytes kept for the index
    qint64 m_pictures = 0;
    qint64 m_keys = 0;
    qint64 m_pictureBytes = 0;
    qint64 m_lastIndex = -1;
    qint64 m_lastStep = 0;
    qint64 m_durations = 1; // runs of equal durations
    std::unique_ptr<AVIOContext, Free> m_io;
    std::unique_ptr<AVFormatContext, Free> m_format;
    std::unique_ptr<AVPacket, Free> m_packet;
};

} // namespace velvane
