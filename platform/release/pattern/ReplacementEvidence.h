#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/ReleaseMappingC.h>

#include <atomic>
#include <optional>
#include <vector>

namespace VelkRelease {

/// What the assigned lines of a release say about a replacement.
struct ReplacementEvidence
{
    struct Example
    {
        QString project; ///< source path
        int line = -1;
        QString before; ///< the values of the variable
        QString after;

        friend bool operator==(const Example &, const Example &) = default;
    };
    int supports = 0;              ///< lines whose value is replaced so
    int counterExamples = 0;       ///< lines that have the old value and another new one
    std::vector<Example> examples; ///< some of the counter-examples, in the order of the release
};

/// Looks at all lines that have a target line, whatever their state, in the projects that the
/// replacement holds in. Reads their tables with the threads of WorkerPool. Nothing if \a cancelled
/// became true. Projects that cannot be read say nothing.
[[nodiscard]] VELKRELEASE_EXPORT std::optional<ReplacementEvidence>
replacementEvidence(const QString &sourceRoot, const ReleaseMappingC &release,
                    const AgreedReplacement &replacement, const std::atomic<bool> &cancelled);

} // namespace VelkRelease
