#include "SimilaritySearch.h"

#include "CellSimilarity.h"
#include "RangeCell.h"
#include "SimilarCandidates.h"
#include "SimilarityRules.h"

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
    return similarity(line, cellsOf(line), row, 0);
}

double SimilaritySearch::similarity(const LineTexts &line, const Cells &cells, int row,
                                    double least) const
{
    double sum = 0;
    int count = 0;
    std::string scratch;
    m_table.split(row, m_row);
    m_slow.clear();
    for (size_t place = 0; place < m_variables.size(); ++place) {
        const std::string_view cell = m_table.text(m_row, m_variables[place], scratch);
        const LineTexts::Value &value = line.values[place];
        if (cell.empty() && value.text.empty())
            continue;
        ++count;
        if (cell.empty() || value.text.empty())
            continue;
        const TargetVariable &target = m_table.variables()[size_t(m_variables[place])];
        const std::optional<double> quick =
            target.range ? std::nullopt : cells[place].quickSimilarity(cell, target.decimalChar);
        if (quick)
            sum += *quick;
        else
            m_slow.push_back(place);
    }
    // Long texts and ranges come last, and only while the line may still reach the least.
    double most = sum + double(m_slow.size());
    for (size_t place : m_slow) {
        if (most < least * count)
            break;
        const std::string_view cell = m_table.text(m_row, m_variables[place], scratch);
        const LineTexts::Value &value = line.values[place];
        const TargetVariable &target = m_table.variables()[size_t(m_variables[place])];
        const double needed = least * count - (most - 1);
        most +=
            (target.range ? rangeSimilarity(cell, target.decimalChar, value.text, value.decimalChar)
                          : cells[place].similarity(cell, target.decimalChar, needed)) -
            1;
    }
    return count == 0 ? 0 : most / count;
}

SimilaritySearch::Result SimilaritySearch::find(const LineTexts &line, int alsoRow,
                                                bool shownOnly) const
{
    std::vector<int> rows = m_candidates->find(m_variables, cellsOf(line));
    if (alsoRow >= 0 && !std::binary_search(rows.begin(), rows.end(), alsoRow))
        rows.insert(std::upper_bound(rows.begin(), rows.end(), alsoRow), alsoRow);
    if (shownOnly)
        std::erase_if(rows, [this](int row) { return !m_table.isShown(row); });
    return best(line, rows, SimilarThreshold - OrderWeight);
}

SimilaritySearch::Result SimilaritySearch::best(const LineTexts &line,
                                                const std::vector<int> &rows) const
{
    return best(line, rows, 0);
}

SimilaritySearch::Result SimilaritySearch::best(const LineTexts &line, const std::vector<int> &rows,
                                                double least) const
{
    const Cells cells = cellsOf(line);
    Result result;
    for (int row : rows) {
        const double score = similarity(line, cells, row, least);
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
