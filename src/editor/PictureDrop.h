#pragma once

#include <QObject>

class QImage;
class QWidget;

namespace velvane {

/// Takes the pictures that are dropped on a widget, as files or as pixels. Main thread only.
class PictureDrop : public QObject {
    Q_OBJECT
public:
    /// The widget owns it.
    explicit PictureDrop(QWidget &target);

    /// Is a picture held over the widget now? The widget is repainted when that changes.
    bool isOver() const { return m_isOver; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void fileDropped(const QString &path);
    void pictureDropped(const QImage &picture);

private:
    void setOver(bool over);
    void take(const QMimeData &data);

    QWidget &m_target;
    bool m_isOver = false;
};

} // namespace velvane
