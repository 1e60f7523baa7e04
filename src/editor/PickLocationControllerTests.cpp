#include "editor/PickLocationController.h"

#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

TEST(PickLocation, UntilItCanPickItSaysSo)
{
    SimulatedDesktop desktop;
    Project project;
    project.setSteps({Step()});
    project.setSelection(project.steps()[0].id);
    StatusLine status;
    PickLocationController controller(project, status, desktop);
    EXPECT_FALSE(controller.canPickLocation());
    controller.pickLocation();
    EXPECT_FALSE(status.message().isEmpty());
    EXPECT_EQ(status.message(), controller.missing());
}

TEST(PickLocation, WhatTheDesktopLacksIsTheReason)
{
    SimulatedDesktop desktop;
    desktop.screens().setMissing("No display.");
    Project project;
    StatusLine status;
    EXPECT_EQ(PickLocationController(project, status, desktop).missing(), "No display.");
}

} // namespace velvane
