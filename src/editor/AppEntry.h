#pragma once

#include <QIcon>
#include <QString>

namespace velvane {

/// One application to choose from; told apart by its name.
struct AppEntry {
    /// The display name, as a step's text stores it.
    QString name;
    /// For 16 × 16 points, sharp at scales 1 and 2; null when the application has none.
    QIcon icon;
};

} // namespace velvane
