#include "editor/EditCommands.h"

#include "editor/ContentView.h"
#include "editor/FocusedActions.h"
#include "editor/MenuText.h"
#include "editor/TextFieldState.h"

#include <QApplication>
#include <QMenuBar>

namespace velvane {

namespace {

/// "Undo", or "Undo Add Click".
QString named(const QString &verb, const QString &edit)
{
    return edit.isEmpty() ? verb : verb + QLatin1Char(' ') + MenuText::escaped(edit);
}

} // namespace

void EditCommands::addTo(QMenu &menu, ContentView &editor)
{
    (new EditCommands(menu, editor))->setParent(&menu);
}

EditCommands::EditCommands(QMenu &menu, ContentView &editor) : m_editor(editor)
{
    addUndo(menu);
    menu.addSeparator();
    addClipboard(menu);
    watch(menu);
    followFocus(QApplication::focusWidget());
    followUndo();
}

QAction *EditCommands::add(QMenu &menu, const QString &text, const QList<QKeySequence> &shortcuts,
                           void (EditCommands::*run)())
{
    QAction *action = menu.addAction(text);
    action->setShortcuts(shortcuts);
    connect(action, &QAction::triggered, this, run);
    return action;
}

void EditCommands::addUndo(QMenu &menu)
{
    m_undo = add(menu, tr("Undo"), {Qt::CTRL | Qt::Key_Z}, &EditCommands::undo);
    m_redo = add(menu, tr("Redo"), {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y},
                 &EditCommands::redo);
}

void EditCommands::addClipboard(QMenu &menu)
{
    m_cut = add(menu, tr("Cut"), {Qt::CTRL | Qt::Key_X}, &EditCommands::cut);
    m_copy = add(menu, tr("Copy"), {Qt::CTRL | Qt::Key_C}, &EditCommands::copy);
    m_paste = add(menu, tr("Paste"), {Qt::CTRL | Qt::Key_V}, &EditCommands::paste);
    m_duplicate = add(menu, tr("Duplicate"), {Qt::CTRL | Qt::Key_D}, &EditCommands::duplicate);
    menu.addSeparator();
    m_selectAll = add(menu, tr("Select All"), {Qt::CTRL | Qt::Key_A}, &EditCommands::selectAll);
}

void EditCommands::watch(QMenu &menu)
{
    connect(&m_editor.menuActions(), &QObject::destroyed, this, [this] { delete this; });
    connect(&menu, &QMenu::aboutToShow, this, &EditCommands::follow);
    // A text field's selection is looked at when the menu opens; the shortcuts are the field's own.
    connect(&menu, &QMenu::aboutToHide, this, &EditCommands::follow, Qt::QueuedConnection);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { followFocus(now); });
    connect(&m_editor.selection(), &Selection::targetsChanged, this, &EditCommands::follow);
    connect(&m_editor.clipboard(), &StepClipboard::clipboardChanged, this, &EditCommands::follow);
    Project &project = m_editor.project();
    connect(&project, &Project::stepsChanged, this, &EditCommands::follow);
    for (const auto changed : {&Project::stepsChanged, &Project::startPointChanged,
                               &Project::canvasSizeChanged, &Project::fpsChanged})
        connect(&project, changed, this, &EditCommands::followUndo);
    connect(&m_editor.fieldEditing().gesture(), &OpenGesture::committed, this,
            &EditCommands::followUndo);
    if (QUndoStack *stack = project.undoManager())
        connect(stack, &QUndoStack::indexChanged, this, &EditCommands::followUndo);
}

void EditCommands::followUndo()
{
    const QUndoStack *stack = m_editor.project().undoManager();
    const OpenGesture &gesture = m_editor.fieldEditing().gesture();
    const bool editing = gesture.hasChanges();
    m_undo->setEnabled(editing || (stack && stack->canUndo()));
    m_undo->setText(named(tr("Undo"), editing ? gesture.name()
                                      : stack ? stack->undoText()
                                              : QString()));
    // What is being edited becomes an entry before redo, and takes the later entries away.
    m_redo->setEnabled(!editing && stack && stack->canRedo());
    m_redo->setText(named(tr("Redo"), m_redo->isEnabled() ? stack->redoText() : QString()));
}

void EditCommands::followFocus(QWidget *now)
{
    // A menu that opens takes the focus only for itself.
    if (!qobject_cast<QMenuBar *>(now) && !qobject_cast<QMenu *>(now)) {
        const bool ours = now && now->window() == m_editor.window();
        m_text = ours && TextFieldState::of(*now) ? now : nullptr;
    }
    follow();
}

void EditCommands::follow()
{
    const auto text = m_text ? TextFieldState::of(*m_text) : std::nullopt;
    const StepClipboard &steps = m_editor.clipboard();
    m_cut->setEnabled(text ? text->canCut : steps.canCopy());
    m_copy->setEnabled(text ? text->canCopy : steps.canCopy());
    m_paste->setEnabled(text ? text->canPaste : steps.canPaste());
    m_duplicate->setEnabled(!text && steps.canCopy());
    m_selectAll->setEnabled(text ? text->canSelectAll : !m_editor.project().steps().isEmpty());
}

void EditCommands::undo()
{
    m_editor.fieldEditing().undo();
    m_editor.statusLine().setMessage({}); // may tell of what is undone now
}

void EditCommands::redo()
{
    m_editor.fieldEditing().redo();
    m_editor.statusLine().setMessage({});
}

bool EditCommands::callText(const char *slot)
{
    return m_text && QMetaObject::invokeMethod(m_text, slot);
}

void EditCommands::cut()
{
    if (!callText("cut"))
        m_editor.clipboard().cut();
}

void EditCommands::copy()
{
    if (!callText("copy"))
        m_editor.clipboard().copy();
}

void EditCommands::paste()
{
    if (!callText("paste"))
        m_editor.clipboard().paste();
}

void EditCommands::duplicate()
{
    m_editor.clipboard().duplicate();
}

void EditCommands::selectAll()
{
    if (!callText("selectAll"))
        m_editor.clipboard().selectAll();
}

} // namespace velvane
