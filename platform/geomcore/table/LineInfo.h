#pragma once

#include <geomcore/value/LineId.h>

#include <QList>

namespace VKTab {

/// Descriptor of a table line: its canonical id and its row in the table. A default one names no
/// line.
class LineInfo
{
public:
    constexpr LineInfo() = default;
    constexpr LineInfo(const LineId &id, int row)
        : m_id(id)
        , m_row(row)
    {
    }

    [[nodiscard]] constexpr bool isValid() const { return m_id.isValid(); }
    /// The id to compare, to select and to ask visibility with; not valid if there is no line.
    [[nodiscard]] constexpr LineId getLineId() const { return m_id; }
    /// Row in the layer that holds the line, from 0; -1 if it holds none.
    [[nodiscard]] constexpr int getRow() const { return m_row; }

    friend constexpr bool operator==(const LineInfo &a, const LineInfo &b) = default;

private:
    LineId m_id;
    int m_row = -1;
};

} // namespace VKTab

Q_DECLARE_TYPEINFO(VKTab::LineInfo, Q_PRIMITIVE_TYPE);
