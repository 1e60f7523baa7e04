#include "editor/PictureDrop.h"

#include "editor/DroppedPicture.h"

#include <QDropEvent>
#include <QImage>
#include <QMimeData>
#include <QWidget>

namespace velvane {

PictureDrop::PictureDrop(QWidget &target) : QObject(&target), m_target(target)
{
    target.setAcceptDrops(true);
    target.installEventFilter(this);
}

bool PictureDrop::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
        setOver(DroppedPicture::isIn(*static_cast<QDropEvent *>(event)->mimeData()));
        event->setAccepted(m_isOver);
        return true;
    case QEvent::DragLeave:
        setOver(false);
        return true;
    case QEvent::Drop:
        setOver(false);
        static_cast<QDropEvent *>(event)->acceptProposedAction();
        take(*static_cast<QDropEvent *>(event)->mimeData());
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void PictureDrop::setOver(bool over)
{
    m_isOver = over;
    m_target.update();
}

void PictureDrop::take(const QMimeData &data)
{
    const QString file = DroppedPicture::file(data);
    if (!file.isEmpty())
        Q_EMIT fileDropped(file);
    else
        Q_EMIT pictureDropped(qvariant_cast<QImage>(data.imageData()));
}

} // namespace velvane
