#include "editor/PreviewCanvasAccessible.h"

#include "editor/MarkerAccessible.h"
#include "editor/PreviewCanvas.h"
#include "model/StepList.h"

#include <algorithm>
#include <utility>

namespace velvane {

namespace {

QAccessibleInterface *create(const QString &, QObject *object)
{
    auto *canvas = qobject_cast<PreviewCanvas *>(object);
    return canvas ? new PreviewCanvasAccessible(*canvas) : nullptr;
}

// The selected move's marker in words; empty when no move is selected.
QString selectedTarget(const Project &project)
{
    const auto index = StepList::selectedIndex(project);
    if (!index || project.steps()[*index].kind != StepKind::move)
        return {};
    const Step &step = project.steps()[*index];
    const int number = StepList::displayNumber(project.steps(), step.id).value_or(0);
    return PreviewCanvas::tr("Target %1 at (%2, %3)")
        .arg(number)
        .arg(step.point.x())
        .arg(step.point.y());
}

} // namespace

PreviewCanvasAccessible::PreviewCanvasAccessible(PreviewCanvas &canvas)
    : QAccessibleWidget(&canvas, QAccessible::Canvas)
    , m_canvas(canvas)
{}

PreviewCanvasAccessible::~PreviewCanvasAccessible()
{
    for (const QAccessible::Id id : std::as_const(m_markers))
        QAccessible::deleteAccessibleInterface(id);
}

// The system takes a factory once only.
void PreviewCanvasAccessible::install()
{
    QAccessible::installFactory(create);
}

QString PreviewCanvasAccessible::text(QAccessible::Text kind) const
{
    const QString target = selectedTarget(m_canvas.project());
    if (kind == QAccessible::Value || (kind == QAccessible::Description && !target.isEmpty()))
        return target;
    return QAccessibleWidget::text(kind);
}

int PreviewCanvasAccessible::childCount() const
{
    return QAccessibleWidget::childCount()
           + static_cast<int>(m_canvas.scene().marks().markers.size());
}

QAccessibleInterface *PreviewCanvasAccessible::child(int index) const
{
    const int widgets = QAccessibleWidget::childCount();
    if (index < widgets)
        return QAccessibleWidget::child(index);
    const auto &markers = m_canvas.scene().marks().markers;
    return index - widgets < markers.size() ? marker(markers[index - widgets].id) : nullptr;
}

QAccessibleInterface *PreviewCanvasAccessible::childAt(int x, int y) const
{
    const QPoint at = m_canvas.mapFromGlobal(QPoint(x, y));
    const auto *hit = m_canvas.scene().marks().markerAt(at);
    return hit ? marker(hit->id) : QAccessibleWidget::childAt(x, y);
}

int PreviewCanvasAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *known = dynamic_cast<const MarkerAccessible *>(child);
    if (!known)
        return QAccessibleWidget::indexOfChild(child);
    const auto &markers = m_canvas.scene().marks().markers;
    const auto found = std::ranges::find(markers, known->move(), &CanvasMarks::Marker::id);
    return found == markers.end()
               ? -1
               : QAccessibleWidget::childCount() + static_cast<int>(found - markers.begin());
}

QAccessibleInterface *PreviewCanvasAccessible::marker(const QUuid &move) const
{
    QAccessible::Id &id = m_markers[move];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(new MarkerAccessible(m_canvas, move));
    return QAccessible::accessibleInterface(id);
}

} // namespace velvane
