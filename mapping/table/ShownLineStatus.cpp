#include "ShownLineStatus.h"

#include "MappingDifference.h"
#include "TableMappingWidgetPrivate.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/LineView.h>

namespace {

PrjMappingLineC findLine(const PrjMappingC &mapping, const VKTab::Content &table,
                         const VKTab::LineId &id)
{
    const VKTab::LineView view(table, id);
    return view.isValid() ? mapping.findLine(id.value(0), view)
                          : mapping.findLine(id.value(0), createVarsetFromVKTable(table, id, {}));
}

bool isConflicted(const PrjMappingC &mapping, const PrjMappingLineC &line, int number)
{
    const int index = line.getTargetIndex();
    return index >= 0 && index < mapping.countTargets() &&
           mapping.targetAt(index).getLineConflicted(number);
}

} // namespace

QString ShownLineStatus::statusOf(const VKTab::ContentRef &table, const VKTab::LineId &id,
                                  const PrjMappingC &mapping)
{
    const PrjMappingLineC line = findLine(mapping, table, id);
    if (isConflicted(mapping, line, id.value(0)))
        return QStringLiteral("Conflicted");
    const bool isVerified = line.getCheckState() == PRJMAPPING::Verified;
    if (!line.isValid() || !line.isFound())
        return isVerified ? QStringLiteral("NC") : QStringLiteral("N");
    if (isVerified)
        return QStringLiteral("M");
    return line.getCheckState() == PRJMAPPING::Mapped ? QString() : QStringLiteral("C");
}

void ShownLineStatus::update(const VKTab::ContentRef &table, const PrjMappingC &mapping)
{
    const boost::shared_ptr<VKTab::BaseLayer> layer = table.getModifyLayer();
    const bool ranges = !TableMappingWidgetPrivate::valueRangeVariables(table).isEmpty();
    const bool isSame = m_table == table && m_layer.lock() == layer && ranges == m_offersRanges;
    const auto changed =
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
    for (const int line : *changed)
        updateNumber(line);
    for (const int line : modified)
        updateNumber(line);
}

void ShownLineStatus::updateAll()
{
    m_hasSecondNumbers = false;
    for (const VKTab::LineId &id : m_table.getLineIdList()) {
        m_hasSecondNumbers = m_hasSecondNumbers || id.value(1) != 0;
        updateLine(id);
        if (m_offersRanges)
            write(id, QStringLiteral("ValueRangeMapping"), QStringLiteral("VR"));
    }
}

void ShownLineStatus::updateNumber(int line) const
{
    if (const VKTab::LineId id = m_table.getLineInfo(line).getLineId(); id.isValid())
        updateLine(id);
}

void ShownLineStatus::updateLine(const VKTab::LineId &id) const
{
    write(id, QStringLiteral("CatalogMapper"), statusOf(m_table, id, m_mapping));
}

void ShownLineStatus::write(const VKTab::LineId &id, const QString &key, const QString &value) const
{
    // Asked anew: whoever heard of the write before may have had the table read again.
    m_table.getModifyLayer()->setLineKeyValue(id, key, value);
}
