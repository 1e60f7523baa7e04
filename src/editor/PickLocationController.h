#pragma once

#include "editor/StatusLine.h"
#include "model/Project.h"
#include "platform/Desktop.h"

namespace velvane {

/// Lets the user point at the selected move's target on the real screen. Main thread only.
class PickLocationController : public QObject {
    Q_OBJECT
public:
    PickLocationController(Project &project, StatusLine &status, Desktop &desktop,
                           QObject *parent = nullptr);

    /// Is the selected step one with a target, and nothing missing?
    bool canPickLocation() const;
    /// Why it cannot be done here: one sentence for a tooltip; empty when it can.
    QString missing() const;

    /// Lets none start while something else goes on: the reason for missing(); empty ends it.
    void hold(const QString &reason);

    void pickLocation();

Q_SIGNALS:
    void canPickLocationChanged();

private:
    Project &m_project;
    StatusLine &m_status;
    Desktop &m_desktop;
    QString m_held;
};

} // namespace velvane
