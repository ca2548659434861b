#include "ContentStructure.h"

#include "CellText.h"
#include "ColumnSearch.h"
#include "LayerType.h"
#include "LineView.h"
#include "TableData.h"
#include "TupleSearch.h"
#include <geomcore/value/RangeText.h>

#include <boost/make_shared.hpp>

#include <algorithm>

namespace VKTab {

struct ContentStructure::SearchSlot
{
    std::once_flag made;
    std::unique_ptr<const ColumnSearch> search;
};

struct ContentStructure::TupleSlot
{
    std::vector<int> columns;
    size_t rowsSeen = 0;
    std::unique_ptr<const TupleSearch> search;
};

namespace {

/// So many sets of columns get an index; more are asked for by no work on one table.
constexpr size_t MaxTupleIndexes = 8;
/// An index of several columns is made when so many times the table was looked at without it.
constexpr size_t TupleIndexAfter = 4;

} // namespace

ContentStructure::ContentStructure()
    : ContentStructure(nullptr, boost::make_shared<ModifyLayer>(), {})
{
}

ContentStructure::ContentStructure(boost::shared_ptr<FileLayer> file,
                                   boost::shared_ptr<ModifyLayer> modify,
                                   std::vector<boost::shared_ptr<LayerI>> added)
    : m_file(std::move(file))
    , m_modify(std::move(modify))
    , m_added(std::move(added))
    , m_table(m_file ? m_file->data() : nullptr)
    , m_allLines(std::make_shared<LineOrder>(m_table))
{
    collectVars();
    collectColumnOrder();
    if (!m_table)
        return;
    const auto find = [this](QStringView name) {
        return findVar(name);
    };
    m_normNumber = LineText(m_file->descriptor().lineNormNumber, find);
    m_normDesignation = LineText(m_file->descriptor().lineDesignation, find);
    m_searches = std::make_unique<SearchSlot[]>(static_cast<size_t>(m_table->columnCount()));
}

ContentStructure::~ContentStructure() = default;

std::vector<boost::shared_ptr<LayerI>> ContentStructure::allLayers() const
{
    std::vector<boost::shared_ptr<LayerI>> layers;
    if (m_file)
        layers.push_back(m_file);
    layers.insert(layers.end(), m_added.begin(), m_added.end());
    layers.push_back(m_modify);
    return layers;
}

void ContentStructure::collectVars()
{
    QSet<VarId> ranges;
    for (const auto &layer : allLayers()) {
        for (const Var &var : layer->getVarList()) {
            const int index = static_cast<int>(m_vars.size());
            m_byId.emplace_back(var.getVarId().value(), index);
            m_byName.emplace_back(var.getName(), index);
            m_vars.append(var);
            m_layers.push_back(layer.get());
            if (var.isFW())
                ranges.insert(var.getVarId());
        }
    }
    std::stable_sort(m_byId.begin(), m_byId.end());
    std::stable_sort(m_byName.begin(), m_byName.end());
    m_modify->setRangeVars(ranges);
}

void ContentStructure::collectColumnOrder()
{
    for (const auto &layer : allLayers())
        appendLayerColumns(*layer);
}

void ContentStructure::appendLayerColumns(const LayerI &layer)
{
    QList<Var> vars;
    QHash<QString, Var> byName;
    for (const VarId &id : std::as_const(m_columnOrder)) {
        vars.append(findVar(id));
        byName.insert(vars.last().getName(), vars.last());
    }
    for (const Var &var : layer.getVarList()) {
        vars.append(var);
        byName.insert(var.getName(), var);
    }
    const QStringList order = layer.getKeyValue(KeyColumnOrder).toStringList();
    m_columnOrder = layer.evaluateColumnMapping(vars, byName, order, {});
}

int ContentStructure::indexOf(const VarId &id) const
{
    const auto entry = std::lower_bound(m_byId.begin(), m_byId.end(), std::pair(id.value(), -1));
    return entry != m_byId.end() && entry->first == id.value() ? entry->second : -1;
}

Var ContentStructure::findVar(const VarId &id) const
{
    const int index = indexOf(id);
    return index < 0 ? Var() : m_vars[index];
}

Var ContentStructure::findVar(QStringView name) const
{
    const auto entry = std::lower_bound(m_byName.begin(), m_byName.end(), name,
                                        [](const auto &e, QStringView n) { return e.first < n; });
    return entry != m_byName.end() && entry->first == name ? m_vars[entry->second] : Var();
}

LayerI *ContentStructure::layerOf(const VarId &id) const
{
    const int index = indexOf(id);
    return index < 0 ? nullptr : m_layers[static_cast<size_t>(index)];
}

LineInfo ContentStructure::lineInfo(const LineId &id) const
{
    const int row = m_table && id.isValid() ? m_table->rowOf(id) : -1;
    return row < 0 ? LineInfo() : LineInfo(m_table->lineId(row), row);
}

Value ContentStructure::value(const VarId &id, const LineInfo &info, FormatFlags format,
                              const LineI &shown) const
{
    if (const auto changed = m_modify->changedValue(id, info.getLineId()))
        return formatted(id, *changed, format);
    const int column = LineView::columnOf(id);
    if (m_table && column >= 0 && column < m_table->columnCount())
        return cellValue(*m_table, info.getRow(), column, format);
    const LayerI *layer = layerOf(id);
    return layer ? formatted(id, layer->getValue(id, info.getLineId(), shown), format) : Value();
}

Value ContentStructure::formatted(const VarId &id, const Value &value, FormatFlags format) const
{
    const int column = LineView::columnOf(id);
    if (value.isNumber() && format.testFlag(FormatPlain))
        return value;
    if (m_table && column >= 0 && column < m_table->descriptor().fields.size())
        return formattedText(*m_table, column, value.toString().toUtf8().toStdString(), format);
    const LayerI *layer = layerOf(id);
    if (!layer || value.isEmpty() || value.isNumber() || format.testFlag(FormatUntranslated))
        return value;
    return layer->translateText(value.toString(), id);
}

QString ContentStructure::rangeText(const VarId &id, const LineId &line) const
{
    const LayerI *layer = layerOf(id);
    return layer ? layer->getCellProperty(id, line, CellPropRange).toString() : QString();
}

bool ContentStructure::offers(const VarId &id, const LineId &line, const Value &value) const
{
    const char decimal = decimalChar(id);
    const QString text = findVar(id).isFW() ? rangeText(id, line) : QString();
    const auto range = RangeText::parse(text, decimal);
    return range && range->contains(value.toString(), decimal);
}

bool ContentStructure::holdsValue(const VarId &id, const LineId &line, const Value &value) const
{
    const LayerI *layer = layerOf(id);
    return layer && layer->getValue(id, line).toString() == value.toString();
}

QString ContentStructure::projectName() const
{
    const QString path = m_file ? m_file->getKeyValue(KeyProjectPath).toString() : QString();
    const qsizetype slash = std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
    const QString file = path.mid(slash + 1);
    const qsizetype dot = file.lastIndexOf(u'.');
    return dot > 0 ? file.left(dot) : file;
}

char ContentStructure::decimalChar(const VarId &id) const
{
    const int column = LineView::columnOf(id);
    if (!m_table || column < 0 || column >= m_table->descriptor().fields.size())
        return '.';
    return m_table->descriptor().fields[column].decimalChar;
}

const ColumnSearch &ContentStructure::search(int column) const
{
    SearchSlot &slot = m_searches[static_cast<size_t>(column)];
    std::call_once(slot.made,
                   [&] { slot.search = std::make_unique<const ColumnSearch>(*m_table, column); });
    return *slot.search;
}

const TupleSearch *ContentStructure::tuples(const std::vector<int> &columns, size_t rows) const
{
    const std::lock_guard lock(m_tupleLock);
    auto found =
        std::ranges::find(m_tuples, columns, [](const auto &slot) { return slot->columns; });
    if (found == m_tuples.end()) {
        if (m_tuples.size() == MaxTupleIndexes)
            return nullptr;
        found = m_tuples.insert(m_tuples.end(), std::make_unique<TupleSlot>());
        (*found)->columns = columns;
    }
    TupleSlot &slot = **found;
    slot.rowsSeen += rows;
    if (!slot.search && slot.rowsSeen > TupleIndexAfter * size_t(m_table->rowCount())) {
        std::vector<const ColumnSearch *> searches;
        searches.reserve(columns.size());
        for (const int column : columns)
            searches.push_back(&search(column));
        slot.search = std::make_unique<const TupleSearch>(std::move(searches));
    }
    return slot.search.get();
}

} // namespace VKTab
