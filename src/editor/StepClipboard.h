#pragma once

#include "editor/Selection.h"

namespace velvane {

/// Steps cut, copied, pasted and duplicated, through the system's clipboard and so between windows
/// and processes too. Main thread only.
///
/// Copies have new ids, and stand after the last selected step, else at the end; they are shown and
/// selected. A recorded offset is kept only where the same recording belongs to the demo.
class StepClipboard : public QObject {
    Q_OBJECT
public:
    StepClipboard(Project &project, Selection &selection, QObject *parent = nullptr);

    /// Is there a selected step? The same for cut and duplicate.
    bool canCopy() const;
    /// Does the clipboard hold steps?
    bool canPaste() const;

    void cut();
    void copy() const;
    void paste();
    void duplicate();
    void selectAll() { m_selection.selectAll(); }

Q_SIGNALS:
    /// canPaste() may have changed.
    void clipboardChanged();

private:
    QList<Step> selectedSteps() const;
    void write(const QList<Step> &steps) const;
    void insert(const QList<Step> &added, const QString &name);

    Project &m_project;
    Selection &m_selection;
};

} // namespace velvane
