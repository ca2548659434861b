#include "TableEditorFixture.h"

#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/FileLayer.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/SignalConnect.h>
#include <geomcore/table/TabOptions.h>

#include <QDir>
#include <QRandomGenerator>
#include <QTest>

#include <boost/make_shared.hpp>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;
using VKTab::LineId;

class tst_TableMappingStates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QDir::setSearchPaths("bitmaps", {":/hostbitmaps"}); }
    void init();
    void cleanup() { f.reset(); }

    void states_data();
    void states();
    void stateOfAnUnknownLine();
    void rangeColumn();
    void conditionsChooseAmongTargets();
    void updatesTouchChangedLinesOnly();
    void updatesEqualAWalk();
    void targetsComeAndGo();
    void modifiedLineIsLookedAtAgain();
    void sharedLineNumbers();
    void layerIsAskedAnewForEveryWrite();
    void manyChangedLinesAtOnce();

    void toolTips_data();
    void toolTips();
    void toolTipOfAProposal();
    void toolTipOfAConflict();
    void toolTipOfAConflictWithoutText();
    void toolTipKeepsOneBlank();
    void toolTipAfterTheWidget();

private:
    std::unique_ptr<TableEditorFixture> f;
};

void tst_TableMappingStates::init()
{
    f = std::make_unique<TableEditorFixture>();
    f->writeThreeLines([](auto &table) {
        table.normNumber = "DIN 1";
        table.lineDesignation = "DIN 1 - {D}";
        table.filterConditions = {{"PRJLINECOND", "k .LT. 6", {}},
                                  {"BYPRJ", "k .LT. 7", {}},
                                  {"OTHER", "k .LT. 100", {}}};
    });
}

void tst_TableMappingStates::states_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("targetLine");
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("conflict");
    QTest::addColumn<QString>("expected");

    QTest::newRow("found, verified") << 0 << 3 << 2 << false << "M";
    QTest::newRow("found, mapped: no icon") << 0 << 3 << 1 << false << "";
    QTest::newRow("found, to check") << 0 << 3 << 0 << false << "C";
    QTest::newRow("found, unknown state") << 0 << 3 << 3 << false << "C";
    QTest::newRow("without target line, verified") << 0 << -1 << 2 << false << "NC";
    QTest::newRow("without target line, mapped") << 0 << -1 << 1 << false << "N";
    QTest::newRow("not found, verified") << 1 << -1 << 2 << false << "NC";
    QTest::newRow("not found, mapped") << 1 << -1 << 1 << false << "N";
    QTest::newRow("not found, to check") << 1 << -1 << 0 << false << "N";
    QTest::newRow("conflict over verified") << 0 << 3 << 2 << true << "Conflicted";
    QTest::newRow("conflict over mapped") << 0 << 3 << 1 << true << "Conflicted";
    QTest::newRow("conflict over not found") << 1 << -1 << 1 << true << "Conflicted";
}

void tst_TableMappingStates::states()
{
    QFETCH(int, target);
    QFETCH(int, targetLine);
    QFETCH(int, state);
    QFETCH(bool, conflict);
    QFETCH(QString, expected);
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", ""});
    enter(mapping, target, 1, targetLine, PRJMAPPING::CheckState(state));
    PrjMappingTargetC changed = mapping.findTarget(target);
    changed.setLineConflicted(1, conflict);
    mapping.updateTarget(target, changed);
    f->load();
    f->widget->onProjectMappingUpdated(mapping);
    QCOMPARE(TableEditorFixture::status(f->sourceTable(), 1, "CatalogMapper"), expected);
    f->mapping = mapping;
    f->load();
    QCOMPARE(TableEditorFixture::status(f->sourceTable(), 1, "CatalogMapper"), expected);
    QCOMPARE(TableEditorFixture::status(f->sourceTable(), 1, "ValueRangeMapping"), QString());
}

void tst_TableMappingStates::stateOfAnUnknownLine()
{
    f->mapping = mappingOf("old/a.prj", {});
    f->load();
    QCOMPARE(f->states(), QString("N N N"));
}

void tst_TableMappingStates::rangeColumn()
{
    f->catalog.write("old/a.prj", "D,k:r\nM8,5;6\nM9,6\n");
    f->load();
    QCOMPARE(TableEditorFixture::status(f->sourceTable(), 1, "ValueRangeMapping"), QString("VR"));
    QCOMPARE(TableEditorFixture::status(f->sourceTable(), 2, "ValueRangeMapping"), QString("VR"));
}

void tst_TableMappingStates::conditionsChooseAmongTargets()
{
    f->mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addCondition(f->mapping, 0, "k .LT. 6");
    for (const int line : {1, 2}) {
        enter(f->mapping, 0, line, 1, Verified);
        enter(f->mapping, 1, line, 1, ToCheck);
    }
    f->load();
    QCOMPARE(f->states(), QString("M C N"));
    // A changed condition may send any line elsewhere.
    PrjMappingTargetC target = f->mapping.findTarget(0);
    target.clearConditions();
    f->mapping.updateTarget(0, target);
    f->widget->onProjectMappingUpdated(f->mapping);
    QCOMPARE(f->states(), QString("M M N"));
}

void tst_TableMappingStates::updatesTouchChangedLinesOnly()
{
    f->load();
    QList<int> touched;
    const boost::signals2::scoped_connection connection =
        f->sourceTable().signalConnect().connectSignalLineStatus(
            [&](const VKTab::Content &, const LineId &id) { touched.append(id.value(0)); });
    enter(f->mapping, 0, 2, 2, Verified);
    f->widget->onProjectMappingUpdated(f->mapping);
    QCOMPARE(touched, QList<int>({2}));
    QCOMPARE(f->states(), QString("- M N"));
    // What nobody changed is not written again, so a foreign value stays.
    f->sourceTable().getModifyLayer()->setLineKeyValue(LineId(1), "CatalogMapper", "C");
    enter(f->mapping, 0, 3, 1, Verified);
    f->widget->onProjectMappingUpdated(f->mapping);
    QCOMPARE(f->states(), QString("C M M"));
}

void tst_TableMappingStates::updatesEqualAWalk()
{
    QByteArray lines = "D,k:n\n";
    for (int i = 1; i <= 600; ++i)
        lines += "M" + QByteArray::number(i) + "," + QByteArray::number(i % 7) + "\n";
    f->catalog.write("old/a.prj", lines);
    QRandomGenerator random(4711);
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj", ""});
    addCondition(mapping, 0, "k .LT. 4");
    f->mapping = mapping;
    f->load();
    for (int step = 0; step < 60; ++step) {
        for (int change = random.bounded(1, 40); change > 0; --change) {
            const int target = random.bounded(3);
            const int line = random.bounded(1, 601);
            PrjMappingTargetC edited = mapping.findTarget(target);
            if (random.bounded(3) == 0)
                edited.removeLineId(line);
            else
                edited.addLineId(line, random.bounded(-1, 3),
                                 PRJMAPPING::CheckState(random.bounded(3)), QString());
            edited.setLineConflicted(line, random.bounded(5) == 0);
            mapping.updateTarget(target, edited);
        }
        if (step % 20 == 19)
            addCondition(mapping, 1, QStringLiteral("k .NE. %1").arg(step % 7));
        f->widget->onProjectMappingUpdated(mapping);
        const QString updated = f->states();
        f->mapping = mapping;
        if (step % 10 == 0) {
            TableEditorFixture walked;
            walked.catalog.write("old/a.prj", lines);
            walked.mapping = mapping;
            walked.load();
            QCOMPARE(updated, walked.states());
            qputenv("TORMEVA_DATA", QFile::encodeName(f->data.path()));
        }
    }
}

void tst_TableMappingStates::targetsComeAndGo()
{
    f->load();
    QCOMPARE(f->states(), QString("- C N"));
    PrjMappingC mapping = f->mapping;
    mapping.addTarget("", "");
    enter(mapping, 1, 3, -1, Verified);
    f->widget->onProjectMappingUpdated(mapping);
    QCOMPARE(f->states(), QString("- C NC"));
    PrjMappingTargetC first;
    first.setTargetPath("new/b.prj");
    first.setValid(true);
    mapping.insertTarget(0, first);
    enter(mapping, 0, 3, 1, Verified);
    f->widget->onProjectMappingUpdated(mapping);
    QCOMPARE(f->states(), QString("- C M"));
    mapping.removeTarget(1);
    f->widget->onProjectMappingUpdated(mapping);
    QCOMPARE(f->states(), QString("N N M"));
    mapping.removeTarget(0);
    f->widget->onProjectMappingUpdated(mapping);
    QCOMPARE(f->states(), QString("N N NC"));
    mapping.removeTarget(0);
    f->widget->onProjectMappingUpdated(mapping);
    QCOMPARE(f->states(), QString("N N N"));
}

void tst_TableMappingStates::modifiedLineIsLookedAtAgain()
{
    f->catalog.write("old/a.prj", "D,k:r\nM8,5;8\nM9,6\n");
    f->mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addCondition(f->mapping, 0, "k .EQ. 5");
    enter(f->mapping, 0, 1, 1, Verified);
    enter(f->mapping, 1, 1, 1, ToCheck);
    addCondition(f->mapping, 1, "k .EQ. 8");
    f->load();
    const QString before = f->states();
    VKTab::Line line = f->sourceTable().getLine(LineId(1), false);
    line.putValue(f->sourceTable().getVar(u"k").getVarId(), VKTab::Value("8"));
    QVERIFY(line.apply());
    enter(f->mapping, 0, 2, 1, Verified);
    f->widget->onProjectMappingUpdated(f->mapping);
    QCOMPARE(before, QString("M N"));
    QCOMPARE(f->states(), QString("C M"));
}

void tst_TableMappingStates::sharedLineNumbers()
{
    f->catalog.write("old/a.prj", "Id:i,Sub:i,k:n\n1,0,5\n1,1,6\n2,0,7\n", [](auto &table) {
        table.lineIdField = "Id";
        table.lineSubIdField = "Sub";
    });
    f->load();
    QCOMPARE(f->sourceTable().getLineCount(), 3);
    enter(f->mapping, 0, 1, 3, Verified);
    f->widget->onProjectMappingUpdated(f->mapping);
    for (const LineId &id : {LineId(1, 0), LineId(1, 1)})
        QCOMPARE(f->sourceTable().getLine(id, false).getLineKeyValue("CatalogMapper").toString(),
                 QString("M"));
}

void tst_TableMappingStates::layerIsAskedAnewForEveryWrite()
{
    f->load();
    VKTab::ContentRef table = f->sourceTable();
    const VKTab::ContentRef again = f->read("old/a.prj");
    QList<int> heard;
    const boost::signals2::scoped_connection connection =
        table.signalConnect().connectSignalLineStatus(
            [&](const VKTab::Content &, const LineId &id) {
                heard.append(id.value(0));
                if (heard.size() == 1)
                    table.setFileLayer(again.getFileLayer()); // as if the table were read again
            });
    enter(f->mapping, 0, 1, 3, Verified);
    enter(f->mapping, 0, 2, 2, Verified);
    f->widget->onProjectMappingUpdated(f->mapping);
    QVERIFY(heard.size() >= 2);
    QCOMPARE(TableEditorFixture::status(table, 2, "CatalogMapper"), QString("M"));
}

void tst_TableMappingStates::manyChangedLinesAtOnce()
{
    QByteArray lines = "k:n\n";
    for (int i = 1; i <= 900; ++i)
        lines += QByteArray::number(i) + "\n";
    f->catalog.write("old/a.prj", lines);
    f->mapping = mappingOf("old/a.prj", {"new/a.prj"});
    for (int line = 1; line <= 800; ++line)
        enter(f->mapping, 0, line, 1, ToCheck);
    f->load();
    // What nobody changed is not written again, so a foreign value stays.
    f->sourceTable().getModifyLayer()->setLineKeyValue(LineId(900), "CatalogMapper", "C");
    int heard = 0;
    const boost::signals2::scoped_connection connection =
        f->sourceTable().signalConnect().connectSignalLineStatus(
            [&](const VKTab::Content &, const LineId &) { ++heard; });
    f->mapping.verifyAll();
    f->widget->onProjectMappingUpdated(f->mapping);
    QCOMPARE(heard, 1);
    QCOMPARE(f->states().count('M'), 800);
    QCOMPARE(f->states().count('N'), 99);
    QVERIFY(f->states().endsWith("N C"));
}

void tst_TableMappingStates::toolTips_data()
{
    QTest::addColumn<int>("targetLine");
    QTest::addColumn<QString>("expected");

    QTest::newRow("confirmed") << 3 << "Diese Zuordnung wurde vom Modellierer bestätigt";
    QTest::newRow("expired") << -1
                             << "Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt";
}

void tst_TableMappingStates::toolTips()
{
    QFETCH(int, targetLine);
    enter(f->mapping, 0, 1, targetLine, Verified);
    f->load();
    QTEST(TableEditorFixture::iconToolTip(f->source, 1, "CatalogMapper"), "expected");
}

void tst_TableMappingStates::toolTipOfAProposal()
{
    f->load();
    QCOMPARE(TableEditorFixture::iconToolTip(f->source, 2, "CatalogMapper"),
             QString("<b>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt "
                     "oder korrigiert werden</b><br />Die Werte der Variable k sind verschieden."
                     "<br />&nbsp; Alter Wert: 6<br />&nbsp; Neuer Wert: 66<br />"));
    // Without messages the sentence stands alone.
    enter(f->mapping, 0, 1, 3, ToCheck);
    f->widget->onProjectMappingUpdated(f->mapping);
    QCOMPARE(TableEditorFixture::iconToolTip(f->source, 1, "CatalogMapper"),
             QString("<b>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt "
                     "oder korrigiert werden</b>"));
}

void tst_TableMappingStates::toolTipOfAConflict()
{
    PrjMappingTargetC target = f->mapping.findTarget(0);
    target.setLineConflicted(2, true);
    f->mapping.updateTarget(0, target);
    f->load();
    QVERIFY(QMetaObject::invokeMethod(f->widget.get(), "onTargetLineConflict",
                                      Q_ARG(QString, "an older text"), Q_ARG(int, 2)));
    f->widget->onTargetLineConflict("somebody else", 2);
    f->widget->onTargetLineConflict("of another line", 1);
    const QString expected = "<b>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss "
                             "bestätigt oder korrigiert werden</b><br />somebody else";
    QCOMPARE(TableEditorFixture::iconToolTip(f->source, 2, "CatalogMapper"), expected);
    f->load(); // the texts live as long as the widget
    QCOMPARE(TableEditorFixture::iconToolTip(f->source, 2, "CatalogMapper"), expected);
}

void tst_TableMappingStates::toolTipOfAConflictWithoutText()
{
    PrjMappingTargetC target = f->mapping.findTarget(0);
    target.setLineConflicted(2, true);
    f->mapping.updateTarget(0, target);
    f->load();
    QCOMPARE(TableEditorFixture::iconToolTip(f->source, 2, "CatalogMapper"),
             QString("<b>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder "
                     "korrigiert werden</b><br />"));
}

void tst_TableMappingStates::toolTipKeepsOneBlank()
{
    f->mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(f->mapping, 0, " k .EQ. 4711");
    enter(f->mapping, 0, 1, 3, ToCheck);
    f->load();
    const QString text = TableEditorFixture::iconToolTip(f->source, 1, "CatalogMapper");
    QVERIFY2(text.contains("<br />&nbsp;  k .EQ. 4711<br />"), qPrintable(text));
}

void tst_TableMappingStates::toolTipAfterTheWidget()
{
    f->load();
    const auto options = f->sourceTable().getOptions();
    VKTab::ContentRef table = f->sourceTable();
    const auto handler =
        options->getStatusKey("CatalogMapper").findValue("C")->getToolTipHandler2();
    QVERIFY(!handler(table.getLine(LineId(2), false), 2, 0, nullptr).isEmpty());
    f->widget.reset();
    QCOMPARE(handler(table.getLine(LineId(2), false), 2, 0, nullptr), QString());
}

QTEST_MAIN(tst_TableMappingStates)
#include "tst_TableMappingStates.moc"
