#pragma once

#include <QObject>

namespace velvane {

/// Looks for newer versions of the program. One for all windows; main thread only.
class UpdaterController : public QObject {
    Q_OBJECT
public:
    /// The one updater; made on first use.
    static UpdaterController &shared();

    /// Looks now; the answer arrives through checked().
    void checkForUpdates();

Q_SIGNALS:
    /// What was found, in one sentence.
    void checked(const QString &message);

private:
    UpdaterController() = default;
};

} // namespace velvane
