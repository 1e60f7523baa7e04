#include "platform/simulated/SimulatedDesktop.h"
#include "support/contracts/ActivationsContract.h"
#include "support/contracts/AppControlContract.h"
#include "support/contracts/AppListingContract.h"
#include "support/contracts/InputContract.h"
#include "support/contracts/KeyboardContract.h"
#include "support/contracts/PermissionsContract.h"
#include "support/contracts/ScreenCaptureContract.h"
#include "support/contracts/ScreensContract.h"
#include "support/contracts/ShellContract.h"
#include "support/contracts/WindowControlContract.h"

#include <QPainter>

namespace velvane {

namespace {

// Every contract's stage, on a simulated desktop.
class Simulation {
public:
    Simulation() { m_picture.fill(Qt::black); }

    AppControl &apps() { return m_desktop.apps(); }
    InputSynthesizer &input() { return m_desktop.input(); }
    InputTap &tap() { return m_desktop.tap(); }
    KeyWatcher &keys() { return m_desktop.keys(); }
    Permissions &permissions() { return m_desktop.permissions(); }
    ScreenCapture &capture() { return m_desktop.capture(); }
    Screens &screens() { return m_desktop.screens(); }
    DesktopShell &shell() { return m_desktop.shell(); }
    WindowControl &windows() { return m_desktop.windows(); }

    void settle() {}
    bool areShown() { return !m_desktop.shell().hidden(); }
    bool haveKeyboard() { return m_desktop.shell().active(); }
    void movePointer(QPointF point) { m_desktop.screens().setPointer(point); }
    void userPresses(quint16 keyCode) { m_desktop.press(keyCode); }

    void install(const QString &name, const QString &localizedName)
    {
        AppInfo app;
        app.name = name;
        app.localizedName = localizedName;
        m_desktop.apps().install(app);
    }

    void run(const QString &name, AppPolicy policy)
    {
        AppInfo app;
        app.name = name;
        app.policy = policy;
        m_desktop.apps().run(app);
        m_desktop.apps().setIcon(name, m_picture);
    }

    void quit(const QString &name) { m_desktop.apps().quit(name); }

    quint64 openWindow(const QString &appName, const QRect &frame)
    {
        WindowInfo window;
        window.owner.name = appName;
        window.frame = frame;
        const quint64 id = m_desktop.windows().add(window);
        m_desktop.windows().raise(appName);
        return id;
    }

    void closeWindow(quint64 id) { m_desktop.windows().remove(id); }

    QSize screenSize() const { return m_picture.size(); }

    void paint(const QRect &rect, const QColor &color)
    {
        QPainter(&m_picture).fillRect(rect, color);
        m_desktop.capture().show(m_picture, rect);
    }

private:
    SimulatedDesktop m_desktop;
    QImage m_picture{1920, 1080, QImage::Format_ARGB32_Premultiplied};
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, ActivationsContract, Simulation);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, AppControlContract, Simulation);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, AppListingContract, Simulation);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, InputContract, Simulation);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, KeyboardContract, Simulation);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, PermissionsContract, Simulation);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, ScreenCaptureContract, Simulation);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, ScreensContract, Simulation);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, ShellContract, Simulation);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, WindowControlContract, Simulation);

} // namespace velvane
