#pragma once

#include "OpenPairs.h"

#include <geomcore/mapper/LineCandidatesC.h>
#include <geomcore/records/ReleaseMappingC.h>
#include <release/decide/RangeCoverage.h>

#include <QStringList>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace VelkRelease {

/// A project's lines beside the lines that they are assigned to, and beside those that they may
/// belong to. Reads the project's table, and those of its targets at the first need. One thread at
/// a time.
class VELKRELEASE_EXPORT LineComparer
{
public:
    /// An assigned line.
    struct Pair
    {
        int target = -1;
        int targetLine = -1;
        double probability = 0; ///< 0 if the line is not among the candidates
        QString reason;         ///< one sentence; empty if the line is not among them
        QList<ComparedVariableC> variables;
    };

    /// \a sourceRoot holds the old release's catalog; of \a release what head() has is used.
    LineComparer(const QString &sourceRoot, const PrjMappingC &mapping,
                 const ReleaseMappingC &release, const std::atomic<bool> *cancelled = nullptr);
    ~LineComparer();
    LineComparer(const LineComparer &) = delete;
    LineComparer &operator=(const LineComparer &) = delete;

    /// The project's table could be read.
    [[nodiscard]] bool isValid() const;
    /// What is wrong with it and with the tables of the targets, a text each.
    [[nodiscard]] const QStringList &errors() const;
    /// The table has the line.
    [[nodiscard]] bool hasLine(int line) const;
    /// The lines of the table, and of a target's table, in their order; none of a target that
    /// cannot be read.
    [[nodiscard]] std::vector<int> lines() const;
    [[nodiscard]] std::vector<int> targetLines(int target) const;
    /// The line's designation.
    [[nodiscard]] QString designation(int line) const;

    /// Nothing if the line is not assigned, or one of the tables does not have it.
    [[nodiscard]] std::optional<Pair> assigned(int line);
    /// The variables of the line and of the one that it is assigned to, whatever the candidates;
    /// empty where assigned() gives nothing. No value counts as replaced.
    [[nodiscard]] QList<ComparedVariableC> compared(int line);
    /// The variables of the line and of any line of a target of the mapping; empty if one of the
    /// tables cannot be read or does not have its line. Without the plan of the table no value
    /// counts as replaced, and it costs what the line has.
    [[nodiscard]] QList<ComparedVariableC> compared(int line, int target, int targetLine,
                                                    bool withPlan = false);
    [[nodiscard]] LineCandidatesC candidates(int line);
    /// Values of the line that neither a line of the targets has nor one that is assigned.
    [[nodiscard]] std::vector<LostValue> lostValues(int line);
    /// Target paths of those that cannot be read.
    [[nodiscard]] QStringList unreadableTargets() const;
    /// Which values of the line's ranges have a new line; empty if none are divided.
    [[nodiscard]] RangeCoverage coverage(int line) const;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace VelkRelease
