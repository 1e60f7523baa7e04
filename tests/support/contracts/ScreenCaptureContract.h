#pragma once

#include "platform/ScreenCapture.h"
#include "support/Print.h"

#include <QColor>

#include <gtest/gtest.h>

#include <mutex>
#include <vector>

namespace velvane {

/// What every ScreenCapture keeps. A stage gives `ScreenCapture &capture()`, `QSize screenSize()`,
/// `paint(QRect, QColor)`, which changes the screen, and `settle()`, which returns once every
/// change has been captured.
template <typename Stage>
class ScreenCaptureContract : public testing::Test {
protected:
    Token open(const CaptureRequest &request = {})
    {
        CaptureOpening opening = stage.capture().open(
            request,
            [this](const Frame &frame) {
                const std::lock_guard lock(m_mutex);
                m_frames.push_back(frame);
            },
            [](const QString &reason) { FAIL() << reason.toStdString(); });
        EXPECT_TRUE(opening.error.isEmpty());
        return std::move(opening.stream);
    }

    std::vector<Frame> seen()
    {
        stage.settle();
        const std::lock_guard lock(m_mutex);
        return m_frames;
    }

    Stage stage;

private:
    std::mutex m_mutex;
    std::vector<Frame> m_frames;
};

TYPED_TEST_SUITE_P(ScreenCaptureContract);

TYPED_TEST_P(ScreenCaptureContract, PicturesShowTheWholeDisplay)
{
    const Token stream = this->open();
    ASSERT_TRUE(stream);
    this->stage.paint(QRect(40, 40, 20, 20), Qt::red);
    const std::vector<Frame> frames = this->seen();
    ASSERT_FALSE(frames.empty());
    EXPECT_EQ(frames.back().image.size(), this->stage.screenSize());
    EXPECT_EQ(frames.back().image.pixelColor(50, 50), QColor(Qt::red));
}

TYPED_TEST_P(ScreenCaptureContract, TheFirstPictureIsAllNew)
{
    const Token stream = this->open();
    this->stage.paint(QRect(0, 0, 10, 10), Qt::green);
    const std::vector<Frame> frames = this->seen();
    ASSERT_FALSE(frames.empty());
    EXPECT_EQ(frames.front().changed, QRegion(frames.front().image.rect()));
}

TYPED_TEST_P(ScreenCaptureContract, AChangeLiesInsideTheChangedRegion)
{
    const Token stream = this->open();
    this->stage.paint(QRect(0, 0, 10, 10), Qt::green);
    this->seen();
    this->stage.paint(QRect(70, 80, 20, 10), Qt::blue);
    QRegion changed;
    const std::vector<Frame> frames = this->seen();
    for (std::size_t i = 1; i < frames.size(); ++i)
        changed += frames[i].changed;
    EXPECT_TRUE(changed.contains(QRect(70, 80, 20, 10)));
}

TYPED_TEST_P(ScreenCaptureContract, ARegionIsCutOut)
{
    CaptureRequest request;
    request.region = QRectF(100, 60, 200, 100);
    const Token stream = this->open(request);
    this->stage.paint(QRect(100, 60, 10, 10), Qt::blue);
    const std::vector<Frame> frames = this->seen();
    ASSERT_FALSE(frames.empty());
    EXPECT_EQ(frames.back().image.size(), QSize(200, 100));
    EXPECT_EQ(frames.back().image.pixelColor(3, 3), QColor(Qt::blue));
}

TYPED_TEST_P(ScreenCaptureContract, NothingComesAfterTheTokenHasEnded)
{
    Token stream = this->open();
    this->stage.paint(QRect(0, 0, 10, 10), Qt::red);
    const std::size_t before = this->seen().size();
    stream.reset();
    this->stage.paint(QRect(0, 0, 10, 10), Qt::blue);
    EXPECT_EQ(this->seen().size(), before);
}

REGISTER_TYPED_TEST_SUITE_P(ScreenCaptureContract, PicturesShowTheWholeDisplay,
                            TheFirstPictureIsAllNew, AChangeLiesInsideTheChangedRegion,
                            ARegionIsCutOut, NothingComesAfterTheTokenHasEnded);

} // namespace velvane
