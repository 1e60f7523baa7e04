#pragma once

#include "platform/x11/X11Connection.h"
#include "platform/x11/X11KeyboardMap.h"
#include "platform/x11/X11RecordStream.h"
#include "platform/x11/X11RootSpace.h"

#include <optional>

namespace velvane {

/// What it takes to understand an event, followed as it changes: the keyboard's map, the mouse's
/// buttons, and where the displays lie. Over a connection of its own. One thread at a time.
class X11Surroundings {
public:
    explicit X11Surroundings(const QByteArray &display);

    /// Takes notice of what has changed. Asks the server only when something has.
    void follow();

    /// The event with the button that the user's mapping makes of the one that was pressed: left
    /// and right may be exchanged.
    X11HeardEvent mapped(X11HeardEvent event) const;

    const X11RootSpace &space() const { return m_space; }

    /// The map that was in force at a server time: the present one or, when events of before its
    /// change arrive late, that before.
    X11KeyboardMap &mapAt(uint32_t milliseconds);

private:
    void selectMapChanges();
    void selectDisplayChanges();
    bool noteChanges();
    bool isDisplayChange(int type) const;
    void loadMap();
    void loadButtons();

    const X11Connection m_connection;
    const bool m_hasRandr;
    /// The events' first numbers; 0 without the extension, which is no event's.
    uint8_t m_xkbEvents = 0;
    uint8_t m_randrEvents = 0;

    X11RootSpace m_space;
    std::unique_ptr<xkb_context, decltype(&xkb_context_unref)> m_context;
    X11KeyboardMap m_map;
    X11KeyboardMap m_mapBefore;
    /// Server time since which m_map holds; nothing while it has not changed.
    std::optional<uint32_t> m_mapChanged;
    bool m_mapIsOld = false;
    /// By the number of the physical button, from 1.
    std::vector<uint8_t> m_buttons;
    bool m_buttonsAreOld = false;
    bool m_spaceIsOld = false;
};

} // namespace velvane
