#pragma once

#include <QString>

namespace velvane {

/// Why nothing is known about newer versions: one sentence for the user.
struct UpdateError {
    QString sentence;
};

} // namespace velvane
