#pragma once

#include "media/Mp4Context.h"

namespace velvane {

/// Makes the index (moov) of pictures that lie anywhere in an MPEG-4 file. Throws MovieError.
class Mp4Index final : private Mp4Context::Output {
public:
    explicit Mp4Index(const Mp4Context::Track &track);

    /// Notes a picture whose bytes begin there in the file, behind those noted before. It shows for
    /// so many ticks if it is the last.
    void add(const EncodedPicture &picture, qint64 position, qint64 duration);

    /// The index, which is to stand at `end`, behind all pictures. Once.
    QByteArray made(qint64 end);

private:
    void write(qint64 position, const quint8 *bytes, int count) override;
    qint64 end() const override { return m_end + m_bytes.size(); }

    qint64 m_end; // where the index begins; nothing before it is kept
    QByteArray m_bytes;
    Mp4Context m_context;
};

} // namespace velvane
