// The part of PrjMapperPrivate that proposes where a line belongs: the equal lines of the targets
// that are open for it, and what the plan of the whole table has for it.
#include "ExactSearch.h"
#include "LineComparison.h"
#include "LinePlans.h"
#include "PairJoin.h"
#include "PrjMapperPrivate.h"
#include "TargetTable.h"

#include <geomcore/table/TableData.h>

#include <algorithm>
#include <optional>

using Mapper::BoundTarget;
using Mapper::LineInput;
using Mapper::PairJoin;
using Mapper::Proposal;
using Mapper::TargetSet;

namespace {

/// Share of right ones among lines with one equal line that equals no other, see
/// docs/line-assignment.md.
constexpr double EqualProbability = 0.995;

} // namespace

PrjMapperLineC PrjMapperPrivate::proposedLine(int lineId, const Proposal &proposal) const
{
    PrjMapperLineC result;
    result.m_sourceLineId = lineId;
    result.m_valid = true;
    if (!proposal.target || proposal.isTaken)
        return result;
    result.m_targetIndex = proposal.target->index();
    const VKTab::LineId id = proposal.target->table()->data().lineId(proposal.row);
    result.m_targetLineId = id.value(0);
    result.m_inRealTarget = true;
    result.m_found = true;
    result.m_working = working.shared();
    result.setLineId(id);
    return result;
}

PrjMapperLineC PrjMapperPrivate::createLine(const LineInput &line, bool firstTargetOnly)
{
    working.note(line.lineId);
    collectOpenTargets(line, firstTargetOnly);
    return proposedLine(line.lineId, propose(line));
}

Proposal PrjMapperPrivate::propose(const LineInput &line)
{
    const Proposal equal = findEqual(line);
    const Proposal among = equal.target ? amongEqual(line, equal) : equal;
    if ((among.target && !among.isTaken) || (!among.target && hasEqualCombination(line)))
        return among;
    const std::vector<Plan::PlanEdge> edges = planned(line);
    if (edges.empty() || edges.front().probability < LineCandidatesC::ProposedProbability)
        return among;
    return {openTarget(m_plan->targetOf(edges.front())), m_plan->rowOf(edges.front())};
}

Proposal PrjMapperPrivate::amongEqual(const LineInput &line, const Proposal &equal)
{
    const PairJoin *join = line.row >= 0 ? equal.target->join() : nullptr;
    if (!join || join->hit(line.row) < 0 ||
        (!join->isSeveral(line.row) && join->claims(equal.row) < 2))
        return equal;
    const std::vector<Plan::PlanEdge> edges = planned(line);
    const auto own = m_plan ? m_plan->line(line.row) : std::nullopt;
    for (const Plan::PlanEdge &edge : edges) {
        const BoundTarget *target = openTarget(m_plan->targetOf(edge));
        if (!target || targets().rank(*target) != targets().rank(*equal.target))
            continue;
        target->takeValues(line, m_values);
        const int row = m_plan->rowOf(edge);
        if (!m_values.search->equals(m_values.texts, row))
            continue;
        const bool isOwn = own->isAssigned && edge.node == own->candidates.front().node;
        return {TargetSet::haveSameProject(*target, *equal.target) ? equal.target : target, row,
                !isOwn && join->isOutnumbered(line.row)};
    }
    return {equal.target, equal.row, own && join->isOutnumbered(line.row)};
}

const Mapper::LinePlan *PrjMapperPrivate::plan(const LineInput &line)
{
    if (line.row < 0 || !m_source.isValid())
        return nullptr;
    if (!m_plan)
        m_plan = Mapper::LinePlans::instance().get(targets(), working.mapping(), agreed, learned);
    return m_plan.get();
}

const BoundTarget *PrjMapperPrivate::openTarget(int index) const
{
    const auto found = std::find_if(m_open.begin(), m_open.end(), [index](const auto *target) {
        return target->index() == index;
    });
    return found == m_open.end() ? nullptr : *found;
}

std::vector<Plan::PlanEdge> PrjMapperPrivate::planned(const LineInput &line)
{
    const Mapper::LinePlan *whole = plan(line);
    const auto own = whole ? whole->line(line.row) : std::nullopt;
    std::vector<Plan::PlanEdge> edges;
    if (own)
        edges.assign(own->candidates.begin(), own->candidates.end());
    std::erase_if(edges, [&](const Plan::PlanEdge &edge) {
        return openTarget(whole->targetOf(edge)) == nullptr;
    });
    return edges;
}

LineCandidateC PrjMapperPrivate::candidate(const LineInput &line, const Proposal &proposal,
                                           double probability, const Plan::PlanEdge *edge)
{
    proposal.target->takeValues(line, m_values);
    Mapper::CellJudge judge;
    if (edge)
        judge = [&](size_t place) {
            return m_plan->cell(*edge, line.row, place);
        };
    LineCandidateC candidate;
    candidate.targetIndex = proposal.target->index();
    candidate.targetPath = proposal.target->path();
    candidate.lineId = proposal.target->table()->data().lineId(proposal.row);
    candidate.probability = probability;
    candidate.variables = Mapper::compareLines(*proposal.target, m_values, proposal.row, judge);
    candidate.explanation = Mapper::explanationOf(candidate.variables);
    return candidate;
}

LineCandidatesC PrjMapperPrivate::candidates(const LineInput &line)
{
    collectOpenTargets(line, false);
    LineCandidatesC result;
    result.explanation = Mapper::nothingFits();
    const Proposal proposed = propose(line);
    const std::vector<Plan::PlanEdge> edges = planned(line);
    const auto own = m_plan ? m_plan->line(line.row) : std::nullopt;
    if (proposed.target && !own) {
        result.candidates.append(candidate(line, proposed, EqualProbability, nullptr));
        result.noSuccessor = 1 - EqualProbability;
    }
    if (own)
        result.noSuccessor = own->noSuccessor;
    for (const Plan::PlanEdge &edge : edges) {
        const Proposal found{openTarget(m_plan->targetOf(edge)), m_plan->rowOf(edge)};
        const bool first = proposed.target &&
                           TargetSet::haveSameProject(*found.target, *proposed.target) &&
                           found.row == proposed.row;
        const bool best = &edge == &edges.front();
        if (edge.probability < LineCandidatesC::LeastProbability && !first && !best)
            continue;
        const LineCandidateC made = candidate(line, found, edge.probability, &edge);
        result.candidates.insert(first ? 0 : result.candidates.size(), made);
    }
    if (!result.candidates.isEmpty() && proposed.target && !proposed.isTaken)
        result.explanation = result.candidates.first().explanation;
    return result;
}

void PrjMapperPrivate::collectOpenTargets(const LineInput &line, bool firstOnly)
{
    m_open.clear();
    TargetSet &all = targets();
    for (int i = 0; i < all.count(); ++i) {
        const BoundTarget *target = all.at(i, working.mapping());
        if (!target || !target->conditionsHold(line))
            continue;
        if (target->isOpen())
            m_open.push_back(target);
        if (firstOnly)
            return;
    }
}

Proposal PrjMapperPrivate::findEqual(const LineInput &line)
{
    const bool joined = line.stored && targets().ranges().isEmpty();
    for (const BoundTarget *target : m_open) {
        const PairJoin *join = line.row >= 0 ? target->join() : nullptr;
        if (join && joined) {
            if (join->hit(line.row) >= 0)
                return {target, join->hit(line.row)};
            continue;
        }
        target->takeValues(line, m_values);
        const BoundTarget::Hit hit = target->findEqual(m_values);
        if (hit.row < 0)
            continue;
        const int paired = join && hit.several ? join->hit(line.row) : -1;
        if (paired >= 0 && m_values.search->equals(m_values.texts, paired))
            return {target, paired};
        return {target, hit.row};
    }
    return {};
}

bool PrjMapperPrivate::hasEqualLine(int row)
{
    TargetSet &all = targets();
    for (int i = 0; i < all.count() && row >= 0; ++i) {
        const BoundTarget *target = all.at(i, working.mapping());
        const PairJoin *join = target ? target->join() : nullptr;
        if (join && join->hit(row) >= 0)
            return true;
    }
    return false;
}

bool PrjMapperPrivate::hasEqualCombination(const LineInput &line)
{
    return !targets().ranges().isEmpty() && hasEqualLine(line.row);
}
