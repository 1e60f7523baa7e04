#pragma once

#include "model/Project.h"

namespace velvane {

/// The one edit of a demo that is under way: a field being typed in, a drag, a run of nudges.
///
/// It becomes one undo entry when it is committed, which happens by itself before any other edit
/// and before the project's selection changes hands. Undo, redo, save, export, run and close call
/// commit() first, so that nothing typed is lost. Main thread only.
class OpenGesture : public QObject {
    Q_OBJECT
public:
    explicit OpenGesture(Project &project, QObject *parent = nullptr);

    /// Opens a gesture; one of the same name goes on, one of another name is committed first.
    void begin(const QString &name);
    /// Ends it: one undo entry if it changed anything. Nothing happens when none is open.
    void commit();

    bool isOpen() const { return !m_name.isEmpty(); }
    const QString &name() const { return m_name; }
    /// Has the open gesture changed the demo? Then there is something to undo.
    bool hasChanges() const;

Q_SIGNALS:
    void committed();

private:
    Project &m_project;
    QString m_name;
    DocState m_before;
};

} // namespace velvane
