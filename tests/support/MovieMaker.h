#pragma once

#include "media/H264MovieWriter.h"
#include "media/MoviePicture.h"

#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velvane {

/// Movies whose pictures tell their own number, from 0 to 99 and again, and who reads it: the left
/// half's grey is the tens, the right half's the ones.
namespace NumberedMovie {

inline int greyOf(int digit)
{
    return 25 + digit * 22;
}

inline QImage picture(int number, QSize size)
{
    const int tens = greyOf(number % 100 / 10);
    const int ones = greyOf(number % 10);
    QImage image(size, QImage::Format_RGB32);
    image.fill(qRgb(tens, tens, tens));
    QPainter painter(&image);
    painter.fillRect(QRect(size.width() / 2, 0, size.width(), size.height()),
                     QColor(ones, ones, ones));
    return image;
}

/// -1 without a picture.
inline int numberIn(const QImage &picture)
{
    if (picture.isNull())
        return -1;
    const auto digit = [&](int quarter) {
        const QRgb pixel = picture.pixel(picture.width() * quarter / 4, picture.height() / 2);
        return qRound((qGreen(pixel) - greyOf(0)) / 22.0);
    };
    return digit(1) * 10 + digit(3);
}

inline int numberIn(const std::optional<MoviePicture> &picture)
{
    return picture ? numberIn(picture->image()) : -1;
}

/// Our own: a picture at each of these times, in seconds.
inline void write(const QString &path, const std::vector<double> &times, QSize size = {64, 48})
{
    H264MovieWriter writer(path, size, 100, qint64(times.size()));
    for (size_t i = 0; i < times.size(); ++i) {
        const QImage image = picture(int(i), size);
        writer.append({image, image.rect(), Seconds(times[i])});
    }
    writer.finish();
}

/// Our own: `count` pictures at an even rate, which divides 100.
inline void write(const QString &path, int count, int rate, QSize size = {64, 48})
{
    std::vector<double> times;
    for (int i = 0; i < count; ++i)
        times.push_back(double(i) / rate);
    write(path, times, size);
}

/// Ffmpeg's source of `seconds` of such pictures, 25 a second.
inline QStringList source(double seconds, const QString &size = QStringLiteral("64x48"))
{
    const QString grey = QStringLiteral("25+22*if(lt(X,W/2),floor(mod(N,100)/10),mod(N,10))");
    return {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
            QStringLiteral("nullsrc=s=%1:r=25:d=%2,format=gbrp,geq=r='%3':g='%3':b='%3'")
                .arg(size)
                .arg(seconds)
                .arg(grey)};
}

} // namespace NumberedMovie

/// Runs ffmpeg's tool, which writes `path`.
inline void runFfmpeg(QStringList arguments, const QString &path)
{
    QProcess tool;
    arguments = QStringList{QStringLiteral("-nostdin"), QStringLiteral("-v"),
                            QStringLiteral("error"), QStringLiteral("-y")}
                + arguments + QStringList{path};
    tool.start(QStringLiteral("ffmpeg"), arguments);
    ASSERT_TRUE(tool.waitForFinished(-1));
    ASSERT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().constData();
}

/// A test with a folder for its movies.
class MovieTest : public testing::Test {
protected:
    QString file(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

} // namespace velvane
