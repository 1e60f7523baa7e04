#pragma once

#include "platform/Screens.h"
#include "platform/x11/X11Connection.h"

namespace velvane {

/// A display in root-window pixels, as the server tells it.
struct X11Monitor {
    QString name;
    QRect frame;
    bool primary = false;
};

/// The displays as RandR knows them; one display as large as the root window without RandR.
///
/// Reads no events of the connection and throws them away, for all who share it: whatever uses the
/// desktop asks for its displays now and then.
class X11Screens final : public Screens {
public:
    explicit X11Screens(const X11Connection &connection);

    QString missing() const override;
    std::vector<Display> displays() override;
    std::optional<Display> mainDisplay() override;
    std::optional<QPointF> pointer() override;

    /// Where the points of all facilities begin, in root pixels.
    QPoint origin() const;

private:
    std::vector<X11Monitor> freshMonitors() const;

    const X11Connection &m_connection;
    const bool m_hasRandr;
};

/// The monitors as RandR knows them, or one as large as the root window.
std::vector<X11Monitor> monitorsOf(const X11Connection &connection, bool hasRandr);

/// Where the primary monitor begins in root pixels; the first when none says it is primary.
QPoint originOf(const std::vector<X11Monitor> &monitors);

/// Displays in points relative to the primary one, which comes first; the first monitor is the
/// primary when none says so. `workArea`, in root pixels, is what panels leave free of the whole
/// desktop; empty when unknown.
std::vector<Display> displaysOf(std::vector<X11Monitor> monitors, const QRect &workArea);

} // namespace velvane
