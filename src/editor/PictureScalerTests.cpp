#include "editor/PictureScaler.h"

#include "support/Print.h"

#include <QColor>
#include <QRandomGenerator>

#include <gtest/gtest.h>

namespace velvane {

namespace {

QImage noise(QSize size, quint32 seed)
{
    QRandomGenerator random(seed);
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, 0xff000000 | random.generate());
    }
    return image;
}

QImage scaled(const QImage &picture, QSize size)
{
    QImage small(size, QImage::Format_RGB32);
    PictureScaler(picture.size(), size).scale(picture, small.rect(), small, {});
    return small;
}

} // namespace

TEST(PictureScaler, APixelIsTheAverageOfWhatFallsOnIt)
{
    QImage picture(4, 2, QImage::Format_RGB32);
    picture.fill(Qt::black);
    picture.setPixelColor(0, 0, QColor(200, 100, 40));
    const QImage small = scaled(picture, {2, 1});
    EXPECT_EQ(small.pixelColor(0, 0), QColor(50, 25, 10));
    EXPECT_EQ(small.pixelColor(1, 0), QColor(Qt::black));
}

TEST(PictureScaler, OneColourStaysThatColourAtAnySize)
{
    for (const QSize size : {QSize(1, 1), QSize(7, 5), QSize(63, 40), QSize(97, 61)}) {
        QImage picture(97, 61, QImage::Format_RGB32);
        picture.fill(QColor(255, 254, 1));
        QImage expected(size, QImage::Format_RGB32);
        expected.fill(QColor(255, 254, 1));
        EXPECT_EQ(scaled(picture, size), expected) << size.width();
    }
}

TEST(PictureScaler, TheSameSizeIsTheSamePicture)
{
    const QImage picture = noise({31, 17}, 1);
    EXPECT_EQ(scaled(picture, {31, 17}), picture);
}

TEST(PictureScaler, TransparencyIsAveragedToo)
{
    QImage picture(2, 1, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    picture.setPixelColor(0, 0, Qt::white);
    QImage small(1, 1, QImage::Format_ARGB32_Premultiplied);
    PictureScaler({2, 1}, {1, 1}).scale(picture, small.rect(), small, {});
    EXPECT_EQ(small.pixelColor(0, 0).alpha(), 128);
}

TEST(PictureScaler, APartScaledAnewEqualsThatPartOfTheWhole)
{
    QRandomGenerator random(7);
    for (int i = 0; i < 50; ++i) {
        const QSize from(40 + random.bounded(60), 30 + random.bounded(60));
        const QSize to(1 + random.bounded(from.width()), 1 + random.bounded(from.height()));
        const PictureScaler scaler(from, to);
        const QImage before = noise(from, random.generate());
        QImage after = before;
        const QRect changed(
            QPoint(random.bounded(from.width() - 9), random.bounded(from.height() - 9)),
            QSize(1 + random.bounded(9), 1 + random.bounded(9)));
        for (int y = changed.top(); y <= changed.bottom(); ++y) {
            for (int x = changed.left(); x <= changed.right(); ++x)
                after.setPixel(x, y, 0xff000000 | random.generate());
        }
        QImage small = scaled(before, to);
        scaler.scale(after, scaler.reach(changed), small, {});
        EXPECT_EQ(small, scaled(after, to)) << "case " << i;
    }
}

} // namespace velvane
