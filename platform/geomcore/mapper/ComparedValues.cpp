#include "ComparedValues.h"

#include "SourceTable.h"

#include <geomcore/expression/MapVarValueC.h>

namespace Mapper {

bool enoughCompared(int compared, int values)
{
    return compared > 0 && (compared == values || (compared >= 2 && 2 * compared >= values));
}

int countValues(const LineInput &line, const SourceTable &source)
{
    if (line.view)
        return source.countValues(*line.view);
    int count = 0;
    for (const MapVarValueC &value : *line.varset)
        count += value.getValue().toString().trimmed().isEmpty() ? 0 : 1;
    return count;
}

} // namespace Mapper
