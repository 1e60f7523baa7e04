#pragma once

#include <QString>

namespace velvane::FileAttributes {

/// Gives an open file what another has besides its bytes and mode: its owner and group, as far as
/// this user may give them, and its extended attributes, among them tags of file managers and
/// access lists. What cannot be given is left out. Any thread.
void copy(const QString &from, int to);

} // namespace velvane::FileAttributes
