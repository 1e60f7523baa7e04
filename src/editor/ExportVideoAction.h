#pragma once

#include <functional>

namespace velvane {

/// Starts the export of the focused demo.
struct ExportVideoAction {
    std::function<void()> run;
};

} // namespace velvane
