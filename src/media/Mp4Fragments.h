#pragma once

#include "media/Mp4Context.h"

namespace velvane {

/// Makes the bytes of an MPEG-4 file that plays whenever its writing breaks off: after a head, each
/// picture comes with all that is to be known of it. Throws MovieError.
class Mp4Fragments final : private Mp4Context::Output {
public:
    explicit Mp4Fragments(const Mp4Context::Track &track);

    /// What the file begins with.
    const QByteArray &head() const { return m_head; }

    /// One picture that shows for so many ticks; the picture itself is the end of the bytes. Valid
    /// until the next call.
    const QByteArray &fragment(const EncodedPicture &picture, qint64 duration);

private:
    void write(qint64 position, const quint8 *bytes, int count) override;
    qint64 end() const override { return m_written + m_bytes.size(); }

    qint64 m_written = 0; // before m_bytes
    QByteArray m_bytes;
    QByteArray m_head;
    Mp4Context m_context;
};

} // namespace velvane
