#include "SimilaritySearch.h"

#include "CellSimilarity.h"
#include "NearCells.h"
#include "RangeCell.h"
#include "TargetTable.h"

#include <algorithm>

namespace Mapper {

namespace {

/// A variable that brings more lines than this does not choose among them.
constexpr size_t MaxOfVariable = 64;
/// Variables that bring lines, at least; beyond that a quarter of all, so that a line with a mean
/// of three quarters cannot escape.
constexpr size_t MinVariables = 3;

std::vector<ComparableCell> cellsOf(const LineTexts &line)
{
    std::vector<ComparableCell> cells;
    cells.reserve(line.values.size());
    for (const LineTexts::Value &value : line.values)
        cells.emplace_back(value.text);
    return cells;
}

} // namespace

SimilaritySearch::SimilaritySearch(const TargetTable &table, const std::vector<int> &variables)
    : m_table(table)
    , m_variables(variables)
{
}

double SimilaritySearch::similarity(const LineTexts &line, int row) const
{
    return similarity(line, cellsOf(line), row);
}

double SimilaritySearch::similarity(const LineTexts &line, const Cells &cells, int row) const
{
    double sum = 0;
    int count = 0;
    std::string scratch;
    for (size_t place = 0; place < m_variables.size(); ++place) {
        const std::string_view cell = m_table.text(row, m_variables[place], scratch);
        const LineTexts::Value &value = line.values[place];
        if (cell.empty() && value.text.empty())
            continue;
        ++count;
        if (cell.empty() || value.text.empty())
            continue;
        const TargetVariable &target = m_table.variables()[size_t(m_variables[place])];
        sum += target.range
                   ? rangeSimilarity(cell, target.decimalChar, value.text, value.decimalChar)
                   : cells[place].similarity(cell, target.decimalChar);
    }
    return count == 0 ? 0 : sum / count;
}

std::vector<int> SimilaritySearch::candidates(const Cells &cells) const
{
    std::vector<std::vector<int>> lists;
    for (size_t place = 0; place < m_variables.size(); ++place) {
        if (m_table.variables()[size_t(m_variables[place])].range)
            continue;
        std::vector<int> rows =
            m_table.nearCells(m_variables[place])->rows(cells[place], MaxOfVariable);
        if (!rows.empty())
            lists.push_back(std::move(rows));
    }
    std::stable_sort(lists.begin(), lists.end(),
                     [](const auto &a, const auto &b) { return a.size() < b.size(); });
    std::vector<int> rows;
    const size_t wanted = std::max(MinVariables, m_variables.size() / 4 + 1);
    for (size_t i = 0; i < std::min(wanted, lists.size()); ++i)
        rows.insert(rows.end(), lists[i].begin(), lists[i].end());
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

SimilaritySearch::Result SimilaritySearch::find(const LineTexts &line, int alsoRow,
                                                bool shownOnly) const
{
    std::vector<int> rows = candidates(cellsOf(line));
    if (alsoRow >= 0 && !std::binary_search(rows.begin(), rows.end(), alsoRow))
        rows.insert(std::upper_bound(rows.begin(), rows.end(), alsoRow), alsoRow);
    if (shownOnly)
        std::erase_if(rows, [this](int row) { return !m_table.isShown(row); });
    return best(line, rows);
}

SimilaritySearch::Result SimilaritySearch::best(const LineTexts &line,
                                                const std::vector<int> &rows) const
{
    const Cells cells = cellsOf(line);
    Result result;
    for (int row : rows) {
        const double score = similarity(line, cells, row);
        if (result.row < 0 || score > result.best) {
            result.second = result.row < 0 ? 0 : result.best;
            result.best = score;
            result.row = row;
        } else {
            result.second = std::max(result.second, score);
        }
    }
    return result;
}

} // namespace Mapper
