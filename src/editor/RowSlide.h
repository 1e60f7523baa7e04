#pragma once

#include <QPixmap>
#include <QVariantAnimation>

class QAbstractItemView;

namespace velvane {

/// Lets rows that come or go in a list slide, for 120 ms: what lies below them moves, what lies
/// above stays. It shows pictures of the viewport before and after, so it takes as long for ten
/// rows as for ten thousand. None of it where the desktop wants no animations. Main thread only.
class RowSlide : public QObject {
    Q_OBJECT
public:
    explicit RowSlide(QAbstractItemView &view);

    /// Call before these rows go, and before rows come in at a place.
    void rowsWillGo(int first, int last);
    void rowsWillCome(int at);
    /// Call when `last` of them has come, or when they are gone (-1).
    void settle(int last);
    /// Something else happens to the rows: show them as they are.
    void cancel();

    bool isRunning() const { return m_animation.state() == QAbstractAnimation::Running; }
    /// Its clock, for tests.
    QVariantAnimation &animation() { return m_animation; }
    /// Paints the viewport as it looks now; false when nothing slides.
    bool paint(QPainter &painter) const;

private:
    bool begin(int row);
    void refuse();
    void start();
    int rowTop(int row) const;

    QAbstractItemView &m_view;
    QVariantAnimation m_animation;
    QPixmap m_before;
    QPixmap m_after;
    /// Where the rows come or go, and how high they are; in the viewport's pixels.
    int m_top = 0;
    int m_height = 0;
    bool m_comes = false;
    /// How far the list was scrolled.
    int m_scrolled = 0;
    enum class State { idle, begun, settled, refused } m_state = State::idle;
};

} // namespace velvane
