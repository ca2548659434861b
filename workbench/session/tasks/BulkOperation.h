#pragma once

#include <workbench/session/common/SessionTypes.h>

#include <QCoreApplication>
#include <QList>
#include <QString>

class MappingDocument;

/// One action on many lines of a project, in one update and one step of undo: what the editor's
/// line actions do, in every target that holds the line. Lines in conflict are left alone, since
/// each of them wants a decision of its own, and so are lines without a target line where only
/// assignments are confirmed.
class BulkOperation
{
    Q_DECLARE_TR_FUNCTIONS(BulkOperation)

public:
    enum Action {
        Confirm,          ///< state confirmed, target line and extended text stay
        ConfirmExpired,   ///< lines without a target line are confirmed to have none
        Remove,           ///< the assignment goes, the line is to be decided on again
        RemoveAndConfirm, ///< the assignment goes, the line is confirmed as expired
    };
    /// What would happen, or happened.
    struct Numbers
    {
        int lines = 0;         ///< are changed
        int unchanged = 0;     ///< are already as wanted, or have no assignment to remove
        int withoutTarget = 0; ///< are left alone by Confirm: they have no target line
        int unknown = 0;       ///< no target knows them
        int conflicts = 0;     ///< are left alone
        int lostTexts = 0;     ///< of the changed ones: lose a value range text
        int confirmed = 0;     ///< of the changed ones: were confirmed before
    };

    /// \a lines are source line ids, in any order.
    BulkOperation(MappingDocument &document, const ProjectId &project, const QList<int> &lines);

    [[nodiscard]] Numbers preview(Action action) const;
    [[nodiscard]] Numbers run(Action action) const;

    /// German: how many lines, what is lost, what is left out.
    [[nodiscard]] static QString question(Action action, const Numbers &numbers);
    /// German: what was done, and what was left out.
    [[nodiscard]] static QString result(Action action, const Numbers &numbers);

private:
    [[nodiscard]] PrjMappingC apply(Action action, Numbers &numbers) const;
    [[nodiscard]] static QString leftOut(const Numbers &numbers);

    MappingDocument &m_document;
    const ProjectId m_project;
    const QList<int> m_lines; ///< ascending, each once
};
