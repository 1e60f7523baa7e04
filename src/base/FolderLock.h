#pragma once

#include "base/Seconds.h"

#include <QString>

#include <optional>

namespace velvane {

/// Makes our processes take turns at replacing files in a folder, for as long as it lives.
///
/// Other programs do not know of it. It waits for its turn, blocking, and then has a refusal(). A
/// folder that cannot be locked at all is nobody's, and work goes on without. Any thread; one at a
/// time for a folder in each process.
class FolderLock {
public:
    /// Locks the folder in which a file stands, symbolic links followed; it need not exist yet.
    /// Waits no longer than `patience`: saving a demo with a large backdrop takes less than two
    /// seconds.
    explicit FolderLock(const QString &file, Seconds patience = 2s);
    ~FolderLock();
    Q_DISABLE_COPY_MOVE(FolderLock)

    bool isLocked() const { return m_state == State::ours; }
    /// Why nothing may be written now, in words: another process has not let go, and what it writes
    /// could be lost. Nothing when one may.
    std::optional<QString> refusal() const;

private:
    enum class State { ours, others, nobodys };

    static State lock(int folder, Seconds patience);

    int m_folder;
    State m_state;
};

} // namespace velvane
