#pragma once

#include <workbench/session/common/SessionTypes.h>
#include <workbench/session/document/MergeState.h>

#include <QObject>

#include <vector>

class MappingDocument;

/// A line that two sides decided on differently.
struct ConflictEntry
{
    enum Outcome {
        Open,
        Ours,
        Theirs,
        Anew, ///< neither side's
    };
    LineRef line;
    /// Without base and ours if nothing is known of them: the line was in conflict when the file
    /// was opened.
    VelkRelease::MergeClash clash;
    bool isKnown = true;
    Outcome outcome = Open;
    int group = 0; ///< entries of one group clash in the same way
};

/// All lines in conflict of the open release, in its order, those that were settled since the merge
/// included. Follows the document: a line is open as long as it is marked, whoever settles it.
class ConflictList : public QObject
{
    Q_OBJECT

public:
    /// \a document must live as long.
    explicit ConflictList(MappingDocument *document, QObject *parent = nullptr);
    ~ConflictList() override;

    [[nodiscard]] int count() const { return int(m_entries.size()); }
    [[nodiscard]] int openCount() const { return m_open; }
    [[nodiscard]] const ConflictEntry &at(int place) const { return m_entries[size_t(place)]; }
    /// -1 if the line is none of them.
    [[nodiscard]] int placeOf(const LineRef &line) const;
    /// The next open one behind a place, from the beginning again; -1 if there is none.
    [[nodiscard]] int nextOpen(int place) const;
    /// Open entries that clash as this one, it included if it is open.
    [[nodiscard]] std::vector<int> openAlike(int place) const;
    /// Decides entries for one side or neither, in one step. One of which nothing is known stays as
    /// it stands for either side.
    void settle(const std::vector<int> &places, MergeState::Side side);

Q_SIGNALS:
    void aboutToReset();
    void reset();
    /// Outcomes of entries changed.
    void entriesChanged(int first, int last);

private:
    void fill();
    void follow(const ProjectId &project);
    [[nodiscard]] ConflictEntry::Outcome outcomeOf(const ConflictEntry &entry,
                                                   const PrjMappingC &mapping) const;
    [[nodiscard]] PrjMappingC mappingOf(const ProjectId &project) const;

    MappingDocument *const m_document;
    std::vector<ConflictEntry> m_entries;
    int m_open = 0;
};
