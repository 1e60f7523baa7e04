#include "media/FragmentedFile.h"

#include <QByteArray>
#include <QtEndian>

#include <cstring>
#include <optional>

#include <unistd.h>

namespace velvane::FragmentedFile {

namespace {

struct Box {
    QByteArray type;
    qint64 size = 0; // its head included; may reach beyond the file
};

// Size and type, then the size again in 64 bits where the first one is 1; 0 reaches to the end.
std::optional<Box> boxAt(int file, qint64 position, qint64 fileSize)
{
    constexpr qint64 headBytes = 8;
    quint8 head[2 * headBytes]{};
    const ssize_t there = ::pread(file, head, sizeof head, position);
    if (there < headBytes)
        return {};
    Box box{QByteArray(reinterpret_cast<const char *>(head) + 4, 4),
            qint64(qFromBigEndian<quint32>(head))};
    qint64 least = headBytes;
    if (box.size == 1) {
        box.size = qFromBigEndian<qint64>(head + headBytes);
        least = sizeof head;
    }
    // Room that was never written to is no box.
    const bool hasType = qFromBigEndian<quint32>(head + 4) != 0;
    if (box.size == 0 && hasType)
        box.size = fileSize - position;
    return box.size >= least ? std::optional(box) : std::nullopt;
}

} // namespace

qint64 wholeEnd(int file, qint64 size, const CancelCheck &shouldCancel)
{
    bool isFragmented = false;
    qint64 whole = 0;
    for (qint64 at = 0; at < size && !(shouldCancel && shouldCancel());) {
        const std::optional<Box> box = boxAt(file, at, size);
        if (!box || (at == 0 && box->type != "ftyp"))
            break;
        const bool isHead = box->type == "moof";
        isFragmented = isFragmented || isHead;
        if (box->size > size - at)
            break;
        at += box->size;
        // A fragment's head is worth nothing without the pictures that follow it.
        if (!isHead)
            whole = at;
    }
    return isFragmented ? whole : size;
}

} // namespace velvane::FragmentedFile
