#include "MapperFixture.h"

#include <geomcore/mapper/LearnedValues.h>
#include <geomcore/plan/CellChange.h>

#include <QTest>

using Learned = QList<LearnedReplacement>;

namespace {

/// "row" of what is proposed for the first line, "none" without a proposal.
QString proposed(MapperFixture &fixture)
{
    const PrjMapperLineC line = fixture.create(1);
    return line.isFound() ? QString::number(line.getTargetLineId()) : QStringLiteral("none");
}

} // namespace

/// What other projects of the release show of how values are replaced.
class tst_LearnedValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsByItsShare_data()
    {
        QTest::addColumn<int>("supports");
        QTest::addColumn<int>("cases");
        QTest::addColumn<double>("pairs");
        QTest::newRow("always") << 7 << 7 << 7.0;
        QTest::newRow("more often than not") << 4 << 7 << 4.0;
        QTest::newRow("very often") << 79 << 79 << 7.9;
    }
    void countsByItsShare()
    {
        QFETCH(int, supports);
        QFETCH(int, cases);
        Plan::CellValues values;
        (void)values.number("2.5", '.');
        Plan::KnownChanges known;
        const Mapper::LearnedValues learned(
            {{"k", "2.50", "x", supports, cases}, {"D", "2.5", "y", supports, cases}});
        learned.addTo(known, "k", 3, values);
        QTEST(known.most(3), "pairs");
        QVERIFY(!known.has(2) && !known.has(4));
        QCOMPARE(values.count(), 3); // y is no value of k
    }

    void signatureTellsApart()
    {
        const LearnedReplacement one{"k", "a", "b", 2, 3};
        const std::string signature = Mapper::LearnedValues({one}).signature();
        QCOMPARE(Mapper::LearnedValues(Learned{one}).signature(), signature);
        for (const LearnedReplacement &other :
             {LearnedReplacement{"l", "a", "b", 2, 3}, LearnedReplacement{"k", "c", "b", 2, 3},
              LearnedReplacement{"k", "a", "c", 2, 3}, LearnedReplacement{"k", "a", "b", 1, 3},
              LearnedReplacement{"k", "a", "b", 2, 4},
              LearnedReplacement{"k", "a", "b", 2, 3, "2", "0"},
              LearnedReplacement{"k", "a", "b", 2, 3, "2", "1"}})
            QVERIFY(Mapper::LearnedValues(Learned{other}).signature() != signature);
    }

    void knowsChangesOfNumbers_data()
    {
        QTest::addColumn<QString>("factor");
        QTest::addColumn<QString>("offset");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<bool>("known");
        const auto row = [](const char *name, const char *factor, const char *offset,
                            const char *before, const char *after, bool known) {
            QTest::newRow(name) << QString(factor) << QString(offset) << QByteArray(before)
                                << QByteArray(after) << known;
        };
        row("factor", "2", "0", "4", "8", true);
        row("factor in a text", "2", "0", "M4x7", "M8x7", true);
        row("another factor", "2", "0", "4", "9", false);
        row("rounded factor", "0.03937", "0", "10", "0.3937008", true);
        row("difference", "1", "0.5", "4", "4.5", true);
        row("another difference", "1", "0.5", "4", "5", false);
        row("nothing changes", "1", "0", "4", "4.0001", false);
        row("both at once", "2", "1", "4", "9", false);
    }
    void knowsChangesOfNumbers()
    {
        QFETCH(QString, factor);
        QFETCH(QString, offset);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        Plan::CellValues values;
        const int oldValue = values.number(before.toStdString(), '.');
        const int newValue = values.number(after.toStdString(), '.');
        Plan::KnownChanges changes;
        Mapper::LearnedValues({{"k", {}, {}, 7, 7, factor, offset}}).addTo(changes, "k", 3, values);
        double pairs = 0;
        for (const std::uint64_t key : Plan::changeBetween(values, 3, oldValue, newValue).keys)
            pairs = std::max(pairs, changes.pairs(3, key));
        QFETCH(bool, known);
        QCOMPARE(pairs, known ? 7.0 : 0.0);
    }

    void decidesBetweenRows_data()
    {
        QTest::addColumn<Learned>("learned");
        QTest::addColumn<QString>("row");
        QTest::newRow("nothing is known") << Learned() << "none";
        QTest::newRow("of one row") << Learned{{"coat", "zn", "A2K", 12, 12}} << "1";
        QTest::newRow("of the other") << Learned{{"coat", "zn", "F4", 12, 12}} << "2";
        QTest::newRow("of another variable") << Learned{{"set", "zn", "F4", 12, 12}} << "none";
        QTest::newRow("of another value") << Learned{{"coat", "ni", "F4", 12, 12}} << "none";
        const auto numbers = [](const char *factor, const char *offset) {
            return Learned{{"coat", {}, {}, 12, 12, factor, offset}};
        };
        QTest::newRow("factor of one row") << numbers("4", "0") << "1";
        QTest::newRow("factor of the other") << numbers("3", "0") << "2";
        QTest::newRow("difference of the other") << numbers("1", "14") << "2";
        QTest::newRow("another factor") << numbers("7", "0") << "none";
    }
    /// The one line of a project, and two new ones that look alike.
    void decidesBetweenRows()
    {
        QFETCH(Learned, learned);
        const TestCatalog catalog;
        const bool ofNumbers = !learned.isEmpty() && learned.first().isNumeric();
        const QByteArray head = "set,size,coat\nz,M8,";
        catalog.write("old/a.prj", head + (ofNumbers ? "x7\n" : "zn\n"));
        catalog.write("new/a.prj", head + (ofNumbers ? "x28\nz,M8,x21\n" : "A2K\nz,M8,F4\n"));
        MapperFixture fixture(catalog, {"new/a.prj"});
        fixture.start({}, learned);
        QTEST(proposed(fixture), "row");
        // Without it there is another plan.
        fixture.start();
        QCOMPARE(proposed(fixture), "none");
    }

    void isNeverCertain()
    {
        const TestCatalog catalog;
        catalog.write("old/a.prj", "set,size,coat\nz,M8,zn\n");
        catalog.write("new/a.prj", "set,size,coat\nz,M8,A2K\nz,M8,F4\n");
        MapperFixture fixture(catalog, {"new/a.prj"});
        fixture.start({}, {{"coat", "zn", "A2K", 1000, 1000}});
        QCOMPARE(fixture.proposal(1), "0:1");
        const LineCandidatesC found = fixture.mapper.candidates(1, fixture.varset(1));
        QVERIFY(!found.candidates.isEmpty());
        const ComparedVariableC &coat = found.candidates.first().variables.last();
        QCOMPARE(coat.outcome, ComparedVariableC::Replaced);
        QCOMPARE(coat.supports, 0); // no other line of this project changed so
    }

    void projectCountsMore_data()
    {
        QTest::addColumn<LearnedReplacement>("learned");
        QTest::addColumn<QByteArrayList>("values"); // the line's, the new ones, that of others
        QTest::newRow("values") << LearnedReplacement{"coat", "zn", "A2K", 12, 12}
                                << QByteArrayList{"zn", "A2K", "F4", "ni"};
        QTest::newRow("factors") << LearnedReplacement{"coat", {}, {}, 12, 12, "4", "0"}
                                 << QByteArrayList{"x7", "x28", "x21", "y"};
    }
    /// What the project shows itself outweighs it.
    void projectCountsMore()
    {
        QFETCH(LearnedReplacement, learned);
        QFETCH(QByteArrayList, values);
        QByteArray before = "set,size,coat\nz,M8," + values[0] + '\n';
        QByteArray after = "set,size,coat\nz,M8," + values[1] + "\nz,M8," + values[2] + '\n';
        for (int line = 1; line <= 40; ++line) {
            const QByteArray one = "y,N" + QByteArray::number(line) + ',';
            const QByteArray other = "x,O" + QByteArray::number(line) + ',';
            before += one + values[0] + '\n' + other + values[3] + '\n';
            after += one + values[2] + '\n' + other + values[1] + '\n';
        }
        const TestCatalog catalog;
        catalog.write("old/a.prj", before);
        catalog.write("new/a.prj", after);
        MapperFixture fixture(catalog, {"new/a.prj"});
        fixture.start({}, {learned});
        QCOMPARE(proposed(fixture), "2");
    }

    /// It says how values change, not which of two tables the lines are in now.
    void doesNotChooseTheTable()
    {
        const TestCatalog catalog;
        catalog.write("old/a.prj", "set,size,coat\nz,M8,zn\n");
        catalog.write("new/b.prj", "set,size,coat\nz,M8,A2K\n");
        catalog.write("new/c.prj", "set,size,coat\nz,M8,F4\n");
        MapperFixture fixture(catalog, {"new/b.prj", "new/c.prj"});
        fixture.start();
        const auto alone = fixture.mapper.candidates(1, fixture.varset(1)).candidates;
        fixture.start({}, {{"coat", "zn", "F4", 12, 12}});
        const auto told = fixture.mapper.candidates(1, fixture.varset(1)).candidates;
        QCOMPARE(told.size(), alone.size());
        for (qsizetype i = 0; i < told.size(); ++i) {
            QCOMPARE(told[i].targetIndex, alone[i].targetIndex);
            QCOMPARE(told[i].probability, alone[i].probability);
        }
    }
};

QTEST_GUILESS_MAIN(tst_LearnedValues)
#include "tst_LearnedValues.moc"
