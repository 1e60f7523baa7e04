#include "editor/TimeSliderAccessible.h"

#include "editor/TimeSlider.h"

namespace velvane {

namespace {

QAccessibleInterface *create(const QString &, QObject *object)
{
    auto *slider = qobject_cast<TimeSlider *>(object);
    return slider ? new TimeSliderAccessible(*slider) : nullptr;
}

} // namespace

TimeSliderAccessible::TimeSliderAccessible(TimeSlider &slider)
    : QAccessibleWidget(&slider, QAccessible::Slider)
    , m_slider(slider)
{}

// The system takes a factory once only.
void TimeSliderAccessible::install()
{
    QAccessible::installFactory(create);
}

void *TimeSliderAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString TimeSliderAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? m_slider.timeText() : QAccessibleWidget::text(kind);
}

QVariant TimeSliderAccessible::currentValue() const
{
    return m_slider.time().count();
}

void TimeSliderAccessible::setCurrentValue(const QVariant &value)
{
    const double most = std::max(m_slider.total().count(), 0.0);
    Q_EMIT m_slider.timeRequested(Seconds(std::clamp(value.toDouble(), 0.0, most)));
}

QVariant TimeSliderAccessible::maximumValue() const
{
    return m_slider.total().count();
}

QVariant TimeSliderAccessible::minimumValue() const
{
    return 0.0;
}

QVariant TimeSliderAccessible::minimumStepSize() const
{
    return m_slider.step().count();
}

} // namespace velvane
