#include "model/Project.h"

#include "model/ProjectFile.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

class ProjectTest : public testing::Test {
protected:
    ProjectTest() { project.setUndoManager(&undo); }

    void append(const QString &text)
    {
        QList<Step> steps = project.steps();
        steps.append(Step{.kind = StepKind::type, .text = text});
        project.setSteps(steps);
    }

    void collapseFirst()
    {
        QList<Step> steps = project.steps();
        steps.first().collapsed = !steps.first().collapsed;
        project.setSteps(steps);
    }

    Project project;
    QUndoStack undo;
};

QImage redPicture()
{
    QImage picture(3, 3, QImage::Format_RGB32);
    picture.fill(Qt::red);
    return picture;
}

} // namespace

TEST_F(ProjectTest, ANewOneHoldsOneStepThatSwitchesToNoApplicationYet)
{
    ASSERT_EQ(project.steps().size(), 1);
    const Step &step = project.steps().first();
    EXPECT_EQ(step.kind, StepKind::switchApp);
    EXPECT_EQ(step.text, "");
    EXPECT_EQ(step.duration, 1.0s);
    EXPECT_EQ(step.pauseAfter, 0.8s);
    EXPECT_FALSE(project.selection());
    EXPECT_EQ(project.canvasSize(), QSizeF(1280, 800));
    EXPECT_EQ(project.startPoint(), QPointF(640, 400));
    EXPECT_EQ(project.fps(), 60);
    EXPECT_TRUE(project.background().isNull());
    EXPECT_FALSE(project.recordingBookmark());
}

TEST_F(ProjectTest, AnEditIsUndoneAndRedoneUnderItsName)
{
    const DocState before = project.docState();
    project.edit("Add Type", [&] { append("a"); });
    const DocState after = project.docState();
    EXPECT_EQ(undo.undoText(), "Add Type");

    undo.undo();
    EXPECT_TRUE(project.docState() == before);
    EXPECT_EQ(undo.redoText(), "Add Type");

    undo.redo();
    EXPECT_TRUE(project.docState() == after);
    EXPECT_EQ(undo.undoText(), "Add Type");
}

TEST_F(ProjectTest, AnEditThatChangesNothingRegistersNothing)
{
    project.edit("Change Canvas", [&] { project.setCanvasSize(project.canvasSize()); });
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(ProjectTest, ACommitWithoutAGestureRegistersNothing)
{
    append("a");
    project.commitEdit("Edit Text");
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(ProjectTest, AGestureIsOneEntryFromItsFirstState)
{
    const DocState before = project.docState();
    project.beginEdit();
    append("a");
    project.beginEdit();
    append("b");
    project.commitEdit("Edit Text");

    EXPECT_EQ(undo.count(), 1);
    undo.undo();
    EXPECT_TRUE(project.docState() == before);
}

TEST_F(ProjectTest, AGestureThatChangesNothingLeavesNoEntry)
{
    project.beginEdit();
    append("a");
    QList<Step> steps = project.steps();
    steps.removeLast();
    project.setSteps(steps);
    project.commitEdit("Edit Text");
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(ProjectTest, ASecondCommitRegistersNothing)
{
    project.beginEdit();
    append("a");
    project.commitEdit("Edit Text");
    append("b");
    project.commitEdit("Edit Text");
    EXPECT_EQ(undo.count(), 1);
}

TEST_F(ProjectTest, WhatChangedWithoutUndoIsKeptForRedo)
{
    project.edit("Add Type", [&] { append("a"); });
    collapseFirst();
    const DocState collapsed = project.docState();

    undo.undo();
    EXPECT_FALSE(project.steps().first().collapsed);
    undo.redo();
    EXPECT_TRUE(project.docState() == collapsed);
}

TEST_F(ProjectTest, ABackgroundOfEqualPixelsIsAChange)
{
    project.setBackground(redPicture());
    project.edit("Freeze Frame", [&] { project.setBackground(redPicture()); });
    EXPECT_EQ(undo.count(), 1);
}

TEST_F(ProjectTest, UndoLeavesTheSelectionEvenWhenItsStepIsGone)
{
    project.edit("Add Type", [&] { append("a"); });
    const QUuid added = project.steps().last().id;
    project.setSelection(added);
    undo.undo();
    EXPECT_EQ(project.selection(), added);
}

TEST_F(ProjectTest, UndoRestoresTheCanvasAndLeavesTheSelection)
{
    append("a");
    const QUuid last = project.steps().last().id;
    project.setSelection(last);
    const DocState before = project.docState();
    project.setCanvasSize({1920, 1080});
    project.setStartPoint({1, 2});
    project.registerUndo(before, "Change Canvas");
    project.setSelection(project.steps().first().id);
    undo.undo();
    EXPECT_EQ(project.canvasSize(), QSizeF(1280, 800));
    EXPECT_EQ(project.startPoint(), QPointF(640, 400));
    EXPECT_EQ(project.selection(), project.steps().first().id);
    project.setSelection(last);
    undo.redo();
    EXPECT_EQ(project.canvasSize(), QSizeF(1920, 1080));
    EXPECT_EQ(project.selection(), last);
}

TEST_F(ProjectTest, WithoutAnUndoManagerEditsApply)
{
    project.setUndoManager(nullptr);
    project.edit("Add Type", [&] { append("a"); });
    EXPECT_EQ(project.steps().size(), 2);
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(ProjectTest, AnUndoManagerThatIsGoneIsAbsent)
{
    {
        QUndoStack shortLived;
        project.setUndoManager(&shortLived);
    }
    project.edit("Add Type", [&] { append("a"); });
    EXPECT_EQ(project.steps().size(), 2);
}

TEST_F(ProjectTest, AnnouncesEachChangeBeforeAndAfter)
{
    QStringList seen;
    const auto note = [&](const char *what) {
        return [&seen, what, this] { seen << QString("%1 %2").arg(what).arg(project.fps()); };
    };
    QObject::connect(&project, &Project::willChange, note("will"));
    QObject::connect(&project, &Project::fpsChanged, note("fps"));
    project.setFps(30);
    EXPECT_EQ(seen, QStringList({"will 60", "fps 30"}));
}

TEST_F(ProjectTest, SettingAnEqualValueAnnouncesNothing)
{
    project.setBackground(redPicture());
    int changes = 0;
    QObject::connect(&project, &Project::willChange, [&] { ++changes; });
    QList<Step> same = project.steps();
    same.detach();
    project.setSteps(same);
    project.setSelection({});
    project.setCanvasSize({1280, 800});
    project.setStartPoint({640, 400});
    project.setFps(60);
    project.setBackground(project.background());
    project.setRecordingBookmark({});
    EXPECT_EQ(changes, 0);
}

TEST_F(ProjectTest, StatesAreAppliedFieldByFieldInOrder)
{
    QStringList seen;
    QObject::connect(&project, &Project::stepsChanged, [&] { seen << "steps"; });
    QObject::connect(&project, &Project::startPointChanged, [&] { seen << "startPoint"; });
    QObject::connect(&project, &Project::canvasSizeChanged, [&] { seen << "canvasSize"; });
    QObject::connect(&project, &Project::fpsChanged, [&] { seen << "fps"; });
    QObject::connect(&project, &Project::backgroundChanged, [&] { seen << "background"; });
    QObject::connect(&project, &Project::recordingBookmarkChanged, [&] { seen << "bookmark"; });
    project.applyDocState({.steps = {},
                           .startPoint = {1, 1},
                           .canvasSize = {2, 2},
                           .fps = 3,
                           .background = redPicture(),
                           .recordingBookmark = QByteArray("b")});
    EXPECT_EQ(seen,
              QStringList({"steps", "startPoint", "canvasSize", "fps", "background", "bookmark"}));
}

TEST_F(ProjectTest, ASnapshotIsNotChangedByLaterEdits)
{
    project.setBackground(redPicture());
    const Snapshot snap = project.snapshot();
    append("later");
    project.setFps(1);
    EXPECT_EQ(snap.steps.size(), 1);
    EXPECT_EQ(snap.fps, 60);
    EXPECT_EQ(snap.canvasSize, QSizeF(1280, 800));
    EXPECT_EQ(snap.startPoint, QPointF(640, 400));
    EXPECT_EQ(snap.background.cacheKey(), project.background().cacheKey());
}

TEST_F(ProjectTest, AFileBecomesTheProjectAndBack)
{
    project.setBackground(redPicture());
    project.setRecordingBookmark(QByteArray("movie"));
    append("a");
    const ProjectFile file = project.fileSnapshot();
    EXPECT_EQ(file.version, 1);

    const Project read(file);
    EXPECT_EQ(read.steps(), project.steps());
    EXPECT_EQ(read.canvasSize(), project.canvasSize());
    EXPECT_EQ(read.startPoint(), project.startPoint());
    EXPECT_EQ(read.fps(), project.fps());
    EXPECT_EQ(read.background(), redPicture());
    EXPECT_EQ(read.recordingBookmark(), QByteArray("movie"));
}

TEST_F(ProjectTest, WithoutABackgroundTheFileHasNone)
{
    EXPECT_FALSE(project.fileSnapshot().background);
}

TEST_F(ProjectTest, StatesShareTheirStepsUntilOneChanges)
{
    const DocState state = project.docState();
    EXPECT_EQ(state.steps.constData(), project.steps().constData());
}

} // namespace velvane
