#pragma once

#include <QWidget>

class QPushButton;

namespace velvane {

/// Lies over the canvas while the live screen is wanted and the permission to see it is missing.
class ScreenRecordingPrompt : public QWidget {
    Q_OBJECT
public:
    explicit ScreenRecordingPrompt(QWidget *parent = nullptr);

    QPushButton &openSettingsButton() { return *m_openSettings; }
    QPushButton &tryAgainButton() { return *m_tryAgain; }

Q_SIGNALS:
    void settingsRequested();
    void retryRequested();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPushButton *m_openSettings;
    QPushButton *m_tryAgain;
};

} // namespace velvane
