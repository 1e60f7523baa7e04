#pragma once

#include "platform/InputSynthesizer.h"
#include "platform/x11/X11Poster.h"

namespace velvane {

/// Posts through XTest. Connects, and starts its watchdog, with the first event.
class X11InputSynthesizer final : public InputSynthesizer {
public:
    /// `connection` answers missing(); `display` names the same server.
    X11InputSynthesizer(const X11Connection &connection, QByteArray display, bool inWaylandSession,
                        X11PostedKeys &posted);

    QString missing() const override;
    void moveTo(QPointF point, bool held) override;
    void press(MouseButton button, QPointF at) override;
    void release(MouseButton button, QPointF at) override;
    void pressKey(quint16 keyCode, quint64 modifiers) override;
    std::unique_ptr<Typing> beginTyping(const QString &text) override;

    /// Why nothing can be posted; empty when it can.
    static QString explain(bool hasServer, bool inWaylandSession, bool hasXTest, bool hasWatchdog);

private:
    X11Poster *poster();
    void button(MouseButton button, bool down, QPointF at);

    const X11Connection &m_connection;
    const QByteArray m_display;
    const bool m_inWaylandSession;
    X11PostedKeys &m_posted;
    std::unique_ptr<X11Poster> m_poster;
};

} // namespace velvane
