#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <geomcore/value/LineId.h>
#include <geomcore/value/Value.h>
#include <geomcore/value/VarId.h>

#include <boost/container/flat_map.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace VKTab {

class Content;
class Line;
class ModifyLayer;
class TableData;

/// What evaluates a line without copying it: a table, a row in it, and what was put over it. Owns
/// nothing: the table, and the Line it was made from, must outlive it, and the table must not get
/// new layers meanwhile. Columns are those of the file, hidden ones included; added layers have no
/// column here.
class VELKGEOMCORE_EXPORT LineView
{
public:
    LineView() = default;
    /// A line as the file has it.
    LineView(const TableData &table, int row)
        : m_table(&table)
        , m_row(row)
    {
    }
    /// A line with the cells that were changed over it.
    LineView(const TableData &table, const ModifyLayer &changes, int row)
        : m_table(&table)
        , m_modify(&changes)
        , m_row(row)
    {
    }
    /// The line as it shows itself now, put-in values included.
    LineView(const Line &line);
    /// The line as the table has it now, changed cells included.
    LineView(const Content &content, const LineId &id);

    [[nodiscard]] bool isValid() const { return m_table && m_row >= 0; }
    /// Null for an invalid view.
    [[nodiscard]] const TableData *table() const { return m_table; }
    [[nodiscard]] int row() const { return m_row; }
    [[nodiscard]] LineId lineId() const;
    [[nodiscard]] int columnCount() const;

    /// The line shows exactly what the file has, so the table may be read directly.
    [[nodiscard]] bool isPlain() const;

    /// Bytes of the file's cell, whatever was put over it: for a range column this is the range
    /// that the line offers. The result points into the table or into `scratch`.
    [[nodiscard]] std::string_view cell(int column, std::string &scratch) const;
    /// What the line shows, UTF-8, in plain notation (blanks at both ends removed, numbers with a
    /// decimal point), empty for a missing value. Points into the table or into `scratch`.
    [[nodiscard]] std::string_view text(int column, std::string &scratch) const;
    /// As text(), null for a missing value.
    [[nodiscard]] Value value(int column) const;
    /// The value as a number; nothing if it is missing or no number.
    [[nodiscard]] std::optional<double> number(int column) const;

    /// Column of a file variable, -1 for any other variable.
    [[nodiscard]] static int columnOf(const VarId &id);
    /// Variable of a file column.
    [[nodiscard]] static VarId varIdOf(int column);

private:
    friend class ComputedColumns;
    [[nodiscard]] std::optional<Value> shownInstead(int column) const;
    /// Sets \a text to what was put over the cell; false if nothing was.
    bool takeShownInstead(int column, std::string &text) const;
    /// The text of a cell in plain notation; empty if it means "no value".
    [[nodiscard]] std::string_view shownText(int column, std::string_view text,
                                             std::string &scratch) const;

    const TableData *m_table = nullptr;
    const ModifyLayer *m_modify = nullptr;
    const boost::container::flat_map<VarId, Value> *m_overlay = nullptr;
    int m_row = -1;
};

} // namespace VKTab
