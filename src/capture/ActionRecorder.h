#pragma once

#include "capture/StatusPanel.h"
#include "capture/StepBuilder.h"
#include "platform/Desktop.h"

#include <QTimer>

namespace velvane {

/// Watches the user's mouse, keyboard and application switches and makes steps of them; a panel
/// tells the user so. It only listens. Main thread only; one recording each.
class ActionRecorder : public QObject {
    Q_OBJECT
public:
    /// The desktop must outlive this.
    explicit ActionRecorder(Desktop &desktop, QObject *parent = nullptr);
    ~ActionRecorder() override;

    /// Begins to listen, and shows the panel. Events become steps only once capturing is on. False
    /// when the system does not let us listen; nothing is left behind then.
    ///
    /// `canvas` is in points of the primary display; `startPoint` is where the cursor begins.
    bool prepare(QSizeF canvas, QPointF startPoint);
    /// After prepare().
    void setCapturing(bool on);
    /// Stops listening, takes the panel away and returns what was recorded, also when capturing was
    /// never switched on.
    QList<Step> finish();
    /// What finish() would return, or has returned.
    QList<Step> soFar() const;

    /// What the panel says; empty while there is none.
    QString panelText() const;
    void setPanelText(const QString &text);

    /// Makes a move of a pointer that rests; comes by itself while capturing.
    void tick();

Q_SIGNALS:
    /// The system has ended the listening; what was recorded before is kept.
    void lost();

private:
    void installAppObserver();

    Desktop &m_desktop;
    std::optional<StepBuilder> m_builder;
    std::unique_ptr<StatusPanel> m_panel;
    QTimer m_dwellTimer{this};
    /// Last, so that they end before what they call.
    Token m_appObserver;
    Token m_tap;
};

} // namespace velvane
