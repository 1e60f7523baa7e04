#pragma once

#include "model/Step.h"

#include <QByteArray>
#include <QList>

#include <optional>

namespace velvane {

class PropertyList;
struct DocState;

/// The root record of a demo file.
struct ProjectFile {
    /// Most steps of a demo that is read or written.
    static constexpr qsizetype maxSteps = 150'000;

    /// Always written as 1; on reading any integer is accepted.
    qint64 version = 1;
    QList<Step> steps;
    QPointF startPoint;
    QSizeF canvasSize;
    int fps = 60;
    /// A picture of any format. Those of a project are PNG; those of a file stay as they are.
    std::optional<QByteArray> background;
    /// Finds the movie again that was recorded with the steps; opaque here.
    std::optional<QByteArray> recordingBookmark;

    /// The record of a demo. The background is encoded as PNG, and left out when that fails, which
    /// takes its time; any thread.
    static ProjectFile of(const DocState &state);

    /// The record of a property list. Unknown keys are ignored; throws DocumentError, naming the
    /// step and the key, when a required key is missing or a value is of the wrong type or range.
    static ProjectFile from(const PropertyList &root);

    PropertyList toPropertyList() const;
};

} // namespace velvane
