#pragma once

#include <QImage>
#include <QStringList>

namespace velvane {

/// The icon of an application for 16 × 16 points at a scale, square, with that device pixel ratio.
///
/// `name` is a name in the icon theme, a file's name in a folder `pixmaps` of `dataFolders`, or an
/// absolute path. Null when there is none or it cannot be read. Main thread, of a program that has
/// a QGuiApplication; null in another.
QImage themeIcon(const QString &name, const QStringList &dataFolders, qreal scale);

/// A picture of any size made an icon as above: kept sharp when it has the size, else scaled to
/// fit.
QImage asIcon(const QImage &picture, qreal scale);

} // namespace velvane
