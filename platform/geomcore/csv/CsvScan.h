#pragma once

#include "TableError.h"

#include <string_view>
#include <vector>

namespace VKTab {

struct ByteMasks;

/// One pass over the rows of a CSV file: finds where they begin and checks quotes, number of cells
/// and UTF-8. On the way it reads the columns of line ids, while their bytes are at hand.
class CsvScan
{
public:
    /// Set in a row's offset if a cell of it is quoted.
    static constexpr quint64 QuoteBit = quint64(1) << 63;
    /// After so many errors the scan ends.
    static constexpr int MaxErrors = 20;

    CsvScan(std::string_view bytes, quint64 begin, int columnCount, const QString &file);

    /// Columns whose integers are wanted; -1 for none.
    void setIdColumns(int number, int subNumber);
    [[nodiscard]] std::string_view bytes() const { return m_bytes; }
    /// Where the next row to be scanned begins.
    [[nodiscard]] quint64 begin() const { return m_rowBegin; }
    /// A scan of some rows only, with the same columns.
    [[nodiscard]] CsvScan part(quint64 begin, quint64 end) const;

    /// Scans all. False if something is wrong, which errors() then tells.
    [[nodiscard]] bool run();

    /// Offsets, and behind the last row's where a further row would begin: one byte of line end is
    /// always counted, also where the file ends without.
    std::vector<quint64> rows;
    std::vector<int> numbers;
    std::vector<int> subNumbers;
    TableErrorList errors;

    [[nodiscard]] static std::string_view rowBytes(std::string_view bytes, quint64 begin,
                                                   quint64 next);

private:
    void scanBlock(const ByteMasks &masks, int length);
    void countCells(quint64 commas, quint64 lineFeeds, int length);
    void scanQuoted();
    void endRow(quint64 lineFeed);
    void readIds(std::string_view row);
    [[nodiscard]] int readId(std::string_view row, int column);
    /// How many of the block's bytes are well-formed UTF-8.
    [[nodiscard]] int wellFormed(quint64 high, int length);
    void wrongCellCount();
    void error(int column, const QString &text);

    std::string_view m_bytes;
    quint64 m_at = 0;
    quint64 m_rowBegin = 0;
    quint64 m_checked = 0; ///< UTF-8 is checked up to here.
    quint64 m_quoteBit = 0;
    int m_commas = 0;
    int m_columnCount = 0;
    int m_idColumn = -1;
    int m_subIdColumn = -1;
    bool m_stop = false;
    std::vector<std::string_view> m_idCells;
    QString m_file;
};

} // namespace VKTab
