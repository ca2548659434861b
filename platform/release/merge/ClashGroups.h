#pragma once

#include "MergeTypes.h"

#include <release/VelkReleaseGlobal.h>

#include <QList>
#include <QString>

namespace VelkRelease {

/// What one side did with a line, without its numbers.
struct LineWay
{
    enum Kind : quint8 {
        Assigned,  ///< by the program
        ToCheck,   ///< assigned, and to be looked at
        Confirmed, ///< assigned and confirmed
        Removed,   ///< without target line, to be decided
        Expired,   ///< without target line, confirmed
        Unknown,   ///< no target knows it
    };
    Kind kind = Unknown;
    QString target; ///< path of the first three

    [[nodiscard]] VELKRELEASE_EXPORT static LineWay of(const LineStanding &standing);
    friend bool operator==(const LineWay &, const LineWay &) = default;
};

/// Lines of a project that both sides changed in the same two ways: one question for all of them.
struct ClashGroup
{
    QString sourcePath;
    QString sourceVersion;
    LineWay ours;
    LineWay theirs;
    QList<int> clashes; ///< places in the list of clashes, ascending
};

/// The clashes of lines, in groups in the order of their first ones. Clashes of other kinds are in
/// none.
[[nodiscard]] VELKRELEASE_EXPORT QList<ClashGroup> groupClashes(const QList<MergeClash> &clashes);

} // namespace VelkRelease
