#include "model/DocState.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

DocState sampleState()
{
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.fill(Qt::red);
    return {.steps = {Step(), Step()},
            .startPoint = {1, 2},
            .canvasSize = {300, 200},
            .fps = 30,
            .background = picture,
            .recordingBookmark = QByteArray("b")};
}

bool differs(const std::function<void(DocState &)> &change)
{
    const DocState state = sampleState();
    DocState other = state;
    change(other);
    return !(state == other);
}

} // namespace

TEST(DocState, CopiesAreEqual)
{
    const DocState state = sampleState();
    EXPECT_TRUE(state == DocState(state));
}

TEST(DocState, EqualStepsInListsOfTheirOwnAreEqual)
{
    const DocState state = sampleState();
    DocState other = state;
    other.steps.detach();
    EXPECT_NE(other.steps.constData(), state.steps.constData());
    EXPECT_TRUE(state == other);
}

TEST(DocState, EveryFieldCounts)
{
    EXPECT_TRUE(differs([](DocState &s) { s.steps[1].text = "x"; }));
    EXPECT_TRUE(differs([](DocState &s) { s.steps.removeLast(); }));
    EXPECT_TRUE(differs([](DocState &s) { s.startPoint.rx() += 1e-13; }));
    EXPECT_TRUE(differs([](DocState &s) { s.canvasSize.rheight() += 1e-13; }));
    EXPECT_TRUE(differs([](DocState &s) { s.fps = 31; }));
    EXPECT_TRUE(differs([](DocState &s) { s.background = {}; }));
    EXPECT_TRUE(differs([](DocState &s) { s.recordingBookmark.reset(); }));
    EXPECT_TRUE(differs([](DocState &s) { s.recordingBookmark = QByteArray(); }));
}

TEST(DocState, AnotherPictureOfTheSamePixelsIsAnotherBackground)
{
    EXPECT_TRUE(differs([](DocState &s) { s.background = s.background.copy(); }));
}

TEST(DocState, TwoAbsentBackgroundsAreEqual)
{
    DocState a;
    DocState b;
    EXPECT_TRUE(a == b);
}

} // namespace velvane
