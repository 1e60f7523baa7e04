#pragma once

#include "platform/KeyWatcher.h"
#include "platform/x11/X11Listener.h"

namespace velvane {

/// Watches keys by their place on the keyboard, on the listening thread.
class X11KeyWatcher final : public KeyWatcher {
public:
    explicit X11KeyWatcher(X11Listener &listener) : m_listener(listener) {}

    QString missing() const override { return m_listener.missing(); }
    Token watch(quint16 keyCode, std::function<void()> pressed) override;

private:
    X11Listener &m_listener;
};

} // namespace velvane
