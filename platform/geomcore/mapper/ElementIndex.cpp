#include "ElementIndex.h"

#include "TargetTable.h"

#include <geomcore/value/CellKey.h>
#include <geomcore/value/RangeText.h>

#include <algorithm>

namespace Mapper {

using VKTab::CellKey;
using VKTab::CompareMode;
using VKTab::RangeText;

namespace {

constexpr qint64 MaxListed = 1000;

quint64 hashOf(std::string_view value, char decimalChar)
{
    return CellKey(value, CompareMode::Number, decimalChar, value.empty()).hash();
}

} // namespace

ElementIndex::ElementIndex(const TargetTable &table, int variable)
{
    for (int row = 0; row < table.data().rowCount(); ++row)
        addRow(table, variable, row);
    std::sort(m_rows.begin(), m_rows.end());
}

void ElementIndex::addRow(const TargetTable &table, int variable, int row)
{
    const TargetVariable &target = table.variables()[size_t(variable)];
    std::string scratch;
    const std::string_view text = table.text(row, variable, scratch);
    const auto range =
        target.range ? RangeText::parse(QString::fromUtf8(text.data(), qsizetype(text.size())),
                                        target.decimalChar)
                     : std::nullopt;
    if (!range || range->isEmpty()) {
        m_rows.emplace_back(hashOf(text, target.decimalChar), row);
    } else if (range->count() > MaxListed) {
        m_wide.push_back(row);
    } else {
        for (qint64 i = 0; i < range->count(); ++i)
            m_rows.emplace_back(hashOf(range->value(i).toStdString(), target.decimalChar), row);
    }
}

ElementIndex::Rows ElementIndex::rowsOf(std::string_view value) const
{
    const quint64 hash = hashOf(value, '.');
    const auto [first, last] =
        std::equal_range(m_rows.begin(), m_rows.end(), std::pair(hash, 0),
                         [](const auto &a, const auto &b) { return a.first < b.first; });
    return {first, last};
}

size_t ElementIndex::countCandidates(std::string_view source) const
{
    size_t count = rowsOf(source).size();
    const auto range = RangeText::parse(QString::fromUtf8(source.data(), qsizetype(source.size())));
    if (range && !range->isEmpty())
        count += rowsOf(range->value(0).toStdString()).size() + m_wide.size();
    return count;
}

std::vector<int> ElementIndex::candidates(std::string_view source) const
{
    std::vector<int> rows;
    const auto add = [&](std::string_view value) {
        for (const auto &[hash, row] : rowsOf(value))
            rows.push_back(row);
    };
    add(source);
    const auto range = RangeText::parse(QString::fromUtf8(source.data(), qsizetype(source.size())));
    if (range && !range->isEmpty()) {
        add(range->value(0).toStdString());
        rows.insert(rows.end(), m_wide.begin(), m_wide.end());
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

} // namespace Mapper
