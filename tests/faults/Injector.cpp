// Loaded before a program (LD_PRELOAD), makes one of its system calls fail, as a full or failing
// disk does.
//
// VELVANE_FAULT is CALL:N:ERRNO, e.g. "write:3:28": of the calls of this kind (open, write, sync,
// rename) that concern files below VELVANE_FAULT_FOLDER the Nth and all later ones fail. A write
// that fails for want of space takes half of its bytes first. "fault" on standard error tells that
// it came to that.

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int mostFiles = 4096;
bool isWatched[mostFiles];

struct Fault {
    char call[16] = "";
    int at = 0;
    int error = 0;
    const char *folder = nullptr;
    int count = 0;

    Fault()
    {
        const char *text = std::getenv("VELVANE_FAULT");
        folder = std::getenv("VELVANE_FAULT_FOLDER");
        if (!text || !folder || std::sscanf(text, "%15[a-z]:%d:%d", call, &at, &error) != 3)
            at = 0;
    }
};

Fault &fault()
{
    static Fault one;
    return one;
}

bool isBelow(const char *path)
{
    const char *folder = fault().folder;
    return folder && path && std::strncmp(path, folder, std::strlen(folder)) == 0;
}

/// Is it time for this call to fail?
bool fails(const char *call)
{
    Fault &now = fault();
    if (now.at == 0 || std::strcmp(now.call, call) != 0 || ++now.count < now.at)
        return false;
    if (now.count == now.at) {
        constexpr char told[] = "fault\n";
        static const auto tell =
            reinterpret_cast<ssize_t (*)(int, const void *, size_t)>(dlsym(RTLD_NEXT, "write"));
        tell(STDERR_FILENO, told, sizeof told - 1);
    }
    errno = now.error;
    return true;
}

template <typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

int opened(const char *name, const char *path, int flags, mode_t mode)
{
    const bool below = isBelow(path);
    // Reading is no fault of the disk here.
    if (below && (flags & O_ACCMODE) != O_RDONLY && fails("open"))
        return -1;
    const int file = next<int (*)(const char *, int, mode_t)>(name)(path, flags, mode);
    if (file >= 0 && file < mostFiles)
        isWatched[file] = below;
    return file;
}

bool watched(int file)
{
    return file >= 0 && file < mostFiles && isWatched[file];
}

int synced(const char *name, int file)
{
    if (watched(file) && fails("sync"))
        return -1;
    return next<int (*)(int)>(name)(file);
}

} // namespace

#define VISIBLE extern "C" __attribute__((visibility("default")))

VISIBLE int open(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const auto mode = static_cast<mode_t>(va_arg(rest, unsigned));
    va_end(rest);
    return opened("open", path, flags, mode);
}

VISIBLE int open64(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const auto mode = static_cast<mode_t>(va_arg(rest, unsigned));
    va_end(rest);
    return opened("open64", path, flags, mode);
}

VISIBLE ssize_t write(int file, const void *bytes, size_t count)
{
    const auto real = next<ssize_t (*)(int, const void *, size_t)>("write");
    if (watched(file) && fails("write")) {
        if (errno == ENOSPC && fault().count == fault().at && count > 1)
            return real(file, bytes, count / 2);
        return -1;
    }
    return real(file, bytes, count);
}

VISIBLE int fsync(int file)
{
    return synced("fsync", file);
}

VISIBLE int fdatasync(int file)
{
    return synced("fdatasync", file);
}

VISIBLE int rename(const char *from, const char *to)
{
    if (isBelow(to) && fails("rename"))
        return -1;
    return next<int (*)(const char *, const char *)>("rename")(from, to);
}
