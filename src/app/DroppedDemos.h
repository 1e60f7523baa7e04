#pragma once

#include <QStringList>

class QMimeData;

namespace velvane {

/// Files that are dragged from other windows to be opened.
namespace DroppedDemos {

/// Is there a file of this machine? What it holds shows when it is opened.
bool areIn(const QMimeData &data);

/// The paths of all such files.
QStringList files(const QMimeData &data);

} // namespace DroppedDemos

} // namespace velvane
