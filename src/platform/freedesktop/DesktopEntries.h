#pragma once

#include "platform/freedesktop/DesktopEntry.h"
#include "platform/freedesktop/SessionFolders.h"

#include <QDateTime>
#include <QHash>

#include <memory>
#include <mutex>
#include <vector>

namespace velvane {

/// The .desktop files of a session, read again when one of their folders has changed.
/// Any thread.
class DesktopEntries {
public:
    using List = std::vector<DesktopEntry>;

    explicit DesktopEntries(SessionFolders folders);

    /// The applications, folder by folder in order of precedence and by file name within one, those
    /// not to be shown included. Of an id that comes again the first file holds; so a hidden or
    /// unreadable one removes those after it. Folders that cannot be read are skipped.
    std::shared_ptr<const List> all();

    /// Those of them that a person is offered: shown on this desktop, and with a program to start.
    List shown();

private:
    bool changed() const;
    void read();

    const SessionFolders m_folders;
    std::mutex m_mutex;
    std::shared_ptr<const List> m_list;
    /// When each folder that was looked into had last changed; invalid when it was not there.
    QHash<QString, QDateTime> m_seen;
    QDateTime m_readAt;
};

} // namespace velvane
