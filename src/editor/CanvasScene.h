#pragma once

#include "editor/CanvasBackdrop.h"
#include "editor/CanvasLayer.h"
#include "editor/CanvasSurround.h"
#include "editor/MarkPictures.h"
#include "timeline/FrameState.h"

namespace velvane {

/// All that the stage shows, painted region by region. It knows no demo: the canvas widget tells it
/// what to show. All in the widget's logical pixels. Main thread only.
///
/// Only what changes is drawn: the backdrop is kept scaled, and the path and the marks are kept as
/// pictures, of which an edit draws the cells that look otherwise.
class CanvasScene {
public:
    /// Where the canvas lies; `size` is the whole view's.
    void setPlace(const QRectF &canvas, QSizeF canvasSize, QSize size);
    /// A null picture stands for the gradient.
    void setPicture(const QImage &picture);
    /// The same picture, changed inside a region, in its pixels.
    void updatePicture(const QImage &picture, const QRegion &changed);
    void setMarks(const CanvasMarks &marks);
    /// The frame whose cursor, ring, ripple and caption show; none without one.
    void setFrame(const std::optional<FrameState> &frame);
    /// Are path and marks in the background?
    void setFaded(bool faded);
    /// Fonts or colours have changed.
    void forgetPictures();
    /// What has come to look otherwise since this was last asked.
    QRegion takeChanges() { return std::exchange(m_changes, {}); }

    const CanvasMarks &marks() const { return m_marks; }
    const std::optional<FrameState> &frame() const { return m_frame; }
    bool isFaded() const { return m_faded; }
    /// What the frame's overlays may touch.
    QRegion frameBounds() const;

    /// Paints the region; the painter's coordinates are the widget's.
    void paint(QPainter &painter, const QRegion &region);
    /// The ring of a canvas with the keyboard's focus, around what shows of the canvas.
    void paintRing(QPainter &painter) const;

private:
    void setCells();
    void changeAll() { m_changes = m_view.toAlignedRect(); }
    void paintPath(QPainter &painter);
    void paintMarks(QPainter &painter);

    CanvasBackdrop m_backdrop;
    CanvasSurround m_surround;
    CanvasMarks m_marks;
    std::optional<FrameState> m_frame;
    QRectF m_canvas;
    QSizeF m_canvasSize;
    QRectF m_view;
    CanvasLayer m_path;
    CanvasLayer m_marksLayer;
    MarkPictures m_pictures;
    QRegion m_changes;
    bool m_faded = false;
};

} // namespace velvane
