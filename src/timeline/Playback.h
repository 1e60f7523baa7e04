#pragma once

#include "base/Seconds.h"
#include "timeline/Ticker.h"

#include <QObject>

namespace velvane {

/// The preview's clock: its time, and what moves it while playing. Main thread only.
///
/// A tick adds exactly one frame interval, whatever time has passed: every frame's moment is shown
/// in sequence, and the preview runs slower when ticks come late.
class Playback : public QObject {
    Q_OBJECT
public:
    explicit Playback(QObject *parent = nullptr);

    Seconds time() const { return m_time; }
    /// Scrubs. Any finite time is taken as it is; others are ignored.
    void setTime(Seconds time);

    /// Length of the demo; the owner keeps it equal to the timeline's total.
    Seconds total() const { return m_total; }
    void setTotal(Seconds total);

    bool isPlaying() const { return m_isPlaying; }

    /// Plays on from here, or from the start when at the end; does nothing when there is nothing to
    /// play. Rates below 1 count as 1. Callers pause first: playing already, it starts over with
    /// the new rate instead of running two clocks.
    void play(int fps);
    /// Stops and keeps the time.
    void pause();
    /// Pauses when playing, else plays.
    void toggle(int fps);
    /// Sets the time to 0; goes on playing if it was.
    void goToStart();

    /// One frame interval on; stops exactly at the total. Called by the ticker, and by tests.
    void tick();

Q_SIGNALS:
    void timeChanged();
    void totalChanged();
    void isPlayingChanged();

private:
    void setPlaying(bool playing);

    Ticker m_ticker;
    Seconds m_interval{1};
    Seconds m_time{0};
    Seconds m_total{0};
    bool m_isPlaying = false;
};

} // namespace velvane
