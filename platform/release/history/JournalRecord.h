#pragma once

#include <release/VelkReleaseGlobal.h>

#include <core/json/PJsonValue.h>

#include <QByteArray>
#include <QString>

/// The records of a journal that every program writes alike.
namespace VelkRelease::JournalRecord {

/// Kind and time, the present one.
[[nodiscard]] VELKRELEASE_EXPORT PJsonValue of(const char *kind);
/// Begins a session of this process on a release.
[[nodiscard]] VELKRELEASE_EXPORT PJsonValue opened(const QString &sourceDate,
                                                   const QString &targetDate,
                                                   const QByteArray &fileHash);
/// Ends it; \a modified: changes were discarded.
[[nodiscard]] VELKRELEASE_EXPORT PJsonValue closed(bool modified);
/// Ends a step.
[[nodiscard]] VELKRELEASE_EXPORT PJsonValue step(int number, const QString &origin,
                                                 const QString &text);
/// The file of \a kind ("saved", "autosaved") holds the state behind a step.
[[nodiscard]] VELKRELEASE_EXPORT PJsonValue stored(const char *kind, int step,
                                                   const QByteArray &fileHash);
/// What is no change of the release.
[[nodiscard]] VELKRELEASE_EXPORT PJsonValue note(const char *kind, const PJsonValue &note);

} // namespace VelkRelease::JournalRecord
