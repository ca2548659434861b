#include "MappingRecords.h"

namespace velkbench {

ReleaseMappingC bigRelease(int lines)
{
    PrjMappingTargetC target;
    target.setValid(true);
    target.setTargetPath(QStringLiteral("bench/p0000.prj"));
    target.setTargetVersion(QStringLiteral("v250630100000"));
    for (int line = 1; line <= lines; ++line) {
        const int found = line % 100 == 7 ? -1 : line + line / 1000;
        const auto state = PRJMAPPING::CheckState(line % 10 == 3 ? 0 : line % 10 == 4 ? 2 : 1);
        target.addLineId(line, found, state,
                         line % 1000 == 5 ? QStringLiteral("{L=20} -> 17") : QString());
    }
    PrjMappingC mapping;
    mapping.setSourcePath(QStringLiteral("bench/p0000.prj"));
    mapping.setSourceVersion(QStringLiteral("v230131100000"));
    mapping.addTarget(target);
    mapping.updateMappingState();
    ReleaseMappingC release;
    release.setSourceDate(QStringLiteral("2023-01-31"));
    release.setTargetDate(QStringLiteral("2025-06-30"));
    release.addMapping(mapping);
    return release;
}

} // namespace velkbench
