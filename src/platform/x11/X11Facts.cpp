#include "platform/x11/X11Facts.h"

#include "platform/x11/X11Property.h"

#include <QCoreApplication>

namespace velvane::X11Facts {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("X11Facts", text);
}

QString joined(const QList<QByteArray> &names)
{
    return QString::fromLatin1(names.join(", "));
}

// `loss`: what does not work without these extensions, the rest of a sentence.
DesktopFact extensions(const X11Connection &connection, const QString &what,
                       const QList<QByteArray> &names, const QString &loss)
{
    QList<QByteArray> lacking = names;
    lacking.removeIf([&](const QByteArray &name) { return connection.hasExtension(name); });
    if (lacking.isEmpty())
        return {what, joined(names), {}};
    return {what, tr("lacks %1").arg(joined(lacking)),
            tr("Enable %1 in the X server: without it %2.").arg(joined(lacking), loss)};
}

DesktopFact keyboard(const X11Connection &connection)
{
    const QString what = tr("Keyboard");
    if (!connection.hasExtension("XKEYBOARD"))
        return {what, tr("cannot be read"),
                tr("Enable XKEYBOARD in the X server: without it nothing is typed as written.")};
    // Rules, model, layouts, variants, options.
    const QStringList rules =
        X11Property(connection, connection.root(), "_XKB_RULES_NAMES").texts();
    const QString layouts = rules.value(2);
    return {what, layouts.isEmpty() ? tr("layout not named") : tr("layout %1").arg(layouts), {}};
}

} // namespace

std::vector<DesktopFact> of(const X11Connection &connection)
{
    if (!connection.isOpen())
        return {};
    return {
        extensions(connection, tr("Posting"), {"XTEST"}, tr("nothing is clicked or typed")),
        extensions(connection, tr("Listening"), {"RECORD"},
                   tr("actions are not heard and Esc does not stop a run")),
        extensions(connection, tr("Pictures"), {"Composite", "DAMAGE", "RENDER", "SHAPE", "XFIXES"},
                   tr("the screen is neither shown nor recorded")),
        extensions(connection, tr("Fast pictures"), {"MIT-SHM"},
                   tr("pictures of the screen come slowly")),
        extensions(connection, tr("Displays"), {"RANDR"}, tr("several displays are taken for one")),
        keyboard(connection),
    };
}

} // namespace velvane::X11Facts
