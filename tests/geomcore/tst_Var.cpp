#include <geomcore/table/LayerType.h>
#include <geomcore/value/Var.h>

#include <QTest>

using namespace VKTab;

class tst_Var : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultVariableIsNotValid();
    void needsTypeAndId();
    void keepsWhatIsSet();
    void copiesAreIndependent();
    void rangesByTypeOrByMark();
    void numericByDataType_data();
    void numericByDataType();
    void layerTypesAreGivenOnce();
    void layerTypesHaveBlocksOfTheirOwn();
};

void tst_Var::aDefaultVariableIsNotValid()
{
    const Var var;
    QVERIFY(!var.isValid());
    QVERIFY(!var.isFW() && !var.isNumeric() && !var.isHidden());
    QVERIFY(!var.getVarId().isValid());
    QVERIFY(var.getName().isEmpty());
    Var other;
    other.setName("X");
    QVERIFY(Var().getName().isEmpty());
}

void tst_Var::needsTypeAndId()
{
    Var var(static_cast<VarType>(1));
    QVERIFY(!var.isValid());
    var.setVarId(VarId(0));
    QVERIFY(var.isValid());
    var.setVarType(VarTypeNone);
    QVERIFY(!var.isValid());
}

void tst_Var::keepsWhatIsSet()
{
    Var var(VarTypePlain);
    var.setVarId(VarId(12));
    var.setVarSource(3);
    var.setVarType(VarTypeComputed);
    var.setName("LINE_ID");
    var.setDescription("Zeilennummer");
    var.setDataType(static_cast<DataType>(6));
    var.setVida(VIDA('I', 2, true));
    var.setZTypeAsString("SM");
    var.setUnit("mm");
    var.setHidden(true);
    var.setGroups({"A", "B"});
    QCOMPARE(var.getVarId(), VarId(12));
    QCOMPARE(var.getVarSource(), 3);
    QCOMPARE(var.getVarType(), VarTypeComputed);
    QCOMPARE(var.getName(), "LINE_ID");
    QCOMPARE(var.getDescription(), "Zeilennummer");
    QCOMPARE(var.getDataType(), DataTypeInteger);
    QCOMPARE(var.getVida().format(), 'I');
    QCOMPARE(var.getVida().decimals(), 2);
    QVERIFY(var.getVida().isRightAligned());
    QCOMPARE(var.getZTypeAsString(), "SM");
    QCOMPARE(var.getUnit(), "mm");
    QVERIFY(var.isHidden());
    QCOMPARE(var.getGroups(), (QStringList{"A", "B"}));
}

void tst_Var::copiesAreIndependent()
{
    Var var(VarTypePlain);
    var.setName("A");
    Var copy = var;
    QCOMPARE(copy, var);
    copy.setName("B");
    QVERIFY(!(copy == var));
    QCOMPARE(var.getName(), "A");
    copy = var;
    QCOMPARE(copy, var);
}

void tst_Var::rangesByTypeOrByMark()
{
    QVERIFY(Var(VarTypeRange).isFW());
    QVERIFY(!Var(VarTypePlain).isFW());
    Var var(VarTypeForeign);
    var.setFW(true);
    QVERIFY(var.isFW());
    QCOMPARE(var.getVarType(), VarTypeForeign);
}

void tst_Var::numericByDataType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("numeric");
    QTest::newRow("text") << int(DataTypeText) << false;
    QTest::newRow("number") << int(DataTypeNumber) << true;
    QTest::newRow("integer") << 6 << true;
}

void tst_Var::numericByDataType()
{
    QFETCH(int, type);
    Var var(VarTypePlain);
    var.setDataType(static_cast<DataType>(type));
    QTEST(var.isNumeric(), "numeric");
}

void tst_Var::layerTypesAreGivenOnce()
{
    const int type = registerLayerType("tst_Var");
    QVERIFY(type != 0);
    QCOMPARE(registerLayerType("tst_Var"), type);
    QVERIFY(registerLayerType("tst_Var2") != type);
    QCOMPARE(registerLayerType("VKTab::FileLayer"), fileLayerType());
    QCOMPARE(registerLayerType("VKTab::ErpLayer"), erpLayerType());
}

void tst_Var::layerTypesHaveBlocksOfTheirOwn()
{
    const int a = getLayerIdOffset(registerLayerType("tst_Var"));
    const int b = getLayerIdOffset(registerLayerType("tst_Var2"));
    QVERIFY(VarId(a).isValid() && VarId(b).isValid());
    QVERIFY(std::abs(a - b) >= 100000);
    QCOMPARE(getLayerIdOffset(registerLayerType("tst_Var")), a);
}

QTEST_GUILESS_MAIN(tst_Var)
#include "tst_Var.moc"
