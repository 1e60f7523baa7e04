#pragma once

#include <QString>

namespace velvane {

/// Text of a file as part of a message: on one line, at most so many characters and an ellipsis.
QString excerpt(QStringView text, qsizetype longest = 40);

} // namespace velvane
