#include "LineFates.h"

namespace VelkRelease {

namespace {

LineFates::Fate fateOf(const LineTable::Iterator &entry)
{
    if (entry.conflict() || entry.state() == PRJMAPPING::ToCheck)
        return LineFates::Open;
    if (entry.targetLine() >= 0)
        return LineFates::Assigned;
    return entry.state() == PRJMAPPING::Verified ? LineFates::Gone : LineFates::Open;
}

} // namespace

/// Of several targets the one that says most counts, of equals the first.
LineFates::LineFates(const PrjMappingC &mapping)
{
    m_entries.reserve(mapping.lineCounts().lines());
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const LineTable::Iterator &entry : mapping.targetAt(i).lines()) {
            Entry &known = m_entries[entry.sourceLine()];
            if (const Fate fate = fateOf(entry); fate > known.fate)
                known = {fate, i, entry.targetLine()};
        }
    }
}

} // namespace VelkRelease
