#include "editor/StepClipboard.h"

#include "editor/StepMime.h"
#include "support/Print.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <gtest/gtest.h>

namespace velvane {

namespace {

Step named(const QString &name, StepKind kind = StepKind::type, bool collapsed = false)
{
    Step step;
    step.kind = kind;
    step.text = name;
    step.collapsed = collapsed;
    return step;
}

struct Window {
    Window() { project.setUndoManager(&undo); }

    QString order() const
    {
        QString names;
        for (const Step &step : project.steps())
            names += step.text;
        return names;
    }

    void select(std::initializer_list<int> indices)
    {
        QSet<QUuid> ids;
        for (const int index : indices)
            ids << project.steps()[index].id;
        selection.setSelectedIDs(ids);
    }

    Project project;
    QUndoStack undo;
    Selection selection{project};
    StepClipboard clipboard{project, selection};
};

class StepClipboardTest : public testing::Test {
protected:
    StepClipboardTest()
    {
        QGuiApplication::clipboard()->clear();
        window.project.setSteps({named("A"), named("B"), named("C")});
    }

    Window window;
};

} // namespace

TEST_F(StepClipboardTest, CutStepsAreGoneAndCanBePasted)
{
    window.select({0, 2});
    window.clipboard.cut();
    EXPECT_EQ(window.order(), "B");
    EXPECT_EQ(window.undo.undoText(), "Cut Steps");
    EXPECT_EQ(window.undo.count(), 1);
    window.clipboard.paste();
    EXPECT_EQ(window.order(), "BAC");
    EXPECT_EQ(window.undo.undoText(), "Paste Steps");
    EXPECT_EQ(window.undo.count(), 2);
}

TEST_F(StepClipboardTest, CopiesStandBehindTheLastSelectedStepWithNewIds)
{
    window.select({0, 1});
    window.clipboard.copy();
    EXPECT_EQ(window.undo.count(), 0);
    window.clipboard.paste();
    EXPECT_EQ(window.order(), "ABABC");
    QSet<QUuid> ids;
    for (const Step &step : window.project.steps())
        ids << step.id;
    EXPECT_EQ(ids.size(), 5);
    EXPECT_EQ(window.selection.targetIndices(), QList<qsizetype>({2, 3}));
    EXPECT_EQ(window.project.selection(), window.project.steps()[2].id);
}

TEST_F(StepClipboardTest, WithoutASelectionTheyGoToTheEnd)
{
    window.select({0});
    window.clipboard.copy();
    window.selection.select({});
    window.clipboard.paste();
    EXPECT_EQ(window.order(), "ABCA");
}

TEST_F(StepClipboardTest, TheyArePastedAgainAndAgain)
{
    window.select({0});
    window.clipboard.copy();
    window.clipboard.paste();
    window.clipboard.paste();
    EXPECT_EQ(window.order(), "AAABC");
}

TEST_F(StepClipboardTest, EveryFieldTravels)
{
    Step step = named("S", StepKind::shortcut);
    step.point = {1.25, -3};
    step.duration = 0.123s;
    step.pauseAfter = 4.5s;
    step.keyCode = 21;
    step.modifiers = 0x120000;
    step.centerWindow = true;
    window.project.setSteps({step});
    window.select({0});
    window.clipboard.copy();
    window.clipboard.paste();
    Step pasted = window.project.steps()[1];
    pasted.id = step.id;
    EXPECT_EQ(pasted, step);
}

TEST_F(StepClipboardTest, StepsGoFromOneWindowToAnother)
{
    Window other;
    other.project.setSteps({named("X")});
    window.select({1});
    window.clipboard.copy();
    EXPECT_TRUE(other.clipboard.canPaste());
    other.clipboard.paste();
    EXPECT_EQ(other.order(), "XB");
    EXPECT_EQ(window.order(), "ABC");
}

TEST_F(StepClipboardTest, ARecordedOffsetStaysWithItsRecordingOnly)
{
    Step step = named("R");
    step.recordedOffset = 2.5s;
    window.project.setSteps({step});
    window.project.setRecordingBookmark("movie");
    window.select({0});
    window.clipboard.copy();
    window.clipboard.paste();
    EXPECT_EQ(window.project.steps()[1].recordedOffset, 2.5s);
    Window other;
    other.clipboard.paste();
    EXPECT_FALSE(other.project.steps().last().recordedOffset);
}

TEST_F(StepClipboardTest, DuplicatesNeedNoClipboard)
{
    window.select({0, 1});
    window.clipboard.duplicate();
    EXPECT_EQ(window.order(), "ABABC");
    EXPECT_EQ(window.undo.undoText(), "Duplicate Steps");
    EXPECT_FALSE(window.clipboard.canPaste());
    EXPECT_NE(window.project.steps()[0].id, window.project.steps()[2].id);
}

TEST_F(StepClipboardTest, PastedIntoAFoldedSectionTheyUnfoldIt)
{
    window.project.setSteps({named("S", StepKind::section, true), named("A")});
    window.select({1});
    window.clipboard.copy();
    window.select({0});
    window.clipboard.paste();
    EXPECT_EQ(window.order(), "SAA");
    EXPECT_FALSE(window.project.steps()[0].collapsed);
}

TEST_F(StepClipboardTest, WithoutASelectionThereIsNothingToCopy)
{
    EXPECT_FALSE(window.clipboard.canCopy());
    window.clipboard.cut();
    window.clipboard.copy();
    window.clipboard.duplicate();
    EXPECT_FALSE(window.clipboard.canPaste());
    EXPECT_EQ(window.undo.count(), 0);
}

TEST_F(StepClipboardTest, OtherProgramsSeeTheSummaries)
{
    window.select({0, 1});
    window.clipboard.copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Type \"A\"\nType \"B\"");
}

TEST_F(StepClipboardTest, WhatIsNoStepIsNotPasted)
{
    QGuiApplication::clipboard()->setText("words");
    EXPECT_FALSE(window.clipboard.canPaste());
    window.clipboard.paste();
    auto *data = new QMimeData;
    data->setData(StepMime::type(), "nonsense");
    QGuiApplication::clipboard()->setMimeData(data);
    window.clipboard.paste();
    EXPECT_EQ(window.order(), "ABC");
    EXPECT_EQ(window.undo.count(), 0);
}

TEST_F(StepClipboardTest, AChangedClipboardIsAnnounced)
{
    int changes = 0;
    QObject::connect(&window.clipboard, &StepClipboard::clipboardChanged, [&] { ++changes; });
    window.select({0});
    window.clipboard.copy();
    EXPECT_GE(changes, 1);
}

TEST_F(StepClipboardTest, AllAreSelectedAndCutInOneEdit)
{
    window.clipboard.selectAll();
    window.clipboard.cut();
    EXPECT_TRUE(window.project.steps().isEmpty());
    EXPECT_EQ(window.undo.count(), 1);
    window.undo.undo();
    EXPECT_EQ(window.order(), "ABC");
}

} // namespace velvane
