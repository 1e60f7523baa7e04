#include "capture/RecordActionsController.h"

#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

TEST(RecordActions, UntilItCanRecordItSaysSoAndDoesNothing)
{
    SimulatedDesktop desktop;
    Project project;
    RecordActionsController controller(project, desktop);
    QStringList reported;
    QObject::connect(&controller, &RecordActionsController::reported,
                     [&](const QString &message) { reported << message; });
    EXPECT_FALSE(controller.canRecord());
    controller.recordActions();
    EXPECT_FALSE(controller.missing().isEmpty());
    EXPECT_EQ(reported, QStringList({controller.missing()}));
    EXPECT_TRUE(desktop.log().isEmpty());
}

TEST(RecordActions, WhatTheDesktopLacksIsTheReason)
{
    SimulatedDesktop desktop;
    desktop.tap().setMissing("No listening here.");
    Project project;
    EXPECT_EQ(RecordActionsController(project, desktop).missing(), "No listening here.");
}

} // namespace velvane
