#include "editor/TimeSlider.h"

#include "base/OneDecimal.h"
#include "editor/Theme.h"
#include "editor/TimeSliderAccessible.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace velvane {

namespace {

constexpr double trackHeight = 4;
constexpr double knobRadius = 7;
constexpr double ringWidth = 2;
constexpr Seconds page{1};

} // namespace

TimeSlider::TimeSlider(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    TimeSliderAccessible::install();
    connect(&Theme::instance(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void TimeSlider::setTime(Seconds time)
{
    if (time == m_time)
        return;
    m_time = time;
    announce();
    update();
    Q_EMIT timeChanged();
}

void TimeSlider::setTotal(Seconds total)
{
    if (total == m_total)
        return;
    m_total = total;
    update();
    Q_EMIT totalChanged();
}

QString TimeSlider::widestTimeText() const
{
    // Short demos have room for two digits: the label keeps its width as steps are added.
    const Seconds end = std::max(m_total, Seconds(10));
    return textOf(end, end);
}

QString TimeSlider::textOf(Seconds time, Seconds total)
{
    return tr("%1 / %2s").arg(oneDecimal(time.count()), oneDecimal(total.count()));
}

void TimeSlider::announce()
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(this, m_time.count());
    QAccessible::updateAccessibility(&event);
}

double TimeSlider::xOf(Seconds time) const
{
    const double share = m_total > 0s ? std::clamp(time / m_total, 0.0, 1.0) : 0;
    return inset + share * (width() - 2 * inset);
}

void TimeSlider::request(Seconds time)
{
    Q_EMIT timeRequested(std::clamp(time, Seconds(0), std::max(m_total, Seconds(0))));
}

void TimeSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ThemeColors &colors = Theme::instance().colors();
    const QRectF track(inset, trackY() - trackHeight / 2, width() - 2 * inset, trackHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.track);
    painter.drawRoundedRect(track, trackHeight / 2, trackHeight / 2);
    paintMarks(painter);
    paintSpan(painter, 0s, m_time, isEnabled() ? colors.trackPlayed : colors.disabled);
    paintKnob(painter);
}

void TimeSlider::paintMarks(QPainter &) const {}

void TimeSlider::paintSpan(QPainter &painter, Seconds from, Seconds to, const QColor &color) const
{
    const QRectF span(QPointF(xOf(from), trackY() - trackHeight / 2),
                      QPointF(xOf(to), trackY() + trackHeight / 2));
    // Round at the track's ends only; elsewhere the neighbouring span goes on.
    const bool startsTrack = from <= 0s;
    const double radius = startsTrack ? std::min(trackHeight, span.width()) / 2 : 0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(span, radius, radius);
}

void TimeSlider::paintKnob(QPainter &painter) const
{
    const ThemeColors &colors = Theme::instance().colors();
    const QPointF centre(xOf(m_time), trackY());
    painter.setPen(colors.isDark ? QPen(Qt::NoPen) : QPen(colors.fieldBorder, 1));
    painter.setBrush(isEnabled() ? colors.knob : colors.disabled);
    const double radius = colors.isDark ? knobRadius : knobRadius - 0.5;
    painter.drawEllipse(centre, radius, radius);
    if (!hasFocus())
        return;
    painter.setPen(QPen(colors.accent, ringWidth));
    painter.setBrush(Qt::NoBrush);
    const double ring = knobRadius + ringWidth / 2;
    painter.drawEllipse(centre, ring, ring);
}

void TimeSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    mouseMoveEvent(event);
}

void TimeSlider::mouseMoveEvent(QMouseEvent *event)
{
    const double room = width() - 2 * inset;
    if (event->buttons().testFlag(Qt::LeftButton) && room > 0)
        request(m_total * ((event->position().x() - inset) / room));
}

void TimeSlider::keyPressEvent(QKeyEvent *event)
{
    const bool large = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        return request(m_time - (large ? page : m_step));
    case Qt::Key_Right:
    case Qt::Key_Up:
        return request(m_time + (large ? page : m_step));
    case Qt::Key_PageDown:
        return request(m_time - page);
    case Qt::Key_PageUp:
        return request(m_time + page);
    case Qt::Key_Home:
        return request(0s);
    case Qt::Key_End:
        return request(m_total);
    default:
        QWidget::keyPressEvent(event);
    }
}

void TimeSlider::focusInEvent(QFocusEvent *)
{
    update();
}

void TimeSlider::focusOutEvent(QFocusEvent *)
{
    update();
}

} // namespace velvane
