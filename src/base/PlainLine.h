#pragma once

#include <QString>

#include <limits>

namespace velvane {

/// The text on one line, fit to stand in a message: without what steers a terminal or turns the
/// direction of what follows, at most so many user-perceived characters and then an ellipsis.
///
/// Control characters become their pictures, e.g. ␊ and ␛, where there are any; other ones, line
/// separators, invisible format characters and halves of characters become U+FFFD. Joiners stay
/// where they continue a character, as in the emoji of a family.
QString plainLine(QStringView text, qsizetype longest = std::numeric_limits<qsizetype>::max());

/// The text in one line, in which ⏎ stands for each line break, of whatever kind. Nothing else
/// is changed.
QString withVisibleBreaks(QString text);

} // namespace velvane
