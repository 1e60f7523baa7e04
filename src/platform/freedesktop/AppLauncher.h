#pragma once

#include "platform/freedesktop/DesktopEntry.h"

#include <QProcessEnvironment>

#include <functional>

namespace velvane {

/// Starts applications by their .desktop entries.
class AppLauncher {
public:
    /// What is started gets this environment.
    explicit AppLauncher(QProcessEnvironment environment);

    /// Starts an application, by D-Bus where its entry says so and the session has a bus, else by
    /// its command line. Waits for nothing; a start that fails is silent. Any thread.
    void launch(const DesktopEntry &entry) const;

    /// The command in a terminal; the command itself where there is no terminal that is known.
    /// `find` gives the path of a program, or nothing.
    static QStringList inTerminal(const QStringList &command,
                                  const std::function<QString(const QString &)> &find);

private:
    const QProcessEnvironment m_environment;
};

} // namespace velvane
