#include "LineStatusTable.h"

#include <algorithm>

namespace VKTab {

bool LineStatusTable::set(const LineId &line, const QString &key, const QVariant &value)
{
    const bool clears = !value.isValid() || value.toString().isEmpty();
    const Column *known = find(key);
    if (!line.isValid() || (clears && !known))
        return false;
    if (!known) {
        m_columns.emplace_back().key = key;
        known = &m_columns.back();
    }
    Column &column = m_columns[static_cast<size_t>(known - m_columns.data())];
    return column.store(line, clears ? 0 : column.numberOf(value));
}

QVariant LineStatusTable::get(const LineId &line, const QString &key) const
{
    const Column *column = line.isValid() ? find(key) : nullptr;
    return column ? column->values[column->at(line)] : QVariant(QStringLiteral(""));
}

bool LineStatusTable::removeLine(const LineId &line)
{
    bool changed = false;
    for (Column &column : m_columns)
        changed |= column.store(line, 0);
    return changed;
}

bool LineStatusTable::copyLine(const LineId &from, const LineId &to)
{
    bool changed = false;
    for (Column &column : m_columns)
        changed |= column.store(to, column.at(from));
    return changed;
}

const LineStatusTable::Column *LineStatusTable::find(const QString &key) const
{
    const auto column = std::find_if(m_columns.begin(), m_columns.end(),
                                     [&](const Column &c) { return c.key == key; });
    return column == m_columns.end() ? nullptr : &*column;
}

quint32 LineStatusTable::Column::at(const LineId &line) const
{
    if (line.value(1) != 0) {
        const auto other = others.find(line);
        return other == others.end() ? 0 : other->second;
    }
    const auto page = pages.find(line.value(0) >> PageBits);
    return page == pages.end() ? 0 : page->second[size_t(line.value(0)) % PageSize];
}

quint32 &LineStatusTable::Column::place(const LineId &line)
{
    if (line.value(1) != 0)
        return others[line];
    return pages[line.value(0) >> PageBits][size_t(line.value(0)) % PageSize];
}

bool LineStatusTable::Column::store(const LineId &line, quint32 number)
{
    if (at(line) == number)
        return false;
    place(line) = number;
    return true;
}

quint32 LineStatusTable::Column::numberOf(const QVariant &value)
{
    const auto known = std::find(values.begin() + 1, values.end(), value);
    const auto number = static_cast<quint32>(known - values.begin());
    if (known == values.end())
        values.push_back(value);
    return number;
}

} // namespace VKTab
