#pragma once

#include <QList>
#include <QObject>

class QAction;

/// The workbench's own commands by name, with texts in the language of the moment. The names are
/// the actions' object names.
class WorkbenchActions : public QObject
{
    Q_OBJECT

public:
    enum Command {
        NewMapping,
        OpenFile,
        OpenExample,
        Save,
        SaveAs,
        CloseFile,
        CatalogRoots,
        ShareFile,
        ShareUpdate,
        SharePublish,
        ShareFolders,
        ShareWho,
        ImportTables,
        ExportLines,
        WriteReport,
        PrintTable,
        PrintReport,
        Quit,
        Undo,
        Redo,
        Steps,
        ConfirmLines,
        ConfirmExpiredLines,
        RemoveLines,
        RemoveConfirmLines,
        AssignAll,
        CarryDecisions,
        CheckValueRanges,
        EditScript,
        Settings,
        NextOpen,
        PreviousOpen,
        NextProject,
        PreviousProject,
        JumpToLine,
        OtherTable,
        Locate,
        ReviewPatterns,
        ReviewDifferences,
        FilterLines,
        ConfirmPattern,
        TakeOutLine,
        NextInPattern,
        PreviousInPattern,
        NextPattern,
        LeastSureFirst,
        Neighbours,
        MendNeighbours,
        Replacements,
        StartSample,
        SampleRight,
        SampleWrong,
        TakeCandidate1,
        TakeCandidate2,
        TakeCandidate3,
        TakeCandidate4,
        TakeCandidate5,
        RangeOfLine,
        Conflicts,
        NextConflict,
        ConflictOurs,
        ConflictTheirs,
        ConflictAnew,
        Refresh,
        ShowManual,
        ShowKeys,
        ShowReason,
        ShowTour,
        About,
        CommandCount
    };

    explicit WorkbenchActions(QObject *parent);

    [[nodiscard]] QAction *action(Command command) const { return m_actions[command]; }
    /// Of the document: those that need one open.
    void setDocumentOpen(bool open, bool readOnly);
    /// What undo and redo would do; empty texts disable them.
    void setUndoTexts(const QString &undo, const QString &redo);

public Q_SLOTS:
    /// After another language or other keys.
    void retranslate();

private:
    [[nodiscard]] static QString nameOf(Command command);
    void writeUndoTexts();

    QList<QAction *> m_actions;
    QString m_undoText;
    QString m_redoText;
};
