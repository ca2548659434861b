#pragma once

#include "TableRows.h"

#include <geomcore/table/Content.h>
#include <geomcore/value/StatusKey.h>

#include <QString>
#include <Qt>

#include <memory>
#include <vector>

class TableColumnValues;

/// Makes the rows of a view out of a table's line mapping: filters first, then at most one sorting.
class TableRowBuilder
{
public:
    explicit TableRowBuilder(const VKTab::Content &table);

    void filter(const TableColumnValues &values, const QString &quickFilter);
    /// How many rows that are left have each text of the values, by the text's number.
    [[nodiscard]] std::vector<int> count(const TableColumnValues &values);
    /// \a ranks are those of the values.
    void sort(const TableColumnValues &values, const std::vector<quint32> &ranks,
              Qt::SortOrder order);
    /// By the order of the key's states; lines without one last.
    void sort(const VKTab::StatusKey &key, Qt::SortOrder order);
    [[nodiscard]] TableRows rows();

private:
    [[nodiscard]] int fileRow(int place) const;
    void takeAll();
    void sortPlaces(const std::vector<quint32> &rankByPlace, quint32 ranks, Qt::SortOrder order);

    VKTab::Content m_table;
    VKTab::LineMapping m_mapping;
    std::shared_ptr<const VKTab::TableData> m_data;
    bool m_isWholeFile;
    bool m_isAll = true;
    std::vector<int> m_places; // unused if all
};
