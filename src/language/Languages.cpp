#include "language/Languages.h"

#include "language/Catalogue.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>

namespace velvane::Languages {

namespace {

const QString english = QStringLiteral("en");
const QString folder = QStringLiteral(":/translations");

/// The language in use. There is one for all, as there is one for each process.
struct Choice {
    QString code = english;
    bool isAsked = false;
    Catalogue catalogue;
};

Choice &choice()
{
    static Choice choice;
    return choice;
}

// The language's and the country's part of a name like "zh_Hans_CN.UTF-8@x".
QLocale localeOf(const QString &wish)
{
    return QLocale(wish.section(u'.', 0, 0).section(u'@', 0, 0));
}

bool serves(const QString &code, const QLocale &wish)
{
    const QLocale locale(code);
    // Chinese is written in two ways; the same words will not do for both.
    return locale.language() == wish.language() && locale.script() == wish.script();
}

} // namespace

QStringList available()
{
    QStringList codes{english};
    for (const QString &file : QDir(folder).entryList({QStringLiteral("*.qm")}))
        codes << file.section(u'.', 0, 0).section(u'_', 1);
    codes.sort();
    return codes;
}

QString best(const QStringList &wishes)
{
    const QStringList codes = available();
    for (const QString &wish : wishes) {
        const QLocale locale = localeOf(wish);
        for (const QString &code : codes)
            if (serves(code, locale))
                return code;
    }
    return english;
}

QString asked(int argc, const char *const *argv)
{
    const QByteArray option = "--lang";
    const QByteArray assigning = option + "=";
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument = argv[i];
        if (argument == option)
            return i + 1 < argc ? QString::fromLocal8Bit(argv[i + 1]) : QString();
        if (argument.startsWith(assigning))
            return QString::fromLocal8Bit(argument.sliced(assigning.size()));
    }
    return {};
}

void choose(const QString &code)
{
    Choice &now = choice();
    now.isAsked = available().contains(code);
    if (now.isAsked) {
        now.code = code;
    } else {
        const QStringList wishes = qEnvironmentVariable("LANGUAGE").split(u':', Qt::SkipEmptyParts)
                                   + QLocale::system().uiLanguages();
        now.code = best(wishes);
    }
    now.catalogue.use(folder + QStringLiteral("/velvane_") + now.code);
}

QString chosen()
{
    return choice().code;
}

void install()
{
    Choice &now = choice();
    if (now.isAsked)
        QLocale::setDefault(QLocale(now.code));
    if (now.code == english)
        return;
    QCoreApplication::installTranslator(
        new Catalogue(folder + QStringLiteral("/velvane_") + now.code, qApp));
    // The last one is asked first: Qt's own words mean other things than ours of the same English,
    // the type of a file for one. It knows only its own classes.
    auto *qt = new QTranslator(qApp);
    if (qt->load(QStringLiteral("qtbase_") + now.code,
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
}

QString text(const char *english)
{
    const QString translated = choice().catalogue.translate("", english);
    return translated.isEmpty() ? QString::fromUtf8(english) : translated;
}

} // namespace velvane::Languages
