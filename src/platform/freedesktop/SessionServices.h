#pragma once

#include "platform/DesktopFact.h"

#include <vector>

namespace velvane {

/// The programs of the session that are asked over its message bus.
namespace SessionServices {

/// Is this service running, or would the bus start it? Waits for the bus. Main thread.
bool canBeHad(const QString &service);

/// What of the session's services this program makes use of, each with its state. Main thread.
std::vector<DesktopFact> facts();

} // namespace SessionServices

} // namespace velvane
