#include "../support/GermanTexts.h"
#include "MapperFixture.h"

#include <core/parallel/WorkerPool.h>

#include <QTest>

#include <array>
#include <cmath>
#include <random>

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
    void families_data();
    void families();
    void replacementIsTold();
    void agreedReplacements_data();
    void agreedReplacements();
    void agreedReplacementIsTold();
    void goneLinesHaveNoProposal();
    void goneLinesBesideLikeOnes();
    void equalLinesOfAllTargets();
    void equalLineThatIsTaken();
    void likeLinesKeepTheirOrder();
    void renumberedKey();
    void probabilitiesHold_data();
    void probabilitiesHold();
    void orderOfCallsDoesNotMatter();
    void numberOfThreadsDoesNotMatter();
    void manyLines();
    void probabilitiesAddUp();
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

void tst_PrjMapperCandidates::families_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    // Twelve lines, told apart by a size; the target's lines are in reverse order.
    const auto row = [](const char *name, const auto &oldLine, const auto &newLine) {
        QByteArray source = "D,s:n,t\n";
        QByteArray target = source;
        for (int i = 1; i <= 12; ++i)
            source += oldLine(i) + '\n';
        for (int i = 12; i >= 1; --i)
            target += newLine(i) + '\n';
        QTest::newRow(name) << source << target;
    };
    const auto number = [](int i) {
        return QByteArray::number(i);
    };
    const auto plain = [number](int i) {
        return "S0" + number(i) + "B," + number(7 * i * i) + ",kind " + number(i % 3);
    };
    row("letters within a name are replaced", plain, [number](int i) {
        return "SX" + number(i) + "B," + number(7 * i * i) + ",kind " + number(i % 3);
    });
    row("a column is reworded", plain, [number](int i) {
        return "S0" + number(i) + "B," + number(7 * i * i + 1) + ",type no. " + number(i % 3 + 100);
    });
    // Only the last value stays, and two lines have it: by itself no pair is likely.
    row(
        "nearly all is another at once",
        [number](int i) {
            return "M" + number(i + 2) + ',' + number(i + 1) + ',' + number((i + 1) / 2 * 5);
        },
        [number](int i) {
            return "MX" + number(i + 2) + ',' + QByteArray::number((i + 1) / 25.4, 'g', 6) + ',' +
                   number((i + 1) / 2 * 5);
        });
    row("numbers have another unit", plain, [number](int i) {
        return "S0" + number(i) + "B," + QByteArray::number(7 * i * i / 25.4, 'g', 6) + ",kind " +
               number(i % 3);
    });
}

void tst_PrjMapperCandidates::families()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    const TestCatalog catalog;
    catalog.write("old/a.prj", source);
    catalog.write("new/a.prj", target);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    for (int line = 1; line <= 12; ++line)
        QCOMPARE(fixture.proposal(line), QStringLiteral("0:%1").arg(13 - line));
}

void tst_PrjMapperCandidates::replacementIsTold()
{
    QByteArray source = "D,s:n,material\n";
    QByteArray target = source;
    for (int i = 1; i <= 12; ++i) {
        const QByteArray begin =
            "M" + QByteArray::number(i) + ',' + QByteArray::number(i * i) + ',';
        source += begin + (i % 2 ? "St37-2\n" : "St52-3\n");
        target += begin + (i % 2 ? "S235JR\n" : "S355J2G3\n");
    }
    const TestCatalog catalog;
    catalog.write("old/a.prj", source);
    catalog.write("new/a.prj", target);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    const LineCandidatesC found = fixture.mapper.candidates(3, fixture.varset(3));
    QVERIFY(!found.candidates.isEmpty());
    const LineCandidateC &best = found.candidates.first();
    QCOMPARE(best.lineId, VKTab::LineId(3));
    QCOMPARE(outcomes(best), (QList{Outcome::Equal, Outcome::Equal, Outcome::Replaced}));
    QCOMPARE(best.variables[2].supports, 5);
    QCOMPARE(best.explanation,
             QString("gleich: D, s; ersetzt: material St37-2 → S235JR (so in 5 weiteren Zeilen)"));
}

void tst_PrjMapperCandidates::agreedReplacements_data()
{
    QTest::addColumn<QList<AgreedReplacement>>("agreed");
    QTest::addColumn<QString>("proposals"); // of lines 1 to 4
    using List = QList<AgreedReplacement>;
    const auto texts = [](const char *folder, const char *variable = "material") {
        List list;
        for (const auto &[before, after] : {std::pair("St37", "S235"), std::pair("C45", "1.0503"),
                                            std::pair("A2", "304"), std::pair("A4", "316")})
            list += AgreedReplacement{folder, variable, before, after, {}, {}};
        return list;
    };
    const QString all = "0:4 0:3 0:2 0:1";
    const QString none = "none none none none";
    QTest::newRow("nothing") << List() << none;
    QTest::newRow("for the release") << texts("") << all;
    QTest::newRow("for its folder") << texts("old") << all;
    QTest::newRow("for the project") << texts("old/a.prj") << all;
    QTest::newRow("for another folder") << texts("ol") << none;
    QTest::newRow("for another project") << texts("old/b.prj") << none;
    QTest::newRow("about another variable") << texts("", "D") << none;
}

/// Nothing else tells which line has become which.
void tst_PrjMapperCandidates::agreedReplacements()
{
    QFETCH(QList<AgreedReplacement>, agreed);
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,material\nk,St37 zn\nl,C45 zn\nm,A2 zn\nn,A4 zn\n");
    catalog.write("new/a.prj", "D,material\n17,316 zn\n18,304 zn\n19,1.0503 zn\n20,S235 zn\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start(agreed);
    QStringList proposals;
    for (int line = 1; line <= 4; ++line)
        proposals += fixture.proposal(line);
    QTEST(proposals.join(' '), "proposals");
}

void tst_PrjMapperCandidates::agreedReplacementIsTold()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,L:n,W\nk,10,St37\nl,25,C45\nm,70,C45\n");
    catalog.write("new/a.prj", "D,L:n,W\n17,7,C45\n18,1,S235\n19,2.5,C45\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start({{"", "L", {}, {}, "0.1", "0"}, {"", "W", "St37", "S235", {}, {}}});
    const LineCandidatesC found = fixture.mapper.candidates(1, fixture.varset(1));
    QVERIFY(!found.candidates.isEmpty());
    const LineCandidateC &best = found.candidates.first();
    QCOMPARE(best.lineId, VKTab::LineId(2));
    QCOMPARE(outcomes(best), (QList{Outcome::Different, Outcome::Replaced, Outcome::Replaced}));
    QCOMPARE(best.variables[1].supports, 0);
    QVERIFY2(best.explanation.contains("ersetzt: L 10 → 1, W St37 → S235"),
             qPrintable(best.explanation));
    // Numbers too, which nothing else says of these lines.
    for (const int line : {2, 3}) {
        const LineCandidatesC other = fixture.mapper.candidates(line, fixture.varset(line));
        QVERIFY(!other.candidates.isEmpty());
        QCOMPARE(other.candidates.first().lineId, VKTab::LineId(line == 2 ? 3 : 1));
    }
    // Withdrawn: another plan.
    fixture.start();
    const LineCandidatesC without = fixture.mapper.candidates(1, fixture.varset(1));
    QVERIFY(without.candidates.isEmpty() ||
            !outcomes(without.candidates.first()).contains(Outcome::Replaced));
}

void tst_PrjMapperCandidates::goneLinesHaveNoProposal()
{
    QByteArray source = "D,s:n,t:n\n";
    QByteArray target = source;
    for (int i = 1; i <= 20; ++i) {
        source += "M" + QByteArray::number(i) + ',' + QByteArray::number(i * i) + ",5\n";
        if (i % 5 != 0)
            target += "M" + QByteArray::number(i) + ',' + QByteArray::number(i * i) + ",6\n";
    }
    const TestCatalog catalog;
    catalog.write("old/a.prj", source);
    catalog.write("new/a.prj", target);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    for (int line = 1; line <= 20; ++line) {
        const QString expected =
            line % 5 == 0 ? QStringLiteral("none") : QStringLiteral("0:%1").arg(line - line / 5);
        QCOMPARE(fixture.proposal(line), expected);
    }
}

/// For each line the new table has another one that looks like it, whether its own is gone or not.
void tst_PrjMapperCandidates::goneLinesBesideLikeOnes()
{
    QByteArray source = "model,crop:n,focal:n,n:n\n";
    QByteArray target = source;
    QByteArray others;
    for (int i = 1; i <= 44; ++i) {
        const QByteArray focal = QByteArray::number(20 + i * 7 % 41);
        const QByteArray model = focal + "mm f/" + QByteArray::number(i * 5 % 11) + " ED";
        source += model + ",1.5," + focal + ',' + QByteArray::number(i % 3) + '\n';
        if (i % 8 != 0)
            target += "Nikkor " + model + ",1.53," + focal + ',' + QByteArray::number(i % 3) + '\n';
        others +=
            "Nikkor " + model + " VR,1," + focal + ',' + QByteArray::number((i + 1) % 3) + '\n';
    }
    const TestCatalog catalog;
    catalog.write("old/a.prj", source);
    catalog.write("new/a.prj", target + others);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    for (int line = 1; line <= 44; ++line) {
        const QString expected =
            line % 8 == 0 ? QStringLiteral("none") : QStringLiteral("0:%1").arg(line - line / 8);
        QCOMPARE(fixture.proposal(line), expected);
    }
}

/// A table was split between two lines that are alike.
void tst_PrjMapperCandidates::equalLinesOfAllTargets()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM1,1\nM5,5\nM5,5\nM7,7\n");
    catalog.write("new/p.prj", "D,k:n\nM1,1\nM5,5\n");
    catalog.write("new/q.prj", "D,k:n\nM5,5\nM7,7\n");
    MapperFixture fixture(catalog, {"new/p.prj", "new/q.prj"});
    fixture.start();
    QCOMPARE(fixture.proposal(1), QString("0:1"));
    QCOMPARE(fixture.proposal(2), QString("0:2"));
    QCOMPARE(fixture.proposal(3), QString("1:1"));
    QCOMPARE(fixture.proposal(4), QString("1:2"));
}

/// Of lines that equal each other one is gone: the row of another one is its best candidate, and
/// not proposed.
void tst_PrjMapperCandidates::equalLineThatIsTaken()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM1,1\nM5,5\nM5,5\nM7,7\nM7,7\nM8,8\n");
    catalog.write("new/a.prj", "D,k:n\nM1,1\nM5,5\nM7,7\nM7,7\nM8,8\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    QCOMPARE(fixture.proposal(2), QString("none"));
    QCOMPARE(fixture.proposal(3), QString("0:2"));
    const Candidates found = candidatesOf(fixture, 2);
    QVERIFY(found.sameByView);
    QVERIFY(!found.list.candidates.isEmpty());
    QCOMPARE(found.list.candidates.first().lineId, VKTab::LineId(2));
    QCOMPARE(found.list.explanation, QStringLiteral("Keine Zeile der Ziele passt zu dieser."));
}

/// Rows came in above and below some lines that are alike.
void tst_PrjMapperCandidates::likeLinesKeepTheirOrder()
{
    QByteArray source = "a:n,b:n\n";
    QByteArray target = source;
    const auto line = [](int i) {
        return QByteArray::number(10 * i) + ',' + QByteArray::number(13 * i) + '\n';
    };
    for (int i = 1; i <= 30; ++i) {
        source += line(i < 15 || i > 22 ? i : 15);
        if (i == 15 || i == 23)
            target += line(100 + i);
        target += line(i < 15 || i > 22 ? i : 15);
    }
    const TestCatalog catalog;
    catalog.write("old/a.prj", source);
    catalog.write("new/a.prj", target);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    for (int number = 15; number <= 22; ++number)
        QCOMPARE(fixture.proposal(number), QStringLiteral("0:%1").arg(number + 1));
}

/// Each key is that of another line now, and nothing else has changed.
void tst_PrjMapperCandidates::renumberedKey()
{
    QByteArray source = "D,s:n,t:n\n";
    QByteArray target = source;
    for (int i = 1; i <= 12; ++i) {
        const QByteArray rest =
            ',' + QByteArray::number(3 * i * i) + ',' + QByteArray::number(i + 5) + '\n';
        source += "M" + QByteArray::number(i) + rest;
        target += "M" + QByteArray::number(2 * i) + rest;
    }
    const TestCatalog catalog;
    catalog.write("old/a.prj", source);
    catalog.write("new/a.prj", target);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    for (int line = 1; line <= 12; ++line)
        QCOMPARE(fixture.proposal(line), QStringLiteral("0:%1").arg(line));
}

void tst_PrjMapperCandidates::probabilitiesHold_data()
{
    QTest::addColumn<int>("removed"); // one of so many lines, 0: none
    QTest::addColumn<bool>("withKey");
    QTest::newRow("all lines there") << 0 << true;
    QTest::newRow("all lines there, without key") << 0 << false;
    QTest::newRow("a fifth gone") << 5 << true;
    QTest::newRow("a fifth gone, without key") << 5 << false;
}

/// Of candidates that are said to be right with a probability, about so many are: families of
/// sizes whose measures were measured anew, with another wording, some values gone.
void tst_PrjMapperCandidates::probabilitiesHold()
{
    QFETCH(int, removed);
    QFETCH(bool, withKey);
    std::mt19937 random(7);
    const auto oneOf = [&random](unsigned count) {
        return int(random() % count);
    };
    constexpr int Lines = 200;
    QByteArray source = withKey ? "D,kind,s:n,t:n,u:n\n" : "kind,s:n,t:n,u:n\n";
    QByteArray target = source;
    QList<int> truth;
    for (int i = 0; i < Lines; ++i) {
        const QByteArray key = withKey ? 'K' + QByteArray::number(1000 + i) + ',' : QByteArray();
        const QByteArray kind = "kind " + QByteArray::number(i / 20);
        const int s = 5 * (i % 20) + oneOf(3);
        const int t = 10 + oneOf(withKey ? 40 : 12);
        source += key + kind + ',' + QByteArray::number(s) + ',' + QByteArray::number(t) + ',' +
                  QByteArray::number(oneOf(9)) + '\n';
        const bool gone = removed > 0 && oneOf(unsigned(removed)) == 0;
        truth.append(gone ? -1 : int(target.count('\n')));
        if (!gone)
            target += key + "type " + QByteArray::number(i / 20) + ',' +
                      QByteArray::number(s + (oneOf(4) == 0 ? 1 : 0)) + ',' +
                      (oneOf(10) == 0 ? QByteArray() : QByteArray::number(t)) + ',' +
                      QByteArray::number(oneOf(9)) + '\n';
    }
    const TestCatalog catalog;
    catalog.write("old/a.prj", source);
    catalog.write("new/a.prj", target);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    std::array<double, 10> said{};
    std::array<double, 10> right{};
    int count = 0;
    int best = 0;
    int goneProposed = 0;
    for (int line = 1; line <= Lines; ++line) {
        const LineCandidatesC found = fixture.mapper.candidates(line, fixture.varset(line));
        const int partner = truth[line - 1];
        for (const LineCandidateC &candidate : found.candidates) {
            const auto at = size_t(std::min(9, int(10 * candidate.probability)));
            said[at] += candidate.probability;
            right[at] += candidate.lineId == VKTab::LineId(partner) ? 1 : 0;
            ++count;
        }
        if (found.candidates.isEmpty())
            continue;
        best += found.candidates.first().lineId == VKTab::LineId(partner) ? 1 : 0;
        goneProposed += partner < 0 && found.candidates.first().probability >=
                                           LineCandidatesC::ProposedProbability
                            ? 1
                            : 0;
    }
    double distance = 0;
    for (size_t at = 0; at < said.size(); ++at)
        distance += std::abs(said[at] - right[at]);
    const auto gone = int(truth.count(-1));
    qInfo("error %.4f, best %d of %d, gone %d, proposed %d", distance / count, best, Lines - gone,
          gone, goneProposed);
    QVERIFY(distance <= (withKey ? 0.03 : 0.06) * count);
    QVERIFY(best >= (withKey ? 0.985 : 0.85) * (Lines - gone));
    QVERIFY(goneProposed <= (withKey ? 0.05 : 0.15) * gone);
}

void tst_PrjMapperCandidates::orderOfCallsDoesNotMatter()
{
    QByteArray source = "a:n,b:n,c:n\n";
    QByteArray target = source;
    for (int i = 1; i <= 30; ++i) {
        source += QByteArray::number(i % 7) + ',' + QByteArray::number(i % 5) + ",1\n";
        target += QByteArray::number(i % 7) + ',' + QByteArray::number(i * 2 % 5) + ",2\n";
    }
    const TestCatalog catalog;
    catalog.write("old/a.prj", source);
    catalog.write("new/a.prj", target);
    QStringList forward;
    QStringList backward;
    {
        MapperFixture fixture(catalog, {"new/a.prj"});
        fixture.start();
        for (int line = 1; line <= 30; ++line)
            forward.append(fixture.proposal(line));
    }
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    for (int line = 30; line >= 1; --line) {
        const PrjMapperLineC proposed = fixture.create(line);
        if (proposed.isFound())
            QVERIFY(fixture.mapper.addLine(proposed)); // decisions of the program teach nothing
        backward.prepend(fixture.proposal(line));
    }
    QCOMPARE(backward, forward);
}

void tst_PrjMapperCandidates::numberOfThreadsDoesNotMatter()
{
    QByteArray source = "a,b:n,c:n\n";
    QByteArray target = source;
    for (int i = 1; i <= 400; ++i) {
        const QByteArray name = QByteArray::number(i % 90);
        source += "S0" + name + "B," + QByteArray::number(i % 17) + ",1\n";
        target += "S" + name + "B," + QByteArray::number(i * 3 % 17) + ",2\n";
    }
    QStringList results[2];
    for (const int threads : {1, 4}) {
        WorkerPool::instance().setThreads(threads);
        const TestCatalog catalog; // of its own, or the plan would be there already
        catalog.write("old/a.prj", source);
        catalog.write("new/a.prj", target);
        MapperFixture fixture(catalog, {"new/a.prj"});
        fixture.start();
        for (int line = 1; line <= 400; ++line)
            results[threads == 1 ? 0 : 1].append(fixture.proposal(line));
    }
    WorkerPool::instance().setThreads(0);
    QVERIFY(!results[0].filter("0:").isEmpty());
    QCOMPARE(results[1], results[0]);
}

/// So many that not all variables are numbered at once; only the last ones tell the lines apart.
void tst_PrjMapperCandidates::manyLines()
{
    constexpr int Lines = 10'500;
    QByteArray source = "a,b:n,c,d:n,e:n,f\n";
    QByteArray target = source;
    const auto line = [](const char *material, int i) {
        return QByteArray(material) + ',' + QByteArray::number(i % 3) + ",x," +
               QByteArray::number(i % 2) + ',' + QByteArray::number(i) + ",M" +
               QByteArray::number(i) + '\n';
    };
    const auto rowOf = [](int i) { // from 1
        return (i * 4801) % Lines + 1;
    };
    std::vector<int> lineAt(size_t(Lines) + 1);
    for (int i = 0; i < Lines; ++i)
        lineAt[size_t(rowOf(i))] = i;
    for (int i = 0; i < Lines; ++i) {
        source += line("St", i);
        target += line("Steel", lineAt[size_t(i) + 1]);
    }
    const TestCatalog catalog;
    catalog.write("old/a.prj", source);
    catalog.write("new/a.prj", target);
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    for (int i = 0; i < Lines; i += 500)
        QCOMPARE(fixture.proposal(i + 1), QStringLiteral("0:%1").arg(rowOf(i)));
}

void tst_PrjMapperCandidates::probabilitiesAddUp()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "a:n,b:n\n1,2\n1,3\n5,6\n");
    catalog.write("new/a.prj", "a:n,b:n\n1,4\n1,5\n5,7\n1,8\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    fixture.start();
    for (int line = 1; line <= 3; ++line) {
        const LineCandidatesC found = fixture.mapper.candidates(line, fixture.varset(line));
        double sum = found.noSuccessor;
        for (const LineCandidateC &candidate : found.candidates) {
            QVERIFY(candidate.probability >= LineCandidatesC::LeastProbability);
            sum += candidate.probability;
        }
        QVERIFY2(sum > 0.9 && sum < 1.001, qPrintable(QString::number(sum)));
    }
}

QTEST_GUILESS_MAIN(tst_PrjMapperCandidates)
#include "tst_PrjMapperCandidates.moc"
