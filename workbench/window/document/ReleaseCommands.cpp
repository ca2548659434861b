#include "ReleaseCommands.h"

#include "ImportDialog.h"

#include <core/files/DurableFile.h>
#include <core/message/PMessage.h>
#include <core/progress/PProgress.h>
#include <core/text/countText.h>
#include <gui/print/PdfPages.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <release/export/MappingTable.h>
#include <release/report/ReportHistory.h>
#include <release/report/ReportHtml.h>
#include <release/share/SharedMapping.h>
#include <workbench/review/ReportTexts.h>
#include <workbench/session/common/BackgroundWork.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/start/EditorLanguages.h>
#include <workbench/window/message/Question.h>

#include <QFileDialog>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>

#include <atomic>

using VelkRelease::FolderImport;

namespace {

/// Of each list on paper: more would take longer to be laid out than anybody reads.
constexpr int PaperRows = 2000;

/// A progress of a release's work, which tells the work when it is cancelled.
class WorkProgress
{
public:
    WorkProgress(const QString &text, int steps)
        : m_steps(steps)
    {
        m_display.activate(PProgressObserverBase::Thread);
        m_progress.emplace(0, steps, 1, true, false);
        m_progress->setText(text);
    }
    ~WorkProgress()
    {
        m_progress.reset();
        m_display.deactivate();
    }
    WorkProgress(const WorkProgress &) = delete;
    WorkProgress &operator=(const WorkProgress &) = delete;

    void advanceTo(int steps)
    {
        while (m_progress->count() < qMin(steps, m_steps))
            m_progress->nextStep();
        m_cancelled = m_progress->isCanceled();
    }
    [[nodiscard]] const std::atomic<bool> &cancelled() const { return m_cancelled; }

private:
    const int m_steps;
    DefaultObserverDelegate m_display;
    std::optional<PProgress> m_progress;
    std::atomic<bool> m_cancelled = false;
};

void tellErrors(const QStringList &errors)
{
    for (const QString &error : errors)
        PMessage::Show(error, PMsgDlgMode::Warning);
}

} // namespace

ReleaseCommands::ReleaseCommands(MappingDocument *document, QSettings *store, QWidget *window)
    : QObject(window)
    , m_document(document)
    , m_store(store)
    , m_window(window)
{
}

void ReleaseCommands::importByDialog()
{
    ImportDialog dialog(m_store, m_window);
    if (dialog.exec() == QDialog::Accepted)
        importFolder(dialog.from(), dialog.into());
}

bool ReleaseCommands::importFolder(const QString &from, const QString &into)
{
    VelkRelease::ImportOptions options;
    options.root = into;
    options.date = QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
    std::optional<WorkProgress> progress;
    FolderImport import(
        from, options,
        {.error = [](const QString &text) { PMessage::Show(text, PMsgDlgMode::Warning); },
         .table =
             [](const QString &name, const VelkRelease::TableImport &table) {
                 for (const QString &note : table.notes())
                     PMessage::LogToWindow(name + QStringLiteral(": ") + note);
             },
         .progress =
             [&](int done, int count) {
                 if (!progress)
                     progress.emplace(tr("Tabellen werden importiert"), count);
                 progress->advanceTo(done);
                 return !progress->cancelled();
             }});
    const FolderImport::Outcome outcome = import.run();
    progress.reset();
    tellImport(outcome, import);
    return outcome == FolderImport::Outcome::Done;
}

void ReleaseCommands::tellImport(FolderImport::Outcome outcome, const FolderImport &import)
{
    const FolderImport::Counts &counts = import.counts();
    const QString tables = tr("%Ln Tabelle(n)", nullptr, counts.tables());
    const QString summary = tr("%1 mit %Ln Zeile(n)", nullptr, int(counts.lines)).arg(tables) +
                            QStringLiteral(": ") +
                            tr("%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert")
                                .arg(countText(counts.created), countText(counts.changed),
                                     countText(counts.unchanged), countText(counts.failed));
    for (const QString &project : import.leftOvers())
        PMessage::LogToWindow(
            tr("%1 hat keine CSV-Datei mehr und bleibt, wie es ist").arg(project));
    if (outcome == FolderImport::Outcome::Empty)
        return Q_EMIT noted(tr("In dem Ordner ist keine CSV-Datei; es wurde nichts importiert"));
    PMessage::LogToWindow(summary);
    Q_EMIT noted(outcome == FolderImport::Outcome::Cancelled ? tr("Abgebrochen: %1").arg(summary)
                 : outcome == FolderImport::Outcome::Unwritable
                     ? tr("Nicht alles geschrieben: %1").arg(summary)
                     : summary);
}

QString ReleaseCommands::askFile(const char *name, const QString &title, const QString &filter,
                                 const QString &ending)
{
    const QFileInfo mapping(m_document->mappingFile());
    const QString folder =
        m_store->value(QLatin1String(name) + QStringLiteral("/folder"), mapping.path()).toString();
    QFileDialog dialog(m_window, title, folder, filter);
    dialog.setObjectName(QLatin1String(name) + QStringLiteral("FileDialog"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(ending);
    dialog.selectFile(mapping.baseName() + u'.' + ending);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    QString file = dialog.selectedFiles().value(0);
    m_store->setValue(QLatin1String(name) + QStringLiteral("/folder"), QFileInfo(file).path());
    return file;
}

/// Before the work: whoever waited for it is not to hear that there is no such folder.
bool ReleaseCommands::begin(QSaveFile &file)
{
    QString cause;
    return DurableFile::open(file, &cause) || tellUnwritable(file.fileName(), cause);
}

bool ReleaseCommands::finish(QSaveFile &file, const QByteArray &bytes)
{
    QString cause = file.errorString();
    if (file.write(bytes) == bytes.size() && DurableFile::commit(file, &cause))
        return true;
    return tellUnwritable(file.fileName(), cause);
}

/// False.
bool ReleaseCommands::tellUnwritable(const QString &file, const QString &cause)
{
    Question::tell(m_window, tr("%1 kann nicht geschrieben werden.").arg(file), cause);
    return false;
}

void ReleaseCommands::exportByDialog()
{
    const QString file = askFile("Export", tr("Zeilen exportieren"),
                                 tr("Tabellen (*.csv);;Alle Dateien (*)"), QStringLiteral("csv"));
    if (!file.isEmpty())
        exportLines(file);
}

bool ReleaseCommands::exportLines(const QString &file)
{
    QSaveFile output(file);
    if (!begin(output))
        return false;
    const ReleaseMappingC release = m_document->release();
    const QString sourceRoot = m_document->catalogRoots().source;
    QStringList errors;
    std::optional<VelkRelease::LineReasonColumn> reasons;
    {
        WorkProgress progress(tr("Zeilen werden exportiert"), release.countMappings());
        reasons = VelkRelease::lineReasons(release, sourceRoot, errors, progress.cancelled(),
                                           [&](int done) { progress.advanceTo(done); });
    }
    if (!reasons) {
        Q_EMIT noted(tr("Abgebrochen, es wurde nichts exportiert"));
        return false;
    }
    tellErrors(errors);
    if (!finish(output, VelkRelease::mappingTable(release, &*reasons)))
        return false;
    Q_EMIT noted(
        tr("%Ln Zeile(n) nach %1 exportiert", nullptr, m_document->counts().lines()).arg(file));
    return true;
}

void ReleaseCommands::reportByDialog()
{
    const QString file = askFile("Report", tr("Bericht schreiben"),
                                 tr("PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)"),
                                 QStringLiteral("pdf"));
    if (!file.isEmpty())
        writeReport(file);
}

std::optional<VelkRelease::ReleaseReport> ReleaseCommands::makeReport() const
{
    const ReleaseMappingC release = m_document->release();
    constexpr int Parts = 3;
    WorkProgress progress(tr("Bericht wird erstellt"), Parts * release.countMappings());
    auto report = VelkRelease::makeReleaseReport(
        release,
        {.sourceRoot = m_document->catalogRoots().source,
         .isOthers = VelkRelease::SharedMapping(m_document->mappingFile()).isInOthersFolder(),
         .cancelled = &progress.cancelled()},
        [&](int done, int /*count*/) { progress.advanceTo(done); });
    if (!report)
        return std::nullopt;
    report->name = QFileInfo(m_document->mappingFile()).fileName();
    report->made = QDateTime::currentDateTimeUtc();
    QString error;
    if (!addHistory(*report, release, m_document->mappingFile(), &error))
        report->errors << error;
    return report;
}

std::optional<QString> ReleaseCommands::reportPage(int mostRows)
{
    const auto report = makeReport();
    if (!report)
        return std::nullopt;
    tellErrors(report->errors);
    VelkRelease::ReportForm form = ReportTexts::form(EditorLanguages::localeOf(m_language));
    form.mostRows = mostRows;
    return reportHtml(*report, form);
}

std::optional<QString> ReleaseCommands::reportForPaper()
{
    auto page = reportPage(PaperRows);
    if (!page)
        Q_EMIT noted(tr("Abgebrochen, es wurde kein Bericht erstellt"));
    return page;
}

PageHead ReleaseCommands::pageHead(const QStringList &more) const
{
    const ReleaseMappingC release = m_document->release();
    const VelkRelease::ReportForm form = ReportTexts::form(EditorLanguages::localeOf(m_language));
    const QStringList texts{QFileInfo(m_document->mappingFile()).fileName(),
                            form.text(VelkRelease::ReportText::Releases)
                                .arg(release.getSourceDate(), release.getTargetDate())};
    return {(texts + more).join(QStringLiteral(" \u2013 ")), tr("Seite %1 von %2")};
}

bool ReleaseCommands::writeReport(const QString &file)
{
    QSaveFile output(file);
    if (!begin(output))
        return false;
    const bool isPaper = file.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
    const auto page = reportPage(isPaper ? PaperRows : -1);
    if (!page) {
        Q_EMIT noted(tr("Abgebrochen, es wurde kein Bericht geschrieben"));
        return false;
    }
    QByteArray bytes = page->toUtf8();
    if (isPaper) {
        const QString name = QFileInfo(m_document->mappingFile()).fileName();
        BackgroundWork::run(tr("Seiten werden gesetzt"),
                            [&] { bytes = PdfPages::ofHtml(*page, name, pageHead()); });
    }
    if (!finish(output, bytes))
        return false;
    Q_EMIT noted(tr("Bericht nach %1 geschrieben").arg(file));
    return true;
}
