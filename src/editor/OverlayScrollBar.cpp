#include "editor/OverlayScrollBar.h"

#include "editor/Theme.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

namespace velvane {

namespace {

constexpr int barWidth = 6;
constexpr int handleWidth = 4;

} // namespace

OverlayScrollBar::OverlayScrollBar(QAbstractScrollArea &area)
    : QScrollBar(Qt::Vertical, &area)
    , m_area(area)
{
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    QScrollBar *own = area.verticalScrollBar();
    connect(own, &QScrollBar::rangeChanged, this, &OverlayScrollBar::follow);
    connect(own, &QScrollBar::valueChanged, this, &OverlayScrollBar::follow);
    connect(this, &QScrollBar::valueChanged, own, &QScrollBar::setValue);
    area.installEventFilter(this);
    follow();
}

void OverlayScrollBar::follow()
{
    const QScrollBar *own = m_area.verticalScrollBar();
    setRange(own->minimum(), own->maximum());
    setPageStep(own->pageStep());
    setSingleStep(own->singleStep());
    setValue(own->value());
    setVisible(own->maximum() > own->minimum());
}

void OverlayScrollBar::place()
{
    setGeometry(m_area.width() - barWidth, 0, barWidth, m_area.height());
    raise();
}

bool OverlayScrollBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        place();
    return QScrollBar::eventFilter(watched, event);
}

void OverlayScrollBar::paintEvent(QPaintEvent *)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRectF handle =
        style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    const ThemeColors &colors = Theme::instance().colors();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(underMouse() || isSliderDown() ? colors.disabled : colors.track);
    const QRectF shown(barWidth - handleWidth - 1, handle.top() + 1, handleWidth,
                       handle.height() - 2);
    painter.drawRoundedRect(shown, handleWidth / 2.0, handleWidth / 2.0);
}

} // namespace velvane
