#pragma once

#include "CatalogRootMemory.h"
#include "JournalFile.h"
#include "MappingDifference.h"
#include "MappingDocument.h"
#include "OwnFile.h"
#include "UndoHistory.h"

#include <core/files/EditLock.h>
#include <core/text/PPrivateData.h>
#include <mapping/data/CatalogMappingHandlerI.h>

#include <QHash>
#include <QPair>
#include <QSet>
#include <QTimer>

class PJsonValue;
class SessionRecovery;

/// State of a MappingDocument.
class MappingDocumentPrivate : public PPrivateData<MappingDocument>
{
public:
    /// How a step came about, as the journal says it.
    enum class Origin {
        Edit,
        Undo,
        Redo,
        Recovery,
    };
    /// Changes that are not yet a step.
    struct Pending
    {
        QList<MappingChangePair> changes; ///< one for each project: first state, last state
        QHash<QPair<QString, QString>, qsizetype> index;
        std::optional<ReleaseMappingC> releaseBefore; ///< the whole release was replaced
        QSet<ProjectId> behindEditor;                 ///< changed by the host
        QString text;
        int depth = 0;        ///< of beginStep()
        bool changed = false; ///< by at least one update
    };

    MappingDocumentPrivate(MappingDocument *document, QSettings *settings);
    ~MappingDocumentPrivate();
    MappingDocumentPrivate(const MappingDocumentPrivate &) = delete;
    MappingDocumentPrivate &operator=(const MappingDocumentPrivate &) = delete;

    // Opening and closing.
    MappingDocument::OpenResult open(const MappingDocument::OpenRequest &request);
    MappingDocument::OpenResult openNew(const ReleaseMappingC &release, const QString &path,
                                        const QString &name);
    void close(bool tell);

    // Steps.
    [[nodiscard]] ReleaseMappingC release() const;
    [[nodiscard]] PrjMappingC find(const PrjMappingC &like) const;
    [[nodiscard]] bool isEditable() const;
    void refuse(const ProjectId &project);
    void update(const PrjMappingC &mapping, bool byEditor);
    void replaceRelease(const ReleaseMappingC &release);
    void finishStep();
    void move(bool back);
    [[nodiscard]] bool isModified() const;
    void tellModified();

    // Saving.
    [[nodiscard]] SaveOutcome save(const SaveOptions &options);
    [[nodiscard]] SaveOutcome saveAs(const QString &path, const SaveOptions &options);
    void autosave();
    void startAutosave();
    /// A mapping file with this release alone.
    [[nodiscard]] static QByteArray fileOf(const ReleaseMappingC &release);

    QSettings *const settings;
    bool isOpen = false;
    QString file; ///< canonical
    QString rootName;
    CatalogRoots roots;
    MappingDocument::ReadOnlyReason readOnly = MappingDocument::ReadOnlyReason::None;
    SessionOwner otherOwner;
    QString errorText;
    RecoveryOffer offer;
    std::shared_ptr<CatalogMappingHandlerI> handler;
    LineCounts counts;
    UndoHistory history;
    Pending pending;
    bool marking = false; ///< changes are no step
    int autosaveSeconds = 180;
    QDateTime lastAutosave;

private:
    [[nodiscard]] MappingDocument::OpenResult fail(MappingDocument::OpenResult result,
                                                   const QString &text);
    void takeLock(MappingDocument::Access access);
    [[nodiscard]] MappingDocument::OpenResult readRelease(const QString &wantedDate,
                                                          ReleaseMappingC &release);
    [[nodiscard]] MappingDocument::OpenResult recover(const MappingDocument::OpenRequest &request);
    [[nodiscard]] MappingDocument::OpenResult openRecovered(const SessionRecovery &recovery,
                                                            const ReleaseMappingC &recovered,
                                                            const QString &name);
    void pushRecovery(const SessionRecovery &recovery);
    MappingDocument::OpenResult begin(const ReleaseMappingC &release, const QString &name);
    void beginJournal();
    void adoptRelease(const ReleaseMappingC &release);
    [[nodiscard]] PJsonValue record(const char *kind) const;

    void store(const PrjMappingC &mapping, const PrjMappingC &before);
    void notePending(const PrjMappingC &before, const PrjMappingC &after);
    void journalRelease(const ReleaseMappingC &before, const ReleaseMappingC &after);
    void journalStep(const QString &text, Origin origin);
    [[nodiscard]] UndoStep takeStep(QList<ChangeNotice> &notices);
    void finishMarking(const Pending &done);
    void applyRelease(const ReleaseMappingC &release);
    void applyChanges(const UndoStep &step, bool back);
    void invalidateNodes(const QString &sourcePath) const;
    void tellStep(const UndoStep &step);
    void tellEditor(const Pending &done);
    void tellRefused();

    [[nodiscard]] SaveOutcome runGuarded(const QString &path, const FileState &state,
                                         const ReleaseMappingC &base, const SaveOptions &options,
                                         FileState &saved);
    [[nodiscard]] static QString lockText(const EditLock &lock, EditLock::Result result,
                                          const QString &path);
    void moveTo(const QString &path);
    void noteSaved(const FileState &state);

    EditLock m_lock;
    JournalFile m_journal;
    FileState m_known;        ///< the mapping file as it was read or saved last
    ReleaseMappingC m_loaded; ///< the release in it
    bool m_putAside = false;  ///< what a session left is not wanted
    QString m_lostText;       ///< told when the document is open
    int m_step = 0;           ///< number of the step in the making or made last
    int m_autosavedStep = 0;
    bool m_wasModified = false;
    bool m_refused = false; ///< an update was refused in this turn
    QList<ProjectId> m_refusedProjects;
    QTimer m_turn; ///< ends the step when the event loop comes round
    QTimer m_autosaveTimer;
};
