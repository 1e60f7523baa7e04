#include "media/H264MovieWriter.h"

#include "media/MovieError.h"

#include "support/FileSizeLimit.h"
#include "support/MovieProbe.h"
#include "support/MovieScene.h"
#include "support/Print.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

#include <sys/stat.h>

namespace velvane {

namespace {

using Cause = MovieError::Cause;

std::optional<MovieError> failureOf(const std::function<void()> &work)
{
    try {
        work();
    } catch (const MovieError &error) {
        return error;
    }
    return {};
}

int pictures(const QString &path)
{
    MovieProbe probe(path);
    int count = 0;
    while (probe.next())
        ++count;
    return count;
}

// Noise, so that every frame takes room.
void appendNoise(H264MovieWriter &writer, int count)
{
    QImage image(320, 200, QImage::Format_RGB32);
    QRandomGenerator random(1);
    for (int i = 0; i < count; ++i) {
        random.fillRange(reinterpret_cast<quint32 *>(image.bits()), image.sizeInBytes() / 4);
        writer.append({image, image.rect(), Seconds(i / 60.0)});
    }
}

class H264MovieWriterFailureTest : public testing::Test {
protected:
    QString file(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(H264MovieWriterFailureTest, RefusedMovieLeavesAnExistingFileAlone)
{
    QFile existing(file("a.mp4"));
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly) && existing.write("precious") == 8);
    existing.close();
    const auto error = failureOf([&] { H264MovieWriter(file("a.mp4"), {0, 0}, 30, 1); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->cause(), Cause::size);
    EXPECT_EQ(QFileInfo(existing).size(), 8);
}

TEST_F(H264MovieWriterFailureTest, MissingFolderIsReportedInTheSystemsWords)
{
    const auto error = failureOf([&] {
        H264MovieWriter(file("no/such/folder.mp4"), {64, 48}, 30, 1);
    });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->cause(), Cause::file);
    EXPECT_EQ(error->reason(), "No such file or directory");
}

TEST_F(H264MovieWriterFailureTest, FolderIsNotAFile)
{
    const auto error = failureOf([&] { H264MovieWriter(m_folder.path(), {64, 48}, 30, 1); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->cause(), Cause::file);
    EXPECT_EQ(error->reason(), "Is a directory");
    EXPECT_TRUE(QFileInfo(m_folder.path()).isDir());
}

TEST_F(H264MovieWriterFailureTest, EmptyPathIsNotAFile)
{
    const auto error = failureOf([&] { H264MovieWriter(QString(), {64, 48}, 30, 1); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->cause(), Cause::file);
}

TEST_F(H264MovieWriterFailureTest, NamedPipeWithoutAReaderFailsAtOnce)
{
    const QString pipe = file("pipe");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_TRUE(failureOf([&] {
        H264MovieWriter writer(pipe, {320, 200}, 60, 10);
        appendNoise(writer, 10);
        writer.finish();
    }));
}

TEST_F(H264MovieWriterFailureTest, ExistingFileIsReplacedAndItsOtherNameKept)
{
    QFile existing(file("a.mp4"));
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly) && existing.write("precious") == 8);
    existing.close();
    ASSERT_EQ(::link(QFile::encodeName(file("a.mp4")).constData(),
                     QFile::encodeName(file("b.txt")).constData()),
              0);
    {
        H264MovieWriter writer(file("a.mp4"), {320, 200}, 60, 3);
        appendNoise(writer, 3);
    }
    EXPECT_EQ(pictures(file("a.mp4")), 3);
    EXPECT_EQ(QFileInfo(file("b.txt")).size(), 8);
}

TEST_F(H264MovieWriterFailureTest, LinkIsReplacedAndWhatItNamesIsKept)
{
    QFile target(file("target"));
    ASSERT_TRUE(target.open(QIODevice::WriteOnly) && target.write("precious") == 8);
    target.close();
    ASSERT_TRUE(QFile::link(file("target"), file("a.mp4")));
    {
        H264MovieWriter writer(file("a.mp4"), {320, 200}, 60, 3);
        appendNoise(writer, 3);
    }
    EXPECT_EQ(pictures(file("a.mp4")), 3);
    EXPECT_FALSE(QFileInfo(file("a.mp4")).isSymLink());
    EXPECT_EQ(QFileInfo(file("target")).size(), 8);
}

TEST_F(H264MovieWriterFailureTest, ClosingWithoutFinishKeepsTheFramesSoFar)
{
    {
        H264MovieWriter writer(file("a.mp4"), {320, 200}, 60, 1000);
        appendNoise(writer, 17);
    }
    EXPECT_EQ(pictures(file("a.mp4")), 17);
    const QList<QByteArray> boxes = movieBoxes(file("a.mp4"));
    EXPECT_LT(boxes.indexOf("moov"), boxes.indexOf("mdat"));
}

TEST_F(H264MovieWriterFailureTest, ClosingWithoutAnyFrameDoesNoHarm)
{
    {
        H264MovieWriter writer(file("a.mp4"), {320, 200}, 60, 1000);
    }
    EXPECT_TRUE(QFileInfo::exists(file("a.mp4")));
}

TEST_F(H264MovieWriterFailureTest, FinishingTwiceIsFinishingOnce)
{
    H264MovieWriter writer(file("a.mp4"), {320, 200}, 60, 3);
    appendNoise(writer, 3);
    writer.finish();
    writer.finish();
    EXPECT_EQ(pictures(file("a.mp4")), 3);
}

TEST_F(H264MovieWriterFailureTest, DeviceThatIsFullFailsWhenWriting)
{
    struct stat before {};
    ASSERT_EQ(::stat("/dev/full", &before), 0);
    const auto error = failureOf([&] {
        H264MovieWriter writer(QStringLiteral("/dev/full"), {320, 200}, 60, 30);
        appendNoise(writer, 30);
        writer.finish();
    });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->cause(), Cause::writing);
    EXPECT_EQ(error->reason(), "No space left on device");
    struct stat after {};
    ASSERT_EQ(::stat("/dev/full", &after), 0);
    EXPECT_TRUE(S_ISCHR(after.st_mode));
}

TEST_F(H264MovieWriterFailureTest, FullDiskIsReportedAndTheMoviePlays)
{
    for (const rlim_t limit : {200'000u, 333'333u, 1'000'000u}) {
        std::optional<MovieError> error;
        {
            const FileSizeLimit full(limit);
            error = failureOf([&] {
                H264MovieWriter writer(file("a.mp4"), {320, 200}, 60, 200);
                appendNoise(writer, 200);
                writer.finish();
            });
        }
        ASSERT_TRUE(error);
        EXPECT_EQ(error->cause(), Cause::writing);
        EXPECT_EQ(error->reason(), "File too large");
        EXPECT_LE(QFileInfo(file("a.mp4")).size(), qint64(limit));
        EXPECT_GT(pictures(file("a.mp4")), 0);
        EXPECT_EQ(movieBoxes(file("a.mp4")).count("moov"), 1);
    }
}

TEST_F(H264MovieWriterFailureTest, FullDiskLeavesRoomForAnIndexThatDidNotFitInFront)
{
    MovieScene scene({64, 48});
    std::optional<MovieError> error;
    {
        const FileSizeLimit full(150'000);
        error = failureOf([&] {
            H264MovieWriter writer(file("a.mp4"), scene.image().size(), 60, 0);
            for (int i = 0; i < 20'000; ++i)
                writer.append({scene.image(), scene.changeAtRandom(), Seconds(i / 60.0)});
            writer.finish();
        });
    }
    ASSERT_TRUE(error);
    EXPECT_EQ(error->cause(), Cause::writing);
    EXPECT_GT(pictures(file("a.mp4")), 512);
    EXPECT_EQ(movieBoxes(file("a.mp4")).last(), "moov");
}

TEST_F(H264MovieWriterFailureTest, DiskThatIsFullFromTheStartFailsAtTheFirstFrame)
{
    const FileSizeLimit full(1000);
    H264MovieWriter writer(file("a.mp4"), {320, 200}, 60, 200);
    const auto error = failureOf([&] { appendNoise(writer, 1); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->cause(), Cause::writing);
}

TEST_F(H264MovieWriterFailureTest, FinishAfterAFailureReportsItAgain)
{
    const FileSizeLimit full(200'000);
    H264MovieWriter writer(file("a.mp4"), {320, 200}, 60, 200);
    ASSERT_TRUE(failureOf([&] { appendNoise(writer, 200); }));
    const auto error = failureOf([&] { writer.finish(); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->reason(), "File too large");
    EXPECT_GT(pictures(file("a.mp4")), 0);
}

} // namespace velvane
