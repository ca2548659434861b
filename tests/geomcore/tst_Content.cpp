#include "../support/TestTables.h"

#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/FilterByLineId.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/table/SignalConnect.h>
#include <geomcore/table/TabOptions.h>

#include <QTest>

using namespace VKTab;

namespace {

/// A column of line numbers, the way that a plug-in adds one.
class LineNumberLayer : public BaseLayer
{
public:
    LineNumberLayer()
        : m_id(getLayerIdOffset(type()))
    {
        Var var(static_cast<VarType>(1));
        var.setVarId(m_id);
        var.setVarSource(type());
        var.setName("LINE_ID");
        var.setDescription("Zeilennummer");
        var.setDataType(static_cast<DataType>(6));
        var.setVida(VIDA('I', 0, false));
        addVar(var);
        setKeyValue(static_cast<KeyValueId>(18), QStringList{"...", "LINE_ID"});
    }
    static int type()
    {
        static const int id = registerLayerType("LineNumberLayer");
        return id;
    }
    boost::shared_ptr<LayerI> clone() const override
    {
        return boost::make_shared<LineNumberLayer>(*this);
    }
    Value getValue(const VarId &id, const LineId &line, const LineI &) const override
    {
        return getValue(id, line);
    }
    Value getValue(const VarId &id, const LineId &line) const override
    {
        return line.isValid() && id == m_id ? Value(line.value(0)) : BaseLayer::getValue(id, line);
    }

private:
    VarId m_id;
};

QStringList names(const Content &content, const QList<VarId> &ids)
{
    QStringList result;
    for (const VarId &id : ids)
        result.append(content.getVar(id).getName());
    return result;
}

QStringList names(const QList<Var> &vars)
{
    QStringList result;
    for (const Var &var : vars)
        result.append(var.getName());
    return result;
}

QList<int> numbers(const QVector<LineId> &ids)
{
    QList<int> result;
    for (const LineId &id : ids)
        result.append(id.value(0));
    return result;
}

QString shown(const Line &line, const Content &content, const QString &name)
{
    return line.getValue(content.getVar(name), FormatPlain | FormatUntranslated).toString();
}

/// Writes down what a table tells its listeners.
class Recorder
{
public:
    explicit Recorder(const Content &content)
        : m_selected(content.signalConnect().connectSignalLineSelected(
              [this](const Content &, const LineId &id, bool on) {
                  log.append(QString("selected %1 %2").arg(id.value(0)).arg(int(on)));
                  return 0;
              },
              ConnectGroupUser))
        , m_modified(content.signalConnect().connectSignalLineModified(
              [this](const Content &, const LineId &id, bool on) {
                  log.append(QString("modified %1 %2").arg(id.value(0)).arg(int(on)));
                  return 0;
              }))
        , m_invalidated(content.signalConnect().connectSignalInvalidated(
              [this](const Content &, Content::InvalidateFlags flags) {
                  log.append(QString("invalidated %1").arg(int(flags)));
              }))
        , m_status(content.signalConnect().connectSignalLineStatus(
              [this](const Content &, const LineId &id) {
                  log.append(QString("status %1").arg(id.value(0)));
              }))
    {
    }

    QStringList log;

private:
    boost::signals2::scoped_connection m_selected;
    boost::signals2::scoped_connection m_modified;
    boost::signals2::scoped_connection m_invalidated;
    boost::signals2::scoped_connection m_status;
};

} // namespace

class tst_Content : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultContentIsInvalidButTakesOptions();
    void aDefaultReferenceRefersToNothing();
    void theHubOfNothingKeepsNoListener();
    void aListenerMayLetGoOfTheTable();
    void copiesSeeTheSameTable();
    void assignmentRebinds();
    void aReferenceToNothingCanBeFilled();
    void readingAgainDropsWhatWasOfTheFormerTable();
    void givesLines();
    void givesNoLineForOtherIds_data();
    void givesNoLineForOtherIds();
    void givesVariables();
    void ordersColumns();
    void addsAndReplacesLayers();
    void givesFactsAboutTheTable();
    void selects();
    void theNewSelectionHoldsDuringBothCalls();
    void aListenerMaySelectAnotherLine();
    void callsLowerGroupsFirst();
    void droppedConnectionsAreNotCalled();
    void tellsOfChangedCells();
    void tellsOfStatusKeysApart();
    void invalidateTellsTheFlags();
    void showsWhatFiltersLeave();
    void filterByAscendingNumbers();
    void mappingsAreSnapshots();
};

void tst_Content::aDefaultContentIsInvalidButTakesOptions()
{
    Content content;
    QVERIFY(!content.isValid());
    QVERIFY(!content.getOptions());
    QVERIFY(!content.getFileLayer());
    QVERIFY(content.getModifyLayer());
    QVERIFY(content.getLineIdList().isEmpty());
    QVERIFY(content.getVarList().isEmpty());
    QVERIFY(!content.getLine(1, false).isValid());
    const auto options = boost::make_shared<TabOptions>();
    content.setOptions(options);

    ContentRef ref = content;
    ref.setFileLayer(boost::make_shared<FileLayer>(
        TestTables::data(TestTables::screwDescriptor(), TestTables::screwLines())));
    QVERIFY(content.isValid());
    QCOMPARE(content.getOptions(), options);
}

void tst_Content::aDefaultReferenceRefersToNothing()
{
    ContentRef ref;
    QVERIFY(!ref.isValid());
    ref.setOptions(boost::make_shared<TabOptions>());
    QVERIFY(!ref.getOptions());
    QVERIFY(!ref.getModifyLayer());
    QVERIFY(!ref.getSelection().isValid());
    QVERIFY(!ref.setSelection(1, true));
    QVERIFY(!ref.getLine(1, true).isValid());
    QVERIFY(!ref.getLineInfo(1).getLineId().isValid());
    QVERIFY(!ref.isLineVisible(1));
    QVERIFY(!ref.getVar(u"Dia").isValid());
    QVERIFY(!ref.getKeyValue(KeyNormNumber).isValid());
    QCOMPARE(ref.getLineMapping().getOrdered().size(), 0);
    QCOMPARE(ref.translateText("text", VarId()), "text");
    ref.setFilter(FilterByLineId({{1, {}}}, true));
    ref.invalidate(Content::InvalidateFilter, true);
    ref.addLayer(LineNumberLayer());
    bool called = false;
    ref.signalConnect().connectSignalInvalidated(
        [&](const Content &, Content::InvalidateFlags) { called = true; });
    ref.invalidate(Content::InvalidateFilter, true);
    QVERIFY(!called);
}

void tst_Content::theHubOfNothingKeepsNoListener()
{
    const auto heard = std::make_shared<int>(0);
    SignalConnect &hub = ContentRef().signalConnect();
    const auto line = [heard](const Content &, const LineId &, bool) {
        return ++*heard;
    };
    QVERIFY(!hub.connectSignalLineSelected(line, ConnectGroupUser).connected());
    QVERIFY(!hub.connectSignalLineModified(line).connected());
    QVERIFY(!hub.connectSignalInvalidated([heard](const Content &, Content::InvalidateFlags) {})
                 .connected());
    QVERIFY(!hub.connectSignalLineStatus([heard](const Content &, const LineId &) {}).connected());
    QCOMPARE(heard.use_count(), 2); // the test's own two
}

void tst_Content::aListenerMayLetGoOfTheTable()
{
    auto table = std::make_unique<ContentRef>(TestTables::screws());
    QVERIFY(table->setSelection(1, true));
    QStringList heard;
    table->signalConnect().connectSignalLineSelected(
        [&](const Content &, const LineId &id, bool on) {
            heard.append(QString("%1 %2").arg(id.value(0)).arg(int(on)));
            table.reset();
            return 0;
        },
        ConnectGroupUser);
    table->setSelection(2, true);
    QVERIFY(!table);
    QCOMPARE(heard, QStringList({"1 0", "2 1"}));
}

void tst_Content::copiesSeeTheSameTable()
{
    const ContentRef table = TestTables::screws();
    Content copy = table;
    ContentRef other = copy;
    QVERIFY(other.setSelection(3, true));
    QCOMPARE(table.getSelection(), LineId(3));
    QVERIFY(copy == table);
    QVERIFY(!(copy == TestTables::screws()));
}

void tst_Content::assignmentRebinds()
{
    const ContentRef first = TestTables::screws();
    const ContentRef second = TestTables::screws();
    ContentRef ref = first;
    ContentRef copy = ref;
    ref = second;
    QVERIFY(ref == second);
    QVERIFY(copy == first);
    ref = Content(first);
    QVERIFY(ref == first);
    ref = ContentRef();
    QVERIFY(!ref.isValid());
    QVERIFY(first.isValid());
}

void tst_Content::aReferenceToNothingCanBeFilled()
{
    ContentRef ref;
    ref.setFileLayer(boost::make_shared<FileLayer>(
        TestTables::data(TestTables::screwDescriptor(), TestTables::screwLines())));
    QVERIFY(ref.isValid());
    QCOMPARE(ref.getLineCount(), 4);
}

void tst_Content::readingAgainDropsWhatWasOfTheFormerTable()
{
    ContentRef table = TestTables::screws();
    const auto options = boost::make_shared<TabOptions>();
    table.setOptions(options);
    table.setSelection(2, true);
    table.setFilter(FilterByLineId({{1, {}}}, true));
    table.addLayer(LineNumberLayer());
    table.getModifyLayer()->setLineKeyValue(1, "K", "M");
    Recorder recorder(table);
    const auto file = table.getFileLayer();

    table.setFileLayer(file);
    QCOMPARE(recorder.log, QStringList{"invalidated 7"});
    QCOMPARE(table.getOptions(), options);
    QVERIFY(!table.getSelection().isValid());
    QVERIFY(table.isLineVisible(2));
    QVERIFY(!table.getLayer(LineNumberLayer::type()));
    QCOMPARE(table.getLine(1, false).getLineKeyValue("K").toString(), "");

    table.setFileLayer(nullptr);
    QVERIFY(!table.isValid());
    QVERIFY(!table.getLine(1, false).isValid());
}

void tst_Content::givesLines()
{
    const ContentRef table = TestTables::screws();
    QCOMPARE(numbers(table.getLineIdList()), (QList<int>{1, 2, 3, 4}));
    QCOMPARE(table.getLineCount(), 4);
    const QList<LineInfo> infos = table.getLineInfoList();
    QCOMPARE(infos.size(), 4);
    QCOMPARE(infos[2], LineInfo(LineId(3, 0), 2));
    QCOMPARE(table.getLineInfo(3), infos[2]);
    QCOMPARE(table.getLineInfo(LineId(3, 0)).getLineId(), LineId(3));
    const Line line = table.getLine(3, false);
    QVERIFY(line.isValid());
    QCOMPARE(line.getLineInfo(), infos[2]);
    QVERIFY(table.getLine(3, true).isValid());
}

void tst_Content::givesNoLineForOtherIds_data()
{
    QTest::addColumn<LineId>("id");
    QTest::newRow("default") << LineId();
    QTest::newRow("no line") << LineId(-1);
    QTest::newRow("zero") << LineId(0);
    QTest::newRow("beyond the last") << LineId(5);
    QTest::newRow("other second number") << LineId(1, 1);
}

void tst_Content::givesNoLineForOtherIds()
{
    QFETCH(LineId, id);
    ContentRef table = TestTables::screws();
    QVERIFY(!table.getLine(id, false).isValid());
    QVERIFY(!table.getLine(id, true).isValid());
    QVERIFY(!table.getLineInfo(id).isValid());
    QVERIFY(!table.isLineVisible(id));
    QCOMPARE(table.getLineMapping().getRow(id), -1);
}

void tst_Content::givesVariables()
{
    const ContentRef table = TestTables::screws();
    QCOMPARE(names(table.getVarList()), (QStringList{"Dia", "L", "Note", "Weight", "Volume"}));
    const Var var = table.getVar(u"L");
    QVERIFY(var.isValid() && var.isFW() && var.isNumeric());
    QCOMPARE(var.getZTypeAsString(), "SM");
    QCOMPARE(var.getVarSource(), registerLayerType("VKTab::FileLayer"));
    QCOMPARE(table.getVar(var.getVarId()), var);
    QVERIFY(!table.getVar(u"l").isValid());
    QVERIFY(!table.getVar(u"").isValid());
    QVERIFY(!table.getVar(VarId()).isValid());
    QVERIFY(!table.getVar(VarId(17)).isValid());
    QCOMPARE(table.getVar(u"Dia").getDescription(), "Durchmesser");
    QVERIFY(table.getVar(u"Weight").isHidden());
    QCOMPARE(table.getVar(u"Volume").getVarType(), VarTypeComputed);
    QCOMPARE(table.getLine(1, false).getVarList(), table.getVarList());
    QVERIFY(table.getLine(1, false).getVarList().isSharedWith(table.getVarList()));
}

void tst_Content::ordersColumns()
{
    ContentRef table = TestTables::screws();
    QCOMPARE(names(table, table.getColumnMapping().getOrdered()),
             (QStringList{"Dia", "L", "Note", "Weight", "Volume"}));
    table.getFileLayer()->setKeyValue(KeyColumnOrder, QStringList{"Note", "...", "Dia"});
    table.invalidate(Content::InvalidateColumns, true);
    QCOMPARE(names(table, table.getColumnMapping().getOrdered()),
             (QStringList{"Note", "L", "Weight", "Volume", "Dia"}));
    table.addLayer(LineNumberLayer());
    QCOMPARE(names(table, table.getColumnMapping().getOrdered()),
             (QStringList{"Note", "L", "Weight", "Volume", "Dia", "LINE_ID"}));
    // The order of variables stays that of the table.
    QCOMPARE(names(table.getVarList()),
             (QStringList{"Dia", "L", "Note", "Weight", "Volume", "LINE_ID"}));
}

void tst_Content::addsAndReplacesLayers()
{
    ContentRef table = TestTables::screws();
    Recorder recorder(table);
    LineNumberLayer layer;
    table.addLayer(layer);
    QCOMPARE(recorder.log, QStringList{"invalidated 2"});
    const auto added = table.getLayer(LineNumberLayer::type());
    QVERIFY(added && added.get() != &layer);
    QCOMPARE(shown(table.getLine(3, false), table, "LINE_ID"), "3");
    const Value value = table.getLine(3, false).getValue(table.getVar(u"LINE_ID"), {}, {});
    QVERIFY(value.isNumber());
    table.addLayer(layer);
    QVERIFY(table.getLayer(LineNumberLayer::type()) != added);
    QCOMPARE(table.getVarList().size(), 6);
    QCOMPARE(table.getLayer(fileLayerType()), table.getFileLayer());
    QVERIFY(!table.getLayer(erpLayerType()));
    QVERIFY(!table.getLayer(0));

    // The layer's own change of columns reaches the table.
    Var var(VarTypeForeign);
    var.setName("MORE");
    auto own = boost::dynamic_pointer_cast<BaseLayer>(table.getLayer(LineNumberLayer::type()));
    var.setVarId(VarId(getLayerIdOffset(LineNumberLayer::type()) + 1));
    own->addVar(var);
    QVERIFY(!table.getVar(u"MORE").isValid());
    recorder.log.clear();
    own->updateVariableStructure();
    QCOMPARE(recorder.log, QStringList{"invalidated 2"});
    QVERIFY(table.getVar(u"MORE").isValid());
}

void tst_Content::givesFactsAboutTheTable()
{
    ContentRef table = TestTables::screws();
    QCOMPARE(table.getKeyValue(static_cast<KeyValueId>(11)).toString(), "DIN 931");
    table.getFileLayer()->setKeyValue(KeyProjectPath, "$TORMEVA_DATA/23d-libs/a/b.prj");
    QCOMPARE(table.getKeyValue(static_cast<KeyValueId>(20)).toString(),
             "$TORMEVA_DATA/23d-libs/a/b.prj");
    QCOMPARE(table.getKeyValue("POOLID").toString(), "pool7");
    QCOMPARE(table.getKeyValue("poolid").toString(), "");
}

void tst_Content::selects()
{
    ContentRef table = TestTables::screws();
    Recorder recorder(table);
    QVERIFY(!table.getSelection().isValid());
    QVERIFY(table.setSelection(2, true));
    QCOMPARE(recorder.log, QStringList{"selected 2 1"});
    recorder.log.clear();
    QVERIFY(table.setSelection(LineId(3, 0), true));
    QCOMPARE(recorder.log, (QStringList{"selected 2 0", "selected 3 1"}));
    recorder.log.clear();
    QVERIFY(table.setSelection(3, true));
    QVERIFY(!table.setSelection(99, true));
    QCOMPARE(table.getSelection(), LineId(3));
    QVERIFY(recorder.log.isEmpty());
    QVERIFY(table.setSelection(1, false));
    QVERIFY(recorder.log.isEmpty());
    QVERIFY(table.setSelection(LineId(), true));
    QCOMPARE(recorder.log, QStringList{"selected 1 0"});
    QVERIFY(!table.getSelection().isValid());
}

void tst_Content::theNewSelectionHoldsDuringBothCalls()
{
    ContentRef table = TestTables::screws();
    table.setSelection(1, true);
    QList<int> seen;
    const boost::signals2::scoped_connection connection =
        table.signalConnect().connectSignalLineSelected(
            [&](const Content &content, const LineId &, bool) {
                seen.append(content.getSelection().value(0));
                return 0;
            },
            ConnectGroupUser);
    table.setSelection(4, true);
    QCOMPARE(seen, (QList<int>{4, 4}));
}

void tst_Content::aListenerMaySelectAnotherLine()
{
    ContentRef table = TestTables::screws();
    table.setSelection(1, true);
    const boost::signals2::scoped_connection connection =
        table.signalConnect().connectSignalLineSelected(
            [&](const Content &, const LineId &id, bool on) {
                if (id == LineId(1) && !on)
                    table.setSelection(3, true);
                return 0;
            },
            ConnectGroupLibrary);
    Recorder recorder(table);
    table.setSelection(2, true);
    QCOMPARE(table.getSelection(), LineId(3));
    QVERIFY(!recorder.log.contains("selected 2 1"));
    QVERIFY(recorder.log.contains("selected 3 1"));
}

void tst_Content::callsLowerGroupsFirst()
{
    ContentRef table = TestTables::screws();
    QStringList order;
    const auto slot = [&](const QString &name) {
        return [&order, name](const Content &, const LineId &, bool) {
            order.append(name);
            return -1;
        };
    };
    SignalConnect &hub = table.signalConnect();
    hub.connectSignalLineSelected(slot("user 1"), static_cast<ConnectGroup>(1));
    hub.connectSignalLineSelected(slot("library"), ConnectGroupLibrary);
    hub.connectSignalLineSelected(slot("user 2"), static_cast<ConnectGroup>(1));
    table.setSelection(1, true);
    QCOMPARE(order, (QStringList{"library", "user 1", "user 2"}));
}

void tst_Content::droppedConnectionsAreNotCalled()
{
    ContentRef table = TestTables::screws();
    int calls = 0;
    {
        const boost::signals2::scoped_connection connection =
            table.signalConnect().connectSignalLineSelected(
                [&](const Content &, const LineId &, bool) { return ++calls; }, ConnectGroupUser);
        table.setSelection(1, true);
    }
    table.setSelection(2, true);
    QCOMPARE(calls, 1);
}

void tst_Content::tellsOfChangedCells()
{
    ContentRef table = TestTables::screws();
    QVERIFY(table.isPlain());
    Recorder recorder(table);
    const VarId note = table.getVar(u"Note").getVarId();
    const auto modify = table.getModifyLayer();
    QVERIFY(modify->setValue(note, 2, Value("black")));
    QCOMPARE(recorder.log, QStringList{"modified 2 1"});
    QVERIFY(!table.isPlain());
    QCOMPARE(shown(table.getLine(2, false), table, "Note"), "black");
    QCOMPARE(shown(table.getLine(1, false), table, "Note"), "blank");
    recorder.log.clear();
    QVERIFY(modify->setValue(note, 2, Value("black")));
    QVERIFY(recorder.log.isEmpty());
    QVERIFY(modify->setValue(note, 2, Value()));
    QCOMPARE(recorder.log, QStringList{"modified 2 0"});
    QVERIFY(table.isPlain());
    QCOMPARE(shown(table.getLine(2, false), table, "Note"), "galvanised");
    modify->setValue(note, 2, Value("black"));
    recorder.log.clear();
    modify->reset();
    QCOMPARE(recorder.log, (QStringList{"status -1", "invalidated 1"}));
    QVERIFY(table.isPlain());
}

void tst_Content::tellsOfStatusKeysApart()
{
    ContentRef table = TestTables::screws();
    Recorder recorder(table);
    table.getModifyLayer()->setLineKeyValue(2, "CatalogMapper", "M");
    table.getModifyLayer()->setLineKeyValue(2, "CatalogMapper", "M");
    QCOMPARE(recorder.log, QStringList{"status 2"});
    QCOMPARE(table.getLine(2, false).getLineKeyValue("CatalogMapper"), QVariant("M"));
    QCOMPARE(table.getLine(3, false).getLineKeyValue("CatalogMapper"), QVariant(QString("")));
    QCOMPARE(table.getLine(2, false).getLineKeyValue("Other"), QVariant(QString("")));
    QCOMPARE(Line().getLineKeyValue("CatalogMapper"), QVariant(QString("")));
    QVERIFY(table.isPlain());
    table.getModifyLayer()->setLineKeyValue(2, "CatalogMapper", "");
    QCOMPARE(recorder.log, (QStringList{"status 2", "status 2"}));
    QCOMPARE(table.getLine(2, false).getLineKeyValue("CatalogMapper"), QVariant(QString("")));
}

void tst_Content::invalidateTellsTheFlags()
{
    ContentRef table = TestTables::screws();
    Recorder recorder(table);
    table.invalidate(static_cast<Content::InvalidateFlag>(2), true);
    table.invalidate(Content::InvalidateFlags::fromInt(4), true);
    table.invalidate(Content::InvalidateValues | Content::InvalidateFilter, true);
    table.invalidate(Content::InvalidateFilter, false);
    QCOMPARE(recorder.log, (QStringList{"invalidated 2", "invalidated 4", "invalidated 5"}));
}

void tst_Content::showsWhatFiltersLeave()
{
    ContentRef table = TestTables::screws();
    table.setFilter(FilterByLineId({{2, {}}, {4, {}}, {-1, {}}}, true));
    table.invalidate(Content::InvalidateFilter, true);
    QCOMPARE(numbers(table.getLineMapping().getOrdered()), (QList<int>{2, 4}));
    QCOMPARE(numbers(table.getLineIdList()), (QList<int>{1, 2, 3, 4}));
    QVERIFY(table.isLineVisible(2));
    QVERIFY(!table.isLineVisible(3));
    QVERIFY(table.getLine(3, false).isValid());
    QVERIFY(table.setSelection(3, true));
    const LineMapping mapping = table.getLineMapping();
    QCOMPARE(mapping.count(), 2);
    QCOMPARE(mapping.getLineId(1), LineId(4));
    QVERIFY(!mapping.getLineId(2).isValid());
    QVERIFY(!mapping.getLineId(-1).isValid());
    QCOMPARE(mapping.getRow(4), 1);
    QCOMPARE(mapping.getRow(3), -1);

    table.getModifyLayer()->setLineHidden(4, true);
    QVERIFY(!table.isLineVisible(4));
    table.setFilter(FilterByLineId({}, true));
    QCOMPARE(numbers(table.getLineMapping().getOrdered()), (QList<int>{1, 2, 3}));
    table.getModifyLayer()->setLineHidden(4, false);
    QCOMPARE(table.getLineMapping().count(), 4);
    QCOMPARE(table.getLineMapping().getLineId(3), LineId(4));
}

void tst_Content::filterByAscendingNumbers()
{
    ContentRef table = TestTables::screws();
    const FilterByLineId filter = FilterByLineId::ofAscending({-1, 2, 4, 700});
    QVERIFY(filter.getLineIdFilterUsed());
    QCOMPARE(filter.getLines(), (QHash<int, TabFilterData>{{-1, {}}, {2, {}}, {4, {}}, {700, {}}}));
    table.setFilter(filter);
    QCOMPARE(numbers(table.getLineMapping().getOrdered()), (QList<int>{2, 4}));
    table.setFilter(FilterByLineId::ofAscending({-1}));
    QCOMPARE(table.getLineMapping().count(), 0);
    table.setFilter(FilterByLineId::ofAscending({}));
    QCOMPARE(table.getLineMapping().count(), 4);
    FilterByLineId unused = filter;
    unused.setLineIdFilterUsed(false);
    QVERIFY(!unused.getLineIdFilterUsed());
    QCOMPARE(unused.getLines().size(), 4);
    unused.setLineIdFilterUsed(true);
    QCOMPARE(unused.getLines(), filter.getLines());
}

void tst_Content::mappingsAreSnapshots()
{
    ContentRef table = TestTables::screws();
    const LineMapping before = table.getLineMapping();
    table.setFilter(FilterByLineId({{-1, {}}}, true));
    QCOMPARE(before.count(), 4);
    QCOMPARE(table.getLineMapping().count(), 0);
}

QTEST_GUILESS_MAIN(tst_Content)
#include "tst_Content.moc"
