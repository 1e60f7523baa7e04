#pragma once

#include "capture/StatusPanel.h"
#include "platform/Desktop.h"

#include <QTimer>

#include <functional>

namespace velvane {

/// Counts down in a floating panel while the user puts the pointer over a target anywhere on the
/// screen, and then reads where it is. Esc ends it without a result. Main thread only.
class LocationPicker : public QObject {
    Q_OBJECT
public:
    explicit LocationPicker(Desktop &desktop, QObject *parent = nullptr);
    ~LocationPicker() override;

    /// Calls `onCapture` after so many seconds with the pointer's place, in points. A pick in
    /// progress is dropped: its call never comes. Nor does one when the display has gone.
    void pick(int seconds, std::function<void(QPointF)> onCapture);
    /// Ends a pick without its call.
    void cancel() { cleanup(); }

    bool isPicking() const { return m_panel != nullptr; }
    int remaining() const { return m_remaining; }

    /// A second has passed; one does so by itself while a pick is in progress.
    void tick();

private:
    void showPanel();
    void watchEscape();
    void update();
    void capture();
    void cleanup();

    Desktop &m_desktop;
    std::unique_ptr<StatusPanel> m_panel;
    QTimer m_timer;
    int m_remaining = 0;
    std::function<void(QPointF)> m_onCapture;
    /// Which pick this is: an Esc that was pressed in an earlier one may still be on its way.
    int m_number = 0;
    /// Last, so that it ends before what it calls.
    Token m_escMonitor;
};

} // namespace velvane
