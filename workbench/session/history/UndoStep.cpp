#include "UndoStep.h"

#include <workbench/session/change/ReleaseChanges.h>
#include <workbench/session/journal/JournalReader.h>
#include <workbench/session/journal/JournalText.h>

#include <algorithm>
#include <utility>

StepChanges StepChanges::reversed() const
{
    StepChanges result;
    result.mappings.reserve(mappings.size());
    for (auto change = mappings.crbegin(); change != mappings.crend(); ++change)
        result.mappings.push_back(change->reversed());
    if (targetDate)
        result.targetDate = Dates{targetDate->after, targetDate->before};
    if (replacements)
        result.replacements = Replacements{replacements->after, replacements->before};
    return result;
}

StepChanges StepChanges::ofRows(const QByteArrayList &rows)
{
    const auto text = [](const PJsonValue &record, const char *side) {
        return record.value(QString::fromLatin1(side));
    };
    StepChanges result;
    for (const QByteArray &row : rows) {
        const PJsonValue record = JournalReader::parse(row);
        if (JournalReader::isKind(row, "targetDate")) {
            result.targetDate =
                Dates{text(record, "before").toText(), text(record, "after").toText()};
        } else if (JournalReader::isKind(row, "replacements")) {
            result.replacements =
                Replacements{JournalText::readReplacements(text(record, "before")),
                             JournalText::readReplacements(text(record, "after"))};
        } else if (auto change = JournalText::readChange(record)) {
            result.mappings.push_back(*std::move(change));
        }
    }
    return result;
}

StepChanges StepChanges::between(const ReleaseMappingC &before, const ReleaseMappingC &after)
{
    StepChanges result;
    result.mappings = releaseDifferences(before, after);
    if (before.getTargetDate() != after.getTargetDate())
        result.targetDate = Dates{before.getTargetDate(), after.getTargetDate()};
    if (before.getReplacements() != after.getReplacements())
        result.replacements = Replacements{before.getReplacements(), after.getReplacements()};
    return result;
}

StepChanges UndoStep::allChanges() const
{
    if (noted)
        return *noted;
    if (releaseBefore)
        return StepChanges::between(*releaseBefore, *releaseAfter);
    if (!rows.isEmpty())
        return StepChanges::ofRows(rows);
    StepChanges result;
    result.mappings.reserve(std::size_t(changes.size()));
    for (const MappingChangePair &change : changes)
        result.mappings.push_back(MappingDifference::between(change.before, change.after));
    return result;
}

void UndoStep::letStatesGo()
{
    if (noted || !rows.isEmpty())
        return;
    noted = std::make_shared<const StepChanges>(allChanges());
    changes.clear();
    releaseBefore.reset();
    releaseAfter.reset();
}
