#include "editor/TaskbarProgress.h"

#include "support/EditorFixture.h"
#include "support/RunToEnd.h"

#include <QGuiApplication>

namespace velvane {

namespace {

/// Two exports of the same demo, as two windows have them.
struct TaskbarProgressTest : testing::Test {
    TaskbarProgressTest()
    {
        Step pause = stepOf(StepKind::wait);
        pause.pauseAfter = 1s;
        project.setSteps({pause});
        project.setCanvasSize({64, 48});
        project.setFps(10);
        taskbar.follow(*first);
        taskbar.follow(*second);
    }

    std::unique_ptr<ExportController> controller()
    {
        return std::make_unique<ExportController>(project, status, backdrop, gesture,
                                                  [](const ExportQuestion &) {});
    }
    void run(ExportController &exporting, const QString &name)
    {
        runToEnd(exporting.exportTo(folder.filePath(name)));
    }

    QTemporaryDir folder;
    SimulatedDesktop desktop;
    Project project;
    StatusLine status;
    OpenGesture gesture{project};
    BackdropController backdrop{project, status, desktop};
    std::unique_ptr<ExportController> first = controller();
    std::unique_ptr<ExportController> second = controller();
    TaskbarProgress taskbar;
};

} // namespace

TEST_F(TaskbarProgressTest, WithoutAnExportThereIsNoBar)
{
    EXPECT_FALSE(taskbar.progress());
    run(*first, "a.mp4");
    EXPECT_FALSE(taskbar.progress());
}

TEST_F(TaskbarProgressTest, OneExportShowsItsOwnProgress)
{
    QList<double> shown;
    QObject::connect(&taskbar, &TaskbarProgress::progressChanged, &taskbar, [&] {
        if (const auto progress = taskbar.progress()) {
            EXPECT_EQ(*progress, first->exportProgress());
            shown << *progress;
        }
    });
    run(*first, "a.mp4");
    EXPECT_EQ(shown.size(), 11);
}

TEST_F(TaskbarProgressTest, TwoExportsShareTheirMeanAndTheBarNeverGoesBack)
{
    double last = 0;
    bool isShared = false;
    QObject::connect(&taskbar, &TaskbarProgress::progressChanged, &taskbar, [&] {
        const auto progress = taskbar.progress();
        if (!isShared || !progress)
            return;
        EXPECT_EQ(*progress, (first->exportProgress() + second->exportProgress()) / 2);
        EXPECT_GE(*progress, last);
        last = *progress;
    });
    auto running = first->exportTo(folder.filePath("a.mp4"));
    ASSERT_TRUE(first->isExporting());
    isShared = true;
    run(*second, "b.mp4");
    runToEnd(std::move(running));
    EXPECT_EQ(last, 1.0);
    EXPECT_FALSE(taskbar.progress());
}

TEST_F(TaskbarProgressTest, AWindowThatGoesLeavesTheBarToTheOthers)
{
    run(*first, "a.mp4");
    second.reset();
    EXPECT_FALSE(taskbar.progress());
    run(*first, "b.mp4");
    EXPECT_FALSE(taskbar.progress());
}

TEST(TaskbarProgress, TellsTheDesktopHowFarItIs)
{
    QGuiApplication::setDesktopFileName("com.orvikel.velvane");
    const QDBusMessage message = TaskbarProgress::message(0.42);
    EXPECT_EQ(message.interface(), "com.canonical.Unity.LauncherEntry");
    EXPECT_EQ(message.member(), "Update");
    EXPECT_EQ(message.arguments().at(0), "application://com.orvikel.velvane.desktop");
    const QVariantMap properties = message.arguments().at(1).toMap();
    EXPECT_EQ(properties.value("progress"), 0.42);
    EXPECT_EQ(properties.value("progress-visible"), true);
}

TEST(TaskbarProgress, TakesTheBarAwayAtTheEnd)
{
    const QVariantMap properties = TaskbarProgress::message({}).arguments().at(1).toMap();
    EXPECT_EQ(properties.value("progress-visible"), false);
}

} // namespace velvane
