#include "editor/CanvasSurround.h"

#include "editor/Theme.h"

#include <QPainter>

#include <numbers>

namespace velvane {

namespace {

// In logical pixels. A blur of 24 is a Gaussian of half that as its standard deviation.
constexpr double deviation = 12;
constexpr double reach = 3 * deviation;
constexpr double drop = 6;
constexpr float darkOpacity = 0.55F;
constexpr float lightOpacity = 0.40F;

// How much of a Gaussian blur's kernel lies on the near side of an edge, `x` deviations inside it.
double coverage(double x)
{
    return 0.5 * (1 + std::erf(x / std::numbers::sqrt2));
}

// A rectangle's shadow, its edges `corner` ÷ 2 from the sides of the picture: corners of that many
// pixels and a middle of one, which can be stretched.
QImage makePatch(int corner, double scale, float opacity)
{
    const int side = 2 * corner + 1;
    std::vector<double> profile(side);
    for (int i = 0; i < side; ++i) {
        const int fromEnd = std::min(i, side - 1 - i);
        profile[i] = coverage((fromEnd + 0.5 - corner / 2.0) / (deviation * scale));
    }
    QImage patch(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y) {
        auto *row = reinterpret_cast<QRgb *>(patch.scanLine(y));
        for (int x = 0; x < side; ++x)
            row[x] = qRgba(0, 0, 0, qRound(255 * opacity * profile[x] * profile[y]));
    }
    return patch;
}

} // namespace

void CanvasSurround::draw(QPainter &painter, const QRect &canvas, const QRect &view, double scale)
{
    const ThemeColors &colors = Theme::instance().colors();
    const int hairline = std::max(1, qRound(scale));
    const QRect framed = canvas.adjusted(-hairline, -hairline, hairline, hairline);
    painter.save();
    painter.setClipRegion(QRegion(view) - canvas, Qt::IntersectClip);
    painter.fillRect(view, colors.stage);
    if (!canvas.isEmpty()) {
        drawShadow(painter, canvas, scale);
        for (const QRect &edge : QRegion(framed) - canvas)
            painter.fillRect(edge, colors.canvasHairline);
    }
    painter.restore();
}

void CanvasSurround::drawShadow(QPainter &painter, const QRect &canvas, double scale)
{
    const float opacity = Theme::instance().colors().isDark ? darkOpacity : lightOpacity;
    const int half = qRound(reach * scale);
    if (scale != m_scale || opacity != m_opacity) {
        m_patch = makePatch(2 * half, scale, opacity);
        m_scale = scale;
        m_opacity = opacity;
    }
    const QRect outer =
        canvas.adjusted(-half, -half, half, half).translated(0, qRound(drop * scale));
    // A canvas too small for the corners gets smaller ones.
    const int w = std::min(2 * half, outer.width() / 2);
    const int h = std::min(2 * half, outer.height() / 2);
    const int end = m_patch.width();
    const int xs[] = {outer.left(), outer.left() + w, outer.right() + 1 - w, outer.right() + 1};
    const int ys[] = {outer.top(), outer.top() + h, outer.bottom() + 1 - h, outer.bottom() + 1};
    const int us[] = {0, w, end - w, end};
    const int vs[] = {0, h, end - h, end};
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 3; ++x)
            if (x != 1 || y != 1)
                painter.drawImage(QRect(xs[x], ys[y], xs[x + 1] - xs[x], ys[y + 1] - ys[y]),
                                  m_patch,
                                  QRect(us[x], vs[y], us[x + 1] - us[x], vs[y + 1] - vs[y]));
}

} // namespace velvane
