// Copying and pasting of conditions and variable mappings between targets.
#include "TargetLists.h"

class tst_TargetMappingCopies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void menus();
    void menuByKeyboard();
    void mappingIntoAnotherTarget();
    void formulaIntoAnotherTarget();
    void pasteSurvivesAnotherProject();
    void ignoredIsNotPasted();
    void pasteErrors_data();
    void pasteErrors();
    void condition();
    void conditionOfTheButtonColumn();
    void conditionThatDoesNotParse();
    void prefixInside();
};

namespace {

/// Two targets; the second lacks "k" and has "x" instead.
PrjMappingC twoTargets(const TargetLists &editor)
{
    editor.catalog.write("new/b.prj", "D,x:n\nM8,5\n");
    return mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
}

void copy(const QTableView *list, int row, int column)
{
    TargetLists::openMenu(const_cast<QTableView *>(list), row, column);
    TargetLists::choose("Kopieren");
}

void paste(QTableView *list)
{
    TargetLists::openMenu(list, -1, 0);
    TargetLists::choose("Einfügen");
}

} // namespace

void tst_TargetMappingCopies::initTestCase()
{
    qRegisterMetaType<PrjMappingC>("PrjMappingC");
}

void tst_TargetMappingCopies::menus()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(mapping, 0, "k .LT. 9");
    addRename(mapping, 0, "k", "k");
    editor.load(mapping);
    for (QTableView *const list : {editor.conditions(), editor.variables()}) {
        const QModelIndex cell = list->model()->index(0, 1);
        list->model()->setData(cell, list->model()->index(0, 1).data());
        // Beside the rows there is nothing to copy; the empty menu comes all the same.
        list->setMinimumHeight(list->height() + 60);
        QTRY_VERIFY(list->viewport()->height() > 70);
        QCOMPARE(editor.openMenu(list, -1, 0), QStringList());
        QVERIFY(editor.shownMenu());
        editor.closeMenu();
        QCOMPARE(editor.openMenu(list, 0, 1), QStringList("Kopieren"));
        editor.choose("Kopieren");
        QTRY_VERIFY(!editor.shownMenu());
        QCOMPARE(editor.openMenu(list, 0, 1), QStringList({"Kopieren", "Einfügen"}));
        editor.closeMenu();
        QCOMPARE(editor.openMenu(list, -1, 0), QStringList("Einfügen"));
        editor.closeMenu();
        list->setMinimumHeight(0);
    }
    QCOMPARE(editor.updates.count(), 0);
}

void tst_TargetMappingCopies::menuByKeyboard()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(mapping, 0, "k .LT. 9");
    addCondition(mapping, 0, "k .LT. 8");
    editor.load(mapping);
    QTableView *const list = editor.conditions();
    list->setFocus();
    list->setCurrentIndex(list->model()->index(1, 1));
    const QPoint pos = list->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, pos, list->mapToGlobal(pos));
    QCoreApplication::sendEvent(list, &event);
    QVERIFY(editor.shownMenu());
    QTest::keyClick(editor.shownMenu(), Qt::Key_Down);
    QTest::keyClick(editor.shownMenu(), Qt::Key_Return);
    editor.openMenu(list, 0, 1);
    QTest::keyClick(editor.shownMenu(), Qt::Key_Up);
    QTest::keyClick(editor.shownMenu(), Qt::Key_Return);
    QCOMPARE(conditionsOf(editor.stored()), QStringList({"k .LT. 9", "k .LT. 8", "k .LT. 8"}));
}

void tst_TargetMappingCopies::mappingIntoAnotherTarget()
{
    TargetLists editor;
    PrjMappingC mapping = twoTargets(editor);
    addRename(mapping, 0, "k", "D");
    editor.load(mapping, CatalogMappingC());
    copy(editor.variables(0), 0, 0); // any column of the row
    paste(editor.variables(1));
    QCOMPARE(editor.updates.count(), 1);
    QCOMPARE(modifiersOf(editor.stored(1)), QStringLiteral("D=k"));
    QCOMPARE(editor.rows(editor.variables(1)), QStringList("D|k"));
    QVERIFY(!editor.variables(1)->model()->index(0, 2).data(FormulaRole).toBool());
}

void tst_TargetMappingCopies::formulaIntoAnotherTarget()
{
    TargetLists editor;
    PrjMappingC mapping = twoTargets(editor);
    addFormula(mapping, 0, "D = 'a%1'");
    editor.load(mapping, CatalogMappingC());
    copy(editor.variables(0), 0, 2);
    paste(editor.variables(1));
    QCOMPARE(modifiersOf(editor.stored(1)), QStringLiteral("D = 'a%1'"));
    QCOMPARE(editor.variables(1)->model()->index(0, 2).data(FormulaRole), QVariant(true));
}

void tst_TargetMappingCopies::pasteSurvivesAnotherProject()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "D");
    addCondition(mapping, 0, "k .LT. 9");
    editor.load(mapping);
    copy(editor.variables(), 0, 1);
    copy(editor.conditions(), 0, 1);
    editor.load(mappingOf("old/b.prj", {"new/b.prj"}), CatalogMappingC());
    paste(editor.variables());
    paste(editor.conditions());
    QCOMPARE(modifiersOf(editor.stored()), QStringLiteral("D=k"));
    QCOMPARE(conditionsOf(editor.stored()), QStringList("k .LT. 9"));
}

void tst_TargetMappingCopies::ignoredIsNotPasted()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "", "D");
    editor.load(mapping);
    copy(editor.variables(), 0, 1);
    paste(editor.variables());
    QCOMPARE(editor.messages->texts(),
             QStringList("Fehler beim Kopieren der Variablenzuordnung.\nDieVariable <Variable "
                         "ignorieren> existiert nicht in der Quelltabelle"));
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(editor.variables()->model()->rowCount(), 1);
}

void tst_TargetMappingCopies::pasteErrors_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("formula");
    QTest::addColumn<QString>("error");
    const QString noTarget = "Die Variable %2 existiert nicht in der Zieltabelle";
    const QString noSource = "DieVariable %1 existiert nicht in der Quelltabelle";
    QTest::newRow("target") << "%2"
                            << "k" << false << noTarget;
    QTest::newRow("source") << "D"
                            << "%1" << false << noSource;
    QTest::newRow("both") << "%2"
                          << "%1" << false << noTarget + noSource;
    QTest::newRow("formula, target") << "%2"
                                     << "D = gone" << true << noTarget;
    QTest::newRow("formula, text") << "D"
                                   << "D = gone" << true << "*";
}

void tst_TargetMappingCopies::pasteErrors()
{
    QFETCH(QString, target);
    QFETCH(QString, source);
    QFETCH(bool, formula);
    QFETCH(QString, error);
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "k");
    editor.load(mapping);
    QAbstractItemModel *const model = editor.variables()->model();
    model->setData(model->index(0, 1), target);
    model->setData(model->index(0, 2), source);
    model->setData(model->index(0, 2), formula, FormulaRole);
    copy(editor.variables(), 0, 1);
    paste(editor.variables());
    QCOMPARE(editor.messages->texts().size(), 1);
    const QString heading = "Fehler beim Kopieren der Variablenzuordnung.\n";
    const QString text = editor.messages->texts().first();
    QVERIFY(text.startsWith(heading));
    if (error == "*") { // the parser's, without its prefix
        QVERIFY(text.size() > heading.size());
        QVERIFY(!text.contains("error: "));
    } else {
        QCOMPARE(text, heading + error);
    }
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(model->rowCount(), 1);
}

void tst_TargetMappingCopies::condition()
{
    TargetLists editor;
    PrjMappingC mapping = twoTargets(editor);
    addCondition(mapping, 0, "k .LT. 9");
    editor.load(mapping);
    copy(editor.conditions(0), 0, 1);
    paste(editor.conditions(1));
    QCOMPARE(conditionsOf(editor.stored(1)), QStringList("k .LT. 9"));
    QCOMPARE(editor.conditions(1)->model()->index(0, 1).data(FormulaRole), QVariant(true));
    QCOMPARE(editor.panel(1)->conditionVariables, QStringList("k"));
}

void tst_TargetMappingCopies::conditionOfTheButtonColumn()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(mapping, 0, "k .LT. 9");
    editor.load(mapping);
    copy(editor.conditions(), 0, 1);
    copy(editor.conditions(), 0, 0);
    QCOMPARE(editor.openMenu(editor.conditions(), 0, 1), QStringList("Kopieren"));
    editor.closeMenu();
}

void tst_TargetMappingCopies::conditionThatDoesNotParse()
{
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(mapping, 0, "gone .LT. 9");
    editor.load(mapping);
    editor.messages->clear();
    copy(editor.conditions(), 0, 1);
    paste(editor.conditions());
    const QString heading = "Fehler beim Kopieren der Bedingung:\n";
    QCOMPARE(editor.messages->texts().size(), 1);
    QVERIFY(editor.messages->texts().first().startsWith(heading));
    QVERIFY(editor.messages->texts().first().size() > heading.size());
    QVERIFY(!editor.messages->texts().first().contains("error: "));
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(editor.conditions()->model()->rowCount(), 1);
}

void tst_TargetMappingCopies::prefixInside()
{
    // Every "error: " goes once the text begins with it.
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "k");
    editor.load(mapping);
    QAbstractItemModel *const model = editor.variables()->model();
    for (const bool first : {true, false}) {
        editor.messages->clear();
        model->setData(model->index(0, 1), first ? "k" : "error: x");
        model->setData(model->index(0, 2), first ? "k = 1 'error: x'" : "k = 1");
        model->setData(model->index(0, 2), true, FormulaRole);
        copy(editor.variables(), 0, 1);
        paste(editor.variables());
        QCOMPARE(editor.messages->texts().size(), 1);
        QCOMPARE(editor.messages->texts().first().contains("error: "), !first);
        QVERIFY(!first || editor.messages->texts().first().contains("'x'"));
    }
}

QTEST_MAIN(tst_TargetMappingCopies)
#include "tst_TargetMappingCopies.moc"
