#pragma once

#include "platform/AppControl.h"
#include "support/Print.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velvane {

/// What every AppControl keeps when it lists. A stage gives `AppControl &apps()`,
/// `install(name, localizedName)`, `run(name, policy)` and `quit(name)`; each returns once the
/// desktop knows.
template <typename Stage>
class AppListingContract : public testing::Test {
protected:
    AppControl &apps() { return stage.apps(); }

    static const AppInfo *find(const std::vector<AppInfo> &apps, const QString &name)
    {
        const auto found = std::ranges::find(apps, name, &AppInfo::name);
        return found == apps.end() ? nullptr : &*found;
    }

    Stage stage;
};

TYPED_TEST_SUITE_P(AppListingContract);

TYPED_TEST_P(AppListingContract, AnInstalledApplicationIsListedUnderBothItsNames)
{
    this->stage.install("Contract Notes", "Vertragsnotizen");
    const std::vector<AppInfo> installed = this->apps().installed();
    const AppInfo *notes = this->find(installed, "Contract Notes");
    ASSERT_TRUE(notes);
    EXPECT_EQ(notes->localizedName, "Vertragsnotizen");
    EXPECT_EQ(notes->policy, AppPolicy::regular);
    EXPECT_FALSE(this->find(this->apps().running(), "Contract Notes"));
}

TYPED_TEST_P(AppListingContract, ARunningApplicationIsListedUntilItQuits)
{
    this->stage.run("Contract Notes", AppPolicy::regular);
    const std::vector<AppInfo> running = this->apps().running();
    const AppInfo *notes = this->find(running, "Contract Notes");
    ASSERT_TRUE(notes);
    EXPECT_EQ(notes->policy, AppPolicy::regular);
    EXPECT_EQ(notes->localizedName, "Contract Notes");
    EXPECT_GT(notes->pid, 0);
    this->stage.quit("Contract Notes");
    EXPECT_FALSE(this->find(this->apps().running(), "Contract Notes"));
}

TYPED_TEST_P(AppListingContract, AnAccessoryIsNoRegularApplication)
{
    this->stage.run("Contract Panel", AppPolicy::accessory);
    const std::vector<AppInfo> running = this->apps().running();
    const AppInfo *panel = this->find(running, "Contract Panel");
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->policy, AppPolicy::accessory);
}

TYPED_TEST_P(AppListingContract, AnIconHasTheSizeAskedForOrIsNone)
{
    this->stage.run("Contract Notes", AppPolicy::regular);
    for (const AppInfo &app : this->apps().running()) {
        for (const qreal scale : {1.0, 2.0}) {
            const QImage icon = this->apps().icon(app, scale);
            if (icon.isNull())
                continue;
            EXPECT_EQ(icon.size(), QSize(16, 16) * scale);
            EXPECT_EQ(icon.devicePixelRatio(), scale);
        }
    }
}

TYPED_TEST_P(AppListingContract, AnUnknownApplicationHasNoIcon)
{
    EXPECT_TRUE(this->apps().icon(AppInfo(), 1).isNull());
}

REGISTER_TYPED_TEST_SUITE_P(AppListingContract, AnInstalledApplicationIsListedUnderBothItsNames,
                            ARunningApplicationIsListedUntilItQuits,
                            AnAccessoryIsNoRegularApplication, AnIconHasTheSizeAskedForOrIsNone,
                            AnUnknownApplicationHasNoIcon);

} // namespace velvane
