#pragma once

#include <QString>

class QMimeData;

namespace velvane {

/// Pictures that are dragged from other windows.
namespace DroppedPicture {

/// Is there a picture file, or the pixels of a picture?
bool isIn(const QMimeData &data);

/// The path of the first picture file, judged by its name; empty when there is none.
QString file(const QMimeData &data);

} // namespace DroppedPicture

} // namespace velvane
