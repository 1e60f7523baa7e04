#include "BinaryMutator.h"
#include "Check.h"
#include "model/KeptDemo.h"

namespace {

/// Work is kept and found again as it was. Its picture does not take part: that would be a test of
/// the picture formats.
void checkKept(velvane::KeptDemo kept)
{
    if (kept.demo)
        kept.demo->background.reset();
    const QByteArray written = kept.contents();
    const auto again = velvane::KeptDemo::from(written);
    check(again.id == kept.id, "another record is written");
    check(again.path == kept.path && again.title == kept.title, "a name changes");
    check(again.kept == kept.kept, "the time changes");
    check(again.stamp == kept.stamp, "the stamp changes");
    check(again.demo.has_value() == kept.demo.has_value(), "the demo is lost");
    check(!kept.demo || again.demo->steps == kept.demo->steps, "steps change");
    check(again.contents() == written, "the record changes");
}

} // namespace

/// Any bytes as a record of unsaved work: they are refused in one line, or can be kept again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    try {
        const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
        checkKept(velvane::KeptDemo::from(bytes));
    } catch (const velvane::DocumentError &error) {
        checkMessage(error);
    }
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t maxSize, unsigned seed)
{
    return mutateBinary(data, size, maxSize, seed);
}
