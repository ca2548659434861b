#include "../support/TestCatalog.h"

#include <mapping/table/TargetTableView.h>

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/FilterByLineId.h>
#include <geomcore/table/TableData.h>
#include <geomcore/table/TabOptions.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>

#include <QTest>

#include <boost/make_shared.hpp>

using VKTab::LineId;

class tst_TargetTableView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void showsAndReuses();
    void unreadable();
    void clears();
    void optionsAndHiddenColumns();
    void lineNumbers();
    void formerTableIsLetGo();
    void showLine();
    void goneLine();
    void hiddenLine_data();
    void hiddenLine();
    void hiddenByOtherFilter();
    void mark();
    void markInAnotherTable();

private:
    [[nodiscard]] QString path(const QString &project) const { return m_catalog->file(project); }
    VKTab::ContentRef show(const QString &project)
    {
        return m_target->show(path(project), m_reading).table;
    }
    [[nodiscard]] QString marks() const;

    std::unique_ptr<TestCatalog> m_catalog;
    std::unique_ptr<VkTableView> m_source;
    std::unique_ptr<VkTableView> m_view;
    std::unique_ptr<TargetTableView> m_target;
    TargetTableView::Reading m_reading;
};

void tst_TargetTableView::init()
{
    m_catalog = std::make_unique<TestCatalog>();
    const auto hideK = [](auto &table) {
        table.fields[1].hidden = true;
        table.filterConditions = {{"PRJLINECOND", "k .LT. 6", {}},
                                  {"BYPRJ", "k .LT. 7", {}},
                                  {"OTHER", "D .NE. 'M99'", {}}};
    };
    m_catalog->write("new/a.prj", "D,k:r\nM8,5;6\nM9,6\nM10,7\n", hideK);
    m_catalog->write("new/b.prj", "D,k:r\nM11,8\n", hideK);
    m_source = std::make_unique<VkTableView>();
    m_view = std::make_unique<VkTableView>();
    m_target = std::make_unique<TargetTableView>(m_view.get(), m_source.get());
    m_reading = {boost::make_shared<VKTab::TabOptions>(), false, false};
}

QString tst_TargetTableView::marks() const
{
    QString marks;
    for (const LineId &id : m_target->table().getLineIdList())
        marks +=
            m_target->table().getLine(id, false).getLineKeyValue("TargetMapping").toString() + u';';
    return marks;
}

void tst_TargetTableView::showsAndReuses()
{
    const auto first = m_target->show(path("new/a.prj"), m_reading);
    QVERIFY(first.table.isValid() && !first.isReused);
    QVERIFY(m_view->getTable() == first.table);
    QCOMPARE(first.table.getLineMapping().count(), 3); // no filter of the project hides lines
    const auto second = m_target->show(path("new/../new/a.prj"), m_reading);
    QVERIFY(second.table == first.table && second.isReused);
    const auto third = m_target->show(path("new/b.prj"), m_reading);
    QVERIFY(!third.isReused && !(third.table == first.table));
    QVERIFY(m_target->table() == third.table);
}

void tst_TargetTableView::unreadable()
{
    QVERIFY(!show("new/gone.prj").isValid());
    QVERIFY(!m_target->table().isValid());
}

void tst_TargetTableView::clears()
{
    show("new/a.prj");
    m_target->clear();
    QVERIFY(!m_target->table().isValid());
    QVERIFY(!m_target->show(path("new/a.prj"), m_reading).isReused);
}

void tst_TargetTableView::optionsAndHiddenColumns()
{
    const VKTab::ContentRef table = show("new/a.prj");
    QVERIFY(table.getOptions() == m_reading.options);
    QVERIFY(!m_view->model()->showHiddenVars());
    m_reading.showHiddenCols = true;
    QVERIFY(m_target->show(path("new/a.prj"), m_reading).isReused);
    QVERIFY(m_view->model()->showHiddenVars());
    m_reading.showHiddenCols = false;
    show("new/b.prj");
    QVERIFY(!m_view->model()->showHiddenVars());
}

void tst_TargetTableView::lineNumbers()
{
    QVERIFY(!show("new/a.prj").getVar(u"LINE_ID").isValid());
    m_reading.withLineNumbers = true;
    QVERIFY(show("new/b.prj").getVar(u"LINE_ID").isValid());
}

void tst_TargetTableView::formerTableIsLetGo()
{
    const std::weak_ptr<const VKTab::TableData> former = show("new/a.prj").getTableData();
    m_target->showLine(2, {}, true);
    m_target->markSelection();
    QVERIFY(!former.expired());
    show("new/b.prj");
    QVERIFY(former.expired());
}

void tst_TargetTableView::showLine()
{
    const VKTab::ContentRef table = show("new/a.prj");
    MapVarValueC value;
    value.setName("k");
    value.setValue(VKTab::Value("6"));
    value.setNumeric(true);
    m_target->showLine(1, {{"k", value}}, true);
    QCOMPARE(table.getSelection(), LineId(1));
    // A hidden variable takes its value too.
    QCOMPARE(table.getLine(LineId(1), false).getValue(table.getVar(u"k"), {}).toString(),
             QString("6"));
    m_target->showLine(2, {}, true);
    QCOMPARE(table.getSelection(), LineId(2));
}

void tst_TargetTableView::goneLine()
{
    const VKTab::ContentRef table = show("new/a.prj");
    m_target->showLine(99, {}, true);
    m_target->markSelection();
    QVERIFY(!table.getSelection().isValid());
    QCOMPARE(marks(), QString(";;;"));
}

void tst_TargetTableView::hiddenLine_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<bool>("givesWay");
    QTest::addColumn<int>("shown");

    QTest::newRow("hidden, gives way") << 2 << true << 3;
    QTest::newRow("hidden, stays") << 2 << false << 1;
    QTest::newRow("not hidden") << 3 << true << 1;
}

void tst_TargetTableView::hiddenLine()
{
    QFETCH(int, line);
    QFETCH(bool, givesWay);
    VKTab::ContentRef table = show("new/a.prj");
    table.setFilter(VKTab::FilterByLineId({{3, {}}}, true));
    table.invalidate(VKTab::Content::InvalidateFilter, true);
    m_target->showLine(line, {}, givesWay);
    QTEST(table.getLineMapping().count(), "shown");
    QTEST(m_view->model()->rowCount(), "shown");
    QCOMPARE(table.getSelection(), LineId(line));
}

void tst_TargetTableView::hiddenByOtherFilter()
{
    m_catalog->write("new/a.prj", "D,k:n\nM8,5\nM9,6\n", [](auto &table) {
        table.filterConditions = {{"OTHER", "k .LT. 6", {}}};
    });
    const VKTab::ContentRef table = show("new/a.prj");
    m_target->showLine(2, {}, true);
    QCOMPARE(table.getLineMapping().count(), 1);
    QCOMPARE(table.getSelection(), LineId(2));
}

void tst_TargetTableView::mark()
{
    show("new/a.prj");
    m_target->showLine(2, {}, true);
    m_target->markSelection();
    QCOMPARE(marks(), QString(";C;;"));
    m_target->showLine(3, {}, true);
    QCOMPARE(marks(), QString(";C;;"));
    m_target->markSelection();
    QCOMPARE(marks(), QString(";;C;"));
}

void tst_TargetTableView::markInAnotherTable()
{
    show("new/a.prj");
    m_target->showLine(1, {}, true);
    m_target->markSelection();
    show("new/b.prj");
    QCOMPARE(marks(), QString(";"));
    m_target->showLine(1, {}, true);
    m_target->markSelection();
    QCOMPARE(marks(), QString("C;"));
}

QTEST_MAIN(tst_TargetTableView)
#include "tst_TargetTableView.moc"
