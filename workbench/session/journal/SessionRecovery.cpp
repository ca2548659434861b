#include "SessionRecovery.h"

#include <core/json/PJsonValue.h>
#include <core/text/countText.h>
#include <geomcore/records/MappingFile.h>
#include <workbench/session/change/ReleaseChanges.h>
#include <workbench/session/change/StepSummary.h>
#include <workbench/session/file/GuardedSave.h>
#include <workbench/session/file/OwnFile.h>

#include <QFileInfo>

using Extent = JournalReplay::Extent;

namespace {

RecoveryVersion describe(const ReleaseMappingC &release, const QDateTime &time)
{
    return {true, time, release.countMappings(), countLines(release)};
}

QDateTime timeOf(const QString &file)
{
    return QFileInfo(file).lastModified().toUTC();
}

QByteArray hashIn(const QByteArray &record)
{
    return JournalReader::parse(record).value(QStringLiteral("fileHash")).toText().toLatin1();
}

bool isThere(const QString &file)
{
    return OwnFile::place(file) != OwnFile::Place::Free;
}

bool putAsideFile(const QString &file)
{
    return !isThere(file) ||
           OwnFile::rename(file, DurableFile::stampedName(file, QStringLiteral("alt")));
}

} // namespace

SessionRecovery::SessionRecovery(const QString &mappingFile)
    : SessionRecovery(mappingFile, FileContent::of(mappingFile))
{
}

SessionRecovery::SessionRecovery(const QString &mappingFile, const FileContent &content)
    : m_file(mappingFile)
    , m_state(content.state)
{
    readSession();
    const QString side = autosaveFile(m_file);
    const bool sideFile = OwnFile::place(side) == OwnFile::Place::RegularFile;
    findLastSaving();
    m_leftSomething = m_anyChange || sideFile;
    if (!m_leftSomething)
        return;
    findSaved(content);
    if (m_anyChange && m_offer.saved.available)
        consider({m_saved, m_savedAt, true});
    if (!isComplete() && sideFile)
        tryAutosave(OwnFile::read(side));
    if (!isComplete())
        tryBackup();
    if (m_base && !isComplete())
        takeFurther();
    if (m_anyChange && (!isComplete() || m_offer.laterChanges > 0))
        m_damage = damageText();
    if (m_base)
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

bool SessionRecovery::mayHaveLeft(const QString &mappingFile)
{
    return isThere(journalFile(mappingFile)) || isThere(autosaveFile(mappingFile));
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

/// The last one, unless it was closed.
void SessionRecovery::readSession()
{
    JournalReader journal;
    QString error;
    if (!journal.read(journalFile(m_file), &error))
        m_damage =
            tr("Das Journal %1 kann nicht gelesen werden (%2).").arg(journalFile(m_file), error);
    if (!journal.sessions().isEmpty() && !journal.sessions().last().closed)
        m_session = journal.sessions().last();
    for (const JournalReader::Session &session : journal.sessions())
        m_lastDate = session.isKnown ? session.sourceDate : m_lastDate;
    m_date = m_session.sourceDate;
}

void SessionRecovery::findLastSaving()
{
    m_savedHash = m_session.fileHash;
    m_noted.insert(m_savedHash);
    for (int i = 0; i < m_session.records.size(); ++i) {
        const QByteArray &record = m_session.records[i];
        m_anyChange = m_anyChange || JournalReader::isKind(record, "change") ||
                      JournalReader::isKind(record, "targetDate");
        if (!JournalReader::isKind(record, "saved"))
            continue;
        m_savedAt = i + 1;
        m_savedHash = hashIn(record);
        m_noted.insert(m_savedHash);
        m_anyChange = false;
    }
    m_anyChange = m_anyChange || (!m_session.gaps.isEmpty() && m_session.gaps.last() >= m_savedAt);
}

void SessionRecovery::findSaved(const FileContent &content)
{
    if (m_date.isEmpty())
        chooseDate(content);
    const std::optional<ReleaseMappingC> saved = releaseIn(content.bytes);
    if (!saved)
        return;
    m_saved = *saved;
    m_offer.saved = describe(m_saved, content.state.time);
}

/// Nobody wrote down which release was edited: that to which most changes fit, of several the one
/// that was edited before, else the last one.
void SessionRecovery::chooseDate(const FileContent &content)
{
    MappingFile mappings;
    if (!mappings.parse(content.bytes))
        return;
    int most = -1;
    const QList<ReleaseMappingC> releases = mappings.releases();
    for (const ReleaseMappingC &release : releases) {
        const int fitting =
            JournalReplay::run(m_session, release, m_savedAt, Extent::Fitting).applied;
        if (fitting < most || (fitting == most && m_date == m_lastDate))
            continue;
        most = fitting;
        m_date = release.getSourceDate();
    }
}

/// The release that was edited, the last one if that is not known.
std::optional<ReleaseMappingC> SessionRecovery::releaseIn(const QByteArray &content) const
{
    MappingFile mappings;
    if (!mappings.parse(content, m_date))
        return std::nullopt;
    const QStringList dates = mappings.sourceDates();
    const QString date = m_date.isEmpty() ? dates.value(dates.size() - 1) : m_date;
    if (!mappings.contains(date))
        return std::nullopt;
    return mappings.release(date);
}

/// Keeps the candidate that gets furthest.
void SessionRecovery::consider(const Base &base)
{
    const JournalReplay candidate =
        JournalReplay::run(m_session, base.release, base.from, Extent::Unbroken);
    if (m_base && candidate.records <= m_best.records)
        return;
    m_base = base;
    m_best = candidate;
}

bool SessionRecovery::isComplete() const
{
    const bool gapAhead = !m_session.gaps.isEmpty() && m_session.gaps.last() >= m_best.records;
    return m_base && !gapAhead && m_best.records == m_session.records.size();
}

bool SessionRecovery::fitsSavedFile() const
{
    return !m_offer.saved.available || (m_base && m_base->isSavedFile) ||
           (!m_savedHash.isEmpty() && m_state.hash == m_savedHash);
}

/// The side file stands for the state at its mark in the journal; without a mark, as if the program
/// ended between both, for all that was noted.
void SessionRecovery::tryAutosave(const std::optional<QByteArray> &content)
{
    const std::optional<ReleaseMappingC> release = content ? releaseIn(*content) : std::nullopt;
    if (!release)
        return;
    const QByteArray hash = FileState::hashOf(*content);
    for (int i = int(m_session.records.size()) - 1; i >= 0; --i) {
        const QByteArray &record = m_session.records[i];
        if (JournalReader::isKind(record, "autosaved") && hashIn(record) == hash) {
            consider({*release, i + 1, false});
            return;
        }
    }
    if (m_offer.saved.available && timeOf(autosaveFile(m_file)) < m_offer.saved.time)
        return;
    m_base = Base{*release, int(m_session.records.size()), false};
    m_best = {*release, int(m_session.records.size()), 0, 0};
}

/// The former content, if a program ended while it was saving.
void SessionRecovery::tryBackup()
{
    if (m_savedHash.isEmpty())
        return;
    const std::optional<QByteArray> backup = OwnFile::read(GuardedSave::backupFile(m_file));
    if (!backup || FileState::hashOf(*backup) != m_savedHash)
        return;
    if (const std::optional<ReleaseMappingC> release = releaseIn(*backup))
        consider({*release, m_savedAt, false});
}

/// What is behind the damage and still fits is a version of its own, unless there is nothing before
/// the damage.
void SessionRecovery::takeFurther()
{
    m_further = JournalReplay::run(m_session, m_base->release, m_base->from, Extent::Fitting);
    if (m_further.applied <= m_best.applied)
        return;
    m_offer.laterChanges = m_further.applied - m_best.applied;
    m_offer.lostChanges = m_further.refused;
    if (m_best.applied > 0 || !m_base->isSavedFile)
        m_offer.further = describe(m_further.release, timeOf(journalFile(m_file)));
    else
        m_best = m_further;
}

void SessionRecovery::compare()
{
    const ReleaseMappingC &recovered = m_best.release;
    StepSummary summary;
    const std::vector<MappingDifference> differences = releaseDifferences(m_saved, recovered);
    if (m_offer.saved.available && differences.empty() && !m_offer.further.available &&
        m_saved.getTargetDate() == recovered.getTargetDate())
        return;
    QSet<QString> projects;
    for (const MappingDifference &difference : differences) {
        summary.add(difference);
        projects.insert(difference.project.path);
    }
    m_offer.owner = m_session.owner;
    m_offer.sourceDate = recovered.getSourceDate();
    m_offer.changedLines = summary.lines();
    m_offer.changedProjects = int(projects.size());
    QDateTime time =
        timeOf(isThere(journalFile(m_file)) ? journalFile(m_file) : autosaveFile(m_file));
    for (const JournalReader::Step &step : JournalReader::steps(m_session, m_savedAt)) {
        if (step.record >= m_best.records)
            break;
        ++m_offer.steps;
        m_offer.lastStep = step.text;
        time = step.time;
    }
    m_offer.recovered = describe(recovered, time);
    m_offer.damage = m_damage;
    m_offer.savedIsNewer = m_offer.saved.available && m_base && !m_base->isSavedFile &&
                           m_offer.saved.time > time && !m_noted.contains(m_state.hash);
}

int SessionRecovery::changesFrom(int record) const
{
    int changes = 0;
    for (int i = record; i < m_session.records.size(); ++i)
        changes += JournalReader::isKind(m_session.records[i], "change") ? 1 : 0;
    return changes;
}

QString SessionRecovery::damageText() const
{
    const QString journal = journalFile(m_file);
    if (!m_session.isKnown && m_session.records.isEmpty())
        return tr("Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was "
                  "dort stand, ist nicht bekannt; das Journal wird aufgehoben.")
            .arg(journal);
    if (m_offer.laterChanges > 0)
        return tr("Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln "
                  "Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird "
                  "aufgehoben.",
                  nullptr, m_offer.laterChanges)
            .arg(journal, countText(m_offer.lostChanges));
    const int lost = changesFrom(m_best.records);
    if (lost == 0 && m_session.isKnown)
        return tr("Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.")
            .arg(journal);
    return tr("Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln "
              "spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.",
              nullptr, lost)
        .arg(journal);
}
