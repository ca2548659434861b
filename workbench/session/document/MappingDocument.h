#pragma once

#include "MergeState.h"

#include <geomcore/records/ReleaseMappingC.h>
#include <workbench/session/common/SessionTypes.h>
#include <workbench/session/file/FileContent.h>
#include <workbench/session/file/SaveOutcome.h>
#include <workbench/session/journal/RecoveryOffer.h>

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

class CatalogMappingHandlerI;
class PJsonValue;
class MappingDocumentPrivate;
class ProjectOrder;
class QSettings;
class UndoHistory;

/// How a step is taken back, or taken again.
struct StepPlan
{
    bool fits = false;
    /// In the order in which they have to be moved, the step itself last: taking one back takes
    /// those back before that build on it, taking one again those again on which it builds.
    QList<int> steps;
    /// If it does not fit: steps that count and hold other values. None: what stands in the way was
    /// changed by other means.
    QList<int> inTheWay;
};

/// One release of a mapping file while it is being edited: working copy, undo stack, journal,
/// autosave, lock, paths. Every change of a mapping comes in through updateMapping(), be it by the
/// editor's handler or by the host's own operations.
///
/// Changes of one turn of the event loop make one step of undo, as do those between beginStep() and
/// endStep(). GUI thread only; needs a running event loop.
class MappingDocument : public QObject
{
    Q_OBJECT
public:
    enum class Access {
        ReadWrite, ///< read-only all the same if somebody else edits the file
        ReadOnly,
    };
    enum class Recovery {
        Ask, ///< open() gives RecoveryPending if there is something to recover
        UseSaved,
        UseRecovered, ///< opens the release that was being edited, whatever was wanted
        UseFurther,   ///< the same with the changes behind a damaged place that still fit
    };
    struct OpenRequest
    {
        QString mappingFile;
        QString sourceDate; ///< empty: the last release of the file
        QString rootName;   ///< text of the tree's root; empty: both dates
        Access access = Access::ReadWrite;
        Recovery recovery = Recovery::Ask;
        /// The file if it was read already, for that once is enough.
        std::shared_ptr<const FileContent> content = nullptr;
    };
    enum class OpenResult {
        Opened,
        OpenedReadOnly,  ///< readOnlyReason() and readOnlyText() say why
        RecoveryPending, ///< nothing is open; show recoveryOffer() and open again with the choice
        NoRelease,       ///< the file does not hold the wanted release
        Unreadable,      ///< the file is missing, unreadable or no mapping file
    };
    enum class ReadOnlyReason {
        None,
        Wanted,
        HeldByOther, ///< lockOwner() edits the file
        NotWritable, ///< the folder takes no new files
    };

    /// Catalog roots and the like are kept in \a settings, which must live as long; null: they are
    /// not kept.
    explicit MappingDocument(QSettings *settings = nullptr, QObject *parent = nullptr);
    ~MappingDocument() override;

    /// Source dates of the releases in a file, in its order; empty with \a error if it cannot be
    /// read.
    [[nodiscard]] static QStringList sourceDates(const QString &mappingFile,
                                                 QString *error = nullptr);
    [[nodiscard]] static QStringList sourceDates(const FileContent &content,
                                                 QString *error = nullptr);

    /// Opens a release. What is open is closed before, its unsaved changes are discarded; it stays
    /// open if the file cannot be read and nothing was left of it.
    OpenResult open(const OpenRequest &request);
    /// The same with a release that is not in a file yet. It is modified until it is saved.
    OpenResult openNew(const ReleaseMappingC &release, const QString &mappingFile,
                       const QString &rootName = QString());
    /// German: why open() failed, what to do next.
    [[nodiscard]] QString errorText() const;
    [[nodiscard]] const RecoveryOffer &recoveryOffer() const;
    /// Gives up journal and lock; unsaved changes stay readable in the journal only.
    void close();
    [[nodiscard]] bool isOpen() const;

    [[nodiscard]] bool isReadOnly() const;
    [[nodiscard]] ReadOnlyReason readOnlyReason() const;
    [[nodiscard]] QString readOnlyText() const;
    /// Who holds the lock, if that is somebody else.
    [[nodiscard]] SessionOwner lockOwner() const;
    /// Takes the lock of somebody who will not come back, such as a computer that is gone; to be
    /// called after the user said so. The document must be opened again afterwards.
    static bool removeLock(const QString &mappingFile);
    /// The path under which a mapping file is known here, links resolved.
    [[nodiscard]] static QString canonicalPath(const QString &mappingFile);

    /// Native path; empty if nothing is open.
    [[nodiscard]] QString mappingFile() const;
    [[nodiscard]] QString rootName() const;
    [[nodiscard]] CatalogRoots catalogRoots() const;
    /// Remembered for this mapping file.
    void setCatalogRoots(const CatalogRoots &roots);

    /// A handler for CatalogMappingWidget. The caller owns it; it may outlive this document, and
    /// then does nothing.
    [[nodiscard]] CatalogMappingHandlerI *createHandler();
    /// The handler that all others forward to; it belongs to this document and lives until the
    /// next releaseReplaced() or close(). Never update mappings by it.
    [[nodiscard]] CatalogMappingHandlerI *handler() const;
    [[nodiscard]] ReleaseMappingC release() const;
    /// Not valid if the release does not know it.
    [[nodiscard]] PrjMappingC mapping(const ProjectId &project) const;
    /// Of the whole release, kept while mappings change.
    [[nodiscard]] const LineCounts &counts() const;
    /// In the order of the tree, as it was made; kept while mappings change.
    [[nodiscard]] const ProjectOrder &projects() const;

    /// Projects with lines in conflict, in stored order: to be told before saving.
    [[nodiscard]] QList<ProjectId> conflictedProjects() const;

    /// The host's way to change a mapping; the editor's is the handler. Both meet here. When the
    /// step ends reselectRequested() follows, since the editor does not know of it and would write
    /// its former state back. Ignored while read-only, with problemOccurred().
    void updateMapping(const PrjMappingC &mapping);
    /// Replaces everything in one step, as after creating or assigning a whole release. The tree is
    /// made anew: releaseReplaced() follows.
    void replaceRelease(const ReleaseMappingC &release, const QString &text);
    /// What is agreed to about values of the release's lines, in one step: as replaceRelease().
    void setReplacements(const QList<AgreedReplacement> &replacements, const QString &text);
    /// Writes into the journal what is no change, such as a sample that was judged. \a kind names
    /// it; \a note is any value.
    void writeNote(const char *kind, const PJsonValue &note);
    /// All changes until the matching endStep() make one step. \a text: what undo says; empty: it
    /// is made from the changes. May be nested, the outermost text counts.
    void beginStep(const QString &text = QString());
    void endStep();
    /// Ends the step of this turn of the event loop now.
    void finishStep();

    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    /// "3 Zeilen bestätigt in a/b.prj"; empty if there is nothing.
    [[nodiscard]] QString undoText() const;
    [[nodiscard]] QString redoText() const;
    /// Oldest first.
    [[nodiscard]] QStringList undoTexts() const;
    /// Of older steps only what they changed is kept, which is smaller and slower to undo; 1000 at
    /// first.
    void setKeptStates(int steps);
    /// All steps that are known, those of former sessions and those that were taken back included.
    [[nodiscard]] const UndoHistory &steps() const;
    /// What taking a step back, or again, asks for.
    [[nodiscard]] StepPlan planStep(int index) const;
    /// The same of a step that counts and all that took effect later.
    [[nodiscard]] StepPlan planUndoTo(int index) const;
    /// Does what the plan says, one step after another. False, and nothing changed, if it does not
    /// fit.
    bool moveSteps(const StepPlan &plan);

    /// There is something to save.
    [[nodiscard]] bool isModified() const;
    [[nodiscard]] SaveOutcome save(const SaveOptions &options = {});
    /// Saves into another file, which is the document's file from then on if that went well. A
    /// release of the same date there is replaced; other releases of the former file are not taken
    /// along.
    [[nodiscard]] SaveOutcome saveAs(const QString &mappingFile, const SaveOptions &options = {});

    /// Merges what others wrote into the file since it was read with the changes made here. What
    /// clashes stands as in the file and is marked. Afterwards saving replaces nothing unseen;
    /// steps made before cannot be undone one by one any more, but all together. The tree is made
    /// anew: releaseReplaced() follows.
    [[nodiscard]] MergeOutcome mergeFile();
    /// The same of a file into which another merge wrote what it came to: its clashes are those of
    /// \a known.
    [[nodiscard]] MergeOutcome takeMerged(const VelkRelease::MergeResult &known);
    /// What the last merge left; empty before.
    [[nodiscard]] const MergeState &mergeState() const;
    /// Decides clashing lines for one side or for neither, in one step.
    void settle(const QList<VelkRelease::MergeClash> &clashes, MergeState::Side side);

    /// 180 seconds at first; 0: never.
    void setAutosaveInterval(int seconds);
    /// Not valid before the first one.
    [[nodiscard]] QDateTime lastAutosave() const;
    [[nodiscard]] QString journalFile() const;
    [[nodiscard]] QString autosaveFile() const;

public Q_SLOTS:
    void undo();
    void redo();
    /// Writes the side file now if there is something to save.
    void autosave();

Q_SIGNALS:
    void opened();
    /// While it still holds everything.
    void aboutToClose();
    void closed();
    void modifiedChanged(bool modified);
    /// canUndo(), canRedo() or their texts changed.
    void undoChanged();
    /// At the end of a step, once for each project; undo and redo included.
    void mappingChanged(const ProjectId &project);
    void countsChanged();
    /// A step is complete, by the user, by undo or by redo. \a text says what was done, \a lines is
    /// the number of source lines that changed.
    void stepDone(const QString &text, int lines);
    /// Follows stepDone(), for what the user should hear of.
    void noticeRaised(const ChangeNotice &notice);
    /// The project's node should be selected anew, for its mapping changed behind the editor: after
    /// undo, redo and changes of the host's own, once for each project of the step. \a line is the
    /// first one that undo or redo changed; -1: none.
    void reselectRequested(const ProjectId &project, int line = -1);
    /// There is another tree: the editor must be made anew with createHandler().
    void releaseReplaced();
    void saved();
    void autosaved(const QString &file);
    /// German: something that the user must know, such as a journal that cannot be written.
    void problemOccurred(const QString &text);

private:
    friend class JournalingHandler;
    friend class MappingDocumentPrivate;
    void updateByEditor(const PrjMappingC &mapping);

    const std::unique_ptr<MappingDocumentPrivate> d;
};
