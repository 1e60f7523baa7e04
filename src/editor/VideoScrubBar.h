#pragma once

#include "base/Seconds.h"

#include <QWidget>

namespace velvane {

class TimeLabel;
class TimeSlider;

/// The bar over the transport while a recording is the backdrop: a slider over the movie, apart
/// from the demo's own time. It shows what it is told. Main thread only.
class VideoScrubBar : public QWidget {
    Q_OBJECT
public:
    explicit VideoScrubBar(QWidget *parent = nullptr);

    /// The shown picture's moment in the movie, and the movie's length.
    void setCurrentTime(Seconds time);
    void setDuration(Seconds duration);
    /// Makes the slider as wide as the transport's.
    void alignWith(TimeLabel &transport);

    TimeSlider &slider() { return *m_slider; }

Q_SIGNALS:
    /// The user asks for the movie's picture at this moment.
    void frameRequested(Seconds time);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    TimeSlider *m_slider;
    TimeLabel *m_label;
};

} // namespace velvane
