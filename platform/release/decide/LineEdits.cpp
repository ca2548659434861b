#include "LineEdits.h"

#include <utility>

namespace VelkRelease {

LineEdits::LineEdits(const PrjMappingC &mapping)
    : m_mapping(mapping)
    , m_targets(mapping.getTargets())
    , m_notFound(mapping.getNotFoundTarget())
{
}

LineEdits::Standing LineEdits::standing(int line) const
{
    Standing result;
    bool allVerified = true;
    for (const PrjMappingTargetC &target : m_targets) {
        if (!target.containsLine(line))
            continue;
        const PrjMappingTargetLineC entry = target.getMappedLine(line);
        const bool verified = entry.getState() == PRJMAPPING::Verified;
        result.known = true;
        result.conflicted = result.conflicted || entry.getConflict();
        result.verified = result.verified || verified;
        allVerified = allVerified && verified;
        if (target.isNotFoundTarget() || entry.getTargetLineId() == -1)
            continue;
        result.assigned = true;
        result.hasText = result.hasText || !entry.getExtended().isEmpty();
    }
    result.settled = result.known && allVerified;
    return result;
}

void LineEdits::assign(int line, int target, int targetLine, PRJMAPPING::CheckState state)
{
    if (target < 0 || target >= m_targets.size())
        return;
    m_targets[target].addLineId(line, targetLine, state, QString());
    if (m_notFound >= 0 && m_notFound != target)
        m_targets[m_notFound].removeLineId(line);
}

void LineEdits::confirm(int line)
{
    for (PrjMappingTargetC &target : m_targets) {
        if (!target.containsLine(line))
            continue;
        const PrjMappingTargetLineC entry = target.getMappedLine(line);
        target.addLineId(line, entry.getTargetLineId(), PRJMAPPING::Verified, entry.getExtended());
    }
}

void LineEdits::remove(int line)
{
    moveToNotFound(line, PRJMAPPING::Mapped);
}

void LineEdits::expire(int line)
{
    moveToNotFound(line, PRJMAPPING::Verified);
}

void LineEdits::acceptConflict(int line)
{
    for (PrjMappingTargetC &target : m_targets)
        target.setLineConflicted(line, false);
}

void LineEdits::moveToNotFound(int line, PRJMAPPING::CheckState state)
{
    if (m_notFound < 0) {
        m_notFound = m_mapping.ensureNotFoundTarget();
        m_targets.append(m_mapping.findTarget(m_notFound));
    }
    for (int i = 0; i < m_targets.size(); ++i) {
        if (i == m_notFound)
            m_targets[i].addLineId(line, -1, state, QString());
        else
            m_targets[i].removeLineId(line);
    }
}

PrjMappingC LineEdits::mapping() const
{
    PrjMappingC result = m_mapping;
    for (int i = 0; i < m_targets.size(); ++i)
        result.updateTarget(i, m_targets[i]);
    return result;
}

} // namespace VelkRelease
