#include "media/MovieBytes.h"

#include "media/FragmentedFile.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

extern "C" {
#include <libavformat/avio.h>
#include <libavutil/mem.h>
}

namespace velvane {

namespace {

constexpr int bufferBytes = 64 * 1024;

} // namespace

void MovieBytes::Free::operator()(AVIOContext *io) const
{
    av_freep(&io->buffer);
    avio_context_free(&io);
}

MovieBytes::MovieBytes()
{
    auto *buffer = static_cast<std::uint8_t *>(av_malloc(bufferBytes));
    m_io.reset(avio_alloc_context(buffer, bufferBytes, 0, this, read, nullptr, seek));
    if (!m_io)
        av_free(buffer);
}

MovieBytes::~MovieBytes()
{
    m_io.reset();
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

QString MovieBytes::open(const QString &path, const CancelCheck &shouldCancel)
{
    m_shouldCancel = shouldCancel;
    // Not blocking: a named pipe would otherwise wait for its writer.
    m_descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat about {};
    if (m_descriptor < 0 || ::fstat(m_descriptor, &about) != 0)
        return qt_error_string(errno);
    if (!S_ISREG(about.st_mode))
        return QCoreApplication::translate("MovieInput", "Not a regular file.");
    m_end = FragmentedFile::wholeEnd(m_descriptor, about.st_size, m_shouldCancel);
    return {};
}

int MovieBytes::read(void *self, std::uint8_t *bytes, int count)
{
    auto &file = *static_cast<MovieBytes *>(self);
    for (;;) {
        if (file.m_shouldCancel && file.m_shouldCancel())
            return AVERROR_EXIT;
        const std::int64_t left = std::max<std::int64_t>(file.m_end - file.m_position, 0);
        const auto wanted = size_t(std::min<std::int64_t>(count, left));
        const ssize_t done = ::pread(file.m_descriptor, bytes, wanted, file.m_position);
        if (done < 0 && errno == EINTR)
            continue;
        if (done <= 0)
            return done < 0 ? AVERROR(errno) : AVERROR_EOF;
        file.m_position += done;
        return int(done);
    }
}

std::int64_t MovieBytes::seek(void *self, std::int64_t offset, int whence)
{
    auto &file = *static_cast<MovieBytes *>(self);
    switch (whence & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE:
        return file.m_end;
    case SEEK_CUR:
        offset += file.m_position;
        break;
    case SEEK_END:
        offset += file.m_end;
        break;
    default:
        break;
    }
    if (offset < 0)
        return AVERROR(EINVAL);
    return file.m_position = offset;
}

} // namespace velvane
