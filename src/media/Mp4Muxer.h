#pragma once

#include "media/MovieFile.h"
#include "media/Mp4Context.h"

namespace velvane {

/// Puts H.264 pictures into an MPEG-4 file.
///
/// The index (moov) goes into room kept for it in front of the pictures, so that closing never
/// moves them, and always has its room: the file plays even when the disk was full. If that room
/// is too small after all, the index follows the pictures.
class Mp4Muxer final : private Mp4Context::Output {
public:
    /// `track` has a tick for each picture; `expectedFrames` says how many to keep room for in
    /// front. The file must outlive the muxer. Throws MovieError; a failure to write shows at
    /// write().
    Mp4Muxer(MovieFile &file, const Mp4Context::Track &track, qint64 expectedFrames);

    /// Adds a picture; false, and nothing added, when there is no room for it.
    bool write(const EncodedPicture &picture);

    /// Writes the index of the pictures so far. Once, at the end.
    void finish();

private:
    qint64 indexBound() const;
    bool indexFitsInFront() const { return indexBound() <= m_reserved; }
    void giveUpReservedRoom();

    void write(qint64 position, const quint8 *bytes, int count) override;
    qint64 end() const override { return m_file.size(); }

    MovieFile &m_file;
    qint64 m_reserved; // bytes kept for the index
    qint64 m_pictures = 0;
    qint64 m_keys = 0;
    qint64 m_pictureBytes = 0;
    qint64 m_lastIndex = -1;
    qint64 m_lastStep = 0;
    qint64 m_durations = 1; // runs of equal durations
    Mp4Context m_context;
};

} // namespace velvane
