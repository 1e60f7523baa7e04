#pragma once

#include "editor/CanvasCells.h"
#include "editor/CanvasMarks.h"

class QPainter;

namespace velvane {

class MarkPictures;

/// Draws the path and its marks, cell by cell. The cells are of the logical pixels that the marks
/// were laid out in; painters are in device pixels, where `toDevice` leads from the marks.
namespace CanvasPainter {

/// The path through the targets, and the start point's handle over it.
CanvasCells pathCells(const CanvasMarks &marks, QSizeF view);
/// The items of one cell of pathCells(), where the painter's picture must be transparent.
void drawPath(QPainter &painter, const QTransform &toDevice, const CanvasMarks &marks,
              const std::vector<int> &items);

/// The chip, the markers and the stacks, in this order, but the active marker and its stack on top.
CanvasCells markCells(const CanvasMarks &marks, QSizeF view);
/// The items of one cell of markCells().
void drawMarks(QPainter &painter, const QTransform &toDevice, const CanvasMarks &marks,
               MarkPictures &pictures, const std::vector<int> &items);

} // namespace CanvasPainter

} // namespace velvane
