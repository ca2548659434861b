#include "TableLineFilters.h"

#include <geomcore/table/Line.h>

namespace {

using LineNumbers = QHash<int, VKTab::TabFilterData>;

/// An empty hash would show every line.
LineNumbers orNoLine(LineNumbers lines)
{
    if (lines.isEmpty())
        lines.insert(-1, VKTab::TabFilterData());
    return lines;
}

void setFilter(VKTab::ContentRef &table, const VKTab::FilterByLineId &filter)
{
    table.setFilter(filter);
    table.invalidate(VKTab::Content::InvalidateFilter, true);
}

void setLines(VKTab::ContentRef &table, const LineNumbers &lines)
{
    setFilter(table, VKTab::FilterByLineId(lines, true));
}

/// The lines of a table whose numbers are accepted.
template<class Accepts>
LineNumbers linesOf(const VKTab::Content &table, Accepts accepts)
{
    LineNumbers lines;
    for (const VKTab::LineId &id : table.getLineIdList()) {
        if (accepts(id.value(0)))
            lines.insert(id.value(0), VKTab::TabFilterData());
    }
    return lines;
}

} // namespace

void TableLineFilters::showAll(VKTab::ContentRef table)
{
    setLines(table, {});
}

void TableLineFilters::showUnassigned(VKTab::ContentRef source)
{
    LineNumbers lines;
    for (const VKTab::LineId &id : source.getLineIdList()) {
        const QString status =
            source.getLine(id, false).getLineKeyValue(QStringLiteral("CatalogMapper")).toString();
        if (status == QLatin1String("C") || status == QLatin1String("N"))
            lines.insert(id.value(0), VKTab::TabFilterData());
    }
    setLines(source, orNoLine(lines));
}

void TableLineFilters::showUnused(VKTab::ContentRef target, const PrjMappingC &mapping,
                                  const QList<int> &targets)
{
    const bool changed = m_mapped.update(mapping, targets);
    if (changed || !m_unused) {
        const auto isUnused = [this](int line) {
            return !m_mapped.contains(line);
        };
        m_unused = VKTab::FilterByLineId(orNoLine(linesOf(target, isUnused)), true);
    } else if (target.getFilter(VKTab::FilterByLineId::className()).rule() == m_unused->rule()) {
        return;
    }
    setFilter(target, *m_unused);
}

void TableLineFilters::showUsedTwice(VKTab::ContentRef target, const PrjMappingC &mapping,
                                     const QList<int> &targets)
{
    MappedTargetLines mapped;
    mapped.update(mapping, targets);
    setLines(target, linesOf(target, [&](int line) { return mapped.times(line) > 1; }));
}

void TableLineFilters::showSourcesOf(const VKTab::LineId &targetLine, VKTab::ContentRef source,
                                     const PrjMappingC &mapping, const QList<int> &targets)
{
    LineNumbers lines;
    for (const int target : targets) {
        for (const LineTable::Iterator &entry : mapping.targetAt(target).lines()) {
            if (entry.targetLine() == targetLine.value(0))
                lines.insert(entry.sourceLine(), VKTab::TabFilterData());
        }
    }
    setLines(source, lines);
}
