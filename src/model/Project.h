#pragma once

#include "model/DocState.h"
#include "model/Snapshot.h"

#include <QObject>
#include <QPointer>
#include <QUndoStack>

#include <functional>

namespace velvane {

struct ProjectFile;

/// One open demo: observable, edited with undo. Main thread only.
///
/// Setters announce a change with willChange() before it happens and with the field's own signal
/// afterwards; setting an equal value does neither. Setters register no undo: edits go through
/// edit(), or through beginEdit() and commitEdit() when one gesture makes many changes.
class Project : public QObject {
    Q_OBJECT
public:
    /// A new demo: one step that switches to no application yet, canvas 1280 × 800, 60 fps.
    explicit Project(QObject *parent = nullptr);
    /// The demo of a file. A background that is no picture is left out.
    explicit Project(const ProjectFile &file, QObject *parent = nullptr);

    const QList<Step> &steps() const { return m_state.steps; }
    void setSteps(const QList<Step> &steps);
    /// The selected step; it need not exist any more.
    std::optional<QUuid> selection() const { return m_selection; }
    void setSelection(std::optional<QUuid> selection);
    QSizeF canvasSize() const { return m_state.canvasSize; }
    void setCanvasSize(QSizeF size);
    QPointF startPoint() const { return m_state.startPoint; }
    void setStartPoint(QPointF point);
    int fps() const { return m_state.fps; }
    void setFps(int fps);
    const QImage &background() const { return m_state.background; }
    void setBackground(const QImage &background);
    const std::optional<QByteArray> &recordingBookmark() const { return m_state.recordingBookmark; }
    void setRecordingBookmark(const std::optional<QByteArray> &bookmark);

    /// Where undo entries go; without one, edits apply and nothing is registered. Not owned.
    void setUndoManager(QUndoStack *undoManager) { m_undoManager = undoManager; }
    QUndoStack *undoManager() const { return m_undoManager; }

    DocState docState() const { return m_state; }
    void applyDocState(const DocState &state);
    Snapshot snapshot() const;
    /// What is saved. The background is encoded as PNG, and left out when that fails.
    ProjectFile fileSnapshot() const;

    /// Adds an undo entry that swaps the state then current with the given one.
    void registerUndo(const DocState &toRestore, const QString &name);
    /// Opens a gesture; in an open one it does nothing, so the earliest state is kept.
    void beginEdit();
    /// Ends the gesture: one undo entry if it changed anything.
    void commitEdit(const QString &name);
    /// One edit: runs the mutation and adds one undo entry if it changed anything.
    void edit(const QString &name, const std::function<void()> &mutation);
    /// A change of what is only viewed, e.g. folded: no undo entry.
    void changeWithoutUndo(const std::function<void()> &mutation);

Q_SIGNALS:
    /// edit() or changeWithoutUndo() is about to begin: a gesture that is open ends here.
    void willEdit();
    void willChange();
    void stepsChanged();
    void selectionChanged();
    void canvasSizeChanged();
    void startPointChanged();
    void fpsChanged();
    void backgroundChanged();
    void recordingBookmarkChanged();

private:
    void registerIfChanged(const DocState &before, const QString &name);

    DocState m_state;
    std::optional<QUuid> m_selection;
    std::optional<DocState> m_pending;
    QPointer<QUndoStack> m_undoManager;
};

} // namespace velvane
