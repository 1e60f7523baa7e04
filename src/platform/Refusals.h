#pragma once

#include "platform/Desktop.h"

namespace velvane {

/// What a system cannot do: each class answers with nothing and says why in missing().
namespace Refusals {

/// Adds the reason to a facility.
template <typename Interface>
class Refusing : public Interface {
public:
    explicit Refusing(QString reason) : m_reason(std::move(reason)) {}
    QString missing() const override { return m_reason; }

private:
    const QString m_reason;
};

class Input final : public Refusing<InputSynthesizer> {
public:
    using Refusing::Refusing;
    void moveTo(QPointF, bool) override {}
    void press(MouseButton, QPointF) override {}
    void release(MouseButton, QPointF) override {}
    void pressKey(quint16, quint64) override {}
    std::unique_ptr<Typing> beginTyping(const QString &) override
    {
        struct Silent final : Typing {
            void post(const QString &) override {}
        };
        return std::make_unique<Silent>();
    }
};

class Tap final : public Refusing<InputTap> {
public:
    using Refusing::Refusing;
    Token listen(Heard, Lost) override { return {}; }
};

class Keys final : public Refusing<KeyWatcher> {
public:
    using Refusing::Refusing;
    Token watch(quint16, std::function<void()>) override { return {}; }
};

class Capture final : public Refusing<ScreenCapture> {
public:
    using Refusing::Refusing;
    CaptureOpening open(const CaptureRequest &, Captured, Ended) override
    {
        return {nullptr, missing()};
    }
};

} // namespace Refusals

} // namespace velvane
