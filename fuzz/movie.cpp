#include "Finding.h"
#include "media/MovieReader.h"

#include <sys/mman.h>
#include <unistd.h>

namespace {

/// A file of these bytes that is on no disk.
class MemoryFile {
public:
    MemoryFile(const std::uint8_t *data, std::size_t size) : m_file(memfd_create("movie", 0))
    {
        check(m_file >= 0 && ::write(m_file, data, size) == ssize_t(size), "no file to read");
    }
    ~MemoryFile() { ::close(m_file); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_file); }

private:
    const int m_file;
};

/// Ends what a movie asks for once it has asked for so much; a user would cancel it by going on.
class Patience {
public:
    velvane::CancelCheck check()
    {
        return [this] { return ++m_questions > greatest; };
    }

private:
    static constexpr int greatest = 2000;
    int m_questions = 0;
};

void checkPictures(velvane::MovieReader &movie, const velvane::CancelCheck &shouldCancel)
{
    using velvane::Seconds;
    check(movie.duration() > Seconds(0), "a movie without a duration");
    check(!movie.size().isEmpty(), "a movie without a size");
    // To the end, back, to between, and past both.
    for (const double share : {0.0, 1.0, 0.3, 0.6, -1.0, 2.0}) {
        const auto picture = movie.picture(movie.duration() * share, shouldCancel);
        if (!picture)
            continue;
        const QImage image = picture->image();
        check(image.isNull() || image.size() == movie.size(), "a picture of another size");
    }
}

} // namespace

/// Any bytes as a movie's file: they are refused in one line, or have pictures.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const MemoryFile file(data, size);
    Patience patience;
    const velvane::MovieOpening movie = velvane::MovieReader::open(file.path(), patience.check());
    check(movie.reader ? movie.error.isEmpty() : !movie.error.isEmpty(), "neither or both");
    if (movie.reader)
        checkPictures(*movie.reader, patience.check());
    else
        checkLine(movie.error);
    return 0;
}
