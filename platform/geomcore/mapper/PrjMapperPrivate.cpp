#include "PrjMapperPrivate.h"

#include "LineComparison.h"
#include "TargetTable.h"
#include "TargetTables.h"

#include <geomcore/index/IndexTreeC.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>

using Mapper::BoundTarget;
using Mapper::LineInput;
using Mapper::TargetSet;

namespace {

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
