#include "live/Applications.h"

#include <algorithm>
#include <optional>

namespace velvane::Live {

namespace {

// Enough for the window manager to have raised the other application.
constexpr Seconds untilUs = 0.12s;

// Spaces and tabs only: other white space may be part of a name.
QString trimmed(const QString &name)
{
    const auto isBlank = [](QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); };
    const auto begin = std::find_if_not(name.begin(), name.end(), isBlank);
    const auto end = std::find_if_not(name.rbegin(), name.rend(), isBlank).base();
    return begin < end ? QString(begin, end - begin) : QString();
}

std::optional<AppInfo> find(const std::vector<AppInfo> &apps, const QString &name)
{
    const auto found =
        std::ranges::find_if(apps, [&](const AppInfo &app) { return app.isNamed(name); });
    return found == apps.end() ? std::nullopt : std::optional(*found);
}

void bringForward(Desktop &desktop, const AppInfo &app)
{
    if (app.ours)
        desktop.shell().activate();
    else
        desktop.apps().activate(app);
}

std::optional<WindowInfo> mainWindow(Desktop &desktop, const AppInfo &app)
{
    std::vector<WindowInfo> windows = desktop.windows().windows();
    std::erase_if(windows, [&](const WindowInfo &window) {
        return app.windows.isEmpty() ? window.owner.name != app.name
                                     : !app.windows.contains(window.id);
    });
    if (windows.empty())
        return {};
    const auto main = std::ranges::find(windows, true, &WindowInfo::main);
    return main == windows.end() ? windows.front() : *main;
}

} // namespace

void activate(Desktop &desktop, const QString &appNamed)
{
    const QString name = trimmed(appNamed);
    if (name.isEmpty())
        return;
    if (const auto running = find(desktop.apps().running(), name))
        bringForward(desktop, *running);
    else if (const auto installed = find(desktop.apps().installed(), name))
        desktop.apps().launch(*installed);
}

void centerWindow(Desktop &desktop, const QString &ofAppNamed)
{
    const auto app = find(desktop.apps().running(), ofAppNamed);
    const auto window = app ? mainWindow(desktop, *app) : std::nullopt;
    const auto display = desktop.screens().mainDisplay();
    if (!window || !display)
        return;
    QRectF frame = window->frame;
    frame.moveCenter(display->visible.center());
    desktop.windows().moveWindow(window->id, frame.topLeft());
}

void hideOtherApps(Desktop &desktop, const QString &except)
{
    const QString kept = trimmed(except);
    for (const AppInfo &app : desktop.apps().running()) {
        if (app.policy == AppPolicy::regular && !app.ours && !app.isNamed(kept))
            desktop.apps().hide(app);
    }
    desktop.shell().hide();
}

void openAccessibilitySettings(Desktop &desktop)
{
    desktop.shell().open(QUrl(SettingsAddress::accessibility));
}

QCoro::Task<> raiseBehindUs(Desktop &desktop, QString appNamed)
{
    const auto app = find(desktop.apps().running(), appNamed);
    if (!app || app->ours)
        co_return;
    desktop.apps().activate(*app);
    co_await desktop.clock().delay(untilUs);
    desktop.shell().activate();
}

} // namespace velvane::Live
