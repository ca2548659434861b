#pragma once

#include <geomcore/table/LineMapping.h>

#include <vector>

/// The rows of a view: places of a line mapping, all in its order unless said otherwise. Finds a
/// row's line and a line's row without a search.
class TableRows
{
public:
    TableRows() = default;
    explicit TableRows(const VKTab::LineMapping &mapping);
    /// Shows the given places of the mapping in that order.
    TableRows(const VKTab::LineMapping &mapping, std::vector<int> places);

    [[nodiscard]] const VKTab::LineMapping &mapping() const { return m_mapping; }
    [[nodiscard]] int count() const { return m_count; }
    /// Place in the mapping, -1 for a row out of range.
    [[nodiscard]] int placeAt(int row) const;
    [[nodiscard]] VKTab::LineId lineId(int row) const;
    [[nodiscard]] int rowOf(const VKTab::LineId &line) const;
    /// The same lines in the same order.
    [[nodiscard]] bool sameLines(const TableRows &other) const;

private:
    VKTab::LineMapping m_mapping;
    int m_count = 0;
    bool m_isAll = true;
    std::vector<int> m_places; // by row; unused if all
    std::vector<int> m_rows;   // by place, -1 for none; unused if all
};
