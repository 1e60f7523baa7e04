#include "cli/DemoFile.h"

#include "base/FolderLock.h"
#include "model/DocumentError.h"

namespace velvane::cli {

DemoDocument readDemo(const std::string &path)
{
    return DemoDocument(readRecord(path));
}

ProjectFile readRecord(const std::string &path)
{
    const QString name = fileName(path);
    try {
        return DemoDocument::readFile(name);
    } catch (const DocumentError &error) {
        throw CommandError(name + ": " + error.message());
    }
}

bool isDemo(const QString &path)
{
    try {
        DemoDocument::readFile(path);
        return true;
    } catch (const DocumentError &) {
        return false;
    }
}

void writeDemo(const ProjectFile &file, const QString &path)
{
    // An editor may be about to replace the same file.
    const FolderLock lock(path);
    const auto held = lock.refusal();
    if (const auto failure = held ? held : DemoDocument::write(file, path))
        throw CommandError(path + ": " + *failure);
}

} // namespace velvane::cli
