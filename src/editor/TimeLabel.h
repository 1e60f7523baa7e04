#pragma once

#include <QWidget>

namespace velvane {

class TimeSlider;

/// A slider's moment and total, e.g. "3.2 / 13.0s". As wide as its total and another label's need,
/// so that nothing shifts while the time runs and bars above each other align.
class TimeLabel : public QWidget {
    Q_OBJECT
public:
    enum class Tone { text, secondary };

    TimeLabel(TimeSlider &slider, Tone tone, QWidget *parent);

    /// Makes this label and the other one equally wide; both must live as long as the window.
    void alignWith(TimeLabel &other);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double ownWidth() const;
    void textChanged();
    void widthChanged();

    TimeSlider &m_slider;
    Tone m_tone;
    TimeLabel *m_other = nullptr;
};

} // namespace velvane
