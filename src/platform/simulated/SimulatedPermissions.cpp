#include "platform/simulated/SimulatedPermissions.h"

namespace velvane {

namespace {

QString name(Permission permission)
{
    switch (permission) {
    case Permission::accessibility:
        return "accessibility";
    case Permission::inputMonitoring:
        return "inputMonitoring";
    case Permission::screenRecording:
        return "screenRecording";
    }
    return {};
}

} // namespace

void SimulatedPermissions::setGranted(Permission permission, bool granted)
{
    m_granted[permission] = granted;
}

void SimulatedPermissions::setAnswer(Permission permission, bool granted)
{
    m_answers[permission] = granted;
}

bool SimulatedPermissions::granted(Permission permission)
{
    const auto found = m_granted.find(permission);
    return works() && (found == m_granted.end() || found->second);
}

bool SimulatedPermissions::request(Permission permission)
{
    m_log.add("request " + name(permission));
    const auto answer = m_answers.find(permission);
    if (answer != m_answers.end())
        m_granted[permission] = answer->second;
    return granted(permission);
}

QString SimulatedPermissions::explanation(Permission permission)
{
    return granted(permission) ? QString() : "Grant " + name(permission) + ".";
}

} // namespace velvane
