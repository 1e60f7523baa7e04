#include "editor/EditorToolBar.h"

#include "editor/Controls.h"
#include "editor/IconButton.h"
#include "editor/MenuText.h"
#include "editor/Metrics.h"
#include "editor/SegmentBar.h"
#include "editor/SymbolMenu.h"
#include "model/StepList.h"

#include <QActionGroup>
#include <QHBoxLayout>

namespace velvane {

namespace {

constexpr int modes = 3;

} // namespace

EditorToolBar::EditorToolBar(Project &project, BackdropController &backdrop,
                             CanvasController &canvas, LiveRunController &live,
                             RunSettings &settings, QWidget *parent)
    : QWidget(parent)
    , m_project(project)
    , m_backdrop(backdrop)
    , m_canvas(canvas)
    , m_live(live)
    , m_settings(settings)
{
    setAttribute(Qt::WA_StyledBackground);
    setProperty("look", QStringLiteral("pane"));
    setFixedHeight(Metrics::toolbarHeight);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Metrics::wideGap, 0, Metrics::wideGap, 0);
    row->setSpacing(Metrics::gap);
    addBackdrops();
    addMagnifier();
    row->addStretch();
    addRunOptions();
    addRunLive();
}

void EditorToolBar::addBackdrops()
{
    m_backdrops = new SegmentBar(this);
    m_showLive = m_backdrops->add(QStringLiteral("macwindow"), tr("Live"), {});
    m_freeze = m_backdrops->add(QStringLiteral("snowflake"), tr("Freeze"), {});
    m_showRecording = m_backdrops->add(QStringLiteral("film"), tr("Recording"), {});
    layout()->addWidget(m_backdrops);
    // A toggle shows what the controller says, not that it was clicked.
    connect(m_showLive, &QAbstractButton::clicked, this, [this](bool on) {
        m_backdrop.setShowLive(on);
        updateBackdrops();
    });
    connect(m_freeze, &QAbstractButton::clicked, this, [this](bool on) {
        m_backdrop.setFrozen(on);
        updateBackdrops();
    });
    connect(m_showRecording, &QAbstractButton::clicked, this, [this](bool on) {
        m_backdrop.setShowRecording(on);
        updateBackdrops();
    });
    for (const auto changed :
         {&BackdropController::showLiveChanged, &BackdropController::showRecordingChanged,
          &BackdropController::frozenChanged, &BackdropController::canFreezeChanged,
          &BackdropController::missingChanged})
        connect(&m_backdrop, changed, this, &EditorToolBar::updateBackdrops);
    updateBackdrops();
}

void EditorToolBar::updateBackdrops()
{
    m_showLive->setChecked(m_backdrop.showLive());
    m_freeze->setChecked(m_backdrop.frozen());
    m_showRecording->setChecked(m_backdrop.showRecording());
    Controls::setUsable(*m_showLive, tr("Show your live screen as the backdrop"),
                        m_backdrop.liveMissing());
    Controls::setUsable(
        *m_freeze, tr("Freeze the current frame so you can pick targets against a still"),
        m_backdrop.canFreeze() ? QString() : tr("Turn on Live or Recording first."));
    Controls::setUsable(*m_showRecording, tr("Play the captured screen recording as the backdrop"),
                        m_backdrop.recordingMissing());
}

void EditorToolBar::addMagnifier()
{
    m_magnify = Controls::button(QStringLiteral("plus.magnifyingglass"), {},
                                 tr("Magnify the canvas 4× (Z)"), QStringLiteral("flat"), this);
    m_magnify->setFixedWidth(Metrics::toolButtonWidth);
    m_magnify->setCheckable(true);
    layout()->addWidget(m_magnify);
    connect(m_magnify, &QAbstractButton::clicked, &m_canvas, &CanvasController::setMagnify);
    connect(&m_canvas, &CanvasController::magnifyChanged, this, &EditorToolBar::updateMagnifier);
    updateMagnifier();
}

void EditorToolBar::updateMagnifier()
{
    m_magnify->setChecked(m_canvas.magnify());
}

void EditorToolBar::addRunOptions()
{
    m_runOptions = new IconButton(this);
    m_runOptions->setProperty("look", QStringLiteral("flat"));
    m_runOptions->setIcon(Icons::icon(QStringLiteral("slider.horizontal.3")));
    m_runOptions->setLabel(tr("Run options"));
    m_runOptions->setToolTip(tr("Run options"));
    layout()->addWidget(m_runOptions);

    auto *menu = new SymbolMenu({}, m_runOptions, true);
    // They say why an option cannot be chosen.
    menu->setToolTipsVisible(true);
    m_runOptions->setMenu(menu);
    m_hideOthers = menu->addAction(tr("Hide other apps during run"));
    m_recordCursor = menu->addAction(tr("Show mouse cursor"));
    for (QAction *toggle : {m_hideOthers, m_recordCursor})
        toggle->setCheckable(true);
    connect(m_hideOthers, &QAction::triggered, &m_settings, &RunSettings::setHideOthersDuringRun);
    connect(m_recordCursor, &QAction::triggered, &m_settings, &RunSettings::setRecordCursor);
    menu->addSeparator();
    addRecordingModes(*menu);
    connect(&m_settings, &RunSettings::changed, this, &EditorToolBar::updateRunOptions);
    connect(menu, &QMenu::aboutToShow, this, &EditorToolBar::updateRunOptions);
    updateRunOptions();
}

void EditorToolBar::addRecordingModes(QMenu &menu)
{
    MenuText::addHeader(menu, tr("Recording mode"));
    m_modes = new QActionGroup(this);
    const auto add = [&](const QString &symbol, const QString &text, RecordMode mode) {
        QAction *action = menu.addAction(Icons::icon(symbol), text);
        action->setProperty("symbol", symbol);
        action->setCheckable(true);
        action->setData(int(mode));
        m_modes->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, mode] { m_settings.setRecordMode(mode); });
    };
    add(QStringLiteral("video.slash"), tr("Don't record"), RecordMode::off);
    add(QStringLiteral("video"), tr("Record screen"), RecordMode::screen);
    add(QStringLiteral("macwindow"), tr("Record active window"), RecordMode::window);
    m_windowNote = MenuText::addNote(menu, tr("Active window needs a single-app flow"));
}

void EditorToolBar::updateRunOptions()
{
    m_hideOthers->setChecked(m_settings.hideOthersDuringRun());
    m_recordCursor->setChecked(m_settings.recordCursor());
    const bool singleApp = !StepList::hasSeveralSwitchApps(m_project.steps());
    const QString missing = m_live.recordingMissing();
    const QList<QAction *> actions = m_modes->actions();
    Q_ASSERT(actions.size() == modes);
    for (QAction *action : actions) {
        const auto mode = RecordMode(action->data().toInt());
        action->setChecked(mode == m_settings.recordMode());
        action->setEnabled(mode == RecordMode::off
                           || (missing.isEmpty() && (mode != RecordMode::window || singleApp)));
        action->setToolTip(mode == RecordMode::off ? QString() : missing);
    }
    m_windowNote->setVisible(!singleApp);
}

void EditorToolBar::addRunLive()
{
    m_runLive = Controls::button(QStringLiteral("cursorarrow.motionlines"), tr("Run Live"), {},
                                 QStringLiteral("primary"), this);
    layout()->addWidget(m_runLive);
    connect(m_runLive, &QAbstractButton::clicked, this, [this] { m_live.runLive(); });
    connect(&m_live, &LiveRunController::missingChanged, this, &EditorToolBar::updateRunLive);
    updateRunLive();
}

void EditorToolBar::updateRunLive()
{
    Controls::setUsable(*m_runLive, tr("Drive the real cursor through these steps"),
                        m_live.missing());
}

void EditorToolBar::setIconOnly(bool backdrops, bool runOptions)
{
    m_backdrops->setIconOnly(backdrops);
    m_runOptions->setIconOnly(runOptions);
}

} // namespace velvane
