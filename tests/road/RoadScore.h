#pragma once

#include <QString>
#include <QStringList>

class ReleaseMappingC;
class TruthFile;

/// How a release mapping with assigned lines compares with the truth.
struct RoadScore
{
    int known = 0;         ///< Lines that went somewhere, and it is known where.
    int mappedRight = 0;   ///< Of these: assigned by the program, to the right line.
    int proposedRight = 0; ///< The right line is proposed.
    int proposedWrong = 0; ///< Another line is proposed.
    int notFound = 0;      ///< No line is proposed.
    int gone = 0;          ///< Lines that went nowhere.
    int goneProposed = 0;  ///< Of these: a line is proposed.
    int mappedWrong = 0;   ///< Assigned by the program, but not there or gone.
    int unknown = 0;       ///< Lines of unknown fate.
    QStringList wrong;     ///< The wrongly assigned lines, one text each.

    /// Share of the known lines whose assignment or proposal is right, in percent.
    [[nodiscard]] double found() const
    {
        return known > 0 ? 100.0 * (mappedRight + proposedRight) / known : 0;
    }
};

/// Source and target paths count without catalog and ending.
[[nodiscard]] RoadScore scoreRoad(const ReleaseMappingC &release, const TruthFile &truth);
