#include "Settled.h"
#include "TestWindow.h"
#include "X11Session.h"
#include "support/contracts/ActivationsContract.h"
#include "support/contracts/AppControlContract.h"
#include "support/contracts/AppListingContract.h"
#include "support/contracts/PermissionsContract.h"
#include "support/contracts/ScreensContract.h"
#include "support/contracts/WindowControlContract.h"

#include <map>

namespace velvane {

namespace {

// The contracts' stage on a real X server.
class X11Stage {
public:
    AppControl &apps() { return m_session.desktop().apps(); }
    Permissions &permissions() { return m_session.desktop().permissions(); }
    Screens &screens() { return m_session.desktop().screens(); }
    WindowControl &windows() { return m_session.desktop().windows(); }

    void settle()
    {
        settled(m_connection);
        QCoreApplication::processEvents();
    }

    void install(const QString &name, const QString &localizedName)
    {
        m_session.install("contract", name, localizedName);
    }

    void run(const QString &name, AppPolicy policy)
    {
        const auto type =
            policy == AppPolicy::regular ? TestWindow::Type::normal : TestWindow::Type::dock;
        m_windows[name] =
            std::make_unique<TestWindow>(m_connection, name, QRect(50, 50, 300, 200), type);
    }

    quint64 openWindow(const QString &appName, const QRect &frame)
    {
        settle();
        auto window = std::make_unique<TestWindow>(m_connection, appName, frame);
        const quint64 id = window->id();
        m_opened[id] = std::move(window);
        return id;
    }

    void closeWindow(quint64 id) { m_opened.erase(id); }

    void quit(const QString &name) { m_windows.erase(name); }

    void movePointer(QPointF point)
    {
        xcb_warp_pointer(m_connection.get(), XCB_NONE, m_connection.root(), 0, 0, 0, 0,
                         int16_t(point.x()), int16_t(point.y()));
        std::free(xcb_get_input_focus_reply(m_connection.get(),
                                            xcb_get_input_focus(m_connection.get()), nullptr));
    }

private:
    X11Session m_session;
    X11Connection m_connection;
    std::map<QString, std::unique_ptr<TestWindow>> m_windows;
    std::map<quint64, std::unique_ptr<TestWindow>> m_opened;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(X11, ActivationsContract, X11Stage);
INSTANTIATE_TYPED_TEST_SUITE_P(X11, AppControlContract, X11Stage);
INSTANTIATE_TYPED_TEST_SUITE_P(X11, AppListingContract, X11Stage);
INSTANTIATE_TYPED_TEST_SUITE_P(X11, PermissionsContract, X11Stage);
INSTANTIATE_TYPED_TEST_SUITE_P(X11, ScreensContract, X11Stage);
INSTANTIATE_TYPED_TEST_SUITE_P(X11, WindowControlContract, X11Stage);

} // namespace velvane
