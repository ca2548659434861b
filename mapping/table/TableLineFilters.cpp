#include "TableLineFilters.h"

#include <geomcore/table/BaseLayer.h>

#include <algorithm>

namespace {

/// Without any number a filter shows every line.
std::vector<int> orNoLine(std::vector<int> lines)
{
    if (lines.empty())
        lines.push_back(-1);
    return lines;
}

void setFilter(VKTab::ContentRef &table, const VKTab::FilterByLineId &filter)
{
    table.setFilter(filter);
    table.invalidate(VKTab::Content::InvalidateFilter, true);
}

VKTab::FilterByLineId filterOf(std::vector<int> lines)
{
    std::sort(lines.begin(), lines.end());
    return VKTab::FilterByLineId::ofAscending(std::move(lines));
}

/// Numbers of the lines of a table that are accepted.
template<class Accepts>
std::vector<int> linesOf(const VKTab::Content &table, Accepts accepts)
{
    std::vector<int> lines;
    for (const VKTab::LineId &id : table.getLineIdList()) {
        if (accepts(id.value(0)))
            lines.push_back(id.value(0));
    }
    return lines;
}

} // namespace

void TableLineFilters::showAll(VKTab::ContentRef table)
{
    setFilter(table, filterOf({}));
}

void TableLineFilters::showOnly(VKTab::ContentRef table, const std::vector<int> &lines)
{
    setFilter(table, filterOf(orNoLine(lines)));
}

void TableLineFilters::showUnassigned(VKTab::ContentRef source)
{
    setFilter(source,
              filterOf(orNoLine(source.getModifyLayer()->linesWithKeyValue(
                  QStringLiteral("CatalogMapper"), {QStringLiteral("C"), QStringLiteral("N")}))));
}

void TableLineFilters::showUnused(VKTab::ContentRef target, const PrjMappingC &mapping,
                                  const QList<int> &targets)
{
    const bool changed = m_mapped.update(mapping, targets);
    if (changed || !m_unused) {
        const auto isUnused = [this](int line) {
            return !m_mapped.contains(line);
        };
        m_unused = filterOf(orNoLine(linesOf(target, isUnused)));
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
    setFilter(target, filterOf(linesOf(target, [&](int line) { return mapped.times(line) > 1; })));
}

void TableLineFilters::showSourcesOf(const VKTab::LineId &targetLine, VKTab::ContentRef source,
                                     const PrjMappingC &mapping, const QList<int> &targets)
{
    std::vector<int> lines;
    for (const int target : targets) {
        for (const LineTable::Iterator &entry : mapping.targetAt(target).lines()) {
            if (entry.targetLine() == targetLine.value(0))
                lines.push_back(entry.sourceLine());
        }
    }
    setFilter(source, filterOf(std::move(lines)));
}
