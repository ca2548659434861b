#include "assignmentOf.h"

std::pair<int, int> assignmentOf(const PrjMappingC &mapping, int line)
{
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const LineTable::Iterator entry = mapping.targetAt(i).lines().find(line);
        if (entry && entry.targetLine() != -1)
            return {i, entry.targetLine()};
    }
    return {-1, -1};
}
