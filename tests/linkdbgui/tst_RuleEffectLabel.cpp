// What the formula editor tells and offers while a condition or formula is being written.
#include "TargetLists.h"

#include <mapping/project/RuleEffectLabel.h>
#include <mapping/table/TableMappingWidget.h>

#include <geomcore/binding/VarsetConditionC.h>
#include <geomcoregui/table/VkTableView.h>
#include <release/effect/RuleEffect.h>

#include <QComboBox>
#include <QPointer>

namespace {

const QString Effect = QStringLiteral("Zeilen: %1 von 3 · offene, die zugewiesen würden: %2 · "
                                      "bestätigte, die nicht mehr passten: %3");

QLabel *effectOf(const QWidget *dialog)
{
    return dialog->findChild<QLabel *>("ruleEffect");
}

DlgFormulaEditor *shownDialog()
{
    return qobject_cast<DlgFormulaEditor *>(QApplication::activeModalWidget());
}

} // namespace

class tst_RuleEffectLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts();
    void outdatedIsNotShown();
    void goesWhileItComputes();
    void newCondition();
    void changedCondition();
    void formula();
    void variable();
    void variableOfTheTarget();
    void offer();
    void offerBehindAText();
    void noOffer();
};

void tst_RuleEffectLabel::texts()
{
    VelkRelease::RuleEffect effect{29, 14, 3, {}};
    QCOMPARE(RuleEffectLabel::textOf(effect),
             QStringLiteral("Zeilen: 14 von 29 · offene, die zugewiesen würden: 3 · bestätigte, "
                            "die nicht mehr passten: 0"));
    effect.misfits = {3, 7};
    QVERIFY(RuleEffectLabel::textOf(effect).endsWith("passten: 2 (3, 7)"));
    effect.misfits = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    QVERIFY(RuleEffectLabel::textOf(effect).endsWith("12 (1, 2, 3, 4, 5, 6, 7, 8, 9, 10, …)"));
}

void tst_RuleEffectLabel::outdatedIsNotShown()
{
    const Catalog catalog;
    const PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    RuleEffectLabel label(mapping, 0, catalog.catalog.read("old/a.prj"), nullptr);
    const auto with = [&](const QString &condition) {
        PrjMappingTargetC target = mapping.findTarget(0);
        target.addCondition(VarsetConditionC::fromText(condition));
        return target;
    };
    QStringList shown;
    for (int i = 0; i < 40; ++i) {
        label.setChangedTarget(with("k .EQ. 5"));
        QTest::qWait(i * 4);
        label.setChangedTarget(with("k .GT. 5"));
        // Whatever is ready by now is not shown for the new text.
        QCOMPARE(label.text(), QStringLiteral("…"));
        QCoreApplication::processEvents();
        shown += label.text();
    }
    QVERIFY(!shown.contains(Effect.arg("1", "1", "0")));
    QTRY_COMPARE(label.text(), Effect.arg("2", "1", "0"));
    label.setChangedTarget(with("k .EQ. 5"));
    label.setChangedTarget(std::nullopt);
    QTest::qWait(150);
    QCOMPARE(label.text(), QStringLiteral(" "));
}

void tst_RuleEffectLabel::goesWhileItComputes()
{
    const Catalog catalog;
    const PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    for (int i = 0; i < 20; ++i) {
        RuleEffectLabel label(mapping, 0, catalog.catalog.read("old/a.prj"), nullptr);
        label.setChangedTarget(mapping.findTarget(0));
        QTest::qWait(60 + i % 4);
    }
}

void tst_RuleEffectLabel::newCondition()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    enter(mapping, 0, 2, 2, PRJMAPPING::Verified);
    editor.load(mapping);
    editor.whileFormulaIsOpen = [&] {
        DlgFormulaEditor *const dialog = shownDialog();
        // Below everything else.
        QLayout *const layout = dialog->layout();
        QCOMPARE(layout->itemAt(layout->count() - 1)->widget(), effectOf(dialog));
        QTRY_COMPARE(effectOf(dialog)->text(), Effect.arg("3", "1", "0"));
        dialog->findChild<QPlainTextEdit *>()->setPlainText("k .EQ. 5");
        QTRY_COMPARE(effectOf(dialog)->text(), Effect.arg("1", "1", "1 (2)"));
        dialog->findChild<QPlainTextEdit *>()->setPlainText("k .EQ.");
        QCOMPARE(effectOf(dialog)->text(), QStringLiteral(" "));
        dialog->reject();
    };
    editor.answerFormula(QString());
    editor.clickAdd(editor.conditions());
    QCOMPARE(editor.formulas, 1);
    QCOMPARE(editor.messages->texts(), QStringList());
    QCOMPARE(editor.updates.count(), 0);
}

void tst_RuleEffectLabel::changedCondition()
{
    // The other conditions hold on, the one that is edited does not.
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(mapping, 0, "k .LT. 7");
    addCondition(mapping, 0, "k .EQ. 5");
    editor.load(mapping);
    editor.whileFormulaIsOpen = [&] {
        DlgFormulaEditor *const dialog = shownDialog();
        QTRY_COMPARE(effectOf(dialog)->text(), Effect.arg("1", "1", "0"));
        dialog->findChild<QPlainTextEdit *>()->setPlainText("k .GT. 5");
        QTRY_COMPARE(effectOf(dialog)->text(), Effect.arg("1", "1", "0"));
        dialog->findChild<QPlainTextEdit *>()->setPlainText(QString());
        QTRY_COMPARE(effectOf(dialog)->text(), Effect.arg("2", "2", "0"));
        dialog->reject();
    };
    editor.answerFormula(QString());
    editor.clickCell(editor.conditions(), 1, 1);
    QCOMPARE(editor.formulas, 1);
}

void tst_RuleEffectLabel::formula()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "k");
    enter(mapping, 0, 1, 1, PRJMAPPING::Verified);
    editor.load(mapping);
    editor.edit(editor.variables(), 0, 2);
    editor.whileFormulaIsOpen = [&] {
        DlgFormulaEditor *const dialog = shownDialog();
        dialog->findChild<QPlainTextEdit *>()->setPlainText("k = k + 1");
        QTRY_COMPARE(effectOf(dialog)->text(), Effect.arg("3", "0", "1 (1)"));
        dialog->findChild<QPlainTextEdit *>()->setPlainText("k = k * 1");
        QTRY_COMPARE(effectOf(dialog)->text(), Effect.arg("3", "1", "0"));
        dialog->reject();
    };
    editor.answerFormula(QString());
    editor.chooseEntry(editor.variables(), "Formel...", false);
    QTRY_COMPARE(editor.formulas, 1);
}

void tst_RuleEffectLabel::variable()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "k");
    enter(mapping, 0, 1, 1, PRJMAPPING::Verified);
    editor.load(mapping);
    editor.edit(editor.variables(), 0, 2);
    QComboBox *const box = TargetLists::box(editor.variables());
    QVERIFY(box);
    auto *const frame = box->findChild<QWidget *>("ruleEffectOfBox");
    QVERIFY(frame && frame->isVisible());
    QTRY_COMPARE(effectOf(frame)->text(), Effect.arg("3", "1", "0"));
    Q_EMIT box->highlighted(box->findText("D"));
    QVERIFY(frame->isVisible());
    QTRY_COMPARE(effectOf(frame)->text(), Effect.arg("3", "0", "1 (1)"));
    Q_EMIT box->highlighted(box->findText("k"));
    QTRY_COMPARE(effectOf(frame)->text(), Effect.arg("3", "1", "0"));
    Q_EMIT box->highlighted(0); // a formula tells in its own dialog
    QVERIFY(!frame->isVisible());
    QTest::keyClick(box, Qt::Key_Down);
    const QPointer<QWidget> shown(frame);
    QTest::keyClick(box, Qt::Key_Return);
    QTRY_VERIFY(!shown);
}

void tst_RuleEffectLabel::variableOfTheTarget()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "k");
    enter(mapping, 0, 1, 1, PRJMAPPING::Verified);
    editor.load(mapping);
    editor.edit(editor.variables(), 0, 1);
    QComboBox *const box = TargetLists::box(editor.variables());
    auto *const frame = box->findChild<QWidget *>("ruleEffectOfBox");
    Q_EMIT box->highlighted(box->findText("D"));
    QTRY_COMPARE(effectOf(frame)->text(), Effect.arg("3", "0", "1 (1)"));
}

namespace {

/// The column of targets with the table column beside it.
struct BothColumns : TargetLists
{
    explicit BothColumns(const QList<int> &selected)
    {
        catalog.write("old/a.prj", "Form,D,k:n\nA & B,M8,5\nA & B,M9,6\nC,M8,7\n");
        const PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
        const VKTab::ContentRef source = catalog.read("old/a.prj");
        table.loadSourceTable(source, mapping, catalogOf(mapping));
        widget.setTableMappingWidget(&table);
        widget.loadSourceProject(mapping, source, catalogOf(mapping));
        widget.resize(900, 700);
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
        QAbstractItemView *const grid = table.sourceView()->grid();
        for (const int line : selected)
            grid->selectionModel()->select(grid->model()->index(line - 1, 0),
                                           QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    TableMappingWidget table{nullptr};
};

} // namespace

void tst_RuleEffectLabel::offer()
{
    BothColumns editor({1, 2});
    editor.whileFormulaIsOpen = [&] {
        DlgFormulaEditor *const dialog = shownDialog();
        auto *const button = dialog->findChild<QPushButton *>("offeredCondition");
        QVERIFY(button);
        QCOMPARE(button->text(), QStringLiteral("Aus der Auswahl (2): Form .EQ. 'A && B'"));
        QVERIFY(!button->autoDefault());
        QTest::keyClick(button, Qt::Key_Space);
        QCOMPARE(dialog->getFormula(), QStringLiteral("Form .EQ. 'A & B'"));
        dialog->accept();
    };
    editor.answerFormula(QString());
    editor.clickAdd(editor.conditions());
    QCOMPARE(conditionsOf(editor.stored()), QStringList("Form .EQ. 'A & B'"));
}

void tst_RuleEffectLabel::offerBehindAText()
{
    BothColumns editor({1, 2});
    editor.whileFormulaIsOpen = [&] {
        DlgFormulaEditor *const dialog = shownDialog();
        dialog->setFormula("k .GT. 5");
        QTest::mouseClick(dialog->findChild<QPushButton *>("offeredCondition"), Qt::LeftButton);
        QCOMPARE(dialog->getFormula(), QStringLiteral("k .GT. 5 .AND. Form .EQ. 'A & B'"));
        dialog->reject();
    };
    editor.answerFormula(QString());
    editor.clickAdd(editor.conditions());
    QCOMPARE(editor.formulas, 1);
}

void tst_RuleEffectLabel::noOffer()
{
    for (const QList<int> &selected : {QList<int>(), QList<int>{1, 2, 3}}) {
        BothColumns editor(selected);
        editor.whileFormulaIsOpen = [&] {
            DlgFormulaEditor *const dialog = shownDialog();
            QVERIFY(!dialog->findChild<QPushButton *>("offeredCondition"));
            dialog->reject();
        };
        editor.answerFormula(QString());
        editor.clickAdd(editor.conditions());
        QCOMPARE(editor.formulas, 1);
    }
}

QTEST_MAIN(tst_RuleEffectLabel)
#include "tst_RuleEffectLabel.moc"
