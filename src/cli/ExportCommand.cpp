#include "cli/Commands.h"
#include "cli/DemoFile.h"
#include "cli/Interrupt.h"
#include "cli/ProgressBar.h"
#include "cli/Waiting.h"
#include "media/MovieError.h"
#include "render/ExportError.h"
#include "render/Exporter.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <CLI/CLI.hpp>

namespace velvane::cli {

namespace {

struct Options {
    std::string demo;
    std::string movie;
    bool verbose = false;
};

void render(const Snapshot &snap, const QString &path, Console &console, const Interrupt &interrupt)
{
    ProgressBar bar(console.err, console.interactive, Exporter::frameCount(snap), help("frames"));
    QElapsedTimer clock;
    clock.start();
    const auto progress = [&bar, &clock](double fraction) {
        bar.show(fraction, Seconds(static_cast<double>(clock.nsecsElapsed()) * 1e-9));
    };
    const auto cancelled = [&interrupt] { return interrupt.happened(); };
    Waiting::forTask(Exporter::exportTo(snap, path, progress, cancelled));
}

CommandError failure(const QString &description, const QString &detail = {})
{
    return CommandError(tr("Export failed: %1").arg(description), detail);
}

int exportMovie(const Options &options, Console &console)
{
    const DemoDocument demo = readDemo(options.demo);
    const QString path = fileName(options.movie);
    if (isDemo(path))
        throw CommandError(tr("%1: the movie would replace the demo").arg(path));
    const QString name = QFileInfo(path).fileName();
    const Interrupt interrupt;
    try {
        render(demo.project().snapshot(), path, console, interrupt);
    } catch (const ExportCancelled &) {
        console.err << printable(tr("Export cancelled; %1 holds what was done.").arg(name)) << '\n';
        return interrupt.exitStatus();
    } catch (const ExportError &error) {
        throw failure(error.description(), options.verbose ? error.reason() : QString());
    } catch (const MovieError &error) {
        throw failure(error.reason());
    }
    console.out << printable(tr("Exported to %1.").arg(name)) << '\n';
    return 0;
}

} // namespace

void addExport(CLI::App &app, Console &console, Action &chosen)
{
    const auto options = std::make_shared<Options>();
    CLI::App *command = app.add_subcommand("export", help("Render a demo to a movie"));
    command->add_option("DEMO", options->demo, help("The demo to render"))->required();
    command->add_option("MP4", options->movie, help("The movie to write"))->required();
    command->add_flag("--verbose", options->verbose,
                      help("When the export fails, print the reason on a second line"));
    command->footer(help(R"(DESCRIPTION
  Render a demo to an H.264 movie in an MPEG-4 file, of the canvas's size and
  the demo's frame rate. A file at MP4 is replaced. Progress goes to standard
  error: a bar on a terminal, otherwise a line for every tenth.

  Ctrl-C closes the movie with the frames done so far, so that it plays, and
  ends with exit status 130.

EXAMPLE
  velvane export tour.velvane tour.mp4)"));
    command->callback([&chosen, &console, options] {
        chosen = [&console, options] { return exportMovie(*options, console); };
    });
}

} // namespace velvane::cli
