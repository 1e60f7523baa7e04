#pragma once

#include "platform/Facility.h"

namespace velvane {

/// What a user may have to grant.
enum class Permission {
    /// Post input and move other applications' windows.
    accessibility,
    /// Hear input meant for others.
    inputMonitoring,
    /// Take pictures of the screen.
    screenRecording,
};

/// The pages on which permissions are granted, for DesktopShell::open().
namespace SettingsAddress {
inline constexpr char accessibility[] =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";
inline constexpr char screenRecording[] =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_ScreenCapture";
} // namespace SettingsAddress

/// Tells and asks for what this program is allowed to do. Main thread.
class Permissions : public Facility {
public:
    /// Is it granted now? Never shows anything.
    virtual bool granted(Permission permission) = 0;

    /// Asks the system, which may show its own prompt, and returns whether it is granted now.
    virtual bool request(Permission permission) = 0;

    /// What is withheld and how to get it, in one or two sentences; empty when granted.
    virtual QString explanation(Permission permission) = 0;
};

} // namespace velvane
