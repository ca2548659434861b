#pragma once

#include <geomcore/records/ReleaseMappingC.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// A mapping before and after a step; not valid where the release did not know it.
struct MappingChangePair
{
    PrjMappingC before;
    PrjMappingC after;
};

/// One user action.
struct UndoStep
{
    QString text;
    int lines = 0;
    QList<MappingChangePair> changes;
    /// Set if the step replaced the whole release; then there are no changes.
    std::optional<ReleaseMappingC> releaseBefore;
    std::optional<ReleaseMappingC> releaseAfter;
};

/// Steps that can be undone and redone. The records share what they have in common, so a step
/// costs what it changed.
class UndoHistory
{
public:
    void push(const UndoStep &step);
    [[nodiscard]] bool canUndo() const { return m_position > 0; }
    [[nodiscard]] bool canRedo() const { return m_position < m_steps.size(); }
    /// The step to be undone or redone next, and the move over it. There must be one.
    [[nodiscard]] const UndoStep &undoStep() const { return m_steps[m_position - 1]; }
    [[nodiscard]] const UndoStep &redoStep() const { return m_steps[m_position]; }
    void stepBack() { --m_position; }
    void stepForward() { ++m_position; }
    /// Oldest first, without those that were undone.
    [[nodiscard]] QStringList texts() const;

    void clear();
    void setLimit(int steps);

    /// What is now is what is in the file.
    void markClean() { m_clean = m_position; }
    /// No way of undo leads to what is in the file.
    void markDirty() { m_clean = -1; }
    [[nodiscard]] bool isClean() const { return m_clean == m_position; }

    /// Sets the conflict marks of lines in all remembered states of the mapping.
    void markConflicts(const PrjMappingC &marked);

private:
    void trim();

    QList<UndoStep> m_steps;
    qsizetype m_position = 0;
    qsizetype m_clean = 0;
    qsizetype m_limit = 1000;
};
