#pragma once

#include <QString>

namespace velvane {

/// Makes our processes take turns at replacing files in a folder, for as long as it lives.
///
/// Other programs do not know of it. It waits for its turn, blocking, a second or two at most:
/// where a folder cannot be locked, or a stopped process never lets it go, work goes on without.
/// Any thread; one at a time for a folder in each process.
class FolderLock {
public:
    /// Locks the folder in which a file stands, symbolic links followed; it need not exist yet.
    explicit FolderLock(const QString &file);
    ~FolderLock();
    Q_DISABLE_COPY_MOVE(FolderLock)

    bool isLocked() const { return m_isLocked; }

private:
    int m_folder;
    bool m_isLocked = false;
};

} // namespace velvane
