#include "BinaryMutator.h"
#include "Check.h"

/// Any bytes: the binary reader refuses them or reads what the writer can write.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    try {
        const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
        checkRoundTrip(velvane::BinaryReader::read(bytes));
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
