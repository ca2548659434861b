#include "PrjMapperPrivate.h"

#include "ExactSearch.h"
#include "LineComparison.h"
#include "LinePlans.h"
#include "PairJoin.h"
#include "TargetTable.h"
#include "TargetTables.h"

#include <geomcore/index/IndexTreeC.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>

#include <algorithm>

using Mapper::BoundTarget;
using Mapper::LineInput;
using Mapper::PairJoin;
using Mapper::Proposal;
using Mapper::TargetSet;

namespace {

/// Share of right ones among lines with one equal line that equals no other, see
/// docs/line-assignment.md.
constexpr double EqualProbability = 0.995;

/// The same but for their lines. Conditions and modifiers are shared immutable objects.
bool haveSameTargets(const PrjMappingC &a, const PrjMappingC &b)
{
    if (a.getSourcePath() != b.getSourcePath() || a.countTargets() > b.countTargets())
        return false;
    for (int i = 0; i < a.countTargets(); ++i) {
        const PrjMappingTargetC &first = a.targetAt(i);
        const PrjMappingTargetC &second = b.targetAt(i);
        if (first.getTargetPath() != second.getTargetPath() ||
            first.getConditions() != second.getConditions() ||
            first.getVarsetModifier() != second.getVarsetModifier())
            return false;
    }
    return true;
}

} // namespace

PrjMapperPrivate::PrjMapperPrivate(const PRefPtr<IndexTreeC> &tree)
    : indexTree(tree)
{
}

PrjMapperPrivate::~PrjMapperPrivate() = default;

void PrjMapperPrivate::setSourceTable(const VKTab::Content &table)
{
    m_targets.reset();
    m_plan.reset();
    m_source = Mapper::SourceTable(table);
    m_source.setCancellation(m_isCanceled);
}

void PrjMapperPrivate::setCancellation(std::function<bool()> isCanceled)
{
    m_isCanceled = std::move(isCanceled);
    m_source.setCancellation(m_isCanceled);
}

void PrjMapperPrivate::setCreatorMode(bool creator)
{
    m_targets.reset();
    m_plan.reset();
    m_creatorMode = creator;
}

void PrjMapperPrivate::setWorking(const PrjMappingC &mapping)
{
    working.set(mapping);
    m_targets.reset();
    m_plan.reset();
}

void PrjMapperPrivate::adoptNode()
{
    if (!nodeHandedOut)
        return;
    nodeHandedOut = false;
    setWorking(node.getMapping());
}

TargetSet &PrjMapperPrivate::targets()
{
    if (!m_targets)
        m_targets = bind(working.mapping());
    return *m_targets;
}

std::unique_ptr<TargetSet> PrjMapperPrivate::bind(const PrjMappingC &mapping) const
{
    const auto open = [tree = indexTree](const QString &path) {
        const PPathName file = tree->compatiblePathToResolvedPath(PPathName(path));
        return Mapper::TargetTables::instance().open(file.native());
    };
    const QString own = mapping.getSourcePath();
    const QString path = own.isEmpty() ? QString(sourceProject.text()) : own;
    return std::make_unique<TargetSet>(mapping, path, m_source, open, !m_creatorMode);
}

bool PrjMapperPrivate::isOwn(const PrjMapperLineC &line) const
{
    return line.m_pairs.isEmpty() && line.m_working == working.shared();
}

LineInput PrjMapperPrivate::input(int lineId, const Varset &varset) const
{
    LineInput input;
    input.lineId = lineId;
    input.row = m_source.rowOf(lineId);
    input.varset = &varset;
    return input;
}

LineInput PrjMapperPrivate::input(int lineId, const VKTab::LineView &view, Varset &converted) const
{
    if (!m_source.isValid() || view.table() != m_source.data().get()) {
        converted = Mapper::varsetOf(view);
        return input(lineId, converted);
    }
    LineInput input;
    input.lineId = lineId;
    input.row = view.row();
    input.view = &view;
    input.stored = view.isPlain();
    return input;
}

PrjMapperLineC PrjMapperPrivate::toMapperLine(const PrjMappingLineC &line) const
{
    PrjMapperLineC result;
    if (!line.isValid())
        return result;
    result.m_sourceLineId = line.getSourceLineId();
    result.m_targetIndex = line.getTargetIndex();
    result.m_targetLineId = line.getTargetLineId();
    result.m_state = line.getCheckState();
    result.m_valid = true;
    result.m_inRealTarget = line.isInRealTarget();
    result.m_found = line.isFound();
    result.m_working = working.shared();
    return result;
}

PrjMapperLineC PrjMapperPrivate::proposedLine(int lineId, const Proposal &proposal) const
{
    PrjMapperLineC result;
    result.m_sourceLineId = lineId;
    result.m_valid = true;
    if (!proposal.target)
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
    if (equal.target)
        return amongEqual(line, equal);
    if (hasEqualCombination(line))
        return {};
    const std::vector<Plan::PlanEdge> edges = planned(line);
    if (edges.empty() || edges.front().probability < LineCandidatesC::ProposedProbability)
        return {};
    return {openTarget(m_plan->targetOf(edges.front())), m_plan->rowOf(edges.front())};
}

Proposal PrjMapperPrivate::amongEqual(const LineInput &line, const Proposal &equal)
{
    const PairJoin *join = line.row >= 0 ? equal.target->join() : nullptr;
    if (!join || join->hit(line.row) < 0 ||
        (!join->isSeveral(line.row) && join->claims(equal.row) < 2))
        return equal;
    for (const Plan::PlanEdge &edge : planned(line)) {
        const BoundTarget *target = openTarget(m_plan->targetOf(edge));
        if (!target || !TargetSet::haveSameProject(*target, *equal.target))
            continue;
        target->takeValues(line, m_values);
        const int row = m_plan->rowOf(edge);
        if (m_values.search->equals(m_values.texts, row))
            return {equal.target, row};
    }
    return equal;
}

const Mapper::LinePlan *PrjMapperPrivate::plan(const LineInput &line)
{
    if (line.row < 0 || !m_source.isValid())
        return nullptr;
    if (!m_plan)
        m_plan = Mapper::LinePlans::instance().get(targets(), working.mapping(), agreed);
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
    if (!result.candidates.isEmpty() && proposed.target)
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

PrjMapperPrivate::Bound PrjMapperPrivate::boundFor(const PrjMapperLineC &line)
{
    if (isOwn(line))
        return {&targets(), &working.mapping(), {}};
    const PrjMappingC *mapping = line.currentMapping();
    // A line that was looked up before the last change.
    if (mapping && haveSameTargets(*mapping, working.mapping()))
        return {&targets(), &working.mapping(), {}};
    Bound bound;
    bound.owned = bind(mapping ? *mapping : PrjMappingC());
    bound.targets = bound.owned.get();
    bound.mapping = mapping;
    return bound;
}

void PrjMapperPrivate::enter(const PrjMapperLineC &line)
{
    const bool confirmed =
        working.enter(line.getSourceLineId(), line.getTargetIndex(), line.getTargetLineId(),
                      line.getCheckState(), line.m_working);
    if (!confirmed || !m_targets)
        return;
    m_targets->forgetConfirmed();
    m_plan.reset();
}

PrjMapperPrivate::Varset PrjMapperPrivate::updateVarset(const PrjMapperLineC &line,
                                                        const LineInput &input,
                                                        VarsetModeFlags mode)
{
    const Varset own = input.view ? Mapper::varsetOf(*input.view) : *input.varset;
    if (!line.currentMapping())
        return mode & VarsetTargetVariables ? Varset() : own;
    const Bound bound = boundFor(line);
    const BoundTarget *target = bound.targets->at(line.getTargetIndex(), *bound.mapping);
    Varset values = target ? target->updateVarset(input) : own;
    if (!(mode & VarsetTargetVariables))
        return values;
    values.removeIf([&](const Varset::iterator &value) {
        return !target || !target->isOpen() ||
               !target->table()->content().getVar(value.key()).isValid();
    });
    return values;
}

Mapper::LineCheck::Assignment PrjMapperPrivate::assignmentOf(const PrjMapperLineC &line,
                                                             const LineInput &input)
{
    Mapper::LineCheck::Assignment assignment;
    assignment.line = input;
    assignment.targetIndex = line.getTargetIndex();
    assignment.targetLine = line.getTargetLineId();
    assignment.automatic = line.m_pairs.isEmpty();
    return assignment;
}

bool PrjMapperPrivate::passes(const PrjMapperLineC &line, const LineInput &input,
                              CheckModeFlags mode)
{
    if (!line.isValid() || !line.isFound())
        return false;
    const Bound bound = boundFor(line);
    return Mapper::LineCheck(*bound.targets, *bound.mapping)
        .passes(assignmentOf(line, input), mode);
}

bool PrjMapperPrivate::hasEqualValues(const PrjMapperLineC &line, const LineInput &input)
{
    if (!line.isValid() || !line.isFound())
        return false;
    const Bound bound = boundFor(line);
    return Mapper::LineCheck(*bound.targets, *bound.mapping)
        .hasEqualValues(assignmentOf(line, input));
}

QList<ComparedVariableC> PrjMapperPrivate::compareLine(const PrjMapperLineC &line,
                                                       const LineInput &input, bool withPlan)
{
    if (!line.isValid() || !line.isFound())
        return {};
    const Bound bound = boundFor(line);
    const BoundTarget *target = bound.targets->at(line.getTargetIndex(), *bound.mapping);
    const int row =
        target && target->isOpen() ? target->table()->data().rowOf(line.getTargetLineId()) : -1;
    if (row < 0)
        return {};
    target->takeValues(input, m_values);
    Mapper::CellJudge judge;
    const bool own = withPlan && bound.targets == m_targets.get();
    const Mapper::LinePlan *whole = own ? plan(input) : nullptr;
    const auto edge =
        whole ? whole->edgeFor(input.row, target->index(), row) : std::optional<Plan::PlanEdge>();
    if (edge)
        judge = [&](size_t place) {
            return whole->cell(*edge, input.row, place);
        };
    return Mapper::compareLines(*target, m_values, row, judge);
}

PrjMapperCheckResultC PrjMapperPrivate::check(const PrjMapperLineC &line, const LineInput &input,
                                              const Varset *targetVarset, CheckModeFlags mode,
                                              const QString &text)
{
    if (!line.isValid() || !line.isFound())
        return {false, QString(), QString(), {}, {}, {}};
    const Bound bound = boundFor(line);
    Mapper::LineCheck::Assignment assignment = assignmentOf(line, input);
    assignment.targetVarset = targetVarset;
    QStringList messages =
        Mapper::LineCheck(*bound.targets, *bound.mapping).messages(assignment, mode);
    if (messages.isEmpty())
        return {true, QString(), QString(), {}, {}, {}};
    for (QString &message : messages)
        message.prepend(text);
    const Varset own = input.view ? Mapper::varsetOf(*input.view) : *input.varset;
    const Varset seen = targetVarset ? *targetVarset : updateVarset(line, input, {});
    return {false, QString(), QString(), messages, own, seen};
}
