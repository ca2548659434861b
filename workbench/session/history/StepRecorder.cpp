#include "StepRecorder.h"

#include <core/files/EditLock.h>
#include <core/json/PJsonValue.h>
#include <release/history/HistorySessions.h>
#include <release/history/JournalRecord.h>
#include <workbench/session/change/ReleaseChanges.h>
#include <workbench/session/change/StepNotices.h>
#include <workbench/session/change/StepSummary.h>

#include <utility>

namespace JournalRecord = VelkRelease::JournalRecord;

namespace {

QString nameOf(StepRecorder::Origin origin)
{
    switch (origin) {
    case StepRecorder::Origin::Edit:
        return QStringLiteral("edit");
    case StepRecorder::Origin::Undo:
        return QStringLiteral("undo");
    case StepRecorder::Origin::Redo:
        return QStringLiteral("redo");
    case StepRecorder::Origin::Mark:
        return QStringLiteral("mark");
    case StepRecorder::Origin::Recovery:
        break;
    }
    return QStringLiteral("recover");
}

} // namespace

bool StepRecorder::openJournal(const QString &path, const Opening &opening)
{
    if (!m_journal.open(path))
        return false;
    writeOpening(opening);
    return true;
}

bool StepRecorder::renewJournal(const Opening &opening)
{
    return m_journal.isInPlace() || openJournal(QString(m_journal.path()), opening);
}

void StepRecorder::writeOpening(const Opening &opening)
{
    const PJsonValue opened =
        JournalRecord::opened(opening.sourceDate, opening.targetDate, opening.fileHash);
    m_opening = opened.toByteArray(true);
    m_journal.append(opened);
    m_journal.sync();
}

void StepRecorder::sign(UndoStep &step) const
{
    step.key = VelkRelease::HistorySessions::stepKey(m_opening, m_step);
    step.time = QDateTime::currentDateTimeUtc();
    step.author = EditLock::self().user;
}

void StepRecorder::noteMade()
{
    m_journal.append(JournalRecord::of("made"));
}

void StepRecorder::noteMerged()
{
    m_history.dropUnsaved();
    m_journal.append(JournalRecord::of("merged"));
}

bool StepRecorder::closeJournal(bool modified)
{
    if (!m_journal.isOpen())
        return false;
    m_journal.append(JournalRecord::closed(modified));
    m_journal.close();
    return true;
}

void StepRecorder::reset()
{
    m_history.clear();
    m_pending = Pending();
    m_step = 0;
    m_autosaved.reset();
}

void StepRecorder::begin(const QString &text)
{
    if (m_pending.depth++ == 0)
        m_pending.text = text;
}

bool StepRecorder::end()
{
    return m_pending.depth > 0 && --m_pending.depth == 0;
}

void StepRecorder::noteFirst()
{
    if (!std::exchange(m_pending.changed, true))
        ++m_step;
}

void StepRecorder::note(const PrjMappingC &before, const PrjMappingC &after, bool byEditor)
{
    noteFirst();
    m_pending.onlyRelease.reset();
    MappingDifference difference = MappingDifference::between(before, after);
    journal(difference);
    m_pending.only.reset();
    if (m_pending.changes.isEmpty())
        m_pending.only = std::move(difference);
    gather(before, after);
    if (!byEditor)
        m_pending.behindEditor.insert(ProjectId::of(after));
}

void StepRecorder::gather(const PrjMappingC &before, const PrjMappingC &after)
{
    const auto isOf = [&after](const MappingChangePair &change) {
        return ProjectId::of(change.after) == ProjectId::of(after);
    };
    const QPair<QString, QString> key(after.getSourcePath(), after.getSourceVersion());
    qsizetype at = m_pending.changes.size() - 1;
    // Mostly one project is changed many times in a row.
    if (at < 0 || !isOf(m_pending.changes[at]))
        at = m_pending.index.value(key, -1);
    if (at >= 0 && isOf(m_pending.changes[at])) {
        m_pending.changes[at].after = after;
        return;
    }
    m_pending.index.insert(key, m_pending.changes.size());
    m_pending.changes.append({before, after});
}

void StepRecorder::noteRelease(const ReleaseMappingC &before, const ReleaseComparison &compared)
{
    m_pending.onlyRelease.reset();
    if (!m_pending.changed)
        m_pending.onlyRelease = {{}, compared.lines, compared.text};
    noteFirst();
    if (!m_pending.releaseBefore) {
        // Single changes of the same step go into the replacement.
        ReleaseMappingC first = before;
        for (auto change = m_pending.changes.crbegin(); change != m_pending.changes.crend();
             ++change) {
            if (change->before.isValid())
                first.addMapping(change->before);
            else
                first = withoutMapping(first, ProjectId::of(change->after));
        }
        m_pending.releaseBefore = first;
    }
}

StepRecorder::Finished StepRecorder::finish(const ReleaseMappingC &now)
{
    Finished result;
    Pending done = std::exchange(m_pending, Pending());
    if (!done.changed)
        return result;
    for (const MappingChangePair &change : done.changes) {
        const ProjectId project = ProjectId::of(change.after);
        result.changed += project;
        if (done.behindEditor.contains(project))
            result.behindEditor += project;
    }
    if (summarise(done, now, result)) {
        result.kind = Finished::Kind::ConflictsMarked;
        m_history.markDirty();
    } else if (!result.step.changes.isEmpty() || result.step.releaseBefore) {
        result.kind = Finished::Kind::Step;
        sign(result.step);
        journalStep(result.step.text, Origin::Edit);
        m_history.push(result.step);
    }
    return result;
}

/// True if all that the changes do is to mark conflicts.
bool StepRecorder::summarise(Pending &done, const ReleaseMappingC &now, Finished &result) const
{
    UndoStep &step = result.step;
    if (done.releaseBefore) {
        const ReleaseComparison compared =
            done.onlyRelease ? *std::move(done.onlyRelease)
                             : ReleaseComparison::of(*done.releaseBefore, now, m_step);
        step.releaseBefore = done.releaseBefore;
        step.releaseAfter = now;
        step.lines = compared.lines;
        step.text = done.text.isEmpty() ? compared.text : done.text;
        return false;
    }
    StepSummary summary;
    bool onlyMarks = !done.changes.isEmpty();
    const auto add = [&](const MappingDifference &difference) {
        onlyMarks = onlyMarks && difference.onlyMarksConflicts();
        if (!difference.isEmpty())
            summary.add(difference);
    };
    for (const MappingChangePair &change : done.changes) {
        const MappingDifference difference =
            done.only ? std::move(*done.only)
                      : MappingDifference::between(change.before, change.after);
        result.notices += stepNotices(difference, change.after);
        add(difference);
        if (!difference.isEmpty())
            step.changes.append(change);
    }
    step.lines = summary.lines();
    step.text = done.text.isEmpty() ? summary.text() : done.text;
    return onlyMarks;
}

void StepRecorder::journal(const MappingDifference &difference)
{
    if (!difference.isEmpty())
        m_journal.append(difference, m_step);
}

void StepRecorder::journalStep(const QString &text, Origin origin, const QString &of)
{
    PJsonValue json = JournalRecord::step(m_step, nameOf(origin), text);
    if (!of.isEmpty())
        json[QStringLiteral("of")] = PJsonValue(of);
    m_journal.append(json);
    m_journal.flush();
}

void StepRecorder::journalNote(const char *kind, const PJsonValue &note)
{
    m_journal.append(JournalRecord::note(kind, note));
    m_journal.flush();
}

void StepRecorder::noteSaved(const QByteArray &fileHash)
{
    m_history.markClean();
    noteFile("saved", fileHash);
}

void StepRecorder::noteAutosaved(const QByteArray &fileHash)
{
    m_autosaved = m_step;
    noteFile("autosaved", fileHash);
}

void StepRecorder::noteFile(const char *kind, const QByteArray &fileHash)
{
    m_journal.append(JournalRecord::stored(kind, m_step, fileHash));
    m_journal.sync();
}
