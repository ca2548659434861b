#include "../support/TestCatalog.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <release/decide/CommonValues.h>

#include <QTest>

using VelkRelease::CommonValues;
using VelkRelease::commonValues;

class tst_CommonValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void condition_data();
    void condition();
    void entries();
    void hostileValues_data();
    void hostileValues();
    void rangesAndEmptyValues();
};

namespace {

const QByteArray Table = "Form,D,k:n,Norm\nA,M8,5,DIN\nA,M9,5.0,DIN\nB,M8,5,DIN\nB,M9,7,DIN\n";

} // namespace

void tst_CommonValues::condition_data()
{
    QTest::addColumn<QList<int>>("lines");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("taken");
    // What fewest lines have is enough if it says it all.
    QTest::newRow("a form") << QList<int>{1, 2} << "Form .EQ. 'A'" << 2;
    // Numbers by value, and k = 5 is more than the form.
    QTest::newRow("a number") << QList<int>{1, 2, 3} << "k .EQ. 5" << 3;
    QTest::newRow("two of them") << QList<int>{3} << "Form .EQ. 'B' .AND. D .EQ. 'M8'" << 1;
    QTest::newRow("the number alone") << QList<int>{4} << "k .EQ. 7" << 1;
    QTest::newRow("what all have says nothing") << QList<int>{1, 2, 3, 4} << "" << 0;
    QTest::newRow("nothing in common") << QList<int>{2, 3, 4} << "" << 0;
    QTest::newRow("no line") << QList<int>{} << "" << 0;
    QTest::newRow("unknown lines") << QList<int>{99, 1, 2, -1} << "Form .EQ. 'A'" << 2;
}

void tst_CommonValues::condition()
{
    QFETCH(QList<int>, lines);
    QFETCH(QString, text);
    QFETCH(int, taken);
    const TestCatalog catalog;
    catalog.write("old/a.prj", Table);
    const CommonValues common = commonValues(catalog.read("old/a.prj"), lines);
    QCOMPARE(common.condition, text);
    QCOMPARE(common.taken, taken);
}

void tst_CommonValues::entries()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", Table);
    const CommonValues common = commonValues(catalog.read("old/a.prj"), {1});
    QStringList texts;
    for (const CommonValues::Entry &entry : common.entries)
        texts += QStringLiteral("%1=%2 (%3)").arg(entry.name, entry.value).arg(entry.lines);
    QCOMPARE(texts, QStringList({"Form=A (2)", "D=M8 (2)", "k=5 (3)"}));
    QVERIFY(commonValues(VKTab::Content(), {1}).condition.isEmpty());
}

void tst_CommonValues::hostileValues_data()
{
    QTest::addColumn<QByteArray>("cell");
    QTest::newRow("quote") << QByteArray("it's");
    QTest::newRow("only quotes") << QByteArray("'''");
    QTest::newRow("places") << QByteArray("%1%2");
    QTest::newRow("markup") << QByteArray("<b>&amp;");
    QTest::newRow("an operator") << QByteArray("A' .OR. 'A' .EQ. 'A");
    QTest::newRow("10 000 characters") << QByteArray(10'000, 'x');
}

void tst_CommonValues::hostileValues()
{
    QFETCH(QByteArray, cell);
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D\n\"" + cell + "\"\nother\n");
    const VKTab::ContentRef table = catalog.read("old/a.prj");
    const CommonValues common = commonValues(table, {1});
    QCOMPARE(common.taken, 1);
    const auto values = createVarsetFromVKTable(table, VKTab::LineId(1), {});
    const auto others = createVarsetFromVKTable(table, VKTab::LineId(2), {});
    const std::unique_ptr<VarsetConditionC> condition(
        VarsetConditionC::create(common.condition, values));
    QVERIFY(condition);
    QVERIFY(condition->holds(values));
    QVERIFY(!condition->holds(others));
}

void tst_CommonValues::rangesAndEmptyValues()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n,L:r\n,,\"10;20\"\nM9,5,30\n");
    QCOMPARE(commonValues(catalog.read("old/a.prj"), {1}).condition, QString());
}

QTEST_MAIN(tst_CommonValues)
#include "tst_CommonValues.moc"
