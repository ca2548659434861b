#include "MapperFixture.h"

#include <geomcore/table/ValueRangeIterator.h>
#include <geomcore/value/ResolveRangeOptionsC.h>

#include <QTest>

#include <random>

namespace {

/// Small tables with few different values, so that lines are equal, ambiguous, similar or alone.
class RandomTables
{
public:
    explicit RandomTables(unsigned seed)
        : m_random(seed)
    {
    }

    int below(int limit) { return int(m_random() % unsigned(limit)); }
    bool oneIn(int count) { return below(count) == 0; }

    QByteArray table(const QList<QByteArray> &columns, int rows)
    {
        QByteArray text = columns.join(',') + '\n';
        for (int row = 0; row < rows; ++row) {
            QByteArrayList cells;
            for (const QByteArray &column : columns)
                cells.append(cell(column));
            text += cells.join(',') + '\n';
        }
        return text;
    }

private:
    QByteArray cell(const QByteArray &column)
    {
        if (oneIn(12))
            return oneIn(2) ? "" : "None";
        if (column.endsWith(":n"))
            return oneIn(3) ? QByteArray::number(below(4)) + ".0" : QByteArray::number(below(4));
        if (column.endsWith(":r"))
            return range();
        const char *texts[] = {"M8", "M9", " M8", "(M8)", "x;y", "8"};
        return texts[below(6)];
    }
    QByteArray range()
    {
        const char *ranges[] = {"1", "1;2", "2;1", "1;2;3", "1..3/1", "3;M8", "2.0"};
        return ranges[below(7)];
    }

    std::mt19937 m_random;
};

const QList<QByteArray> allColumns{"D", "k:n", "l:n", "L:r", "t", "K:r"};

/// The same random catalog and mapping for each number.
struct RandomCase
{
    explicit RandomCase(unsigned seed)
        : random(seed)
        , missing([](VKTab::TableDescriptor &table) {
            table.missingValues = QStringList{QString(), QStringLiteral("None")};
        })
    {
        catalog->write("old/a.prj", random.table(columns(), 12), missing);
        catalog->write("new/a.prj", random.table(columns(), 15), missing);
        catalog->write("new/b.prj", random.table(columns(), 15), missing);
        makeFixture();
    }
    /// The same case once more, on the same files.
    RandomCase(const RandomCase &other)
        : random(other.random)
        , catalog(other.catalog)
    {
        makeFixture();
    }
    void makeFixture()
    {
        fixture = std::make_unique<MapperFixture>(*catalog, QStringList{"new/a.prj", "new/b.prj"});
    }
    QList<QByteArray> columns()
    {
        QList<QByteArray> chosen = allColumns;
        while (chosen.size() > 2 && random.oneIn(2))
            chosen.removeAt(random.below(int(chosen.size())));
        return chosen;
    }
    void addRules()
    {
        const char *conditions[] = {"k .GT. 1", "D .NE. 'M8'", "L .NE. 2", "k .LE. 2"};
        const char *formulas[] = {"k = l + 1", "t = D", "L = SOURCE@k"};
        for (int target = 0; target < 2; ++target) {
            if (random.oneIn(2))
                addCondition(fixture->mapping, target, conditions[random.below(4)]);
            if (random.oneIn(2))
                addRename(fixture->mapping, target, random.oneIn(3) ? "" : "l", "k");
            if (random.oneIn(2))
                addFormula(fixture->mapping, target, formulas[random.below(3)]);
        }
    }

    RandomTables random;
    std::shared_ptr<TestCatalog> catalog = std::make_shared<TestCatalog>();
    TestCatalog::Edit missing;
    std::unique_ptr<MapperFixture> fixture;
};

bool sameLine(const PrjMapperLineC &a, const PrjMapperLineC &b)
{
    return a.isValid() == b.isValid() && a.isFound() == b.isFound() &&
           a.getSourceLineId() == b.getSourceLineId() && a.getTargetIndex() == b.getTargetIndex() &&
           a.getTargetLineId() == b.getTargetLineId() && a.getCheckState() == b.getCheckState() &&
           a.getLineId() == b.getLineId() && a.getHistory().size() == b.getHistory().size();
}

} // namespace

class tst_PrjMapperForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bothFormsAgree_data() { seeds(80); }
    void bothFormsAgree();
    void bothFormsAgreeOnCombinations_data() { seeds(40); }
    void bothFormsAgreeOnCombinations();
    void exactHitsAreThoseOfAPlainSearch_data() { seeds(80); }
    void exactHitsAreThoseOfAPlainSearch();

private:
    static void seeds(int count)
    {
        QTest::addColumn<unsigned>("seed");
        for (int seed = 1; seed <= count; ++seed)
            QTest::addRow("%d", seed) << unsigned(seed);
    }
    static void compare(MapperFixture &byVarset, MapperFixture &byView, int line,
                        const MapperFixture::Varset &varset, const VKTab::LineView &view);
};

void tst_PrjMapperForms::compare(MapperFixture &byVarset, MapperFixture &byView, int line,
                                 const MapperFixture::Varset &varset, const VKTab::LineView &view)
{
    QVERIFY(sameLine(byVarset.mapper.findLine(line, varset), byView.mapper.findLine(line, view)));
    const PrjMapperLineC first = byVarset.mapper.createLine(line, varset, false);
    const PrjMapperLineC second = byView.mapper.createLine(line, view, false);
    QVERIFY2(sameLine(first, second), qPrintable(QStringLiteral("line %1: %2:%3 and %4:%5")
                                                     .arg(line)
                                                     .arg(first.getTargetIndex())
                                                     .arg(first.getTargetLineId())
                                                     .arg(second.getTargetIndex())
                                                     .arg(second.getTargetLineId())));
    for (const VarsetModeFlag mode : {VarsetAllValues, VarsetTargetVariables}) {
        QCOMPARE(byVarset.mapper.updateVarset(first, varset, mode),
                 byView.mapper.updateVarset(second, view, mode));
    }
    const MapperFixture::Varset target = byVarset.mapper.updateVarset(first, varset, {});
    for (int mode : {1, 2, 4, 5, 7}) {
        const auto modes = CheckModeFlags::fromInt(mode);
        const auto a = byVarset.mapper.checkMapping(first, varset, target, modes, "t");
        const auto b = byView.mapper.checkMapping(second, view, modes, "t");
        QCOMPARE(b.getErrMsgList(), a.getErrMsgList());
        QCOMPARE(b.isOK(), a.isOK());
        QCOMPARE(b.getSourceVarset(), a.getSourceVarset());
        QCOMPARE(b.getTargetVarset(), a.getTargetVarset());
        QCOMPARE(byView.mapper.passesCheck(second, view, modes), a.isOK());
    }
    if (first.isFound())
        QVERIFY(byVarset.mapper.addLine(first) && byView.mapper.addLine(second));
}

void tst_PrjMapperForms::bothFormsAgree()
{
    QFETCH(unsigned, seed);
    RandomCase first(seed);
    RandomCase second(first);
    for (RandomCase *test : {&first, &second}) {
        test->addRules();
        test->fixture->start();
    }
    for (const VKTab::LineId &id : first.fixture->source.getLineIdList()) {
        const VKTab::LineView view(second.fixture->source, id);
        compare(*first.fixture, *second.fixture, id.value(0), first.fixture->varset(id.value(0)),
                view);
    }
    QCOMPARE(entriesOf(second.fixture->mapper.getMappingNode().getMapping()),
             entriesOf(first.fixture->mapper.getMappingNode().getMapping()));
}

void tst_PrjMapperForms::bothFormsAgreeOnCombinations()
{
    QFETCH(unsigned, seed);
    RandomCase first(seed);
    RandomCase second(first);
    for (RandomCase *test : {&first, &second}) {
        test->addRules();
        addCondition(test->fixture->mapping, 0, "L .NE. 'none'");
        test->fixture->start();
    }
    const VKTab::Content &table = first.fixture->source;
    const VKTab::ResolveRangeOptionsC options;
    for (const VKTab::LineId &id : table.getLineIdList()) {
        VKTab::Line line = table.getLine(id, true);
        VKTab::Line other = second.fixture->source.getLine(id, true);
        VKTab::ValueRangeIterator combinations(table, line, options);
        VKTab::ValueRangeIterator others(second.fixture->source, other, options);
        combinations.setVariablesToResolve({"L"});
        others.setVariablesToResolve({"L"});
        while (combinations.next() && others.next()) {
            compare(*first.fixture, *second.fixture, id.value(0), createVarsetFromVKTable(line, {}),
                    VKTab::LineView(other));
        }
    }
}

namespace {

/// Equality of a source value and a target cell, told a second time and as plainly as can be.
bool plainlyEqual(const QString &source, const QString &target, bool targetIsRange)
{
    const auto number = [](const QString &text, double &value) {
        bool ok = false;
        value = text.toDouble(&ok);
        return ok;
    };
    const auto values = [](const QString &text) {
        return text == "1..3/1" ? QStringList{"1", "2", "3"} : text.split(u';');
    };
    const auto sameValue = [&](const QString &a, const QString &b) {
        double x = 0;
        double y = 0;
        return number(a, x) && number(b, y) ? x == y : a == b;
    };
    if (source.isEmpty() || target.isEmpty())
        return source == target;
    if (sameValue(source, target))
        return true;
    if (!targetIsRange)
        return false;
    const QStringList offered = values(target);
    for (const QString &value : values(source)) {
        const auto isValue = [&](const QString &other) {
            return sameValue(value, other);
        };
        if (std::none_of(offered.begin(), offered.end(), isValue))
            return false;
    }
    return true;
}

QStringList cellsOf(const VKTab::Content &table, const VKTab::LineId &line,
                    const QStringList &names)
{
    QStringList cells;
    for (const QString &name : names) {
        const VKTab::Value value =
            table.getLine(line, false)
                .getValue(table.getVar(name), VKTab::FormatPlain | VKTab::FormatUntranslated, {});
        cells.append(value.toString());
    }
    return cells;
}

/// Lines of the target that equal a line of the source on all common variables.
QList<int> plainSearch(const VKTab::Content &source, const VKTab::LineId &line,
                       const VKTab::Content &target)
{
    QStringList names;
    for (const VKTab::Var &var : source.getVarList()) {
        if (target.getVar(var.getName()).isValid())
            names.append(var.getName());
    }
    const QStringList wanted = cellsOf(source, line, names);
    QList<int> found;
    if (wanted.join(QString()).isEmpty())
        return found;
    for (const VKTab::LineId &id : target.getLineIdList()) {
        const QStringList cells = cellsOf(target, id, names);
        bool equal = true;
        for (int i = 0; i < names.size(); ++i)
            equal = equal && plainlyEqual(wanted[i], cells[i], target.getVar(names[i]).isFW());
        if (equal)
            found.append(id.value(0));
    }
    return found;
}

} // namespace

void tst_PrjMapperForms::exactHitsAreThoseOfAPlainSearch()
{
    QFETCH(unsigned, seed);
    RandomCase test(seed);
    MapperFixture &fixture = *test.fixture;
    fixture.start();
    const VKTab::Content targets[] = {test.catalog->read("new/a.prj"),
                                      test.catalog->read("new/b.prj")};
    for (const VKTab::LineId &id : fixture.source.getLineIdList()) {
        const QList<int> hits[] = {plainSearch(fixture.source, id, targets[0]),
                                   plainSearch(fixture.source, id, targets[1])};
        const PrjMapperLineC line = fixture.create(id.value(0));
        const bool ok = fixture.check(line).isOK();
        const int expected = !hits[0].isEmpty() ? 0 : 1;
        if (hits[expected].isEmpty()) {
            QVERIFY2(!ok, "no equal line, so nothing is certain");
            continue;
        }
        if (!line.isFound()) { // it equals other lines, of which some are gone
            const LineCandidatesC found =
                fixture.mapper.candidates(id.value(0), fixture.varset(id.value(0)));
            QVERIFY(!found.candidates.isEmpty());
            QVERIFY(hits[found.candidates.first().targetIndex].contains(
                found.candidates.first().lineId.value(0)));
            continue;
        }
        QCOMPARE(line.getTargetIndex(), expected);
        QVERIFY(hits[expected].contains(line.getTargetLineId()));
        if (ok)
            QVERIFY(hits[0].size() == 1 && hits[1].isEmpty());
    }
}

QTEST_GUILESS_MAIN(tst_PrjMapperForms)
#include "tst_PrjMapperForms.moc"
