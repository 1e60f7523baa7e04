#pragma once

#include "model/ProjectFile.h"

namespace velvane::cli {

/// Writes a demo that cannot go to its own file to a new one beside that, or else to the user's
/// folder of states. Returns the new file's path; nothing when no place takes it. Nothing throws.
std::optional<QString> rescueDemo(const ProjectFile &file, const QString &path);

} // namespace velvane::cli
