#pragma once

#include "editor/PreviewTimeline.h"

#include <QWidget>

class QPushButton;

namespace velvane {

class Scrubber;
class TimeLabel;

/// The bar under the stage: rewind, play and pause, the scrubber, and the time. Main thread only.
class TransportBar : public QWidget {
    Q_OBJECT
public:
    TransportBar(Project &project, Playback &playback, PreviewTimeline &timeline,
                 QWidget *parent = nullptr);

    QPushButton &rewindButton() { return *m_rewind; }
    QPushButton &playButton() { return *m_play; }
    Scrubber &scrubber() { return *m_scrubber; }
    TimeLabel &timeLabel() { return *m_label; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void showPlaying();
    void showTotal();

    Playback &m_playback;
    QPushButton *m_rewind;
    QPushButton *m_play;
    Scrubber *m_scrubber;
    TimeLabel *m_label;
};

} // namespace velvane
