#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QStringList>

#include <atomic>
#include <functional>

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
    /// What is wrong with them.
    QStringList targetErrors;
    /// The mapping is as it was, but for that mark: work was to end, or with \a force decisions
    /// would have been lost to a target that cannot be read.
    bool isLeft = false;
};

/// Whoever wants to know of each line.
struct LineSteps
{
    /// With their number, when it is certain that the lines will be assigned.
    std::function<void(int)> begin;
    std::function<void()> beforeLine;
};

/// Assigns the lines of a project's table anew and replaces \a mapping by the result. Of
/// \a release only what head() has is used. Of the value-range variables only those named in
/// \a conditionVariables are walked value by value; the first combination that finds a target
/// settles a line. With \a force only confirmed assignments are kept, else all. Any thread; ends
/// early when \a cancelled becomes true.
///
/// With \a steps, one line comes after the other in the table's order, and both are called on the
/// calling thread. Without, a large table is shared out to the threads of WorkerPool; the result is
/// the same, as what becomes of a line does not depend on the lines before it.
VELKRELEASE_EXPORT AssignmentOutcome assignProjectLines(
    const QString &sourcePath, PrjMappingC &mapping, VKTab::Content &table,
    const ReleaseMappingC &release, const QStringList &conditionVariables, bool force,
    const std::atomic<bool> *cancelled = nullptr, const LineSteps *steps = nullptr);

} // namespace VelkRelease
