#pragma once

#include "platform/Screens.h"

#include <QTimer>
#include <QWidget>

namespace velvane {

/// The floating dark label that says what a recording or a pick waits for. Main thread only.
///
/// It lies above everything, on every desktop, lets clicks through to what is under it, and never
/// takes the keyboard. Captures leave it out as they do all our windows.
class StatusPanel : public QWidget {
    Q_OBJECT
public:
    /// `size` and the corners' `radius` are in logical pixels. Shown by showText() only.
    StatusPanel(Screens &screens, QSize size, double radius, QWidget *parent = nullptr);

    QString text() const { return m_text; }
    /// Shows the panel with this text, or another text in the panel on show.
    void showText(const QString &text);

    /// Where a panel of this size lies: centred, 40 below the top of the visible part of a display
    /// that the toolkit has at `screen`, in logical pixels. Displays are in points, which a scale
    /// factor makes several pixels of.
    static QRect place(const Display &display, const QRect &screen, QSize size);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void placeOnMainDisplay();

    Screens &m_screens;
    const double m_radius;
    QString m_text;
    QTimer m_keepAbove;
};

} // namespace velvane
