#pragma once

#include "SessionTypes.h"

#include <QObject>

#include <memory>

class MappingDocument;
class ProjectOrder;
namespace VKTab {
class Content;
}

/// Finds the lines that still need a decision, project by project in the order of the tree, each
/// project's lines in ascending order of their numbers, and from the end on from the beginning.
/// An entry that several targets hold of one line counts for each.
class OpenLines : public QObject
{
    Q_OBJECT
public:
    enum Kind {
        ToCheck = 1,  ///< has a target line that must be confirmed or corrected
        NotFound = 2, ///< has no target line, and nobody confirmed that it has none
        Proposed = 4, ///< assigned by the program, passed its check, not confirmed
    };
    Q_DECLARE_FLAGS(Kinds, Kind)

    /// \a document must live as long. ToCheck and NotFound are sought at first.
    explicit OpenLines(MappingDocument *document, QObject *parent = nullptr);
    ~OpenLines() override;

    [[nodiscard]] Kinds kinds() const { return m_kinds; }
    void setKinds(Kinds kinds);
    /// Of the whole release; costs nothing.
    [[nodiscard]] int count() const;
    [[nodiscard]] int count(const ProjectId &project) const;
    /// Projects that have any.
    [[nodiscard]] int projectCount() const;

    /// The next one behind \a from, which need not be open nor exist; from the beginning if that is
    /// not valid, and from the project's first line if only its line is not. Not valid if there is
    /// none at all.
    [[nodiscard]] LineRef next(const LineRef &from) const;
    [[nodiscard]] LineRef previous(const LineRef &from) const;
    /// Whether the search had to begin anew to get from one to the other.
    [[nodiscard]] bool wraps(const LineRef &from, const LineRef &to, bool forward) const;

    /// The line with this number in the project's mapping; not valid if no target knows it.
    [[nodiscard]] LineRef lineByNumber(const ProjectId &project, int number) const;
    /// Lines of a table that read so: the whole designation, else its beginning, else a part of it,
    /// without regard to case and repeated blanks. A number alone finds the line of this number
    /// first. In the table's order.
    [[nodiscard]] static QList<int> linesByText(const VKTab::Content &table, const QString &text);

Q_SIGNALS:
    void countChanged(int count);

private:
    void noteCount();
    void dropOrder();
    [[nodiscard]] int countIn(const LineCounts &counts) const;
    [[nodiscard]] const ProjectOrder &order() const;
    [[nodiscard]] LineRef seek(const LineRef &from, bool forward) const;
    [[nodiscard]] LineRef lineAt(int position, qint64 from, bool forward) const;

    MappingDocument *const m_document;
    Kinds m_kinds = Kinds(ToCheck | NotFound);
    int m_lastCount = 0;
    mutable std::unique_ptr<ProjectOrder> m_order; ///< null until it is needed
};
Q_DECLARE_OPERATORS_FOR_FLAGS(OpenLines::Kinds)
