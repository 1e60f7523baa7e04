#include "editor/SeveralStepsForm.h"

#include "editor/InspectorPane.h"
#include "editor/NumberField.h"
#include "support/EditorFixture.h"

#include <QLabel>
#include <QPushButton>

namespace velvane {

namespace {

struct SeveralStepsTest : EditorFixture {
    void openAndSelect(const QList<Step> &steps, const QList<int> &selected)
    {
        open(steps);
        QSet<QUuid> ids;
        for (const int index : selected)
            ids << steps[index].id;
        view->selection().setSelectedIDs(ids);
    }
    QWidget &pane() { return view->inspectorPane(); }
    QStringList texts()
    {
        QStringList shown;
        for (const QLabel *label : pane().findChildren<QLabel *>())
            if (label->isVisible() && !label->text().isEmpty())
                shown << label->text();
        return shown;
    }
    template <typename Widget>
    Widget *visible(const QString &name)
    {
        for (auto *widget : pane().findChildren<Widget *>())
            if (widget->isVisible() && widget->accessibleName() == name)
                return widget;
        return nullptr;
    }
};

QList<Step> fourSteps()
{
    return {{.kind = StepKind::click, .pauseAfter = 0.5s},
            {.kind = StepKind::move, .duration = 2s, .pauseAfter = 0.5s},
            {.kind = StepKind::click, .pauseAfter = 0.5s},
            {.kind = StepKind::wait, .pauseAfter = 4s}};
}

} // namespace

TEST_F(SeveralStepsTest, TheInspectorSaysHowManyAreSelectedAndOfWhichKinds)
{
    openAndSelect(fourSteps(), {0, 1, 2});
    const QStringList shown = texts();
    EXPECT_TRUE(shown.contains("3 steps selected"));
    EXPECT_TRUE(shown.contains("Move to"));
    EXPECT_EQ(shown.indexOf("2"), shown.indexOf("Click") + 1);
    EXPECT_FALSE(shown.contains("Wait"));
    EXPECT_TRUE(shown.contains("3.5s"));
}

TEST_F(SeveralStepsTest, OneStepAloneShowsItsOwnFields)
{
    openAndSelect(fourSteps(), {0, 1});
    view->selection().select(step(3).id);
    EXPECT_FALSE(texts().contains("2 steps selected"));
    EXPECT_TRUE(texts().contains("Wait"));
}

TEST_F(SeveralStepsTest, StepsThatAreGoneDoNotCount)
{
    openAndSelect(fourSteps(), {0, 1, 2});
    project.setSteps(project.steps().mid(1));
    EXPECT_TRUE(texts().contains("2 steps selected"));
}

TEST_F(SeveralStepsTest, ASharedPauseIsSetForAllAsOneEdit)
{
    openAndSelect(fourSteps(), {0, 1, 2});
    auto *pause = visible<NumberField>("Pause of all selected");
    ASSERT_TRUE(pause);
    EXPECT_EQ(pause->value(), 0.5);
    Widgets::focus(*pause, true);
    Widgets::press(*pause, Qt::Key_Up);
    Widgets::press(*pause, Qt::Key_Up);
    Widgets::focus(*pause, false);
    for (const int index : {0, 1, 2})
        EXPECT_EQ(step(index).pauseAfter, 0.7s);
    EXPECT_EQ(step(3).pauseAfter, 4s);
    EXPECT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.undoText(), "Change Pause");
    undo.undo();
    EXPECT_EQ(pause->value(), 0.5);
}

TEST_F(SeveralStepsTest, DifferentPausesAreNotOffered)
{
    openAndSelect(fourSteps(), {0, 3});
    EXPECT_FALSE(visible<NumberField>("Pause of all selected"));
}

TEST_F(SeveralStepsTest, TheyAreDuplicatedTogether)
{
    openAndSelect(fourSteps(), {0, 2});
    auto *duplicate = visible<QPushButton>("Duplicate");
    ASSERT_TRUE(duplicate);
    duplicate->click();
    EXPECT_EQ(project.steps().size(), 6);
    EXPECT_EQ(undo.undoText(), "Duplicate Steps");
}

TEST_F(SeveralStepsTest, TheyAreDeletedTogether)
{
    openAndSelect(fourSteps(), {0, 2});
    auto *remove = visible<QPushButton>("Delete Steps");
    ASSERT_TRUE(remove);
    remove->click();
    EXPECT_EQ(project.steps().size(), 2);
    EXPECT_EQ(undo.undoText(), "Delete Step");
}

} // namespace velvane
