#include "app/Autosave.h"

#include "app/DocumentsFixture.h"
#include "base/KeyCode.h"
#include "support/TemporaryHome.h"

#include <QDir>
#include <QTimer>

namespace velvane {

namespace {

struct AutosaveTest : DocumentsFixture {
    AutosaveTest() { start(); }

    QString root() const { return file("kept"); }
    void start() { autosave = std::make_unique<Autosave>(documents, root()); }
    /// Ends as a crash does: windows and all go, what is kept stays.
    void crash()
    {
        autosave.reset();
        const auto windows = documents.windows();
        for (EditorWindow *window : windows)
            delete window;
    }
    /// Ticks, and waits until all is on the disk.
    void tick()
    {
        QEventLoop loop;
        bool isAtRest = false;
        QObject::connect(autosave.get(), &Autosave::atRest, &loop, [&] {
            isAtRest = true;
            loop.quit();
        });
        constexpr int longEnough = 20'000; // milliseconds
        QTimer::singleShot(longEnough, &loop, &QEventLoop::quit);
        autosave->tick();
        // What is written quickly may have been written by now.
        if (!isAtRest)
            loop.exec();
        EXPECT_TRUE(isAtRest) << "nothing was written";
    }
    /// The names of the files in which demos are kept.
    QStringList kept() const
    {
        QStringList found;
        const QStringList sessions = QDir(root()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &session : sessions)
            found += QDir(root() + '/' + session).entryList({"*.kept"});
        return found;
    }
    QList<KeptDemo> left() const
    {
        QList<KeptDemo> all;
        for (const auto &session : KeptSession::left(root()))
            all += session->demos();
        return all;
    }

    /// Records a click into the demo, and calls this before the recording ends.
    void recordUntil(EditorWindow *window, const std::function<void()> &call)
    {
        static constexpr QPointF place(640, 400);
        RecordActionsController &recording = window->content().recordActions();
        const auto recorded = recording.record();
        desktop.clock().at(3s, [this] {
            desktop.tap().hear({.kind = InputEvent::Kind::leftMouseDown, .point = place});
            desktop.tap().hear({.kind = InputEvent::Kind::leftMouseUp, .point = place});
        });
        desktop.clock().at(4s, call);
        desktop.clock().at(5s, [this] { desktop.press(KeyCode::escape); });
        QEventLoop loop;
        QObject::connect(&recording, &RecordActionsController::finished, &loop, &QEventLoop::quit,
                         Qt::QueuedConnection);
        loop.exec();
    }

    TemporaryHome home;
    std::unique_ptr<Autosave> autosave;
};

} // namespace

TEST_F(AutosaveTest, UnsavedChangesAreKeptOutsideTheFile)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    edit(window);
    const QByteArray before = bytesOf(file("a.velvane"));
    tick();
    EXPECT_EQ(bytesOf(file("a.velvane")), before);
    crash();
    const QList<KeptDemo> all = left();
    ASSERT_EQ(all.size(), 1);
    EXPECT_EQ(all[0].path, file("a.velvane"));
    EXPECT_EQ(all[0].title, "a");
    ASSERT_TRUE(all[0].demo);
    EXPECT_EQ(all[0].demo->steps.size(), 2);
}

TEST_F(AutosaveTest, WithoutChangesNothingIsKept)
{
    documents.open(demo("a.velvane"), nullptr);
    documents.newDemo();
    autosave->tick();
    settle();
    EXPECT_FALSE(QFile::exists(root()));
}

TEST_F(AutosaveTest, OnlyWhatHasChangedIsWrittenAgain)
{
    EditorWindow *window = documents.newDemo();
    edit(window);
    tick();
    const QString path = QDir(root()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).constFirst();
    const auto stamp = [&] {
        return FileStamp::of(root() + '/' + path + '/' + kept().constFirst());
    };
    const auto first = stamp();
    bool hasWritten = false;
    QObject::connect(autosave.get(), &Autosave::atRest, window, [&] { hasWritten = true; });
    autosave->tick();
    settle();
    EXPECT_FALSE(hasWritten);
    EXPECT_EQ(stamp(), first);
    edit(window);
    tick();
    EXPECT_NE(stamp(), first);
    EXPECT_EQ(kept().size(), 1) << "each demo is kept once";
}

TEST_F(AutosaveTest, WhatIsSavedIsKeptNoLonger)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    edit(window);
    tick();
    EXPECT_EQ(kept().size(), 1);
    window->save();
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(AutosaveTest, WhatIsUndoneIsKeptNoLonger)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    edit(window);
    tick();
    project(window).undoManager()->undo();
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(AutosaveTest, ASaveOvertakesWhatIsOnItsWayToTheDisk)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    edit(window);
    QEventLoop loop;
    QObject::connect(autosave.get(), &Autosave::atRest, &loop, &QEventLoop::quit);
    autosave->tick();
    window->save();
    loop.exec();
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(AutosaveTest, ClosingWithoutSavingLeavesNothing)
{
    EditorWindow *window = documents.newDemo();
    edit(window);
    tick();
    window->close();
    answer(window, "Don't Save");
    settle();
    EXPECT_TRUE(documents.windows().isEmpty());
    autosave.reset();
    EXPECT_TRUE(QDir(root()).isEmpty());
}

TEST_F(AutosaveTest, BeforeTheEndAllOpenDemosAreKept)
{
    documents.open(demo("a.velvane"), nullptr);
    edit(documents.open(demo("b.velvane"), nullptr));
    edit(documents.newDemo());
    documents.newDemo();
    EXPECT_TRUE(autosave->keepAll());
    documents.quitKept();
    settle();
    EXPECT_TRUE(documents.windows().isEmpty());
    autosave.reset();
    const auto sessions = KeptSession::left(root());
    ASSERT_EQ(sessions.size(), 1u);
    EXPECT_TRUE(sessions[0]->hasEnded());
    QStringList titles;
    for (const KeptDemo &kept : sessions[0]->demos())
        titles.append(kept.title + (kept.demo ? "*" : ""));
    EXPECT_EQ(titles, (QStringList{"a", "b*", "Untitled*"}));
}

TEST_F(AutosaveTest, AnEndThatDoesNotComeIsNoEnd)
{
    documents.open(demo("a.velvane"), nullptr);
    edit(documents.newDemo());
    autosave->keepAll();
    EXPECT_EQ(kept().size(), 2);
    autosave->tick();
    EXPECT_FALSE(autosave->hasEnded());
    EXPECT_EQ(kept().size(), 1);
    crash();
    EXPECT_FALSE(KeptSession::left(root())[0]->hasEnded());
}

TEST_F(AutosaveTest, WhatCannotBeKeptSaysSo)
{
    QFile(root()).open(QIODevice::WriteOnly);
    documents.open(demo("a.velvane"), nullptr);
    EXPECT_TRUE(autosave->keepAll()) << "there is nothing to lose";
    edit(documents.newDemo());
    EXPECT_FALSE(autosave->keepAll());
    EXPECT_FALSE(autosave->hasEnded());
}

TEST_F(AutosaveTest, WhatCouldNotBeKeptIsTriedAgain)
{
    QFile(root()).open(QIODevice::WriteOnly);
    EditorWindow *window = documents.newDemo();
    edit(window);
    tick();
    EXPECT_TRUE(status(window).startsWith("Unsaved changes could not be kept: "));
    QFile::remove(root());
    tick();
    EXPECT_EQ(kept().size(), 1);
}

TEST_F(AutosaveTest, ARestoredDemoIsModifiedAndKeepsItsFile)
{
    edit(documents.open(demo("a.velvane"), nullptr));
    tick();
    crash();
    start();
    {
        const auto sessions = KeptSession::left(root());
        EXPECT_TRUE(autosave->restore(sessions[0]->demos()[0], *sessions[0]));
    }
    ASSERT_EQ(documents.windows().size(), 1);
    EditorWindow *window = documents.windows()[0];
    EXPECT_TRUE(window->isModified());
    EXPECT_EQ(window->path(), file("a.velvane"));
    EXPECT_EQ(project(window).steps().size(), 2);
    EXPECT_EQ(kept().size(), 1) << "it is on the disk all the time";
    window->save();
    EXPECT_EQ(stepsIn(file("a.velvane")), 2);
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(AutosaveTest, AFileThatOthersChangedMeanwhileIsNotReplacedUnasked)
{
    edit(documents.open(demo("a.velvane"), nullptr));
    tick();
    crash();
    demo("a.velvane", 5);
    start();
    const auto sessions = KeptSession::left(root());
    autosave->restore(sessions[0]->demos()[0], *sessions[0]);
    EditorWindow *window = documents.windows()[0];
    window->save();
    EXPECT_TRUE(questionText(window).contains("was changed by another program"));
    EXPECT_EQ(stepsIn(file("a.velvane")), 5);
}

TEST_F(AutosaveTest, ADemoThatWasOpenedMeanwhileGetsWhatWasKeptAsOneEdit)
{
    edit(documents.open(demo("a.velvane"), nullptr));
    tick();
    crash();
    start();
    EditorWindow *window = documents.open(file("a.velvane"), nullptr);
    const auto sessions = KeptSession::left(root());
    EXPECT_TRUE(autosave->restore(sessions[0]->demos()[0], *sessions[0]));
    EXPECT_EQ(documents.windows().size(), 1);
    EXPECT_EQ(project(window).steps().size(), 2);
    project(window).undoManager()->undo();
    EXPECT_EQ(project(window).steps().size(), 1);
}

TEST_F(AutosaveTest, ADemoWithoutChangesComesBackFromItsFile)
{
    documents.open(demo("a.velvane"), nullptr);
    documents.open(demo("gone.velvane"), nullptr);
    autosave->keepAll();
    crash();
    QFile::remove(file("gone.velvane"));
    start();
    for (const auto &session : KeptSession::left(root()))
        for (const KeptDemo &demo : session->demos())
            EXPECT_EQ(autosave->restore(demo, *session), demo.title == "a");
    ASSERT_EQ(documents.windows().size(), 1);
    EXPECT_FALSE(documents.windows()[0]->isModified());
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(AutosaveTest, AnEndThatDoesNotComeLeavesNothingBehindOnceAllIsSaved)
{
    EditorWindow *saved = documents.open(demo("a.velvane"), nullptr);
    EditorWindow *closed = documents.open(demo("b.velvane"), nullptr);
    edit(saved);
    edit(closed);
    autosave->keepAll();
    closed->close();
    answer(closed, "Don't Save");
    EXPECT_EQ(kept().size(), 1);
    saved->save();
    EXPECT_EQ(kept().size(), 0);
    EXPECT_FALSE(autosave->hasEnded());
}

TEST_F(AutosaveTest, WhatOthersRemoveIsKeptAgain)
{
    edit(documents.newDemo());
    tick();
    ASSERT_TRUE(QDir(root()).removeRecursively());
    tick();
    EXPECT_EQ(kept().size(), 1);
}

TEST_F(AutosaveTest, WhatIsBeingRecordedIsKeptBeforeTheRecordingEnds)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    QList<KeptDemo> all;
    recordUntil(window, [&] {
        EXPECT_FALSE(window->isModified());
        tick();
        for (const auto &found : QDir(root()).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            QFile kept(found.filePath() + '/' + QDir(found.filePath()).entryList({"*.kept"})[0]);
            ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
            all += KeptDemo::from(kept.readAll());
        }
    });
    ASSERT_EQ(all.size(), 1);
    ASSERT_TRUE(all[0].demo);
    EXPECT_EQ(all[0].demo->steps.size(), 2);
    EXPECT_EQ(project(window).steps().size(), 2) << "once, when it has ended";
    window->save();
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(AutosaveTest, BeforeTheEndWhatIsBeingRecordedIsKeptToo)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    recordUntil(window, [&] { EXPECT_TRUE(autosave->keepAll()); });
    crash();
    const QList<KeptDemo> all = left();
    ASSERT_EQ(all.size(), 1);
    ASSERT_TRUE(all[0].demo);
    EXPECT_EQ(all[0].demo->steps.size(), 2);
}

TEST_F(AutosaveTest, WindowsThatWaitForAnExportToEndTakeNothingKeptWithThem)
{
    EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
    exportLong(window, "movie.mp4");
    edit(window);
    EXPECT_TRUE(autosave->keepAll());
    documents.quitKept();
    autosave->tick();
    waitFor(window);
    EXPECT_TRUE(documents.windows().isEmpty());
    EXPECT_EQ(kept().size(), 1);
}

TEST_F(AutosaveTest, OfTwoKeptOfOneFileNoneTakesTheOthersPlace)
{
    for (const int edits : {1, 2}) {
        EditorWindow *window = documents.open(demo("a.velvane"), nullptr);
        for (int i = 0; i < edits; ++i)
            edit(window);
        tick();
        crash();
        start();
    }
    for (const auto &session : KeptSession::left(root()))
        EXPECT_TRUE(autosave->restore(session->demos()[0], *session));
    QList<qsizetype> steps;
    for (EditorWindow *window : documents.windows()) {
        EXPECT_TRUE(window->isModified());
        steps.append(project(window).steps().size());
    }
    std::sort(steps.begin(), steps.end());
    EXPECT_EQ(steps, QList<qsizetype>({2, 3}));
    EXPECT_EQ(kept().size(), 2) << "both are on the disk still";
}

} // namespace velvane
