#include "editor/LiveOverlay.h"

#include "editor/Icons.h"
#include "editor/Metrics.h"
#include "editor/Theme.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace velvane {

namespace {

constexpr float dimming = 0.55F;
constexpr float shading = 0.6F;
constexpr double shadeCore = 0.4; // of the way from the centre
constexpr double shadeReach = 110;
constexpr int numberSize = 96;
constexpr double headlineGap = 4;
constexpr double captionGap = 10;
constexpr int overlayFade = 100;
constexpr int capsuleFade = 160;
constexpr double sidePadding = 14;
constexpr double endPadding = 8;
constexpr double around = 8;

QFont numberFont()
{
    QFont font = Theme::font(TextSize::body, QFont::Bold);
    font.setPixelSize(numberSize);
    return font;
}

// Darkens what lies behind a text of this size, which may be as white, and fades out around it.
void drawShade(QPainter &painter, QPointF centre, QSizeF text)
{
    QRadialGradient shade(0, 0, 1);
    shade.setColorAt(0, QColor::fromRgbF(0, 0, 0, shading));
    shade.setColorAt(shadeCore, QColor::fromRgbF(0, 0, 0, shading));
    shade.setColorAt(1, Qt::transparent);
    painter.save();
    painter.translate(centre);
    painter.scale(text.width() / 2 + shadeReach, text.height() / 2 + shadeReach);
    painter.fillRect(QRectF(-1, -1, 2, 2), shade);
    painter.restore();
}

// Draws a line centred under `top` and returns where it ends.
double drawLine(QPainter &painter, const QRectF &area, double top, const QFont &font,
                const QString &text)
{
    const double height = QFontMetricsF(font).height();
    painter.setFont(font);
    painter.drawText(QRectF(area.left(), top, area.width(), height), Qt::AlignCenter, text);
    return top + height;
}

} // namespace

LiveOverlay::LiveOverlay(QWidget *editor)
    : QWidget(editor)
    , m_editor(editor)
    , m_stage(editor->rect())
{
    m_fade.setStartValue(0.0);
    m_fade.setEndValue(1.0);
    connect(&m_fade, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    hide();
}

void LiveOverlay::setCountdown(int number, const QString &firstApp)
{
    m_headline = firstApp.isEmpty() ? tr("Driving the real cursor — bring your target app forward")
                                    : tr("Switching to %1").arg(firstApp);
    if (number == m_countdown)
        return;
    const bool begins = m_countdown == 0;
    m_countdown = number;
    contentChanged(begins ? overlayFade : 0);
}

void LiveOverlay::setRunning(bool running)
{
    if (running == m_isRunning)
        return;
    m_isRunning = running;
    contentChanged(capsuleFade);
}

void LiveOverlay::setStage(const QRect &stage)
{
    m_stage = stage;
    update();
}

QStringList LiveOverlay::lines() const
{
    if (m_countdown > 0)
        return {QString::number(m_countdown), m_headline, tr("Press Esc to abort")};
    if (m_isRunning)
        return {tr("Live run in progress — Esc to stop")};
    return {};
}

void LiveOverlay::contentChanged(int fadeMilliseconds)
{
    const QStringList text = lines();
    setAccessibleName(text.join(QLatin1Char('\n')));
    setAttribute(Qt::WA_TransparentForMouseEvents, m_countdown == 0);
    // A style without animations asks for none.
    const bool still = style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) == 0;
    m_fade.stop();
    m_fade.setDuration(still ? 0 : fadeMilliseconds);
    if (fadeMilliseconds > 0)
        m_fade.start();
    coverWindow();
    setVisible(!text.isEmpty());
    raise();
    update();
}

// The window is not known before the editor is put into one.
void LiveOverlay::coverWindow()
{
    QWidget *window = m_editor->window();
    window->installEventFilter(this);
    if (parentWidget() != window)
        setParent(window);
    setGeometry(window->rect());
}

bool LiveOverlay::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void LiveOverlay::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_fade.state() == QAbstractAnimation::Running)
        painter.setOpacity(m_fade.currentValue().toDouble());
    if (m_countdown > 0)
        paintCountdown(painter);
    else if (m_isRunning)
        paintCapsule(painter);
}

void LiveOverlay::paintCountdown(QPainter &painter) const
{
    painter.fillRect(rect(), QColor::fromRgbF(0, 0, 0, dimming));
    const QStringList text = lines();
    const QFont fonts[] = {numberFont(), Theme::font(TextSize::title, QFont::DemiBold),
                           Theme::font(TextSize::secondary)};
    const double gaps[] = {0, headlineGap, captionGap};
    QSizeF size(0, headlineGap + captionGap);
    for (int i = 0; i < 3; ++i) {
        const QFontMetricsF metrics(fonts[i]);
        size.rheight() += metrics.height();
        size.setWidth(std::max(size.width(), metrics.horizontalAdvance(text[i])));
    }
    drawShade(painter, rect().center(), size);
    painter.setPen(Qt::white);
    double y = rect().center().y() - size.height() / 2;
    for (int i = 0; i < 3; ++i)
        y = drawLine(painter, rect(), y + gaps[i], fonts[i], text[i]);
}

QRectF LiveOverlay::capsule() const
{
    const QFontMetricsF metrics(Theme::font(TextSize::body, QFont::Medium));
    const double width =
        2 * sidePadding + Metrics::icon + Metrics::gap
        + std::ceil(metrics.horizontalAdvance(tr("Live run in progress — Esc to stop")));
    const double height = 2 * endPadding + std::max(metrics.height(), double(Metrics::icon));
    const QPoint stage = m_editor->mapTo(parentWidget(), m_stage.topLeft());
    const double left = stage.x() + std::round((m_stage.width() - width) / 2);
    return {left, stage.y() + around, width, height};
}

void LiveOverlay::paintCapsule(QPainter &painter) const
{
    const QRectF pill = capsule();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::instance().colors().liveCapsule);
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    const QRectF inner = pill.adjusted(sidePadding, 0, -sidePadding, 0);
    const QRectF icon(inner.left(), inner.top(), Metrics::icon, inner.height());
    Icons::draw(painter, QStringLiteral("cursorarrow.rays"), Qt::white, icon, Metrics::icon);
    painter.setPen(Qt::white);
    painter.setFont(Theme::font(TextSize::body, QFont::Medium));
    painter.drawText(inner, Qt::AlignRight | Qt::AlignVCenter, lines().first());
}

} // namespace velvane
