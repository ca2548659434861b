#include "UndoHistory.h"

#include <algorithm>

void UndoHistory::push(const UndoStep &step)
{
    m_undone.clear();
    m_applied.append(count());
    toggleUnsaved(count());
    m_steps.append(step);
    setKeptStates(int(m_keptStates));
}

void UndoHistory::addPast(const UndoStep &step)
{
    m_undone.clear();
    m_applied.append(count());
    m_steps.append(step);
}

int UndoHistory::find(const QString &key) const
{
    for (int index = count() - 1; index >= 0; --index) {
        if (m_steps[index].key == key)
            return index;
    }
    return -1;
}

int UndoHistory::nextUndo() const
{
    const auto own = std::find_if(m_applied.crbegin(), m_applied.crend(),
                                  [this](int index) { return m_steps[index].isOwn; });
    return own == m_applied.crend() ? -1 : *own;
}

void UndoHistory::noteUndone(int index)
{
    if (!m_applied.removeOne(index))
        return;
    m_steps[index].state = UndoStep::State::Undone;
    m_undone.append(index);
    toggleUnsaved(index);
}

void UndoHistory::noteRedone(int index)
{
    if (m_steps[index].state == UndoStep::State::Applied)
        return;
    m_steps[index].state = UndoStep::State::Applied;
    m_undone.removeOne(index);
    m_applied.append(index);
    toggleUnsaved(index);
}

void UndoHistory::noteOvertaken(int index)
{
    m_steps[index].state = UndoStep::State::Overtaken;
    m_applied.removeOne(index);
    m_undone.removeOne(index);
}

QList<int> UndoHistory::appliedAfter(int index) const
{
    return m_applied.mid(m_applied.indexOf(index) + 1);
}

QList<int> UndoHistory::undoneBefore(int index) const
{
    QList<int> result;
    for (int other = 0; other < index; ++other) {
        if (m_steps[other].state == UndoStep::State::Undone)
            result.append(other);
    }
    return result;
}

QStringList UndoHistory::texts() const
{
    QStringList result;
    for (const int index : m_applied)
        result += m_steps[index].text;
    return result;
}

void UndoHistory::clear()
{
    *this = UndoHistory();
}

void UndoHistory::setKeptStates(int steps)
{
    m_keptStates = qMax(steps, 1);
    for (; m_letGo < m_steps.size() - m_keptStates; ++m_letGo)
        m_steps[m_letGo].letStatesGo();
}

void UndoHistory::toggleUnsaved(int index)
{
    if (!m_unsaved.remove(index))
        m_unsaved.insert(index);
}

void UndoHistory::markClean()
{
    m_dirty = false;
    m_unsaved.clear();
    m_saved = {m_steps.size(), m_applied, m_undone};
}

void UndoHistory::dropUnsaved()
{
    m_steps.resize(m_saved.steps);
    m_letGo = qMin(m_letGo, m_saved.steps);
    m_applied = m_saved.applied;
    m_undone = m_saved.undone;
    for (UndoStep &step : m_steps) {
        if (step.state != UndoStep::State::Overtaken)
            step.state = UndoStep::State::Undone;
    }
    for (const int index : std::as_const(m_applied))
        m_steps[index].state = UndoStep::State::Applied;
    m_unsaved.clear();
    m_dirty = false;
}
