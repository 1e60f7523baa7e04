#include "editor/ExportController.h"

#include "media/MovieError.h"
#include "render/ExportError.h"
#include "render/Exporter.h"

#include <QFileInfo>

namespace velvane {

namespace {

const auto proposedName = QStringLiteral("Velvane.mp4");
// Before, the first frames' cost says little about the others'.
constexpr Seconds untilEstimate = 0.5s;

} // namespace

ExportController::ExportController(Project &project, StatusLine &status,
                                   BackdropController &backdrop, OpenGesture &gesture,
                                   AskWhereToExport ask, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_status(status)
    , m_backdrop(backdrop)
    , m_gesture(gesture)
    , m_ask(std::move(ask))
{}

ExportController::~ExportController()
{
    Q_ASSERT(!m_isExporting);
}

void ExportController::exportMovie()
{
    if (m_isExporting)
        return;
    ExportQuestion question{.name = proposedName, .note = {}, .chosen = {}};
    if (m_backdrop.showRecording())
        question.note = tr("The recording backdrop is only for the preview: the movie shows the "
                           "demo's still backdrop.");
    question.chosen = [this](const QString &path) { exportTo(path); };
    m_ask(question);
}

QCoro::Task<> ExportController::exportTo(QString path)
{
    if (m_isExporting)
        co_return;
    begin();
    const Snapshot snap = exportSnapshot();
    const std::function<void(double)> progress = [this](double done) { setProgress(done); };
    const CancelCheck isCancelled = [this] { return m_cancelled.load(); };
    QString message = tr("Exported to %1.").arg(QFileInfo(path).fileName());
    const QString failed = tr("Export failed: %1");
    try {
        co_await Exporter::exportTo(snap, path, progress, isCancelled);
    } catch (const ExportCancelled &) {
        message = tr("Export cancelled.");
    } catch (const ExportError &error) {
        message = failed.arg(error.description());
    } catch (const MovieError &error) {
        message = failed.arg(error.reason());
    } catch (const std::exception &error) {
        message = failed.arg(QString::fromLocal8Bit(error.what()));
    }
    end(message);
}

Snapshot ExportController::exportSnapshot() const
{
    m_gesture.commit();
    Snapshot snap = m_project.snapshot();
    if (snap.background.isNull() && m_backdrop.showLive() && !m_backdrop.liveImage().isNull()) {
        snap.background = m_backdrop.liveImage();
        snap.canvasSize = m_backdrop.liveSize();
    }
    return snap;
}

void ExportController::begin()
{
    m_cancelled = false;
    m_clock.start();
    m_isExporting = true;
    setProgress(0);
    m_status.setMessage({});
    Q_EMIT isExportingChanged();
}

void ExportController::end(const QString &message)
{
    m_status.setMessage(message);
    m_isExporting = false;
    Q_EMIT isExportingChanged();
    Q_EMIT finished();
}

void ExportController::setProgress(double progress)
{
    if (progress == m_progress)
        return;
    m_progress = progress;
    Q_EMIT exportProgressChanged();
}

std::optional<Seconds> ExportController::timeLeft() const
{
    const Seconds elapsed(static_cast<double>(m_clock.isValid() ? m_clock.nsecsElapsed() : 0)
                          / 1e9);
    if (!m_isExporting || elapsed < untilEstimate || m_progress <= 0)
        return {};
    return elapsed * (1 - m_progress) / m_progress;
}

bool ExportController::cancelThen(QObject *context, const std::function<void()> &again)
{
    if (!m_isExporting)
        return false;
    cancel();
    const auto type = Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection);
    connect(this, &ExportController::finished, context, again, type);
    return true;
}

} // namespace velvane
