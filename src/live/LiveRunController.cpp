#include "live/LiveRunController.h"

#include "base/Background.h"
#include "capture/Bookmark.h"
#include "live/Applications.h"
#include "live/Run.h"
#include "model/StepList.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace velvane {

namespace {

constexpr Seconds eachNumber = 0.8s;

// The application whose window is recorded: that of the first switch.
QString targetOf(const Snapshot &demo)
{
    const auto first = std::ranges::find(demo.steps, StepKind::switchApp, &Step::kind);
    return first == demo.steps.end() ? QString() : first->text;
}

} // namespace

LiveRunController::LiveRunController(Project &project, Playback &playback, Desktop &desktop,
                                     std::function<RunOptions()> options, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_playback(playback)
    , m_desktop(desktop)
    , m_readOptions(std::move(options))
    , m_stop(desktop)
{}

LiveRunController::~LiveRunController()
{
    Q_ASSERT(!m_isBusy);
}

Snapshot LiveRunController::liveSnapshot(std::optional<QUuid> from) const
{
    Snapshot demo = m_project.snapshot();
    const auto first = from ? StepList::index(demo.steps, *from) : std::nullopt;
    if (!first)
        return demo;
    for (qsizetype i = *first - 1; i >= 0; --i) {
        if (demo.steps[i].kind == StepKind::move) {
            demo.startPoint = demo.steps[i].point;
            break;
        }
    }
    demo.steps.remove(0, *first);
    return demo;
}

QString LiveRunController::missing() const
{
    if (m_isBusy)
        return tr("A live run is in progress.");
    if (!m_held.isEmpty())
        return m_held;
    if (!m_desktop.permissions().granted(Permission::accessibility))
        return {};
    const QString reason = m_desktop.input().missing();
    return reason.isEmpty() ? m_desktop.keys().missing() : reason;
}

void LiveRunController::hold(const QString &reason)
{
    if (std::exchange(m_held, reason) != reason)
        Q_EMIT missingChanged();
}

// Why the demo cannot be run now; empty when it can. Asks for the permission.
QString LiveRunController::refusal(const Snapshot &demo)
{
    if (demo.steps.isEmpty())
        return tr("Add some steps first.");
    if (!m_desktop.permissions().request(Permission::accessibility)) {
        Live::openAccessibilitySettings(m_desktop);
        return tr("Grant Accessibility permission to Velvane, then run again.");
    }
    return missing();
}

QCoro::Task<> LiveRunController::runLive(std::optional<QUuid> from)
{
    if (m_isBusy)
        co_return;
    Q_EMIT aboutToRun();
    const Snapshot demo = liveSnapshot(from);
    if (!begin(demo))
        co_return;
    co_await countDown();
    startRecording(demo);
    co_await perform(demo);
    co_await stopRecording();
    end();
}

// Makes ready for the demo; says why when it cannot.
bool LiveRunController::begin(const Snapshot &demo)
{
    m_outcome = Outcome::refused;
    m_recordingPath.clear();
    QString refused = refusal(demo);
    if (refused.isEmpty()) {
        m_stop.clear();
        // Nothing else could stop a run.
        if (!m_stop.watchEscape())
            refused = tr("Esc cannot be watched for here, so nothing was run.");
    }
    if (!refused.isEmpty()) {
        Q_EMIT reported(refused);
        return false;
    }
    m_options = m_readOptions();
    m_playback.pause();
    setBusy(true);
    return true;
}

QCoro::Task<> LiveRunController::countDown()
{
    const std::function<void(int)> show = [this](int number) { setLiveCountdown(number); };
    if (m_options.countdown)
        co_await m_stop.countDown(eachNumber, show);
    setLiveCountdown(0);
}

// A demo that moves between applications is recorded whole, also when only its end is run.
void LiveRunController::startRecording(const Snapshot &demo)
{
    if (m_options.recordMode == RecordMode::off || m_stop.isMade())
        return;
    const bool isWindow = m_options.recordMode == RecordMode::window
                          && !StepList::hasSeveralSwitchApps(m_project.steps());
    m_recorder = std::make_unique<RunRecorder>(m_desktop);
    connect(m_recorder.get(), &RunRecorder::ended, this, [this](const QString &reason) {
        Q_EMIT reported(tr("Recording stopped: %1").arg(reason));
    });
    try {
        m_recorder->start(isWindow ? RecordScope::window : RecordScope::screen, targetOf(demo),
                          m_options.recordCursor, false);
    } catch (const std::exception &error) {
        m_recorder.reset();
        Q_EMIT reported(tr("Couldn't start recording: %1").arg(QString::fromUtf8(error.what())));
    }
}

QCoro::Task<> LiveRunController::perform(const Snapshot &demo)
{
    if (m_stop.isMade())
        co_return;
    setRunningLive(true);
    const CancelCheck isCancelled = [this] { return m_stop.isMade(); };
    const std::function<void()> run = [this, &demo, &isCancelled] {
        Live::run(m_desktop, demo, m_options.hideOthers, isCancelled);
    };
    co_await inBackground(run);
}

QCoro::Task<> LiveRunController::stopRecording()
{
    if (!m_recorder)
        co_return;
    co_await m_recorder->stop();
    m_recordingPath = m_recorder->url();
    if (const auto bookmark = Bookmark::of(m_recordingPath))
        m_project.setRecordingBookmark(bookmark);
}

void LiveRunController::end()
{
    m_stop.stopWatching();
    setRunningLive(false);
    m_outcome = m_stop.isMade() ? Outcome::stopped : Outcome::finished;
    QString message = comeBack();
    if (!m_desktop.screens().pointer()) {
        message = tr("Live run stopped: the display has gone.");
        m_outcome = Outcome::stopped;
    }
    m_recorder.reset();
    setBusy(false);
    Q_EMIT reported(message);
    Q_EMIT finished();
}

// Brings us back in front, or shows the movie; what is to be told of it.
QString LiveRunController::comeBack()
{
    m_desktop.shell().unhide();
    if (m_recordingPath.isEmpty()) {
        m_desktop.shell().activate();
        return m_stop.isMade() ? tr("Live run stopped.") : tr("Live run finished.");
    }
    // We come back in front when nothing else can.
    if (!m_desktop.shell().reveal(m_recordingPath))
        m_desktop.shell().activate();
    const QString name = QFileInfo(m_recordingPath).fileName();
    return tr("Recording saved to %1%2 — revealed in Finder.")
        .arg(name, m_recorder->fellBackToScreen() ? tr(" (window not found — recorded full screen)")
                                                  : QString());
}

QString LiveRunController::recordingMissing() const
{
    return m_desktop.capture().missing();
}

bool LiveRunController::cancelThen(QObject *context, const std::function<void()> &again)
{
    if (!m_isBusy)
        return false;
    cancel();
    const auto type = Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection);
    connect(this, &LiveRunController::finished, context, again, type);
    return true;
}

void LiveRunController::setBusy(bool busy)
{
    m_isBusy = busy;
    Q_EMIT missingChanged();
}

void LiveRunController::setRunningLive(bool running)
{
    if (std::exchange(m_isRunningLive, running) != running)
        Q_EMIT isRunningLiveChanged();
}

void LiveRunController::setLiveCountdown(int number)
{
    if (std::exchange(m_liveCountdown, number) != number)
        Q_EMIT liveCountdownChanged();
}

} // namespace velvane
