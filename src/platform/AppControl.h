#pragma once

#include "platform/AppInfo.h"
#include "platform/Facility.h"
#include "platform/Subscription.h"

#include <QImage>

#include <functional>
#include <vector>

namespace velvane {

/// Lists applications, and brings them forward, hides and starts them.
///
/// Listing works wherever there is something to list; missing() speaks of the rest only. What
/// cannot be found or done is skipped silently. Any thread unless said otherwise.
class AppControl : public Facility {
public:
    /// What a person could start, folder by folder in the folders' order of precedence; names may
    /// come twice. Reads files: tens of milliseconds.
    virtual std::vector<AppInfo> installed() = 0;

    /// What runs now, accessories included, in the system's order.
    virtual std::vector<AppInfo> running() = 0;

    /// An application's icon for 16 × 16 points: 16·scale pixels square with that device pixel
    /// ratio. Null when it has none. Main thread.
    virtual QImage icon(const AppInfo &app, qreal scale) = 0;

    /// Brings all windows of a running application in front of all others, in their own order.
    virtual void activate(const AppInfo &app) = 0;

    /// Starts an installed application; does not wait for it.
    virtual void launch(const AppInfo &app) = 0;

    /// Takes a running application's windows off the screen.
    virtual void hide(const AppInfo &app) = 0;

    /// Calls `activated` on the main thread whenever another application becomes the active one,
    /// ours included. Null when the system cannot tell. Main thread.
    virtual Token watchActivations(std::function<void(const AppInfo &)> activated) = 0;
};

} // namespace velvane
