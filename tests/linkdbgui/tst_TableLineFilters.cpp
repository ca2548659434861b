#include "../support/TestCatalog.h"

#include <mapping/table/TableLineFilters.h>

#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/SignalConnect.h>

#include <QTest>

using PRJMAPPING::Mapped;
using VKTab::LineId;

/// The filters over tables alone, without a widget.
class tst_TableLineFilters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void unassigned();
    void unassignedFollowsTheStates();
    void unused();
    void unusedIsMadeAnewOnlyAfterChanges();
    void freedLinesAreUnused();
    void unusedComesBack();
    void usedTwice();
    void sourcesOf();
    void viewsHearOfIt();

private:
    [[nodiscard]] QString visible() const;
    void mark(int line, const char *state) const;

    std::unique_ptr<TestCatalog> m_catalog;
    VKTab::ContentRef m_table;
    PrjMappingC m_mapping;
};

void tst_TableLineFilters::init()
{
    m_catalog = std::make_unique<TestCatalog>();
    m_catalog->write("new/a.prj", "k:n\n5\n6\n7\n8\n");
    m_table = m_catalog->read("new/a.prj");
    m_mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj", "new/a.prj"});
    enter(m_mapping, 0, 1, 3, Mapped);
    enter(m_mapping, 1, 2, 4, Mapped);
    enter(m_mapping, 2, 5, 3, Mapped);
    enter(m_mapping, 2, 9, 2, Mapped);
}

QString tst_TableLineFilters::visible() const
{
    QStringList all;
    for (const LineId &id : m_table.getLineMapping().getOrdered())
        all.append(QString::number(id.value(0)));
    return all.join(u' ');
}

void tst_TableLineFilters::mark(int line, const char *state) const
{
    m_table.getModifyLayer()->setLineKeyValue(line, "CatalogMapper", state);
}

void tst_TableLineFilters::unassigned()
{
    TableLineFilters::showUnassigned(m_table);
    QCOMPARE(visible(), QString()); // not: all
    TableLineFilters::showAll(m_table);
    QCOMPARE(visible(), QString("1 2 3 4"));
}

void tst_TableLineFilters::unassignedFollowsTheStates()
{
    mark(1, "C");
    mark(2, "Conflicted");
    mark(3, "NC");
    mark(4, "N");
    TableLineFilters::showUnassigned(m_table);
    QCOMPARE(visible(), QString("1 4"));
    mark(1, "M");
    TableLineFilters::showUnassigned(m_table);
    QCOMPARE(visible(), QString("4"));
}

void tst_TableLineFilters::unused()
{
    TableLineFilters filters;
    filters.showUnused(m_table, m_mapping, {0, 2});
    QCOMPARE(visible(), QString("1 4"));
    filters.showUnused(m_table, m_mapping, {1});
    QCOMPARE(visible(), QString("1 2 3"));
    for (const int line : {1, 2, 3})
        enter(m_mapping, 1, line, line, Mapped);
    enter(m_mapping, 1, 4, 4, Mapped);
    filters.showUnused(m_table, m_mapping, {1});
    QCOMPARE(visible(), QString()); // not: all
}

void tst_TableLineFilters::unusedIsMadeAnewOnlyAfterChanges()
{
    TableLineFilters filters;
    filters.showUnused(m_table, m_mapping, {0, 2});
    int invalidated = 0;
    const boost::signals2::scoped_connection connection =
        m_table.signalConnect().connectSignalInvalidated(
            [&](const VKTab::Content &, VKTab::Content::InvalidateFlags) { ++invalidated; });
    enter(m_mapping, 0, 1, 3, PRJMAPPING::Verified);
    filters.showUnused(m_table, m_mapping, {0, 2});
    QCOMPARE(invalidated, 0);
    enter(m_mapping, 0, 1, 4, PRJMAPPING::Verified);
    filters.showUnused(m_table, m_mapping, {0, 2});
    QCOMPARE(invalidated, 1);
    QCOMPARE(visible(), QString("1"));
    // Another table with the same mapping.
    m_catalog->write("new/b.prj", "k:n\n5\n6\n7\n8\n9\n");
    m_table = m_catalog->read("new/b.prj");
    filters.forgetTarget();
    filters.showUnused(m_table, m_mapping, {0, 2});
    QCOMPARE(visible(), QString("1 5"));
}

void tst_TableLineFilters::freedLinesAreUnused()
{
    TableLineFilters filters;
    enter(m_mapping, 0, 1, 4, Mapped);
    filters.showUnused(m_table, m_mapping, {0, 2});
    QCOMPARE(visible(), QString("1"));
    PrjMappingTargetC target = m_mapping.findTarget(0);
    target.removeLineId(1);
    m_mapping.updateTarget(0, target);
    filters.showUnused(m_table, m_mapping, {0, 2});
    QCOMPARE(visible(), QString("1 4"));
}

void tst_TableLineFilters::unusedComesBack()
{
    TableLineFilters filters;
    filters.showUnused(m_table, m_mapping, {0, 2});
    TableLineFilters::showAll(m_table);
    QCOMPARE(visible(), QString("1 2 3 4"));
    filters.showUnused(m_table, m_mapping, {0, 2});
    QCOMPARE(visible(), QString("1 4"));
}

void tst_TableLineFilters::usedTwice()
{
    TableLineFilters::showUsedTwice(m_table, m_mapping, {0, 2});
    QCOMPARE(visible(), QString("3"));
    TableLineFilters::showUsedTwice(m_table, m_mapping, {0});
    QCOMPARE(visible(), QString("1 2 3 4"));
}

void tst_TableLineFilters::sourcesOf()
{
    enter(m_mapping, 0, 4, 3, Mapped);
    TableLineFilters::showSourcesOf(3, m_table, m_mapping, {0, 2});
    QCOMPARE(visible(), QString("1 4")); // 5 is no line of this table
    TableLineFilters::showSourcesOf(1, m_table, m_mapping, {0, 2});
    QCOMPARE(visible(), QString("1 2 3 4"));
}

void tst_TableLineFilters::viewsHearOfIt()
{
    QList<VKTab::Content::InvalidateFlags> heard;
    const boost::signals2::scoped_connection connection =
        m_table.signalConnect().connectSignalInvalidated(
            [&](const VKTab::Content &, VKTab::Content::InvalidateFlags flags) {
                heard.append(flags);
            });
    TableLineFilters filters;
    TableLineFilters::showUnassigned(m_table);
    filters.showUnused(m_table, m_mapping, {0});
    TableLineFilters::showUsedTwice(m_table, m_mapping, {0});
    TableLineFilters::showSourcesOf(3, m_table, m_mapping, {0});
    TableLineFilters::showAll(m_table);
    QCOMPARE(heard, QList<VKTab::Content::InvalidateFlags>(5, VKTab::Content::InvalidateFilter));
}

QTEST_GUILESS_MAIN(tst_TableLineFilters)
#include "tst_TableLineFilters.moc"
