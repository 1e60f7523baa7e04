#pragma once

#include "capture/RunSettings.h"

namespace velvane {

/// How one live run goes.
struct RunOptions {
    bool hideOthers = false;
    RecordMode recordMode = RecordMode::off;
    bool recordCursor = true;
    /// Are there three numbers to bring the target forward in, before the first event?
    bool countdown = true;

    /// As the user keeps it in the settings.
    static RunOptions from(const RunSettings &settings)
    {
        return {.hideOthers = settings.hideOthersDuringRun(),
                .recordMode = settings.recordMode(),
                .recordCursor = settings.recordCursor()};
    }
};

} // namespace velvane
