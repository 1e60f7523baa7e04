// A window that gives a file away by drag and drop, as a file manager does.
//
// usage: drag_source FILE
//
// Prints "X Y" once it stands there, a pixel of the screen to drag from, and "over a target" when
// the drag is first over something that would take the file.

#include <QApplication>
#include <QDrag>
#include <QFileInfo>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>

#include <iostream>

namespace {

class DragSource : public QWidget {
public:
    explicit DragSource(const QString &file) : m_url(QUrl::fromLocalFile(file))
    {
        // No window manager comes between, which would place and cover it.
        setWindowFlags(Qt::X11BypassWindowManagerHint);
        setGeometry(0, 0, 80, 60);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        if (m_isTold)
            return;
        m_isTold = true;
        const QPoint middle = mapToGlobal(rect().center());
        std::cout << middle.x() << ' ' << middle.y() << std::endl;
    }

    void mousePressEvent(QMouseEvent *) override
    {
        auto *drag = new QDrag(this);
        auto *mime = new QMimeData;
        mime->setUrls({m_url});
        drag->setMimeData(mime);
        connect(drag, &QDrag::actionChanged, this, [this](Qt::DropAction action) {
            if (action == Qt::IgnoreAction || m_isOver)
                return;
            m_isOver = true;
            std::cout << "over a target" << std::endl;
        });
        drag->exec(Qt::CopyAction);
    }

private:
    QUrl m_url;
    bool m_isTold = false;
    bool m_isOver = false;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    DragSource source(QFileInfo(QApplication::arguments().value(1)).absoluteFilePath());
    source.show();
    return QApplication::exec();
}
