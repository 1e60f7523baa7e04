#include "editor/AppMenu.h"
#include "editor/FocusedActions.h"
#include "editor/IconButton.h"
#include "editor/InspectorPane.h"
#include "editor/LiveOverlay.h"
#include "editor/MenuActions.h"
#include "support/EditorFixture.h"
#include "support/RunToEnd.h"

#include <QThread>

namespace velvane {

namespace {

struct LiveRunInWindow : EditorFixture {
    LiveRunInWindow()
    {
        Step wait = stepOf(StepKind::wait);
        wait.pauseAfter = 1s;
        open({stepOf(StepKind::switchApp, " "), stepOf(StepKind::switchApp, "Notes"), wait});
    }

    void runToTheEnd() { runToEnd(view->liveRun().runLive()); }
    void at(Seconds time, const std::function<void()> &call)
    {
        // On the main thread, whichever lets time pass.
        desktop.clock().at(time, [call] {
            if (QThread::currentThread() == qApp->thread())
                call();
            else
                QMetaObject::invokeMethod(qApp, call, Qt::BlockingQueuedConnection);
        });
    }
    LiveOverlay &overlay() { return *view->findChild<LiveOverlay *>(); }
    template <typename Widget>
    Widget &named(const QString &name)
    {
        auto *found = Widgets::named<Widget>(*view, name);
        EXPECT_TRUE(found) << name.toStdString();
        return *found;
    }

    static constexpr Seconds inTheCountdown = 1s;
    static constexpr Seconds inTheRun = 3s;
};

} // namespace

TEST_F(LiveRunInWindow, TheOverlayCountsDownThenShowsTheRunThenGoes)
{
    QStringList counting;
    QStringList running;
    at(inTheCountdown, [&] { counting = overlay().lines(); });
    at(inTheRun, [&] { running = overlay().lines(); });
    runToTheEnd();
    EXPECT_EQ(counting, QStringList({"2", "Switching to Notes", "Press Esc to abort"}));
    EXPECT_EQ(running, QStringList("Live run in progress — Esc to stop"));
    EXPECT_TRUE(overlay().isHidden());
    EXPECT_EQ(view->statusLine().message(), "Live run finished.");
}

TEST_F(LiveRunInWindow, WhatConflictsWithARunIsDisabledFromTheCountdownOn)
{
    const auto usable = [this] {
        const MenuActions &menus = *view->menuActions().menuActions();
        return QList<bool>{named<IconButton>("Run Live").isEnabled(), menus.canRunLive,
                           view->liveRun().canRunLive()};
    };
    QList<bool> counting;
    QList<bool> running;
    QStringList recordTips;
    QString pickReason;
    ASSERT_EQ(usable(), QList<bool>(3, true));
    at(inTheCountdown, [&] { counting = usable(); });
    at(inTheRun, [&] {
        running = usable();
        for (const IconButton *button : view->findChildren<IconButton *>())
            if (button->accessibleName() == "Record")
                recordTips << button->toolTip();
        pickReason = view->pickLocation().missing();
    });
    runToTheEnd();
    EXPECT_EQ(counting, QList<bool>(3, false));
    EXPECT_EQ(running, QList<bool>(3, false));
    ASSERT_EQ(recordTips.size(), 2);
    for (const QString &tip : recordTips)
        EXPECT_TRUE(tip.contains("A live run is in progress.")) << tip.toStdString();
    EXPECT_EQ(pickReason, "A live run is in progress.");
    EXPECT_EQ(usable(), QList<bool>(3, true));
    EXPECT_NE(view->pickLocation().missing(), pickReason);
}

TEST_F(LiveRunInWindow, WhatIsBeingTypedBecomesPartOfTheDemoBeforeTheRun)
{
    project.setSelection(step(2).id);
    view->fieldEditing().setFocusedField(Field{Field::Kind::pause, 2});
    view->fieldEditing().bump(Field{Field::Kind::pause, 2}, 0.5);
    ASSERT_EQ(undo.count(), 0);
    at(inTheCountdown, [&] { EXPECT_EQ(undo.count(), 1); });
    runToTheEnd();
    EXPECT_NEAR(desktop.posted().front().time.count(), 2.4, 1e-9);
    EXPECT_NEAR(desktop.clock().now().count(), 2.4 + 0.3 + 0.3 + 1.5, 1e-9);
}

TEST_F(LiveRunInWindow, TheSettingsDecideWhetherOthersAreHidden)
{
    AppInfo app;
    app.name = "Mail";
    desktop.apps().run(app);
    runToTheEnd();
    EXPECT_FALSE(desktop.log().contains("hide Mail"));
    settings.setHideOthersDuringRun(true);
    runToTheEnd();
    EXPECT_TRUE(desktop.log().contains("hide Mail"));
    EXPECT_EQ(desktop.log().last(), "activate ourselves");
}

TEST_F(LiveRunInWindow, PickingAnApplicationBringsItRightBehindUs)
{
    AppInfo app;
    app.name = "Mail";
    desktop.apps().run(app);
    project.setSelection(step(1).id);
    auto *menu = view->inspectorPane().findChild<AppMenu *>();
    ASSERT_TRUE(menu);
    Q_EMIT menu->chosen("Mail");
    EXPECT_EQ(step(1).text, "Mail");
    EXPECT_EQ(desktop.log(), QStringList("activate Mail"));
    runToEnd(desktop.clock().delay(0.2s));
    EXPECT_EQ(desktop.log(), QStringList({"activate Mail", "activate ourselves"}));
}

} // namespace velvane
