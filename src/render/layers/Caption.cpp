#include "render/layers/Caption.h"

#include "render/layers/Shapes.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>

namespace velvane::Caption {

namespace {

constexpr double sidePadding = 22;
constexpr double endPadding = 12;
constexpr double distanceFromBottom = 48;
constexpr int fontSize = 26;
constexpr float pillAlpha = 0.72F;
// Glyphs are placed on whole pixels vertically and quarter pixels horizontally.
constexpr double antialiasing = 2;

// The emoji font is named because many text fonts have some emoji in black and white; but never
// without a text font before it, because it has digits and spaces of its own.
QStringList families()
{
    const auto inter = QStringLiteral("Inter");
    if (QFontDatabase::hasFamily(inter))
        return {inter, QStringLiteral("Noto Color Emoji")};
    return {QStringLiteral("sans-serif")};
}

// Made anew each time: a font must not be shared between threads.
QFont font()
{
    static const QStringList names = families();
    QFont font(names);
    font.setStyleHint(QFont::SansSerif,
                      QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    font.setWeight(QFont::DemiBold);
    font.setPixelSize(fontSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

// The text layout breaks lines at one character only.
QString withLineSeparators(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (const QChar other : {QChar(u'\r'), QChar(u'\n'), QChar(QChar::ParagraphSeparator)})
        text.replace(other, QChar(QChar::LineSeparator));
    return text;
}

// A text as it is measured and drawn. Lines keep the text font's height, whatever other fonts
// lend their glyphs, so that the pill does not jump while an emoji is typed.
class Lines {
public:
    explicit Lines(const QString &text) : m_layout(withLineSeparators(text), font())
    {
        QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
        option.setWrapMode(QTextOption::NoWrap);
        option.setFlags(QTextOption::IncludeTrailingSpaces);
        m_layout.setTextOption(option);
        const QFontMetricsF metrics(m_layout.font());
        m_layout.beginLayout();
        for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
            line.setLineWidth(1);
            line.setPosition({0, m_size.height() + metrics.ascent() - line.ascent()});
            m_size.setWidth(std::max(m_size.width(), line.naturalTextWidth()));
            m_size.setHeight(m_size.height() + metrics.height());
        }
        m_layout.endLayout();
    }

    QRectF pill(const QRectF &canvas) const
    {
        const double w = m_size.width() + 2 * sidePadding;
        const double h = m_size.height() + 2 * endPadding;
        return {canvas.left() + (canvas.width() - w) / 2, canvas.bottom() - distanceFromBottom - h,
                w, h};
    }

    // Glyph by glyph: QFontMetricsF::boundingRect() forgets that marks are stacked.
    QRectF ink() const
    {
        QRectF all;
        for (const QGlyphRun &run : m_layout.glyphRuns()) {
            const QList<quint32> glyphs = run.glyphIndexes();
            const QList<QPointF> places = run.positions();
            for (qsizetype i = 0; i < glyphs.size(); ++i)
                all |= run.rawFont().boundingRect(glyphs[i]).translated(places[i]);
        }
        return all;
    }

    void draw(QPainter &painter, QPointF topLeft) const { m_layout.draw(&painter, topLeft); }

private:
    QTextLayout m_layout;
    QSizeF m_size{0, 0};
};

QPointF textOrigin(const QRectF &pill)
{
    return pill.topLeft() + QPointF(sidePadding, endPadding);
}

} // namespace

QRectF pill(const QRectF &canvas, const QString &text)
{
    return text.isEmpty() ? QRectF() : Lines(text).pill(canvas);
}

QRectF bounds(const QRectF &canvas, const QString &text)
{
    if (text.isEmpty())
        return {};
    const Lines lines(text);
    const QRectF pill = lines.pill(canvas);
    const QRectF all = pill | lines.ink().translated(textOrigin(pill));
    return all.adjusted(-antialiasing, -antialiasing, antialiasing, antialiasing);
}

void draw(QPainter &painter, const QRectF &canvas, const QString &text)
{
    if (text.isEmpty())
        return;
    const Lines lines(text);
    const QRectF pill = lines.pill(canvas);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(Shapes::roundedRect(pill, pill.height() / 2),
                     QColor::fromRgbF(0, 0, 0, pillAlpha));
    painter.setPen(Qt::white);
    lines.draw(painter, textOrigin(pill));
}

} // namespace velvane::Caption
