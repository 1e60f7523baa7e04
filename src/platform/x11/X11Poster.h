#pragma once

#include "platform/x11/X11Connection.h"
#include "platform/x11/X11PostedKeys.h"
#include "platform/x11/X11RootSpace.h"
#include "platform/x11/X11Watchdog.h"
#include "platform/x11/watchdog/KeySymbols.h"

#include <span>

namespace velvane {

/// Posts single events through XTest over a connection of its own, and undoes what it left when it
/// ends; a watchdog does when the process ends first. Any one thread at a time.
class X11Poster {
public:
    /// Counts the key presses that it posts in `posted`.
    X11Poster(const QByteArray &display, X11PostedKeys &posted);
    ~X11Poster();
    X11Poster(const X11Poster &) = delete;
    X11Poster &operator=(const X11Poster &) = delete;

    const X11Connection &connection() const { return m_connection; }

    /// Points into root pixels, by the displays as they are now.
    const X11RootSpace &space();

    /// Moves the pointer to a root pixel.
    void move(QPoint pixel);
    /// The same with the first button held: presses it first, where the pointer is, if it is not.
    void drag(QPoint pixel);
    /// Moves the pointer there if it is elsewhere, and presses or releases a button.
    void button(xcb_button_t button, bool down, QPoint pixel);
    /// Presses keys in order and releases them in the opposite order.
    void tap(std::span<const xcb_keycode_t> keys);

    /// Lends symbols to keys that have none, in ascending order; returns once the server has done
    /// it. False when nothing was lent.
    bool lend(std::span<const KeySymbols> loans);
    void takeBackLoans();

    /// Unlocks modifiers, or locks again what was unlocked; returns once the server has done it.
    bool unlock(uint8_t modifiers);
    void lockAgain();

private:
    bool guard(xcb_button_t button);
    void fake(uint8_t type, uint8_t detail, QPoint pixel = {});
    bool pointerIsAt(QPoint pixel) const;
    void changeLock(uint8_t modifiers, uint8_t locked);
    void sync();
    void releaseAll();

    const X11Connection m_connection;
    const bool m_hasRandr;
    const xcb_window_t m_window;
    X11PostedKeys &m_posted;
    X11Watchdog m_watchdog;
    HeldInput m_held;
    X11RootSpace m_space;
    bool m_spaceIsKnown = false;
};

} // namespace velvane
