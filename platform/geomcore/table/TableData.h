#pragma once

#include "InternedColumn.h"
#include <geomcore/csv/TableDescriptor.h>

#include <array>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace VKTab {

class ComputedColumns;
class LineId;
class TableData;

/// Result of reading: a table or, without one, what is wrong.
struct TableReadResult
{
    std::shared_ptr<const TableData> data;
    TableErrorList errors;
    explicit operator bool() const { return data != nullptr; }
};

/// What to do with a header row that does not name every column differently.
enum class HeaderRule : quint8 {
    Exact,  ///< The read fails.
    Repair, ///< The names are completed, see uniqueColumnNames().
};

/// The lines of a table as they lie in its CSV file: RFC 4180, UTF-8 with or without a byte order
/// mark, CRLF or LF, first row the names of the columns. The file is mapped and its structure
/// checked once; cells are views into the mapping. Immutable after reading: any thread may read it,
/// and views are valid as long as the table. A change of the file by another program during that
/// time must replace it (write beside, rename), not write into it.
///
/// Rows count from 0 without the header row. Column i is descriptor().fields[i]; computed fields
/// without a column of the file come after the last column.
class VELKGEOMCORE_EXPORT TableData
{
public:
    ~TableData();
    TableData(const TableData &) = delete;
    TableData &operator=(const TableData &) = delete;

    /// Reads descriptor and lines. Any error but a range that does not parse fails the read; a line
    /// with such a range is marked, see markedRows().
    [[nodiscard]] static TableReadResult read(const QString &descriptorFile);
    /// Reads the lines of \a csvFile for a descriptor at hand.
    [[nodiscard]] static TableReadResult read(const TableDescriptor &descriptor,
                                              const QString &csvFile,
                                              HeaderRule rule = HeaderRule::Exact);
    /// The same on bytes in memory, which stay shared. \a name stands for the file in errors.
    [[nodiscard]] static TableReadResult fromMemory(const TableDescriptor &descriptor,
                                                    const QByteArray &csv,
                                                    const QString &name = QStringLiteral("memory"),
                                                    HeaderRule rule = HeaderRule::Exact);

    /// The descriptor with its fields in the order of the columns and with a plain text field for
    /// each column that it does not name.
    [[nodiscard]] const TableDescriptor &descriptor() const { return m_descriptor; }
    /// Native path of the CSV file, or the name given to fromMemory().
    [[nodiscard]] const QString &fileName() const { return m_fileName; }
    /// The header row as it is written, also where names were repaired.
    [[nodiscard]] const QStringList &header() const { return m_header; }
    [[nodiscard]] int rowCount() const { return int(m_rowCount); }
    [[nodiscard]] int columnCount() const { return m_columnCount; }
    /// Column of that exact name; -1 if there is none.
    [[nodiscard]] int columnOf(QStringView name) const;

    /// The whole file.
    [[nodiscard]] std::string_view bytes() const { return {m_bytes, size_t(m_size)}; }
    /// The bytes of a row without its line end.
    [[nodiscard]] std::string_view rawRow(int row) const;
    /// Whether a cell of the row is quoted. The cells of other rows are their bytes.
    [[nodiscard]] bool hasQuotes(int row) const { return (m_rows[size_t(row)] & QuoteBit) != 0; }
    /// Splits a row; \a cells has columnCount() elements. Views point into the table, except for
    /// cells with doubled quotes, which are unquoted into \a scratch and valid until it changes.
    void cells(int row, std::span<std::string_view> cells, std::string &scratch) const
    {
        firstCells(row, cells, scratch);
    }
    /// As above, for the first cells.size() columns only.
    void firstCells(int row, std::span<std::string_view> cells, std::string &scratch) const;
    /// One cell, unquoted.
    [[nodiscard]] std::string_view cell(int row, int column, std::string &scratch) const;
    [[nodiscard]] QString text(int row, int column) const;
    [[nodiscard]] bool isMissing(std::string_view cell) const
    {
        if (cell.empty())
            return m_emptyIsMissing;
        return m_maybeMissing[uchar(cell.front())] && m_descriptor.isMissing(cell);
    }

    /// Ask the memory for a row's offset, later for its bytes, ahead of their use.
    void prefetchOffset(int row) const { __builtin_prefetch(&m_rows[size_t(row)]); }
    void prefetchRow(int row) const { __builtin_prefetch(m_bytes + rowBegin(size_t(row))); }

    /// First component of a line's id; the data row from 1 if the table has no column of ids.
    [[nodiscard]] int lineNumber(int row) const;
    /// Second component; 0 if there is no column for it.
    [[nodiscard]] int lineSubNumber(int row) const;
    [[nodiscard]] LineId lineId(int row) const;
    /// Row of a line; -1 if no line has that id.
    [[nodiscard]] int rowOf(int lineNumber, int lineSubNumber = 0) const;
    [[nodiscard]] int rowOf(const LineId &id) const;

    /// Rows, ascending, with a range that does not parse; such a cell offers no values.
    [[nodiscard]] const std::vector<int> &markedRows() const { return m_markedRows; }
    [[nodiscard]] bool isMarked(int row) const;
    /// What is wrong in the marked rows; no more than MaxWarnings entries.
    [[nodiscard]] const TableErrorList &warnings() const { return m_warnings; }
    static constexpr int MaxWarnings = 1000;

    /// The column with its values interned; made at the first call, which may come from any thread.
    [[nodiscard]] const InternedColumn &interned(int column) const;
    /// The formulas of computed fields without a column; made at the first call, which may come
    /// from any thread.
    [[nodiscard]] const ComputedColumns &computed() const;

private:
    friend class TableDataReader;
    struct Source;
    struct Interned;
    static constexpr quint64 QuoteBit = quint64(1) << 63;

    TableData();
    void setMissing();
    void intern(int column, InternedColumn &out) const;
    [[nodiscard]] quint64 rowBegin(size_t row) const { return m_rows[row] & ~QuoteBit; }

    const char *m_bytes = nullptr;
    quint64 m_size = 0;
    /// Offset of each row, with QuoteBit, and behind the last one where a further row would begin.
    std::vector<quint64> m_rows;
    size_t m_rowCount = 0;
    int m_columnCount = 0;
    bool m_emptyIsMissing = true;
    /// Whether a cell that begins with that byte may mean "no value".
    std::array<bool, 256> m_maybeMissing{};
    TableDescriptor m_descriptor;
    QString m_fileName;
    QStringList m_header;
    std::vector<int> m_lineNumbers;    ///< Empty: the data row.
    std::vector<int> m_lineSubNumbers; ///< Empty: 0.
    /// Rows by line number if the numbers lie densely, else rows sorted by id.
    std::vector<int> m_rowByNumber;
    std::vector<int> m_rowsById;
    std::vector<int> m_markedRows;
    TableErrorList m_warnings;
    std::unique_ptr<Source> m_source;
    std::unique_ptr<Interned[]> m_interned;
    mutable std::once_flag m_computedOnce;
    mutable std::unique_ptr<const ComputedColumns> m_computed;
};

} // namespace VKTab
