#include "editor/ContentView.h"

#include "editor/DemoSettings.h"
#include "editor/DemoSettingsForm.h"
#include "editor/EditorToolBar.h"
#include "editor/InspectorPane.h"
#include "editor/LiveOverlay.h"
#include "editor/MenuActionsPublisher.h"
#include "editor/PictureDrop.h"
#include "editor/PreviewCanvas.h"
#include "editor/SeveralStepsForm.h"
#include "editor/StagePane.h"
#include "editor/StatusLineView.h"
#include "editor/StepForm.h"
#include "editor/StepListPane.h"
#include "editor/TransportBar.h"
#include "editor/VideoScrubBar.h"
#include "live/Applications.h"
#include "model/StepList.h"

#include <QKeyEvent>

namespace velvane {

namespace {

/// Lets Tab go through the panes in this order, and through each as it is laid out.
void orderTabs(const QList<QWidget *> &panes)
{
    QWidget *last = nullptr;
    for (const QWidget *pane : panes) {
        for (QWidget *control : pane->findChildren<QWidget *>()) {
            if (!(control->focusPolicy() & Qt::TabFocus))
                continue;
            if (last)
                QWidget::setTabOrder(last, control);
            last = control;
        }
    }
}

} // namespace

ContentView::ContentView(Project &project, Desktop &desktop, RunSettings &settings,
                         AppCatalog &apps, QWidget *parent)
    : QWidget(parent)
    , m_project(project)
    , m_runSettings(settings)
    , m_selection(project)
    , m_clipboard(project, m_selection)
    , m_fieldEditing(project)
    , m_timeline(project, m_playback)
    , m_liveRun(project, m_playback, desktop, [&settings] { return RunOptions::from(settings); })
    , m_recordActions(project, m_playback, desktop)
    , m_backdrop(project, m_statusLine, desktop)
    , m_live(m_backdrop, desktop)
    , m_recording(project, m_playback, m_timeline, m_backdrop, m_statusLine)
    , m_pickLocation(project, m_statusLine, desktop)
    , m_turns(m_liveRun, m_recordActions, m_pickLocation)
    , m_canvas(project, m_statusLine, m_fieldEditing.gesture())
    , m_export(project, m_statusLine, m_backdrop, m_fieldEditing.gesture(),
               ExportPanel::over(*this))
    , m_steps(new StepListPane(project, m_selection, m_clipboard, m_recordActions, m_liveRun))
    , m_toolBar(new EditorToolBar(project, m_backdrop, m_canvas, m_liveRun, settings))
    , m_preview(new PreviewCanvas(project, m_playback, m_timeline, m_selection, m_canvas))
    , m_stage(new StagePane(m_preview, m_backdrop))
    , m_transport(new TransportBar(project, m_playback, m_timeline))
    , m_inspector(new InspectorPane(
          project, m_selection, new StepForm(project, m_fieldEditing, m_pickLocation, apps),
          new SeveralStepsForm(project, m_selection, m_clipboard, m_fieldEditing),
          new DemoSettingsForm(project, m_fieldEditing, desktop.screens(), m_statusLine)))
    , m_statusView(new StatusLineView(m_statusLine, m_export))
    , m_scrubBar(new VideoScrubBar)
    , m_overlay(new LiveOverlay(this))
    , m_panes(new PaneLayout(
          *this, {m_steps, m_toolBar, m_stage, m_scrubBar, m_transport, m_inspector, m_statusView}))
{
    // A click beside all controls takes the focus off them.
    setFocusPolicy(Qt::ClickFocus);
    wireStage();
    wireLiveRun();
    wireRecordActions();
    wireRecording();
    connect(m_inspector, &InspectorPane::appChosen, this,
            [&desktop](const QString &name) { Live::raiseBehindUs(desktop, name); });
    orderTabs({m_steps, m_toolBar, m_stage, m_scrubBar, m_transport, m_inspector, m_statusView});
    m_menuActions = std::make_unique<MenuActionsPublisher>(*this);
    m_steps->view().setFocus();
}

ContentView::~ContentView()
{
    // The menus' commands use the controllers, and so do the panes; members would go first.
    m_menuActions.reset();
    qDeleteAll(findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly));
}

void ContentView::wireStage()
{
    m_stage->offerRecording(m_recordActions);
    m_stage->askForPermission(m_live);
    connect(&m_preview->drop(), &PictureDrop::fileDropped, this, [this](const QString &file) {
        if (const auto refusal = DemoSettings::setBackdrop(m_project, file))
            m_statusLine.setMessage(*refusal);
    });
    connect(&m_preview->drop(), &PictureDrop::pictureDropped, this,
            [this](const QImage &picture) { DemoSettings::setBackdrop(m_project, picture); });
    const auto showCanvas = [this] {
        m_statusView->setCanvas(m_project.canvasSize(), m_preview->scale());
    };
    connect(m_preview, &PreviewCanvas::placeChanged, this, [this, showCanvas] {
        m_overlay->setStage(QRect(m_stage->mapTo(this, QPoint()), m_stage->size()));
        showCanvas();
    });
    connect(&m_project, &Project::canvasSizeChanged, this, showCanvas);
    showCanvas();
}

void ContentView::wireLiveRun()
{
    connect(&m_liveRun, &LiveRunController::reported, &m_statusLine, &StatusLine::setMessage);
    connect(&m_liveRun, &LiveRunController::aboutToRun, &m_fieldEditing,
            &FieldEditing::commitOpenGesture);
    connect(&m_liveRun, &LiveRunController::liveCountdownChanged, this, [this] {
        const QStringList apps = StepList::distinctSwitchApps(m_project.steps());
        m_overlay->setCountdown(m_liveRun.liveCountdown(), apps.value(0));
    });
    connect(&m_liveRun, &LiveRunController::isRunningLiveChanged, this,
            [this] { m_overlay->setRunning(m_liveRun.isRunningLive()); });
}

void ContentView::wireRecordActions()
{
    connect(&m_recordActions, &RecordActionsController::reported, &m_statusLine,
            &StatusLine::setMessage);
    connect(&m_recordActions, &RecordActionsController::movieEnded, &m_statusLine,
            &StatusLine::addMessage);
    connect(&m_recordActions, &RecordActionsController::aboutToRecord, &m_fieldEditing,
            &FieldEditing::commitOpenGesture);
    connect(&m_recordActions, &RecordActionsController::movieRecorded, this,
            [this] { m_backdrop.setShowRecording(true); });
}

void ContentView::wireRecording()
{
    VideoBackdrop &video = m_recording.video();
    connect(m_scrubBar, &VideoScrubBar::frameRequested, &video, &VideoBackdrop::requestFrame);
    connect(&video, &VideoBackdrop::durationChanged, this,
            [this, &video] { m_scrubBar->setDuration(video.duration()); });
    connect(&video, &VideoBackdrop::currentTimeChanged, this,
            [this, &video] { m_scrubBar->setCurrentTime(video.currentTime()); });
    // Frozen, it keeps its place, so that the canvas keeps its own.
    const auto showScrubBar = [this] {
        m_scrubBar->setVisible(m_backdrop.showRecording());
        m_scrubBar->setEnabled(!m_backdrop.frozen());
    };
    connect(&m_backdrop, &BackdropController::showRecordingChanged, this, showScrubBar);
    connect(&m_backdrop, &BackdropController::frozenChanged, this, showScrubBar);
    showScrubBar();
    m_scrubBar->alignWith(m_transport->timeLabel());
}

FocusedActions &ContentView::menuActions()
{
    return m_menuActions->focused();
}

void ContentView::keyPressEvent(QKeyEvent *event)
{
    // Keys that no focused control wanted.
    if (event->modifiers() != Qt::NoModifier)
        return QWidget::keyPressEvent(event);
    if (event->key() == Qt::Key_Space)
        m_playback.toggle(m_project.fps());
    else if (event->key() == Qt::Key_Home)
        m_playback.goToStart();
    else
        QWidget::keyPressEvent(event);
}

void ContentView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_live.setOnScreen(true);
}

void ContentView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_live.setOnScreen(false);
}

void ContentView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_panes->fit();
}

} // namespace velvane
