#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QStringList>

#include <atomic>

class PrjMappingC;
class ReleaseMappingC;
namespace VKTab {
class Content;
}

namespace VelkRelease {

/// What became of an assignment.
struct AssignmentOutcome
{
    /// Paths of targets that cannot be read; the mapping is marked with StateTableError then.
    QStringList unreadableTargets;
    /// The mapping is as it was, but for that mark: work was to end, or with \a force decisions
    /// would have been lost to a target that cannot be read.
    bool isLeft = false;
};

/// Assigns the lines of a project's table anew and replaces \a mapping by the result. Of
/// \a release only the two dates are used. Of the value-range variables only those named in
/// \a conditionVariables are walked value by value; the first combination that finds a target
/// settles a line. With \a force only confirmed assignments are kept, else all. Runs synchronously
/// on any thread and tells the calling thread's progress observer, if it has one, of each line;
/// ends early when \a cancelled becomes true.
VELKRELEASE_EXPORT AssignmentOutcome
assignProjectLines(const QString &sourcePath, PrjMappingC &mapping, VKTab::Content &table,
                   const ReleaseMappingC &release, const QStringList &conditionVariables,
                   bool force, const std::atomic<bool> *cancelled = nullptr);

} // namespace VelkRelease
