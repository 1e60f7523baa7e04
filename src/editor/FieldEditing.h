#pragma once

#include "editor/Field.h"
#include "editor/OpenGesture.h"

namespace velvane {

/// Edits through the inspector's fields: while one has the focus, all that is done in it is one
/// undo entry, named after the field. Main thread only.
///
/// A field reports its focus, and each change of its value as it is made; a value that is no number
/// is not reported. A change without the focus (a stepper's button) opens the gesture too.
class FieldEditing : public QObject {
    Q_OBJECT
public:
    explicit FieldEditing(Project &project, QObject *parent = nullptr);

    std::optional<Field> focusedField() const { return m_focusedField; }
    /// Another field than before commits the gesture, and opens the new field's.
    void setFocusedField(std::optional<Field> field);

    /// The field's value: seconds, canvas coordinates, pixels, frames a second. Nothing when there
    /// is no such step, or for the text.
    std::optional<double> number(Field field) const;
    /// Sets it, kept within what the field allows; not finite numbers are ignored.
    void setNumber(Field field, double value);
    /// One step of a spin button or arrow key: tenths of seconds, not below 0.05 for durations and
    /// 0 for pauses; whole coordinates, not negative.
    void bump(Field field, double by);

    /// The selected step's text; nothing when no step is selected.
    std::optional<QString> text() const;
    void setText(const QString &text);

    /// Call before undo, redo, save, export, run and close: what is being typed, dragged or nudged
    /// becomes an undo entry. The focus stays; the next change opens the gesture anew.
    void commitOpenGesture() { m_gesture.commit(); }
    /// Undoes and redoes, an open gesture first becoming an entry of its own.
    void undo();
    void redo();

    OpenGesture &gesture() { return m_gesture; }

    /// The undo name of a field's edits.
    static QString editName(Field field);

Q_SIGNALS:
    void focusedFieldChanged();

private:
    std::optional<qsizetype> stepIndex(Field field) const;

    Project &m_project;
    OpenGesture m_gesture;
    std::optional<Field> m_focusedField;
};

} // namespace velvane
