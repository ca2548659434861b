#pragma once

#include <geomcore/csv/FieldIndex.h>
#include <geomcore/csv/TableDescriptor.h>

#include <array>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace VKTab {

class ComputedColumns;

/// What a reader found in a table file: the bytes and where everything stands in them. A reader
/// fills it and hands it over; a table never changes it.
struct VELKGEOMCORE_EXPORT TableContents
{
    /// Set in a row's offset if a cell of it is quoted.
    static constexpr quint64 QuoteBit = quint64(1) << 63;

    [[nodiscard]] size_t rowCount() const { return rows.empty() ? 0 : rows.size() - 1; }
    [[nodiscard]] quint64 rowBegin(size_t row) const { return rows[row] & ~QuoteBit; }
    [[nodiscard]] bool hasQuotes(size_t row) const { return (rows[row] & QuoteBit) != 0; }
    [[nodiscard]] std::string_view rawRow(size_t row) const;
    void firstCells(size_t row, std::span<std::string_view> cells, std::string &scratch) const;
    [[nodiscard]] bool isMissing(std::string_view cell) const
    {
        if (cell.empty())
            return emptyIsMissing;
        return maybeMissing[uchar(cell.front())] && descriptor.isMissing(cell);
    }
    /// Column of the file; -1 if there is none of that name.
    [[nodiscard]] int columnOf(QStringView name) const;
    [[nodiscard]] int lineNumber(size_t row) const
    {
        return lineNumbers.empty() ? int(row) + 1 : lineNumbers[row];
    }
    [[nodiscard]] int lineSubNumber(size_t row) const
    {
        return lineSubNumbers.empty() ? 0 : lineSubNumbers[row];
    }

    /// Takes over the descriptor's fields and missing values.
    void setDescriptor(const TableDescriptor &table);

    std::shared_ptr<const void> owner; ///< Of the bytes: a mapped file or an array.
    const char *bytes = nullptr;
    quint64 size = 0;
    /// Offset of each row, with QuoteBit, and behind the last one where a further row would begin.
    std::vector<quint64> rows;
    int columnCount = 0;
    bool emptyIsMissing = true;
    /// Whether a cell that begins with that byte may mean "no value".
    std::array<bool, 256> maybeMissing{};
    TableDescriptor descriptor;
    FieldIndex fields;
    QString fileName;
    QStringList header;
    std::vector<int> lineNumbers;    ///< Empty: the data row.
    std::vector<int> lineSubNumbers; ///< Empty: 0.
    /// Rows by line number if the numbers lie densely, else rows sorted by id.
    std::vector<int> rowByNumber;
    std::vector<int> rowsById;
    std::vector<int> markedRows;
    TableErrorList warnings;
    std::shared_ptr<const ComputedColumns> computed;
};

} // namespace VKTab
