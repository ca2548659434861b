#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/ReleaseMappingC.h>

#include <vector>

namespace VelkRelease {

/// What a project's mapping says for sure, as the link database holds it: the confirmed lines,
/// those confirmed to have no successor among them.
struct VELKRELEASE_EXPORT LineLinks
{
    struct Target
    {
        qint64 id = 0;
        QString path;
        QString version;
        QString tableVersion;
    };
    struct Link
    {
        int sourceLine = -1;
        int target = -1; ///< in targets; -1: the line has no successor
        int targetLine = -1;
        QString extended;
    };

    /// By path, both versions and the release's date: the same on every computer.
    qint64 id = 0;
    QString releaseDate;
    QString targetDate;
    QString path;
    QString version;
    QString tableVersion;
    std::vector<Target> targets; ///< that links have, in ascending order of their ids
    std::vector<Link> links;     ///< in ascending order of their source lines, each line once
    QString fingerprint;         ///< of all above; two that are equal are the same

    /// Of a line that is confirmed in several targets the first one with a target line counts.
    [[nodiscard]] static LineLinks of(const ReleaseMappingC &release, const PrjMappingC &mapping);
};

} // namespace VelkRelease
