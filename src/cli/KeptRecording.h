#pragma once

#include "capture/RecordActionsController.h"
#include "model/KeptSession.h"

#include <QTimer>

namespace velvane::cli {

/// While it lives, no end of the process takes more than half a minute of a recording with it. One
/// at a time; main thread only.
///
/// What is recorded is kept as the editor keeps its demos, with the steps so far: if the process is
/// killed, the editor offers it when it starts next.
class KeptRecording {
public:
    using Save = std::function<void(KeptRecording &)>;

    /// Borrows the recording, which is yet to begin, of the demo at this path. `save` is called
    /// when the process ends by exit(), as it does when the display goes: the steps so far can be
    /// saved then.
    KeptRecording(const RecordActionsController &recording, const QString &path, Save save);
    ~KeptRecording();
    Q_DISABLE_COPY_MOVE(KeptRecording)

    /// Keeps the demo with the steps so far, if there are any. A timer calls it.
    void tick();
    /// The steps are in a file: nothing is kept any more.
    void forget();

private:
    const RecordActionsController &m_recording;
    const Save m_save;
    const qsizetype m_before; ///< how many steps the demo had
    KeptSession m_session{KeptSession::standardFolder()};
    KeptDemo m_kept;
    int m_turn = 0;
    QTimer m_timer;
};

} // namespace velvane::cli
