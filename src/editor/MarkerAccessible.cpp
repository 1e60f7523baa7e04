#include "editor/MarkerAccessible.h"

#include "model/StepList.h"

#include <algorithm>

namespace velvane {

const CanvasMarks::Marker *MarkerAccessible::marker() const
{
    if (!m_canvas)
        return nullptr;
    const QList<CanvasMarks::Marker> &markers = m_canvas->scene().marks().markers;
    const auto found = std::ranges::find(markers, m_move, &CanvasMarks::Marker::id);
    return found == markers.end() ? nullptr : &*found;
}

QAccessibleInterface *MarkerAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(m_canvas);
}

QRect MarkerAccessible::rect() const
{
    const auto *shown = marker();
    return shown ? shown->rect().toAlignedRect().translated(m_canvas->mapToGlobal(QPoint()))
                 : QRect();
}

QAccessible::State MarkerAccessible::state() const
{
    QAccessible::State state;
    const auto *shown = marker();
    state.invalid = !shown;
    state.selectable = true;
    state.selected = shown && shown->active;
    return state;
}

QString MarkerAccessible::text(QAccessible::Text kind) const
{
    const auto *shown = marker();
    const auto index =
        m_canvas ? StepList::index(m_canvas->project().steps(), m_move) : std::nullopt;
    if (!shown || !index || kind != QAccessible::Name)
        return {};
    return PreviewCanvas::tr("Step %1, %2")
        .arg(shown->number, m_canvas->project().steps()[*index].summary());
}

} // namespace velvane
