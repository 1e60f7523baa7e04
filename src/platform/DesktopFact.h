#pragma once

#include <QString>

namespace velvane {

/// Something about a session that decides what works there, for a person.
struct DesktopFact {
    QString what;
    QString state;
    /// What to do about it, one sentence; empty when all is well.
    QString remedy;
};

} // namespace velvane
