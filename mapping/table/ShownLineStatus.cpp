#include "ShownLineStatus.h"

#include "changedSourceLines.h"
#include "LineStates.h"
#include "TableMappingWidgetPrivate.h"

#include <geomcore/table/BaseLayer.h>

#include <algorithm>

namespace {

const QString stateKey = QStringLiteral("CatalogMapper");

/// Above that views hear of a change of all lines instead of each.
constexpr size_t manyLines = 500;

} // namespace

void ShownLineStatus::update(const VKTab::ContentRef &table, const PrjMappingC &mapping)
{
    const boost::shared_ptr<VKTab::BaseLayer> layer = table.getModifyLayer();
    const bool ranges = !TableMappingWidgetPrivate::valueRangeVariables(table).isEmpty();
    const bool isSame = m_table == table && m_layer.lock() == layer && ranges == m_offersRanges;
    auto changed =
        isSame && !m_hasSecondNumbers ? changedSourceLines(m_mapping, mapping) : std::nullopt;
    m_table = table;
    m_layer = layer;
    m_offersRanges = ranges;
    m_mapping = mapping;
    const std::set<int> modified = std::exchange(m_modified, {});
    if (!table.isValid())
        return;
    if (!changed) {
        updateAll();
        return;
    }
    changed->insert(changed->end(), modified.begin(), modified.end());
    if (changed->size() > manyLines) {
        updateMany(idsOf(*changed));
        return;
    }
    for (const int line : *changed)
        updateLine(line);
}

QVector<VKTab::LineId> ShownLineStatus::idsOf(const std::vector<int> &lines) const
{
    QVector<VKTab::LineId> ids;
    for (const int line : lines) {
        if (const VKTab::LineId id = m_table.getLineInfo(line).getLineId(); id.isValid())
            ids.append(id);
    }
    return ids;
}

void ShownLineStatus::updateMany(const QVector<VKTab::LineId> &lines) const
{
    m_table.getModifyLayer()->setLineKeyValues(lines, stateKey, LineStates::texts(),
                                               LineStates::ofAll(lines, m_table, m_mapping));
}

void ShownLineStatus::updateAll()
{
    const QVector<VKTab::LineId> lines = m_table.getLineIdList();
    m_hasSecondNumbers = std::any_of(lines.begin(), lines.end(),
                                     [](const VKTab::LineId &id) { return id.value(1) != 0; });
    updateMany(lines);
    if (m_offersRanges)
        m_table.getModifyLayer()->setLineKeyValues(lines, QStringLiteral("ValueRangeMapping"),
                                                   {QStringLiteral("VR")},
                                                   std::vector<quint8>(size_t(lines.size()), 0));
}

void ShownLineStatus::updateLine(int number) const
{
    const VKTab::LineId id = m_table.getLineInfo(number).getLineId();
    // The layer is asked for anew: whoever heard of the line before may have had the table read
    // again.
    if (id.isValid())
        m_table.getModifyLayer()->setLineKeyValue(
            id, stateKey, LineStates::texts().at(LineStates::of(id, m_table, m_mapping)));
}
