#pragma once

#include <QMenu>
#include <QPointer>

namespace velvane {

class ContentView;

/// The menu "Edit": undo, redo and the clipboard. Main thread only.
///
/// While a text field of the window has the focus, the clipboard's items act on its text, else on
/// the selected steps; undo is always the demo's. The demo must have its undo stack already. Ends
/// with the menu or with the editor, whichever goes first.
class EditCommands : public QObject {
    Q_OBJECT
public:
    /// Adds the items; borrows the editor, whose state they follow.
    static void addTo(QMenu &menu, ContentView &editor);

private:
    EditCommands(QMenu &menu, ContentView &editor);

    void addUndo(QMenu &menu);
    void addClipboard(QMenu &menu);
    QAction *add(QMenu &menu, const QString &text, const QList<QKeySequence> &shortcuts,
                 void (EditCommands::*run)());
    void watch(QMenu &menu);
    void follow();
    void followUndo();
    void followFocus(QWidget *now);

    void undo();
    void redo();
    void cut();
    void copy();
    void paste();
    void duplicate();
    void selectAll();
    /// Calls the focused text field's own slot; false when none has the focus.
    bool callText(const char *slot);

    ContentView &m_editor;
    /// The text field that has the focus, menus aside.
    QPointer<QWidget> m_text;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_cut = nullptr;
    QAction *m_copy = nullptr;
    QAction *m_paste = nullptr;
    QAction *m_duplicate = nullptr;
    QAction *m_selectAll = nullptr;
};

} // namespace velvane
