#pragma once

#include <QString>
#include <QStringList>

namespace velvane {

/// The languages that the program speaks. Texts are looked up by their English text alone, whatever
/// class shows them, so that one catalogue of each language serves the whole program.
///
/// Main thread only, but for text().
namespace Languages {

/// The codes, e.g. "de" and "zh_CN", in alphabetical order; "en", the texts' own, is one of them.
QStringList available();

/// The first of the wished languages that is available, "en" if none is. Wishes are names of
/// languages or locales as systems write them: "de_AT.UTF-8", "pt-BR", "C".
QString best(const QStringList &wishes);

/// What "--lang CODE" or "--lang=CODE" among a program's arguments asks for; empty for neither.
/// Texts are needed before the arguments can be understood.
QString asked(int argc, const char *const *argv);

/// Chooses a language: `code` if that is available, else the best for the system's wishes, of which
/// LANGUAGE comes first. Needs no application object; until then everything is English.
void choose(const QString &code = {});
/// The code of the chosen one.
QString chosen();

/// Gives the application its texts, Qt's own among them, and, unless the language is the system's
/// choice, its numbers and dates. Once for each application object.
void install();

/// A text in the chosen language. For texts that are needed before there is an application, which
/// QCoreApplication::translate() serves afterwards. Thread-safe once a language is chosen.
QString text(const char *english);

} // namespace Languages

} // namespace velvane
