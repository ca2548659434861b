#include "TableMappingWidgetPrivate.h"

#include <core/text/PPathName.h>
#include <geomcore/table/Line.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>

#include <QAbstractButton>

using LineNumbers = QHash<int, VKTab::TabFilterData>;

namespace {

/// An empty hash would show every line.
LineNumbers orNoLine(LineNumbers lines)
{
    if (lines.isEmpty())
        lines.insert(-1, VKTab::TabFilterData());
    return lines;
}

} // namespace

void TableMappingWidgetPrivate::setLineFilter(VKTab::ContentRef table, const LineNumbers &lines)
{
    table.setFilter(VKTab::FilterByLineId(lines, true));
    table.invalidate(VKTab::Content::InvalidateFilter, true);
}

QList<int> TableMappingWidgetPrivate::targetsOf(const VKTab::Content &table) const
{
    const PPathName path(table.getKeyValue(VKTab::KeyProjectPath).toString());
    QList<int> targets;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        if (PPathName(builtPath(mapping.targetAt(i).getTargetPath())) == path)
            targets.append(i);
    }
    return targets;
}

void TableMappingWidgetPrivate::onChkFilterNotMappedLines(int state)
{
    if (!sourceTable.isValid())
        return;
    LineNumbers lines;
    if (state != Qt::Checked) {
        setLineFilter(sourceTable, lines);
        return;
    }
    for (const VKTab::LineId &id : sourceTable.getLineIdList()) {
        const QString status = sourceTable.getLine(id, false)
                                   .getLineKeyValue(QStringLiteral("CatalogMapper"))
                                   .toString();
        if (status == QLatin1String("C") || status == QLatin1String("N"))
            lines.insert(id.value(0), VKTab::TabFilterData());
    }
    setLineFilter(sourceTable, orNoLine(lines));
}

void TableMappingWidgetPrivate::onChkFilterTargetLines(int state)
{
    const VKTab::ContentRef table = targetView->getTable();
    if (!sourceTable.isValid() || !table.isValid())
        return;
    if (state != Qt::Checked) {
        setLineFilter(table, {});
        return;
    }
    const bool changed = m_mappedTargetLines.update(mapping, targetsOf(table));
    if (changed || !(m_filteredTable == table)) {
        m_targetFilter = VKTab::FilterByLineId(orNoLine(linesWithoutSource(table)), true);
        m_filteredTable = table;
    } else if (table.getFilter(VKTab::FilterByLineId::className()).rule() ==
               m_targetFilter.rule()) {
        return;
    }
    VKTab::ContentRef filtered = table;
    filtered.setFilter(m_targetFilter);
    filtered.invalidate(VKTab::Content::InvalidateFilter, true);
}

LineNumbers TableMappingWidgetPrivate::linesWithoutSource(const VKTab::Content &table) const
{
    LineNumbers lines;
    for (const VKTab::LineId &id : table.getLineIdList()) {
        if (m_mappedTargetLines.times(id.value(0)) == 0)
            lines.insert(id.value(0), VKTab::TabFilterData());
    }
    return lines;
}

void TableMappingWidgetPrivate::onFilterTargetTable()
{
    const VKTab::ContentRef table = targetView->getTable();
    if (!sourceTable.isValid() || !table.isValid())
        return;
    MappedTargetLines mapped;
    mapped.update(mapping, targetsOf(table));
    LineNumbers lines;
    for (const VKTab::LineId &id : table.getLineIdList()) {
        if (mapped.times(id.value(0)) > 1)
            lines.insert(id.value(0), VKTab::TabFilterData());
    }
    setLineFilter(table, lines);
}

void TableMappingWidgetPrivate::onFilterSourceTable()
{
    const VKTab::ContentRef table = targetView->getTable();
    if (!sourceTable.isValid() || !table.isValid())
        return;
    const VKTab::LineId selected = table.getSelection();
    if (!selected.isValid())
        return;
    LineNumbers lines;
    for (const int target : targetsOf(table)) {
        for (const LineTable::Iterator &entry : mapping.targetAt(target).lines()) {
            if (entry.targetLine() == selected.value(0))
                lines.insert(entry.sourceLine(), VKTab::TabFilterData());
        }
    }
    setLineFilter(sourceTable, lines);
}

void TableMappingWidgetPrivate::onToggleShowHiddenCols()
{
    const auto *const box = qobject_cast<QAbstractButton *>(sender());
    if (!box)
        return;
    showHiddenCols = box->isChecked();
    for (VkTableView *const view : {sourceView, targetView}) {
        view->model()->setShowHiddenVars(showHiddenCols);
        view->getTable().invalidate(VKTab::Content::InvalidateColumns, true);
    }
}
