#pragma once

#include <geomcore/records/ReleaseMappingC.h>
#include <release/neighbour/ReleaseNeighbours.h>
#include <release/pattern/DifferencePatterns.h>
#include <release/pattern/ReplacementEvidence.h>

#include <QList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// What velkmap review found out.
struct ReviewReport
{
    /// Lines that are named for a pattern.
    static constexpr int Examples = 3;

    const ReleaseMappingC &release;
    const VelkRelease::DifferencePatterns &patterns;
    const VelkRelease::ReleaseNeighbours &neighbours;
    QList<VelkRelease::ReplacementEvidence> evidence; ///< of the release's replacements

    [[nodiscard]] QString patternText(int pattern) const;
    [[nodiscard]] QString placeText(const VelkRelease::DifferencePatterns::Place &place) const;
    [[nodiscard]] static QString replacementText(const AgreedReplacement &replacement);
};

/// Tells it in rows for the terminal.
void writeReviewTable(const ReviewReport &report, QTextStream &out);

/// What changes without a notation of their own are called.
[[nodiscard]] const VelkRelease::ValueChange::Words &changeWords();
/// What lines without a successor have in common.
[[nodiscard]] const VelkRelease::GoneGroup::Words &goneWords();

} // namespace velkmap
