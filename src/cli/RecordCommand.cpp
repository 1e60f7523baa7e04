#include "cli/Commands.h"
#include "cli/DemoRecord.h"

#include <CLI/CLI.hpp>

namespace velvane::cli {

void addRecord(CLI::App &app, Console &console, Action &chosen)
{
    const auto demo = std::make_shared<std::string>();
    CLI::App *command =
        app.add_subcommand("record", help("Record real mouse and keyboard actions into a demo"));
    command->add_option("DEMO", *demo, help("The demo that the steps are appended to"))->required();
    command->footer(help(R"(DESCRIPTION
  Record what is done with the mouse and the keyboard, after a countdown of
  2.1 seconds, until Esc is pressed, whatever has the keyboard; Ctrl-C and
  SIGTERM end it too. Nothing is kept from the programs in use. The steps are
  appended to the demo, and the demo is saved.

  The outcome goes to standard output. The exit status is 0, also when nothing
  was recorded and the demo is left as it was, and 1 when it could not begin or
  the demo could not be saved.

EXAMPLE
  velvane new tour.velvane && velvane record tour.velvane)"));
    command->callback([&chosen, &console, demo] {
        chosen = [&console, demo] {
            const auto desktop = Desktop::open();
            return recordDemo(*demo, *desktop, console);
        };
    });
}

} // namespace velvane::cli
