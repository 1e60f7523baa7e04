#include "model/Project.h"

#include "base/Geometry.h"
#include "model/Picture.h"
#include "model/ProjectFile.h"

#include <QUndoCommand>

#include <utility>

namespace velvane {

namespace {

Step firstStep()
{
    Step step;
    step.kind = StepKind::switchApp;
    step.pauseAfter = 0.8s;
    return step;
}

// Undo and redo are the same act: the stored state and the current one change places. So changes
// made without undo in between are part of what comes back.
class RestoreState : public QUndoCommand {
public:
    RestoreState(Project &project, DocState toRestore, const QString &name)
        : QUndoCommand(name)
        , m_project(project)
        , m_state(std::move(toRestore))
    {}

    void undo() override { swap(); }

    void redo() override
    {
        // The stack calls redo() when the command is pushed; the edit has happened by then.
        if (std::exchange(m_pushed, true))
            swap();
    }

private:
    void swap()
    {
        const DocState current = m_project.docState();
        m_project.applyDocState(m_state);
        m_state = current;
    }

    Project &m_project;
    DocState m_state;
    bool m_pushed = false;
};

} // namespace

Project::Project(QObject *parent)
    : QObject(parent)
    , m_state{.steps = {firstStep()},
              .startPoint = {640, 400},
              .canvasSize = {1280, 800},
              .fps = 60,
              .background = {},
              .recordingBookmark = {}}
{}

Project::Project(const ProjectFile &file, QObject *parent)
    : QObject(parent)
    , m_state{.steps = file.steps,
              .startPoint = file.startPoint,
              .canvasSize = file.canvasSize,
              .fps = file.fps,
              .background = file.background ? Picture::decoded(*file.background) : QImage(),
              .recordingBookmark = file.recordingBookmark}
{}

void Project::setSteps(const QList<Step> &steps)
{
    const bool shared = steps.constData() == m_state.steps.constData();
    if (steps.size() == m_state.steps.size() && (shared || steps == m_state.steps))
        return;
    Q_EMIT willChange();
    m_state.steps = steps;
    Q_EMIT stepsChanged();
}

void Project::setSelection(std::optional<QUuid> selection)
{
    if (selection == m_selection)
        return;
    Q_EMIT willChange();
    m_selection = selection;
    Q_EMIT selectionChanged();
}

void Project::setCanvasSize(QSizeF size)
{
    if (identical(size, m_state.canvasSize))
        return;
    Q_EMIT willChange();
    m_state.canvasSize = size;
    Q_EMIT canvasSizeChanged();
}

void Project::setStartPoint(QPointF point)
{
    if (identical(point, m_state.startPoint))
        return;
    Q_EMIT willChange();
    m_state.startPoint = point;
    Q_EMIT startPointChanged();
}

void Project::setFps(int fps)
{
    if (fps == m_state.fps)
        return;
    Q_EMIT willChange();
    m_state.fps = fps;
    Q_EMIT fpsChanged();
}

void Project::setBackground(const QImage &background)
{
    if (background.cacheKey() == m_state.background.cacheKey())
        return;
    Q_EMIT willChange();
    m_state.background = background;
    Q_EMIT backgroundChanged();
}

void Project::setRecordingBookmark(const std::optional<QByteArray> &bookmark)
{
    if (bookmark == m_state.recordingBookmark)
        return;
    Q_EMIT willChange();
    m_state.recordingBookmark = bookmark;
    Q_EMIT recordingBookmarkChanged();
}

void Project::applyDocState(const DocState &state)
{
    setSteps(state.steps);
    setStartPoint(state.startPoint);
    setCanvasSize(state.canvasSize);
    setFps(state.fps);
    setBackground(state.background);
    setRecordingBookmark(state.recordingBookmark);
}

Snapshot Project::snapshot() const
{
    return {.steps = m_state.steps,
            .startPoint = m_state.startPoint,
            .canvasSize = m_state.canvasSize,
            .fps = m_state.fps,
            .background = m_state.background};
}

ProjectFile Project::fileSnapshot() const
{
    return ProjectFile::of(m_state);
}

void Project::registerUndo(const DocState &toRestore, const QString &name)
{
    if (m_undoManager)
        m_undoManager->push(new RestoreState(*this, toRestore, name));
}

void Project::beginEdit()
{
    if (!m_pending)
        m_pending = docState();
}

void Project::commitEdit(const QString &name)
{
    if (const auto before = std::exchange(m_pending, std::nullopt))
        registerIfChanged(*before, name);
}

void Project::edit(const QString &name, const std::function<void()> &mutation)
{
    Q_EMIT willEdit();
    const DocState before = docState();
    mutation();
    registerIfChanged(before, name);
}

void Project::changeWithoutUndo(const std::function<void()> &mutation)
{
    Q_EMIT willEdit();
    mutation();
}

void Project::registerIfChanged(const DocState &before, const QString &name)
{
    if (!(before == m_state))
        registerUndo(before, name);
}

} // namespace velvane
