#include "BinaryMutator.h"
#include "Check.h"
#include "model/DemoDocument.h"
#include "model/ProjectFile.h"

namespace {

/// A demo goes through its project and a file, and comes back the same. Its picture does not take
/// part: that would be a test of the picture formats.
void checkDemo(velvane::ProjectFile file)
{
    file.background.reset();
    const velvane::DemoDocument demo(file);
    const QByteArray written = velvane::DemoDocument::contents(demo.snapshot());
    const velvane::ProjectFile again = velvane::DemoDocument::fileOf(written);
    check(again.version == 1, "another version is written");
    check(again.steps == file.steps, "steps change when they are saved");
    check(again.startPoint.x() == file.startPoint.x(), "the start point changes");
    check(again.canvasSize.width() == file.canvasSize.width(), "the canvas changes");
    check(again.fps == file.fps, "the frame rate changes");
    check(again.recordingBookmark == file.recordingBookmark, "the bookmark changes");
    check(velvane::DemoDocument::contents(again) == written, "the file changes");
}

} // namespace

/// Any bytes: they are refused in one line, or are a demo that can be saved.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    try {
        const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
        checkDemo(velvane::DemoDocument::fileOf(bytes));
    } catch (const velvane::DocumentError &error) {
        checkMessage(error);
    }
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t maxSize, unsigned seed)
{
    if (size > 0 && data[0] == '<')
        return LLVMFuzzerMutate(data, size, maxSize);
    return mutateBinary(data, size, maxSize, seed);
}
