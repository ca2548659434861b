#pragma once

#include "ChangeFamilies.h"

#include <geomcore/records/PrjMappingC.h>

#include <QHash>

namespace VelkRelease {

/// Which changes are shown as one pattern, so that a modeller looks at a list that is worth its
/// length. Mostly it is the changes of a line as they are. Where there are many lines, those whose
/// changes hardly any other line has all of are shown
///  - without the names of small families, if many lines have just these changes then;
///  - else, if all of theirs are usual, together with all other such lines, by all that is usual
///    in them: each line has one or more of these;
///  - else by the columns that differ.
/// A line that differs in nothing, and is proposed for a project of another name, is shown by how
/// the names differ: that is what there is to look at.
class VELKRELEASE_EXPORT ChangeGroups
{
public:
    /// What a pair is shown by.
    struct Shown
    {
        QList<ValueChange> changes;
        bool isUsual = false; ///< among all lines of usual changes, which share mixture()
    };

    explicit ChangeGroups(const QList<AgreedReplacement> &agreed = {})
        : m_families(agreed)
    {
    }

    /// First for each project: counts what its pairs support.
    void count(const std::vector<OpenPair> &pairs, const PrjMappingC &mapping);
    /// All changes of a pair, as ChangeFamilies names them, or that of the projects' names. To be
    /// called when all projects are counted.
    [[nodiscard]] QList<ValueChange> ownOf(const OpenPair &pair, const PrjMappingC &mapping) const;
    /// Then for each pair that is sure enough, with its changes: counts which occur together.
    void countTogether(const QList<ValueChange> &own, const OpenPair &pair);
    /// And once more for each, when that is done for all: counts who is shown together.
    void countShown(const QList<ValueChange> &own, const OpenPair &pair);
    /// What such a pair is shown by; its own changes if no others are shown so.
    [[nodiscard]] Shown shownFor(const QList<ValueChange> &own, const OpenPair &pair) const;
    /// The kinds of usual changes of all lines that are shown by them, those of most lines first,
    /// and that each line has one or more of these.
    [[nodiscard]] QList<ValueChange> mixture() const;

private:
    [[nodiscard]] Shown groupFor(const QList<ValueChange> &own, const OpenPair &pair) const;
    [[nodiscard]] QList<ValueChange> named(const QList<ValueChange> &own, const OpenPair &pair,
                                           int least) const;
    [[nodiscard]] QList<ValueChange> kinds(const QList<ValueChange> &changes,
                                           const OpenPair &pair) const;
    [[nodiscard]] bool areUsual(const QList<ValueChange> &changes) const;
    [[nodiscard]] int leastLines() const;
    [[nodiscard]] int linesWith(const QList<ValueChange> &all) const;
    [[nodiscard]] int linesWith(const ValueChange &change) const;
    [[nodiscard]] bool isUsual(const ValueChange &change) const;

    ChangeFamilies m_families;
    QHash<QString, int> m_projects; ///< projects whose names differ so, by a name of the change
    QHash<QString, int> m_sets;     ///< lines, by a name of all their changes
    QHash<QString, int> m_changes;  ///< lines, by a name of one of their changes
    QHash<QString, int> m_groups;   ///< lines, by a name of what they are to be shown by
    QHash<QString, int> m_usual;    ///< of those of usual changes, by a name of one of them
    QList<ValueChange> m_mixture;   ///< in the order in which they were seen
    int m_lines = 0;
    int m_usualLines = 0; ///< of usual changes
};

} // namespace VelkRelease
