#include "capture/ShortcutRecorder.h"
#include "editor/AppMenu.h"
#include "editor/FormRow.h"
#include "editor/InspectorPane.h"
#include "editor/NumberField.h"
#include "editor/StepForm.h"
#include "model/StepList.h"
#include "support/EditorFixture.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace velvane {

namespace {

struct StepFormTest : EditorFixture {
    QWidget &form() { return view->inspectorPane(); }
    template <typename Widget>
    Widget &named(const QString &name)
    {
        auto *found = Widgets::named<Widget>(form(), name);
        EXPECT_TRUE(found) << name.toStdString();
        return *found;
    }
    bool shows(const QString &text)
    {
        for (const QLabel *label : form().findChildren<QLabel *>())
            if (label->isVisible() && label->text() == text)
                return true;
        return false;
    }
    QStringList rows()
    {
        QStringList names;
        for (const FormRow *row : form().findChildren<FormRow *>())
            if (row->isVisible() && !row->findChild<QLabel *>()->text().isEmpty())
                names << row->findChild<QLabel *>()->text();
        return names;
    }
    void type(NumberField &field, const QString &text)
    {
        Widgets::focus(field, true);
        field.selectAll();
        for (const QChar character : text)
            Widgets::press(field, 0, {}, QString(character));
    }
};

} // namespace

TEST_F(StepFormTest, EachKindShowsItsFields)
{
    const QMap<StepKind, QStringList> expected{
        {StepKind::move, {"Target", "Duration", "Pause"}},
        {StepKind::click, {"Pause"}},
        {StepKind::rightClick, {"Pause"}},
        {StepKind::hold, {"Pause"}},
        {StepKind::release, {"Pause"}},
        {StepKind::type, {"Text", "Duration", "Pause"}},
        {StepKind::shortcut, {"Shortcut", "Pause"}},
        {StepKind::wait, {"Pause"}},
        {StepKind::switchApp, {"App", "Pause"}},
        {StepKind::section, {"Title"}},
    };
    for (const StepKind kind : allStepKinds) {
        openWith(kind);
        EXPECT_EQ(rows(), expected.value(kind)) << label(kind).toStdString();
    }
}

TEST_F(StepFormTest, EachKindShowsItsNameAndNote)
{
    const QMap<StepKind, QString> notes{
        {StepKind::move,
         "Click the preview to set this target — or Pick on screen to grab the cursor's location "
         "after a countdown, for spots only visible while interacting (menus, popovers)."},
        {StepKind::click, "A quick press and release at the current point."},
        {StepKind::rightClick, "A secondary (right) click at the current point."},
        {StepKind::hold, "Presses and holds the button. Add Move steps to drag, then a Release."},
        {StepKind::release, "Releases a held button — completes a drag."},
        {StepKind::shortcut,
         "Press the key combo to record it (e.g. ⌘C). It fires at the current point."},
        {StepKind::wait, "Pauses for the time shown on the right of the step row."},
        {StepKind::section, "A heading to organize the flow. It does nothing when the demo runs."},
    };
    for (const StepKind kind : allStepKinds) {
        openWith(kind);
        EXPECT_TRUE(shows(label(kind))) << label(kind).toStdString();
        EXPECT_EQ(StepForm::note(kind), notes.value(kind));
        EXPECT_TRUE(!notes.contains(kind) || shows(notes.value(kind))) << label(kind).toStdString();
    }
}

TEST_F(StepFormTest, WithoutASelectionTheHintAndTheDemosSettingsShow)
{
    open({stepOf(StepKind::click)});
    EXPECT_TRUE(shows("No step selected"));
    EXPECT_TRUE(shows(
        "Add a step above, or click the preview to drop a Move waypoint. Turn on Live for your "
        "real screen, then Freeze to pick targets against a still. Press Z to magnify."));
    EXPECT_EQ(rows(), (QStringList{"Canvas", "Rate", "Start", "Picture"}));
}

TEST_F(StepFormTest, DeleteStepDeletesTheSelectedStep)
{
    openWith(StepKind::wait);
    named<QPushButton>("Delete Step").click();
    EXPECT_TRUE(project.steps().isEmpty());
    EXPECT_EQ(undo.undoText(), "Delete Step");
    EXPECT_TRUE(shows("No step selected"));
}

TEST_F(StepFormTest, TypingAPauseIsOneEditThatEndsWithTheFocus)
{
    openWith(StepKind::wait);
    auto &field = named<NumberField>("Pause");
    type(field, "2.5");
    EXPECT_EQ(step().pauseAfter, 2.5s);
    EXPECT_EQ(undo.count(), 0);
    Widgets::focus(field, false);
    EXPECT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.undoText(), "Change Pause");
    undo.undo();
    EXPECT_EQ(step().pauseAfter, 1.0s);
    EXPECT_EQ(field.value(), 1.0);
}

TEST_F(StepFormTest, ArrowsBumpTheDurationNotBelowItsMinimum)
{
    openWith(StepKind::move);
    auto &field = named<NumberField>("Duration");
    Widgets::focus(field, true);
    Widgets::press(field, Qt::Key_Up);
    EXPECT_NEAR(step().duration.count(), 1.3, 1e-9);
    Widgets::press(field, Qt::Key_PageDown);
    Widgets::press(field, Qt::Key_PageDown);
    EXPECT_EQ(step().duration, 0.05s);
    Widgets::focus(field, false);
    EXPECT_EQ(undo.undoText(), "Change Duration");
    EXPECT_EQ(undo.count(), 1);
}

TEST_F(StepFormTest, TheTargetsCoordinatesAreBumpedToWholePoints)
{
    openWith(StepKind::move);
    auto &x = named<NumberField>("Target X");
    Widgets::focus(x, true);
    Widgets::press(x, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(step().point, QPointF(630, 400));
    Widgets::focus(x, false);
    EXPECT_EQ(undo.undoText(), "Move Target");
}

TEST_F(StepFormTest, TypingATextIsOneEdit)
{
    openWith(StepKind::type);
    auto &text = named<QPlainTextEdit>("Text");
    text.setFocus();
    text.selectAll();
    for (const QChar character : QStringLiteral("Hi\nyou"))
        Widgets::press(text, character == '\n' ? int(Qt::Key_Return) : 0, {}, QString(character));
    EXPECT_EQ(step().text, "Hi\nyou");
    text.clearFocus();
    EXPECT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.undoText(), "Edit Text");
}

TEST_F(StepFormTest, ARecordedCombinationSetsTheShortcut)
{
    openWith(StepKind::shortcut);
    auto &recorder = named<ShortcutRecorder>("Shortcut");
    recorder.click();
    EXPECT_EQ(recorder.label(), "Press keys…");
    QKeyEvent key(QEvent::KeyPress, Qt::Key_S, Qt::MetaModifier | Qt::ShiftModifier, "S");
    QApplication::sendEvent(&recorder, &key);
    EXPECT_EQ(step().keyCode, 1);
    EXPECT_EQ(step().modifiers, 0x120000U);
    EXPECT_EQ(step().text, "S");
    EXPECT_EQ(undo.undoText(), "Set Shortcut");
    EXPECT_EQ(recorder.label(), "⇧⌘S");
}

TEST_F(StepFormTest, TheApplicationMenuSetsTheApp)
{
    openWith(StepKind::switchApp);
    auto *menu = form().findChild<AppMenu *>();
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->label(), "Safari");
    Q_EMIT menu->chosen("Notes");
    EXPECT_EQ(step().text, "Notes");
    EXPECT_EQ(menu->label(), "Notes");
    EXPECT_EQ(undo.undoText(), "Set App");
}

TEST_F(StepFormTest, TheCentringOptionIsAnEdit)
{
    openWith(StepKind::switchApp);
    form().findChild<QCheckBox *>()->click();
    EXPECT_TRUE(step().centerWindow);
    EXPECT_EQ(undo.undoText(), "Center Window");
    undo.undo();
    EXPECT_FALSE(form().findChild<QCheckBox *>()->isChecked());
}

TEST_F(StepFormTest, PickOnScreenPicksTheSelectedTarget)
{
    openWith(StepKind::move);
    auto &pick = named<QPushButton>("Pick on screen");
    ASSERT_TRUE(pick.isEnabled());
    pick.click();
    LocationPicker &picker = view->pickLocation().locationPicker();
    ASSERT_TRUE(picker.isPicking());
    desktop.screens().setPointer({12, 34});
    while (picker.isPicking())
        picker.tick();
    EXPECT_EQ(step().point, QPointF(12, 34));
    EXPECT_EQ(named<NumberField>("Target X").value(), 12);
}

TEST_F(StepFormTest, PickOnScreenIsDisabledWithItsReasonWhereItCannotBeDone)
{
    desktop.screens().setMissing("No display.");
    openWith(StepKind::move);
    auto &pick = named<QPushButton>("Pick on screen");
    EXPECT_FALSE(pick.isEnabled());
    EXPECT_TRUE(pick.toolTip().contains("No display."));
}

TEST_F(StepFormTest, WhatIsTypedBecomesAnEntryBeforeAnUndo)
{
    openWith(StepKind::wait);
    auto &field = named<NumberField>("Pause");
    type(field, "3");
    view->fieldEditing().undo();
    EXPECT_EQ(step().pauseAfter, 1.0s);
    EXPECT_EQ(field.value(), 1.0);
    view->fieldEditing().redo();
    EXPECT_EQ(field.value(), 3.0);
}

TEST_F(StepFormTest, TheDemosSettingsAreEdits)
{
    open({});
    auto &width = named<NumberField>("Canvas width");
    type(width, "1000");
    Widgets::focus(width, false);
    EXPECT_EQ(project.canvasSize(), QSizeF(1000, 800));
    EXPECT_EQ(undo.undoText(), "Change Canvas");

    auto &rate = named<NumberField>("Frame rate");
    type(rate, "30");
    Widgets::focus(rate, false);
    EXPECT_EQ(project.fps(), 30);
    EXPECT_EQ(undo.undoText(), "Change Frame Rate");

    auto &start = named<NumberField>("Start Y");
    Widgets::focus(start, true);
    Widgets::press(start, Qt::Key_Up);
    Widgets::focus(start, false);
    EXPECT_EQ(project.startPoint().y(), 401);
    EXPECT_EQ(undo.undoText(), "Move Start");
}

TEST_F(StepFormTest, MatchScreenTakesThePrimaryDisplaysSize)
{
    desktop.screens().setDisplays({{.frame = QRectF(0, 0, 1600, 1000), .primary = true}});
    open({});
    named<QPushButton>("Match Screen").click();
    EXPECT_EQ(project.canvasSize(), QSizeF(1600, 1000));
    EXPECT_EQ(undo.undoText(), "Change Canvas");
}

TEST_F(StepFormTest, TheBackdropCanBeRemovedOnlyWhileThereIsOne)
{
    open({});
    auto &remove = named<QPushButton>("Remove");
    EXPECT_FALSE(remove.isEnabled());
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::red);
    project.setBackground(picture);
    ASSERT_TRUE(remove.isEnabled());
    remove.click();
    EXPECT_TRUE(project.background().isNull());
    EXPECT_EQ(undo.undoText(), "Remove Backdrop");
}

TEST_F(StepFormTest, ATextThatChangesElsewhereWhileItsFieldHasTheFocusIsNotTyped)
{
    openWith(StepKind::type);
    QList<Step> steps = project.steps();
    steps[0].text = QStringLiteral("a\u00a0b\r\nc");
    project.setSteps(steps);
    auto &text = named<QPlainTextEdit>("Text");
    text.setFocus();
    steps << stepOf(StepKind::wait);
    project.edit("Add Step", [&] { project.setSteps(steps); });
    EXPECT_EQ(project.steps()[0].text, steps[0].text);
    StepList::addStep(project, StepKind::wait);
    project.setSelection(steps[0].id);
    EXPECT_EQ(project.steps()[0].text, steps[0].text);

    text.setFocus();
    text.moveCursor(QTextCursor::End);
    Widgets::press(text, 0, {}, "x");
    EXPECT_EQ(project.steps()[0].text, QStringLiteral("a\u00a0b\ncx")) << "typed for real";
    view->fieldEditing().undo();
    EXPECT_EQ(project.steps()[0].text, steps[0].text);
    EXPECT_TRUE(undo.canRedo());
}

} // namespace velvane
