#include "../support/TestTables.h"

#include <core/component/mzComExceptionC.h>
#include <core/component/mzIDispatchC.h>
#include <core/component/proxyAutoTypeCastC.h>
#include <geomcore/table/ErpLayer.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/table/ModifyLayer.h>
#include <geomcore/table/proxyTableC.h>
#include <geomcore/table/SignalConnect.h>

#include <QTest>

using namespace VKTab;

namespace {

/// ERP numbers from a hash.
class FakeErp : public ErpDataSourceI
{
public:
    QList<Var> columns() const override
    {
        Var number(VarTypeForeign);
        number.setName("ERP_NO");
        Var state(VarTypeForeign);
        state.setName("ERP_STATE");
        return {number, state};
    }
    std::optional<QHash<QString, Value>> values(const LineId &line) override
    {
        if (!connected)
            return std::nullopt;
        return lines.value(line);
    }

    bool connected = true;
    QHash<LineId, QHash<QString, Value>> lines;
};

} // namespace

Q_DECLARE_METATYPE(mzComVariantC)
Q_DECLARE_METATYPE(mzComVariantArrayC)

class tst_Layers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_table = TestTables::screws(); }
    void theFileLayerGivesWhatTheFileHas();
    void theFileLayerTakesNoValues();
    void theFileLayerKnowsItsDate();
    void aHeadHasNoLines();
    void fileLayersShareTheirData();
    void theModifyLayerTakesAnyVariable();
    void theModifyLayerCopiesLines();
    void theModifyLayerFillsWhatChanged();
    void erpColumnsAreAttachedToLines();
    void erpUpdatesCountChanges();
    void erpFailuresKeepOldValues();
    void erpUpdatesAreNoModifications();
    void aProxyGivesItsTable();
    void aProxyTellsOfItsTable_data();
    void aProxyTellsOfItsTable();
    void aProxyRefusesUnknownColumns();
    void aProxyOfNothing();

private:
    ContentRef m_table;
};

void tst_Layers::theFileLayerGivesWhatTheFileHas()
{
    const auto file = m_table.getFileLayer();
    QCOMPARE(file->getLayerType(), registerLayerType("VKTab::FileLayer"));
    QVERIFY(file->isValid());
    const VarId l = file->getVarId(u"L");
    QCOMPARE(file->getValue(l, 1).toString(), "10;12;16");
    QCOMPARE(file->getValue(file->getVarId(u"Weight"), 1).toString(), "0.5");
    QCOMPARE(file->getValue(file->getVarId(u"Volume"), 1).toString(), "16");
    QVERIFY(file->getValue(l, 99).isNull());
    QVERIFY(file->getValue(VarId(), 1).isNull());
    QCOMPARE(file->getLineInfo(2), LineInfo(2, 1));
    QCOMPARE(file->getLineInfoList().size(), 4);
    QCOMPARE(file->getLineProperty(2, LinePropRow), QVariant(1));
    QVERIFY(!file->getLineProperty(99, LinePropRow).isValid());
    QCOMPARE(file->getLineProperties(), (QList<LinePropId>{LinePropRow, LinePropHidden}));
    QCOMPARE(file->getCellProperty(l, 1, CellPropRange), QVariant("10;12;16"));
    QCOMPARE(file->getCellProperty(file->getVarId(u"Dia"), 1, CellPropRange),
             QVariant(QString("")));
    QCOMPARE(file->getVarProperty(file->getVarId(u"Weight"), VarPropUnit), QVariant("kg"));
    LayerI::ValueMap values;
    file->fillLineData(3, Line(), values);
    QCOMPARE(values.size(), 4u); // one value is missing
    QCOMPARE(values.at(l).toString(), "10..50/5");
}

void tst_Layers::theFileLayerTakesNoValues()
{
    const auto file = m_table.getFileLayer();
    const VarId dia = file->getVarId(u"Dia");
    QVERIFY(file->isLocked(dia, 1));
    QVERIFY(file->isDefValue(dia, 1));
    QVERIFY(!file->setValue(dia, 1, Value(9)));
    QCOMPARE(file->getCellProperty(dia, 1, CellPropChanged), QVariant(false));
    QCOMPARE(file->getValue(dia, 1).toString(), "8");
}

void tst_Layers::theFileLayerKnowsItsDate()
{
    const auto file = m_table.getFileLayer();
    QCOMPARE(file->getFinalDate(""), "2024-05-01T10:00:00Z");
    QCOMPARE(file->getFinalDate("POOLID"), "pool7");
    QCOMPARE(file->getFinalDate("unknown"), "");
    QCOMPARE(FileLayer().getFinalDate(""), "");
}

void tst_Layers::aHeadHasNoLines()
{
    const FileLayer head(TestTables::screwDescriptor());
    QVERIFY(!head.isValid());
    QCOMPARE(head.getFinalDate(""), "2024-05-01T10:00:00Z");
    QCOMPARE(head.getKeyValue(KeyNormNumber).toString(), "DIN 931");
    QCOMPARE(head.getVarList().size(), 5);
    QVERIFY(head.getLineInfoList().isEmpty());
    QVERIFY(head.getValue(head.getVarId(u"Dia"), 1).isNull());
    ContentRef table;
    table.setFileLayer(boost::make_shared<FileLayer>(head));
    QVERIFY(!table.isValid());
    QVERIFY(!table.getLine(1, false).isValid());
    QCOMPARE(table.getLineMapping().count(), 0);
}

void tst_Layers::fileLayersShareTheirData()
{
    const auto file = m_table.getFileLayer();
    const auto copy = boost::dynamic_pointer_cast<FileLayer>(file->clone());
    QVERIFY(copy);
    QCOMPARE(copy->data(), file->data());
    copy->removeFilterCondition("X");
    copy->setKeyValue(KeyNormNumber, "other");
    QCOMPARE(file->getKeyValue(KeyNormNumber).toString(), "DIN 931");
}

void tst_Layers::theModifyLayerTakesAnyVariable()
{
    const auto modify = m_table.getModifyLayer();
    const VarId note = m_table.getVar(u"Note").getVarId();
    QVERIFY(modify->isValid());
    QVERIFY(modify->getVarList().isEmpty());
    QVERIFY(!modify->isLocked(note, 1));
    QVERIFY(modify->isLocked(VarId(), 1));
    QVERIFY(!modify->setValue(VarId(), 1, Value("x")));
    QVERIFY(modify->setValue(note, 1, Value("x")));
    QCOMPARE(modify->getValue(note, 1).toString(), "x");
    QVERIFY(!modify->isDefValue(note, 1));
    QVERIFY(modify->isDefValue(note, 2));
    QVERIFY(modify->getRangeFilter(1).isEmpty());
    const auto copy = boost::dynamic_pointer_cast<ModifyLayer>(modify->clone());
    QVERIFY(copy);
    QCOMPARE(copy->getValue(note, 1).toString(), "x");
}

void tst_Layers::theModifyLayerCopiesLines()
{
    const auto modify = m_table.getModifyLayer();
    const Var note = m_table.getVar(u"Note");
    modify->setValue(note.getVarId(), 1, Value("x"));
    modify->setLineKeyValue(1, "K", "M");
    QVERIFY(modify->copyLine(1, 2, {note}, true));
    QCOMPARE(m_table.getLine(2, false).getValue(note, FormatPlain, {}).toString(), "x");
    QCOMPARE(m_table.getLine(2, false).getLineKeyValue("K"), QVariant("M"));
    QVERIFY(!modify->copyLine(1, 2, {Var()}, true));
    QVERIFY(modify->deleteLine(2));
    QCOMPARE(m_table.getLine(2, false).getValue(note, FormatPlain, {}).toString(), "galvanised");
}

void tst_Layers::theModifyLayerFillsWhatChanged()
{
    const auto modify = m_table.getModifyLayer();
    const VarId note = m_table.getVar(u"Note").getVarId();
    LayerI::ValueMap values;
    m_table.getFileLayer()->fillLineData(1, Line(), values);
    modify->setValue(note, 1, Value("x"));
    modify->fillLineData(1, Line(), values);
    QCOMPARE(values.size(), 5u);
    QCOMPARE(values.at(note).toString(), "x");
}

void tst_Layers::erpColumnsAreAttachedToLines()
{
    const auto source = std::make_shared<FakeErp>();
    source->lines[2] = {{"ERP_NO", Value("4711")}};
    m_table.addLayer(ErpLayer(source));
    const Var number = m_table.getVar(u"ERP_NO");
    QVERIFY(number.isValid());
    QCOMPARE(number.getVarSource(), registerLayerType("VKTab::ErpLayer"));
    const auto layer = boost::dynamic_pointer_cast<ErpLayer>(
        m_table.getLayer(registerLayerType("VKTab::ErpLayer")));
    QVERIFY(layer);
    QVERIFY(m_table.getLine(2, false).getValue(number, FormatPlain, {}).isNull());
    QCOMPARE(layer->updatePLMInfo(2), 1);
    QCOMPARE(m_table.getLine(2, false).getValue(number, FormatPlain, {}).toString(), "4711");
    QVERIFY(m_table.getLine(1, false).getValue(number, FormatPlain, {}).isNull());
    QVERIFY(layer->isLocked(number.getVarId(), 2));
    QVERIFY(!layer->setValue(number.getVarId(), 2, Value("x")));
}

void tst_Layers::erpUpdatesCountChanges()
{
    const auto source = std::make_shared<FakeErp>();
    ErpLayer layer(source);
    source->lines[2] = {{"ERP_NO", Value("1")}, {"ERP_STATE", Value("new")}, {"MORE", Value("x")}};
    QCOMPARE(layer.updatePLMInfo(2), 2);
    QCOMPARE(layer.updatePLMInfo(LineId(2, 0)), 0);
    source->lines[2].remove("ERP_STATE");
    QCOMPARE(layer.updatePLMInfo(2), 1);
    QVERIFY(layer.getValue(layer.getVarId(u"ERP_STATE"), 2).isNull());
    source->lines.clear();
    QCOMPARE(layer.updatePLMInfo(2), 1);
}

void tst_Layers::erpFailuresKeepOldValues()
{
    const auto source = std::make_shared<FakeErp>();
    ErpLayer layer(source);
    source->lines[2] = {{"ERP_NO", Value("1")}};
    QCOMPARE(layer.updatePLMInfo(2), 1);
    source->connected = false;
    QCOMPARE(layer.updatePLMInfo(2), -1);
    QCOMPARE(layer.getValue(layer.getVarId(u"ERP_NO"), 2).toString(), "1");
    QCOMPARE(layer.updatePLMInfo(-1), -1);
    QCOMPARE(ErpLayer(nullptr).updatePLMInfo(2), -1);
    QVERIFY(!ErpLayer(nullptr).isValid());
}

void tst_Layers::erpUpdatesAreNoModifications()
{
    const auto source = std::make_shared<FakeErp>();
    source->lines[2] = {{"ERP_NO", Value("4711")}};
    m_table.addLayer(ErpLayer(source));
    QStringList log;
    const boost::signals2::scoped_connection modified =
        m_table.signalConnect().connectSignalLineModified(
            [&](const Content &, const LineId &, bool) {
                log.append("modified");
                return 0;
            });
    const boost::signals2::scoped_connection status =
        m_table.signalConnect().connectSignalLineStatus(
            [&](const Content &, const LineId &id) { log.append(QString::number(id.value(0))); });
    boost::dynamic_pointer_cast<ErpLayer>(m_table.getLayer(erpLayerType()))->updatePLMInfo(2);
    QCOMPARE(log, QStringList{"2"});
    QVERIFY(m_table.isPlain());
}

void tst_Layers::aProxyGivesItsTable()
{
    const ProxyPtrT<proxyTableC> proxy(new proxyTableC(m_table));
    QVERIFY(proxy->getContent() == m_table);
    const proxyAutoTypeCastC argument{mzComVariantC(proxy.get())};
    QVERIFY(argument.get<ProxyPtrT<proxyTableC>>() == proxy);
    QVERIFY_THROWS_EXCEPTION(
        mzComExceptionC,
        static_cast<void>(proxyAutoTypeCastC(mzComVariantC("text")).get<ProxyPtrT<proxyTableC>>()));
}

/// By name, as scripts ask.
void tst_Layers::aProxyTellsOfItsTable_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<mzComVariantArrayC>("arguments");
    QTest::addColumn<mzComVariantC>("expected");
    const auto row = [](const char *member, const mzComVariantArrayC &arguments,
                        const mzComVariantC &expected) {
        QTest::addRow("%s %d %s", member, arguments[0].getInt(),
                      qPrintable(arguments.toQStringList().join(u' ')))
            << member << arguments << expected;
    };
    row("isValid", {}, true);
    row("normNumber", {}, "DIN 931");
    row("lineCount", {}, 4);
    row("lineAt", {0}, 1);
    row("lineAt", {3}, 4);
    row("lineAt", {4}, -1);
    row("lineAt", {-1}, -1);
    row("hasLine", {4}, true);
    row("hasLine", {5}, false);
    row("isVisible", {1}, true);
    row("isVisible", {5}, false);
    row("normNumberOf", {2}, "DIN 931");
    row("designationOf", {2}, "DIN 931 - 10 x 20");
    row("designationOf", {9}, "");
    row("columnCount", {}, 5);
    row("columnAt", {3}, "Weight");
    row("columnAt", {5}, "");
    row("hasColumn", {"L"}, true);
    row("hasColumn", {"l"}, false);
    row("titleOf", {"Dia"}, "Durchmesser");
    row("value", {1, "L"}, "10;12;16");
    row("value", {2, "Weight"}, "1.25");
    row("value", {4, "Note"}, "a \"b\"");
    row("value", {4, "L"}, "");
    row("value", {9, "L"}, "");
    row("number", {2, "Weight"}, 1.25);
    row("number", {3, "Volume"}, 24.0);
    row("number", {1, "L"}, {});
    row("number", {1, "Note"}, {});
    row("findLine", {"Dia", "12.0"}, 3);
    row("findLine", {"Note", "galvanised"}, 2);
    row("findLine", {"Note", "none"}, -1);
}

void tst_Layers::aProxyTellsOfItsTable()
{
    QFETCH(QString, member);
    QFETCH(mzComVariantArrayC, arguments);
    const ProxyPtrT<proxyTableC> proxy(new proxyTableC(m_table));
    const mzIDispatchC object(proxy->getIUnknown());
    const int kind =
        arguments.size() > 0 ? proxyMemberDescS::Method : proxyMemberDescS::PropertyRead;
    mzComVariantC result;
    std::optional<PScriptException> exception;
    QCOMPARE(object.invoke(member, kind, arguments, result, exception), int(mzComSuccess));
    QFETCH(mzComVariantC, expected);
    QVERIFY(result == expected);
}

void tst_Layers::aProxyRefusesUnknownColumns()
{
    const ProxyPtrT<proxyTableC> proxy(new proxyTableC(m_table));
    mzComVariantC result;
    std::optional<PScriptException> exception;
    for (const char *member : {"value", "number"}) {
        QCOMPARE(
            proxy->invokeByName(member, proxyMemberDescS::Method, {1, "%1"}, result, exception),
            int(mzComFailed));
        QCOMPARE(exception->message, QStringLiteral("The table \"\" has no column \"%1\""));
    }
}

void tst_Layers::aProxyOfNothing()
{
    const ProxyPtrT<proxyTableC> proxy(new proxyTableC(ContentRef()));
    QVERIFY(!proxy->isValid());
    QCOMPARE(proxy->lineCount(), 0);
    QCOMPARE(proxy->lineAt(0), -1);
    QCOMPARE(proxy->columnCount(), 0);
    QVERIFY(proxy->designationOf(1).isEmpty());
    QVERIFY(!proxy->hasLine(0));
}

QTEST_GUILESS_MAIN(tst_Layers)
#include "tst_Layers.moc"
