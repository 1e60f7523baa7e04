#pragma once

#include "editor/ExportController.h"

#include <QDBusMessage>

#include <map>

namespace velvane {

/// Shows how far the program's exports are on its button in the taskbar, where the desktop has
/// such. Main thread only.
///
/// Several exports share the one bar, which shows their mean; an export that has ended counts as
/// done until all have, so that the bar does not go back.
class TaskbarProgress : public QObject {
    Q_OBJECT
public:
    /// Follows the exports of one more window, until the controller is destroyed.
    void follow(ExportController &exporting);

    /// 0 to 1; nothing while nothing is exported.
    std::optional<double> progress() const;

    /// What the desktop hears. `progress` is 0 to 1; without one the bar is taken away.
    static QDBusMessage message(std::optional<double> progress);

Q_SIGNALS:
    /// By one percent at least, or the bar came or went.
    void progressChanged();

private:
    void update(const ExportController &exporting);
    void forget(const ExportController *exporting);
    void show();

    struct Part {
        bool isRunning = false;
        double progress = 0;
    };
    /// The exports since none was running. The keys are never dereferenced.
    std::map<const ExportController *, Part> m_parts;
    /// The last that was sent; -1 while there is no bar.
    int m_percent = -1;
};

} // namespace velvane
