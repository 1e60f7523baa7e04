#include "platform/simulated/SimulatedWindows.h"

#include <algorithm>

namespace velvane {

quint64 SimulatedWindows::add(WindowInfo window)
{
    if (!window.id)
        window.id = ++m_lastId;
    m_lastId = std::max(m_lastId, window.id);
    m_windows.push_back(std::move(window));
    return m_windows.back().id;
}

void SimulatedWindows::remove(quint64 id)
{
    std::erase_if(m_windows, [&](const WindowInfo &window) { return window.id == id; });
}

void SimulatedWindows::raise(const QString &appName)
{
    const auto isIts = [&](const WindowInfo &window) { return window.owner.name == appName; };
    const auto others = std::stable_partition(m_windows.begin(), m_windows.end(), isIts);
    std::for_each(m_windows.begin(), others, [](WindowInfo &window) { window.onScreen = true; });
}

void SimulatedWindows::hide(const QString &appName)
{
    for (WindowInfo &window : m_windows) {
        if (window.owner.name == appName)
            window.onScreen = false;
    }
}

std::vector<WindowInfo> SimulatedWindows::windows()
{
    return works() ? m_windows : std::vector<WindowInfo>();
}

void SimulatedWindows::moveWindow(quint64 id, QPointF topLeft)
{
    const auto found = std::ranges::find(m_windows, id, &WindowInfo::id);
    if (!works() || found == m_windows.end())
        return;
    found->frame.moveTopLeft(topLeft);
    m_log.add(QStringLiteral("moveWindow %1 %2,%3").arg(id).arg(topLeft.x()).arg(topLeft.y()));
}

} // namespace velvane
