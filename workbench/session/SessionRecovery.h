#pragma once

#include "JournalReader.h"
#include "RecoveryOffer.h"

#include <core/files/DurableFile.h>
#include <geomcore/records/ReleaseMappingC.h>

#include <QString>

/// Finds what a session that ended without closing left in the journal and the side file of a
/// mapping file, and works out the release as it was last.
class SessionRecovery
{
public:
    /// Reads all that is there; nobody else may be editing the file. Nothing is changed on disk.
    explicit SessionRecovery(const QString &mappingFile);

    /// Not valid if there is nothing that the saved file lacks.
    [[nodiscard]] const RecoveryOffer &offer() const { return m_offer; }
    /// German: what was noted and cannot be recovered; empty if nothing is missing.
    [[nodiscard]] const QString &damage() const { return m_damage; }
    [[nodiscard]] const ReleaseMappingC &savedRelease() const { return m_saved; }
    [[nodiscard]] const ReleaseMappingC &recoveredRelease() const { return m_recovered; }

    /// The recovered version goes on from the saved one. If not, somebody else changed the file
    /// since, or nobody knows.
    [[nodiscard]] bool fitsSavedFile() const;

    /// Whether a session was not closed and did anything, recoverable or not.
    [[nodiscard]] bool leftSomething() const { return m_leftSomething; }

    /// Puts journal and side file aside under names with a time stamp, so that they can be looked
    /// into later. False if that fails.
    static bool putAside(const QString &mappingFile);
    static bool putAsideJournal(const QString &mappingFile);

    [[nodiscard]] static QString journalFile(const QString &mappingFile);
    [[nodiscard]] static QString autosaveFile(const QString &mappingFile);

private:
    struct Replay
    {
        ReleaseMappingC release;
        bool possible = false;
        bool onSavedFile = false;
        int records = 0; ///< index behind the last one that was applied
    };
    void findLastSaving();
    [[nodiscard]] Replay replay(const ReleaseMappingC &base, int from) const;
    [[nodiscard]] bool readBase(const QString &file, ReleaseMappingC &release) const;
    void take(const Replay &candidate);
    void tryAutosave();
    void tryBackup();
    void compare();
    [[nodiscard]] bool isComplete(const Replay &candidate) const;
    [[nodiscard]] QString damageText() const;

    const QString m_file;
    JournalReader::Session m_session;
    int m_savedAt = 0; ///< index of the first record behind the last saving
    QByteArray m_savedHash;
    bool m_anyChange = false; ///< behind it
    bool m_leftSomething = false;
    Replay m_best;
    ReleaseMappingC m_saved;
    ReleaseMappingC m_recovered;
    RecoveryOffer m_offer;
    QString m_damage;
};
