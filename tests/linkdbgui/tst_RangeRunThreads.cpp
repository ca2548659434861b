#include "../support/TestCatalog.h"
#include "EditorFixture.h"

#include <mapping/table/VarsetMappingRunnable.h>

#include <geomcore/table/LineView.h>
#include <gui/progress/ProgressEventAccumulatorBase.h>

#include <QTest>

#include <atomic>
#include <thread>

using PRJMAPPING::Mapped;

namespace {

class CountingAccumulator : public ProgressEventAccumulatorBase
{
public:
    void post(PProgressEvent, const PProgressInfo &) override { ++m_events; }
    [[nodiscard]] int events() const { return m_events; }

private:
    std::atomic<int> m_events = 0;
};

QString textOf(const VKTab::LineView &line, int column)
{
    std::string scratch;
    const std::string_view text = line.text(column, scratch);
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

} // namespace

/// What the run over value ranges shares with others while it works.
class tst_RangeRunThreads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsStandBesideReadersOfTheTable();
};

void tst_RangeRunThreads::runsStandBesideReadersOfTheTable()
{
    constexpr int Lines = 200;
    const TestCatalog catalog;
    const LocalCatalogs catalogs(catalog.root());
    QByteArray lines = "D,L:r\n";
    for (int i = 0; i < Lines; ++i)
        lines += "M" + QByteArray::number(i) + ",10;20\n";
    catalog.write("old/a.prj", lines);
    catalog.write("new/a.prj", lines);
    VarsetMappingRunnable::Task task;
    CountingAccumulator accumulator;
    task.accumulator = &accumulator;
    task.variables = QStringList("L");
    task.mapping = mappingOf("old/a.prj", {"new/a.prj"});
    for (int line = 1; line <= Lines; ++line)
        enter(task.mapping, 0, line, line, Mapped);
    task.sourceTable = catalog.read("old/a.prj");
    task.lineIds = task.sourceTable.getLineIdList();

    VarsetMappingRunnable first(task);
    VarsetMappingRunnable second(task);
    std::thread firstThread([&] { first.run(); });
    std::thread secondThread([&] { second.run(); });
    QStringList shown;
    for (const VKTab::LineId &id : task.lineIds)
        shown.append(textOf(VKTab::LineView(task.sourceTable, id), 0));
    firstThread.join();
    secondThread.join();

    QCOMPARE(shown.size(), Lines);
    QCOMPARE(shown.last(), QString("M%1").arg(Lines - 1));
    QVERIFY(accumulator.events() > 0);
    QCOMPARE(entriesOf(first.getMapping()), entriesOf(second.getMapping()));
    for (int line = 1; line <= Lines; ++line) {
        QCOMPARE(first.getMapping().findTarget(0).getMappedLine(line).getExtended(),
                 QStringLiteral("{L=10} -> %1\n{L=20} -> %1").arg(line));
    }
}

QTEST_MAIN(tst_RangeRunThreads)
#include "tst_RangeRunThreads.moc"
