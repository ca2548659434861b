#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/ReleaseMappingC.h>

#include <QString>
#include <QStringList>

#include <atomic>
#include <vector>

namespace VelkRelease {

/// A line to which a decision was carried over.
struct CarriedLine
{
    QString project; ///< source path
    int line = 0;
    QString target; ///< target path
    int targetLine = 0;
    bool isCertain = false; ///< else proposed, to be checked

    friend bool operator==(const CarriedLine &, const CarriedLine &) = default;
};

/// The mapping from the projects to which \a former leads, in a directory of catalogs, to those of
/// the catalogs that \a release leads to: made and assigned by the program, confirmed by nobody.
/// Targets are looked up below the catalog root of the index tree, which is \a targetRoot. What
/// cannot be read is told in \a errors. Empty if \a cancelled became true.
[[nodiscard]] VELKRELEASE_EXPORT ReleaseMappingC followingRelease(
    const ReleaseMappingC &former, const QString &formerRoot, const ReleaseMappingC &release,
    const QString &targetRoot, const std::atomic<bool> &cancelled, QStringList &errors);

/// Takes what somebody confirmed for the lines of the same old release when it led to an earlier
/// new one, \a former, and follows these lines on by \a following, into \a release. Lines that are
/// confirmed, assigned with certainty, in conflict or have a value range text keep what they have.
/// A line is certain if \a following has its line with certainty, the target has no conditions, and
/// no other line has that target line; else it is proposed. A target that the project lacks is
/// added. What was confirmed as expired is not carried over: it may be there again.
///
/// The lines are those of the result, in its order; projects are found by path and version.
VELKRELEASE_EXPORT std::vector<CarriedLine> carryDecisions(ReleaseMappingC &release,
                                                           const ReleaseMappingC &former,
                                                           const ReleaseMappingC &following);

} // namespace VelkRelease
