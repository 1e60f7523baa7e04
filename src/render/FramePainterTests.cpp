#include "render/FramePainter.h"
#include "support/Pixels.h"

#include <gtest/gtest.h>

#include <random>

namespace velvane {

namespace {

QImage noise(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 7 + y, x ^ y, y * 3 + x));
    return image;
}

Snapshot demo(QSizeF canvas, const QImage &background = {})
{
    return {.steps = {}, .startPoint = {}, .canvasSize = canvas, .background = background};
}

// A seeded walk through states: gliding, leaping, clicking, holding, typing, standing still.
class Walk {
public:
    Walk(unsigned seed, QSizeF canvas) : m_random(seed), m_canvas(canvas) {}

    FrameState next()
    {
        if (chance(0.15))
            return m_state;
        m_state.cursor =
            chance(0.1) ? anywhere() : m_state.cursor + QPointF(between(-9, 9), between(-9, 9));
        m_state.ripple = chance(0.3) ? std::optional(between(0, 1)) : std::nullopt;
        m_state.press = chance(0.5) ? between(0, 1) : 0;
        m_state.held = chance(0.3);
        m_state.caption = chance(0.5) ? std::optional(text()) : std::nullopt;
        return m_state;
    }

private:
    double between(double from, double to)
    {
        return std::uniform_real_distribution<>(from, to)(m_random);
    }
    bool chance(double share) { return between(0, 1) < share; }

    // On the canvas, at its edges and beyond them.
    QPointF anywhere()
    {
        const QPointF place(between(-40, m_canvas.width() + 40),
                            between(-40, m_canvas.height() + 40));
        if (chance(0.2))
            return {0, 0};
        if (chance(0.2))
            return {m_canvas.width(), m_canvas.height()};
        return chance(0.3) ? QPointF(std::round(place.x()), std::round(place.y())) : place;
    }

    QString text()
    {
        static const QStringList texts = {QString(),
                                          QStringLiteral(" "),
                                          QStringLiteral("Typing a sentence here"),
                                          QStringLiteral("⌃⌥⇧⌘⌫↩ 👍🏽 é"),
                                          QStringLiteral("two\nlines"),
                                          QString(60, u'W'),
                                          QStringLiteral("→ Finder")};
        QString text = texts[static_cast<qsizetype>(between(0, static_cast<double>(texts.size())))];
        if (chance(0.2))
            for (int i = static_cast<int>(between(1, 60)); i > 0; --i)
                text += QChar(0x0300 + static_cast<int>(between(0, 0x6f)));
        return chance(0.5) ? text : text.left(static_cast<qsizetype>(between(0, 12)));
    }

    std::mt19937 m_random;
    QSizeF m_canvas;
    FrameState m_state;
};

void expectEqualAllTheWay(const Snapshot &snap, unsigned seed, int states)
{
    Walk walk(seed, snap.canvasSize);
    FramePainter painter(snap);
    QImage before = painter.frame().copy();
    for (int i = 0; i < states; ++i) {
        const FrameState state = walk.next();
        const QRegion changed = painter.paint(state);
        ASSERT_EQ(painter.frame(), FrameRenderer::image(snap, state)) << "state " << i;
        ASSERT_TRUE((changed - painter.frame().rect()).isEmpty()) << "state " << i;
        ASSERT_EQ(changesOutside(changed, before, painter.frame()), 0) << "state " << i;
        before = painter.frame().copy();
    }
}

} // namespace

TEST(FramePainter, EqualsTheRendererOverTheDefaultBackdrop)
{
    expectEqualAllTheWay(demo({320, 240}), 1, 400);
}

TEST(FramePainter, EqualsTheRendererOverAPicture)
{
    expectEqualAllTheWay(demo({300, 200}, noise({300, 200})), 2, 300);
}

TEST(FramePainter, EqualsTheRendererOverAStretchedPicture)
{
    expectEqualAllTheWay(demo({301, 190}, noise({500, 90})), 3, 200);
}

TEST(FramePainter, EqualsTheRendererOnFractionalCanvases)
{
    expectEqualAllTheWay(demo({250.6, 180.3}), 4, 200);
    expectEqualAllTheWay(demo({199.9, 201.5}, noise({120, 130})), 5, 200);
}

TEST(FramePainter, EqualsTheRendererOnTinyCanvases)
{
    unsigned seed = 6;
    for (const QSizeF canvas :
         {QSizeF(1, 1), QSizeF(1.9, 1.1), QSizeF(2, 300), QSizeF(200, 3), QSizeF(17, 17)}) {
        expectEqualAllTheWay(demo(canvas), seed++, 150);
        expectEqualAllTheWay(demo(canvas, noise({30, 20})), seed++, 150);
    }
}

TEST(FramePainter, TheFirstPaintReturnsAllPixels)
{
    FramePainter painter(demo({100.5, 50}));
    EXPECT_EQ(painter.paint({.cursor = {10, 10}}), QRegion(0, 0, 100, 50));
}

TEST(FramePainter, AnEqualStateChangesNothing)
{
    FramePainter painter(demo({100, 50}));
    const FrameState state{.cursor = {10, 10}, .caption = QStringLiteral("a")};
    painter.paint(state);
    const qint64 key = painter.frame().cacheKey();
    EXPECT_TRUE(painter.paint(state).isEmpty());
    EXPECT_EQ(painter.frame().cacheKey(), key);
}

TEST(FramePainter, AMovingCursorChangesOnlyItsSurroundings)
{
    FramePainter painter(demo({1280, 800}));
    painter.paint({.cursor = {100, 100}});
    const QRect changed = painter.paint({.cursor = {104, 103}}).boundingRect();
    EXPECT_TRUE(changed.contains(QPoint(100, 100)));
    EXPECT_LE(changed.width(), 24 + 5 + 2 * 9 + 4 + 4);
    EXPECT_LE(changed.height(), 36 + 5 + 2 * 9 + 3 + 4);
}

TEST(FramePainter, PaintsInPlaceWhileNobodyKeepsTheFrame)
{
    FramePainter painter(demo({100, 50}));
    painter.paint({.cursor = {10, 10}});
    const uchar *pixels = painter.frame().constBits();
    painter.paint({.cursor = {20, 10}});
    EXPECT_EQ(painter.frame().constBits(), pixels);
}

TEST(FramePainter, AnAbsurdCanvasHasNoFrame)
{
    for (const QSizeF canvas : {QSizeF(0.5, 10), QSizeF(1e6, 1e6)}) {
        FramePainter painter(demo(canvas));
        EXPECT_TRUE(painter.frame().isNull());
        EXPECT_TRUE(painter.paint({.cursor = {1, 1}}).isEmpty());
    }
}

} // namespace velvane
