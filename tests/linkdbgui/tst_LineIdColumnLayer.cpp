#include <mapping/table/LineIdColumnLayer.h>

#include "../support/TestTables.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/table/Line.h>
#include <geomcoregui/table/VkTableModel.h>

#include <QAbstractItemModelTester>
#include <QTest>

using VKTab::LineId;
using VKTab::VarId;

class tst_LineIdColumnLayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typeIsRegisteredOnce();
    void variable();
    void columnOrder();
    void values();
    void otherVariablesAndLines();
    void cloneIsTheSame();
    void lastColumnOfATable();
    void shownTableGetsTheColumn();
    void notInVarsets();
};

void tst_LineIdColumnLayer::typeIsRegisteredOnce()
{
    QCOMPARE(LineIdColumnLayer::layerType(), VKTab::registerLayerType("LineIdColumnLayer"));
    QCOMPARE(LineIdColumnLayer().getLayerType(), LineIdColumnLayer::layerType());
}

void tst_LineIdColumnLayer::variable()
{
    const LineIdColumnLayer layer;
    QCOMPARE(layer.getVarList().size(), 1);
    const VKTab::Var var = layer.getVarList().first();
    QCOMPARE(var.getVarType(), VKTab::VarType(1));
    QCOMPARE(var.getVarId(), VarId(getLayerIdOffset(LineIdColumnLayer::layerType())));
    QCOMPARE(var.getVarSource(), LineIdColumnLayer::layerType());
    QCOMPARE(var.getName(), QString("LINE_ID"));
    QCOMPARE(var.getDescription(), QString("Zeilennummer"));
    QCOMPARE(var.getDataType(), VKTab::DataType(6));
    QVERIFY(var.getVida() == VKTab::VIDA('I', 0, false));
}

void tst_LineIdColumnLayer::columnOrder()
{
    QCOMPARE(LineIdColumnLayer().getKeyValue(VKTab::KeyValueId(18)).toStringList(),
             QStringList({"...", "LINE_ID"}));
}

void tst_LineIdColumnLayer::values()
{
    const LineIdColumnLayer layer;
    const VarId id = layer.getVarId(u"LINE_ID");
    const VKTab::Line none;
    QCOMPARE(layer.getValue(id, LineId(17)), VKTab::Value(17));
    QCOMPARE(layer.getValue(id, LineId(17, 3)), VKTab::Value(17));
    QCOMPARE(layer.getValue(id, LineId(17), none), VKTab::Value(17));
}

void tst_LineIdColumnLayer::otherVariablesAndLines()
{
    const LineIdColumnLayer layer;
    const VarId id = layer.getVarId(u"LINE_ID");
    const VarId other(id.value() + 1);
    const VKTab::Line none;
    QVERIFY(layer.getValue(id, LineId()).isNull());
    QVERIFY(layer.getValue(id, LineId(-1)).isNull());
    QVERIFY(layer.getValue(id, LineId(), none).isNull());
    QVERIFY(layer.getValue(other, LineId(17)).isNull());
    QVERIFY(layer.getValue(other, LineId(17), none).isNull());
}

void tst_LineIdColumnLayer::cloneIsTheSame()
{
    const LineIdColumnLayer layer;
    const auto copy = layer.clone();
    QVERIFY(dynamic_cast<const LineIdColumnLayer *>(copy.get()));
    QCOMPARE(copy->getLayerType(), layer.getLayerType());
    QCOMPARE(copy->getValue(layer.getVarId(u"LINE_ID"), LineId(5)), VKTab::Value(5));
    QCOMPARE(copy->getKeyValue(VKTab::KeyColumnOrder), layer.getKeyValue(VKTab::KeyColumnOrder));
}

void tst_LineIdColumnLayer::lastColumnOfATable()
{
    VKTab::ContentRef table = TestTables::screws();
    table.addLayer(LineIdColumnLayer());
    const VKTab::Var var = table.getVar(u"LINE_ID");
    QVERIFY(var.isValid());
    QCOMPARE(table.getColumnMapping().getOrdered().last(), var.getVarId());
    for (const LineId &id : table.getLineIdList())
        QCOMPARE(table.getLine(id, false).getValue(var, {}).toString(),
                 QString::number(id.value(0)));
}

void tst_LineIdColumnLayer::shownTableGetsTheColumn()
{
    VKTab::ContentRef table = TestTables::screws();
    VkTableModel model;
    const QAbstractItemModelTester tester(&model);
    model.setTable(table);
    const int before = model.columnCount();
    table.addLayer(LineIdColumnLayer());
    QCOMPARE(model.columnCount(), before + 1);
    QCOMPARE(model.index(2, before).data().toString(), QString("3"));
    table.addLayer(LineIdColumnLayer()); // replaces the first
    QCOMPARE(model.columnCount(), before + 1);
}

void tst_LineIdColumnLayer::notInVarsets()
{
    VKTab::ContentRef table = TestTables::screws();
    table.addLayer(LineIdColumnLayer());
    QVERIFY(!createVarsetFromVKTable(table, LineId(1), {}).contains("LINE_ID"));
}

QTEST_MAIN(tst_LineIdColumnLayer)
#include "tst_LineIdColumnLayer.moc"
