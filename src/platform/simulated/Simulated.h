#pragma once

#include <QString>

namespace velvane {

/// What every simulated facility has besides its own: it can be made to be missing.
template <typename Interface>
class Simulated : public Interface {
public:
    QString missing() const override { return m_missing; }

    /// From now on the facility does nothing and gives this reason; empty brings it back.
    void setMissing(const QString &reason) { m_missing = reason; }

protected:
    bool works() const { return m_missing.isEmpty(); }

private:
    QString m_missing;
};

} // namespace velvane
