#include "render/FrameRenderer.h"
#include "render/layers/Backdrop.h"
#include "render/layers/Caption.h"
#include "render/layers/CursorArrow.h"
#include "render/layers/HoldRing.h"
#include "render/layers/Ripple.h"
#include "support/Pixels.h"

#include <gtest/gtest.h>

#include <limits>
#include <thread>

namespace velvane {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

Snapshot demo(QSizeF canvas, const QImage &background = {})
{
    return {.steps = {}, .startPoint = {}, .canvasSize = canvas, .background = background};
}

QImage white()
{
    return blank({2, 2}, Qt::white);
}

FrameState everything()
{
    return {.cursor = {100.3, 60.7},
            .ripple = 0.2,
            .press = 0.6,
            .held = true,
            .caption = QStringLiteral("⌘C 👍🏽")};
}

} // namespace

TEST(FrameRenderer, FractionsOfTheCanvasAreCutOff)
{
    EXPECT_EQ(FrameRenderer::pixelSize(demo({1280, 800})), QSize(1280, 800));
    EXPECT_EQ(FrameRenderer::pixelSize(demo({1280.99, 1.01})), QSize(1280, 1));
    EXPECT_EQ(FrameRenderer::image(demo({99.9, 50.5}), {}).size(), QSize(99, 50));
}

TEST(FrameRenderer, ACanvasBelowOnePixelOrAbsurdlyLargeHasNoImage)
{
    for (const QSizeF canvas : {QSizeF(0.9, 500), QSizeF(500, 0.9), QSizeF(0, 0), QSizeF(-5, 10),
                                QSizeF(1e6, 1e6), QSizeF(16385, 10), QSizeF(nan, 10),
                                QSizeF(10, infinity), QSizeF(-infinity, 10), QSizeF(1e300, 1)}) {
        EXPECT_TRUE(FrameRenderer::pixelSize(demo(canvas)).isEmpty());
        EXPECT_TRUE(FrameRenderer::image(demo(canvas), everything()).isNull());
        EXPECT_TRUE(FrameRenderer::overlayBounds(demo(canvas), everything()).isEmpty());
    }
    EXPECT_EQ(FrameRenderer::pixelSize(demo({16384, 16384.9})), QSize(16384, 16384));
}

TEST(FrameRenderer, LayersLieInTheirOrder)
{
    const Snapshot snap = demo({300, 200});
    const FrameState state = everything();
    const QRectF canvas(0, 0, 300, 200);
    const QImage expected = drawnOn({300, 200}, Qt::transparent, [&](QPainter &p) {
        Backdrop::draw(p, snap);
        HoldRing::draw(p, state.cursor);
        Ripple::draw(p, state.cursor, *state.ripple);
        CursorArrow::draw(p, state.cursor, state.press);
        Caption::draw(p, canvas, *state.caption);
    });
    EXPECT_EQ(FrameRenderer::image(snap, state), expected);
}

TEST(FrameRenderer, TheRippleLiesOverTheRingAndTheArrowOverBoth)
{
    FrameState state{.cursor = {50, 50}, .ripple = 0.15, .held = true};
    const QImage image = FrameRenderer::image(demo({100, 100}, blank({1, 1}, Qt::black)), state);
    // The ring's stroke, 15.12 above the cursor, under the ripple's stroke of radius 14.9:
    // (0.25, 0.6, 1) × 0.85 over its own fill, then white at 0.85 × 0.85.
    const double white = 0.85 * 0.85;
    const double ring = 0.85 * 0.25 + 0.15 * 0.25 * 0.3;
    EXPECT_NEAR(qRed(image.pixel(50, 34)), 255 * (white + (1 - white) * ring), 6);
    // Inside the arrow nothing of them is left.
    EXPECT_EQ(image.pixel(53, 64), qRgb(0, 0, 0));
}

TEST(FrameRenderer, NothingIsDrawnForWhatTheStateDoesNotShow)
{
    const Snapshot snap = demo({200, 200}, white());
    const QImage plain = FrameRenderer::image(snap, {.cursor = {50, 50}});
    const QImage arrow = drawnOn({200, 200}, Qt::white, [](QPainter &p) {
        CursorArrow::draw(p, {50, 50}, 0);
    });
    EXPECT_EQ(plain, arrow);
    EXPECT_EQ(FrameRenderer::image(snap, {.cursor = {50, 50}, .caption = QString()}), arrow);
    EXPECT_NE(FrameRenderer::image(snap, {.cursor = {50, 50}, .caption = QStringLiteral(" ")}),
              arrow);
}

TEST(FrameRenderer, ACursorAtTheOriginPutsTheTipInTheTopLeftCorner)
{
    const QImage image = FrameRenderer::image(demo({100, 100}, white()), {.cursor = {0, 0}});
    // The vertical left edge of the fill lies on the picture's edge.
    EXPECT_EQ(image.pixel(0, 16), qRgb(0, 0, 0));
    const QImage elsewhere = FrameRenderer::image(demo({100, 100}, white()), {.cursor = {30, 40}});
    EXPECT_EQ(image.copy(0, 0, 60, 50), elsewhere.copy(30, 40, 60, 50));
}

TEST(FrameRenderer, OnAFractionalCanvasPointsStandOnTheBottomEdge)
{
    // The canvas reaches 0.75 above the picture, so a point at y lies at y − 0.75 in it.
    const QImage fractional =
        FrameRenderer::image(demo({200.25, 150.75}, white()), {.cursor = {50, 60}});
    const QImage whole = FrameRenderer::image(demo({200, 150}, white()), {.cursor = {50, 59.25}});
    EXPECT_EQ(fractional, whole);
}

TEST(FrameRenderer, TheCaptionStands48AboveThePicturesBottomAndCentredOnTheUncutWidth)
{
    const FrameState state{.cursor = {-500, 0}, .caption = QStringLiteral(" ")};
    const QImage fractional = FrameRenderer::image(demo({200.5, 150.75}, white()), state);
    const QImage expected = drawnOn({200, 150}, Qt::white, [](QPainter &p) {
        Caption::draw(p, {0, 0, 200.5, 150}, QStringLiteral(" "));
    });
    EXPECT_EQ(fractional, expected);
    EXPECT_EQ(fractional.pixel(100, 150 - 48), qRgb(255, 255, 255));
    EXPECT_LE(difference(fractional.pixel(100, 150 - 49), qRgb(71, 71, 71)), 1);
}

TEST(FrameRenderer, EveryPixelIsOpaque)
{
    const QImage image =
        FrameRenderer::image(demo({120.7, 90.3}, blank({3, 3}, Qt::transparent)), everything());
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ASSERT_EQ(qAlpha(image.pixel(x, y)), 255);
}

TEST(FrameRenderer, ACursorNowhereOrFarOutsideDrawsNothing)
{
    const Snapshot snap = demo({100, 100}, white());
    for (const QPointF cursor : {QPointF(nan, 50), QPointF(50, infinity), QPointF(-1e12, 50),
                                 QPointF(50, 1e300), QPointF(200, 50)}) {
        const FrameState state{.cursor = cursor, .ripple = 0.5, .press = 1, .held = true};
        EXPECT_EQ(FrameRenderer::image(snap, state), blank({100, 100}, Qt::white));
        EXPECT_TRUE(FrameRenderer::overlayBounds(snap, state).isEmpty());
    }
}

TEST(FrameRenderer, OverlaysStayWithinTheirBoundsAndThePicture)
{
    for (const QSizeF canvas :
         {QSizeF(300, 200), QSizeF(120.5, 80.9), QSizeF(1, 1), QSizeF(7.3, 300)}) {
        const Snapshot snap = demo(canvas);
        const QSize size = FrameRenderer::pixelSize(snap);
        const QRegion bounds = FrameRenderer::overlayBounds(snap, everything());
        EXPECT_TRUE((bounds - QRect(QPoint(), size)).isEmpty());
        const QImage drawn = drawnOn(size, Qt::gray, [&](QPainter &p) {
            FrameRenderer::drawOverlays(p, snap, everything());
        });
        EXPECT_EQ(changesOutside(bounds, blank(size, Qt::gray), drawn), 0);
    }
}

TEST(FrameRenderer, TheSamePixelsComeOutAgainAndOnAnotherThread)
{
    const Snapshot snap = demo({300.4, 200.6}, white());
    const QImage once = FrameRenderer::image(snap, everything());
    EXPECT_EQ(FrameRenderer::image(snap, everything()), once);
    QImage elsewhere;
    std::thread([&] { elsewhere = FrameRenderer::image(snap, everything()); }).join();
    EXPECT_EQ(elsewhere, once);
}

} // namespace velvane
