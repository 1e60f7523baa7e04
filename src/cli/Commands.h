#pragma once

#include "cli/Console.h"

#include <functional>

namespace CLI {
class App;
}

namespace velvane::cli {

/// What the chosen subcommand does: returns its exit status; throws CommandError.
using Action = std::function<int()>;

/// Each adds one subcommand to the parser. When the user names it, `chosen` becomes its action,
/// which runs once the application object exists.
void addNew(CLI::App &app, Console &console, Action &chosen);
void addInspect(CLI::App &app, Console &console, Action &chosen);
void addState(CLI::App &app, Console &console, Action &chosen);
void addFrame(CLI::App &app, Console &console, Action &chosen);
void addExport(CLI::App &app, Console &console, Action &chosen);
void addConvert(CLI::App &app, Console &console, Action &chosen);
void addRun(CLI::App &app, Console &console, Action &chosen);
void addRecord(CLI::App &app, Console &console, Action &chosen);
void addDoctor(CLI::App &app, Console &console, Action &chosen);

} // namespace velvane::cli
