#pragma once

#include <QObject>
#include <QPointF>

namespace velvane {

/// How far the magnified view is moved, in view points. Kept while the magnifier is off.
class CanvasPan : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    QPointF offset() const { return m_offset; }

    bool magnify() const { return m_magnify; }
    void setMagnify(bool magnify) { m_magnify = magnify; }
    bool hovering() const { return m_hovering; }
    void setHovering(bool hovering) { m_hovering = hovering; }

    /// The button goes down.
    void beginDrag() { m_dragStart = m_offset; }
    /// The pointer is `translation` from where the button went down: pans once that is no click any
    /// more, while magnified.
    void drag(QPointF translation);

    /// Pans by the wheel's delta while magnified and hovered; otherwise the event is not taken.
    bool wheel(QPointF delta);

Q_SIGNALS:
    void offsetChanged();

private:
    void setOffset(QPointF offset);

    QPointF m_offset;
    QPointF m_dragStart;
    bool m_magnify = false;
    bool m_hovering = false;
};

} // namespace velvane
