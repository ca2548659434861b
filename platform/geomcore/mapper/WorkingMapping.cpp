#include "WorkingMapping.h"

#include <algorithm>

namespace Mapper {

using PRJMAPPING::CheckState;

WorkingMapping::WorkingMapping()
    : m_mapping(std::make_shared<PrjMappingC>())
{
}

void WorkingMapping::set(const PrjMappingC &mapping)
{
    m_mapping = std::make_shared<PrjMappingC>(mapping);
    m_noted.clear();
    m_entered.clear();
}

PrjMappingC &WorkingMapping::edit(const std::shared_ptr<const PrjMappingC> &holder)
{
    const long own = holder == m_mapping ? 2 : 1;
    if (m_mapping.use_count() > own)
        m_mapping = std::make_shared<PrjMappingC>(*m_mapping);
    return *m_mapping;
}

void WorkingMapping::note(int lineId)
{
    if (m_noted.insert(lineId))
        takeOut(lineId, -1, false, {});
}

bool WorkingMapping::takeOut(int lineId, int exceptTarget, bool alsoVerified,
                             const std::shared_ptr<const PrjMappingC> &holder)
{
    bool confirmed = false;
    for (int i = 0; i < m_mapping->countTargets(); ++i) {
        if (i == exceptTarget)
            continue;
        const LineTable::Iterator entry = m_mapping->targetAt(i).lines().find(lineId);
        if (!entry)
            continue;
        const bool verified = entry->state() == PRJMAPPING::Verified;
        if (verified && !alsoVerified)
            continue;
        confirmed = confirmed || verified;
        edit(holder).changeTarget(i, [lineId](PrjMappingTargetC &t) { t.removeLineId(lineId); });
    }
    return confirmed;
}

bool WorkingMapping::enter(int lineId, int targetIndex, int targetLine, CheckState state,
                           const std::shared_ptr<const PrjMappingC> &holder)
{
    m_entered.insert(lineId);
    const bool wentOut = takeOut(lineId, targetIndex, state == PRJMAPPING::Verified, holder);
    const LineTable::Iterator known = m_mapping->targetAt(targetIndex).lines().find(lineId);
    const bool same = known && known->targetLine() == targetLine;
    if (same && known->state() == state)
        return wentOut;
    const bool wasConfirmed = known && known->state() == PRJMAPPING::Verified;
    // Text and conflict stay with the target line.
    const PrjMappingTargetLineC before = same ? known->line() : PrjMappingTargetLineC();
    edit(holder).changeTarget(targetIndex, [&](PrjMappingTargetC &target) {
        target.setMappedLine(lineId,
                             {targetLine, state, before.getConflict(), before.extendedText()});
    });
    return wentOut || wasConfirmed || state == PRJMAPPING::Verified;
}

std::vector<int> WorkingMapping::linesWithoutTarget() const
{
    std::vector<int> lines;
    for (int line : m_noted.inOrder()) {
        bool held = m_entered.contains(line);
        for (int i = 0; i < m_mapping->countTargets() && !held; ++i)
            held = m_mapping->targetAt(i).containsLine(line);
        if (!held)
            lines.push_back(line);
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

void WorkingMapping::enterNotFound()
{
    const std::vector<int> lines = linesWithoutTarget();
    PrjMappingC &mapping = edit();
    if (!lines.empty()) {
        mapping.changeTarget(mapping.ensureNotFoundTarget(), [&](PrjMappingTargetC &target) {
            for (int line : lines)
                target.addLineId(line, -1, PRJMAPPING::ToCheck, QString());
        });
    }
    mapping.updateMappingState();
}

} // namespace Mapper
