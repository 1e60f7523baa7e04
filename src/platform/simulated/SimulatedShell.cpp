#include "platform/simulated/SimulatedShell.h"

namespace velvane {

void SimulatedShell::hide()
{
    if (!works())
        return;
    m_log.add("hide ourselves");
    m_hidden = true;
    m_active = false;
}

void SimulatedShell::unhide()
{
    if (!works() || !m_hidden)
        return;
    m_log.add("unhide ourselves");
    m_hidden = false;
}

void SimulatedShell::activate()
{
    if (!works())
        return;
    m_log.add("activate ourselves");
    m_hidden = false;
    m_active = true;
}

bool SimulatedShell::reveal(const QString &file)
{
    if (works())
        m_log.add("reveal " + file);
    return works();
}

bool SimulatedShell::open(const QUrl &address)
{
    if (works())
        m_log.add("open " + address.toString());
    return works();
}

void SimulatedShell::noteRecent(const QString &file, const QString &type)
{
    if (works())
        m_log.add("note recent " + file + " as " + type);
}

void SimulatedShell::forgetRecent()
{
    if (works())
        m_log.add("forget recent");
}

} // namespace velvane
