#include "editor/RowSlide.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>

namespace velvane {

namespace {

constexpr int milliseconds = 120;

// Part of a picture of the viewport, in the viewport's pixels.
void draw(QPainter &painter, int to, const QPixmap &picture, int from, int height)
{
    if (height <= 0)
        return;
    const double ratio = picture.devicePixelRatio();
    const int width = qRound(picture.width() / ratio);
    painter.drawPixmap(QRectF(0, to, width, height), picture,
                       QRectF(0, from * ratio, picture.width(), height * ratio));
}

} // namespace

RowSlide::RowSlide(QAbstractItemView &view) : m_view(view)
{
    m_animation.setDuration(milliseconds);
    m_animation.setEasingCurve(QEasingCurve::OutCubic);
    m_animation.setStartValue(0.0);
    m_animation.setEndValue(1.0);
    const auto repaint = [this] { m_view.viewport()->update(); };
    connect(&m_animation, &QVariantAnimation::valueChanged, this, repaint);
    connect(&m_animation, &QVariantAnimation::finished, this, &RowSlide::cancel);
}

int RowSlide::rowTop(int row) const
{
    const QAbstractItemModel &model = *m_view.model();
    if (row < model.rowCount())
        return m_view.visualRect(model.index(row, 0)).top();
    return model.rowCount() > 0 ? m_view.visualRect(model.index(row - 1, 0)).bottom() + 1 : 0;
}

void RowSlide::rowsWillGo(int first, int last)
{
    if (!begin(first))
        return;
    m_height = rowTop(last + 1) - m_top;
    m_comes = false;
}

void RowSlide::rowsWillCome(int at)
{
    if (begin(at))
        m_comes = true;
}

// A second change before the first one shows cannot be told from it in pictures. Where rows lie is
// asked only once an edit: each answer after a change lays all of them out.
bool RowSlide::begin(int row)
{
    const bool isFirst = m_state == State::idle;
    if (m_state != State::refused)
        cancel();
    const bool wanted =
        m_view.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &m_view) > 0;
    if (!wanted || !m_view.isVisible())
        return false;
    if (!isFirst) {
        refuse();
        return false;
    }
    m_top = rowTop(row);
    if (m_top < 0 || m_top >= m_view.viewport()->height())
        return false;
    m_state = State::begun;
    m_scrolled = m_view.verticalScrollBar()->value();
    m_before = m_view.viewport()->grab();
    return true;
}

// Until the edit is over.
void RowSlide::refuse()
{
    if (m_state == State::refused)
        return;
    m_state = State::refused;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_state == State::refused)
                m_state = State::idle;
        },
        Qt::QueuedConnection);
}

void RowSlide::settle(int last)
{
    if (m_state != State::begun)
        return;
    if (m_comes)
        m_height = rowTop(last + 1) - m_top;
    m_state = State::settled;
    // What belongs to the same edit, a selection say, is still to come.
    QMetaObject::invokeMethod(this, &RowSlide::start, Qt::QueuedConnection);
}

void RowSlide::start()
{
    if (m_state != State::settled)
        return;
    if (m_height <= 0 || m_scrolled != m_view.verticalScrollBar()->value()
        || m_before.size() != m_view.viewport()->size() * m_before.devicePixelRatio()) {
        cancel();
        return;
    }
    m_after = m_view.viewport()->grab();
    m_animation.start();
}

void RowSlide::cancel()
{
    m_animation.stop();
    m_state = State::idle;
    m_before = m_after = QPixmap();
    m_view.viewport()->update();
}

bool RowSlide::paint(QPainter &painter) const
{
    if (m_after.isNull())
        return false;
    const double done = m_animation.currentValue().toDouble();
    const int height = m_view.viewport()->height();
    // How much of the rows shows.
    const int shown = qRound(m_height * (m_comes ? done : 1 - done));
    const QPixmap &with = m_comes ? m_after : m_before;
    const QPixmap &without = m_comes ? m_before : m_after;
    draw(painter, 0, m_after, 0, m_top);
    draw(painter, m_top, with, m_top, std::min(shown, height - m_top));
    // Below, as it looks afterwards as far as the picture goes.
    const int below = m_top + shown;
    const int known = m_comes ? std::max(0, height - m_top - m_height) : 0;
    draw(painter, below, m_after, m_top + m_height, std::min(known, height - below));
    draw(painter, below + known, without, m_top + known, height - below - known);
    return true;
}

} // namespace velvane
