#include "app/Restoring.h"

#include "app/Autosave.h"
#include "app/DocumentsFixture.h"

#include <QDir>
#include <QListWidget>

namespace velvane {

namespace {

struct RestoringTest : DocumentsFixture {
    QString root() const { return file("kept"); }

    /// An earlier process had changed demos of these names when it ended.
    void leave(const QStringList &names, bool hasEnded = false)
    {
        Documents earlier(desktop, stored);
        Autosave keeping(earlier, root());
        for (const QString &name : names)
            edit(earlier.open(demo(name + ".velvane"), nullptr));
        EXPECT_TRUE(keeping.keepAll());
        if (!hasEnded)
            for (const QString &mark : marks())
                QFile::remove(mark);
    }
    /// The files that tell an orderly end.
    QStringList marks() const
    {
        QStringList found;
        const QStringList sessions = QDir(root()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &session : sessions)
            found.append(root() + '/' + session + "/ended");
        return found;
    }
    qsizetype leftOver() const
    {
        qsizetype count = 0;
        for (const auto &session : KeptSession::left(root()))
            count += session->demos().size();
        return count;
    }
    QStringList names() const
    {
        QStringList all;
        for (const EditorWindow *window : documents.windows())
            all.append(window->name() + (window->isModified() ? "*" : ""));
        all.sort();
        return all;
    }
    void answer(Restoring &restoring, const QString &text)
    {
        ASSERT_TRUE(restoring.panel());
        for (QPushButton *button : restoring.panel()->findChildren<QPushButton *>())
            if (button->text() == text) {
                button->click();
                return settle();
            }
        FAIL() << "there is no answer " << text.toStdString();
    }
    static QListWidget &list(Restoring &restoring)
    {
        return *restoring.panel()->findChild<QListWidget *>();
    }
    void uncheck(Restoring &restoring, const QString &name)
    {
        for (QListWidgetItem *item : list(restoring).findItems(name, Qt::MatchStartsWith))
            item->setCheckState(Qt::Unchecked);
    }

    Autosave autosave{documents, root()};
};

} // namespace

TEST_F(RestoringTest, WhereNothingIsLeftNothingIsAsked)
{
    Restoring restoring(autosave, root());
    restoring.reopen();
    EXPECT_FALSE(restoring.offer(nullptr));
    EXPECT_TRUE(documents.windows().isEmpty());
}

TEST_F(RestoringTest, AfterAnOrderlyEndTheDemosComeBackUnasked)
{
    leave({"a", "b"}, true);
    Restoring restoring(autosave, root());
    restoring.reopen();
    EXPECT_EQ(names(), (QStringList{"a*", "b*"}));
    EXPECT_FALSE(restoring.offer(nullptr));
}

TEST_F(RestoringTest, AfterACrashTheUserIsAsked)
{
    leave({"a", "b"});
    Restoring restoring(autosave, root());
    restoring.reopen();
    EXPECT_TRUE(documents.windows().isEmpty());
    ASSERT_TRUE(restoring.offer(nullptr));
    ASSERT_EQ(list(restoring).count(), 2);
    EXPECT_TRUE(list(restoring).item(0)->text().startsWith("a — "));
    answer(restoring, "Restore");
    EXPECT_EQ(names(), (QStringList{"a*", "b*"}));
    EXPECT_FALSE(restoring.panel());
    EXPECT_EQ(leftOver(), 0);
}

TEST_F(RestoringTest, DiscardGivesUpWhatIsCheckedOnly)
{
    leave({"a", "b"});
    Restoring restoring(autosave, root());
    ASSERT_TRUE(restoring.offer(nullptr));
    uncheck(restoring, "b");
    answer(restoring, "Discard");
    EXPECT_TRUE(documents.windows().isEmpty());
    EXPECT_EQ(leftOver(), 1);
}

TEST_F(RestoringTest, WhatIsNotCheckedIsOfferedAgain)
{
    leave({"a", "b"});
    {
        Restoring restoring(autosave, root());
        ASSERT_TRUE(restoring.offer(nullptr));
        uncheck(restoring, "a");
        answer(restoring, "Restore");
        EXPECT_EQ(names(), QStringList{"b*"});
    }
    Restoring again(autosave, root());
    ASSERT_TRUE(again.offer(nullptr));
    EXPECT_EQ(list(again).count(), 1);
}

TEST_F(RestoringTest, LaterAndEscapeTouchNothing)
{
    leave({"a"});
    {
        Restoring restoring(autosave, root());
        ASSERT_TRUE(restoring.offer(nullptr));
        answer(restoring, "Later");
    }
    {
        Restoring restoring(autosave, root());
        ASSERT_TRUE(restoring.offer(nullptr));
        int answers = 0;
        QObject::connect(&restoring, &Restoring::answered, &restoring, [&] { ++answers; });
        restoring.panel()->reject();
        settle();
        EXPECT_EQ(answers, 1);
    }
    EXPECT_TRUE(documents.windows().isEmpty());
    EXPECT_EQ(leftOver(), 1);
}

TEST_F(RestoringTest, WithNothingCheckedOnlyLaterIsLeft)
{
    leave({"a"});
    Restoring restoring(autosave, root());
    ASSERT_TRUE(restoring.offer(nullptr));
    uncheck(restoring, "a");
    for (const QPushButton *button : restoring.panel()->findChildren<QPushButton *>())
        EXPECT_EQ(button->isEnabled(), button->text() == "Later");
}

TEST_F(RestoringTest, ADemoThatWasNeverSavedIsListedAsSuch)
{
    {
        Documents earlier(desktop, stored);
        Autosave keeping(earlier, root());
        edit(earlier.newDemo());
        keeping.keepAll();
        QFile::remove(marks().constFirst());
    }
    Restoring restoring(autosave, root());
    ASSERT_TRUE(restoring.offer(nullptr));
    EXPECT_TRUE(list(restoring).item(0)->text().startsWith("Untitled — never saved, "));
    answer(restoring, "Restore");
    EXPECT_EQ(names(), QStringList{"Untitled*"});
    EXPECT_TRUE(documents.windows()[0]->path().isEmpty());
}

TEST_F(RestoringTest, ThePanelsControlsHaveNamesAndHelp)
{
    leave({"a"});
    Restoring restoring(autosave, root());
    ASSERT_TRUE(restoring.offer(nullptr));
    EXPECT_FALSE(list(restoring).accessibleName().isEmpty());
    for (const QPushButton *button : restoring.panel()->findChildren<QPushButton *>())
        EXPECT_FALSE(button->toolTip().isEmpty());
}

} // namespace velvane
