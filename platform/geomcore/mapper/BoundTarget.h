#pragma once

#include "IdentityKey.h"
#include "LineInput.h"
#include "NameRank.h"
#include "TargetValues.h"

#include <geomcore/binding/BoundConditions.h>
#include <geomcore/binding/BoundModifiers.h>
#include <geomcore/records/PrjMappingTargetC.h>

#include <QSet>
#include <QStringList>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Mapper {

class PairJoin;
class SourceTable;
class TargetTable;

/// One target of the working mapping with everything that does not depend on the line worked out
/// once: its table, its conditions and modifiers on the columns of the source table, the variables
/// that both have. One thread.
class BoundTarget
{
public:
    using Varset = QHash<QString, MapVarValueC>;
    struct Hit
    {
        int row = -1;
        bool several = false;
    };

    /// \a table is null if it cannot be read: the target then holds no line. \a ranges are the
    /// ranges of the source table that conditions of the mapping read. The source outlives this.
    BoundTarget(int index, const PrjMappingTargetC &target,
                const std::shared_ptr<const TargetTable> &table, const SourceTable &source,
                const QStringList &ranges, bool shownOnly);
    ~BoundTarget();
    BoundTarget(const BoundTarget &) = delete;
    BoundTarget &operator=(const BoundTarget &) = delete;

    [[nodiscard]] int index() const { return m_index; }
    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] bool isOpen() const { return m_table != nullptr; }
    [[nodiscard]] const std::shared_ptr<const TargetTable> &table() const { return m_table; }
    [[nodiscard]] bool shownOnly() const { return m_shownOnly; }
    /// A person has confirmed a line of this target.
    [[nodiscard]] bool hasVerified() const { return m_hasVerified; }
    /// Variables of the target's table that lines of the source table have values for.
    [[nodiscard]] const std::vector<int> &variables() const { return m_variables; }

    [[nodiscard]] bool conditionsHold(const LineInput &line) const;
    /// Text of a condition that does not parse, so that nobody knows for which lines the target
    /// is.
    [[nodiscard]] const std::optional<QString> &faultyCondition() const
    {
        return m_faultyCondition;
    }
    /// Texts of the conditions that do not hold.
    [[nodiscard]] QStringList failingConditions(const LineInput &line) const;
    [[nodiscard]] Varset updateVarset(const LineInput &line) const;

    /// The line's values as this target sees them.
    void takeValues(const LineInput &line, TargetValues &values) const;
    /// The same from the varset that updateVarset gave.
    void takeValues(const Varset &targetVarset, TargetValues &values) const;

    /// Rows with equal values that may be proposed, in display order, at most \a limit.
    [[nodiscard]] std::vector<int> equalRows(const TargetValues &values, int limit) const;
    /// The row to be proposed: the first with the same ranges, else the first.
    [[nodiscard]] Hit findEqual(const TargetValues &values) const;

    /// Null without a source table.
    [[nodiscard]] const PairJoin *join() const;
    /// What the join depends on beside the two tables.
    [[nodiscard]] std::string signature() const;
    [[nodiscard]] const IdentityKey &identity() const;

    /// Every variable of the source table is one of the target's, so all values of a line are
    /// compared.
    [[nodiscard]] bool comparesEverything() const { return m_comparesEverything; }
    /// Counts the values of a line, and those of them that reach a variable of the target, however
    /// many. The first form works without taking them and gives false if it cannot tell.
    [[nodiscard]] bool countCompared(const LineInput &line, int &compared, int &values) const;
    void countCompared(const LineInput &line, const TargetValues &taken, int &compared,
                       int &values) const;
    /// Variables of the source table that the target's values are made of.
    [[nodiscard]] QSet<QString> comparedSourceNames() const;

    /// For a row with equal values: whether values of text columns are equal as texts too, "007"
    /// being another one than "7".
    [[nodiscard]] bool hasSameTexts(const TargetValues &values, int row) const;
    /// The same for a line as stored, without taking its values.
    [[nodiscard]] bool hasSameTexts(int sourceRow, int row) const;
    /// The second form knows all texts.
    [[nodiscard]] bool textsAreStored() const { return m_textsAreStored; }
    /// Whether values of a variable are texts in either table.
    [[nodiscard]] bool isText(int variable) const;

    /// What PairJoinBuilder needs to join without looking at single lines: the columns of the
    /// source table, one for each variable. Empty if there is more to it.
    [[nodiscard]] std::vector<int> plainColumns() const;
    [[nodiscard]] const VKTab::BoundConditions &conditions() const { return m_conditions; }
    /// Origins of the values of variables(), in their order.
    [[nodiscard]] const std::vector<VKTab::BoundModifiers::Origin> &origins() const
    {
        return m_origins;
    }

private:
    void bindVariables();
    void bindUses();
    void bindTexts();
    /// Names of the source's variables that a variable of the target is made of.
    [[nodiscard]] QStringList sourceNames(int variable) const;
    void setSearch(const std::vector<int> &variables, TargetValues &values) const;
    const int m_index;
    const PrjMappingTargetC m_target;
    const QString m_path;
    const std::shared_ptr<const TargetTable> m_table;
    const SourceTable &m_source;
    const QStringList m_ranges;
    const bool m_shownOnly;
    bool m_hasVerified = false;
    VKTab::BoundConditions m_conditions;
    VKTab::BoundModifiers m_modifiers;
    std::vector<int> m_variables;
    std::vector<VKTab::BoundModifiers::Origin> m_origins;
    bool m_comparesEverything = false;
    std::vector<int>
        m_uses; ///< By source column: 1 if it reaches a variable; empty if formulas do.
    std::optional<QString> m_faultyCondition;
    struct TextPair
    {
        int sourceColumn;
        int targetColumn;
    };
    std::vector<TextPair> m_textPairs; ///< Columns that are to be equal as texts.
    bool m_textsAreStored = true;      ///< m_textPairs has all of them.
    bool m_sameColumns = false;        ///< Both files have the same columns in the same order.
    int m_firstText = 0;               ///< The first column that is to be equal as a text.
    int m_lastText = 0;
    mutable std::shared_ptr<const ExactSearch> m_search;
    mutable std::shared_ptr<const PairJoin> m_join;
    mutable std::unique_ptr<IdentityKey> m_identity;
};

} // namespace Mapper
