#include "media/RecordingWriter.h"

#include "media/MovieError.h"
#include "media/MovieReader.h"

#include "support/FileSizeLimit.h"
#include "support/MovieRoundTrip.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace velvane {

namespace {

class RecordingWriterTest : public MovieRoundTrip {
protected:
    /// Records a scene that changes at random at these times, seconds, and notes what it showed.
    void record(RecordingWriter &writer, const std::vector<double> &times)
    {
        for (const double time : times) {
            const QRegion changed = scene.changeAtRandom();
            writer.append({scene.image(), changed, Seconds(time)});
            luma.push_back(lumaOf(scene.image()));
        }
    }
    /// What the movie holds up to where it breaks off.
    MovieResult read() const { return compare(luma); }
    std::vector<double> secondsOf(const MovieResult &result) const
    {
        std::vector<double> seconds;
        for (const qint64 tick : result.ticks)
            seconds.push_back(double(tick) / double(MovieProbe(path()).timeScale()));
        return seconds;
    }
    void expectTimes(const MovieResult &result, const std::vector<double> &times) const
    {
        const std::vector<double> seconds = secondsOf(result);
        ASSERT_EQ(seconds.size(), times.size());
        for (size_t i = 0; i < times.size(); ++i)
            EXPECT_NEAR(seconds[i], times[i], 1e-4) << i;
    }
    double duration() const
    {
        const MovieOpening opening = MovieReader::open(path());
        EXPECT_TRUE(opening.reader) << opening.error.toStdString();
        return opening.reader ? opening.reader->duration().count() : 0;
    }
    static std::vector<double> evenTimes(int count, double step)
    {
        std::vector<double> times;
        for (int i = 0; i < count; ++i)
            times.push_back(i * step);
        return times;
    }
    template <typename Work>
    static QString failureOf(Work work)
    {
        try {
            work();
        } catch (const MovieError &error) {
            return error.reason();
        }
        return {};
    }
    const QList<QByteArray> plain{"ftyp", "mdat", "moov"};

    MovieScene scene{{320, 200}};
    std::vector<QByteArray> luma;
};

} // namespace

TEST_F(RecordingWriterTest, FinishedItIsAPlainMovieOfAllPicturesAtTheirTimes)
{
    const std::vector<double> times{0, 0.0161, 0.0333, 0.9, 1.8, 1.8167, 2.5, 7.25};
    RecordingWriter writer(path(), {320, 200});
    record(writer, times);
    writer.finish();
    EXPECT_EQ(movieBoxes(path()), plain);
    const MovieResult result = read();
    expectGood(result.quality);
    expectTimes(result, times);
    EXPECT_NEAR(duration(), 7.25 + 1 / 60.0, 1e-3);
}

TEST_F(RecordingWriterTest, PicturesAtTheFullRateAreRight)
{
    const std::vector<double> times = evenTimes(150, 1 / 60.0);
    RecordingWriter writer(path(), {320, 200});
    record(writer, times);
    writer.finish();
    const MovieResult result = read();
    expectGood(result.quality);
    expectTimes(result, times);
}

TEST_F(RecordingWriterTest, WhileItIsWrittenItPlaysUpToTheLastPicture)
{
    const std::vector<double> times{0, 0.5, 0.6, 1.5, 2.4, 3.3};
    RecordingWriter writer(path(), {320, 200});
    record(writer, times);
    const MovieResult result = read();
    expectGood(result.quality);
    // The last one in the file shows until the one that is not.
    expectTimes(result, {times.begin(), times.end() - 1});
    writer.finish();
    expectTimes(read(), times);
}

TEST_F(RecordingWriterTest, BetweenTheIndexAndTheLastStepItPlaysToo)
{
    const std::vector<double> times = evenTimes(30, 0.1);
    {
        RecordingWriter writer(path(), {320, 200});
        record(writer, times);
    }
    QFile file(path());
    ASSERT_TRUE(file.open(QFile::ReadWrite));
    QByteArray bytes = file.readAll();
    const qsizetype box = bytes.indexOf("mdat") - 4;
    bytes.replace(box, 16,
                  QByteArray("\0\0\0\x10"
                             "free"
                             "\0\0\0\0\0\0\0\0",
                             16));
    file.seek(0);
    file.write(bytes);
    file.close();
    ASSERT_EQ(movieBoxes(path()).count("moov"), 2);
    expectTimes(read(), times);
    EXPECT_NEAR(duration(), 3, 0.1);
}

TEST_F(RecordingWriterTest, KeysComeWithTheFirstChangeASecondOrMoreAfterTheLast)
{
    RecordingWriter writer(path(), {320, 200});
    const auto add = [&](double time, bool changes) {
        const QRegion changed =
            changes ? scene.fill(QRect(20, 20, 50, 50), QRgb(time * 1000)) : QRegion();
        writer.append({scene.image(), changed, Seconds(time)});
        luma.push_back(lumaOf(scene.image()));
    };
    add(0, true);
    add(0.9, true);
    add(0.99, false);
    add(1.5, false);
    add(2.4, false);
    add(2.5, true); // key: the first change
    add(3.4, true);
    add(3.5, true); // key: a second
    add(3.6, true);
    writer.finish();
    const MovieResult result = read();
    EXPECT_EQ(result.keys, (std::vector<int>{0, 5, 7}));
    expectGood(result.quality);
}

TEST_F(RecordingWriterTest, ANullImageRepeatsThePictureBefore)
{
    RecordingWriter writer(path(), {320, 200});
    record(writer, {0, 0.1});
    writer.append({{}, {}, 5s});
    luma.push_back(luma.back());
    writer.finish();
    const MovieResult result = read();
    expectGood(result.quality);
    expectTimes(result, {0, 0.1, 5});
}

TEST_F(RecordingWriterTest, AStillScreenTakesNearlyNoRoom)
{
    RecordingWriter writer(path(), {320, 200});
    record(writer, {0});
    const qint64 before = QFileInfo(path()).size();
    for (int i = 1; i <= 60; ++i)
        writer.append({scene.image(), {}, Seconds(i * 0.9)});
    writer.finish();
    const qint64 first = 30'000;
    EXPECT_LT(QFileInfo(path()).size() - before, first + 60 * 300);
}

TEST_F(RecordingWriterTest, TimesThatDoNotGrowCountAsJustAfter)
{
    RecordingWriter writer(path(), {320, 200});
    record(writer, {3, 2, 2, 0.5});
    writer.finish();
    const double tick = 1 / 60'000.0;
    expectTimes(read(), {0, 2, 2 + tick, 2 + 2 * tick});
}

TEST_F(RecordingWriterTest, AFileThatExistsStays)
{
    QFile existing(path());
    ASSERT_TRUE(existing.open(QFile::WriteOnly) && existing.write("precious") == 8);
    existing.close();
    EXPECT_EQ(failureOf([&] { RecordingWriter(path(), {320, 200}); }), "File exists");
    EXPECT_EQ(QFileInfo(path()).size(), 8);
}

TEST_F(RecordingWriterTest, AnImpossibleSizeTouchesNoFile)
{
    EXPECT_NE(failureOf([&] { RecordingWriter(path(), {20'000, 2}); }), "");
    EXPECT_FALSE(QFileInfo::exists(path()));
}

TEST_F(RecordingWriterTest, APictureOfAnotherSizeIsRefused)
{
    RecordingWriter writer(path(), {320, 200});
    record(writer, {0});
    const QImage other(322, 200, QImage::Format_RGB32);
    EXPECT_NE(failureOf([&] { writer.append({other, other.rect(), 1s}); }), "");
    EXPECT_NE(failureOf([&] { writer.append({other, {}, 2s}); }), "");
}

TEST_F(RecordingWriterTest, FirstPictureMustBeOne)
{
    RecordingWriter writer(path(), {320, 200});
    EXPECT_NE(failureOf([&] { writer.append({{}, {}, 0s}); }), "");
}

TEST_F(RecordingWriterTest, WhenTheDiskIsFullWhatWasWrittenPlays)
{
    for (const rlim_t limit : {200'000u, 333'333u}) {
        QFile::remove(path());
        luma.clear();
        QString failure;
        {
            const FileSizeLimit full(limit);
            RecordingWriter writer(path(), {320, 200});
            QRandomGenerator random(1);
            failure = failureOf([&] {
                for (int i = 0; i < 200; ++i) {
                    QImage noise(320, 200, QImage::Format_RGB32);
                    random.fillRange(reinterpret_cast<quint32 *>(noise.bits()),
                                     noise.sizeInBytes() / 4);
                    luma.push_back(lumaOf(noise));
                    writer.append({noise, noise.rect(), Seconds(i / 60.0)});
                }
            });
            EXPECT_EQ(failureOf([&] { writer.finish(); }), failure);
        }
        EXPECT_EQ(failure, "File too large");
        EXPECT_LE(QFileInfo(path()).size(), qint64(limit));
        const MovieResult result = read();
        EXPECT_GT(result.ticks.size(), 1U);
        EXPECT_GE(result.quality.overall(), 30);
        EXPECT_GT(duration(), 0);
    }
}

TEST_F(RecordingWriterTest, WithoutRoomForTheIndexItStaysAsItWasWritten)
{
    const std::vector<double> times = evenTimes(300, 0.1);
    {
        RecordingWriter writer(path(), {320, 200});
        record(writer, times);
        const FileSizeLimit full(rlim_t(QFileInfo(path()).size()) + 2000);
        EXPECT_EQ(failureOf([&] { writer.finish(); }), "");
    }
    EXPECT_GT(movieBoxes(path()).count("moof"), 290);
    EXPECT_EQ(movieBoxes(path()).count("moov"), 1);
    EXPECT_GE(read().ticks.size(), 299U);
    expectGood(read().quality);
}

TEST_F(RecordingWriterTest, WithoutAnyPictureClosingDoesNoHarm)
{
    RecordingWriter writer(path(), {320, 200});
    writer.finish();
    EXPECT_TRUE(QFileInfo::exists(path()));
}

} // namespace velvane
