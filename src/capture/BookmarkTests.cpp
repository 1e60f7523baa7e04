#include "capture/Bookmark.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velvane {

namespace {

class BookmarkTest : public testing::Test {
protected:
    BookmarkTest()
    {
        QDir(m_folder.path()).mkpath("takes");
        QDir(m_folder.path()).mkpath("recordings");
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path(name);
    }

    std::optional<QString> resolve(const QByteArray &bookmark) const
    {
        return Bookmark::resolve(bookmark, path("recordings"));
    }

    QByteArray bookmarkOf(const QString &file) const { return Bookmark::of(file).value(); }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(BookmarkTest, AMovieInItsPlaceIsFound)
{
    const QString movie = write("takes/run.mp4", "one");
    EXPECT_EQ(resolve(bookmarkOf(movie)), movie);
}

TEST_F(BookmarkTest, AMovieThatHasGrownIsFound)
{
    const QString movie = write("takes/run.mp4", "one");
    const QByteArray bookmark = bookmarkOf(movie);
    write("takes/run.mp4", "one and more");
    EXPECT_EQ(resolve(bookmark), movie);
}

TEST_F(BookmarkTest, ARenamedMovieIsFoundInItsFolder)
{
    const QString movie = write("takes/run.mp4", "one");
    write("takes/other.mp4", "two");
    const QByteArray bookmark = bookmarkOf(movie);
    ASSERT_TRUE(QFile::rename(movie, path("takes/best.mp4")));
    EXPECT_EQ(resolve(bookmark), path("takes/best.mp4"));
}

TEST_F(BookmarkTest, ARenamedMovieIsFoundThoughAnotherHasItsName)
{
    const QString movie = write("takes/run.mp4", "one");
    const QByteArray bookmark = bookmarkOf(movie);
    ASSERT_TRUE(QFile::rename(movie, path("takes/best.mp4")));
    write("takes/run.mp4", "two");
    EXPECT_EQ(resolve(bookmark), path("takes/best.mp4"));
}

TEST_F(BookmarkTest, AMovieMovedToTheRecordingsIsFound)
{
    const QString movie = write("takes/run.mp4", "one");
    const QByteArray bookmark = bookmarkOf(movie);
    ASSERT_TRUE(QFile::rename(movie, path("recordings/kept.mp4")));
    EXPECT_EQ(resolve(bookmark), path("recordings/kept.mp4"));
}

TEST_F(BookmarkTest, ACopyAmongTheRecordingsIsFoundByItsNameAndSize)
{
    const QString movie = write("takes/run.mp4", "one");
    const QByteArray bookmark = bookmarkOf(movie);
    write("recordings/run.mp4", "one");
    ASSERT_TRUE(QFile::remove(movie));
    EXPECT_EQ(resolve(bookmark), path("recordings/run.mp4"));
    write("recordings/run.mp4", "another");
    EXPECT_EQ(resolve(bookmark), std::nullopt);
}

TEST_F(BookmarkTest, ACopyPutBackInItsPlaceIsFound)
{
    const QString movie = write("takes/run.mp4", "one");
    const QByteArray bookmark = bookmarkOf(movie);
    ASSERT_TRUE(QFile::copy(movie, path("copy.mp4")));
    ASSERT_TRUE(QFile::remove(movie));
    ASSERT_TRUE(QFile::rename(path("copy.mp4"), movie));
    EXPECT_EQ(resolve(bookmark), movie);
}

TEST_F(BookmarkTest, ADeletedMovieIsNotFound)
{
    const QString movie = write("takes/run.mp4", "one");
    const QByteArray bookmark = bookmarkOf(movie);
    ASSERT_TRUE(QFile::remove(movie));
    EXPECT_EQ(resolve(bookmark), std::nullopt);
}

TEST_F(BookmarkTest, OnlyMovieFilesGetABookmark)
{
    EXPECT_EQ(Bookmark::of(path("none.mp4")), std::nullopt);
    EXPECT_EQ(Bookmark::of(path("takes")), std::nullopt);
    EXPECT_EQ(Bookmark::of("/dev/zero"), std::nullopt);
    EXPECT_EQ(Bookmark::of(write("takes/secret.txt", "no")), std::nullopt);
    EXPECT_NE(Bookmark::of(write("takes/LOUD.MOV", "yes")), std::nullopt);
}

TEST_F(BookmarkTest, NothingButMovieFilesIsFound)
{
    const QString movie = write("takes/run.mp4", "one");
    const QByteArray sound = bookmarkOf(movie);
    ASSERT_TRUE(sound.contains(movie.toUtf8()));
    for (const QString &elsewhere :
         {QStringLiteral("/dev/zero"), QStringLiteral("/etc/passwd"), path("takes"),
          QStringLiteral("run.mp4"), QStringLiteral("http://127.0.0.1/run.mp4"), QString()}) {
        const QByteArray forged = QByteArray(sound).replace(movie.toUtf8(), elsewhere.toUtf8());
        EXPECT_EQ(resolve(forged), std::nullopt);
    }
}

TEST_F(BookmarkTest, NonsenseBytesFindNothing)
{
    EXPECT_EQ(resolve({}), std::nullopt);
    EXPECT_EQ(resolve("book\0\0\0\0mark"), std::nullopt);
    EXPECT_EQ(resolve(QByteArray(1'000'000, '\x9f')), std::nullopt);
    const QByteArray sound = bookmarkOf(write("takes/run.mp4", "one"));
    for (qsizetype length = 0; length < sound.size(); ++length)
        EXPECT_EQ(resolve(sound.left(length)), std::nullopt) << length;
    QRandomGenerator random(3);
    for (int i = 0; i < 1000; ++i) {
        QByteArray damaged = sound;
        damaged[random.bounded(damaged.size())] = char(random.generate());
        const auto found = resolve(damaged);
        EXPECT_TRUE(!found || *found == path("takes/run.mp4"));
    }
}

} // namespace velvane
