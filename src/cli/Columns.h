#pragma once

#include <QString>

namespace velvane::cli {

/// Text in a table's columns. Widths are those that a terminal draws: two for a character of East
/// Asian writing, one for most others.
namespace Columns {

int width(const QString &text);
/// The text, or as many of its characters as leave room for an ellipsis, within a width.
QString cut(const QString &text, int columns);
/// The text with blanks behind it, or before it, up to a width; longer text stays as it is.
QString left(const QString &text, int columns);
QString right(const QString &text, int columns);

} // namespace Columns

} // namespace velvane::cli
