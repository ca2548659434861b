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
        const LineTable::Row *row = m_mapping->targetAt(i).lines().findRow(lineId);
        if (!row || i == exceptTarget || (row->state() == PRJMAPPING::Verified && !alsoVerified))
            continue;
        confirmed = confirmed || row->state() == PRJMAPPING::Verified;
        edit(holder).editTarget(i).removeLineId(lineId);
    }
    return confirmed;
}

bool WorkingMapping::enter(int lineId, int targetIndex, int targetLine, CheckState state,
                           const std::shared_ptr<const PrjMappingC> &holder)
{
    m_entered.insert(lineId);
    const bool wentOut = takeOut(lineId, targetIndex, state == PRJMAPPING::Verified, holder);
    const LineTable::Row *row = m_mapping->targetAt(targetIndex).lines().findRow(lineId);
    const bool was = row && row->state() == PRJMAPPING::Verified;
    if (!row || row->targetLine != targetLine) {
        edit(holder).editTarget(targetIndex).addLineId(lineId, targetLine, state, QString());
        return wentOut || was || state == PRJMAPPING::Verified;
    }
    if (row->state() == state)
        return wentOut;
    PrjMappingTargetC &target = edit(holder).editTarget(targetIndex);
    const PrjMappingTargetLineC entry = target.getMappedLine(lineId);
    target.addLineId(lineId, targetLine, state, entry.getExtended());
    target.setLineConflicted(lineId, entry.getConflict());
    return wentOut || was || state == PRJMAPPING::Verified;
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
        PrjMappingTargetC &target = mapping.editTarget(mapping.ensureNotFoundTarget());
        for (int line : lines)
            target.addLineId(line, -1, PRJMAPPING::ToCheck, QString());
    }
    mapping.updateMappingState();
}

} // namespace Mapper
