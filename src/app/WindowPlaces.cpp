#include "app/WindowPlaces.h"

#include "app/EditorWindow.h"
#include "editor/ContentView.h"

#include <QScreen>

namespace velvane::WindowPlaces {

namespace {

constexpr QSize preferredSize(1440, 900);
// Room for the window manager's frame, whose size is not known yet.
constexpr QSize frame(16, 48);
constexpr QPoint cascade(28, 28);

namespace Key {
const auto geometry = QStringLiteral("windowGeometry");
const auto sidebar = QStringLiteral("sidebarWidth");
const auto inspector = QStringLiteral("inspectorWidth");
} // namespace Key

bool isTaken(const QPoint &place, const QList<EditorWindow *> &windows)
{
    return std::any_of(windows.begin(), windows.end(), [&place](const EditorWindow *window) {
        return (window->geometry().topLeft() - place).manhattanLength() < cascade.x();
    });
}

} // namespace

void remember(const EditorWindow &window, QSettings &settings)
{
    settings.setValue(Key::geometry, window.saveGeometry());
    const PaneWidths widths = window.content().panes().widths();
    if (widths.sidebar > 0)
        settings.setValue(Key::sidebar, widths.sidebar);
    if (widths.inspector > 0)
        settings.setValue(Key::inspector, widths.inspector);
}

void place(EditorWindow &window, QSettings &settings, const QList<EditorWindow *> &others)
{
    const QSize room = window.screen()->availableSize() - frame;
    window.resize(preferredSize.boundedTo(room).expandedTo(window.minimumSize()));
    window.restoreGeometry(settings.value(Key::geometry).toByteArray());
    window.content().panes().restore(
        {settings.value(Key::sidebar).toInt(), settings.value(Key::inspector).toInt()});
    QRect at = window.geometry();
    while (isTaken(at.topLeft(), others))
        at.translate(cascade);
    // One that would stand over the edge is left to the window manager.
    if (at != window.geometry() && window.screen()->availableGeometry().contains(at))
        window.setGeometry(at);
}

} // namespace velvane::WindowPlaces
