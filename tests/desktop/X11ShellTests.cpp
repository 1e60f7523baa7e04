#include "Eventually.h"
#include "Settled.h"
#include "TestWindow.h"
#include "X11Session.h"
#include "platform/x11/X11Property.h"
#include "support/Print.h"
#include "support/contracts/ShellContract.h"

#include <QRasterWindow>

#include <thread>

namespace velvane {

namespace {

// Windows of this process, and one of another.
class X11ShellDesktop {
public:
    X11ShellDesktop()
    {
        other.setNumbers("_NET_WM_PID", XCB_ATOM_CARDINAL, {1});
        settled(connection);
    }

    DesktopShell &shell() { return session.desktop().shell(); }

    std::optional<X11Window> find(xcb_window_t id)
    {
        settled(connection);
        for (const X11Window &window : managedWindows(connection)) {
            if (window.id == id)
                return window;
        }
        return {};
    }

    bool isShown(xcb_window_t id)
    {
        const auto window = find(id);
        return window && window->onScreen;
    }

    xcb_window_t active()
    {
        settled(connection);
        X11Property property(connection, connection.root(), "_NET_ACTIVE_WINDOW");
        const std::vector<uint32_t> numbers = property.numbers();
        return numbers.empty() ? XCB_NONE : numbers.front();
    }

    xcb_window_t topmost()
    {
        settled(connection);
        X11Property list(connection, connection.root(), "_NET_CLIENT_LIST_STACKING");
        const std::vector<uint32_t> numbers = list.numbers();
        return numbers.empty() ? XCB_NONE : numbers.back();
    }

    X11Session session;
    X11Connection connection;
    TestWindow other{connection, "Contract Other", QRect(80, 60, 500, 400)};
};

// A window made with the toolkit.
class OwnWindow : public QRasterWindow {
public:
    OwnWindow()
    {
        setGeometry(300, 200, 400, 250);
        show();
        eventually([&] { return isExposed(); });
    }
    xcb_window_t id() const { return static_cast<xcb_window_t>(winId()); }
};

class X11ShellTest : public testing::Test, public X11ShellDesktop {};

// The contract's stage: one window of ours, in front.
class X11ShellStage {
public:
    X11ShellStage() { shell().activate(); }

    DesktopShell &shell() { return m_desktop.shell(); }
    bool areShown() { return m_desktop.isShown(m_window.id()); }
    bool haveKeyboard() { return m_desktop.active() == m_window.id(); }

private:
    X11ShellDesktop m_desktop;
    const OwnWindow m_window;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(X11, ShellContract, X11ShellStage);

TEST_F(X11ShellTest, HiddenWindowsComeBackWhereTheyWereWithoutTheKeyboard)
{
    OwnWindow window;
    OwnWindow second;
    second.setPosition(700, 500);
    const QRect before = find(window.id())->frame;
    const QRect secondBefore = find(second.id())->frame;
    shell().hide();
    EXPECT_FALSE(isShown(window.id()));
    EXPECT_FALSE(isShown(second.id()));
    EXPECT_TRUE(isShown(other.id()));
    EXPECT_EQ(active(), other.id());
    shell().unhide();
    EXPECT_TRUE(isShown(window.id()));
    EXPECT_TRUE(isShown(second.id()));
    EXPECT_EQ(find(window.id())->frame, before);
    EXPECT_EQ(find(second.id())->frame, secondBefore);
    EXPECT_TRUE(eventually([&] { return active() == other.id(); }));
}

TEST_F(X11ShellTest, ActivatingBringsOursInFrontWithTheKeyboard)
{
    OwnWindow window;
    shell().hide();
    shell().activate();
    EXPECT_TRUE(isShown(window.id()));
    EXPECT_EQ(active(), window.id());
    EXPECT_EQ(topmost(), window.id());
    EXPECT_TRUE(eventually([&] { return window.isActive(); }));
}

TEST_F(X11ShellTest, TheWindowThatWasInFrontIsInFrontAgain)
{
    OwnWindow first;
    OwnWindow second;
    OwnWindow third;
    // With no other program to give the keyboard to.
    xcb_unmap_window(connection.get(), other.id());
    settled(connection);
    for (OwnWindow *front : {&first, &third, &second, &first, &second, &third}) {
        front->raise();
        front->requestActivate();
        ASSERT_TRUE(eventually([&] { return active() == front->id(); }));
        shell().hide();
        ASSERT_FALSE(isShown(front->id()));
        shell().unhide();
        shell().activate();
        EXPECT_TRUE(eventually([&] { return active() == front->id(); }));
        EXPECT_EQ(topmost(), front->id());
    }
}

TEST_F(X11ShellTest, AMinimizedWindowStaysMinimized)
{
    OwnWindow window;
    OwnWindow minimized;
    minimized.showMinimized();
    ASSERT_TRUE(eventually([&] { return !isShown(minimized.id()); }));
    shell().hide();
    shell().unhide();
    EXPECT_TRUE(isShown(window.id()));
    EXPECT_FALSE(isShown(minimized.id()));
    shell().hide();
    shell().activate();
    EXPECT_TRUE(isShown(window.id()));
    EXPECT_FALSE(isShown(minimized.id()));
}

TEST_F(X11ShellTest, AMaximizedWindowComesBackMaximizedAndKnowsItsFormerSize)
{
    OwnWindow window;
    const QRect former = find(window.id())->frame;
    window.showMaximized();
    ASSERT_TRUE(eventually([&] { return window.windowStates() & Qt::WindowMaximized; }));
    const QRect before = find(window.id())->frame;
    shell().hide();
    ASSERT_FALSE(isShown(window.id()));
    shell().unhide();
    EXPECT_EQ(find(window.id())->frame, before);
    EXPECT_TRUE(window.windowStates() & Qt::WindowMaximized);
    window.showNormal();
    EXPECT_TRUE(eventually([&] { return find(window.id())->frame == former; }));
}

TEST_F(X11ShellTest, UnhidingWhatIsNotHiddenDoesNothing)
{
    OwnWindow window;
    window.showMinimized();
    ASSERT_TRUE(eventually([&] { return !isShown(window.id()); }));
    shell().unhide();
    EXPECT_FALSE(isShown(window.id()));
}

TEST_F(X11ShellTest, CallsFromAnyThreadTakeEffectInTheirOrder)
{
    OwnWindow window;
    std::thread worker([&] {
        for (int i = 0; i < 20; ++i) {
            shell().hide();
            shell().unhide();
        }
        shell().hide();
    });
    worker.join();
    EXPECT_FALSE(isShown(window.id()));
    std::thread([&] {
        shell().unhide();
        shell().hide();
        shell().activate();
    }).join();
    EXPECT_TRUE(isShown(window.id()));
    EXPECT_EQ(active(), window.id());
}

TEST_F(X11ShellTest, MenusCloseWhenWeHide)
{
    OwnWindow window;
    QRasterWindow menu;
    menu.setFlags(Qt::Popup);
    menu.setTransientParent(&window);
    menu.setGeometry(350, 250, 100, 80);
    menu.show();
    ASSERT_TRUE(eventually([&] { return menu.isExposed(); }));
    shell().hide();
    EXPECT_TRUE(eventually([&] { return !menu.isVisible(); }));
    EXPECT_FALSE(isShown(window.id()));
    shell().activate();
    EXPECT_FALSE(menu.isVisible());
    EXPECT_TRUE(isShown(window.id()));
}

TEST_F(X11ShellTest, AWindowThatClosesWhileHiddenStaysClosed)
{
    OwnWindow window;
    auto closing = std::make_unique<OwnWindow>();
    const xcb_window_t id = closing->id();
    shell().hide();
    ASSERT_FALSE(isShown(id));
    closing.reset();
    shell().unhide();
    EXPECT_TRUE(isShown(window.id()));
    EXPECT_FALSE(find(id));
}

} // namespace velvane
