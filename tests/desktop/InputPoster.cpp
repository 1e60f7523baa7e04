#include "InputPoster.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <vector>

namespace velvane {

void InputPoster::move(QPoint place)
{
    fake(XCB_MOTION_NOTIFY, 0, place);
}

void InputPoster::button(int button, bool down)
{
    fake(down ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, button);
}

void InputPoster::click(int button)
{
    this->button(button, true);
    this->button(button, false);
}

void InputPoster::key(int code, bool down)
{
    fake(down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, code);
}

void InputPoster::tap(int code)
{
    key(code, true);
    key(code, false);
}

void InputPoster::chord(std::initializer_list<int> held, int code)
{
    for (const int modifier : held)
        key(modifier, true);
    tap(code);
    for (const int modifier : held)
        key(modifier, false);
}

void InputPoster::fake(int type, int detail, QPoint place)
{
    const auto asked = xcb_test_fake_input_checked(
        m_connection.get(), static_cast<uint8_t>(type), static_cast<uint8_t>(detail),
        XCB_CURRENT_TIME, m_connection.root(), static_cast<int16_t>(place.x()),
        static_cast<int16_t>(place.y()), 0);
    std::free(xcb_request_check(m_connection.get(), asked));
}

} // namespace velvane
