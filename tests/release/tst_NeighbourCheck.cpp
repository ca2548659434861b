#include "PlantedTables.h"

#include "../support/TestCatalog.h"

#include <release/neighbour/ReleaseNeighbours.h>
#include <release/pattern/CellParts.h>

#include <QTest>

using namespace VelkRelease;

namespace {

QString textOf(const NeighbourFinding &finding)
{
    static const char *const kinds[] = {"shifted", "swapped", "misplaced", "twice", "skipped"};
    QStringList repairs;
    for (const NeighbourFinding::Repair &repair : finding.repairs)
        repairs << QString("%1>%2").arg(repair.line).arg(repair.targetLine);
    return QString("%1 %2-%3 by %4: %5")
        .arg(kinds[finding.kind])
        .arg(finding.firstLine)
        .arg(finding.lastLine)
        .arg(finding.steps)
        .arg(repairs.join(' '));
}

} // namespace

Q_DECLARE_METATYPE(VelkRelease::NeighbourLines)

class tst_NeighbourCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findings_data();
    void findings();
    void takenTwice();
    void severalTargets();
    void mostLinesShifted();
    void partOfSeriesShifted();
    void equalRows();
    void shiftEndsAtEqualRow();
    void shiftBesideEqualRows();
    void swappedAmongFew();
    void freeRowsByPlace();
    void measured();
    void lineLeftByShift();
    void fewLines();
    void textsGotWords();
    void numbersInTextsScaled();
    void tooFewLines();
    void mendsInOneMapping();
    void planted_data();
    void planted();
};

namespace {

/// Lines 1 to \a lines of a table whose values are "A" with the number of a hundred, and the
/// number; their rows are \a changed or else the same. 0: none.
NeighbourLines numbered(int lines, const std::map<int, int> &changed)
{
    NeighbourLines table;
    for (int line = 1; line <= lines; ++line) {
        const auto found = changed.find(line);
        const int row = found == changed.end() ? line : found->second;
        table.lines.push_back({line, row == 0 ? -1 : 0, row - 1, false});
    }
    table.rows.resize(1);
    for (int line = 1; line <= lines; ++line)
        table.rows[0].push_back(line);
    return table;
}

QStringList numberedValues(int line)
{
    return {"A" + QString::number(line / 100), QString::number(line * line), "steel"};
}

NeighbourValues valuesByNumber()
{
    return {[](int index, int) { return numberedValues(index + 1); },
            [](int, int row) {
                return numberedValues(row + 1);
            }};
}

QStringList findingsOf(const NeighbourLines &lines)
{
    QStringList texts;
    for (const NeighbourFinding &finding : checkNeighbours(lines, valuesByNumber()))
        texts << textOf(finding);
    return texts;
}

} // namespace

void tst_NeighbourCheck::findings_data()
{
    QTest::addColumn<NeighbourLines>("lines");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("all in place") << numbered(60, {}) << QStringList();
    QTest::newRow("shifted down") << numbered(60, {{40, 41}, {41, 42}, {42, 43}})
                                  << QStringList{"shifted 40-42 by 1: 40>40 41>41 42>42"};
    QTest::newRow("shifted down from the first row")
        << numbered(60, {{1, 2}, {2, 3}, {3, 4}}) << QStringList{"shifted 1-3 by 1: 1>1 2>2 3>3"};
    QTest::newRow("shifted up, the last one left without")
        << numbered(60, {{39, 0}, {40, 39}, {41, 40}, {42, 41}})
        << QStringList{"skipped 39-39 by 0: 39>39", "shifted 40-42 by -1: 40>40 41>41 42>42"};
    QTest::newRow("shifted by two")
        << numbered(60, {{7, 9}, {8, 10}}) << QStringList{"shifted 7-8 by 2: 7>7 8>8"};
    QTest::newRow("swapped") << numbered(60, {{20, 21}, {21, 20}})
                             << QStringList{"swapped 20-21 by 0: 20>20 21>21"};
    QTest::newRow("swapped across others")
        << numbered(60, {{20, 23}, {23, 20}}) << QStringList{"swapped 20-23 by 0: 20>20 23>23"};
    QTest::newRow("misplaced") << numbered(60, {{20, 22}})
                               << QStringList{"misplaced 20-20 by 2: 20>20"};
    QTest::newRow("taken twice, its own row free")
        << numbered(60, {{20, 50}}) << QStringList{"misplaced 20-20 by 30: 20>20"};
    QTest::newRow("skipped") << numbered(60, {{33, 0}}) << QStringList{"skipped 33-33 by 0: 33>33"};
    QTest::newRow("the first one skipped")
        << numbered(60, {{1, 0}}) << QStringList{"skipped 1-1 by 0: 1>1"};
    NeighbourLines gone = numbered(60, {{33, 0}});
    gone.lines[32].gone = true;
    QTest::newRow("confirmed to be gone") << gone << QStringList();
}

void tst_NeighbourCheck::findings()
{
    QFETCH(NeighbourLines, lines);
    QFETCH(QStringList, expected);
    QCOMPARE(findingsOf(lines), expected);
}

void tst_NeighbourCheck::takenTwice()
{
    const NeighbourLines lines = numbered(60, {{20, 50}});
    // Its own row is another thing now.
    const auto row = [](int, int row) {
        return row == 19 ? QStringList{"B", "7777", "brass"} : numberedValues(row + 1);
    };
    const std::vector<NeighbourFinding> findings =
        checkNeighbours(lines, {valuesByNumber().ofLine, row});
    QCOMPARE(findings.size(), 1U);
    QCOMPARE(textOf(findings[0]), "twice 20-20 by 0: 20>-1");
    // Two lines that became one.
    const auto merged = [](int index, int) {
        return numberedValues(index == 19 ? 50 : index + 1);
    };
    QVERIFY(checkNeighbours(lines, {merged, row}).empty());
}

void tst_NeighbourCheck::severalTargets()
{
    // The second half of the table went to a target of its own.
    NeighbourLines lines = numbered(60, {{40, 41}, {41, 40}});
    lines.rows.push_back({});
    for (int line = 31; line <= 60; ++line) {
        lines.lines[std::size_t(line - 1)].target = 1;
        lines.rows[1].push_back(line + 1000);
    }
    for (std::size_t i = 30; i < 60; ++i)
        lines.lines[i].row -= 30;
    const NeighbourValues values{[](int index, int) { return numberedValues(index + 1); },
                                 [](int target, int row) {
                                     return numberedValues(row + 1 + 30 * target);
                                 }};
    const std::vector<NeighbourFinding> findings = checkNeighbours(lines, values);
    QCOMPARE(findings.size(), 1U);
    QCOMPARE(textOf(findings[0]), "swapped 40-41 by 0: 40>1040 41>1041");
    QCOMPARE(findings[0].repairs[0].target, 1);
}

void tst_NeighbourCheck::mostLinesShifted()
{
    // In a series the wrong lines look alike: the same is added to each.
    std::map<int, int> changed;
    QStringList repairs;
    for (int line = 5; line <= 50; ++line) {
        changed[line] = line + 1;
        repairs << QString("%1>%1").arg(line);
    }
    const auto valuesOf = [](int line) {
        return QStringList{"A" + QString::number(line / 100), QString::number(line * 5), "steel"};
    };
    const NeighbourValues values{[&](int index, int) { return valuesOf(index + 1); },
                                 [&](int, int row) {
                                     return valuesOf(row + 1);
                                 }};
    const std::vector<NeighbourFinding> findings = checkNeighbours(numbered(60, changed), values);
    QCOMPARE(findings.size(), 1U);
    QCOMPARE(textOf(findings[0]), "shifted 5-50 by 1: " + repairs.join(' '));
}

namespace {

/// What is found where line and row of the same number have the values that \a valuesOf says.
QStringList findingsOf(const NeighbourLines &lines, const std::function<QStringList(int)> &valuesOf)
{
    const NeighbourValues values{[&](int index, int) { return valuesOf(index + 1); },
                                 [&](int, int row) {
                                     return valuesOf(row + 1);
                                 }};
    QStringList texts;
    for (const NeighbourFinding &finding : checkNeighbours(lines, values))
        texts << textOf(finding);
    return texts;
}

} // namespace

/// Few lines with few values, of which nearly half teach what is wrong.
void tst_NeighbourCheck::partOfSeriesShifted()
{
    std::map<int, int> changed{{21, 0}};
    QStringList repairs;
    for (int line = 13; line <= 20; ++line) {
        changed[line] = line + 1;
        repairs << QString("%1>%1").arg(line);
    }
    const auto valuesOf = [](int line) {
        return QStringList{QString::number(5 * line), QString::number(5 * line - 0.5),
                           QString::number(5 * line + 0.5)};
    };
    QCOMPARE(
        findingsOf(numbered(22, changed), valuesOf),
        QStringList({"shifted 13-20 by 1: " + repairs.join(' '), "skipped 21-21 by 0: 21>21"}));
}

/// A line beside equal ones has lost its row, which is free at another place among theirs.
void tst_NeighbourCheck::equalRows()
{
    const auto valuesOf = [](int line) {
        return QStringList{QString::number(line < 20 || line > 24 ? line * line : 400)};
    };
    QCOMPARE(findingsOf(numbered(60, {{20, 21}, {21, 22}, {22, 23}, {23, 24}, {24, 0}}), valuesOf),
             QStringList{"shifted 20-24 by 1: 20>20 21>21 22>22 23>23 24>24"});
    QCOMPARE(findingsOf(numbered(60, {{24, 23}, {23, 22}, {22, 21}, {21, 20}, {20, 0}}), valuesOf),
             QStringList{"shifted 20-24 by -1: 20>20 21>21 22>22 23>23 24>24"});
    // Gone, and another one of the same values is new: who can tell?
    QCOMPARE(findingsOf(numbered(60, {{21, 22}, {22, 21}}), valuesOf), QStringList());
}

/// The lines behind are all alike: none of them is said to be shifted too.
void tst_NeighbourCheck::shiftEndsAtEqualRow()
{
    const auto valuesOf = [](int line) {
        return QStringList{QString::number(std::min(line, 26)),
                           QString::number(std::min(line, 26))};
    };
    std::map<int, int> changed{{30, 0}};
    QStringList repairs;
    for (int line = 15; line <= 29; ++line)
        changed[line] = line + 1;
    for (int line = 15; line <= 25; ++line)
        repairs << QString("%1>%1").arg(line);
    QCOMPARE(findingsOf(numbered(40, changed), valuesOf),
             QStringList({"shifted 15-25 by 1: " + repairs.join(' '),
                          "shifted 26-30 by 1: 26>26 27>27 28>28 29>29 30>30"}));
}

/// A line that two rows suit alike goes along with the others if two have its row otherwise.
void tst_NeighbourCheck::shiftBesideEqualRows()
{
    const auto valuesOf = [](int line) {
        const int number = line == 11 ? 10 : line;
        return QStringList{QString::number(number / 3), QString::number(number % 7)};
    };
    std::map<int, int> changed;
    QStringList repairs;
    for (int line = 10; line <= 15; ++line) {
        changed[line] = line + 1;
        repairs << QString("%1>%1").arg(line);
    }
    QCOMPARE(findingsOf(numbered(40, changed), valuesOf),
             QStringList{"shifted 10-15 by 1: " + repairs.join(' ')});
}

/// Two of few lines have each other's row, and one value tells.
void tst_NeighbourCheck::swappedAmongFew()
{
    const auto valuesOf = [](int line) {
        return QStringList{QString("1/%1in").arg(line), "5in"};
    };
    QCOMPARE(findingsOf(numbered(9, {}), valuesOf), QStringList());
    QCOMPARE(findingsOf(numbered(9, {{3, 4}, {4, 3}}), valuesOf),
             QStringList{"swapped 3-4 by 0: 3>3 4>4"});
}

/// Rows that are new come in blocks, and hardly any line has none: a free row beside such a line is
/// its own, though the line beside it has the same values.
void tst_NeighbourCheck::freeRowsByPlace()
{
    NeighbourLines lines = numbered(60, {{33, 0}});
    for (std::size_t i = 40; i < 60; ++i)
        lines.lines[i].row += 30;
    for (int row = 61; row <= 90; ++row)
        lines.rows[0].push_back(row);
    const auto lineValues = [](int index, int) {
        return QStringList{QString::number(index / 2)};
    };
    const auto rowValues = [&](int, int row) {
        return row >= 40 && row < 70 ? QStringList{"new"}
                                     : lineValues(row < 40 ? row : row - 30, 0);
    };
    QStringList texts;
    for (const NeighbourFinding &finding : checkNeighbours(lines, {lineValues, rowValues}))
        texts << textOf(finding);
    QCOMPARE(texts, QStringList{"skipped 33-33 by 0: 33>33"});
    // Where many lines have no row it says less.
    for (std::size_t i = 4; i < 60; i += 4) {
        lines.lines[i].target = lines.lines[i].row = -1;
        lines.lines[i].gone = i != 32;
    }
    QVERIFY(checkNeighbours(lines, {lineValues, rowValues}).empty());
}

/// What PlantedMistakes counts.
void tst_NeighbourCheck::measured()
{
    const auto valuesOf = [](int number) {
        return number >= 20 && number <= 22 ? numberedValues(20) : numberedValues(number);
    };
    const NeighbourValues values{[&](int index, int) { return valuesOf(index + 1); },
                                 [&](int, int row) {
                                     return valuesOf(row + 1);
                                 }};
    const NeighbourLines truth = numbered(60, {});
    // Rows of equal values are no mistake.
    PlantedMistakes::Score score =
        PlantedMistakes::scoreOf(truth, numbered(60, {{20, 21}, {21, 20}}), values);
    QCOMPARE(score.planted, 0);
    QCOMPARE(score.falseAlarms, 0);
    // One of two lines is wrong, and mended.
    score = PlantedMistakes::scoreOf(truth, numbered(60, {{21, 22}, {22, 23}}), values);
    QCOMPARE(score.planted, 1);
    QCOMPARE(score.wrong, 1);
    QCOMPARE(score.found, 1);
    QCOMPARE(score.spoilt, 0);
    // A line without a row is wrong unless nothing of it is compared.
    const NeighbourLines without = numbered(60, {{40, 0}});
    QCOMPARE(PlantedMistakes::scoreOf(truth, without, values).wrong, 1);
    const auto none = [](int, int) {
        return QStringList();
    };
    QCOMPARE(PlantedMistakes::scoreOf(truth, without, {none, none}).wrong, 0);
}

/// Where rows are new and lines are gone all over the table, a free row beside a line without one
/// says little, unless a shift has left it.
void tst_NeighbourCheck::lineLeftByShift()
{
    NeighbourLines lines;
    for (int index = 0; index < 60; ++index) {
        const bool gone = index % 3 == 2;
        lines.lines.push_back({index + 1, gone ? -1 : 0, gone ? -1 : 2 * index, gone});
    }
    lines.rows.resize(1);
    for (int row = 0; row < 120; ++row)
        lines.rows[0].push_back(row + 1);
    const auto rowValues = [](int, int row) {
        QStringList values = numberedValues(row / 2 + 1);
        if (row % 2 == 1 || row / 2 % 3 == 2)
            values[1] = "new " + QString::number(row);
        return values;
    };
    const NeighbourValues values{valuesByNumber().ofLine, rowValues};
    QVERIFY(checkNeighbours(lines, values).empty());
    int row = -1;
    for (const std::size_t index : {30U, 31U, 33U, 34U, 36U, 37U})
        std::swap(row, lines.lines[index].row);
    lines.lines[30].target = -1;
    QStringList texts;
    for (const NeighbourFinding &finding : checkNeighbours(lines, values))
        texts << textOf(finding);
    QCOMPARE(texts, QStringList({"skipped 31-31 by 0: 31>61",
                                 "shifted 32-38 by -2: 32>63 34>67 35>69 37>73 38>75"}));
}

/// What is expected of any table suffices where lines have enough values.
void tst_NeighbourCheck::fewLines()
{
    const QStringList lines[] = {{"A 8", "steel", "20", "zinc", "10.9"},
                                 {"B 9", "brass", "35", "none", "4.6"}};
    const NeighbourValues values{[&](int index, int) { return lines[index]; },
                                 [&](int, int row) {
                                     return lines[row];
                                 }};
    QVERIFY(checkNeighbours(numbered(2, {}), values).empty());
    const std::vector<NeighbourFinding> findings =
        checkNeighbours(numbered(2, {{1, 2}, {2, 1}}), values);
    QCOMPARE(findings.size(), 1U);
    QCOMPARE(textOf(findings[0]), "swapped 1-2 by 0: 1>1 2>2");
}

void tst_NeighbourCheck::textsGotWords()
{
    QCOMPARE(countLostTokens(u"Standard", u"E8400 & compatibles (Standard)"), 0);
    QCOMPARE(countLostTokens(u"7-14mm F4.0", u"Digital 7-14mm f/4.0"), 1);
    QCOMPARE(countLostTokens(u"a a b", u"a b"), 1);
    QCOMPARE(countLostTokens(u"", u"a"), 0);
    // All names got the same words; what stands between these alone tells the lines apart.
    const auto before = [](int index, int) {
        return QStringList{QString("%1 mm F%2").arg(index * 7 % 60).arg(index % 5)};
    };
    const auto after = [](int, int row) {
        return QStringList{
            QString("Digital %1 mm f/%2, %3").arg(row * 7 % 60).arg(row % 5).arg(row * 31 % 97)};
    };
    const std::vector<NeighbourFinding> findings =
        checkNeighbours(numbered(60, {{20, 21}, {21, 20}}), {before, after});
    QCOMPARE(findings.size(), 1U);
    QCOMPARE(textOf(findings[0]), "swapped 20-21 by 0: 20>20 21>21");
}

/// A number in all names is twice what it was.
void tst_NeighbourCheck::numbersInTextsScaled()
{
    const auto nameOf = [](int number) {
        return QStringList{QString("bolt %1 mm").arg(number)};
    };
    const NeighbourValues values{[&](int index, int) { return nameOf(index * 7 % 61 + 3); },
                                 [&](int, int row) {
                                     return nameOf(2 * (row * 7 % 61 + 3));
                                 }};
    QVERIFY(checkNeighbours(numbered(60, {}), values).empty());
    const std::vector<NeighbourFinding> findings =
        checkNeighbours(numbered(60, {{20, 21}, {21, 20}}), values);
    QCOMPARE(findings.size(), 1U);
    QCOMPARE(textOf(findings[0]), "swapped 20-21 by 0: 20>20 21>21");
}

void tst_NeighbourCheck::tooFewLines()
{
    QCOMPARE(findingsOf(numbered(3, {{1, 2}, {2, 1}})), QStringList());
    QCOMPARE(findingsOf({}), QStringList());
}

void tst_NeighbourCheck::mendsInOneMapping()
{
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", ""});
    enter(mapping, 0, 1, 2, PRJMAPPING::Verified);
    enter(mapping, 0, 2, 3, PRJMAPPING::Mapped);
    enter(mapping, 0, 3, 3, PRJMAPPING::ToCheck);
    enter(mapping, 1, 4, -1, PRJMAPPING::ToCheck);
    const NeighbourFinding finding{
        NeighbourFinding::Shifted, 1, 2, 1, {{1, 0, 1}, {2, 0, 2}, {3, 0, -1}, {4, 0, 4}}};
    // What was confirmed stays so, nothing else becomes certain.
    QCOMPARE(entriesOf(mended(mapping, finding)), "0:1>1/2 0:2>2/0 0:4>4/0 -:3>-1/1");
}

void tst_NeighbourCheck::planted_data()
{
    QTest::addColumn<PlantedTables::Kind>("kind");
    using Kind = PlantedTables::Kind;
    QTest::newRow("as it was") << Kind{};
    QTest::newRow("renamed") << Kind{.renamed = true};
    QTest::newRow("scaled") << Kind{.renamed = true, .scaled = true};
    QTest::newRow("measured anew") << Kind{.measured = true};
    QTest::newRow("sorted anew") << Kind{.renamed = true, .resorted = true};
    QTest::newRow("without key, scaled") << Kind{.scaled = true, .withoutKey = true};
    QTest::newRow("a quarter gone") << Kind{.renamed = true, .changed = 0.25};
    QTest::newRow("merged") << Kind{.renamed = true, .merged = 0.05};
}

void tst_NeighbourCheck::planted()
{
    QFETCH(PlantedTables::Kind, kind);
    std::mt19937 random(17);
    PlantedMistakes::Score shifts;
    PlantedMistakes::Score swaps;
    PlantedMistakes::Score untouched;
    for (int i = 0; i < 6; ++i) {
        const int lines = 60 + int(random() % 300);
        PlantedTables shifted(kind, lines, unsigned(random()));
        const int steps = random() % 4 == 0 ? 2 : 1;
        shifted.plantShift(2 + int(random() % 25), random() % 2 ? steps : -steps);
        shifts.add(shifted.score());
        PlantedTables swapped(kind, lines, unsigned(random()));
        swapped.plantSwap(1 + int(random() % 4));
        swaps.add(swapped.score());
        untouched.add(PlantedTables(kind, lines, unsigned(random())).score());
    }
    const int falseAlarms = shifts.falseAlarms + swaps.falseAlarms + untouched.falseAlarms;
    const int lines = shifts.lines + swaps.lines + untouched.lines;
    qInfo("shifts: %d of %d found; swaps: %d of %d; %d false alarms in %d lines", shifts.found,
          shifts.planted, swaps.found, swaps.planted, falseAlarms, lines);
    QVERIFY(shifts.found + swaps.found >= 0.99 * (shifts.planted + swaps.planted));
    QVERIFY(falseAlarms * 1000 <= lines);
}

QTEST_GUILESS_MAIN(tst_NeighbourCheck)
#include "tst_NeighbourCheck.moc"
