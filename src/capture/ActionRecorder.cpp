#include "capture/ActionRecorder.h"

namespace velvane {

namespace {

constexpr QSize panelSize(360, 52);
constexpr double panelRadius = 13;
// How often it is seen whether the pointer rests.
constexpr auto dwellInterval = std::chrono::milliseconds(80);

} // namespace

ActionRecorder::ActionRecorder(Desktop &desktop, QObject *parent)
    : QObject(parent)
    , m_desktop(desktop)
{
    m_dwellTimer.setInterval(dwellInterval);
    connect(&m_dwellTimer, &QTimer::timeout, this, &ActionRecorder::tick);
}

ActionRecorder::~ActionRecorder() = default;

bool ActionRecorder::prepare(QSizeF canvas, QPointF startPoint)
{
    m_builder.emplace(canvas, startPoint, m_desktop.clock().now());
    m_tap = m_desktop.tap().listen([this](const InputEvent &event) { m_builder->handle(event); },
                                   [this] { Q_EMIT lost(); });
    if (!m_tap)
        return false;
    installAppObserver();
    m_panel = std::make_unique<StatusPanel>(m_desktop.screens(), panelSize, panelRadius);
    setPanelText(tr("● Recording — Esc to stop"));
    return true;
}

// Where the system cannot tell, switches are left out.
void ActionRecorder::installAppObserver()
{
    m_appObserver = m_desktop.apps().watchActivations(
        [this](const AppInfo &app) { m_builder->activate(app, m_desktop.clock().now()); });
}

void ActionRecorder::setCapturing(bool on)
{
    if (!m_builder)
        return;
    m_builder->setCapturing(on, m_desktop.clock().now());
    if (on)
        m_dwellTimer.start();
    else
        m_dwellTimer.stop();
}

void ActionRecorder::tick()
{
    if (m_builder)
        m_builder->tick(m_desktop.clock().now());
}

QList<Step> ActionRecorder::finish()
{
    m_dwellTimer.stop();
    m_tap.reset();
    m_appObserver.reset();
    m_panel.reset();
    return m_builder ? m_builder->finish(m_desktop.clock().now()) : QList<Step>();
}

QList<Step> ActionRecorder::soFar() const
{
    return m_builder ? m_builder->soFar(m_desktop.clock().now()) : QList<Step>();
}

QString ActionRecorder::panelText() const
{
    return m_panel ? m_panel->text() : QString();
}

void ActionRecorder::setPanelText(const QString &text)
{
    if (m_panel)
        m_panel->showText(text);
}

} // namespace velvane
