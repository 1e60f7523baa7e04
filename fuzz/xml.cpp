#include "Check.h"
#include "model/propertylist/XmlReader.h"

/// Any bytes: the XML reader refuses them or reads what the writer can write.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    try {
        const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
        checkRoundTrip(velvane::XmlReader::read(bytes));
    } catch (const velvane::DocumentError &error) {
        checkMessage(error);
    }
    return 0;
}
