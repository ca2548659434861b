#include <geomcore/records/LineTable.h>

#include <QMap>
#include <QRandomGenerator>
#include <QTest>

#include <limits>

namespace {

using Reference = QMap<int, PrjMappingTargetLineC>;

PrjMappingTargetLineC makeLine(int target, int state, bool conflict = false,
                               const QString &extended = QString())
{
    ExtendedTextPtr text;
    if (!extended.isEmpty())
        text = new ExtendedText(extended);
    return PrjMappingTargetLineC(target, PRJMAPPING::CheckState(state), conflict, text);
}

LineCounts recount(const Reference &reference)
{
    LineCounts counts;
    for (const PrjMappingTargetLineC &line : reference)
        counts.add(line.getTargetLineId(), line.getState(), line.getConflict());
    return counts;
}

/// Empty if the table holds exactly the reference's entries, in order.
QString difference(const LineTable &table, const Reference &reference)
{
    auto expected = reference.constBegin();
    for (const LineTable::Iterator &entry : table) {
        if (expected == reference.constEnd() || expected.key() != entry.sourceLine() ||
            !(expected.value() == entry.line()))
            return QStringLiteral("differs at line %1").arg(entry.sourceLine());
        if (!(table.value(expected.key()) == expected.value()) || !table.contains(expected.key()))
            return QStringLiteral("look-up fails for line %1").arg(expected.key());
        ++expected;
    }
    if (expected != reference.constEnd())
        return QStringLiteral("lacks line %1").arg(expected.key());
    if (!(table.counts() == recount(reference)))
        return QStringLiteral("counts differ");
    return QString();
}

PrjMappingTargetLineC randomLine(QRandomGenerator &random)
{
    const int target = random.bounded(4) == 0 ? -1 : int(random.bounded(1000));
    const QString extended =
        random.bounded(8) == 0 ? QStringLiteral("{A=%1} -> 2").arg(random.bounded(9)) : QString();
    return makeLine(target, random.bounded(5), random.bounded(6) == 0, extended);
}

} // namespace

class tst_LineTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walkBack();
    void lowerBound();
    void texts();
    void differences();
    void changedLines();
    void changedLinesOfRandomTables_data();
    void changedLinesOfRandomTables();
    void joined_data();
    void joined();
    void emptyTable()
    {
        LineTable table;
        QVERIFY(table.isEmpty());
        QVERIFY(table.begin() == table.end());
        QVERIFY(!table.contains(0));
        QVERIFY(!table.find(0));
        QVERIFY(table.value(5) == PrjMappingTargetLineC(-1, PRJMAPPING::ToCheck, ""));
        QVERIFY(!table.remove(0));
        table.setConflict(0, true);
        table.setAllStates(PRJMAPPING::Verified);
        table.removeUnverified();
        QVERIFY(table.isEmpty());
        QCOMPARE(table.counts().lines(), 0);
    }

    void fills_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("count");
        QTest::newRow("one") << 7 << 1 << 1;
        QTest::newRow("one page") << 1 << 1 << 256;
        QTest::newRow("one more than a page") << 1 << 1 << 257;
        QTest::newRow("several parts of the directory") << 1 << 1 << 40000;
        QTest::newRow("descending") << 20000 << -1 << 20000;
        QTest::newRow("sparse") << -1000000000 << 100003 << 20000;
        QTest::newRow("sparse, descending") << 1000000000 << -100003 << 20000;
        QTest::newRow("from the smallest id") << std::numeric_limits<int>::min() << 429496 << 10000;
    }
    void fills()
    {
        QFETCH(int, first);
        QFETCH(int, step);
        QFETCH(int, count);
        LineTable table;
        Reference reference;
        for (int i = 0; i < count; ++i) {
            const int id = int(quint32(first) + quint32(i) * quint32(step)); // wraps round
            const PrjMappingTargetLineC line = makeLine(i, i % 3);
            table.set(id, line);
            reference.insert(id, line);
        }
        QCOMPARE(difference(table, reference), QString());
        QVERIFY(!table.contains(int(quint32(first) - (step > 0 ? 1U : quint32(-1)))));
        QVERIFY(!table.contains(0) || reference.contains(0));
    }

    void extremeIds()
    {
        LineTable table;
        Reference reference;
        for (int id :
             {0, std::numeric_limits<int>::max(), -1, std::numeric_limits<int>::min(), 1}) {
            table.set(id, makeLine(id, 2));
            reference.insert(id, makeLine(id, 2));
        }
        QCOMPARE(difference(table, reference), QString());
    }

    void randomOperationsEqualAMap_data()
    {
        QTest::addColumn<int>("idRange");
        QTest::addColumn<int>("operations");
        QTest::newRow("few ids") << 50 << 5000;
        QTest::newRow("dense ids") << 3000 << 30000;
        QTest::newRow("sparse ids") << 500000000 << 30000;
    }
    void randomOperationsEqualAMap()
    {
        QFETCH(int, idRange);
        QFETCH(int, operations);
        QRandomGenerator random(4711);
        LineTable table;
        Reference reference;
        LineTable snapshot;
        Reference snapshotReference;
        for (int i = 0; i < operations; ++i) {
            int id = int(random.bounded(idRange)) - idRange / 2;
            if (random.bounded(2) == 0 && !reference.isEmpty()) {
                const auto known = reference.lowerBound(id);
                id = known == reference.end() ? id : known.key();
            }
            const int kind = int(random.bounded(20));
            if (kind < 11) {
                const PrjMappingTargetLineC line = randomLine(random);
                table.set(id, line);
                reference.insert(id, line);
            } else if (kind < 17) {
                QCOMPARE(table.remove(id), reference.remove(id) == 1);
            } else if (kind < 19) {
                const bool conflict = random.bounded(2) == 0;
                table.setConflict(id, conflict);
                if (reference.contains(id)) {
                    const PrjMappingTargetLineC old = reference.value(id);
                    reference.insert(id, makeLine(old.getTargetLineId(), old.getState(), conflict,
                                                  old.getExtended()));
                }
            } else if (random.bounded(200) == 0) {
                QCOMPARE(difference(snapshot, snapshotReference), QString());
                snapshot = table;
                snapshotReference = reference;
            }
        }
        QVERIFY(!reference.isEmpty());
        QCOMPARE(difference(table, reference), QString());
        QCOMPARE(difference(snapshot, snapshotReference), QString());
    }

    void emptiedFromEitherEnd_data()
    {
        QTest::addColumn<bool>("ascending");
        QTest::newRow("ascending") << true;
        QTest::newRow("descending") << false;
    }
    void emptiedFromEitherEnd()
    {
        QFETCH(bool, ascending);
        constexpr int Count = 20000;
        LineTable table;
        Reference reference;
        for (int i = 0; i < Count; ++i) {
            table.set(i, makeLine(i, 0));
            reference.insert(i, makeLine(i, 0));
        }
        for (int i = 0; i < Count; ++i) {
            const int id = ascending ? i : Count - 1 - i;
            QVERIFY(table.remove(id));
            reference.remove(id);
            if (i % 4999 == 0)
                QCOMPARE(difference(table, reference), QString());
        }
        QVERIFY(table.isEmpty());
        table.set(3, makeLine(1, 1));
        QCOMPARE(table.counts().lines(), 1);
    }

    void thinnedOutPagesKeepTheirTexts()
    {
        LineTable table;
        Reference reference;
        for (int i = 0; i < 5000; ++i) {
            const QString extended = i % 700 == 0 ? QString::number(i) : QString();
            table.set(i, makeLine(i, 0, false, extended));
            if (i % 10 == 0)
                reference.insert(i, makeLine(i, 0, false, extended));
        }
        for (int i = 0; i < 5000; ++i) {
            if (i % 10 != 0)
                table.remove(i);
        }
        QCOMPARE(difference(table, reference), QString());
    }

    void copiesAreTheirOwn()
    {
        LineTable table;
        Reference reference;
        for (int i = 0; i < 100000; ++i) {
            table.set(i, makeLine(i, 1));
            reference.insert(i, makeLine(i, 1));
        }
        LineTable copy = table;
        copy.set(50000, makeLine(7, 2, true, "text"));
        copy.setConflict(3, true);
        copy.remove(99999);
        copy.set(-5, makeLine(-1, 0));
        QCOMPARE(difference(table, reference), QString());
        QVERIFY(copy.value(50000) == makeLine(7, 2, true, "text"));
        QCOMPARE(copy.counts().lines(), 100000);
        QCOMPARE(copy.counts().conflicts(), 2);
    }

    void removeUnverifiedKeepsConfirmedOnes()
    {
        QRandomGenerator random(1);
        LineTable table;
        Reference reference;
        for (int i = 0; i < 3000; ++i) {
            const PrjMappingTargetLineC line = randomLine(random);
            table.set(i, line);
            if (line.getState() == PRJMAPPING::Verified)
                reference.insert(i, line);
        }
        table.removeUnverified();
        QCOMPARE(difference(table, reference), QString());
        table.removeUnverified();
        QCOMPARE(difference(table, reference), QString());
    }

    void setAllStatesKeepsAllElse()
    {
        QRandomGenerator random(2);
        LineTable table;
        Reference reference;
        for (int i = 0; i < 3000; ++i) {
            const PrjMappingTargetLineC line = randomLine(random);
            table.set(i, line);
            reference.insert(
                i, makeLine(line.getTargetLineId(), 2, line.getConflict(), line.getExtended()));
        }
        const LineTable before = table;
        table.setAllStates(PRJMAPPING::Verified);
        QCOMPARE(difference(table, reference), QString());
        QCOMPARE(table.counts().verified(), 3000);
        QVERIFY(before.counts().verified() < 3000);
    }

    void clear()
    {
        LineTable table;
        table.set(1, makeLine(1, 2, true));
        table.clear();
        QVERIFY(table.isEmpty());
        QCOMPARE(table.counts(), LineCounts());
    }

    void counts_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<int>("state");
        QTest::addColumn<QList<int>>("counts");
        // notFound, mapped, toCheck, verified, unmapped, assigned, unverified
        QTest::newRow("to check") << 5 << 0 << QList<int>{0, 0, 1, 0, 0, 0, 1};
        QTest::newRow("mapped") << 5 << 1 << QList<int>{0, 1, 0, 0, 0, 1, 0};
        QTest::newRow("verified") << 5 << 2 << QList<int>{0, 0, 0, 1, 0, 0, 0};
        QTest::newRow("state 3") << 5 << 3 << QList<int>{0, 0, 0, 0, 0, 0, 1};
        QTest::newRow("no line, to check") << -1 << 0 << QList<int>{1, 0, 0, 0, 1, 0, 0};
        QTest::newRow("no line, mapped") << -1 << 1 << QList<int>{1, 1, 0, 0, 1, 0, 0};
        QTest::newRow("expired") << -1 << 2 << QList<int>{1, 0, 0, 1, 0, 0, 0};
        QTest::newRow("no line, state 7") << -1 << 7 << QList<int>{1, 0, 0, 0, 1, 0, 0};
        QTest::newRow("largest state")
            << 5 << std::numeric_limits<int>::max() << QList<int>{0, 0, 0, 0, 0, 0, 1};
        QTest::newRow("line -2 is a line") << -2 << 0 << QList<int>{0, 0, 1, 0, 0, 0, 1};
    }
    void counts()
    {
        QFETCH(int, target);
        QFETCH(int, state);
        QFETCH(QList<int>, counts);
        LineTable table;
        table.set(1, makeLine(target, state));
        const LineCounts &c = table.counts();
        QCOMPARE(c.lines(), 1);
        QCOMPARE((QList<int>{c.notFound(), c.mapped(), c.toCheck(), c.verified(), c.unmapped(),
                             c.assigned(), c.unverified()}),
                 counts);
        QCOMPARE(int(table.value(1).getState()), state);
    }
};

namespace {

/// Lines 0, 3, 6 ... of several pages and chunks; each hundredth has a text.
LineTable everyThird(int count)
{
    LineTable table;
    for (int i = 0; i < count; ++i)
        table.set(3 * i, makeLine(i, 1, false, i % 100 == 99 ? "text" : QString()));
    return table;
}

} // namespace

void tst_LineTable::walkBack()
{
    for (int count : {0, 1, 256, 257, 40000}) {
        const LineTable table = everyThird(count);
        LineTable::Iterator at = table.end();
        for (int i = count - 1; i >= 0; --i) {
            --at;
            QCOMPARE(at->sourceLine(), 3 * i);
            QCOMPARE(at->line(), table.value(3 * i));
        }
        QVERIFY(at == table.begin());
        for (int i = 0; i < count; ++i)
            QCOMPARE((at++)->sourceLine(), 3 * i);
        QVERIFY(at == table.end());
    }
}

void tst_LineTable::lowerBound()
{
    QVERIFY(LineTable().lowerBound(0) == LineTable().end());
    constexpr int count = 40000;
    const LineTable table = everyThird(count);
    int wrong = 0;
    for (int i = 0; i < count; ++i) {
        for (int line = 3 * i - 2; line <= 3 * i; ++line)
            wrong += table.lowerBound(line)->sourceLine() == 3 * i ? 0 : 1;
    }
    QCOMPARE(wrong, 0);
    QVERIFY(table.lowerBound(3 * count - 2) == table.end());
    QVERIFY(table.lowerBound(std::numeric_limits<qint64>::max()) == table.end());
    QVERIFY(table.lowerBound(std::numeric_limits<qint64>::min()) == table.begin());
    QVERIFY(table.find(3) != table.end());
    QVERIFY(!table.find(4));
}

void tst_LineTable::texts()
{
    QList<int> found;
    const LineTable table = everyThird(1000);
    for (const LineTable::Iterator &entry : table.texts())
        found.append(entry.sourceLine());
    QCOMPARE(found, (QList<int>{297, 597, 897, 1197, 1497, 1797, 2097, 2397, 2697, 2997}));
    LineTable sparse;
    for (int i = 0; i < 3000; ++i)
        sparse.set(i, makeLine(i, 1, false, i == 2500 ? "text" : QString()));
    const LineTable::Texts texts = sparse.texts();
    QCOMPARE(texts.begin()->sourceLine(), 2500);
    QVERIFY(++texts.begin() == texts.end());
    sparse.remove(2500);
    QVERIFY(sparse.texts().begin() == sparse.texts().end());
}

void tst_LineTable::differences()
{
    LineTable before;
    for (int i = 0; i < 5000; ++i)
        before.set(i, makeLine(i, 1));
    LineTable after = before;
    after.set(3, makeLine(4, 2, true, "text"));
    after.remove(2000);
    after.set(9000, makeLine(1, 0));
    const std::vector<LineDifference> found = LineTable::differences(before, after);
    QCOMPARE(found.size(), 3U);
    QCOMPARE(found[0].line, 3);
    QVERIFY(found[0].inBefore && found[0].inAfter);
    QCOMPARE(found[0].before, makeLine(3, 1));
    QCOMPARE(found[0].after, makeLine(4, 2, true, "text"));
    QCOMPARE(found[1].line, 2000);
    QVERIFY(found[1].inBefore && !found[1].inAfter);
    QCOMPARE(found[1].before, makeLine(2000, 1));
    QCOMPARE(found[2].line, 9000);
    QVERIFY(!found[2].inBefore && found[2].inAfter);
    QCOMPARE(found[2].after, makeLine(1, 0));
    QVERIFY(LineTable::differences(before, before).empty());
}

void tst_LineTable::changedLines()
{
    using Lines = std::vector<int>;
    LineTable before;
    for (int line = 0; line < 1000; ++line)
        before.set(line, makeLine(line, 1));
    LineTable after = before;
    QCOMPARE(LineTable::changedLines(before, after), Lines());
    after.set(500, makeLine(500, 1)); // the same again
    QCOMPARE(LineTable::changedLines(before, after), Lines());
    after.set(500, makeLine(501, 1));
    after.set(600, makeLine(600, 2));
    after.set(700, makeLine(700, 1, true));
    after.set(800, makeLine(800, 1, false, "{A=1} -> 2"));
    after.remove(0);
    after.set(-5, makeLine(1, 1));
    after.set(5000, makeLine(1, 1));
    QCOMPARE(LineTable::changedLines(before, after), Lines({-5, 0, 500, 600, 700, 800, 5000}));
    QCOMPARE(LineTable::changedLines(after, before), Lines({-5, 0, 500, 600, 700, 800, 5000}));
    LineTable other; // equal entries, nothing shared
    for (int line = 999; line >= 0; --line)
        other.set(line, makeLine(line, 1));
    QCOMPARE(LineTable::changedLines(before, other), Lines());
    LineTable one;
    one.set(3, makeLine(3, 1));
    QCOMPARE(LineTable::changedLines(one, LineTable()), Lines({3}));
    QCOMPARE(LineTable::changedLines(LineTable(), one), Lines({3}));
}

void tst_LineTable::changedLinesOfRandomTables_data()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<int>("changes");
    QTest::newRow("few") << 1 << 3;
    QTest::newRow("some") << 2 << 60;
    QTest::newRow("many, so that pages split and merge") << 3 << 3000;
}

void tst_LineTable::changedLinesOfRandomTables()
{
    QFETCH(int, seed);
    QFETCH(int, changes);
    QRandomGenerator random{quint32(seed)};
    Reference reference;
    LineTable table;
    for (int step = 0; step < 30; ++step) {
        const Reference formerReference = reference;
        const LineTable former = table;
        for (int change = 0; change < changes; ++change) {
            const int line = random.bounded(6000);
            if (random.bounded(3) == 0) {
                reference.remove(line);
                table.remove(line);
            } else {
                const PrjMappingTargetLineC entry = randomLine(random);
                reference.insert(line, entry);
                table.set(line, entry);
            }
        }
        std::vector<int> expected;
        for (int line = 0; line < 6000; ++line) {
            if (reference.contains(line) != formerReference.contains(line) ||
                !(reference.value(line) == formerReference.value(line)))
                expected.push_back(line);
        }
        QCOMPARE(LineTable::changedLines(former, table), expected);
    }
}

void tst_LineTable::joined_data()
{
    QTest::addColumn<int>("entries");
    QTest::addColumn<int>("slices");
    for (const int entries : {0, 5, 300, 20000}) {
        for (const int slices : {1, 2, 7})
            QTest::addRow("%d entries in %d slices", entries, slices) << entries << slices;
    }
}

// Of each table the entries between the borders, as if they had been entered in one.
void tst_LineTable::joined()
{
    QFETCH(int, entries);
    QFETCH(int, slices);
    QRandomGenerator random(11);
    std::vector<LineTable> tables(static_cast<std::size_t>(slices));
    std::vector<LineTable::Slice> parts;
    Reference expected;
    int after = -1;
    for (std::size_t i = 0; i < tables.size(); ++i) {
        for (int k = 0; k < entries; ++k)
            tables[i].set(random.bounded(0, 2 * entries), randomLine(random));
        const bool isLast = i + 1 == tables.size();
        const int last =
            isLast ? std::numeric_limits<int>::max() : 2 * entries * int(i + 1) / slices;
        for (const LineTable::Iterator &entry : tables[i]) {
            if (entry.sourceLine() > after && entry.sourceLine() <= last)
                expected.insert(entry.sourceLine(), entry.line());
        }
        parts.push_back({&tables[i], last});
        after = last;
    }
    LineTable table = LineTable::joined(parts);
    QCOMPARE(difference(table, expected), QString());
    for (int k = 0; k < 2000; ++k) { // what follows finds a table like any other
        const int line = random.bounded(0, 3 * entries + 2);
        const PrjMappingTargetLineC value = randomLine(random);
        table.set(line, value);
        expected.insert(line, value);
        const int gone = random.bounded(0, 3 * entries + 2);
        QCOMPARE(table.remove(gone), expected.remove(gone) > 0);
    }
    QCOMPARE(difference(table, expected), QString());
}

QTEST_GUILESS_MAIN(tst_LineTable)
#include "tst_LineTable.moc"
