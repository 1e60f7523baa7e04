#include "render/layers/Caption.h"
#include "support/Pixels.h"
#include "support/Print.h"

#include <QFontMetricsF>

#include <gtest/gtest.h>

#include <thread>

namespace velvane {

namespace {

const QRectF canvas(0, 0, 640, 240);
const QSize size(640, 240);

QImage captionOf(const QString &text, QColor under = Qt::white)
{
    return drawnOn(size, under, [&](QPainter &p) { Caption::draw(p, canvas, text); });
}

// The face that captions have, said anew.
QFontMetricsF metrics()
{
    QFont font(QStringLiteral("Inter"), -1, QFont::DemiBold);
    font.setPixelSize(26);
    font.setHintingPreference(QFont::PreferNoHinting);
    return QFontMetricsF(font);
}

QString stackOfMarks(int count)
{
    QString text(u'Z');
    for (int i = 0; i < count; ++i)
        text += QChar(0x0300 + i % 0x60);
    return text;
}

// The smallest rectangle around all pixels brighter than the pill: the text.
QRect inkOf(const QImage &image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGreen(image.pixel(x, y)) > 128)
                ink |= QRect(x, y, 1, 1);
    return ink;
}

} // namespace

TEST(Caption, ThePillIsTheTextPlus44By24)
{
    const QString text = QStringLiteral("Typing a sentence");
    const QRectF pill = Caption::pill(canvas, text);
    EXPECT_DOUBLE_EQ(pill.width(), metrics().horizontalAdvance(text) + 44);
    EXPECT_DOUBLE_EQ(pill.height(), metrics().height() + 24);
}

TEST(Caption, ThePillIsCentred48PixelsAboveTheBottom)
{
    const QRectF pill = Caption::pill(canvas, QStringLiteral("Hello"));
    EXPECT_NEAR(pill.center().x(), 320, 1e-9);
    EXPECT_NEAR(pill.bottom(), 240 - 48, 1e-9);
    const QRectF fractional = Caption::pill({0, -0.5, 640.5, 240.5}, QStringLiteral("Hello"));
    EXPECT_NEAR(fractional.center().x(), 320.25, 1e-9);
    EXPECT_NEAR(fractional.bottom(), 240 - 48, 1e-9);
}

TEST(Caption, ThePillIsBlackAt72PercentWithRoundEnds)
{
    const QString space = QStringLiteral(" ");
    const QRectF pill = Caption::pill(canvas, space);
    ASSERT_FALSE(pill.isEmpty());
    const double radius = std::min(pill.width(), pill.height()) / 2;
    const QRectF core = pill.adjusted(radius, radius, -radius, -radius);
    ExactPicture expected(size, Qt::white);
    const auto inside = [&](QPointF p) {
        const double dx = p.x() - std::clamp(p.x(), core.left(), core.right());
        const double dy = p.y() - std::clamp(p.y(), core.top(), core.bottom());
        return std::hypot(dx, dy) <= radius;
    };
    expected.paint(expected.coverage(inside), Qt::black, 0.72);
    EXPECT_LE(difference(captionOf(space), expected.image()), 8);
    EXPECT_LE(difference(captionOf(space).pixel(pill.center().toPoint()), qRgb(71, 71, 71)), 1);
}

TEST(Caption, AnEmptyTextDrawsNothing)
{
    EXPECT_EQ(captionOf(QString()), blank(size, Qt::white));
    EXPECT_TRUE(Caption::bounds(canvas, QString()).isEmpty());
}

TEST(Caption, TheTextStartsAfter22PixelsOnItsBaseline)
{
    const QString text = QStringLiteral("HHH");
    const QRectF pill = Caption::pill(canvas, text);
    const QRect ink = inkOf(captionOf(text, Qt::black));
    const QRectF tight = metrics().tightBoundingRect(text);
    EXPECT_NEAR(ink.left(), pill.left() + 22 + tight.left(), 1.5);
    EXPECT_NEAR(ink.right() + 1, pill.left() + 22 + tight.right(), 1.5);
    EXPECT_NEAR(ink.bottom() + 1, pill.top() + 12 + metrics().ascent(), 1);
}

TEST(Caption, TheTextIsWhiteAndGreyOnly)
{
    const QImage image = captionOf(QStringLiteral("Well, mixed jam"), Qt::black);
    int brightest = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            ASSERT_TRUE(qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel));
            brightest = std::max(brightest, qRed(pixel));
        }
    }
    EXPECT_EQ(brightest, 255);
}

TEST(Caption, LinesStandBelowEachOtherFromTheLeft)
{
    const double line = metrics().height();
    for (const char *text : {"HHHH\nH\nHH", "HHHH\r\nH\rHH", "HHHH\u2028H\u2029HH"}) {
        const QString lines = QString::fromUtf8(text);
        const QRectF pill = Caption::pill(canvas, lines);
        EXPECT_DOUBLE_EQ(pill.height(), 3 * line + 24);
        EXPECT_DOUBLE_EQ(pill.width(), metrics().horizontalAdvance(QStringLiteral("HHHH")) + 44);
        const QImage image = captionOf(lines, Qt::black);
        int left = -1;
        for (int i = 0; i < 3; ++i) {
            const int top = static_cast<int>(pill.top() + 12 + i * line);
            const QRect ink = inkOf(image.copy(0, top, size.width(), static_cast<int>(line)));
            EXPECT_TRUE(left < 0 || left == ink.left());
            left = ink.left();
        }
    }
}

TEST(Caption, AWideCaptionRunsOffBothSides)
{
    const QString wide(100, u'M');
    const QRectF pill = Caption::pill(canvas, wide);
    EXPECT_LT(pill.left(), 0);
    EXPECT_GT(pill.right(), 640);
    EXPECT_NEAR(pill.center().x(), 320, 1e-6);
    const QImage image = captionOf(wide);
    const int y = static_cast<int>(pill.top()) + 5;
    for (const int x : {0, 320, 639})
        EXPECT_LE(difference(image.pixel(x, y), qRgb(71, 71, 71)), 1);
}

TEST(Caption, AVeryLongCaptionIsDrawnToo)
{
    const QString endless(200'000, u'i');
    const QRectF pill = Caption::pill(canvas, endless);
    EXPECT_GT(pill.width(), 1e6);
    const QImage image = captionOf(endless);
    EXPECT_LE(difference(image.pixel(320, static_cast<int>(pill.top()) + 5), qRgb(71, 71, 71)), 1);
    EXPECT_EQ(image.pixel(320, static_cast<int>(pill.top()) - 2), qRgb(255, 255, 255));
}

TEST(Caption, InkThatSticksOutOfThePillIsWithinTheBounds)
{
    // An enclosing circle takes no width but reaches far to the right.
    const QString text = QStringLiteral("q\u20DD\u20DD");
    EXPECT_GT(Caption::bounds(canvas, text).right(), Caption::pill(canvas, text).right() + 4);
}

TEST(Caption, TouchesNothingOutsideItsBounds)
{
    const QStringList texts = {QStringLiteral(" "),
                               QStringLiteral("Hello"),
                               QStringLiteral("jÅgÿ"),
                               stackOfMarks(3),
                               stackOfMarks(40),
                               stackOfMarks(200),
                               QStringLiteral("👍🏽👨‍👩‍👧"),
                               QStringLiteral("⌃⌥⇧⌘⌫↩"),
                               QStringLiteral("a\n\nb\n") + stackOfMarks(30),
                               QStringLiteral("שלום مرحبا"),
                               QStringLiteral("\u0301\u0301"),
                               QStringLiteral("ﷺ꧅"),
                               QStringLiteral("a\tb"),
                               QStringLiteral("q\u20DD\u20DD"),
                               QStringLiteral("\u222B\u0301")};
    for (const QString &text : texts) {
        const QRect bounds = Caption::bounds(canvas, text).toAlignedRect();
        EXPECT_EQ(changesOutside(bounds, blank(size, Qt::gray), captionOf(text, Qt::gray)), 0)
            << text.toStdString();
    }
}

TEST(Caption, KeySymbolsHaveGlyphs)
{
    const QImage missing = captionOf(QStringLiteral("\uE0F7"));
    const auto symbols = QStringLiteral("⌃⌥⇧⌘⌫↩→");
    for (const QChar symbol : symbols) {
        EXPECT_NE(captionOf(symbol), missing) << int(symbol.unicode());
        EXPECT_GT(inkOf(captionOf(symbol, Qt::black)).width(), 5) << int(symbol.unicode());
    }
}

TEST(Caption, EmojiAreDrawnInColourAndAsOne)
{
    for (const auto &text : {QStringLiteral("👍🏽"), QStringLiteral("😀")}) {
        const QImage image = captionOf(text, Qt::black);
        int coloured = 0;
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                coloured += qRed(image.pixel(x, y)) > qBlue(image.pixel(x, y)) + 60;
        EXPECT_GT(coloured, 100);
    }
    EXPECT_DOUBLE_EQ(Caption::pill(canvas, QStringLiteral("👍🏽")).width(),
                     Caption::pill(canvas, QStringLiteral("👍")).width());
}

TEST(Caption, AComposedAndACombinedLetterLookTheSame)
{
    EXPECT_EQ(captionOf(QStringLiteral("caf\u00e9")), captionOf(QStringLiteral("cafe\u0301")));
}

TEST(Caption, AWorkerDrawsTheSamePixels)
{
    const QString text = QStringLiteral("⌘ Typing 👍🏽");
    const QImage here = captionOf(text);
    QImage there;
    std::thread([&] { there = captionOf(text); }).join();
    EXPECT_EQ(here, there);
}

} // namespace velvane
