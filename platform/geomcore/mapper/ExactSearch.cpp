#include "ExactSearch.h"

#include "ComparedRanges.h"
#include "ElementIndex.h"
#include "TargetTable.h"

#include <geomcore/table/LineIndex.h>
#include <geomcore/table/TableData.h>
#include <geomcore/value/CellKey.h>

#include <limits>

namespace Mapper {

using VKTab::CellKey;
using VKTab::CompareMode;

namespace {

/// Rows equal on the indexed variables that are walked before the values of the others are asked
/// for their rows.
constexpr int LongRing = 32;

CellKey keyOf(const LineTexts::Value &value)
{
    return {value.text, CompareMode::Number, '.', value.text.empty()};
}

bool hasNoValue(const LineTexts &line)
{
    return line.countValues() == 0;
}

} // namespace

ExactSearch::ExactSearch(const TargetTable &table, const std::vector<int> &variables)
    : m_table(table)
    , m_variables(variables)
{
    std::vector<int> indexed;
    for (size_t i = 0; i < variables.size(); ++i) {
        const TargetVariable &variable = table.variables()[size_t(variables[i])];
        if (variable.stored && !variable.range) {
            m_indexed.push_back(i);
            indexed.push_back(variables[i]);
        } else {
            m_rest.push_back(i);
        }
    }
    if (!indexed.empty())
        m_index = table.lineIndex(indexed);
}

const VKTab::LineIndex *ExactSearch::onlyIndex() const
{
    return m_rest.empty() ? m_index.get() : nullptr;
}

void ExactSearch::forEach(const LineTexts &line, const Visit &visit) const
{
    if (hasNoValue(line))
        return;
    if (!m_index) {
        forEachCandidate(elementCandidates(line), -1, -1, line, visit);
        return;
    }
    std::vector<CellKey> keys;
    keys.reserve(m_indexed.size());
    for (size_t place : m_indexed)
        keys.push_back(keyOf(line.values[place]));
    const int first = m_index->find(keys);
    if (first >= 0)
        forEachOfRing(first, line, visit);
}

void ExactSearch::forEachOfRing(int first, const LineTexts &line, const Visit &visit) const
{
    int steps = 0;
    for (int row = first; row >= 0; row = m_index->nextOf(row)) {
        if (restEquals(line, row) && !visit(row))
            return;
        if (++steps == LongRing && !m_rest.empty()) {
            forEachCandidate(elementCandidates(line), row, first, line, visit);
            return;
        }
    }
}

void ExactSearch::forEachCandidate(const std::vector<int> &rows, int after, int ring,
                                   const LineTexts &line, const Visit &visit) const
{
    for (int row : rows) {
        if (row <= after || (ring >= 0 && m_index->firstOf(row) != ring))
            continue;
        if (restEquals(line, row) && !visit(row))
            return;
    }
}

std::vector<int> ExactSearch::elementCandidates(const LineTexts &line) const
{
    size_t chosen = m_rest.front();
    size_t fewest = std::numeric_limits<size_t>::max();
    for (size_t place : m_rest) {
        const std::string_view text = line.values[place].text;
        const size_t count = m_table.elementIndex(m_variables[place])->countCandidates(text);
        if (count < fewest) {
            chosen = place;
            fewest = count;
        }
        if (fewest <= size_t(LongRing)) // no need to build another index
            break;
    }
    return m_table.elementIndex(m_variables[chosen])->candidates(line.values[chosen].text);
}

std::vector<int> ExactSearch::rows(const LineTexts &line, int limit) const
{
    std::vector<int> found;
    forEach(line, [&](int row) {
        found.push_back(row);
        return int(found.size()) < limit;
    });
    return found;
}

bool ExactSearch::equals(const LineTexts::Value &value, int row, size_t place) const
{
    const int variable = m_variables[place];
    const TargetVariable &target = m_table.variables()[size_t(variable)];
    std::string scratch;
    const std::string_view cell = m_table.text(row, variable, scratch);
    if (cell.empty() || value.text.empty())
        return cell.empty() && value.text.empty();
    if (keyOf(value) == CellKey(cell, CompareMode::Number, target.decimalChar, false))
        return true;
    return target.range && rangeContains(cell, target.decimalChar, value.text, value.decimalChar);
}

bool ExactSearch::equals(const LineTexts &line, int row) const
{
    if (hasNoValue(line))
        return false;
    for (size_t place = 0; place < m_variables.size(); ++place) {
        if (!equals(line.values[place], row, place))
            return false;
    }
    return true;
}

bool ExactSearch::equalsAsText(const LineTexts::Value &value, int row, size_t place) const
{
    const int variable = m_variables[place];
    const TargetVariable &target = m_table.variables()[size_t(variable)];
    std::string scratch;
    const std::string_view cell = m_table.text(row, variable, scratch);
    return cell == value.text ||
           (target.range && rangeHasTexts(cell, target.decimalChar, value.text, value.decimalChar));
}

bool ExactSearch::restEquals(const LineTexts &line, int row) const
{
    for (size_t place : m_rest) {
        if (!equals(line.values[place], row, place))
            return false;
    }
    return true;
}

bool ExactSearch::hasSameRanges(const LineTexts &line, int row) const
{
    for (size_t place : m_rest) {
        const TargetVariable &target = m_table.variables()[size_t(m_variables[place])];
        std::string scratch;
        const std::string_view cell = m_table.text(row, m_variables[place], scratch);
        const LineTexts::Value &value = line.values[place];
        if (target.range && !sameRange(cell, target.decimalChar, value.text, value.decimalChar))
            return false;
    }
    return true;
}

} // namespace Mapper
