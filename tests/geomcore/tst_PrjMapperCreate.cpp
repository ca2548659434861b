#include "MapperFixture.h"

#include <QTest>

using Tables = QList<QPair<QString, QByteArray>>;

namespace {

/// What is proposed for each line of the source table, see MapperFixture::proposal.
QStringList proposals(const QByteArray &source, const Tables &targets)
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", source);
    QStringList paths;
    for (const auto &[path, table] : targets) {
        catalog.write(path, table);
        paths.append(path);
    }
    MapperFixture fixture(catalog, paths);
    fixture.start();
    QStringList result;
    for (const VKTab::LineId &line : fixture.source.getLineIdList())
        result.append(fixture.proposal(line.value(0)));
    return result;
}

} // namespace

class tst_PrjMapperCreate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exactHits_data();
    void exactHits();
    void orderOfTargets_data();
    void orderOfTargets();
    void identity_data();
    void identity();
    void similarity_data();
    void similarity();
    void places_data();
    void places();
    void resultOfHit();
    void resultWithoutHit();
    void decimalCharacters();
    void missingValues();
    void keyOfDescriptor();
    void designationIdentifies();
    void sameDesignationEverywhereDoesNot();
    void computedVariablesCount();
    void conditions();
    void conditionThatDoesNotParseHoldsNothing();
    void firstTargetOnly();
    void renamedVariable();
    void ignoredVariable();
    void formula();
    void onlyExactCombinationIsProposed();
    void similarityIfNoCombinationHits();
    void createLineDropsWhatIsNotVerified();
    void createLineDropsOnlyOnce();
    void lineOutsideTheTable();
    void withoutSourceTable();
    void unreadableTarget();
    void lineIdOfTheProposal();
    void hiddenLinesOfAProject();
};

void tst_PrjMapperCreate::exactHits_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QStringList>("expected");

    const auto row = [](const char *name, const char *source, const char *target,
                        const QStringList &expected) {
        QTest::newRow(name) << QByteArray(source) << QByteArray(target) << expected;
    };
    row("all values equal", "D,k:n\nM8,5\nM9,6\n", "D,k:n\nM9,6\nM8,5\n", {"0:2 ok", "0:1 ok"});
    row("numbers equal by value", "D,k:n\nM8,5.0\n", "D,k:n\nM8,5\n", {"0:1 ok"});
    row("ten significant digits", "D,k:n\nM8,0.33333333333\n", "D,k:n\nM8,0.33333333334\n",
        {"0:1 ok"});
    row("numbers in a text column", "D,k\nM8,5.0\n", "D,k\nM8,5\n", {"0:1"});
    row("blanks around do not count", "D,k:n\n M8 ,5\n", "D,k:n\nM8, 5\n", {"0:1 ok"});
    row("case counts", "D,k:n,l:n\nm8,5,1\n", "D,k:n,l:n\nM8,5,1\n", {"0:1"});
    row("further columns of the target do not count", "D,k:n\nM8,5\n", "x,D,k:n\nq,M8,5\n",
        {"0:1 ok"});
    row("names are compared exactly", "D,k:n\nM8,5\n", "D,K:n\nM8,5\n", {"0:1"});
    row("no common variable", "D,k:n\nM8,5\n", "E,l:n\nM8,5\n", {"none"});
    row("both without a value", "D,k:n\nM8,\n", "D,k:n\nM8,\n", {"0:1 ok"});
    row("only one without a value", "D,k:n\nM8,\n", "D,k:n\nM8,5\n", {"0:1"});
    row("no value in any common variable", "D,k:n\n,\n", "D,k:n\n,\n", {"none"});
    row("internal columns do not count", "D,k:n,no:i\nM8,5,1\n", "D,k:n,no:i\nM8,5,2\n",
        {"0:1 ok"});
    row("several equal lines: the one in its place", "D,k:n\nM9,6\nM8,5\n",
        "D,k:n\nM8,5\nM9,6\nM8,5\n", {"0:2 ok", "0:3"});
    row("equal lines on both sides are paired off by place", "D,k:n\nM8,5\nM8,5\nM7,4\nM8,5\n",
        "D,k:n\nM8,5\nM7,4\nM8,5\n", {"0:1", "none", "0:2 ok", "0:3"});
    row("fewer equal lines, while others stay several", "D,k:n\nM8,5\nM8,5\nM9,6\nM9,6\n",
        "D,k:n\nM8,5\nM9,6\nM9,6\n", {"0:1", "none", "0:2", "0:3"});
    row("fewer equal lines, while others are more", "D,k:n\nM8,5\nM8,5\nM9,6\n",
        "D,k:n\nM8,5\nM9,6\nM9,6\n", {"0:1", "0:1", "0:3"});
    row("two source lines for one target line", "D,k:n\nM8,5\nM8,5\nM9,6\n", "D,k:n\nM8,5\nM9,6\n",
        {"0:1", "0:1", "0:2 ok"});
    row("target range contains the value", "D,L:n\nM8,12\n", "D,L:r\nM8,10;12;16\n", {"0:1 ok"});
    row("target range of steps", "D,L:n\nM8,25\n", "D,L:r\nM8,10..50/5\n", {"0:1 ok"});
    row("target range without the value", "D,L:n,k:n\nM8,13,4\n", "D,L:r,k:n\nM8,10;12;16,4\n",
        {"0:1"});
    row("all values of a source range", "D,L:r\nM8,10;16\n", "D,L:r\nM8,10;12;16\n", {"0:1 ok"});
    row("not all values of a source range", "D,L:r,k:n\nM8,10;17,4\n", "D,L:r,k:n\nM8,10;12;16,4\n",
        {"0:1"});
    row("source range beside a plain value", "D,L:r,k:n\nM8,10;12,4\n", "D,L:n,k:n\nM8,10,4\n",
        {"0:1"});
    row("the range with equal values is preferred", "D,L:r\nM8,10;12\n",
        "D,L:r\nM8,10;12;16\nM8,12;10\n", {"0:2"});
    row("no value is not in a range", "D,L:n,k:n\nM8,,4\n", "D,L:r,k:n\nM8,10;12,4\n", {"0:1"});
    row("an empty range equals no value", "D,L:n\nM8,\n", "D,L:r\nM8,\n", {"0:1 ok"});
    row("nothing but ranges", "L:n,k:n\n12,3\n18,3\n", "L:r,k:r\n10;12,3\n16;18,3\n",
        {"0:1 ok", "0:2 ok"});
    row("many lines that differ in a range only", "D,L:n\nM8,1039\nM8,1005\n",
        []() -> const char * {
            static QByteArray table = "D,L:r\n";
            for (int i = 0; i < 50; ++i)
                table += "M8," + QByteArray::number(1000 + i) + ";" + QByteArray::number(2000 + i) +
                         "\n";
            table += "M9,1039\n";
            return table.constData();
        }(),
        {"0:40 ok", "0:6 ok"});
    row("one value is all that the line has", "D\nM8\nM9\n", "D\nM9\nM8\n", {"0:2 ok", "0:1 ok"});
    row("too few values are compared", "D,a:n,b:n,c:n\nM8,1,2,3\n", "D\nM8\n", {"0:1"});
    row("half of the values are compared", "D,a:n,b:n,c:n\nM8,1,2,3\n", "D,a:n\nM8,1\n",
        {"0:1 ok"});
    row("most lines have other values", "a:n,b:n\n1,2\n3,4\n5,6\n7,8\n",
        "a:n,b:n\n1,2\n3,40\n5,60\n7,80\n", {"0:1", "0:2", "0:3", "0:4"});
    row("most lines that are known have these values", "a:n,b:n\n1,2\n3,4\n5,6\n7,8\n",
        "a:n,b:n\n1,2\n30,40\n50,60\n70,80\n", {"0:1 ok", "none", "none", "none"});
}

void tst_PrjMapperCreate::exactHits()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    QTEST(proposals(source, {{"new/a.prj", target}}), "expected");
}

void tst_PrjMapperCreate::orderOfTargets_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<Tables>("targets");
    QTest::addColumn<QStringList>("expected");

    const QByteArray line = "D,k:n,l:n\nM8,5,1\n";
    QTest::newRow("the first with an equal line wins")
        << line << Tables{{"new/a.prj", line}, {"new/b.prj", line}} << QStringList{"0:1"};
    QTest::newRow("in the order of the mapping")
        << line << Tables{{"new/b.prj", line}, {"new/a.prj", line}} << QStringList{"0:1"};
    QTest::newRow("an equal line beats an identical one before")
        << line << Tables{{"new/a.prj", "D,k:n,l:n\nM8,5,2\n"}, {"new/b/a.prj", line}}
        << QStringList{"1:1 ok"};
    QTest::newRow("an identical line beats a similar one before")
        << QByteArray("D,k:n,l:n,m:n,n:n,o:n\nM8,5,1,2,3,4\n")
        << Tables{{"new/a.prj", "D,k:n,l:n,m:n,n:n,o:n\nM8,5,1,2,3,9\n"},
                  {"new/b/a.prj", "D,k:n,l:n,m:n,n:n,o:n\nM8,50,10,20,30,40\n"}}
        << QStringList{"0:1"};
    QTest::newRow("equal lines of the same project twice are one")
        << line << Tables{{"new/a.prj", line}, {"new/a.prj", line}} << QStringList{"0:1 ok"};
    QTest::newRow("a project of another name is not trusted")
        << line << Tables{{"new/b.prj", line}} << QStringList{"0:1"};
    QTest::newRow("a project of the same name elsewhere is")
        << line << Tables{{"new/x/A.prj", line}} << QStringList{"0:1 ok"};
}

void tst_PrjMapperCreate::orderOfTargets()
{
    QFETCH(QByteArray, source);
    QFETCH(Tables, targets);
    QTEST(proposals(source, targets), "expected");
}

void tst_PrjMapperCreate::identity_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<Tables>("targets");
    QTest::addColumn<QStringList>("expected");

    const QByteArray source = "D,a:n,b:n\nM8,1,2\nM9,3,4\n";
    QTest::newRow("the first column identifies")
        << source << Tables{{"new/a.prj", "D,a:n,b:n\nM9,30,40\nM8,10,20\n"}}
        << QStringList{"0:2", "0:1"};
    QTest::newRow("six lines in reverse order")
        << QByteArray("D,a:n,b:n\nM6,1,2\nM7,3,4\nM8,5,6\nM9,7,8\nM10,9,1\nM11,2,5\n")
        << Tables{{"new/a.prj", "D,a:n,b:n\nM11,90,52\nM10,50,94\nM9,70,81\nM8,31,24\nM7,57,68\n"
                                "M6,13,21\n"}}
        << QStringList{"0:6", "0:5", "0:4", "0:3", "0:2", "0:1"};
    QTest::newRow("of several the most similar")
        << source
        << Tables{{"new/a.prj", "D,a:n,b:n\nM8,10,20\nM8,1,20\n1,1,1\n2,2,2\n3,3,3\n"
                                "4,4,4\n5,5,5\n6,6,6\n7,7,7\n8,8,8\n"}}
        << QStringList{"0:2", "none"};
    QTest::newRow("not in a project of another name")
        << source << Tables{{"new/b.prj", "D,a:n,b:n\nM9,30,40\nM8,10,20\n"}}
        << QStringList{"none", "none"};
    QTest::newRow("in a project of another name if the line is similar")
        << source << Tables{{"new/b.prj", "D,a:n,b:n\nM9,3,4.2\nM8,10,20\n"}}
        << QStringList{"none", "0:1"};
    QTest::newRow("not a column with an empty cell")
        << source << Tables{{"new/a.prj", "D,a:n,b:n\nM9,30,40\nM8,10,20\n,7,7\n"}}
        << QStringList{"none", "none"};
    QTest::newRow("not a column with many equal values")
        << source << Tables{{"new/a.prj", "D,a:n,b:n\nM8,10,20\nM8,11,21\nM9,30,40\n"}}
        << QStringList{"none", "none"};
    QTest::newRow("two names in the same places")
        << source << Tables{{"new/a.prj", "E,D,a:n,b:n\nx,M8,10,20\ny,M9,30,40\n"}}
        << QStringList{"0:1", "0:2"};
}

void tst_PrjMapperCreate::identity()
{
    QFETCH(QByteArray, source);
    QFETCH(Tables, targets);
    QTEST(proposals(source, targets), "expected");
}

void tst_PrjMapperCreate::similarity_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QStringList>("expected");

    // Ten variables of which none identifies; the first cell of the target's last line is empty.
    const QByteArray head = "a:n,b:n,c:n,d:n,e:n,f:n,g:n,h:n,i:n,j:n\n";
    const QByteArray line = "100,200,300,400,500,600,700,800,900,1000\n";
    const QByteArray noKey = ",1,1,1,1,1,1,1,1,1\n";
    QTest::newRow("one value of ten differs")
        << head + line << head + "100,200,300,400,500,600,700,800,900,1\n" + noKey
        << QStringList{"0:1"};
    QTest::newRow("two of ten differ")
        << head + line << head + "100,200,300,400,500,600,700,800,1,1\n" + noKey
        << QStringList{"0:1"};
    QTest::newRow("nine of ten differ")
        << head + line << head + "100,2,3,4,5,6,7,8,1,1\n" + noKey << QStringList{"none"};
    QTest::newRow("all numbers a little off")
        << head + line << head + "101,202,303,404,505,606,707,808,909,1010\n" + noKey
        << QStringList{"0:1"};
    QTest::newRow("a second one too near") << head + line
                                           << head + "100,200,300,400,500,600,700,800,900,1\n" +
                                                  "100,200,300,400,500,600,700,800,1,1000\n" + noKey
                                           << QStringList{"none"};
    QTest::newRow("a second one far enough")
        << head + line
        << head + "100,200,300,400,500,600,700,1,1,1\n" +
               "100,200,300,400,500,600,700,800,1,1000\n" + noKey
        << QStringList{"0:2"};
    QTest::newRow("one value that is near")
        << QByteArray("a:n\n100\n") << QByteArray("a\n101\nx\n") << QStringList{"0:1"};
    QTest::newRow("one value that is not")
        << QByteArray("a:n\n100\n") << QByteArray("a\n7\nx\n") << QStringList{"none"};
    QTest::newRow("most values cannot be compared")
        << QByteArray("a:n,b:n,c:n,d:n,e:n\n100,2,3,4,5\n") << QByteArray("a:n,b:n\n100,2.01\n,1\n")
        << QStringList{"0:1"};
}

void tst_PrjMapperCreate::similarity()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    QTEST(proposals(source, {{"new/a.prj", target}}), "expected");
}

void tst_PrjMapperCreate::places_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QStringList>("expected");

    const QByteArray head = "a:n,b:n,c:n\n";
    QTest::newRow("between two settled lines") << head + "1,1,1\n2,2,2\n3,3,3\n"
                                               << head + "1,1,1\n2,2,9\n3,3,3\n,7,7\n"
                                               << QStringList{"0:1 ok", "0:2", "0:3 ok"};
    QTest::newRow("also if lines were put between them") << head + "1,1,1\n2,2,2\n3,3,3\n"
                                                         << head + "1,1,1\n2,2,9\n,7,7\n3,3,3\n"
                                                         << QStringList{"0:1 ok", "0:2", "0:4 ok"};
    QTest::newRow("before the first settled line") << head + "2,2,2\n1,1,1\n3,3,3\n"
                                                   << head + "2,2,9\n1,1,1\n3,3,3\n"
                                                   << QStringList{"0:1", "0:2 ok", "0:3 ok"};
    QTest::newRow("after the last settled line") << head + "1,1,1\n3,3,3\n2,2,2\n"
                                                 << head + "1,1,1\n3,3,3\n2,2,9\n"
                                                 << QStringList{"0:1 ok", "0:2 ok", "0:3"};
    QTest::newRow("not if the line there is too different")
        << head + "1,1,1\n2,2,2\n3,3,3\n"
        << head + "1,1,1\n77,800,9\n3,3,3\n,7,7\n"
        << QStringList{"0:1 ok", "none", "0:3 ok"};
    QTest::newRow("not if another line is clearly more similar")
        << head + "1,1,1\n200,200,200\n3,3,3\n"
        << head + "1,1,1\n200,8,9\n3,3,3\n200,200,201\n,7,7\n"
        << QStringList{"0:1 ok", "0:4", "0:3 ok"};
}

void tst_PrjMapperCreate::places()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    QTEST(proposals(source, {{"new/a.prj", target}}), "expected");
}

void tst_PrjMapperCreate::resultOfHit()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM9,6\nM8,5\n");
    MapperFixture fixture(catalog, {"", "new/a.prj"});
    fixture.start();
    const PrjMapperLineC line = fixture.create(1);
    QVERIFY(line.isValid());
    QVERIFY(line.isFound());
    QCOMPARE(line.getCheckState(), PRJMAPPING::ToCheck);
    QCOMPARE(line.getSourceLineId(), 1);
    QCOMPARE(line.getTargetIndex(), 1);
    QCOMPARE(line.getTargetLineId(), 2);
    QCOMPARE(line.getTargetPath(), "new/a.prj");
    QCOMPARE(line.getHistory().size(), 1);
    QCOMPARE(line.getHistory().last().first.getTargetLineId(), 2);
    QCOMPARE(line.getHistory().last().second.countTargets(), 2);
    QVERIFY2(!fixture.mapper.findLine(1, fixture.varset(1)).isValid(), "only proposed");
}

void tst_PrjMapperCreate::resultWithoutHit()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM9,600\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    const PrjMapperLineC line = fixture.create(1);
    QVERIFY(line.isValid());
    QVERIFY(!line.isFound());
    QVERIFY(line.getHistory().isEmpty());
    QVERIFY(!line.getTarget().isValid());
    QCOMPARE(line.getSourceLineId(), 1);
    QCOMPARE(line.getTargetIndex(), -1);
    QCOMPARE(line.getTargetLineId(), -1);
    QCOMPARE(line.getCheckState(), PRJMAPPING::ToCheck);
}

void tst_PrjMapperCreate::decimalCharacters()
{
    const auto comma = [](VKTab::TableDescriptor &table) {
        table.fields[1].decimalChar = ',';
    };
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n,L:r\nM8,\"2,5\",\"1,5;2\"\n", [](VKTab::TableDescriptor &t) {
        t.fields[1].decimalChar = ',';
        t.fields[2].decimalChar = ',';
    });
    catalog.write("new/a.prj", "D,k:n,L:r\nM8,2.50,2;1.5\n", comma);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    QCOMPARE(fixture.proposal(1), "0:1 ok");
}

void tst_PrjMapperCreate::missingValues()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,None\n", [](VKTab::TableDescriptor &table) {
        table.missingValues = QStringList{QString(), QStringLiteral("None")};
    });
    catalog.write("new/a.prj", "D,k:n\nM8,\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    QCOMPARE(fixture.proposal(1), "0:1 ok");
}

void tst_PrjMapperCreate::keyOfDescriptor()
{
    const auto key = [](VKTab::TableDescriptor &table) {
        table.primaryKey = {"no"};
    };
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,no,k:n\nx,A1,5\nx,A2,6\n", key);
    catalog.write("new/a.prj", "D,no,k:n\nx,A2,600\nx,A1,500\n", key);
    catalog.write("new/c/a.prj", "D,no,k:n\nx,A2,600\nx,A1,500\n");
    MapperFixture fixture(catalog, {"new/c/a.prj", "new/a.prj"});
    fixture.start();
    QCOMPARE(fixture.proposal(1), "1:2");
    QCOMPARE(fixture.proposal(2), "1:1");
}

void tst_PrjMapperCreate::designationIdentifies()
{
    const auto designation = [](VKTab::TableDescriptor &table) {
        table.lineDesignation = "DIN 931 - {D} x {L}";
    };
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,L:n,k:n\nM8,40,5\nM8,50,6\n", designation);
    catalog.write("new/a.prj", "D,L:n,k:n\nM8,50,60\nM8,40,50\n", designation);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    QCOMPARE(fixture.proposal(1), "0:2");
    QCOMPARE(fixture.proposal(2), "0:1");
}

void tst_PrjMapperCreate::sameDesignationEverywhereDoesNot()
{
    const auto designation = [](VKTab::TableDescriptor &table) {
        table.lineDesignation = "name";
        table.primaryKey = {"D"};
    };
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,name,k:n\nM8,Screw,5\nM9,Screw,6\n", designation);
    catalog.write("new/a.prj", "D,name,k:n\nM9,Screw,60\nM8,Screw,50\n", designation);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    QCOMPARE(fixture.proposal(1), "0:2");
    QCOMPARE(fixture.proposal(2), "0:1");
}

void tst_PrjMapperCreate::computedVariablesCount()
{
    const auto computed = [](const QString &formula) {
        return [formula](VKTab::TableDescriptor &table) {
            VKTab::TableField field;
            field.name = "double";
            field.type = VKTab::FieldType::Number;
            field.kind = VKTab::FieldKind::Computed;
            field.formula = formula;
            table.fields.append(field);
        };
    };
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\n", computed("2 * k"));
    catalog.write("new/a.prj", "D,k:n\nM8,5\nM9,6\n", computed("k + 5"));
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    QCOMPARE(fixture.proposal(1), "0:1 ok");
    QCOMPARE(fixture.proposal(2), "0:2");
}

void tst_PrjMapperCreate::conditions()
{
    const QByteArray table = "D,k:n\nM8,5\nM9,6\n";
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/a.prj", table);
    catalog.write("new/b/a.prj", table);
    MapperFixture fixture(catalog, {"new/a.prj", "new/b/a.prj"});
    addCondition(fixture.mapping, 0, "k .GT. 5");
    addCondition(fixture.mapping, 0, "D .EQ. 'M9'");
    addCondition(fixture.mapping, 1, "k .LE. 5");
    fixture.start();
    QCOMPARE(fixture.proposal(1), "1:1 ok");
    QCOMPARE(fixture.proposal(2), "0:2 ok");
}

void tst_PrjMapperCreate::conditionThatDoesNotParseHoldsNothing()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM8,5\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    addCondition(fixture.mapping, 0, "k .EQ.");
    fixture.start();
    QCOMPARE(fixture.proposal(1), "none");
}

void tst_PrjMapperCreate::firstTargetOnly()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nX9,600\n");
    catalog.write("new/b/a.prj", "D,k:n\nX9,600\n");
    catalog.write("new/c/a.prj", "D,k:n\nM8,5\n");
    MapperFixture fixture(catalog, {"new/a.prj", "new/b/a.prj", "new/c/a.prj"});
    addCondition(fixture.mapping, 0, "k .GT. 5");
    fixture.start();
    const MapperFixture::Varset values = fixture.varset(1);
    QVERIFY(!fixture.mapper.createLine(1, values, true).isFound());
    QCOMPARE(fixture.mapper.createLine(1, values, false).getTargetIndex(), 2);
}

void tst_PrjMapperCreate::renamedVariable()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\n");
    catalog.write("new/a.prj", "Size,height:n\nM9,6\nM8,5\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    addRename(fixture.mapping, 0, "D", "Size");
    addRename(fixture.mapping, 0, "k", "height");
    fixture.start();
    QCOMPARE(fixture.proposal(1), "0:2 ok");
    QCOMPARE(fixture.proposal(2), "0:1 ok");
}

void tst_PrjMapperCreate::ignoredVariable()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n,x:n\nM8,5,1\n");
    catalog.write("new/a.prj", "D,k:n,x:n\nM8,5,99\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    addRename(fixture.mapping, 0, "", "x");
    fixture.start();
    QCOMPARE(fixture.proposal(1), "0:1 ok");
}

void tst_PrjMapperCreate::formula()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\n");
    catalog.write("new/a.prj", "D,k:n\nM9,60\nM8,50\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    addFormula(fixture.mapping, 0, "k = 10 * k");
    fixture.start();
    QCOMPARE(fixture.proposal(1), "0:2 ok");
    QCOMPARE(fixture.proposal(2), "0:1 ok");
}

void tst_PrjMapperCreate::onlyExactCombinationIsProposed()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,L:r\nM8,10;12;14\n");
    catalog.write("new/a.prj", "D,L:n\nM8,14\nM9,10\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    addCondition(fixture.mapping, 0, "L .GT. 0");
    fixture.start();
    MapperFixture::Varset values = fixture.varset(1);
    const auto proposed = [&](const char *length) {
        values["L"].setValue(VKTab::Value(length));
        return fixture.mapper.createLine(1, values, false).getTargetLineId();
    };
    QCOMPARE(proposed("10"), -1); // key and place would do, but another combination is exact
    QCOMPARE(proposed("12"), -1);
    QCOMPARE(proposed("14"), 1);
}

void tst_PrjMapperCreate::similarityIfNoCombinationHits()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,L:r\nM8,10;12\n");
    catalog.write("new/a.prj", "D,L:n\nM8,14\nM9,10\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    addCondition(fixture.mapping, 0, "L .GT. 0");
    fixture.start();
    MapperFixture::Varset values = fixture.varset(1);
    values["L"].setValue(VKTab::Value("12"));
    QCOMPARE(fixture.mapper.createLine(1, values, false).getTargetLineId(), 1);
}

void tst_PrjMapperCreate::createLineDropsWhatIsNotVerified()
{
    const QByteArray table = "D,k:n\nM8,5\nM9,6\n";
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/a.prj", table);
    MapperFixture fixture(catalog, {"new/a.prj", "new/b.prj", "new/c.prj", ""});
    enter(fixture.mapping, 0, 1, 2, PRJMAPPING::Mapped, "text");
    enter(fixture.mapping, 1, 1, 2, PRJMAPPING::Verified);
    enter(fixture.mapping, 2, 1, 2, PRJMAPPING::ToCheck);
    enter(fixture.mapping, 3, 1, -1, PRJMAPPING::Mapped);
    enter(fixture.mapping, 0, 2, 2, PRJMAPPING::Mapped);
    fixture.start();
    (void)fixture.create(1);
    QCOMPARE(entriesOf(fixture.mapper.getMappingNode().getMapping()), "0:2>2/1 1:1>2/2");
}

void tst_PrjMapperCreate::createLineDropsOnlyOnce()
{
    const QByteArray table = "D,k:n\nM8,5\n";
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/a.prj", table);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    QVERIFY(fixture.mapper.addLine(fixture.create(1)));
    (void)fixture.create(1); // of another combination
    QCOMPARE(entriesOf(fixture.mapper.getMappingNode().getMapping()), "0:1>1/0");
}

void tst_PrjMapperCreate::lineOutsideTheTable()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM8,5\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    const MapperFixture::Varset values = fixture.varset(1);
    QCOMPARE(fixture.mapper.createLine(77, values, false).getTargetLineId(), 1);
    QCOMPARE(fixture.mapper.createLine(77, MapperFixture::Varset(), false).getTargetLineId(), -1);
}

void tst_PrjMapperCreate::withoutSourceTable()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM9,6\nM8,5\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    const MapperFixture::Varset values = fixture.varset(1);
    PrjMapperC mapper(catalog.tree());
    mapper.findMapping("old/a.prj", "v1", catalogOf(fixture.mapping));
    QCOMPARE(mapper.createLine(1, values, false).getTargetLineId(), 2);
    const VKTab::LineView view(fixture.source, VKTab::LineId(1));
    QCOMPARE(mapper.createLine(1, view, false).getTargetLineId(), 2);
}

void tst_PrjMapperCreate::unreadableTarget()
{
    const QByteArray table = "D,k:n\nM8,5\n";
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/broken/a.prj", table);
    catalog.writeFile("new/broken/a.csv", "D,k\n\"M8,5\n");
    catalog.write("new/x/a.prj", table);
    MapperFixture fixture(catalog, {"new/gone/a.prj", "new/broken/a.prj", "new/x/a.prj"});
    fixture.start();
    QCOMPARE(fixture.proposal(1), "2:1");
}

void tst_PrjMapperCreate::lineIdOfTheProposal()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM9,6\nM8,5\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    QCOMPARE(fixture.create(1).getLineId(), VKTab::LineId(2));
}

void tst_PrjMapperCreate::hiddenLinesOfAProject()
{
    const QByteArray table = "D,k:n\nM8,5\nM9,6\n";
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/a.prj", table, [](VKTab::TableDescriptor &descriptor) {
        descriptor.filterConditions.append({"PRJLINECOND", "k .GT. 5", {}});
    });
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    QCOMPARE(fixture.proposal(1), "0:1 ok");
    fixture.mapper.setCreatorMode(false);
    QCOMPARE(fixture.proposal(1), "none");
    QCOMPARE(fixture.proposal(2), "0:2 ok");
}

QTEST_GUILESS_MAIN(tst_PrjMapperCreate)
#include "tst_PrjMapperCreate.moc"
