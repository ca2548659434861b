#include <core/parallel/WorkerPool.h>
#include <geomcore/mapper/CellNumbering.h>
#include <geomcore/plan/CandidateLists.h>
#include <geomcore/plan/LineChoice.h>
#include <geomcore/plan/nextBestDoubt.h>
#include <geomcore/plan/PlaceEvidence.h>
#include <geomcore/plan/SoftAssignment.h>
#include <geomcore/plan/SparseAssignment.h>

#include <QList>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

using namespace Plan;

namespace {

/// Few of the rows have one pair only.
EdgeLists someEdges(size_t lines, int nodes)
{
    EdgeLists edges(lines);
    std::mt19937 random(4);
    for (size_t block = 0; block < edges.blockCount(); ++block) {
        edges.refill(block, [&](size_t line, EdgeLists::Block &out) {
            for (int i = 0; i < int(random() % 4) && line % 9 != 0; ++i) {
                const int node = (int(line) + int(random() % 5) * 7 + i) % nodes;
                out.add({0, node, node, double(random() % 120) / 10 - 4, 0});
            }
        });
    }
    return edges;
}

/// By line: the probabilities after so many rounds, worked out as they are defined.
std::vector<std::vector<double>> plainlySpread(const EdgeLists &edges, int rounds)
{
    struct Message
    {
        double line = 1;
        double row = 1;
    };
    std::vector<std::vector<Message>> free(edges.size());
    for (size_t line = 0; line < edges.size(); ++line)
        free[line].resize(edges[line].size());
    const auto others = [&](size_t line, size_t pair, bool ofLine) {
        const int node = edges[line][pair].node;
        double sum = 0;
        for (size_t other = 0; other < edges.size(); ++other) {
            for (size_t i = 0; i < edges[other].size(); ++i) {
                const bool isSame = other == line && i == pair;
                const bool isNear = ofLine ? other == line : edges[other][i].node == node;
                if (!isSame && isNear)
                    sum += std::exp(edges[other][i].weight) *
                           (ofLine ? free[other][i].row : free[other][i].line);
            }
        }
        return sum;
    };
    for (int step = 0; step < 2 * rounds; ++step) {
        auto next = free;
        for (size_t line = 0; line < edges.size(); ++line) {
            for (size_t i = 0; i < edges[line].size(); ++i)
                (step % 2 == 0 ? next[line][i].line : next[line][i].row) =
                    1 / (1 + others(line, i, step % 2 == 0));
        }
        free = std::move(next);
    }
    std::vector<std::vector<double>> probabilities(edges.size());
    for (size_t line = 0; line < edges.size(); ++line) {
        for (size_t i = 0; i < edges[line].size(); ++i) {
            const double odds =
                std::exp(edges[line][i].weight) * free[line][i].line * free[line][i].row;
            probabilities[line].push_back(odds / (1 + odds));
        }
    }
    return probabilities;
}

} // namespace

/// The parts that a plan is made of, each beside what it stands for.
class tst_PlanParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void packedCellsAreTheSame_data();
    void packedCellsAreTheSame();
    void numbersDoNotDependOnThreads();
    void tokensOfNumbersAreShared();
    void frequentValuesCount();
    void longListsAddNothingNew();
    void rowsFarBehindAreLeftOut();
    void neighboursShowPlaces_data();
    void neighboursShowPlaces();
    void refilledBlockLeavesOthers();
    void probabilitiesAreSpread();
    void onlyWhatCountsIsAssigned();
    void lonePairsStandForThemselves();
    void whatIsAlikeDoesNotCross_data();
    void whatIsAlikeDoesNotCross();
    void doubtOfTheNextBest_data();
    void doubtOfTheNextBest();
};

void tst_PlanParts::packedCellsAreTheSame_data()
{
    QTest::addColumn<int>("most");
    QTest::newRow("four bytes") << 20'000'000;
    QTest::newRow("three bytes") << 70'000;
    QTest::newRow("one byte") << 200;
}

/// Also where more values are told than there were to be when the cells were made.
void tst_PlanParts::packedCellsAreTheSame()
{
    QFETCH(int, most);
    const std::vector<int> counts{2, 256, 257, 70'000, 1, 20'000'000};
    constexpr size_t Lines = 500;
    std::mt19937 random(1);
    CellMatrix cells(Lines, counts.size(), size_t(most));
    std::vector<std::vector<int>> expected(Lines);
    for (size_t line = 0; line < Lines; ++line) {
        for (size_t v = 0; v < counts.size(); ++v) {
            const int count = std::min(most, counts[v]);
            const int number = line == 0 ? count - 1 : int(random() % unsigned(count));
            expected[line].push_back(number);
            cells.set(line, v, number);
        }
    }
    for (const bool packed : {false, true}) {
        if (packed)
            cells.pack(counts);
        for (size_t line = 0; line < Lines; ++line) {
            for (size_t v = 0; v < counts.size(); ++v)
                QCOMPARE(cells.at(line, v), expected[line][v]);
        }
    }
}

/// More lines than are in hand at a time, some without cells, one variable in two places.
void tst_PlanParts::numbersDoNotDependOnThreads()
{
    constexpr size_t Lines = 9000;
    const std::vector<int> variables{1, 0, 2, 0};
    const auto textOf = [](size_t line, size_t place) {
        return std::to_string(line * (place + 3) % 997) + (place == 2 ? " mm" : "");
    };
    const auto add = [&](size_t line, Mapper::CellTexts &texts) {
        for (size_t place = 0; place < variables.size() && line % 7 != 0; ++place)
            texts.add(textOf(line, place), '.');
    };
    std::vector<CellValues> plain(3);
    std::vector<std::vector<int>> expected(Lines, std::vector<int>(variables.size(), -1));
    for (size_t line = 0; line < Lines; ++line) {
        for (size_t place = 0; place < variables.size() && line % 7 != 0; ++place)
            expected[line][place] =
                plain[size_t(variables[place])].number(textOf(line, place), '.');
    }
    for (const int threads : {1, 3}) {
        for (const bool inOrder : {false, true}) {
            WorkerPool::instance().setThreads(threads);
            std::vector<CellValues> values(3);
            std::vector<std::vector<int>> numbers(Lines, std::vector<int>(variables.size(), -1));
            const auto take = [&](size_t line, size_t place, int number) {
                int &taken = numbers[line][place];
                taken = taken == -1 ? number : -2; // once
            };
            Mapper::CellNumbering numbering(values, variables);
            if (inOrder)
                numbering.runInOrder(Lines, add, take);
            else
                numbering.run(Lines, add, take);
            QCOMPARE(numbers, expected);
        }
    }
    WorkerPool::instance().setThreads(0);
}

/// Whichever of them comes first.
void tst_PlanParts::tokensOfNumbersAreShared()
{
    CellValues values;
    const int text = values.number("M 5 x 7", '.');
    const int seven = values.number("7.0", '.');
    const int nine = values.number("9", '.');
    const int later = values.number("9 x 5", '.');
    QCOMPARE(values.value(seven).tokens[0], values.value(text).tokens[3]);
    QCOMPARE(values.value(later).tokens[0], values.value(nine).tokens[0]);
    QCOMPARE(values.value(later).tokens[2], values.value(text).tokens[1]);
    QCOMPARE(values.numberOf(seven), 7.0);
    QCOMPARE(values.tokenCount(), 5); // m 5 x 7 9
}

/// Values that stand in too many rows to be walked may still put another row ahead.
void tst_PlanParts::frequentValuesCount()
{
    constexpr size_t Rows = 8000;
    constexpr size_t Variables = 13;
    PlanTables tables;
    tables.variableCount = int(Variables);
    tables.values.resize(Variables);
    tables.openLines = {0};
    PlanTarget target;
    target.rowCount = int(Rows);
    target.takes = {1};
    target.lines = CellMatrix(1, Variables);
    target.rows = CellMatrix(Rows, Variables);
    target.keys.assign(Variables, 0);
    for (size_t v = 0; v < Variables; ++v) {
        target.variables.push_back(int(v));
        for (size_t row = 0; row < Rows; ++row) {
            // Two variables tell all rows apart, the third has 16 values, the others four each.
            const size_t number = v < 2 ? row : row % (v == 2 ? 16 : 4);
            const std::string text = std::to_string(number);
            target.rows.set(row, v, tables.values[v].number(text, '.'));
        }
        target.lines.set(0, v, target.rows.at(0, v));
    }
    for (size_t row = 0; row < Rows; ++row)
        target.openRows.push_back(int(row));
    tables.targets.push_back(std::move(target));
    const CandidateLists::Found found = CandidateLists(tables, tables.targets.front()).find(0);
    // Twice log(8000) against log(16) and ten times log(4).
    QCOMPARE(int(found.rows.size()), CandidateLists::MaxRows);
    QVERIFY(!found.isFarAhead);
}

/// What a long list alone would bring is behind as many rows as are taken: these are the same as if
/// all were counted.
void tst_PlanParts::longListsAddNothingNew()
{
    constexpr int Rows = 9000;
    std::mt19937 random(11);
    PlanTables tables;
    tables.variableCount = 3;
    tables.values.resize(3);
    PlanTarget target;
    target.variables = {0, 1, 2};
    target.keys = {0, 0, 0};
    target.lines = CellMatrix(1, 3);
    target.rows = CellMatrix(size_t(Rows), 3);
    const std::array<unsigned, 3> kinds{170, 60, 20};
    std::array<int, 3> lists{};
    for (size_t place = 0; place < 3; ++place) {
        for (int row = 0; row < Rows; ++row) {
            const std::string text = std::to_string(random() % kinds[place]);
            target.rows.set(size_t(row), place, tables.values[place].number(text, '.'));
        }
        target.lines.set(0, place, target.rows.at(5, place));
        for (int row = 0; row < Rows; ++row)
            lists[place] += target.rows.at(size_t(row), place) == target.lines.at(0, place) ? 1 : 0;
    }
    for (int row = 0; row < Rows; ++row)
        target.openRows.push_back(row);
    QVERIFY(lists[0] > CandidateLists::MaxRows && lists[0] + lists[1] + lists[2] <= 1024);
    std::vector<std::pair<double, int>> expected;
    for (int row = 0; row < Rows; ++row) {
        double votes = 0;
        for (size_t place = 0; place < 3; ++place) {
            if (target.rows.at(size_t(row), place) == target.lines.at(0, place))
                votes += std::log(double(Rows) / lists[place]);
        }
        expected.emplace_back(-votes, row);
    }
    std::sort(expected.begin(), expected.end());
    std::vector<int> rows;
    rows.reserve(size_t(CandidateLists::MaxRows));
    for (int i = 0; i < CandidateLists::MaxRows; ++i)
        rows.push_back(expected[size_t(i)].second);
    std::sort(rows.begin(), rows.end());
    tables.targets.push_back(std::move(target));
    const CandidateLists candidates(tables, tables.targets.front());
    QCOMPARE(candidates.find(0).rows, rows);
}

/// A row that has nearly all in common with a line leaves those that have one value without a
/// chance.
void tst_PlanParts::rowsFarBehindAreLeftOut()
{
    constexpr size_t Rows = 9000;
    constexpr size_t Variables = 5;
    PlanTables tables;
    tables.variableCount = int(Variables);
    tables.values.resize(Variables);
    PlanTarget target;
    target.lines = CellMatrix(1, Variables);
    target.rows = CellMatrix(Rows, Variables);
    target.keys.assign(Variables, 0);
    for (size_t v = 0; v < Variables; ++v) {
        target.variables.push_back(int(v));
        for (size_t row = 0; row < Rows; ++row) {
            // Of the first variable two rows have a value, of each other three, and never the same.
            const size_t number = v == 0 ? row / 2 : row % (Rows / 3 - v);
            target.rows.set(row, v, tables.values[v].number(std::to_string(number), '.'));
        }
        target.lines.set(0, v, target.rows.at(1700, v));
    }
    for (size_t row = 0; row < Rows; ++row)
        target.openRows.push_back(int(row));
    tables.targets.push_back(std::move(target));
    const CandidateLists::Found found = CandidateLists(tables, tables.targets.front()).find(0);
    QVERIFY(found.isFarAhead);
    QCOMPARE(found.rows, std::vector<int>{1700});
}

void tst_PlanParts::neighboursShowPlaces_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("of");
    QTest::newRow("none") << 100 << 0;
    QTest::newRow("one in seven") << 1000 << 7;
    QTest::newRow("nearly all") << 640 << 1;
    QTest::newRow("one in hundreds") << 5003 << 400;
}

/// The nearest rows with a partner, however far, across words and at both ends.
void tst_PlanParts::neighboursShowPlaces()
{
    QFETCH(const int, rows);
    QFETCH(const int, of);
    std::mt19937 random(3);
    std::vector<int> partners;
    for (int row = 0; row < rows; ++row) {
        const bool isKnown = of == 1 ? random() % 20 != 0 : of > 0 && random() % unsigned(of) == 0;
        partners.push_back(isKnown ? int(random() % 10'000) : -1);
    }
    const PlaceEvidence evidence(partners, 10'000);
    for (int row = 0; row < rows; ++row) {
        int above = row - 1;
        while (above >= 0 && partners[size_t(above)] < 0)
            --above;
        int below = row + 1;
        while (below < rows && partners[size_t(below)] < 0)
            ++below;
        const PlaceEvidence::Places places = evidence.places(row);
        QCOMPARE(places.fromAbove, (above < 0 ? -1 : partners[size_t(above)]) + row - above);
        QCOMPARE(places.fromBelow,
                 (below == rows ? 10'000 : partners[size_t(below)]) - (below - row));
    }
}

void tst_PlanParts::refilledBlockLeavesOthers()
{
    constexpr size_t Lines = 3 * EdgeLists::LinesOfBlock - 5;
    EdgeLists edges = someEdges(Lines, 50);
    const EdgeLists before = edges;
    edges.refill(1, [&](size_t line, EdgeLists::Block &out) {
        out.add(before[line]);
        out.add({1, int(line), 0, 0, 0});
    });
    edges.refill(2, [](size_t, EdgeLists::Block &) {});
    for (size_t line = 0; line < Lines; ++line) {
        const size_t block = line / EdgeLists::LinesOfBlock;
        QCOMPARE(edges[line].size(), block == 2 ? 0 : before[line].size() + block);
        if (block == 1)
            QCOMPARE(edges[line].back().row, int(line));
    }
}

void tst_PlanParts::probabilitiesAreSpread()
{
    constexpr int Nodes = 60;
    EdgeLists edges = someEdges(150, Nodes);
    const std::vector<std::vector<double>> expected = plainlySpread(edges, 60);
    spreadProbabilities(edges, Nodes);
    double most = 0;
    for (size_t line = 0; line < edges.size(); ++line) {
        for (size_t i = 0; i < edges[line].size(); ++i) {
            const double probability = edges[line][i].probability;
            QVERIFY2(std::abs(probability - expected[line][i]) < 1e-3,
                     qPrintable(QString("line %1, pair %2").arg(line).arg(i)));
            most = std::max(most, probability);
        }
    }
    QVERIFY(most > 0.9);
}

void tst_PlanParts::onlyWhatCountsIsAssigned()
{
    constexpr int Nodes = 60;
    const EdgeLists edges = someEdges(150, Nodes);
    const auto counts = [](size_t line, const PlanEdge &edge) {
        return line % 3 != 0 && edge.node % 5 != 0;
    };
    EdgeLists rest(edges.size());
    for (size_t block = 0; block < rest.blockCount(); ++block) {
        rest.refill(block, [&](size_t line, EdgeLists::Block &out) {
            for (const PlanEdge &edge : edges[line]) {
                if (counts(line, edge))
                    out.add(edge);
            }
        });
    }
    const std::vector<int> found = assignPairs(edges, Nodes, -1e6, counts);
    const std::vector<int> expected = assignPairs(rest, Nodes, -1e6);
    int assigned = 0;
    for (size_t line = 0; line < edges.size(); ++line) {
        QCOMPARE(found[line] < 0, expected[line] < 0);
        if (found[line] < 0)
            continue;
        ++assigned;
        QCOMPARE(edges[line][size_t(found[line])].node, rest[line][size_t(expected[line])].node);
    }
    QVERIFY(assigned > 30);
}

void tst_PlanParts::whatIsAlikeDoesNotCross_data()
{
    QTest::addColumn<double>("gain"); // of crossing
    QTest::addColumn<bool>("alike");
    QTest::addColumn<int>("otherTarget");
    QTest::addColumn<QList<int>>("rows");
    QTest::newRow("hardly worth it") << 0.5 << true << 0 << QList<int>{1, 2, 3};
    QTest::newRow("less than two to one") << 0.69 << true << 0 << QList<int>{1, 2, 3};
    QTest::newRow("more") << 0.7 << true << 0 << QList<int>{3, 2, 1};
    QTest::newRow("they differ") << 0.5 << false << 0 << QList<int>{3, 2, 1};
    QTest::newRow("rows of another target") << 0.5 << true << 1 << QList<int>{3, 2, 1};
}

/// Three lines whose rows stand the other way round; those of the second one have no other.
void tst_PlanParts::whatIsAlikeDoesNotCross()
{
    QFETCH(double, gain);
    QFETCH(bool, alike);
    QFETCH(int, otherTarget);
    EdgeLists edges(3);
    edges.refill(0, [&](size_t line, EdgeLists::Block &out) {
        const int first = line == 1 ? 2 : 1;
        const int last = line == 1 ? 2 : 3;
        for (int row = first; row <= last; row += 2) {
            const bool isCrossing = line == 1 || (line == 0) == (row == 3);
            out.add({row == 1 ? otherTarget : 0, row, row, isCrossing ? 4 + gain / 2 : 4, 0.4});
        }
    });
    const auto areAlike = [&](size_t line, size_t otherLine, const PlanEdge &row,
                              const PlanEdge &otherRow) {
        return alike && line == 0 && otherLine == 2 && row.row == 3 && otherRow.row == 1;
    };
    const LineChoice choice = LineChoice::of(edges, 4, areAlike);
    QList<int> rows;
    for (size_t line = 0; line < edges.size(); ++line)
        rows += edges[line].front().row;
    QTEST(rows, "rows");
    QCOMPARE(choice.noSuccessor.size(), edges.size());
}

/// Beside lines that compete, those with a single pair whose row no other line wants get what they
/// get alone.
void tst_PlanParts::lonePairsStandForThemselves()
{
    constexpr int Nodes = 60;
    constexpr size_t Lines = 150;
    EdgeLists bound = someEdges(Lines, Nodes);
    EdgeLists edges(2 * Lines);
    const auto weightOf = [](size_t line) {
        return double(line % 23) / 2 - 4;
    };
    for (size_t block = 0; block < edges.blockCount(); ++block) {
        edges.refill(block, [&](size_t line, EdgeLists::Block &out) {
            if (line % 2 == 0)
                out.add(std::as_const(bound)[line / 2]);
            else if (line % 5 != 0)
                out.add({0, 0, Nodes + int(line), weightOf(line), 0});
        });
    }
    constexpr int AllNodes = Nodes + 2 * int(Lines);
    const std::vector<int> found = assignPairs(edges, AllNodes, 0);
    const std::vector<int> expected = assignPairs(bound, Nodes, 0);
    spreadProbabilities(edges, AllNodes);
    spreadProbabilities(bound, Nodes);
    for (size_t line = 0; line < edges.size(); ++line) {
        const std::span<const PlanEdge> pairs = std::as_const(edges)[line];
        if (line % 2 == 0) {
            QCOMPARE(found[line], expected[line / 2]);
            for (size_t i = 0; i < pairs.size(); ++i)
                QCOMPARE(pairs[i].probability, std::as_const(bound)[line / 2][i].probability);
            continue;
        }
        QCOMPARE(found[line], line % 5 != 0 && weightOf(line) > 0 ? 0 : -1);
        const double odds = std::exp(weightOf(line));
        if (!pairs.empty())
            QCOMPARE(pairs.front().probability, odds / (1 + odds));
    }
}

void tst_PlanParts::doubtOfTheNextBest_data()
{
    QTest::addColumn<double>("own");
    QTest::addColumn<double>("next");
    QTest::addColumn<double>("taken");
    QTest::addColumn<double>("already");
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("most");
    QTest::newRow("far from its own") << 16.0 << -12.0 << 0.0 << 0.0 << 0.0 << 0.01;
    QTest::newRow("it looks like a partner") << 16.0 << 6.0 << 0.0 << 0.0 << 6.5 << 9.0;
    QTest::newRow("the same with a doubt before") << 11.0 << 1.0 << 0.0 << 5.0 << 6.5 << 9.0;
    QTest::newRow("it is that of another line") << 16.0 << 6.0 << 0.9 << 0.0 << 0.0 << 0.0;
    QTest::newRow("what is behind its own is not known") << 30.0 << 6.0 << 0.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("partners are hardly heavier") << 7.0 << 6.0 << 0.0 << 0.0 << 4.0 << 6.5;
}

/// Of 50 lines with a partner each; each has another row, which is also that of another line or
/// not.
void tst_PlanParts::doubtOfTheNextBest()
{
    QFETCH(double, own);
    QFETCH(double, next);
    QFETCH(double, taken);
    QFETCH(double, already);
    QFETCH(double, least);
    QFETCH(double, most);
    constexpr int Lines = 50;
    EdgeLists edges(2 * size_t(Lines));
    for (size_t block = 0; block < edges.blockCount(); ++block) {
        edges.refill(block, [&](size_t line, EdgeLists::Block &out) {
            const int node = int(line);
            if (node < Lines) {
                out.add({0, node, node, own, 1});
                out.add({0, node + Lines, node + Lines, next, 0});
            } else {
                out.add({0, node, node, 40, taken});
            }
        });
    }
    const std::vector<float> standsFor(edges.size(), 1);
    const double doubt = nextBestDoubt(edges, 2 * Lines, standsFor, already);
    QVERIFY2(doubt >= least && doubt <= most, QByteArray::number(doubt).constData());
}

QTEST_APPLESS_MAIN(tst_PlanParts)
#include "tst_PlanParts.moc"
