#pragma once

#include "editor/FieldEditing.h"

#include <QPointer>

namespace velvane {

class NumberField;

/// Ties number fields to the values they edit: focus opens and commits the edit, typing and arrow
/// keys change the value, and changes from elsewhere show.
class FieldBinding : public QObject {
    Q_OBJECT
public:
    explicit FieldBinding(FieldEditing &editing, QObject *parent = nullptr);

    /// `which` says what the widget edits just then.
    void add(NumberField &widget, std::function<Field()> which);

    /// Shows the values as they are. A field with the focus goes on with what it edits now.
    void update();

private:
    struct Bound {
        QPointer<NumberField> widget;
        std::function<Field()> which;
    };

    FieldEditing &m_editing;
    std::vector<Bound> m_bound;
};

} // namespace velvane
