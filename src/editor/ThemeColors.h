#pragma once

#include "model/StepKind.h"

#include <QColor>

namespace velvane {

/// Glyph and tile of a step's icon. Hues mark the step's family and appear in tiles only.
struct StepColors {
    QColor glyph;
    QColor tile;
};

/// The colours of the window, by role.
struct ThemeColors {
    bool isDark = true;
    QColor window;            ///< menu bar, toolbar, inspector, transport, status line
    QColor base;              ///< step list
    QColor stage;             ///< around the canvas
    QColor canvasHairline;    ///< around the canvas rectangle
    QColor hairline;          ///< between panes and rows
    QColor field;             ///< text fields
    QColor fieldBorder;       ///< border of text fields
    QColor button;            ///< push buttons
    QColor buttonBorder;      ///< border of push buttons
    QColor buttonHover;       ///< push button under the pointer
    QColor buttonPressed;     ///< push button held down
    QColor trough;            ///< behind segments
    QColor troughBorder;      ///< border around segments
    QColor segmentChecked;    ///< a segment that is on
    QColor menu;              ///< menus and tooltips
    QColor menuBorder;        ///< border of menus and tooltips
    QColor text;              ///< body text
    QColor secondary;         ///< labels, durations, idle icons
    QColor tertiary;          ///< row numbers, hints
    QColor disabled;          ///< text and icons of what cannot be used
    QColor rowHover;          ///< row under the pointer
    QColor selection;         ///< selected rows
    QColor inactiveSelection; ///< selected rows of a window without focus
    QColor accent;            ///< focus ring, active marker, drag line, progress
    QColor primary;           ///< the window's one main button
    QColor primaryHover;      ///< main button under the pointer
    QColor primaryPressed;    ///< main button held down
    QColor destructive;       ///< what deletes, under the pointer
    QColor track;             ///< slider track
    QColor trackPlayed;       ///< its played part
    QColor trackCurrent;      ///< the current step's span of it
    QColor knob;              ///< slider knob
    QColor liveCapsule;       ///< behind the white text while a live run is on; translucent

    static ThemeColors dark();
    static ThemeColors light();

    /// The same with a system highlight colour as accent; the primary and selection colours
    /// follow from it. An invalid colour changes nothing.
    ThemeColors withAccent(const QColor &highlight) const;

    StepColors step(StepKind kind) const;
};

/// Contrast of two opaque colours: 1 for equal ones, 21 for black on white.
double contrast(const QColor &a, const QColor &b);

} // namespace velvane
