#include "PrjLineHistoryC.h"

PrjLineHistoryC::PrjLineHistoryC() = default;
PrjLineHistoryC::PrjLineHistoryC(const PrjLineHistoryC &) = default;
PrjLineHistoryC::PrjLineHistoryC(PrjLineHistoryC &&) noexcept = default;
PrjLineHistoryC &PrjLineHistoryC::operator=(const PrjLineHistoryC &) = default;
PrjLineHistoryC &PrjLineHistoryC::operator=(PrjLineHistoryC &&) noexcept = default;
PrjLineHistoryC::~PrjLineHistoryC() = default;

void PrjLineHistoryC::setCheckState(PRJMAPPING::CheckState state)
{
    m_state = state;
    if (!m_pairs.isEmpty())
        m_pairs.last().first.setCheckState(state);
}

void PrjLineHistoryC::addMapping(const PrjMappingLineC &line, const PrjMappingC &mapping)
{
    if (m_pairs.isEmpty() && m_working)
        m_pairs = getHistory();
    m_pairs.append({line, mapping});
    m_sourceLineId = line.getSourceLineId();
    m_targetIndex = line.getTargetIndex();
    m_targetLineId = line.getTargetLineId();
    m_state = line.getCheckState();
    m_valid = line.isValid();
    const PrjMappingTargetC target = mapping.findTarget(m_targetIndex);
    m_inRealTarget = target.isValid() && !target.getTargetPath().isEmpty();
    m_found = m_valid && m_inRealTarget && m_targetLineId != -1;
}

QList<PrjLineHistoryC::Entry> PrjLineHistoryC::getHistory() const
{
    if (!m_pairs.isEmpty() || !m_working)
        return m_pairs;
    return {{currentLine(), *m_working}};
}

PrjMappingTargetC PrjLineHistoryC::getTarget() const
{
    const PrjMappingC *mapping = currentMapping();
    return mapping ? mapping->findTarget(m_targetIndex) : PrjMappingTargetC();
}

QString PrjLineHistoryC::getTargetPath() const
{
    return getTarget().getTargetPath();
}

const PrjMappingC *PrjLineHistoryC::currentMapping() const
{
    return m_pairs.isEmpty() ? m_working.get() : &m_pairs.last().second;
}

PrjMappingLineC PrjLineHistoryC::currentLine() const
{
    PrjMappingLineC line;
    line.setSourceLineId(m_sourceLineId);
    line.setTargetIndex(m_targetIndex);
    line.setTargetLineId(m_targetLineId);
    line.setCheckState(m_state);
    line.setValid(m_valid);
    line.setInRealTarget(m_inRealTarget);
    return line;
}
