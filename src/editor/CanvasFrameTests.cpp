#include "editor/CanvasFrame.h"
#include "render/FrameRenderer.h"
#include "support/Pixels.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

const QSizeF canvasSize(320, 240);

FrameState busyState()
{
    return {.cursor = {100.25, 60.5},
            .ripple = 0.4,
            .press = 0.3,
            .held = true,
            .caption = QStringLiteral("Héllo")};
}

Snapshot emptyDemo()
{
    Snapshot snap;
    snap.canvasSize = canvasSize;
    return snap;
}

} // namespace

TEST(CanvasFrame, AtTheCanvasesOwnSizeThePixelsAreTheRenderers)
{
    QImage expected(320, 240, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::darkGreen);
    QImage shown(400, 300, QImage::Format_ARGB32_Premultiplied);
    shown.fill(Qt::darkGreen);
    {
        QPainter painter(&expected);
        FrameRenderer::drawOverlays(painter, emptyDemo(), busyState());
    }
    {
        QPainter painter(&shown);
        CanvasFrame::draw(painter, {33, 27, 320, 240}, canvasSize, busyState());
    }
    EXPECT_EQ(difference(shown.copy(33, 27, 320, 240), expected), 0);
}

TEST(CanvasFrame, NothingIsDrawnOutsideTheCanvas)
{
    const FrameState atTheEdge{.cursor = {0, 239}};
    const QImage shown = drawnOn({400, 300}, Qt::white, [&](QPainter &painter) {
        CanvasFrame::draw(painter, {40, 30, 320, 240}, canvasSize, atTheEdge);
    });
    EXPECT_GT(difference(shown, blank({400, 300}, Qt::white)), 0);
    EXPECT_EQ(changesOutside(QRegion(40, 30, 320, 240), blank({400, 300}, Qt::white), shown), 0);
}

TEST(CanvasFrame, BoundsCoverAllThatIsDrawnAtAnyScale)
{
    for (const double scale : {0.25, 0.5, 0.8, 1.0, 1.5, 3.0}) {
        const QSize size = (canvasSize * scale).toSize();
        const QRect canvas(QPoint(20, 10), size);
        const QSize whole = size + QSize(40, 20);
        const QImage before = blank(whole, Qt::darkGreen);
        const QImage after = drawnOn(whole, Qt::darkGreen, [&](QPainter &painter) {
            CanvasFrame::draw(painter, canvas, canvasSize, busyState());
        });
        const QRegion bounds = CanvasFrame::bounds(canvas, canvasSize, busyState());
        EXPECT_EQ(changesOutside(bounds, before, after), 0) << scale;
    }
}

TEST(CanvasFrame, AnEnlargedCursorHasSharpEdges)
{
    const FrameState state{.cursor = {20, 20}};
    const QImage shown = drawnOn({1280, 960}, Qt::gray, [&](QPainter &painter) {
        CanvasFrame::draw(painter, {0, 0, 1280, 960}, canvasSize, state);
    });
    // Along a row through the arrow, black turns into the rim's white within two pixels.
    int widest = 0;
    int run = 0;
    for (int x = 90; x < 160; ++x) {
        const int grey = qGray(shown.pixel(x, 150));
        run = grey > 20 && grey < 120 ? run + 1 : 0;
        widest = std::max(widest, run);
    }
    EXPECT_LE(widest, 2);
}

TEST(CanvasFrame, ACanvasThatCannotBeRenderedShowsNoCursor)
{
    EXPECT_TRUE(CanvasFrame::bounds({0, 0, 10, 10}, {0.5, 500}, {}).isEmpty());
    const QImage shown = drawnOn({50, 50}, Qt::white, [&](QPainter &painter) {
        CanvasFrame::draw(painter, {0, 0, 50, 50}, {0.5, 500}, {.cursor = {10, 10}});
    });
    EXPECT_EQ(difference(shown, blank({50, 50}, Qt::white)), 0);
}

} // namespace velvane
