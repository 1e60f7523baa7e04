#include "Eventually.h"
#include "InputPoster.h"
#include "X11Session.h"
#include "base/Background.h"
#include "platform/x11/X11KeyCode.h"
#include "support/contracts/InputContract.h"
#include "support/contracts/KeyboardContract.h"

#include <xkbcommon/xkbcommon-keysyms.h>

namespace velvane {

namespace {

// The stage of input: a real X server that nothing else uses.
class X11InputStage {
public:
    X11InputStage()
    {
        // Once a modifier, a watcher sees it and the tap does not report it.
        const xcb_keysym_t symbol = XKB_KEY_Hyper_L;
        const X11Connection connection(m_server.display());
        std::free(xcb_request_check(
            connection.get(),
            xcb_change_keyboard_mapping_checked(connection.get(), 1, codeOf(marker), 1, &symbol)));
        m_marks = keys().watch(marker, [this] { onMainThread([this] { ++m_marked; }); });
    }

    InputSynthesizer &input() { return m_session.desktop().input(); }
    InputTap &tap() { return m_session.desktop().tap(); }
    KeyWatcher &keys() { return m_session.desktop().keys(); }
    Screens &screens() { return m_session.desktop().screens(); }

    void userPresses(quint16 keyCode) { m_user.tap(codeOf(keyCode)); }

    // The second time the server, the listening thread and this one have seen to all that was
    // under way before.
    void settle()
    {
        for (int again = 0; again < 2; ++again) {
            const int before = m_marked;
            userPresses(marker);
            EXPECT_TRUE(eventually([&] { return m_marked > before; }));
        }
    }

private:
    // The key F20.
    static constexpr quint16 marker = 90;

    static xcb_keycode_t codeOf(quint16 keyCode) { return X11KeyCode::ofStored(keyCode).value(); }

    const TestServer m_server;
    X11Session m_session{m_server.display()};
    InputPoster m_user{m_server.display()};
    int m_marked = 0;
    Token m_marks;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(X11, InputContract, X11InputStage);
INSTANTIATE_TYPED_TEST_SUITE_P(X11, KeyboardContract, X11InputStage);

} // namespace velvane
