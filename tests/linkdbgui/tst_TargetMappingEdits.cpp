// Adding and editing of conditions and variable mappings in the panel of a target.
#include "TargetLists.h"

#include <QPointer>
#include <QStandardItemModel>

using PRJMAPPING::Mapped;

class tst_TargetMappingEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void buttons();
    void slotOrder();
    void editTriggers();
    void addCondition();
    void addConditionCancelled();
    void addFaultyCondition();
    void editCondition_data();
    void editCondition();
    void rightClickOpensTheEditorToo();
    void heldRightButtonDoesNot();
    void emptyConditionIsLeftOut();
    void conditionMovesLines();
    void addVariableMapping();
    void choicelessRowIsStored();
    void chooseIgnored();
    void ignoredStaysIgnored();
    void formulaForAVariable();
    void formulaReplacesTheMarker();
    void formulaCancelled();
    void formulaOfAMovedTarget();
    void buttonColumnIsNotEdited();
    void deleteByKeyboard();
    void panelGoesWhileTheEditorIsOpen_data();
    void panelGoesWhileTheEditorIsOpen();
    void withoutTargetTable();
    void hostileTexts_data();
    void hostileTexts();
    void hostilePath();
};

void tst_TargetMappingEdits::initTestCase()
{
    qRegisterMetaType<PrjMappingC>("PrjMappingC");
}

void tst_TargetMappingEdits::buttons()
{
    TargetLists editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    const std::pair<QTableView *, QString> lists[] = {
        {editor.conditions(), "Bedingung hinzufügen"},
        {editor.variables(), "Variablenzuordnung hinzufügen"}};
    for (const auto &[list, toolTip] : lists) {
        auto *const header = qobject_cast<PButtonHeaderView *>(list->horizontalHeader());
        QCOMPARE(header->accessibleName(), toolTip);
        QCOMPARE(header->buttonRect(0).size(), QSize(24, std::min(24, header->height())));
        QVERIFY(header->buttonRect(1).isEmpty());
    }
}

void tst_TargetMappingEdits::slotOrder()
{
    QStringList names;
    const QMetaObject &meta = TargetMappingWidget::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names += meta.method(i).methodSignature();
    QCOMPARE(
        names,
        QStringList({"onAddVariableMappingClicked()", "onDeleteVarMapping(QModelIndex,int)",
                     "onAddConditionClicked()", "onDeleteConditionClicked(QModelIndex,int)",
                     "onRemoveTargetClicked()", "onSelectProjectClicked()", "onAssignTarget()",
                     "onVarMappingContextMenu(QPoint)", "onCopyVarMapping()", "onPasteVarMapping()",
                     "onConditionContextMenu(QPoint)", "onCopyCondition()", "onPasteCondition()",
                     "onMoveTargetUp()", "onMoveTargetDown()"}));
}

void tst_TargetMappingEdits::editTriggers()
{
    TargetLists editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    const QTableView plain;
    QCOMPARE(editor.conditions()->editTriggers(), plain.editTriggers());
    QCOMPARE(editor.variables()->editTriggers(),
             plain.editTriggers() | QAbstractItemView::SelectedClicked);
}

void tst_TargetMappingEdits::addCondition()
{
    TargetLists editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    editor.answerFormula("k .GT. 5 .AND. D .EQ. 'M9'");
    editor.clickAdd(editor.conditions());
    QCOMPARE(editor.formulas, 1);
    QCOMPARE(editor.formulaBefore, QString());
    QCOMPARE(editor.updates.count(), 1);
    QCOMPARE(conditionsOf(editor.stored()), QStringList("k .GT. 5 .AND. D .EQ. 'M9'"));
    QCOMPARE(editor.rows(editor.conditions()), QStringList("k .GT. 5 .AND. D .EQ. 'M9'"));
    QVERIFY(editor.conditions()->model()->index(0, 1).data(FormulaRole).toBool());
    QCOMPARE(editor.panel(0)->conditionVariables, QStringList({"k", "D"}));
}

void tst_TargetMappingEdits::addConditionCancelled()
{
    TargetLists editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    editor.answerFormula("k .GT. 5", false);
    editor.clickAdd(editor.conditions());
    QCOMPARE(editor.formulas, 1);
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(editor.conditions()->model()->rowCount(), 0);
}

void tst_TargetMappingEdits::addFaultyCondition()
{
    TargetLists editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    editor.answerFormula("gone .EQ. 1");
    editor.clickAdd(editor.conditions());
    // Told, not stored, and there to be put right.
    QCOMPARE(editor.messages->texts().size(), 1);
    QVERIFY(editor.messages->texts().first().startsWith("error: "));
    QCOMPARE(conditionsOf(editor.stored()), QStringList());
    QCOMPARE(editor.rows(editor.conditions()), QStringList("gone .EQ. 1"));
}

void tst_TargetMappingEdits::editCondition_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("click") << 0;
    QTest::newRow("F2") << int(Qt::Key_F2);
    QTest::newRow("blank") << int(Qt::Key_Space);
}

void tst_TargetMappingEdits::editCondition()
{
    QFETCH(int, key);
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    ::addCondition(mapping, 0, "k .LT. 9");
    ::addCondition(mapping, 0, "k .LT. 8");
    editor.load(mapping);
    editor.answerFormula("k .LT. 7");
    if (key == 0) {
        editor.clickCell(editor.conditions(), 1, 1);
    } else {
        editor.conditions()->setFocus();
        editor.conditions()->setCurrentIndex(editor.conditions()->model()->index(1, 1));
        QTest::keyClick(editor.conditions(), Qt::Key(key), Qt::ShiftModifier);
        QCOMPARE(editor.formulas, 0); // other keys' business
        QTest::keyClick(editor.conditions(), Qt::Key(key));
    }
    QCOMPARE(editor.formulas, 1);
    QCOMPARE(editor.formulaBefore, QStringLiteral("k .LT. 8"));
    QCOMPARE(conditionsOf(editor.stored()), QStringList({"k .LT. 9", "k .LT. 7"}));
    QVERIFY(editor.conditions()->model()->index(1, 1).data(FormulaRole).toBool());
    QVERIFY(!editor.box(editor.conditions()));
}

void tst_TargetMappingEdits::rightClickOpensTheEditorToo()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    ::addCondition(mapping, 0, "k .LT. 9");
    editor.load(mapping);
    editor.answerFormula("k .LT. 7");
    editor.clickCell(editor.conditions(), 0, 1, Qt::RightButton);
    QCOMPARE(editor.formulas, 1);
}

void tst_TargetMappingEdits::heldRightButtonDoesNot()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    ::addCondition(mapping, 0, "k .LT. 9");
    editor.load(mapping);
    editor.answerFormula("k .LT. 7");
    QTableView *const list = editor.conditions();
    const QPoint pos = editor.cell(list, 0, 1);
    QTest::mousePress(list->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QMouseEvent release(QEvent::MouseButtonRelease, pos, list->viewport()->mapToGlobal(pos),
                        Qt::LeftButton, Qt::RightButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list->viewport(), &release);
    QCoreApplication::processEvents();
    QCOMPARE(editor.formulas, 0);
}

void tst_TargetMappingEdits::emptyConditionIsLeftOut()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    ::addCondition(mapping, 0, "k .LT. 9");
    ::addCondition(mapping, 0, "k .LT. 8");
    editor.load(mapping);
    editor.answerFormula(QString());
    editor.clickCell(editor.conditions(), 0, 1);
    QCOMPARE(conditionsOf(editor.stored()), QStringList("k .LT. 8"));
    QCOMPARE(editor.rows(editor.conditions()), QStringList({"", "k .LT. 8"}));
    QCOMPARE(editor.messages->texts(), QStringList());
}

void tst_TargetMappingEdits::conditionMovesLines()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/b.prj", "new/a.prj"});
    editor.load(mapping);
    editor.answerFormula("k .GT. 6");
    editor.clickAdd(editor.conditions());
    // The lines are looked for anew: the second target takes what the first one is not for.
    QCOMPARE(entriesOf(editor.announced()), QStringLiteral("0:3>3/0 1:1>1/1 1:2>2/1"));
}

void tst_TargetMappingEdits::addVariableMapping()
{
    TargetLists editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    editor.clickAdd(editor.variables());
    // Nothing is stored before something is chosen.
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(editor.rows(editor.variables()), QStringList("|"));
    QComboBox *const targets = editor.box(editor.variables());
    QVERIFY(targets);
    QStringList offered;
    for (int i = 0; i < targets->count(); ++i)
        offered += targets->itemText(i);
    QCOMPARE(offered, QStringList({"D", "k"}));
    QCOMPARE(targets->currentIndex(), -1);
    editor.chooseEntry(editor.variables(), "k");
    QTRY_COMPARE(editor.updates.count(), 1);
    QCOMPARE(editor.rows(editor.variables()), QStringList("k|"));
    QCOMPARE(modifiersOf(editor.stored()), QStringLiteral("k="));
    editor.edit(editor.variables(), 0, 2);
    editor.chooseEntry(editor.variables(), "D");
    QTRY_COMPARE(modifiersOf(editor.stored()), QStringLiteral("k=D"));
    QVERIFY(!editor.variables()->model()->index(0, 2).data(FormulaRole).toBool());
    // No line is assigned by that.
    QCOMPARE(entriesOf(editor.announced()), QString());
}

void tst_TargetMappingEdits::choicelessRowIsStored()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "D");
    editor.load(mapping);
    editor.clickAdd(editor.variables());
    QTest::keyClick(editor.box(editor.variables()), Qt::Key_Escape);
    QTRY_VERIFY(!editor.box(editor.variables()));
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(editor.rows(editor.variables()), QStringList({"D|k", "|"}));
    clickDelete(editor.variables(), 0);
    QCOMPARE(modifiersOf(editor.stored()), QStringLiteral("="));
}

void tst_TargetMappingEdits::chooseIgnored()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "D");
    editor.load(mapping);
    editor.edit(editor.variables(), 0, 2);
    const QComboBox *const sources = editor.box(editor.variables());
    QStringList offered;
    for (int i = 0; i < sources->count(); ++i)
        offered += sources->itemText(i);
    QCOMPARE(offered, QStringList({"Formel...", "<Variable ignorieren>", "", "D", "k"}));
    QCOMPARE(sources->currentText(), QStringLiteral("k"));
    QVERIFY(!sources->itemIcon(0).isNull());
    QCOMPARE(sources->itemData(0, RowRole), QVariant(0));
    QCOMPARE(sources->itemData(1, VariableNameRole), QVariant(QString()));
    editor.chooseEntry(editor.variables(), "<Variable ignorieren>");
    QTRY_COMPARE(modifiersOf(editor.stored()), QStringLiteral("D="));
    const QModelIndex cell = editor.variables()->model()->index(0, 2);
    QCOMPARE(cell.data().toString(), QStringLiteral("<Variable ignorieren>"));
    QCOMPARE(cell.data(IgnoredRole), QVariant(true));
    QCOMPARE(cell.data(FormulaRole), QVariant(false));
}

void tst_TargetMappingEdits::ignoredStaysIgnored()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "", "D");
    editor.load(mapping);
    editor.edit(editor.variables(), 0, 2);
    editor.chooseEntry(editor.variables(), "k");
    QTRY_COMPARE(editor.rows(editor.variables()), QStringList("D|k"));
    QTRY_COMPARE(modifiersOf(editor.stored()), QStringLiteral("D="));
}

void tst_TargetMappingEdits::formulaForAVariable()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "k");
    editor.load(mapping);
    editor.edit(editor.variables(), 0, 2);
    editor.answerFormula("k = k + 1");
    editor.chooseEntry(editor.variables(), "Formel...", false);
    QTRY_COMPARE(editor.formulas, 1);
    // The old text is there to begin with, also if it is no formula.
    QCOMPARE(editor.formulaBefore, QStringLiteral("k"));
    QTRY_COMPARE(modifiersOf(editor.stored()), QStringLiteral("k = k + 1"));
    const QModelIndex cell = editor.variables()->model()->index(0, 2);
    QCOMPARE(cell.data(FormulaRole), QVariant(true));
    QCOMPARE(cell.data(IgnoredRole), QVariant(false));
    QCOMPARE(editor.rows(editor.variables()), QStringList("k|k = k + 1"));
}

void tst_TargetMappingEdits::formulaReplacesTheMarker()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "", "k");
    editor.load(mapping);
    editor.edit(editor.variables(), 0, 2);
    editor.answerFormula("k = 3");
    editor.chooseEntry(editor.variables(), "Formel...", false);
    QTRY_COMPARE(editor.formulas, 1);
    QCOMPARE(editor.formulaBefore, QString());
    QTRY_COMPARE(modifiersOf(editor.stored()), QStringLiteral("k = 3"));
}

void tst_TargetMappingEdits::formulaCancelled()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "k");
    editor.load(mapping);
    editor.edit(editor.variables(), 0, 2);
    editor.answerFormula("k = 3", false);
    editor.chooseEntry(editor.variables(), "Formel...", false);
    QTRY_COMPARE(editor.formulas, 1);
    QCOMPARE(editor.rows(editor.variables()), QStringList("k|k"));
}

void tst_TargetMappingEdits::formulaOfAMovedTarget()
{
    // The panel has another index by now.
    TargetLists editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"}), CatalogMappingC());
    editor.click(1, "upButton");
    editor.answerFormula("k .LT. 9");
    editor.clickAdd(editor.conditions(0));
    QCOMPARE(targetPaths(editor.announced()), QStringLiteral("new/b.prj new/a.prj"));
    QCOMPARE(conditionsOf(editor.stored(0)), QStringList("k .LT. 9"));
    QCOMPARE(conditionsOf(editor.stored(1)), QStringList());
}

void tst_TargetMappingEdits::buttonColumnIsNotEdited()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "k");
    editor.load(mapping);
    editor.edit(editor.variables(), 0, 0);
    QTest::keyClick(editor.variables(), Qt::Key_A);
    QVERIFY(editor.variables()->viewport()->findChildren<QWidget *>().isEmpty());
}

void tst_TargetMappingEdits::deleteByKeyboard()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "D");
    addRename(mapping, 0, "D", "k");
    editor.load(mapping);
    editor.variables()->setFocus();
    editor.variables()->setCurrentIndex(editor.variables()->model()->index(1, 0));
    QTest::keyClick(editor.variables(), Qt::Key_Space);
    QCOMPARE(modifiersOf(editor.stored()), QStringLiteral("D=k"));
}

void tst_TargetMappingEdits::panelGoesWhileTheEditorIsOpen_data()
{
    QTest::addColumn<QString>("opened");
    QTest::addColumn<bool>("wholeWidget");
    for (const char *const opened : {"add", "cell", "formula"}) {
        QTest::addRow("%s, another project", opened) << opened << false;
        QTest::addRow("%s, the whole widget", opened) << opened << true;
    }
}

void tst_TargetMappingEdits::panelGoesWhileTheEditorIsOpen()
{
    QFETCH(QString, opened);
    QFETCH(bool, wholeWidget);
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    ::addCondition(mapping, 0, "k .LT. 9");
    addRename(mapping, 0, "k", "k");
    const QPointer<ProjectMappingWidget> other(new ProjectMappingWidget(nullptr));
    ProjectMappingWidget *const used = wholeWidget ? other.data() : &editor.widget;
    used->loadSourceProject(mapping, editor.catalog.read("old/a.prj"), catalogOf(mapping));
    used->resize(900, 700);
    used->show();
    QVERIFY(QTest::qWaitForWindowExposed(used));
    const QPointer<TargetMappingWidget> panel = targetPanels(used).value(0);
    editor.whileFormulaIsOpen = [&] {
        if (wholeWidget)
            delete other;
        else
            editor.widget.loadSourceProject(mappingOf("old/b.prj", {}), VKTab::ContentRef(),
                                            CatalogMappingC());
        QVERIFY(panel); // an event handler of it is still running
    };
    editor.answerFormula(QString());
    auto *const conditions = panel->findChild<QTableView *>("conditionView");
    auto *const variables = panel->findChild<QTableView *>("variableView");
    if (opened == "add") {
        editor.clickAdd(conditions);
    } else if (opened == "cell") {
        editor.clickCell(conditions, 0, 1);
    } else {
        editor.edit(variables, 0, 2);
        editor.chooseEntry(variables, "Formel...", false);
    }
    QTRY_COMPARE(editor.formulas, 1);
    QTRY_VERIFY(!panel);
    // The box tells that it was left, as the editor takes the focus.
    QCOMPARE(editor.updates.count(), opened == "formula" && !wholeWidget ? 1 : 0);
    QVERIFY(!QApplication::activeModalWidget());
    delete other;
}

void tst_TargetMappingEdits::withoutTargetTable()
{
    TargetLists editor;
    QVERIFY(QFile::remove(editor.catalog.file("new/a.json")));
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}), CatalogMappingC());
    editor.clickAdd(editor.variables());
    QCOMPARE(editor.box(editor.variables())->count(), 0);
    QTest::keyClick(editor.box(editor.variables()), Qt::Key_Return);
    QTRY_COMPARE(modifiersOf(editor.stored()), QStringLiteral("="));
    // Conditions need the source table alone.
    editor.answerFormula("k .LT. 9");
    editor.clickAdd(editor.conditions());
    QCOMPARE(conditionsOf(editor.stored()), QStringList("k .LT. 9"));
}

void tst_TargetMappingEdits::hostileTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("parses");
    QTest::newRow("quote") << "D .EQ. 'it''s'" << true;
    QTest::newRow("open quote") << "D .EQ. 'it's'" << false;
    QTest::newRow("places") << "D .EQ. '%1%2%L1'" << true;
    QTest::newRow("markup") << "D .EQ. '<b>x</b>&amp;'" << true;
    QTest::newRow("line feeds") << "k .LT. 9\n.AND.\nk .GT. 1" << true;
    QTest::newRow("10 000 characters") << "D .EQ. '" + QString(10'000, 'x') + '\'' << true;
}

void tst_TargetMappingEdits::hostileTexts()
{
    QFETCH(QString, text);
    QFETCH(bool, parses);
    TargetLists editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    const int width = editor.panel(0)->width();
    editor.answerFormula(text);
    editor.clickAdd(editor.conditions());
    QCOMPARE(editor.rows(editor.conditions()), QStringList(text));
    QCOMPARE(conditionsOf(editor.stored()), parses ? QStringList(text) : QStringList());
    QCOMPARE(editor.messages->texts().size(), parses ? 0 : 1);
    QVERIFY(!editor.widget.grab().isNull());
    QCOMPARE(editor.panel(0)->width(), width);
    // It can be copied as it is.
    editor.openMenu(editor.conditions(), 0, 1);
    editor.choose("Kopieren");
    editor.openMenu(editor.conditions(), 0, 1);
    editor.choose("Einfügen");
    QCOMPARE(conditionsOf(editor.stored()), parses ? QStringList({text, text}) : QStringList());
}

void tst_TargetMappingEdits::hostilePath()
{
    TargetLists editor;
    const QString path = "new/<b>%1\"'\n" + QString(3000, 'x') + ".prj";
    editor.load(mappingOf("old/a.prj", {path, "new/a.prj"}), CatalogMappingC());
    QCOMPARE(editor.messages->texts(),
             QStringList("Das Zielprojekt " + path + " existiert nicht mehr"));
    const auto *const label = editor.panel(0)->findChild<QLabel *>("pathLabel");
    QCOMPARE(label->text(), path.toHtmlEscaped() + " <b>(Konnte nicht gefunden werden)</b>");
    QVERIFY(editor.panel(0)->width() < 1000);
    QCOMPARE(editor.panel(1)->findChild<QLabel *>("pathLabel")->textFormat(), Qt::PlainText);
}

QTEST_MAIN(tst_TargetMappingEdits)
#include "tst_TargetMappingEdits.moc"
