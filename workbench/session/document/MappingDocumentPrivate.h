#pragma once

#include "DocumentFile.h"
#include "MappingDocument.h"
#include "PreparedRelease.h"

#include <core/text/PPrivateData.h>
#include <mapping/data/CatalogMappingHandlerI.h>
#include <workbench/session/history/ReleaseComparison.h>
#include <workbench/session/history/StepMove.h>
#include <workbench/session/history/StepRecorder.h>

#include <QTimer>

#include <functional>

/// State of a MappingDocument: joins its file, its steps and the handler of its release, and tells
/// what happens.
class MappingDocumentPrivate : public PPrivateData<MappingDocument>
{
public:
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
    [[nodiscard]] bool isEditable() const;
    void refuse(const ProjectId &project);
    void update(const PrjMappingC &mapping, bool byEditor);
    void replaceRelease(const ReleaseMappingC &release);
    void finishStep();
    void move(StepRecorder::Origin direction);
    /// Takes the step back, or again; false, and nothing changed, if it does not fit.
    bool moveStep(int index);
    [[nodiscard]] StepPlan plan(const QList<int> &wanted) const;
    [[nodiscard]] bool isModified() const;
    void tellModified();

    // Saving.
    [[nodiscard]] SaveOutcome save(const SaveOptions &options);
    [[nodiscard]] SaveOutcome saveAs(const QString &path, const SaveOptions &options);
    void autosave();
    [[nodiscard]] MergeOutcome mergeFile(const VelkRelease::MergeResult *known);
    void settle(const QList<VelkRelease::MergeClash> &clashes, MergeState::Side side);
    void startAutosave();

    QSettings *const settings;
    bool isOpen = false;
    DocumentFile file;
    StepRecorder steps;
    QString rootName;
    CatalogRoots roots;
    QString errorText;
    RecoveryOffer offer;
    std::shared_ptr<CatalogMappingHandlerI> handler;
    LineCounts counts;
    ProjectOrder order;
    MergeState mergeState;
    int autosaveSeconds = 180;
    QDateTime lastAutosave;

private:
    [[nodiscard]] MappingDocument::OpenResult fail(MappingDocument::OpenResult result,
                                                   const QString &text);
    void clearAnswers();
    /// What open() comes to by way of a recovery; nothing if it goes on with the saved version.
    [[nodiscard]] std::optional<MappingDocument::OpenResult>
    recover(const MappingDocument::OpenRequest &request, const FileContent &content);
    [[nodiscard]] MappingDocument::OpenResult openRecovered(const SessionRecovery &recovery,
                                                            const ReleaseMappingC &recovered,
                                                            const QString &name);
    void pushRecovery(const SessionRecovery &recovery);
    MappingDocument::OpenResult begin(const ReleaseMappingC &release, const QString &name,
                                      bool isNew = false);
    void beginJournal();
    void tellJournal();
    void runBeside(const std::function<void()> &work);
    [[nodiscard]] PreparedRelease prepare(const ReleaseMappingC &release);
    [[nodiscard]] ReleaseComparison compare(const ReleaseMappingC &before,
                                            const ReleaseMappingC &after, int step);
    void writeJournal(const ReleaseComparison &compared);
    void adoptRelease(PreparedRelease &&prepared);
    [[nodiscard]] StepRecorder::Opening opening() const;

    [[nodiscard]] PrjMappingC find(const PrjMappingC &like) const;
    void store(const PrjMappingC &mapping, const PrjMappingC &before);
    void noteAndApply(const ReleaseMappingC &before, const ReleaseMappingC &after);
    void show(PreparedRelease &&prepared);
    QList<int> applyMove(const StepMove &move);
    [[nodiscard]] bool planStep(int index, ReleaseMappingC &standing, StepPlan &plan) const;
    void passOvertaken();
    void invalidateStates() const;
    void tellMarks(const StepRecorder::Finished &done);
    void tellStep(const UndoStep &step);
    void tellRefused();

    [[nodiscard]] std::optional<SaveOutcome> refuseSaving() const;
    void noteSaved();
    void renewWhatIsGone();

    bool m_putAside = false; ///< what a session left is not wanted
    QString m_lostText;      ///< told when the document is open
    bool m_wasModified = false;
    bool m_saving = false;  ///< what comes meanwhile is refused
    bool m_refused = false; ///< an update was refused in this turn
    QList<ProjectId> m_refusedProjects;
    QTimer m_turn; ///< ends the step when the event loop comes round
    QTimer m_autosaveTimer;
};
