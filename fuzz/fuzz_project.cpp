#include "FuzzFolder.h"

#include <core/config/PIniFile.h>
#include <geomcore/project/PrjClass.h>

#include <cstdint>

/// Reads any bytes as settings and as a project file. What is not changed keeps its bytes; a value
/// that is set is read again.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    PIniFile file;
    file.parse(bytes);
    if (file.toByteArray() != bytes)
        __builtin_trap();
    const QString value = QString::fromUtf8(bytes.right(20)).remove(QChar::Null);
    file.setValue("PROJECT", "SACHM", value);
    PIniFile again;
    again.parse(file.toByteArray());
    if (again.value("PROJECT", "SACHM") != value)
        __builtin_trap();
    static const FuzzFolder folder;
    PrjClass project(false, false, false);
    if (project.read(folder.write("fuzz.prj", bytes), PrjClass::ReadAll) == 1)
        (void)project.tableFile();
    return 0;
}
