#include <geomcore/records/PrjMappingTargetLineC.h>
#include <geomcore/value/MidentClass.h>

#include <cstdint>

/// Reads any text as the extended text of a line and as a list of values; what is read must survive
/// being written.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    PrjMappingTargetLineC line(1, PRJMAPPING::Mapped, text);
    const auto rows = line.getVarsetList();
    line.clearVarsetList();
    for (const auto &[values, target] : rows)
        line.addVarset(values, target);
    if (line.getVarsetList() != rows)
        __builtin_trap();
    MidentClass values;
    MidentClass again;
    if (values.SplitVarValue(text) && (!again.SplitVarValue(values.MakeVarvalueString()) ||
                                       again.MakeVarvalueString() != values.MakeVarvalueString()))
        __builtin_trap();
    return 0;
}
