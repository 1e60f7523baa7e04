#include "cli/RescuedDemo.h"

#include "model/DemoDocument.h"

#include <QDir>
#include <QFileInfo>

namespace velvane::cli {

namespace {

// Of names that are taken.
constexpr int mostTries = 1000;

QString stateFolder()
{
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(state))
        state = QDir::homePath() + QStringLiteral("/.local/state");
    return state + QStringLiteral("/velvane/recorded");
}

// "tour recorded.velvane", "tour recorded 2.velvane" and so on; empty when all are taken.
QString freeName(const QString &folder, const QFileInfo &demo)
{
    const QString start = folder + u'/' + demo.completeBaseName() + QStringLiteral(" recorded");
    for (int n = 1; n <= mostTries; ++n) {
        const QString number = n == 1 ? QString() : QStringLiteral(" %1").arg(n);
        const QString name = start + number + u'.' + demo.suffix();
        if (!QFileInfo(name).isSymLink() && !QFileInfo::exists(name))
            return name;
    }
    return {};
}

} // namespace

std::optional<QString> rescueDemo(const ProjectFile &file, const QString &path)
{
    const QFileInfo demo(path);
    const QString state = stateFolder();
    for (const QString &folder : {demo.absolutePath(), state}) {
        if (folder == state)
            QDir().mkpath(folder); // where this fails, so does writing
        const QString name = freeName(folder, demo);
        if (!name.isEmpty() && !DemoDocument::write(file, name))
            return name;
    }
    return {};
}

} // namespace velvane::cli
