#include "editor/CanvasGeometry.h"

#include "model/StepList.h"

#include <algorithm>
#include <cmath>

namespace velvane {

namespace {

// The most that a press may wander and still be a click, horizontally and vertically together.
constexpr double clickReach = 4;

QPointF centreOf(QSizeF size)
{
    return {size.width() / 2, size.height() / 2};
}

double fitScale(QSizeF canvas, QSizeF view)
{
    const double fit = std::min(view.width() / canvas.width(), view.height() / canvas.height());
    return std::max(fit, 0.0);
}

} // namespace

CanvasGeometry::CanvasGeometry(QSizeF canvas, QSizeF view)
{
    if (canvas.isEmpty())
        return;
    m_canvas = canvas;
    m_scale = fitScale(canvas, view);
    m_origin = centreOf(view) - centreOf(canvas) * m_scale;
}

CanvasGeometry::CanvasGeometry(QSizeF canvas, QSizeF view, QPointF focus, QPointF offset)
{
    if (canvas.isEmpty())
        return;
    m_canvas = canvas;
    m_scale = fitScale(canvas, view) * magnification;
    m_origin = centreOf(view) + offset - focus * m_scale;
}

QPointF CanvasGeometry::toDemo(QPointF view) const
{
    return m_scale > 0 ? (view - m_origin) / m_scale : QPointF();
}

bool CanvasGeometry::contains(QPointF demo) const
{
    return m_scale > 0 && demo.x() >= 0 && demo.y() >= 0 && demo.x() <= m_canvas.width()
           && demo.y() <= m_canvas.height();
}

QPointF focusPoint(const Project &project)
{
    const auto selected = StepList::selectedIndex(project);
    if (selected && project.steps()[*selected].kind == StepKind::move)
        return project.steps()[*selected].point;
    return centreOf(project.canvasSize());
}

QPointF wholeAndInside(QPointF demo, QSizeF canvas)
{
    return {std::clamp(std::round(demo.x()), 0.0, std::max(canvas.width(), 0.0)),
            std::clamp(std::round(demo.y()), 0.0, std::max(canvas.height(), 0.0))};
}

bool isClick(QPointF translation)
{
    return translation.manhattanLength() <= clickReach;
}

} // namespace velvane
