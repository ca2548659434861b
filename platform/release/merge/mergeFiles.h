#pragma once

#include "MergeTypes.h"

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/MappingFile.h>

#include <QByteArray>
#include <QStringList>

namespace VelkRelease {

/// A mapping file that was merged release by release.
struct VELKRELEASE_EXPORT MergedFile
{
    MappingFile file;
    QList<MergeResult> releases; ///< in the order of the file
    QStringList keptDates;       ///< releases that one side removed and the other one changed
    [[nodiscard]] bool clashes() const;
};

/// Merges what two sides made of a mapping file, all of them read with all releases. A release that
/// one side removed goes if the other side left it as it was.
[[nodiscard]] VELKRELEASE_EXPORT MergedFile mergeFiles(const MappingFile &base,
                                                       const MappingFile &ours,
                                                       const MappingFile &theirs,
                                                       const MergeOptions &options = {});

/// What was merged as JSON: clashes, the questions that they make, lines that settled themselves,
/// what of ours was not taken, all changes of theirs. docs/schema/merge-report.schema.json
/// describes it. The same merge gives the same bytes.
[[nodiscard]] VELKRELEASE_EXPORT QByteArray mergeReport(const MergedFile &merged);

} // namespace VelkRelease
