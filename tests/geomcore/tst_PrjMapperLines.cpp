#include "MapperFixture.h"

#include <QTest>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

namespace {

const QByteArray table = "D,k:n\nM8,5\nM9,6\nM10,7\n";

/// Source "old/a.prj" and targets "new/a.prj", "new/b/a.prj" with the same lines.
struct Lines
{
    Lines()
    {
        catalog.write("old/a.prj", table);
        catalog.write("new/a.prj", table);
        catalog.write("new/b/a.prj", table);
    }
    TestCatalog catalog;
};

QString result(MapperFixture &fixture)
{
    return entriesOf(fixture.mapper.getMappingNode().getMapping());
}

} // namespace

class tst_PrjMapperLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findMapping_data();
    void findMapping();
    void findMappingTakesTheLastRelease();
    void findMappingGivesFlags();
    void findMappingOfEmptyTable();
    void findMappingForgetsTheFormerOne();
    void findLineWithoutEntry();
    void findLineOfRealTarget();
    void findLineOfNotFoundTarget();
    void findLineOfSeveralTargets();
    void addLineEntersAFreshEntry();
    void addLineKeepsTextAndConflict();
    void addLineOfOtherTargetLineIsFresh();
    void addLineMovesBetweenTargets();
    void addLineTakesOutOfNotFoundTarget();
    void addLineKeepsConfirmedEntryElsewhere();
    void addLineOfConfirmedMovesConfirmed();
    void addLineRefuses();
    void lastCombinationOverwrites();
    void notFoundLinesAreEnteredLast();
    void notFoundTargetKeepsItsPlace();
    void noNotFoundTargetWithoutNeed();
    void confirmedLinesAreNotEnteredAgain();
    void mappingNodeHasFreshFlags();
    void mappingNodeIsAssignable();
    void mappingNodeKeepsLeaf();
    void historyIsFromTheLookUp();
    void historyOfAddedLine();
    void handMadeLine();
    void handMadeLineInNotFoundTarget();
    void stateOfHandMadeLine();
    void historyGrowsFromALookedUpLine();
    void lineIdIsKept();
    void callersMappingIsUntouched();
};

void tst_PrjMapperLines::findMapping_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("version");
    QTest::addColumn<int>("expected");
    QTest::newRow("known") << "old/a.prj"
                           << "v1" << 0x003;
    QTest::newRow("other path") << "old/b.prj"
                                << "v1" << 0;
    QTest::newRow("other version") << "old/a.prj"
                                   << "v2" << 0;
}

void tst_PrjMapperLines::findMapping()
{
    QFETCH(QString, path);
    QFETCH(QString, version);
    PrjMapperC mapper(PRefPtr<IndexTreeC>(new IndexTreeC));
    const PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    QTEST(int(mapper.findMapping(path, version, catalogOf(mapping))), "expected");
}

void tst_PrjMapperLines::findMappingTakesTheLastRelease()
{
    PrjMapperC mapper(PRefPtr<IndexTreeC>(new IndexTreeC));
    CatalogMappingC catalog;
    QCOMPARE(int(mapper.findMapping("old/a.prj", "v1", catalog)), 0);
    catalog = catalogOf(mappingOf("old/a.prj", {"new/a.prj"}));
    catalog.addRelease(ReleaseMappingC());
    QCOMPARE(int(mapper.findMapping("old/a.prj", "v1", catalog)), 0);
    catalog.addMapping(mappingOf("old/a.prj", {"new/b.prj", "new/c.prj"}));
    QVERIFY(mapper.findMapping("old/a.prj", "v1", catalog) & PRJMAPPING::StateUsable);
    QCOMPARE(mapper.getMappingNode().getMapping().countTargets(), 2);
}

void tst_PrjMapperLines::findMappingGivesFlags()
{
    PrjMapperC mapper(PRefPtr<IndexTreeC>(new IndexTreeC));
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    enter(mapping, 0, 1, 1, Verified);
    enter(mapping, 0, 2, 1, ToCheck);
    QCOMPARE(int(mapper.findMapping("old/a.prj", "v1", catalogOf(mapping))), 0x281);
}

void tst_PrjMapperLines::findMappingOfEmptyTable()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\n");
    MapperFixture fixture(catalog, {"new/a.prj"});
    QVERIFY(fixture.start() & PRJMAPPING::StateUsable);
}

void tst_PrjMapperLines::findMappingForgetsTheFormerOne()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj"});
    fixture.start();
    QVERIFY(fixture.mapper.addLine(fixture.create(1)));
    (void)fixture.mapper.createLine(99, MapperFixture::Varset(), false);
    fixture.start();
    QCOMPARE(result(fixture), "");
    fixture.mapper.findMapping("old/x.prj", "v1", catalogOf(fixture.mapping));
    QVERIFY(!fixture.mapper.getMappingNode().getMapping().isValid());
}

void tst_PrjMapperLines::findLineWithoutEntry()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj"});
    fixture.start();
    const PrjMapperLineC line = fixture.mapper.findLine(1, fixture.varset(1));
    QVERIFY(!line.isValid());
    QVERIFY(!line.isFound());
    QVERIFY(line.getHistory().isEmpty());
}

void tst_PrjMapperLines::findLineOfRealTarget()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj", "new/b/a.prj"});
    enter(fixture.mapping, 1, 2, 3, Verified, "text");
    fixture.start();
    const PrjMapperLineC line = fixture.mapper.findLine(2, fixture.varset(2));
    QVERIFY(line.isValid());
    QVERIFY(line.isFound());
    QCOMPARE(line.getCheckState(), Verified);
    QCOMPARE(line.getSourceLineId(), 2);
    QCOMPARE(line.getTargetIndex(), 1);
    QCOMPARE(line.getTargetLineId(), 3);
    QCOMPARE(line.getTargetPath(), "new/b/a.prj");
    QCOMPARE(line.getTarget().getMappedLine(2).getExtended(), "text");
    const auto history = line.getHistory();
    QCOMPARE(history.size(), 1);
    QVERIFY(history.last().first.isValid());
    QVERIFY(history.last().first.isFound());
    QCOMPARE(history.last().first.getTargetIndex(), 1);
    QCOMPARE(history.last().first.getCheckState(), Verified);
    QCOMPARE(entriesOf(history.last().second), "1:2>3/2");
}

void tst_PrjMapperLines::findLineOfNotFoundTarget()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj", ""});
    enter(fixture.mapping, 1, 2, -1, Mapped);
    fixture.start();
    const PrjMapperLineC line = fixture.mapper.findLine(2, fixture.varset(2));
    QVERIFY(line.isValid());
    QVERIFY(!line.isFound());
    QCOMPARE(line.getCheckState(), Mapped);
    QCOMPARE(line.getTargetIndex(), 1);
    QCOMPARE(line.getTargetLineId(), -1);
    QCOMPARE(line.getTargetPath(), "");
    QVERIFY(line.getTarget().isValid());
    QCOMPARE(line.getHistory().size(), 1);
    QVERIFY(!line.getHistory().last().first.isFound());
    QCOMPARE(entriesOf(line.getHistory().last().second), "-:2>-1/1");
}

void tst_PrjMapperLines::findLineOfSeveralTargets()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"", "new/a.prj", "new/b/a.prj"});
    enter(fixture.mapping, 0, 2, -1, ToCheck);
    enter(fixture.mapping, 1, 2, 1, ToCheck);
    enter(fixture.mapping, 2, 2, 3, ToCheck);
    addCondition(fixture.mapping, 1, "k .LT. 6");
    fixture.start();
    QCOMPARE(fixture.mapper.findLine(2, fixture.varset(2)).getTargetIndex(), 2);
    QCOMPARE(fixture.mapper.findLine(2, fixture.varset(1)).getTargetIndex(), 1);
}

void tst_PrjMapperLines::addLineEntersAFreshEntry()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj"});
    fixture.start();
    PrjMapperLineC line = fixture.create(2);
    line.setCheckState(Mapped);
    QVERIFY(fixture.mapper.addLine(line));
    const PrjMapperLineC found = fixture.mapper.findLine(2, fixture.varset(2));
    QVERIFY(found.isFound());
    QCOMPARE(found.getCheckState(), Mapped);
    QCOMPARE(result(fixture), "0:2>2/1");
}

void tst_PrjMapperLines::addLineKeepsTextAndConflict()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj"});
    enter(fixture.mapping, 0, 2, 3, ToCheck, "text");
    PrjMappingTargetC target = fixture.mapping.findTarget(0);
    target.setLineConflicted(2, true);
    fixture.mapping.updateTarget(0, target);
    fixture.start();
    PrjMapperLineC line = fixture.mapper.findLine(2, fixture.varset(2));
    line.setCheckState(Mapped);
    QVERIFY(fixture.mapper.addLine(line));
    const PrjMappingTargetC after = fixture.mapper.getMappingNode().getMapping().findTarget(0);
    QCOMPARE(after.getMappedLine(2).getState(), Mapped);
    QCOMPARE(after.getMappedLine(2).getTargetLineId(), 3);
    QCOMPARE(after.getMappedLine(2).getExtended(), "text");
    QVERIFY(after.getMappedLine(2).getConflict());
}

void tst_PrjMapperLines::addLineOfOtherTargetLineIsFresh()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj"});
    enter(fixture.mapping, 0, 2, 3, Verified, "text");
    PrjMappingTargetC target = fixture.mapping.findTarget(0);
    target.setLineConflicted(2, true);
    fixture.mapping.updateTarget(0, target);
    fixture.start();
    QVERIFY(fixture.mapper.addLine(fixture.create(2)));
    const PrjMappingTargetC after = fixture.mapper.getMappingNode().getMapping().findTarget(0);
    QCOMPARE(after.getMappedLine(2), PrjMappingTargetLineC(2, ToCheck, QString()));
}

void tst_PrjMapperLines::addLineMovesBetweenTargets()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/b/a.prj", "new/a.prj"});
    enter(fixture.mapping, 0, 2, 3, ToCheck);
    enter(fixture.mapping, 0, 3, 3, ToCheck);
    fixture.start();
    PrjMappingLineC line;
    line.setValid(true);
    line.setSourceLineId(2);
    line.setTargetIndex(1);
    line.setTargetLineId(1);
    PrjMapperLineC moved;
    moved.addMapping(line, fixture.mapping);
    QVERIFY(fixture.mapper.addLine(moved));
    QCOMPARE(result(fixture), "0:3>3/0 1:2>1/0");
}

void tst_PrjMapperLines::addLineTakesOutOfNotFoundTarget()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj", ""});
    enter(fixture.mapping, 1, 2, -1, Mapped);
    enter(fixture.mapping, 1, 3, -1, Mapped);
    fixture.start();
    PrjMappingLineC line;
    line.setValid(true);
    line.setSourceLineId(2);
    line.setTargetIndex(0);
    line.setTargetLineId(1);
    PrjMapperLineC moved;
    moved.addMapping(line, fixture.mapping);
    QVERIFY(fixture.mapper.addLine(moved));
    QCOMPARE(result(fixture), "0:2>1/0 -:3>-1/1");
}

void tst_PrjMapperLines::addLineKeepsConfirmedEntryElsewhere()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj", "new/b/a.prj"});
    enter(fixture.mapping, 1, 2, 3, Verified, "text");
    fixture.start();
    QVERIFY(fixture.mapper.addLine(fixture.create(2)));
    QCOMPARE(result(fixture), "0:2>2/0 1:2>3/2");
}

void tst_PrjMapperLines::addLineOfConfirmedMovesConfirmed()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj", ""});
    enter(fixture.mapping, 1, 2, -1, Verified);
    fixture.start();
    PrjMapperLineC line = fixture.create(2);
    line.setCheckState(Verified);
    QVERIFY(fixture.mapper.addLine(line));
    QCOMPARE(result(fixture), "0:2>2/2");
}

void tst_PrjMapperLines::addLineRefuses()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj", ""});
    enter(fixture.mapping, 1, 2, -1, Mapped);
    fixture.start();
    QVERIFY2(!fixture.mapper.addLine(PrjMapperLineC()), "not valid");
    QVERIFY2(!fixture.mapper.addLine(fixture.mapper.findLine(2, fixture.varset(2))), "not found");
    PrjMappingLineC line;
    line.setValid(true);
    line.setSourceLineId(1);
    line.setTargetIndex(7);
    line.setTargetLineId(1);
    PrjMapperLineC unknown;
    unknown.addMapping(line, fixture.mapping);
    QVERIFY2(!fixture.mapper.addLine(unknown), "unknown target");
    QCOMPARE(result(fixture), "-:2>-1/1");
}

void tst_PrjMapperLines::lastCombinationOverwrites()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,L:r\nM8,10;20\n");
    catalog.write("new/a.prj", "D,L:n\nM8,10\n");
    catalog.write("new/b/a.prj", "D,L:n\nM8,20\n");
    MapperFixture fixture(catalog, {"new/a.prj", "new/b/a.prj"});
    addCondition(fixture.mapping, 0, "L .LT. 15");
    addCondition(fixture.mapping, 1, "L .GT. 15");
    fixture.start();
    MapperFixture::Varset values = fixture.varset(1);
    for (const char *length : {"10", "20"}) {
        values["L"].setValue(VKTab::Value(length));
        QVERIFY(fixture.mapper.addLine(fixture.mapper.createLine(1, values, false)));
    }
    QCOMPARE(result(fixture), "1:1>1/0");
}

void tst_PrjMapperLines::notFoundLinesAreEnteredLast()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj"});
    fixture.start();
    for (int line : {9, 7, 8})
        QVERIFY(!fixture.mapper.createLine(line, MapperFixture::Varset(), false).isFound());
    QVERIFY(!fixture.mapper.findLine(9, MapperFixture::Varset()).isValid());
    const PrjMappingC mapping = fixture.mapper.getMappingNode().getMapping();
    QCOMPARE(entriesOf(mapping), "-:7>-1/0 -:8>-1/0 -:9>-1/0");
    QCOMPARE(mapping.getNotFoundTarget(), 1);
    QVERIFY(mapping.findTarget(1).isValid());
    QVERIFY2(fixture.mapper.findLine(9, MapperFixture::Varset()).isValid(), "known from now on");
}

void tst_PrjMapperLines::notFoundTargetKeepsItsPlace()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"", "new/a.prj"});
    enter(fixture.mapping, 0, 5, -1, Verified);
    fixture.start();
    (void)fixture.mapper.createLine(9, MapperFixture::Varset(), false);
    QVERIFY(fixture.mapper.addLine(fixture.create(1)));
    const PrjMappingC mapping = fixture.mapper.getMappingNode().getMapping();
    QCOMPARE(entriesOf(mapping), "-:5>-1/2 -:9>-1/0 1:1>1/0");
    QCOMPARE(mapping.getNotFoundTarget(), 0);
}

void tst_PrjMapperLines::noNotFoundTargetWithoutNeed()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj"});
    fixture.start();
    QVERIFY(fixture.mapper.addLine(fixture.create(1)));
    QCOMPARE(fixture.mapper.getMappingNode().getMapping().getNotFoundTarget(), -1);
}

void tst_PrjMapperLines::confirmedLinesAreNotEnteredAgain()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj"});
    enter(fixture.mapping, 0, 9, 1, Verified);
    fixture.start();
    QVERIFY(!fixture.mapper.createLine(9, MapperFixture::Varset(), false).isFound());
    QCOMPARE(result(fixture), "0:9>1/2");
}

void tst_PrjMapperLines::mappingNodeHasFreshFlags()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj"});
    fixture.mapping.setMappingState(PRJMAPPING::StateUsable);
    fixture.start();
    QVERIFY(fixture.mapper.addLine(fixture.create(1)));
    const PrjMappingC mapping = fixture.mapper.getMappingNode().getMapping();
    QCOMPARE(int(mapping.getMappingState()), 0x081);
}

void tst_PrjMapperLines::mappingNodeIsAssignable()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/b/a.prj"});
    fixture.start();
    QCOMPARE(fixture.create(1).getTargetPath(), "new/b/a.prj");
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    enter(mapping, 0, 3, 3, Verified);
    MappingNodeC node;
    node.setMapping(mapping);
    node.isLeaf(true);
    fixture.mapper.mappingNode() = node;
    QCOMPARE(fixture.mapper.findLine(3, fixture.varset(3)).getTargetPath(), "new/a.prj");
    QCOMPARE(fixture.create(1).getTargetPath(), "new/a.prj");
    QCOMPARE(result(fixture), "0:3>3/2 -:1>-1/0");
}

void tst_PrjMapperLines::mappingNodeKeepsLeaf()
{
    PrjMapperC mapper(PRefPtr<IndexTreeC>(new IndexTreeC));
    QVERIFY(!mapper.getMappingNode().getIsLeaf());
    MappingNodeC node;
    node.isLeaf(true);
    mapper.mappingNode() = node;
    QVERIFY(mapper.getMappingNode().getIsLeaf());
}

void tst_PrjMapperLines::historyIsFromTheLookUp()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj"});
    fixture.start();
    const PrjMapperLineC before = fixture.create(1);
    const PrjMapperLineC other = fixture.create(2);
    QVERIFY(fixture.mapper.addLine(other));
    QCOMPARE(entriesOf(before.getHistory().last().second), "");
    QCOMPARE(entriesOf(fixture.create(3).getHistory().last().second), "0:2>2/0");
    QVERIFY2(fixture.check(before).isOK(), "still checked against the same targets");
}

void tst_PrjMapperLines::historyOfAddedLine()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj"});
    fixture.start();
    const PrjMapperLineC line = fixture.create(1);
    QVERIFY(fixture.mapper.addLine(line));
    QCOMPARE(entriesOf(line.getHistory().last().second), "0:1>1/0");
}

void tst_PrjMapperLines::handMadeLine()
{
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    enter(mapping, 0, 5, 7, Mapped, "text");
    PrjMappingLineC made;
    made.setTargetIndex(0);
    made.setSourceLineId(5);
    made.setTargetLineId(7);
    made.setValid(true);
    PrjMapperLineC line;
    QVERIFY(!line.isValid());
    line.addMapping(made, mapping);
    QVERIFY(line.isValid());
    QVERIFY(line.isFound());
    QCOMPARE(line.getSourceLineId(), 5);
    QCOMPARE(line.getTargetLineId(), 7);
    QCOMPARE(line.getTargetIndex(), 0);
    QCOMPARE(line.getTargetPath(), "new/a.prj");
    QCOMPARE(line.getTarget().getMappedLine(5).getExtended(), "text");
    QCOMPARE(line.getHistory().size(), 1);
}

void tst_PrjMapperLines::handMadeLineInNotFoundTarget()
{
    const PrjMappingC mapping = mappingOf("old/a.prj", {""});
    PrjMappingLineC made;
    made.setTargetIndex(0);
    made.setTargetLineId(7);
    made.setValid(true);
    PrjMapperLineC line;
    line.addMapping(made, mapping);
    QVERIFY(line.isValid());
    QVERIFY(!line.isFound());
    made.setTargetIndex(3);
    line.addMapping(made, mapping);
    QVERIFY(!line.isFound());
    QVERIFY(!line.getTarget().isValid());
}

void tst_PrjMapperLines::stateOfHandMadeLine()
{
    PrjMappingLineC made;
    made.setCheckState(Verified);
    PrjMapperLineC line;
    line.addMapping(made, mappingOf("old/a.prj", {}));
    QCOMPARE(line.getCheckState(), Verified);
    line.setCheckState(Mapped);
    QCOMPARE(line.getCheckState(), Mapped);
    QCOMPARE(line.getHistory().last().first.getCheckState(), Mapped);
}

void tst_PrjMapperLines::historyGrowsFromALookedUpLine()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj"});
    fixture.start();
    PrjMapperLineC line = fixture.create(1);
    PrjMappingLineC made;
    made.setValid(true);
    made.setTargetIndex(0);
    made.setTargetLineId(3);
    line.addMapping(made, mappingOf("older/a.prj", {"old/x.prj"}));
    QCOMPARE(line.getHistory().size(), 2);
    QCOMPARE(line.getHistory().first().first.getTargetLineId(), 1);
    QCOMPARE(line.getTargetPath(), "old/x.prj");
}

void tst_PrjMapperLines::lineIdIsKept()
{
    PrjMapperLineC line;
    QVERIFY(!line.getLineId().isValid());
    line.setLineId(VKTab::LineId(4, 2));
    const PrjMapperLineC copy = line;
    QCOMPARE(copy.getLineId(), VKTab::LineId(4, 2));
}

void tst_PrjMapperLines::callersMappingIsUntouched()
{
    const Lines lines;
    MapperFixture fixture(lines.catalog, {"new/a.prj"});
    enter(fixture.mapping, 0, 1, 2, ToCheck);
    fixture.start();
    QVERIFY(fixture.mapper.addLine(fixture.create(1)));
    QCOMPARE(entriesOf(fixture.mapping), "0:1>2/0");
    QCOMPARE(result(fixture), "0:1>1/0");
}

QTEST_GUILESS_MAIN(tst_PrjMapperLines)
#include "tst_PrjMapperLines.moc"
