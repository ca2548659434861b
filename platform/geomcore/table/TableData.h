#pragma once

#include "InternedColumn.h"
#include "TableContents.h"

#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace VKTab {

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
    /// Of what a reader found.
    explicit TableData(TableContents contents);
    ~TableData();
    TableData(const TableData &) = delete;
    TableData &operator=(const TableData &) = delete;

    /// Reads descriptor and lines. Any error but those of warnings() fails the read; a line with a
    /// range that does not parse is marked, see markedRows().
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
    [[nodiscard]] const TableDescriptor &descriptor() const { return m.descriptor; }
    /// Native path of the CSV file, or the name given to fromMemory().
    [[nodiscard]] const QString &fileName() const { return m.fileName; }
    /// The header row as it is written, also where names were repaired.
    [[nodiscard]] const QStringList &header() const { return m.header; }
    [[nodiscard]] int rowCount() const { return int(m.rowCount()); }
    [[nodiscard]] int columnCount() const { return m.columnCount; }
    /// Column of that exact name; -1 if there is none.
    [[nodiscard]] int columnOf(QStringView name) const { return m.columnOf(name); }
    /// The fields by name, those without a column of the file too.
    [[nodiscard]] const FieldIndex &fields() const { return m.fields; }

    /// The whole file.
    [[nodiscard]] std::string_view bytes() const { return {m.bytes, size_t(m.size)}; }
    /// The bytes of a row without its line end.
    [[nodiscard]] std::string_view rawRow(int row) const { return m.rawRow(size_t(row)); }
    /// Whether a cell of the row is quoted. The cells of other rows are their bytes.
    [[nodiscard]] bool hasQuotes(int row) const { return m.hasQuotes(size_t(row)); }
    /// Splits a row; \a cells has columnCount() elements. Views point into the table, except for
    /// cells with doubled quotes, which are unquoted into \a scratch and valid until it changes.
    void cells(int row, std::span<std::string_view> cells, std::string &scratch) const
    {
        firstCells(row, cells, scratch);
    }
    /// As above, for the first cells.size() columns only.
    void firstCells(int row, std::span<std::string_view> cells, std::string &scratch) const
    {
        m.firstCells(size_t(row), cells, scratch);
    }
    /// One cell, unquoted.
    [[nodiscard]] std::string_view cell(int row, int column, std::string &scratch) const;
    [[nodiscard]] QString text(int row, int column) const;
    [[nodiscard]] bool isMissing(std::string_view cell) const { return m.isMissing(cell); }
    /// Whether the cells of the columns \a first to \a last of a row have the same bytes as those
    /// of a row of another table, which has as many columns. False also where that is not known
    /// without splitting the rows.
    [[nodiscard]] bool hasSameBytes(int row, const TableData &other, int otherRow, int first,
                                    int last) const;

    /// Ask the memory for a row's offset, later for its bytes, ahead of their use.
    void prefetchOffset(int row) const { __builtin_prefetch(&m.rows[size_t(row)]); }
    void prefetchRow(int row) const { __builtin_prefetch(m.bytes + m.rowBegin(size_t(row))); }

    /// First component of a line's id; the data row from 1 if the table has no column of ids.
    [[nodiscard]] int lineNumber(int row) const { return m.lineNumber(size_t(row)); }
    /// Second component; 0 if there is no column for it.
    [[nodiscard]] int lineSubNumber(int row) const { return m.lineSubNumber(size_t(row)); }
    [[nodiscard]] LineId lineId(int row) const;
    /// Row of a line; -1 if no line has that id.
    [[nodiscard]] int rowOf(int lineNumber, int lineSubNumber = 0) const;
    [[nodiscard]] int rowOf(const LineId &id) const;

    /// Rows, ascending, with a range that does not parse, which offers no values, or one of more
    /// than RangeText::MaxValues values.
    [[nodiscard]] const std::vector<int> &markedRows() const { return m.markedRows; }
    /// What is wrong but kept nothing from being read: formulas and conditions that do not parse,
    /// the marked rows. As many as TableErrors keeps, and the number of the rest.
    [[nodiscard]] const TableErrorList &warnings() const { return m.warnings; }

    /// The column with its values interned; made at the first call, which may come from any thread.
    [[nodiscard]] const InternedColumn &interned(int column) const;
    /// The formulas of computed fields without a column.
    [[nodiscard]] const ComputedColumns &computed() const { return *m.computed; }

private:
    struct Interned;

    void intern(int column, InternedColumn &out) const;

    const TableContents m;
    const std::unique_ptr<Interned[]> m_interned;
};

} // namespace VKTab
