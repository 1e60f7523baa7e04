#include "editor/FieldBinding.h"

#include "editor/NumberField.h"

namespace velvane {

FieldBinding::FieldBinding(FieldEditing &editing, QObject *parent)
    : QObject(parent)
    , m_editing(editing)
{}

void FieldBinding::add(NumberField &widget, std::function<Field()> which)
{
    connect(&widget, &NumberField::focused, this,
            [this, which] { m_editing.setFocusedField(which()); });
    connect(&widget, &NumberField::left, this, [this] { m_editing.setFocusedField({}); });
    connect(&widget, &NumberField::valueTyped, this,
            [this, which](double value) { m_editing.setNumber(which(), value); });
    connect(&widget, &NumberField::bumped, this,
            [this, which](double by) { m_editing.bump(which(), by); });
    m_bound.push_back({&widget, std::move(which)});
}

void FieldBinding::update()
{
    for (const Bound &bound : m_bound) {
        if (!bound.widget)
            continue;
        const Field field = bound.which();
        const auto value = m_editing.number(field);
        if (!value)
            continue;
        if (bound.widget->hasFocus() && m_editing.focusedField() != field)
            m_editing.setFocusedField(field);
        bound.widget->setValue(*value);
    }
}

} // namespace velvane
