#pragma once

#include "platform/DesktopShell.h"
#include "platform/simulated/EventLog.h"
#include "platform/simulated/Simulated.h"

namespace velvane {

/// Notes what is asked of it in the log.
class SimulatedShell final : public Simulated<DesktopShell> {
public:
    explicit SimulatedShell(EventLog &log) : m_log(log) {}

    bool hidden() const { return m_hidden; }
    bool active() const { return m_active; }

    void hide() override;
    void unhide() override;
    void activate() override;
    bool reveal(const QString &file) override;
    bool open(const QUrl &address) override;
    void noteRecent(const QString &file, const QString &type) override;
    void forgetRecent() override;

private:
    EventLog &m_log;
    bool m_hidden = false;
    bool m_active = true;
};

} // namespace velvane
