#pragma once

#include <release/report/ReleaseReport.h>

#include <QString>

/// Puts into a report what the journal of its mapping file has of this release: who did which step
/// and when, with what was undone and done again, and the samples. Without a journal, or with one
/// that cannot be read, there is nothing. \a release is its source date.
void addJournal(VelkRelease::ReleaseReport &report, const QString &journalFile,
                const QString &release);
