#pragma once

#include "base/CancelCheck.h"
#include "media/MovieInput.h"
#include "media/PictureDecoder.h"

namespace velvane {

struct MovieOpening;

/// Finds a movie's picture for any moment: forwards by decoding on, else from the nearest key
/// picture before.
///
/// Reads MPEG-4, QuickTime, Matroska and WebM files; nothing throws, nothing but the file is
/// opened. Blocking; one thread at a time, which may change.
class MovieReader {
public:
    /// A broken file, or a check that says so while it is read, gives an error.
    static MovieOpening open(const QString &path, const CancelCheck &shouldCancel = {});
    ~MovieReader();
    Q_DISABLE_COPY_MOVE(MovieReader)

    /// Positive.
    Seconds duration() const { return m_input->duration(); }
    /// Of the pictures as they are seen: turned, and with square pixels.
    QSize size() const { return m_shape.turnedSize(); }

    /// The picture that the movie shows at a moment, which is clamped into it; at most 0.05 s away
    /// where that saves decoding. None when nothing can be decoded there, or when cancelled; what
    /// was decoded until then is not lost.
    std::optional<MoviePicture> picture(Seconds at, const CancelCheck &shouldCancel = {});

private:
    MovieReader(std::unique_ptr<MovieInput> input, std::unique_ptr<PictureDecoder> decoder);

    bool isBehind(Seconds at) const;
    bool seek(Seconds at, const CancelCheck &shouldCancel);
    bool advanceTo(Seconds at, const CancelCheck &shouldCancel);
    std::optional<MoviePicture> decodeNext(const CancelCheck &shouldCancel);

    std::unique_ptr<MovieInput> m_input;
    std::unique_ptr<PictureDecoder> m_decoder;
    PictureShape m_shape;
    /// Two neighbours; the first shows until the second's time, or to the end without a second.
    std::optional<MoviePicture> m_current;
    std::optional<MoviePicture> m_next;
    bool m_isAtEnd = false;
};

/// A movie that can be read, or why not.
struct MovieOpening {
    /// Null on failure.
    std::unique_ptr<MovieReader> reader;
    /// One line; empty on success.
    QString error;
};

} // namespace velvane
