#pragma once

#include "base/Seconds.h"

#include <QObject>
#include <QTimer>

namespace velvane {

/// Ticks at an exact mean rate on the main thread, in nested event loops (menus, drags) too.
///
/// A repeating QTimer rounds its interval to whole milliseconds and so runs at 62.5 Hz when asked
/// for 60. This one re-arms a single shot for the next of evenly spaced deadlines. Deadlines that
/// have passed are dropped, never made up for.
class Ticker : public QObject {
    Q_OBJECT
public:
    explicit Ticker(QObject *parent = nullptr);

    /// Ticks every `interval` from now on; a running one starts over. Intervals under 1 ms count as
    /// 1 ms.
    void start(Seconds interval);
    void stop();
    bool isRunning() const { return m_timer.isActive(); }

    /// The deadline after this one. At `now` those that have passed by then are dropped but for the
    /// last, which is due at once; all lie whole intervals apart.
    static Seconds next(Seconds deadline, Seconds interval, Seconds now);

Q_SIGNALS:
    void ticked();

private:
    void arm();
    void fire();

    QTimer m_timer;
    Seconds m_interval{1};
    Seconds m_deadline{0};
};

} // namespace velvane
