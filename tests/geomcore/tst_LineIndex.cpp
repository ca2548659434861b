#include <core/parallel/WorkerPool.h>
#include <geomcore/table/LineIndex.h>

#include <QRandomGenerator>
#include <QScopeGuard>
#include <QTest>

#include <algorithm>
#include <array>
#include <thread>

using namespace VKTab;

namespace {

std::shared_ptr<const TableData> tableOf(const QByteArray &csv, const QString &decimalComma = {},
                                         const QStringList &missing = {QString()})
{
    TableDescriptor descriptor;
    descriptor.missingValues = missing;
    if (!decimalComma.isEmpty())
        descriptor.fields.append(TableField{.name = decimalComma, .decimalChar = ','});
    return TableData::fromMemory(descriptor, csv).data;
}

std::vector<LineIndex::Key> keysOf(const std::vector<int> &columns)
{
    std::vector<LineIndex::Key> keys;
    for (int column : columns)
        keys.push_back({column, CompareMode::Number});
    return keys;
}

CellKey keyOf(const TableData &table, int row, int column, CompareMode mode, std::string &scratch)
{
    const std::string_view cell = table.cell(row, column, scratch);
    return {cell, mode, table.descriptor().fields.at(column).decimalChar, table.isMissing(cell)};
}

/// All rows of the index that equal the row, by comparing each.
QList<int> naive(const LineIndex &index, const TableData &other, int row,
                 const std::vector<int> &columns)
{
    QList<int> hits;
    for (int candidate = 0; candidate < index.table().rowCount(); ++candidate) {
        bool equal = true;
        for (size_t i = 0; i < columns.size() && equal; ++i) {
            const LineIndex::Key &key = index.keys()[i];
            std::string a;
            std::string b;
            const CellKey missing;
            const CellKey wanted =
                columns[i] < 0 ? missing : keyOf(other, row, columns[i], key.compare, a);
            equal = wanted == keyOf(index.table(), candidate, key.column, key.compare, b);
        }
        if (equal)
            hits.append(candidate);
    }
    return hits;
}

QList<int> hitsFrom(const LineIndex &index, int first)
{
    QList<int> hits;
    for (int row = first; row >= 0; row = index.nextOf(row))
        hits.append(row);
    return hits;
}

QByteArray randomCell(QRandomGenerator &random)
{
    static const QList<QByteArray> cells{"1",   "1.0",        "+1", "\"1\"", "2",   "2.50",
                                         "2.5", "\"2,5\"",    "",   "None",  "M8",  " M8",
                                         "m8",  "\"M\"\"8\"", "-0", "0",     "1e1", "10"};
    return cells.at(random.bounded(int(cells.size())));
}

QByteArray randomTable(QRandomGenerator &random, int columns, int rows)
{
    QByteArray csv;
    for (int i = 0; i < columns; ++i)
        csv += (i ? ",c" : "c") + QByteArray::number(i);
    csv += '\n';
    for (int row = 0; row < rows; ++row) {
        for (int i = 0; i < columns; ++i)
            csv += (i ? "," : "") + randomCell(random);
        csv += '\n';
    }
    return csv;
}

} // namespace

class tst_LineIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void equalRows();
    void textMode();
    void missingColumn();
    void noKeys();
    void emptyTables();
    void findsCells();
    void sameBytesOtherMeaning();
    void randomJoin();
    void someElsewhere_data();
    void someElsewhere();
    void ordered_data();
    void ordered();
    void probesFromManyThreads();
    void builtByManyThreads_data();
    void builtByManyThreads();
};

void tst_LineIndex::finds_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QList<int>>("hits");

    QTest::newRow("same text") << QByteArray("a,b\nM8,1\nM9,1\n") << QByteArray("a,b\nM9,1\nM8,1\n")
                               << QList<int>{1, 0};
    QTest::newRow("other form of number") << QByteArray("a,b\nM8,9.0\nM9,+10\n")
                                          << QByteArray("a,b\nM8,9\nM9,1e1\n") << QList<int>{0, 1};
    QTest::newRow("no hit") << QByteArray("a,b\nM8,1\nM9,2\nM8,2\n") << QByteArray("a,b\nM8,2\n")
                            << QList<int>{-1, -1, 0};
    QTest::newRow("blanks around")
        << QByteArray("a,b\n M8,1\n") << QByteArray("a,b\nM8 , 1\n") << QList<int>{0};
    QTest::newRow("quotes on one side")
        << QByteArray("a,b\n\"M8\",\"1\"\n") << QByteArray("a,b\nM8,1\n") << QList<int>{0};
    QTest::newRow("doubled quotes")
        << QByteArray("a,b\n\"1\"\"\",1\n\"1\"\"\",2\n")
        << QByteArray("a,b\n\"1\"\"\",2\n\"1\"\"\",1\n") << QList<int>{1, 0};
    QTest::newRow("missing equals missing")
        << QByteArray("a,b\nM8,\nM9,None\n") << QByteArray("a,b\nM8,None\nM9,\n")
        << QList<int>{0, 1};
    QTest::newRow("missing is not zero")
        << QByteArray("a,b\nM8,\n") << QByteArray("a,b\nM8,0\n") << QList<int>{-1};
    QTest::newRow("cells do not run together")
        << QByteArray("a,b\nx,yz\n") << QByteArray("a,b\nxy,z\n") << QList<int>{-1};
    QTest::newRow("order of cells counts")
        << QByteArray("a,b\nx,y\n") << QByteArray("a,b\ny,x\n") << QList<int>{-1};
    QTest::newRow("one more row in between")
        << QByteArray("a,b\n1,1\n2,2\n3,3\n") << QByteArray("a,b\n1,1\n9,9\n2,2\n3,3\n")
        << QList<int>{0, 2, 3};
    QTest::newRow("one row less") << QByteArray("a,b\n1,1\n2,2\n3,3\n")
                                  << QByteArray("a,b\n1,1\n3,3\n") << QList<int>{0, -1, 1};
}

void tst_LineIndex::finds()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    QFETCH(QList<int>, hits);
    const QStringList missing{QString(), QStringLiteral("None")};
    const auto from = tableOf(source, {}, missing);
    const LineIndex index(tableOf(target, {}, missing), keysOf({0, 1}));
    LineIndex::Probe single(index, *from, {0, 1});
    std::vector<int> all(size_t(from->rowCount()), -2);
    LineIndex::Probe(index, *from, {0, 1}).find(0, all);
    for (int row = 0; row < hits.size(); ++row) {
        QCOMPARE(single.find(row), hits.at(row));
        QCOMPARE(all[size_t(row)], hits.at(row));
    }
}

void tst_LineIndex::equalRows()
{
    const auto target = tableOf("a,b\n1,x\n2,y\n1.0,x\n3,z\n+1,x\n");
    const LineIndex index(target, keysOf({0, 1}));
    QCOMPARE(index.distinctCount(), 3);
    const auto from = tableOf("b,a\nx,1\ny,2\n");
    LineIndex::Probe probe(index, *from, {1, 0});
    QCOMPARE(hitsFrom(index, probe.find(0)), (QList<int>{0, 2, 4}));
    QCOMPARE(hitsFrom(index, probe.find(1)), (QList<int>{1}));
    QVERIFY(!index.isUnique(0));
    QVERIFY(!index.isUnique(2));
    QVERIFY(!index.isUnique(4));
    QVERIFY(index.isUnique(1));
    QCOMPARE(index.firstOf(4), 0);
    QCOMPARE(index.firstOf(3), 3);
    QCOMPARE(index.nextOf(4), -1);
    QCOMPARE(index.nextOf(2), 4);
}

void tst_LineIndex::textMode()
{
    const auto target = tableOf("a\n9\n");
    const auto from = tableOf("a\n9\n9.0\n 9\n");
    const LineIndex index(target, {{0, CompareMode::Text}});
    LineIndex::Probe probe(index, *from, {0});
    QCOMPARE(probe.find(0), 0);
    QCOMPARE(probe.find(1), -1);
    QCOMPARE(probe.find(2), -1);
}

void tst_LineIndex::missingColumn()
{
    const auto target = tableOf("a,b\n1,x\n1,\n");
    const auto from = tableOf("a\n1\n2\n");
    const LineIndex index(target, keysOf({0, 1}));
    LineIndex::Probe probe(index, *from, {0, -1});
    QCOMPARE(probe.find(0), 1);
    QCOMPARE(probe.find(1), -1);
}

void tst_LineIndex::noKeys()
{
    const LineIndex index(tableOf("a\n1\n2\n"), {});
    const auto from = tableOf("a\n7\n");
    LineIndex::Probe probe(index, *from, {});
    QCOMPARE(hitsFrom(index, probe.find(0)), (QList<int>{0, 1}));
}

void tst_LineIndex::emptyTables()
{
    const auto empty = tableOf("a\n");
    const auto from = tableOf("a\n1\n");
    const LineIndex index(empty, keysOf({0}));
    QCOMPARE(index.distinctCount(), 0);
    LineIndex::Probe probe(index, *from, {0});
    QCOMPARE(probe.find(0), -1);
    const LineIndex other(from, keysOf({0}));
    LineIndex::Probe none(other, *empty, {0});
    none.find(0, {});
}

void tst_LineIndex::findsCells()
{
    const LineIndex index(tableOf("a,b\nM8,1\nM9,\n"), keysOf({0, 1}));
    const CellKey missing;
    const CellKey m8("M8", CompareMode::Number, '.', false);
    const CellKey m9("M9", CompareMode::Number, '.', false);
    const CellKey one("1.00", CompareMode::Number, '.', false);
    QCOMPARE(index.find(std::vector<CellKey>{m8, one}), 0);
    QCOMPARE(index.find(std::vector<CellKey>{m9, missing}), 1);
    QCOMPARE(index.find(std::vector<CellKey>{m9, one}), -1);
}

void tst_LineIndex::sameBytesOtherMeaning()
{
    // "1,5" is a number on the one side and a text on the other, "None" a value or none.
    const auto comma = tableOf("a\n\"1,5\"\n", "a");
    const auto point = tableOf("a\n\"1,5\"\n1.5\n");
    const LineIndex index(comma, keysOf({0}));
    LineIndex::Probe probe(index, *point, {0});
    QCOMPARE(probe.find(0), -1);
    QCOMPARE(probe.find(1), 0);
    const auto none = tableOf("a\nNone\n", {}, {QStringLiteral("None")});
    const auto text = tableOf("a\nNone\n");
    const LineIndex other(none, keysOf({0}));
    LineIndex::Probe second(other, *text, {0});
    QCOMPARE(second.find(0), -1);
}

void tst_LineIndex::randomJoin()
{
    QRandomGenerator random(42);
    const QStringList missing{QString(), QStringLiteral("None")};
    for (int round = 0; round < 60; ++round) {
        const int columns = random.bounded(1, 5);
        const auto target = tableOf(randomTable(random, columns, random.bounded(120)),
                                    random.bounded(2) ? "c0" : "", missing);
        const auto source = tableOf(randomTable(random, columns, random.bounded(1, 60)),
                                    random.bounded(2) ? "c0" : "", missing);
        std::vector<LineIndex::Key> keys;
        std::vector<int> sourceColumns;
        for (int i = random.bounded(1, 4); i > 0; --i) {
            keys.push_back({int(random.bounded(columns)),
                            random.bounded(4) ? CompareMode::Number : CompareMode::Text});
            sourceColumns.push_back(random.bounded(-1, columns));
        }
        const LineIndex index(target, keys);
        LineIndex::Probe single(index, *source, sourceColumns);
        std::vector<int> all(size_t(source->rowCount()));
        LineIndex::Probe(index, *source, sourceColumns).find(0, all);
        for (int row = 0; row < source->rowCount(); ++row) {
            const QList<int> expected = naive(index, *source, row, sourceColumns);
            QCOMPARE(hitsFrom(index, single.find(row)), expected);
            QCOMPARE(hitsFrom(index, all[size_t(row)]), expected);
        }
        for (int row = 0; row < target->rowCount(); ++row) {
            std::vector<int> own;
            for (const LineIndex::Key &key : keys)
                own.push_back(key.column);
            const QList<int> expected = naive(index, *target, row, own);
            QCOMPARE(hitsFrom(index, index.firstOf(row)), expected);
            QCOMPARE(index.isUnique(row), expected.size() == 1);
        }
    }
}

void tst_LineIndex::ordered_data()
{
    QTest::addColumn<int>("step");

    QTest::newRow("same order") << 1;
    QTest::newRow("backwards") << -1;
    QTest::newRow("shuffled") << 7919;
}

void tst_LineIndex::someElsewhere_data()
{
    QTest::addColumn<int>("kind");

    QTest::newRow("changed in their place") << 0;
    QTest::newRow("taken out") << 1;
    QTest::newRow("put in") << 2;
    QTest::newRow("moved to the end") << 3;
    QTest::newRow("all of it by turns") << 4;
}

/// Most rows follow each other as they did. Rows that are the same stand twice here and there.
void tst_LineIndex::someElsewhere()
{
    QFETCH(int, kind);
    QRandomGenerator random(7);
    QList<QByteArray> rows;
    QList<QByteArray> others;
    QList<QByteArray> moved;
    for (int i = 0; i < 3000; ++i) {
        const int number = i % 97 == 0 ? i / 2 : i;
        const QByteArray row = "k" + QByteArray::number(number) + "," + QByteArray::number(i % 7);
        rows.append(row);
        const int now = kind == 4 ? i / 600 : kind;
        const bool isOther = random.bounded(i % 500 < 100 ? 2 : 11) == 0;
        if (isOther && now == 0)
            others.append("k" + QByteArray::number(number) + ",new");
        else if (isOther && now == 3)
            moved.append(row + ".0");
        else if (!isOther || now != 1)
            others.append(row);
        if (isOther && now == 2)
            others.append("new,1");
    }
    const auto source = tableOf("a,b\n" + (others + moved).join('\n') + '\n');
    const LineIndex index(tableOf("a,b\n" + rows.join('\n') + '\n'), keysOf({0, 1}));
    LineIndex::Probe probe(index, *source, {0, 1});
    LineIndex::Probe single(index, *source, {0, 1});
    std::vector<int> all(size_t(source->rowCount()), -2);
    for (size_t first = 0; first < all.size(); first += 100)
        probe.find(int(first),
                   std::span(all).subspan(first, std::min<size_t>(100, all.size() - first)));
    for (int row = 0; row < source->rowCount(); ++row) {
        std::vector<CellKey> cells;
        std::array<std::string, 2> texts;
        for (int column = 0; column < 2; ++column)
            cells.push_back(
                keyOf(*source, row, column, CompareMode::Number, texts[size_t(column)]));
        QCOMPARE(all[size_t(row)], index.find(cells));
        QCOMPARE(single.find(row), all[size_t(row)]);
    }
}

void tst_LineIndex::ordered()
{
    QFETCH(int, step);
    constexpr int rows = 5000; // no multiple of 7919
    QByteArray targetCsv("a,b\n");
    QByteArray sourceCsv("a,b\n");
    for (int i = 0; i < rows; ++i) {
        const int j = int(((qint64(i) * step) % rows + rows) % rows);
        targetCsv += "k" + QByteArray::number(i) + "," + QByteArray::number(i) + ".0\n";
        sourceCsv += "k" + QByteArray::number(j) + "," + QByteArray::number(j) + "\n";
    }
    const auto source = tableOf(sourceCsv);
    const LineIndex index(tableOf(targetCsv), keysOf({0, 1}));
    QCOMPARE(index.distinctCount(), rows);
    LineIndex::Probe single(index, *source, {0, 1});
    std::vector<int> all(rows);
    LineIndex::Probe(index, *source, {0, 1}).find(0, all);
    for (int i = 0; i < rows; ++i) {
        const int expected = int(((qint64(i) * step) % rows + rows) % rows);
        QCOMPARE(single.find(i), expected);
        QCOMPARE(all[size_t(i)], expected);
    }
}

void tst_LineIndex::probesFromManyThreads()
{
    QByteArray csv("a\n");
    for (int i = 0; i < 3000; ++i)
        csv += QByteArray::number(i) + '\n';
    const auto table = tableOf(csv);
    const LineIndex index(table, keysOf({0}));
    std::array<int, 4> right{};
    std::vector<std::thread> threads;
    for (int &count : right) {
        threads.emplace_back([&index, &table, &count] {
            LineIndex::Probe probe(index, *table, {0});
            for (int row = 0; row < table->rowCount(); ++row)
                count += probe.find(row) == row;
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    for (int count : right)
        QCOMPARE(count, 3000);
}

void tst_LineIndex::builtByManyThreads_data()
{
    QTest::addColumn<int>("distinct");
    QTest::newRow("all rows differ") << 50000;
    QTest::newRow("some are equal") << 30000;
    QTest::newRow("few values") << 7;
    QTest::newRow("all are equal") << 1;
}

// Parts of the slots are filled at once; rows at their ends go over into the next one.
void tst_LineIndex::builtByManyThreads()
{
    QFETCH(int, distinct);
    QByteArray csv = "a,b\n";
    for (int i = 0; i < 50000; ++i)
        csv += "M" + QByteArray::number(i * 7919LL % distinct) + ',' + QByteArray::number(i) + '\n';
    const auto table = tableOf(csv);
    const auto restore = qScopeGuard([] { WorkerPool::instance().setThreads(0); });
    WorkerPool::instance().setThreads(1);
    const LineIndex one(table, keysOf({0}));
    WorkerPool::instance().setThreads(50);
    const LineIndex many(table, keysOf({0}));
    QCOMPARE(many.distinctCount(), distinct);
    QCOMPARE(one.distinctCount(), distinct);
    LineIndex::Probe probe(many, *table, {0});
    std::vector<int> found(size_t(table->rowCount()));
    probe.find(0, found);
    for (int row = 0; row < table->rowCount(); ++row) {
        if (many.firstOf(row) != one.firstOf(row) || many.nextOf(row) != one.nextOf(row) ||
            found[size_t(row)] != one.firstOf(row))
            QFAIL(qPrintable(QStringLiteral("row %1 differs").arg(row)));
    }
}

QTEST_GUILESS_MAIN(tst_LineIndex)
#include "tst_LineIndex.moc"
