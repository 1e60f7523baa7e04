#pragma once

#include <xcb/xproto.h>

#include <array>
#include <mutex>

namespace velvane {

/// The key presses that this program itself posts, so that who hears them can tell them from the
/// user's: the server does not say whose a press is. Any thread.
///
/// Presses of one key are alike, so they are counted: of those heard, as many are ours as were
/// posted. Nothing is counted while nobody listens, or what was never heard would be taken for a
/// press of the user's later.
class X11PostedKeys {
public:
    /// Listening begins, or ends; either forgets what was counted.
    void setCounting(bool counting)
    {
        const std::lock_guard lock(m_mutex);
        m_counting = counting;
        m_waiting.fill(0);
    }

    /// Call before each press is handed to the server, with its X key code.
    void add(xcb_keycode_t key)
    {
        const std::lock_guard lock(m_mutex);
        m_waiting[key] += m_counting ? 1 : 0;
    }

    /// A press was heard: is it one of ours? Each counts once.
    bool take(xcb_keycode_t key)
    {
        const std::lock_guard lock(m_mutex);
        if (m_waiting[key] == 0)
            return false;
        --m_waiting[key];
        return true;
    }

private:
    std::mutex m_mutex;
    bool m_counting = false;
    std::array<unsigned, 256> m_waiting{};
};

} // namespace velvane
