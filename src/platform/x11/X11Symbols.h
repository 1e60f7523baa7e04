#pragma once

#include <QString>

#include <vector>

#include <xkbcommon/xkbcommon.h>

namespace velvane {

/// The symbols whose keys type a text, one for each code point, in order.
///
/// Any line break is the Return key, once; other control characters are their keys where there are
/// such (Tab, Backspace, Escape, Delete) and left out where not.
std::vector<xkb_keysym_t> symbolsOf(const QString &text);

} // namespace velvane
