#pragma once

#include "editor/CanvasMarks.h"

#include <QHash>
#include <QImage>

namespace velvane {

/// Pictures of markers and capsules, each drawn once for all that look alike.
class MarkPictures {
public:
    /// Draws a mark's picture at the nearest whole pixel. The painter is in device pixels;
    /// `toDevice` leads there from the marks' coordinates.
    void draw(QPainter &painter, const QTransform &toDevice, const CanvasMarks::Marker &marker);
    void draw(QPainter &painter, const QTransform &toDevice, const CanvasMarks::Capsule &capsule);
    /// Fonts or colours have changed.
    void clear();

private:
    enum class Look { marker, activeMarker, capsule };

    void draw(QPainter &painter, const QTransform &toDevice, const QRectF &rect, Look look,
              const QString &text);
    static QImage picture(QSizeF size, double scale, Look look, const QString &text);

    QHash<std::pair<int, QString>, QImage> m_pictures;
    qsizetype m_bytes = 0;
    /// Device pixels per logical pixel of the pictures.
    double m_scale = 0;
};

} // namespace velvane
