#include "media/RecordingWriter.h"

#include "media/MovieReader.h"

#include "support/MovieRoundTrip.h"

#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

namespace velvane {

namespace {

constexpr QSize size(32, 32);
constexpr double step = 0.25; // seconds between pictures
constexpr int pictures = 9;   // the last of them is still in the encoder

// The first pictures of a recording, as its file holds them when the writing process is killed.
class BrokenRecordingTest : public MovieRoundTrip {
protected:
    BrokenRecordingTest()
    {
        RecordingWriter writer(path(), size);
        for (int i = 0; i < pictures; ++i) {
            QImage image(size, QImage::Format_RGB32);
            image.fill(colorOf(i));
            // Something that takes some bytes.
            for (int x = 0; x < size.width(); x += 4)
                image.setPixelColor(x, x * (i + 3) % 7, Qt::white);
            writer.append({image, image.rect(), Seconds(i * step)});
        }
        QFile file(path());
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        whole = file.readAll();
        for (qsizetype at = 0; (at = whole.indexOf("moof", at)) > 0; ++at)
            fragments.push_back(at - 4);
        EXPECT_EQ(fragments.size(), size_t(pictures - 1));
    }

    static QColor colorOf(int picture)
    {
        return QColor::fromHsv(picture * 37 % 360, 200, 60 + picture * 20);
    }

    QString write(const QByteArray &bytes) const
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QFile::WriteOnly | QFile::Truncate));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return path();
    }

    /// How many whole fragments the first bytes of the file hold.
    int fragmentsIn(qsizetype bytes) const
    {
        int count = 0;
        for (size_t i = 0; i < fragments.size(); ++i)
            count += bytes >= (i + 1 < fragments.size() ? fragments[i + 1] : whole.size());
        return count;
    }

    static bool shows(MovieReader &reader, Seconds at, int picture)
    {
        const auto shown = reader.picture(at);
        if (!shown)
            return false;
        const QColor color = shown->image().pixelColor(size.width() / 2, size.height() - 8);
        const QColor expected = colorOf(picture);
        const auto isNear = [](int a, int b) { return std::abs(a - b) <= 8; };
        return isNear(color.red(), expected.red()) && isNear(color.green(), expected.green())
               && isNear(color.blue(), expected.blue());
    }

    /// It is a movie of its first pictures, each in its place, and ends with the last one's time.
    static void expectFirst(int count, const QString &movie)
    {
        const MovieOpening opening = MovieReader::open(movie);
        ASSERT_TRUE(opening.reader) << opening.error.toStdString();
        EXPECT_NEAR(opening.reader->duration().count(), count * step, 1e-3);
        EXPECT_TRUE(shows(*opening.reader, opening.reader->duration(), count - 1));
        const int before = std::max(count - 2, 0);
        EXPECT_TRUE(shows(*opening.reader, Seconds(before * step + 0.1), before));
        EXPECT_TRUE(shows(*opening.reader, Seconds(0), 0));
    }

    /// The same as another program reads it.
    static void expectFirstByProbe(int count, const QString &movie)
    {
        MovieProbe probe(movie);
        EXPECT_NEAR(double(probe.duration()) / double(probe.timeScale()), count * step, 1e-3);
        int read = 0;
        while (probe.next())
            ++read;
        EXPECT_EQ(read, count);
    }

    static QString toolsDuration(const QString &movie)
    {
        QProcess tool;
        tool.start("ffprobe",
                   {"-v", "error", "-show_entries", "format=duration", "-of", "csv=p=0", movie});
        EXPECT_TRUE(tool.waitForFinished(60'000)) << "ffprobe";
        return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
    }

    QByteArray whole;
    std::vector<qsizetype> fragments; ///< where each begins
};

} // namespace

TEST_F(BrokenRecordingTest, ItReachesToTheLastPictureGiven)
{
    expectFirst(pictures - 1, write(whole));
    expectFirstByProbe(pictures - 1, path());
    EXPECT_NEAR(toolsDuration(path()).toDouble(), (pictures - 1) * step, 1e-3);
}

TEST_F(BrokenRecordingTest, CutAtAnyByteItPlaysToTheLastWholeFragment)
{
    for (qsizetype bytes = fragments[fragments.size() - 2]; bytes <= whole.size(); ++bytes) {
        SCOPED_TRACE(bytes);
        expectFirst(fragmentsIn(bytes), write(whole.left(bytes)));
    }
}

// The head of a fragment is written after all the rest of it.
TEST_F(BrokenRecordingTest, KilledWhileItWritesItPlaysEverywhereToTheLastWholeFragment)
{
    const qsizetype last = fragments.back();
    const int count = fragmentsIn(last);
    for (qsizetype bytes = last + 8; bytes <= whole.size(); ++bytes) {
        SCOPED_TRACE(bytes);
        QByteArray written = whole.left(bytes);
        written.replace(last, 8, QByteArray(8, '\0'));
        expectFirst(count, write(written));
        expectFirstByProbe(count, path());
    }
    EXPECT_NEAR(toolsDuration(path()).toDouble(), count * step, 1e-3);
}

TEST_F(BrokenRecordingTest, RoomThatWasNeverWrittenToIsPassedOver)
{
    for (const int room : {1, 8, 4096, 100'000})
        expectFirst(pictures - 1, write(whole + QByteArray(room, '\0')));
}

TEST_F(BrokenRecordingTest, WithoutAWholeFragmentItIsNoMovie)
{
    const qsizetype end = fragments[1];
    for (qsizetype bytes = 0; bytes < end; ++bytes) {
        const MovieOpening opening = MovieReader::open(write(whole.left(bytes)));
        EXPECT_EQ(opening.reader, nullptr) << bytes;
        EXPECT_FALSE(opening.error.isEmpty()) << bytes;
    }
    expectFirst(1, write(whole.left(end)));
}

} // namespace velvane
