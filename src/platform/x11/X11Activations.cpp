#include "platform/x11/X11Activations.h"

#include "platform/x11/X11AppControl.h"
#include "platform/x11/X11Property.h"

#include <QSocketNotifier>

#include <algorithm>

namespace velvane {

namespace {

class ActivationWatch final : public Subscription {
public:
    ActivationWatch(AppControl &apps, const QByteArray &display,
                    std::function<void(const AppInfo &)> activated)
        : m_apps(apps)
        , m_activated(std::move(activated))
        , m_connection(display)
    {
        if (!isOpen())
            return;
        const uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_connection.get(), m_connection.root(), XCB_CW_EVENT_MASK,
                                     &mask);
        // Whoever is active now has not become so. The reply comes after the change of the mask.
        look();
        m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection.get()),
                                                       QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                         [this] { follow(); });
    }

    bool isOpen() const { return m_connection.isOpen(); }

private:
    void follow();
    bool somethingChanged();
    /// The application that is the active one now, if it is another than at the last look.
    std::optional<AppInfo> look();

    AppControl &m_apps;
    const std::function<void(const AppInfo &)> m_activated;
    const X11Connection m_connection;
    std::unique_ptr<QSocketNotifier> m_notifier;
    xcb_window_t m_window = XCB_NONE;
    std::optional<AppInfo> m_app;
};

void ActivationWatch::follow()
{
    // Asking brings in what has changed meanwhile: until nothing has.
    while (somethingChanged()) {
        if (const std::optional<AppInfo> app = look())
            m_activated(*app);
    }
    // A socket without a server is readable for ever.
    if (!isOpen())
        m_notifier->setEnabled(false);
}

bool ActivationWatch::somethingChanged()
{
    bool changed = false;
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
            continue;
        const auto *property = reinterpret_cast<const xcb_property_notify_event_t *>(event.get());
        // A new window may be the active one before it is on the list.
        changed |= property->atom == m_connection.atom("_NET_ACTIVE_WINDOW")
                   || property->atom == m_connection.atom("_NET_CLIENT_LIST");
    }
    return changed;
}

std::optional<AppInfo> ActivationWatch::look()
{
    X11Property active(m_connection, m_connection.root(), "_NET_ACTIVE_WINDOW");
    const std::vector<uint32_t> windows = active.numbers();
    // None is in front while the window manager passes the focus on.
    if (windows.empty() || windows.front() == XCB_NONE || windows.front() == m_window)
        return {};
    const std::vector<AppInfo> apps = m_apps.running();
    const auto app = std::ranges::find_if(
        apps, [&](const AppInfo &each) { return each.windows.contains(windows.front()); });
    if (app == apps.end())
        return {};
    m_window = windows.front();
    const bool same = m_app && sameApp(*m_app, *app);
    m_app = *app;
    return same ? std::nullopt : m_app;
}

} // namespace

Token X11Activations::watch(AppControl &apps, const QByteArray &display,
                            std::function<void(const AppInfo &)> activated)
{
    auto watch = std::make_unique<ActivationWatch>(apps, display, std::move(activated));
    if (!watch->isOpen())
        return {};
    return watch;
}

} // namespace velvane
