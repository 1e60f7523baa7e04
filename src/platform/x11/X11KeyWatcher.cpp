#include "platform/x11/X11KeyWatcher.h"

#include "platform/x11/X11KeyCode.h"

namespace velvane {

Token X11KeyWatcher::watch(quint16 keyCode, std::function<void()> pressed)
{
    const std::optional<xcb_keycode_t> key = X11KeyCode::ofStored(keyCode);
    if (!key)
        return {};
    const auto heard = [key = *key, pressed = std::move(pressed)](const X11HeardEvent &event) {
        if (event.type == XCB_KEY_PRESS && event.detail == key && !event.ours)
            pressed();
    };
    // Without a server there is no key to be pressed: its end needs no word here.
    return m_listener.subscribe(heard, [] {});
}

} // namespace velvane
