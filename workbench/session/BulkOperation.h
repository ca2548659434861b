#pragma once

#include "SessionTypes.h"

#include <QList>
#include <QString>

class MappingDocument;
namespace VKTab {
class Content;
}

/// One action on many lines of a project, in one update and one step of undo: what the editor's
/// line actions do, in every target that holds the line. Lines in conflict are left alone, since
/// each of them wants a decision of its own.
class BulkOperation
{
public:
    enum Action {
        Confirm,          ///< state confirmed, target line and extended text stay
        Remove,           ///< the assignment goes, the line is to be decided on again
        RemoveAndConfirm, ///< the assignment goes, the line is confirmed as expired
    };
    /// What would happen.
    struct Preview
    {
        int lines = 0;     ///< are changed
        int unchanged = 0; ///< are already as wanted, or have no assignment to remove
        int unknown = 0;   ///< no target knows them
        int conflicts = 0; ///< are left alone
        int lostTexts = 0; ///< of the changed ones: lose a value range text
        int confirmed = 0; ///< of the changed ones: were confirmed before
        QString text;      ///< German question: how many lines, what is lost
    };

    /// \a lines are source line ids, in any order.
    BulkOperation(MappingDocument &document, const ProjectId &project, const QList<int> &lines);

    [[nodiscard]] Preview preview(Action action) const;
    /// Gives the number of changed lines.
    int run(Action action) const;

    /// Lines that the table shows, filters applied, in its order.
    [[nodiscard]] static QList<int> shownLines(const VKTab::Content &table);

private:
    [[nodiscard]] PrjMappingC apply(Action action, Preview &preview) const;

    MappingDocument &m_document;
    const ProjectId m_project;
    const QList<int> m_lines; ///< ascending, each once
};
