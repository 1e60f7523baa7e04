#pragma once

#include "platform/InputSynthesizer.h"
#include "platform/InputTap.h"
#include "platform/KeyWatcher.h"
#include "platform/simulated/EventLog.h"
#include "platform/simulated/Listeners.h"
#include "platform/simulated/Simulated.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedPermissions.h"
#include "platform/simulated/SimulatedScreens.h"

namespace velvane {

/// Delivers what a test's user does; refuses while input monitoring is not granted.
class SimulatedTap final : public Simulated<InputTap> {
public:
    explicit SimulatedTap(SimulatedPermissions &permissions) : m_permissions(permissions) {}

    /// Everybody listening hears the event, at once and on this thread.
    void hear(const InputEvent &event);
    /// The system ends all listening.
    void lose();
    int listeners() const { return m_listeners.count(); }

    Token listen(Heard heard, Lost lost) override;

private:
    struct Listener {
        Heard heard;
        Lost lost;
    };
    SimulatedPermissions &m_permissions;
    Listeners<Listener> m_listeners;
};

/// Watches the keys that a test presses.
class SimulatedKeys final : public Simulated<KeyWatcher> {
public:
    /// A user presses a key.
    void press(quint16 keyCode);
    int watches() const { return m_watches.count(); }

    Token watch(quint16 keyCode, std::function<void()> pressed) override;

private:
    struct Watch {
        quint16 keyCode;
        std::function<void()> pressed;
    };
    Listeners<Watch> m_watches;
};

/// Writes what is posted into the log with its virtual time, moves the pointer and lets the tap
/// hear.
class SimulatedInput final : public Simulated<InputSynthesizer> {
public:
    SimulatedInput(EventLog &log, SimulatedClock &clock, SimulatedScreens &screens,
                   SimulatedTap &tap);

    void moveTo(QPointF point, bool held) override;
    void press(MouseButton button, QPointF at) override;
    void release(MouseButton button, QPointF at) override;
    void pressKey(quint16 keyCode, quint64 modifiers) override;
    std::unique_ptr<Typing> beginTyping(const QString &text) override;

private:
    void post(InputEvent event);

    EventLog &m_log;
    SimulatedClock &m_clock;
    SimulatedScreens &m_screens;
    SimulatedTap &m_tap;
};

} // namespace velvane
