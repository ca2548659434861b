#include "IdentityKey.h"

#include "BoundTarget.h"
#include "DesignationIndex.h"
#include "ExactSearch.h"
#include "SourceTable.h"
#include "TargetTable.h"

#include <geomcore/table/LineIndex.h>

#include <algorithm>

namespace Mapper {

using VKTab::CellKey;
using Origin = VKTab::BoundModifiers::Origin;

IdentityKey::IdentityKey(const SourceTable &source, const BoundTarget &target)
    : m_source(source)
{
    if (!source.isValid() || !target.isOpen())
        return;
    bindDesignations(target);
    if (!m_designations)
        bindKeyVariables(target);
}

void IdentityKey::bindDesignations(const BoundTarget &target)
{
    if (m_source.pattern().isEmpty())
        return;
    const auto designations = target.table()->designations();
    if (designations->identifies())
        m_designations = designations;
}

void IdentityKey::bindKeyVariables(const BoundTarget &target)
{
    std::vector<int> keys = *target.table()->keyVariables();
    std::sort(keys.begin(), keys.end());
    std::vector<int> columns;
    for (int key : keys) {
        const auto at = std::find(target.variables().begin(), target.variables().end(), key);
        if (at == target.variables().end())
            return;
        const Origin &origin = target.origins()[size_t(at - target.variables().begin())];
        if (origin.kind != Origin::Column)
            return;
        columns.push_back(origin.index);
    }
    std::vector<int> sourceKeys = m_source.keyColumns();
    std::vector<int> sorted = columns;
    std::sort(sourceKeys.begin(), sourceKeys.end());
    std::sort(sorted.begin(), sorted.end());
    if (keys.empty() || sorted != sourceKeys)
        return;
    m_table = target.table();
    m_variables = keys;
}

std::vector<int> IdentityKey::rows(const LineInput &line, const TargetValues &values,
                                   int limit) const
{
    if (byKeyVariables())
        return rowsByKey(values, limit);
    if (!m_designations)
        return {};
    const std::string text =
        line.view ? m_source.designation(*line.view) : m_source.designation(*line.varset);
    return text.empty() ? std::vector<int>() : m_designations->rows(text, size_t(limit));
}

std::vector<int> IdentityKey::rowsByKey(const TargetValues &values, int limit) const
{
    const std::vector<int> &known = values.search->variables();
    std::vector<CellKey> keys;
    for (int variable : m_variables) {
        const auto at = std::find(known.begin(), known.end(), variable);
        if (at == known.end())
            return {};
        const std::string_view text = values.texts.values[size_t(at - known.begin())].text;
        if (text.empty())
            return {};
        keys.emplace_back(text, VKTab::CompareMode::Number, '.', false);
    }
    if (!m_index)
        m_index = m_table->lineIndex(m_variables);
    std::vector<int> rows;
    for (int row = m_index->find(keys); row >= 0 && int(rows.size()) < limit;
         row = m_index->nextOf(row))
        rows.push_back(row);
    return rows;
}

} // namespace Mapper
