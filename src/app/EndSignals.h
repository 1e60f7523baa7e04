#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace velvane {

/// Tells the main thread when the system or the user asks the process to end: SIGTERM, SIGHUP and
/// SIGINT, which end it no more while this lives. One at a time.
///
/// What the process was started to ignore, as nohup does, it goes on ignoring.
class EndSignals : public QObject {
    Q_OBJECT
public:
    explicit EndSignals(QObject *parent = nullptr);
    ~EndSignals() override;

Q_SIGNALS:
    void received();

private:
    void read();

    QSocketNotifier m_notifier;
};

} // namespace velvane
