#include "platform/x11/X11InputSynthesizer.h"

#include "platform/x11/X11KeyCode.h"
#include "platform/x11/X11Typing.h"

#include <QCoreApplication>

namespace velvane {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("X11InputSynthesizer", text);
}

class NoTyping final : public InputSynthesizer::Typing {
public:
    void post(const QString &) override {}
};

} // namespace

X11InputSynthesizer::X11InputSynthesizer(const X11Connection &connection, QByteArray display,
                                         bool inWaylandSession, X11PostedKeys &posted)
    : m_connection(connection)
    , m_display(std::move(display))
    , m_inWaylandSession(inWaylandSession)
    , m_posted(posted)
{}

QString X11InputSynthesizer::explain(bool hasServer, bool inWaylandSession, bool hasXTest,
                                     bool hasWatchdog)
{
    if (!hasServer)
        return tr("There is no display.");
    if (inWaylandSession)
        return tr("In a Wayland session only programs that use X11 could be driven: "
                  "log in with an X11 session instead.");
    if (!hasXTest)
        return tr("This X server lets no program post input: it lacks the XTEST extension.");
    if (!hasWatchdog)
        return tr("velvane-watchdog, which releases what is held if Velvane ends, is missing: "
                  "install Velvane again.");
    return {};
}

QString X11InputSynthesizer::missing() const
{
    return explain(m_connection.isOpen(), m_inWaylandSession, m_connection.hasExtension("XTEST"),
                   !X11Watchdog::program().isEmpty());
}

void X11InputSynthesizer::moveTo(QPointF point, bool held)
{
    X11Poster *const to = poster();
    const auto pixel = to ? to->space().pixel(point) : std::nullopt;
    if (!pixel)
        return;
    // To the server a drag is a move while a button is pressed, which a click may have let go.
    if (held)
        to->drag(*pixel);
    else
        to->move(*pixel);
}

void X11InputSynthesizer::press(MouseButton button, QPointF at)
{
    this->button(button, true, at);
}

void X11InputSynthesizer::release(MouseButton button, QPointF at)
{
    this->button(button, false, at);
}

void X11InputSynthesizer::pressKey(quint16 keyCode, quint64 modifiers)
{
    const std::optional<xcb_keycode_t> key = X11KeyCode::ofStored(keyCode);
    X11Poster *const to = key ? poster() : nullptr;
    const auto layout = to ? X11KeyMap::read(to->connection()) : std::nullopt;
    if (!layout)
        return;
    KeyChord chord = layout->modifierKeys(modifiers);
    chord.push_back(*key);
    to->tap(chord);
}

std::unique_ptr<InputSynthesizer::Typing> X11InputSynthesizer::beginTyping(const QString &text)
{
    if (X11Poster *const to = poster())
        return std::make_unique<X11Typing>(*to, text);
    return std::make_unique<NoTyping>();
}

X11Poster *X11InputSynthesizer::poster()
{
    if (!m_poster && missing().isEmpty())
        m_poster = std::make_unique<X11Poster>(m_display, m_posted);
    return m_poster && m_poster->connection().isOpen() ? m_poster.get() : nullptr;
}

void X11InputSynthesizer::button(MouseButton button, bool down, QPointF at)
{
    X11Poster *const to = poster();
    if (!to)
        return;
    const xcb_button_t number =
        button == MouseButton::left ? XCB_BUTTON_INDEX_1 : XCB_BUTTON_INDEX_3;
    if (const auto pixel = to->space().pixel(at))
        to->button(number, down, *pixel);
}

} // namespace velvane
