#pragma once

#include "editor/Metrics.h"

namespace velvane {

/// What a window of some size leaves room for. Widths that the user has set are not changed.
struct Condensing {
    int sidebarWidth = Metrics::sidebarWidth;
    int inspectorWidth = Metrics::inspectorWidth;
    /// Around the canvas.
    int stageMargin = 20;
    /// Left and right inside the panes.
    int padding = Metrics::pagePadding;
    int labelColumn = Metrics::labelColumn;
    /// Are the "Run options" shown by their icon only?
    bool iconRunOptions = false;
    /// Are the backdrop toggles shown by their icons only?
    bool iconBackdrops = false;
    /// Does the add grid give way to a menu button?
    bool addMenu = false;

    /// For a window of that size, in logical pixels.
    static Condensing of(int windowWidth, int windowHeight);

    bool operator==(const Condensing &) const = default;
};

} // namespace velvane
