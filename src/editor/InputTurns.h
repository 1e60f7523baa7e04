#pragma once

#include "capture/RecordActionsController.h"
#include "editor/PickLocationController.h"
#include "live/LiveRunController.h"

namespace velvane {

/// Lets a live run, a recording of actions and the picking of a location take turns: all three hear
/// Esc and take the pointer or the keyboard. Main thread only.
class InputTurns : public QObject {
    Q_OBJECT
public:
    InputTurns(LiveRunController &run, RecordActionsController &record,
               PickLocationController &pick);

private:
    void follow();

    LiveRunController &m_run;
    RecordActionsController &m_record;
    PickLocationController &m_pick;
};

} // namespace velvane
