#include <core/json/PJsonValue.h>

#include <cstdint>

namespace {

void walk(const PJsonValue &value)
{
    (void)value.toInt();
    (void)value.toDouble();
    (void)value.toText();
    for (int i = 0; i < value.size(); ++i)
        walk(value.at(i));
    for (const QString &key : value.keys()) {
        if (!value.contains(key))
            __builtin_trap();
    }
}

} // namespace

/// Reads any bytes as JSON; what is read must survive being written.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), qsizetype(size));
    PJsonValue value;
    QString error;
    if (value.parse(json, &error) != error.isEmpty())
        __builtin_trap();
    if (!error.isEmpty())
        return 0;
    walk(value);
    const QByteArray written = value.toByteArray(true);
    PJsonValue again;
    if (!again.parse(written) || again.toByteArray(true) != written)
        __builtin_trap();
    return 0;
}
