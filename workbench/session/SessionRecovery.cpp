#include "SessionRecovery.h"

#include "GuardedSave.h"
#include "JournalText.h"
#include "ReleaseChanges.h"
#include "StepSummary.h"

#include <core/json/PJsonValue.h>
#include <geomcore/records/MappingFile.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QSet>

namespace {

QString say(const char *text)
{
    return QCoreApplication::translate("SessionRecovery", text);
}

bool isKind(const QByteArray &record, const char *kind)
{
    return record.startsWith(QByteArray("{\"kind\":\"") + kind + '"');
}

RecoveryVersion describe(const ReleaseMappingC &release, const QDateTime &time)
{
    return {true, time, release.countMappings(), countLines(release)};
}

QDateTime timeOf(const QString &file)
{
    return QFileInfo(file).lastModified().toUTC();
}

bool putAsideFile(const QString &file)
{
    return !QFileInfo::exists(file) ||
           DurableFile::rename(file, DurableFile::stampedName(file, QStringLiteral("alt")));
}

} // namespace

SessionRecovery::SessionRecovery(const QString &mappingFile)
    : m_file(mappingFile)
{
    JournalReader journal;
    if (journal.read(journalFile(mappingFile)) && !journal.sessions().isEmpty())
        m_session = journal.sessions().last();
    const bool leftOpen = !m_session.sourceDate.isEmpty() && !m_session.closed;
    if (!leftOpen && !QFileInfo::exists(autosaveFile(mappingFile)))
        return;
    if (!leftOpen)
        m_session = JournalReader::Session();
    findLastSaving();
    m_leftSomething = m_anyChange || QFileInfo::exists(autosaveFile(mappingFile));
    const bool readable = readBase(m_file, m_saved);
    if (readable)
        m_offer.saved = describe(m_saved, timeOf(m_file));
    if (m_anyChange && readable) {
        Replay candidate = replay(m_saved, m_savedAt);
        candidate.onSavedFile = true;
        take(candidate);
    }
    if (!isComplete(m_best))
        tryAutosave();
    if (!isComplete(m_best))
        tryBackup();
    if (m_anyChange && !isComplete(m_best))
        m_damage = damageText();
    if (m_best.possible)
        compare();
}

QString SessionRecovery::journalFile(const QString &mappingFile)
{
    return mappingFile + QStringLiteral(".journal");
}

QString SessionRecovery::autosaveFile(const QString &mappingFile)
{
    return mappingFile + QStringLiteral(".autosave");
}

bool SessionRecovery::putAside(const QString &mappingFile)
{
    const bool journal = putAsideFile(journalFile(mappingFile));
    return putAsideFile(autosaveFile(mappingFile)) && journal;
}

bool SessionRecovery::putAsideJournal(const QString &mappingFile)
{
    return putAsideFile(journalFile(mappingFile));
}

void SessionRecovery::findLastSaving()
{
    m_savedHash = m_session.fileHash;
    for (int i = 0; i < m_session.records.size(); ++i) {
        const QByteArray &record = m_session.records[i];
        m_anyChange = m_anyChange || isKind(record, "change") || isKind(record, "targetDate");
        if (!isKind(record, "saved"))
            continue;
        m_savedAt = i + 1;
        m_savedHash =
            JournalReader::parse(record).value(QStringLiteral("fileHash")).toText().toLatin1();
        m_anyChange = false;
    }
    m_anyChange = m_anyChange || (!m_session.gaps.isEmpty() && m_session.gaps.last() >= m_savedAt);
}

bool SessionRecovery::readBase(const QString &file, ReleaseMappingC &release) const
{
    MappingFile mappings;
    if (!mappings.read(file, m_session.sourceDate))
        return false;
    QString date = m_session.sourceDate;
    if (date.isEmpty() && !mappings.releases().isEmpty())
        date = mappings.releases().last().getSourceDate();
    if (!mappings.contains(date))
        return false;
    release = mappings.release(date);
    return true;
}

SessionRecovery::Replay SessionRecovery::replay(const ReleaseMappingC &base, int from) const
{
    Replay result;
    result.release = base;
    result.possible = true;
    result.records = from;
    int end = int(m_session.records.size());
    for (int gap : m_session.gaps) {
        if (gap >= from)
            end = qMin(end, gap);
    }
    for (; result.records < end; ++result.records) {
        const QByteArray &row = m_session.records[result.records];
        const PJsonValue record = JournalReader::parse(row);
        if (isKind(row, "change")) {
            const std::optional<MappingDifference> change = JournalText::readChange(record);
            if (!change || !applyChange(result.release, *change))
                return result;
        } else if (isKind(row, "targetDate")) {
            result.release.setTargetDate(record.value(QStringLiteral("after")).toText());
        }
    }
    return result;
}

bool SessionRecovery::fitsSavedFile() const
{
    return !m_offer.saved.available || m_best.onSavedFile ||
           (!m_savedHash.isEmpty() && FileState::of(m_file).hash == m_savedHash);
}

/// Keeps the candidate that got furthest.
void SessionRecovery::take(const Replay &candidate)
{
    if (!m_best.possible || candidate.records > m_best.records)
        m_best = candidate;
}

bool SessionRecovery::isComplete(const Replay &candidate) const
{
    const bool gapAhead = !m_session.gaps.isEmpty() && m_session.gaps.last() >= candidate.records;
    return candidate.possible && !gapAhead && candidate.records == m_session.records.size();
}

/// The side file stands for the state at its mark in the journal; without a mark, as if the program
/// ended between both, for all that was noted.
void SessionRecovery::tryAutosave()
{
    const QString file = autosaveFile(m_file);
    ReleaseMappingC release;
    if (!QFileInfo::exists(file) || !readBase(file, release))
        return;
    const QByteArray hash = FileState::of(file).hash;
    for (int i = int(m_session.records.size()) - 1; i >= 0; --i) {
        const QByteArray &record = m_session.records[i];
        if (!isKind(record, "autosaved"))
            continue;
        if (JournalReader::parse(record).value(QStringLiteral("fileHash")).toText().toLatin1() ==
            hash) {
            take(replay(release, i + 1));
            return;
        }
    }
    if (m_offer.saved.available && timeOf(file) < m_offer.saved.time)
        return;
    Replay candidate;
    candidate.release = release;
    candidate.possible = true;
    candidate.records = int(m_session.records.size());
    take(candidate);
}

/// A program that ended while it was saving leaves the former content in the backup.
void SessionRecovery::tryBackup()
{
    const QString backup = GuardedSave::backupFile(m_file);
    ReleaseMappingC release;
    if (m_savedHash.isEmpty() || FileState::of(backup).hash != m_savedHash ||
        !readBase(backup, release))
        return;
    take(replay(release, m_savedAt));
}

void SessionRecovery::compare()
{
    m_recovered = m_best.release;
    StepSummary summary;
    const std::vector<MappingDifference> differences = releaseDifferences(m_saved, m_recovered);
    if (m_offer.saved.available && differences.empty() &&
        m_saved.getTargetDate() == m_recovered.getTargetDate())
        return;
    QSet<QString> projects;
    for (const MappingDifference &difference : differences) {
        summary.add(difference);
        projects.insert(difference.project.path);
    }
    m_offer.owner = m_session.owner;
    m_offer.sourceDate = m_recovered.getSourceDate();
    m_offer.changedLines = summary.lines();
    m_offer.changedProjects = int(projects.size());
    QDateTime time =
        timeOf(QFileInfo::exists(journalFile(m_file)) ? journalFile(m_file) : autosaveFile(m_file));
    for (const JournalReader::Step &step : JournalReader::steps(m_session, m_savedAt)) {
        if (step.record >= m_best.records)
            break;
        ++m_offer.steps;
        m_offer.lastStep = step.text;
        time = step.time;
    }
    m_offer.recovered = describe(m_recovered, time);
    m_offer.damage = m_damage;
}

QString SessionRecovery::damageText() const
{
    int lost = 0;
    for (int i = m_best.records; i < m_session.records.size(); ++i)
        lost += isKind(m_session.records[i], "change") ? 1 : 0;
    if (lost == 0)
        return say("Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.")
            .arg(journalFile(m_file));
    return say("Das Journal %1 ist beschädigt oder passt nicht zur Zuordnungsdatei. Mindestens %2 "
               "spätere Änderungen fehlen; das Journal wird aufgehoben.")
        .arg(journalFile(m_file))
        .arg(lost);
}
