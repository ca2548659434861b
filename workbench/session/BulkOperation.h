#pragma once

#include "SessionTypes.h"

#include <QList>
#include <QString>

class MappingDocument;
namespace VKTab {
class Content;
}

/// One action on many lines of a project: what the line actions of the editor do, in one update and
/// one step of undo.
class BulkOperation
{
public:
    enum Action {
        Confirm,          ///< state confirmed, target line and extended text stay
        Remove,           ///< the assignment goes, the line is to be looked at again
        RemoveAndConfirm, ///< the assignment goes, the line is confirmed as expired
    };
    /// What would happen.
    struct Preview
    {
        int lines = 0;     ///< are changed
        int unchanged = 0; ///< are already as wanted, or have no assignment to remove
        int unknown = 0;   ///< no target knows them
        int lostTexts = 0; ///< of the changed ones: lose a value range text
        int confirmed = 0; ///< of the changed ones: were confirmed before
        QString text;      ///< German question: how many lines, what is lost
    };

    /// \a lines are source line ids, in any order. \a table tells apart the targets that hold the
    /// same line; without it, or for a line that it lacks, the first one is taken. It need not live
    /// longer than the calls.
    BulkOperation(MappingDocument &document, const ProjectId &project, const QList<int> &lines,
                  const VKTab::Content *table = nullptr);

    [[nodiscard]] Preview preview(Action action) const;
    /// Gives the number of changed lines.
    int run(Action action) const;

    /// Lines that the table shows, filters applied.
    [[nodiscard]] static QList<int> shownLines(const VKTab::Content &table);

private:
    [[nodiscard]] PrjMappingC apply(Action action, Preview &preview) const;
    [[nodiscard]] int targetOf(const PrjMappingC &mapping, int line) const;

    MappingDocument &m_document;
    const ProjectId m_project;
    const QList<int> m_lines;
    const VKTab::Content *const m_table;
};
