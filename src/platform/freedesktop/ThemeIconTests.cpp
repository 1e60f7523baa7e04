#include "platform/freedesktop/ThemeIcon.h"

#include <QBuffer>
#include <QColor>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velvane {

namespace {

QImage filled(int width, int height, Qt::GlobalColor color)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

} // namespace

TEST(ThemeIcon, APictureOfTheRightSizeIsKeptAsItIs)
{
    QImage picture = filled(32, 32, Qt::red);
    picture.setPixelColor(5, 7, Qt::green);
    const QImage icon = asIcon(picture, 2);
    EXPECT_EQ(icon.size(), QSize(32, 32));
    EXPECT_EQ(icon.devicePixelRatio(), 2);
    EXPECT_EQ(icon.pixelColor(5, 7), QColor(Qt::green));
    EXPECT_EQ(icon.pixelColor(6, 7), QColor(Qt::red));
}

TEST(ThemeIcon, AnotherShapeIsCentred)
{
    const QImage icon = asIcon(filled(64, 32, Qt::red), 1);
    EXPECT_EQ(icon.size(), QSize(16, 16));
    EXPECT_EQ(icon.pixelColor(8, 1).alpha(), 0);
    EXPECT_EQ(icon.pixelColor(8, 8), QColor(Qt::red));
    EXPECT_EQ(icon.pixelColor(8, 14).alpha(), 0);
}

TEST(ThemeIcon, AFractionalScaleGivesWholePixels)
{
    EXPECT_EQ(asIcon(filled(48, 48, Qt::red), 1.5).size(), QSize(24, 24));
}

TEST(ThemeIcon, NothingGivesNothing)
{
    EXPECT_TRUE(asIcon({}, 1).isNull());
    EXPECT_TRUE(themeIcon("", {}, 1).isNull());
    EXPECT_TRUE(themeIcon("no-theme-has-this-name", {}, 1).isNull());
    EXPECT_TRUE(themeIcon("/nowhere/at/all.png", {}, 1).isNull());
}

TEST(ThemeIcon, AnAbsolutePathIsRead)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("icon.png");
    ASSERT_TRUE(filled(48, 48, Qt::blue).save(path));
    EXPECT_EQ(themeIcon(path, {}, 1).pixelColor(8, 8), QColor(Qt::blue));
}

TEST(ThemeIcon, APipeIsNoPictureWhateverComesOutOfIt)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("icon.png");
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    ASSERT_TRUE(filled(16, 16, Qt::blue).save(&buffer, "PNG"));
    // Also for reading, so that nobody waits for a reader.
    const int pipe = ::open(QFile::encodeName(path).constData(), O_RDWR);
    ASSERT_EQ(::write(pipe, bytes.constData(), bytes.size()), bytes.size());
    EXPECT_TRUE(themeIcon(path, {}, 1).isNull());
    ::close(pipe);
}

TEST(ThemeIcon, ANameOutsideTheThemeIsLookedForAmongThePixmaps)
{
    const QTemporaryDir data;
    ASSERT_TRUE(QDir(data.path()).mkdir("pixmaps"));
    ASSERT_TRUE(filled(16, 16, Qt::blue).save(data.filePath("pixmaps/velvane-test.png")));
    const QStringList folders{"/nowhere", data.path()};
    EXPECT_EQ(themeIcon("velvane-test", folders, 1).pixelColor(8, 8), QColor(Qt::blue));
    EXPECT_EQ(themeIcon("velvane-test.png", folders, 1).pixelColor(8, 8), QColor(Qt::blue));
}

TEST(ThemeIcon, AVectorPictureIsDrawnAtTheSizeWanted)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("icon.svg"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("<svg xmlns='http://www.w3.org/2000/svg' width='4' height='4'>"
               "<rect x='0' width='2' height='4' fill='red'/>"
               "<rect x='2' width='2' height='4' fill='blue'/></svg>");
    file.close();
    const QImage icon = themeIcon(file.fileName(), {}, 2);
    ASSERT_EQ(icon.size(), QSize(32, 32));
    EXPECT_EQ(icon.pixelColor(15, 16), QColor(Qt::red)) << "no blur from enlarging";
    EXPECT_EQ(icon.pixelColor(16, 16), QColor(Qt::blue));
}

TEST(ThemeIcon, AFileThatIsNoPictureGivesNothing)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("icon.png"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("not a picture");
    file.close();
    EXPECT_TRUE(themeIcon(file.fileName(), {}, 1).isNull());
}

} // namespace velvane
