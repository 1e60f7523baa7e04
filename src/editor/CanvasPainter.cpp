#include "editor/CanvasPainter.h"

#include "editor/MarkPictures.h"

#include <QPainter>

namespace velvane::CanvasPainter {

namespace {

constexpr double casingWidth = 7;
constexpr double lineWidth = 3;
constexpr float casingOpacity = 0.55F;
constexpr float handleOpacity = 0.72F;
constexpr double handleBorder = 1.5;
constexpr double handleRadius = 6;
constexpr double dotRadius = 2;

// Of the path, target i is item 2 i, and what leads from it to the next 2 i + 1.
constexpr int handleItem = -1;
// Of the marks; then come the markers, and after them the capsules.
constexpr int chipItem = 0;
constexpr int firstMarker = 1;

QColor black(float opacity)
{
    return QColor::fromRgbF(0, 0, 0, opacity);
}

QRectF around(QPointF centre, double radius)
{
    return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

std::size_t look(const QRectF &rect, const QString &text, bool active = false)
{
    return qHashMulti(0, rect.x(), rect.y(), rect.width(), text, active);
}

// Segment by segment with flat ends, and discs for the round joins and caps: the painter is many
// times as fast with these as with a long polyline or with round caps.
void drawLine(QPainter &painter, const QPolygonF &path, const std::vector<int> &items,
              const QColor &color, double width)
{
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::FlatCap));
    for (const int item : items)
        if (item >= 0 && item % 2 == 1)
            painter.drawLine(path[item / 2], path[item / 2 + 1]);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    for (const int item : items)
        if (item >= 0 && item % 2 == 0)
            painter.drawEllipse(path[item / 2], width / 2, width / 2);
}

void drawHandle(QPainter &painter, QPointF centre)
{
    painter.setPen(QPen(Qt::white, handleBorder));
    painter.setBrush(black(handleOpacity));
    painter.drawEllipse(centre, handleRadius, handleRadius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(centre, dotRadius, dotRadius);
}

} // namespace

CanvasCells pathCells(const CanvasMarks &marks, QSizeF view)
{
    constexpr double reach = casingWidth / 2;
    CanvasCells cells(view);
    for (int i = 0; i < marks.path.size(); ++i) {
        const QPointF &target = marks.path[i];
        cells.add(2 * i, around(target, reach), qHashMulti(0, target.x(), target.y()));
        if (i + 1 == marks.path.size())
            break;
        const QPointF &next = marks.path[i + 1];
        cells.add(2 * i + 1, QLineF(target, next), reach,
                  qHashMulti(0, target.x(), target.y(), next.x(), next.y()));
    }
    if (marks.startHandle)
        cells.add(handleItem, around(*marks.startHandle, handleRadius + handleBorder),
                  qHashMulti(0, handleItem, marks.startHandle->x(), marks.startHandle->y()));
    return cells;
}

void drawPath(QPainter &painter, const QTransform &toDevice, const CanvasMarks &marks,
              const std::vector<int> &items)
{
    painter.setTransform(toDevice);
    // Where translucent pieces meet, replacing what is there keeps them from adding up.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    drawLine(painter, marks.path, items, black(casingOpacity), casingWidth);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    drawLine(painter, marks.path, items, Qt::white, lineWidth);
    if (!items.empty() && items.back() == handleItem)
        drawHandle(painter, *marks.startHandle);
}

CanvasCells markCells(const CanvasMarks &marks, QSizeF view)
{
    CanvasCells cells(view);
    if (marks.startChip)
        cells.add(chipItem, marks.startChip->rect,
                  look(marks.startChip->rect, marks.startChip->text));
    const int firstAction = firstMarker + static_cast<int>(marks.markers.size());
    for (const bool active : {false, true}) {
        for (int i = 0; i < marks.markers.size(); ++i) {
            const CanvasMarks::Marker &marker = marks.markers[i];
            if (marker.active == active)
                cells.add(firstMarker + i, marker.rect(),
                          look(marker.rect(), marker.number, active));
        }
        for (int i = 0; i < marks.actions.size(); ++i) {
            const CanvasMarks::Capsule &action = marks.actions[i];
            if (action.active == active)
                cells.add(firstAction + i, action.rect, look(action.rect, action.text));
        }
    }
    return cells;
}

void drawMarks(QPainter &painter, const QTransform &toDevice, const CanvasMarks &marks,
               MarkPictures &pictures, const std::vector<int> &items)
{
    const int firstAction = firstMarker + static_cast<int>(marks.markers.size());
    for (const int item : items) {
        if (item >= firstAction)
            pictures.draw(painter, toDevice, marks.actions[item - firstAction]);
        else if (item >= firstMarker)
            pictures.draw(painter, toDevice, marks.markers[item - firstMarker]);
        else
            pictures.draw(painter, toDevice, *marks.startChip);
    }
}

} // namespace velvane::CanvasPainter
