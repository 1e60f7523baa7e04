#include "editor/TimeLabel.h"

#include "editor/TabularText.h"
#include "editor/Theme.h"
#include "editor/TimeSlider.h"

#include <QPainter>

namespace velvane {

TimeLabel::TimeLabel(TimeSlider &slider, Tone tone, QWidget *parent)
    : QWidget(parent)
    , m_slider(slider)
    , m_tone(tone)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    connect(&slider, &TimeSlider::timeChanged, this, &TimeLabel::textChanged);
    connect(&slider, &TimeSlider::totalChanged, this, &TimeLabel::widthChanged);
    connect(&Theme::instance(), &Theme::changed, this, qOverload<>(&QWidget::update));
    textChanged();
}

void TimeLabel::alignWith(TimeLabel &other)
{
    m_other = &other;
    other.m_other = this;
    widthChanged();
}

QSize TimeLabel::sizeHint() const
{
    const double width = std::max(ownWidth(), m_other ? m_other->ownWidth() : 0);
    return {int(std::ceil(width)), fontMetrics().height()};
}

double TimeLabel::ownWidth() const
{
    return TabularText::width(QFontMetricsF(Theme::font()), m_slider.widestTimeText());
}

void TimeLabel::textChanged()
{
    if (m_slider.timeText() == accessibleName())
        return;
    setAccessibleName(m_slider.timeText());
    update();
}

void TimeLabel::widthChanged()
{
    textChanged();
    updateGeometry();
    if (m_other)
        m_other->updateGeometry();
}

void TimeLabel::paintEvent(QPaintEvent *)
{
    const ThemeColors &colors = Theme::instance().colors();
    QPainter painter(this);
    painter.setFont(Theme::font());
    const QColor color = m_tone == Tone::text ? colors.text : colors.secondary;
    painter.setPen(isEnabled() ? color : colors.disabled);
    TabularText::draw(painter, rect(), Qt::AlignRight, m_slider.timeText());
}

} // namespace velvane
