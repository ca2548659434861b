#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/table/TableData.h>

#include <QHash>

#include <vector>

namespace VelkRelease {

/// Line numbers of a table that is imported again: a line keeps the number that the line with the
/// same key had, every other line gets one that no line ever had. Of lines with equal keys the
/// first keeps the number of the former first, and so on. Keys compare as the cells of an index do:
/// "9.0" is "9".
class VELKRELEASE_EXPORT LineNumbers
{
public:
    /// \a descriptor tells decimal characters and missing values for both tables.
    LineNumbers(VKTab::TableDescriptor descriptor, QStringList keyColumns);

    /// The table as it was imported before; without one the numbers are 1, 2, 3 ... Without the key
    /// columns in it no line keeps its number.
    void setFormer(const VKTab::TableData &former);
    /// Numbers of the rows of the table, which must have the key columns.
    [[nodiscard]] std::vector<int> numbersFor(const VKTab::TableData &table);
    /// The smallest number never given so far.
    [[nodiscard]] int next() const { return m_next; }

private:
    VKTab::TableDescriptor m_descriptor;
    QStringList m_keyColumns;
    QHash<QByteArray, QList<int>> m_former;
    int m_next = 1;
};

} // namespace VelkRelease
