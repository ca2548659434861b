#pragma once

#include "CellValues.h"
#include "ColumnChance.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <bit>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

namespace Plan {

/// Cells of some lines in some variables, as numbers of their variable's CellValues. Those of a
/// line lie together, each in as many bytes as it needs once all are there.
class CellMatrix
{
public:
    CellMatrix() = default;
    /// No variable will have more values.
    CellMatrix(size_t lines, size_t variables,
               size_t mostValues = std::numeric_limits<std::uint32_t>::max())
        : m_lines(lines)
        , m_width(bytesFor(mostValues))
        , m_stride(variables * m_width)
        , m_bytes(lines * m_stride + sizeof(std::uint32_t)) // the last one is read as four bytes
    {
        for (size_t variable = 0; variable < variables; ++variable)
            m_columns.push_back({variable * m_width, maskOf(m_width)});
    }
    [[nodiscard]] int at(size_t line, size_t variable) const
    {
        const Column &column = m_columns[variable];
        std::uint32_t value = 0;
        std::memcpy(&value, m_bytes.data() + line * m_stride + column.offset, sizeof value);
        return int(value & column.mask);
    }
    /// Tells the processor that the line will be asked for.
    void fetch(size_t line) const { __builtin_prefetch(m_bytes.data() + line * m_stride); }
    /// Until pack().
    void set(size_t line, size_t variable, int value)
    {
        std::memcpy(m_bytes.data() + line * m_stride + m_columns[variable].offset, &value, m_width);
    }
    /// When all are there: \a counts says for each variable how many values it has.
    VELKGEOMCORE_EXPORT void pack(const std::vector<int> &counts);

private:
    struct Column
    {
        size_t offset = 0;
        std::uint32_t mask = 0; ///< Of the bytes from there on those that are its own.
    };
    static_assert(std::endian::native == std::endian::little, "the first bytes are the low ones");

    /// For so many different numbers.
    [[nodiscard]] static size_t bytesFor(size_t values)
    {
        size_t bytes = 1;
        while (bytes < sizeof(std::uint32_t) && values > size_t(1) << 8 * bytes)
            ++bytes;
        return bytes;
    }
    [[nodiscard]] static std::uint32_t maskOf(size_t bytes)
    {
        return std::uint32_t((std::uint64_t(1) << 8 * bytes) - 1);
    }

    size_t m_lines = 0;
    size_t m_width = 0; ///< Of a cell, until pack().
    size_t m_stride = 0;
    std::vector<Column> m_columns;
    std::vector<std::uint8_t> m_bytes;
};

/// One target of a mapping as a plan sees it: its open rows, those that no settled line has, and
/// the open source lines with the values that this target sees.
struct PlanTarget
{
    int table = 0;    ///< Targets of the same table have the same number, and the same open rows.
    int rowCount = 0; ///< Of the table.
    bool hasSourceName = false; ///< It is called as the source is, so most lines will be here.
    std::vector<int> openRows;  ///< Ascending.
    std::vector<int> variables; ///< Numbers of the variables that both have, alike in all targets.
    std::vector<char> keys;     ///< By place in variables: it is meant to tell lines apart.
    CellMatrix lines;           ///< By open source line.
    CellMatrix rows;            ///< By open row.
    std::vector<char> takes;    ///< By open source line: whether the conditions hold.
    std::vector<int> settled;   ///< By source row: the row of its settled line, or -1.
    std::vector<ColumnChance> chances; ///< By place in variables.
};

struct PlanTables
{
    std::vector<CellValues> values; ///< By number of the variable.
    int sourceRows = 0;
    std::vector<int> openLines; ///< Rows of the source table, ascending.
    int variableCount = 0;
    std::vector<PlanTarget> targets; ///< In order.
};

} // namespace Plan
