#include "model/KeptSession.h"

#include "model/DemoDocument.h"
#include "model/DocumentError.h"
#include "support/FileSizeLimit.h"
#include "support/Print.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velvane {

namespace {

KeptDemo demo(const QString &title, int fps = 60)
{
    static qint64 moment = 0; // milliseconds; each is kept later than the one before
    ProjectFile file = DemoDocument().snapshot();
    file.fps = fps;
    return {.id = QUuid::createUuid(),
            .path = "/demos/" + title + ".velvane",
            .title = title,
            .kept = QDateTime::fromMSecsSinceEpoch(++moment),
            .stamp = FileStamp{1, ~quint64(0), 3, -4},
            .demo = file};
}

struct KeptSessionTest : testing::Test {
    QString root() const { return folder.filePath("state/sessions"); }
    std::vector<KeptSession::Ptr> left() const { return KeptSession::left(root()); }
    QStringList onDisk() const
    {
        return QDir(root()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    static QStringList titles(const KeptSession &session)
    {
        QStringList all;
        const QList<KeptDemo> demos = session.demos();
        for (const KeptDemo &kept : demos)
            all.append(kept.title);
        return all;
    }
    /// Runs work in another process that ends without clearing up, as if killed.
    static void inKilledProcess(const std::function<void()> &work)
    {
        const pid_t child = fork();
        if (child == 0) {
            work();
            _exit(0);
        }
        int status = -1;
        waitpid(child, &status, 0);
        ASSERT_EQ(status, 0);
    }
    /// Another process keeps these and is killed.
    void crashWith(const QList<KeptDemo> &demos, bool hasEnded = false) const
    {
        inKilledProcess([&] {
            auto *session = new KeptSession(root());
            for (const KeptDemo &kept : demos)
                session->keep(kept, 1);
            session->setEnded(hasEnded);
        });
    }

    QTemporaryDir folder;
};

} // namespace

TEST(KeptDemo, IsReadBackAsItWasWritten)
{
    const KeptDemo written = demo("one", 24);
    const KeptDemo read = KeptDemo::from(written.contents());
    EXPECT_EQ(read.id, written.id);
    EXPECT_EQ(read.path, written.path);
    EXPECT_EQ(read.title, written.title);
    EXPECT_EQ(read.kept.toMSecsSinceEpoch(), written.kept.toMSecsSinceEpoch());
    EXPECT_EQ(read.stamp, written.stamp);
    ASSERT_TRUE(read.demo);
    EXPECT_EQ(DemoDocument::contents(*read.demo), DemoDocument::contents(*written.demo));
}

TEST(KeptDemo, WithoutChangesOrFileItSaysSo)
{
    KeptDemo written = demo("one");
    written.demo.reset();
    written.stamp.reset();
    written.path.clear();
    const KeptDemo read = KeptDemo::from(written.contents());
    EXPECT_FALSE(read.demo);
    EXPECT_FALSE(read.stamp);
    EXPECT_EQ(read.path, QString());
}

TEST(KeptDemo, WhatIsNoneIsRefused)
{
    for (const QByteArray &bytes : {QByteArray(), QByteArray("no"), QByteArray("bplist00"),
                                    DemoDocument::contents(DemoDocument().snapshot())})
        EXPECT_THROW(KeptDemo::from(bytes), DocumentError);
}

TEST(KeptDemo, EveryTruncationIsRefused)
{
    const QByteArray whole = demo("one").contents();
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_THROW(KeptDemo::from(whole.first(size)), DocumentError) << size;
}

TEST_F(KeptSessionTest, ASessionThatKeptNothingLeavesNothing)
{
    {
        const KeptSession session(root());
    }
    EXPECT_FALSE(QFile::exists(root()));
}

TEST_F(KeptSessionTest, WhatIsForgottenLeavesNothing)
{
    {
        KeptSession session(root());
        const KeptDemo kept = demo("one");
        EXPECT_FALSE(session.keep(kept, 1));
        EXPECT_EQ(titles(session), QStringList{"one"});
        session.forget(kept.id);
        EXPECT_TRUE(titles(session).isEmpty());
    }
    EXPECT_TRUE(onDisk().isEmpty());
}

TEST_F(KeptSessionTest, WhatARunningProcessKeepsIsItsOwn)
{
    KeptSession session(root());
    session.keep(demo("one"), 1);
    EXPECT_TRUE(left().empty());
}

TEST_F(KeptSessionTest, WhatAKilledProcessKeptIsFound)
{
    crashWith({demo("one"), demo("two")});
    const auto found = left();
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(titles(*found[0]), (QStringList{"one", "two"}));
    EXPECT_FALSE(found[0]->hasEnded());
}

TEST_F(KeptSessionTest, OnlyOneProcessFindsIt)
{
    crashWith({demo("one")});
    auto first = left();
    EXPECT_EQ(first.size(), 1u);
    EXPECT_TRUE(left().empty());
    first.clear();
    EXPECT_EQ(left().size(), 1u);
}

TEST_F(KeptSessionTest, AnOrderlyEndIsToldFromACrash)
{
    crashWith({demo("one")}, true);
    ASSERT_EQ(left().size(), 1u);
    EXPECT_TRUE(left()[0]->hasEnded());
}

TEST_F(KeptSessionTest, WhatIsTakenOverIsKeptHereAndThereNoMore)
{
    const KeptDemo kept = demo("one");
    crashWith({kept});
    KeptSession session(root());
    {
        const auto found = left();
        EXPECT_TRUE(session.take(kept.id, *found[0]));
        EXPECT_TRUE(titles(*found[0]).isEmpty());
    }
    EXPECT_EQ(titles(session), QStringList{"one"});
    EXPECT_TRUE(left().empty());
    EXPECT_EQ(onDisk().size(), 1);
}

TEST_F(KeptSessionTest, AnOlderStateNeverReplacesANewerOne)
{
    KeptSession session(root());
    KeptDemo kept = demo("old");
    const KeptDemo old = kept;
    kept.title = "new";
    session.keep(kept, 2);
    session.keep(old, 1);
    EXPECT_EQ(titles(session), QStringList{"new"});
    session.forget(kept.id);
    session.keep(kept, 3);
    EXPECT_TRUE(titles(session).isEmpty()) << "what was on its way comes too late";
}

TEST_F(KeptSessionTest, WhateverIsKeptOfADemoIsOneFile)
{
    KeptSession session(root());
    const KeptDemo kept = demo("one");
    for (const int turn : {1, 3, 2}) // the last comes too late
        EXPECT_FALSE(session.keep(kept, turn));
    const QString path = root() + '/' + onDisk().constFirst();
    const QString name = kept.id.toString(QUuid::WithoutBraces) + ".kept";
    const auto files = [&path] { return QDir(path).entryList(QDir::Files | QDir::Hidden); };
    EXPECT_EQ(files(), (QStringList{name, "lock"}));
    session.forget(kept.id);
    EXPECT_FALSE(session.keep(kept, 4));
    EXPECT_EQ(files(), QStringList{"lock"});
}

TEST_F(KeptSessionTest, AFileThatCannotBeReadIsLeftAlone)
{
    crashWith({demo("one"), demo("two")});
    const QString session = root() + '/' + onDisk().constFirst();
    const QString name = QDir(session).entryList({"*.kept"}).constFirst();
    QFile file(session + '/' + name);
    ASSERT_TRUE(file.resize(20));
    EXPECT_EQ(titles(*left()[0]).size(), 1);
    EXPECT_EQ(file.size(), 20);
}

TEST_F(KeptSessionTest, AFullDiskLeavesWhatWasKeptBefore)
{
    KeptSession session(root());
    KeptDemo kept = demo("old");
    ASSERT_FALSE(session.keep(kept, 1));
    kept.title = QString(1000, 'x');
    {
        const FileSizeLimit limit(100);
        EXPECT_EQ(session.keep(kept, 2), "File too large");
    }
    EXPECT_EQ(titles(session), QStringList{"old"});
}

TEST_F(KeptSessionTest, AFolderThatCannotBeMadeIsAReason)
{
    QFile(folder.filePath("file")).open(QIODevice::WriteOnly);
    KeptSession session(folder.filePath("file/sessions"));
    EXPECT_TRUE(session.keep(demo("one"), 1));
}

TEST_F(KeptSessionTest, AFolderThatOthersRemoveIsMadeAgain)
{
    KeptSession session(root());
    const KeptDemo one = demo("one");
    EXPECT_FALSE(session.keep(one, 1));
    EXPECT_TRUE(session.holds(one.id));
    ASSERT_TRUE(QDir(root()).removeRecursively());
    EXPECT_FALSE(session.holds(one.id));
    EXPECT_FALSE(session.keep(one, 2));
    EXPECT_EQ(titles(session), QStringList{"one"});
    EXPECT_TRUE(left().empty()) << "it is still ours";
}

TEST_F(KeptSessionTest, NobodyElseMayReadIt)
{
    crashWith({demo("one")});
    struct stat about {};
    ASSERT_EQ(::stat(qPrintable(root() + '/' + onDisk().constFirst()), &about), 0);
    EXPECT_EQ(about.st_mode & 0777, 0700u);
}

TEST_F(KeptSessionTest, TheStateFolderIsTheDesktops)
{
    const QByteArray before = qgetenv("XDG_STATE_HOME");
    qputenv("XDG_STATE_HOME", "/state");
    EXPECT_EQ(KeptSession::standardFolder(), "/state/velvane/sessions");
    for (const char *none : {"", "relative"}) {
        qputenv("XDG_STATE_HOME", none);
        EXPECT_EQ(KeptSession::standardFolder(),
                  QDir::homePath() + "/.local/state/velvane/sessions");
    }
    qputenv("XDG_STATE_HOME", before);
}

} // namespace velvane
