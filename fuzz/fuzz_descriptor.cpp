#include <geomcore/csv/TableDescriptor.h>

#include <cstdint>

using namespace VKTab;

/// Reads any bytes as a table descriptor; one that is read must survive being written.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), qsizetype(size));
    TableErrorList errors;
    const auto descriptor = TableDescriptor::fromJson(json, QStringLiteral("fuzz"), errors);
    if (descriptor.has_value() != errors.isEmpty())
        __builtin_trap();
    if (!descriptor)
        return 0;
    const QByteArray written = descriptor->toJson();
    const auto again = TableDescriptor::fromJson(written, QStringLiteral("fuzz"), errors);
    if (!again || *again != *descriptor || again->toJson() != written)
        __builtin_trap();
    return 0;
}
