#include "conditionVariables.h"

#include <geomcore/binding/VarsetConditionI.h>
#include <geomcore/records/PrjMappingC.h>

namespace VelkRelease {

QStringList conditionVariables(const PrjMappingC &mapping)
{
    QStringList names;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const VarsetConditionI *condition : mapping.targetAt(i).getConditions())
            names += condition->usedVariables();
    }
    names.removeDuplicates();
    return names;
}

} // namespace VelkRelease
