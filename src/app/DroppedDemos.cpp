#include "app/DroppedDemos.h"

#include <QMimeData>
#include <QUrl>

namespace velvane::DroppedDemos {

bool areIn(const QMimeData &data)
{
    return !files(data).isEmpty();
}

QStringList files(const QMimeData &data)
{
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls)
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    return paths;
}

} // namespace velvane::DroppedDemos
