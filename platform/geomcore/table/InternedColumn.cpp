#include "InternedColumn.h"

#include "TableDataPrivate.h"
#include <geomcore/value/CellHash.h>

namespace VKTab {

namespace {

/// Gives each text its number; open addressing over numbers of values.
class Interner
{
public:
    explicit Interner(InternedColumn &column)
        : m_column(column)
        , m_slots(64, Free)
    {
    }

    /// \a lasting: the bytes live as long as the column.
    quint32 idOf(std::string_view text, bool lasting)
    {
        if ((m_column.values.size() + 1) * 2 > m_slots.size())
            grow();
        size_t slot = hashBytes(text) & (m_slots.size() - 1);
        while (m_slots[slot] != Free) {
            if (m_column.values[m_slots[slot]] == text)
                return m_slots[slot];
            slot = (slot + 1) & (m_slots.size() - 1);
        }
        m_slots[slot] = quint32(m_column.values.size());
        m_column.values.push_back(lasting ? text
                                          : std::string_view(m_column.unquoted.emplace_back(text)));
        return m_slots[slot];
    }

private:
    static constexpr quint32 Free = ~quint32(0);

    void grow()
    {
        m_slots.assign(m_slots.size() * 2, Free);
        for (size_t id = 0; id < m_column.values.size(); ++id) {
            size_t slot = hashBytes(m_column.values[id]) & (m_slots.size() - 1);
            while (m_slots[slot] != Free)
                slot = (slot + 1) & (m_slots.size() - 1);
            m_slots[slot] = quint32(id);
        }
    }

    InternedColumn &m_column;
    std::vector<quint32> m_slots;
};

} // namespace

const InternedColumn &TableData::interned(int column) const
{
    Interned &interned = m_interned[size_t(column)];
    std::call_once(interned.once, [this, column, &interned] { intern(column, interned.column); });
    return interned.column;
}

void TableData::intern(int column, InternedColumn &out) const
{
    Interner interner(out);
    out.ids.reserve(m.rowCount());
    std::vector<std::string_view> cells(size_t(column) + 1);
    std::string scratch;
    for (int row = 0; row < rowCount(); ++row) {
        firstCells(row, cells, scratch);
        const std::string_view text = cells.back();
        const bool lasting = text.data() >= m.bytes && text.data() <= m.bytes + m.size;
        out.ids.push_back(interner.idOf(text, lasting));
    }
}

} // namespace VKTab
