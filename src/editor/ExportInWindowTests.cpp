#include "editor/FocusedActions.h"
#include "support/EditorFixture.h"
#include "support/RunToEnd.h"

#include <QElapsedTimer>
#include <QTimer>

#include <iostream>

namespace velvane {

TEST_F(EditorFixture, WhileExportingTheMenuItemIsDisabledAndTheProgressShows)
{
    open({stepOf(StepKind::wait)});
    const auto *progress = Widgets::named<QWidget>(*view, "Exporting, 0%");
    ASSERT_TRUE(progress);
    EXPECT_FALSE(progress->isVisible());
    bool seen = false;
    QObject::connect(&view->exporting(), &ExportController::exportProgressChanged, view.get(), [&] {
        seen = true;
        EXPECT_TRUE(progress->isVisible());
        EXPECT_FALSE(view->menuActions().exportVideo());
    });
    runToEnd(view->exporting().exportTo(folder.filePath("demo.mp4")));
    EXPECT_TRUE(seen);
    EXPECT_FALSE(progress->isVisible());
    EXPECT_TRUE(view->menuActions().exportVideo());
}

// How long an event may have to wait while the editor exports: printed, for whoever tunes it.
TEST_F(EditorFixture, EventsAreServedDuringAnExport)
{
    project.setCanvasSize({1280, 800});
    QList<Step> steps;
    for (int i = 0; i < 8; ++i) {
        Step move = stepOf(StepKind::move);
        move.point = i % 2 ? QPointF(20, 20) : QPointF(1200, 700);
        move.duration = 0.5s;
        steps << move;
    }
    open(steps);
    QElapsedTimer clock;
    qint64 longest = 0;
    qint64 events = 0;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(1);
    QObject::connect(&timer, &QTimer::timeout, view.get(), [&] {
        longest = std::max(longest, clock.nsecsElapsed());
        clock.restart();
        ++events;
    });
    clock.start();
    timer.start();
    runToEnd(view->exporting().exportTo(folder.filePath("demo.mp4")));
    longest = std::max(longest, clock.nsecsElapsed());
    timer.stop();
    std::cout << "longest wait of an event: " << double(longest) / 1e6 << " ms, of " << events
              << " events\n";
    EXPECT_EQ(view->statusLine().message(), "Exported to demo.mp4.");
    EXPECT_GT(events, 0);
    RecordProperty("longest_wait_us", int(longest / 1000));
}

} // namespace velvane
