#pragma once

#include "model/Project.h"
#include "platform/Desktop.h"

namespace velvane {

/// Records real mouse and keyboard actions and appends them to the demo as steps. Main thread only.
class RecordActionsController : public QObject {
    Q_OBJECT
public:
    RecordActionsController(Project &project, Desktop &desktop, QObject *parent = nullptr);

    bool isRecording() const { return false; }
    /// May recording start or stop now?
    bool canRecord() const { return missing().isEmpty(); }
    /// Why it cannot be done here: one sentence for a tooltip; empty when it can.
    QString missing() const;

    /// Lets none start while something else goes on: the reason for missing(); empty ends it.
    void hold(const QString &reason);

    /// Starts, or stops while recording.
    void recordActions();

Q_SIGNALS:
    /// What the status line shall say.
    void reported(const QString &message);
    void isRecordingChanged();
    void missingChanged();

private:
    [[maybe_unused]] Project &m_project;
    Desktop &m_desktop;
    QString m_held;
};

} // namespace velvane
