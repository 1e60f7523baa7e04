#include "editor/PictureDrop.h"

#include "support/CanvasStage.h"
#include "support/Pixels.h"
#include "support/Print.h"

#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>

#include <gtest/gtest.h>

namespace velvane {

TEST(PictureDrop, DroppedPictureFilesAreReported)
{
    CanvasStage stage;
    const QSignalSpy files(&stage.canvas.drop(), &PictureDrop::fileDropped);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/home/me/notes.txt"),
                  QUrl::fromLocalFile("/home/me/screen shot.PNG")});
    QDragEnterEvent enter({500, 300}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&stage.canvas, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({500, 300}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&stage.canvas, &drop);
    ASSERT_EQ(files.size(), 1);
    EXPECT_EQ(files[0][0].toString(), "/home/me/screen shot.PNG");
}

TEST(PictureDrop, DroppedPixelsAreReported)
{
    CanvasStage stage;
    const QSignalSpy pictures(&stage.canvas.drop(), &PictureDrop::pictureDropped);
    QMimeData data;
    data.setImageData(blank({8, 6}, Qt::red));
    QDragEnterEvent enter({500, 300}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&stage.canvas, &enter);
    QDropEvent drop({500, 300}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&stage.canvas, &drop);
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_EQ(pictures[0][0].value<QImage>().size(), QSize(8, 6));
}

TEST(PictureDrop, OtherFilesAreNotTaken)
{
    CanvasStage stage;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/home/me/tour.velvane")});
    QDragEnterEvent enter({500, 300}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&stage.canvas, &enter);
    EXPECT_FALSE(enter.isAccepted());
}

} // namespace velvane
