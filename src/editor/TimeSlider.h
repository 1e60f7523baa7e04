#pragma once

#include "base/Seconds.h"

#include <QWidget>

#include <algorithm>

namespace velvane {

/// A track with a knob, for a moment between 0 and a total. By mouse and by keyboard: arrows go one
/// step, with Shift or as Page Up and Down a second, Home and End to the ends.
///
/// It shows what it is told; the user's wish is only reported. Main thread only.
class TimeSlider : public QWidget {
    Q_OBJECT
public:
    explicit TimeSlider(QWidget *parent = nullptr);

    /// Logical pixels between the widget's sides and the ends of the track: room for the knob.
    static constexpr int inset = 11;

    Seconds time() const { return m_time; }
    void setTime(Seconds time);
    Seconds total() const { return m_total; }
    void setTotal(Seconds total);
    /// What one press of an arrow key is worth.
    Seconds step() const { return m_step; }
    void setStep(Seconds step) { m_step = step; }

    /// "3.2 / 13.0s". A demo that has become shorter ends before its time.
    QString timeText() const { return textOf(std::min(m_time, m_total), m_total); }
    /// A text that no moment's is wider than, if digits are all of one width.
    QString widestTimeText() const;

    QSize sizeHint() const override { return {240, 24}; }
    QSize minimumSizeHint() const override { return {80, 24}; }

Q_SIGNALS:
    /// The user asks for this moment, between 0 and the total.
    void timeRequested(Seconds time);
    void timeChanged();
    void totalChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

    /// The track's middle, from the top.
    virtual double trackY() const { return height() / 2.0; }
    /// Paints a part of the track between two moments.
    void paintSpan(QPainter &painter, Seconds from, Seconds to, const QColor &color) const;
    /// What lies on the track, under its played part and the knob.
    virtual void paintMarks(QPainter &painter) const;
    /// Where a moment lies.
    double xOf(Seconds time) const;

private:
    static QString textOf(Seconds time, Seconds total);
    void request(Seconds time);
    void paintKnob(QPainter &painter) const;
    void announce();

    Seconds m_time{0};
    Seconds m_total{0};
    Seconds m_step{0.1};
};

} // namespace velvane
