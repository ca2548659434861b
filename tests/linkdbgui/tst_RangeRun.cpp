#include "../support/TestCatalog.h"
#include "EditorFixture.h"

#include <mapping/table/RangeRun.h>

#include <core/progress/PProgressObserverBase.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>

#include <QThread>
#include <QTimer>

using PRJMAPPING::Mapped;

namespace {

constexpr int LongTable = 3000;

/// Notes the texts of what it hears of, and on which thread that was.
class NotingObserver : public PProgressObserverBase
{
public:
    NotingObserver() { activate(Thread); }
    ~NotingObserver() override { deactivate(); }
    NotingObserver(const NotingObserver &) = delete;
    NotingObserver &operator=(const NotingObserver &) = delete;
    void progressStarted(const PProgressInfo &info) override { note(info); }
    void progressChanged(const PProgressInfo &info) override { note(info); }
    void progressText(const PProgressInfo &info) override { note(info); }
    void progressDone(const PProgressInfo &info) override { note(info); }

    QStringList texts;
    bool isElsewhere = false;

private:
    void note(const PProgressInfo &info)
    {
        if (!info.text.isEmpty() && (texts.isEmpty() || texts.last() != info.text))
            texts.append(info.text);
        isElsewhere = isElsewhere || QThread::currentThread() != qApp->thread();
    }
};

} // namespace

class tst_RangeRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_catalogs.reset(); }

    void result();
    void nothingRecorded();
    void eventsAreProcessed();
    void progressOfEachLine();
    void progressReachesTheObserver();
    void hiddenColumnsOfTheView_data();
    void hiddenColumnsOfTheView();
    void forgottenView();
    void eachTargetIsReadOnce();

private:
    [[nodiscard]] VarsetMappingRunnable::Task task() const;
    /// So many lines that the run takes its time.
    void writeLongTable();
    [[nodiscard]] QString textOf(const PrjMappingC &mapping, int line) const
    {
        return mapping.findTarget(0).getMappedLine(line).getExtended();
    }

    std::unique_ptr<TestCatalog> m_catalog;
    std::unique_ptr<LocalCatalogs> m_catalogs;
    PrjMappingC m_mapping;
};

void tst_RangeRun::init()
{
    m_catalog = std::make_unique<TestCatalog>();
    m_catalogs = std::make_unique<LocalCatalogs>(m_catalog->root());
    m_catalog->write("old/a.prj", "D,L:r\nM8,10;20\nM9,10;20\n");
    m_catalog->write("new/a.prj", "D,L:r\nM8,10\nM8,20;40\nM9,10;20\n");
    m_mapping = mappingOf("old/a.prj", {"new/a.prj"});
    enter(m_mapping, 0, 1, 1, Mapped);
    enter(m_mapping, 0, 2, 3, Mapped);
}

void tst_RangeRun::writeLongTable()
{
    QByteArray lines = "D,L:r\n";
    for (int line = 1; line <= LongTable; ++line) {
        lines += "M8,10;20\n";
        enter(m_mapping, 0, line, 1, Mapped);
    }
    m_catalog->write("old/a.prj", lines);
}

VarsetMappingRunnable::Task tst_RangeRun::task() const
{
    VarsetMappingRunnable::Task task;
    task.variables = QStringList("L");
    task.mapping = m_mapping;
    task.sourceTable = m_catalog->read("old/a.prj");
    task.lineIds = task.sourceTable.getLineIdList();
    return task;
}

void tst_RangeRun::result()
{
    RangeRun run(task());
    run.exec();
    QVERIFY(run.isChanged());
    QCOMPARE(textOf(run.getMapping(), 1), QString("{L=10} -> 1\n{L=20} -> 2"));
    QCOMPARE(textOf(run.getMapping(), 2), QString("{L=10} -> 3\n{L=20} -> 3"));
    QCOMPARE(textOf(m_mapping, 1), QString());
}

void tst_RangeRun::nothingRecorded()
{
    VarsetMappingRunnable::Task wanted = task();
    wanted.variables.clear();
    RangeRun run(wanted);
    run.exec();
    QVERIFY(!run.isChanged());
    QCOMPARE(entriesOf(run.getMapping()), entriesOf(m_mapping));
}

void tst_RangeRun::eventsAreProcessed()
{
    writeLongTable();
    bool delivered = false;
    QTimer::singleShot(0, this, [&] { delivered = true; });
    RangeRun run(task());
    run.exec();
    QVERIFY(delivered);
}

void tst_RangeRun::progressOfEachLine()
{
    // On this thread, so that nothing is left out on the way.
    NotingObserver observer;
    VarsetMappingRunnable runnable(task());
    runnable.run();
    QCOMPARE(observer.texts, QStringList({"Zeile mit LineID 1 wird zugeordnet...",
                                          "Zeile mit LineID 2 wird zugeordnet..."}));
}

void tst_RangeRun::progressReachesTheObserver()
{
    NotingObserver observer;
    RangeRun(task()).exec();
    QVERIFY(!observer.texts.isEmpty());
    QVERIFY(observer.texts.last().startsWith("Zeile mit LineID"));
    QVERIFY(!observer.isElsewhere);
}

void tst_RangeRun::hiddenColumnsOfTheView_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("wanted");
    QTest::newRow("come") << false << true;
    QTest::newRow("go") << true << false;
    QTest::newRow("stay") << true << true;
}

void tst_RangeRun::hiddenColumnsOfTheView()
{
    QFETCH(bool, before);
    QFETCH(bool, wanted);
    const VkTableView view;
    view.model()->setShowHiddenVars(before);
    VarsetMappingRunnable::Task wish = task();
    wish.targetView = const_cast<VkTableView *>(&view);
    wish.showHiddenCols = wanted;
    RangeRun(wish).exec();
    QTRY_COMPARE(view.model()->showHiddenVars(), wanted);
}

void tst_RangeRun::forgottenView()
{
    auto view = std::make_unique<VkTableView>();
    VarsetMappingRunnable::Task wish = task();
    wish.targetView = view.get();
    wish.showHiddenCols = true;
    RangeRun run(wish);
    run.forgetTargetView();
    view.reset();
    run.exec();
    QVERIFY(run.isChanged());
}

void tst_RangeRun::eachTargetIsReadOnce()
{
    writeLongTable();
    // The file goes as soon as progress is told, which is after the first line.
    class Remover : public PProgressObserverBase
    {
    public:
        explicit Remover(const QString &file)
            : m_file(file)
        {
            activate(Thread);
        }
        ~Remover() override { deactivate(); }
        void progressStarted(const PProgressInfo &) override {}
        void progressChanged(const PProgressInfo &info) override
        {
            if (info.count > 0)
                QFile::remove(m_file);
        }
        void progressDone(const PProgressInfo &) override {}

    private:
        const QString m_file;
    };
    VarsetMappingRunnable runnable(task());
    {
        const Remover remover(m_catalog->file("new/a.prj"));
        runnable.run();
    }
    QVERIFY(!QFile::exists(m_catalog->file("new/a.prj")));
    QCOMPARE(textOf(runnable.getMapping(), LongTable), QString("{L=10} -> 1\n{L=20} -> 2"));
}

QTEST_MAIN(tst_RangeRun)
#include "tst_RangeRun.moc"
