#pragma once

#include "platform/InputEvent.h"
#include "platform/x11/X11Composer.h"
#include "platform/x11/X11KeyboardMap.h"
#include "platform/x11/X11RecordStream.h"
#include "platform/x11/X11RootSpace.h"

#include <optional>

namespace velvane {

/// Makes input events of what the server tells. Remembers a composed character's keys so far.
class X11EventReader {
public:
    /// `locale` decides which sequences compose.
    explicit X11EventReader(const QByteArray &locale) : m_composer(locale) {}

    /// The event, with its place as a point of `space` and with the text that the key types
    /// under `map`; `time` is left 0. Nothing for releases of keys, for wheels and other
    /// buttons and motion while one of these is held, for modifier keys, and for keys that begin
    /// or continue a composed character: the key that completes it carries the text.
    std::optional<InputEvent> read(const X11HeardEvent &event, const X11RootSpace &space,
                                   X11KeyboardMap &map);

private:
    std::optional<QString> textOf(const X11HeardEvent &event, X11KeyboardMap &map);

    X11Composer m_composer;
};

} // namespace velvane
