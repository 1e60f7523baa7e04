#include "editor/CanvasMarks.h"

#include "editor/StackPlacer.h"
#include "editor/Theme.h"

#include <QFontMetricsF>

namespace velvane {

namespace {

constexpr double capsulePadding = 8;
constexpr double chipLift = 26;
constexpr double handleRadius = 11;
// With more markers in the view, stacks that hide others would bury all they belong to.
constexpr qsizetype crowd = 200;

using Marker = CanvasMarks::Marker;
using Capsule = CanvasMarks::Capsule;
using Shown = std::pair<Marker, const MoveGroup *>;

// The widths of capsules. Measuring takes so long that thousands of texts would make edits halt:
// what was measured is kept while the font is the same.
class CapsuleWidths {
public:
    double of(const QString &text)
    {
        const auto known = m_widths.constFind(text);
        if (known != m_widths.constEnd())
            return *known;
        const double width =
            std::ceil(QFontMetricsF(m_font).horizontalAdvance(text)) + 2 * capsulePadding;
        return *m_widths.insert(text, width);
    }

    // Those of the font that is used now. Main thread.
    static CapsuleWidths &now()
    {
        static CapsuleWidths widths;
        const QFont font = Theme::font(TextSize::small, QFont::Medium);
        if (font != widths.m_font || widths.m_widths.size() > mostKept)
            widths.m_widths.clear();
        widths.m_font = font;
        return widths;
    }

private:
    static constexpr qsizetype mostKept = 50'000;

    QFont m_font;
    QHash<QString, double> m_widths;
};

// On whole pixels every number sits alike in its marker.
QPointF snapped(QPointF point)
{
    return {std::round(point.x()), std::round(point.y())};
}

QList<Capsule> placeStacks(const QList<Shown> &shown, const std::optional<Capsule> &chip,
                           const QRectF &view)
{
    auto fromTheTop = shown;
    std::stable_sort(fromTheTop.begin(), fromTheTop.end(), [](const Shown &a, const Shown &b) {
        return a.first.centre.y() < b.first.centre.y();
    });
    CapsuleWidths &widths = CapsuleWidths::now();
    StackPlacer placer(view);
    for (const auto &[marker, group] : shown)
        placer.block(marker.rect());
    if (chip)
        placer.block(chip->rect);
    QList<Capsule> all;
    const bool crowded = shown.size() > crowd;
    for (const auto &[marker, group] : fromTheTop) {
        if (group->actions.isEmpty())
            continue;
        const bool onlyFree = crowded && !marker.active;
        if (onlyFree && !placer.hasRoom(marker.centre, marker.radius(), 2 * capsulePadding))
            continue;
        StackPlacer::Stack stack{marker.centre, marker.radius(), {}};
        for (const Step &action : group->actions)
            stack.widths.push_back(widths.of(actionText(action)));
        const auto placed = onlyFree ? placer.placeIfFree(stack) : placer.place(stack);
        for (std::size_t i = 0; i < placed.size(); ++i)
            all << Capsule{placed[i], actionText(group->actions[qsizetype(i)]), marker.active};
    }
    return all;
}

// Above the first target; below it where the view ends too soon.
Capsule chipAt(QPointF target, const QString &text, const QRectF &view)
{
    QRectF rect(0, 0, CapsuleWidths::now().of(text), StackPlacer::capsuleHeight);
    rect.moveCenter(target - QPointF(0, chipLift));
    if (rect.top() < view.top())
        rect.moveCenter(target + QPointF(0, chipLift));
    rect.moveLeft(std::round(
        std::clamp(rect.left(), view.left(), std::max(view.left(), view.right() - rect.width()))));
    return {rect, text};
}

bool isNear(QPointF a, QPointF b, double distance)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y()) <= distance;
}

} // namespace

QRectF CanvasMarks::Marker::rect() const
{
    return {centre.x() - radius(), centre.y() - radius(), 2 * radius(), 2 * radius()};
}

CanvasMarks CanvasMarks::of(const QList<MoveGroup> &groups, std::optional<QUuid> selected,
                            const CanvasGeometry &geometry, const QRectF &view)
{
    CanvasMarks marks;
    QList<Shown> shown;
    for (const MoveGroup &group : groups) {
        const QPointF target = geometry.toView(group.step.point);
        marks.path << target;
        const Marker marker{group.step.id, QString::number(group.number), group.step.id == selected,
                            snapped(target)};
        if (marker.rect().intersects(view))
            shown.append({marker, &group});
    }
    for (const auto &[marker, group] : shown)
        marks.markers << marker;
    std::stable_partition(marks.markers.begin(), marks.markers.end(),
                          [](const Marker &marker) { return !marker.active; });
    if (!marks.path.isEmpty() && view.contains(marks.path.first()))
        marks.startChip = chipAt(snapped(marks.path.first()), tr("Start"), view);
    marks.actions = placeStacks(shown, marks.startChip, view);
    return marks;
}

const CanvasMarks::Marker *CanvasMarks::markerAt(QPointF point) const
{
    const auto found = std::find_if(markers.rbegin(), markers.rend(), [&](const Marker &marker) {
        return isNear(marker.centre, point, marker.radius());
    });
    return found == markers.rend() ? nullptr : &*found;
}

bool CanvasMarks::startHandleAt(QPointF point) const
{
    return startHandle && isNear(*startHandle, point, handleRadius);
}

void CanvasMarks::translate(QPointF by)
{
    path.translate(by);
    if (startHandle)
        *startHandle += by;
    if (startChip)
        startChip->rect.translate(by);
    for (Marker &marker : markers)
        marker.centre += by;
    for (Capsule &action : actions)
        action.rect.translate(by);
}

} // namespace velvane
