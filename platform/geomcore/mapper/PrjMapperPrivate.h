#pragma once

#include "AgreedValues.h"
#include "LineCheck.h"
#include "LinePlan.h"
#include "PrjMapperC.h"
#include "SourceTable.h"
#include "TargetSet.h"
#include "WorkingMapping.h"

#include <core/text/PPathName.h>

#include <memory>
#include <vector>

namespace Mapper {

/// A line that a source line may belong to.
struct Proposal
{
    const BoundTarget *target = nullptr; ///< Null if there is nothing to propose.
    int row = -1;
    /// Equal, but the row of another line: the best there is, and not proposed.
    bool isTaken = false;
};

} // namespace Mapper

/// What PrjMapperC works with. Targets are bound at the first need after a change of anything that
/// they depend on.
class PrjMapperPrivate
{
public:
    using Varset = PrjMapperC::Varset;

    explicit PrjMapperPrivate(const PRefPtr<IndexTreeC> &tree);
    ~PrjMapperPrivate();

    void setSourceTable(const VKTab::Content &table);
    void setCreatorMode(bool creator);
    void setCancellation(std::function<bool()> isCanceled);
    void setWorking(const PrjMappingC &mapping);
    /// Takes over what was assigned to the node since it was handed out.
    void adoptNode();
    /// The working mapping's targets.
    [[nodiscard]] Mapper::TargetSet &targets();
    [[nodiscard]] std::unique_ptr<Mapper::TargetSet> bind(const PrjMappingC &mapping) const;
    /// The line is one that this mapper looked up in the working mapping as it still is.
    [[nodiscard]] bool isOwn(const PrjMapperLineC &line) const;

    [[nodiscard]] Mapper::LineInput input(int lineId, const Varset &varset) const;
    /// \a converted takes the values if the view is not one of the source table.
    [[nodiscard]] Mapper::LineInput input(int lineId, const VKTab::LineView &view,
                                          Varset &converted) const;

    [[nodiscard]] PrjMapperLineC toMapperLine(const PrjMappingLineC &line) const;
    [[nodiscard]] PrjMapperLineC createLine(const Mapper::LineInput &line, bool firstTargetOnly);
    [[nodiscard]] LineCandidatesC candidates(const Mapper::LineInput &line);
    [[nodiscard]] bool hasEqualLine(int row);
    /// Enters a line that is found in the working mapping.
    void enter(const PrjMapperLineC &line);
    [[nodiscard]] Varset updateVarset(const PrjMapperLineC &line, const Mapper::LineInput &input,
                                      VarsetModeFlags mode);
    [[nodiscard]] PrjMapperCheckResultC check(const PrjMapperLineC &line,
                                              const Mapper::LineInput &input,
                                              const Varset *targetVarset, CheckModeFlags mode,
                                              const QString &text);
    [[nodiscard]] bool passes(const PrjMapperLineC &line, const Mapper::LineInput &input,
                              CheckModeFlags mode);
    [[nodiscard]] bool hasEqualValues(const PrjMapperLineC &line, const Mapper::LineInput &input);

    [[nodiscard]] QList<ComparedVariableC>
    compareLine(const PrjMapperLineC &line, const Mapper::LineInput &input, bool withPlan);

    /// Ranges of the source table that conditions of the line's mapping read.
    [[nodiscard]] QStringList rangesFor(const PrjMapperLineC &line)
    {
        return boundFor(line).targets->ranges();
    }

    const PRefPtr<IndexTreeC> indexTree;
    PPathName sourceProject;
    Mapper::WorkingMapping working;
    Mapper::AgreedValues agreed;   ///< Of the release that the working mapping was taken from.
    Mapper::LearnedValues learned; ///< Likewise.
    MappingNodeC node;
    bool nodeHandedOut = false;

    [[nodiscard]] const Mapper::SourceTable &source() const { return m_source; }

private:
    struct Bound
    {
        Mapper::TargetSet *targets = nullptr;
        const PrjMappingC *mapping = nullptr;
        std::unique_ptr<Mapper::TargetSet> owned;
    };
    [[nodiscard]] static Mapper::LineCheck::Assignment assignmentOf(const PrjMapperLineC &line,
                                                                    const Mapper::LineInput &input);
    /// The targets of the mapping that the line's last pair holds.
    [[nodiscard]] Bound boundFor(const PrjMapperLineC &line);
    void collectOpenTargets(const Mapper::LineInput &line, bool firstOnly);
    [[nodiscard]] Mapper::Proposal propose(const Mapper::LineInput &line);
    [[nodiscard]] Mapper::Proposal findEqual(const Mapper::LineInput &line);
    /// Of several equal lines, also of other targets, the one that the plan gives this line. If it
    /// gives others all of them, one is shared, or taken where it is known that some lines are
    /// gone.
    [[nodiscard]] Mapper::Proposal amongEqual(const Mapper::LineInput &line,
                                              const Mapper::Proposal &equal);
    /// Null if making it was cancelled, or there is nothing to plan for.
    [[nodiscard]] const Mapper::LinePlan *plan(const Mapper::LineInput &line);
    /// What the plan has for a line in the targets that are open for it, most probable first.
    [[nodiscard]] std::vector<Plan::PlanEdge> planned(const Mapper::LineInput &line);
    [[nodiscard]] const Mapper::BoundTarget *openTarget(int index) const;
    [[nodiscard]] LineCandidateC candidate(const Mapper::LineInput &line,
                                           const Mapper::Proposal &proposal, double probability,
                                           const Plan::PlanEdge *edge);
    [[nodiscard]] bool hasEqualCombination(const Mapper::LineInput &line);
    [[nodiscard]] PrjMapperLineC proposedLine(int lineId, const Mapper::Proposal &proposal) const;

    bool m_creatorMode = false;
    std::function<bool()> m_isCanceled;
    Mapper::SourceTable m_source;
    std::unique_ptr<Mapper::TargetSet> m_targets;
    std::shared_ptr<const Mapper::LinePlan> m_plan;
    std::vector<const Mapper::BoundTarget *> m_open;
    Mapper::TargetValues m_values;
};
