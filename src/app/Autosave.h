#pragma once

#include "model/DocState.h"
#include "model/KeptSession.h"

#include <QCoroTask>
#include <QObject>
#include <QTimer>

#include <map>

namespace velvane {

class Documents;
class EditorWindow;

/// Keeps the changes of every open demo that are not saved, outside its file, so that no end of the
/// program loses more than half a minute of work. Main thread only; the demos are written in the
/// background.
///
/// What is saved, or closed without saving, is kept no longer, so that an orderly exit leaves
/// nothing. After keepAll() the demos stay, whatever is closed then.
class Autosave : public QObject {
    Q_OBJECT
public:
    /// Keeps them in a session of its own in this folder. Borrows the documents.
    Autosave(Documents &documents, const QString &folder);
    ~Autosave() override;

    /// Keeps what has changed since it was last kept. A timer calls it.
    void tick();

    /// Keeps every open demo at once, before the program ends in order: the next start opens them
    /// again without a question. False when one that has changes cannot be kept.
    bool keepAll();
    /// Has keepAll() been called, and nothing happened since?
    bool hasEnded() const { return m_hasEnded; }

    /// Opens a demo that an earlier process has kept, and keeps it here from now on. One without
    /// changes of its own is opened from its file. False when that cannot be read any more.
    bool restore(const KeptDemo &demo, KeptSession &from);

Q_SIGNALS:
    /// Nothing is on its way to the disk any more.
    void atRest();

private:
    /// What is kept of the demo in a window.
    struct Kept {
        QUuid id = QUuid::createUuid();
        int turn = 0; ///< how often it was given to the disk
        /// As it was last given to the disk; nothing when that failed.
        std::optional<DocState> state;
    };

    void follow();
    void onDocumentChanged(EditorWindow *window);
    void goOn();
    void forget(Kept &kept);
    bool isKept(const Kept &kept, const DocState &state) const;
    static KeptDemo recordOf(const EditorWindow &window, const Kept &kept);
    QCoro::Task<> keep(EditorWindow *window, DocState state);
    EditorWindow *open(const KeptDemo &demo);

    Documents &m_documents;
    /// Shared with writing in the background, which may outlive this.
    std::shared_ptr<KeptSession> m_session;
    std::map<EditorWindow *, Kept> m_kept;
    QTimer m_timer;
    int m_writing = 0;
    bool m_hasEnded = false;
};

} // namespace velvane
