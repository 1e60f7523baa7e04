#pragma once

#include "editor/CanvasGesture.h"
#include "editor/CanvasScene.h"
#include "editor/PreviewTimeline.h"
#include "editor/Selection.h"

#include <QWidget>

namespace velvane {

class CanvasHint;
class PictureDrop;

/// The demo on the stage: its backdrop, the cursor's path with numbered markers, and, while the
/// preview is not at its start, the frame's cursor. Clicks, drags, keys and the wheel go to the
/// CanvasController; the canvas itself edits nothing.
///
/// It fills the stage, so that marks near the canvas's edge have room, and paints the surround too.
/// All points are the widget's logical pixels. Main thread only.
class PreviewCanvas : public QWidget {
    Q_OBJECT
public:
    PreviewCanvas(Project &project, Playback &playback, PreviewTimeline &timeline,
                  Selection &selection, CanvasController &controller, QWidget *parent = nullptr);

    /// The picture of the backdrop's source; without one the demo's own is shown.
    void setBackdrop(const QImage &picture);
    /// The same picture, changed inside a region, in its pixels: only that is repainted.
    void updateBackdrop(const QImage &picture, const QRegion &changed);
    /// Leaves path and marks out, for what lies over the canvas.
    void setCovered(bool covered);
    /// Space that the fitted canvas leaves at every side.
    void setMargin(int margin);

    /// What an empty demo shows.
    CanvasHint &hint() { return *m_hint; }
    /// The pictures that are dropped on the stage.
    PictureDrop &drop() { return *m_drop; }

    /// Where the whole canvas lies; beyond the widget while magnified.
    QRectF canvasRect() const;
    /// Logical pixels per demo unit.
    double scale() const { return place().scale(); }
    /// Where a demo point is drawn.
    QPointF toWidget(QPointF demo) const { return place().toView(demo) + origin(); }
    /// What is painted now.
    const CanvasScene &scene();

    const Project &project() const { return m_project; }

    QSize minimumSizeHint() const override { return {160, 120}; }

Q_SIGNALS:
    /// canvasRect() or scale() may have changed.
    void placeChanged();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void follow();
    /// How the canvas lies in what the margins leave of the widget.
    CanvasGeometry place() const;
    QPointF origin() const { return QPointF(m_margin, m_margin); }
    /// The layout is out of date: lay out, and repaint what that changes, before the next paint.
    void invalidate();
    void layOut();
    /// Repaints what has changed beside what is painted right now.
    void repaintChanges(const QRegion &painted);
    CanvasMarks marks() const;
    std::optional<FrameState> frame() const;
    void showFrame();
    void click(QPointF at);
    void updateCursor(QPointF at);

    Project &m_project;
    Playback &m_playback;
    PreviewTimeline &m_timeline;
    Selection &m_selection;
    CanvasController &m_controller;
    CanvasGesture m_gesture;
    CanvasScene m_scene;
    CanvasHint *m_hint;
    PictureDrop *m_drop;
    QImage m_picture;
    int m_margin = 20;
    bool m_isCovered = false;
    bool m_isStale = true;
};

} // namespace velvane
