#include "LineFilters.h"

#include "ColumnSearch.h"
#include "Content.h"
#include "ContentStructure.h"
#include "FilteredTable.h"
#include "FilterRule.h"
#include "LineView.h"
#include "TableData.h"

#include <algorithm>

namespace VKTab {

LineFilters::LineFilters(const Content &content, std::shared_ptr<const ContentStructure> structure)
    : m_structure(std::move(structure))
{
    if (!m_structure->table())
        return;
    for (const auto &layer : m_structure->allLayers()) {
        const auto filter = layer->getFilter(layer->getFilterConditions(), content);
        if (filter)
            add(*filter);
    }
}

void LineFilters::add(const FilterBase &filter)
{
    if (filter.isUsed())
        m_filters.push_back(filter);
}

bool LineFilters::filtersAnything() const
{
    if (!m_filters.empty())
        return true;
    const auto layers = m_structure->allLayers();
    return std::any_of(layers.begin(), layers.end(), [](const boost::shared_ptr<LayerI> &layer) {
        return !layer->getHiddenLines().isEmpty() || !layer->getColumnFilter().isEmpty();
    });
}

std::shared_ptr<const LineOrder> LineFilters::evaluate()
{
    if (!m_structure->table() || !filtersAnything())
        return m_structure->allLines();
    LineSet visible(m_structure->table()->rowCount(), true);
    for (const auto &layer : m_structure->allLayers()) {
        hideLines(*layer, visible);
        filterColumns(*layer, visible);
    }
    const FilteredTable table(*m_structure->table(), *m_structure->modify());
    for (const FilterBase &filter : m_filters)
        filter.rule()->evaluate(table, visible);
    if (visible.count() == visible.capacity())
        return m_structure->allLines();
    return std::make_shared<const LineOrder>(m_structure->table(), std::move(visible));
}

void LineFilters::hideLines(const LayerI &layer, LineSet &visible) const
{
    for (const LineId &line : layer.getHiddenLines()) {
        const int row = m_structure->lineInfo(line).getRow();
        if (row >= 0)
            visible.remove(row);
    }
}

void LineFilters::filterColumns(const LayerI &layer, LineSet &visible) const
{
    const auto filters = layer.getColumnFilter();
    for (auto filter = filters.begin(); filter != filters.end(); ++filter) {
        const int column = LineView::columnOf(filter.key());
        const bool inFile = column >= 0 && column < m_structure->table()->columnCount();
        if (inFile && m_structure->modify()->isPlain())
            filterFileColumn(column, *filter, visible);
        else
            filterByLines(filter.key(), *filter, visible);
    }
}

void LineFilters::filterFileColumn(int column, const QStringList &texts, LineSet &visible) const
{
    const ColumnSearch &search = m_structure->search(column);
    LineSet shown(visible.capacity(), false);
    for (const QString &text : texts) {
        for (const quint32 id : search.match(text, false)) {
            for (const int row : search.rows(id))
                shown.insert(row);
        }
    }
    visible.intersect(shown);
}

void LineFilters::filterByLines(const VarId &id, const QStringList &texts, LineSet &visible) const
{
    const Var var = m_structure->findVar(id);
    LineSet hidden(visible.capacity(), false);
    visible.forEach([&](int row) {
        const Line line(nullptr, m_structure, {m_structure->table()->lineId(row), row});
        const Value value = line.getValue(var, FormatPlain | FormatUntranslated);
        if (!texts.contains(value.toString()))
            hidden.insert(row);
    });
    hidden.forEach([&](int row) { visible.remove(row); });
}

} // namespace VKTab
