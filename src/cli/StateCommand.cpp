#include "cli/Commands.h"
#include "cli/DemoFile.h"
#include "cli/Json.h"
#include "cli/Validators.h"
#include "timeline/Timeline.h"

#include <CLI/CLI.hpp>

namespace velvane::cli {

namespace {

struct Options {
    std::string demo;
    std::vector<double> at;
    std::optional<double> videoDuration;
};

Json stateJson(const Timeline &timeline, Seconds at, std::optional<double> videoDuration)
{
    const FrameState state = timeline.state(at);
    std::optional<Seconds> video;
    if (videoDuration)
        video = timeline.videoTime(at, Seconds(*videoDuration));
    return {{"time", at.count()},
            {"cursor", json(state.cursor)},
            {"ripple", jsonOr(state.ripple, [](double r) { return r; })},
            {"press", state.press},
            {"held", state.held},
            {"caption", jsonOr(state.caption, [](const QString &text) { return json(text); })},
            {"videoTime", jsonOr(video, [](Seconds s) { return s.count(); })}};
}

int printStates(const Options &options, Console &console)
{
    const DemoDocument demo = readDemo(options.demo);
    const Timeline timeline(demo.project().snapshot());
    Json states = Json::array();
    for (const double at : options.at)
        states.push_back(stateJson(timeline, Seconds(at), options.videoDuration));
    console.out << states.dump(2) << '\n';
    return 0;
}

} // namespace

void addState(CLI::App &app, Console &console, Action &chosen)
{
    const auto options = std::make_shared<Options>();
    CLI::App *command =
        app.add_subcommand("state", help("Show what a demo shows at given moments"));
    command->add_option("DEMO", options->demo, help("The demo"))->required();
    command
        ->add_option("--at", options->at, help("A moment in seconds; may be given several times"))
        ->required()
        ->allow_extra_args(false)
        ->type_name("T")
        ->check(isFinite());
    command
        ->add_option(
            "--video-duration", options->videoDuration,
            help("Length in seconds of the movie recorded with the steps; gives videoTime"))
        ->type_name("D")
        ->check(isFinite());
    command->footer(help(R"(DESCRIPTION
  Print what a demo shows at given moments, as a JSON array with an object
  for each moment: time, cursor [x, y], ripple or null, press, held, caption or
  null, videoTime or null. Moments outside the demo show its first or its last
  instant.

EXAMPLE
  velvane state tour.velvane --at 0 --at 2.5)"));
    command->callback([&chosen, &console, options] {
        chosen = [&console, options] { return printStates(*options, console); };
    });
}

} // namespace velvane::cli
