#pragma once

#include "app/RestorePanel.h"
#include "model/KeptSession.h"

#include <QPointer>

namespace velvane {

class Autosave;

/// Brings back, when the program starts, what earlier processes have kept. Main thread only.
///
/// What a process kept that ended in order is opened again without a question; about what one left
/// that crashed or was killed the user is asked.
class Restoring : public QObject {
    Q_OBJECT
public:
    /// Looks for them in this folder. Borrows what opens the demos.
    Restoring(Autosave &autosave, const QString &folder);
    ~Restoring() override;

    /// Opens the demos of processes that ended in order.
    void reopen();
    /// Asks about the others, over a window or, when that is null, on its own. False when there
    /// are none.
    bool offer(QWidget *over);

    /// The question that is open, or null.
    RestorePanel *panel() const { return m_panel; }

Q_SIGNALS:
    /// The question has been answered, and the demos that were chosen are open.
    void answered();

private:
    QList<KeptDemo> unsaved() const;
    void onAnswer(RestorePanel::Answer answer);

    Autosave &m_autosave;
    std::vector<KeptSession::Ptr> m_left;
    QPointer<RestorePanel> m_panel;
};

} // namespace velvane
