#pragma once

#include <QAccessibleWidget>

namespace velvane {

class TimeSlider;

/// The slider for screen readers: a value in seconds, told as "3.2 / 13.0s".
class TimeSliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit TimeSliderAccessible(TimeSlider &slider);

    /// Makes screen readers see sliders this way. Any number of calls does the same as one.
    static void install();

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    TimeSlider &m_slider;
};

} // namespace velvane
