#include "MapperFixture.h"

#include <QTest>

using Outcome = ComparedVariableC::Outcome;

namespace {

struct Candidates
{
    LineCandidatesC list;
    bool sameByView = false;
};

/// The candidates of a line of the source table, looked up as a varset and as a view.
Candidates candidatesOf(MapperFixture &fixture, int line)
{
    Candidates result{fixture.mapper.candidates(line, fixture.varset(line)), false};
    const VKTab::LineView view(fixture.source, VKTab::LineId(line));
    const LineCandidatesC byView = fixture.mapper.candidates(line, view);
    result.sameByView = byView.candidates.size() == result.list.candidates.size() &&
                        byView.noSuccessor == result.list.noSuccessor &&
                        byView.explanation == result.list.explanation;
    return result;
}

QList<Outcome> outcomes(const LineCandidateC &candidate)
{
    QList<Outcome> list;
    for (const ComparedVariableC &variable : candidate.variables)
        list.append(variable.outcome);
    return list;
}

} // namespace

class tst_PrjMapperCandidates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalLine();
    void outcomeOfEachVariable();
    void nothingToPropose();
    void workingMappingStays();
    void comparedWithTheAssignedLine();
};

void tst_PrjMapperCandidates::equalLine()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\n");
    catalog.write("new/a.prj", "D,k:n\nM9,6\nM8,5.0\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    const Candidates found = candidatesOf(fixture, 1);
    QVERIFY(found.sameByView);
    QVERIFY(!found.list.candidates.isEmpty());
    const LineCandidateC &best = found.list.candidates.first();
    QCOMPARE(best.lineId, VKTab::LineId(2));
    QCOMPARE(best.targetPath, QString("new/a.prj"));
    QCOMPARE(best.targetIndex, 0);
    QVERIFY(best.probability >= 0.95);
    QVERIFY(found.list.noSuccessor <= 0.05);
    QCOMPARE(outcomes(best), (QList{Outcome::Equal, Outcome::Equal}));
    QCOMPARE(found.list.explanation, best.explanation);
    QCOMPARE(best.explanation, QString("gleich: D, k"));
}

void tst_PrjMapperCandidates::outcomeOfEachVariable()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n,l:n,m,n,o\nM8,5,7,round head,blue,\nM9,6,8,flat,red,\n");
    catalog.write("new/a.prj", "D,k:n,l:n,m,n,o\nM8,5.1,7,round head,,\nM9,6,8,flat,red,\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    const Candidates found = candidatesOf(fixture, 1);
    QVERIFY(found.sameByView);
    QVERIFY(!found.list.candidates.isEmpty());
    const LineCandidateC &best = found.list.candidates.first();
    QCOMPARE(best.lineId, VKTab::LineId(1));
    QVERIFY(best.probability >= LineCandidatesC::ProposedProbability);
    QCOMPARE(outcomes(best), (QList{Outcome::Equal, Outcome::Near, Outcome::Equal, Outcome::Equal,
                                    Outcome::Missing, Outcome::Equal}));
    QCOMPARE(best.variables[1].name, QString("k"));
    QCOMPARE(best.variables[1].oldValue, QString("5"));
    QCOMPARE(best.variables[1].newValue, QString("5.1"));
    QCOMPARE(best.explanation,
             QString("gleich: D, l, m; ähnlich: k 5 → 5.1; ohne Gegenstück: n - blue"));
}

void tst_PrjMapperCandidates::nothingToPropose()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "E,l:n\nM8,5\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    const Candidates found = candidatesOf(fixture, 1);
    QVERIFY(found.sameByView);
    QVERIFY(found.list.candidates.isEmpty());
    QCOMPARE(found.list.noSuccessor, 1.0);
    QVERIFY(!found.list.explanation.isEmpty());
}

void tst_PrjMapperCandidates::workingMappingStays()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM9,6\nM8,5\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.mapping.changeTarget(0, [](PrjMappingTargetC &target) {
        target.addLineId(1, 1, PRJMAPPING::ToCheck, QString());
    });
    fixture.start();
    const Candidates found = candidatesOf(fixture, 1);
    QCOMPARE(found.list.candidates.value(0).lineId, VKTab::LineId(2));
    const PrjMapperLineC stored = fixture.mapper.findLine(1, fixture.varset(1));
    QVERIFY(stored.isFound());
    QCOMPARE(stored.getTargetLineId(), 1);
}

void tst_PrjMapperCandidates::comparedWithTheAssignedLine()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\n");
    catalog.write("new/a.prj", "D,k:n\nM9,6\nM8,5.0\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    enter(fixture.mapping, 0, 1, 1, PRJMAPPING::Verified);
    enter(fixture.mapping, 0, 2, 77, PRJMAPPING::Verified);
    fixture.start();
    const VKTab::LineView view(fixture.source, VKTab::LineId(1));
    const PrjMapperLineC line = fixture.mapper.findLine(1, view);
    const QList<ComparedVariableC> compared = fixture.mapper.compareLine(line, view);
    QCOMPARE(compared.size(), 2);
    QCOMPARE(compared[0], (ComparedVariableC{"D", "M8", "M9", Outcome::Near, 0}));
    QCOMPARE(compared[1], (ComparedVariableC{"k", "5", "6", Outcome::Near, 0}));
    // A line that the table does not have, and one that nobody assigned.
    const VKTab::LineView second(fixture.source, VKTab::LineId(2));
    QVERIFY(fixture.mapper.compareLine(fixture.mapper.findLine(2, second), second).isEmpty());
    QVERIFY(fixture.mapper.compareLine(PrjMapperLineC(), view).isEmpty());
}

QTEST_GUILESS_MAIN(tst_PrjMapperCandidates)
#include "tst_PrjMapperCandidates.moc"
