#pragma once

#include "platform/Screens.h"
#include "platform/simulated/Simulated.h"

namespace velvane {

/// One display of 1920 × 1080 with a panel of 32 above, until told otherwise.
class SimulatedScreens final : public Simulated<Screens> {
public:
    SimulatedScreens();

    /// Replaces the displays; the first must be the primary one.
    void setDisplays(std::vector<Display> displays);
    /// Which display has the keyboard; the primary when out of range.
    void setMain(std::size_t index) { m_main = index; }
    void setPointer(QPointF point) { m_pointer = point; }

    std::vector<Display> displays() override;
    std::optional<Display> mainDisplay() override;
    std::optional<QPointF> pointer() override;

private:
    std::vector<Display> m_displays;
    std::size_t m_main = 0;
    QPointF m_pointer;
};

} // namespace velvane
