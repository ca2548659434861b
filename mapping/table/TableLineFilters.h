#pragma once

#include "MappedTargetLines.h"

#include <geomcore/table/ContentRef.h>
#include <geomcore/table/FilterByLineId.h>
#include <geomcore/value/LineId.h>

#include <QList>

#include <optional>

/// Which lines the two tables show: by the state of the source lines, and by which mapped lines
/// lead to a target line. Targets are given by their indexes in the mapping.
class TableLineFilters
{
public:
    static void showAll(VKTab::ContentRef table);
    /// These lines, ascending; no line if there is none.
    static void showOnly(VKTab::ContentRef table, const std::vector<int> &lines);
    /// Source lines that are to be checked or that have no target; no line if there is none.
    static void showUnassigned(VKTab::ContentRef source);
    /// Target lines that no mapped line leads to; no line if there is none. Does nothing if that is
    /// what the table shows already.
    void showUnused(VKTab::ContentRef target, const PrjMappingC &mapping,
                    const QList<int> &targets);
    /// Target lines that more than one mapped line leads to; every line if there is none.
    static void showUsedTwice(VKTab::ContentRef target, const PrjMappingC &mapping,
                              const QList<int> &targets);
    /// Source lines that lead to a target line; every line if there is none.
    static void showSourcesOf(const VKTab::LineId &targetLine, VKTab::ContentRef source,
                              const PrjMappingC &mapping, const QList<int> &targets);

    /// Another target table is there.
    void forgetTarget() { m_unused.reset(); }

private:
    MappedTargetLines m_mapped;
    std::optional<VKTab::FilterByLineId> m_unused; ///< as showUnused() made it last
};
