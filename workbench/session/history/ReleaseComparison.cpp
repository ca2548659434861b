#include "ReleaseComparison.h"

#include <core/json/PJsonValue.h>
#include <release/history/JournalRecord.h>
#include <release/history/JournalRow.h>
#include <workbench/session/change/ReleaseChanges.h>
#include <workbench/session/change/StepSummary.h>
#include <workbench/session/journal/JournalText.h>

namespace JournalRecord = VelkRelease::JournalRecord;

namespace {

constexpr qsizetype Portion = 1 << 18;

void addRow(QByteArrayList *rows, const QByteArray &record)
{
    if (rows->isEmpty() || rows->last().size() >= Portion)
        rows->append(QByteArray());
    rows->last() += VelkRelease::JournalRow::frame(record);
}

void addMembers(QByteArrayList *rows, const ReleaseMappingC &before, const ReleaseMappingC &after)
{
    const auto add = [rows](const char *kind, const PJsonValue &from, const PJsonValue &to) {
        PJsonValue json = JournalRecord::of(kind);
        json[QStringLiteral("before")] = from;
        json[QStringLiteral("after")] = to;
        addRow(rows, json.toByteArray(true));
    };
    if (before.getReplacements() != after.getReplacements())
        add("replacements", JournalText::writeReplacements(before.getReplacements()),
            JournalText::writeReplacements(after.getReplacements()));
    if (before.getTargetDate() != after.getTargetDate())
        add("targetDate", PJsonValue(before.getTargetDate()), PJsonValue(after.getTargetDate()));
}

} // namespace

ReleaseComparison ReleaseComparison::of(const ReleaseMappingC &before, const ReleaseMappingC &after,
                                        int step)
{
    ReleaseComparison result;
    StepSummary summary;
    for (const MappingDifference &difference : releaseDifferences(before, after)) {
        summary.add(difference);
        addRow(&result.rows, JournalText::writeChange(difference, step));
    }
    addMembers(&result.rows, before, after);
    result.lines = summary.lines();
    result.text = summary.text();
    return result;
}
