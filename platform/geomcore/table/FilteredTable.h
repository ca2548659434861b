#pragma once

#include "LineView.h"

namespace VKTab {

class ModifyLayer;
class TableData;

/// A table as it was when its filters began to work, whatever its owner makes of it meanwhile. Owns
/// nothing; lives for one evaluation.
class VELKGEOMCORE_EXPORT FilteredTable
{
public:
    FilteredTable(const TableData &data, const ModifyLayer &changes)
        : m_data(data)
        , m_changes(changes)
    {
    }

    [[nodiscard]] const TableData &data() const { return m_data; }
    /// No cell differs from the file's.
    [[nodiscard]] bool isPlain() const;
    /// The line of a row, changed cells included.
    [[nodiscard]] LineView line(int row) const { return {m_data, m_changes, row}; }

private:
    const TableData &m_data;
    const ModifyLayer &m_changes;
};

} // namespace VKTab
