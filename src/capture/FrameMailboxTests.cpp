#include "capture/FrameMailbox.h"

#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

QImage picture(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

} // namespace

TEST(FrameMailbox, WhatASlowReaderMissedStaysChanged)
{
    FrameMailbox mailbox;
    const QImage image = picture({8, 6});
    EXPECT_TRUE(mailbox.put({image, QRect(0, 0, 2, 2), 1s}));
    EXPECT_FALSE(mailbox.put({image, QRect(4, 4, 2, 2), 2s}));
    const std::optional<Frame> frame = mailbox.take();
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->changed, QRegion(0, 0, 2, 2) + QRegion(4, 4, 2, 2));
    EXPECT_EQ(frame->time, 2s);
    EXPECT_FALSE(mailbox.take());
    EXPECT_TRUE(mailbox.put({image, {}, 3s}));
}

TEST(FrameMailbox, APictureOfAnotherSizeIsAllChanged)
{
    FrameMailbox mailbox;
    mailbox.put({picture({8, 6}), QRect(0, 0, 8, 6), 1s});
    mailbox.put({picture({4, 4}), QRect(0, 0, 1, 1), 2s});
    const std::optional<Frame> frame = mailbox.take();
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->changed, QRegion(0, 0, 4, 4));
}

} // namespace velvane
