#include "editor/CanvasScene.h"

#include "editor/Theme.h"
#include "render/FrameRenderer.h"
#include "support/Pixels.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

const QSize size(400, 300);
const QRectF canvas(40, 30, 320, 240);

QImage noise(QSize of)
{
    QImage image(of, QImage::Format_RGB32);
    for (int y = 0; y < of.height(); ++y)
        for (int x = 0; x < of.width(); ++x)
            image.setPixel(x, y, qRgb(x * 37 % 256, y * 53 % 256, (x * y) % 256));
    return image;
}

CanvasScene scene(const QList<Step> &steps = {})
{
    CanvasScene scene;
    scene.setPlace(canvas, {320, 240}, size);
    CanvasMarks marks = CanvasMarks::of(
        moveGroups(steps), {}, CanvasGeometry({320, 240}, {320, 240}), {-40, -30, 400, 300});
    marks.translate(canvas.topLeft());
    scene.setMarks(marks);
    return scene;
}

QList<Step> twoMoves()
{
    return {{.point = {60, 60}}, {.kind = StepKind::click}, {.point = {250, 180}}};
}

QImage paint(CanvasScene &scene, double ratio = 1, const QRegion &region = QRect({}, size),
             QImage onto = {})
{
    if (onto.isNull()) {
        onto = QImage((QSizeF(size) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
        onto.fill(Qt::magenta);
    }
    onto.setDevicePixelRatio(ratio);
    QPainter painter(&onto);
    scene.paint(painter, region);
    return onto;
}

} // namespace

TEST(CanvasScene, WithoutAPictureTheCanvasIsTheRenderersGradient)
{
    CanvasScene stage = scene();
    Snapshot snap;
    snap.canvasSize = {320, 240};
    QImage expected(320, 240, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&expected);
    FrameRenderer::drawBackdrop(painter, snap);
    EXPECT_EQ(difference(paint(stage).copy(40, 30, 320, 240), expected), 0);
}

TEST(CanvasScene, APictureOfTheCanvasesSizeIsShownPixelForPixel)
{
    CanvasScene stage = scene();
    stage.setPicture(noise({320, 240}));
    EXPECT_EQ(difference(paint(stage).copy(40, 30, 320, 240), noise({320, 240})), 0);
}

TEST(CanvasScene, OnADenseScreenEveryPixelOfALargePictureIsShown)
{
    CanvasScene stage = scene();
    stage.setPicture(noise({640, 480}));
    EXPECT_EQ(difference(paint(stage, 2).copy(80, 60, 640, 480), noise({640, 480})), 0);
}

TEST(CanvasScene, AFractionalScaleResamplesNothingThatFits)
{
    CanvasScene stage = scene();
    stage.setPicture(noise({480, 360}));
    EXPECT_EQ(difference(paint(stage, 1.5).copy(60, 45, 480, 360), noise({480, 360})), 0);
}

TEST(CanvasScene, TheCanvasLiesOnWholeDevicePixels)
{
    CanvasScene stage = scene();
    stage.setPlace({40.3, 30.4, 319.5, 239.6}, {320, 240}, size);
    stage.setPicture(noise({320, 240}));
    EXPECT_EQ(difference(paint(stage).copy(40, 30, 320, 240), noise({320, 240})), 0);
}

TEST(CanvasScene, WhereTheWidgetLiesBetweenDevicePixelsThePictureStaysSharp)
{
    CanvasScene stage = scene();
    stage.setPicture(noise({400, 300}));
    QImage shown(600, 450, QImage::Format_ARGB32_Premultiplied);
    shown.setDevicePixelRatio(1.25);
    QPainter painter(&shown);
    painter.translate(3, 3);
    stage.paint(painter, QRect({}, size));
    painter.end();
    shown.setDevicePixelRatio(1);
    EXPECT_EQ(difference(shown.copy(54, 41, 400, 300), noise({400, 300})), 0);
}

TEST(CanvasScene, APictureOfAnotherShapeIsStretched)
{
    CanvasScene stage = scene();
    stage.setPicture(blank({10, 90}, Qt::green));
    EXPECT_EQ(difference(paint(stage).copy(40, 30, 320, 240), blank({320, 240}, Qt::green)), 0);
}

TEST(CanvasScene, TheCanvasIsSurroundedByAHairlineAndAShadowOnTheStage)
{
    const ThemeColors &colors = Theme::instance().colors();
    CanvasScene stage = scene();
    for (const int ratio : {1, 2}) {
        const QImage shown = paint(stage, ratio);
        EXPECT_EQ(shown.pixelColor(39 * ratio, 100 * ratio), colors.canvasHairline);
        EXPECT_EQ(shown.pixelColor(200 * ratio, 270 * ratio), colors.canvasHairline);
        const QColor shadow = shown.pixelColor(200 * ratio, 275 * ratio);
        EXPECT_LT(shadow.lightness(), colors.stage.lightness());
        EXPECT_GT(shown.pixelColor(0, 0).lightness(), shadow.lightness());
    }
}

TEST(CanvasScene, TheFrameShowsAsItIsExported)
{
    CanvasScene stage = scene();
    stage.setPicture(noise({320, 240}));
    const FrameState state{
        .cursor = {100.5, 80.25}, .ripple = 0.5, .caption = QStringLiteral("Hi")};
    stage.setFrame(state);
    Snapshot snap;
    snap.canvasSize = {320, 240};
    snap.background = noise({320, 240});
    EXPECT_EQ(difference(paint(stage).copy(40, 30, 320, 240), FrameRenderer::image(snap, state)),
              0);
}

TEST(CanvasScene, ThePathIsBlackUnderWhite)
{
    CanvasScene stage = scene({{.point = {60, 120}}, {.point = {260, 120}}});
    stage.setPicture(blank({320, 240}, Qt::red));
    const QImage shown = paint(stage);
    EXPECT_EQ(shown.pixelColor(200, 150), QColor(Qt::white));
    EXPECT_EQ(shown.pixelColor(200, 152), QColor(255 - qRound(255 * 0.55), 0, 0));
    EXPECT_EQ(shown.pixelColor(200, 155), QColor(Qt::red));
}

TEST(CanvasScene, AMarkerIsDarkWithAWhiteBorderAndTheActiveOneInTheAccent)
{
    const QList<Step> steps{{.point = {60, 120}}, {.point = {260, 120}}};
    CanvasScene stage = scene();
    stage.setPicture(blank({320, 240}, Qt::red));
    CanvasMarks marks =
        CanvasMarks::of(moveGroups(steps), steps[1].id, CanvasGeometry({320, 240}, {320, 240}),
                        QRectF(-40, -30, 400, 300));
    marks.translate(canvas.topLeft());
    stage.setMarks(marks);
    const QImage shown = paint(stage);
    EXPECT_EQ(shown.pixelColor(100, 142).red(), 255 - qRound(255 * 0.72));
    EXPECT_EQ(shown.pixelColor(300, 140), Theme::instance().colors().accent);
    EXPECT_GT(qGreen(shown.pixel(100, 138)), 200);
}

TEST(CanvasScene, FadedMarksShowTheBackdropThroughButTheCursorDoesNotFade)
{
    CanvasScene stage = scene({{.point = {60, 120}}, {.point = {260, 120}}});
    stage.setPicture(blank({320, 240}, Qt::red));
    stage.setFrame(FrameState{.cursor = {150, 20}});
    const QImage plain = paint(stage);
    stage.setFaded(true);
    const QImage faded = paint(stage);
    EXPECT_GT(faded.pixelColor(200, 150).green(), 80);
    EXPECT_LT(faded.pixelColor(200, 150).green(), 140);
    const QRect cursor(180, 45, 40, 45);
    EXPECT_EQ(difference(plain.copy(cursor), faded.copy(cursor)), 0);
}

TEST(CanvasScene, FadedWhereMarksOverlapOnlyTheUpperOneShows)
{
    CanvasScene stage = scene({{.point = {100, 120}}, {.point = {260, 120}}});
    stage.setPicture(blank({320, 240}, Qt::red));
    stage.setFaded(true);
    // The white line over its black casing, at 40 % over red.
    EXPECT_NEAR(paint(stage).pixelColor(220, 150).green(), 102, 1);
}

TEST(CanvasScene, PaintingRegionByRegionGivesTheWholePicture)
{
    for (const double ratio : {1.0, 1.5, 2.0})
        for (const bool faded : {false, true}) {
            CanvasScene stage = scene(twoMoves());
            stage.setPicture(noise({320, 240}));
            stage.setFaded(faded);
            stage.setFrame(FrameState{.cursor = {70, 66}, .ripple = 0.5});
            QImage shown = paint(stage, ratio);
            const QRegion before = stage.frameBounds();
            stage.setFrame(FrameState{.cursor = {90, 90}, .held = true});
            const QRegion changed = before + stage.frameBounds();
            shown = paint(stage, ratio, changed, shown);
            EXPECT_EQ(difference(shown, paint(stage, ratio)), 0) << ratio << faded;
        }
}

TEST(CanvasScene, PaintingARegionTouchesNothingElse)
{
    CanvasScene stage = scene(twoMoves());
    const QRegion region(80, 70, 60, 50);
    const QImage untouched = blank(size, Qt::magenta);
    EXPECT_EQ(changesOutside(region, untouched, paint(stage, 1, region)), 0);
}

TEST(CanvasScene, AMagnifiedCanvasCoversTheView)
{
    CanvasScene stage = scene();
    stage.setPlace({-500, -400, 1280, 960}, {320, 240}, size);
    stage.setPicture(blank({320, 240}, Qt::green));
    EXPECT_EQ(difference(paint(stage), blank(size, Qt::green)), 0);
}

TEST(CanvasScene, APannedCanvasLooksLikeOneDrawnThere)
{
    for (const QImage &picture : {noise({320, 240}), noise({1280, 960}), QImage()}) {
        CanvasScene panned = scene();
        panned.setPicture(picture);
        for (const QPointF at : {QPointF(-500, -400), QPointF(-480, -430), QPointF(-900, -100),
                                 QPointF(60, 20), QPointF(-300, -300)}) {
            panned.setPlace({at, QSizeF(1280, 960)}, {320, 240}, size);
            CanvasScene fresh = scene();
            fresh.setPicture(picture);
            fresh.setPlace({at, QSizeF(1280, 960)}, {320, 240}, size);
            EXPECT_LE(difference(paint(panned), paint(fresh)), 1);
        }
    }
}

TEST(CanvasScene, APictureUpdatedInPartLooksLikeTheSamePictureSetWhole)
{
    for (const QSize of : {QSize(800, 600), QSize(320, 240), QSize(100, 70)}) {
        CanvasScene stage = scene();
        stage.setPicture(noise(of));
        const QImage before = paint(stage);
        QImage next = noise(of);
        const QRect changed(of.width() / 3, of.height() / 4, 9, 7);
        QPainter(&next).fillRect(changed, Qt::red);
        stage.takeChanges();
        stage.updatePicture(next, changed);
        const QRegion touched = stage.takeChanges();
        CanvasScene other = scene();
        other.setPicture(next);
        EXPECT_EQ(difference(paint(stage, 1, touched, before), paint(other)), 0) << of.width();
        EXPECT_LT(touched.boundingRect().width(), 60) << of.width();
    }
}

TEST(CanvasScene, AnEmptyCanvasShowsTheStageAlone)
{
    CanvasScene stage;
    stage.setPlace({}, {0, 0}, size);
    EXPECT_EQ(difference(paint(stage), blank(size, Theme::instance().colors().stage)), 0);
}

} // namespace velvane
