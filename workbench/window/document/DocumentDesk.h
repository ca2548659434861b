#pragma once

#include <workbench/session/document/MappingDocument.h>

#include <QObject>

#include <memory>
#include <optional>

class TargetRoot;
class WorkbenchSettings;

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Opens, makes, saves and closes the workbench's document, with all that has to be asked on the
/// way. GUI thread.
class DocumentDesk : public QObject
{
    Q_OBJECT

public:
    struct Wish
    {
        QString file;
        QString release; ///< source date; empty: the last one
        CatalogRoots roots;
        bool readOnly = false;
        /// False: no dialog; what cannot be decided without asking fails.
        bool mayAsk = true;
    };

    /// Dialogs belong to \a window.
    DocumentDesk(WorkbenchSettings *settings, QWidget *window);
    ~DocumentDesk() override;

    [[nodiscard]] MappingDocument *document() const { return m_document; }

    /// Asks for unsaved changes first, then for the release, a recovery and the catalog's
    /// directories as far as they are needed. False if nothing new is open.
    bool open(const Wish &wish);
    /// Asks for the file first.
    bool openByDialog();
    /// A mapping between two catalogs that the user chooses; its targets and lines are sought with
    /// a progress that can be cancelled.
    bool makeByDialog();
    /// The mapping of the example catalog; it is made at the first time.
    bool openExample();

    /// False if it could not be saved or was called off.
    bool save();
    bool saveAs();
    /// Asks whether to save. False: called off, the document stays.
    bool close();
    /// Asks anew for both directories; true if they changed.
    bool changeRoots();
    /// Directory of the example catalog that comes with the program.
    [[nodiscard]] static QString exampleSource();

Q_SIGNALS:
    /// A document is open and its catalogs are known.
    void ready();
    /// Before the document closes, while it still holds everything.
    void aboutToClose();
    void noted(const QString &text);
    /// The user is to see the lines in conflict.
    void conflictsWanted();

private:
    [[nodiscard]] bool openDocument(const Wish &wish);
    /// False if the document could not be opened once more without the lock.
    [[nodiscard]] bool tellReadOnly(const MappingDocument::OpenRequest &request);
    [[nodiscard]] bool recover(MappingDocument::OpenRequest request);
    /// Nothing if the user called it off.
    [[nodiscard]] std::optional<QString> chooseRelease(const QStringList &dates) const;
    [[nodiscard]] bool findRoots(const Wish &wish);
    [[nodiscard]] bool showsProject(const CatalogRoots &roots) const;
    [[nodiscard]] bool finish(const SaveOutcome &outcome, const SaveOptions &options,
                              const QString &file);
    [[nodiscard]] bool askOver(const SaveOutcome &outcome, SaveOptions options,
                               const QString &file);
    [[nodiscard]] SaveOutcome write(const QString &file, const SaveOptions &options);
    [[nodiscard]] bool mayClose();
    /// Takes over what others wrote into the file, and tells what came and what clashes.
    void merge();
    /// Lines in conflict are listed, and the user says whether to save all the same.
    [[nodiscard]] bool maySave();
    void setUp();
    void leave();

    WorkbenchSettings *const m_settings;
    QWidget *const m_window;
    MappingDocument *const m_document;
    std::unique_ptr<TargetRoot> m_root;
};
