#pragma once

#include "LineTable.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHash>
#include <QList>
#include <QSharedDataPointer>
#include <QString>

#include <memory>
#include <vector>

class MapVarValueC;
class PrjMappingTargetData;
class VarsetConditionI;
class VarsetModifierI;
namespace VKTab {
class LineView;
}

/// One target project of a project mapping, or with an empty path the target of the lines that have
/// none. A copy-on-write value: a change reaches the mapping only by PrjMappingC::updateTarget.
class VELKGEOMCORE_EXPORT PrjMappingTargetC
{
public:
    PrjMappingTargetC();
    PrjMappingTargetC(const PrjMappingTargetC &other);
    PrjMappingTargetC(PrjMappingTargetC &&other) noexcept;
    PrjMappingTargetC &operator=(const PrjMappingTargetC &other);
    PrjMappingTargetC &operator=(PrjMappingTargetC &&other) noexcept;
    ~PrjMappingTargetC();

    [[nodiscard]] bool isValid() const;
    void setValid(bool valid);
    /// Relative to `$TORMEVA_DATA/23d-libs`; empty: the not-found target.
    [[nodiscard]] QString getTargetPath() const;
    void setTargetPath(const QString &path);
    [[nodiscard]] bool isNotFoundTarget() const;
    [[nodiscard]] QString getTargetVersion() const;
    void setTargetVersion(const QString &version);
    [[nodiscard]] QString getTabVersion() const;
    void setTabVersion(const QString &version);

    [[nodiscard]] int countLines() const;
    /// All entries by source line id. Costs a copy of them: to look only, use the three below.
    [[nodiscard]] QHash<int, PrjMappingTargetLineC> getMappedLines() const;
    /// The entry of a line, or PrjMappingTargetLineC(-1, ToCheck, "").
    [[nodiscard]] PrjMappingTargetLineC getMappedLine(int sourceLineId) const;
    [[nodiscard]] bool containsLine(int sourceLineId) const;
    /// The entries for walking and looking without a copy, in ascending order of source line ids.
    /// The reference is valid until this target is changed or goes.
    [[nodiscard]] const LineTable &lines() const;
    [[nodiscard]] const LineCounts &lineCounts() const { return lines().counts(); }

    /// Adds or replaces the entry as a whole: the conflict flag is gone afterwards. The extended
    /// text is kept literally. Fastest in ascending order of \a sourceLineId.
    void addLineId(int sourceLineId, int targetLineId, PRJMAPPING::CheckState state,
                   const QString &extended);
    /// As addLineId, with the conflict flag of \a line.
    void setMappedLine(int sourceLineId, const PrjMappingTargetLineC &line);
    /// So many entries of another target that stand behind all of this one; \a from goes behind
    /// them.
    void appendMappedLines(LineTable::Iterator &from, int count);
    void removeLineId(int sourceLineId);
    /// All entries at once.
    void setLines(const LineTable &lines);
    /// True: only those that are not Verified; a confirmed decision survives.
    void clearLines(bool keepVerified);
    /// Confirms every entry, keeping target line, extended text and conflict flag.
    void verifyLines();
    [[nodiscard]] bool getLineConflicted(int sourceLineId) const;
    /// Does nothing for an unknown line.
    void setLineConflicted(int sourceLineId, bool conflicted);

    /// In stored order. The pointers live as long as any copy of this target holds them.
    [[nodiscard]] QList<const VarsetConditionI *> getConditions() const;
    /// Takes ownership; null is ignored.
    void addCondition(const VarsetConditionI *condition);
    void clearConditions();
    /// Replaces them by those of another target, which are shared.
    void takeConditions(const PrjMappingTargetC &from);
    /// Whether all conditions hold for the values; without conditions they do.
    [[nodiscard]] bool conditionsHold(const QHash<QString, MapVarValueC> &varset) const;
    [[nodiscard]] bool conditionsHold(const VKTab::LineView &line) const;

    /// In stored order. The pointers live as long as any copy of this target holds them.
    [[nodiscard]] QList<const VarsetModifierI *> getVarsetModifier() const;
    /// Takes ownership; null is ignored.
    void addModifier(const VarsetModifierI *modifier);
    void clearModifier();
    /// Replaces them by those of another target, which are shared.
    void takeModifiers(const PrjMappingTargetC &from);
    /// Conditions and modifiers are the program's proposal, and nobody has changed them since. As
    /// long as no line of the target is confirmed, nothing is certain because of them.
    [[nodiscard]] bool hasProposedRules() const;
    /// Ends by clearConditions() and clearModifier().
    void setProposedRules(bool proposed);
    /// The values as the target sees them: every modifier applied in order.
    [[nodiscard]] QHash<QString, MapVarValueC>
    updateVarset(const QHash<QString, MapVarValueC> &varset) const;

private:
    QSharedDataPointer<PrjMappingTargetData> d;
};
Q_DECLARE_TYPEINFO(PrjMappingTargetC, Q_RELOCATABLE_TYPE);
