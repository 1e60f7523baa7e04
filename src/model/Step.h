#pragma once

#include "base/Seconds.h"
#include "model/StepKind.h"

#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QUuid>

#include <optional>

namespace velvane {

/// One scripted action of a demo.
struct Step {
    QUuid id = QUuid::createUuid();
    StepKind kind = StepKind::move;
    /// Target of a move, in canvas coordinates.
    QPointF point;
    /// Typed text, application name, section title, or the character of a shortcut's key.
    QString text;
    /// Action time of a move or a type.
    Seconds duration = 1.0s;
    /// Rest after the action; the whole length of a wait.
    Seconds pauseAfter = 0.3s;
    /// Key of a shortcut, by its position on an ANSI keyboard (see KeyCode).
    quint16 keyCode = 0;
    /// Modifier bits of a shortcut (see Modifier).
    quint64 modifiers = 0;
    /// Should a switched-to application's front window be centred?
    bool centerWindow = false;
    /// Are the steps of this section hidden in the list?
    bool collapsed = false;
    /// When the step was recorded: its moment in the movie recorded with it.
    std::optional<Seconds> recordedOffset;

    /// A new step with its kind's defaults, as the add commands make it; a move's target is the
    /// centre of the canvas.
    static Step withDefaults(StepKind kind, QSizeF canvasSize);

    /// The one-line description in the step list, in the user's language.
    QString summary() const;
    /// The same for programs, in no user's language.
    QString englishSummary() const;

    /// Modifier glyphs and key of a shortcut, e.g. "⇧⌘↩"; empty when it has neither.
    QString shortcutDisplay() const;

    /// Field by field; points compare exactly.
    bool operator==(const Step &other) const;
};

} // namespace velvane
