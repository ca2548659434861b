#include "UndoHistory.h"

namespace {

QList<int> conflictedLines(const PrjMappingC &mapping)
{
    QList<int> lines;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        if (mapping.targetAt(i).lineCounts().conflicts() == 0)
            continue;
        for (const LineTable::Iterator &line : mapping.targetAt(i).lines()) {
            if (line.conflict())
                lines += line.sourceLine();
        }
    }
    return lines;
}

void mark(PrjMappingC &mapping, const PrjMappingC &like, const QList<int> &lines)
{
    if (mapping.getSourcePath() != like.getSourcePath() ||
        mapping.getSourceVersion() != like.getSourceVersion())
        return;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        PrjMappingTargetC target = mapping.findTarget(i);
        for (int line : lines)
            target.setLineConflicted(line, true);
        mapping.updateTarget(i, target);
    }
}

} // namespace

void UndoHistory::push(const UndoStep &step)
{
    if (m_clean > m_position)
        m_clean = -1;
    m_steps.resize(m_position);
    m_steps.append(step);
    ++m_position;
    trim();
}

QStringList UndoHistory::texts() const
{
    QStringList result;
    for (qsizetype i = 0; i < m_position; ++i)
        result += m_steps[i].text;
    return result;
}

void UndoHistory::clear()
{
    m_steps.clear();
    m_position = 0;
    m_clean = 0;
}

void UndoHistory::setLimit(int steps)
{
    m_limit = qMax(steps, 1);
    trim();
}

void UndoHistory::trim()
{
    const qsizetype surplus = qMin(m_steps.size() - m_limit, m_position);
    if (surplus <= 0)
        return;
    m_steps.remove(0, surplus);
    m_position -= surplus;
    m_clean = m_clean < surplus ? -1 : m_clean - surplus;
}

void UndoHistory::markConflicts(const PrjMappingC &marked)
{
    const QList<int> lines = conflictedLines(marked);
    if (lines.isEmpty())
        return;
    for (UndoStep &step : m_steps) {
        for (MappingChangePair &change : step.changes) {
            mark(change.before, marked, lines);
            mark(change.after, marked, lines);
        }
    }
}
