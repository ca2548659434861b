#include "LineSearch.h"

#include "ColumnSearch.h"
#include "ContentData.h"
#include "ContentStructure.h"
#include "LineView.h"
#include "TableData.h"
#include "TupleSearch.h"

#include <algorithm>
#include <numeric>

namespace VKTab {

namespace {

/// Up to so many lines an index is not worth its making.
constexpr int MaxLinesWithoutIndex = 32;

/// Up to so many rows of one column are compared one by one.
constexpr size_t MaxRowsOfColumn = 16;

} // namespace

LineSearch::LineSearch(const Content &content, const QList<FindValue> &values,
                       Finder::FindFlags flags)
    : m_content(content)
    , m_structure(content.d->structure())
    , m_visible(flags.testFlag(Finder::FindVisible) ? content.d->order() : nullptr)
    , m_values(values)
    , m_rangeContains(flags.testFlag(Finder::FindRangeContains))
{
}

QList<FindResult> LineSearch::search(const QVector<LineId> &lines) const
{
    if (lines.size() <= MaxLinesWithoutIndex)
        return searchEach(lines);
    const std::vector<int> rows = matchingRows();
    const TableData &table = *m_structure->table();
    QList<FindResult> results;
    const auto order = m_content.d->order();
    if (m_structure->allLines()->gave(lines) || order->gave(lines)) {
        for (const int row : rows) {
            if (mayShow(row) && (order->contains(row) || !order->gave(lines)))
                results.append(FindResult(table.lineId(row)));
        }
        return results;
    }
    for (const LineId &id : lines) {
        const int row = rows.empty() || !id.isValid() ? -1 : table.rowOf(id);
        if (row >= 0 && mayShow(row) && std::binary_search(rows.begin(), rows.end(), row))
            results.append(FindResult(table.lineId(row)));
    }
    return results;
}

QList<FindResult> LineSearch::searchEach(const QVector<LineId> &lines) const
{
    QList<FindResult> results;
    for (const LineId &id : lines) {
        const LineInfo info = m_structure->lineInfo(id);
        if (info.isValid() && mayShow(info.getRow()) && matches(info.getLineId(), m_values))
            results.append(FindResult(info.getLineId()));
    }
    return results;
}

bool LineSearch::matches(const LineId &id, const QList<FindValue> &values) const
{
    const Line line = m_content.getLine(id, false);
    return std::all_of(values.begin(), values.end(), [&](const FindValue &value) {
        return line.hasValue(value.getVar(), value.getValue(), m_rangeContains);
    });
}

std::vector<int> LineSearch::matchingRows() const
{
    QList<FindValue> others;
    const std::vector<Wanted> wanted = wantedTexts(others);
    std::vector<int> rows;
    if (wanted.empty()) {
        rows.resize(static_cast<size_t>(m_structure->table()->rowCount()));
        std::iota(rows.begin(), rows.end(), 0);
    } else {
        rows = indexedRows(wanted);
    }
    if (!others.isEmpty())
        std::erase_if(rows,
                      [&](int row) { return !matches(m_structure->table()->lineId(row), others); });
    replaceChangedLines(rows);
    return rows;
}

std::vector<LineSearch::Wanted> LineSearch::wantedTexts(QList<FindValue> &others) const
{
    std::vector<Wanted> wanted;
    for (const FindValue &value : m_values) {
        const int column = LineView::columnOf(value.getVar().getVarId());
        if (column < 0 || column >= m_structure->table()->columnCount()) {
            others.append(value);
            continue;
        }
        const ColumnSearch &search = m_structure->search(column);
        Wanted entry{&search, column, search.match(value.getValue().toString(), m_rangeContains),
                     0};
        for (const quint32 text : entry.texts)
            entry.rowCount += search.rows(text).size();
        wanted.push_back(std::move(entry));
    }
    std::sort(wanted.begin(), wanted.end(),
              [](const Wanted &a, const Wanted &b) { return a.rowCount < b.rowCount; });
    return wanted;
}

const TupleSearch *LineSearch::tuples(const std::vector<Wanted> &wanted) const
{
    const size_t rowCount = wanted.front().rowCount;
    if (wanted.size() < 2 || rowCount <= MaxRowsOfColumn)
        return nullptr;
    size_t combinations = 1;
    std::vector<int> columns;
    columns.reserve(wanted.size());
    for (const Wanted &entry : wanted) {
        combinations *= entry.texts.size();
        if (combinations > rowCount / 2)
            return nullptr;
        columns.push_back(entry.number);
    }
    std::ranges::sort(columns);
    return m_structure->tuples(columns, rowCount);
}

namespace {

/// Calls add with one text of each list, for all combinations.
template<class Lists, class Add>
void forEachCombination(const Lists &lists, Add add)
{
    std::vector<size_t> at(lists.size(), 0);
    std::vector<quint32> texts(lists.size());
    while (true) {
        for (size_t i = 0; i < lists.size(); ++i)
            texts[i] = (*lists[i])[at[i]];
        add(texts);
        size_t place = 0;
        while (place < at.size() && ++at[place] == lists[place]->size())
            at[place++] = 0;
        if (place == at.size())
            return;
    }
}

} // namespace

std::vector<int> LineSearch::indexedRows(const std::vector<Wanted> &wanted) const
{
    if (const TupleSearch *index = tuples(wanted)) {
        std::vector<const Wanted *> byColumn;
        byColumn.reserve(wanted.size());
        for (const Wanted &entry : wanted)
            byColumn.push_back(&entry);
        std::ranges::sort(byColumn, {}, &Wanted::number);
        std::vector<const std::vector<quint32> *> lists;
        lists.reserve(wanted.size());
        for (const Wanted *entry : byColumn)
            lists.push_back(&entry->texts);
        std::vector<int> found;
        forEachCombination(lists, [&](const auto &texts) { index->addRows(texts, found); });
        std::ranges::sort(found);
        return found;
    }
    const auto fits = [&](int row) {
        return std::all_of(wanted.begin() + 1, wanted.end(), [&](const Wanted &other) {
            return std::binary_search(other.texts.begin(), other.texts.end(),
                                      other.column->ids()[static_cast<size_t>(row)]);
        });
    };
    std::vector<int> rows;
    for (const quint32 text : wanted.front().texts) {
        for (const int row : wanted.front().column->rows(text)) {
            if (fits(row))
                rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void LineSearch::replaceChangedLines(std::vector<int> &rows) const
{
    const QList<LineId> changed = m_structure->modify()->changedLines();
    for (const LineId &id : changed) {
        const int row = m_structure->lineInfo(id).getRow();
        if (row < 0)
            continue;
        const auto place = std::lower_bound(rows.begin(), rows.end(), row);
        const bool found = place != rows.end() && *place == row;
        const bool wanted = matches(id, m_values);
        if (found && !wanted)
            rows.erase(place);
        else if (!found && wanted)
            rows.insert(place, row);
    }
}

} // namespace VKTab
