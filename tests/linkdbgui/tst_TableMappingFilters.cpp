#include "TableEditorFixture.h"

#include <geomcore/table/FilterByLineId.h>
#include <geomcore/table/SignalConnect.h>
#include <geomcoregui/table/VkTableModel.h>

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QTest>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;
using VKTab::LineId;

class tst_TableMappingFilters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { f.reset(); }

    void filterNotMappedLines();
    void filterNotMappedLinesWithoutAny();
    void filterTargetLines();
    void filterTargetLinesFollowsTheMapping();
    void filterTargetLinesOfAChangedFile();
    void filterTargetLinesWithoutAny();
    void filterTargetLinesOfAllItsTargets();
    void filterGivesWay();
    void boxTakesItsFilterBack();
    void otherFilterStays();
    void boxesOff();
    void filtersOfInvalidTables();
    void filterTargetTable();
    void filterTargetTableWithoutAny();
    void filterSourceTable();
    void filterSourceTableWithoutAny();
    void hiddenColumns();
    void hiddenColumnsAreToldToTheTables();

private:
    [[nodiscard]] QString visible(VkTableView *view) const
    {
        return TableEditorFixture::visibleLines(view->getTable());
    }

    std::unique_ptr<TableEditorFixture> f;
};

void tst_TableMappingFilters::init()
{
    f = std::make_unique<TableEditorFixture>();
    f->writeBolts();
}

void tst_TableMappingFilters::filterNotMappedLines()
{
    PrjMappingTargetC target = f->mapping.findTarget(0);
    target.setLineConflicted(3, true);
    f->mapping.updateTarget(0, target);
    f->load();
    QCOMPARE(f->states(), QString("- C Conflicted - N"));
    f->tick("chkFilterSource");
    QCOMPARE(visible(f->source), QString("2 5"));
    QCOMPARE(f->source->model()->rowCount(), 2);
    f->tick("chkFilterSource");
    QCOMPARE(visible(f->source), QString("1 2 3 4 5"));
}

void tst_TableMappingFilters::filterNotMappedLinesWithoutAny()
{
    f->mapping.verifyAll();
    f->load();
    f->tick("chkFilterSource");
    QCOMPARE(visible(f->source), QString());
    QCOMPARE(f->source->model()->rowCount(), 0);
    const auto *const empty = f->source->findChild<QLabel *>("emptyTable");
    QVERIFY(!empty->isHidden());
    QVERIFY2(empty->text().contains(f->box("chkFilterSource")->text()), qPrintable(empty->text()));
    f->tick("chkFilterSource");
    QVERIFY(empty->isHidden());
}

void tst_TableMappingFilters::filterTargetLines()
{
    f->load();
    f->select(1);
    f->tick("chkFilterTarget");
    QCOMPARE(visible(f->target), QString("4"));
    f->select(2);
    QCOMPARE(visible(f->target), QString("4"));
    f->select(4);
    QCOMPARE(visible(f->target), QString("2"));
    f->tick("chkFilterTarget");
    QCOMPARE(visible(f->target), QString("1 2"));
}

void tst_TableMappingFilters::filterTargetLinesFollowsTheMapping()
{
    f->load();
    f->select(1);
    f->tick("chkFilterTarget");
    QCOMPARE(visible(f->target), QString("4"));
    f->click(f->target, 4);
    f->press(Qt::Key_V);
    QCOMPARE(entriesOf(f->current()).section(' ', 0, 0), QString("0:1>4/2"));
    QCOMPARE(visible(f->target), QString("3"));
    // A confirmation changes nothing that the filter looks at.
    f->select(2);
    f->press(Qt::Key_V);
    QCOMPARE(visible(f->target), QString("3"));
    f->press(Qt::Key_X);
    f->select(3);
    QCOMPARE(visible(f->target), QString("2 3"));
}

void tst_TableMappingFilters::filterTargetLinesOfAChangedFile()
{
    f->load();
    f->select(1);
    f->tick("chkFilterTarget");
    QCOMPARE(visible(f->target), QString("4"));
    f->select(5); // no target
    f->catalog.write("new/a.prj", "D,k:n\nM10,7\nM9,66\nM8,5\nM20,1\nM30,2\n");
    f->select(1);
    QCOMPARE(visible(f->target), QString("4 5"));
}

void tst_TableMappingFilters::filterTargetLinesWithoutAny()
{
    enter(f->mapping, 0, 9, 4, Mapped);
    f->load();
    f->select(1);
    f->tick("chkFilterTarget");
    QCOMPARE(visible(f->target), QString());
}

void tst_TableMappingFilters::filterTargetLinesOfAllItsTargets()
{
    // The same project stands twice.
    f->mapping = mappingOf("old/a.prj", {"new/a.prj", "new/a.prj"});
    enter(f->mapping, 0, 1, 3, Mapped);
    enter(f->mapping, 1, 2, 4, Mapped);
    f->load();
    f->select(1);
    f->tick("chkFilterTarget");
    QCOMPARE(visible(f->target), QString("1 2"));
}

void tst_TableMappingFilters::filterGivesWay()
{
    f->load();
    f->select(1);
    VKTab::ContentRef table = f->targetTable();
    table.setFilter(VKTab::FilterByLineId({{4, {}}}, true));
    table.invalidate(VKTab::Content::InvalidateFilter, true);
    QCOMPARE(f->target->model()->rowCount(), 1);
    f->select(2);
    QCOMPARE(visible(f->target), QString("1 2 3 4"));
    QCOMPARE(f->target->model()->rowCount(), 4);
    QCOMPARE(f->target->getSelectedLines(), QList<LineId>({LineId(2)}));
    // A filter that shows the line stays.
    table.setFilter(VKTab::FilterByLineId({{1, {}}, {2, {}}}, true));
    table.invalidate(VKTab::Content::InvalidateFilter, true);
    f->select(3);
    QCOMPARE(visible(f->target), QString("1 2"));
}

void tst_TableMappingFilters::boxTakesItsFilterBack()
{
    enter(f->mapping, 0, 9, 2, Mapped);
    f->load();
    f->select(1);
    f->tick("chkFilterTarget");
    QCOMPARE(visible(f->target), QString("4"));
    f->menuRow(f->target, 4, "Nur Zeilen anzeigen, die mehrfach zugeordnet sind");
    QCOMPARE(visible(f->target), QString("2"));
    f->select(3);
    QCOMPARE(visible(f->target), QString("4"));
    QCOMPARE(f->targetTable().getSelection(), LineId(1));
    QCOMPARE(f->target->getSelectedLineCount(), 0);
}

void tst_TableMappingFilters::otherFilterStays()
{
    f->catalog.write("new/a.prj", "D,k:n\nM10,7\nM9,66\nM8,5\n", [](auto &table) {
        table.filterConditions = {{"OTHER", "k .LT. 50", {}}};
    });
    f->load();
    f->select(2);
    QCOMPARE(visible(f->target), QString("1 3"));
    QCOMPARE(f->targetTable().getSelection(), LineId(2));
    QVERIFY(!f->targetTable().isLineVisible(LineId(2)));
}

void tst_TableMappingFilters::boxesOff()
{
    f->load();
    f->select(1);
    VKTab::ContentRef table = f->targetTable();
    table.setFilter(VKTab::FilterByLineId({{3, {}}}, true));
    f->box("chkFilterTarget")->setTristate(true);
    f->box("chkFilterTarget")->setCheckState(Qt::PartiallyChecked);
    QCOMPARE(visible(f->target), QString("1 2 3 4"));
}

void tst_TableMappingFilters::filtersOfInvalidTables()
{
    f->load();
    f->select(2);
    QMenu *const menu = f->openMenu(f->target, 2);
    QVERIFY(menu);
    const auto triggerAll = [&] {
        for (const char *const name : {"chkFilterSource", "chkFilterTarget"})
            QMetaObject::invokeMethod(f->box(name), "stateChanged", Q_ARG(int, Qt::Checked));
        menu->actions().at(0)->trigger();
        menu->actions().at(1)->trigger();
    };
    const auto isFiltered = [](const VKTab::Content &table) {
        return table.getFilter(VKTab::FilterByLineId::className()).rule() != nullptr;
    };
    // A target table that is left over beside no source table.
    f->load(VKTab::ContentRef());
    VKTab::ContentRef table = f->read("new/a.prj");
    table.setSelection(LineId(2), false);
    f->target->setTable(table);
    triggerAll();
    QVERIFY(!isFiltered(table));
    // A source table beside no target table.
    table = f->read("old/a.prj");
    f->load(table);
    menu->actions().at(0)->trigger();
    menu->actions().at(1)->trigger();
    QMetaObject::invokeMethod(f->box("chkFilterTarget"), "stateChanged", Q_ARG(int, Qt::Checked));
    QVERIFY(!isFiltered(table));
    menu->close();
}

void tst_TableMappingFilters::filterTargetTable()
{
    enter(f->mapping, 0, 4, 2, Mapped);
    f->mapping.removeTarget(1);
    f->load();
    f->select(1);
    f->menuRow(f->target, 3, "Nur Zeilen anzeigen, die mehrfach zugeordnet sind");
    QCOMPARE(visible(f->target), QString("2"));
}

void tst_TableMappingFilters::filterTargetTableWithoutAny()
{
    f->load();
    f->select(1);
    f->menuRow(f->target, 3, "Nur Zeilen anzeigen, die mehrfach zugeordnet sind");
    QCOMPARE(visible(f->target), QString("1 2 3 4"));
}

void tst_TableMappingFilters::filterSourceTable()
{
    enter(f->mapping, 0, 3, 2, Verified);
    f->load();
    f->select(2);
    f->menuRow(f->target, 2,
               "Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind");
    QCOMPARE(visible(f->source), QString("2 3"));
}

void tst_TableMappingFilters::filterSourceTableWithoutAny()
{
    f->load();
    f->select(2);
    f->click(f->target, 4);
    f->menuRow(f->target, 4,
               "Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind");
    QCOMPARE(visible(f->source), QString("1 2 3 4 5"));
}

void tst_TableMappingFilters::hiddenColumns()
{
    const auto hideK = [](VKTab::TableDescriptor &table) {
        table.fields[1].hidden = true;
    };
    f->catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\nM10,7\nM11,8\n", hideK);
    f->catalog.write("new/a.prj", "D,k:n\nM10,7\nM9,66\nM8,5\n", hideK);
    f->catalog.write("new/b.prj", "D,k:n\nM11,8\n", hideK);
    f->load();
    f->select(1);
    const auto isShown = [](VkTableView *view) {
        return view->model()->columnOf(view->getTable().getVar(u"k").getVarId()) >= 0;
    };
    QVERIFY(!isShown(f->source) && !isShown(f->target));
    f->tick("chkShowHiddenCols");
    QVERIFY(isShown(f->source) && isShown(f->target));
    QCOMPARE(f->targetTable().getSelection(), LineId(3));
    f->select(4); // a table that is read later
    QVERIFY(isShown(f->target));
    f->tick("chkShowHiddenCols");
    QVERIFY(!isShown(f->source) && !isShown(f->target));
}

void tst_TableMappingFilters::hiddenColumnsAreToldToTheTables()
{
    f->load();
    f->select(1);
    QList<VKTab::Content::InvalidateFlags> heard;
    const auto note = [&](const VKTab::Content &, VKTab::Content::InvalidateFlags flags) {
        heard.append(flags);
    };
    const boost::signals2::scoped_connection source =
        f->sourceTable().signalConnect().connectSignalInvalidated(note);
    const boost::signals2::scoped_connection target =
        f->targetTable().signalConnect().connectSignalInvalidated(note);
    f->tick("chkShowHiddenCols");
    QCOMPARE(heard, QList<VKTab::Content::InvalidateFlags>(2, VKTab::Content::InvalidateColumns));
}

QTEST_MAIN(tst_TableMappingFilters)
#include "tst_TableMappingFilters.moc"
