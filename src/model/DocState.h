#pragma once

#include "model/Step.h"

#include <QByteArray>
#include <QImage>
#include <QList>

#include <optional>

namespace velvane {

/// What undo restores: all of a demo but its selection. Copies are cheap; lists and pictures are
/// shared until changed.
struct DocState {
    QList<Step> steps;
    QPointF startPoint;
    QSizeF canvasSize;
    int fps = 0;
    QImage background;
    std::optional<QByteArray> recordingBookmark;

    /// Backgrounds are equal when they are the same picture; equal pixels do not count.
    bool operator==(const DocState &other) const;
};

} // namespace velvane
