#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/ReleaseMappingC.h>

#include <QStringList>

#include <array>
#include <atomic>
#include <functional>
#include <optional>
#include <vector>

namespace VelkRelease {

/// The one thing above all why a line is still open. Where several things stand in the way, the
/// first one of this list counts: what comes first has to be settled before the rest can be.
enum class OpenReason : quint8 {
    Clash,         ///< two people decided differently on the line
    Colleague,     ///< somebody else decides on it
    Unreadable,    ///< the project's table, or that of a target that may have the line
    FormulaFails,  ///< a condition or a variable mapping has a fault, or gives no value
    NoTarget,      ///< the conditions of no target hold for it, or not those of its own one
    ColumnMissing, ///< what tells lines apart, or half of the values, is in one table only
    EqualLines,    ///< its values are equal, but to several lines, or another line has its line too
    TooUnlike,     ///< no line is like it, or the one that is proposed differs
    Unconfirmed,   ///< a line has equal values: only a decision is missing
};
inline constexpr int OpenReasonCount = 9;
using OpenReasonCounts = std::array<int, OpenReasonCount>;

/// "clash", "colleague", ...: for files and options.
[[nodiscard]] VELKRELEASE_EXPORT QString openReasonKey(OpenReason reason);

/// Why a line of a mapping is open. Open is what is in conflict, and what is neither confirmed nor
/// assigned with certainty.
struct OpenLineReason
{
    int line = -1;
    OpenReason reason = OpenReason::TooUnlike;

    friend bool operator==(const OpenLineReason &, const OpenLineReason &) = default;
};

/// Those of one project.
struct ProjectOpenReasons
{
    std::vector<OpenLineReason> lines; ///< ascending, each line once
    QStringList errors;                ///< what could not be read

    [[nodiscard]] VELKRELEASE_EXPORT OpenReasonCounts counts() const;
};

/// How they are found.
struct OpenReasonOptions
{
    QString sourceRoot; ///< holds the old release's catalog
    /// Whether somebody else decides on the lines of a project; may be empty. Any thread.
    std::function<bool(const QString &sourcePath)> isOthers;
    const std::atomic<bool> *cancelled = nullptr; ///< true ends the work early
};

/// Of one project; of \a release what head() has is used. Reads its table and those of its targets.
/// Any thread.
[[nodiscard]] VELKRELEASE_EXPORT ProjectOpenReasons openReasons(const PrjMappingC &mapping,
                                                                const ReleaseMappingC &release,
                                                                const OpenReasonOptions &options);

/// Of all projects, in the order of the release, with the threads of WorkerPool. \a tell is called
/// on the calling thread with the projects that are done. Nothing if the work was cancelled.
[[nodiscard]] VELKRELEASE_EXPORT std::optional<std::vector<ProjectOpenReasons>>
openReasons(const ReleaseMappingC &release, const OpenReasonOptions &options,
            const std::function<void(int)> &tell = {});

} // namespace VelkRelease
