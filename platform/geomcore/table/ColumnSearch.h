#pragma once

#include <geomcore/value/RangeText.h>

#include <QString>

#include <span>
#include <string>
#include <utility>
#include <vector>

namespace VKTab {

class CellKey;
class TableData;
struct InternedColumn;
struct TableField;

/// Index of one column of a table: which texts of the column equal a value, or offer it as a range,
/// and which rows have a text. Numbers compare by value, other texts exactly after trimming,
/// missing cells equal an empty value. Immutable; any thread; lives as long as its table.
class ColumnSearch
{
public:
    ColumnSearch(const TableData &table, int column);

    /// The interned texts that match, ascending. With `rangeContains` a range matches by what it
    /// offers, else by its text.
    [[nodiscard]] std::vector<quint32> match(const QString &value, bool rangeContains) const;
    /// Interned text of each row.
    [[nodiscard]] const std::vector<quint32> &ids() const;
    /// Rows with an interned text, ascending.
    [[nodiscard]] std::span<const int> rows(quint32 id) const;

private:
    using HashEntry = std::pair<quint64, quint32>;
    struct LargeRange
    {
        quint32 id;
        RangeText range;
    };

    [[nodiscard]] CellKey key(std::string_view text) const;
    void addTexts(bool isRange);
    /// True if the text was taken as a range.
    bool addRange(quint32 id);
    void addRows();
    void matchTexts(const CellKey &wanted, std::vector<quint32> &result) const;
    void matchRanges(const CellKey &wanted, const QString &value,
                     std::vector<quint32> &result) const;

    const TableData &m_table;
    const InternedColumn &m_column;
    const TableField &m_field;
    std::vector<HashEntry> m_texts;    // sorted; all texts
    std::vector<HashEntry> m_elements; // sorted; elements of small ranges
    std::vector<LargeRange> m_largeRanges;
    std::vector<bool> m_isRange; // by interned text; empty if no text is a range
    std::vector<int> m_rowStart; // by interned text, and one more
    std::vector<int> m_rows;
};

} // namespace VKTab
