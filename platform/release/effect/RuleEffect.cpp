#include "RuleEffect.h"

#include <release/decide/notFoundLines.h>

#include <geomcore/binding/BoundConditions.h>
#include <geomcore/records/LineTable.h>
#include <geomcore/records/ReleaseMappingC.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>
#include <geomcore/table/ValueRangeIterator.h>
#include <geomcore/value/ResolveRangeOptionsC.h>
#include <release/assign/conditionVariables.h>
#include <release/assign/LinePart.h>

#include <unordered_set>

namespace VelkRelease {

namespace {

/// The lines of a table with the combinations of the ranges that conditions read.
class Lines
{
public:
    Lines(const VKTab::Content &table, const PrjMappingC &mapping)
        : m_table(table)
    {
        const QStringList names = conditionVariables(mapping);
        for (const VKTab::Var &var : table.getVarList()) {
            if (var.isFW() && names.contains(var.getName()))
                m_ranges.append(var.getName());
        }
    }

    /// Whether \a test answers true for the line as it is stored, or if it has ranges to be walked
    /// for one of their combinations.
    template<class Test>
    [[nodiscard]] bool any(const VKTab::LineId &id, const Test &test) const
    {
        if (m_ranges.isEmpty())
            return test(VKTab::LineView(m_table, id));
        VKTab::Line line = m_table.getLine(id, true);
        VKTab::ValueRangeIterator combinations(m_table, line, m_options);
        combinations.setVariablesToResolve(m_ranges);
        if (!combinations.next())
            return test(VKTab::LineView(m_table, id));
        do {
            if (test(VKTab::LineView(line)))
                return true;
        } while (combinations.next());
        return false;
    }

private:
    const VKTab::Content &m_table;
    const VKTab::ResolveRangeOptionsC m_options;
    QStringList m_ranges;
};

/// A project's mapping with its mapper.
struct Trial
{
    Trial(const PrjMappingC &mapping, const VKTab::Content &table)
        : lines(table, mapping)
        , part(mapping.getSourcePath(), mapping.getSourceVersion(),
               LinePart::catalogOf(mapping, ReleaseMappingC()), table, conditionVariables(mapping),
               false)
    {
    }

    /// Of the line's entry in the target.
    [[nodiscard]] bool fits(int sourceLine, int target, const VKTab::LineId &id, bool values)
    {
        return lines.any(id, [&](const VKTab::LineView &view) {
            const PrjMapperLineC line = part.mapper().findLine(sourceLine, view);
            if (!line.isFound() || line.getTargetIndex() != target)
                return false;
            return values ? part.mapper().hasEqualValues(line, view)
                          : part.mapper().passesCheck(line, view, CheckConditions);
        });
    }

    Lines lines;
    LinePart part;
};

/// Lines that have a target line, or that are confirmed to have none.
std::unordered_set<int> decidedLines(const PrjMappingC &mapping)
{
    std::unordered_set<int> decided;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const LineTable::Iterator &entry : mapping.targetAt(i).lines()) {
            if (entry.targetLine() != -1 || entry.state() == PRJMAPPING::Verified)
                decided.insert(entry.sourceLine());
        }
    }
    return decided;
}

int countSettled(const PrjMappingC &mapping, const std::unordered_set<int> &decided)
{
    int count = 0;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const LineTable::Iterator &entry : mapping.targetAt(i).lines()) {
            if (entry.targetLine() != -1 && entry.state() == PRJMAPPING::Mapped &&
                !decided.contains(entry.sourceLine()))
                ++count;
        }
    }
    return count;
}

/// False once it is to end.
class Ending
{
public:
    explicit Ending(const std::atomic<bool> *cancelled)
        : m_cancelled(cancelled)
    {
    }
    explicit operator bool() const
    {
        return m_cancelled && m_cancelled->load(std::memory_order_relaxed);
    }

private:
    const std::atomic<bool> *m_cancelled;
};

} // namespace

std::optional<RuleEffect> ruleEffect(const PrjMappingC &mapping, int target,
                                     const PrjMappingTargetC &changed, const VKTab::Content &table,
                                     const std::atomic<bool> *cancelled)
{
    const Ending ending(cancelled);
    if (target < 0 || target >= mapping.countTargets())
        return std::nullopt;
    PrjMappingC changedMapping = mapping;
    changedMapping.updateTarget(target, changed);
    Trial before(mapping, table);
    PrjMappingC toAssign = changedMapping;
    forgetNotFound(toAssign);
    Trial after(toAssign, table);
    const VKTab::BoundConditions conditions(changed.getConditions(), table.getTableData().get());
    const std::unordered_set<int> decided = decidedLines(mapping);

    RuleEffect effect;
    for (const VKTab::LineId &id : table.getLineIdList()) {
        if (ending)
            return std::nullopt;
        ++effect.lines;
        if (conditions.isEmpty() ||
            after.lines.any(id, [&](const auto &view) { return conditions.holds(view); }))
            ++effect.taken;
        // A line that has no equal one would become a proposal at best.
        if (!decided.contains(id.value(0)) && after.part.mapper().hasEqualLine(id.value(0)))
            after.part.assign(id);
    }
    for (const LineTable::Iterator &entry : mapping.targetAt(target).lines()) {
        if (ending)
            return std::nullopt;
        if (entry.targetLine() == -1 || entry.state() != PRJMAPPING::Verified)
            continue;
        const int line = entry.sourceLine();
        const VKTab::LineId id(line);
        for (const bool values : {false, true}) {
            if (before.fits(line, target, id, values) && !after.fits(line, target, id, values)) {
                effect.misfits.append(line);
                break;
            }
        }
    }
    effect.settled = countSettled(after.part.mapping(), decided);
    return effect;
}

} // namespace VelkRelease
