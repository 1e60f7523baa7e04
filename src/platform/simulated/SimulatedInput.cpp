#include "platform/simulated/SimulatedInput.h"

#include "base/KeyCode.h"

#include <QLineF>

#include <cmath>

namespace velvane {

using Kind = InputEvent::Kind;

namespace {

// The nearest place that a pointer can be at: that of a display's last pixel is 1 from its edge.
QPointF nearest(const std::vector<Display> &displays, QPointF point)
{
    std::optional<QPointF> found;
    for (const Display &display : displays) {
        const QRectF places = display.frame.adjusted(0, 0, -1, -1);
        const QPointF place(std::clamp(point.x(), places.left(), places.right()),
                            std::clamp(point.y(), places.top(), places.bottom()));
        if (!found || QLineF(point, place).length() < QLineF(point, *found).length())
            found = place;
    }
    return found.value_or(point);
}

} // namespace

void SimulatedTap::hear(const InputEvent &event)
{
    // Releases of keys are posted but never reported.
    if (event.kind == Kind::keyUp)
        return;
    m_listeners.each([&](const Listener &listener) { listener.heard(event); });
}

void SimulatedTap::lose()
{
    m_listeners.each([](const Listener &listener) { listener.lost(); });
}

Token SimulatedTap::listen(Heard heard, Lost lost)
{
    if (!works() || !m_permissions.granted(Permission::inputMonitoring))
        return {};
    return m_listeners.add({std::move(heard), std::move(lost)});
}

void SimulatedKeys::press(quint16 keyCode)
{
    m_watches.each([&](const Watch &watch) {
        if (watch.keyCode == keyCode)
            watch.pressed();
    });
}

Token SimulatedKeys::watch(quint16 keyCode, std::function<void()> pressed)
{
    return works() ? m_watches.add({keyCode, std::move(pressed)}) : Token();
}

SimulatedInput::SimulatedInput(EventLog &log, SimulatedClock &clock, SimulatedScreens &screens,
                               SimulatedTap &tap)
    : m_log(log)
    , m_clock(clock)
    , m_screens(screens)
    , m_tap(tap)
{}

void SimulatedInput::moveTo(QPointF point, bool held)
{
    post({held ? Kind::leftMouseDragged : Kind::mouseMoved, point});
}

void SimulatedInput::press(MouseButton button, QPointF at)
{
    post({button == MouseButton::left ? Kind::leftMouseDown : Kind::rightMouseDown, at});
}

void SimulatedInput::release(MouseButton button, QPointF at)
{
    post({button == MouseButton::left ? Kind::leftMouseUp : Kind::rightMouseUp, at});
}

void SimulatedInput::pressKey(quint16 keyCode, quint64 modifiers)
{
    constexpr quint64 known =
        Modifier::shift | Modifier::control | Modifier::option | Modifier::command;
    for (const Kind kind : {Kind::keyDown, Kind::keyUp})
        post({kind, {}, keyCode, modifiers & known});
}

std::unique_ptr<InputSynthesizer::Typing> SimulatedInput::beginTyping(const QString &)
{
    class SimulatedTyping final : public Typing {
    public:
        explicit SimulatedTyping(SimulatedInput &input) : m_input(input) {}
        void post(const QString &character) override
        {
            for (const Kind kind : {Kind::keyDown, Kind::keyUp})
                m_input.post({kind, {}, 0, 0, character});
        }

    private:
        SimulatedInput &m_input;
    };
    return std::make_unique<SimulatedTyping>(*this);
}

void SimulatedInput::post(InputEvent event)
{
    if (!works() || !std::isfinite(event.point.x()) || !std::isfinite(event.point.y()))
        return;
    event.time = m_clock.now();
    if (event.kind != Kind::keyDown && event.kind != Kind::keyUp) {
        event.point = nearest(m_screens.displays(), event.point);
        m_screens.setPointer(event.point);
    }
    m_log.add(event);
    m_tap.hear(event);
}

} // namespace velvane
