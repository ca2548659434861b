#include "SimilaritySearch.h"

#include "CellSimilarity.h"
#include "RangeCell.h"
#include "SimilarCandidates.h"

#include <algorithm>

namespace Mapper {

namespace {

std::vector<ComparableCell> cellsOf(const LineTexts &line)
{
    std::vector<ComparableCell> cells;
    cells.reserve(line.values.size());
    for (const LineTexts::Value &value : line.values)
        cells.emplace_back(value.text);
    return cells;
}

} // namespace

SimilaritySearch::SimilaritySearch(const TargetTable &table, const std::vector<int> &variables,
                                   std::shared_ptr<const SimilarCandidates> candidates)
    : m_table(table)
    , m_variables(variables)
    , m_candidates(std::move(candidates))
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
    m_table.split(row, m_row);
    for (size_t place = 0; place < m_variables.size(); ++place) {
        const std::string_view cell = m_table.text(m_row, m_variables[place], scratch);
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

SimilaritySearch::Result SimilaritySearch::find(const LineTexts &line, int alsoRow,
                                                bool shownOnly) const
{
    std::vector<int> rows = m_candidates->find(m_variables, cellsOf(line));
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
