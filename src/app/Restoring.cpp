#include "app/Restoring.h"

#include "app/Autosave.h"

namespace velvane {

Restoring::Restoring(Autosave &autosave, const QString &folder)
    : m_autosave(autosave)
    , m_left(KeptSession::left(folder))
{}

Restoring::~Restoring()
{
    delete m_panel;
}

void Restoring::reopen()
{
    for (const KeptSession::Ptr &session : m_left) {
        if (!session->hasEnded())
            continue;
        const QList<KeptDemo> demos = session->demos();
        for (const KeptDemo &demo : demos)
            m_autosave.restore(demo, *session);
    }
    std::erase_if(m_left, std::mem_fn(&KeptSession::hasEnded));
}

QList<KeptDemo> Restoring::unsaved() const
{
    QList<KeptDemo> demos;
    for (const KeptSession::Ptr &session : m_left)
        demos += session->demos();
    demos.removeIf([](const KeptDemo &demo) { return !demo.demo; });
    return demos;
}

bool Restoring::offer(QWidget *over)
{
    const QList<KeptDemo> demos = unsaved();
    if (demos.isEmpty()) {
        m_left.clear();
        return false;
    }
    m_panel = new RestorePanel(demos, over);
    connect(m_panel, &RestorePanel::answered, this, &Restoring::onAnswer);
    m_panel->open();
    m_panel->activateWindow();
    return true;
}

void Restoring::onAnswer(RestorePanel::Answer answer)
{
    const QList<QUuid> checked = m_panel->checked();
    for (const KeptSession::Ptr &session : m_left) {
        const QList<KeptDemo> demos = session->demos();
        for (const KeptDemo &demo : demos) {
            if (!checked.contains(demo.id))
                continue;
            if (answer == RestorePanel::Answer::restore)
                m_autosave.restore(demo, *session);
            else if (answer == RestorePanel::Answer::discard)
                session->forget(demo.id);
        }
    }
    // What is left is free for the next process that starts.
    m_left.clear();
    Q_EMIT answered();
}

} // namespace velvane
