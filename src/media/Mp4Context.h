#pragma once

#include "media/EncodedPicture.h"

#include <QByteArray>
#include <QSize>

#include <cstdint>
#include <memory>
#include <utility>

struct AVFormatContext;
struct AVIOContext;
struct AVPacket;

namespace velvane {

/// libavformat's MPEG-4 muxer with one H.264 track. What it writes goes to an output of ours, at
/// any position. Throws MovieError.
class Mp4Context {
public:
    struct Track {
        QSize size;               ///< in pixels, even
        int ticks = 1;            ///< of the pictures' times, per second; at least 1
        QByteArray configuration; ///< the encoder's avcC
    };

    class Output {
    public:
        virtual ~Output() = default;
        /// Called for one run of bytes after another. Never fails as far as libavformat knows: it
        /// would stop writing for good.
        virtual void write(qint64 position, const quint8 *bytes, int count) = 0;
        /// How far it reaches.
        virtual qint64 end() const = 0;
    };

    using Options = std::initializer_list<std::pair<const char *, QByteArray>>;

    /// Writes what comes before the pictures. The output must outlive this.
    Mp4Context(const Track &track, Output &output, Options options);
    ~Mp4Context();
    Q_DISABLE_COPY_MOVE(Mp4Context)

    /// Adds a picture that shows for so many ticks if it is the last.
    void write(const EncodedPicture &picture, qint64 duration);
    /// Ends a fragment, where there are fragments.
    void endFragment();
    /// Writes the index. Once, at the end.
    void finish();

    /// Where the next byte goes.
    qint64 position() const;
    void setPosition(qint64 position);
    /// Hands everything to the output.
    void flush();
    /// Changes one of the muxer's own options.
    void setOption(const char *name, qint64 value);

private:
    struct Free {
        void operator()(AVFormatContext *context) const;
        void operator()(AVIOContext *io) const;
        void operator()(AVPacket *packet) const;
    };

    void addStream(const Track &track);
    void writeHeader(Options options);

    /// FFmpeg 7 passes what it wants written as constant bytes.
    template <typename Byte>
    static int writeBytes(void *self, Byte *bytes, int count);
    static std::int64_t seek(void *self, std::int64_t offset, int whence);

    Output &m_output;
    int m_ticks;
    qint64 m_outputPosition = 0; // of the next byte for the output
    std::unique_ptr<AVIOContext, Free> m_io;
    std::unique_ptr<AVFormatContext, Free> m_format;
    std::unique_ptr<AVPacket, Free> m_packet;
};

} // namespace velvane
