#include "cli/Commands.h"
#include "cli/DemoFile.h"

#include <CLI/CLI.hpp>

namespace velvane::cli {

namespace {

struct Options {
    std::string in;
    std::string out;
};

int convert(const Options &options)
{
    writeDemo(readRecord(options.in), fileName(options.out));
    return 0;
}

} // namespace

void addConvert(CLI::App &app, Console &, Action &chosen)
{
    const auto options = std::make_shared<Options>();
    CLI::App *command = app.add_subcommand(
        "convert", help("Write a demo in the binary format, from binary or XML"));
    command->add_option("IN", options->in, help("The demo to read"))->required();
    command->add_option("OUT", options->out, help("The file to write; an existing one is replaced"))
        ->required();
    command->footer(help(R"(DESCRIPTION
  Read a demo, as a binary or an XML property list, and write it in the
  binary format. Keys that no demo has are left out. OUT is written whole or
  not at all, so it may be IN.

EXAMPLE
  velvane convert tour.xml tour.velvane)"));
    command->callback([&chosen, options] { chosen = [options] { return convert(*options); }; });
}

} // namespace velvane::cli
