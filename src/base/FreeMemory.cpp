#include "base/FreeMemory.h"

#include <QFile>

#ifdef __GLIBC__
#include <malloc.h>
#endif
#ifdef __linux__
#include <sys/mman.h>
#endif

namespace velvane {

namespace {

#ifdef __linux__
// The encoder asks for huge pages where its pictures lie. The advice outlives the pictures: the
// kernel would go on to fill the place of whatever is left there up to two megabytes.
void endHugePages()
{
    QFile mappings(QStringLiteral("/proc/self/smaps"));
    if (!mappings.open(QIODevice::ReadOnly))
        return;
    quintptr start = 0;
    quintptr end = 0;
    for (const QByteArray &line : mappings.readAll().split('\n')) {
        // Either "start-end rw-p …", in hexadecimal, or "Name: value" about that range.
        const qsizetype dash = line.indexOf('-');
        const qsizetype space = line.indexOf(' ');
        if (line.startsWith("VmFlags:")) {
            if (line.contains(" hg"))
                ::madvise(reinterpret_cast<void *>(start), end - start, MADV_NOHUGEPAGE);
        } else if (dash > 0 && dash < space) {
            start = line.first(dash).toULongLong(nullptr, 16);
            end = line.mid(dash + 1, space - dash - 1).toULongLong(nullptr, 16);
        }
    }
}
#endif

} // namespace

void useOneHeap()
{
#ifdef __GLIBC__
    // malloc_trim() returns the end of the main heap only.
    mallopt(M_ARENA_MAX, 1);
#endif
}

void returnFreeMemory()
{
#ifdef __linux__
    endHugePages();
#endif
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace velvane
