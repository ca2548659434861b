#include "MapperFixture.h"

#include <QTest>

using PRJMAPPING::Mapped;

class tst_PrjMapperCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messages_data();
    void messages();
    void messagesOfOtherTargets();
    void confirmedLineMakesTheProjectTrusted();
    void confirmedExpiryDoesNot();
    void handMadeLineIsNotAskedForItsProject();
    void textStandsBeforeEachMessage();
    void detailsStandOnRowsOfTheirOwn();
    void modes_data();
    void modes();
    void designations();
    void notValidOrNotFound();
    void targetLineIsGone();
    void unreadableTarget();
    void secondIdDoesNotMatter();
    void varsetOfFailure();
    void combinations();
    void combinationsAreSearchedByConditionsOnly();
    void unknownSourceLine();
    void assignmentSurvivesButFailsItsCondition();
    void updateVarsetModes();
    void updateVarsetWithoutTarget();
    void sourceVarsetNeedNotBeTheLines();
    void conditionsDoNotTellValuesApart_data();
    void conditionsDoNotTellValuesApart();
};

namespace {

struct Assignment
{
    Assignment(const TestCatalog &catalog, const QStringList &targets)
        : fixture(catalog, targets)
    {
    }
    /// A stored assignment of source line 1, looked up.
    PrjMapperLineC line(int target, int targetLine)
    {
        enter(fixture.mapping, target, 1, targetLine, PRJMAPPING::ToCheck);
        fixture.start();
        return fixture.mapper.findLine(1, fixture.varset(1));
    }
    MapperFixture fixture;
};

} // namespace

void tst_PrjMapperCheck::messages_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("equal") << QByteArray("D,k:n\nM8,5\n") << QByteArray("D,k:n\nM8,5\n")
                           << QStringList();
    QTest::newRow("one message for each difference")
        << QByteArray("D,k:n,l:n\nM8,5,1\n") << QByteArray("D,k:n,l:n\nM8,5.5,2\n")
        << QStringList{"Die Werte der Variable k sind verschieden.\n  Alter Wert: 5\n  Neuer Wert: "
                       "5.5",
                       "Die Werte der Variable l sind verschieden.\n  Alter Wert: 1\n  Neuer Wert: "
                       "2"};
    QTest::newRow("no value")
        << QByteArray("D,k:n,l:n\nM8,,1\n") << QByteArray("D,k:n,l:n\nM8,5,\n")
        << QStringList{"Die Werte der Variable k sind verschieden.\n  Alter Wert: kein Wert\n  "
                       "Neuer Wert: 5",
                       "Die Werte der Variable l sind verschieden.\n  Alter Wert: 1\n  Neuer Wert: "
                       "kein Wert"};
    QTest::newRow("range")
        << QByteArray("D,L:n\nM8,13\n") << QByteArray("D,L:r\nM8,10;12\n")
        << QStringList{"Die Werte der Variable L sind verschieden.\n  Alter Wert: 13\n  Neuer "
                       "Wert: 10;12"};
    QTest::newRow("further equal lines of the target")
        << QByteArray("D,k:n\nM8,5\n") << QByteArray("D,k:n\nM8,5\nM8,5\nM9,1\nM8,5\n")
        << QStringList{"Weitere Zeilen der Zieltabelle haben diese Werte.\n  Zeile 2\n  Zeile 4"};
    QTest::newRow("further equal lines of the source")
        << QByteArray("D,k:n\nM8,5\nM8,5\nM9,1\nM8,5\n") << QByteArray("D,k:n\nM8,5\nM9,1\n")
        << QStringList{"Weitere Zeilen der Quelltabelle haben diese Werte.\n  Zeile 2\n  Zeile 4"};
    QTest::newRow("no common variable")
        << QByteArray("D,k:n\nM8,5\n") << QByteArray("E,l:n\nM8,5\n")
        << QStringList{"Quelle und Ziel haben keine gemeinsame Variable mit einem Wert."};
    QTest::newRow("no value in common variables")
        << QByteArray("D,k:n\n,5\n") << QByteArray("D,l:n\n,5\n")
        << QStringList{"Quelle und Ziel haben keine gemeinsame Variable mit einem Wert."};
    QTest::newRow("too few values compared")
        << QByteArray("D,z:n,y:n,k:n\nM8,1,2,3\n") << QByteArray("D\nM8\n")
        << QStringList{"Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.\n  "
                       "Ohne Entsprechung: k, y, z"};
    QTest::newRow("reworked table")
        << QByteArray("D,k:n\nM8,5\nM9,6\nM10,7\n") << QByteArray("D,k:n\nM8,5\nM9,66\nM10,77\n")
        << QStringList{"Die meisten Zeilen haben im Zielprojekt andere Werte.\n  Zielprojekt: "
                       "new/a.prj"};
}

void tst_PrjMapperCheck::messages()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    QFETCH(QStringList, expected);
    const TestCatalog catalog;
    catalog.write("old/a.prj", source);
    catalog.write("new/a.prj", target);
    Assignment assignment(catalog, {"new/a.prj"});
    const PrjMapperLineC line = assignment.line(0, 1);
    const PrjMapperCheckResultC result = assignment.fixture.check(line);
    QCOMPARE(result.getErrMsgList(), expected);
    QCOMPARE(result.isOK(), expected.isEmpty());
    const auto byId = assignment.fixture.mapper.checkMapping(line, VKTab::LineId(1));
    QCOMPARE(byId.getErrMsgList(), expected);
}

void tst_PrjMapperCheck::messagesOfOtherTargets()
{
    const QByteArray table = "D,k:n\nM9,6\nM8,5\n";
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\n");
    for (const char *path : {"new/b.prj", "new/c.prj", "new/d.prj"})
        catalog.write(path, table);
    Assignment assignment(catalog, {"new/b.prj", "new/c.prj", "new/d.prj"});
    addCondition(assignment.fixture.mapping, 1, "k .GT. 5");
    const PrjMapperLineC line = assignment.line(0, 2);
    QCOMPARE(assignment.fixture.check(line).getErrMsgList(),
             (QStringList{"Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.\n  "
                          "Projekt: new/d.prj\n  Zeile: 2",
                          "Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung "
                          "dorthin ist bestätigt.\n  Quellprojekt: old/a.prj\n  Zielprojekt: "
                          "new/b.prj"}));
}

void tst_PrjMapperCheck::confirmedLineMakesTheProjectTrusted()
{
    const QByteArray table = "D,k:n\nM8,5\nM9,6\n";
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/b.prj", table);
    Assignment assignment(catalog, {"new/b.prj"});
    enter(assignment.fixture.mapping, 0, 2, 2, PRJMAPPING::Verified);
    QVERIFY(assignment.fixture.check(assignment.line(0, 1)).isOK());
}

void tst_PrjMapperCheck::confirmedExpiryDoesNot()
{
    const QByteArray table = "D,k:n\nM8,5\nM9,6\n";
    const TestCatalog catalog;
    catalog.write("old/a.prj", table);
    catalog.write("new/b.prj", table);
    Assignment assignment(catalog, {"new/b.prj"});
    enter(assignment.fixture.mapping, 0, 2, -1, PRJMAPPING::Verified);
    QVERIFY(!assignment.fixture.check(assignment.line(0, 1)).isOK());
}

void tst_PrjMapperCheck::handMadeLineIsNotAskedForItsProject()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\nM10,7\n");
    catalog.write("new/b.prj", "D,k:n\nM8,5\nM9,66\nM10,77\n");
    const VKTab::Content source = catalog.read("old/a.prj");
    PrjMapperC mapper(catalog.tree());
    mapper.setCreatorMode(true);
    mapper.setSourceTable(source);
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/b.prj"});
    enter(mapping, 0, 1, 1, Mapped);
    MappingNodeC node;
    node.setMapping(mapping);
    node.isLeaf(true);
    mapper.mappingNode() = node;
    PrjMappingLineC made;
    made.setTargetIndex(0);
    made.setSourceLineId(1);
    made.setTargetLineId(1);
    made.setValid(true);
    PrjMapperLineC line;
    line.addMapping(made, mapping);
    line.setLineId(VKTab::LineId(1));
    QVERIFY(mapper.checkMapping(line, VKTab::LineId(1)).isOK());

    PrjMappingLineC other = made;
    other.setSourceLineId(2);
    PrjMapperLineC wrong;
    wrong.addMapping(other, mapping);
    QCOMPARE(mapper.checkMapping(wrong, VKTab::LineId(2)).getErrMsgList().size(), 2);
}

void tst_PrjMapperCheck::textStandsBeforeEachMessage()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM9,6\n");
    Assignment assignment(catalog, {"new/a.prj"});
    const PrjMapperLineC line = assignment.line(0, 1);
    MapperFixture &fixture = assignment.fixture;
    const MapperFixture::Varset values = fixture.varset(1);
    const PrjMapperCheckResultC result =
        fixture.mapper.checkMapping(line, values, values, CheckValues, "Zeile 1: ");
    QCOMPARE(result.getErrMsgList().size(), 2);
    for (const QString &message : result.getErrMsgList())
        QVERIFY(message.startsWith("Zeile 1: Die Werte der Variable "));
}

void tst_PrjMapperCheck::detailsStandOnRowsOfTheirOwn()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM8,6\n");
    Assignment assignment(catalog, {"new/a.prj"});
    const QStringList messages = assignment.fixture.check(assignment.line(0, 1)).getErrMsgList();
    QCOMPARE(messages.size(), 1);
    const QStringList rows = messages.first().split(u'\n');
    QCOMPARE(rows.size(), 3);
    QVERIFY(!rows[0].startsWith(u' '));
    QVERIFY(rows[1].startsWith(u' ') && rows[2].startsWith(u' '));
}

void tst_PrjMapperCheck::modes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("expected");
    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("values") << 1 << 1;
    QTest::newRow("designations") << 2 << 1;
    QTest::newRow("conditions") << 4 << 2;
    QTest::newRow("values and conditions") << 5 << 3;
    QTest::newRow("everything") << 7 << 4;
}

void tst_PrjMapperCheck::modes()
{
    QFETCH(int, mode);
    const auto designation = [](VKTab::TableDescriptor &table) {
        table.lineDesignation = "{D}-{k}";
    };
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n", designation);
    catalog.write("new/a.prj", "D,k:n\nM8,6\n", designation);
    Assignment assignment(catalog, {"new/a.prj"});
    addCondition(assignment.fixture.mapping, 0, "k .GT. 5");
    addCondition(assignment.fixture.mapping, 0, "D .EQ. 'M8'");
    addCondition(assignment.fixture.mapping, 0, "k .EQ. 6");
    const PrjMapperLineC line = assignment.line(0, 1);
    const MapperFixture::Varset values = assignment.fixture.varset(1);
    const auto result = assignment.fixture.mapper.checkMapping(
        line, values, values, CheckModeFlags::fromInt(mode), QString());
    QTEST(int(result.getErrMsgList().size()), "expected");
    QCOMPARE(result.isOK(), result.getErrMsgList().isEmpty());
    if (mode == 4)
        QCOMPARE(result.getErrMsgList().first(),
                 "Eine Bedingung des Zielprojekts ist nicht erfüllt.\n  k .GT. 5");
}

void tst_PrjMapperCheck::designations()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,L:n\nM8,40\n",
                  [](VKTab::TableDescriptor &t) { t.lineDesignation = "DIN 931 - {D} x {L}"; });
    catalog.write("new/a.prj", "D,L:n,name\nM8,40,DIN 931 - M8 x 40\nM8,40,Screw\n",
                  [](VKTab::TableDescriptor &t) { t.lineDesignation = "name"; });
    const auto messages = [&](int targetLine) {
        Assignment assignment(catalog, {"new/a.prj"});
        const PrjMapperLineC line = assignment.line(0, targetLine);
        const MapperFixture::Varset values = assignment.fixture.varset(1);
        return assignment.fixture.mapper
            .checkMapping(line, values, values, CheckDesignations, QString())
            .getErrMsgList();
    };
    QCOMPARE(messages(1), QStringList());
    QCOMPARE(messages(2), QStringList{"Die Normbezeichnungen sind verschieden.\n  Alte "
                                      "Normbezeichnung: DIN 931 - M8 x 40\n  Neue "
                                      "Normbezeichnung: Screw"});
}

void tst_PrjMapperCheck::notValidOrNotFound()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM8,5\n");
    MapperFixture fixture(catalog, {"new/a.prj", ""});
    enter(fixture.mapping, 1, 1, -1, Mapped);
    fixture.start();
    for (const PrjMapperLineC &line :
         {PrjMapperLineC(), fixture.mapper.findLine(1, fixture.varset(1))}) {
        for (const PrjMapperCheckResultC &result :
             {fixture.mapper.checkMapping(line, VKTab::LineId(1)), fixture.check(line)}) {
            QVERIFY(!result.isOK());
            QVERIFY(result.getErrMsgList().isEmpty());
            QVERIFY(result.getSourceVarset().isEmpty());
        }
    }
    PrjMapperC bare(catalog.tree());
    QVERIFY(!bare.checkMapping(PrjMapperLineC(), VKTab::LineId(1)).isOK());
}

void tst_PrjMapperCheck::targetLineIsGone()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM8,5\n");
    Assignment assignment(catalog, {"new/a.prj"});
    QCOMPARE(assignment.fixture.check(assignment.line(0, 9)).getErrMsgList(),
             QStringList{"Die zugeordnete Zeile gibt es in der Zieltabelle nicht.\n  Projekt: "
                         "new/a.prj\n  Zeile: 9"});
}

void tst_PrjMapperCheck::unreadableTarget()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    Assignment assignment(catalog, {"new/gone.prj"});
    QCOMPARE(assignment.fixture.check(assignment.line(0, 1)).getErrMsgList(),
             QStringList{"Die Tabelle des Zielprojekts konnte nicht gelesen werden.\n  Projekt: "
                         "new/gone.prj"});
}

void tst_PrjMapperCheck::secondIdDoesNotMatter()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\n");
    catalog.write("new/a.prj", "D,k:n\nM9,6\nM8,5\n");
    Assignment assignment(catalog, {"new/a.prj"});
    PrjMapperLineC line = assignment.line(0, 2);
    line.setLineId(VKTab::LineId(1)); // not the target line of the record
    QVERIFY(assignment.fixture.check(line).isOK());
}

void tst_PrjMapperCheck::varsetOfFailure()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\n");
    catalog.write("new/a.prj", "D,k:n\nM8,5\nM9,66\n");
    Assignment assignment(catalog, {"new/a.prj"});
    MapperFixture &fixture = assignment.fixture;
    enter(fixture.mapping, 0, 2, 2, PRJMAPPING::ToCheck);
    const PrjMapperLineC good = assignment.line(0, 1);
    QVERIFY(fixture.check(good).getSourceVarset().isEmpty());
    const PrjMapperLineC bad = fixture.mapper.findLine(2, fixture.varset(2));
    QCOMPARE(fixture.check(bad).getSourceVarset(), fixture.varset(2));
    QCOMPARE(fixture.mapper.checkMapping(bad, VKTab::LineId(2)).getSourceVarset(),
             fixture.varset(2));
}

void tst_PrjMapperCheck::combinations()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,L:r\nM8,10;12;14\nM9,1\n");
    catalog.write("new/a.prj", "D,L:r\nM8,10;12;14\nM9,1\n");
    Assignment assignment(catalog, {"new/a.prj"});
    MapperFixture &fixture = assignment.fixture;
    addCondition(fixture.mapping, 0, "L .NE. 12");
    const PrjMapperLineC line = assignment.line(0, 1);
    QVERIFY2(fixture.check(line).isOK(), "the stored values are well");
    const PrjMapperCheckResultC result = fixture.mapper.checkMapping(line, VKTab::LineId(1));
    QVERIFY(!result.isOK());
    QCOMPARE(result.getSourceVarset().value("L").getValue().toString(), "12");
    QCOMPARE(result.getSourceVarset().value("D").getValue().toString(), "M8");
    QCOMPARE(result.getErrMsgList(),
             QStringList{"Eine Bedingung des Zielprojekts ist nicht erfüllt.\n  L .NE. 12"});
}

void tst_PrjMapperCheck::combinationsAreSearchedByConditionsOnly()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,L:r\nM8,10;12\nM9,1\n");
    catalog.write("new/a.prj", "D,L:r\nM8,10;12\nM9,1\n");
    Assignment assignment(catalog, {"new/a.prj"});
    addCondition(assignment.fixture.mapping, 0, "D .NE. 'M10'");
    const PrjMapperLineC line = assignment.line(0, 1);
    QVERIFY(assignment.fixture.mapper.checkMapping(line, VKTab::LineId(1)).isOK());
}

void tst_PrjMapperCheck::unknownSourceLine()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM8,5\n");
    Assignment assignment(catalog, {"new/a.prj"});
    const PrjMapperLineC line = assignment.line(0, 1);
    QVERIFY(!assignment.fixture.mapper.checkMapping(line, VKTab::LineId(9)).isOK());
    QVERIFY(!assignment.fixture.mapper.checkMapping(line, VKTab::LineId()).isOK());
}

void tst_PrjMapperCheck::assignmentSurvivesButFailsItsCondition()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM8,5\n");
    Assignment assignment(catalog, {"new/a.prj"});
    addCondition(assignment.fixture.mapping, 0, "k .GT. 5");
    const PrjMapperLineC line = assignment.line(0, 1);
    QVERIFY(line.isFound());
    QCOMPARE(assignment.fixture.check(line).getErrMsgList(),
             QStringList{"Eine Bedingung des Zielprojekts ist nicht erfüllt.\n  k .GT. 5"});
}

void tst_PrjMapperCheck::updateVarsetModes()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n,x\nM8,5,q\n");
    catalog.write("new/a.prj", "Size,k:n\nM8,50\n");
    Assignment assignment(catalog, {"new/a.prj"});
    MapperFixture &fixture = assignment.fixture;
    addRename(fixture.mapping, 0, "D", "Size");
    addFormula(fixture.mapping, 0, "k = k * 10");
    const PrjMapperLineC line = assignment.line(0, 1);
    const auto all = fixture.mapper.updateVarset(line, fixture.varset(1), VarsetAllValues);
    QCOMPARE(all.size(), 4);
    QCOMPARE(all.value("Size").getValue().toString(), "M8");
    QCOMPARE(all.value("k").getValue().toString(), "50");
    const auto known = fixture.mapper.updateVarset(line, fixture.varset(1), VarsetTargetVariables);
    QStringList names = known.keys();
    names.sort();
    QCOMPARE(names, (QStringList{"Size", "k"}));
    QCOMPARE(known.value("k"), all.value("k"));
}

void tst_PrjMapperCheck::updateVarsetWithoutTarget()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    MapperFixture fixture(catalog, {"new/gone.prj"});
    fixture.start();
    const MapperFixture::Varset values = fixture.varset(1);
    QCOMPARE(fixture.mapper.updateVarset(PrjMapperLineC(), values, VarsetAllValues), values);
    QVERIFY(fixture.mapper.updateVarset(PrjMapperLineC(), values, VarsetTargetVariables).isEmpty());
}

void tst_PrjMapperCheck::sourceVarsetNeedNotBeTheLines()
{
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\n");
    catalog.write("new/a.prj", "D,k:n\nM8,5\nM9,6\n");
    Assignment assignment(catalog, {"new/a.prj"});
    const PrjMapperLineC line = assignment.line(0, 1);
    const MapperFixture::Varset other = assignment.fixture.varset(2);
    const auto result =
        assignment.fixture.mapper.checkMapping(line, other, other, CheckValues, QString());
    QCOMPARE(result.getErrMsgList().size(), 2);
    QCOMPARE(result.getSourceVarset(), other);
}

void tst_PrjMapperCheck::conditionsDoNotTellValuesApart_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<int>("targetLine");
    QTest::addColumn<bool>("isEqual");

    QTest::newRow("equal") << QString() << 1 << true;
    QTest::newRow("different") << QString() << 2 << false;
    QTest::newRow("equal, and the condition fails") << "D .EQ. 'M9'" << 1 << true;
    QTest::newRow("different, and the condition fails") << "D .EQ. 'M9'" << 2 << false;
}

/// Whoever asks for the values alone is not told that the line does not belong here.
void tst_PrjMapperCheck::conditionsDoNotTellValuesApart()
{
    QFETCH(QString, condition);
    QFETCH(int, targetLine);
    const TestCatalog catalog;
    catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    catalog.write("new/a.prj", "D,k:n\nM8,5\nM9,6\n");
    Assignment assignment(catalog, {"new/a.prj"});
    if (!condition.isEmpty())
        addCondition(assignment.fixture.mapping, 0, condition);
    const PrjMapperLineC line = assignment.line(0, targetLine);
    const VKTab::LineView view(assignment.fixture.source, VKTab::LineId(1));
    QTEST(assignment.fixture.mapper.passesCheck(line, view, CheckValues), "isEqual");
}

QTEST_GUILESS_MAIN(tst_PrjMapperCheck)
#include "tst_PrjMapperCheck.moc"
