#pragma once

#include "render/FrameRenderer.h"

#include <QImage>

#include <optional>

namespace velvane {

/// Paints one state after another into one image, repainting only what changes.
/// After paint(s), frame() equals FrameRenderer::image(snap, s), pixel for pixel.
///
/// One thread at a time. Who keeps a copy of frame() makes the next paint() copy every pixel.
class FramePainter {
public:
    /// Draws the backdrop, once for all frames.
    explicit FramePainter(const Snapshot &snap);

    /// Returns the pixels that may differ from the frame before: all for the first frame, none for
    /// an equal state.
    QRegion paint(const FrameState &state);

    /// The backdrop alone until the first paint(); null where FrameRenderer::image() is.
    const QImage &frame() const { return m_frame; }

private:
    void restoreBackdrop(QPainter &painter) const;

    Snapshot m_snap;
    QImage m_backdrop;
    QImage m_frame;
    /// Where the shown overlays may have left the backdrop.
    QRegion m_covered;
    std::optional<FrameState> m_shown;
};

} // namespace velvane
