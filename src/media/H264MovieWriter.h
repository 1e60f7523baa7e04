#pragma once

#include "media/MovieWriter.h"

#include <QSize>

#include <memory>

namespace velvane {

/// Writes an H.264 movie in an MPEG-4 file, BT.709 tagged, playable while it downloads.
///
/// Times are kept exactly: each is rounded to the nearest i ÷ fps and must lie after the one
/// before. A picture of odd width or height is padded to even by repeating its last column or row.
///
/// A full disk makes append() throw; the file then still plays with the frames that it holds.
class H264MovieWriter final : public MovieWriter {
public:
    /// Throws MovieError when no movie can have this size and rate: sides of 1 to 16,384 pixels and
    /// at most what H.264 level 6.2 allows. Touches no file.
    static void check(QSize size, int fps);

    /// Creates the file, replacing an existing one. Throws as check() does before touching it.
    ///
    /// `expectedFrames` is how many frames to keep room for in the index at the front of the file.
    /// More may come: then the index lies at the end, and the movie plays once all of it is there.
    H264MovieWriter(const QString &path, QSize size, int fps, qint64 expectedFrames);
    ~H264MovieWriter() override;

    void append(const Frame &frame) override;
    void finish() override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace velvane
