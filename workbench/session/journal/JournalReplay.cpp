#include "JournalReplay.h"

#include "JournalText.h"

#include <core/json/PJsonValue.h>
#include <workbench/session/change/ReleaseChanges.h>

#include <algorithm>

namespace {

bool applyRow(ReleaseMappingC &release, const QByteArray &row)
{
    const std::optional<MappingDifference> change =
        JournalText::readChange(JournalReader::parse(row));
    return change && applyChange(release, *change);
}

int firstGap(const JournalReader::Session &session, int from)
{
    const auto gap = std::find_if(session.gaps.begin(), session.gaps.end(),
                                  [from](int at) { return at >= from; });
    return gap == session.gaps.end() ? int(session.records.size()) : *gap;
}

} // namespace

JournalReplay JournalReplay::run(const JournalReader::Session &session, const ReleaseMappingC &base,
                                 int from, Extent extent)
{
    JournalReplay result;
    result.release = base;
    result.records = from;
    const bool unbroken = extent == Extent::Unbroken;
    const int end = unbroken ? firstGap(session, from) : int(session.records.size());
    for (; result.records < end; ++result.records) {
        const QByteArray &row = session.records[result.records];
        if (JournalReader::isKind(row, "targetDate"))
            result.release.setTargetDate(
                JournalReader::parse(row).value(QStringLiteral("after")).toText());
        if (JournalReader::isKind(row, "replacements"))
            result.release.setReplacements(JournalText::readReplacements(
                JournalReader::parse(row).value(QStringLiteral("after"))));
        if (!JournalReader::isKind(row, "change"))
            continue;
        const bool fits = applyRow(result.release, row);
        ++(fits ? result.applied : result.refused);
        if (!fits && unbroken)
            break;
    }
    return result;
}
