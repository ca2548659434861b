#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcore/erp/ErpNumberLayer.h>
#include <geomcore/linkdb/PLinkDbC.h>
#include <geomcore/project/readProjectVersion.h>
#include <TestPaths.h>
#include <workbench/script/ScriptConsole.h>
#include <workbench/script/ScriptEditor.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/linkdb/LinkDbHost.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/LogWindow.h>
#include <workbench/window/ScriptDesk.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QDialog>
#include <QFile>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QToolButton>
#include <QTreeWidget>

#include <sys/stat.h>

namespace {

const QString project = QStringLiteral("standardparts/screws/iso4014.prj");

} // namespace

/// Scripts in the editor's window, by real keys.
class tst_Scripts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void linesRun();
    void historyByKeys();
    void completionByKeys();
    void historyIsKept();
    void workbenchObject();
    void stoppedByEscape();
    void stoppedByItsButton();
    void editorRuns();
    void editorMarksErrors();
    void editorKeepsFiles();
    void documentsOfALine();
    void erpNumbersInTheTable();
    void fromTheCommandLine_data();
    void fromTheCommandLine();

private:
    [[nodiscard]] ScriptConsole *console() const { return m_fixture->window->scripts()->console(); }
    [[nodiscard]] ConsoleInput *input() const { return console()->input(); }
    void enter(const QString &line) const
    {
        input()->setFocus();
        QTest::keyClicks(input(), line);
        QTest::keyClick(input(), Qt::Key_Return);
    }
    [[nodiscard]] QString lastLine() const { return console()->text().section('\n', -1); }
    [[nodiscard]] PRefPtr<PLinkDbC> connectLinkDb() const;

    std::unique_ptr<WindowFixture> m_fixture;
};

void tst_Scripts::init()
{
    m_fixture = std::make_unique<WindowFixture>();
    m_fixture->open(m_fixture->mappingFile());
    console()->show();
}

void tst_Scripts::cleanup()
{
    m_fixture->closeWindow();
    PLinkDbC::setInstance({});
    m_fixture.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(PMemManager::liveObjects(), 0);
}

PRefPtr<PLinkDbC> tst_Scripts::connectLinkDb() const
{
    PRefPtr<PLinkDbC> linkDb(new PLinkDbC);
    if (!linkDb->open(LinkDbSettings::fromText(m_fixture->directory.filePath("links.db"))))
        qWarning("%s", qPrintable(linkDb->lastError().text));
    PLinkDbC::setInstance(linkDb);
    return linkDb;
}

void tst_Scripts::linesRun()
{
    enter("var n = 20 + 1");
    enter("n * 2");
    QCOMPARE(lastLine(), QString("42"));
    QVERIFY(input()->text().isEmpty());
    enter("print('a %1', mapping.projectCount)");
    QCOMPARE(lastLine(), QString("a %1 49"));
    enter("mapping.project('none')");
    QCOMPARE(lastLine(), QString("> mapping.project('none')"));
    enter("mapping");
    QCOMPARE(lastLine(), QString("[prxReleaseMappingC]"));
    enter("nothing.at.all");
    QCOMPARE(lastLine(), QString("ReferenceError: nothing is not defined"));
    const QString before = console()->text();
    enter("   ");
    QCOMPARE(console()->text(), before);
}

void tst_Scripts::historyByKeys()
{
    enter("1");
    enter("2");
    enter("2");
    QTest::keyClicks(input(), "half");
    const auto press = [this](Qt::Key key) {
        QTest::keyClick(input(), key);
        return input()->text();
    };
    QCOMPARE(press(Qt::Key_Up), QString("2"));
    QCOMPARE(press(Qt::Key_Up), QString("1"));
    QCOMPARE(press(Qt::Key_Up), QString("1"));
    QCOMPARE(press(Qt::Key_Down), QString("2"));
    QCOMPARE(press(Qt::Key_Down), QString("half"));
    QCOMPARE(press(Qt::Key_Down), QString("half"));
}

void tst_Scripts::completionByKeys()
{
    input()->setFocus();
    QTest::keyClicks(input(), "print(mapping.projectA");
    QTest::keyClick(input(), Qt::Key_Tab);
    QCOMPARE(input()->text(), QString("print(mapping.projectAt"));
    input()->clear();
    QTest::keyClicks(input(), "mapping.pr");
    QTest::keyClick(input(), Qt::Key_Tab);
    QCOMPARE(input()->text(), QString("mapping.project"));
    auto *const names = input()->findChild<QCompleter *>();
    QVERIFY(names->popup()->isVisible());
    QTest::keyClick(names->popup(), Qt::Key_Down);
    QTest::keyClick(names->popup(), Qt::Key_Down);
    QTest::keyClick(names->popup(), Qt::Key_Return);
    QCOMPARE(input()->text(), QString("mapping.projectAt"));
    // Without a name Tab goes on.
    input()->clear();
    QTest::keyClick(input(), Qt::Key_Tab);
    QVERIFY(!input()->hasFocus());
}

void tst_Scripts::historyIsKept()
{
    enter("'a' + 1");
    m_fixture->closeWindow();
    m_fixture->makeWindow();
    QCOMPARE(input()->history(), QStringList{"'a' + 1"});
    console()->show();
    QTest::keyClick(input(), Qt::Key_Up);
    QCOMPARE(input()->text(), QString("'a' + 1"));
}

void tst_Scripts::workbenchObject()
{
    enter("workbench.selectProject('" + project + "') && workbench.selectLine(3)");
    QCOMPARE(lastLine(), QString("true"));
    QCOMPARE(m_fixture->window->editor()->currentPath(), project);
    QCOMPARE(m_fixture->window->editor()->currentLine(), 3);
    enter("[workbench.project, workbench.line, workbench.table.lineCount].join()");
    QCOMPARE(lastLine(), project + ",3,13");
    enter("workbench.selectProject('none') || workbench.selectLine(-7)");
    QCOMPARE(lastLine(), QString("false"));
    enter("workbench.window.isVisible");
    QCOMPARE(lastLine(), QString("true"));
    enter("workbench.mappingFile");
    QCOMPARE(lastLine(), m_fixture->mappingFile());
    enter("workbench.log('to %1')");
    QVERIFY(m_fixture->window->log()->text().endsWith("to %1"));
}

void tst_Scripts::stoppedByEscape()
{
    int presses = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, [&] {
        ++presses;
        QTest::keyClick(input(), Qt::Key_A); // is dropped
        if (presses > 3)
            QTest::keyClick(input(), Qt::Key_Escape);
    });
    timer.start(200);
    enter("for (;;) mapping.projectCount");
    QCOMPARE(lastLine(), QString("Das Skript wurde angehalten"));
    QVERIFY(presses > 3);
    QVERIFY(input()->text().isEmpty());
    QVERIFY(!m_fixture->window->scripts()->isRunning());
}

void tst_Scripts::stoppedByItsButton()
{
    auto *const stop = console()->findChild<QToolButton *>("scriptStop");
    QVERIFY(!stop->isEnabled());
    QTimer::singleShot(300, stop, [stop] { QTest::mouseClick(stop, Qt::LeftButton); });
    enter("for (;;) mapping.projectCount");
    QCOMPARE(lastLine(), QString("Das Skript wurde angehalten"));
    QVERIFY(!stop->isEnabled());
}

void tst_Scripts::editorRuns()
{
    QTest::keyClick(m_fixture->window.get(), Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    auto *const editor = m_fixture->window->findChild<ScriptEditor *>();
    QVERIFY(editor && editor->isVisible());
    QTRY_COMPARE(QApplication::activeWindow(), editor);
    auto *const text = editor->findChild<QPlainTextEdit *>("scriptText");
    QTest::keyClicks(text, "print(args.join('|')); exit(3)");
    QTest::keyClicks(editor->findChild<QLineEdit *>("scriptArguments"), "a \"b c\"");
    QTest::mouseClick(editor->findChild<QPushButton *>("runScript"), Qt::LeftButton);
    QCOMPARE(lastLine(), QString("a|b c"));
    QCOMPARE(editor->message(), QString("Fertig, Status 3"));
    // Each run begins anew.
    text->setPlainText("print(typeof kept); var kept = 1");
    for (int i = 0; i < 2; ++i) {
        const qsizetype before = console()->text().size();
        QTest::keyClick(text, Qt::Key_Return, Qt::ControlModifier);
        QTRY_COMPARE(console()->text().mid(before).trimmed(), QString("undefined"));
    }
    QTRY_COMPARE(editor->message(), QString("Fertig"));
    QTest::keyClicks(text, " ");
    ModalScript user;
    QStringList answers;
    user.then([&](QWidget *dialog) {
        user.note(dialog);
        for (const QAbstractButton *const button : qobject_cast<QMessageBox *>(dialog)->buttons())
            answers += button->text();
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    QVERIFY(!editor->close());
    QVERIFY(user.isDone());
    QCOMPARE(answers, QStringList({"&Speichern", "Abbrechen", "&Verwerfen"})); // by their roles
    QCOMPARE(user.seen, QStringList{"scriptUnsaved"});
    text->document()->setModified(false);
    QVERIFY(editor->close());
}

void tst_Scripts::editorMarksErrors()
{
    ScriptEditor *const editor = m_fixture->window->scripts()->showEditor();
    QTRY_COMPARE(QApplication::activeWindow(), editor);
    auto *const text = editor->findChild<QPlainTextEdit *>("scriptText");
    text->setPlainText("let a = 1;\n\nmapping.projectAt(0).stateAt(-1);\n");
    QTest::keyClick(text, Qt::Key_Return, Qt::ControlModifier);
    QTRY_VERIFY2(editor->message().startsWith("Zeile 3: Error: The mapping of "),
                 qPrintable(editor->message()));
    QCOMPARE(text->textCursor().block().blockNumber(), 2);
    QCOMPARE(text->extraSelections().size(), 1);
    QTest::keyClicks(text, "x");
    QCOMPARE(text->extraSelections().size(), 0);
    text->document()->setModified(false);
}

void tst_Scripts::editorKeepsFiles()
{
    const QString file = m_fixture->directory.filePath("s.js");
    QFile out(file);
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write("print('ä')") > 0);
    out.close();
    ScriptEditor *const editor = m_fixture->window->scripts()->showEditor();
    QTRY_COMPARE(QApplication::activeWindow(), editor);
    QVERIFY(editor->openFile(file));
    QCOMPARE(editor->program(), QString("print('ä')"));
    QVERIFY(editor->windowTitle().startsWith("s.js"));
    auto *const text = editor->findChild<QPlainTextEdit *>("scriptText");
    QTest::keyClicks(text, "1;");
    QVERIFY(editor->isWindowModified());
    QTest::keyClick(text, Qt::Key_S, Qt::ControlModifier);
    QTRY_VERIFY(!editor->isWindowModified());
    QVERIFY(out.open(QIODevice::ReadOnly));
    QCOMPARE(out.readAll(), QByteArray("1;print('ä')"));
    const QString pipe = m_fixture->directory.filePath("pipe.js");
    QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
    QVERIFY(!editor->openFile(pipe));
    QVERIFY(editor->message().contains(pipe));
    QCOMPARE(editor->file(), file);
}

void tst_Scripts::documentsOfALine()
{
    WorkbenchSettings::Values values = m_fixture->settings->values();
    values.linkDb = "sqlite:" + m_fixture->directory.filePath("links.db");
    m_fixture->settings->setValues(values);
    QTRY_COMPARE(m_fixture->window->linkDb()->state(), LinkDbHost::Connected);
    const PRefPtr<PLinkDbC> linkDb = PLinkDbC::instance();
    // Of the old release; the new one's project has another version.
    const QString file = WindowFixture::roots().source + u'/' + project;
    for (const QString &version : {QString(readProjectVersion(file)), QString("of another")}) {
        PLinkDbRecordC record = linkDb->createRecord("plm_document");
        record.setValue("PRJ_PATH", project);
        record.setValue("VERSION", version);
        record.setValue("LINE_ID", 3);
        record.setValue("LINE_SUBID", 0);
        record.setValue("PDMID1", version);
        QVERIFY(linkDb->executeInsertStatement(
            linkDb->createSqlStatement("plm_document", record, false)));
    }
    ScriptEditor *const editor = m_fixture->window->scripts()->showEditor();
    QTRY_COMPARE(QApplication::activeWindow(), editor);
    QVERIFY(editor->openFile(VELK_SOURCE_DIR "/examples/scripts/documents-of-line.js"));
    auto *const run = editor->findChild<QPushButton *>("runScript");
    QTest::mouseClick(run, Qt::LeftButton);
    QVERIFY2(editor->message().contains("Select a line first"), qPrintable(editor->message()));
    QTest::keyClicks(editor->findChild<QLineEdit *>("scriptArguments"), project + " 3");
    ModalScript user;
    user.then([&user](QWidget *dialog) {
        user.seen << QString::fromLatin1(dialog->metaObject()->className());
        const auto *const list = dialog->findChild<QTreeWidget *>("tvDocuments");
        for (int row = 0; row < list->topLevelItemCount(); ++row)
            user.seen << list->topLevelItem(row)->text(0);
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    QTest::mouseClick(run, Qt::LeftButton);
    QVERIFY(user.isDone());
    QCOMPARE(user.seen, (QStringList{"DocumentListDialogC", readProjectVersion(file)}));
    QCOMPARE(editor->message(), QString("Fertig"));
    QCOMPARE(lastLine(), QString("closed with 0"));
}

void tst_Scripts::erpNumbersInTheTable()
{
    const PRefPtr<PLinkDbC> linkDb = connectLinkDb();
    PLinkDbRecordC record = linkDb->createRecord("plm_document");
    record.setValue("PRJ_PATH", project);
    record.setValue("LINE_ID", 3);
    record.setValue("PDMID1", "4711");
    QVERIFY(
        linkDb->executeInsertStatement(linkDb->createSqlStatement("plm_document", record, false)));
    EditorArea *const editor = m_fixture->window->editor();
    QVERIFY(editor->selectProject(project));
    const auto shown = [editor] {
        const VKTab::ContentRef table = editor->sourceTable();
        const VKTab::Var var = table.getVar(QString::fromLatin1(ErpNumberLayer::columnName));
        return table.getLine(3, false).getValue(var, {}).toString();
    };
    QTRY_COMPARE(shown(), QString("4711"));
    m_fixture->press(Qt::Key_F5);
    QTRY_COMPARE(shown(), QString("4711"));
}

void tst_Scripts::fromTheCommandLine_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("err");
    QTest::newRow("done") << QByteArray("print(args.join('|'), workbench.window.isVisible)") << 0
                          << "a|-b true\n"
                          << "";
    QTest::newRow("status") << QByteArray("exit(7)") << 7 << ""
                            << "";
    QTest::newRow("fails") << QByteArray("\nthrow new Error('no')") << 6 << ""
                           << ":2: Error: no\n";
    QTest::newRow("mapping") << QByteArray("print(mapping.projectCount)") << 0 << "49\n"
                             << "";
    QTest::newRow("output") << QByteArray("output.write('x')") << 0 << ""
                            << "";
}

void tst_Scripts::fromTheCommandLine()
{
    QFETCH(QByteArray, program);
    QFETCH(QString, err);
    const QString script = m_fixture->directory.filePath("s.js");
    QFile file(script);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(program) > 0);
    file.close();
    const QString mapping = m_fixture->mappingFile("other.json");
    const CatalogRoots roots = WindowFixture::roots();
    QProcess process;
    process.start(VELK_BINARY_DIR "/bin/velkworkbench",
                  {"--settings", m_fixture->directory.filePath("set"), "--mapping", mapping,
                   "--source", roots.source, "--target", roots.target, "--script", script,
                   "--output", m_fixture->directory.filePath("o.txt"), "a", "--", "-b"});
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    const QString said = QString::fromUtf8(process.readAllStandardError());
    QVERIFY2(said.contains(err), qPrintable(said));
    QTEST(process.exitCode(), "status");
    QTEST(QString::fromUtf8(process.readAllStandardOutput()), "out");
    QCOMPARE(QFile::exists(m_fixture->directory.filePath("o.txt")), process.exitCode() != 6);
}

QTEST_MAIN(tst_Scripts)
#include "tst_Scripts.moc"
