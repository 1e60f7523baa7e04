#pragma once

#include "platform/x11/X11Connection.h"

#include <vector>

namespace velvane {

/// One event of the core keyboard or pointer, as the server tells it.
struct X11HeardEvent {
    /// XCB_KEY_PRESS to XCB_MOTION_NOTIFY.
    uint8_t type = 0;
    /// The key code or the button; of no meaning for a motion.
    uint8_t detail = 0;
    /// Modifiers, buttons and, in bits 13 and 14, the keyboard's group, before the event.
    uint16_t state = 0;
    /// Pixels of the root window.
    int16_t x = 0;
    int16_t y = 0;
    /// The server's milliseconds; they wrap.
    uint32_t time = 0;
    /// A key press that this program posted.
    bool ours = false;
};

/// Everything that happens to the core keyboard and pointer, through the record extension, from
/// construction to destruction. The server copies the events; nobody gets them later for it.
///
/// One thread at a time: it may change hands.
class X11RecordStream {
public:
    /// `control` must outlive this. Blocks until the server has agreed or refused.
    X11RecordStream(const X11Connection &control, const QByteArray &display);
    ~X11RecordStream();
    X11RecordStream(const X11RecordStream &) = delete;
    X11RecordStream &operator=(const X11RecordStream &) = delete;

    /// Has the server agreed to tell?
    bool isOpen() const { return m_open; }

    /// Becomes readable when something has arrived, or when the server has gone.
    int descriptor() const;

    /// Makes the server send what it holds back: it sends its records with other output only, and
    /// has none when the input is meant for nobody. Waits for the server's answer.
    void nudge() const;

    enum class Reading {
        /// Events were added, and more may wait.
        some,
        /// All that has arrived was read.
        nothing,
        /// The server tells no more, now or ever.
        ended,
    };

    /// Adds some of what has arrived, in order, without waiting.
    Reading read(std::vector<X11HeardEvent> &events);

private:
    bool createContext();
    bool enableContext();

    const X11Connection &m_control;
    // The server reads no further requests from a connection to which it tells what it recorded.
    const X11Connection m_data;
    uint32_t m_context = XCB_NONE;
    unsigned m_sequence = 0;
    bool m_open = false;
};

} // namespace velvane
