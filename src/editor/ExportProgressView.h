#pragma once

#include "editor/ExportController.h"

#include <QWidget>

class QPushButton;

namespace velvane {

/// How far an export is: a bar, the percentage, the time left and "Cancel". Hidden while there is
/// none.
class ExportProgressView : public QWidget {
    Q_OBJECT
public:
    explicit ExportProgressView(ExportController &exporting, QWidget *parent = nullptr);

    /// E.g. "42%".
    static QString percentText(double progress);
    /// E.g. "24 s left", "3 min left", rounded up; empty when it is not known.
    static QString timeLeftText(std::optional<Seconds> left);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void appear();
    void showProgress();

    ExportController &m_exporting;
    QPushButton *m_cancel;
    QString m_percent;
    QString m_timeLeft;
    /// Of the bar, in logical pixels.
    int m_filled = 0;
};

} // namespace velvane
