#pragma once

#include "cli/Console.h"
#include "platform/Desktop.h"

namespace velvane::cli {

/// Records real actions until Esc, Ctrl-C or SIGTERM, appends them to the demo and saves it. The
/// outcome is one line on out; the demo is left alone when nothing was recorded. Always 0; throws
/// CommandError when it cannot begin or cannot save; the steps are then in a file that it names.
int recordDemo(const std::string &demo, Desktop &desktop, Console &console);

} // namespace velvane::cli
