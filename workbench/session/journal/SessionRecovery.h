#pragma once

#include "JournalReader.h"
#include "JournalReplay.h"
#include "RecoveryOffer.h"

#include <geomcore/records/ReleaseMappingC.h>
#include <workbench/session/file/FileContent.h>

#include <QCoreApplication>
#include <QSet>
#include <QString>

#include <optional>

/// Finds what a session that ended without closing left in the journal and the side file of a
/// mapping file, and works out the release as it was last. Any thread.
class SessionRecovery
{
    Q_DECLARE_TR_FUNCTIONS(SessionRecovery)

public:
    /// Reads all that is there; nobody else may be editing the file. Nothing is changed on disk.
    explicit SessionRecovery(const QString &mappingFile);
    /// The same with the mapping file read already.
    SessionRecovery(const QString &mappingFile, const FileContent &content);

    /// Not valid if there is nothing that the saved file lacks.
    [[nodiscard]] const RecoveryOffer &offer() const { return m_offer; }
    /// German: what was noted and cannot be recovered; empty if nothing is missing.
    [[nodiscard]] const QString &damage() const { return m_damage; }
    /// Of the mapping file.
    [[nodiscard]] const FileState &savedState() const { return m_state; }
    [[nodiscard]] const ReleaseMappingC &savedRelease() const { return m_saved; }
    [[nodiscard]] const ReleaseMappingC &recoveredRelease() const { return m_best.release; }
    /// The same with the later changes that still fit, if offer() has them.
    [[nodiscard]] const ReleaseMappingC &furtherRelease() const { return m_further.release; }

    /// The recovered version goes on from the saved one. If not, somebody else changed the file
    /// since, or nobody knows.
    [[nodiscard]] bool fitsSavedFile() const;

    /// Whether a session was not closed and did anything, recoverable or not.
    [[nodiscard]] bool leftSomething() const { return m_leftSomething; }

    /// Whether there is a journal or a side file.
    [[nodiscard]] static bool mayHaveLeft(const QString &mappingFile);
    /// Puts journal and side file aside under names with a time stamp, so that they can be looked
    /// into later. False if that fails.
    static bool putAside(const QString &mappingFile);
    static bool putAsideJournal(const QString &mappingFile);

    [[nodiscard]] static QString journalFile(const QString &mappingFile);
    [[nodiscard]] static QString autosaveFile(const QString &mappingFile);

private:
    /// A release and the record from which on the session's changes are applied to it.
    struct Base
    {
        ReleaseMappingC release;
        int from = 0;
        bool isSavedFile = false;
    };
    void readSession();
    void findLastSaving();
    void findSaved(const FileContent &content);
    void chooseDate(const FileContent &content);
    [[nodiscard]] std::optional<ReleaseMappingC> releaseIn(const QByteArray &content) const;
    void consider(const Base &base);
    void tryAutosave(const std::optional<QByteArray> &content);
    void tryBackup();
    void takeFurther();
    void compare();
    [[nodiscard]] bool isComplete() const;
    [[nodiscard]] int changesFrom(int record) const;
    [[nodiscard]] QString damageText() const;

    const QString m_file;
    JournalReader::Session m_session;
    FileState m_state;        ///< of the mapping file
    QString m_date;           ///< of the release that was edited; empty if nobody knows
    QString m_lastDate;       ///< of the release that was edited last for certain
    int m_savedAt = 0;        ///< index of the first record behind the last saving
    QByteArray m_savedHash;   ///< of the mapping file then; empty: there was none
    QSet<QByteArray> m_noted; ///< all such hashes
    bool m_anyChange = false; ///< behind the last saving
    bool m_leftSomething = false;
    std::optional<Base> m_base; ///< of the best one
    JournalReplay m_best;
    JournalReplay m_further;
    ReleaseMappingC m_saved;
    RecoveryOffer m_offer;
    QString m_damage;
};
