#include "MapperFixture.h"

#include <QTest>

using PRJMAPPING::Verified;

using Tables = QList<QPair<QString, QByteArray>>;

/// What may be proposed, but never passes the automatic check.
class tst_PrjMapperCertainty : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unreadableTarget_data();
    void unreadableTarget();
    void unreadableTargetBesideRanges();
    void faultyCondition_data();
    void faultyCondition();
    void names_data();
    void names();
    void oneColumnCountsOnce_data();
    void oneColumnCountsOnce();
    void claimsThroughTargetsOfOneProject_data();
    void claimsThroughTargetsOfOneProject();
    void otherLineOfTheSameProject();
    void confirmedForAnotherLine_data();
    void confirmedForAnotherLine();
    void confirmedMeanwhile();
    void texts_data();
    void texts();
    void computedTexts();
    void changedDesignationPattern();
    void combinations_data();
    void combinations();
    void combinationOfAnotherTarget_data();
    void combinationOfAnotherTarget();
    void overlappingRanges();
    void claimsThatAreCounted_data();
    void claimsThatAreCounted();
    void sameRangesBehindOthers_data();
    void sameRangesBehindOthers();
    void agreementOfTheTables_data();
    void agreementOfTheTables();
    void whatIdentifiesLines_data();
    void whatIdentifiesLines();
    void equalLinesArePairedOff_data();
    void equalLinesArePairedOff();
    void pairingOffEnds_data();
    void pairingOffEnds();
    void hiddenLinesAreNotPairedOff();
    void messages_data();
    void messages();
};

namespace {

const QByteArray oneLine = "D,k:n\nM8,5\n";

/// Catalog with a source "old/a.prj" and targets, and a fixture on both.
struct Case
{
    Case(const QByteArray &source, const Tables &targets)
    {
        catalog.write("old/a.prj", source);
        QStringList paths;
        for (const auto &[path, table] : targets) {
            if (!table.isEmpty())
                catalog.write(path, table);
            paths.append(path);
        }
        fixture = std::make_unique<MapperFixture>(catalog, paths);
    }
    QStringList proposals()
    {
        fixture->start();
        QStringList result;
        for (const VKTab::LineId &line : fixture->source.getLineIdList()) {
            result.append(fixture->proposal(line.value(0)));
            // The form for views has to say the same.
            const VKTab::LineView view(fixture->source, line);
            const PrjMapperLineC made = fixture->mapper.createLine(line.value(0), view, false);
            const bool ok = fixture->mapper.passesCheck(made, view, CheckValues | CheckConditions);
            if (ok != result.last().endsWith(" ok"))
                result.last() += ok ? " only the view is ok" : " the view is not ok";
        }
        return result;
    }
    [[nodiscard]] PrjMappingC &mapping() const { return fixture->mapping; }

    TestCatalog catalog;
    std::unique_ptr<MapperFixture> fixture;
};

} // namespace

void tst_PrjMapperCertainty::unreadableTarget_data()
{
    QTest::addColumn<Tables>("targets");
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QStringList>("expected");
    const Tables before{{"new/x.prj", {}}, {"new/a.prj", oneLine}};
    const Tables behind{{"new/a.prj", oneLine}, {"new/x.prj", {}}};
    QTest::newRow("before") << before << QString() << QStringList{"1:1"};
    QTest::newRow("behind") << behind << QString() << QStringList{"0:1"};
    QTest::newRow("its condition holds") << before << "k .EQ. 5" << QStringList{"1:1"};
    QTest::newRow("its condition does not hold") << before << "k .EQ. 6" << QStringList{"1:1 ok"};
}

void tst_PrjMapperCertainty::unreadableTarget()
{
    QFETCH(Tables, targets);
    QFETCH(QString, condition);
    Case test(oneLine, targets);
    if (!condition.isEmpty())
        addCondition(test.mapping(), targets.first().second.isEmpty() ? 0 : 1, condition);
    QTEST(test.proposals(), "expected");
}

void tst_PrjMapperCertainty::unreadableTargetBesideRanges()
{
    Case test("D,L:r\nM8,10;20\n", {{"new/a.prj", "D,L:r\nM8,10;20\n"}, {"new/x.prj", {}}});
    addCondition(test.mapping(), 1, "L .EQ. 20"); // holds for a combination
    QCOMPARE(test.proposals(), QStringList{"0:1"});
}

void tst_PrjMapperCertainty::faultyCondition_data()
{
    QTest::addColumn<Tables>("targets");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("before") << Tables{{"new/x.prj", oneLine}, {"new/a.prj", oneLine}}
                            << QStringList{"1:1"};
    QTest::newRow("before, its table cannot be read")
        << Tables{{"new/x.prj", {}}, {"new/a.prj", oneLine}} << QStringList{"1:1"};
    QTest::newRow("before, with other lines")
        << Tables{{"new/x.prj", "D,k:n\nX,1000\n"}, {"new/a.prj", oneLine}} << QStringList{"1:1"};
}

void tst_PrjMapperCertainty::faultyCondition()
{
    QFETCH(Tables, targets);
    Case test(oneLine, targets);
    addCondition(test.mapping(), 0, "k .EQ.");
    QTEST(test.proposals(), "expected");
}

void tst_PrjMapperCertainty::names_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("certain");
    QTest::newRow("separators in digits") << "DIN 931-1"
                                          << "DIN 9311" << false;
    QTest::newRow("decimal point") << "M8.5"
                                   << "M85" << false;
    QTest::newRow("decimal point, other way round") << "M85"
                                                    << "M8.5" << false;
    QTest::newRow("digits divided otherwise") << "A 1-23"
                                              << "A 12-3" << false;
    QTest::newRow("letters divided otherwise") << "hex bolt"
                                               << "hexbolt" << false;
    QTest::newRow("separator between letters and digits") << "DIN 931"
                                                          << "din931" << true;
    QTest::newRow("other separators") << "DIN 931-1"
                                      << "din_931_1" << true;
}

void tst_PrjMapperCertainty::names()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    const QString from = "old/" + source + ".prj";
    const QString to = "new/" + target + ".prj";
    const TestCatalog catalog;
    catalog.write(from, oneLine);
    catalog.write(to, oneLine);
    PrjMapperC mapper(catalog.tree());
    mapper.setCreatorMode(true);
    const VKTab::Content table = catalog.read(from);
    mapper.setSourceTable(table);
    mapper.findMapping(from, "v1", catalogOf(mappingOf(from, {to})));
    const VKTab::LineView view(table, VKTab::LineId(1));
    const PrjMapperLineC line = mapper.createLine(1, view, false);
    QVERIFY(line.isFound());
    QTEST(mapper.passesCheck(line, view, CheckValues | CheckConditions), "certain");
}

void tst_PrjMapperCertainty::oneColumnCountsOnce_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QStringList>("renames");
    QTest::addColumn<QStringList>("formulas");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("one column copied to three")
        << QByteArray("p,q,r\nM8,M8,M8\n") << QStringList{"D>p", "D>q", "D>r"} << QStringList()
        << QStringList{"0:1"};
    QTest::newRow("constants") << QByteArray("D,p,q\nM8,1,2\n") << QStringList()
                               << QStringList{"p = 1", "q = 2"} << QStringList{"0:1"};
    QTest::newRow("one column through formulas")
        << QByteArray("D,p,q\nM8,M8,M8\n") << QStringList() << QStringList{"p = D", "q = .p"}
        << QStringList{"0:1"};
    QTest::newRow("two of four columns")
        << QByteArray("p,q,r\nM8,M8,1\n") << QStringList{"D>p", "D>q", "a>r"} << QStringList()
        << QStringList{"0:1 ok"};
    QTest::newRow("two of four columns in one formula")
        << QByteArray("p\n3\n") << QStringList() << QStringList{"p = a + b"}
        << QStringList{"0:1 ok"};
    QTest::newRow("a column without a value")
        << QByteArray("D,p,q\nM8,,\n") << QStringList{"e>p", "e>q"} << QStringList()
        << QStringList{"0:1"};
}

void tst_PrjMapperCertainty::oneColumnCountsOnce()
{
    QFETCH(QByteArray, target);
    QFETCH(QStringList, renames);
    QFETCH(QStringList, formulas);
    Case test("D,a:n,b:n,c:n,e\nM8,1,2,3,\n", {{"new/a.prj", target}});
    for (const QString &rename : renames)
        addRename(test.mapping(), 0, rename.section('>', 0, 0), rename.section('>', 1));
    for (const QString &formula : formulas)
        addFormula(test.mapping(), 0, formula);
    QTEST(test.proposals(), "expected");
}

void tst_PrjMapperCertainty::claimsThroughTargetsOfOneProject_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("same path") << "new/a.prj";
    QTest::newRow("written otherwise") << "new\\a.prj";
}

void tst_PrjMapperCertainty::claimsThroughTargetsOfOneProject()
{
    QFETCH(QString, path);
    // Both lines become "M8,5": the second by the formula of its target.
    Case test("D,k:n,g:n\nM8,5,1\nM8,6,2\nM9,7,1\nM10,8,1\n",
              {{"new/a.prj", "D,k:n\nM8,5\nM9,7\nM10,8\n"}});
    test.mapping().addTarget(path, QString());
    addCondition(test.mapping(), 0, "g .EQ. 1");
    addCondition(test.mapping(), 1, "g .EQ. 2");
    addFormula(test.mapping(), 1, "k = k - 1");
    QCOMPARE(test.proposals(), (QStringList{"0:1", "1:1", "0:2 ok", "0:3 ok"}));
}

void tst_PrjMapperCertainty::otherLineOfTheSameProject()
{
    Case test("D,k:n\nM8,5\n", {{"new/a.prj", "D,k:n\nM8,5\nM8,6\n"}});
    test.mapping().addTarget("new/a.prj", QString());
    addFormula(test.mapping(), 1, "k = k + 1");
    QCOMPARE(test.proposals(), QStringList{"0:1"});
}

void tst_PrjMapperCertainty::confirmedForAnotherLine_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("sourceLine");
    QTest::addColumn<int>("targetLine");
    QTest::addColumn<QString>("expected");
    QTest::newRow("another line") << 0 << 2 << 1 << "0:1";
    QTest::newRow("another line through another target") << 1 << 2 << 1 << "0:1";
    QTest::newRow("a line that the table lacks") << 0 << 77 << 1 << "0:1";
    QTest::newRow("another target line") << 0 << 2 << 2 << "0:1 ok";
    QTest::newRow("a line of another project") << 2 << 2 << 1 << "0:1 ok";
    QTest::newRow("expired") << 0 << 2 << -1 << "0:1 ok";
}

void tst_PrjMapperCertainty::confirmedForAnotherLine()
{
    QFETCH(int, target);
    QFETCH(int, sourceLine);
    QFETCH(int, targetLine);
    const QByteArray table = "D,k:n\nM8,5\nM9,6\n";
    Case test(table, {{"new/a.prj", table}, {"new/a.prj", {}}, {"new/b.prj", "D,k:n\nX,1\n"}});
    addCondition(test.mapping(), 1, "k .GT. 100");
    enter(test.mapping(), target, sourceLine, targetLine, Verified);
    QTEST(test.proposals().first(), "expected");
}

void tst_PrjMapperCertainty::confirmedMeanwhile()
{
    const QByteArray table = "D,k:n\nM8,5\nM9,6\n";
    Case test(table, {{"new/a.prj", table}});
    test.fixture->start();
    QCOMPARE(test.fixture->proposal(1), "0:1 ok");
    // The mapper itself confirms the target line for another line.
    PrjMappingC other = test.mapping();
    enter(other, 0, 2, 1, Verified);
    const PrjMapperLineC made = test.fixture->create(1);
    PrjMapperC helper(test.catalog.tree());
    helper.setSourceTable(test.fixture->source);
    helper.findMapping("old/a.prj", "v1", catalogOf(other));
    const PrjMapperLineC confirmed = helper.findLine(2, test.fixture->varset(2));
    QVERIFY(test.fixture->mapper.addLine(confirmed));
    QVERIFY(!test.fixture->check(test.fixture->create(1)).isOK());
    Q_UNUSED(made)
}

void tst_PrjMapperCertainty::texts_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *source, const char *target,
                        const char *expected) {
        QTest::newRow(name) << QByteArray(source) << QByteArray(target) << QString(expected);
    };
    row("more digits than a number keeps", "D,k:n\n9300123.0801,5\n", "D,k:n\n9300123.0804,5\n",
        "0:1");
    row("exponent", "D,k:n\n1E2,5\n", "D,k:n\n100,5\n", "0:1");
    row("leading zeros", "D,k:n\n007,5\n", "D,k:n\n7,5\n", "0:1");
    row("the same text", "D,k:n\n007,5\n", "D,k:n\n007,5\n", "0:1 ok");
    row("quoted", "D,k:n\n\"007\",5\n", "D,k:n\n007,5\n", "0:1 ok");
    row("blanks around", "D,k:n\n 007 ,5\n", "D,k:n\n007,5\n", "0:1 ok");
    row("other order of columns", "D,k:n\n1E2,5\n", "k:n,D\n5,100\n", "0:1");
    row("exchanged columns of the same bytes", "D,E\n7,007\n", "E,D\n7,007\n", "0:1");
    row("number in both", "D:n,k:n\n007,5\n", "D:n,k:n\n7,5\n", "0:1 ok");
    row("text in the source only", "D,k:n\n007,5\n", "D:n,k:n\n7,5\n", "0:1");
    row("text in the target only", "D:n,k:n\n7,5\n", "D,k:n\n007,5\n", "0:1");
    row("beside a range", "D,k:r\n007,5\n", "D,k:r\n7,5;6\n", "0:1");
    row("beside a range, the same", "D,k:r\n007,5\n", "D,k:r\n007,5;6\n", "0:1 ok");
}

void tst_PrjMapperCertainty::texts()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    Case test(source, {{"new/a.prj", target}});
    QTEST(test.proposals().first(), "expected");
}

void tst_PrjMapperCertainty::computedTexts()
{
    Case test("D,k:n\n1E2,5\n", {{"new/a.prj", "E,k:n\n100,5\n"}});
    addFormula(test.mapping(), 0, "E = D");
    QCOMPARE(test.proposals(), QStringList{"0:1"});
}

void tst_PrjMapperCertainty::changedDesignationPattern()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\nM10,7\nM12,8\n",
                  [](VKTab::TableDescriptor &t) { t.lineDesignation = "DIN 931 - {D}"; });
    catalog.write("new/a.prj", "D,k:n\nM8,5\nM9,60\nM10,70\nM12,80\n",
                  [](VKTab::TableDescriptor &t) { t.lineDesignation = "ISO 4014 - {D}"; });
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    QCOMPARE(fixture.proposal(1), "0:1");
}

void tst_PrjMapperCertainty::combinations_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("certain");
    QTest::newRow("two lines of the target")
        << QByteArray("D,L:r\nM8,20;10\n") << QByteArray("D,L:n\nM8,10\nM8,20\n") << false;
    QTest::newRow("one line of the target")
        << QByteArray("D,L:r\nM8,20;10\n") << QByteArray("D,L:r\nM8,10;20\n") << true;
    QTest::newRow("a line counts once, however many combinations")
        << QByteArray("D,L:r\nM8,10;20\n")
        << QByteArray("D,L:r\nM8,10;20\nX1,7\nX2,8\nX3,9\nX4,7\n") << true;
    QByteArray many;
    for (int i = 1; i <= 1100; ++i)
        many += (i == 1 ? "" : ";") + QByteArray::number(i);
    QTest::newRow("many combinations") << "D,L:r\nM8," + many + '\n'
                                       << "D,L:r\nM8," + many + '\n'
                                       << true;
    QTest::newRow("more combinations than are looked at")
        << QByteArray("D,L:r,W:r\nM8,20;1001..1400/1,1..400/1\n") << QByteArray("D,L:n\nM8,20\n")
        << false;
}

void tst_PrjMapperCertainty::combinations()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    Case test(source, {{"new/a.prj", target}});
    addCondition(test.mapping(), 0, "L .GT. 0");
    if (source.contains("W:r"))
        addCondition(test.mapping(), 0, "W .GT. 0");
    test.fixture->start();
    MapperFixture::Varset values = test.fixture->varset(1);
    values["L"].setValue(VKTab::Value("20"));
    if (values.contains("W"))
        values["W"].setValue(VKTab::Value("1"));
    PrjMapperC &mapper = test.fixture->mapper;
    const PrjMapperLineC line = mapper.createLine(1, values, false);
    QVERIFY(line.isFound());
    const auto seen = mapper.updateVarset(line, values, {});
    const auto result =
        mapper.checkMapping(line, values, seen, CheckValues | CheckConditions, QString());
    QTEST(result.isOK(), "certain");
}

void tst_PrjMapperCertainty::combinationOfAnotherTarget_data()
{
    QTest::addColumn<QByteArray>("other");
    QTest::addColumn<QString>("condition");
    QTest::addColumn<bool>("certain");
    QTest::newRow("with an equal line")
        << QByteArray("D,L:n\nM8,20\n") << QString("L .GT. 15") << false;
    QTest::newRow("without one") << QByteArray("D,L:n\nX,1\n") << QString("L .GT. 15") << false;
    QTest::newRow("not of another target")
        << QByteArray("D,L:n\nX,1\n") << QString("L .GT. 30") << true;
}

void tst_PrjMapperCertainty::combinationOfAnotherTarget()
{
    QFETCH(QByteArray, other);
    QFETCH(QString, condition);
    Case test("D,L:r\nM8,10;20\n", {{"new/a.prj", "D,L:n\nM8,10\n"}, {"new/b.prj", other}});
    addCondition(test.mapping(), 0, "L .LE. 15");
    addCondition(test.mapping(), 1, condition);
    test.fixture->start();
    MapperFixture::Varset values = test.fixture->varset(1);
    values["L"].setValue(VKTab::Value("10"));
    PrjMapperC &mapper = test.fixture->mapper;
    const PrjMapperLineC line = mapper.createLine(1, values, false);
    QCOMPARE(line.getTargetIndex(), 0);
    const auto seen = mapper.updateVarset(line, values, {});
    const auto result =
        mapper.checkMapping(line, values, seen, CheckValues | CheckConditions, QString());
    QTEST(result.isOK(), "certain");
}

void tst_PrjMapperCertainty::overlappingRanges()
{
    // The first line is in all ranges, the second in the last one only: more than are counted.
    QByteArray target = "D,L:r\n";
    for (int i = 0; i < 20; ++i)
        target += "M8,1;" + QByteArray::number(100 + i) + '\n';
    Case test("D,L:r\nM8,1\nM8,119\n", {{"new/a.prj", target + "M9,7\n"}});
    QCOMPARE(test.proposals().last(), "0:20");
}

void tst_PrjMapperCertainty::claimsThatAreCounted_data()
{
    QTest::addColumn<int>("equal");
    QTest::addColumn<QString>("expected");
    QTest::newRow("all") << 16 << "0:17 ok";
    QTest::newRow("one too many: the lines behind are not known") << 17 << "0:18";
}

/// One line is in so many ranges, another has a line of its own behind these.
void tst_PrjMapperCertainty::claimsThatAreCounted()
{
    QFETCH(int, equal);
    QByteArray target = "D,L:r\n";
    for (int i = 0; i < equal; ++i)
        target += "M8,1;" + QByteArray::number(100 + i) + '\n';
    Case test("D,L:r\nM8,1\nM9,7\n", {{"new/a.prj", target + "M9,7\n"}});
    QTEST(test.proposals().last(), "expected");
}

void tst_PrjMapperCertainty::sameRangesBehindOthers_data()
{
    QTest::addColumn<int>("others");
    QTest::addColumn<int>("line");
    QTest::newRow("a few") << 30 << 31;
    QTest::newRow("as many as are looked through") << 63 << 64;
    QTest::newRow("one more: the first") << 64 << 1;
}

void tst_PrjMapperCertainty::sameRangesBehindOthers()
{
    QFETCH(int, others);
    QByteArray target = "D,L:r\n";
    for (int i = 30; i < 30 + others; ++i)
        target += "M8,10;20;" + QByteArray::number(i) + '\n';
    Case test("D,L:r\nM8,10;20\n", {{"new/a.prj", target + "M8,10;20\n"}});
    // By its place the line of the table finds it anyway.
    QCOMPARE(test.proposals().first(), QString("0:%1").arg(others + 1));
    const PrjMapperLineC line = test.fixture->mapper.createLine(77, test.fixture->varset(1), false);
    QTEST(line.getTargetLineId(), "line");
}

void tst_PrjMapperCertainty::agreementOfTheTables_data()
{
    QTest::addColumn<int>("equal");
    QTest::addColumn<QString>("expected");
    QTest::newRow("less than half of the lines are equal") << 9 << "0:1";
    QTest::newRow("more than half") << 11 << "0:1 ok";
}

void tst_PrjMapperCertainty::agreementOfTheTables()
{
    QFETCH(int, equal);
    // An empty first cell: nothing tells which of the others belong together.
    QByteArray source = "a:n,b:n\n";
    QByteArray target = source;
    for (int i = 1; i <= 20; ++i) {
        source += (i == 20 ? QByteArray() : QByteArray::number(i)) + ",7\n";
        target += (i == 20 ? QByteArray() : QByteArray::number(i)) + (i <= equal ? ",7\n" : ",\n");
    }
    Case test(source, {{"new/a.prj", target}});
    QTEST(test.proposals().first(), "expected");
}

void tst_PrjMapperCertainty::whatIdentifiesLines_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<int>("distinct");
    QTest::addColumn<QString>("expected");
    for (const char *what : {"source", "target", "designations"}) {
        QTest::addRow("%s, nine of ten differ", what) << what << 90 << "0:1 ok";
        QTest::addRow("%s, hardly fewer", what) << what << 89 << "0:1";
    }
}

/// The first lines are equal and belong together; the others of both tables are unlike each other.
/// They are left out of account if the first column or the designation identifies lines.
void tst_PrjMapperCertainty::whatIdentifiesLines()
{
    QFETCH(QString, what);
    QFETCH(int, distinct);
    const bool designations = what == "designations";
    QByteArray source = "a:n,n\n";
    QByteArray target = source;
    for (int i = 1; i <= 100; ++i) {
        // An empty cell: the column does not identify.
        const bool empty = designations && i == 100;
        const auto number = [&](int from, const char *repeating) {
            const int value = what == repeating ? std::min(i, distinct) : i;
            return empty ? QByteArray() : QByteArray::number(i == 1 ? 1 : from + value);
        };
        const auto text = [&](char from, int value) {
            return from + QByteArray::number(value);
        };
        source += number(0, "source") + ',' + text('x', i) + '\n';
        const int other = designations ? std::min(i, distinct) : i;
        target += number(1000, "target") + ',' + text(i == 1 ? 'x' : 'y', other) + '\n';
    }
    const auto describe = [&](VKTab::TableDescriptor &table) {
        if (designations)
            table.lineDesignation = "{n}";
    };
    const TestCatalog catalog;
    catalog.write("old/a.prj", source, describe);
    catalog.write("new/a.prj", target, describe);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    QTEST(fixture.proposal(1), "expected");
}

void tst_PrjMapperCertainty::equalLinesArePairedOff_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<int>("equal");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("each takes the next")
        << QByteArray("D,k:n\nM8,5\nM8,5\nM8,5\n") << 3 << QStringList{"0:1", "0:2", "0:3"};
    QTest::newRow("behind another line")
        << QByteArray("D,k:n\nM8,5\nX,1\nM8,5\n") << 50 << QStringList{"0:1", "0:51", "0:52"};
}

/// Equal lines on both sides, on either side of a line "X".
void tst_PrjMapperCertainty::equalLinesArePairedOff()
{
    QFETCH(QByteArray, source);
    QFETCH(int, equal);
    const QByteArray lines = QByteArray("M8,5\n").repeated(equal);
    Case test(source, {{"new/a.prj", "D,k:n\n" + lines + "X,1\n" + lines}});
    QStringList expected = test.proposals();
    for (QString &proposal : expected)
        proposal = proposal.section(u' ', 0, 0);
    QTEST(expected, "expected");
}

void tst_PrjMapperCertainty::pairingOffEnds_data()
{
    QTest::addColumn<int>("equal");
    QTest::addColumn<int>("line");
    QTest::newRow("behind as many as are stepped over") << 999 << 1002;
    QTest::newRow("behind one more: from the first again") << 1000 << 2;
}

/// So many lines are equal that nothing but their order is looked at.
void tst_PrjMapperCertainty::pairingOffEnds()
{
    QFETCH(int, equal);
    const QByteArray lines = QByteArray("M8,5\n").repeated(equal);
    const QByteArray many = QByteArray("Z,1\n").repeated(20'001);
    Case test("D,k:n\nM8,5\nX,1\nM8,5\nM8,5\n" + many,
              {{"new/a.prj", "D,k:n\n" + lines + "X,1\n" + lines + many}});
    test.fixture->start();
    QCOMPARE(test.fixture->create(1).getTargetLineId(), 1);
    QTEST(test.fixture->create(4).getTargetLineId(), "line");
}

void tst_PrjMapperCertainty::hiddenLinesAreNotPairedOff()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n,g:n\nM8,5,1\nM8,5,2\nM8,5,1\n",
                  [](VKTab::TableDescriptor &table) {
                      table.filterConditions.append({"PRJLINECOND", "g .EQ. 1", {}});
                  });
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    fixture.mapper.setCreatorMode(false);
    QCOMPARE(fixture.proposal(1), "0:1");
    QCOMPARE(fixture.proposal(2), "0:3");
}

void tst_PrjMapperCertainty::messages_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("expected");
    QTest::newRow("text") << "text"
                          << "Die Werte der Variable D sind verschieden.\n  Alter Wert: 007\n  "
                             "Neuer Wert: 7";
    QTest::newRow("condition") << "condition"
                               << "Eine Bedingung eines Zielprojekts ist fehlerhaft.\n  k .EQ.";
    QTest::newRow("confirmed")
        << "confirmed"
        << "Die Zielzeile ist schon für eine andere Zeile bestätigt.\n  Zeile 2";
    QTest::newRow("unreadable") << "unreadable"
                                << "Die Tabelle des Zielprojekts konnte nicht gelesen werden.\n  "
                                   "Projekt: new/x.prj";
}

void tst_PrjMapperCertainty::messages()
{
    QFETCH(QString, what);
    const QByteArray target = what == "text" ? "D,k:n\n7,5\n8,6\n" : "D,k:n\n007,5\n8,6\n";
    Case test("D,k:n\n007,5\n8,6\n", {{"new/a.prj", target}, {"new/x.prj", {}}});
    if (what == "condition")
        addCondition(test.mapping(), 1, "k .EQ.");
    else if (what != "unreadable")
        addCondition(test.mapping(), 1, "k .GT. 100");
    if (what == "confirmed")
        enter(test.mapping(), 0, 2, 1, Verified);
    test.fixture->start();
    const auto result = test.fixture->check(test.fixture->create(1));
    QCOMPARE(result.getErrMsgList().size(), 1);
    QTEST(result.getErrMsgList().first(), "expected");
}

QTEST_GUILESS_MAIN(tst_PrjMapperCertainty)
#include "tst_PrjMapperCertainty.moc"
