#include "GridFixture.h"

#include <core/config/PConfigInst.h>
#include <geomcoregui/table/TableColumnWidths.h>
#include <gui/application/PApplication.h>

#include <QHeaderView>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

class tst_TableColumnWidths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void contentsGiveWidths();
    void widthsHaveALimit();
    void unusedStatusColumnsAreHidden();
    void widthsOfTheUserAreKept();
    void widthsAreOfZoomFactorOne();
    void ownChangesAreNoWish();
    void fittingForgetsTheWish();
    void fittingOneColumnLeavesTheOthers();
    void tablesWithoutANameKeepNothing();
    void faultyEntriesArePassedOver();
    void emptyFilterLeavesWidths();

private:
    [[nodiscard]] int width(int column) const
    {
        return m_grid->grid->horizontalHeader()->sectionSize(column);
    }
    void resize(int column, int width)
    {
        m_grid->grid->horizontalHeader()->resizeSection(column, width);
    }
    /// As for a view that is opened anew.
    void openAnew()
    {
        m_widths.reset();
        m_grid = std::make_unique<GridFixture>();
        m_widths = std::make_unique<TableColumnWidths>(m_grid->grid, &m_grid->model);
        m_widths->load();
        m_widths->apply();
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<PApplication> m_host;
    std::unique_ptr<GridFixture> m_grid;
    std::unique_ptr<TableColumnWidths> m_widths;
};

void tst_TableColumnWidths::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_host = std::make_unique<PApplication>(
        PRefPtr<PConfig>(new PConfigInst(m_dir->filePath("app.cfg"), false)));
    openAnew();
}

void tst_TableColumnWidths::cleanup()
{
    m_widths.reset();
    m_grid.reset();
    m_host.reset();
}

void tst_TableColumnWidths::contentsGiveWidths()
{
    for (int column = 2; column < 6; ++column) {
        QVERIFY(width(column) >= m_grid->grid->horizontalHeader()->sectionSizeHint(column));
        const QString text = m_grid->model.index(3, column).data().toString();
        QVERIFY(width(column) > m_grid->grid->fontMetrics().horizontalAdvance(text));
    }
}

void tst_TableColumnWidths::widthsHaveALimit()
{
    const QString text(200, u'W');
    const auto setText = [&](int column) {
        m_grid->table.getModifyLayer()->setValue(m_grid->model.variable(column).getVarId(),
                                                 VKTab::LineId(1), VKTab::Value(text));
    };
    setText(4);
    m_grid->table.invalidate(VKTab::Content::InvalidateValues, true);
    m_widths->fitAll();
    QCOMPARE(width(4), 360);
    m_widths->setZoomFactor(1.5);
    QCOMPARE(width(4), 540);
}

void tst_TableColumnWidths::unusedStatusColumnsAreHidden()
{
    QVERIFY(m_grid->grid->isColumnHidden(0));
    QVERIFY(m_grid->grid->isColumnHidden(1));
    QVERIFY(!m_grid->grid->isColumnHidden(2));
    ViewTables::setState(m_grid->table, 1, "M");
    m_widths->showUsedColumns();
    QVERIFY(!m_grid->grid->isColumnHidden(0));
    QVERIFY(m_grid->grid->isColumnHidden(1));
    // What was hidden under another model is not hidden for good.
    m_grid->grid->setColumnHidden(3, true);
    m_widths->showUsedColumns();
    QVERIFY(!m_grid->grid->isColumnHidden(3));
}

void tst_TableColumnWidths::widthsOfTheUserAreKept()
{
    const int other = width(3);
    resize(2, 133);
    openAnew();
    QCOMPARE(width(2), 133);
    QCOMPARE(width(3), other);
}

void tst_TableColumnWidths::widthsAreOfZoomFactorOne()
{
    m_widths->setZoomFactor(2);
    resize(2, 300);
    openAnew();
    QCOMPARE(width(2), 150);
    m_widths->setZoomFactor(0.5);
    QCOMPARE(width(2), 75);
}

void tst_TableColumnWidths::ownChangesAreNoWish()
{
    const int before = width(2);
    m_widths->setZoomFactor(3);
    m_widths->apply();
    openAnew();
    QCOMPARE(width(2), before);
    resize(2, 0); // a column that is hidden
    openAnew();
    QCOMPARE(width(2), before);
}

void tst_TableColumnWidths::fittingForgetsTheWish()
{
    const int before = width(2);
    resize(2, 133);
    m_widths->fitAll();
    QCOMPARE(width(2), before);
    openAnew();
    QCOMPARE(width(2), before);
}

void tst_TableColumnWidths::fittingOneColumnLeavesTheOthers()
{
    const int before = width(2);
    resize(2, 133);
    resize(4, 144);
    m_widths->fit(2);
    QCOMPARE(width(2), before);
    QCOMPARE(width(4), 144);
    openAnew();
    QCOMPARE(width(2), before);
    QCOMPARE(width(4), 144);
}

void tst_TableColumnWidths::tablesWithoutANameKeepNothing()
{
    const auto unnamed = [this] {
        VKTab::TableDescriptor descriptor;
        descriptor.fields = {TestTables::field("A")};
        m_grid->model.setTable(TestTables::table(descriptor, "A\nx\n"));
        m_widths->load();
        m_widths->apply();
    };
    unnamed();
    const int before = width(0);
    resize(0, 177);
    openAnew();
    unnamed();
    QCOMPARE(width(0), before);
}

void tst_TableColumnWidths::faultyEntriesArePassedOver()
{
    resize(2, 133);
    m_widths.reset();
    m_widths = std::make_unique<TableColumnWidths>(m_grid->grid, &m_grid->model);
    const QString key = m_grid->table.getKeyValue(VKTab::KeyNormNumber).toString();
    const QString encoded = QString::fromLatin1(QUrl::toPercentEncoding(key));
    const QString stored =
        PApplication::getAppConfig()->getItemValue(encoded, "TableColumns", QString()).GetString();
    QCOMPARE(stored, QString("Dia:133"));
    PApplication::getAppConfig()->SetValue(encoded, "TableColumns",
                                           QString(":9;Note;L:x;Volume:-4;;Dia:91"));
    m_widths->load();
    m_widths->apply();
    QCOMPARE(width(2), 91);
    for (int column = 3; column < 6; ++column)
        QVERIFY(width(column) > 9);
}

void tst_TableColumnWidths::emptyFilterLeavesWidths()
{
    VKTab::TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("A")};
    m_grid->model.setTable(TestTables::table(descriptor, "A\nwider than its caption\n"));
    m_widths->load();
    m_widths->apply();
    const int column = m_grid->model.statusColumnCount();
    const int before = width(column);
    QVERIFY(before > m_grid->grid->horizontalHeader()->sectionSizeHint(column));
    const VKTab::VarId filtered = m_grid->model.variable(column).getVarId();
    for (const char *const text : {"no line has this", ""}) {
        m_grid->model.setQuickFilter(filtered, text);
        QCOMPARE(m_grid->model.rowCount(), *text ? 0 : 1);
        m_widths->apply();
        QCOMPARE(width(column), before);
    }
}

QTEST_MAIN(tst_TableColumnWidths)
#include "tst_TableColumnWidths.moc"
