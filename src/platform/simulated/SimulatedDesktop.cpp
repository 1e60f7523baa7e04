#include "platform/simulated/SimulatedDesktop.h"

namespace velvane {

void SimulatedDesktop::press(quint16 keyCode, quint64 modifiers, const QString &text)
{
    InputEvent event{InputEvent::Kind::keyDown, {}, keyCode, modifiers, text};
    event.time = m_clock.now();
    event.point = m_screens.pointer().value_or(QPointF());
    m_tap.hear(event);
    m_keys.press(keyCode);
}

} // namespace velvane
