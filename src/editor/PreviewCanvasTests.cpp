#include "support/CanvasStage.h"

#include "editor/CanvasHint.h"
#include "editor/Theme.h"
#include "render/FrameRenderer.h"
#include "support/Pixels.h"
#include "support/Print.h"

#include <QLabel>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace velvane {

namespace {

const QList<Step> twoMoves{{.point = {400, 400}}, {.point = {1200, 800}}};

/// Counts what is repainted.
class Repaints : public QObject {
public:
    explicit Repaints(QWidget &widget) { widget.installEventFilter(this); }
    QRegion region;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
};

QImage picture(PreviewCanvas &canvas)
{
    QImage image(canvas.size(), QImage::Format_ARGB32_Premultiplied);
    canvas.render(&image);
    return image;
}

} // namespace

TEST(PreviewCanvas, TheCanvasIsFittedIntoWhatTheMarginsLeave)
{
    CanvasStage stage;
    EXPECT_EQ(stage.canvas.scale(), 0.5);
    EXPECT_EQ(stage.canvas.canvasRect(), QRectF(20, 50, 960, 540));
    stage.canvas.setMargin(0);
    stage.canvas.resize(960, 600);
    EXPECT_EQ(stage.canvas.canvasRect(), QRectF(0, 30, 960, 540));
}

TEST(PreviewCanvas, MagnifiedItIsDrawnFourTimesAsLargeAroundItsCentre)
{
    CanvasStage stage;
    stage.controller.setMagnify(true);
    EXPECT_EQ(stage.canvas.scale(), 2);
    EXPECT_EQ(stage.canvas.toWidget({960, 540}), QPointF(500, 320));
}

TEST(PreviewCanvas, MagnifiedTheSelectedTargetIsAtTheCentre)
{
    CanvasStage stage(twoMoves);
    stage.project.setSelection(stage.step(1).id);
    stage.controller.setMagnify(true);
    EXPECT_EQ(stage.canvas.toWidget({1200, 800}), QPointF(500, 320));
}

TEST(PreviewCanvas, AStageSmallerThanItsMarginsShowsNoCanvas)
{
    CanvasStage stage(twoMoves, {30, 20});
    EXPECT_TRUE(stage.canvas.canvasRect().isEmpty());
    stage.click({15, 10});
    EXPECT_EQ(stage.project.steps().size(), 2);
    stage.canvas.grab();
}

TEST(PreviewCanvas, ItSaysWhenThePlaceOfTheCanvasChanges)
{
    CanvasStage stage;
    const QSignalSpy changes(&stage.canvas, &PreviewCanvas::placeChanged);
    stage.controller.setMagnify(true);
    EXPECT_EQ(changes.size(), 1);
    stage.controller.pan().setHovering(true);
    stage.wheel({5, 5});
    EXPECT_EQ(changes.size(), 2);
    stage.project.setCanvasSize({100, 100});
    EXPECT_EQ(changes.size(), 3);
}

TEST(PreviewCanvas, WithAStepSelectedTheStartPointHasNoHandle)
{
    CanvasStage stage(twoMoves);
    stage.project.setSelection(stage.step(0).id);
    EXPECT_FALSE(stage.canvas.scene().marks().startHandle);
    stage.project.setSelection({});
    EXPECT_EQ(stage.canvas.scene().marks().startHandle, QPointF(500, 320));
}

TEST(PreviewCanvas, AtTheStartNoCursorShows)
{
    CanvasStage stage(twoMoves);
    EXPECT_FALSE(stage.canvas.scene().frame());
    stage.playback.setTime(0.5s);
    EXPECT_EQ(stage.canvas.scene().frame(), stage.timeline.state());
    stage.playback.setTime(0s);
    EXPECT_FALSE(stage.canvas.scene().frame());
}

TEST(PreviewCanvas, WhilePlayingTheCursorShowsFromTheStartAndTheMarksFade)
{
    CanvasStage stage(twoMoves);
    stage.playback.play(60);
    EXPECT_TRUE(stage.canvas.scene().frame());
    EXPECT_TRUE(stage.canvas.scene().isFaded());
    stage.playback.tick();
    stage.playback.pause();
    EXPECT_TRUE(stage.canvas.scene().frame());
    EXPECT_FALSE(stage.canvas.scene().isFaded());
}

TEST(PreviewCanvas, AtScaleOneTheCursorIsTheExportedOne)
{
    CanvasStage stage({{.point = {300, 200}}});
    stage.project.setCanvasSize({400, 300});
    stage.project.setStartPoint({20, 20});
    stage.canvas.resize(440, 340);
    stage.playback.setTime(0.5s);
    const QImage shown =
        stage.canvas.grab().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage exported = FrameRenderer::image(stage.project.snapshot(), stage.timeline.state());
    const QRect cursor(QPoint(155, 105), QSize(40, 50));
    ASSERT_TRUE(cursor.contains(stage.timeline.state().cursor.toPoint()));
    EXPECT_EQ(difference(shown.copy(cursor.translated(20, 20)), exported.copy(cursor)), 0);
}

TEST(PreviewCanvas, WhilePlayingOnlyTheCursorsSurroundingsAreRepainted)
{
    CanvasStage stage(twoMoves);
    stage.canvas.show();
    // So slow that the clock does not tick by itself.
    stage.playback.play(1);
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
    const QRegion before = stage.canvas.scene().frameBounds();
    Repaints repaints(stage.canvas);
    stage.playback.tick();
    QApplication::processEvents();
    const QRegion expected = before + stage.canvas.scene().frameBounds();
    EXPECT_FALSE(repaints.region.isEmpty());
    EXPECT_TRUE((repaints.region - expected).isEmpty());
    for (const QRect &rect : expected)
        EXPECT_LT(rect.width(), 60);
}

TEST(PreviewCanvas, WhatIsRepaintedWhilePlayingIsAllThatChanges)
{
    CanvasStage stage(twoMoves);
    stage.playback.play(60);
    for (int i = 0; i < 30; ++i) {
        const QImage before = stage.canvas.grab().toImage();
        const QRegion covered = stage.canvas.scene().frameBounds();
        stage.playback.tick();
        const QImage after = stage.canvas.grab().toImage();
        ASSERT_EQ(changesOutside(covered + stage.canvas.scene().frameBounds(), before, after), 0);
    }
    stage.playback.pause();
}

TEST(PreviewCanvas, AnEditRepaintsTheMarks)
{
    CanvasStage stage(twoMoves);
    EXPECT_EQ(stage.canvas.scene().marks().markers.size(), 2);
    stage.click({120, 150});
    EXPECT_EQ(stage.canvas.scene().marks().markers.size(), 3);
    stage.undo.undo();
    EXPECT_EQ(stage.canvas.scene().marks().markers.size(), 2);
}

TEST(PreviewCanvas, EditsRepaintOnlyWhatTheyChangeAndAllOfIt)
{
    const QList<Step> steps{{.point = {200, 200}}, {.kind = StepKind::click},
                            {.point = {900, 700}}, {.kind = StepKind::wait},
                            {.point = {930, 720}}, {.kind = StepKind::type},
                            {.point = {1700, 300}}};
    CanvasStage stage(steps);
    const auto move = [&](int index, QPointF to) {
        QList<Step> changed = stage.project.steps();
        changed[index].point = to;
        stage.project.setSteps(changed);
    };
    const std::vector<std::function<void()>> edits{
        [&] { stage.project.setSelection(steps[2].id); },
        [&] { stage.project.setSelection(steps[4].id); },
        [&] {
            move(4, {1000, 300});
        },
        [&] {
            move(0, {300, 250});
        },
        [&] { stage.project.setSteps(stage.project.steps().mid(1)); },
        [&] { stage.project.setSelection({}); },
        [&] {
            stage.project.setStartPoint({100, 900});
        },
        [&] { stage.playback.setTime(1s); },
        [&] { stage.project.setSteps({steps[4]}); },
        [&] { stage.project.setSteps(steps); },
    };
    stage.canvas.show();
    stage.canvas.setFocusPolicy(Qt::NoFocus); // the ring is not what this is about
    stage.canvas.clearFocus();
    QApplication::processEvents();
    Repaints repaints(stage.canvas);
    for (std::size_t i = 0; i < edits.size(); ++i) {
        stage.canvas.scene();
        QImage patched = picture(stage.canvas);
        repaints.region = {};
        edits[i]();
        for (int turn = 0; turn < 3; ++turn)
            QApplication::processEvents();
        const QRegion changed = repaints.region;
        EXPECT_FALSE(changed.isEmpty()) << i;
        EXPECT_NE(changed.boundingRect(), stage.canvas.rect()) << i;
        stage.canvas.render(&patched, changed.boundingRect().topLeft(), changed, {});
        CanvasStage fresh(stage.project.steps());
        fresh.project.setSelection(stage.project.selection());
        fresh.project.setStartPoint(stage.project.startPoint());
        fresh.playback.setTime(stage.playback.time());
        EXPECT_EQ(difference(patched, picture(fresh.canvas)), 0) << i;
    }
}

TEST(PreviewCanvas, TheSourcesPictureLiesOverTheDemosOwn)
{
    CanvasStage stage;
    const auto centre = [&] { return stage.canvas.grab().toImage().pixelColor(100, 100); };
    stage.project.setSteps(twoMoves);
    stage.project.setBackground(blank({1920, 1080}, Qt::green));
    EXPECT_EQ(centre(), QColor(Qt::green));
    stage.canvas.setBackdrop(blank({1920, 1080}, Qt::blue));
    EXPECT_EQ(centre(), QColor(Qt::blue));
    stage.canvas.setBackdrop({});
    EXPECT_EQ(centre(), QColor(Qt::green));
}

TEST(PreviewCanvas, AnEmptyDemoShowsTheHintUntilItHasAStep)
{
    CanvasStage stage;
    stage.canvas.grab();
    const CanvasHint *hint = &stage.canvas.hint();
    EXPECT_FALSE(hint->isHidden());
    EXPECT_EQ(hint->findChild<QLabel *>()->text(),
              "Add a step above, or click the preview to drop a Move waypoint. Turn on Live for "
              "your real screen, then Freeze to pick targets against a still. Press Z to magnify.");
    EXPECT_EQ(hint->width(), 376);
    EXPECT_NEAR(hint->geometry().center().x(), 500, 1);
    EXPECT_NEAR(hint->geometry().center().y(), 320, 1);
    stage.click({120, 150});
    stage.canvas.grab();
    EXPECT_TRUE(hint->isHidden());
}

TEST(PreviewCanvas, FocusShowsAsARingInTheAccent)
{
    CanvasStage stage(twoMoves);
    const QColor accent = Theme::instance().colors().accent;
    const QPoint edge(500, 48);
    EXPECT_NE(stage.canvas.grab().toImage().pixelColor(edge), accent);
    stage.canvas.show();
    QApplication::setActiveWindow(&stage.canvas);
    stage.canvas.setFocus();
    EXPECT_EQ(stage.canvas.grab().toImage().pixelColor(edge), accent);
}

} // namespace velvane
