#include "../support/TestCatalog.h"

#include <mapping/table/LineDecisions.h>

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/mapper/PrjMapperLineC.h>

#include <QTest>

Q_DECLARE_METATYPE(PrjMapperLineC)

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

namespace {

/// What a mapper says of line 1 by a mapping that holds it.
PrjMapperLineC lineIn(const PrjMappingC &mapping)
{
    PrjMapperLineC line;
    line.addMapping(mapping.findLine(1, QHash<QString, MapVarValueC>()), mapping);
    return line;
}

} // namespace

class tst_LineDecisions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void confirm_data();
    void confirm();
    void confirmAcceptsTheConflict();
    void remove();
    void removeWithNotFoundTarget();
    void removeLooksForTheConflictAfterwards();
    void nothing_data();
    void nothing();
    void theHistorysMappingIsChanged();
    void theHistorysLastPairIsChanged();
    void changeText();
    void sameText();

private:
    void conflict(int line);

    PrjMappingC m_mapping;
};

void tst_LineDecisions::init()
{
    m_mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    enter(m_mapping, 0, 1, 3, ToCheck, "{L=1} -> 3");
    enter(m_mapping, 0, 2, 4, Mapped);
}

void tst_LineDecisions::conflict(int line)
{
    PrjMappingTargetC target = m_mapping.findTarget(0);
    target.setLineConflicted(line, true);
    m_mapping.updateTarget(0, target);
}

void tst_LineDecisions::confirm_data()
{
    QTest::addColumn<int>("chosen");
    QTest::addColumn<QString>("entries");
    QTest::addColumn<QString>("text");

    QTest::newRow("no choice: the assigned line stays") << 0 << "0:1>3/2 0:2>4/1"
                                                        << "{L=1} -> 3";
    QTest::newRow("the assigned line: the text stays") << 3 << "0:1>3/2 0:2>4/1"
                                                       << "{L=1} -> 3";
    QTest::newRow("another line: the text goes") << 7 << "0:1>7/2 0:2>4/1"
                                                 << "";
    QTest::newRow("no line: expired") << -1 << "0:1>-1/2 0:2>4/1"
                                      << "";
}

void tst_LineDecisions::confirm()
{
    QFETCH(int, chosen);
    const auto decision = LineDecisions::confirm(
        lineIn(m_mapping), chosen == 0 ? std::nullopt : std::optional(chosen));
    QVERIFY(decision);
    QTEST(entriesOf(decision->mapping), "entries");
    QTEST(decision->mapping.findTarget(0).getMappedLine(1).getExtended(), "text");
    QVERIFY(!decision->acceptedLine);
    QVERIFY(decision->mapping.getMappingState().testFlag(PRJMAPPING::StateVerified));
}

void tst_LineDecisions::confirmAcceptsTheConflict()
{
    conflict(2);
    QVERIFY(!LineDecisions::confirm(lineIn(m_mapping), {})->acceptedLine);
    conflict(1);
    const auto decision = LineDecisions::confirm(lineIn(m_mapping), {});
    QCOMPARE(decision->acceptedLine, std::optional(1));
    QVERIFY(!decision->mapping.findTarget(0).getLineConflicted(1));
}

void tst_LineDecisions::remove()
{
    const auto decision = LineDecisions::remove(lineIn(m_mapping), 1);
    QVERIFY(decision);
    QCOMPARE(entriesOf(decision->mapping), QString("0:2>4/1 -:1>-1/1"));
    QCOMPARE(decision->mapping.countTargets(), 3);
    QCOMPARE(decision->mapping.getNotFoundTarget(), 2);
    QVERIFY(decision->mapping.getMappingState().testFlag(PRJMAPPING::StateUnmapped));
}

void tst_LineDecisions::removeWithNotFoundTarget()
{
    m_mapping.addTarget("", "");
    enter(m_mapping, 2, 9, -1, Verified);
    const auto decision = LineDecisions::remove(lineIn(m_mapping), 1);
    QCOMPARE(entriesOf(decision->mapping), QString("0:2>4/1 -:1>-1/1 -:9>-1/2"));
    QCOMPARE(decision->mapping.countTargets(), 3);
}

void tst_LineDecisions::removeLooksForTheConflictAfterwards()
{
    conflict(1); // goes with the entry
    QVERIFY(!LineDecisions::remove(lineIn(m_mapping), 1)->acceptedLine);
    // A line that is asked for by another number keeps its entry, and with it the conflict.
    QCOMPARE(LineDecisions::remove(lineIn(m_mapping), 2)->acceptedLine, std::optional(2));
}

void tst_LineDecisions::nothing_data()
{
    QTest::addColumn<PrjMapperLineC>("line");
    QTest::addColumn<bool>("canConfirm");

    QTest::newRow("no line") << PrjMapperLineC() << false;
    QTest::newRow("no target holds it") << lineIn(mappingOf("old/a.prj", {"new/a.prj"})) << false;
    PrjMappingC expired = mappingOf("old/a.prj", {""});
    enter(expired, 0, 1, -1, ToCheck);
    QTest::newRow("not found: can only be confirmed") << lineIn(expired) << true;
}

void tst_LineDecisions::nothing()
{
    QFETCH(PrjMapperLineC, line);
    QVERIFY(!LineDecisions::remove(line, 1));
    QTEST(LineDecisions::confirm(line, {}).has_value(), "canConfirm");
    QVERIFY(!LineDecisions::remove(lineIn(m_mapping), VKTab::LineId()));
}

void tst_LineDecisions::theHistorysMappingIsChanged()
{
    PrjMapperLineC line = lineIn(m_mapping);
    PrjMappingC newer = mappingOf("old/a.prj", {"new/c.prj"});
    enter(newer, 0, 1, 5, ToCheck);
    enter(newer, 0, 8, 6, Mapped);
    line.addMapping(newer.findLine(1, QHash<QString, MapVarValueC>()), newer);
    QCOMPARE(entriesOf(LineDecisions::confirm(line, {})->mapping), QString("0:1>5/2 0:8>6/1"));
    QCOMPARE(entriesOf(LineDecisions::remove(line, 1)->mapping), QString("0:8>6/1 -:1>-1/1"));
}

/// Of a line that went on by a second mapping that one is decided on.
void tst_LineDecisions::theHistorysLastPairIsChanged()
{
    PrjMappingC next = mappingOf("new/a.prj", {"newer/a.prj", "newer/b.prj"});
    enter(next, 1, 1, 5, ToCheck);
    PrjMapperLineC line = lineIn(m_mapping);
    line.addMapping(next.findLine(1, QHash<QString, MapVarValueC>()), next);
    const auto confirmed = LineDecisions::confirm(line, std::nullopt);
    QVERIFY(confirmed);
    QCOMPARE(entriesOf(confirmed->mapping), "1:1>5/2");
    const auto removed = LineDecisions::remove(line, VKTab::LineId(1));
    QVERIFY(removed);
    QCOMPARE(entriesOf(removed->mapping), "-:1>-1/1");
}

void tst_LineDecisions::changeText()
{
    const auto changed = LineDecisions::changeText(m_mapping, lineIn(m_mapping), "typed as it is");
    QVERIFY(changed);
    QCOMPARE(entriesOf(*changed), QString("0:1>3/0 0:2>4/1"));
    QCOMPARE(changed->findTarget(0).getMappedLine(1).getExtended(), QString("typed as it is"));
}

void tst_LineDecisions::sameText()
{
    QVERIFY(!LineDecisions::changeText(m_mapping, lineIn(m_mapping), "{L=1} -> 3"));
    QVERIFY(!LineDecisions::changeText(m_mapping, PrjMapperLineC(), "x"));
}

QTEST_GUILESS_MAIN(tst_LineDecisions)
#include "tst_LineDecisions.moc"
