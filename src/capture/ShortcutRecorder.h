#pragma once

#include "capture/HeldKey.h"
#include "capture/KeyCombination.h"

#include <QAbstractButton>

namespace velvane {

/// A button that takes one key combination from the keyboard.
///
/// Clicking it starts and stops recording; the first key pressed ends it, and Escape cancels it.
/// While it records it grabs the keyboard, so that keys which menus or the desktop would take
/// arrive too; it lets go at once, also when it loses the focus or its window is deactivated. What
/// the key that ended it repeats while it stays down reaches nobody.
class ShortcutRecorder : public QAbstractButton {
    Q_OBJECT
public:
    explicit ShortcutRecorder(QWidget *parent = nullptr);
    ~ShortcutRecorder() override;

    /// The combination as text; empty when there is none.
    void setDisplay(const QString &display);
    const QString &display() const { return m_display; }
    /// What the button says.
    QString label() const;

    bool isRecording() const { return m_recording; }
    void start();
    void stop();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void recorded(const velvane::KeyCombination &combination);
    void isRecordingChanged();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_display;
    bool m_recording = false;
    /// The one that ended the recording.
    HeldKey m_heldKey;
};

} // namespace velvane
