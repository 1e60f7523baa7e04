#include "editor/DemoSettings.h"

#include "platform/simulated/SimulatedScreens.h"
#include "support/Print.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <limits>

namespace velvane {

namespace {

class DemoSettingsTest : public testing::Test {
protected:
    DemoSettingsTest() { project.setUndoManager(&undo); }

    QString written(const QString &name, const QByteArray &contents) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        return file.fileName();
    }

    QTemporaryDir folder;
    Project project;
    QUndoStack undo;
};

QImage redPicture()
{
    QImage picture(7, 5, QImage::Format_RGB32);
    picture.fill(Qt::red);
    return picture;
}

} // namespace

TEST_F(DemoSettingsTest, TheCanvasIsChangedInWholePixels)
{
    DemoSettings::setCanvasSize(project, {1920.4, 1079.5});
    EXPECT_EQ(project.canvasSize(), QSizeF(1920, 1080));
    EXPECT_EQ(undo.undoText(), "Change Canvas");
}

TEST_F(DemoSettingsTest, TheCanvasStaysWithinItsLimits)
{
    DemoSettings::setCanvasSize(project, {0, 1e12});
    EXPECT_EQ(project.canvasSize(), QSizeF(1, 16384));
    DemoSettings::setCanvasSize(project, {std::numeric_limits<double>::quiet_NaN(), 10});
    EXPECT_EQ(project.canvasSize(), QSizeF(1, 16384));
}

TEST_F(DemoSettingsTest, TheCanvasMatchesThePrimaryDisplay)
{
    SimulatedScreens screens;
    EXPECT_TRUE(DemoSettings::matchScreen(project, screens));
    EXPECT_EQ(project.canvasSize(), QSizeF(1920, 1080));
    EXPECT_EQ(undo.undoText(), "Change Canvas");
}

TEST_F(DemoSettingsTest, WithoutADisplayThereIsNothingToMatch)
{
    SimulatedScreens screens;
    screens.setDisplays({});
    EXPECT_FALSE(DemoSettings::matchScreen(project, screens));
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(DemoSettingsTest, APictureFileBecomesTheBackdrop)
{
    const QString file = folder.filePath("red.png");
    ASSERT_TRUE(redPicture().save(file));
    EXPECT_FALSE(DemoSettings::setBackdrop(project, file));
    EXPECT_EQ(project.background().size(), QSize(7, 5));
    EXPECT_EQ(undo.undoText(), "Set Backdrop");
    DemoSettings::removeBackdrop(project);
    EXPECT_TRUE(project.background().isNull());
    EXPECT_EQ(undo.undoText(), "Remove Backdrop");
    undo.undo();
    EXPECT_EQ(project.background().size(), QSize(7, 5));
}

TEST_F(DemoSettingsTest, WhatIsNoPictureIsNamed)
{
    const auto problem = DemoSettings::setBackdrop(project, written("note.txt", "words"));
    EXPECT_EQ(problem, "“note.txt” is not a picture that Velvane can read.");
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(DemoSettingsTest, WhatCannotBeReadIsNamed)
{
    EXPECT_EQ(DemoSettings::setBackdrop(project, folder.filePath("gone.png")),
              "“gone.png” cannot be read: No such file or directory.");
    EXPECT_EQ(DemoSettings::setBackdrop(project, "/dev/zero"), "“zero” is not a file.");
    EXPECT_EQ(undo.count(), 0);
}

TEST_F(DemoSettingsTest, WithoutABackdropThereIsNothingToRemove)
{
    DemoSettings::removeBackdrop(project);
    DemoSettings::setBackdrop(project, QImage());
    EXPECT_EQ(undo.count(), 0);
}

} // namespace velvane
