#pragma once

#include <workbench/session/common/SessionTypes.h>

/// One of the two versions between which the user chooses after a crash.
struct RecoveryVersion
{
    bool available = false;
    QDateTime time; ///< UTC: of the file, or of the last recovered change
    int projects = 0;
    LineCounts counts;
};

/// What a program that ended without closing left behind.
struct RecoveryOffer
{
    SessionOwner owner;
    QString sourceDate;
    RecoveryVersion saved;     ///< the mapping file as it is
    RecoveryVersion recovered; ///< with what was not saved
    /// With the changes behind a damaged place of the journal, too, as far as they still fit.
    RecoveryVersion further;
    int laterChanges = 0; ///< that are behind the damage and fit
    int lostChanges = 0;  ///< that are behind it and do not
    /// The saved version is younger than all that could be recovered, and the session that was not
    /// closed knows nothing of its saving.
    bool savedIsNewer = false;
    int steps = 0;        ///< user actions that are not in the saved file
    QString lastStep;     ///< text of the last of them
    int changedLines = 0; ///< source lines that differ between both versions
    int changedProjects = 0;
    /// German; empty if all that was noted could be read, else what is missing.
    QString damage;

    [[nodiscard]] bool isValid() const { return recovered.available; }
};
