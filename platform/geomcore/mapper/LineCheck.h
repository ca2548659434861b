#pragma once

#include "LineInput.h"
#include "MapperFlags.h"
#include "TargetSet.h"

#include <QStringList>

namespace Mapper {

/// Checks one assignment of a source line to a line of a target.
///
/// Values are equal and unambiguous if the target line has equal values, those of text columns also
/// as texts; no other line of the target has, and no other project among the targets whose
/// conditions hold; no other source line could go to the same line through a target of the same
/// project, or is confirmed for it; if all combinations of the line's ranges belong to it; if
/// enough of the line's values are compared, each counted once; and, where the program chose the
/// project, if name or a confirmed line connect it with the source and most lines of both tables
/// agree: in a table that was reworked a single equal line is chance. Where the program proposed
/// conditions or variable mappings, all of this has to hold without them too. What cannot be read
/// or parsed, or is too much to be compared, leaves no certainty.
class LineCheck
{
public:
    using Varset = QHash<QString, MapVarValueC>;
    struct Assignment
    {
        LineInput line;
        int targetIndex = -1;
        int targetLine = -1;
        /// What updateVarset gave; null: to be worked out from the line.
        const Varset *targetVarset = nullptr;
        /// The program chose the target.
        bool automatic = true;
    };

    /// \a mapping is the one that the targets belong to.
    LineCheck(TargetSet &targets, const PrjMappingC &mapping);

    /// Whether there is nothing to be said against it.
    [[nodiscard]] bool passes(const Assignment &assignment, CheckModeFlags mode);
    /// Whether the target line has equal values, whatever else is to be said.
    [[nodiscard]] bool hasEqualValues(const Assignment &assignment);
    /// What is to be said against it, one message for each difference.
    [[nodiscard]] QStringList messages(const Assignment &assignment, CheckModeFlags mode);

private:
    // Each of these is true if all is well; else it leaves messages, unless only the answer counts.
    bool run(CheckModeFlags mode);
    bool checkLine(CheckModeFlags mode);
    bool checkValues(int row);
    bool checkEqual(int row);
    bool checkDifferences(int row);
    bool checkAlone(int row);
    bool checkTargets(int row);
    bool checkOtherTarget(const BoundTarget &other, int row);
    bool checkCombinations(int row);
    bool checkClaims(int row);
    bool checkConfirmed(int row);
    bool checkCompared(int row);
    bool checkProject(int row);
    bool checkDesignations(int row);
    bool checkConditions();
    bool checkProposedRules(CheckModeFlags mode);

    bool complain(const QString &message);
    [[nodiscard]] bool usesJoins() const;
    /// The join pairs the line with this row, so nothing need be compared.
    [[nodiscard]] bool isJoined(int row) const;
    /// Whether the join says that no equal line is here.
    [[nodiscard]] bool isKnownToDiffer(int row) const;
    void takeValues();
    [[nodiscard]] bool mayTakeLine(const BoundTarget &target) const;
    [[nodiscard]] int equalRowOf(const BoundTarget &target);
    /// The join of the source table with the target; null if the line is none of that table.
    [[nodiscard]] const PairJoin *joinOf(const BoundTarget &target) const;
    /// Calls visit for each target of the checked one's project, itself included.
    template<class Visit>
    void forEachOfProject(Visit visit);
    [[nodiscard]] QStringList namesNotCompared() const;
    /// Numbers of other source lines with that equal row, as many as a message names.
    [[nodiscard]] QList<int> claimingLines(int row);

    TargetSet &m_targets;
    const PrjMappingC &m_mapping;
    const BoundTarget *m_target = nullptr;
    const Assignment *m_assignment = nullptr;
    bool m_quiet = false;
    bool m_hasValues = false;
    TargetValues m_values;
    TargetValues m_otherValues;
    QStringList m_messages;
};

} // namespace Mapper
