#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/table/TableData.h>

namespace VelkRelease {

/// Concludes from the cells of a table what its variables are.
class VELKRELEASE_EXPORT TypeRecognition
{
public:
    explicit TypeRecognition(const VKTab::TableData &table);

    /// Kind, type and decimal character of a column:
    /// - integer, number: every cell with a value is one; integers with leading zeros are codes and
    ///   so texts; a decimal comma is one if no cell speaks against it;
    /// - range: some cell lists values ("10;12;16", "10..50/5") and all the others are ranges too;
    ///   of ranges of texts ("M8;M10") at least half have to list some; one cell in ten may be
    ///   wrong;
    /// - else text.
    [[nodiscard]] VKTab::TableField field(int column) const;

    /// The column that tells the lines apart: the first one if at least nine of its cells in ten
    /// differ, else the first without equal or missing cells that holds texts or integers; -1 if
    /// there is none.
    [[nodiscard]] int keyColumn() const;
    /// Number of rows whose cell in the column is missing or stood in an earlier row.
    [[nodiscard]] int repeatedCells(int column) const;

private:
    [[nodiscard]] bool isRange(int column, VKTab::TableField &field) const;
    [[nodiscard]] bool isNumeric(int column, VKTab::TableField &field) const;
    [[nodiscard]] std::vector<std::string_view> valuesOf(int column) const;

    const VKTab::TableData &m_table;
};

/// "range of numbers with decimal comma": kind and type for a reader.
[[nodiscard]] VELKRELEASE_EXPORT QString describeField(const VKTab::TableField &field);

} // namespace VelkRelease
