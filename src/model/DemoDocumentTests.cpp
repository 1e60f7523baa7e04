#include "model/DemoDocument.h"

#include "model/Picture.h"
#include "model/ProjectFile.h"
#include "support/Print.h"
#include "support/Python.h"
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

QImage picture()
{
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(qRgb(10, 20, 30));
    image.setPixel(1, 1, qRgb(200, 100, 50));
    return image;
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

TEST(DemoDocument, ANewDemoIsThatOfAnEmptyProject)
{
    const DemoDocument demo;
    ASSERT_EQ(demo.project().steps().size(), 1);
    EXPECT_EQ(demo.project().steps().constFirst().kind, StepKind::switchApp);
    EXPECT_EQ(demo.project().fps(), 60);
}

TEST(DemoDocument, WritesTheBinaryForm)
{
    EXPECT_TRUE(newDemo().startsWith("bplist00"));
}

TEST(DemoDocument, AnIndependentReaderReadsANewDemo)
{
    const QByteArray printed = pythonOutput(QStringLiteral(R"(
import plistlib, re, sys
demo = plistlib.loads(sys.stdin.buffer.read())
id = demo["steps"][0].pop("id")
print(bool(re.fullmatch("[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}", id)))
print(demo)
)"),
                                            newDemo());
    EXPECT_EQ(printed,
              "True\n{'version': 1, 'steps': [{'kind': 'switchApp', 'point': [0.0, 0.0], "
              "'text': '', 'duration': 1.0, 'pauseAfter': 0.8, 'keyCode': 0, 'modifiers': 0, "
              "'centerWindow': False, 'collapsed': False}], 'startPoint': [640.0, 400.0], "
              "'canvasSize': [1280.0, 800.0], 'fps': 60}\n");
}

TEST(DemoDocument, ReadsXmlAndBinaryAlike)
{
    const auto program = QStringLiteral(R"(
import plistlib, sys
step = {"kind": "type", "text": "né", "id": "0123ABCD-0123-4567-89AB-0123456789AB"}
demo = {"version": 1, "steps": [step], "startPoint": [1, 2.5], "canvasSize": [3, 4], "fps": 25}
sys.stdout.buffer.write(plistlib.dumps(demo, fmt=plistlib.%1))
)");
    const ProjectFile binary =
        DemoDocument::fileOf(pythonOutput(program.arg(QLatin1String("FMT_BINARY"))));
    const ProjectFile xml =
        DemoDocument::fileOf(pythonOutput(program.arg(QLatin1String("FMT_XML"))));
    EXPECT_EQ(binary.steps, xml.steps);
    EXPECT_EQ(binary.steps.constFirst().text, QStringLiteral("né"));
    EXPECT_EQ(binary.startPoint, QPointF(1, 2.5));
    EXPECT_EQ(DemoDocument::contents(binary), DemoDocument::contents(xml));
}

TEST(DemoDocument, RefusesWhatIsNoPropertyList)
{
    const auto refusal = [](const QByteArray &contents) {
        return refusalOf([&] { DemoDocument::fileOf(contents); });
    };
    EXPECT_EQ(refusal(""), "not a property list");
    EXPECT_EQ(refusal("hello"), "not a property list");
    EXPECT_EQ(refusal("{\"version\": 1}"), "not a property list");
    EXPECT_EQ(refusal("bplist"), "not a property list");
    EXPECT_EQ(refusal(QByteArray(100, '\0')), "not a property list");
    EXPECT_EQ(refusal("<html/>"),
              "damaged property list: line 1, column 7: unknown element “html”");
    EXPECT_EQ(refusal("<plist><array/></plist>"), "not a dictionary");
}

TEST(DemoDocument, RefusesEveryTruncation)
{
    ProjectFile file = DemoDocument().snapshot();
    for (const StepKind kind : allStepKinds)
        file.steps << Step::withDefaults(kind, file.canvasSize);
    file.background = Picture::encoded(picture());
    file.recordingBookmark = QByteArray(100, '\x01');
    const QByteArray whole = DemoDocument::contents(file);
    ASSERT_NO_THROW(DemoDocument::fileOf(whole));
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_THROW(DemoDocument::fileOf(whole.first(size)), DocumentError) << size;
}

TEST(DemoDocument, ABackgroundComesBackWithTheSamePixels)
{
    DemoDocument demo;
    demo.project().setBackground(picture());
    const DemoDocument again(DemoDocument::fileOf(DemoDocument::contents(demo.snapshot())));
    EXPECT_EQ(again.project().background().convertToFormat(QImage::Format_RGB32), picture());
}

TEST(DemoDocument, ABackgroundThatIsNoPictureIsLeftOut)
{
    ProjectFile file = DemoDocument().snapshot();
    file.background = QByteArray("no picture");
    const DemoDocument demo(DemoDocument::fileOf(DemoDocument::contents(file)));
    EXPECT_TRUE(demo.project().background().isNull());
    EXPECT_EQ(demo.snapshot().background, std::nullopt);
}

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

} // namespace velvane
