#include "editor/EditCommands.h"

#include "editor/InspectorPane.h"
#include "editor/StepListPane.h"
#include "model/StepList.h"
#include "support/EditorFixture.h"
#include "support/MenuReader.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>

namespace velvane {

namespace {

struct EditCommandsTest : EditorFixture {
    void openMenu(const QList<Step> &steps)
    {
        QGuiApplication::clipboard()->clear();
        open(steps);
        view->activateWindow();
        menu = std::make_unique<QMenu>();
        EditCommands::addTo(*menu, *view);
        in.emplace(*menu);
    }
    /// The undo item and what it reads, whatever that is now.
    QAction &undoItem() { return *in->all().at(0); }
    QAction &redoItem() { return *in->all().at(1); }
    void choose(const QString &text)
    {
        Q_EMIT menu->aboutToShow();
        in->item(text).trigger();
    }
    QList<StepKind> kinds() const
    {
        QList<StepKind> kinds;
        for (const Step &step : project.steps())
            kinds << step.kind;
        return kinds;
    }

    std::unique_ptr<QMenu> menu;
    std::optional<MenuReader> in;
};

const QList<Step> twoSteps{stepOf(StepKind::click), stepOf(StepKind::hold)};

} // namespace

TEST_F(EditCommandsTest, TheEditMenuHasItsItemsAndKeys)
{
    openMenu({});
    EXPECT_EQ(in->texts(), (QStringList{"Undo", "Redo", "-", "Cut", "Copy", "Paste", "Duplicate",
                                        "-", "Select All"}));
    QStringList keys;
    for (const QAction *item : in->all())
        keys << item->shortcut().toString(QKeySequence::PortableText);
    EXPECT_EQ(keys, (QStringList{"Ctrl+Z", "Ctrl+Shift+Z", "Ctrl+X", "Ctrl+C", "Ctrl+V", "Ctrl+D",
                                 "Ctrl+A"}));
}

TEST_F(EditCommandsTest, WithoutEditsStepsOrClipboardNothingCanBeChosen)
{
    openMenu({});
    for (const QAction *item : in->all())
        EXPECT_FALSE(item->isEnabled()) << item->text().toStdString();
}

TEST_F(EditCommandsTest, UndoAndRedoCarryTheActionsName)
{
    openMenu({});
    StepList::addStep(project, StepKind::click);
    EXPECT_EQ(undoItem().text(), "Undo Add Click");
    EXPECT_TRUE(undoItem().isEnabled());
    EXPECT_FALSE(redoItem().isEnabled());
    undoItem().trigger();
    EXPECT_TRUE(project.steps().isEmpty());
    EXPECT_EQ(undoItem().text(), "Undo");
    EXPECT_FALSE(undoItem().isEnabled());
    EXPECT_EQ(redoItem().text(), "Redo Add Click");
    redoItem().trigger();
    EXPECT_EQ(project.steps().size(), 1);
    EXPECT_EQ(redoItem().text(), "Redo");
}

TEST_F(EditCommandsTest, TheStatusDoesNotTellOfWhatIsUndone)
{
    openMenu({});
    view->canvas().handleCanvasClick({10, 20});
    ASSERT_EQ(view->statusLine().message(), "Added waypoint at (10, 20).");
    undoItem().trigger();
    EXPECT_EQ(view->statusLine().message(), "");
    view->statusLine().setMessage("Something else.");
    redoItem().trigger();
    EXPECT_EQ(view->statusLine().message(), "");
}

TEST_F(EditCommandsTest, WhatIsBeingEditedCanBeUndoneByItsName)
{
    openMenu({stepOf(StepKind::move)});
    project.setSelection(step().id);
    view->fieldEditing().setNumber({.kind = Field::Kind::x}, 77);
    EXPECT_EQ(undoItem().text(), "Undo Move Target");
    EXPECT_TRUE(undoItem().isEnabled());
    undoItem().trigger();
    EXPECT_EQ(step().point.x(), 0);
    EXPECT_EQ(redoItem().text(), "Redo Move Target");
}

TEST_F(EditCommandsTest, WhatIsBeingEditedLeavesNothingToRedo)
{
    openMenu({stepOf(StepKind::move)});
    project.setSelection(step().id);
    StepList::addStep(project, StepKind::click);
    view->fieldEditing().undo();
    EXPECT_TRUE(redoItem().isEnabled());
    project.setSelection(step().id);
    view->fieldEditing().setNumber({.kind = Field::Kind::x}, 77);
    EXPECT_FALSE(redoItem().isEnabled());
}

TEST_F(EditCommandsTest, StepsAreCutCopiedPastedAndDuplicated)
{
    openMenu(twoSteps);
    project.setSelection(step(0).id);
    EXPECT_FALSE(in->item("Paste").isEnabled());
    choose("Copy");
    EXPECT_TRUE(in->item("Paste").isEnabled());
    choose("Paste");
    EXPECT_EQ(kinds(), (QList{StepKind::click, StepKind::click, StepKind::hold}));
    choose("Duplicate");
    EXPECT_EQ(project.steps().size(), 4);
    choose("Select All");
    EXPECT_EQ(view->selection().targets().size(), 4);
    choose("Cut");
    EXPECT_TRUE(project.steps().isEmpty());
    EXPECT_FALSE(in->item("Cut").isEnabled());
    EXPECT_FALSE(in->item("Select All").isEnabled());
    choose("Paste");
    EXPECT_EQ(project.steps().size(), 4);
}

TEST_F(EditCommandsTest, WithoutASelectedStepThereIsNothingToCutCopyOrDuplicate)
{
    openMenu(twoSteps);
    view->selection().select({});
    for (const char *text : {"Cut", "Copy", "Duplicate"})
        EXPECT_FALSE(in->item(text).isEnabled()) << text;
    EXPECT_TRUE(in->item("Select All").isEnabled());
}

TEST_F(EditCommandsTest, InATextFieldTheClipboardTakesText)
{
    openMenu({stepOf(StepKind::type, "Hello")});
    project.setSelection(step().id);
    auto *field = view->findChild<QPlainTextEdit *>();
    field->setFocus();
    ASSERT_EQ(QApplication::focusWidget(), field);
    EXPECT_FALSE(in->item("Copy").isEnabled());
    EXPECT_FALSE(in->item("Duplicate").isEnabled());
    choose("Select All");
    EXPECT_EQ(field->textCursor().selectedText(), "Hello");
    choose("Cut");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Hello");
    EXPECT_EQ(step().text, "");
    choose("Paste");
    EXPECT_EQ(step().text, "Hello");
    EXPECT_EQ(project.steps().size(), 1);
}

TEST_F(EditCommandsTest, InANumberFieldTheClipboardTakesText)
{
    openMenu({stepOf(StepKind::move)});
    project.setSelection(step().id);
    auto *field = Widgets::named<QLineEdit>(view->inspectorPane(), QStringLiteral("Target X"));
    ASSERT_TRUE(field);
    field->setFocus();
    choose("Select All");
    choose("Copy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), field->text());
    EXPECT_FALSE(field->text().isEmpty());
}

TEST_F(EditCommandsTest, OutOfTheTextFieldStepsAreMeantAgain)
{
    openMenu({stepOf(StepKind::type, "Hello")});
    project.setSelection(step().id);
    view->findChild<QPlainTextEdit *>()->setFocus();
    view->stepListPane().view().setFocus();
    EXPECT_TRUE(in->item("Copy").isEnabled());
    choose("Copy");
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasFormat(
        "application/vnd.orvikel.velvane.steps"));
}

TEST_F(EditCommandsTest, TheMenuMayOutliveTheEditor)
{
    openMenu(twoSteps);
    view.reset();
    undo.clear();
    Q_EMIT menu->aboutToShow();
    EXPECT_EQ(in->texts().size(), 9);
}

TEST_F(EditCommandsTest, TheEditorMayOutliveTheMenu)
{
    openMenu(twoSteps);
    menu.reset();
    StepList::addStep(project, StepKind::click);
    EXPECT_EQ(project.steps().size(), 3);
}

} // namespace velvane
