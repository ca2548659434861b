#pragma once

#include <QString>
#include <QStringList>

/// What became of an attempt to save. Unless it was saved the mapping file is as it was before.
enum class SaveResult {
    Saved,
    ReadOnly,      ///< the document was opened for reading only
    Busy,          ///< another program is saving the file at this moment
    ForeignChange, ///< the file was changed since it was read; the user chooses
    Unreadable,    ///< the file there is no mapping file; the user chooses
    BackupFailed,  ///< the former content could not be kept
    WriteFailed,   ///< the new content could not be written or is not as it should be
};

/// Answers of the user to ForeignChange and Unreadable.
struct SaveOptions
{
    /// Replaces this release in the changed file; the file's other releases stay as they are there.
    bool overForeignChange = false;
    /// Keeps a copy of the file that is no mapping file and writes a new one, with the other
    /// releases of the backup.
    bool overUnreadable = false;
};

struct SaveOutcome
{
    SaveResult result = SaveResult::Saved;
    /// German: what happened, where, and what to do next. Empty if it was saved.
    QString text;
    QString backupFile; ///< the former content, if it was kept
    /// The copy of a file that was no mapping file.
    QString keptFile;
    /// Other releases that the unreadable file cannot give and the backup can.
    QStringList fromBackup;
    /// For ForeignChange: this release is in the file as it was read, only others changed.
    bool onlyOtherReleases = false;
};
