#pragma once

#include "cli/Console.h"
#include "model/DemoDocument.h"
#include "model/ProjectFile.h"

namespace velvane::cli {

/// Reads a demo; throws CommandError with the file's name before the reason.
DemoDocument readDemo(const std::string &path);

/// The same without decoding the backdrop.
ProjectFile readRecord(const std::string &path);

/// Would something else that is written to this path take the place of a demo?
bool isDemo(const QString &path);

/// Writes a demo; throws CommandError with the file's name before the reason.
void writeDemo(const ProjectFile &file, const QString &path);

} // namespace velvane::cli
