#include "platform/freedesktop/AppMatcher.h"

namespace velvane {

AppMatcher::AppMatcher(std::shared_ptr<const DesktopEntries::List> entries)
    : m_entries(std::move(entries))
{
    for (const DesktopEntry &entry : *m_entries) {
        note(m_byId, entry.id, entry);
        note(m_byLastPart, entry.id.mid(entry.id.lastIndexOf(u'.') + 1), entry);
        note(m_byClass, entry.startupWmClass, entry);
        // A hidden helper shares its program with all that it could help.
        if (!entry.noDisplay)
            note(m_byProgram, programOf(entry.exec), entry);
    }
}

// The first entry keeps a key unless it is not displayed and the new one is.
void AppMatcher::note(Index &index, const QString &key, const DesktopEntry &entry)
{
    if (key.isEmpty())
        return;
    const DesktopEntry *&known = index[key.toCaseFolded()];
    if (!known || (known->noDisplay && !entry.noDisplay))
        known = &entry;
}

const DesktopEntry *AppMatcher::find(const Index &index, const QString &key)
{
    return key.isEmpty() ? nullptr : index.value(key.toCaseFolded());
}

const DesktopEntry *AppMatcher::match(const WindowIdentity &window) const
{
    if (const DesktopEntry *entry = find(m_byId, window.applicationId))
        return entry;
    for (const QString &name : {window.wmClass, window.wmInstance}) {
        for (const Index *index : {&m_byClass, &m_byId, &m_byLastPart}) {
            if (const DesktopEntry *entry = find(*index, name))
                return entry;
        }
    }
    if (const DesktopEntry *entry = find(m_byProgram, window.script))
        return entry;
    return find(m_byProgram, window.program);
}

} // namespace velvane
