#include "editor/PreviewTimeline.h"

namespace velvane {

PreviewTimeline::PreviewTimeline(Project &project, Playback &playback, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_playback(playback)
{
    connect(&project, &Project::stepsChanged, this, &PreviewTimeline::update);
    connect(&project, &Project::startPointChanged, this, &PreviewTimeline::update);
    update();
}

void PreviewTimeline::update()
{
    m_timeline = Timeline(m_project.snapshot());
    m_playback.setTotal(m_timeline.total());
    Q_EMIT timelineChanged();
}

} // namespace velvane
