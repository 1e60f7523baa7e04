#include "platform/freedesktop/ThemeIcon.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QImageReader>
#include <QPainter>

namespace velvane {

namespace {

constexpr int points = 16;

// The longest side of a picture that is still taken for an icon.
constexpr int largestSide = 4096;

int pixels(qreal scale)
{
    return qRound(points * qBound(qreal(1), scale, qreal(8)));
}

// Reads a file at the size wanted, which makes vector pictures sharp. A pipe or a device, which may
// never end, is no file.
QImage readPicture(const QString &path, int side)
{
    if (!QFileInfo(path).isFile())
        return {};
    QImageReader reader(path);
    const QSize size = reader.size();
    if (reader.format().startsWith("svg") && !size.isEmpty())
        reader.setScaledSize(size.scaled(side, side, Qt::KeepAspectRatio));
    else if (size.width() > largestSide || size.height() > largestSide)
        return {};
    return reader.read();
}

QString pixmapFile(const QString &name, const QStringList &dataFolders)
{
    for (const QString &folder : dataFolders) {
        for (const char *suffix : {"", ".png", ".svg", ".xpm"}) {
            QString path = folder + "/pixmaps/" + name + QLatin1String(suffix);
            if (QFileInfo(path).isFile())
                return path;
        }
    }
    return {};
}

// Some entries give a theme name with a suffix it must not have.
QString themeName(const QString &name)
{
    for (const char *suffix : {".png", ".svg", ".xpm"}) {
        if (name.endsWith(QLatin1String(suffix)))
            return name.chopped(4);
    }
    return name;
}

} // namespace

QImage asIcon(const QImage &picture, qreal scale)
{
    const int side = pixels(scale);
    if (picture.isNull())
        return {};
    const QImage fitted =
        picture.size().scaled(side, side, Qt::KeepAspectRatio) == picture.size()
            ? picture
            : picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QImage icon(side, side, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QImage plain = fitted;
    plain.setDevicePixelRatio(1);
    QPainter painter(&icon);
    painter.drawImage((side - plain.width()) / 2, (side - plain.height()) / 2, plain);
    painter.end();
    icon.setDevicePixelRatio(scale);
    return icon;
}

QImage themeIcon(const QString &name, const QStringList &dataFolders, qreal scale)
{
    if (name.isEmpty() || !qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return {};
    if (name.startsWith(u'/'))
        return asIcon(readPicture(name, pixels(scale)), scale);
    const QIcon icon = QIcon::fromTheme(themeName(name));
    if (!icon.isNull())
        return asIcon(icon.pixmap(QSize(points, points), scale).toImage(), scale);
    const QString file = pixmapFile(name, dataFolders);
    return file.isEmpty() ? QImage() : asIcon(readPicture(file, pixels(scale)), scale);
}

} // namespace velvane
