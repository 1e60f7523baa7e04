#pragma once

#include "media/MovieWriter.h"

#include <QSize>

#include <memory>

namespace velvane {

/// Writes what happens on a screen as an H.264 movie in an MPEG-4 file, BT.709 tagged.
///
/// Pictures come at uneven times and keep them, to 1 ÷ 60,000 of a second. A picture decodable by
/// itself comes with the first change that is a second or more after the last such one.
///
/// The file plays whenever its writing breaks off, up to the time of the last picture given;
/// finish() makes a plain movie of it by adding an index, however long it is. Where the index has
/// no room the file stays as it is. When a picture has no room, append() throws; the file then
/// plays with those before it.
class RecordingWriter final : public MovieWriter {
public:
    /// Creates the file; one that exists stays, and is an error. `size` in pixels, even. Throws
    /// MovieError, before touching any file when no movie can have this size.
    RecordingWriter(const QString &path, QSize size);
    ~RecordingWriter() override;

    /// A null image repeats the picture before. A time that is not later than the one before counts
    /// as just after it; the first is the movie's beginning, whatever it is.
    void append(const Frame &frame) override;

    /// The last picture shows for 1/60 s.
    void finish() override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace velvane
