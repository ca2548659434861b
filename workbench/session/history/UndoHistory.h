#pragma once

#include "UndoStep.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

/// All steps, in the order in which they were made, those that were taken back included, and which
/// of them count. None is ever forgotten: a new step after some that were taken back leaves these
/// in the list, and only redo does not lead to them any more. The states of the last ones share
/// what they have in common; of older ones only what changed is kept.
class UndoHistory
{
public:
    /// What was made just now.
    void push(const UndoStep &step);
    /// A step of a former session, of which nothing is unsaved.
    void addPast(const UndoStep &step);

    [[nodiscard]] int count() const { return int(m_steps.size()); }
    [[nodiscard]] const UndoStep &at(int index) const { return m_steps[index]; }
    [[nodiscard]] int find(const QString &key) const;
    /// Of a step of a former session.
    void setLines(int index, int lines) { m_steps[index].lines = lines; }

    /// The step to be undone or redone next, -1 if there is none. What others did is not undone by
    /// this way, only when it is chosen.
    [[nodiscard]] int nextUndo() const;
    [[nodiscard]] int nextRedo() const { return m_undone.isEmpty() ? -1 : m_undone.last(); }
    [[nodiscard]] bool canUndo() const { return nextUndo() >= 0; }
    [[nodiscard]] bool canRedo() const { return nextRedo() >= 0; }
    /// There must be one.
    [[nodiscard]] const UndoStep &undoStep() const { return m_steps[nextUndo()]; }
    [[nodiscard]] const UndoStep &redoStep() const { return m_steps[nextRedo()]; }
    /// Any step was taken back or again.
    void noteUndone(int index);
    void noteRedone(int index);
    void noteOvertaken(int index);
    /// Steps that took effect later than this one, in that order.
    [[nodiscard]] QList<int> appliedAfter(int index) const;
    /// Steps that were made before this one and taken back, in the order in which they were made.
    [[nodiscard]] QList<int> undoneBefore(int index) const;
    /// In the order in which they took effect, without those that were taken back.
    [[nodiscard]] QStringList texts() const;

    void clear();
    /// So many steps keep their states.
    void setKeptStates(int steps);

    /// What is now is what is in the file.
    void markClean();
    /// No way of undo leads to what is in the file.
    void markDirty() { m_dirty = true; }
    [[nodiscard]] bool isClean() const { return !m_dirty && m_unsaved.isEmpty(); }
    /// Goes back to what was when markClean() was called last, as at the end of a session that
    /// discarded the rest: steps since are forgotten.
    void dropUnsaved();

private:
    struct Standing
    {
        qsizetype steps = 0;
        QList<int> applied;
        QList<int> undone;
    };
    void toggleUnsaved(int index);

    QList<UndoStep> m_steps;
    QList<int> m_applied; ///< in the order in which they took effect
    QList<int> m_undone;  ///< what redo leads to, the next one last
    QSet<int> m_unsaved;  ///< whose effect differs from what is in the file
    Standing m_saved;
    bool m_dirty = false;
    qsizetype m_keptStates = 1000;
    qsizetype m_letGo = 0; ///< so many of the first steps have no states
};
