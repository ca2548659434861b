#include "ModalScript.h"
#include "WindowFixture.h"

#include <core/message/PMessage.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <workbench/session/MappingDocument.h>
#include <workbench/window/DocumentDesk.h>
#include <workbench/window/EditorArea.h>
#include <workbench/window/LineCommands.h>
#include <workbench/window/LogWindow.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/StatusArea.h>
#include <workbench/window/TourOverlay.h>
#include <workbench/window/WorkbenchSettings.h>

#include <QAction>
#include <QCheckBox>
#include <QDesktopServices>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QSpinBox>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QTreeView>
#include <QUrl>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

QStringList warnings;
QtMessageHandler formerHandler = nullptr;

void noteWarnings(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtWarningMsg && text.contains("connect"))
        warnings << text;
    formerHandler(type, context, text);
}

int countState(const MappingDocument &document)
{
    return document.counts().verified();
}

/// The numbers under the tree.
QString statistics(const WindowFixture &fixture)
{
    return fixture.window->editor()->findChild<QLabel *>("statisticsLabel")->text();
}

} // namespace

/// Filters a column of the source table by what its first row shows. Name and rows that are left.
std::pair<QString, int> filterByFirstValue(const WindowFixture &fixture)
{
    VkTableModel *const model = fixture.sourceView()->model();
    const int all = model->rowCount();
    for (int column = model->statusColumnCount(); column < model->columnCount(); ++column) {
        const VKTab::Var variable = model->variable(column);
        const QString text = model->index(0, column).data().toString();
        if (!variable.isValid() || text.isEmpty())
            continue;
        model->setQuickFilter(variable.getVarId(), '=' + text);
        if (model->rowCount() > 1 && model->rowCount() < all)
            return {variable.getName(), model->rowCount()};
        model->setQuickFilter(variable.getVarId(), QString());
    }
    return {};
}

class tst_MainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { formerHandler = qInstallMessageHandler(noteWarnings); }
    void cleanupTestCase()
    {
        qInstallMessageHandler(formerHandler);
        QCOMPARE(warnings, QStringList());
    }

    void startsWithNothingOpen()
    {
        WindowFixture fixture;
        auto *pages = qobject_cast<QStackedWidget *>(fixture.window->centralWidget());
        QCOMPARE(pages->currentWidget()->objectName(), QStringLiteral("WelcomePage"));
        QCOMPARE(fixture.window->windowTitle(), QStringLiteral("Velkworkbench"));
        for (const char *name :
             {"fileSave", "fileSaveAs", "fileClose", "fileRoots", "editUndo", "editRedo",
              "linesConfirm", "linesRemove", "linesRemoveConfirm", "assignAll", "checkRanges",
              "goNext", "goPrevious", "goLine", "viewRefresh"})
            QVERIFY2(!fixture.action(name)->isEnabled(), name);
        for (const char *name : {"fileNew", "fileOpen", "fileExample", "fileQuit", "settings",
                                 "helpTour", "helpAbout"})
            QVERIFY2(fixture.action(name)->isEnabled(), name);
        QVERIFY(!fixture.window->status()->findChild<QLabel *>("statusOpen")->isVisible());
    }

    void opensAFile()
    {
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        fixture.open(file);
        QVERIFY(fixture.window->editor()->isOpen());
        QVERIFY(fixture.window->editor()->isVisible());
        QVERIFY(fixture.window->windowTitle().startsWith("m.json[*] – "));
        QVERIFY(!fixture.window->isWindowModified());
        QCOMPARE(fixture.settings->recentFiles(), QStringList{file});
        const auto recent = fixture.window->findChild<QMenu *>("recentMenu")->actions();
        QCOMPARE(recent.first()->text(), "&1  " + file);
        QCOMPARE(fixture.window->status()->findChild<QLabel *>("statusOpen")->text(),
                 QStringLiteral("Offen: <a href=\"next\">784 Zeilen</a> in 35 Projekten"));
    }

    void remembersTheCatalogs()
    {
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        fixture.open(file);
        QVERIFY(fixture.window->desk()->close());
        // No question for the directories this time.
        QVERIFY(fixture.window->desk()->open({.file = file, .mayAsk = false}));
        QCOMPARE(fixture.window->desk()->document()->catalogRoots(), WindowFixture::roots());
    }

    void asksForUnknownCatalogs()
    {
        WindowFixture fixture;
        ModalScript script;
        script.thenClick("ok"); // disabled: nothing is entered
        script.then([](QWidget *) {});
        const QString file = fixture.mappingFile();
        QTimer::singleShot(100, fixture.window.get(), [] {
            QWidget *const dialog = QApplication::activeModalWidget();
            QVERIFY(dialog);
            QCOMPARE(dialog->objectName(), QStringLiteral("CatalogRootsDialog"));
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QVERIFY(!fixture.window->desk()->open({.file = file}));
        QVERIFY(!fixture.window->desk()->document()->isOpen());
    }

    void tellsWhatCannotBeOpened()
    {
        WindowFixture fixture;
        const QString file = fixture.directory.filePath("gone.json");
        fixture.settings->addRecentFile(file);
        ModalScript script;
        script.thenClick("answerCancel");
        QVERIFY(!fixture.window->desk()->open({.file = file}));
        QVERIFY(script.isDone());
        QCOMPARE(script.texts, QStringList{"Die Datei kann nicht geöffnet werden."});
        QVERIFY(fixture.window->log()->text().contains("gone.json"));
        QVERIFY(fixture.window->log()->isVisible());
        QCOMPARE(fixture.settings->recentFiles(), QStringList());
    }

    void confirmsByKeyboardAndUndoes()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        const QString path = din933;
        const int line = 3;
        QVERIFY(fixture.window->editor()->goTo({{path, {}, {}}, line}));
        fixture.press(Qt::Key_V);
        QTRY_COMPARE(countState(document), 1);
        QTRY_VERIFY(fixture.window->isWindowModified());
        QTRY_COMPARE(fixture.action("editUndo")->text(),
                     "&Rückgängig: Zeile 3 → 2 bestätigt in " + path);
        QTRY_COMPARE(fixture.window->status()->note(), "Zeile 3 → 2 bestätigt in " + path);
        QVERIFY(fixture.window->status()
                    ->findChild<QLabel *>("statusNote")
                    ->text()
                    .endsWith("<a href=\"undo\">rückgängig</a>"));
        QTRY_VERIFY(fixture.window->status()
                        ->findChild<QLabel *>("statusOpen")
                        ->text()
                        .contains("783 Zeilen"));

        fixture.press(Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(countState(document), 0);
        QTRY_COMPARE(fixture.action("editUndo")->text(), QStringLiteral("&Rückgängig"));
        QVERIFY(!fixture.action("editUndo")->isEnabled());
        QCOMPARE(fixture.action("editRedo")->text(),
                 "&Wiederherstellen: Zeile 3 → 2 bestätigt in " + path);
        QCOMPARE(fixture.window->editor()->currentPath(), path);
        QCOMPARE(fixture.window->editor()->currentLine(), line);
        fixture.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(countState(document), 1);
    }

    void undoesByTheLinkInTheStatusBar()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        fixture.press(Qt::Key_F8);
        fixture.press(Qt::Key_V);
        QTRY_COMPARE(countState(document), 1);
        QTRY_VERIFY(document.canUndo());
        Q_EMIT fixture.window->status()->findChild<QLabel *>("statusNote")->linkActivated("undo");
        QTRY_COMPARE(countState(document), 0);
    }

    void goesThroughOpenLinesAcrossProjects()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        EditorArea *const editor = fixture.window->editor();
        const OpenLines &open = fixture.window->lines()->openLines();
        LineRef expected = open.next({}).line;
        QStringList projects;
        for (int i = 0; i < 60 || (projects.size() < 2 && i < 900); ++i) {
            fixture.press(Qt::Key_F8);
            QCOMPARE(editor->currentPath(), expected.project.path);
            QCOMPARE(editor->currentLine(), expected.line);
            if (!projects.contains(expected.project.path))
                projects << expected.project.path;
            expected = open.next(expected).line;
        }
        QVERIFY(projects.size() > 1);
        QCOMPARE(QApplication::focusWidget(), fixture.sourceView()->grid());
        const QString path = editor->currentPath();
        const int line = editor->currentLine();
        fixture.press(Qt::Key_F8);
        fixture.press(Qt::Key_F8, Qt::ShiftModifier);
        QCOMPARE(editor->currentPath(), path);
        QCOMPARE(editor->currentLine(), line);
    }

    void takesFiltersAwayToShowALine()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        EditorArea *const editor = fixture.window->editor();
        auto *box = editor->findChild<QCheckBox *>("checkToCheck");
        const QString equal = "standardparts/screws/iso10642.prj";
        QVERIFY(editor->selectProject(equal));
        ModalScript script;
        script.thenClick("answerAccept");
        fixture.action("linesConfirm")->trigger();
        QTRY_VERIFY(fixture.action("editUndo")->isEnabled());
        QApplication::processEvents();
        QVERIFY(editor->selectProject(din933));
        box->setChecked(true);
        QVERIFY(editor->selectProject(equal));
        QVERIFY(!box->isChecked());
        QVERIFY(editor->selectProject(din933));
        auto *lines = editor->findChild<QCheckBox *>("chkFilterSource");
        QVERIFY(lines);
        QVERIFY(editor->selectLine(2));
        const int verified = countState(*fixture.window->desk()->document());
        fixture.press(Qt::Key_V);
        QTRY_COMPARE(countState(*fixture.window->desk()->document()), verified + 1);
        lines->setChecked(true);
        QVERIFY(!editor->sourceTable().isLineVisible(VKTab::LineId(2)));
        QVERIFY(editor->selectLine(2));
        QVERIFY(!lines->isChecked());
        QCOMPARE(editor->currentLine(), 2);
    }

    void jumpsToALine_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("line");
        QTest::newRow("number") << "7" << 7;
        QTest::newRow("designation") << "DIN 933 - M3 x 10 - 8.8" << 3;
        QTest::newRow("part of it, other case") << "m3 X 10" << 3;
    }
    void jumpsToALine()
    {
        QFETCH(QString, text);
        QFETCH(int, line);
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->selectProject(din933));
        ModalScript script;
        script.then([&](QWidget *dialog) {
            auto *input = qobject_cast<QInputDialog *>(dialog);
            QVERIFY(input);
            QCOMPARE(input->labelText(), QStringLiteral("Nummer oder Normbezeichnung:"));
            input->setTextValue(text);
            input->accept();
        });
        fixture.press(Qt::Key_G, Qt::ControlModifier);
        QVERIFY(script.isDone());
        QCOMPARE(fixture.window->editor()->currentLine(), line);
    }

    void jumpsOnFromHitToHit()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        EditorArea *const editor = fixture.window->editor();
        QVERIFY(editor->selectProject(din933));
        QList<int> hits;
        for (int i = 0; i < 3; ++i) {
            QVERIFY(fixture.window->lines()->jumpTo("DIN 933 - M4"));
            hits << editor->currentLine();
            QVERIFY(fixture.window->status()->note().startsWith("Treffer " +
                                                                QString::number(i + 1) + " von "));
        }
        QCOMPARE(hits, (QList<int>{9, 10, 11}));
    }

    void saysThatThereIsNoSuchLine()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(!fixture.window->lines()->jumpTo("1"));
        QCOMPARE(fixture.window->status()->note(), QStringLiteral("Es ist kein Projekt gewählt"));
        QVERIFY(fixture.window->editor()->selectProject(din933));
        QVERIFY(!fixture.window->lines()->jumpTo("no such thing"));
        QCOMPARE(fixture.window->status()->note(),
                 QStringLiteral("Keine Zeile mit „no such thing“ in diesem Projekt"));
    }

    void confirmsManyLinesInOneStep()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        QVERIFY(fixture.window->editor()->selectProject(din933));
        ModalScript script;
        script.thenClick("answerAccept");
        fixture.action("linesConfirm")->trigger();
        QVERIFY(script.isDone());
        const int lines = countState(document);
        QVERIFY(lines > 50);
        QVERIFY2(script.texts.first().contains(QString::number(lines) + " Zeilen bestätigen?"),
                 qPrintable(script.texts.first()));
        QTRY_COMPARE(document.undoTexts().size(), 1);
        const QString confirmed = "M";
        const auto status = [&](int line) {
            return fixture.window->editor()
                ->sourceTable()
                .getLine(VKTab::LineId(line), false)
                .getLineKeyValue("CatalogMapper")
                .toString();
        };
        QTRY_COMPARE(status(3), confirmed);
        QTRY_VERIFY(statistics(fixture).endsWith(" / " + QString::number(lines)));
        fixture.action("editUndo")->trigger();
        QTRY_COMPARE(countState(document), 0);
        QTRY_COMPARE(status(3), QStringLiteral("C"));
        QTRY_VERIFY(statistics(fixture).endsWith(" / 0"));
        // Showing it is no change.
        QTest::qWait(1);
        QVERIFY(document.canRedo());
        QVERIFY(!document.canUndo());
    }

    void manyLinesAreThoseThatAreShown()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        QVERIFY(fixture.window->editor()->selectProject(din933));
        const std::pair<QString, int> filter = filterByFirstValue(fixture);
        const QString name = filter.first;
        const int rows = filter.second;
        QVERIFY(rows > 0);
        const int all = fixture.window->editor()->sourceTable().getLineCount();
        QVERIFY(rows < all);
        ModalScript script;
        script.then([&](QWidget *dialog) {
            script.note(dialog);
            const QString details = dialog->property("informativeText").toString();
            QVERIFY2(details.contains(
                         QStringLiteral("die %1 gezeigten von %2 Zeilen").arg(rows).arg(all)) &&
                         details.contains("Filter: " + name + ": ="),
                     qPrintable(details));
            // Nothing is selected: nobody may have meant all of them.
            QVERIFY(dialog->findChild<QPushButton *>("answerCancel")->isDefault());
            QTest::mouseClick(dialog->findChild<QPushButton *>("answerAccept"), Qt::LeftButton);
        });
        fixture.action("linesConfirm")->trigger();
        QVERIFY(script.isDone());
        // Those without a target are left out.
        const int confirmed = countState(document);
        QVERIFY(confirmed > 0 && confirmed <= rows);
        const QString begin = QString::number(confirmed) + " Zeilen bestätig";
        QVERIFY2(script.texts.value(0).startsWith(begin), qPrintable(script.texts.value(0)));
        QVERIFY2(fixture.window->status()->note().startsWith(begin),
                 qPrintable(fixture.window->status()->note()));
    }

    void theNextOpenLineIsWithinTheFilter()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        EditorArea *const editor = fixture.window->editor();
        QVERIFY(editor->selectProject(din933));
        const int rows = filterByFirstValue(fixture).second;
        QStringList notes;
        QSet<int> seen;
        for (int i = 0; i <= rows; ++i) {
            fixture.press(Qt::Key_F8);
            QCOMPARE(editor->currentPath(), din933);
            QVERIFY(fixture.sourceView()->model()->rowOf(VKTab::LineId(editor->currentLine())) >=
                    0);
            seen.insert(editor->currentLine());
            notes += fixture.window->status()->note();
        }
        QVERIFY(seen.size() <= rows);
        QVERIFY2(notes.last().contains("Hier im Filter ist alles durch, außerhalb sind noch"),
                 qPrintable(notes.join('\n')));
    }

    void confirmsTheSelectedLines()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        fixture.press(Qt::Key_Down, Qt::ShiftModifier);
        fixture.press(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(fixture.window->editor()->selectedLines(), (QList<int>{3, 4, 5}));
        QCOMPARE(fixture.window->editor()->currentLine(), -1);
        ModalScript script;
        script.then([&](QWidget *dialog) {
            script.note(dialog);
            QVERIFY(dialog->property("informativeText")
                        .toString()
                        .startsWith("Gemeint sind die markierten Zeilen."));
            QTest::mouseClick(dialog->findChild<QPushButton *>("answerAccept"), Qt::LeftButton);
        });
        fixture.press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY2(script.texts.value(0).startsWith("3 Zeilen bestätigen?"),
                 qPrintable(script.texts.join('\n')));
        QCOMPARE(countState(document), 3);
    }

    void changesSettingsByTheirDialog()
    {
        WindowFixture fixture;
        const QFont font = QApplication::font();
        ModalScript script;
        script.then([&](QWidget *dialog) {
            script.note(dialog);
            dialog->findChild<QSpinBox *>("font")->setValue(150);
            QTest::mouseClick(dialog->findChild<QPushButton *>("ok"), Qt::LeftButton);
        });
        fixture.press(Qt::Key_Comma, Qt::ControlModifier);
        QCOMPARE(script.seen, QStringList{"SettingsDialog"});
        QCOMPARE(fixture.settings->values().fontPercent, 150);
        QCOMPARE(QApplication::font().pointSizeF(), font.pointSizeF() * 1.5);
        WorkbenchSettings::Values values = fixture.settings->values();
        values.fontPercent = 100;
        fixture.settings->setValues(values);
        QCOMPARE(QApplication::font().pointSizeF(), font.pointSizeF());
    }

    void saysWhenATargetProjectIsGone()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        Q_EMIT fixture.window->editor()->targetProjectWanted("standardparts/no/such.prj");
        QApplication::processEvents();
        QVERIFY(fixture.window->log()->text().contains(
            "Das Zielprojekt standardparts/no/such.prj gibt es nicht."));
        QVERIFY(fixture.window->log()->isVisible());
    }

    void showsTheFolderOfATargetProject()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QDesktopServices::setUrlHandler("file", this, "takeUrl");
        Q_EMIT fixture.window->editor()->targetProjectWanted("standardparts/screws/iso4017.prj");
        QDesktopServices::unsetUrlHandler("file");
        QVERIFY2(m_url.toLocalFile().endsWith("/standardparts/screws"),
                 qPrintable(m_url.toString()));
    }

    void checksValueRanges()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        fixture.action("checkRanges")->trigger();
        QCOMPARE(fixture.window->status()->note(),
                 QStringLiteral("0 Wertebereichszuordnungen geprüft: keine Beanstandung."));
    }

    void undoOfALineReadsNothingAnew()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        EditorArea *const editor = fixture.window->editor();
        QVERIFY(editor->goTo({{din933, {}, {}}, 30}));
        fixture.press(Qt::Key_V);
        QTRY_VERIFY(document.canUndo());
        QVERIFY(editor->selectLine(40));
        const VKTab::ContentRef before = editor->sourceTable();
        const int scroll = fixture.sourceView()->getVerticalScrollPos();
        fixture.press(Qt::Key_Z, Qt::ControlModifier);
        QTRY_VERIFY(statistics(fixture).endsWith(" / 0"));
        QVERIFY(editor->sourceTable() == before);
        QCOMPARE(editor->currentLine(), 40);
        QCOMPARE(fixture.sourceView()->getVerticalScrollPos(), scroll);
        QCOMPARE(
            before.getLine(VKTab::LineId(30), false).getLineKeyValue("CatalogMapper").toString(),
            QStringLiteral("C"));
    }

    void undoIsNoChangeOfItsOwn()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 30}));
        fixture.press(Qt::Key_V);
        QTRY_VERIFY(document.canUndo());
        // Comes after the editor has shown it, and before a step of that turn would end.
        QList<bool> modified;
        connect(&document, &MappingDocument::reselectRequested, this,
                [&] { QTimer::singleShot(0, this, [&] { modified += document.isModified(); }); });
        fixture.press(Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(modified, QList<bool>{false});
        QVERIFY(statistics(fixture).endsWith(" / 0"));
    }

    void undoOfATargetShowsItAgain()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        EditorArea *const editor = fixture.window->editor();
        QVERIFY(editor->selectProject("standardparts/washers/din125.prj"));
        QVERIFY(editor->selectLine(3));
        const auto panels = [&] {
            return editor->findChildren<QPushButton *>("assignButton").size();
        };
        const auto all = panels();
        QVERIFY(all > 1);
        PrjMappingC mapping = document.mapping(editor->currentProject());
        mapping.removeTarget(0);
        document.updateMapping(mapping);
        QTRY_COMPARE(panels(), all - 1);
        QTRY_VERIFY(document.canUndo());
        fixture.press(Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(panels(), all);
        QCOMPARE(editor->currentLine(), 3);
    }

    void undoShowsWhatItUndid()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        EditorArea *const editor = fixture.window->editor();
        QVERIFY(editor->goTo({{din933, {}, {}}, 3}));
        fixture.press(Qt::Key_V);
        QTRY_VERIFY(document.canUndo());
        QVERIFY(editor->selectProject("standardparts/washers/din125.prj"));
        fixture.press(Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(editor->currentPath(), din933);
        QTRY_VERIFY(statistics(fixture).endsWith(" / 0"));
        QVERIFY(document.canRedo());
    }

    void severalProjectsAreUndoneTogether()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        EditorArea *const editor = fixture.window->editor();
        QVERIFY(editor->selectProject(din933));
        document.beginStep();
        const ReleaseMappingC release = document.release();
        for (int i = 0; i < release.countMappings(); ++i) {
            PrjMappingC mapping = release.mappingAt(i);
            if (mapping.getSourcePath() != din933 &&
                mapping.getSourcePath() != "standardparts/washers/din125.prj")
                continue;
            mapping.verifyAll();
            document.updateMapping(mapping);
        }
        document.endStep();
        const int lines = countState(document);
        QVERIFY(lines > 100);
        QTRY_VERIFY(statistics(fixture).endsWith(" / " + QString::number(lines)));
        fixture.action("editUndo")->trigger();
        QTRY_VERIFY(statistics(fixture).endsWith(" / 0"));
        QCOMPARE(editor->currentPath(), din933);
    }

    void leavesManyLinesAloneWhenCalledOff()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->selectProject(din933));
        ModalScript script;
        script.thenClick("answerCancel");
        fixture.action("linesRemove")->trigger();
        QVERIFY(script.isDone());
        QVERIFY(!fixture.window->desk()->document()->isModified());
    }

    void asksBeforeClosing_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<bool>("saved");
        QTest::newRow("save") << "answerAccept" << true << true;
        QTest::newRow("discard") << "answerRefuse" << true << false;
        QTest::newRow("cancel") << "answerCancel" << false << false;
    }
    void asksBeforeClosing()
    {
        QFETCH(QString, answer);
        QFETCH(bool, closed);
        QFETCH(bool, saved);
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        fixture.open(file);
        MappingDocument &document = *fixture.window->desk()->document();
        fixture.press(Qt::Key_F8);
        fixture.press(Qt::Key_V);
        QTRY_VERIFY(document.isModified());
        ModalScript script;
        script.thenClick(answer);
        QCOMPARE(fixture.window->close(), closed);
        QVERIFY(script.isDone());
        QCOMPARE(script.texts, QStringList{"Änderungen an m.json speichern?"});
        QCOMPARE(document.isOpen(), !closed);
        QFile written(file);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll().contains(",2]"), saved);
        if (!closed)
            fixture.window->desk()->document()->close();
    }

    void closesWithoutQuestionIfNothingChanged()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->close());
    }

    void comesBackToWhereTheUserWas()
    {
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        fixture.open(file);
        QVERIFY(fixture.window->editor()->selectProject(din933));
        QVERIFY(fixture.window->editor()->selectLine(5));
        fixture.window->resize(1111, 777);
        auto *splitter = fixture.window->editor()->findChild<QSplitter *>("catalogSplitter");
        QApplication::processEvents();
        splitter->setSizes({444, 600});
        const QList<int> sizes = splitter->sizes();
        QVERIFY(fixture.window->close());
        fixture.closeWindow();
        fixture.makeWindow();
        fixture.window->restoreSession();
        QCOMPARE(fixture.window->desk()->document()->mappingFile(), file);
        QCOMPARE(fixture.window->editor()->currentPath(), din933);
        QCOMPARE(fixture.window->editor()->currentLine(), 5);
        QCOMPARE(fixture.window->size(), QSize(1111, 777));
        QTRY_COMPARE(fixture.window->editor()->findChild<QSplitter *>("catalogSplitter")->sizes(),
                     sizes);
    }

    void beginsWithExampleAndTour()
    {
        WindowFixture fixture;
        fixture.window->restoreSession();
        QVERIFY(fixture.window->desk()->document()->isOpen());
        QVERIFY(!fixture.window->desk()->document()->isModified());
        auto *tour = fixture.window->findChild<TourOverlay *>("TourOverlay");
        QVERIFY(tour);
        // There is something to see, and the broken table is told once.
        QVERIFY(fixture.window->editor()->currentLine() >= 0);
        QCOMPARE(fixture.window->log()->text().count("din908"), 1);
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(tour, Qt::Key_Return);
        QCOMPARE(tour->currentStep(), 4);
        QPointer<TourOverlay> watched(tour);
        QTest::keyClick(tour, Qt::Key_Return);
        QTRY_VERIFY(!watched);
        QVERIFY(fixture.window->close());
        fixture.closeWindow();
        fixture.makeWindow();
        // No second first time.
        fixture.settings->setSessionFile(QString());
        fixture.window->restoreSession();
        QVERIFY(!fixture.window->desk()->document()->isOpen());
    }

    void speaksTwoLanguages()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->selectProject(din933));
        const auto title = [&] {
            return fixture.window->findChild<QMenu *>("fileMenu")->title();
        };
        const auto box = [&] {
            return fixture.window->findChild<QCheckBox *>("checkToCheck")->text();
        };
        QCOMPARE(title(), QStringLiteral("&Datei"));
        WorkbenchSettings::Values values = fixture.settings->values();
        values.language = "en";
        fixture.settings->setValues(values);
        QApplication::processEvents();
        QCOMPARE(title(), QStringLiteral("&File"));
        QCOMPARE(box(), QStringLiteral("Show only projects with incomplete mappings"));
        QCOMPARE(fixture.action("fileSave")->text(), QStringLiteral("&Save"));
        QCOMPARE(fixture.window->editor()->currentPath(), din933);
        values.language = "de";
        fixture.settings->setValues(values);
        QApplication::processEvents();
        QCOMPARE(title(), QStringLiteral("&Datei"));
        QCOMPARE(box(), QStringLiteral("Zeige nur Projekte mit unvollständigen Mappings"));
    }

    void takesKeysFromTheSettings()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        WorkbenchSettings::Values values = fixture.settings->values();
        values.nextLine = QKeySequence("F7");
        fixture.settings->setValues(values);
        QCOMPARE(fixture.action("goNext")->shortcut(), QKeySequence("F7"));
        QVERIFY(fixture.action("goNext")->toolTip().endsWith("(F7)"));
        fixture.press(Qt::Key_F7);
        QVERIFY(fixture.window->editor()->currentLine() >= 0);
    }

    void bringsErrorsToTheFront()
    {
        WindowFixture fixture;
        PMessage::LogToWindow("one");
        QApplication::processEvents();
        QVERIFY(!fixture.window->log()->isVisible());
        PMessage::Show("two", PMsgDlgMode::Error);
        QApplication::processEvents();
        QVERIFY(fixture.window->log()->isVisible());
        QVERIFY(fixture.window->log()->text().contains("Fehler: two"));
    }

    void asksQuestions_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("reply");
        QTest::newRow("ok") << 1 << "answerAccept" << 1;
        QTest::newRow("cancel") << 1 << "answerCancel" << 2;
        QTest::newRow("yes") << 3 << "answerAccept" << 6;
        QTest::newRow("no") << 3 << "answerRefuse" << 7;
        QTest::newRow("neither") << 3 << "answerCancel" << 2;
    }
    void asksQuestions()
    {
        QFETCH(int, mode);
        QFETCH(QString, button);
        WindowFixture fixture;
        ModalScript script;
        script.thenClick(button);
        QTEST(int(PMessage::Show("Really?", PMsgDlgMode(mode))), "reply");
        QCOMPARE(script.texts, QStringList{"Really?"});
    }

    void refreshes()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->selectProject(din933));
        QVERIFY(fixture.window->editor()->selectLine(4));
        fixture.window->editor()->editor()->expandDirectories({"standardparts/washers"});
        const QStringList open = fixture.window->editor()->editor()->expandedDirectories();
        QVERIFY(open.contains("standardparts/washers"));
        const QPointer<QTreeView> before(fixture.window->findChild<QTreeView *>("treeView"));
        const QPointer<QAbstractItemModel> model(fixture.window->editor()->editor()->treeModel());
        fixture.press(Qt::Key_F5);
        QVERIFY(!before);
        QVERIFY(!model); // and with it the old release
        QCOMPARE(fixture.window->editor()->editor()->expandedDirectories(), open);
        QCOMPARE(fixture.window->editor()->currentPath(), din933);
        QCOMPARE(fixture.window->editor()->currentLine(), 4);
    }

    void assignsTheWholeCatalogInOneStep()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        QVERIFY(fixture.window->editor()->selectProject(din933));
        QVERIFY(fixture.window->editor()->selectLine(3));
        fixture.press(Qt::Key_V);
        QTRY_COMPARE(countState(document), 1);
        ModalScript script;
        script.thenClick("answerRefuse");
        fixture.action("assignAll")->trigger();
        QVERIFY(script.isDone());
        QCOMPARE(countState(document), 1);
        QTRY_COMPARE(document.undoTexts().size(), 2);
        fixture.action("editUndo")->trigger();
        QTRY_COMPARE(document.undoTexts().size(), 1);
        QCOMPARE(countState(document), 1);
    }

public Q_SLOTS:
    void takeUrl(const QUrl &url) { m_url = url; }

private:
    QUrl m_url;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
