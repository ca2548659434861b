#include "TableMatch.h"

#include "LineCells.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <unordered_map>

namespace VelkRelease {

namespace {

/// A variable with fewer values says little about which table it is.
constexpr size_t SeveralValues = 3;
/// Share of a variable's values that is most of them.
constexpr double MostOfColumn = 2.0 / 3;

quint64 sumOver(const LineCells &cells, int row, const std::vector<int> &columns)
{
    if (columns.size() == cells.variables().size())
        return cells.rowHash(row);
    quint64 sum = 0;
    for (const int column : columns)
        sum += cells.valueHash(row, column);
    return sum;
}

int valuesIn(const LineCells &cells, int row, const std::vector<int> &columns)
{
    return int(std::ranges::count_if(columns, [&](int c) { return cells.cell(row, c) != 0; }));
}

/// Something for each of some sums, which are well mixed already, so that their lower bits choose
/// the place.
template<class Value>
class SumTable
{
public:
    /// For so many different ones.
    explicit SumTable(size_t count)
        : m_slots(std::bit_ceil(std::max<size_t>(2 * count, 2)))
    {
    }

    /// The one that is there already, or a new one.
    Value &add(quint64 sum)
    {
        Slot &slot = m_slots[place(keyOf(sum))];
        slot.key = keyOf(sum);
        return slot.value;
    }
    /// Null for a sum that is not there.
    [[nodiscard]] Value *find(quint64 sum)
    {
        Slot &slot = m_slots[place(keyOf(sum))];
        return slot.key == 0 ? nullptr : &slot.value;
    }

private:
    struct Slot
    {
        quint64 key = 0; ///< 0: free.
        [[no_unique_address]] Value value;
    };
    /// 0 is one of very many sums.
    [[nodiscard]] static quint64 keyOf(quint64 sum) { return sum == 0 ? 1 : sum; }
    [[nodiscard]] size_t place(quint64 key) const
    {
        const size_t mask = m_slots.size() - 1;
        size_t slot = size_t(key) & mask;
        while (m_slots[slot].key != 0 && m_slots[slot].key != key)
            slot = (slot + 1) & mask;
        return slot;
    }

    std::vector<Slot> m_slots; ///< A power of two, at most half of them taken.
};

struct Nothing
{
};
using SumSet = SumTable<Nothing>;

/// For each row of the source whether the target has a row that is equal on these columns.
std::vector<bool> equalRows(const LineCells &source, const std::vector<int> &sourceColumns,
                            const LineCells &target, const std::vector<int> &targetColumns)
{
    SumSet sums(size_t(target.rowCount()));
    for (int row = 0; row < target.rowCount(); ++row)
        sums.add(sumOver(target, row, targetColumns));
    std::vector<bool> equal(size_t(source.rowCount()), false);
    for (int row = 0; row < source.rowCount(); ++row) {
        const quint64 sum = sumOver(source, row, sourceColumns);
        equal[size_t(row)] = sum != 0 && sums.find(sum);
    }
    return equal;
}

/// A sum over all columns without one of them; \a position tells sums without different ones apart.
quint64 sumWithout(quint64 sum, quint64 left, size_t position)
{
    return (sum - left) ^ (quint64(position + 1) * Q_UINT64_C(0x9e3779b97f4a7c15));
}

double ratio(double a, double b)
{
    return b > 0 ? a / b : 0;
}

} // namespace

TableMatch::TableMatch(const LineCells &source, const LineCells &target)
    : m_source(&source)
    , m_target(&target)
{
    const auto &mine = source.variables();
    const auto &theirs = target.variables();
    for (size_t i = 0, j = 0; i < mine.size() && j < theirs.size();) {
        if (mine[i] == theirs[j]) {
            m_sourceColumns.push_back(int(i++));
            m_targetColumns.push_back(int(j++));
        } else {
            ++(mine[i] < theirs[j] ? i : j);
        }
    }
    findEqualLines();
    findKeys();
}

void TableMatch::findEqualLines()
{
    m_equal = equalRows(*m_source, m_sourceColumns, *m_target, m_targetColumns);
    m_equalValues.assign(size_t(m_source->rowCount()), 0);
    for (int row = 0; row < m_source->rowCount(); ++row) {
        if (isEqual(row))
            m_equalValues[size_t(row)] = valuesIn(*m_source, row, m_sourceColumns);
    }
}

void TableMatch::findKeys()
{
    std::vector<int> theirs;
    for (const int column : m_source->keyColumns()) {
        const auto found = std::ranges::find(m_sourceColumns, column);
        if (found == m_sourceColumns.end())
            return;
        theirs.push_back(m_targetColumns[size_t(found - m_sourceColumns.begin())]);
    }
    if (!theirs.empty())
        m_keyFound = equalRows(*m_source, m_source->keyColumns(), *m_target, theirs);
}

void TableMatch::findNearLines()
{
    const size_t count = m_sourceColumns.size();
    if (count < 3)
        return;
    SumSet sums(size_t(m_target->rowCount()) * count);
    for (int row = 0; row < m_target->rowCount(); ++row) {
        const quint64 sum = sumOver(*m_target, row, m_targetColumns);
        for (size_t i = 0; i < count; ++i)
            sums.add(sumWithout(sum, m_target->valueHash(row, m_targetColumns[i]), i));
    }
    for (int row = 0; row < m_source->rowCount(); ++row) {
        if (isEqual(row))
            continue;
        const quint64 sum = sumOver(*m_source, row, m_sourceColumns);
        const int values = valuesIn(*m_source, row, m_sourceColumns);
        int &most = m_equalValues[size_t(row)];
        for (size_t i = 0; i < count && most < values; ++i) {
            const quint64 left = m_source->valueHash(row, m_sourceColumns[i]);
            if (sums.find(sumWithout(sum, left, i)))
                most = std::max(most, values - (left != 0));
        }
    }
}

std::vector<TableMatch::NearPair> TableMatch::nearPairs() const
{
    const size_t count = m_sourceColumns.size();
    std::vector<NearPair> pairs;
    if (count < 3 || std::ranges::find(m_equal, false) == m_equal.end())
        return pairs;
    constexpr int None = -1;
    constexpr int Several = -2;
    struct Rows
    {
        int source = None;
        int target = None;
    };
    const auto forEachSum = [](const LineCells &cells, int row, const std::vector<int> &columns,
                               const auto &take) {
        if (valuesIn(cells, row, columns) < 3) // two have to be the same
            return;
        const quint64 sum = sumOver(cells, row, columns);
        for (size_t i = 0; i < columns.size(); ++i) {
            const quint64 left = cells.valueHash(row, columns[i]);
            if (left != 0)
                take(i, sumWithout(sum, left, i));
        }
    };
    // By sums without one variable, those of the lines that are looked for.
    SumTable<Rows> rows(size_t(std::ranges::count(m_equal, false)) * count);
    const auto note = [](int &known, int row) {
        known = known == None ? row : Several;
    };
    for (const bool equal : {false, true}) {
        for (int row = 0; row < m_source->rowCount(); ++row) {
            if (isEqual(row) != equal)
                continue;
            forEachSum(*m_source, row, m_sourceColumns, [&](size_t, quint64 sum) {
                if (!equal)
                    note(rows.add(sum).source, row);
                else if (Rows *const known = rows.find(sum))
                    note(known->source, row);
            });
        }
    }
    for (int row = 0; row < m_target->rowCount(); ++row) {
        forEachSum(*m_target, row, m_targetColumns, [&](size_t, quint64 sum) {
            if (Rows *const known = rows.find(sum))
                note(known->target, row);
        });
    }
    for (int row = 0; row < m_source->rowCount(); ++row) {
        if (isEqual(row))
            continue;
        const size_t before = pairs.size();
        forEachSum(*m_source, row, m_sourceColumns, [&](size_t place, quint64 sum) {
            const Rows *const found = rows.find(sum);
            if (found && found->source == row && found->target >= 0)
                pairs.push_back({row, found->target, place});
        });
        if (pairs.size() > before + 1) // which of them is not known
            pairs.resize(before);
    }
    return pairs;
}

std::vector<std::pair<int, int>> TableMatch::pairsBy(const std::vector<size_t> &places) const
{
    std::vector<int> sourceColumns;
    std::vector<int> targetColumns;
    for (const size_t place : places) {
        sourceColumns.push_back(m_sourceColumns[place]);
        targetColumns.push_back(m_targetColumns[place]);
    }
    constexpr int Several = -1;
    const auto rowsOf = [](const LineCells &cells, const std::vector<int> &columns) {
        std::unordered_map<quint64, int> rows;
        for (int row = 0; row < cells.rowCount(); ++row) {
            const auto [known, isNew] = rows.try_emplace(sumOver(cells, row, columns), row);
            known->second = isNew ? row : Several;
        }
        return rows;
    };
    const auto mine = rowsOf(*m_source, sourceColumns);
    const auto theirs = rowsOf(*m_target, targetColumns);
    std::vector<std::pair<int, int>> pairs;
    for (int row = 0; row < m_source->rowCount(); ++row) {
        const int same = valuesIn(*m_source, row, sourceColumns);
        if (same < 2 || 3 * same < 2 * m_source->valueCount(row))
            continue;
        const quint64 sum = sumOver(*m_source, row, sourceColumns);
        const auto found = theirs.find(sum);
        if (mine.at(sum) == row && found != theirs.end() && found->second != Several)
            pairs.emplace_back(row, found->second);
    }
    return pairs;
}

double TableMatch::valueShare(size_t place) const
{
    const std::vector<quint32> mine = m_source->sortedValues(m_sourceColumns[place]);
    const std::vector<quint32> theirs = m_target->sortedValues(m_targetColumns[place]);
    const auto stays = std::ranges::count_if(
        mine, [&](quint32 value) { return std::ranges::binary_search(theirs, value); });
    return ratio(double(stays), double(mine.size()));
}

bool TableMatch::isRelated() const
{
    return commonCount() >= 2 && 2 * commonCount() >= int(m_source->variables().size());
}

bool TableMatch::hasVariables() const
{
    return isRelated() || (commonCount() > 0 && commonCount() == int(m_source->variables().size()));
}

TableMatch::ColumnShares TableMatch::columnShares() const
{
    double sum = 0;
    double kept = 0;
    bool any = false;
    for (size_t i = 0; i < m_sourceColumns.size(); ++i) {
        const std::vector<quint32> mine = m_source->sortedValues(m_sourceColumns[i]);
        const std::vector<quint32> theirs = m_target->sortedValues(m_targetColumns[i]);
        std::vector<quint32> both;
        std::ranges::set_intersection(mine, theirs, std::back_inserter(both));
        const double share = ratio(double(both.size()), double(mine.size()));
        const bool isKept = share >= MostOfColumn;
        sum += share;
        kept += isKept ? 1 : share;
        both.erase(std::unique(both.begin(), both.end()), both.end());
        any = any || (isKept && both.size() >= SeveralValues);
    }
    const auto count = double(m_source->variables().size());
    return {ratio(sum, count), any ? ratio(kept, count) : 0};
}

double TableMatch::heldShare(int sourceRow) const
{
    const int equal = m_equalValues[size_t(sourceRow)];
    const int all = m_source->valueCount(sourceRow);
    return equal >= 2 && 3 * equal >= 2 * all ? ratio(equal, all) : 0;
}

int TableMatch::heldCount(const std::vector<int> &sourceRows) const
{
    return int(std::ranges::count_if(sourceRows, [this](int row) { return isHeld(row); }));
}

double TableMatch::score(const std::vector<int> &sourceRows) const
{
    double shares = 0;
    for (const int row : sourceRows)
        shares += heldShare(row);
    const auto [fewer, more] = std::minmax({m_source->rowCount(), m_target->rowCount()});
    return ratio(shares, double(sourceRows.size())) *
           ratio(commonCount(), double(m_target->variables().size())) * ratio(fewer, more);
}

bool TableMatch::anyFound() const
{
    return std::ranges::count(m_equal, true) > 0 || std::ranges::count(m_keyFound, true) > 0;
}

} // namespace VelkRelease
