#pragma once

#include "base/Frame.h"

#include <QObject>
#include <QSizeF>

namespace velvane {

/// Holds the newest picture of the live screen. Main thread only.
class LiveFrame : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Null before the first picture.
    const QImage &image() const { return m_image; }
    /// The picture's size in pixels; zero before the first.
    QSizeF size() const { return m_size; }

    void show(const Frame &frame);

Q_SIGNALS:
    /// The newest picture; it differs from the one before inside `changed`, in its pixels. Empty
    /// when it came again because nothing changes.
    void imageChanged(const QRegion &changed);
    void sizeChanged();

private:
    QImage m_image;
    QSizeF m_size{0, 0};
};

} // namespace velvane
