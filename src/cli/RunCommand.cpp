#include "cli/Commands.h"
#include "cli/DemoFile.h"
#include "cli/DemoRun.h"

#include <CLI/CLI.hpp>

namespace velvane::cli {

namespace {

struct Options {
    std::string demo;
    std::string from;
    std::string record = "off";
    bool hideOthers = false;
    bool noCursor = false;
    bool noCountdown = false;
};

int run(const Options &options, Console &console)
{
    DemoDocument demo = readDemo(options.demo);
    const auto desktop = Desktop::open();
    DemoRun run;
    run.from = QString::fromStdString(options.from);
    run.options.hideOthers = options.hideOthers;
    run.options.recordMode = recordMode(QString::fromStdString(options.record));
    run.options.recordCursor = !options.noCursor;
    run.options.countdown = !options.noCountdown;
    return runDemo(demo, *desktop, run, console);
}

} // namespace

void addRun(CLI::App &app, Console &console, Action &chosen)
{
    const auto options = std::make_shared<Options>();
    CLI::App *command = app.add_subcommand("run", help("Perform a demo on the real desktop"));
    command->add_option("DEMO", options->demo, help("The demo to perform"))->required();
    command->add_option("--from", options->from, help("Begin with this step: an id or a number"))
        ->type_name("STEP");
    command->add_flag("--hide-others", options->hideOthers,
                      help("When switching to an application, hide all others"));
    command->add_option("--record", options->record, help("Record: off, screen or window"))
        ->type_name("MODE")
        ->check(CLI::IsMember({"off", "screen", "window"}));
    command->add_flag("--no-cursor", options->noCursor,
                      help("Leave the pointer out of the recording"));
    command->add_flag("--no-countdown", options->noCountdown, help("Begin at once"));
    command->footer(help(R"(DESCRIPTION
  Perform a demo's steps with the real mouse and keyboard, after a countdown of
  2.4 seconds. Esc stops it, whatever has the keyboard; so do Ctrl-C and
  SIGTERM. Nothing is left pressed.

  STEP is a step's id or its number, as “velvane inspect” shows them. The
  cursor then begins where the demo would have left it.

  The outcome goes to standard output, and so does the path of the movie of a
  recorded run, below it. Movies are put into Movies/Velvane in the home
  folder. With “window” what the window of the demo's one application covers
  is recorded; where there is none, or where the demo switches between
  several, the whole screen is. The exit status is 0 when the demo was
  performed to its end and 1 when it was stopped or could not begin.

EXAMPLE
  velvane run tour.velvane --from 4 --hide-others)"));
    command->callback([&chosen, &console, options] {
        chosen = [&console, options] { return run(*options, console); };
    });
}

} // namespace velvane::cli
