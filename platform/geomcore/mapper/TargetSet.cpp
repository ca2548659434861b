#include "TargetSet.h"

#include "TargetTable.h"

#include <geomcore/binding/VarsetConditionI.h>
#include <geomcore/table/TableData.h>

#include <algorithm>

namespace Mapper {

namespace {

QStringList conditionVariables(const PrjMappingC &mapping)
{
    QStringList names;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const VarsetConditionI *condition : mapping.targetAt(i).getConditions())
            names += condition->usedVariables();
    }
    return names;
}

} // namespace

TargetSet::TargetSet(const PrjMappingC &mapping, const QString &sourcePath,
                     const SourceTable &source, Open open, bool shownOnly)
    : m_source(source)
    , m_open(std::move(open))
    , m_shownOnly(shownOnly)
    , m_sourcePath(sourcePath)
    , m_ranges(source.rangesAmong(conditionVariables(mapping)))
    , m_targets(size_t(mapping.countTargets()))
{
}

TargetSet::~TargetSet() = default;

const BoundTarget *TargetSet::at(int index, const PrjMappingC &mapping)
{
    if (index < 0 || index >= count())
        return nullptr;
    Slot &slot = m_targets[size_t(index)];
    if (!slot.bound)
        bind(slot, index, mapping.targetAt(index));
    return slot.target.get();
}

void TargetSet::bind(Slot &slot, int index, const PrjMappingTargetC &target)
{
    slot.bound = true;
    if (target.isNotFoundTarget())
        return;
    slot.target = std::make_unique<BoundTarget>(index, target, m_open(target.getTargetPath()),
                                                m_source, m_ranges, m_shownOnly);
    slot.rank = nameRank(m_sourcePath, slot.target->path());
    if (slot.target->hasVerified())
        slot.rank = std::max(slot.rank, NameRank::Name);
}

int TargetSet::confirmedFor(const BoundTarget &target, int row, const PrjMappingC &mapping)
{
    auto known = m_confirmed.find(target.index());
    if (known == m_confirmed.end())
        known = m_confirmed.emplace(target.index(), confirmedLines(target, mapping)).first;
    return known->second.empty() ? Nobody : known->second[size_t(row)];
}

std::vector<int> TargetSet::confirmedLines(const BoundTarget &target, const PrjMappingC &mapping)
{
    std::vector<int> lines;
    const VKTab::TableData &table = target.table()->data();
    for (int i = 0; i < count(); ++i) {
        const BoundTarget *other = at(i, mapping);
        const PrjMappingTargetC &entries = mapping.targetAt(i);
        if (!other || !haveSameProject(*other, target) || entries.lineCounts().verified() == 0)
            continue;
        lines.resize(size_t(table.rowCount()), Nobody);
        for (const LineTable::Iterator &entry : entries.lines()) {
            const int row =
                entry.state() == PRJMAPPING::Verified ? table.rowOf(entry.targetLine()) : -1;
            if (row >= 0)
                lines[size_t(row)] = lines[size_t(row)] == Nobody ? entry.sourceLine() : Several;
        }
    }
    return lines;
}

void TargetSet::forgetConfirmed()
{
    m_confirmed.clear();
    m_plain.reset();
}

TargetSet::Plain *TargetSet::withoutProposals(const PrjMappingC &mapping)
{
    if (m_plain)
        return m_plain->get();
    m_plain.emplace();
    PrjMappingC plain = mapping;
    bool changed = false;
    for (int i = 0; i < count(); ++i) {
        const BoundTarget *target =
            mapping.targetAt(i).hasProposedRules() ? at(i, mapping) : nullptr;
        if (!target || target->hasVerified())
            continue;
        plain.changeTarget(i, [](PrjMappingTargetC &without) {
            without.clearConditions();
            without.clearModifier();
        });
        changed = true;
    }
    if (changed)
        *m_plain = std::unique_ptr<Plain>(
            new Plain{plain, TargetSet(plain, m_sourcePath, m_source, m_open, m_shownOnly)});
    return m_plain->get();
}

bool TargetSet::haveSameProject(const BoundTarget &a, const BoundTarget &b)
{
    if (&a == &b || a.path() == b.path())
        return true;
    return a.isOpen() && b.isOpen() &&
           (a.table() == b.table() || a.table()->data().fileName() == b.table()->data().fileName());
}

} // namespace Mapper
