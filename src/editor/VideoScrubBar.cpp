#include "editor/VideoScrubBar.h"

#include "editor/BarLayout.h"
#include "editor/Icons.h"
#include "editor/Metrics.h"
#include "editor/Theme.h"
#include "editor/TimeLabel.h"
#include "editor/TimeSlider.h"

#include <QHBoxLayout>
#include <QPainter>

namespace velvane {

VideoScrubBar::VideoScrubBar(QWidget *parent)
    : QWidget(parent)
    , m_slider(new TimeSlider(this))
    , m_label(new TimeLabel(*m_slider, TimeLabel::Tone::secondary, this))
{
    setFixedHeight(Metrics::recordingBarHeight);
    m_slider->setAccessibleName(tr("Recording time"));
    m_slider->setToolTip(tr("Time in the recording"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(BarLayout::leftMargin + BarLayout::controlsWidth, 1,
                               BarLayout::rightMargin, 0);
    layout->setSpacing(0);
    layout->addWidget(m_slider, 1);
    layout->addSpacing(BarLayout::beforeLabel);
    layout->addWidget(m_label);
    connect(m_slider, &TimeSlider::timeRequested, this, &VideoScrubBar::frameRequested);
    connect(&Theme::instance(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void VideoScrubBar::setCurrentTime(Seconds time)
{
    m_slider->setTime(time);
}

void VideoScrubBar::setDuration(Seconds duration)
{
    m_slider->setTotal(duration);
}

void VideoScrubBar::alignWith(TimeLabel &transport)
{
    m_label->alignWith(transport);
}

void VideoScrubBar::paintEvent(QPaintEvent *)
{
    BarLayout::paintGround(*this);
    QPainter painter(this);
    const QRectF controls(BarLayout::leftMargin, 1, BarLayout::controlsWidth, height() - 1);
    const ThemeColors &colors = Theme::instance().colors();
    Icons::draw(painter, QStringLiteral("film"), isEnabled() ? colors.secondary : colors.disabled,
                controls, Metrics::icon);
}

} // namespace velvane
