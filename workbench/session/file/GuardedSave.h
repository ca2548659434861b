#pragma once

#include "FileContent.h"
#include "SaveOutcome.h"

#include <core/json/PJsonValue.h>
#include <geomcore/records/ReleaseMappingC.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QLockFile;
class ReadBack;
class ReleaseDigest;

/// A mapping file as it was read or saved last.
struct KnownFile
{
    FileState state;
    ReleaseMappingC release; ///< the one that is edited; without dates: it was not there
    bool isAlone = false;    ///< the file was in order and held no other release
    QByteArray identity{};   ///< of the file with that state; empty if only its content tells
};

/// Puts a release into its mapping file by way of a function that may leave what it writes damaged.
/// It writes into a copy beside the file, which is compared with what should be there and then
/// takes the file's place: the mapping file is the former or the new one at any time. Around that a
/// lock against others who save, and a look at what others changed. Any thread.
class GuardedSave
{
    Q_DECLARE_TR_FUNCTIONS(GuardedSave)

public:
    /// Writes the release into the file of this name beside the releases of other dates, and gives
    /// false if it noticed that it failed.
    using Commit = std::function<bool(const QString &copy)>;

    /// \a file is the mapping file, \a known what it was when it was read or saved last.
    GuardedSave(const QString &file, const KnownFile &known);

    [[nodiscard]] SaveOutcome run(const ReleaseMappingC &release, const Commit &commit,
                                  const SaveOptions &options);
    /// The file after a successful run().
    [[nodiscard]] const KnownFile &saved() const { return m_saved; }

    /// What the file was before the last saving, and with a larger \a age before the ones before
    /// that, up to Backups.
    [[nodiscard]] static QString backupFile(const QString &mappingFile, int age = 1);
    static constexpr int Backups = 3;
    /// Held while saving.
    [[nodiscard]] static QString lockFile(const QString &mappingFile);
    /// What is being written; what a program that was killed left of it goes with the next saving.
    [[nodiscard]] static QString copyFile(const QString &mappingFile);
    /// So long another program may be saving, in ms.
    static constexpr int LockWait = 3000;

private:
    /// Why the saving ends at a step; none: it goes on.
    struct Obstacle
    {
        SaveResult result;
        QString text;
    };

    [[nodiscard]] std::optional<Obstacle> takeLock(QLockFile &lock);
    [[nodiscard]] std::optional<Obstacle> examine(const SaveOptions &options);
    [[nodiscard]] bool isAsKnown();
    [[nodiscard]] std::optional<Obstacle> examineUnreadable(const QString &error,
                                                            const SaveOptions &options);
    [[nodiscard]] Obstacle foreignChange();
    [[nodiscard]] std::optional<Obstacle> write(const Commit &commit);
    [[nodiscard]] QString fillCopy(const Commit &commit);
    [[nodiscard]] PJsonValue expected() const;
    [[nodiscard]] QString readBack(const QString &copy);
    [[nodiscard]] bool holdsExpected(ReadBack &copy) const;
    [[nodiscard]] QString check(const QByteArray &written) const;
    [[nodiscard]] std::optional<Obstacle> keepFormer();
    void keepOlder() const;
    [[nodiscard]] std::optional<Obstacle> putInPlace();
    void noteIdentity();
    [[nodiscard]] QString date() const { return m_release.getSourceDate(); }

    const QString m_file;
    const KnownFile m_known;
    ReleaseMappingC m_release;
    std::shared_ptr<const ReleaseDigest> m_digest; ///< of what was written of the release
    PJsonValue m_members; ///< of the file, or of the backup if the file cannot be read
    FileContent m_before; ///< without its bytes if it is as known
    bool m_readable = false;
    QByteArray m_copyIdentity; ///< of the copy that was found to be right, before its renaming
    KnownFile m_saved;
    SaveOutcome m_outcome;
};
