#include "ModalScript.h"
#include "WindowFixture.h"

#include <core/files/EditLock.h>
#include <core/json/PJsonValue.h>
#include <core/progress/PProgress.h>
#include <core/text/countText.h>
#include <geomcore/records/MappingFile.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <gui/progress/ProgressDisplayI.h>
#include <release/export/MappingTable.h>
#include <workbench/review/ReportTexts.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/document/ReleaseCommands.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/LogWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAction>
#include <QComboBox>
#include <QDirIterator>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QSet>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

namespace {

/// Cancels all work as soon as it is shown.
class Cancelling : public ProgressDisplayI
{
public:
    void showProgress(const QList<PProgressInfo> &running) override
    {
        for (const PProgressInfo &info : running) {
            if (info.cancel)
                info.cancel->request();
        }
    }
    [[nodiscard]] bool acceptsInput(const QWidget *) const override { return false; }
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

} // namespace

class tst_ReleaseCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("CUPS_SERVER", "/no such socket");
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }
    void everyTextIsThere();
    void menu();
    void report();
    void tellsOfEveryTable();
    void paper();
    void reportByMenu();
    void printsTheTable();
    void printsTheReport();
    void nothingToPrint();
    void paperThatCannotBeWritten();
    void exportsLines();
    void cancelled_data();
    void cancelled();
    void unwritable();
    void importsAFolder();
    void importFaults();
    void importByMenu();
};

/// Answers the preview and the dialog behind its print button, which always offers a file.
void printInto(ModalScript &script, const QString &file, const std::function<void()> &look = {})
{
    script.then([&script, look](QWidget *dialog) {
        script.note(dialog);
        if (look)
            look();
        const QList<QAction *> actions = dialog->findChildren<QAction *>();
        const auto print = std::ranges::find_if(actions, [](const QAction *action) {
            return action->objectName() == "printAction" || action->text() == "Print";
        });
        QVERIFY(print != actions.end());
        // The next dialog is answered only behind this one's answer.
        QTimer::singleShot(0, *print, &QAction::trigger);
    });
    script.then([file](QWidget *dialog) {
        auto *const print = qobject_cast<QPrintDialog *>(dialog);
        QVERIFY(print);
        auto *const printers = print->findChild<QComboBox *>("printers");
        printers->setCurrentIndex(printers->findText("PDF", Qt::MatchContains));
        print->findChild<QLineEdit *>("filename")->setText(file);
        static_cast<QDialog *>(print)->accept();
    });
}

/// Each number of the report has a text of its own, in both languages.
void tst_ReleaseCommands::everyTextIsThere()
{
    const VelkRelease::ReportForm form = ReportTexts::form(QLocale("de"));
    QSet<QString> texts;
    for (int i = 0; i < int(VelkRelease::ReportText::Count); ++i)
        texts << form.text(VelkRelease::ReportText(i));
    QCOMPARE(texts.size(), int(VelkRelease::ReportText::Count));
    for (int i = 0; i < VelkRelease::OpenReasonCount; ++i)
        texts << form.reason(VelkRelease::OpenReason(i));
    QCOMPARE(texts.size(), int(VelkRelease::ReportText::Count) + VelkRelease::OpenReasonCount);
    QVERIFY(!texts.contains(QString()));
    QCOMPARE(form.text(VelkRelease::ReportText::Title), "Mapping-Bericht: %1");
    QCOMPARE(form.text(VelkRelease::ReportText::More), "und %1 weitere");
    QCOMPARE(form.number(12345), "12.345");
    QCOMPARE(form.reason(VelkRelease::OpenReason::Unconfirmed), "gleich, nur nicht bestätigt");
}

void tst_ReleaseCommands::menu()
{
    WindowFixture fixture;
    QVERIFY(fixture.action("fileImport")->isEnabled());
    QVERIFY(!fixture.action("fileExport")->isEnabled());
    QVERIFY(!fixture.action("fileReport")->isEnabled());
    fixture.open(fixture.mappingFile());
    for (const char *name : {"fileImport", "fileExport", "fileReport"}) {
        QVERIFY(fixture.action(name)->isEnabled());
        QVERIFY(fixture.action(name)->text().contains('&'));
    }
}

void tst_ReleaseCommands::report()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    ReleaseCommands *const commands = fixture.window->releases();
    commands->setLanguage("de");
    const QSignalSpy noted(commands, &ReleaseCommands::noted);
    MappingDocument *const document = fixture.window->desk()->document();
    PrjMappingC mapping = document->release().mappingAt(0);
    for (int i = 0; i < mapping.countTargets(); ++i)
        mapping.changeTarget(i, [](PrjMappingTargetC &target) { target.removeLineId(1); });
    mapping.changeTarget(0, [](PrjMappingTargetC &target) {
        target.addLineId(1, 1, PRJMAPPING::Verified, QString());
    });
    document->beginStep("<Schritt & Tat>");
    document->updateMapping(mapping);
    document->endStep();
    PJsonValue note(PJsonValue::Object);
    note[QStringLiteral("judge")] = PJsonValue(QStringLiteral("anna"));
    note[QStringLiteral("lines")] = PJsonValue::fromInt(345);
    note[QStringLiteral("judged")] = PJsonValue::fromInt(59);
    note[QStringLiteral("right")] = PJsonValue::fromInt(59);
    note[QStringLiteral("bound")] = PJsonValue(QStringLiteral("0.049500"));
    document->writeNote("sample", note);
    const QString file = fixture.directory.filePath("report.html");
    QVERIFY(commands->writeReport(file));
    QCOMPARE(noted.last().first().toString(), "Bericht nach " + file + " geschrieben");
    const QString html = QString::fromUtf8(contentOf(file));
    const LineCounts &counts = document->counts();
    QVERIFY(html.contains("<title>Mapping-Bericht: m.json</title>"));
    QVERIFY(html.contains("<html lang=\"de\">"));
    QVERIFY(html.contains(QString("<td>Zeilen</td><td class=\"n\" align=\"right\">%1</td>")
                              .arg(countText(counts.lines()))));
    QVERIFY(html.contains("standardparts/screws/din933.prj:"));
    QVERIFY(html.contains("zu unähnlich"));
    // Each open line is in one row of these two lists, whose sums are said.
    const auto sumOf = [&html](const QString &head) {
        const qsizetype list = html.indexOf("<h2>" + head + "</h2>");
        const QString row = "<tr><td>zusammen</td><td class=\"n\" align=\"right\">";
        const qsizetype sum = html.indexOf(row, list) + row.size();
        return html.mid(sum, html.indexOf('<', sum) - sum).toInt();
    };
    QCOMPARE(sumOf("Worin sich offene Zeilen von ihren Vorschlägen unterscheiden"),
             counts.unverified());
    QCOMPARE(sumOf("Offene Zeilen ohne Nachfolger"), counts.unmapped());
    QVERIFY(counts.unverified() > 0 && counts.unmapped() > 0);
    QVERIFY(html.contains("keine ähnliche Zeile: "));
    QVERIFY(html.contains("standardparts/plugs/din908.prj (Tabelle nicht lesbar)"));
    QVERIFY(html.contains("<td>" + EditLock::self().user.toHtmlEscaped() +
                          "</td><td>&lt;Schritt &amp; Tat&gt;</td>"));
    QVERIFY(html.contains("<td>anna</td><td class=\"n\" align=\"right\">345</td>"));
    // Shares are written as the language does.
    QVERIFY(html.contains(">5,0 %<"));
    QVERIFY(html.contains(">99 %<"));
    QVERIFY(!html.contains(">1.00<"));
    // Long tables go on over several pages, with their heads on each.
    QTextDocument page;
    page.setHtml(html);
    int tables = 0;
    for (QTextFrame *const frame : page.rootFrame()->childFrames()) {
        const auto *const table = qobject_cast<QTextTable *>(frame);
        if (table && table->columns() > 2) {
            QCOMPARE(table->format().headerRowCount(), 1);
            ++tables;
        }
    }
    QVERIFY(tables > 4);
}

void tst_ReleaseCommands::tellsOfEveryTable()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    // A catalog with two tables that cannot be read as they are described.
    const QString root = fixture.directory.filePath("old");
    QDirIterator files(WindowFixture::roots().source, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        write(root + path.mid(WindowFixture::roots().source.size()), contentOf(path));
    }
    for (const char *const table : {"pins/iso8734", "screws/din933"})
        write(root + "/standardparts/" + table + ".csv", "a,b\n1,2\n");
    fixture.window->desk()->document()->setCatalogRoots({root, WindowFixture::roots().target});
    const qsizetype before = fixture.window->log()->text().size();
    QVERIFY(fixture.window->releases()->writeReport(fixture.directory.filePath("report.html")));
    const QString told = fixture.window->log()->text().mid(before);
    QVERIFY2(told.contains("iso8734.csv"), qPrintable(told));
    QVERIFY2(told.contains("din933.csv"), qPrintable(told));
}

void tst_ReleaseCommands::paper()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    const QString file = fixture.directory.filePath("report.PDF");
    QVERIFY(fixture.window->releases()->writeReport(file));
    const QByteArray bytes = contentOf(file);
    QVERIFY(bytes.startsWith("%PDF-"));
    QVERIFY(bytes.trimmed().endsWith("%%EOF"));
    QVERIFY(bytes.count("/Type /Page\n") > 5);
}

void tst_ReleaseCommands::reportByMenu()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    const QString file = fixture.directory.filePath("named.html");
    ModalScript script;
    script.then([&](QWidget *dialog) {
        script.note(dialog);
        auto *const files = qobject_cast<QFileDialog *>(dialog);
        QVERIFY(files);
        QCOMPARE(QFileInfo(files->selectedFiles().value(0)).fileName(), "m.pdf");
        files->selectFile(file);
        static_cast<QDialog *>(files)->accept();
    });
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    fixture.action("fileReport")->trigger();
    QCOMPARE(script.seen, QStringList{"ReportFileDialog"});
    QVERIFY(contentOf(file).startsWith("<!DOCTYPE html>"));
    QCOMPARE(fixture.settings->store()->value("Report/folder").toString(), QFileInfo(file).path());
}

void tst_ReleaseCommands::printsTheTable()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    QVERIFY(fixture.window->editor()->selectProject("standardparts/screws/din933.prj"));
    const QString file = fixture.directory.filePath("table.pdf");
    ModalScript script;
    printInto(script, file, [&] {
        const auto *const preview = QApplication::activeModalWidget();
        QCOMPARE(preview->windowTitle(), "Drucken: standardparts/screws/din933.prj");
        const auto *const pages = preview->findChild<QPrintPreviewWidget *>();
        QTRY_VERIFY(pages->pageCount() > 0);
        QCOMPARE(pages->orientation(), QPageLayout::Landscape);
    });
    fixture.press(Qt::Key_P, Qt::ControlModifier);
    QCOMPARE(script.seen, QStringList{"PrintPreview"});
    QVERIFY(script.isDone());
    const QByteArray bytes = contentOf(file);
    QVERIFY(bytes.startsWith("%PDF-"));
    QVERIFY(bytes.count("/Type /Page\n") >= 1);
    QCOMPARE(fixture.window->status()->note(),
             "standardparts/screws/din933.prj nach " + file + " gedruckt");
}

void tst_ReleaseCommands::printsTheReport()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    const QString file = fixture.directory.filePath("report.pdf");
    int pages = 0;
    ModalScript script;
    printInto(script, file, [&] {
        const auto *const preview =
            QApplication::activeModalWidget()->findChild<QPrintPreviewWidget *>();
        QTRY_VERIFY(preview->pageCount() > 5);
        QCOMPARE(preview->orientation(), QPageLayout::Portrait);
        pages = preview->pageCount();
    });
    fixture.action("filePrintReport")->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(contentOf(file).count("/Type /Page\n"), pages);
    const PageHead head = fixture.window->releases()->pageHead({"more"});
    QVERIFY2(head.text.startsWith("m.json – ") && head.text.endsWith(" – more"),
             qPrintable(head.text));
    QCOMPARE(head.number, "Seite %1 von %2");
}

void tst_ReleaseCommands::nothingToPrint()
{
    WindowFixture fixture;
    QVERIFY(!fixture.action("filePrint")->isEnabled());
    QVERIFY(!fixture.action("filePrintReport")->isEnabled());
    // A table that cannot be read.
    fixture.open(fixture.mappingFile());
    QVERIFY(fixture.window->editor()->selectProject("standardparts/plugs/din908.prj"));
    fixture.action("filePrint")->trigger();
    QCOMPARE(fixture.window->status()->note(),
             "Es ist keine Tabelle zu sehen, die gedruckt werden kann");
}

void tst_ReleaseCommands::paperThatCannotBeWritten()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    QVERIFY(fixture.window->editor()->selectProject("standardparts/screws/din933.prj"));
    const QString file = fixture.directory.filePath("folder.pdf");
    QVERIFY(QDir().mkpath(file));
    ModalScript script;
    script.then([&](QWidget *dialog) {
        auto *const preview = qobject_cast<QPrintPreviewDialog *>(dialog);
        QVERIFY(preview);
        preview->printer()->setOutputFileName(file + "/no such folder/table.pdf");
        const auto *const pages = preview->findChild<QPrintPreviewWidget *>();
        QVERIFY(pages);
        QMetaObject::invokeMethod(const_cast<QPrintPreviewWidget *>(pages), "print");
        preview->accept();
    });
    script.then([&](QWidget *dialog) {
        script.note(dialog);
        dialog->close();
    });
    fixture.action("filePrint")->trigger();
    QVERIFY(script.isDone());
    QVERIFY2(script.texts.join(' ').contains("konnte nicht gedruckt werden"),
             qPrintable(script.texts.join(' ')));
}

void tst_ReleaseCommands::exportsLines()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    const QString file = fixture.directory.filePath("lines.csv");
    QVERIFY(fixture.window->releases()->exportLines(file));
    const QList<QByteArray> rows = contentOf(file).split('\n');
    QCOMPARE(rows.first(), "source_path,source_version,source_line,target_path,target_line,state,"
                           "conflict,extended,probability,reason");
    const MappingDocument *const document = fixture.window->desk()->document();
    QCOMPARE(rows.size() - 2, document->counts().lines());
    // What stands before the reasons is what the release says without them.
    const QList<QByteArray> plain = VelkRelease::mappingTable(document->release()).split('\n');
    QCOMPARE(plain.size(), rows.size());
    for (int i = 0; i < plain.size(); ++i)
        QVERIFY(rows[i].startsWith(plain[i]));
}

void tst_ReleaseCommands::cancelled_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("report") << "report.html";
    QTest::newRow("export") << "lines.csv";
    QTest::newRow("import") << "import";
}

void tst_ReleaseCommands::cancelled()
{
    QFETCH(QString, what);
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    ReleaseCommands *const commands = fixture.window->releases();
    const QSignalSpy noted(commands, &ReleaseCommands::noted);
    const QString place = fixture.directory.filePath(what);
    DefaultObserverDelegate::setTimes(0, 0);
    DefaultObserverDelegate::setDisplay(std::make_shared<Cancelling>());
    PProgress::setInterval(std::chrono::milliseconds(0));
    if (what == "import")
        QVERIFY(!commands->importFolder(WindowFixture::roots().source, place));
    else
        QVERIFY(
            !(what.endsWith("csv") ? commands->exportLines(place) : commands->writeReport(place)));
    PProgress::setInterval(std::chrono::milliseconds(50));
    DefaultObserverDelegate::setDisplay(nullptr);
    DefaultObserverDelegate::setTimes(500, 100);
    QVERIFY2(noted.last().first().toString().startsWith("Abgebrochen"),
             qPrintable(noted.last().first().toString()));
    if (what != "import")
        QVERIFY(!QFile::exists(place));
}

void tst_ReleaseCommands::unwritable()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    for (const char *name : {"no/report.html", "no/report.pdf", "no/lines.csv"}) {
        const QString file = fixture.directory.filePath(name);
        ModalScript script;
        QString told;
        script.then([&](QWidget *dialog) {
            told = dialog->property("text").toString();
            dialog->close();
        });
        QVERIFY(!(file.endsWith("csv") ? fixture.window->releases()->exportLines(file)
                                       : fixture.window->releases()->writeReport(file)));
        QCOMPARE(told, file + " kann nicht geschrieben werden.");
    }
}

void tst_ReleaseCommands::importsAFolder()
{
    WindowFixture fixture;
    ReleaseCommands *const commands = fixture.window->releases();
    const QSignalSpy noted(commands, &ReleaseCommands::noted);
    const QString from = fixture.directory.filePath("tables");
    const QString into = fixture.directory.filePath("new/cat");
    QVERIFY(QDir().mkpath(QFileInfo(into).path()));
    write(from + "/screws/a.csv", "Name,D\nB8,8\nB9,9\n");
    write(from + "/b.csv", "Name,D\nN8,8\n");
    QVERIFY(commands->importFolder(from, into));
    QCOMPARE(noted.last().first().toString(),
             "2 Tabellen mit 3 Zeilen: 2 neu, 0 geändert, 0 unverändert, 0 nicht importiert");
    QVERIFY(QFile::exists(into + "/screws/a.prj") && QFile::exists(into + "/b.json"));
    QVERIFY(QFile::remove(from + "/b.csv"));
    write(from + "/screws/a.csv", "Name,D\nB8,8\nB9,10\n");
    QVERIFY(commands->importFolder(from, into));
    QCOMPARE(noted.last().first().toString(),
             "1 Tabelle mit 2 Zeilen: 0 neu, 1 geändert, 0 unverändert, 0 nicht importiert");
    QVERIFY(fixture.window->log()->text().contains("b.prj hat keine CSV-Datei mehr"));
    QVERIFY(QFile::exists(into + "/b.prj"));
}

void tst_ReleaseCommands::importFaults()
{
    WindowFixture fixture;
    ReleaseCommands *const commands = fixture.window->releases();
    const QSignalSpy noted(commands, &ReleaseCommands::noted);
    const QString from = fixture.directory.filePath("tables");
    const QString into = fixture.directory.filePath("cat");
    QVERIFY(QDir().mkpath(from));
    QVERIFY(!commands->importFolder(from, into));
    QVERIFY(noted.last().first().toString().contains("keine CSV-Datei"));
    write(from + "/good.csv", "Name,D\nB8,8\n");
    write(from + "/torn.csv", "Name,D\n\"B8,8\n");
    QVERIFY(!commands->importFolder(from, into));
    QCOMPARE(noted.last().first().toString(),
             "1 Tabelle mit 1 Zeile: 1 neu, 0 geändert, 0 unverändert, 1 nicht importiert");
    QVERIFY(fixture.window->log()->text().contains("torn.csv"));
    // Where the catalog should be stands a file.
    write(fixture.directory.filePath("file"), "x");
    QVERIFY(!commands->importFolder(from, fixture.directory.filePath("file")));
    QVERIFY2(noted.last().first().toString().startsWith("Nicht alles geschrieben"),
             qPrintable(noted.last().first().toString()));
}

void tst_ReleaseCommands::importByMenu()
{
    WindowFixture fixture;
    const QString from = fixture.directory.filePath("tables");
    const QString into = fixture.directory.filePath("cat");
    write(from + "/a.csv", "Name,D\nB8,8\n");
    ModalScript script;
    script.then([&](QWidget *dialog) {
        script.note(dialog);
        const auto line = [dialog](const char *name) {
            return dialog->findChild<QLineEdit *>(name);
        };
        auto *const ok = dialog->findChild<QPushButton *>("ok");
        auto *const problem = dialog->findChild<QLabel *>("problem");
        QVERIFY(!ok->isEnabled() && !problem->text().isEmpty());
        QTest::keyClicks(line("importFrom"), from);
        QVERIFY(!ok->isEnabled());
        QTest::keyClicks(line("importInto"), from + "/cat");
        QCOMPARE(problem->text(), "Ein Verzeichnis liegt im anderen.");
        QVERIFY(!ok->isEnabled());
        line("importInto")->clear();
        QTest::keyClicks(line("importInto"), into);
        QVERIFY(ok->isEnabled() && problem->text().isEmpty());
        QTest::mouseClick(ok, Qt::LeftButton);
    });
    fixture.action("fileImport")->trigger();
    QCOMPARE(script.seen, QStringList{"ImportDialog"});
    QVERIFY(QFile::exists(into + "/a.prj"));
    QCOMPARE(fixture.settings->store()->value("Import/into").toString(), into);
}

QTEST_MAIN(tst_ReleaseCommands)
#include "tst_ReleaseCommands.moc"
