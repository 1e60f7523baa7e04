#include "model/DemoDocument.h"

#include "model/ProjectFile.h"
#include "support/Print.h"
#include "support/Refusal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace velvane {

namespace {

class DemoDocumentFile : public testing::Test {
protected:
    QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    QString store(const char *name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return path(name);
    }

    static QByteArray load(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QStringList names() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    static QString refusal(const QString &path)
    {
        return refusalOf([&] { DemoDocument::read(path); });
    }

private:
    QTemporaryDir m_folder;
};

QByteArray newDemo()
{
    return DemoDocument::contents(DemoDocument().snapshot());
}

// While it lives, no file of this process grows beyond a few bytes: as if the disk were full.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_before{};
    void (*m_handler)(int) = nullptr;
};

} // namespace

TEST_F(DemoDocumentFile, IsReadBackAsItWasWritten)
{
    DemoDocument demo;
    demo.project().setFps(24);
    EXPECT_EQ(DemoDocument::write(demo.snapshot(), path("demo")), std::nullopt);
    const auto again = DemoDocument::read(path("demo"));
    EXPECT_EQ(again->project().steps(), demo.project().steps());
    EXPECT_EQ(again->project().fps(), 24);
    EXPECT_EQ(names(), QStringList{QStringLiteral("demo")});
}

TEST_F(DemoDocumentFile, RefusesWhatIsNotThere)
{
    EXPECT_EQ(refusal(path("nothing")), "no such file");
    EXPECT_EQ(refusal(QString()), "no such file");
    ASSERT_TRUE(QFile::link(path("nothing"), path("link")));
    EXPECT_EQ(refusal(path("link")), "no such file");
}

TEST_F(DemoDocumentFile, RefusesFoldersPipesAndDevicesWithoutOpeningThem)
{
    EXPECT_EQ(refusal(path("")), "is a folder");
    ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    EXPECT_EQ(refusal(path("pipe")), "is not a regular file");
    EXPECT_EQ(refusal(QStringLiteral("/dev/zero")), "is not a regular file");
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), path("link")));
    EXPECT_EQ(refusal(path("link")), "is not a regular file");
}

TEST_F(DemoDocumentFile, RefusesAHugeFileUnread)
{
    QFile file(path("huge"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize((qint64(1) << 30) + 1));
    EXPECT_EQ(refusal(path("huge")), "too large, 1073741825 bytes");
}

TEST_F(DemoDocumentFile, FollowsLinksWhenItReads)
{
    store("demo", newDemo());
    ASSERT_TRUE(QFile::link(QStringLiteral("demo"), path("link")));
    EXPECT_NO_THROW(DemoDocument::read(path("link")));
}

TEST_F(DemoDocumentFile, WritesThroughALinkAndKeepsIt)
{
    store("demo", "old");
    ASSERT_TRUE(QFile::link(QStringLiteral("demo"), path("middle")));
    ASSERT_TRUE(QFile::link(QStringLiteral("middle"), path("link")));
    EXPECT_EQ(DemoDocument::write(DemoDocument().snapshot(), path("link")), std::nullopt);
    EXPECT_TRUE(QFileInfo(path("link")).isSymLink());
    EXPECT_TRUE(QFileInfo(path("middle")).isSymLink());
    EXPECT_FALSE(QFileInfo(path("demo")).isSymLink());
    EXPECT_TRUE(load(path("demo")).startsWith("bplist00"));
}

TEST_F(DemoDocumentFile, WritesThroughALinkToWhatIsNotThereYet)
{
    ASSERT_TRUE(QFile::link(QStringLiteral("demo"), path("link")));
    EXPECT_EQ(DemoDocument::write(DemoDocument().snapshot(), path("link")), std::nullopt);
    EXPECT_TRUE(QFileInfo(path("link")).isSymLink());
    EXPECT_TRUE(load(path("demo")).startsWith("bplist00"));
}

TEST_F(DemoDocumentFile, KeepsTheModeOfTheOldFile)
{
    const QByteArray name = QFile::encodeName(store("demo", "old"));
    ASSERT_EQ(chmod(name.constData(), 0640), 0);
    EXPECT_EQ(DemoDocument::write(DemoDocument().snapshot(), path("demo")), std::nullopt);
    struct stat status {};
    ASSERT_EQ(stat(name.constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

TEST_F(DemoDocumentFile, WritesToNoFolderPipeOrDevice)
{
    const ProjectFile file = DemoDocument().snapshot();
    EXPECT_EQ(DemoDocument::write(file, path("")), QStringLiteral("is a folder"));
    ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    EXPECT_EQ(DemoDocument::write(file, path("pipe")), QStringLiteral("is not a regular file"));
    EXPECT_EQ(DemoDocument::write(file, QStringLiteral("/dev/null")),
              QStringLiteral("is not a regular file"));
    EXPECT_EQ(names(), QStringList{QStringLiteral("pipe")});
}

TEST_F(DemoDocumentFile, SaysWhyItCannotBeWritten)
{
    const auto reason = DemoDocument::write(DemoDocument().snapshot(), path("missing/demo"));
    EXPECT_EQ(reason, QStringLiteral("cannot be written: No such file or directory"));
}

TEST_F(DemoDocumentFile, AFullDiskLeavesTheOldFileAlone)
{
    store("demo", "old");
    ProjectFile file = DemoDocument().snapshot();
    file.recordingBookmark = QByteArray(1'000'000, 'x');
    std::optional<QString> reason;
    {
        const FullDisk full(1000);
        reason = DemoDocument::write(file, path("demo"));
    }
    EXPECT_EQ(reason, QStringLiteral("cannot be written: File too large"));
    EXPECT_EQ(load(path("demo")), "old");
    EXPECT_EQ(names(), QStringList{QStringLiteral("demo")});
}

TEST_F(DemoDocumentFile, AFullDiskIsNoticedForASmallDemoToo)
{
    store("demo", "old");
    std::optional<QString> reason;
    {
        const FullDisk full(10);
        reason = DemoDocument::write(DemoDocument().snapshot(), path("demo"));
    }
    EXPECT_EQ(reason, QStringLiteral("cannot be written: File too large"));
    EXPECT_EQ(load(path("demo")), "old");
    EXPECT_EQ(names(), QStringList{QStringLiteral("demo")});
}

TEST_F(DemoDocumentFile, WhatCouldNotBeReadAgainIsNotWritten)
{
    store("demo", "old");
    ProjectFile file = DemoDocument().snapshot();
    file.steps = QList<Step>(ProjectFile::maxSteps + 1, file.steps.constFirst());
    EXPECT_EQ(DemoDocument::write(file, path("demo")),
              QStringLiteral("cannot be written: more than 150000 steps"));
    file.steps.clear();
    file.background = QByteArray(qsizetype(192) << 20, 'x');
    const auto reason = DemoDocument::write(file, path("demo"));
    ASSERT_TRUE(reason);
    EXPECT_TRUE(reason->startsWith(QStringLiteral("cannot be written: too large, 2013")));
    EXPECT_EQ(load(path("demo")), "old");
    EXPECT_EQ(names(), QStringList{QStringLiteral("demo")});
}

TEST_F(DemoDocumentFile, AsManyStepsAsMayBeWrittenAreReadAgain)
{
    ProjectFile file = DemoDocument().snapshot();
    file.steps.clear();
    for (qsizetype i = 0; i < ProjectFile::maxSteps; ++i)
        file.steps << Step{.kind = StepKind::type,
                           .point = {double(i), 0.5},
                           .text = QString::number(i),
                           .duration = Seconds(0.1 * double(i)),
                           .recordedOffset = Seconds(double(i))};
    ASSERT_EQ(DemoDocument::write(file, path("demo")), std::nullopt);
    EXPECT_EQ(DemoDocument::readFile(path("demo")).steps, file.steps);
}

} // namespace velvane
