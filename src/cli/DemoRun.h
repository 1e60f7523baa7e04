#pragma once

#include "cli/Console.h"
#include "live/RunOptions.h"
#include "model/DemoDocument.h"
#include "platform/Desktop.h"

namespace velvane::cli {

/// What a live run from the command line is asked for.
struct DemoRun {
    /// The step to begin with: its id, or its number in the step list. Empty for the first.
    QString from;
    RunOptions options;
};

/// Performs a demo on the desktop until its end, or until Esc, Ctrl-C or SIGTERM stop it. The
/// outcome is one line on out, and the movie's path another when there is one; 0 when the run went
/// to its end, else 1. Throws CommandError when it cannot begin.
int runDemo(DemoDocument &demo, Desktop &desktop, const DemoRun &run, Console &console);

} // namespace velvane::cli
