#include "media/MovieReader.h"

#include "support/MovieMaker.h"
#include "support/Print.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QtEndian>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace velvane {

namespace {

class BadMovieTest : public MovieTest {
protected:
    /// Why the file is no movie; a failure when it is one.
    static QString refusal(const QString &path)
    {
        const MovieOpening opening = MovieReader::open(path);
        EXPECT_EQ(opening.reader, nullptr) << path.toStdString();
        EXPECT_FALSE(opening.error.isEmpty());
        return opening.error;
    }

    QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile out(file(name));
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
        return file(name);
    }

    static QByteArray bytesOf(const QString &path)
    {
        QFile in(path);
        EXPECT_TRUE(in.open(QIODevice::ReadOnly));
        return in.readAll();
    }

    /// Opens what may be a movie and looks at it here and there: it must only not do harm.
    static void visit(const QString &path)
    {
        const MovieOpening opening = MovieReader::open(path);
        EXPECT_EQ(opening.reader == nullptr, !opening.error.isEmpty());
        if (!opening.reader)
            return;
        for (const double part : {0.5, 0.1, 0.9, 1.0, 0.0}) {
            const auto picture = opening.reader->picture(opening.reader->duration() * part);
            EXPECT_TRUE(!picture || picture->image().size() == opening.reader->size());
        }
    }
};

} // namespace

TEST_F(BadMovieTest, AMissingFileIsRefused)
{
    EXPECT_EQ(refusal(file("none.mp4")), qt_error_string(ENOENT));
}

TEST_F(BadMovieTest, FoldersDevicesAndPipesAreRefused)
{
    refusal(QDir::tempPath());
    refusal("/dev/zero");
    ASSERT_EQ(mkfifo(QFile::encodeName(file("pipe.mp4")).constData(), 0600), 0);
    refusal(file("pipe.mp4"));
}

TEST_F(BadMovieTest, AddressesAndPlaylistsAreNotOpened)
{
    NumberedMovie::write(file("real.mp4"), 5, 50);
    refusal("http://127.0.0.1:9/movie.mp4");
    refusal("file:" + file("real.mp4"));
    refusal("concat:" + file("real.mp4"));
    refusal(write("list.mp4", "#EXTM3U\n#EXTINF:1,\nreal.mp4\n#EXT-X-ENDLIST\n"));
    refusal(write("list.mov", "ffconcat version 1.0\nfile real.mp4\n"));
}

TEST_F(BadMovieTest, ForeignFilesAreRefused)
{
    refusal(write("empty.mp4", {}));
    refusal(write("text.mp4", "This is no movie.\n"));
    refusal(write("zeros.mkv", QByteArray(100'000, '\0')));
    runFfmpeg({"-f", "lavfi", "-i", "color=red:s=64x48:d=1", "-f", "avi"}, file("other.mp4"));
    refusal(file("other.mp4"));
}

TEST_F(BadMovieTest, AMovieWithoutPicturesIsRefused)
{
    runFfmpeg({"-f", "lavfi", "-i", "sine=d=1"}, file("sound.mp4"));
    EXPECT_EQ(refusal(file("sound.mp4")), "The file holds no pictures.");
}

TEST_F(BadMovieTest, ACoverPictureIsNoMovie)
{
    runFfmpeg({"-f", "lavfi", "-i", "sine=d=1", "-f", "lavfi", "-i", "color=red:s=64x48:d=0.04",
               "-map", "0", "-map", "1", "-c:v", "png", "-frames:v", "1", "-disposition:v",
               "attached_pic"},
              file("cover.mp4"));
    EXPECT_EQ(refusal(file("cover.mp4")), "The file holds no pictures.");
}

TEST_F(BadMovieTest, AnEncryptedMovieIsRefused)
{
    const QString key = QString(32, '1');
    runFfmpeg(NumberedMovie::source(1)
                  + QStringList{"-c:v", "libx264", "-pix_fmt", "yuv420p", "-encryption_scheme",
                                "cenc-aes-ctr", "-encryption_key", key, "-encryption_kid", key},
              file("secret.mp4"));
    refusal(file("secret.mp4"));
}

TEST_F(BadMovieTest, AnAbsurdSizeIsRefused)
{
    NumberedMovie::write(file("real.mp4"), 5, 50);
    QByteArray bytes = bytesOf(file("real.mp4"));
    const qsizetype box = bytes.indexOf("avc1", bytes.indexOf("stsd"));
    ASSERT_GT(box, 0);
    bytes.replace(box + 28, 4, "\xff\xff\xff\xff"); // width and height
    visit(write("huge.mp4", bytes));
}

TEST_F(BadMovieTest, AMovieCutOffAnywhereDoesNoHarm)
{
    NumberedMovie::write(file("whole.mp4"), 60, 50);
    const QByteArray whole = bytesOf(file("whole.mp4"));
    for (qsizetype length = 0; length < whole.size(); length += whole.size() / 40)
        visit(write("cut.mp4", whole.left(length)));
}

TEST_F(BadMovieTest, APlainMovieWithoutItsEndShowsWhatItHas)
{
    NumberedMovie::write(file("whole.mp4"), 60, 50);
    const QByteArray whole = bytesOf(file("whole.mp4"));
    const MovieOpening opening =
        MovieReader::open(write("cut.mp4", whole.left(whole.size() * 9 / 10)));
    ASSERT_TRUE(opening.reader);
    EXPECT_EQ(NumberedMovie::numberIn(opening.reader->picture(Seconds(0.21))), 10);
    EXPECT_GT(NumberedMovie::numberIn(opening.reader->picture(Seconds(1.2))), 10);
}

TEST_F(BadMovieTest, PacketsThatHoldNoPictureEndAndCanBeLeft)
{
    NumberedMovie::write(file("real.mp4"), 200, 50);
    QByteArray bytes = bytesOf(file("real.mp4"));
    const qsizetype pictures = bytes.indexOf("mdat") + 4;
    const qsizetype end = pictures - 8 + qFromBigEndian<quint32>(bytes.constData() + pictures - 8);
    ASSERT_LE(end, bytes.size());
    std::fill(bytes.begin() + pictures, bytes.begin() + end, '\0');

    const QString blank = write("blank.mp4", bytes);

    EXPECT_EQ(refusal(blank), "The movie has no picture that can be decoded.");
    const auto askedUntil = [&blank](int patience) {
        int asked = 0;
        const auto check = [&asked, patience] { return ++asked > patience; };
        EXPECT_FALSE(MovieReader::open(blank, check).reader);
        return asked;
    };
    // However many there are, somebody who does not want it any more need not wait.
    const int untilTheEnd = askedUntil(1'000'000);
    EXPECT_GT(untilTheEnd, 200) << "asked for each";
    EXPECT_LT(askedUntil(100), 120);
}

TEST_F(BadMovieTest, DamagedBytesDoNoHarm)
{
    NumberedMovie::write(file("whole.mp4"), 40, 50);
    runFfmpeg(NumberedMovie::source(1) + QStringList{"-c:v", "libvpx", "-deadline", "realtime"},
              file("whole.webm"));
    QRandomGenerator random(7);
    for (const QString &name : {QStringLiteral("whole.mp4"), QStringLiteral("whole.webm")}) {
        const QByteArray whole = bytesOf(file(name));
        for (int i = 0; i < 150; ++i) {
            QByteArray damaged = whole;
            for (int n = random.bounded(1, 12); n > 0; --n)
                damaged[random.bounded(damaged.size())] = char(random.generate());
            visit(write("damaged-" + name, damaged));
        }
    }
}

} // namespace velvane
