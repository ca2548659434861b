#pragma once

#include <geomcore/records/MappingChange.h>
#include <geomcore/records/ReleaseMappingC.h>

#include <QList>
#include <QString>

#include <functional>

namespace VelkRelease {

/// Where a line stands in one target.
struct LineEntry
{
    QString target; ///< path; empty: without target
    PrjMappingTargetLineC line;

    friend bool operator==(const LineEntry &, const LineEntry &) = default;
};
/// All entries of a line, in the order of the targets; empty: no target knows it. The same line of
/// two projects' targets has two entries where its value ranges were divided.
using LineStanding = QList<LineEntry>;

/// What both sides changed differently. Where a line, a rule, an order or a version clashes, the
/// merged release holds what they have. A removal gives way to what the other side decided.
struct MergeClash
{
    enum Kind : quint8 {
        Line,
        Conditions,
        VariableMapping,
        TargetVersion,
        TargetOrder,
        TargetRemoved, ///< by one side, and the other decided something about it
        ProjectVersion,
        ProjectRemoved, ///< the same
        TargetDate,     ///< of the release
    };
    Kind kind = Line;
    QString sourcePath;
    QString sourceVersion;
    QString target; ///< path, of the kinds that are about one
    int line = 0;   ///< as the next three of the kind Line
    LineStanding base;
    LineStanding ours;
    LineStanding theirs;
    bool removedByOurs = false; ///< of the two kinds about removals
};

/// A line that both sides changed and that needs no question.
struct MergeSettled
{
    enum Reason : quint8 {
        SameDecision,
        SameValues, ///< another target line, which says the same
        Combined, ///< the confirmed one of two states, or the text of one and the state of another
    };
    Reason reason = SameDecision;
    QString sourcePath;
    int line = 0;
    LineStanding ours;
    LineStanding theirs;
};

struct MergeOptions
{
    /// Whether two lines of a target project say the same; none: only the same line does. Called
    /// for lines that both sides assigned, to different lines of one target.
    std::function<bool(const QString &targetPath, int line, int otherLine)> sameLines;
    QString author; ///< of their changes, for the change maps
    QString time;
};

struct MergeResult
{
    /// Lines that clash are marked as being in conflict, in the first target that has them.
    ReleaseMappingC release;
    /// Our changes that were not taken, as MappingConflictWidget wants them: lines as type 0.
    MappingChangeMap local;
    /// All changes of theirs.
    MappingChangeMap online;
    QList<MergeClash> clashes; ///< in the order of the release, lines ascending
    QList<MergeSettled> settled;
};

} // namespace VelkRelease
