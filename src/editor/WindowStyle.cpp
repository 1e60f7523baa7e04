#include "editor/WindowStyle.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>

namespace velvane {

namespace {

constexpr double menuRadius = 8; // logical pixels, as in the style sheet

QRegion rounded(const QRect &rect)
{
    QPainterPath path;
    path.addRoundedRect(rect, menuRadius, menuRadius);
    return QRegion(path.toFillPolygon().toPolygon());
}

} // namespace

WindowStyle::WindowStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

int WindowStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                           QStyleHintReturn *data) const
{
    if (hint == SH_UnderlineShortcut)
        return underlines();
    if (hint == SH_Widget_Animation_Duration && m_isStill)
        return 0;
    if (hint == SH_Menu_Mask && option) {
        if (auto *mask = qstyleoption_cast<QStyleHintReturnMask *>(data))
            mask->region = rounded(option->rect);
        return 1;
    }
    return QProxyStyle::styleHint(hint, option, widget, data);
}

void WindowStyle::polish(QApplication *application)
{
    QProxyStyle::polish(application);
    application->installEventFilter(this);
}

void WindowStyle::unpolish(QApplication *application)
{
    application->removeEventFilter(this);
    QProxyStyle::unpolish(application);
}

bool WindowStyle::underlines() const
{
    return m_alt || qobject_cast<QMenuBar *>(QApplication::focusWidget());
}

bool WindowStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Alt)
            setAlt(event->type() == QEvent::KeyPress);
    } else if (event->type() == QEvent::ApplicationStateChange) {
        // Alt may be let go over another program's window.
        setAlt(false);
    }
    return QProxyStyle::eventFilter(watched, event);
}

void WindowStyle::setAlt(bool held)
{
    if (held == m_alt)
        return;
    m_alt = held;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        window->update();
}

} // namespace velvane
