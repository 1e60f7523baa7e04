#pragma once

#include <QObject>

class QWidget;

namespace velvane {

/// Adjusts a document window: at least 960 × 600 logical pixels, and never full screen, whoever
/// asks for that. Belongs to the window.
class WindowConfigurator : public QObject {
    Q_OBJECT
public:
    explicit WindowConfigurator(QWidget &window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void leaveFullScreen();

    QWidget &m_window;
};

} // namespace velvane
