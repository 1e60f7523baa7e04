#include "cli/KeptRecording.h"

#include <QFileInfo>

#include <cstdlib>

namespace velvane::cli {

namespace {

constexpr auto interval = std::chrono::seconds(30);

std::function<void()> atExit;

void callAtExit()
{
    if (atExit)
        atExit();
}

} // namespace

KeptRecording::KeptRecording(const RecordActionsController &recording, const QString &path,
                             Save save)
    : m_recording(recording)
    , m_save(std::move(save))
    , m_before(recording.stateSoFar().steps.size())
{
    const QFileInfo file(path);
    m_kept.id = QUuid::createUuid();
    m_kept.path = file.absoluteFilePath();
    m_kept.title = file.completeBaseName();
    m_kept.stamp = FileStamp::of(m_kept.path);
    static const bool isRegistered = std::atexit(callAtExit) == 0;
    if (isRegistered)
        atExit = [this] { m_save(*this); };
    m_timer.callOnTimeout([this] { tick(); });
    m_timer.start(interval);
}

KeptRecording::~KeptRecording()
{
    atExit = nullptr;
}

// Where it cannot be kept, the recording goes on all the same.
void KeptRecording::tick()
{
    const DocState state = m_recording.stateSoFar();
    if (state.steps.size() == m_before)
        return;
    m_kept.kept = QDateTime::currentDateTime();
    m_kept.demo = ProjectFile::of(state);
    m_session.keep(m_kept, ++m_turn);
}

void KeptRecording::forget()
{
    m_session.forget(m_kept.id);
}

} // namespace velvane::cli
