#include "capture/RunSettings.h"

#include "support/Print.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velvane {

namespace {

class RunSettingsTest : public testing::Test {
protected:
    QTemporaryDir folder;
    QSettings stored{folder.filePath("settings.ini"), QSettings::IniFormat};
    RunSettings settings{stored};
};

} // namespace

TEST_F(RunSettingsTest, AtFirstNothingIsHiddenOrRecordedAndTheCursorWouldBe)
{
    EXPECT_FALSE(settings.hideOthersDuringRun());
    EXPECT_EQ(settings.recordModeRaw(), "off");
    EXPECT_EQ(settings.recordMode(), RecordMode::off);
    EXPECT_TRUE(settings.recordCursor());
}

TEST_F(RunSettingsTest, ChoicesAreKeptUnderTheirKeys)
{
    settings.setHideOthersDuringRun(true);
    settings.setRecordMode(RecordMode::window);
    settings.setRecordCursor(false);
    stored.sync();
    const QSettings again(stored.fileName(), QSettings::IniFormat);
    EXPECT_TRUE(again.value("hideOthersDuringRun").toBool());
    EXPECT_EQ(again.value("recordMode").toString(), "window");
    EXPECT_FALSE(again.value("recordCursor").toBool());
}

TEST_F(RunSettingsTest, AChangeIsAnnouncedOnce)
{
    int changes = 0;
    QObject::connect(&settings, &RunSettings::changed, [&] { ++changes; });
    settings.setRecordMode(RecordMode::screen);
    settings.setRecordMode(RecordMode::screen);
    settings.setRecordCursor(true);
    EXPECT_EQ(changes, 1);
}

TEST_F(RunSettingsTest, AModeThatNoVersionKnowsIsOff)
{
    stored.setValue("recordMode", "hologram");
    EXPECT_EQ(settings.recordMode(), RecordMode::off);
}

TEST(RecordMode, NamesLeadBackToTheirModes)
{
    for (const RecordMode mode : {RecordMode::off, RecordMode::screen, RecordMode::window})
        EXPECT_EQ(recordMode(id(mode)), mode);
}

} // namespace velvane
