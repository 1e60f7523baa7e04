#pragma once

#include "editor/ExportController.h"

#include <QWidget>

class QLabel;

namespace velvane {

/// The window's last line: the message, or how far an export is, and the canvas's size and zoom.
class StatusLineView : public QWidget {
    Q_OBJECT
public:
    StatusLineView(StatusLine &status, ExportController &exporting, QWidget *parent = nullptr);

    /// `scale` is logical pixels per demo unit.
    void setCanvas(QSizeF size, double scale);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void showMessage();
    void leaveRoom();

    StatusLine &m_status;
    ExportController &m_exporting;
    QLabel *m_message;
    QString m_canvas;
};

} // namespace velvane
