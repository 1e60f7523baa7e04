#include "capture/Bookmark.h"
#include "Finding.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

/// A folder with a movie in it, as recordings are.
struct Recordings {
    Recordings()
    {
        QFile file(movie);
        check(file.open(QFile::WriteOnly) && file.write("movie") == 5, "no file to find");
    }

    QTemporaryDir folder;
    const QString movie = folder.filePath("run.mp4");
};

bool isNamedLikeMovie(const QString &path)
{
    const QStringList suffixes{"mp4", "m4v", "mov", "mkv", "webm"};
    return suffixes.contains(QFileInfo(path).suffix().toLower());
}

} // namespace

/// Any bytes as a bookmark: they find a regular file that is named like a movie, or nothing; and
/// its own bookmark finds that file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const Recordings recordings;
    QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    // What a seed cannot know.
    bytes.replace("FOLDER", recordings.folder.path().toUtf8());
    const auto found = velvane::Bookmark::resolve(bytes, recordings.folder.path());
    if (!found)
        return 0;
    check(QFileInfo(*found).isFile(), "what is found is no file");
    check(isNamedLikeMovie(*found), "what is found is named like no movie");
    const auto again = velvane::Bookmark::of(*found);
    check(again.has_value(), "what is found has no bookmark");
    const auto same = velvane::Bookmark::resolve(*again, {});
    check(same && QFileInfo(*same) == QFileInfo(*found), "its bookmark finds another file");
    return 0;
}
