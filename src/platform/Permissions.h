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

/// Tells and asks for what this program is allowed to do. Main thread.
class Permissions : public Facility {
public:
    /// Is it granted now? Never shows anything.
    virtual bool granted(Permission permission) = 0;

    /// Asks the system, which may show its own prompt, and returns whether it is granted now.
    virtual bool request(Permission permission) = 0;

    /// What is withheld and how to get it, in one or two sentences; empty when granted.
    virtual QString explanation(Permission permission) = 0;

    /// Opens the system's page on which it is granted, or one that explains the remedy.
    virtual void openSettings(Permission permission) = 0;
};

} // namespace velvane
