#include "platform/simulated/SimulatedScreens.h"

namespace velvane {

SimulatedScreens::SimulatedScreens()
{
    Display display;
    display.name = "Simulated";
    display.frame = QRectF(0, 0, 1920, 1080);
    display.visible = QRectF(0, 32, 1920, 1048);
    display.primary = true;
    m_displays.push_back(display);
}

void SimulatedScreens::setDisplays(std::vector<Display> displays)
{
    m_displays = std::move(displays);
}

std::vector<Display> SimulatedScreens::displays()
{
    return works() ? m_displays : std::vector<Display>();
}

std::optional<Display> SimulatedScreens::mainDisplay()
{
    if (!works() || m_displays.empty())
        return {};
    return m_displays[m_main < m_displays.size() ? m_main : 0];
}

std::optional<QPointF> SimulatedScreens::pointer()
{
    if (!works() || m_displays.empty())
        return {};
    return m_pointer;
}

} // namespace velvane
