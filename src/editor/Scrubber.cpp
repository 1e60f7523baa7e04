#include "editor/Scrubber.h"

#include "base/PlainLine.h"
#include "editor/TabularText.h"
#include "editor/Theme.h"
#include "model/StepList.h"

#include <QPainter>

namespace velvane {

namespace {

// From the top of a bar 56 pixels high.
constexpr double titleMiddle = 15;
constexpr double trackMiddle = 34;
constexpr double tickTop = 42;
constexpr double tickHeight = 4;
constexpr double sectionTickHeight = 7;
// Ticks closer than this would run into a bar.
constexpr double tickDistance = 3;
constexpr double numberGap = 7;

// Sections have no time of their own: the timeline leaves them out.
QSet<QUuid> firstOfSections(const QList<Step> &steps)
{
    QSet<QUuid> first;
    for (qsizetype i = 1; i < steps.size(); ++i)
        if (steps[i - 1].kind == StepKind::section)
            first.insert(steps[i].id);
    return first;
}

QList<Scrubber::Tick> ticksOf(const Project &project, const Timeline &timeline)
{
    const QSet<QUuid> first = firstOfSections(project.steps());
    QList<Scrubber::Tick> ticks;
    for (const ResolvedStep &segment : timeline.steps())
        ticks.append({segment.start, first.contains(segment.step.id)});
    return ticks;
}

} // namespace

Scrubber::Scrubber(Project &project, Playback &playback, PreviewTimeline &timeline, QWidget *parent)
    : TimeSlider(parent)
    , m_project(project)
    , m_playback(playback)
    , m_timeline(timeline)
{
    setAccessibleName(tr("Time"));
    setToolTip(tr("Preview time"));
    connect(&timeline, &PreviewTimeline::timelineChanged, this, &Scrubber::timelineChanged);
    connect(&project, &Project::fpsChanged, this, &Scrubber::timelineChanged);
    connect(&playback, &Playback::totalChanged, this, &Scrubber::timelineChanged);
    connect(&playback, &Playback::timeChanged, this, &Scrubber::showTime);
    connect(this, &TimeSlider::timeRequested, &playback, &Playback::setTime);
    timelineChanged();
}

void Scrubber::timelineChanged()
{
    m_ticks = ticksOf(m_project, m_timeline.timeline());
    setStep(Seconds(1.0 / std::max(m_project.fps(), 1)));
    setTotal(m_playback.total());
    setTime(m_playback.time());
    showCurrent();
    update();
}

void Scrubber::showTime()
{
    setTime(m_playback.time());
    if (m_timeline.timeline().segmentIndex(time()) != m_current)
        showCurrent();
}

void Scrubber::showCurrent()
{
    const Timeline &timeline = m_timeline.timeline();
    m_current = timeline.segmentIndex(m_playback.time());
    m_number.clear();
    m_summary.clear();
    if (!m_current)
        return;
    const Step &step = timeline.steps()[*m_current].step;
    if (const auto number = StepList::displayNumber(m_project.steps(), step.id))
        m_number = QString::number(*number);
    m_summary = withVisibleBreaks(step.summary());
    setAccessibleDescription(QStringList{m_number, m_summary}.join(QLatin1Char(' ')).trimmed());
}

double Scrubber::trackY() const
{
    return trackMiddle;
}

void Scrubber::paintMarks(QPainter &painter) const
{
    if (!m_current)
        return;
    const ResolvedStep &segment = m_timeline.timeline().steps()[*m_current];
    paintSpan(painter, segment.start, segment.end, Theme::instance().colors().trackCurrent);
}

void Scrubber::paintEvent(QPaintEvent *event)
{
    TimeSlider::paintEvent(event);
    QPainter painter(this);
    paintTicks(painter);
    paintTitle(painter);
}

void Scrubber::paintTicks(QPainter &painter) const
{
    const ThemeColors &colors = Theme::instance().colors();
    double last = -tickDistance;
    for (const Tick &tick : m_ticks) {
        const double x = std::round(xOf(tick.at));
        if (x - last < tickDistance && !tick.startsSection)
            continue;
        last = x;
        const double height = tick.startsSection ? sectionTickHeight : tickHeight;
        painter.fillRect(QRectF(x, tickTop, 1, height),
                         tick.startsSection ? colors.secondary : colors.disabled);
    }
}

void Scrubber::paintTitle(QPainter &painter) const
{
    const ThemeColors &colors = Theme::instance().colors();
    painter.setFont(Theme::font(TextSize::secondary));
    const QFontMetricsF metrics(painter.font());
    QRectF line(inset, titleMiddle - metrics.height() / 2, width() - 2 * inset, metrics.height());
    if (!m_number.isEmpty()) {
        painter.setPen(colors.tertiary);
        TabularText::draw(painter, line, Qt::AlignLeft, m_number);
        line.setLeft(line.left() + TabularText::width(metrics, m_number) + numberGap);
    }
    painter.setPen(colors.secondary);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(m_summary, Qt::ElideRight, line.width()));
}

} // namespace velvane
