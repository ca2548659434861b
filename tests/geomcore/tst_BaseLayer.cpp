#include "../support/SlotOrder.h"
#include "../support/TestTables.h"

#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/LayerType.h>

#include <QTest>

using namespace VKTab;

namespace {

/// A layer with one variable and no lines of its own that changes next to nothing.
class OneColumnLayer : public BaseLayer
{
public:
    OneColumnLayer()
        : m_id(getLayerIdOffset(type()))
    {
        Var var(VarTypePlain);
        var.setVarId(m_id);
        var.setVarSource(type());
        var.setName("ONE");
        var.setDescription("Eins");
        var.setDataType(DataTypeInteger);
        var.setUnit("mm");
        var.setGroups({"G1", "G2"});
        addVar(var);
        setKeyValue(KeyColumnOrder, QStringList{"...", "ONE"});
    }
    static int type()
    {
        static const int id = registerLayerType("OneColumnLayer");
        return id;
    }
    boost::shared_ptr<LayerI> clone() const override
    {
        return boost::make_shared<OneColumnLayer>(*this);
    }
    [[nodiscard]] VarId id() const { return m_id; }

private:
    VarId m_id;
};

QStringList changes(const QList<LayerChange> &list)
{
    QStringList result;
    for (const LayerChange &change : list)
        result.append(QString("%1:%2").arg(int(change.kind)).arg(change.line.value(0)));
    return result;
}

QList<VarId> ids(std::initializer_list<int> values)
{
    QList<VarId> result;
    for (const int value : values)
        result.append(VarId(value));
    return result;
}

Var named(const QString &name, int id, const QStringList &groups = {})
{
    Var var(VarTypePlain);
    var.setName(name);
    var.setVarId(VarId(id));
    var.setGroups(groups);
    return var;
}

} // namespace

class tst_BaseLayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keepsTheOrderOfItsOperations();
    void answersForItsVariable();
    void answersNothingForOthers();
    void givesAttributesAndProperties();
    void setsAttributes();
    void deletesVariables();
    void aVariableComesBackWithoutItsCells();
    void findsTheFirstOfEqualNames();
    void addsVariables();
    void hasNoLinesOfItsOwn();
    void keepsKeyValues();
    void keepsStatusKeys();
    void keepsStatusKeysOfManyLines();
    void findsLinesByStatusKey();
    void hidesLines();
    void keepsValues();
    void copiesLines();
    void deletesLines();
    void resets();
    void fillsLineData();
    void filtersNothing();
    void keepsFilterConditionsByName();
    void ordersColumns_data();
    void ordersColumns();
    void groupsVariables();
    void copiesAreIndependent();
    void aDefaultLayerIsEmpty();

private:
    std::unique_ptr<OneColumnLayer> m_layer;
    QList<LayerChange> m_changes;
};

void tst_BaseLayer::init()
{
    m_layer = std::make_unique<OneColumnLayer>();
    m_changes.clear();
    m_layer->signalChanged().connect(
        [this](const LayerChange &change) { m_changes.append(change); });
}

void tst_BaseLayer::keepsTheOrderOfItsOperations()
{
    using Id = const VarId &;
    using Li = const LineId &;
    QCOMPARE(slotOf(&LayerI::clone), 2);
    QCOMPARE(slotOf(&LayerI::reset), 3);
    QCOMPARE(slotOf(&LayerI::getLayerType), 4);
    QCOMPARE(slotOf(static_cast<QVariant (LayerI::*)(KeyValueId) const>(&LayerI::getKeyValue)), 5);
    QCOMPARE(slotOf(static_cast<QVariant (LayerI::*)(const QString &) const>(&LayerI::getKeyValue)),
             6);
    QCOMPARE(slotOf(&LayerI::getVarList), 7);
    QCOMPARE(slotOf(&LayerI::getVarId), 8);
    QCOMPARE(
        slotOf(static_cast<std::optional<Var> (LayerI::*)(QStringView) const>(&LayerI::getVar)), 9);
    QCOMPARE(slotOf(static_cast<Var (LayerI::*)(Id) const>(&LayerI::getVar)), 10);
    QCOMPARE(slotOf(static_cast<bool (LayerI::*)(Id) const>(&LayerI::isValid)), 11);
    QCOMPARE(slotOf(&LayerI::getName), 12);
    QCOMPARE(slotOf(static_cast<QHash<VarId, QStringList> (LayerI::*)() const>(
                 &LayerI::getColumnFilter)),
             13);
    QCOMPARE(slotOf(static_cast<QStringList (LayerI::*)(Id) const>(&LayerI::getColumnFilter)), 14);
    QCOMPARE(slotOf(&LayerI::getVarAttribute), 15);
    QCOMPARE(slotOf(&LayerI::getVarProperty), 16);
    QCOMPARE(slotOf(&LayerI::setVarAttribute), 17);
    QCOMPARE(slotOf(&LayerI::deleteVar), 18);
    QCOMPARE(slotOf(&LayerI::getLineInfo), 19);
    QCOMPARE(slotOf(&LayerI::getLineInfoList), 20);
    QCOMPARE(slotOf(&LayerI::getLineProperty), 21);
    QCOMPARE(slotOf(&LayerI::getLineKeyValue), 22);
    QCOMPARE(slotOf(&LayerI::getLineProperties), 23);
    QCOMPARE(slotOf(&LayerI::getHiddenLines), 24);
    QCOMPARE(slotOf(&LayerI::setLineHidden), 25);
    QCOMPARE(slotOf(&LayerI::deleteLine), 26);
    QCOMPARE(slotOf(&LayerI::copyLine), 27);
    QCOMPARE(slotOf(static_cast<Value (LayerI::*)(Id, Li, const LineI &) const>(&LayerI::getValue)),
             28);
    QCOMPARE(slotOf(static_cast<Value (LayerI::*)(Id, Li) const>(&LayerI::getValue)), 29);
    QCOMPARE(slotOf(&LayerI::isLocked), 30);
    QCOMPARE(slotOf(&LayerI::isDefValue), 31);
    QCOMPARE(slotOf(&LayerI::getCellProperty), 32);
    QCOMPARE(slotOf(&LayerI::mapToVisibleValue), 33);
    QCOMPARE(slotOf(&LayerI::fillLineData), 34);
    QCOMPARE(slotOf(&LayerI::setValue), 35);
    QCOMPARE(slotOf(&LayerI::translateText), 36);
    QCOMPARE(slotOf(&LayerI::getFilterConditions), 37);
    QCOMPARE(slotOf(&LayerI::getFilter), 38);
    QCOMPARE(slotOf(&LayerI::getRangeFilter), 39);
    QCOMPARE(slotOf(&LayerI::getRangeValueCustomDefault), 40);
    QCOMPARE(slotOf(&LayerI::getVarGroups), 41);
    QCOMPARE(slotOf(&LayerI::evaluateColumnMapping), 42);
    QCOMPARE(slotOf(&LayerI::evaluateVariableToGroupMapping), 43);
    QCOMPARE(slotOf(&LayerI::signalChanged), 44);
    QCOMPARE(slotOf(&LayerI::updateVariableStructure), 45);
    QCOMPARE(slotOf(static_cast<bool (LayerI::*)() const>(&LayerI::isValid)), 46);
    // A derived class finds them in the same places.
    QCOMPARE(slotOf(static_cast<bool (BaseLayer::*)() const>(&BaseLayer::isValid)), 46);
}

void tst_BaseLayer::answersForItsVariable()
{
    const VarId id = m_layer->id();
    QCOMPARE(m_layer->getLayerType(), OneColumnLayer::type());
    QVERIFY(m_layer->isValid());
    QVERIFY(m_layer->isValid(id));
    QCOMPARE(m_layer->getVarList().size(), 1);
    QCOMPARE(m_layer->getVarId(u"ONE"), id);
    QCOMPARE(m_layer->getVar(u"ONE")->getDescription(), "Eins");
    QCOMPARE(m_layer->getVar(id).getName(), "ONE");
    QCOMPARE(m_layer->getName(id), "ONE");
    QVERIFY(!m_layer->isLocked(id, 1));
    QVERIFY(m_layer->isDefValue(id, 1));
    QVERIFY(m_layer->getValue(id, 1).isNull());
    QCOMPARE(m_layer->getVarGroups(), (QStringList{"G1", "G2"}));
    QVERIFY(m_layer->getRangeValueCustomDefault(id).isNull());
    QVERIFY(!m_layer->mapToVisibleValue(id, 1, Value(1)));
    QCOMPARE(m_layer->translateText("Eins", id), "Eins");
}

void tst_BaseLayer::answersNothingForOthers()
{
    const VarId other(getLayerIdOffset(fileLayerType()));
    QVERIFY(!m_layer->isValid(other));
    QVERIFY(!m_layer->getVarId(u"one").isValid());
    QVERIFY(!m_layer->getVar(u"one"));
    QVERIFY(!m_layer->getVar(other).isValid());
    QCOMPARE(m_layer->getName(other), "");
    QVERIFY(m_layer->isLocked(other, 1));
    QVERIFY(!m_layer->setValue(other, 1, Value(1)));
    QVERIFY(m_layer->getValue(other, 1).isNull());
    QVERIFY(!m_layer->getVarAttribute(other, VarAttrHidden).isValid());
    QVERIFY(!m_layer->setVarAttribute(other, VarAttrHidden, true));
    QVERIFY(!m_layer->getVarProperty(other, VarPropType).isValid());
    QVERIFY(!m_layer->deleteVar(other));
    QVERIFY(m_layer->getColumnFilter(other).isEmpty());
    QVERIFY(!m_layer->copyLine(1, 2, {named("X", other.value())}, true));
    QVERIFY(m_changes.isEmpty());
}

void tst_BaseLayer::givesAttributesAndProperties()
{
    const VarId id = m_layer->id();
    QCOMPARE(m_layer->getVarAttribute(id, VarAttrDescription), QVariant("Eins"));
    QCOMPARE(m_layer->getVarAttribute(id, VarAttrHidden), QVariant(false));
    QCOMPARE(m_layer->getVarAttribute(id, VarAttrGroups), QVariant(QStringList{"G1", "G2"}));
    QVERIFY(!m_layer->getVarAttribute(id, VarAttrRangeDefault).isValid());
    QCOMPARE(m_layer->getVarProperty(id, VarPropType), QVariant(1));
    QCOMPARE(m_layer->getVarProperty(id, VarPropDataType), QVariant(6));
    QCOMPARE(m_layer->getVarProperty(id, VarPropSource), QVariant(OneColumnLayer::type()));
    QCOMPARE(m_layer->getVarProperty(id, VarPropRange), QVariant(false));
    QCOMPARE(m_layer->getVarProperty(id, VarPropUnit), QVariant("mm"));
}

void tst_BaseLayer::setsAttributes()
{
    const VarId id = m_layer->id();
    QVERIFY(m_layer->setVarAttribute(id, VarAttrDescription, "Uno"));
    QVERIFY(m_layer->setVarAttribute(id, VarAttrHidden, true));
    QVERIFY(m_layer->setVarAttribute(id, VarAttrGroups, QStringList{"G3"}));
    const Var var = m_layer->getVar(id);
    QCOMPARE(var.getDescription(), "Uno");
    QVERIFY(var.isHidden());
    QCOMPARE(m_layer->getVarGroups(), QStringList{"G3"});
    // What is no truth value changes nothing.
    QVERIFY(!m_layer->setVarAttribute(id, VarAttrHidden, QStringList{"x"}));
    QVERIFY(m_layer->getVar(id).isHidden());
    // Only a range has a default among its values.
    QVERIFY(!m_layer->setVarAttribute(id, VarAttrRangeDefault, "12"));
    Var range = var;
    range.setFW(true);
    m_layer->addVar(range);
    QVERIFY(m_layer->setVarAttribute(id, VarAttrRangeDefault, "12"));
    QCOMPARE(m_layer->getRangeValueCustomDefault(id).toString(), "12");
    QCOMPARE(m_layer->getVarAttribute(id, VarAttrRangeDefault), QVariant("12"));
    QVERIFY(m_layer->setVarAttribute(id, VarAttrRangeDefault, QVariant()));
    QVERIFY(m_layer->getRangeValueCustomDefault(id).isNull());
    // Listeners hear of variables when all changes are made.
    QVERIFY(m_changes.isEmpty());
    m_layer->updateVariableStructure();
    QCOMPARE(changes(m_changes), QStringList{QString("%1:-1").arg(int(LayerChange::Columns))});
}

void tst_BaseLayer::deletesVariables()
{
    m_layer->setColumnFilter(m_layer->id(), {"1"});
    QVERIFY(m_layer->deleteVar(m_layer->id()));
    QVERIFY(!m_layer->deleteVar(m_layer->id()));
    QVERIFY(m_layer->getVarList().isEmpty());
    QVERIFY(m_layer->getColumnFilter().isEmpty());
    QVERIFY(!m_layer->isValid());
}

void tst_BaseLayer::aVariableComesBackWithoutItsCells()
{
    const Var var = m_layer->getVar(m_layer->id());
    const Var other = named("TWO", m_layer->id().value() + 1);
    m_layer->addVar(other);
    QVERIFY(m_layer->setValue(var.getVarId(), 1, Value("a")));
    QVERIFY(m_layer->setValue(var.getVarId(), 2, Value("b")));
    QVERIFY(m_layer->setValue(other.getVarId(), 2, Value("c")));
    QVERIFY(m_layer->deleteVar(var.getVarId()));
    QCOMPARE(m_layer->getVarId(u"TWO"), other.getVarId());
    m_layer->addVar(var);
    QVERIFY(m_layer->getValue(var.getVarId(), 1).isNull());
    QVERIFY(m_layer->isDefValue(var.getVarId(), 2));
    QCOMPARE(m_layer->getValue(other.getVarId(), 2).toString(), "c");
}

void tst_BaseLayer::findsTheFirstOfEqualNames()
{
    BaseLayer layer(OneColumnLayer::type());
    layer.addVar(named("A", 5));
    layer.addVar(named("A", 3));
    layer.addVar(named("B", 4));
    QCOMPARE(layer.getVarId(u"A"), VarId(5));
    layer.addVar(named("C", 5));
    QCOMPARE(layer.getVarId(u"A"), VarId(3));
    QCOMPARE(layer.getVarId(u"C"), VarId(5));
    QVERIFY(layer.deleteVar(VarId(5)));
    QCOMPARE(layer.getVarId(u"B"), VarId(4));
    QVERIFY(!layer.getVarId(u"C").isValid());
}

void tst_BaseLayer::addsVariables()
{
    Var var(VarTypePlain);
    var.setName("TWO");
    BaseLayer layer(OneColumnLayer::type());
    layer.addVar(var);
    var.setName("THREE");
    layer.addVar(var);
    const int first = getLayerIdOffset(OneColumnLayer::type());
    QCOMPARE(layer.getVarId(u"TWO"), VarId(first));
    QCOMPARE(layer.getVarId(u"THREE"), VarId(first + 1));
    Var replaced = layer.getVar(VarId(first));
    replaced.setName("2");
    layer.addVar(replaced);
    QCOMPARE(layer.getVarList().size(), 2);
    QCOMPARE(layer.getName(VarId(first)), "2");
}

void tst_BaseLayer::hasNoLinesOfItsOwn()
{
    QVERIFY(!m_layer->getLineInfo(1).isValid());
    QVERIFY(m_layer->getLineInfoList().isEmpty());
    QVERIFY(m_layer->getHiddenLines().isEmpty());
    QCOMPARE(m_layer->getLineProperties(), QList<LinePropId>{LinePropHidden});
    QVERIFY(!m_layer->getLineProperty(1, LinePropRow).isValid());
    QCOMPARE(m_layer->getLineProperty(1, LinePropHidden), QVariant(false));
    QVERIFY(!m_layer->deleteLine(1));
    QVERIFY(m_layer->getRangeFilter(1).isEmpty());
}

void tst_BaseLayer::keepsKeyValues()
{
    QCOMPARE(m_layer->getKeyValue(KeyColumnOrder).toStringList(), (QStringList{"...", "ONE"}));
    QVERIFY(!m_layer->getKeyValue(KeyNormNumber).isValid());
    QVERIFY(!m_layer->getKeyValue("POOLID").isValid());
    m_layer->setKeyValue("POOLID", "p");
    QCOMPARE(m_layer->getKeyValue("POOLID"), QVariant("p"));
}

void tst_BaseLayer::keepsStatusKeys()
{
    const QVariant unset(QString(""));
    QCOMPARE(m_layer->getLineKeyValue(1, "K"), unset);
    m_layer->setLineKeyValue(1, "K", "M");
    m_layer->setLineKeyValue(LineId(1, 2), "K", "N");
    m_layer->setLineKeyValue(1, "Other", 7);
    m_layer->setLineKeyValue(LineId(), "K", "M");
    QCOMPARE(m_layer->getLineKeyValue(LineId(1, 0), "K"), QVariant("M"));
    QCOMPARE(m_layer->getLineKeyValue(LineId(1, 2), "K"), QVariant("N"));
    QCOMPARE(m_layer->getLineKeyValue(1, "Other"), QVariant(7));
    QCOMPARE(m_layer->getLineKeyValue(2, "K"), unset);
    QCOMPARE(m_layer->getLineKeyValue(LineId(), "K"), unset);
    const QString status = QString::number(int(LayerChange::Status));
    QCOMPARE(changes(m_changes), (QStringList{status + ":1", status + ":1", status + ":1"}));
    m_layer->setLineKeyValue(1, "K", "M");
    m_layer->setLineKeyValue(2, "K", "");
    QCOMPARE(m_changes.size(), 3);
    m_layer->setLineKeyValue(1, "K", QVariant());
    QCOMPARE(m_layer->getLineKeyValue(1, "K"), unset);
}

void tst_BaseLayer::keepsStatusKeysOfManyLines()
{
    const QVariantList values = {"", "M", "N"};
    m_layer->setLineKeyValues({1, 2, LineId(3, 1)}, "K", values, {0, 0, 0});
    QVERIFY(!m_layer->hasLineKeyValues("K"));
    QCOMPARE(m_changes.size(), 0);
    m_layer->setLineKeyValues({1, 700, LineId(3, 1), LineId(), 2}, "K", values, {1, 2, 2, 1, 0});
    QCOMPARE(m_layer->getLineKeyValue(1, "K"), QVariant("M"));
    QCOMPARE(m_layer->getLineKeyValue(700, "K"), QVariant("N"));
    QCOMPARE(m_layer->getLineKeyValue(LineId(3, 1), "K"), QVariant("N"));
    QCOMPARE(m_layer->getLineKeyValue(3, "K"), QVariant(""));
    QCOMPARE(m_layer->getLineKeyValue(2, "K"), QVariant(""));
    // Told once, as a change of all lines; not if nothing changed.
    const QStringList once(QString::number(int(LayerChange::Status)) + ":-1");
    QCOMPARE(changes(m_changes), once);
    m_layer->setLineKeyValues({1, 700}, "K", values, {1, 2});
    QCOMPARE(changes(m_changes), once);
    m_layer->setLineKeyValues({1, 700}, "K", {QVariant(), "M"}, {0, 1});
    QCOMPARE(m_layer->getLineKeyValue(1, "K"), QVariant(""));
    QCOMPARE(m_layer->getLineKeyValue(700, "K"), QVariant("M"));
}

void tst_BaseLayer::findsLinesByStatusKey()
{
    using Lines = std::vector<int>;
    QCOMPARE(m_layer->linesWithKeyValue("K", {"M"}), Lines());
    m_layer->setLineKeyValues({1000, 5, LineId(7, 1), LineId(7, 2), 300, LineId(5, 3)}, "K",
                              {"M", "N", "C"}, {0, 0, 1, 1, 2, 0});
    QCOMPARE(m_layer->linesWithKeyValue("K", {"M"}), Lines({5, 1000}));
    QCOMPARE(m_layer->linesWithKeyValue("K", {"C", "N"}), Lines({7, 300}));
    QCOMPARE(m_layer->linesWithKeyValue("K", {"X", ""}), Lines());
    QCOMPARE(m_layer->linesWithKeyValue("Other", {"M"}), Lines());
}

void tst_BaseLayer::hidesLines()
{
    QVERIFY(m_layer->setLineHidden(3, true));
    QVERIFY(!m_layer->setLineHidden(3, true));
    QVERIFY(m_layer->setLineHidden(1, true));
    QVERIFY(!m_layer->setLineHidden(LineId(), true));
    QCOMPARE(m_layer->getHiddenLines(), (QList<LineId>{1, 3}));
    QCOMPARE(m_layer->getLineProperty(3, LinePropHidden), QVariant(true));
    QVERIFY(m_layer->setLineHidden(3, false));
    QVERIFY(!m_layer->setLineHidden(3, false));
    const QString lines = QString::number(int(LayerChange::Lines));
    QCOMPARE(changes(m_changes), (QStringList{lines + ":3", lines + ":1", lines + ":3"}));
}

void tst_BaseLayer::keepsValues()
{
    const VarId id = m_layer->id();
    QVERIFY(m_layer->setValue(id, 4, Value(12)));
    QCOMPARE(m_layer->getValue(id, 4), Value(12));
    QCOMPARE(m_layer->getValue(id, 4, Line()), Value(12));
    QVERIFY(!m_layer->isDefValue(id, 4));
    QCOMPARE(m_layer->getCellProperty(id, 4, CellPropChanged), QVariant(true));
    QCOMPARE(m_layer->getCellProperty(id, 5, CellPropChanged), QVariant(false));
    QCOMPARE(m_layer->getCellProperty(id, 4, CellPropRange), QVariant(QString("")));
    QVERIFY(!m_layer->setValue(id, LineId(), Value(12)));
    QVERIFY(m_layer->setValue(id, 4, Value(12)));
    QVERIFY(m_layer->setValue(id, 4, Value()));
    QVERIFY(m_layer->isDefValue(id, 4));
    const QString values = QString::number(int(LayerChange::Values));
    QCOMPARE(changes(m_changes), (QStringList{values + ":4", values + ":4"}));

    Var range = m_layer->getVar(id);
    range.setFW(true);
    m_layer->addVar(range);
    m_layer->setValue(id, 4, Value("1;2"));
    QCOMPARE(m_layer->getCellProperty(id, 4, CellPropRange), QVariant("1;2"));
}

void tst_BaseLayer::copiesLines()
{
    const VarId id = m_layer->id();
    m_layer->setValue(id, 1, Value("a"));
    m_layer->setLineKeyValue(1, "K", "M");
    m_layer->setLineHidden(1, true);
    QVERIFY(m_layer->copyLine(1, 2, m_layer->getVarList(), false));
    QCOMPARE(m_layer->getValue(id, 2), Value("a"));
    QCOMPARE(m_layer->getLineKeyValue(2, "K"), QVariant(QString("")));
    QVERIFY(m_layer->copyLine(1, 3, {}, true));
    QVERIFY(m_layer->getValue(id, 3).isNull());
    QCOMPARE(m_layer->getLineKeyValue(3, "K"), QVariant("M"));
    QCOMPARE(m_layer->getHiddenLines(), (QList<LineId>{1, 3}));
    QVERIFY(m_layer->copyLine(4, 2, m_layer->getVarList(), true));
    QVERIFY(m_layer->getValue(id, 2).isNull());
    QVERIFY(!m_layer->copyLine(1, LineId(), {}, true));
}

void tst_BaseLayer::deletesLines()
{
    const VarId id = m_layer->id();
    m_layer->setValue(id, 1, Value("a"));
    m_layer->setLineKeyValue(1, "K", "M");
    m_layer->setLineHidden(1, true);
    m_layer->setValue(id, 2, Value("b"));
    QVERIFY(m_layer->deleteLine(1));
    QVERIFY(!m_layer->deleteLine(1));
    QVERIFY(m_layer->getValue(id, 1).isNull());
    QCOMPARE(m_layer->getLineKeyValue(1, "K"), QVariant(QString("")));
    QVERIFY(m_layer->getHiddenLines().isEmpty());
    QCOMPARE(m_layer->getValue(id, 2), Value("b"));
}

void tst_BaseLayer::resets()
{
    const VarId id = m_layer->id();
    m_layer->setValue(id, 1, Value("a"));
    m_layer->setLineKeyValue(1, "K", "M");
    m_layer->setLineHidden(1, true);
    m_layer->reset();
    QVERIFY(m_layer->getValue(id, 1).isNull());
    QCOMPARE(m_layer->getLineKeyValue(1, "K"), QVariant(QString("")));
    QVERIFY(m_layer->getHiddenLines().isEmpty());
    QVERIFY(m_layer->isValid(id));
}

void tst_BaseLayer::fillsLineData()
{
    const VarId id = m_layer->id();
    const VarId other(3);
    LayerI::ValueMap values{{other, Value("kept")}};
    m_layer->fillLineData(1, Line(), values);
    QCOMPARE(values.size(), 1u);
    m_layer->setValue(id, 1, Value("a"));
    m_layer->fillLineData(1, Line(), values);
    QCOMPARE(values.size(), 2u);
    QCOMPARE(values.at(id), Value("a"));
    QCOMPARE(values.at(other), Value("kept"));
}

void tst_BaseLayer::filtersNothing()
{
    QVERIFY(m_layer->getFilterConditions().isEmpty());
    QVERIFY(!m_layer->getFilter({{"A", "X .EQ. 1"}}, Content()));
    QVERIFY(m_layer->getColumnFilter().isEmpty());
    m_layer->setColumnFilter(m_layer->id(), {"1", "2"});
    QCOMPARE(m_layer->getColumnFilter(m_layer->id()), (QStringList{"1", "2"}));
    QCOMPARE(m_layer->getColumnFilter().size(), 1);
    m_layer->setColumnFilter(m_layer->id(), {});
    QVERIFY(m_layer->getColumnFilter().isEmpty());
}

void tst_BaseLayer::keepsFilterConditionsByName()
{
    m_layer->addFilterCondition({"A", "1"});
    m_layer->addFilterCondition({"B", "2"});
    m_layer->addFilterCondition({"A", "3"});
    m_changes.clear();
    m_layer->removeFilterCondition("C");
    QVERIFY(m_changes.isEmpty());
    m_layer->removeFilterCondition("A");
    QCOMPARE(m_layer->getFilterConditions(), (QList<FilterCondition>{{"B", "2"}}));
    QCOMPARE(changes(m_changes), QStringList{QString("%1:-1").arg(int(LayerChange::Lines))});
}

void tst_BaseLayer::ordersColumns_data()
{
    QTest::addColumn<QStringList>("order");
    QTest::addColumn<QList<VarId>>("columns");
    QTest::newRow("no order") << QStringList() << ids({1, 2, 3, 4});
    QTest::newRow("others first") << QStringList{"...", "B"} << ids({1, 3, 4, 2});
    QTest::newRow("others last") << QStringList{"C", "..."} << ids({3, 1, 2, 4});
    QTest::newRow("others between") << QStringList{"D", "...", "A"} << ids({4, 2, 3, 1});
    QTest::newRow("without others") << QStringList{"D", "B"} << ids({4, 2, 1, 3});
    QTest::newRow("unknown name") << QStringList{"X", "...", "A"} << ids({2, 3, 4, 1});
    QTest::newRow("name twice") << QStringList{"B", "...", "B"} << ids({2, 1, 3, 4});
}

void tst_BaseLayer::ordersColumns()
{
    QFETCH(QStringList, order);
    const QList<Var> vars{named("A", 1), named("B", 2), named("C", 3), named("D", 4)};
    QHash<QString, Var> byName;
    for (const Var &var : vars)
        byName.insert(var.getName(), var);
    QTEST(m_layer->evaluateColumnMapping(vars, byName, order, {}), "columns");
    const auto withoutB = [](const Var &var) {
        return var.getName() != "B";
    };
    QFETCH(QList<VarId>, columns);
    columns.removeAll(VarId(2));
    QCOMPARE(m_layer->evaluateColumnMapping(vars, byName, order, withoutB), columns);
}

void tst_BaseLayer::groupsVariables()
{
    const QList<Var> vars{named("A", 1, {"x"}), named("B", 2), named("C", 3, {"y", "x"})};
    QHash<QString, Var> byName{{"B", named("B", 2, {"y"})}, {"A", vars[0]}, {"C", vars[2]}};
    const auto groups = m_layer->evaluateVariableToGroupMapping({{VarId(1), {"z"}}}, vars, byName);
    QCOMPARE(groups.keys(), (QStringList{"x", "y", "z"}));
    QCOMPARE(groups.value("z"), ids({1}));
    QCOMPARE(groups.value("y"), ids({2, 3}));
    QCOMPARE(groups.value("x"), ids({3}));
}

void tst_BaseLayer::copiesAreIndependent()
{
    const VarId id = m_layer->id();
    m_layer->setValue(id, 1, Value("a"));
    m_layer->setLineKeyValue(1, "K", "M");
    const auto copy = m_layer->clone();
    m_changes.clear();
    copy->setValue(id, 1, Value("b"));
    copy->setLineHidden(2, true);
    QVERIFY(m_changes.isEmpty());
    QCOMPARE(m_layer->getValue(id, 1), Value("a"));
    QCOMPARE(copy->getValue(id, 1), Value("b"));
    QCOMPARE(copy->getLineKeyValue(1, "K"), QVariant("M"));
    QCOMPARE(copy->getLayerType(), OneColumnLayer::type());
    QCOMPARE(copy->getKeyValue(KeyColumnOrder).toStringList().size(), 2);
    QVERIFY(m_layer->getHiddenLines().isEmpty());
}

void tst_BaseLayer::aDefaultLayerIsEmpty()
{
    const BaseLayer layer;
    QCOMPARE(layer.getLayerType(), 0);
    QVERIFY(!layer.isValid());
    QVERIFY(layer.getVarGroups().isEmpty());
    ContentRef table = TestTables::screws();
    table.addLayer(layer);
    QCOMPARE(table.getVarList().size(), 5);
}

QTEST_GUILESS_MAIN(tst_BaseLayer)
#include "tst_BaseLayer.moc"
