#include "ViewTables.h"

#include <geomcore/table/FilterByLineId.h>
#include <geomcoregui/table/QuickFilter.h>
#include <geomcoregui/table/VkTableModel.h>

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

using namespace VKTab;

/// The rows, columns and cells that a view of a table gets.
class tst_VkTableModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

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

    void sorts_data();
    void sorts();
    void sortsByStatus();
    void sortingKeepsTheLineMapping();
    void sortingMovesPersistentIndexes();
    void sortingShowsChangedValues();
    void quickFilters_data();
    void quickFilters();
    void quickFiltersOfTwoColumns();
    void valuesAreCounted();
    void filtersOfValues_data();
    void filtersOfValues();
    void sortingStaysInAFilteredTable();

    void finds_data();
    void finds();
    void findGoesRound();
    void findsNothing();

    void largeTableCostsNoWorkPerLine();

private:
    [[nodiscard]] QList<int> lines() const;
    [[nodiscard]] int column(const char *name) const;
    [[nodiscard]] QVariant cell(int row, const char *name, int role = Qt::DisplayRole) const;
    void showOnly(const QList<int> &lines);

    QTemporaryDir m_dir;
    QString m_image;
    ContentRef m_table;
    std::unique_ptr<VkTableModel> m_model;
};

void tst_VkTableModel::initTestCase()
{
    m_image = m_dir.filePath("state.png");
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(m_image));
}

void tst_VkTableModel::init()
{
    m_table = TestTables::screws();
    m_model = std::make_unique<VkTableModel>();
    new QAbstractItemModelTester(
        m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest, m_model.get());
}

void tst_VkTableModel::cleanup()
{
    m_model.reset();
    m_table = ContentRef();
}

QList<int> tst_VkTableModel::lines() const
{
    QList<int> result;
    for (int row = 0; row < m_model->rowCount(); ++row)
        result.append(m_model->lineId(row).value(0));
    return result;
}

int tst_VkTableModel::column(const char *name) const
{
    return m_model->columnOf(m_table.getVar(QString::fromLatin1(name)).getVarId());
}

QVariant tst_VkTableModel::cell(int row, const char *name, int role) const
{
    return m_model->index(row, column(name)).data(role);
}

void tst_VkTableModel::showOnly(const QList<int> &lines)
{
    QHash<int, TabFilterData> shown;
    for (const int line : lines)
        shown.insert(line, TabFilterData());
    m_table.setFilter(FilterByLineId(shown, true));
    m_table.invalidate(Content::InvalidateFilter, true);
}

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
             QString("Wertebereich (3 Werte): 10; 12; 16"));
    QCOMPARE(cell(2, "L", Qt::ToolTipRole).toString(),
             QString("Wertebereich (9 Werte): 10; 15; 20; 25; 30; 35; 40; 45; 50"));
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

void tst_VkTableModel::sorts_data()
{
    QTest::addColumn<QString>("cells");
    QTest::addColumn<bool>("descending");
    QTest::addColumn<QList<int>>("expected");
    QTest::newRow("numbers by value") << "10,9,2.5" << false << QList<int>({3, 2, 1});
    QTest::newRow("numbers descending") << "10,9,25" << true << QList<int>({3, 1, 2});
    QTest::newRow("numbers before texts") << "M8,10,9" << false << QList<int>({3, 2, 1});
    QTest::newRow("numbers in texts by value") << "M10,M8,m9" << false << QList<int>({2, 3, 1});
    QTest::newRow("no value last") << ",2,1" << false << QList<int>({3, 2, 1});
    QTest::newRow("no value last, descending") << ",2,3" << true << QList<int>({3, 2, 1});
    QTest::newRow("equal values keep their order") << "b,a,b" << false << QList<int>({2, 1, 3});
    QTest::newRow("equal values keep their order, descending")
        << "b,a,b" << true << QList<int>({1, 3, 2});
    QTest::newRow("leading zeros") << "x010,x9,x08" << false << QList<int>({3, 2, 1});
    QTest::newRow("equal numbers written differently")
        << "2.0,1,2" << false << QList<int>({2, 1, 3});
}

void tst_VkTableModel::sorts()
{
    QFETCH(QString, cells);
    QFETCH(bool, descending);
    QFETCH(QList<int>, expected);
    TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("A"), TestTables::field("B")};
    QString csv = "A,B\n";
    for (const QString &cellText : cells.split(','))
        csv += cellText + ",x\n";
    m_table = TestTables::table(descriptor, csv);
    m_model->setTable(m_table);
    m_model->sort(0, descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    QCOMPARE(lines(), expected);
    QCOMPARE(m_model->sortColumn(), 0);
    m_model->sort(-1);
    QCOMPARE(lines(), QList<int>({1, 2, 3}));
    QCOMPARE(m_model->sortColumn(), -1);
}

void tst_VkTableModel::sortsByStatus()
{
    m_table.setOptions(ViewTables::options(m_image));
    ViewTables::setState(m_table, 1, "X");
    ViewTables::setState(m_table, 3, "M");
    ViewTables::setState(m_table, 4, "C");
    m_model->setTable(m_table);
    m_model->sort(0, Qt::AscendingOrder);
    QCOMPARE(lines(), QList<int>({3, 4, 1, 2}));
    m_model->sort(0, Qt::DescendingOrder);
    QCOMPARE(lines(), QList<int>({1, 4, 3, 2}));
}

void tst_VkTableModel::sortingKeepsTheLineMapping()
{
    m_model->setTable(m_table);
    m_model->sort(column("Dia"), Qt::DescendingOrder);
    QCOMPARE(lines(), QList<int>({4, 3, 2, 1}));
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(m_model->rowOf(m_model->lineId(row)), row);
        QCOMPARE(m_table.getLineMapping().getLineId(m_model->mappingRow(row)),
                 m_model->lineId(row));
    }
    QCOMPARE(m_model->mappingRow(0), 3);
}

void tst_VkTableModel::sortingMovesPersistentIndexes()
{
    m_model->setTable(m_table);
    const QPersistentModelIndex index = m_model->index(0, 1);
    m_model->sort(column("Dia"), Qt::DescendingOrder);
    QCOMPARE(index.row(), 3);
    QCOMPARE(index.column(), 1);
}

void tst_VkTableModel::sortingShowsChangedValues()
{
    m_model->setTable(m_table);
    m_model->sort(column("L"), Qt::AscendingOrder);
    QCOMPARE(lines(), QList<int>({3, 1, 2, 4})); // 10..50/5 - 10;12;16 - 20 - none
    Line line = m_table.getLine(3, false);
    line.putValue(m_table.getVar(u"L").getVarId(), Value("45"));
    QVERIFY(line.apply());
    m_table.invalidate(Content::InvalidateValues, true);
    QCOMPARE(lines(), QList<int>({1, 2, 3, 4}));
}

void tst_VkTableModel::quickFilters_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("expected");
    QTest::newRow("text held") << "Note"
                               << "an" << QList<int>({1, 2, 3});
    QTest::newRow("either case") << "Note"
                                 << "GALV" << QList<int>({2});
    QTest::newRow("whole text") << "Note"
                                << "=blank" << QList<int>({1, 3});
    QTest::newRow("whole number") << "Dia"
                                  << "=8.0" << QList<int>({1});
    QTest::newRow("part of a number") << "Dia"
                                      << "1" << QList<int>({2, 3, 4});
    QTest::newRow("above") << "Dia"
                           << "> 10" << QList<int>({3, 4});
    QTest::newRow("at least") << "Dia"
                              << ">=10" << QList<int>({2, 3, 4});
    QTest::newRow("below") << "Dia"
                           << "<10" << QList<int>({1});
    QTest::newRow("at most") << "Dia"
                             << "<=10" << QList<int>({1, 2});
    QTest::newRow("value of a range") << "L"
                                      << "=15" << QList<int>({3});
    QTest::newRow("no value") << "L"
                              << "=" << QList<int>({4});
    QTest::newRow("operator alone") << "Dia"
                                    << ">" << QList<int>({1, 2, 3, 4});
    QTest::newRow("number asked of texts") << "Note"
                                           << ">1" << QList<int>();
    QTest::newRow("computed column") << "Volume"
                                     << "=24" << QList<int>({3});
    QTest::newRow("nothing fits") << "Note"
                                  << "zzz" << QList<int>();
    QTest::newRow("text not held") << "Note"
                                   << "!an" << QList<int>({4});
    QTest::newRow("another text") << "Note"
                                  << "!=blank" << QList<int>({2, 4});
    QTest::newRow("any value") << "L"
                               << "!=" << QList<int>({1, 2, 3});
    QTest::newRow("not alone says nothing") << "Dia"
                                            << "!" << QList<int>({1, 2, 3, 4});
    QTest::newRow("one of two") << "Dia"
                                << "=8 | >=16" << QList<int>({1, 4});
    QTest::newRow("both") << "Dia"
                          << ">8 & <16" << QList<int>({2, 3});
    QTest::newRow("both is the stronger one") << "Dia"
                                              << "=8 | >8 & <12" << QList<int>({1, 2});
    QTest::newRow("second part not yet written") << "Dia"
                                                 << "=8 | " << QList<int>({1});
    QTest::newRow("sign in quotes") << "Note"
                                    << "\"a|b\"" << QList<int>();
    QTest::newRow("quoted text") << "Note"
                                 << "=\"blank\"" << QList<int>({1, 3});
    QTest::newRow("missing or a value") << "L"
                                        << "= | =15" << QList<int>({3, 4});
}

void tst_VkTableModel::quickFilters()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QList<int>, expected);
    m_model->setTable(m_table);
    const VarId id = m_table.getVar(name).getVarId();
    m_model->setQuickFilter(id, text);
    QCOMPARE(lines(), expected);
    QCOMPARE(m_model->quickFilter(id), text);
    QVERIFY(m_model->hasQuickFilter());
    m_model->setQuickFilter(id, {});
    QCOMPARE(m_model->rowCount(), 4);
    QVERIFY(!m_model->hasQuickFilter());
}

void tst_VkTableModel::valuesAreCounted()
{
    m_model->setTable(m_table);
    const VarId note = m_table.getVar(u"Note").getVarId();
    const VarId dia = m_table.getVar(u"Dia").getVarId();
    const auto counted = [&](const VarId &variable) {
        QStringList texts;
        for (const VkTableModel::ValueCount &value : m_model->valueCounts(variable))
            texts +=
                QStringLiteral("%1%2 %3").arg(value.passes ? "+" : "", value.text).arg(value.count);
        return texts.join(u'|');
    };
    const QString all = counted(note);
    QVERIFY2(all.contains("+blank 2"), qPrintable(all));
    // Its own filter takes nothing away, those of others do.
    m_model->setQuickFilter(note, "=blank");
    QCOMPARE(counted(note).remove('+'), QString(all).remove('+'));
    QVERIFY2(counted(note).contains("+blank 2"), qPrintable(counted(note)));
    QCOMPARE(counted(note).count('+'), 1);
    QCOMPARE(m_model->valueCounts(dia).size(), 2);
    m_model->setQuickFilter(dia, ">8");
    QVERIFY2(counted(note).contains("+blank 1"), qPrintable(counted(note)));
    QVERIFY(m_model->valueCounts(VarId(999)).isEmpty());
}

void tst_VkTableModel::filtersOfValues_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<bool>("others");
    QTest::addColumn<QString>("filter");
    QTest::newRow("none") << QStringList() << false << "";
    QTest::newRow("one") << QStringList{"M8"} << false << "=M8";
    QTest::newRow("two") << QStringList{"M8", ""} << false << "=M8 | =";
    QTest::newRow("others") << QStringList{"M8", "M9"} << true << "!=M8 & !=M9";
    QTest::newRow("signs") << QStringList{"A|B", "\"q", "a & b"} << false
                           << "=\"A|B\" | =\"\"q\" | =\"a & b\"";
}

void tst_VkTableModel::filtersOfValues()
{
    QFETCH(QStringList, texts);
    QFETCH(bool, others);
    QTEST(QuickFilter::ofTexts(texts, others), "filter");
}

void tst_VkTableModel::quickFiltersOfTwoColumns()
{
    m_model->setTable(m_table);
    m_model->setQuickFilter(m_table.getVar(u"Note").getVarId(), "blank");
    m_model->setQuickFilter(m_table.getVar(u"Dia").getVarId(), ">8");
    QCOMPARE(lines(), QList<int>({3}));
    QCOMPARE(m_model->mappingRow(0), 2);
    m_model->clearQuickFilters();
    QCOMPARE(m_model->rowCount(), 4);
}

void tst_VkTableModel::sortingStaysInAFilteredTable()
{
    m_model->setTable(m_table);
    m_model->sort(column("Dia"), Qt::DescendingOrder);
    showOnly({1, 2, 4});
    QCOMPARE(lines(), QList<int>({4, 2, 1}));
    m_model->setQuickFilter(m_table.getVar(u"Dia").getVarId(), "<16");
    QCOMPARE(lines(), QList<int>({2, 1}));
}

void tst_VkTableModel::finds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("from");
    QTest::addColumn<bool>("backwards");
    QTest::addColumn<int>("foundRow");
    QTest::addColumn<QString>("found");
    QTest::newRow("first") << "blank" << -1 << "" << false << 0 << "Note";
    QTest::newRow("next") << "BLANK" << 0 << "Note" << false << 2 << "Note";
    QTest::newRow("last") << "blank" << -1 << "" << true << 2 << "Note";
    QTest::newRow("previous") << "blank" << 2 << "Note" << true << 0 << "Note";
    QTest::newRow("in the same line") << "1" << 1 << "Dia" << false << 2 << "Dia";
    QTest::newRow("behind in the same line") << "16" << 0 << "Dia" << false << 0 << "L";
    QTest::newRow("computed") << "32" << -1 << "" << false << 3 << "Volume";
}

void tst_VkTableModel::finds()
{
    QFETCH(QString, text);
    QFETCH(int, row);
    QFETCH(QString, from);
    QFETCH(bool, backwards);
    QFETCH(int, foundRow);
    QFETCH(QString, found);
    m_model->setTable(m_table);
    const QModelIndex begin =
        row < 0 ? QModelIndex() : m_model->index(row, column(qPrintable(from)));
    const QModelIndex index = m_model->find(text, begin, backwards);
    QCOMPARE(index.row(), foundRow);
    QCOMPARE(m_model->variable(index.column()).getName(), found);
}

void tst_VkTableModel::findGoesRound()
{
    m_model->setTable(m_table);
    const QModelIndex only = m_model->find("galvanised", {}, false);
    QCOMPARE(only.row(), 1);
    QCOMPARE(m_model->find("galvanised", only, false), only);
    QCOMPARE(m_model->find("galvanised", only, true), only);
    QCOMPARE(m_model->find("blank", m_model->index(3, 0), false).row(), 0);
    QCOMPARE(m_model->find("blank", m_model->index(0, 0), true).row(), 2);
    // Before the cell in its own line comes last.
    QCOMPARE(m_model->find("galvanised", m_model->index(1, 3), false), only);
    // A changed cell is found as it shows.
    Line line = m_table.getLine(3, false);
    line.putValue(m_table.getVar(u"L").getVarId(), Value("45"));
    QVERIFY(line.apply());
    QCOMPARE(m_model->find("45", {}, false), m_model->index(2, column("L")));
    QVERIFY(!m_model->find("50/5", {}, false).isValid());
}

void tst_VkTableModel::findsNothing()
{
    QVERIFY(!m_model->find("a", {}, false).isValid());
    m_model->setTable(m_table);
    QVERIFY(!m_model->find("", {}, false).isValid());
    QVERIFY(!m_model->find("zzz", {}, false).isValid());
    QVERIFY(!m_model->find("zzz", m_model->index(2, 1), true).isValid());
    QVERIFY(!m_model->find("0,5", {}, false).isValid()); // hidden column
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
