#include "editor/StepListModel.h"

#include "model/StepList.h"
#include "support/Print.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace velvane {

namespace {

Step named(const QString &name, StepKind kind = StepKind::wait, bool collapsed = false)
{
    Step step;
    step.kind = kind;
    step.text = name;
    step.collapsed = collapsed;
    return step;
}

// A, section S (expanded), B, C, section T (expanded), D
class StepListModelTest : public testing::Test {
protected:
    StepListModelTest()
    {
        project.setSteps({named("A"), named("S", StepKind::section), named("B"), named("C"),
                          named("T", StepKind::section), named("D")});
        model = std::make_unique<StepListModel>(project);
        tester = std::make_unique<QAbstractItemModelTester>(
            model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        listen();
    }

    void listen()
    {
        const auto rows = [this](const char *what, int first, int last) {
            heard << QStringLiteral("%1 %2-%3").arg(QString::fromLatin1(what)).arg(first).arg(last);
        };
        const StepListModel *m = model.get();
        QObject::connect(m, &StepListModel::rowsInserted,
                         [=](auto, int first, int last) { rows("insert", first, last); });
        QObject::connect(m, &StepListModel::rowsRemoved,
                         [=](auto, int first, int last) { rows("remove", first, last); });
        QObject::connect(m, &StepListModel::rowsMoved,
                         [=, this](auto, int first, int last, auto, int to) {
                             rows("move", first, last);
                             heard.last() += QStringLiteral(" to %1").arg(to);
                         });
        QObject::connect(m, &StepListModel::dataChanged,
                         [=](const QModelIndex &first, const QModelIndex &last) {
                             rows("change", first.row(), last.row());
                         });
        QObject::connect(m, &StepListModel::modelReset, [this] { heard << "reset"; });
    }

    QString order() const
    {
        QString names;
        for (int row = 0; row < model->rowCount(); ++row)
            names += model->row(row).step.text;
        return names;
    }

    QVariant at(int row, int role) const { return model->data(model->index(row), role); }

    Project project;
    std::unique_ptr<StepListModel> model;
    std::unique_ptr<QAbstractItemModelTester> tester;
    QStringList heard;
};

} // namespace

TEST_F(StepListModelTest, ARowTellsAllThatIsShown)
{
    EXPECT_EQ(order(), "ASBCTD");
    EXPECT_EQ(at(2, Qt::DisplayRole), "Wait 0.3s");
    EXPECT_EQ(at(2, StepListModel::IdRole).toUuid(), project.steps()[2].id);
    EXPECT_EQ(at(2, StepListModel::KindRole), static_cast<int>(StepKind::wait));
    EXPECT_EQ(at(2, StepListModel::NumberRole), 2);
    EXPECT_EQ(at(2, StepListModel::LengthTextRole), "0.3s");
    EXPECT_EQ(at(2, StepListModel::IndentedRole), true);
    EXPECT_EQ(at(0, StepListModel::IndentedRole), false);
    EXPECT_EQ(at(2, StepListModel::IndexRole), 2);
    EXPECT_EQ(at(2, Qt::AccessibleTextRole), "2, Wait 0.3s, 0.3s");
    EXPECT_FALSE(at(2, Qt::DecorationRole).isValid());
}

TEST_F(StepListModelTest, ASectionHasNoNumberAndTheLengthOfItsSteps)
{
    EXPECT_FALSE(at(1, StepListModel::NumberRole).isValid());
    EXPECT_EQ(at(1, StepListModel::LengthTextRole), "0.6s");
    EXPECT_EQ(at(1, StepListModel::CollapsedRole), false);
    StepList::toggleCollapse(project, project.steps()[1].id);
    EXPECT_EQ(at(1, StepListModel::LengthTextRole), "0.6s");
    EXPECT_EQ(at(1, StepListModel::CollapsedRole), true);
}

TEST_F(StepListModelTest, AMovesLengthIsItsActionAndItsPause)
{
    Step move;
    move.duration = 1.2s;
    move.pauseAfter = 0.2s;
    project.setSteps({move});
    EXPECT_EQ(at(0, StepListModel::LengthTextRole), "1.4s");
}

TEST_F(StepListModelTest, FoldingRemovesTheRowsOfASection)
{
    StepList::toggleCollapse(project, project.steps()[1].id);
    EXPECT_EQ(order(), "ASTD");
    EXPECT_EQ(heard, QStringList({"remove 2-3", "change 1-1"}));
    heard.clear();
    StepList::toggleCollapse(project, project.steps()[1].id);
    EXPECT_EQ(order(), "ASBCTD");
    EXPECT_EQ(heard, QStringList({"insert 2-3", "change 1-1"}));
}

TEST_F(StepListModelTest, AChangedStepChangesItsRowAndItsSectionsLength)
{
    QList<Step> steps = project.steps();
    steps[3].pauseAfter = 2s;
    project.setSteps(steps);
    EXPECT_EQ(heard, QStringList({"change 1-1", "change 3-3"}));
}

TEST_F(StepListModelTest, ATextChangesOneRow)
{
    QList<Step> steps = project.steps();
    steps[0].text = "Z";
    project.setSteps(steps);
    EXPECT_EQ(heard, QStringList({"change 0-0"}));
    EXPECT_EQ(order(), "ZSBCTD");
}

TEST_F(StepListModelTest, AnAddedStepIsOneInsertedRow)
{
    project.setSelection(project.steps()[5].id);
    StepList::addStep(project, StepKind::wait);
    EXPECT_EQ(heard, QStringList({"insert 6-6", "change 4-4"}));
}

TEST_F(StepListModelTest, DeletedStepsAreRemovedRowsWhereverTheyStand)
{
    StepList::deleteSelected(project, {project.steps()[0].id, project.steps()[5].id});
    EXPECT_EQ(order(), "SBCT");
    EXPECT_EQ(heard.mid(0, 2), QStringList({"remove 5-5", "remove 0-0"}));
    EXPECT_FALSE(heard.contains("reset"));
}

TEST_F(StepListModelTest, ADraggedSectionIsMovedRows)
{
    StepList::moveVisible(project, {1}, 6);
    EXPECT_EQ(order(), "ATDSBC");
    EXPECT_EQ(heard.first(), "move 1-3 to 6");
    EXPECT_FALSE(heard.contains("reset"));
}

TEST_F(StepListModelTest, AStepDraggedUpIsMovedRows)
{
    StepList::moveVisible(project, {5}, 0);
    EXPECT_EQ(order(), "DASBCT");
    EXPECT_EQ(heard.first(), "move 0-4 to 6");
}

TEST_F(StepListModelTest, AShuffledListIsReset)
{
    const QList<Step> s = project.steps();
    project.setSteps({s[5], s[0], s[4], s[1], s[3], s[2]});
    EXPECT_EQ(order(), "DATSCB");
    EXPECT_EQ(heard, QStringList({"reset"}));
}

TEST_F(StepListModelTest, ASelectionAloneChangesNoRow)
{
    project.setSelection(project.steps()[0].id);
    EXPECT_TRUE(heard.isEmpty());
}

TEST_F(StepListModelTest, AStepIsFoundByItsId)
{
    EXPECT_EQ(model->rowOf(project.steps()[3].id), 3);
    EXPECT_EQ(model->rowOf(QUuid::createUuid()), -1);
    StepList::toggleCollapse(project, project.steps()[1].id);
    EXPECT_EQ(model->rowOf(project.steps()[3].id), -1);
    EXPECT_EQ(model->rowOf(project.steps()[5].id), 3);
}

TEST_F(StepListModelTest, NeighbouringRowsAreSelectedInOneStretch)
{
    const auto id = [this](int index) { return project.steps()[index].id; };
    const QItemSelection rows = model->rowsOf({id(0), id(1), id(2), id(4), id(5), QUuid()});
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].top(), 0);
    EXPECT_EQ(rows[0].bottom(), 2);
    EXPECT_EQ(rows[1].top(), 4);
    EXPECT_EQ(rows[1].bottom(), 5);
    EXPECT_TRUE(model->rowsOf({}).isEmpty());
}

TEST_F(StepListModelTest, AfterAnyEditsItHoldsWhatAFreshModelHolds)
{
    std::mt19937 random(7);
    QUndoStack undo;
    project.setUndoManager(&undo);
    for (int round = 0; round < 400; ++round) {
        const QList<Step> &steps = project.steps();
        const auto pick = [&] { return static_cast<qsizetype>(random() % 16); };
        if (!steps.isEmpty())
            project.setSelection(steps[pick() % steps.size()].id);
        switch (random() % 6) {
        case 0:
        case 1:
            StepList::addStep(project, allStepKinds[random() % allStepKinds.size()]);
            break;
        case 2:
            StepList::moveVisible(project, {pick()}, pick());
            break;
        case 3:
            StepList::toggleCollapse(project, project.selection().value_or(QUuid()));
            break;
        case 4:
            StepList::deleteSelected(project, {});
            break;
        default:
            undo.undo();
        }
        const StepListModel fresh(project);
        ASSERT_EQ(model->rowCount(), fresh.rowCount());
        for (int row = 0; row < fresh.rowCount(); ++row)
            ASSERT_EQ(model->row(row), fresh.row(row)) << round << ' ' << row;
    }
    EXPECT_FALSE(heard.isEmpty());
}

} // namespace velvane
