#include "../support/TestCatalog.h"

#include <release/pattern/LineComparer.h>

#include <QTest>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;

/// Which values of a line no new line has.
class tst_LostValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void otherTarget();
    void valueOfAssignedLine();
    void afterVariableMapping();
    void afterFormula();
    void noTable();
};

namespace {

/// "NAME=value" each.
QStringList lostBy(const TestCatalog &catalog, const PrjMappingC &mapping, int line)
{
    VelkRelease::LineComparer comparer(catalog.root(), mapping, ReleaseMappingC());
    QStringList texts;
    for (const VelkRelease::LostValue &value : comparer.lostValues(line))
        texts << value.variable + "=" + value.value;
    return texts;
}

QString ownFile(const TestCatalog &catalog)
{
    return catalog.file("new/a.prj");
}

} // namespace

void tst_LostValues::values_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QStringList>("lost");
    const QStringList none;
    QTest::newRow("a text") << QByteArray("D,F\nM8,A\n") << QByteArray("D,F\nM8,B\nM9,C\n")
                            << QStringList{"F=A"};
    QTest::newRow("two, in the order of the new columns")
        << QByteArray("F,D\nA,M8\n") << QByteArray("D,F\nM9,B\n") << QStringList{"D=M8", "F=A"};
    QTest::newRow("values of different lines")
        << QByteArray("D,F\nM8,A\n") << QByteArray("D,F\nM8,B\nM9,A\n") << none;
    QTest::newRow("a number in another form")
        << QByteArray("D,k:n\nM8,5.0\n") << QByteArray("D,k:n\nM8,5\n") << none;
    QTest::newRow("another number")
        << QByteArray("D,k:n\nM8,5.5\n") << QByteArray("D,k:n\nM8,5\n") << QStringList{"k=5.5"};
    QTest::newRow("a text like a number, in another form")
        << QByteArray("D,F\nM8,5.0\n") << QByteArray("D,F\nM8,5\n") << QStringList{"F=5.0"};
    QTest::newRow("a word in a column of numbers")
        << QByteArray("D,k:n\nM8,none\n") << QByteArray("D,k:n\nM8,5\n") << QStringList{"k=none"};
    QTest::newRow("an empty cell") << QByteArray("D,F\nM8,\n") << QByteArray("D,F\nM8,B\n") << none;
    QTest::newRow("a range in the old table")
        << QByteArray("D,L:r\nM8,1;2\n") << QByteArray("D,L:n\nM8,5\n") << none;
    QTest::newRow("a range in the new table")
        << QByteArray("D,L:n\nM8,1\n") << QByteArray("D,L:r\nM8,5;6\n") << none;
    QTest::newRow("a column that is new")
        << QByteArray("D\nM8\n") << QByteArray("D,F\nM8,B\n") << none;
    QTest::newRow("a column that is gone")
        << QByteArray("D,F\nM8,A\n") << QByteArray("D\nM8\n") << none;
}

void tst_LostValues::values()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const TestCatalog catalog;
    catalog.write("old/a.prj", before);
    catalog.write("new/a.prj", after);
    QTEST(lostBy(catalog, mappingOf("old/a.prj", {ownFile(catalog), ""}), 1), "lost");
}

void tst_LostValues::otherTarget()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,F\nM8,A\nM8,X\n");
    catalog.write("new/a.prj", "D,F\nM8,B\n");
    catalog.write("new/b.prj", "F\nA\n");
    const PrjMappingC mapping =
        mappingOf("old/a.prj", {ownFile(catalog), catalog.file("new/b.prj"), ""});
    QCOMPARE(lostBy(catalog, mapping, 1), QStringList());
    // Both lack it, and it is told once.
    QCOMPARE(lostBy(catalog, mapping, 2), QStringList{"F=X"});
}

/// Whoever assigned a line whose value is in no new line takes the value for one that changed.
void tst_LostValues::valueOfAssignedLine()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,F\nM8,A\nM9,A\n");
    catalog.write("new/a.prj", "D,F\nM8,B\nM9,B\n");
    PrjMappingC mapping = mappingOf("old/a.prj", {ownFile(catalog), ""});
    enter(mapping, 1, 2, -1, ToCheck);
    QCOMPARE(lostBy(catalog, mapping, 2), QStringList{"F=A"});
    enter(mapping, 0, 1, 1, Mapped);
    QCOMPARE(lostBy(catalog, mapping, 2), QStringList());
}

void tst_LostValues::afterVariableMapping()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,F\nM8,A\n");
    catalog.write("new/a.prj", "D,Form\nM8,B\n");
    PrjMappingC mapping = mappingOf("old/a.prj", {ownFile(catalog), ""});
    addRename(mapping, 0, "F", "Form");
    QCOMPARE(lostBy(catalog, mapping, 1), QStringList{"Form=A"});
}

void tst_LostValues::afterFormula()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,2\nM9,3\nM10,3\n");
    catalog.write("new/a.prj", "D,m:n\nM8,4\n");
    PrjMappingC mapping = mappingOf("old/a.prj", {ownFile(catalog), ""});
    addFormula(mapping, 0, "m = 2 * k");
    QCOMPARE(lostBy(catalog, mapping, 1), QStringList());
    QCOMPARE(lostBy(catalog, mapping, 2), (QStringList{"D=M9", "m=6"}));
    enter(mapping, 0, 3, 1, ToCheck);
    QCOMPARE(lostBy(catalog, mapping, 2), QStringList{"D=M9"});
}

void tst_LostValues::noTable()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,F\nM8,A\n");
    catalog.write("new/a.prj", "D,F\nM8,B\n");
    // The target that is not there says nothing, a line that is not there has nothing.
    const PrjMappingC mapping =
        mappingOf("old/a.prj", {catalog.file("new/gone.prj"), ownFile(catalog), ""});
    QCOMPARE(lostBy(catalog, mapping, 1), QStringList{"F=A"});
    QCOMPARE(lostBy(catalog, mapping, 7), QStringList());
}

QTEST_GUILESS_MAIN(tst_LostValues)
#include "tst_LostValues.moc"
