#include "notFoundLines.h"

namespace VelkRelease {

void enterNotFound(PrjMappingC &mapping, int line, PRJMAPPING::CheckState state)
{
    const int index = mapping.ensureNotFoundTarget();
    PrjMappingTargetC target = mapping.findTarget(index);
    target.addLineId(line, -1, state, QString());
    mapping.updateTarget(index, target);
}

void leaveNotFound(PrjMappingC &mapping, int line)
{
    const int index = mapping.getNotFoundTarget();
    if (index == -1)
        return;
    PrjMappingTargetC target = mapping.findTarget(index);
    target.removeLineId(line);
    mapping.updateTarget(index, target);
}

void forgetNotFound(PrjMappingC &mapping)
{
    const int index = mapping.getNotFoundTarget();
    if (index == -1)
        return;
    PrjMappingTargetC target = mapping.findTarget(index);
    target.clearLines(true);
    mapping.updateTarget(index, target);
}

} // namespace VelkRelease
