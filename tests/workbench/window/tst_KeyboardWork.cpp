// Work without the mouse: decisions that lead on, the other table, hints, visible focus.
#include "WindowFixture.h"

#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/editor/LineCommands.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolTip>
#include <QTreeView>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

void setGoesOn(const WindowFixture &fixture, bool on)
{
    WorkbenchSettings::Values values = fixture.settings->values();
    values.goesOn = on;
    fixture.settings->setValues(values);
}

VkTableView *targetView(const WindowFixture &fixture)
{
    return fixture.window->editor()->findChild<VkTableView *>("targetView");
}

} // namespace

class tst_KeyboardWork : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDecisionLeadsToTheNextOpenLine()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        EditorArea *const editor = fixture.window->editor();
        const OpenLines &open = fixture.window->lines()->openLines();
        fixture.press(Qt::Key_F8);
        const int before = fixture.confirmedLines();
        QList<LineRef> expected;
        for (LineRef line{editor->currentProject(), editor->currentLine()}; expected.size() < 10;
             line = expected.last())
            expected += open.next(line).line;
        for (const LineRef &next : expected) {
            fixture.press(Qt::Key_V);
            QCOMPARE(editor->currentPath(), next.project.path);
            QCOMPARE(editor->currentLine(), next.line);
            QCOMPARE(QApplication::focusWidget(), fixture.sourceView()->grid());
        }
        // A key for each line, a step of its own each.
        QCOMPARE(fixture.confirmedLines(), before + 10);
        QCOMPARE(fixture.window->desk()->document()->undoTexts().size(), 10);
    }

    void undoLeadsBackToTheLine()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        EditorArea *const editor = fixture.window->editor();
        QVERIFY(editor->goTo({{din933, {}, {}}, 3}));
        fixture.press(Qt::Key_V);
        QVERIFY(editor->currentLine() != 3);
        // From another project too, and forward as well.
        QVERIFY(editor->selectProject(QStringLiteral("standardparts/bearings/din625.prj")));
        fixture.press(Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(editor->currentLine(), 3);
        QCOMPARE(editor->currentPath(), din933);
        QVERIFY(editor->selectLine(7));
        fixture.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(editor->currentLine(), 3);
        // Lines that are selected together stay so.
        fixture.press(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(editor->selectedLines(), QList<int>({3, 4}));
        fixture.press(Qt::Key_Z, Qt::ControlModifier);
        QTest::qWait(50);
        QCOMPARE(editor->selectedLines(), QList<int>({3, 4}));
        // A filter that hides the line stays.
        QVERIFY(editor->selectLine(7));
        QTest::keyClick(fixture.sourceView()->grid(), Qt::Key_F,
                        Qt::ControlModifier | Qt::ShiftModifier);
        auto *const edit =
            fixture.sourceView()->findChild<QWidget *>("filterBar")->findChild<QLineEdit *>();
        QTest::keyClicks(edit, "=M10");
        QTRY_VERIFY(editor->shown().isFiltered);
        QCOMPARE(editor->shown().rowOf(3), -1);
        fixture.sourceView()->grid()->setFocus();
        fixture.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(fixture.confirmedLines(), 1);
        QTest::qWait(50);
        QCOMPARE(editor->shown().rowOf(3), -1);
    }

    /// Not in the messages, which take no keys.
    void aReleaseThatIsOpenedFirstHasTheKeysInItsTree()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        auto *const tree =
            fixture.window->editor()->findChild<QTreeView *>(QStringLiteral("treeView"));
        QVERIFY(tree);
        QCOMPARE(fixture.window->editor()->currentPath(), QString());
        QCOMPARE(QApplication::focusWidget(), tree);
    }

    void keysStayInTheTableWhenAllIsReadAnew()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        fixture.press(Qt::Key_F5);
        QCOMPARE(QApplication::focusWidget(), fixture.sourceView()->grid());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F,
                        Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(fixture.sourceView()->findChild<QWidget *>("filterBar")->isVisible());
        // In the row of filters its keys mean the same.
        auto *const edit =
            fixture.sourceView()->findChild<QWidget *>("filterBar")->findChild<QLineEdit *>();
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(fixture.sourceView()->findChild<QWidget *>("findBar")->isVisible());
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!fixture.sourceView()->findChild<QWidget *>("filterBar")->isVisible());
    }

    void fromProjectToProject()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        const EditorArea *const editor = fixture.window->editor();
        const OpenLines &open = fixture.window->lines()->openLines();
        QSet<QString> seen;
        for (int i = 0; i < open.projectCount(); ++i) {
            fixture.press(Qt::Key_F8, Qt::ControlModifier);
            QVERIFY(open.count(editor->currentProject()) > 0);
            QVERIFY2(editor->currentLine() >= 0, qPrintable(editor->currentPath()));
            seen.insert(editor->currentPath());
        }
        QCOMPARE(seen.size(), open.projectCount());
        const QString last = editor->currentPath();
        fixture.press(Qt::Key_F8, Qt::ControlModifier);
        fixture.press(Qt::Key_F8, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(editor->currentPath(), last);
    }

    void theStatusBarStillTellsTheDecision()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        fixture.press(Qt::Key_V);
        QCOMPARE(fixture.window->editor()->currentLine(), 4);
        const QString told = "Zeile 3 → 2 bestätigt in " + din933;
        QCOMPARE(fixture.window->status()->note(), told);
        QApplication::processEvents();
        QCOMPARE(fixture.window->status()->note(), told);
        QVERIFY(fixture.window->status()
                    ->findChild<QLabel *>("statusNote")
                    ->text()
                    .endsWith("<a href=\"undo\">rückgängig</a>"));
    }

    void expiredLinesLeadOnToo()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        fixture.press(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(fixture.confirmedLines(), 1);
        QCOMPARE(fixture.window->editor()->currentLine(), 4);
    }

    void aLineThatIsOpenStillKeepsTheUser()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        fixture.press(Qt::Key_X);
        QTRY_VERIFY(fixture.window->desk()->document()->canUndo());
        QCOMPARE(fixture.window->editor()->currentLine(), 3);
    }

    void severalLinesKeepTheUser()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        fixture.press(Qt::Key_Down, Qt::ShiftModifier);
        fixture.press(Qt::Key_V);
        QTRY_COMPARE(fixture.confirmedLines(), 2);
        QCOMPARE(fixture.window->editor()->selectedLines(), (QList<int>{3, 4}));
    }

    void theSettingIsKept()
    {
        WindowFixture fixture;
        QVERIFY(fixture.settings->values().goesOn);
        setGoesOn(fixture, false);
        QVERIFY(!WorkbenchSettings(fixture.directory.filePath("workbench.ini")).values().goesOn);
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        fixture.press(Qt::Key_V);
        QTRY_COMPARE(fixture.confirmedLines(), 1);
        QCOMPARE(fixture.window->editor()->currentLine(), 3);
        setGoesOn(fixture, true);
        // What is confirmed already leads on as well.
        fixture.press(Qt::Key_V);
        QCOMPARE(fixture.window->editor()->currentLine(), 4);
        QCOMPARE(fixture.confirmedLines(), 1);
    }

    void oneKeyChangesTheTable()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        fixture.press(Qt::Key_F4);
        QCOMPARE(QApplication::focusWidget(), targetView(fixture)->grid());
        // The assigned line is where the arrow keys begin.
        const int assigned = targetView(fixture)->grid()->currentIndex().row();
        fixture.press(Qt::Key_Down);
        QCOMPARE(targetView(fixture)->grid()->currentIndex().row(), assigned + 1);
        fixture.press(Qt::Key_F4);
        QCOMPARE(QApplication::focusWidget(), fixture.sourceView()->grid());
        QCOMPARE(fixture.window->editor()->currentLine(), 3);
    }

    void aChosenTargetLineIsTakenByThreeKeys()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        fixture.press(Qt::Key_F4);
        fixture.press(Qt::Key_Down);
        const int chosen = targetView(fixture)->getTable().getSelection().value(0);
        fixture.press(Qt::Key_V);
        QVERIFY(chosen > 0);
        QCOMPARE(fixture.window->status()->note(),
                 QStringLiteral("Zeile 3 → %1 bestätigt (vorher 2) in %2").arg(chosen).arg(din933));
        QCOMPARE(fixture.window->editor()->currentLine(), 4);
    }

    void reasonsCanBeReadByKeyboard()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        VkTableModel *const model = fixture.sourceView()->model();
        QAbstractItemView *const grid = fixture.sourceView()->grid();
        const int row = model->rowOf(VKTab::LineId(3));
        QString wanted;
        for (int column = 0; wanted.isEmpty(); ++column)
            wanted = model->index(row, column).data(Qt::ToolTipRole).toString();
        // A cell without a tip of its own gives the line's.
        for (int column = 0; column < model->columnCount(); ++column) {
            if (model->index(row, column).data(Qt::ToolTipRole).toString().isEmpty())
                grid->selectionModel()->setCurrentIndex(model->index(row, column),
                                                        QItemSelectionModel::NoUpdate);
        }
        fixture.press(Qt::Key_F1, Qt::ShiftModifier);
        QCOMPARE(QToolTip::text(), wanted);
        QVERIFY2(wanted.contains("muss bestätigt oder korrigiert"), qPrintable(wanted));
        // It goes with the line that it is about.
        fixture.press(Qt::Key_V);
        QTRY_VERIFY(!QToolTip::isVisible());
        QVERIFY(fixture.window->editor()->currentLine() != 3);
    }

    /// A tip that opens under the mouse, wherever that was left, goes as soon as it is entered.
    void reasonsDoNotOpenUnderTheMouse()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        const QAbstractItemView *const grid = fixture.sourceView()->grid();
        const QRect cell = grid->visualRect(grid->currentIndex());
        const QPoint below = grid->viewport()->mapToGlobal(cell.bottomLeft());
        for (const QPoint offset : {QPoint(20, 40), QPoint(-5, 25), QPoint(500, 300)}) {
            QCursor::setPos(below + offset);
            QCOMPARE(QCursor::pos(), below + offset);
            fixture.press(Qt::Key_F1, Qt::ShiftModifier);
            const QWidget *tip = nullptr;
            for (const QWidget *const each : QApplication::topLevelWidgets())
                tip = each->inherits("QTipLabel") && each->isVisible() ? each : tip;
            QVERIFY(tip);
            QVERIFY(!tip->geometry().contains(QCursor::pos()));
            const QRect room = tip->geometry().adjusted(-600, -400, 600, 400);
            QVERIFY(room.contains(below)); // and near to what it is about
            QToolTip::hideText();
        }
    }

    void hintsOfButtonsCanBeReadByKeyboard()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        auto *const button = fixture.window->editor()->findChild<QPushButton *>("btnMapLine");
        button->setFocus();
        fixture.press(Qt::Key_F1, Qt::ShiftModifier);
        QCOMPARE(QToolTip::text(), button->toolTip());
        QToolTip::hideText();
    }

    void theFocusIsSeenInTheTables()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        for (VkTableView *const view : {fixture.sourceView(), targetView(fixture)}) {
            QAbstractItemView *const grid = view->grid();
            const QRect cell = grid->visualRect(grid->currentIndex());
            grid->setFocus(Qt::TabFocusReason);
            const QImage with = grid->viewport()->grab(cell).toImage();
            fixture.window->editor()->findChild<QPushButton *>("btnMapLine")->setFocus();
            QVERIFY2(with != grid->viewport()->grab(cell).toImage(),
                     qPrintable(view->objectName()));
        }
    }
};

QTEST_MAIN(tst_KeyboardWork)
#include "tst_KeyboardWork.moc"
