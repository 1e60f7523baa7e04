#pragma once

#include <QVariantAnimation>
#include <QWidget>

namespace velvane {

/// What lies over the window before and during a live run: the countdown over all of it, then a red
/// capsule over the stage. It covers the window of the editor, menu bar included, and is hidden
/// when neither shows. Main thread only.
class LiveOverlay : public QWidget {
    Q_OBJECT
public:
    explicit LiveOverlay(QWidget *editor);

    /// Dims the window and shows the number; 0 ends it. `firstApp` is the first application that
    /// the demo switches to, empty when there is none.
    void setCountdown(int number, const QString &firstApp = {});
    /// Shows the capsule; the window under it can be used.
    void setRunning(bool running);
    /// The stage, in the editor's coordinates: the capsule lies at the middle of its top.
    void setStage(const QRect &stage);

    int countdown() const { return m_countdown; }
    bool isRunning() const { return m_isRunning; }
    /// What the overlay says, line by line.
    QStringList lines() const;
    /// Where the capsule lies, in the overlay's coordinates.
    QRectF capsule() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void contentChanged(int fadeMilliseconds);
    void coverWindow();
    void paintCountdown(QPainter &painter) const;
    void paintCapsule(QPainter &painter) const;

    QWidget *const m_editor;
    int m_countdown = 0;
    bool m_isRunning = false;
    QString m_headline;
    QRect m_stage;
    QVariantAnimation m_fade;
};

} // namespace velvane
