#pragma once

#include "GoneFamilies.h"
#include "ValueChange.h"

#include <release/VelkReleaseGlobal.h>

#include <QHash>
#include <QString>

#include <map>
#include <optional>
#include <vector>

namespace VelkRelease {

/// Patterns by what they are called, each with its lines: those of the same changes, or of the same
/// reason why they have no successor, and apart from each other those that are in doubt and those
/// that are not. Patterns are numbered as they come and never go; numbers do not depend on the
/// order in which lines come and go.
class VELKRELEASE_EXPORT PatternTable
{
public:
    /// A line of a release.
    struct Place
    {
        int project = -1; ///< position of the mapping in the release
        int line = -1;

        friend bool operator==(const Place &, const Place &) = default;
        // NOLINTNEXTLINE(modernize-use-nullptr): the comparison that is made has no pointer
        friend auto operator<=>(const Place &, const Place &) = default;
    };
    struct Numbers
    {
        int lines = 0;
        int projects = 0;
        double probability = 0; ///< mean of the lines
        int exceptions = 0;     ///< lines of patterns named by these changes and more besides

        friend bool operator==(const Numbers &, const Numbers &) = default;
    };
    [[nodiscard]] int count() const { return int(m_patterns.size()); }
    /// The pattern of these changes, which is made if it is not there. What cannot be compared is
    /// never in doubt.
    [[nodiscard]] int patternFor(const QList<ValueChange> &changes, bool comparable, bool doubtful);
    /// The part of a pattern whose lines have just these changes, while the pattern is shown by
    /// others. It has a number, its lines are those of the pattern, and it is no pattern itself.
    [[nodiscard]] int partFor(const QList<ValueChange> &shown, const QList<ValueChange> &changes);
    /// The pattern of a part; any other is its own.
    [[nodiscard]] int wholeOf(int pattern) const
    {
        const int whole = m_patterns[size_t(pattern)].whole;
        return whole < 0 ? pattern : whole;
    }
    /// The same of lines without a successor.
    [[nodiscard]] int goneFor(const GoneGroup &group, bool doubtful);
    /// A line that is not in it. One of a part is in its pattern.
    void add(int pattern, const Place &place, double probability);
    /// A line that is in it.
    void remove(int pattern, const Place &place);

    [[nodiscard]] const QList<ValueChange> &changes(int pattern) const
    {
        return m_patterns[size_t(pattern)].changes;
    }
    [[nodiscard]] bool isComparable(int pattern) const
    {
        return m_patterns[size_t(pattern)].comparable;
    }
    [[nodiscard]] bool isDoubtful(int pattern) const
    {
        return m_patterns[size_t(pattern)].doubtful;
    }
    /// Nothing for a pattern of changes.
    [[nodiscard]] const std::optional<GoneGroup> &gone(int pattern) const
    {
        return m_patterns[size_t(pattern)].gone;
    }
    [[nodiscard]] Numbers numbers(int pattern) const;
    /// Those that have lines, with a successor or all without, those of most lines first.
    [[nodiscard]] std::vector<int> ranked(bool gone) const;
    /// At most \a most lines, in the order of projects and lines; all with -1.
    [[nodiscard]] std::vector<Place> places(int pattern, int most) const;
    /// Those of one project.
    [[nodiscard]] std::vector<int> lines(int pattern, int project) const;
    /// Lines of patterns with all these changes and more besides, as places().
    [[nodiscard]] std::vector<Place> exceptions(int pattern, int most) const;
    /// All lines of patterns of changes, the least probable first.
    [[nodiscard]] std::vector<Place> leastSure() const;

private:
    struct Pattern
    {
        QList<ValueChange> changes;
        bool comparable = true;
        bool doubtful = false;
        std::optional<GoneGroup> gone;
        std::map<int, std::map<int, double>> open; ///< probability of lines, by project
        int lines = 0;
        /// Of the probabilities, in whole steps, so that it does not depend on the order in which
        /// lines came and went.
        qint64 sum = 0;
        std::vector<int> larger; ///< patterns with all these changes and others
        int whole = -1;          ///< of a part
    };

    [[nodiscard]] std::vector<int> changeIds(const QList<ValueChange> &changes);
    int append(const QList<ValueChange> &changes, const std::vector<int> &ids);
    void noteLarger(int pattern);
    static void addTo(Pattern &pattern, const Place &place, double probability);
    static void removeFrom(Pattern &pattern, const Place &place);

    std::vector<Pattern> m_patterns;
    QHash<QString, int> m_patternOf;           ///< by a name of all changes
    QHash<QString, int> m_changeOf;            ///< by a name of one change
    std::vector<std::vector<int>> m_changesOf; ///< of each pattern, ascending
    std::vector<std::vector<int>> m_having;    ///< patterns that have a change
};

} // namespace VelkRelease
