#include "editor/SegmentBar.h"

#include "editor/Icons.h"
#include "editor/Metrics.h"
#include "editor/Theme.h"

#include <QHBoxLayout>
#include <QPainter>

namespace velvane {

namespace {

constexpr int segmentHeight = 24;
constexpr int padding = 9;
constexpr int iconOnlyPadding = 8;
constexpr int iconGap = 6;
constexpr int troughPadding = 2;

} // namespace

SegmentButton::SegmentButton(const QString &symbol, const QString &text, QWidget *parent)
    : QAbstractButton(parent)
    , m_symbol(symbol)
{
    setText(text);
    setAccessibleName(text);
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SegmentButton::setIconOnly(bool iconOnly)
{
    m_iconOnly = iconOnly;
    updateGeometry();
    update();
}

QSize SegmentButton::sizeHint() const
{
    if (m_iconOnly)
        return {Metrics::icon + 2 * iconOnlyPadding, segmentHeight};
    const QFontMetrics metrics(Theme::font(TextSize::body, QFont::Medium));
    return {2 * padding + Metrics::icon + iconGap + metrics.horizontalAdvance(text()),
            segmentHeight};
}

QColor SegmentButton::foreground() const
{
    const ThemeColors &colors = Theme::instance().colors();
    if (!isEnabled())
        return colors.disabled;
    return isChecked() || underMouse() ? colors.text : colors.secondary;
}

void SegmentButton::paintEvent(QPaintEvent *)
{
    const ThemeColors &colors = Theme::instance().colors();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole = rect();
    painter.setPen(Qt::NoPen);
    if (isChecked()) {
        painter.setBrush(colors.segmentChecked);
        painter.drawRoundedRect(whole, Metrics::segmentRadius, Metrics::segmentRadius);
    } else if (isEnabled() && (underMouse() || isDown())) {
        painter.setBrush(isDown() ? colors.buttonPressed : colors.buttonHover);
        painter.drawRoundedRect(whole, Metrics::segmentRadius, Metrics::segmentRadius);
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colors.accent, 2));
        painter.drawRoundedRect(whole.adjusted(1, 1, -1, -1), Metrics::segmentRadius - 1,
                                Metrics::segmentRadius - 1);
    }
    const QColor color = foreground();
    const QRectF iconRect(m_iconOnly ? iconOnlyPadding : padding, 0, Metrics::icon, whole.height());
    Icons::draw(painter, m_symbol, color, iconRect, Metrics::icon);
    if (m_iconOnly)
        return;
    painter.setFont(Theme::font(TextSize::body, isChecked() ? QFont::Medium : QFont::Normal));
    painter.setPen(color);
    painter.drawText(whole.adjusted(padding + Metrics::icon + iconGap, 0, 0, 0),
                     Qt::AlignVCenter | Qt::AlignLeft, text());
}

SegmentBar::SegmentBar(QWidget *parent) : QWidget(parent)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(troughPadding, troughPadding, troughPadding, troughPadding);
    row->setSpacing(0);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

SegmentButton *SegmentBar::add(const QString &symbol, const QString &text, const QString &help)
{
    auto *button = new SegmentButton(symbol, text, this);
    button->setToolTip(help);
    button->setAccessibleDescription(help);
    layout()->addWidget(button);
    return button;
}

void SegmentBar::setIconOnly(bool iconOnly)
{
    for (SegmentButton *button : findChildren<SegmentButton *>())
        button->setIconOnly(iconOnly);
}

void SegmentBar::paintEvent(QPaintEvent *)
{
    const ThemeColors &colors = Theme::instance().colors();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colors.troughBorder);
    painter.setBrush(colors.trough);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Metrics::radius,
                            Metrics::radius);
}

} // namespace velvane
