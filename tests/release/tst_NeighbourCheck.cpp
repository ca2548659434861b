#include "PlantedTables.h"

#include "../support/TestCatalog.h"

#include <release/neighbour/ReleaseNeighbours.h>

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

struct Score
{
    int lines = 0;
    int planted = 0;
    int found = 0;       ///< planted ones whose lines are all in a finding, with the true row
    int falseAlarms = 0; ///< findings without any wrong line
};

/// One planted mistake a table at most.
void addScore(const PlantedTables &tables, bool planted, Score &score)
{
    const std::vector<NeighbourFinding> findings = checkNeighbours(tables.lines(), tables.values());
    const std::set<int> wrong = tables.wrongLines();
    score.lines += int(tables.lines().lines.size());
    std::set<int> mended;
    for (const NeighbourFinding &finding : findings) {
        bool touches = false;
        for (const NeighbourFinding::Repair &repair : finding.repairs) {
            touches = touches || wrong.contains(repair.line);
            if (repair.targetLine == tables.rowOf(repair.line) + 1)
                mended.insert(repair.line);
        }
        score.falseAlarms += touches ? 0 : 1;
    }
    if (!planted)
        return;
    ++score.planted;
    const bool all = std::includes(mended.begin(), mended.end(), wrong.begin(), wrong.end());
    score.found += all ? 1 : 0;
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
    Score shifts;
    Score swaps;
    Score untouched;
    for (int i = 0; i < 6; ++i) {
        const int lines = 60 + int(random() % 300);
        PlantedTables shifted(kind, lines, unsigned(random()));
        const int steps = random() % 4 == 0 ? 2 : 1;
        const bool hasShift =
            shifted.plantShift(2 + int(random() % 25), random() % 2 ? steps : -steps);
        addScore(shifted, hasShift && !shifted.wrongLines().empty(), shifts);
        PlantedTables swapped(kind, lines, unsigned(random()));
        const bool hasSwap = swapped.plantSwap(1 + int(random() % 4));
        addScore(swapped, hasSwap, swaps);
        addScore(PlantedTables(kind, lines, unsigned(random())), false, untouched);
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
