#include "app/WindowConfigurator.h"

#include <QEvent>
#include <QWidget>

namespace velvane {

namespace {

constexpr QSize leastSize(960, 600);

} // namespace

WindowConfigurator::WindowConfigurator(QWidget &window) : QObject(&window), m_window(window)
{
    m_window.setMinimumSize(leastSize);
    m_window.installEventFilter(this);
}

bool WindowConfigurator::eventFilter(QObject *watched, QEvent *event)
{
    // The window manager is still in the middle of its change.
    if (event->type() == QEvent::WindowStateChange && m_window.isFullScreen())
        QMetaObject::invokeMethod(this, &WindowConfigurator::leaveFullScreen, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void WindowConfigurator::leaveFullScreen()
{
    m_window.setWindowState(m_window.windowState() & ~Qt::WindowFullScreen);
}

} // namespace velvane
