#pragma once

#include "platform/Facility.h"

#include <QPointF>

#include <memory>

namespace velvane {

enum class MouseButton { left, right };

/// Posts input as if the hardware had sent it. Any one thread at a time.
///
/// Points are relative to the primary display's top left; those outside every display end at the
/// nearest edge, not finite ones are skipped. What cannot be posted is skipped silently. Whatever
/// this object has pressed is released when it or its process ends.
class InputSynthesizer : public Facility {
public:
    /// Types the characters of one text.
    ///
    /// Preparing may change the keyboard's map for the characters no key has; destroying it brings
    /// the map back. Both may block for a few tenths of a second.
    class Typing {
    public:
        virtual ~Typing() = default;

        /// Presses and releases whatever yields the character: one user-perceived character of the
        /// text, in the text's order.
        virtual void post(const QString &character) = 0;
    };

    /// Puts the pointer at a point and says so to what lies there: as a drag of the left button
    /// when `held`, though a click has let it go, else as a plain move.
    virtual void moveTo(QPointF point, bool held) = 0;

    /// Presses or releases a button with the pointer at a point.
    virtual void press(MouseButton button, QPointF at) = 0;
    virtual void release(MouseButton button, QPointF at) = 0;

    /// Presses and releases the key with a stored number while the Modifier bits are held; other
    /// bits are dropped.
    virtual void pressKey(quint16 keyCode, quint64 modifiers) = 0;

    /// Makes ready to type a text. Never null. One at a time.
    virtual std::unique_ptr<Typing> beginTyping(const QString &text) = 0;
};

} // namespace velvane
