#include "MappingRows.h"

#include "PrjMappingC.h"

#include <algorithm>

std::vector<MappingRow> mappingRows(const PrjMappingC &mapping)
{
    std::vector<MappingRow> rows;
    rows.reserve(std::size_t(mapping.lineCounts().lines()));
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const LineTable::Iterator &line : mapping.targetAt(i).lines())
            rows.push_back({line.sourceLine(), i, line.line()});
    }
    std::ranges::stable_sort(rows, {}, &MappingRow::sourceLine);
    return rows;
}
