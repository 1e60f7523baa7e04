#include "capture/PictureFit.h"

#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

QImage plain(QSize size, const QColor &color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

const QColor red(Qt::red);
const QColor black(Qt::black);

} // namespace

TEST(PictureFit, APictureOfTheSizeIsItself)
{
    PictureFit fit({40, 30});
    const QImage image = plain({40, 30}, red);
    fit.fitted({image, image.rect(), 0s});
    const Frame fitted = fit.fitted({image, QRect(1, 2, 3, 4), 5s});
    EXPECT_EQ(fitted.image.constBits(), image.constBits());
    EXPECT_EQ(fitted.changed, QRegion(1, 2, 3, 4));
    EXPECT_EQ(fitted.time, 5s);
}

TEST(PictureFit, AnOddPictureLosesItsLastColumnAndRow)
{
    PictureFit fit({40, 30});
    QImage image = plain({41, 31}, red);
    image.setPixelColor(40, 30, Qt::blue);
    image.setPixelColor(39, 29, Qt::green);
    fit.fitted({image, image.rect(), 0s});
    const Frame fitted = fit.fitted({image, QRect(38, 0, 3, 31), 0s});
    EXPECT_EQ(fitted.image.size(), QSize(40, 30));
    EXPECT_EQ(fitted.image.constBits(), image.constBits()) << "not copied";
    EXPECT_EQ(fitted.image.pixelColor(39, 29), QColor(Qt::green));
    EXPECT_EQ(fitted.changed, QRegion(38, 0, 2, 30));
}

TEST(PictureFit, WhatIsPaintedLaterIsNotInACutPictureThatWaits)
{
    QImage image(161, 101, QImage::Format_RGB32);
    image.fill(Qt::red);
    PictureFit fit({160, 100});
    const Frame fitted = fit.fitted({image, image.rect(), 1s});
    image.fill(Qt::blue);
    EXPECT_EQ(fitted.image.pixelColor(10, 10), QColor(Qt::red));
    image = {};
    EXPECT_EQ(fitted.image.pixelColor(159, 99), QColor(Qt::red));
}

TEST(PictureFit, AnotherShapeIsShownWholeWithBlackBesideIt)
{
    PictureFit fit({40, 30});
    const QImage image = plain({20, 10}, red);
    const Frame fitted = fit.fitted({image, image.rect(), 0s});
    EXPECT_EQ(fitted.image.size(), QSize(40, 30));
    EXPECT_EQ(fitted.changed, QRegion(0, 0, 40, 30));
    EXPECT_EQ(fitted.image.pixelColor(1, 15), red);
    EXPECT_EQ(fitted.image.pixelColor(38, 15), red);
    EXPECT_EQ(fitted.image.pixelColor(20, 2), black);
    EXPECT_EQ(fitted.image.pixelColor(20, 27), black);
}

TEST(PictureFit, NothingOfAnEarlierSizeStays)
{
    PictureFit fit({40, 30});
    const QImage right = plain({40, 30}, red);
    const QImage high = plain({10, 30}, Qt::blue);
    const QImage wide = plain({40, 10}, Qt::green);
    fit.fitted({right, right.rect(), 0s});
    fit.fitted({high, high.rect(), 0s});
    const Frame second = fit.fitted({wide, {}, 0s});
    EXPECT_EQ(second.changed, QRegion(0, 0, 40, 30)) << "a new size is all new";
    EXPECT_EQ(second.image.pixelColor(20, 2), black);
    EXPECT_EQ(second.image.pixelColor(20, 15), QColor(Qt::green));
    EXPECT_EQ(fit.fitted({right, {}, 0s}).changed, QRegion(right.rect()));
}

TEST(PictureFit, AScaledPictureThatDidNotChangeChangesNothing)
{
    PictureFit fit({40, 30});
    const QImage image = plain({80, 60}, red);
    fit.fitted({image, image.rect(), 0s});
    const Frame same = fit.fitted({image, {}, 0s});
    EXPECT_TRUE(same.changed.isEmpty());
    EXPECT_EQ(same.image.pixelColor(20, 15), red);
    EXPECT_EQ(fit.fitted({image, QRect(0, 0, 1, 1), 0s}).changed, QRegion(0, 0, 40, 30));
}

} // namespace velvane
