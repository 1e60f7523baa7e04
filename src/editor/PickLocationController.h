#pragma once

#include "capture/LocationPicker.h"
#include "editor/StatusLine.h"
#include "model/Project.h"

namespace velvane {

/// Lets the user point at a move's target on the real screen. Main thread only.
class PickLocationController : public QObject {
    Q_OBJECT
public:
    PickLocationController(Project &project, StatusLine &status, Desktop &desktop,
                           QObject *parent = nullptr);

    /// Is the selected step one with a target, and nothing missing?
    bool canPickLocation() const;
    /// Why it cannot be done here: one sentence for a tooltip; empty when it can.
    QString missing() const;

    /// Lets none start while something else goes on, and drops one in progress: the reason for
    /// missing(); empty ends it.
    void hold(const QString &reason);

    /// Counts down, then sets the selected move's target; what is selected by then plays no part.
    /// Says why when it cannot.
    void pickLocation();
    /// The same for a step by its id. It is left alone when it has gone by then.
    void pickLocation(const QUuid &of);

    LocationPicker &locationPicker() { return m_locationPicker; }

Q_SIGNALS:
    void canPickLocationChanged();

private:
    void setTarget(const QUuid &of, QPointF place);

    Project &m_project;
    StatusLine &m_status;
    Desktop &m_desktop;
    LocationPicker m_locationPicker;
    QString m_held;
};

} // namespace velvane
