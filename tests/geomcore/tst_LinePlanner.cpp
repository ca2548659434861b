#include <core/parallel/WorkerPool.h>
#include <geomcore/plan/LinePlanner.h>
#include <geomcore/plan/PairEvidence.h>

#include <QTest>

#include <limits>
#include <map>
#include <memory>
#include <numeric>
#include <random>
#include <span>

using namespace Plan;

namespace {

using Table = std::vector<std::vector<std::string>>;

/// One target, all of whose rows are open, as are all lines; the first \a keys variables are keys.
void fill(PlanTables &tables, const Table &lines, const Table &rows, size_t keys)
{
    const size_t variables = lines.front().size();
    tables.values.resize(variables);
    tables.variableCount = int(variables);
    tables.sourceRows = int(lines.size());
    PlanTarget target;
    target.rowCount = int(rows.size());
    target.hasSourceName = true;
    target.lines = CellMatrix(lines.size(), variables);
    target.rows = CellMatrix(rows.size(), variables);
    target.takes.assign(lines.size(), 1);
    target.settled.assign(lines.size(), -1);
    target.chances.resize(variables);
    for (size_t v = 0; v < variables; ++v) {
        target.variables.push_back(int(v));
        target.keys.push_back(v < keys ? 1 : 0);
        for (size_t line = 0; line < lines.size(); ++line)
            target.lines.set(line, v, tables.values[v].number(lines[line][v], '.'));
        for (size_t row = 0; row < rows.size(); ++row) {
            target.rows.set(row, v, tables.values[v].number(rows[row][v], '.'));
            target.chances[v].add(target.rows.at(row, v));
        }
        tables.values[v].finish();
        target.chances[v].finish(tables.values[v], v < keys);
    }
    for (size_t line = 0; line < lines.size(); ++line)
        tables.openLines.push_back(int(line));
    for (size_t row = 0; row < rows.size(); ++row)
        target.openRows.push_back(int(row));
    tables.targets.push_back(std::move(target));
}

/// Keys, materials, measures, sizes, some of them missing.
Table someLines(int count, unsigned seed)
{
    std::mt19937 random(seed);
    const std::array<const char *, 4> materials{"St 37-2", "A2", "A4 blank", ""};
    Table lines;
    for (int i = 0; i < count; ++i)
        lines.push_back(
            {"K" + std::to_string(1000 + i), materials[random() % 4],
             std::to_string(random() % 100'000) + "." + std::to_string(random() % 9 + 1),
             random() % 9 == 0 ? "" : std::to_string(5 * (1 + random() % 40)),
             "M" + std::to_string(3 + random() % 30)});
    return lines;
}

/// Each line with a number, a size or a material of another one, and one material reworded.
Table changed(Table lines)
{
    std::mt19937 random(7);
    const size_t count = lines.size();
    for (std::vector<std::string> &line : lines) {
        const size_t variable = 1 + random() % 4;
        line[variable] = lines[random() % count][variable];
        if (line[1] == "St 37-2")
            line[1] = "S235 JR";
    }
    return lines;
}

} // namespace

class tst_LinePlanner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesKeepTheirNumbers();
    void nearShareIsThatOfACount_data();
    void nearShareIsThatOfACount();
    void boundsHold();
    void likelierOfTwoTexts();
    void oneRowFarAhead();
    void keyAloneIsNotFarAhead();
    void partOfManyLinesTeachesAll();
    void ofTheUnlikelyOnlyTheBestIsKept();
    void linesAlikeDoNotCross_data();
    void linesAlikeDoNotCross();
};

void tst_LinePlanner::valuesKeepTheirNumbers()
{
    CellValues values;
    std::vector<int> numbers;
    for (int i = 0; i < 5000; ++i) {
        numbers.push_back(values.number(std::to_string(i), '.'));
        numbers.push_back(values.number("A" + std::to_string(i), '.'));
    }
    QCOMPARE(values.count(), 10'001);
    for (int i = 0; i < 5000; ++i) {
        QCOMPARE(values.number(std::to_string(i) + ".0", '.'), numbers[size_t(2 * i)]);
        QCOMPARE(values.number("A" + std::to_string(i), '.'), numbers[size_t(2 * i + 1)]);
    }
    // A text's token is the number that another value is.
    const CellValues::Value text = values.value(numbers[2 * 77 + 1]);
    const CellValues::Value number = values.value(numbers[2 * 77]);
    QVERIFY(text.hasNumber && !text.isNumber && number.isNumber);
    QCOMPARE(text.tokens[1], number.tokens[0]);
    // "b" before "a" in writing, each once and sorted beside it.
    const CellValues::Value twice = values.value(values.number("zz b zz", '.'));
    QCOMPARE(twice.tokens.size(), size_t(3));
    QCOMPARE(twice.distinct.size(), size_t(2));
    QVERIFY(twice.distinct[0] < twice.distinct[1]);
}

void tst_LinePlanner::nearShareIsThatOfACount_data()
{
    QTest::addColumn<double>("power");
    QTest::newRow("even") << 1.0;
    QTest::newRow("most of them small") << 5.0;
    QTest::newRow("all the same") << 0.0;
}

void tst_LinePlanner::nearShareIsThatOfACount()
{
    QFETCH(double, power);
    std::mt19937 random(3);
    CellValues values;
    ColumnChance chance;
    std::vector<double> numbers;
    for (int i = 0; i < 3000; ++i) {
        const double number = std::round(std::pow(double(random() % 1000 + 1) / 10, power));
        numbers.push_back(number);
        chance.add(values.number(std::to_string(qint64(number)), '.'));
    }
    chance.finish(values, false);
    for (int i = 0; i < 2000; ++i) {
        const double a = numbers[random() % numbers.size()] + double(random() % 3);
        const double b = numbers[random() % numbers.size()];
        const double distance = std::abs(b - a);
        const auto near = std::count_if(numbers.begin(), numbers.end(), [&](double number) {
            return number >= a - distance && number <= a + distance;
        });
        const double seen = std::max(0.0, double(near) - 1) + 0.5;
        const double part = std::min(1.0, distance / std::max(std::abs(a), std::abs(b)));
        QCOMPARE(chance.nearShare(a, b), (seen + 8 * part) / (3000 + 8));
        const double leastOfAll = 0.5 / (3000 + 8);
        QVERIFY(chance.nearShare(a, b) >= leastOfAll);
        const double least = chance.nearShareAtLeast(a, b);
        QVERIFY(least <= chance.nearShare(a, b));
        QVERIFY(least >= leastOfAll);
        if (power == 1) // few numbers share a part
            QVERIFY(least > chance.nearShare(a, b) - 0.06);
    }
}

void tst_LinePlanner::boundsHold()
{
    const Table lines = someLines(90, 1);
    PlanTables tables;
    fill(tables, lines, changed(lines), 1);
    const PlanTarget &target = tables.targets.front();
    const std::vector<VariableRates> rates(5, VariableRates::assumed());
    ChangeMemory changes(5);
    for (size_t v = 0; v < 5; ++v) {
        const auto pairs = [&](const ChangeMemory::TakePair &take) {
            for (size_t line = 0; line < 90; line += 2) {
                const int a = target.lines.at(line, v);
                const int b = target.rows.at(line, v);
                if (a != CellValues::NoValue && b != CellValues::NoValue)
                    take(a, b, 1);
            }
        };
        changes.learn(tables.values[v], int(v), pairs, true);
    }
    QVERIFY(changes.mostLikely(1) > 0.3);
    const PairEvidence evidence(tables, rates, changes);
    const double none = -std::numeric_limits<double>::infinity();
    std::vector<int> rows(90);
    std::iota(rows.begin(), rows.end(), 0);
    int ended = 0;
    for (size_t line = 0; line < 90; ++line) {
        for (const bool withKeys : {true, false}) {
            std::vector<PairEvidence::Part> parts(7);
            std::vector<double> sums;
            evidence.bound(target, line, rows, withKeys, parts, sums);
            QCOMPARE(parts.size(), 7 + 90 * target.variables.size());
            for (size_t row = 0; row < 90; ++row) {
                const auto weight = [&](double least) { // each time of parts as they were bounded
                    auto own = parts;
                    const size_t first = 7 + row * target.variables.size();
                    const auto ofRow = std::span(own).subspan(first, target.variables.size());
                    return evidence.weight(target, line, row, 0, ofRow, least);
                };
                const double whole = weight(none);
                double cells = 0;
                for (size_t place = 0; place < target.variables.size(); ++place) {
                    if (withKeys || !target.keys[place])
                        cells += evidence.cell(target, line, row, place, 0).weight;
                }
                QVERIFY(whole <= cells + 1e-9); // a near number may say nothing
                QVERIFY(sums[row] >= whole - 1e-9);
                QCOMPARE(weight(whole), whole);
                const double bounded = weight(5);
                QVERIFY(whole < 5 ? bounded < 5 : bounded == whole);
                ended += bounded != whole ? 1 : 0;
            }
        }
    }
    QVERIFY(ended > 90 * 90 / 2);
}

/// Each of two texts has so many tokens of the old one that it would say more than that it is this
/// one of all: the one that has one more is ahead nevertheless.
void tst_LinePlanner::likelierOfTwoTexts()
{
    Table rows{{"a b c d e f g h i j k other"}, {"a b c d e f g h i j some thing"}};
    for (int i = 0; i < 20; ++i)
        rows.push_back({"x" + std::to_string(i)});
    PlanTables tables;
    fill(tables, {{"a b c d e f g h i j k l"}}, rows, 0);
    const std::vector<VariableRates> rates{VariableRates::assumed()};
    const ChangeMemory changes(1);
    const PairEvidence evidence(tables, rates, changes);
    const PlanTarget &target = tables.targets.front();
    const double more = evidence.cell(target, 0, 0, 0, 0).weight;
    const double less = evidence.cell(target, 0, 1, 0, 0).weight;
    QVERIFY(less > 0);
    QVERIFY(more > less + 0.1);
}

void tst_LinePlanner::oneRowFarAhead()
{
    const Table rows = someLines(20'000, 2);
    Table lines(rows.begin() + 500, rows.begin() + 510);
    for (std::vector<std::string> &line : lines)
        line[3] = "1000"; // no row has it
    PlanTables tables;
    fill(tables, lines, rows, 1);
    const CandidateLists lists(tables, tables.targets.front());
    for (size_t line = 0; line < lines.size(); ++line) {
        const CandidateLists::Found found = lists.find(line);
        QVERIFY(found.isFarAhead);
        QVERIFY(std::binary_search(found.rows.begin(), found.rows.end(), int(500 + line)));
        QVERIFY(found.rows.size() < size_t(CandidateLists::MaxRows));
    }
}

/// Keys were given anew: the one of a line stands in a row that has nothing else of it.
void tst_LinePlanner::keyAloneIsNotFarAhead()
{
    const Table rows = someLines(20'000, 2);
    Table lines(rows.begin() + 500, rows.begin() + 510);
    for (size_t line = 0; line < lines.size(); ++line)
        lines[line][0] = rows[900 + line][0];
    PlanTables tables;
    fill(tables, lines, rows, 1);
    const CandidateLists lists(tables, tables.targets.front());
    for (size_t line = 0; line < lines.size(); ++line) {
        const CandidateLists::Found found = lists.find(line);
        for (const int row : {500, 900})
            QVERIFY(std::binary_search(found.rows.begin(), found.rows.end(), row + int(line)));
    }
}

/// More lines than are learned from: each finds its row, what is told of others counts all, and the
/// number of threads changes nothing.
void tst_LinePlanner::partOfManyLinesTeachesAll()
{
    constexpr int Count = 5200;
    const Table lines = someLines(Count, 5);
    Table rows = changed(lines);
    rows.erase(rows.begin(), rows.begin() + 500); // the first lines are gone
    PlanTables tables;
    fill(tables, lines, rows, 1);
    std::unique_ptr<LinePlanner> former;
    double supports = 0;
    for (const int threads : {1, 2}) {
        WorkerPool::instance().setThreads(threads);
        auto made = std::make_unique<LinePlanner>(tables);
        LinePlanner &planner = *made;
        planner.run();
        if (!former)
            former = std::move(made);
        int right = 0;
        int gone = 0;
        supports = 0;
        for (size_t line = 0; line < Count; ++line) {
            const LinePlanner::Line found = planner.line(line);
            const bool isProposed =
                !found.candidates.empty() && found.candidates.front().probability >= 0.5;
            gone += line < 500 && !isProposed ? 1 : 0;
            if (line < 500 || !isProposed)
                continue;
            right += found.candidates.front().row == int(line) - 500 ? 1 : 0;
            if (lines[line][1] == "St 37-2" && rows[line - 500][1] == "S235 JR")
                supports =
                    std::max(supports, planner.cell(found.candidates.front(), line, 1).supports);
        }
        QCOMPARE(right, Count - 500);
        QVERIFY(gone >= 495);
        for (size_t line = 0; line < Count; ++line) {
            const LinePlanner::Line now = planner.line(line);
            const LinePlanner::Line before = former->line(line);
            QCOMPARE(now.noSuccessor, before.noSuccessor);
            QCOMPARE(now.candidates.size(), before.candidates.size());
            for (size_t i = 0; i < now.candidates.size(); ++i) {
                QCOMPARE(now.candidates[i].node, before.candidates[i].node);
                QCOMPARE(now.candidates[i].probability, before.candidates[i].probability);
            }
        }
    }
    WorkerPool::instance().setThreads(0);
    double changedSo = 0;
    for (size_t line = 500; line < Count; ++line)
        changedSo += lines[line][1] == "St 37-2" && rows[line - 500][1] == "S235 JR" ? 1 : 0;
    QVERIFY(changedSo > 400);
    QVERIFY(std::abs(supports - (changedSo - 1)) < 0.01 * changedSo);
}

/// Of a line that is gone some rows have one value, and nothing else: having no successor is so
/// much likelier that these are not told apart.
void tst_LinePlanner::ofTheUnlikelyOnlyTheBestIsKept()
{
    Table rows;
    for (int row = 0; row < 100; ++row) {
        std::vector<std::string> values{"series " + std::to_string(row / 5)};
        for (int variable = 1; variable < 20; ++variable)
            values.push_back("r" + std::to_string(100 * variable + row));
        rows.push_back(std::move(values));
    }
    Table lines = rows;
    for (int variable = 1; variable < 20; ++variable)
        lines[50][size_t(variable)] = "gone" + std::to_string(variable);
    rows.erase(rows.begin() + 50);
    PlanTables tables;
    fill(tables, lines, rows, 0);
    LinePlanner planner(tables);
    planner.run();
    QCOMPARE(planner.line(49).candidates.front().row, 49);
    QCOMPARE(planner.line(51).candidates.front().row, 50);
    const LinePlanner::Line gone = planner.line(50);
    QCOMPARE(gone.candidates.size(), size_t(1));
    QVERIFY(gone.candidates.front().probability < 1e-9);
    QVERIFY(gone.noSuccessor > 0.999);
}

void tst_LinePlanner::linesAlikeDoNotCross_data()
{
    QTest::addColumn<int>("per");  // lines of a value
    QTest::addColumn<int>("more"); // rows of it beside these
    QTest::addColumn<bool>("hasOther");
    QTest::newRow("one column") << 2 << 1 << false;
    QTest::newRow("values missing in another one") << 4 << 0 << true;
    QTest::newRow("new rows as well") << 6 << 2 << true;
}

/// Few values, each in several lines and in several rows, some of which are gone: the places of
/// crossed lines would confirm each other.
void tst_LinePlanner::linesAlikeDoNotCross()
{
    QFETCH(int, per);
    QFETCH(int, more);
    QFETCH(bool, hasOther);
    std::mt19937 random(3);
    int crossed = 0;
    for (int table = 0; table < 20; ++table) {
        Table lines;
        Table rows;
        for (int value = 0; value < 14; ++value) {
            const std::string text = std::to_string(value) + ".5";
            for (int i = 0; i < per + more; ++i) {
                const std::string other = hasOther ? std::to_string(random() % 3) : "1";
                if (i < per)
                    lines.push_back({text, other});
                if (random() % 5 != 0)
                    rows.push_back({text, random() % 10 == 0 ? "" : other});
            }
        }
        PlanTables tables;
        fill(tables, lines, rows, 0);
        LinePlanner planner(tables);
        planner.run();
        std::map<std::vector<std::string>, int> last; // row of the line alike before
        for (size_t line = 0; line < lines.size(); ++line) {
            const LinePlanner::Line found = planner.line(line);
            if (found.candidates.empty() || found.candidates.front().probability < 0.5)
                continue;
            const int row = found.candidates.front().row;
            std::vector<std::string> alike = lines[line];
            alike.insert(alike.end(), rows[size_t(row)].begin(), rows[size_t(row)].end());
            const auto [before, isFirst] = last.emplace(alike, row);
            crossed += !isFirst && before->second > row ? 1 : 0;
            before->second = row;
        }
    }
    QCOMPARE(crossed, 0);
}

QTEST_APPLESS_MAIN(tst_LinePlanner)
#include "tst_LinePlanner.moc"
