#pragma once

#include <QString>

namespace velvane {

/// One thing the machine may be able to do. Not copyable; owned by its Desktop.
class Facility {
public:
    virtual ~Facility() = default;
    Facility(const Facility &) = delete;
    Facility &operator=(const Facility &) = delete;

    /// Why this facility does nothing here: one sentence for a tooltip or a message; empty when it
    /// works. What only the user's permission withholds is not missing: see Permissions.
    virtual QString missing() const { return {}; }

protected:
    Facility() = default;
};

} // namespace velvane
