#pragma once

#include "editor/PreviewTimeline.h"
#include "editor/TimeSlider.h"

namespace velvane {

/// The transport's slider over the demo: above its track the current step, on it that step's span,
/// under it a tick where each step starts. Main thread only.
class Scrubber : public TimeSlider {
    Q_OBJECT
public:
    Scrubber(Project &project, Playback &playback, PreviewTimeline &timeline,
             QWidget *parent = nullptr);

    struct Tick {
        Seconds at;
        /// Is it the first step of a section?
        bool startsSection = false;
    };
    const QList<Tick> &ticks() const { return m_ticks; }
    /// The current step's number (empty for a section) and summary; both empty without steps.
    QString currentNumber() const { return m_number; }
    QString currentSummary() const { return m_summary; }

    QSize sizeHint() const override { return {400, 56}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    double trackY() const override;
    void paintMarks(QPainter &painter) const override;

private:
    void timelineChanged();
    void showTime();
    void showCurrent();
    void paintTicks(QPainter &painter) const;
    void paintTitle(QPainter &painter) const;

    Project &m_project;
    Playback &m_playback;
    PreviewTimeline &m_timeline;
    QList<Tick> m_ticks;
    std::optional<qsizetype> m_current;
    QString m_number;
    QString m_summary;
};

} // namespace velvane
