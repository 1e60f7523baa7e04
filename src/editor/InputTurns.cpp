#include "editor/InputTurns.h"

namespace velvane {

InputTurns::InputTurns(LiveRunController &run, RecordActionsController &record,
                       PickLocationController &pick)
    : m_run(run)
    , m_record(record)
    , m_pick(pick)
{
    connect(&run, &LiveRunController::missingChanged, this, &InputTurns::follow);
    connect(&record, &RecordActionsController::missingChanged, this, &InputTurns::follow);
}

void InputTurns::follow()
{
    const QString running = m_run.isBusy() ? m_run.missing() : QString();
    const QString recording = m_record.isBusy() ? tr("Actions are being recorded.") : QString();
    m_run.hold(recording);
    m_record.hold(running);
    m_pick.hold(running.isEmpty() ? recording : running);
}

} // namespace velvane
