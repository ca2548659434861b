// A project of the example catalog that was split is settled in the editor, by keyboard alone.
#include "EditorFixture.h"
#include "SelectionFixture.h"

#include <mapping/project/remapProjectLines.h>
#include <mapping/view/CatalogMappingWidget.h>

#include <formula/DlgFormulaEditor.h>
#include <geomcore/binding/VarsetConditionI.h>
#include <geomcore/table/readProjectTable.h>
#include <gui/views/PButtonHeaderView.h>
#include <TestPaths.h>

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QTabBar>
#include <QTableView>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>

namespace {

const QString Examples = QStringLiteral(VELK_SOURCE_DIR "/examples");
const QString Washers = QStringLiteral("standardparts/washers/din125.prj");
const QString PlainTarget = QStringLiteral("standardparts/washers/iso7089.prj");
const QString ChamferedTarget = QStringLiteral("standardparts/washers/iso7090.prj");

/// "target>line" by source line, of the lines that have a successor.
QMap<int, QString> truth()
{
    QFile file(Examples + "/truth.csv");
    QMap<int, QString> lines;
    if (!file.open(QIODevice::ReadOnly))
        return lines;
    while (!file.atEnd()) {
        const QStringList cells = QString::fromUtf8(file.readLine()).trimmed().split(',');
        if (cells.size() == 5 && cells[0] == Washers && cells[4] != "gone")
            lines.insert(cells[1].toInt(), cells[2] + '>' + cells[3]);
    }
    return lines;
}

QMap<int, QString> assignedLines(const PrjMappingC &mapping)
{
    QMap<int, QString> lines;
    const QList<PrjMappingTargetC> targets = mapping.getTargets();
    for (const PrjMappingTargetC &target : targets)
        for (const LineTable::Iterator &entry : target.lines())
            lines.insert(entry.sourceLine(),
                         target.getTargetPath() + '>' + QString::number(entry.targetLine()));
    return lines;
}

/// The editor on that project, with one target and its lines assigned.
struct Keyboard
{
    Keyboard()
    {
        PrjMappingC mapping = mappingOf(Washers, {PlainTarget});
        VKTab::ContentRef table;
        (void)VKTab::readProjectTable(Examples + "/release-1/" + Washers, table);
        remapProjectLines(Washers, mapping, table, ReleaseMappingC(), {}, false);
        handler = new NotingHandler(catalogOf(mapping).lastRelease(), nullptr, QString());
        editor = std::make_unique<CatalogMappingWidget>(Examples + "/release-1", handler, nullptr,
                                                        nullptr);
        editor->resize(1600, 1000);
        editor->show();
        QVERIFY(QTest::qWaitForWindowExposed(editor.get()));
        QVERIFY(editor->selectProject(Washers));
        waiting.setInterval(1);
        QObject::connect(&waiting, &QTimer::timeout, editor.get(), [this] { look(); });
        waiting.start();
    }
    /// What to do in the next dialog.
    void inDialog(const std::function<void(QDialog *)> &answer) { answers += answer; }
    void look()
    {
        auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || dialog == last || answers.isEmpty())
            return;
        last = dialog;
        answers.takeFirst()(dialog);
    }
    void press(QWidget *widget, Qt::Key key = Qt::Key_Space) const
    {
        QVERIFY(widget && widget->isEnabled());
        QVERIFY(widget->focusPolicy() & Qt::TabFocus);
        widget->window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(widget->window()));
        widget->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(widget->hasFocus());
        QTest::keyClick(widget, key);
    }
    [[nodiscard]] TargetMappingWidget *panel(int place) const
    {
        return targetPanels(editor.get()).value(place);
    }
    [[nodiscard]] QTableView *list(int place, const char *name) const
    {
        return panel(place)->findChild<QTableView *>(QLatin1String(name));
    }
    [[nodiscard]] PrjMappingC stored() const
    {
        return handler->getCatalogMapping().lastRelease().findMapping(Washers, "v1", QString());
    }
    static void writeFormula(QDialog *dialog, const QString &text)
    {
        auto *const edit = dialog->findChild<QPlainTextEdit *>();
        QVERIFY(edit);
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(edit, text);
        const auto *const words = edit->findChild<QWidget *>("formulaCompletion");
        if (words && words->isVisible())
            QTest::keyClick(edit, Qt::Key_Escape);
        QTest::keyClick(dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok),
                        Qt::Key_Return);
    }

    LocalCatalogs local{Examples + "/release-2"};
    MessageCapture messages;
    NotingHandler *handler = nullptr;
    std::unique_ptr<CatalogMappingWidget> editor;
    QTimer waiting;
    QPointer<QDialog> last;
    QList<std::function<void(QDialog *)>> answers;
};

} // namespace

class tst_ExampleConditions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void splitProject();
};

void tst_ExampleConditions::splitProject()
{
    Keyboard keyboard;
    QVERIFY(assignedLines(keyboard.stored()) != truth());
    // The second target.
    keyboard.inDialog([](QDialog *dialog) {
        const auto close = qScopeGuard([dialog] {
            if (dialog->isVisible())
                dialog->reject();
        });
        auto *const tabs = dialog->findChild<QTabWidget *>();
        QVERIFY(tabs);
        tabs->tabBar()->setFocus();
        QTest::keyClick(tabs->tabBar(), Qt::Key_Right);
        QTreeView *const tree = treeOf(*dialog);
        tree->setFocus();
        QTest::keyClick(tree, Qt::Key_Home);
        QTest::keyClick(tree, Qt::Key_Right);
        QTest::keyClicks(tree, "washers");
        QTest::keyClick(tree, Qt::Key_Right);
        QTest::qWait(QApplication::keyboardInputInterval() + 100);
        QTest::keyClicks(tree, "iso7090");
        QCOMPARE(tree->currentIndex().data().toString(), QStringLiteral("iso7090.prj"));
        auto *const select = dialog->findChild<QPushButton *>("selectButton");
        select->setFocus();
        QTest::keyClick(select, Qt::Key_Space);
    });
    keyboard.press(keyboard.editor->findChild<QPushButton *>("addTargetButton"));
    QCOMPARE(targetPaths(keyboard.stored()).section(' ', 0, 1),
             PlainTarget + ' ' + ChamferedTarget);
    // A condition for it.
    keyboard.inDialog([](QDialog *dialog) { Keyboard::writeFormula(dialog, "Form .EQ. 'B'"); });
    keyboard.press(keyboard.list(1, "conditionView")->horizontalHeader());
    QCOMPARE(keyboard.stored().findTarget(1).getConditions().size(), 1);
    QCOMPARE(keyboard.stored().findTarget(1).getConditions().first()->getCondition(),
             QStringLiteral("Form .EQ. 'B'"));
    // A formula for one of its variables.
    QTableView *const variables = keyboard.list(1, "variableView");
    keyboard.press(variables->horizontalHeader());
    auto *box = variables->viewport()->findChild<QComboBox *>();
    QVERIFY(box);
    QTest::keyClick(box, Qt::Key_H);
    QCOMPARE(box->currentText(), QStringLiteral("h"));
    QTest::keyClick(box, Qt::Key_Tab); // on to the next cell
    QTRY_VERIFY((box = variables->viewport()->findChild<QComboBox *>()) &&
                box->itemText(0) == "Formel...");
    keyboard.inDialog([](QDialog *dialog) { Keyboard::writeFormula(dialog, "h = h * 1"); });
    QTest::keyClick(box, Qt::Key_F4);
    QTest::keyClick(box->view(), Qt::Key_Home);
    QTest::keyClick(box->view(), Qt::Key_Return);
    QTRY_VERIFY(keyboard.answers.isEmpty());
    QTRY_COMPARE(keyboard.stored().findTarget(1).getVarsetModifier().size(), 1);
    // First of all, and with that the lines are assigned anew.
    keyboard.press(keyboard.panel(1)->upButton);
    QCOMPARE(targetPaths(keyboard.stored()).section(' ', 0, 1),
             ChamferedTarget + ' ' + PlainTarget);
    const QMap<int, QString> assigned = assignedLines(keyboard.stored());
    const QMap<int, QString> right = truth();
    QVERIFY(right.size() > 20);
    for (auto line = right.begin(); line != right.end(); ++line)
        QCOMPARE(assigned.value(line.key()), line.value());
    QCOMPARE(keyboard.messages->texts(), QStringList());
}

QTEST_MAIN(tst_ExampleConditions)
#include "tst_ExampleConditions.moc"
