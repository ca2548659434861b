#pragma once

#include <workbench/session/common/SessionTypes.h>

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class MappingDocument;
class ProjectOrder;
namespace VKTab {
class Content;
}

/// Finds the lines that still need a decision: first all that are in conflict, then those to check,
/// then those without target line; each kind project by project in the order of the tree, and from
/// the end on from the beginning. A project's lines come in ascending order of their numbers, those
/// of the project that the user sees in the order and within the filter that he sees. An entry that
/// several targets hold of one line counts for each.
class OpenLines : public QObject
{
    Q_OBJECT
public:
    /// An entry in conflict is of that kind only, whatever its state.
    enum Kind {
        Conflict = 1,
        ToCheck = 2,  ///< has a target line that must be confirmed or corrected
        NotFound = 4, ///< has no target line, and nobody confirmed that it has none
        Proposed = 8, ///< assigned by the program, passed its check, not confirmed
        // These two need no decision, but can be sought too.
        Confirmed = 16, ///< the user confirmed its target line
        Expired = 32,   ///< the user confirmed that it has none
    };
    static constexpr int AllKinds = 63;
    static constexpr int NeedDecision = Conflict | ToCheck | NotFound;
    Q_DECLARE_FLAGS(Kinds, Kind)

    /// The rows of the project that is on the screen.
    struct Shown
    {
        ProjectId project; ///< not valid: none
        int rows = 0;
        bool isFiltered = false; ///< rows are left out: the search stays within
        std::function<int(int row)> lineAt;
        std::function<int(int line)> rowOf; ///< -1: no row

        /// The line of the first row that has one of these, else of the first row; there is one.
        [[nodiscard]] int firstOf(const std::vector<int> &lines) const;
    };
    struct Found
    {
        LineRef line;         ///< not valid if there is none at all
        Kind kind = Conflict; ///< if it is valid
        bool wrapped = false; ///< the search had to begin anew
    };

    /// \a document must live as long. Conflict, ToCheck and NotFound are sought at first.
    explicit OpenLines(MappingDocument *document, QObject *parent = nullptr);
    ~OpenLines() override;

    [[nodiscard]] Kinds kinds() const { return m_kinds; }
    void setKinds(Kinds kinds);
    /// Of the whole release; costs nothing.
    [[nodiscard]] int count() const;
    [[nodiscard]] int count(const ProjectId &project) const;
    /// The same of one kind, sought or not.
    [[nodiscard]] int countOf(Kind kind) const;
    /// Among the rows that are shown.
    [[nodiscard]] int countIn(const Shown &shown) const;
    /// Projects that have any.
    [[nodiscard]] int projectCount() const;
    /// Source lines of a mapping that are of one of these kinds, ascending.
    [[nodiscard]] static std::vector<int> linesOf(const PrjMappingC &mapping, Kinds kinds);
    /// Entries of these kinds in a mapping.
    [[nodiscard]] static int countOf(const PrjMappingC &mapping, Kinds kinds);
    /// The place of a line among all of a kind, from 1, in the order of the tree and of the lines'
    /// numbers.
    [[nodiscard]] int placeOf(const LineRef &line, Kind kind) const;

    /// The next one behind \a from, which need not be open nor exist; from the beginning if that is
    /// not valid, and from the project's first line if only its line is not. \a among is the kind
    /// that the user is at; without it that of \a from, or an earlier one that the rest of its
    /// project has, or the first of which there are any.
    [[nodiscard]] Found next(const LineRef &from) const { return next(from, Shown()); }
    [[nodiscard]] Found next(const LineRef &from, const Shown &shown,
                             std::optional<Kind> among = {}) const;
    [[nodiscard]] Found previous(const LineRef &from) const { return previous(from, Shown()); }
    [[nodiscard]] Found previous(const LineRef &from, const Shown &shown,
                                 std::optional<Kind> among = {}) const;
    /// The next or previous one of this kind that is not in the project: nothing of it can be
    /// shown.
    [[nodiscard]] Found beyond(const ProjectId &project, const Shown &shown, Kind among,
                               bool forward) const;
    /// The next project behind or before this one, in the order of the tree and round its end, that
    /// has lines of these kinds; not valid if no other has.
    [[nodiscard]] ProjectId nextProject(const ProjectId &from, bool forward) const;
    /// The kind of a line, the first one of several; nothing if no target has the line.
    [[nodiscard]] std::optional<Kind> kindOf(const LineRef &line) const;

    /// Lines of a table that read so: the whole designation, else its beginning, else a part of it,
    /// without regard to case and repeated blanks. A number alone finds the line of this number
    /// first. In the table's order.
    [[nodiscard]] static QList<int> linesByText(const VKTab::Content &table, const QString &text);

Q_SIGNALS:
    void countChanged(int count);

private:
    void noteCount();
    [[nodiscard]] const ProjectOrder &order() const;
    [[nodiscard]] std::optional<Kind> kindFrom(const LineRef &from, const QList<Kind> &kinds,
                                               const Shown &shown, bool forward) const;
    [[nodiscard]] Found seek(const LineRef &from, const Shown &shown, std::optional<Kind> among,
                             bool forward) const;
    [[nodiscard]] Found seekKind(Kind kind, const LineRef &from, const Shown &shown, bool forward,
                                 bool round) const;
    [[nodiscard]] static std::optional<int> lineIn(const PrjMappingC &mapping, Kind kind,
                                                   std::optional<int> from, bool forward);
    [[nodiscard]] std::optional<int> shownLine(const Shown &shown, Kind kind,
                                               std::optional<int> from, bool forward) const;

    MappingDocument *const m_document;
    Kinds m_kinds = Kinds(NeedDecision);
    int m_lastCount = 0;
};
Q_DECLARE_OPERATORS_FOR_FLAGS(OpenLines::Kinds)
