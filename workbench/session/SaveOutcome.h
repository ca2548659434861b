#pragma once

#include <QString>

/// What became of an attempt to save.
enum class SaveResult {
    Saved,
    ReadOnly,      ///< the document was opened for reading only
    Busy,          ///< another program is saving the file at this moment; nothing was touched
    ForeignChange, ///< the file was changed since it was read; the user chooses, nothing was
                   ///< touched
    Unreadable,    ///< the file there is no mapping file; the user chooses, nothing was touched
    BackupFailed,  ///< the copy that precedes every saving failed; nothing was touched
    WriteFailed,   ///< writing failed, the file is as it was before
    RestoreFailed, ///< writing failed, and so did putting the former file back: see `backupFile`
};

/// Answers of the user to ForeignChange and Unreadable.
struct SaveOptions
{
    /// Replaces this release in the changed file; the file's other releases stay as they are there.
    bool overForeignChange = false;
    /// Keeps a copy of the file that is no mapping file and writes a new one.
    bool overUnreadable = false;
};

struct SaveOutcome
{
    SaveResult result = SaveResult::Saved;
    /// German: what happened, where, and what to do next. Empty if it was saved.
    QString text;
    QString backupFile; ///< the former content, if a copy was made
    /// The copy of a file that was no mapping file.
    QString keptFile;
    /// For ForeignChange: this release is in the file as it was read, only others changed.
    bool onlyOtherReleases = false;
};
