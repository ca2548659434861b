#pragma once

#include "ChangeGroups.h"
#include "GoneFamilies.h"
#include "PatternTable.h"

#include <geomcore/records/ReleaseMappingC.h>

#include <QStringList>

#include <atomic>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace VelkRelease {

/// The open lines of a release by how they differ from the lines that are proposed for them: lines
/// with the same changes of the same variables are one pattern, whatever their projects; those of
/// which the program is not sure are one of their own. Open lines without a successor are patterns
/// too, by what these lines have in common. Every open line without a conflict is in exactly one
/// pattern, or still to be compared.
///
/// What the changes are called is settled when the patterns are made, by all lines that were open
/// then. Decisions take lines out of their pattern, and undo brings them back; another proposal of
/// a line has to be read first. One thread at a time.
class VELKRELEASE_EXPORT DifferencePatterns
{
public:
    using Place = PatternTable::Place;
    using Numbers = PatternTable::Numbers;
    /// The pairs of one project, as they were read.
    struct Read
    {
        std::vector<OpenPair> pairs;
        QStringList errors;
    };

    /// A line whose proposal is less probable is in doubt: one in ten of the least sure others
    /// would be wrong, and nobody looks at each line of a pattern.
    static constexpr double SureFrom = 0.9;

    /// Without any line.
    DifferencePatterns() = default;
    /// \a pairs has an element for each mapping of the release.
    DifferencePatterns(const ReleaseMappingC &release, const std::vector<Read> &pairs);

    /// Reads the open lines of all projects with the threads of WorkerPool, or only of those
    /// positions that \a wanted accepts, and makes the patterns; the result does not depend on the
    /// number of threads. \a tell is called on the calling thread with the projects that are done.
    /// Nothing if \a cancelled became true.
    [[nodiscard]] static std::optional<DifferencePatterns>
    compute(const QString &sourceRoot, const ReleaseMappingC &release,
            const std::atomic<bool> &cancelled, const std::function<bool(int)> &wanted = {},
            const std::function<void(int)> &tell = {});

    /// A project's mapping is another one now. Costs what differs between both.
    void setMapping(int project, const PrjMappingC &mapping);
    /// Lines that have not been compared yet, in the order of the projects; those without a
    /// proposal have no target line.
    [[nodiscard]] std::vector<std::pair<int, std::vector<OpenProposal>>> pending() const;
    [[nodiscard]] int pendingLines() const { return m_pendingLines; }
    /// Enters what was read of pending lines. What is no longer proposed is passed over.
    void add(int project, const std::vector<OpenPair> &pairs);

    [[nodiscard]] int count() const { return m_table.count(); }
    /// In the order of the variables; empty for lines that differ in nothing, and for those that
    /// cannot be compared.
    [[nodiscard]] const QList<ValueChange> &changes(int pattern) const
    {
        return m_table.changes(pattern);
    }
    [[nodiscard]] bool isComparable(int pattern) const { return m_table.isComparable(pattern); }
    /// Its lines are in doubt.
    [[nodiscard]] bool isDoubtful(int pattern) const { return m_table.isDoubtful(pattern); }
    /// What its lines, which have no successor, have in common; nothing of lines with a proposal.
    [[nodiscard]] const std::optional<GoneGroup> &gone(int pattern) const
    {
        return m_table.gone(pattern);
    }
    /// The probability is that of the proposals, or that there is no successor.
    [[nodiscard]] Numbers numbers(int pattern) const { return m_table.numbers(pattern); }
    /// Patterns with a proposal that have lines, those of most lines first.
    [[nodiscard]] std::vector<int> ranked() const { return m_table.ranked(false); }
    /// The same of those without a successor.
    [[nodiscard]] std::vector<int> rankedGone() const { return m_table.ranked(true); }
    /// At most \a most open lines of a pattern, in the order of release and lines.
    [[nodiscard]] std::vector<Place> places(int pattern, int most = -1) const
    {
        return m_table.places(pattern, most);
    }
    /// Those of one project.
    [[nodiscard]] std::vector<int> lines(int pattern, int project) const
    {
        return m_table.lines(pattern, project);
    }
    [[nodiscard]] std::vector<Place> exceptions(int pattern, int most = -1) const
    {
        return m_table.exceptions(pattern, most);
    }
    /// The pattern of an open line, -1 if it has none.
    [[nodiscard]] int patternOf(const Place &place) const;
    /// All changes of an open line that was compared, also those that its pattern does not name.
    [[nodiscard]] QList<ValueChange> changesAt(const Place &place) const;
    /// Of an open line that was compared; nothing for others.
    [[nodiscard]] std::optional<double> probability(const Place &place) const;
    /// Open lines with a proposal in all patterns, and pending ones.
    [[nodiscard]] int openLines() const { return m_openLines + m_pendingLines - m_pendingGone; }
    /// The same of those without a successor.
    [[nodiscard]] int goneLines() const { return m_goneLines + m_pendingGone; }
    /// All open lines with a proposal that were compared, the least probable first.
    [[nodiscard]] std::vector<Place> leastSure() const { return m_table.leastSure(); }
    /// What could not be read, in the order of the release.
    [[nodiscard]] const QStringList &errors() const { return m_errors; }

private:
    struct Known
    {
        int target = -1;
        int targetLine = -1;
        int pattern = -1; ///< -1: not compared yet
        bool open = true;
        double probability = 0;
    };
    struct Project
    {
        PrjMappingC mapping;
        std::map<int, Known> lines;
        int pending = 0;
    };
    void enter(Project &project, int position, const OpenPair &pair, const QList<ValueChange> &own);
    void setOpen(Project &project, int position, int line, Known &known, bool open);

    ChangeGroups m_groups;
    QList<ValueChange> m_mixture; ///< what lines of usual changes are shown by
    GoneFamilies m_goneFamilies;
    std::vector<Project> m_projects;
    PatternTable m_table;
    /// Changes of lines that are shown by others, with all of theirs.
    std::map<Place, QList<ValueChange>> m_own;
    int m_openLines = 0;
    int m_goneLines = 0;
    int m_pendingLines = 0;
    int m_pendingGone = 0; ///< of these, without a proposal
    QStringList m_errors;
};

} // namespace VelkRelease
