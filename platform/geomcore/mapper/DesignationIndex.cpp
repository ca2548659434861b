#include "DesignationIndex.h"

#include "CertaintyRules.h"
#include "TargetTable.h"

#include <geomcore/table/TableData.h>

#include <algorithm>
#include <functional>

namespace Mapper {

DesignationIndex::DesignationIndex(const TargetTable &table)
    : m_table(table)
    , m_pattern(table.data().descriptor())
{
    if (m_pattern.isEmpty())
        return;
    const int count = table.data().rowCount();
    for (int row = 0; row < count; ++row) {
        const std::string text = textOf(row);
        if (!text.empty())
            m_rows.emplace_back(std::hash<std::string>()(text), row);
    }
    std::sort(m_rows.begin(), m_rows.end());
    int distinct = 0;
    for (size_t i = 0; i < m_rows.size(); ++i)
        distinct += i == 0 || m_rows[i].first != m_rows[i - 1].first ? 1 : 0;
    m_identifies = distinct > 0 && distinct >= KeyDistinctness * count;
}

std::string DesignationIndex::textOf(int row) const
{
    std::string scratch;
    return m_pattern.text([&](const QString &name) {
        const int variable = m_table.variableOf(name);
        return variable < 0 ? std::string() : std::string(m_table.text(row, variable, scratch));
    });
}

std::vector<int> DesignationIndex::rows(const std::string &text, size_t limit) const
{
    std::vector<int> found;
    const size_t hash = std::hash<std::string>()(text);
    auto at = std::lower_bound(m_rows.begin(), m_rows.end(), std::pair(hash, -1));
    for (; at != m_rows.end() && at->first == hash && found.size() < limit; ++at) {
        if (textOf(at->second) == text)
            found.push_back(at->second);
    }
    return found;
}

} // namespace Mapper
