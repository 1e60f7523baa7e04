#include "capture/RecordActionsController.h"

#include "capture/Bookmark.h"
#include "model/StepList.h"

#include <exception>
#include <utility>

namespace velvane {

namespace {

// How long our windows take to go.
constexpr Seconds untilHidden = 0.4s;
constexpr Seconds eachNumber = 0.7s;
// How often it is seen whether to stop.
constexpr Seconds pollInterval = 0.15s;

// The steps with offsets that count from so much earlier.
QList<Step> countedFromEarlier(QList<Step> steps, Seconds by)
{
    for (Step &step : steps) {
        if (step.recordedOffset)
            *step.recordedOffset += by;
    }
    return steps;
}

} // namespace

RecordActionsController::RecordActionsController(Project &project, Playback &playback,
                                                 Desktop &desktop, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_playback(playback)
    , m_desktop(desktop)
    , m_stop(desktop)
{}

RecordActionsController::~RecordActionsController()
{
    Q_ASSERT(!m_isBusy);
}

QString RecordActionsController::missing() const
{
    return m_held.isEmpty() ? m_desktop.tap().missing() : m_held;
}

void RecordActionsController::hold(const QString &reason)
{
    if (std::exchange(m_held, reason) != reason)
        Q_EMIT missingChanged();
}

std::optional<QSizeF> RecordActionsController::largerScreen() const
{
    const std::optional<Display> display = m_desktop.screens().primaryDisplay();
    if (!display)
        return {};
    const QSizeF screen = display->frame.size();
    const QSizeF size = m_project.canvasSize();
    const bool isLarger = screen.width() > size.width() || screen.height() > size.height();
    return isLarger ? std::optional(screen) : std::nullopt;
}

void RecordActionsController::recordActions()
{
    if (m_isBusy)
        return cancel();
    const std::optional<QSizeF> screen = largerScreen();
    if (!screen || m_choice || !m_ask || !canRecord()) {
        record();
        return;
    }
    m_ask(*screen, [this](CanvasChoice choice) {
        m_choice = choice;
        record();
    });
}

QCoro::Task<> RecordActionsController::record()
{
    if (m_isBusy || !begin())
        co_return;
    m_desktop.shell().hide();
    co_await m_desktop.clock().delay(untilHidden);
    if (!prepare())
        co_return;
    const std::function<void(int)> show = [this](int n) {
        m_recorder->setPanelText(tr("Recording starts in %1…").arg(n));
    };
    co_await m_stop.countDown(eachNumber, show);
    const std::unique_ptr<RunRecorder> movie = startMovie();
    // The movie begins before it is open, and steps show where they happened in it.
    m_ahead = movie ? m_desktop.clock().now() - movie->begun() : 0s;
    m_movie = movie ? movie->url() : QString();
    co_await capture();
    m_recorder->finish();
    m_desktop.shell().unhide();
    if (movie) {
        co_await movie->stop();
        m_movie = movie->url();
    }
    m_stop.stopWatching();
    const QList<Step> steps = stepsSoFar();
    m_recorder.reset();
    end(keep(steps));
}

// Makes ready; says why when it cannot.
bool RecordActionsController::begin()
{
    m_outcome = Outcome::refused;
    QString refused = missing();
    if (refused.isEmpty() && !m_desktop.permissions().request(Permission::accessibility)) {
        m_desktop.shell().open(QUrl(SettingsAddress::accessibility));
        refused = tr("Grant Accessibility permission to Velvane, then run again.");
    }
    if (!refused.isEmpty()) {
        Q_EMIT reported(refused);
        return false;
    }
    Q_EMIT aboutToRecord();
    m_playback.pause();
    m_stop.clear();
    m_movieEnd.clear();
    m_canvas = m_project.canvasSize();
    if (m_choice == CanvasChoice::matchScreen)
        m_canvas = largerScreen().value_or(m_canvas);
    setBusy(true);
    return true;
}

// Listens, for input and for Esc, without which nothing could end the recording.
bool RecordActionsController::prepare()
{
    m_recorder = std::make_unique<ActionRecorder>(m_desktop);
    connect(m_recorder.get(), &ActionRecorder::lost, this, &RecordActionsController::cancel);
    if (m_recorder->prepare(m_canvas, m_project.startPoint()) && m_stop.watchEscape())
        return true;
    m_recorder->finish();
    m_desktop.shell().unhide();
    end(tr("Couldn't start recording — grant Input Monitoring to Velvane in System Settings."));
    return false;
}

// Of the whole screen, a pixel for each of the canvas's points. What keeps it from being made is
// not told: the steps are what was asked for.
std::unique_ptr<RunRecorder> RecordActionsController::startMovie()
{
    if (m_stop.isMade())
        return {};
    try {
        auto movie = std::make_unique<RunRecorder>(m_desktop);
        connect(movie.get(), &RunRecorder::ended, this, [this](const QString &reason) {
            m_movieEnd = tr("Recording stopped: %1").arg(reason);
        });
        movie->start(RecordScope::screen, {}, false, true);
        return movie;
    } catch (const std::exception &) {
        return {};
    }
}

QCoro::Task<> RecordActionsController::capture()
{
    if (m_stop.isMade())
        co_return;
    m_recorder->setPanelText(tr("● Recording — Esc to stop"));
    m_recorder->setCapturing(true);
    setRecording(true);
    while (!m_stop.isMade())
        co_await m_desktop.clock().delay(pollInterval);
    setRecording(false);
}

QList<Step> RecordActionsController::stepsSoFar() const
{
    return m_recorder ? countedFromEarlier(m_recorder->soFar(), m_ahead) : QList<Step>();
}

DocState RecordActionsController::withRecorded(const QList<Step> &steps) const
{
    DocState state = m_project.docState();
    state.steps += steps;
    state.recordingBookmark = m_movie.isEmpty() ? std::nullopt : Bookmark::of(m_movie);
    state.canvasSize = m_canvas;
    return state;
}

DocState RecordActionsController::stateSoFar() const
{
    const QList<Step> steps = stepsSoFar();
    return steps.isEmpty() ? m_project.docState() : withRecorded(steps);
}

// Makes the steps and the movie, if there is one, part of the demo, in one edit; returns what is to
// be told.
QString RecordActionsController::keep(const QList<Step> &steps)
{
    m_outcome = steps.isEmpty() ? Outcome::nothing : Outcome::recorded;
    if (steps.isEmpty())
        return tr("Recording stopped — no actions captured.");
    m_project.edit(tr("Record Actions"), [&] { m_project.applyDocState(withRecorded(steps)); });
    m_project.setSelection(steps.constLast().id);
    StepList::uncollapseSectionContaining(m_project, steps.constLast().id);
    if (m_project.recordingBookmark())
        Q_EMIT movieRecorded();
    const QString told = steps.size() == 1 ? tr("Recorded %1 step%2.") : tr("Recorded %1 steps%2.");
    return told.arg(steps.size()).arg(m_movie.isEmpty() ? QString() : tr(" with screen recording"));
}

void RecordActionsController::end(const QString &message)
{
    m_recorder.reset();
    m_desktop.shell().activate();
    setBusy(false);
    Q_EMIT reported(message);
    if (!m_movieEnd.isEmpty())
        Q_EMIT movieEnded(m_movieEnd);
    Q_EMIT finished();
}

bool RecordActionsController::cancelThen(QObject *context, const std::function<void()> &again)
{
    if (!m_isBusy)
        return false;
    cancel();
    const auto type = Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection);
    connect(this, &RecordActionsController::finished, context, again, type);
    return true;
}

void RecordActionsController::setBusy(bool busy)
{
    m_isBusy = busy;
    Q_EMIT missingChanged();
}

void RecordActionsController::setRecording(bool recording)
{
    m_isRecording = recording;
    Q_EMIT isRecordingChanged();
}

} // namespace velvane
