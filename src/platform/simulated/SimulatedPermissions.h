#pragma once

#include "platform/Permissions.h"
#include "platform/simulated/EventLog.h"
#include "platform/simulated/Simulated.h"

#include <map>

namespace velvane {

/// Grants everything until told otherwise; notes requests in the log.
class SimulatedPermissions final : public Simulated<Permissions> {
public:
    explicit SimulatedPermissions(EventLog &log) : m_log(log) {}

    void setGranted(Permission permission, bool granted);
    /// What the user will answer when asked; a request for what is withheld is denied otherwise.
    void setAnswer(Permission permission, bool granted);

    bool granted(Permission permission) override;
    bool request(Permission permission) override;
    QString explanation(Permission permission) override;

private:
    EventLog &m_log;
    std::map<Permission, bool> m_granted;
    std::map<Permission, bool> m_answers;
};

} // namespace velvane
