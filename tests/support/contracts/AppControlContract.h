#pragma once

#include "platform/AppControl.h"
#include "platform/WindowControl.h"
#include "support/Print.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velvane {

/// What every AppControl keeps when it controls. A stage gives `AppControl &apps()`,
/// `WindowControl &windows()`, `run(name, policy)`, `openWindow(appName, frame)`, which returns the
/// id of a new window in front, and `settle()`, which returns once the desktop has done what was
/// asked and all has been told.
template <typename Stage>
class AppControlContract : public testing::Test {
protected:
    void SetUp() override
    {
        for (const char *name : {"Contract Notes", "Contract Mail"}) {
            stage.run(name, AppPolicy::regular);
            stage.openWindow(name, QRect(100, 100, 300, 200));
        }
        stage.settle();
    }

    AppInfo app(const QString &name)
    {
        const std::vector<AppInfo> running = stage.apps().running();
        const auto found = std::ranges::find(running, name, &AppInfo::name);
        return found == running.end() ? AppInfo() : *found;
    }

    QString frontmost()
    {
        stage.settle();
        for (const WindowInfo &window : stage.windows().windows()) {
            if (window.onScreen)
                return window.owner.name;
        }
        return {};
    }

    Stage stage;
};

TYPED_TEST_SUITE_P(AppControlContract);

TYPED_TEST_P(AppControlContract, AnActivatedApplicationIsInFront)
{
    this->stage.apps().activate(this->app("Contract Notes"));
    EXPECT_EQ(this->frontmost(), "Contract Notes");
    this->stage.apps().activate(this->app("Contract Mail"));
    EXPECT_EQ(this->frontmost(), "Contract Mail");
}

TYPED_TEST_P(AppControlContract, AHiddenApplicationIsOffTheScreenUntilItIsActivated)
{
    this->stage.apps().hide(this->app("Contract Mail"));
    EXPECT_EQ(this->frontmost(), "Contract Notes");
    this->stage.apps().activate(this->app("Contract Mail"));
    EXPECT_EQ(this->frontmost(), "Contract Mail");
}

TYPED_TEST_P(AppControlContract, WhatDoesNotExistIsSkipped)
{
    const QString before = this->frontmost();
    AppInfo nobody;
    nobody.name = "Contract Nobody";
    this->stage.apps().activate(nobody);
    this->stage.apps().hide(nobody);
    this->stage.apps().launch(nobody);
    EXPECT_EQ(this->frontmost(), before);
}

REGISTER_TYPED_TEST_SUITE_P(AppControlContract, AnActivatedApplicationIsInFront,
                            AHiddenApplicationIsOffTheScreenUntilItIsActivated,
                            WhatDoesNotExistIsSkipped);

} // namespace velvane
