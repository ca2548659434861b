#include "TableColumnValues.h"

#include "NaturalOrder.h"
#include "TableCellText.h"

#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>
#include <geomcore/value/CanonicalNumber.h>

#include <algorithm>
#include <unordered_map>

namespace {

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

} // namespace

TableColumnValues::TableColumnValues(const VKTab::Content &table, const VKTab::Var &var)
    : m_data(table.getTableData())
    , m_var(var)
    , m_decimalChar(table.getDecimalChar(var.getVarId()))
{
    const int column = VKTab::LineView::columnOf(var.getVarId());
    if (!m_data)
        return;
    if (column >= 0 && column < m_data->columnCount() && showsRawText(*m_data, column))
        takeFileColumn(table, column);
    else
        readLines(table);
}

TableColumnValues::~TableColumnValues() = default;

void TableColumnValues::takeFileColumn(const VKTab::Content &table, int column)
{
    const VKTab::InternedColumn &interned = m_data->interned(column);
    m_shared = &interned.ids;
    m_texts.reserve(interned.values.size());
    for (const std::string_view value : interned.values)
        m_texts.push_back(m_data->isMissing(value) ? std::string_view() : trimmed(value));
    if (!table.isPlain())
        takeChangedLines(table, column);
}

void TableColumnValues::takeChangedLines(const VKTab::Content &table, int column)
{
    m_own = *m_shared;
    m_shared = nullptr;
    for (size_t row = 0; row < m_own.size(); ++row) {
        const VKTab::LineId id = m_data->lineId(int(row));
        const VKTab::LineView view(table, id);
        if (view.isPlain())
            continue;
        const QString text = shownText(table.getLine(id, false), m_var);
        std::string scratch;
        if (text.toUtf8().toStdString() == m_data->cell(int(row), column, scratch))
            continue;
        m_own[row] = quint32(m_texts.size());
        m_texts.push_back(m_made.emplace_back(text.toUtf8().toStdString()));
    }
}

void TableColumnValues::readLines(const VKTab::Content &table)
{
    std::unordered_map<std::string, quint32> known;
    m_own.reserve(size_t(m_data->rowCount()));
    for (int row = 0; row < m_data->rowCount(); ++row) {
        const VKTab::Line line = table.getLine(m_data->lineId(row), false);
        const auto [entry, isNew] =
            known.try_emplace(shownText(line, m_var).toUtf8().toStdString(), quint32(known.size()));
        if (isNew)
            m_texts.push_back(m_made.emplace_back(entry->first));
        m_own.push_back(entry->second);
    }
}

std::vector<quint32> TableColumnValues::ranks() const
{
    std::vector<NaturalKey> keys;
    keys.reserve(m_texts.size());
    for (quint32 id = 0; id < m_texts.size(); ++id) {
        if (!m_texts[id].empty())
            keys.emplace_back(id, m_texts[id], m_decimalChar, m_var.isFW());
    }
    std::sort(keys.begin(), keys.end());
    std::vector<quint32> ranks(m_texts.size(), Missing);
    quint32 rank = 0;
    for (size_t i = 0; i < keys.size(); ++i) {
        if (i > 0 && keys[i - 1] < keys[i])
            ++rank;
        ranks[keys[i].id()] = rank;
    }
    return ranks;
}
