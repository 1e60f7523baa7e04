#include "editor/DemoSettings.h"

#include "model/Picture.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace velvane {

namespace {

// More than any picture of the largest size takes uncompressed.
constexpr qint64 maxFileSize = qint64(1) << 30;

QString translated(const char *text)
{
    return QCoreApplication::translate("DemoSettings", text);
}

} // namespace

double DemoSettings::side(double value)
{
    return std::clamp(std::round(value), minSide, maxSide);
}

void DemoSettings::setCanvasSize(Project &project, QSizeF size)
{
    if (!std::isfinite(size.width()) || !std::isfinite(size.height()))
        return;
    project.edit(translated("Change Canvas"), [&] {
        project.setCanvasSize({side(size.width()), side(size.height())});
    });
}

bool DemoSettings::matchScreen(Project &project, Screens &screens)
{
    const auto display = screens.primaryDisplay();
    if (!display)
        return false;
    setCanvasSize(project, display->frame.size());
    return true;
}

std::optional<QString> DemoSettings::setBackdrop(Project &project, const QString &file)
{
    const QFileInfo info(file);
    QFile source(file);
    // A pipe or device would never end.
    if (info.exists() && !info.isFile())
        return translated("“%1” is not a file.").arg(info.fileName());
    if (!source.open(QIODevice::ReadOnly))
        return translated("“%1” cannot be read: %2.").arg(info.fileName(), source.errorString());
    const QImage picture =
        info.size() > maxFileSize ? QImage() : Picture::decoded(source.readAll());
    if (picture.isNull())
        return translated("“%1” is not a picture that Velvane can read.").arg(info.fileName());
    setBackdrop(project, picture);
    return {};
}

void DemoSettings::setBackdrop(Project &project, const QImage &picture)
{
    if (!picture.isNull())
        project.edit(translated("Set Backdrop"), [&] { project.setBackground(picture); });
}

void DemoSettings::removeBackdrop(Project &project)
{
    project.edit(translated("Remove Backdrop"), [&] { project.setBackground({}); });
}

} // namespace velvane
