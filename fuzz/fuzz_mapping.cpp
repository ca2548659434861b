#include <geomcore/records/MappingFile.h>

#include <cstdint>

/// Reads any bytes as a mapping file; one that is read must survive being written.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), qsizetype(size));
    MappingFile file;
    QString error;
    if (file.parse(json, QString(), &error) != error.isEmpty())
        __builtin_trap();
    if (!error.isEmpty())
        return 0;
    for (const ReleaseMappingC &release : file.releases())
        file.setRelease(release);
    const QByteArray written = file.toByteArray();
    MappingFile again;
    if (!again.parse(written) || again.toByteArray() != written)
        __builtin_trap();
    return 0;
}
