#pragma once

#include "live/Pace.h"

namespace velvane::Live {

/// Types a text into whatever has the keyboard: one press for each user-perceived character, evenly
/// spread over the duration, but 0.02 to 0.09 s apart. The end of the run stops it between two
/// characters. An empty text takes the duration too. Worker only.
void typeString(InputSynthesizer &input, const QString &text, Seconds over, Pace &pace);

} // namespace velvane::Live
