#include "editor/CanvasController.h"

#include "editor/CanvasGeometry.h"
#include "model/StepList.h"

#include <cmath>
#include <utility>

namespace velvane {

namespace {

// After so much rest the next nudge is another undo entry.
constexpr std::chrono::milliseconds nudgeRest(1000);

constexpr double smallNudge = 1;
constexpr double largeNudge = 10;

std::optional<QPointF> direction(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return QPointF(-1, 0);
    case Qt::Key_Right:
        return QPointF(1, 0);
    case Qt::Key_Up:
        return QPointF(0, -1);
    case Qt::Key_Down:
        return QPointF(0, 1);
    default:
        return {};
    }
}

QPointF rounded(QPointF point)
{
    return {std::round(point.x()), std::round(point.y())};
}

} // namespace

CanvasController::CanvasController(Project &project, StatusLine &status, OpenGesture &gesture,
                                   QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_status(status)
    , m_gesture(gesture)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(nudgeRest);
    connect(&m_rest, &QTimer::timeout, this, &CanvasController::tick);
    connect(&gesture, &OpenGesture::committed, this, &CanvasController::gestureCommitted);
}

void CanvasController::handleCanvasClick(QPointF point)
{
    const QPointF target = rounded(point);
    if (const auto move = StepList::selectedMoveID(m_project)) {
        m_project.edit(tr("Move Target"), [&] { setTarget(*move, target); });
        return;
    }
    Step waypoint;
    waypoint.point = target;
    m_project.edit(tr("Add Waypoint"),
                   [&] { m_project.setSteps(m_project.steps() + QList{waypoint}); });
    m_status.setMessage(
        tr("Added waypoint at (%1, %2).").arg(target.x(), 0, 'f', 0).arg(target.y(), 0, 'f', 0));
}

bool CanvasController::arrowNudge(int key, bool large)
{
    const auto step = direction(key);
    const auto index = StepList::selectedIndex(m_project);
    if (!step || !index || !StepList::selectedMoveID(m_project))
        return false;
    m_gesture.begin(tr("Nudge Target"));
    const Step &move = m_project.steps()[*index];
    setTarget(move.id, move.point + *step * (large ? largeNudge : smallNudge));
    m_rest.start();
    return true;
}

void CanvasController::endNudges()
{
    if (m_rest.isActive())
        m_gesture.commit();
}

void CanvasController::tick()
{
    m_gesture.commit();
}

void CanvasController::beginMarkerDrag(const QUuid &id)
{
    const auto index = StepList::index(m_project.steps(), id);
    if (!index || m_project.steps()[*index].kind != StepKind::move)
        return;
    m_gesture.commit();
    m_project.setSelection(id);
    beginDrag({.move = id, .from = m_project.steps()[*index].point}, tr("Move Target"));
}

void CanvasController::beginStartDrag()
{
    m_gesture.commit();
    beginDrag({.move = {}, .from = m_project.startPoint()}, tr("Move Start"));
}

void CanvasController::drag(QPointF translation, double scale)
{
    if (!m_drag || !(scale > 0))
        return;
    m_drag->moved = m_drag->moved || !isClick(translation);
    if (m_drag->moved)
        setDragged(wholeAndInside(m_drag->from + translation / scale, m_project.canvasSize()));
}

void CanvasController::endDrag()
{
    if (m_drag)
        m_gesture.commit();
}

void CanvasController::cancelDrag()
{
    if (!m_drag)
        return;
    setDragged(m_drag->from);
    m_gesture.commit();
}

std::optional<QUuid> CanvasController::draggedMove() const
{
    return m_drag ? m_drag->move : std::nullopt;
}

void CanvasController::setMagnify(bool magnify)
{
    if (magnify == m_pan.magnify())
        return;
    m_pan.setMagnify(magnify);
    Q_EMIT magnifyChanged();
}

void CanvasController::setTarget(const QUuid &move, QPointF point)
{
    const auto index = StepList::index(m_project.steps(), move);
    if (!index)
        return;
    QList<Step> steps = m_project.steps();
    steps[*index].point = point;
    m_project.setSteps(steps);
}

void CanvasController::setDragged(QPointF point)
{
    if (m_drag->move)
        setTarget(*m_drag->move, point);
    else
        m_project.setStartPoint(point);
}

void CanvasController::beginDrag(const Drag &drag, const QString &name)
{
    m_gesture.begin(name);
    m_drag = drag;
    Q_EMIT draggingChanged();
}

void CanvasController::gestureCommitted()
{
    m_rest.stop();
    if (std::exchange(m_drag, std::nullopt))
        Q_EMIT draggingChanged();
}

} // namespace velvane
