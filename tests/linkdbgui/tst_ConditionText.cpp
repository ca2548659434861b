#include "TableEditorFixture.h"

#include <mapping/table/conditionText.h>

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/binding/VarsetConditionC.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QTest>

namespace {

QHash<QString, MapVarValueC> varset(const QList<std::tuple<QString, QString, bool>> &values)
{
    QHash<QString, MapVarValueC> result;
    for (const auto &[name, text, numeric] : values) {
        MapVarValueC value;
        value.setName(name);
        value.setValue(VKTab::Value(text));
        value.setNumeric(numeric);
        result.insert(name, value);
    }
    return result;
}

QClipboard *clipboard()
{
    return QGuiApplication::clipboard();
}

} // namespace

class tst_ConditionText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { f.reset(); }

    void oneValue_data();
    void oneValue();
    void severalValues();
    void orderOfTheHash();
    void emptyVarset();
    void nameOfTheKey();

    void ofTheSelectedLine();
    void rangeWithItsStoredText();
    void fromTheMenu();
    void withoutSelection();
    void withoutTable();
    void lineWithoutValues();
    void severalSelectedLines();
    void holdsForItsLine();

private:
    std::unique_ptr<TableEditorFixture> f;
};

void tst_ConditionText::init()
{
    f = std::make_unique<TableEditorFixture>();
    f->catalog.write("old/a.prj", "k:n\n5\n6\n");
    f->catalog.write("new/a.prj", "k:n\n5\n6\n");
    clipboard()->setText("before");
}

void tst_ConditionText::oneValue_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("numeric");
    QTest::addColumn<QString>("expected");

    QTest::newRow("number") << "12" << true << "A .EQ. 12";
    QTest::newRow("text") << "M8" << false << "A .EQ. 'M8'";
    QTest::newRow("text that is a number") << "12" << false << "A .EQ. '12'";
    QTest::newRow("quote stays") << "5'x" << false << "A .EQ. '5'x'";
    QTest::newRow("blanks stay") << " a " << false << "A .EQ. ' a '";
    QTest::newRow("empty text") << "" << false << "A .EQ. ''";
    QTest::newRow("missing number") << "" << true << "A .EQ. ";
    QTest::newRow("range") << "10;12" << true << "A .EQ. 10;12";
}

void tst_ConditionText::oneValue()
{
    QFETCH(QString, value);
    QFETCH(bool, numeric);
    QTEST(conditionText(varset({{"A", value, numeric}})), "expected");
}

void tst_ConditionText::severalValues()
{
    const QString text =
        conditionText(varset({{"A", "1", true}, {"B", "x", false}, {"C", "2", true}}));
    QStringList clauses = text.split(" .AND. ");
    clauses.sort();
    QCOMPARE(clauses, QStringList({"A .EQ. 1", "B .EQ. 'x'", "C .EQ. 2"}));
}

void tst_ConditionText::orderOfTheHash()
{
    QHash<QString, MapVarValueC> values;
    for (int i = 0; i < 40; ++i) {
        const QString name = QStringLiteral("V%1").arg(i);
        values.insert(name, varset({{name, "1", true}}).value(name));
    }
    QStringList expected;
    for (const QString &name : values.keys())
        expected.append(name + " .EQ. 1");
    QCOMPARE(conditionText(values), expected.join(" .AND. "));
}

void tst_ConditionText::emptyVarset()
{
    QCOMPARE(conditionText({}), QString());
}

void tst_ConditionText::nameOfTheKey()
{
    MapVarValueC value;
    value.setName("other");
    value.setValue(VKTab::Value("1"));
    value.setNumeric(true);
    QCOMPARE(conditionText({{"KEY", value}}), QString("KEY .EQ. 1"));
}

void tst_ConditionText::ofTheSelectedLine()
{
    f->load();
    f->select(2);
    QTest::mouseClick(f->button("btnCondition"), Qt::LeftButton);
    QCOMPARE(clipboard()->text(QClipboard::Clipboard), QString("k .EQ. 6"));
    QCOMPARE(f->published.size(), 0);
}

void tst_ConditionText::rangeWithItsStoredText()
{
    f->catalog.write("old/a.prj", "L:r\n10;12;16\n");
    f->load();
    f->select(1);
    QTest::mouseClick(f->button("btnCondition"), Qt::LeftButton);
    QCOMPARE(clipboard()->text(), QString("L .EQ. 10;12;16"));
}

void tst_ConditionText::fromTheMenu()
{
    f->load();
    f->select(1);
    QMenu *const menu = f->openMenu(f->source, 1);
    QVERIFY(menu);
    QAction *const row = TableEditorFixture::rowOf(
        menu, "Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren");
    QVERIFY(row);
    row->trigger();
    menu->close();
    QCOMPARE(clipboard()->text(), QString("k .EQ. 5"));
}

void tst_ConditionText::withoutSelection()
{
    f->load();
    QVERIFY(f->button("btnCondition")->isEnabled());
    QTest::mouseClick(f->button("btnCondition"), Qt::LeftButton);
    QCOMPARE(clipboard()->text(), QString("before"));
}

void tst_ConditionText::lineWithoutValues()
{
    f->catalog.write("old/a.prj", "I:i\n1\n2\n");
    f->load();
    f->select(1);
    QVERIFY(f->button("btnCondition")->isEnabled());
    QTest::mouseClick(f->button("btnCondition"), Qt::LeftButton);
    QCOMPARE(clipboard()->text(), QString("before"));
}

void tst_ConditionText::withoutTable()
{
    QTest::mouseClick(f->button("btnCondition"), Qt::LeftButton);
    QCOMPARE(clipboard()->text(), QString("before"));
}

void tst_ConditionText::severalSelectedLines()
{
    f->load();
    f->select(1);
    f->click(f->source, 2, Qt::ControlModifier);
    const VKTab::LineId selected = f->sourceTable().getSelection();
    QVERIFY(selected.isValid());
    QVERIFY(!f->button("btnCondition")->isEnabled());
    QMetaObject::invokeMethod(f->button("btnCondition"), "clicked");
    QCOMPARE(clipboard()->text(), QStringLiteral("k .EQ. %1").arg(selected.value(0) == 1 ? 5 : 6));
}

void tst_ConditionText::holdsForItsLine()
{
    f->catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\n");
    f->load();
    f->select(2);
    QTest::mouseClick(f->button("btnCondition"), Qt::LeftButton);
    const auto line = [&](int number) {
        return createVarsetFromVKTable(f->sourceTable(), VKTab::LineId(number), {});
    };
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(mapping, 0, clipboard()->text());
    QVERIFY(mapping.findTarget(0).conditionsHold(line(2)));
    QVERIFY(!mapping.findTarget(0).conditionsHold(line(1)));
}

QTEST_MAIN(tst_ConditionText)
#include "tst_ConditionText.moc"
