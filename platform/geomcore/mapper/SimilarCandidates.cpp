#include "SimilarCandidates.h"

#include "CellSimilarity.h"
#include "NearCells.h"
#include "TargetTable.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>

namespace Mapper {

namespace {

/// A variable that brings more lines than this does not choose among them.
constexpr size_t MaxOfVariable = 64;
/// Variables that bring lines, at least; beyond that a quarter of all, so that a line with a mean
/// of three quarters cannot escape.
constexpr size_t MinVariables = 3;

} // namespace

SimilarCandidates::SimilarCandidates(const TargetTable &table, std::vector<int> rows)
    : m_table(table)
    , m_rows(std::move(rows))
{
}

SimilarCandidates::~SimilarCandidates() = default;

std::shared_ptr<const NearCells> SimilarCandidates::cellsOf(int variable) const
{
    return m_cells.get(variable,
                       [&] { return std::make_shared<NearCells>(m_table, variable, m_rows); });
}

std::vector<int> SimilarCandidates::find(const std::vector<int> &variables,
                                         const std::vector<ComparableCell> &cells) const
{
    // What the first line needs, most others need too.
    std::call_once(m_prepared, [&] {
        WorkerPool::instance().run(int(variables.size()), [&](int place) {
            const int variable = variables[size_t(place)];
            if (cells[size_t(place)].hasValue() && !m_table.variables()[size_t(variable)].range)
                static_cast<void>(cellsOf(variable));
        });
    });
    std::vector<std::vector<int>> lists;
    for (size_t place = 0; place < variables.size(); ++place) {
        const int variable = variables[place];
        if (!cells[place].hasValue() || m_table.variables()[size_t(variable)].range)
            continue;
        const auto index = cellsOf(variable);
        std::vector<int> rows = index->rows(cells[place], MaxOfVariable);
        if (!rows.empty())
            lists.push_back(std::move(rows));
    }
    std::stable_sort(lists.begin(), lists.end(),
                     [](const auto &a, const auto &b) { return a.size() < b.size(); });
    std::vector<int> rows;
    const size_t wanted = std::max(MinVariables, variables.size() / 4 + 1);
    for (size_t i = 0; i < std::min(wanted, lists.size()); ++i)
        rows.insert(rows.end(), lists[i].begin(), lists[i].end());
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

} // namespace Mapper
