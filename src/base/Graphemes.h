#pragma once

#include <QString>
#include <QStringList>

namespace velvane {

/// User-perceived characters: what one press of the backspace key is expected to remove.
namespace Graphemes {

/// How many characters the text has.
qsizetype count(const QString &text);

/// The first `n` characters; the whole text when it has fewer, empty when n <= 0.
QString prefix(const QString &text, qsizetype n);

/// The characters one by one.
QStringList split(const QString &text);

} // namespace Graphemes

} // namespace velvane
