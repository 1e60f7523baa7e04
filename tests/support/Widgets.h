#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace velvane {

/// Input as a user gives it, sent straight to a widget.
namespace Widgets {

inline void press(QWidget &widget, int key, Qt::KeyboardModifiers modifiers = {},
                  const QString &text = {})
{
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(&widget, &up);
}

inline void mouse(QWidget &widget, QEvent::Type type, QPoint at, Qt::MouseButton button,
                  Qt::KeyboardModifiers modifiers = {})
{
    const bool held = type != QEvent::MouseButtonRelease && button != Qt::NoButton;
    QMouseEvent event(type, at, widget.mapToGlobal(at),
                      type == QEvent::MouseMove ? Qt::NoButton : button,
                      held ? Qt::MouseButtons(button) : Qt::NoButton, modifiers);
    QApplication::sendEvent(&widget, &event);
}

inline void click(QWidget &widget, QPoint at, Qt::KeyboardModifiers modifiers = {})
{
    mouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton, modifiers);
    mouse(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton, modifiers);
}

/// Drags from one place to another, in steps.
inline void drag(QWidget &widget, QPoint from, QPoint to)
{
    mouse(widget, QEvent::MouseButtonPress, from, Qt::LeftButton);
    for (int step = 1; step <= 4; ++step)
        mouse(widget, QEvent::MouseMove, from + (to - from) * step / 4, Qt::LeftButton);
    mouse(widget, QEvent::MouseButtonRelease, to, Qt::LeftButton);
}

inline void focus(QWidget &widget, bool in)
{
    QFocusEvent event(in ? QEvent::FocusIn : QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&widget, &event);
}

/// The child with that accessible name; null when there is none.
template <typename Widget>
Widget *named(const QWidget &parent, const QString &name)
{
    for (Widget *child : parent.findChildren<Widget *>())
        if (child->accessibleName() == name)
            return child;
    return nullptr;
}

} // namespace Widgets

} // namespace velvane
