#include "ModelFixture.h"

#include <geomcoregui/table/QuickFilter.h>

using namespace VKTab;

/// Which rows a view of a table gets, and in which order: sorting, filtering, finding.
class tst_VkTableModelOrder : public QObject, protected ModelFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { makeImage(); }
    void init() { makeModel(); }
    void cleanup() { clear(); }

    void sorts_data();
    void sorts();
    void sortsByStatus();
    void sortingKeepsTheLineMapping();
    void sortingMovesPersistentIndexes();
    void sortingShowsChangedValues();
    void quickFilters_data();
    void quickFilters();
    void valuesAreCounted();
    void filtersOfValues_data();
    void filtersOfValues();
    void quickFiltersOfTwoColumns();
    void sortingStaysInAFilteredTable();
    void finds_data();
    void finds();
    void findGoesRound();
    void findsNothing();
};

void tst_VkTableModelOrder::sorts_data()
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

void tst_VkTableModelOrder::sorts()
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

void tst_VkTableModelOrder::sortsByStatus()
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

void tst_VkTableModelOrder::sortingKeepsTheLineMapping()
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

void tst_VkTableModelOrder::sortingMovesPersistentIndexes()
{
    m_model->setTable(m_table);
    const QPersistentModelIndex index = m_model->index(0, 1);
    m_model->sort(column("Dia"), Qt::DescendingOrder);
    QCOMPARE(index.row(), 3);
    QCOMPARE(index.column(), 1);
}

void tst_VkTableModelOrder::sortingShowsChangedValues()
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

void tst_VkTableModelOrder::quickFilters_data()
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

void tst_VkTableModelOrder::quickFilters()
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

void tst_VkTableModelOrder::valuesAreCounted()
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

void tst_VkTableModelOrder::filtersOfValues_data()
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

void tst_VkTableModelOrder::filtersOfValues()
{
    QFETCH(QStringList, texts);
    QFETCH(bool, others);
    QTEST(QuickFilter::ofTexts(texts, others), "filter");
}

void tst_VkTableModelOrder::quickFiltersOfTwoColumns()
{
    m_model->setTable(m_table);
    m_model->setQuickFilter(m_table.getVar(u"Note").getVarId(), "blank");
    m_model->setQuickFilter(m_table.getVar(u"Dia").getVarId(), ">8");
    QCOMPARE(lines(), QList<int>({3}));
    QCOMPARE(m_model->mappingRow(0), 2);
    m_model->clearQuickFilters();
    QCOMPARE(m_model->rowCount(), 4);
}

void tst_VkTableModelOrder::sortingStaysInAFilteredTable()
{
    m_model->setTable(m_table);
    m_model->sort(column("Dia"), Qt::DescendingOrder);
    showOnly({1, 2, 4});
    QCOMPARE(lines(), QList<int>({4, 2, 1}));
    m_model->setQuickFilter(m_table.getVar(u"Dia").getVarId(), "<16");
    QCOMPARE(lines(), QList<int>({2, 1}));
}

void tst_VkTableModelOrder::finds_data()
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

void tst_VkTableModelOrder::finds()
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

void tst_VkTableModelOrder::findGoesRound()
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

void tst_VkTableModelOrder::findsNothing()
{
    QVERIFY(!m_model->find("a", {}, false).isValid());
    m_model->setTable(m_table);
    QVERIFY(!m_model->find("", {}, false).isValid());
    QVERIFY(!m_model->find("zzz", {}, false).isValid());
    QVERIFY(!m_model->find("zzz", m_model->index(2, 1), true).isValid());
    QVERIFY(!m_model->find("0,5", {}, false).isValid()); // hidden column
}

QTEST_MAIN(tst_VkTableModelOrder)
#include "tst_VkTableModelOrder.moc"
