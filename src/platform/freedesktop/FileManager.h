#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace velvane {

/// The desktop's file manager.
namespace FileManager {

/// Shows a file selected in its folder; where no file manager can be asked that, the folder.
///
/// False when the file does not exist or nothing shows it. The window comes later; then `shown` is
/// called with the file manager's process, if that is known and `owner` still exists. Main thread.
bool reveal(const QString &file, QObject &owner, const std::function<void(qint64 pid)> &shown);

} // namespace FileManager

} // namespace velvane
