#include "LineStatusTable.h"

#include <algorithm>
#include <utility>

namespace VKTab {

namespace {

bool clears(const QVariant &value)
{
    return !value.isValid() || value.toString().isEmpty();
}

} // namespace

LineStatusTable::Column &LineStatusTable::column(const QString &key)
{
    const Column *const known = find(key);
    if (known)
        return m_columns[static_cast<size_t>(known - m_columns.data())];
    m_columns.emplace_back().key = key;
    return m_columns.back();
}

bool LineStatusTable::set(const LineId &line, const QString &key, const QVariant &value)
{
    if (!line.isValid() || (clears(value) && !find(key)))
        return false;
    Column &places = column(key);
    return places.store(line, clears(value) ? 0 : places.numberOf(value));
}

bool LineStatusTable::set(const QVector<LineId> &lines, const QString &key,
                          const QVariantList &values, const std::vector<quint8> &numbers)
{
    const bool clearsAll = std::all_of(numbers.begin(), numbers.end(),
                                       [&](quint8 number) { return clears(values[number]); });
    if (clearsAll && !find(key))
        return false;
    Column &places = column(key);
    std::vector<quint32> kept;
    for (const QVariant &value : values)
        kept.push_back(clears(value) ? 0 : places.numberOf(value));
    bool changed = false;
    int pageKey = -1;
    Page *page = nullptr; // neighbouring lines share it
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const LineId &line = lines[i];
        const quint32 number = kept[numbers[size_t(i)]];
        if (!line.isValid() || line.value(1) != 0) {
            changed |= line.isValid() && places.store(line, number);
            continue;
        }
        if (std::exchange(pageKey, line.value(0) >> PageBits) != line.value(0) >> PageBits)
            page = &places.pages[pageKey];
        quint32 &place = (*page)[size_t(line.value(0)) % PageSize];
        changed |= std::exchange(place, number) != number;
    }
    return changed;
}

std::vector<int> LineStatusTable::linesWith(const QString &key, const QVariantList &values) const
{
    std::vector<int> lines;
    const Column *const places = find(key);
    if (!places)
        return lines;
    std::vector<bool> wanted;
    for (const QVariant &value : places->values)
        wanted.push_back(values.contains(value));
    wanted[0] = false; // lines without a value are not known here
    for (const auto &[begin, page] : places->pages) {
        for (int i = 0; i < PageSize; ++i) {
            if (wanted[page[size_t(i)]])
                lines.push_back((begin << PageBits) + i);
        }
    }
    for (const auto &[line, number] : places->others) {
        if (wanted[number])
            lines.push_back(line.value(0));
    }
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
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
