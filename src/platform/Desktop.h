#pragma once

#include "platform/AppControl.h"
#include "platform/Clock.h"
#include "platform/DesktopFact.h"
#include "platform/DesktopShell.h"
#include "platform/InputSynthesizer.h"
#include "platform/InputTap.h"
#include "platform/KeyWatcher.h"
#include "platform/Permissions.h"
#include "platform/ScreenCapture.h"
#include "platform/Screens.h"
#include "platform/WindowControl.h"

namespace velvane {

/// One machine, as this program sees it. Made and destroyed on the main thread; what its facilities
/// handed out ends before it does.
class Desktop {
public:
    /// The desktop of this session. Never null: where there is no display, or where a system cannot
    /// do something, the facility is one that refuses and says why in missing().
    static std::unique_ptr<Desktop> open();

    virtual ~Desktop() = default;
    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;

    virtual Clock &clock() = 0;
    virtual InputSynthesizer &input() = 0;
    virtual InputTap &tap() = 0;
    virtual KeyWatcher &keys() = 0;
    virtual AppControl &apps() = 0;
    virtual WindowControl &windows() = 0;
    virtual Screens &screens() = 0;
    virtual ScreenCapture &capture() = 0;
    virtual Permissions &permissions() = 0;
    virtual DesktopShell &shell() = 0;

    /// What this desktop is, for a person: "X11 display :0".
    virtual QString description() const = 0;

    /// What else is to be known of it when something does not work. Main thread.
    virtual std::vector<DesktopFact> facts() const { return {}; }

protected:
    Desktop() = default;
};

} // namespace velvane
