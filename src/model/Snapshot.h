#pragma once

#include "model/Step.h"

#include <QImage>
#include <QList>

namespace velvane {

/// The immutable copy of a demo that preview, export and live run work from; readable on any
/// thread.
struct Snapshot {
    QList<Step> steps;
    /// Cursor position before the first step, in canvas coordinates.
    QPointF startPoint;
    /// In pixels of the output; fractions are allowed and cut off where whole pixels are needed.
    QSizeF canvasSize;
    /// Frames per second; at least 1 is assumed where time is divided by it.
    int fps = 60;
    /// The still backdrop; null when there is none.
    QImage background;
};

} // namespace velvane
