#pragma once

#include <QStringList>

#include <functional>

class QWidget;

namespace velvane {

/// Panels that ask for demo files, over a window or on their own when that is null. They do not
/// block; the calls hear the answer, nothing when it was cancelled.
namespace FilePanel {

/// Begins in the folder, or where documents belong when it is empty.
void open(QWidget *over, const QString &folder,
          const std::function<void(const QStringList &paths)> &then);

/// `suggested` is a path or a name without folder; the extension is added where it is missing. No
/// file is replaced unasked.
void save(QWidget *over, const QString &suggested,
          const std::function<void(const QString &path)> &then);

} // namespace FilePanel

} // namespace velvane
