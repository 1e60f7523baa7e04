#include "editor/PreviewCanvas.h"

#include "editor/CanvasHint.h"
#include "editor/PictureDrop.h"
#include "editor/PreviewCanvasAccessible.h"
#include "editor/Theme.h"
#include "model/StepList.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace velvane {

PreviewCanvas::PreviewCanvas(Project &project, Playback &playback, PreviewTimeline &timeline,
                             Selection &selection, CanvasController &controller, QWidget *parent)
    : QWidget(parent)
    , m_project(project)
    , m_playback(playback)
    , m_timeline(timeline)
    , m_selection(selection)
    , m_controller(controller)
    , m_gesture(controller)
    , m_hint(new CanvasHint(this))
    , m_drop(new PictureDrop(*this))
{
    // Before the name, whose change already makes the object that a screen reader keeps.
    PreviewCanvasAccessible::install();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    setAccessibleName(tr("Preview canvas"));
    setAccessibleDescription(tr("Click to drop a Move waypoint or to set the selected target. "
                                "The arrow keys nudge it, Z magnifies."));
    follow();
}

void PreviewCanvas::follow()
{
    for (const auto signal : {&Project::stepsChanged, &Project::selectionChanged,
                              &Project::startPointChanged, &Project::backgroundChanged})
        connect(&m_project, signal, this, &PreviewCanvas::invalidate);
    const auto moved = [this] {
        invalidate();
        Q_EMIT placeChanged();
    };
    connect(&m_project, &Project::canvasSizeChanged, this, moved);
    connect(&m_controller, &CanvasController::magnifyChanged, this, moved);
    connect(&m_controller.pan(), &CanvasPan::offsetChanged, this, moved);
    connect(&m_controller, &CanvasController::draggingChanged, this, &PreviewCanvas::invalidate);
    connect(&m_timeline, &PreviewTimeline::timelineChanged, this, &PreviewCanvas::showFrame);
    connect(&m_playback, &Playback::timeChanged, this, &PreviewCanvas::showFrame);
    connect(&m_playback, &Playback::isPlayingChanged, this, &PreviewCanvas::invalidate);
    connect(&Theme::instance(), &Theme::changed, this, [this] {
        m_scene.forgetPictures();
        invalidate();
    });
}

void PreviewCanvas::setBackdrop(const QImage &picture)
{
    if (picture.cacheKey() == m_picture.cacheKey())
        return;
    m_picture = picture;
    invalidate();
}

void PreviewCanvas::updateBackdrop(const QImage &picture, const QRegion &changed)
{
    m_picture = picture;
    m_scene.updatePicture(picture, changed);
    if (!m_isStale)
        update(m_scene.takeChanges());
}

void PreviewCanvas::setCovered(bool covered)
{
    m_isCovered = covered;
    invalidate();
}

void PreviewCanvas::setMargin(int margin)
{
    if (margin == m_margin)
        return;
    m_margin = margin;
    invalidate();
    Q_EMIT placeChanged();
}

CanvasGeometry PreviewCanvas::place() const
{
    const QSizeF view = size() - 2 * QSize(m_margin, m_margin);
    const QSizeF fitted = view.expandedTo({0, 0});
    if (!m_controller.magnify())
        return {m_project.canvasSize(), fitted};
    return {m_project.canvasSize(), fitted, focusPoint(m_project), m_controller.pan().offset()};
}

QRectF PreviewCanvas::canvasRect() const
{
    return place().drawRect().translated(origin());
}

const CanvasScene &PreviewCanvas::scene()
{
    layOut();
    return m_scene;
}

void PreviewCanvas::invalidate()
{
    if (!std::exchange(m_isStale, true))
        QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
    if (QAccessible::isActive()) {
        QAccessibleEvent described(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&described);
    }
}

bool PreviewCanvas::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        repaintChanges({});
    return QWidget::event(event);
}

void PreviewCanvas::repaintChanges(const QRegion &painted)
{
    layOut();
    const QRegion changes = m_scene.takeChanges() - painted;
    if (!changes.isEmpty())
        update(changes);
}

void PreviewCanvas::layOut()
{
    if (!m_isStale)
        return;
    m_isStale = false;
    m_scene.setPlace(canvasRect(), m_project.canvasSize(), size());
    m_scene.setPicture(m_picture.isNull() ? m_project.background() : m_picture);
    m_scene.setMarks(marks());
    m_scene.setFaded(m_playback.isPlaying());
    m_scene.setFrame(frame());
    m_hint->setVisible(m_project.steps().isEmpty());
    m_hint->placeIn(canvasRect().toRect() & rect());
}

CanvasMarks PreviewCanvas::marks() const
{
    if (m_isCovered)
        return {};
    const CanvasGeometry geometry = place();
    const QRectF view = QRectF(rect()).translated(-origin());
    CanvasMarks marks =
        CanvasMarks::of(moveGroups(m_project.steps()), m_project.selection(), geometry, view);
    if (!m_project.steps().isEmpty() && !StepList::selectedIndex(m_project))
        marks.startHandle = geometry.toView(m_project.startPoint());
    marks.translate(origin());
    return marks;
}

std::optional<FrameState> PreviewCanvas::frame() const
{
    if (!m_playback.isPlaying() && m_playback.time() == 0s)
        return {};
    return m_timeline.state();
}

void PreviewCanvas::showFrame()
{
    m_scene.setFrame(frame());
    if (!m_isStale)
        repaintChanges({});
}

void PreviewCanvas::paintEvent(QPaintEvent *event)
{
    repaintChanges(event->region());
    QPainter painter(this);
    m_scene.paint(painter, event->region());
    if (hasFocus() || m_drop->isOver())
        m_scene.paintRing(painter);
}

void PreviewCanvas::resizeEvent(QResizeEvent *)
{
    invalidate();
    Q_EMIT placeChanged();
}

void PreviewCanvas::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    m_gesture.press(event->position(), scene().marks());
    if (m_gesture.isDragging())
        setFocus(Qt::MouseFocusReason);
    updateCursor(event->position());
}

void PreviewCanvas::mouseMoveEvent(QMouseEvent *event)
{
    m_gesture.move(event->position(), scale());
    updateCursor(event->position());
}

void PreviewCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    if (m_gesture.release(event->position(), scale()))
        click(event->position());
    updateCursor(event->position());
}

void PreviewCanvas::click(QPointF at)
{
    setFocus(Qt::MouseFocusReason);
    const CanvasGeometry geometry = place();
    const QPointF point = geometry.toDemo(at - origin());
    if (geometry.contains(point))
        m_controller.handleCanvasClick(point);
}

void PreviewCanvas::updateCursor(QPointF at)
{
    const CanvasGeometry geometry = place();
    const bool onCanvas = geometry.contains(geometry.toDemo(at - origin()));
    setCursor(m_gesture.cursorAt(at, scene().marks(), onCanvas));
}

void PreviewCanvas::enterEvent(QEnterEvent *)
{
    m_controller.pan().setHovering(true);
}

void PreviewCanvas::leaveEvent(QEvent *)
{
    m_controller.pan().setHovering(false);
}

void PreviewCanvas::wheelEvent(QWheelEvent *event)
{
    event->setAccepted(m_gesture.wheel(*event));
}

void PreviewCanvas::keyPressEvent(QKeyEvent *event)
{
    const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
    const bool plain = !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    const bool isDelete = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
    if (event->key() == Qt::Key_Escape && m_gesture.isDragging())
        m_gesture.cancel();
    else if (plain && !shift && isDelete)
        m_selection.deleteSelected();
    else if (plain && !shift && event->key() == Qt::Key_Z)
        m_controller.toggleMagnify();
    else if (!plain || !m_controller.arrowNudge(event->key(), shift))
        QWidget::keyPressEvent(event);
}

void PreviewCanvas::focusInEvent(QFocusEvent *)
{
    update();
}

void PreviewCanvas::focusOutEvent(QFocusEvent *)
{
    m_controller.endNudges();
    update();
}

} // namespace velvane
