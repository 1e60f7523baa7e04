#include "Eventually.h"
#include "Settled.h"
#include "TestWindow.h"
#include "X11Session.h"
#include "platform/x11/X11Property.h"
#include "support/Print.h"

#include <algorithm>

namespace velvane {

namespace {

class X11ControlTest : public testing::Test {
protected:
    AppControl &apps() { return session.desktop().apps(); }
    WindowControl &windows() { return session.desktop().windows(); }

    std::unique_ptr<TestWindow> open(const QString &app, QPoint place = {100, 100})
    {
        settled(connection);
        return std::make_unique<TestWindow>(connection, app, QRect(place, QSize(300, 200)));
    }

    AppInfo app(const QString &name)
    {
        const std::vector<AppInfo> running = apps().running();
        const auto found = std::ranges::find(running, name, &AppInfo::name);
        return found == running.end() ? AppInfo() : *found;
    }

    /// Those on the screen, the frontmost first.
    QList<quint64> shown()
    {
        settled(connection);
        QList<quint64> ids;
        for (const WindowInfo &window : windows().windows()) {
            if (window.onScreen)
                ids << window.id;
        }
        return ids;
    }

    std::optional<WindowInfo> info(quint64 id)
    {
        settled(connection);
        const std::vector<WindowInfo> all = windows().windows();
        const auto found = std::ranges::find(all, id, &WindowInfo::id);
        return found == all.end() ? std::nullopt : std::optional(*found);
    }

    quint64 active()
    {
        settled(connection);
        X11Property property(connection, connection.root(), "_NET_ACTIVE_WINDOW");
        const std::vector<uint32_t> numbers = property.numbers();
        return numbers.empty() ? 0 : numbers.front();
    }

    X11Session session;
    X11Connection connection;
};

} // namespace

TEST_F(X11ControlTest, AnActivatedApplicationBringsAllItsWindowsInTheirOrder)
{
    const auto notes1 = open("Contract Notes");
    const auto mail1 = open("Contract Mail", {150, 150});
    const auto notes2 = open("Contract Notes", {200, 200});
    const auto mail2 = open("Contract Mail", {250, 250});
    apps().activate(app("Contract Notes"));
    EXPECT_EQ(shown(), QList<quint64>({notes2->id(), notes1->id(), mail2->id(), mail1->id()}));
    EXPECT_EQ(active(), notes2->id());
    apps().activate(app("Contract Mail"));
    EXPECT_EQ(shown(), QList<quint64>({mail2->id(), mail1->id(), notes2->id(), notes1->id()}));
    EXPECT_EQ(active(), mail2->id());
}

TEST_F(X11ControlTest, HidingTakesAllWindowsOfOneApplicationAndActivatingBringsThemBack)
{
    const auto notes1 = open("Contract Notes");
    const auto notes2 = open("Contract Notes", {200, 200});
    const auto mail = open("Contract Mail", {150, 150});
    const QRectF before = info(notes1->id())->frame;
    apps().hide(app("Contract Notes"));
    EXPECT_EQ(shown(), QList<quint64>({mail->id()}));
    apps().activate(app("Contract Notes"));
    EXPECT_EQ(shown(), QList<quint64>({notes2->id(), notes1->id(), mail->id()}));
    EXPECT_EQ(active(), notes2->id());
    EXPECT_EQ(info(notes1->id())->frame, before);
}

TEST_F(X11ControlTest, AWindowThatHasGoneMeanwhileIsLeftOut)
{
    const auto notes = open("Contract Notes");
    auto gone = open("Contract Notes", {200, 200});
    const auto mail = open("Contract Mail", {150, 150});
    const AppInfo listed = app("Contract Notes");
    gone.reset();
    apps().activate(listed);
    EXPECT_EQ(shown(), QList<quint64>({notes->id(), mail->id()}));
    apps().hide(listed);
    EXPECT_EQ(shown(), QList<quint64>({mail->id()}));
}

TEST_F(X11ControlTest, AnApplicationThatHasQuitIsSkipped)
{
    auto notes = open("Contract Notes");
    const auto mail = open("Contract Mail", {150, 150});
    const AppInfo listed = app("Contract Notes");
    notes.reset();
    apps().activate(listed);
    apps().hide(listed);
    EXPECT_EQ(shown(), QList<quint64>({mail->id()}));
    EXPECT_EQ(active(), mail->id());
}

TEST_F(X11ControlTest, AWindowHasItsTitleAndTheMainOneIsTheApplicationsKeyboard)
{
    const auto first = open("Contract Notes");
    const auto second = open("Contract Notes", {200, 200});
    second->setBytes("_NET_WM_NAME", connection.atom("UTF8_STRING"), "\"Über/unter\"\t\x01 1");
    EXPECT_EQ(info(second->id())->title, QString::fromUtf8("\"Über/unter\"\t\x01 1"));
    EXPECT_TRUE(info(second->id())->main);
    EXPECT_FALSE(info(first->id())->main);
    const auto mail = open("Contract Mail", {150, 150});
    EXPECT_TRUE(info(second->id())->main) << "also while another application has the keyboard";
    EXPECT_TRUE(info(mail->id())->main);
}

TEST_F(X11ControlTest, AWindowsOwnShadowIsNoPartOfItsFrame)
{
    const TestWindow window(connection, "Contract Shadow", QRect(100, 100, 400, 300),
                            TestWindow::Type::shadowed);
    EXPECT_EQ(info(window.id())->frame.size(), QSizeF(400 - 20 - 22, 300 - 14 - 26));
    windows().moveWindow(window.id(), {500, 400});
    EXPECT_EQ(info(window.id())->frame.topLeft(), QPointF(500, 400));
}

TEST_F(X11ControlTest, PlacesThatAreNoneAreSkipped)
{
    const auto window = open("Contract Notes");
    const QRectF before = info(window->id())->frame;
    windows().moveWindow(window->id(), {std::nan(""), 10});
    windows().moveWindow(window->id(), {10, std::numeric_limits<double>::infinity()});
    windows().moveWindow(0, {10, 10});
    windows().moveWindow(0x1'0000'0001, {10, 10});
    EXPECT_EQ(info(window->id())->frame, before);
    windows().moveWindow(window->id(), {1e300, -1e300});
    EXPECT_EQ(info(window->id())->frame.size(), before.size());
}

TEST_F(X11ControlTest, AMaximizedWindowKeepsItsSizeWhenItIsMoved)
{
    const auto window = open("Contract Notes");
    window->ask("_NET_WM_STATE", {1, connection.atom("_NET_WM_STATE_MAXIMIZED_VERT"),
                                  connection.atom("_NET_WM_STATE_MAXIMIZED_HORZ")});
    const QRectF before = info(window->id())->frame;
    ASSERT_GT(before.width(), 1900);
    windows().moveWindow(window->id(), {40, 30});
    EXPECT_EQ(info(window->id())->frame.size(), before.size());
}

} // namespace velvane
