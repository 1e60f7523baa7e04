#pragma once

#include "platform/x11/X11Connection.h"

#include <QImage>
#include <QRegion>

namespace velvane {

/// Draws the pointer into pictures, and takes it out again.
class X11PointerLayer {
public:
    explicit X11PointerLayer(const X11Connection &connection);

    void handle(const xcb_generic_event_t &event);

    /// Looks where the pointer is and what it looks like. True when a picture with the pointer
    /// drawn before would look different now.
    bool follow();

    /// Puts back what the pointer covered. Returns where, in the picture's pixels.
    QRegion lift(QImage &picture);
    /// Draws the pointer into a picture whose first pixel is the root window's `origin`. Returns
    /// where, in the picture's pixels.
    QRegion drop(QImage &picture, QPoint origin);
    /// Forgets what was covered: the picture is another one.
    void forget() { m_covered = {}; }

private:
    void loadImage();

    const X11Connection &m_connection;
    const int m_cursorEvent;
    /// In root-window pixels.
    QPoint m_place;
    QImage m_image;
    QPoint m_hotSpot;
    bool m_isOutdated = true;
    QImage m_covered;
    QPoint m_coveredAt;
};

} // namespace velvane
