#include "cli/Commands.h"
#include "cli/DemoFile.h"

#include <QFileInfo>

#include <CLI/CLI.hpp>

namespace velvane::cli {

namespace {

struct Options {
    std::string demo;
    bool force = false;
};

int create(const Options &options)
{
    const QString path = fileName(options.demo);
    const QFileInfo existing(path);
    if (!options.force && (existing.exists() || existing.isSymLink()))
        throw CommandError(tr("%1: the file exists; --force replaces it").arg(path));
    writeDemo(DemoDocument().snapshot(), path);
    return 0;
}

} // namespace

void addNew(CLI::App &app, Console &, Action &chosen)
{
    const auto options = std::make_shared<Options>();
    CLI::App *command = app.add_subcommand("new", help("Write a new demo with the defaults"));
    command->add_option("DEMO", options->demo, help("The file to write, usually NAME.velvane"))
        ->required();
    command->add_flag("--force", options->force, help("Replace the file if it exists"));
    command->footer(help(R"(DESCRIPTION
  Write a new demo with the defaults: a canvas of 1280 × 800, 60 frames a
  second, the cursor in the middle, and one step that switches to no
  application yet.

EXAMPLE
  velvane new tour.velvane)"));
    command->callback([&chosen, options] { chosen = [options] { return create(*options); }; });
}

} // namespace velvane::cli
