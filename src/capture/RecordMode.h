#pragma once

#include <QString>

namespace velvane {

/// What of the screen a live run records. Enumerators are spelled as they are stored.
enum class RecordMode { off, screen, window };

/// What one recording covers: the primary display, or one application's main window.
enum class RecordScope { screen, window };

/// The stored name.
inline QString id(RecordMode mode)
{
    switch (mode) {
    case RecordMode::screen:
        return QStringLiteral("screen");
    case RecordMode::window:
        return QStringLiteral("window");
    case RecordMode::off:
        break;
    }
    return QStringLiteral("off");
}

/// The mode of a stored name; off for any other text.
inline RecordMode recordMode(const QString &id)
{
    if (id == QLatin1String("screen"))
        return RecordMode::screen;
    return id == QLatin1String("window") ? RecordMode::window : RecordMode::off;
}

} // namespace velvane
