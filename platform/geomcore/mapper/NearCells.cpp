#include "NearCells.h"

#include "CellSimilarity.h"
#include "SimilarityRules.h"
#include "TargetTable.h"

#include <geomcore/table/TableData.h>
#include <geomcore/value/CanonicalNumber.h>

#include <algorithm>
#include <cmath>

namespace Mapper {

namespace {

template<class Pairs, class Key>
std::vector<int> rowsOf(const Pairs &pairs, Key low, Key high, size_t limit)
{
    const auto from = std::lower_bound(pairs.begin(), pairs.end(), std::pair(low, -1));
    std::vector<int> rows;
    for (auto at = from; at != pairs.end() && at->first <= high; ++at) {
        if (rows.size() == limit)
            return {};
        rows.push_back(at->second);
    }
    return rows;
}

} // namespace

NearCells::NearCells(const TargetTable &table, int variable, const std::vector<int> &rows)
{
    const TargetVariable &target = table.variables()[size_t(variable)];
    std::string scratch;
    for (int row : rows)
        add(table.text(row, variable, scratch), target.decimalChar, row);
    std::sort(m_numbers.begin(), m_numbers.end());
    std::sort(m_texts.begin(), m_texts.end());
    std::sort(m_tokens.begin(), m_tokens.end());
}

void NearCells::add(std::string_view text, char decimalChar, int row)
{
    if (text.empty())
        return;
    if (const auto number = VKTab::CanonicalNumber::parse(text, decimalChar)) {
        m_numbers.emplace_back(number->toDouble(), row);
        return;
    }
    const ComparableText comparable(text);
    m_texts.emplace_back(qHash(comparable.text()), row);
    for (const QStringView token : comparable.tokens())
        m_tokens.emplace_back(qHash(token), row);
}

std::vector<int> NearCells::rows(const ComparableCell &value, size_t limit) const
{
    if (!value.hasValue())
        return {};
    if (!value.number())
        return textRows(value.text(), limit);
    const double x = *value.number();
    const double near = std::fabs(x) * (1 - NumberRange);
    const double far = std::fabs(x) / (1 - NumberRange);
    std::vector<int> found =
        x < 0 ? rowsOf(m_numbers, -far, -near, limit) : rowsOf(m_numbers, near, far, limit);
    return found.empty() ? rowsOf(m_numbers, x, x, limit) : found;
}

std::vector<int> NearCells::textRows(std::string_view text, size_t limit) const
{
    const ComparableText comparable(text);
    std::vector<int> best;
    for (const QStringView token : comparable.tokens()) {
        const size_t hash = qHash(token);
        std::vector<int> found = rowsOf(m_tokens, hash, hash, limit);
        if (!found.empty() && (best.empty() || found.size() < best.size()))
            best = std::move(found);
    }
    if (!best.empty())
        return best;
    const size_t hash = qHash(comparable.text());
    return rowsOf(m_texts, hash, hash, limit);
}

} // namespace Mapper
