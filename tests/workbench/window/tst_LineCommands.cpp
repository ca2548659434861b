// What the workbench does with lines: walks, jumps, work on many, undo.
#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/editor/LineCommands.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/LogWindow.h>
#include <workbench/window/message/StatusArea.h>

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QInputDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <optional>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

/// The numbers under the tree.
QString statistics(const WindowFixture &fixture)
{
    return fixture.window->editor()->findChild<QLabel *>("statisticsLabel")->text();
}

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

} // namespace

class tst_LineCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_warnings.emplace(); }
    void cleanupTestCase()
    {
        m_warnings.reset();
        QCOMPARE(ConnectionWarnings::list(), QStringList());
    }

    void confirmsByKeyboardAndUndoes()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        const QString path = din933;
        const int line = 3;
        QVERIFY(fixture.window->editor()->goTo({{path, {}, {}}, line}));
        fixture.press(Qt::Key_V);
        QTRY_COMPARE(fixture.confirmedLines(), 1);
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
        QTRY_COMPARE(fixture.confirmedLines(), 0);
        QTRY_COMPARE(fixture.action("editUndo")->text(), QStringLiteral("&Rückgängig"));
        QVERIFY(!fixture.action("editUndo")->isEnabled());
        QCOMPARE(fixture.action("editRedo")->text(),
                 "&Wiederholen: Zeile 3 → 2 bestätigt in " + path);
        QCOMPARE(fixture.window->editor()->currentPath(), path);
        QCOMPARE(fixture.window->editor()->currentLine(), line + 1); // V went on
        fixture.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(fixture.confirmedLines(), 1);
    }

    void undoesByTheLinkInTheStatusBar()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        MappingDocument &document = *fixture.window->desk()->document();
        fixture.press(Qt::Key_F8);
        fixture.press(Qt::Key_V);
        QTRY_COMPARE(fixture.confirmedLines(), 1);
        QTRY_VERIFY(document.canUndo());
        Q_EMIT fixture.window->status()->findChild<QLabel *>("statusNote")->linkActivated("undo");
        QTRY_COMPARE(fixture.confirmedLines(), 0);
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
        const int verified = fixture.confirmedLines();
        fixture.press(Qt::Key_V);
        QTRY_COMPARE(fixture.confirmedLines(), verified + 1);
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
        const int lines = fixture.confirmedLines();
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
        QTRY_COMPARE(fixture.confirmedLines(), 0);
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
            QVERIFY2(
                details.contains(QStringLiteral("des Projekts: %1 von %2.").arg(rows).arg(all)) &&
                    details.contains("Filter: " + name + ": ="),
                qPrintable(details));
            // Nothing is selected: nobody may have meant all of them.
            QVERIFY(dialog->findChild<QPushButton *>("answerCancel")->isDefault());
            QTest::mouseClick(dialog->findChild<QPushButton *>("answerAccept"), Qt::LeftButton);
        });
        fixture.action("linesConfirm")->trigger();
        QVERIFY(script.isDone());
        // Those without a target are left out.
        const int confirmed = fixture.confirmedLines();
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
        QCOMPARE(fixture.confirmedLines(), 3);
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
        const int lines = fixture.confirmedLines();
        QVERIFY(lines > 100);
        QTRY_VERIFY(statistics(fixture).endsWith(" / " + QString::number(lines)));
        fixture.action("editUndo")->trigger();
        QTRY_VERIFY(statistics(fixture).endsWith(" / 0"));
        QCOMPARE(editor->currentPath(), din933);
    }

    void tellsWhetherACopiedConditionCanBeUsed_data()
    {
        QTest::addColumn<QString>("more");
        QTest::addColumn<bool>("fine");
        QTest::newRow("as it is made") << "" << true;
        QTest::newRow("no number") << " .AND. L .EQ. " << false;
        QTest::newRow("range") << " .AND. L .EQ. 5;6" << false;
        QTest::newRow("quote") << " .AND. L .EQ. '1/4' Zoll'" << false;
        QTest::newRow("unknown name") << " .AND. NoSuchName .EQ. 5" << false;
    }
    void tellsWhetherACopiedConditionCanBeUsed()
    {
        QFETCH(QString, more);
        QFETCH(bool, fine);
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        QTest::mouseClick(fixture.window->editor()->findChild<QPushButton *>("btnCondition"),
                          Qt::LeftButton);
        const QString copied = QStringLiteral("Bedingung in die Zwischenablage kopiert");
        QCOMPARE(fixture.window->status()->note(), copied);
        const QString log = fixture.window->log()->text();
        Q_EMIT fixture.window->editor()->conditionCopied(QApplication::clipboard()->text() + more);
        const QString told = fixture.window->status()->note();
        const QString faulty = "Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert "
                               "fehlt, ist ein Bereich oder enthält ein Anführungszeichen: ";
        QVERIFY2(fine ? told == copied : told.startsWith(faulty) && told.size() > faulty.size(),
                 qPrintable(told));
        QCOMPARE(fixture.window->log()->text(), log);
    }

private:
    std::optional<ConnectionWarnings> m_warnings;
};

QTEST_MAIN(tst_LineCommands)
#include "tst_LineCommands.moc"
