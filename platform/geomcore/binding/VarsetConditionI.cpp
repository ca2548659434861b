#include "VarsetConditionI.h"

#include <geomcore/expression/Program.h>

VarsetConditionI::~VarsetConditionI() = default;

QStringList VarsetConditionI::usedVariables() const
{
    const auto expression = program();
    return expression ? expression->variableNames() : QStringList();
}
