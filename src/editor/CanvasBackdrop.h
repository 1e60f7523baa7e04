#pragma once

#include "editor/PictureScaler.h"

#include <optional>

class QPainter;
class QRegion;

namespace velvane {

/// The picture behind the path, scaled once and kept in device pixels, so that repainting a part of
/// the canvas only copies.
class CanvasBackdrop {
public:
    /// A null picture stands for the renderer's own gradient.
    /// False when it is the picture that shows already.
    bool setPicture(const QImage &picture);
    /// The same picture, changed inside a region, in its pixels: only that is scaled anew.
    void updatePicture(const QImage &picture, const QRegion &changed);

    /// Paints what of the canvas lies in the region. All in device pixels, the painter too:
    /// `canvas` is where the whole canvas lies, `view` the part of the device that is on show.
    void draw(QPainter &painter, const QRect &canvas, const QRect &view, const QRegion &region);

private:
    void render(const QRect &canvas, const QRect &shown);
    void drawMissing(QPainter &painter, const QRegion &missing) const;
    void drawSmaller(QPainter &painter, const QRegion &missing) const;
    QRegion reach(const QRegion &changed) const;
    bool isShrunk() const;

    QImage m_picture;
    /// Names the picture that was set, of which m_picture may be a copy.
    qint64 m_key = 0;
    /// While the picture is shown smaller than it is.
    std::optional<PictureScaler> m_scaler;
    QRect m_canvas;
    /// The part of the canvas that is on show, which m_scaled holds.
    QRect m_shown;
    QImage m_scaled;
};

} // namespace velvane
