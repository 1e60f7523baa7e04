#include "editor/TransportBar.h"

#include "editor/BarLayout.h"
#include "editor/Controls.h"
#include "editor/Metrics.h"
#include "editor/Scrubber.h"
#include "editor/TimeLabel.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace velvane {

namespace {

QPushButton *iconButton(const QString &symbol, const QString &help, QWidget *parent)
{
    QPushButton *button = Controls::button(symbol, {}, help, QStringLiteral("flat"), parent);
    button->setFixedWidth(Metrics::toolButtonWidth);
    return button;
}

} // namespace

TransportBar::TransportBar(Project &project, Playback &playback, PreviewTimeline &timeline,
                           QWidget *parent)
    : QWidget(parent)
    , m_playback(playback)
    , m_rewind(iconButton(QStringLiteral("backward.end.fill"), tr("Go to Start"), this))
    , m_play(iconButton(QStringLiteral("play.fill"), tr("Play"), this))
    , m_scrubber(new Scrubber(project, playback, timeline, this))
    , m_label(new TimeLabel(*m_scrubber, TimeLabel::Tone::text, this))
{
    setFixedHeight(Metrics::transportHeight);
    m_rewind->setIcon(Icons::icon(QStringLiteral("backward.end.fill"), Icons::Tone::secondary));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(BarLayout::leftMargin, 0, BarLayout::rightMargin, 0);
    layout->setSpacing(0);
    layout->addWidget(m_rewind);
    layout->addSpacing(BarLayout::betweenButtons);
    layout->addWidget(m_play);
    layout->addWidget(m_scrubber, 1);
    layout->addSpacing(BarLayout::beforeLabel);
    layout->addWidget(m_label);
    connect(m_rewind, &QPushButton::clicked, &playback, &Playback::goToStart);
    connect(m_play, &QPushButton::clicked, this,
            [&project, &playback] { playback.toggle(project.fps()); });
    connect(&playback, &Playback::isPlayingChanged, this, &TransportBar::showPlaying);
    connect(&playback, &Playback::totalChanged, this, &TransportBar::showTotal);
    showPlaying();
    showTotal();
}

void TransportBar::showPlaying()
{
    const bool playing = m_playback.isPlaying();
    const QString help = playing ? tr("Pause") : tr("Play");
    m_play->setIcon(
        Icons::icon(playing ? QStringLiteral("pause.fill") : QStringLiteral("play.fill")));
    m_play->setToolTip(help);
    m_play->setAccessibleName(help);
    m_play->setAccessibleDescription(help);
}

void TransportBar::showTotal()
{
    m_play->setEnabled(m_playback.total() > 0s);
}

void TransportBar::paintEvent(QPaintEvent *)
{
    BarLayout::paintGround(*this);
}

} // namespace velvane
