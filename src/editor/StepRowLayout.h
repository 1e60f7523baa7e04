#pragma once

#include <QRect>

namespace velvane {

/// Where the parts of one row of the step list are, in the list's coordinates.
struct StepRowLayout {
    /// What the row is like.
    struct Row {
        bool isSection = false;
        bool isFirst = false;
        /// Does it follow a section heading?
        bool isIndented = false;
        /// Are its buttons shown?
        bool isRevealed = false;
        int durationWidth = 0;
    };

    QRect fill; ///< the rounded rectangle of hover and selection
    QRect hairline;
    QRect number;  ///< of a step
    QRect chevron; ///< of a section: what folds it
    QRect tile;    ///< of a step
    QRect summary;
    QRect run;      ///< empty unless revealed
    QRect remove;   ///< empty unless revealed
    QRect duration; ///< empty where the buttons replace it

    static int height(bool isSection, bool isFirst);
    static StepRowLayout of(const QRect &row, const Row &kind);
};

} // namespace velvane
