#include "ModelFixture.h"

#include <geomcoregui/table/VkTableModel.h>

#include <QIcon>
#include <QSignalSpy>
#include <QTest>

#include <thread>

using namespace VKTab;

/// The rows, columns and cells that a view of a table gets.
class tst_VkTableModel : public QObject, protected ModelFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { makeImage(); }
    void init() { makeModel(); }
    void cleanup() { clear(); }

    void emptyWithoutTable();
    void columnsOfATable();
    void followsAReaderThatFillsTheTable();
    void showsCells();
    void showsRanges();
    void headers();

    void statusColumnsOnlyIfOptionsShowThem();
    void statusImageAndText();
    void handlerIsAskedWhenTheToolTipIsShown();
    void handlerGetsTheRowOfTheMapping();
    void statusChangesRepaintOnlyTheirRows();
    void changedCellsRepaintTheirRow();
    void statusOfHiddenLineIsNoNews();

    void hiddenVariables();
    void hiddenVariablesFromAnotherThread();
    void topologyAndInternalVariables();
    void addedLayerAddsColumns();
    void invalidatedFilterChangesRows();
    void invalidatedFilterWithTheSameLinesResetsNothing();
    void catchesUpWhenItFollowsAgain();

    void largeTableCostsNoWorkPerLine();
};

void tst_VkTableModel::emptyWithoutTable()
{
    QCOMPARE(m_model->rowCount(), 0);
    QCOMPARE(m_model->columnCount(), 0);
    QVERIFY(!m_model->getTable().isValid());
    m_model->setTable(m_table);
    QCOMPARE(m_model->rowCount(), 4);
    m_model->setTable(ContentRef());
    QCOMPARE(m_model->rowCount(), 0);
    QCOMPARE(m_model->columnCount(), 0);
    QVERIFY(!m_model->lineId(0).isValid());
    QCOMPARE(m_model->mappingRow(0), -1);
}

void tst_VkTableModel::columnsOfATable()
{
    m_model->setTable(m_table);
    QStringList names;
    for (int i = 0; i < m_model->columnCount(); ++i)
        names.append(m_model->variable(i).getName());
    QCOMPARE(names, QStringList({"Dia", "L", "Note", "Volume"}));
    QCOMPARE(lines(), QList<int>({1, 2, 3, 4}));
    QCOMPARE(m_model->rowOf(LineId(3)), 2);
    QCOMPARE(m_model->rowOf(LineId(9)), -1);
    QCOMPARE(m_model->columnOf(m_table.getVar(u"Weight").getVarId()), -1);
}

void tst_VkTableModel::followsAReaderThatFillsTheTable()
{
    ContentRef table{Content()};
    m_model->setTable(table);
    QCOMPARE(m_model->rowCount(), 0);
    table.setFileLayer(m_table.getFileLayer());
    QCOMPARE(m_model->rowCount(), 4);
    QCOMPARE(m_model->columnCount(), 4);
    table.setFileLayer({});
    QCOMPARE(m_model->rowCount(), 0);
    QCOMPARE(m_model->columnCount(), 0);
}

void tst_VkTableModel::showsCells()
{
    m_model->setShowHiddenVars(true);
    m_model->setTable(m_table);
    QCOMPARE(cell(0, "Dia").toString(), QString("8"));
    QCOMPARE(cell(3, "Note").toString(), QString("a \"b\""));
    QCOMPARE(cell(0, "Weight").toString(), QString("0,5")); // the unit stands in the caption
    QCOMPARE(cell(2, "Weight").toString(), QString());
    QCOMPARE(cell(1, "Volume").toString(), QString("20"));
    QCOMPARE(cell(0, "Dia", Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignVCenter));
    QCOMPARE(cell(0, "Note", Qt::TextAlignmentRole).toInt(), int(Qt::AlignLeft | Qt::AlignVCenter));
    QCOMPARE(cell(1, "Dia", VkTableModel::LineIdRole).value<LineId>(), LineId(2));
    QCOMPARE(m_model->data(QModelIndex(), Qt::DisplayRole), QVariant());
}

void tst_VkTableModel::showsRanges()
{
    m_model->setTable(m_table);
    QCOMPARE(cell(0, "L").toString(), QString("10;12;16"));
    QCOMPARE(cell(0, "L", VkTableModel::RangeRole).toString(), QString("10;12;16"));
    QCOMPARE(cell(0, "L", Qt::ToolTipRole).toString(),
             QString("Wertebereich (Werte: 3): 10; 12; 16"));
    QCOMPARE(cell(2, "L", Qt::ToolTipRole).toString(),
             QString("Wertebereich (Werte: 9): 10; 15; 20; 25; 30; 35; 40; 45; 50"));
    QCOMPARE(cell(0, "Dia", VkTableModel::RangeRole).toString(), QString());
    QCOMPARE(cell(3, "L", Qt::ToolTipRole).toString(), QString());
    Line line = m_table.getLine(1, false);
    line.putValue(m_table.getVar(u"L").getVarId(), Value("12"));
    QVERIFY(line.apply());
    QCOMPARE(cell(0, "L").toString(), QString("12"));
    QCOMPARE(cell(0, "L", VkTableModel::RangeRole).toString(), QString("10;12;16"));
}

void tst_VkTableModel::headers()
{
    m_model->setShowHiddenVars(true);
    m_table.setOptions(ViewTables::options(m_image));
    m_model->setTable(m_table);
    QCOMPARE(m_model->headerData(column("Weight"), Qt::Horizontal).toString(),
             QString("Weight [kg]"));
    QCOMPARE(m_model->headerData(column("Dia"), Qt::Horizontal).toString(), QString("Dia"));
    QCOMPARE(m_model->headerData(column("Dia"), Qt::Horizontal, Qt::ToolTipRole).toString(),
             QString("Durchmesser"));
    QCOMPARE(m_model->headerData(0, Qt::Horizontal, VkTableModel::StatusKeyRole).toString(),
             QString("State"));
    QCOMPARE(m_model->headerData(0, Qt::Horizontal, Qt::AccessibleTextRole).toString(),
             QString("Status"));
    QCOMPARE(m_model->headerData(2, Qt::Vertical).toInt(), 3);
    QVERIFY(!m_model->headerData(4, Qt::Vertical).isValid());
}

void tst_VkTableModel::statusColumnsOnlyIfOptionsShowThem()
{
    const auto options = ViewTables::options(m_image);
    options->setStatusColumnsShown(false);
    m_table.setOptions(options);
    m_model->setTable(m_table);
    QCOMPARE(m_model->statusColumnCount(), 0);
    options->setStatusColumnsShown(true);
    m_table.invalidate(Content::InvalidateColumns, true);
    QCOMPARE(m_model->statusColumnCount(), 2);
    QCOMPARE(m_model->columnCount(), 6);
}

void tst_VkTableModel::statusImageAndText()
{
    m_table.setOptions(ViewTables::options(m_image));
    m_model->setTable(m_table);
    const QModelIndex state = m_model->index(1, 0);
    QVERIFY(!state.data(Qt::DecorationRole).isValid());
    QVERIFY(!state.data(Qt::ToolTipRole).toString().size());
    ViewTables::setState(m_table, 2, "M");
    QVERIFY(!state.data(Qt::DecorationRole).value<QIcon>().isNull());
    QCOMPARE(state.data().toString(), QString());
    QCOMPARE(state.data(Qt::ToolTipRole).toString(), QString("<b>confirmed</b>"));
    QCOMPARE(state.data(Qt::AccessibleTextRole).toString(), QString("confirmed"));
    ViewTables::setState(m_table, 2, "X"); // without an image its text stands there
    QVERIFY(!state.data(Qt::DecorationRole).isValid());
    QCOMPARE(state.data().toString(), QString("X"));
    ViewTables::setState(m_table, 2, "unknown");
    QCOMPARE(state.data().toString(), QString());
    ViewTables::setState(m_table, 2, "");
    QVERIFY(!state.data(Qt::DecorationRole).isValid());
}

void tst_VkTableModel::handlerIsAskedWhenTheToolTipIsShown()
{
    int asked = 0;
    m_table.setOptions(ViewTables::options(m_image, &asked));
    ViewTables::setState(m_table, 1, "C");
    m_model->setTable(m_table);
    asked = 0;
    const QModelIndex state = m_model->index(0, 0);
    for (const int role :
         {int(Qt::DisplayRole), int(Qt::DecorationRole), int(Qt::AccessibleTextRole)})
        (void)state.data(role);
    QCOMPARE(asked, 0);
    QCOMPARE(m_model->statusToolTip(state, nullptr), QString("asked for line 1"));
    QCOMPARE(asked, 1);
    QCOMPARE(m_model->statusToolTip(m_model->index(0, 3), nullptr), QString());
}

void tst_VkTableModel::handlerGetsTheRowOfTheMapping()
{
    QList<int> numbers;
    m_table.setOptions(ViewTables::options(m_image, nullptr, &numbers));
    ViewTables::setState(m_table, 4, "C");
    m_model->setTable(m_table);
    showOnly({2, 4});
    m_model->sort(column("Dia"), Qt::DescendingOrder);
    QCOMPARE(lines(), QList<int>({4, 2}));
    (void)m_model->statusToolTip(m_model->index(0, 0), nullptr);
    QCOMPARE(numbers, QList<int>({4, 2, 0}));
}

void tst_VkTableModel::statusChangesRepaintOnlyTheirRows()
{
    m_table.setOptions(ViewTables::options(m_image));
    m_model->setTable(m_table);
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    ViewTables::setState(m_table, 2, "M");
    ViewTables::setState(m_table, 3, "M");
    QCOMPARE(changed.count(), 0);
    QTRY_COMPARE(changed.count(), 1);
    const QList<QVariant> range = changed.takeFirst();
    QCOMPARE(range.at(0).toModelIndex(), m_model->index(1, 0));
    QCOMPARE(range.at(1).toModelIndex(), m_model->index(2, 1));
    QVERIFY(range.at(2).value<QList<int>>().contains(Qt::DecorationRole));
    ViewTables::setState(m_table, 2, "M"); // no change
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 0);
}

void tst_VkTableModel::changedCellsRepaintTheirRow()
{
    m_table.setOptions(ViewTables::options(m_image));
    m_model->setTable(m_table);
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    Line line = m_table.getLine(3, false);
    line.putValue(m_table.getVar(u"L").getVarId(), Value("15"));
    QVERIFY(line.apply());
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toModelIndex(), m_model->index(2, 2));
    QCOMPARE(changed.at(0).at(1).toModelIndex(), m_model->index(2, m_model->columnCount() - 1));
}

void tst_VkTableModel::statusOfHiddenLineIsNoNews()
{
    m_table.setOptions(ViewTables::options(m_image));
    m_model->setTable(m_table);
    showOnly({1});
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    ViewTables::setState(m_table, 2, "M");
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 0);
}

void tst_VkTableModel::hiddenVariables()
{
    m_model->setTable(m_table);
    QVERIFY(!m_model->showHiddenVars());
    QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
    m_model->setShowHiddenVars(false);
    QCOMPARE(reset.count(), 0);
    m_model->setShowHiddenVars(true);
    QVERIFY(m_model->showHiddenVars());
    QCOMPARE(reset.count(), 1);
    QVERIFY(column("Weight") >= 0);
    m_table.invalidate(Content::InvalidateColumns, true);
    QCOMPARE(reset.count(), 1); // nothing changed any more
}

void tst_VkTableModel::hiddenVariablesFromAnotherThread()
{
    m_model->setTable(m_table);
    QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
    std::thread([this] { m_model->setShowHiddenVars(false); }).join();
    QCoreApplication::processEvents();
    QCOMPARE(reset.count(), 0);
    std::thread([this] { m_model->setShowHiddenVars(true); }).join();
    QVERIFY(!m_model->showHiddenVars());
    QCOMPARE(m_model->columnCount(), 4);
    QTRY_VERIFY(m_model->showHiddenVars());
    QCOMPARE(m_model->columnCount(), 5);
    QCOMPARE(reset.count(), 1);
}

void tst_VkTableModel::topologyAndInternalVariables()
{
    TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("A"),
                         TestTables::field("T", FieldType::String, FieldKind::Topology),
                         TestTables::field("I", FieldType::String, FieldKind::Internal)};
    m_table = TestTables::table(descriptor, "A,T,I\n1,2,3\n");
    m_model->setTable(m_table);
    QVERIFY(column("T") >= 0);
    QCOMPARE(column("I"), -1);
    m_model->setShowTopoValues(false);
    m_model->setShowInternalValues(true);
    QCOMPARE(column("T"), -1);
    QCOMPARE(column("I"), 1);
}

void tst_VkTableModel::addedLayerAddsColumns()
{
    m_model->setTable(m_table);
    BaseLayer layer;
    Var var(VarTypePlain);
    var.setVarId(VarId(5000000));
    var.setName("Extra");
    layer.addVar(var);
    m_table.addLayer(layer);
    QCOMPARE(m_model->columnCount(), 5);
    QCOMPARE(m_model->variable(4).getName(), QString("Extra"));
}

void tst_VkTableModel::invalidatedFilterChangesRows()
{
    m_model->setTable(m_table);
    showOnly({2, 3});
    QCOMPARE(lines(), QList<int>({2, 3}));
    QCOMPARE(m_model->rowOf(LineId(3)), 1);
    QCOMPARE(m_model->rowOf(LineId(1)), -1);
    showOnly({-1});
    QCOMPARE(m_model->rowCount(), 0);
    showOnly({});
    QCOMPARE(m_model->rowCount(), 4);
}

void tst_VkTableModel::invalidatedFilterWithTheSameLinesResetsNothing()
{
    m_model->setTable(m_table);
    showOnly({2, 3});
    QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
    showOnly({3, 2});
    QCOMPARE(reset.count(), 0);
    showOnly({3, 1});
    QCOMPARE(reset.count(), 1);
}

void tst_VkTableModel::catchesUpWhenItFollowsAgain()
{
    m_model->setTable(m_table);
    m_model->setFollowing(false);
    showOnly({2});
    QCOMPARE(m_model->rowCount(), 4);
    m_model->setFollowing(true);
    QCOMPARE(m_model->rowCount(), 1);
}

void tst_VkTableModel::largeTableCostsNoWorkPerLine()
{
    m_model = std::make_unique<VkTableModel>();
    m_table = ViewTables::large(100000);
    m_table.setOptions(ViewTables::options(m_image));
    m_model->setTable(m_table);
    QCOMPARE(m_model->rowCount(), 100000);
    QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
    QSignalSpy layout(m_model.get(), &QAbstractItemModel::layoutChanged);
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    for (int line = 1; line <= 100000; ++line)
        ViewTables::setState(m_table, line, "M");
    QTRY_COMPARE(changed.count(), 1);
    m_model->sort(column("A"));
    QCOMPARE(layout.count(), 1);
    QCOMPARE(m_model->lineId(0), LineId(100000));
    m_model->setQuickFilter(m_table.getVar(u"B").getVarId(), "=b3");
    QCOMPARE(m_model->rowCount(), 10000);
    QCOMPARE(reset.count(), 1);
    QCOMPARE(m_model->lineId(0), LineId(99994));
    QCOMPARE(m_model->find("c3", {}, true).row(), 9999);
    QCOMPARE(changed.count(), 1);
}

QTEST_MAIN(tst_VkTableModel)
#include "tst_VkTableModel.moc"
