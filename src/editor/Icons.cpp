#include "editor/Icons.h"

#include "editor/Theme.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

// A static library's resources are linked only where they are named, outside any namespace.
static void velvaneIconResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace velvane::Icons {

namespace {

void loadDrawings()
{
    static const bool loaded = [] { return velvaneIconResources(), true; }();
    Q_UNUSED(loaded);
}

QByteArray drawing(const QString &symbol)
{
    loadDrawings();
    QFile file(QLatin1String(":/icons/") + symbol + QLatin1String(".svg"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QPixmap rendered(const QString &symbol, const QColor &color, QSize pixels)
{
    const QByteArray svg = drawing(symbol);
    if (svg.isEmpty() || pixels.isEmpty())
        return {};
    QSvgRenderer renderer(QByteArray(svg).replace("currentColor", color.name().toLatin1()));
    QPixmap picture(pixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(pixels)));
    return picture;
}

QPixmap cached(const QString &symbol, const QColor &color, QSize pixels)
{
    const QString key = QStringLiteral("velvane-%1-%2-%3x%4")
                            .arg(symbol, color.name())
                            .arg(pixels.width())
                            .arg(pixels.height());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = rendered(symbol, color, pixels);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

QColor toneColor(Tone tone, QIcon::Mode mode)
{
    const ThemeColors &colors = Theme::instance().colors();
    if (mode == QIcon::Disabled)
        return colors.disabled;
    switch (tone) {
    case Tone::text:
        return colors.text;
    case Tone::secondary:
        return colors.secondary;
    case Tone::destructiveWhenActive:
        return mode == QIcon::Active ? colors.destructive : colors.text;
    case Tone::onPrimary:
        break;
    }
    return Qt::white;
}

/// Draws anew for each size, ratio and colour; the cache keeps what was drawn. The colour is
/// asked for each time, so icons follow the theme.
class Engine : public QIconEngine {
public:
    using Color = std::function<QColor(QIcon::Mode)>;

    Engine(QString symbol, Color color) : m_symbol(std::move(symbol)), m_color(std::move(color)) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        draw(*painter, m_symbol, m_color(mode), rect, std::min(rect.width(), rect.height()));
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        return cached(m_symbol, m_color(mode), size);
    }
    // The size is in device pixels here.
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal) override
    {
        return pixmap(size, mode, state);
    }
    QIconEngine *clone() const override { return new Engine(*this); }

private:
    QString m_symbol;
    Color m_color;
};

} // namespace

QIcon icon(const QString &symbol, Tone tone)
{
    return QIcon(new Engine(symbol, [tone](QIcon::Mode mode) { return toneColor(tone, mode); }));
}

QIcon stepIcon(StepKind kind)
{
    return QIcon(new Engine(symbol(kind), [kind](QIcon::Mode mode) {
        const ThemeColors &colors = Theme::instance().colors();
        return mode == QIcon::Disabled ? colors.disabled : colors.step(kind).glyph;
    }));
}

QPixmap pixmap(const QString &symbol, const QColor &color, int size, qreal devicePixelRatio)
{
    const int pixels = int(std::lround(size * devicePixelRatio));
    QPixmap picture = cached(symbol, color, {pixels, pixels});
    picture.setDevicePixelRatio(devicePixelRatio);
    return picture;
}

void draw(QPainter &painter, const QString &symbol, const QColor &color, const QRectF &in, int size)
{
    const qreal ratio = painter.device()->devicePixelRatio();
    const QPixmap picture = pixmap(symbol, color, size, ratio);
    const QPointF corner = in.center() - QPointF(size, size) / 2;
    // On whole device pixels the strokes stay sharp.
    const QPointF snapped(std::round(corner.x() * ratio) / ratio,
                          std::round(corner.y() * ratio) / ratio);
    painter.drawPixmap(snapped, picture);
}

} // namespace velvane::Icons
