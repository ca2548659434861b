#pragma once

#include "ReleaseComparison.h"
#include "UndoHistory.h"

#include <core/json/PJsonValue.h>
#include <workbench/session/change/MappingDifference.h>
#include <workbench/session/common/SessionTypes.h>
#include <workbench/session/journal/JournalFile.h>

#include <QHash>
#include <QPair>
#include <QSet>

#include <optional>

/// Gathers changes until a step is complete, writes them into the journal as they come, and keeps
/// the steps for undo and redo. Knows nothing of handler, file or signals.
class StepRecorder
{
public:
    /// How a step came about, as the journal says it.
    enum class Origin {
        Edit,
        Undo,
        Redo,
        Recovery,
        Mark, ///< conflicts were marked: no step of undo
    };
    /// What a session begins with.
    struct Opening
    {
        QString sourceDate;
        QString targetDate;
        QByteArray fileHash;
    };
    /// What the gathered changes came to.
    struct Finished
    {
        enum class Kind {
            Nothing,         ///< no change at all
            ConflictsMarked, ///< marks only: no step of undo
            Step,
        };
        Kind kind = Kind::Nothing;
        UndoStep step;
        QList<ChangeNotice> notices;
        QList<ProjectId> changed;      ///< in the order of the changes
        QList<ProjectId> behindEditor; ///< of them, those that the host changed
    };

    /// Begins a session: the journal of this name, appended to. False with errorText().
    [[nodiscard]] bool openJournal(const QString &path, const Opening &opening);
    /// The same session in a journal that is made anew, if its file is not the one that is open.
    [[nodiscard]] bool renewJournal(const Opening &opening);
    /// Ends the session; without one nothing happens. True if there was one.
    bool closeJournal(bool modified);
    [[nodiscard]] bool isJournaling() const { return m_journal.isOpen(); }
    [[nodiscard]] const JournalFile &journal() const { return m_journal; }
    [[nodiscard]] UndoHistory &history() { return m_history; }
    [[nodiscard]] const UndoHistory &history() const { return m_history; }
    /// Forgets everything.
    void reset();

    void begin(const QString &text);
    /// True if that was the outermost.
    bool end();
    [[nodiscard]] bool isNested() const { return m_pending.depth > 0; }
    void cutNesting() { m_pending.depth = 0; }
    [[nodiscard]] bool hasChanges() const { return m_pending.changed; }

    /// One mapping changes.
    void note(const PrjMappingC &before, const PrjMappingC &after, bool byEditor);
    /// The whole release does, by what is in the journal already.
    void noteRelease(const ReleaseMappingC &before, const ReleaseComparison &compared);
    /// Puts the gathered changes into the history; those that only mark conflicts are no step.
    [[nodiscard]] Finished finish(const ReleaseMappingC &now);

    /// The number of the step in the making or made last.
    [[nodiscard]] int number() const { return m_step; }
    /// Of the step that what is noted next belongs to.
    [[nodiscard]] int nextNumber() const { return m_pending.changed ? m_step : m_step + 1; }
    /// Begins undo, redo or recovery: what follows has a number of its own.
    void beginMove() { ++m_step; }
    void journal(const MappingDifference &difference);
    /// A portion of a comparison.
    void journalRows(const QByteArray &rows) { m_journal.appendRows(rows); }
    void flushJournal() { (void)m_journal.flush(); }
    /// \a of: the key of the step that undo or redo is about.
    void journalStep(const QString &text, Origin origin, const QString &of = QString());
    /// The release was made anew: steps of former ones under this name do not count.
    void noteMade();
    /// The release was merged with what others saved: what was not saved here is not what the steps
    /// say any more.
    void noteMerged();
    /// Fills in whose step it is and when: the one in the making.
    void sign(UndoStep &step) const;
    /// Writes down what is no change of the release. \a record is an object; it gets kind and time.
    void journalNote(const char *kind, const PJsonValue &note);

    void noteSaved(const QByteArray &fileHash);
    void noteAutosaved(const QByteArray &fileHash);
    /// The side file has all that was noted.
    [[nodiscard]] bool isAutosaved() const { return m_autosaved == m_step; }

private:
    /// Changes that are not yet a step.
    struct Pending
    {
        QList<MappingChangePair> changes; ///< one for each project: first state, last state
        QHash<QPair<QString, QString>, qsizetype> index;
        std::optional<MappingDifference> only;        ///< of the one change, until there is another
        std::optional<ReleaseMappingC> releaseBefore; ///< the whole release was replaced
        std::optional<ReleaseComparison> onlyRelease; ///< of that, as long as there is no more
        QSet<ProjectId> behindEditor;                 ///< changed by the host
        QString text;
        int depth = 0;        ///< of begin()
        bool changed = false; ///< by at least one update
    };

    void writeOpening(const Opening &opening);
    void noteFile(const char *kind, const QByteArray &fileHash);
    void noteFirst();
    void gather(const PrjMappingC &before, const PrjMappingC &after);
    [[nodiscard]] bool summarise(Pending &done, const ReleaseMappingC &now, Finished &result) const;

    JournalFile m_journal;
    QByteArray m_opening; ///< record of this session
    UndoHistory m_history;
    Pending m_pending;
    int m_step = 0;
    std::optional<int> m_autosaved; ///< step that the side file has
};
