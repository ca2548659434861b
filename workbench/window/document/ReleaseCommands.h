#pragma once

#include <gui/print/PrintedPages.h>
#include <release/import/FolderImport.h>
#include <release/report/ReleaseReport.h>

#include <QObject>

#include <optional>

class MappingDocument;

QT_BEGIN_NAMESPACE
class QSaveFile;
class QSettings;
class QWidget;
QT_END_NAMESPACE

/// What goes into catalogs and comes out of a release as a whole: tables are imported, the lines
/// are exported as a table, a report tells how far the release is. With a progress that can be
/// cancelled; faults of single tables go to the log window. GUI thread.
class ReleaseCommands : public QObject
{
    Q_OBJECT

public:
    /// All must live as long; dialogs belong to \a window, \a store remembers folders and files.
    ReleaseCommands(MappingDocument *document, QSettings *store, QWidget *window);

    /// These ask where from and where to.
    void importByDialog();
    void exportByDialog();
    void reportByDialog();

    /// Both folders are absolute; \a into is the catalog's own folder. False if nothing, or not
    /// all, was imported.
    bool importFolder(const QString &from, const QString &into);
    /// A CSV file, with what speaks for each proposal. False if there is none now.
    bool exportLines(const QString &file);
    /// A PDF file for a name that ends with ".pdf", else HTML. \a language is that of the editor.
    /// False if there is none now.
    bool writeReport(const QString &file);
    /// A page of HTML with lists as long as anybody reads on paper. Nothing if it was cancelled.
    [[nodiscard]] std::optional<QString> reportForPaper();
    /// What stands above each page on paper: mapping and release, then \a more.
    [[nodiscard]] PageHead pageHead(const QStringList &more = {}) const;
    void setLanguage(const QString &language) { m_language = language; }

Q_SIGNALS:
    /// One sentence on what was done or not.
    void noted(const QString &text);

private:
    [[nodiscard]] QString askFile(const char *name, const QString &title, const QString &filter,
                                  const QString &ending);
    [[nodiscard]] bool begin(QSaveFile &file);
    [[nodiscard]] bool finish(QSaveFile &file, const QByteArray &bytes);
    [[nodiscard]] bool tellUnwritable(const QString &file, const QString &cause);
    [[nodiscard]] std::optional<VelkRelease::ReleaseReport> makeReport() const;
    [[nodiscard]] std::optional<QString> reportPage(int mostRows);
    void tellImport(VelkRelease::FolderImport::Outcome outcome,
                    const VelkRelease::FolderImport &import);

    MappingDocument *const m_document;
    QSettings *const m_store;
    QWidget *const m_window;
    QString m_language = QStringLiteral("en");
};
