#include "cli/KeptRecording.h"

#include "base/KeyCode.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"
#include "support/RunToEnd.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

namespace velvane::cli {

namespace {

struct KeptRecordingTest : testing::Test {
    /// Records a click; `call` comes before it ends.
    void record(const std::function<void()> &call)
    {
        desktop.clock().at(3s, [this] {
            desktop.tap().hear({.kind = InputEvent::Kind::leftMouseDown, .point = {640, 400}});
            desktop.tap().hear({.kind = InputEvent::Kind::leftMouseUp, .point = {640, 400}});
        });
        desktop.clock().at(4s, call);
        desktop.clock().at(5s, [this] { desktop.press(KeyCode::escape); });
        runToEnd(recording.record());
    }
    static QList<KeptDemo> left()
    {
        QList<KeptDemo> all;
        for (const auto &session : KeptSession::left(KeptSession::standardFolder()))
            all += session->demos();
        return all;
    }

    TemporaryHome home;
    SimulatedDesktop desktop;
    Project project;
    Playback playback;
    RecordActionsController recording{project, playback, desktop};
    std::unique_ptr<KeptRecording> kept =
        std::make_unique<KeptRecording>(recording, "/demos/tour.velvane", [](KeptRecording &) {});
};

} // namespace

TEST_F(KeptRecordingTest, WhatIsRecordedIsLeftToTheEditor)
{
    record([this] {
        kept->tick();
        EXPECT_TRUE(left().isEmpty()) << "it is under way";
        // As a process that is killed lets go.
        kept.reset();
    });
    const QList<KeptDemo> all = left();
    ASSERT_EQ(all.size(), 1);
    EXPECT_EQ(all[0].path, "/demos/tour.velvane");
    EXPECT_EQ(all[0].title, "tour");
    ASSERT_TRUE(all[0].demo);
    EXPECT_EQ(all[0].demo->steps.size(), 2);
}

TEST_F(KeptRecordingTest, BeforeAnythingIsRecordedNothingIsKept)
{
    kept->tick();
    kept.reset();
    EXPECT_TRUE(left().isEmpty());
}

TEST_F(KeptRecordingTest, WhatIsForgottenLeavesNothing)
{
    record([this] { kept->tick(); });
    kept->forget();
    kept.reset();
    EXPECT_TRUE(left().isEmpty());
}

} // namespace velvane::cli
