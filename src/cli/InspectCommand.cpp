#include "cli/Commands.h"
#include "cli/DemoFile.h"
#include "cli/DemoReport.h"

#include <CLI/CLI.hpp>

namespace velvane::cli {

namespace {

struct Options {
    std::string demo;
    bool json = false;
};

int inspect(const Options &options, Console &console)
{
    const DemoDocument demo = readDemo(options.demo);
    if (options.json)
        console.out << demoJson(demo).dump(2) << '\n';
    else
        printDemoTable(demo, console.out);
    return 0;
}

} // namespace

void addInspect(CLI::App &app, Console &console, Action &chosen)
{
    const auto options = std::make_shared<Options>();
    CLI::App *command =
        app.add_subcommand("inspect", help("Show what a demo holds and when it happens"));
    command->add_option("DEMO", options->demo, help("The demo to show"))->required();
    command->add_flag("--json", options->json, help("Print one JSON object instead of a table"));
    command->footer(help(R"(DESCRIPTION
  Show a demo: its settings, its steps as the step list has them, and when
  each begins and ends. Times are seconds.

JSON
  version, fps, canvasSize [width, height], startPoint [x, y], hasBackground,
  hasRecording, total, steps, segments.
  A step: id, kind, point [x, y], text, duration, pauseAfter, keyCode,
  modifiers, centerWindow, collapsed, recordedOffset or null, number or null,
  summary, shortcutDisplay, visible.
  A segment: step (index in steps), id, start, end, actionDuration, startPos,
  endPos, heldEntering.

EXAMPLE
  velvane inspect tour.velvane --json | jq .total)"));
    command->callback([&chosen, &console, options] {
        chosen = [&console, options] { return inspect(*options, console); };
    });
}

} // namespace velvane::cli
