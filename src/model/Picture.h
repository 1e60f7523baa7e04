#pragma once

#include <QByteArray>
#include <QImage>

#include <optional>

namespace velvane {

/// Backdrop pictures in and out of demo files.
namespace Picture {

/// The first image of the bytes, of any format Qt reads and up to 16,384 pixels a side; null when
/// there is none.
QImage decoded(const QByteArray &bytes);

/// The picture as PNG; nothing for a null picture or when it cannot be encoded.
std::optional<QByteArray> encoded(const QImage &picture);

} // namespace Picture

} // namespace velvane
