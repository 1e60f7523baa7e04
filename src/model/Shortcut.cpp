#include "model/Shortcut.h"

#include "base/KeyCode.h"

namespace velvane::Shortcut {

QString modifierGlyphs(quint64 modifiers)
{
    // The conventional order, which is not the order of the bits.
    QString glyphs;
    if (modifiers & Modifier::control)
        glyphs += QChar(0x2303);
    if (modifiers & Modifier::option)
        glyphs += QChar(0x2325);
    if (modifiers & Modifier::shift)
        glyphs += QChar(0x21E7);
    if (modifiers & Modifier::command)
        glyphs += QChar(0x2318);
    return glyphs;
}

const QMap<quint16, QString> &specialKeyLabels()
{
    static const QMap<quint16, QString> labels{
        {KeyCode::space, QStringLiteral("Space")},     {KeyCode::backspace, QStringLiteral("⌫")},
        {KeyCode::forwardDelete, QStringLiteral("⌦")}, {KeyCode::returnKey, QStringLiteral("↩")},
        {KeyCode::keypadEnter, QStringLiteral("⌅")},   {KeyCode::tab, QStringLiteral("⇥")},
        {KeyCode::escape, QStringLiteral("⎋")},        {KeyCode::leftArrow, QStringLiteral("←")},
        {KeyCode::rightArrow, QStringLiteral("→")},    {KeyCode::downArrow, QStringLiteral("↓")},
        {KeyCode::upArrow, QStringLiteral("↑")},       {KeyCode::home, QStringLiteral("↖")},
        {KeyCode::end, QStringLiteral("↘")},           {KeyCode::pageUp, QStringLiteral("⇞")},
        {KeyCode::pageDown, QStringLiteral("⇟")},      {KeyCode::f1, QStringLiteral("F1")},
        {KeyCode::f2, QStringLiteral("F2")},           {KeyCode::f3, QStringLiteral("F3")},
        {KeyCode::f4, QStringLiteral("F4")},           {KeyCode::f5, QStringLiteral("F5")},
        {KeyCode::f6, QStringLiteral("F6")},           {KeyCode::f7, QStringLiteral("F7")},
        {KeyCode::f8, QStringLiteral("F8")},           {KeyCode::f9, QStringLiteral("F9")},
        {KeyCode::f10, QStringLiteral("F10")},         {KeyCode::f11, QStringLiteral("F11")},
        {KeyCode::f12, QStringLiteral("F12")},
    };
    return labels;
}

QString specialKeyLabel(quint16 keyCode)
{
    return specialKeyLabels().value(keyCode);
}

} // namespace velvane::Shortcut
