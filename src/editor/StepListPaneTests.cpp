#include "editor/StepListPane.h"
#include "editor/StepRowDelegate.h"
#include "model/StepList.h"
#include "support/EditorFixture.h"

#include <QAbstractButton>

namespace velvane {

namespace {

using Part = StepListView::Part;

struct StepListPaneTest : EditorFixture {
    /// a, section S with b and c, section T with d.
    void openSections()
    {
        open({stepOf(StepKind::click), stepOf(StepKind::section, "S"), stepOf(StepKind::hold),
              stepOf(StepKind::release), stepOf(StepKind::section, "T"),
              stepOf(StepKind::rightClick)});
    }
    StepListView &list() { return view->stepListPane().view(); }
    QWidget &port() { return *list().viewport(); }
    QModelIndex row(int row) { return list().rows().index(row); }
    QPoint middle(int r) { return list().visualRect(row(r)).center(); }
    StepRowLayout layout(int r) { return list().layoutOf(row(r)); }
    QStringList summaries() const
    {
        QStringList all;
        for (const Step &step : project.steps())
            all << step.summary();
        return all;
    }
    QString help(QPoint at)
    {
        return static_cast<StepRowDelegate *>(list().itemDelegate())->helpAt(at);
    }
    void hover(QPoint at) { Widgets::mouse(port(), QEvent::MouseMove, at, Qt::NoButton); }
};

} // namespace

TEST_F(StepListPaneTest, ClickingARowSelectsItsStep)
{
    openSections();
    Widgets::click(port(), middle(2));
    EXPECT_EQ(project.selection(), step(2).id);
    EXPECT_EQ(view->selection().selectedIDs(), QSet<QUuid>{step(2).id});
}

TEST_F(StepListPaneTest, CtrlAndShiftSelectSeveralRows)
{
    openSections();
    Widgets::click(port(), middle(2));
    Widgets::click(port(), middle(3), Qt::ShiftModifier);
    Widgets::click(port(), middle(5), Qt::ControlModifier);
    EXPECT_EQ(view->selection().selectedIDs(), (QSet<QUuid>{step(2).id, step(3).id, step(5).id}));
}

TEST_F(StepListPaneTest, AltAndArrowsMoveTheCurrentRow)
{
    open({stepOf(StepKind::click), stepOf(StepKind::hold), stepOf(StepKind::release)});
    Widgets::click(port(), middle(1));
    const QUuid moved = step(1).id;
    Widgets::press(list(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(summaries(), (QStringList{"Hold mouse down", "Click", "Release mouse"}));
    Widgets::press(list(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(step(0).id, moved) << "there is no place above the first";
    Widgets::press(list(), Qt::Key_Down, Qt::AltModifier);
    Widgets::press(list(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(summaries(), (QStringList{"Click", "Release mouse", "Hold mouse down"}));
    Widgets::press(list(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(step(2).id, moved) << "there is no place below the last";
    EXPECT_EQ(project.selection(), moved);
}

TEST_F(StepListPaneTest, AltAndArrowsMoveASectionPastItsNeighbour)
{
    openSections();
    const QStringList before = summaries();
    Widgets::click(port(), middle(4));
    Widgets::press(list(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(summaries(),
              (QStringList{"Click", "T", "Right-click", "S", "Hold mouse down", "Release mouse"}));
    Widgets::press(list(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(summaries(), before);
}

TEST_F(StepListPaneTest, ASelectionFromElsewhereShowsInTheList)
{
    openSections();
    project.setSelection(step(3).id);
    EXPECT_EQ(list().currentIndex().row(), 3);
    EXPECT_TRUE(list().selectionModel()->isSelected(row(3)));
}

// A selection model takes time in the square of its stretches: of thousands of copies, seconds.
TEST_F(StepListPaneTest, CopiesOfManyStepsAreSelectedInOneStretch)
{
    open(QList<Step>(40, stepOf(StepKind::click)));
    QList<Step> steps = project.steps();
    for (Step &step : steps)
        step.id = QUuid::createUuid();
    project.setSteps(steps);
    view->selection().selectAll();
    view->clipboard().duplicate();
    const QItemSelection selected = list().selectionModel()->selection();
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(selected.first().top(), 40);
    EXPECT_EQ(selected.first().bottom(), 79);
}

TEST_F(StepListPaneTest, ArrowsMoveTheSelection)
{
    openSections();
    Widgets::click(port(), middle(0));
    Widgets::press(list(), Qt::Key_Down);
    EXPECT_EQ(project.selection(), step(1).id);
}

TEST_F(StepListPaneTest, DeleteRemovesTheSelectedSteps)
{
    openSections();
    Widgets::click(port(), middle(2));
    Widgets::click(port(), middle(3), Qt::ShiftModifier);
    Widgets::press(list(), Qt::Key_Delete);
    EXPECT_EQ(summaries(), (QStringList{"Click", "S", "T", "Right-click"}));
    EXPECT_EQ(undo.undoText(), "Delete Step");
    EXPECT_EQ(project.selection(), step(2).id);
    EXPECT_EQ(list().currentIndex().row(), 2);
}

TEST_F(StepListPaneTest, LeftRightAndEnterFoldASection)
{
    openSections();
    Widgets::click(port(), middle(1));
    Widgets::press(list(), Qt::Key_Left);
    EXPECT_TRUE(step(1).collapsed);
    Widgets::press(list(), Qt::Key_Left);
    EXPECT_TRUE(step(1).collapsed);
    Widgets::press(list(), Qt::Key_Right);
    EXPECT_FALSE(step(1).collapsed);
    Widgets::press(list(), Qt::Key_Return);
    EXPECT_TRUE(step(1).collapsed);
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(StepListPaneTest, TheChevronFoldsWithoutSelecting)
{
    openSections();
    Widgets::click(port(), layout(1).chevron.center());
    EXPECT_TRUE(step(1).collapsed);
    EXPECT_EQ(list().rows().rowCount(), 4);
    EXPECT_FALSE(project.selection());
}

TEST_F(StepListPaneTest, FoldingKeepsAHiddenStepSelected)
{
    openSections();
    Widgets::click(port(), middle(2));
    StepList::toggleCollapse(project, step(1).id);
    EXPECT_EQ(project.selection(), step(2).id);
    EXPECT_FALSE(list().selectionModel()->hasSelection());
    StepList::toggleCollapse(project, step(1).id);
    EXPECT_TRUE(list().selectionModel()->isSelected(row(2)));
}

TEST_F(StepListPaneTest, ButtonsShowOnTheHoveredRowAndOnASingleSelection)
{
    openSections();
    EXPECT_TRUE(layout(2).remove.isEmpty());
    hover(middle(2));
    EXPECT_FALSE(layout(2).remove.isEmpty());

    Widgets::click(port(), middle(2));
    hover(middle(0));
    EXPECT_FALSE(layout(2).remove.isEmpty());
    Widgets::click(port(), middle(3), Qt::ShiftModifier);
    hover(middle(0));
    EXPECT_TRUE(layout(2).remove.isEmpty());
}

TEST_F(StepListPaneTest, TheRowsDeleteButtonDeletesThatStepOnly)
{
    openSections();
    Widgets::click(port(), middle(5));
    hover(middle(2));
    Widgets::click(port(), layout(2).remove.center());
    EXPECT_EQ(summaries(), (QStringList{"Click", "S", "Release mouse", "T", "Right-click"}));
    EXPECT_EQ(project.selection(), step(4).id);
}

TEST_F(StepListPaneTest, ADeletePressedButReleasedElsewhereDeletesNothing)
{
    openSections();
    hover(middle(2));
    Widgets::mouse(port(), QEvent::MouseButtonPress, layout(2).remove.center(), Qt::LeftButton);
    Widgets::mouse(port(), QEvent::MouseButtonRelease, middle(3), Qt::LeftButton);
    EXPECT_EQ(project.steps().size(), 6);
}

TEST_F(StepListPaneTest, ADraggedRowGoesWhereItIsDropped)
{
    openSections();
    const QRect target = list().visualRect(row(5));
    Widgets::drag(port(), middle(0), {middle(0).x(), target.bottom() - 2});
    EXPECT_EQ(summaries(),
              (QStringList{"S", "Hold mouse down", "Release mouse", "T", "Right-click", "Click"}));
    EXPECT_EQ(undo.undoText(), "Reorder Steps");
    EXPECT_TRUE(list().selectionModel()->isSelected(row(5)));
}

TEST_F(StepListPaneTest, ADraggedSectionTakesItsSteps)
{
    openSections();
    Widgets::drag(port(), middle(1), {middle(1).x(), port().height() - 5});
    EXPECT_EQ(summaries(),
              (QStringList{"Click", "T", "Right-click", "S", "Hold mouse down", "Release mouse"}));
}

TEST_F(StepListPaneTest, EscapeEndsADragWithoutAMove)
{
    openSections();
    Widgets::mouse(port(), QEvent::MouseButtonPress, middle(0), Qt::LeftButton);
    Widgets::mouse(port(), QEvent::MouseMove, middle(3), Qt::LeftButton);
    EXPECT_TRUE(list().isDragged(row(0)));
    Widgets::press(list(), Qt::Key_Escape);
    Widgets::mouse(port(), QEvent::MouseButtonRelease, middle(3), Qt::LeftButton);
    EXPECT_EQ(undo.count(), 0);
    EXPECT_EQ(step(0).kind, StepKind::click);
}

TEST_F(StepListPaneTest, AShakyClickIsNoDrag)
{
    openSections();
    Widgets::drag(port(), middle(2), middle(2) + QPoint(2, 2));
    EXPECT_EQ(undo.count(), 0);
    EXPECT_EQ(project.selection(), step(2).id);
}

TEST_F(StepListPaneTest, PartsOfARowAreExplained)
{
    openSections();
    EXPECT_EQ(help(layout(1).chevron.center()), "Collapse section");
    StepList::toggleCollapse(project, step(1).id);
    EXPECT_EQ(help(layout(1).chevron.center()), "Expand section");
    hover(middle(0));
    EXPECT_EQ(help(layout(0).remove.center()), "Delete");
    EXPECT_TRUE(help(layout(0).run.center()).startsWith("Run Live from Here"));
}

TEST_F(StepListPaneTest, ARunButtonThatCannotRunSaysWhy)
{
    desktop.input().setMissing("No input here.");
    openSections();
    ASSERT_FALSE(view->liveRun().missing().isEmpty());
    hover(middle(0));
    EXPECT_TRUE(help(layout(0).run.center()).contains(view->liveRun().missing()));
}

TEST_F(StepListPaneTest, EveryAddButtonAddsItsKindAndIsNamedAfterIt)
{
    for (const StepKind kind : allStepKinds) {
        open({});
        auto *button = Widgets::named<QAbstractButton>(*view, "Add " + label(kind));
        ASSERT_TRUE(button) << label(kind).toStdString();
        EXPECT_EQ(button->text(), shortLabel(kind));
        EXPECT_EQ(button->toolTip(), "Add " + label(kind));
        button->click();
        ASSERT_EQ(project.steps().size(), 1);
        EXPECT_EQ(step().kind, kind);
        EXPECT_EQ(undo.undoText(), "Add " + label(kind));
        EXPECT_EQ(project.selection(), step().id);
    }
}

TEST_F(StepListPaneTest, SpaceInTheListPlaysInsteadOfSelecting)
{
    openSections();
    Widgets::press(list(), Qt::Key_Space);
    EXPECT_TRUE(view->playback().isPlaying());
    Widgets::press(list(), Qt::Key_Space);
    EXPECT_FALSE(view->playback().isPlaying());
}

TEST_F(StepListPaneTest, HomeInTheListGoesToTheStart)
{
    openSections();
    view->playback().setTime(0.5s);
    Widgets::press(list(), Qt::Key_Home);
    EXPECT_EQ(view->playback().time(), 0s);
}

TEST_F(StepListPaneTest, TenThousandRowsKeepTheirPlaceWhenOneIsDeleted)
{
    QList<Step> steps;
    for (int i = 0; i < 10000; ++i)
        steps << stepOf(StepKind::click);
    open(steps);
    project.setSelection(step(5000).id);
    const int top = list().indexAt({20, 4}).row();
    view->selection().deleteSelected();
    EXPECT_EQ(list().indexAt({20, 4}).row(), top);
    EXPECT_EQ(list().currentIndex().row(), 5000);
}

} // namespace velvane
