#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/ReleaseMappingC.h>

#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <optional>
#include <vector>

namespace VelkRelease {

/// A line to which a decision was carried over.
struct CarriedLine
{
    QString project; ///< source path
    QString version; ///< of the project
    int line = 0;
    QString target; ///< target path
    int targetLine = 0;
    bool isCertain = false; ///< else proposed, to be checked

    friend bool operator==(const CarriedLine &, const CarriedLine &) = default;
};

/// What became of all that somebody confirmed in the former mapping; the numbers and the lines that
/// were carried over add up to `confirmed`.
struct CarryOutcome
{
    std::vector<CarriedLine> lines;
    int confirmed = 0;  ///< in the former mapping
    int expired = 0;    ///< confirmed to have no successor
    int clashing = 0;   ///< in conflict there
    int unknown = 0;    ///< of projects, or versions of them, that this release does not have
    int settled = 0;    ///< decided, certain or in conflict here
    int unfollowed = 0; ///< what they led to has no line in the later release
};

/// Why a mapping file has nothing that could be carried over.
enum class FormerFault : quint8 {
    None,
    Unreadable,
    OtherSource, ///< it has no mapping from the same old release
    SameTarget,  ///< it leads to the same new release
};

/// The mapping of a file that a release follows: from the same old release to another new one.
struct FormerMapping
{
    FormerFault fault = FormerFault::None;
    QString error;           ///< if it is unreadable: why
    ReleaseMappingC release; ///< if there is no fault
};
[[nodiscard]] VELKRELEASE_EXPORT FormerMapping readFormerMapping(const QString &file,
                                                                 const ReleaseMappingC &release);

/// How the way from the former target release to the new one is found.
struct FollowingOptions
{
    QString formerRoot; ///< holds the catalogs that the former mapping leads to
    QString targetRoot; ///< is the catalog root of the index tree
    const std::atomic<bool> *cancelled = nullptr; ///< true ends the work early
    QString progressText;                         ///< of the search for targets
    /// Called on the calling thread with the projects that are assigned, and all.
    std::function<void(int, int)> tell;
};

/// The mapping from the projects to which \a former leads, in a directory of catalogs, to those of
/// the catalogs that \a release leads to: made and assigned by the program, confirmed by nobody.
/// What cannot be read is told in \a errors. Nothing if the work was cancelled. On the thread of
/// the caller, which a progress may show, and those of WorkerPool.
[[nodiscard]] VELKRELEASE_EXPORT std::optional<ReleaseMappingC>
followingRelease(const ReleaseMappingC &former, const ReleaseMappingC &release,
                 const FollowingOptions &options, QStringList &errors);

/// Takes what somebody confirmed for the lines of the same old release when it led to an earlier
/// new one, \a former, and follows these lines on by \a following, into \a release. Lines that are
/// confirmed, assigned with certainty, in conflict or have a value range text keep what they have.
/// A line is certain if \a following has its line with certainty, the target has no conditions, and
/// no other line has that target line; else it is proposed. A target that the project lacks is
/// added. What was confirmed as expired is not carried over: it may be there again.
///
/// The lines are those of the result, in its order; projects are found by path and version.
VELKRELEASE_EXPORT CarryOutcome carryDecisions(ReleaseMappingC &release,
                                               const ReleaseMappingC &former,
                                               const ReleaseMappingC &following);

} // namespace VelkRelease
