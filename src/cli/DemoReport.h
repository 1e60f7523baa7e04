#pragma once

#include "cli/Json.h"
#include "model/DemoDocument.h"

#include <iosfwd>

namespace velvane::cli {

/// All of a demo and its timeline as one object; times in seconds.
Json demoJson(const DemoDocument &demo);

/// The same for a reader: settings, then a row for each step.
void printDemoTable(const DemoDocument &demo, std::ostream &out);

} // namespace velvane::cli
