#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/ReleaseMappingC.h>

#include <QStringList>

#include <atomic>
#include <optional>
#include <vector>

namespace VelkRelease {

/// A value that no new line has.
struct LostValue
{
    QString variable;
    QString value;
};

/// What tells that a line has no successor.
struct GoneSigns
{
    bool isTableGone = false; ///< it has a target line in a project that is not there any more
    std::vector<LostValue> lost;
};

/// An open line beside the line that is proposed for it, or one that has no successor.
struct OpenPair
{
    struct Value
    {
        QString variable;
        QString before;
        QString after;
    };

    int line = -1;
    int target = -1;           ///< -1: none
    int targetLine = -1;       ///< -1: none is worth proposing
    double probability = 0;    ///< of the target line, or that there is none
    QString reason;            ///< one sentence; empty if there is nothing to say
    bool comparable = false;   ///< both lines could be read and have variables in common
    std::vector<Value> values; ///< of the variables that differ, in the order of the new table
    std::optional<GoneSigns> gone = std::nullopt;
};

/// Where a line of a mapping is proposed to go. Open with a proposal is a line that has a target
/// line which neither the program is sure of nor anybody has confirmed, and no conflict.
struct OpenProposal
{
    int line = -1;
    int target = -1;
    int targetLine = -1;

    friend bool operator==(const OpenProposal &, const OpenProposal &) = default;
};

/// Of all lines, ascending, each once; the first target counts.
[[nodiscard]] VELKRELEASE_EXPORT std::vector<OpenProposal>
openProposals(const PrjMappingC &mapping);
/// Of one line; not valid (line -1) if it is not open.
[[nodiscard]] VELKRELEASE_EXPORT OpenProposal openProposal(const PrjMappingC &mapping, int line);

/// The open lines for which none is proposed, ascending: no target has a line for them, nobody has
/// confirmed that, and there is no conflict.
[[nodiscard]] VELKRELEASE_EXPORT std::vector<int> linesWithoutProposal(const PrjMappingC &mapping);
/// Whether a line is one of these.
[[nodiscard]] VELKRELEASE_EXPORT bool isWithoutProposal(const PrjMappingC &mapping, int line);

/// Compares open lines of one project, read anew; those without a target line (-1) are looked for
/// in all targets. What cannot be read is in \a errors, and the lines are not comparable. Any
/// thread; ends early when \a cancelled becomes true.
[[nodiscard]] VELKRELEASE_EXPORT std::vector<OpenPair>
readOpenPairs(const QString &sourceRoot, const PrjMappingC &mapping, const ReleaseMappingC &release,
              const std::vector<OpenProposal> &lines, QStringList &errors,
              const std::atomic<bool> *cancelled = nullptr);

} // namespace VelkRelease
