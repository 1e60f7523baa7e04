#include "editor/DroppedPicture.h"

#include <QMimeData>
#include <QMimeDatabase>
#include <QUrl>

namespace velvane::DroppedPicture {

bool isIn(const QMimeData &data)
{
    return data.hasImage() || !file(data).isEmpty();
}

QString file(const QMimeData &data)
{
    const QMimeDatabase types;
    for (const QUrl &url : data.urls()) {
        const QString path = url.toLocalFile();
        const auto type = types.mimeTypeForFile(path, QMimeDatabase::MatchExtension);
        if (!path.isEmpty() && type.name().startsWith(QLatin1String("image/")))
            return path;
    }
    return {};
}

} // namespace velvane::DroppedPicture
