#include "../support/TestTables.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/binding/VarsetCreate.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/ErpLayer.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/value/LangThreadSettings.h>

#include <QTest>

using namespace VKTab;

class tst_VarsetCreate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aVarsetHasTheFilesVariables();
    void aVarsetLeavesOthersOut();
    void aVarsetOfNoLineIsEmpty();
    void aVarsetIsUntranslated();
    void namesTheRangesOfALine();
    void showsWhatTheLineShows();
    void compares_data();
    void compares();
    void excludedVariablesDoNotCount();
    void anEmptyTextEqualsALineWithoutSuchVariables();

private:
    ContentRef m_table;
};

void tst_VarsetCreate::init()
{
    TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("TMVMAT"),
                         TestTables::field("L", FieldType::Number, FieldKind::Range),
                         TestTables::field("G", FieldType::Number, FieldKind::Range),
                         TestTables::field("X", FieldType::Number, FieldKind::Range),
                         TestTables::field("D", FieldType::Number),
                         TestTables::field("ID", FieldType::Integer, FieldKind::Internal),
                         TestTables::field("V", FieldType::Number, FieldKind::Computed)};
    descriptor.fields[1].zType = "SM";
    descriptor.fields[2].zType = "DM";
    descriptor.fields[3].zType = "sm";
    descriptor.fields[4].hidden = true;
    descriptor.fields[4].zType = "SM";
    descriptor.fields[6].formula = "D * 10";
    descriptor.translations["en"].insert("Stahl", "Steel");
    m_table = TestTables::table(descriptor, "TMVMAT,L,G,X,D,ID\nStahl,1;2,5,6;7,3,17\n,8,,,,18\n");
}

void tst_VarsetCreate::aVarsetHasTheFilesVariables()
{
    const auto varset = createVarsetFromVKTable(m_table, 1, {});
    QStringList names = varset.keys();
    names.sort();
    QCOMPARE(names, (QStringList{"D", "G", "L", "TMVMAT", "V", "X"}));
    QCOMPARE(varset.value("L").getValue().toString(), "1;2");
    QCOMPARE(varset.value("V").getValue().toString(), "30");
    QCOMPARE(varset.value("L").getName(), "L");
    QVERIFY(varset.value("L").isNumeric());
    QVERIFY(!varset.value("TMVMAT").isNumeric());
    const auto empty = createVarsetFromVKTable(m_table, 2, {});
    QCOMPARE(empty.size(), 6);
    QCOMPARE(empty.value("TMVMAT").getValue().toString(), "");
    const auto same = createVarsetFromVKTable(m_table.getLine(1, true), {});
    QCOMPARE(same.size(), varset.size());
    for (auto it = same.begin(); it != same.end(); ++it)
        QVERIFY(*it == varset.value(it.key()));
}

void tst_VarsetCreate::aVarsetLeavesOthersOut()
{
    const int type = registerLayerType("tst_VarsetCreate");
    BaseLayer layer(type);
    Var var(VarTypePlain);
    var.setVarSource(type);
    var.setName("LINE_ID");
    layer.addVar(var);
    m_table.addLayer(layer);
    QVERIFY(!createVarsetFromVKTable(m_table, 1, {}).contains("LINE_ID"));
    const QSet<int> excluded{m_table.getVar(u"L").getVarId().value()};
    const auto varset = createVarsetFromVKTable(m_table, 1, excluded);
    QCOMPARE(varset.size(), 5);
    QVERIFY(!varset.contains("L"));
}

void tst_VarsetCreate::aVarsetOfNoLineIsEmpty()
{
    QVERIFY(createVarsetFromVKTable(m_table, LineId(), {}).isEmpty());
    QVERIFY(createVarsetFromVKTable(m_table, 99, {}).isEmpty());
    QVERIFY(createVarsetFromVKTable(ContentRef(), 1, {}).isEmpty());
    QVERIFY(createVarsetFromVKTable(Line(), {}).isEmpty());
}

void tst_VarsetCreate::aVarsetIsUntranslated()
{
    LangThreadSettings settings;
    settings.setLanguage("en");
    QCOMPARE(createVarsetFromVKTable(m_table, 1, {}).value("TMVMAT").getValue().toString(),
             "Stahl");
}

void tst_VarsetCreate::namesTheRangesOfALine()
{
    QCOMPARE(VarsetCreate::createXVarset(m_table, 1), "{TMVMAT=Stahl}{L=1;2}{G=5}");
    QCOMPARE(VarsetCreate::createXVarset(m_table, 2), "{TMVMAT=}{L=8}{G=}");
    QCOMPARE(VarsetCreate::createXVarset(m_table, 99), "");
    QCOMPARE(VarsetCreate::createXVarset(ContentRef(), 1), "");

    BaseLayer erp(erpLayerType());
    Var var(VarTypeForeign);
    var.setVarSource(erpLayerType());
    var.setName("E");
    var.setZTypeAsString("SM");
    var.setFW(true);
    erp.addVar(var);
    m_table.addLayer(erp);
    QCOMPARE(VarsetCreate::createXVarset(m_table, 1), "{TMVMAT=Stahl}{L=1;2}{G=5}");
}

void tst_VarsetCreate::showsWhatTheLineShows()
{
    Line line = m_table.getLine(1, false);
    line.putValue(m_table.getVar(u"L").getVarId(), Value("2"));
    QCOMPARE(VarsetCreate::xVarset(line).at(1), TabVarValue("L", "2", "", 0, 1));
    QVERIFY(line.apply());
    QCOMPARE(VarsetCreate::createXVarset(m_table, 1), "{TMVMAT=Stahl}{L=2}{G=5}");
}

void tst_VarsetCreate::compares_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("equal");
    QTest::newRow("same") << "{TMVMAT=Stahl}{L=1;2}{G=5}" << true;
    QTest::newRow("other order") << "{G=5}{L=1;2} {TMVMAT=Stahl}" << true;
    QTest::newRow("number written otherwise") << "{TMVMAT=Stahl}{L=1;2}{G=5.0}" << true;
    QTest::newRow("unknown name does not count") << "{TMVMAT=Stahl}{L=1;2}{G=5}{OLD=1}" << true;
    QTest::newRow("known name too many") << "{TMVMAT=Stahl}{L=1;2}{G=5}{D=3}" << false;
    QTest::newRow("name missing") << "{TMVMAT=Stahl}{L=1;2}" << false;
    QTest::newRow("other value") << "{TMVMAT=Stahl}{L=1;2}{G=6}" << false;
    QTest::newRow("empty value") << "{TMVMAT=Stahl}{L=1;2}{G=}" << false;
    QTest::newRow("empty text") << "" << false;
    QTest::newRow("no text of that form") << "{TMVMAT=Stahl" << false;
}

void tst_VarsetCreate::compares()
{
    QFETCH(QString, text);
    const Line line = m_table.getLine(1, false);
    QTEST(VarsetCreate::compareXVarset(line, text, {}), "equal");
    QVERIFY(!VarsetCreate::compareXVarset(Line(), text, {}));
}

void tst_VarsetCreate::excludedVariablesDoNotCount()
{
    const Line line = m_table.getLine(1, false);
    const VarId g = m_table.getVar(u"G").getVarId();
    QVERIFY(VarsetCreate::compareXVarset(line, "{TMVMAT=Stahl}{L=1;2}{G=6}", {g}));
    QVERIFY(VarsetCreate::compareXVarset(line, "{TMVMAT=Stahl}{L=1;2}", {g}));
    QVERIFY(!VarsetCreate::compareXVarset(line, "{TMVMAT=Stahl}{G=5}", {g}));
}

void tst_VarsetCreate::anEmptyTextEqualsALineWithoutSuchVariables()
{
    TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("D", FieldType::Number)};
    const ContentRef table = TestTables::table(descriptor, "D\n1\n");
    QCOMPARE(VarsetCreate::createXVarset(table, 1), "");
    QVERIFY(VarsetCreate::compareXVarset(table.getLine(1, false), "", {}));
    QVERIFY(VarsetCreate::compareXVarset(table.getLine(1, false), "{OLD=1}", {}));
}

QTEST_GUILESS_MAIN(tst_VarsetCreate)
#include "tst_VarsetCreate.moc"
