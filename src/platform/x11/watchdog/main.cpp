// Outlives the program that posts input by a moment: when that is gone, however it ended, this
// releases what it left pressed and brings the keyboard map back, which nobody else would.
//
// usage: velvane-watchdog DISPLAY WINDOW, with a socket of HeldInput records as standard input.
// WINDOW, a decimal number, belongs to the connection that posts: once it is destroyed the server
// has seen the last of that connection. Leaves its caller's process group; ends with the socket or
// with the server.

#include "platform/x11/XcbXkb.h"
#include "platform/x11/watchdog/HeldInput.h"
#include "platform/x11/watchdog/KeySymbols.h"

#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using velvane::HeldInput;

// How long a key stroke may need to reach an application, which then looks its symbol up.
constexpr auto settling = 300ms;
// The server sees the end of a dead program's connection at once; this is for one that it does not.
constexpr auto patience = 2s;

class Watchdog {
public:
    Watchdog(const char *display, xcb_window_t window)
        : m_connection(xcb_connect(display, nullptr))
        , m_window(window)
    {}
    ~Watchdog() { xcb_disconnect(m_connection); }
    Watchdog(const Watchdog &) = delete;
    Watchdog &operator=(const Watchdog &) = delete;

    // Watches the window that belongs to the connection that posts. False without a server that
    // can release anything.
    bool begin()
    {
        if (xcb_connection_has_error(m_connection) != 0)
            return false;
        const xcb_query_extension_reply_t *test =
            xcb_get_extension_data(m_connection, &xcb_test_id);
        if (!test || !test->present)
            return false;
        // A menu that has grabbed the input is no reason to leave a button pressed.
        xcb_test_grab_control(m_connection, 1);
        std::free(xcb_xkb_use_extension_reply(
            m_connection,
            xcb_xkb_use_extension(m_connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION),
            nullptr));
        const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, m_window, XCB_CW_EVENT_MASK, &mask);
        return sync();
    }

    // Returns when the program or the server has gone.
    void watch()
    {
        pollfd from[] = {{STDIN_FILENO, POLLIN, 0},
                         {xcb_get_file_descriptor(m_connection), POLLIN, 0}};
        for (;;) {
            drain();
            if (xcb_connection_has_error(m_connection) != 0)
                return;
            if (poll(from, 2, -1) < 0)
                continue;
            if (from[0].revents != 0 && !receive())
                return;
        }
    }

    void restore()
    {
        if (m_held == HeldInput())
            return;
        awaitEndOfPosting();
        release();
        sync();
        if (m_held.lent != HeldInput::Keys()) {
            std::this_thread::sleep_for(settling);
            velvane::changeSymbols(m_connection, velvane::lentKeys(m_held));
        }
        if (m_held.unlocked != 0)
            xcb_xkb_latch_lock_state(m_connection, XCB_XKB_ID_USE_CORE_KBD, m_held.unlocked,
                                     m_held.unlocked, 0, 0, 0, 0, 0);
        sync();
    }

private:
    bool receive()
    {
        HeldInput held;
        const ssize_t size = recv(STDIN_FILENO, &held, sizeof held, 0);
        if (size == ssize_t(sizeof held))
            m_held = held;
        return size == ssize_t(sizeof held);
    }

    void drain()
    {
        while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
            const int type = event->response_type & 0x7f;
            const auto *error = reinterpret_cast<const xcb_generic_error_t *>(event);
            if (type == XCB_DESTROY_NOTIFY || (type == 0 && error->error_code == XCB_WINDOW))
                m_ended = true;
            std::free(event);
        }
    }

    // What the dead program had sent may still be unread by the server: a release that overtook
    // its press would be lost.
    void awaitEndOfPosting()
    {
        const auto deadline = steady_clock::now() + patience;
        drain();
        while (!m_ended && steady_clock::now() < deadline
               && xcb_connection_has_error(m_connection) == 0) {
            pollfd server{xcb_get_file_descriptor(m_connection), POLLIN, 0};
            poll(&server, 1, 50);
            drain();
        }
    }

    void fake(std::uint8_t type, std::uint8_t detail)
    {
        xcb_test_fake_input(m_connection, type, detail, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    }

    void release()
    {
        for (std::uint8_t button = 1; button < 8; ++button) {
            if ((m_held.buttons >> button & 1) != 0)
                fake(XCB_BUTTON_RELEASE, button);
        }
        for (unsigned code = 0; code < 256; ++code) {
            const auto key = static_cast<std::uint8_t>(code);
            if (HeldInput::has(m_held.pressed, key))
                fake(XCB_KEY_RELEASE, key);
        }
    }

    // Returns once the server has done what was asked; false when it has gone.
    bool sync()
    {
        xcb_get_input_focus_reply_t *reply =
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr);
        std::free(reply);
        return reply != nullptr;
    }

    xcb_connection_t *const m_connection;
    const xcb_window_t m_window;
    HeldInput m_held;
    bool m_ended = false;
};

// The session's end and Ctrl-C reach this too: it has to outlive the program that they end.
void standApart()
{
    setsid();
    for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGPIPE})
        std::signal(signal, SIG_IGN);
    // No folder stays in use for its sake.
    if (chdir("/") != 0)
        return;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    Watchdog watchdog(argv[1], static_cast<xcb_window_t>(std::strtoul(argv[2], nullptr, 10)));
    if (!watchdog.begin())
        return 1;
    // The caller waits for this process only; the other's end is nobody's business.
    if (const pid_t other = fork(); other != 0)
        _exit(other > 0 ? 0 : 1);
    standApart();
    if (send(STDIN_FILENO, &velvane::watchdogReady, 1, MSG_NOSIGNAL) != 1)
        return 1;
    watchdog.watch();
    watchdog.restore();
    return 0;
}
