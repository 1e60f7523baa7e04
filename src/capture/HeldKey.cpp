#include "capture/HeldKey.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace velvane {

void HeldKey::hold(quint32 scanCode)
{
    m_scanCode = scanCode;
    m_released.reset();
    if (scanCode == 0)
        QCoreApplication::instance()->removeEventFilter(this);
    else
        QCoreApplication::instance()->installEventFilter(this);
}

bool HeldKey::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress && type != QEvent::KeyRelease)
        return QObject::eventFilter(watched, event);
    const auto &key = *static_cast<QKeyEvent *>(event);
    if (isRepeat(key)) {
        if (type == QEvent::KeyPress)
            m_released.reset();
        event->accept();
        return true;
    }
    // Without a time it is what accessibility passes on of an event that was here before.
    if (key.timestamp() == 0)
        return false;
    if (m_released && key.timestamp() != *m_released)
        hold(0);
    else if (type == QEvent::KeyRelease && key.nativeScanCode() == m_scanCode)
        m_released = key.timestamp();
    return false;
}

bool HeldKey::isRepeat(const QKeyEvent &event) const
{
    return event.nativeScanCode() == m_scanCode && event.type() != QEvent::KeyRelease
           && (event.isAutoRepeat() || (m_released && event.timestamp() == *m_released));
}

} // namespace velvane
