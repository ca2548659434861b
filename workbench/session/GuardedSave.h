#pragma once

#include "SaveOutcome.h"

#include <core/files/DurableFile.h>
#include <geomcore/records/ReleaseMappingC.h>

#include <QByteArray>
#include <QMap>
#include <QString>

#include <functional>

/// Puts a release into its mapping file by way of a function that may leave the file damaged, with
/// a lock against others who save, a look at what others changed, a backup that is put back, and a
/// look at what was written.
class GuardedSave
{
public:
    /// \a file is the mapping file, \a known its state when it was read or saved last, \a loaded
    /// the release as it was there then (not valid dates: it was not there).
    GuardedSave(const QString &file, const FileState &known, const ReleaseMappingC &loaded);

    /// \a commit writes \a release into the file and gives false if it noticed that it failed.
    [[nodiscard]] SaveOutcome run(const ReleaseMappingC &release,
                                  const std::function<bool()> &commit, const SaveOptions &options);
    /// The file after a successful run().
    [[nodiscard]] const FileState &savedState() const { return m_saved; }

    [[nodiscard]] static QString backupFile(const QString &mappingFile);
    /// Held while saving.
    [[nodiscard]] static QString lockFile(const QString &mappingFile);
    /// So long another program may be saving, in ms.
    static constexpr int LockWait = 3000;

private:
    [[nodiscard]] bool reportForeignChange(const ReleaseMappingC &release);
    [[nodiscard]] bool examine(const ReleaseMappingC &release, const SaveOptions &options);
    [[nodiscard]] bool keepUnreadable(const QString &error, const SaveOptions &options);
    [[nodiscard]] bool makeBackup();
    [[nodiscard]] QString check(const ReleaseMappingC &release) const;
    void restore(const QString &cause);
    [[nodiscard]] bool end(SaveResult result, const QString &text);
    [[nodiscard]] static bool sameRelease(const ReleaseMappingC &a, const ReleaseMappingC &b);

    const QString m_file;
    const FileState m_known;
    const ReleaseMappingC m_loaded;
    QMap<QString, QByteArray> m_others; ///< texts of the file's other releases
    FileState m_before;
    FileState m_saved;
    SaveOutcome m_outcome;
};
