#include "Eventually.h"
#include "X11Session.h"
#include "support/Print.h"

#include <QStringList>

namespace velvane {

namespace {

// A server without a window manager: the test itself says which window is the active one.
class X11ActivationsTest : public testing::Test {
protected:
    void SetUp() override
    {
        notes = addWindow("Notes");
        secondNotes = addWindow("Notes");
        mail = addWindow("Mail");
        list({notes, secondNotes, mail});
        activate(notes);
        token = session.desktop().apps().watchActivations(
            [this](const AppInfo &app) { told << app.name; });
        ASSERT_TRUE(token);
    }

    xcb_window_t addWindow(const QByteArray &name)
    {
        const xcb_window_t window = xcb_generate_id(connection.get());
        xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, window, connection.root(), 0, 0,
                          100, 100, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0,
                          nullptr);
        const QByteArray value = name.toLower() + '\0' + name + '\0';
        xcb_change_property(connection.get(), XCB_PROP_MODE_REPLACE, window,
                            connection.atom("WM_CLASS"), XCB_ATOM_STRING, 8, uint32_t(value.size()),
                            value.constData());
        return window;
    }

    void list(const std::vector<xcb_window_t> &windows) { setOnRoot("_NET_CLIENT_LIST", windows); }
    void activate(xcb_window_t window) { setOnRoot("_NET_ACTIVE_WINDOW", {window}); }

    void setOnRoot(const QByteArray &property, const std::vector<xcb_window_t> &windows)
    {
        std::free(xcb_request_check(
            connection.get(),
            xcb_change_property_checked(connection.get(), XCB_PROP_MODE_REPLACE, connection.root(),
                                        connection.atom(property), XCB_ATOM_WINDOW, 32,
                                        uint32_t(windows.size()), windows.data())));
    }

    bool isTold(const QStringList &names)
    {
        return eventually([&] { return told.size() >= names.size(); }) && told == names;
    }

    TestServer server;
    X11Session session{server.display()};
    X11Connection connection{server.display()};
    xcb_window_t notes = XCB_NONE, secondNotes = XCB_NONE, mail = XCB_NONE;
    QStringList told;
    Token token;
};

} // namespace

TEST_F(X11ActivationsTest, EachOtherApplicationIsToldOnce)
{
    activate(mail);
    EXPECT_TRUE(isTold({"Mail"}));
    activate(mail);
    activate(notes);
    EXPECT_TRUE(isTold({"Mail", "Notes"}));
}

TEST_F(X11ActivationsTest, NoActiveWindowIsNoApplicationAndForgetsNone)
{
    activate(XCB_NONE);
    activate(notes);
    activate(mail);
    EXPECT_TRUE(isTold({"Mail"}));
}

TEST_F(X11ActivationsTest, AnotherWindowOfTheSameApplicationIsNoSwitch)
{
    activate(secondNotes);
    activate(mail);
    EXPECT_TRUE(isTold({"Mail"}));
}

TEST_F(X11ActivationsTest, AWindowThatIsActiveBeforeItIsListedIsToldThen)
{
    const xcb_window_t late = addWindow("Late");
    activate(late);
    list({notes, secondNotes, mail, late});
    EXPECT_TRUE(isTold({"Late"}));
}

TEST_F(X11ActivationsTest, AServerThatGoesAwayEndsInSilence)
{
    server.stop();
    // The last window closes, so to speak: nothing is told and nothing spins.
    EXPECT_FALSE(session.desktop().apps().watchActivations([](const AppInfo &) {}));
    QCoreApplication::processEvents();
    EXPECT_TRUE(told.isEmpty());
}

} // namespace velvane
