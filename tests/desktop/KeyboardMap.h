#pragma once

#include <QProcess>

namespace velvane {

/// The whole keyboard map of a display, in words.
inline QByteArray keyboardMap(const QByteArray &display = qgetenv("DISPLAY"))
{
    QProcess dump;
    dump.start("xkbcomp", {"-w0", "-xkb", QString::fromLocal8Bit(display), "-"});
    dump.waitForFinished();
    return dump.readAllStandardOutput();
}

} // namespace velvane
