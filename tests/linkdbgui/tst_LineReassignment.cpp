#include "SilentTableEditor.h"

#include <mapping/project/ProjectMappingWidget.h>

#include <core/message/PScriptedMessageSink.h>
#include <core/progress/PProgressObserverBase.h>
#include <geomcore/table/Line.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <gui/progress/ProgressDisplayI.h>

#include <QDir>
#include <QPointer>
#include <QTest>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

namespace {

/// Asks to cancel a progress once it has come so far.
class CancelAfter : public PProgressObserverBase
{
public:
    explicit CancelAfter(int steps)
        : m_steps(steps)
    {
        activate(Thread);
    }
    ~CancelAfter() override { deactivate(); }
    void progressStarted(const PProgressInfo &info) override
    {
        if (atStart)
            atStart();
        note(info);
    }
    void progressChanged(const PProgressInfo &info) override { note(info); }
    void progressText(const PProgressInfo &info) override { note(info); }
    void progressDone(const PProgressInfo &info) override { note(info); }

    PProgressInfo last;
    std::function<void()> atStart;

private:
    void note(const PProgressInfo &info)
    {
        last = info;
        if (info.count >= m_steps && info.cancel)
            info.cancel->request();
    }

    const int m_steps;
};

/// Does something as soon as a progress has come so far.
class AtStep : public PProgressObserverBase
{
public:
    AtStep(int step, const std::function<void()> &work)
        : m_step(step)
        , m_work(work)
    {
        activate(Thread);
    }
    ~AtStep() override { deactivate(); }
    void progressStarted(const PProgressInfo &) override {}
    void progressChanged(const PProgressInfo &info) override
    {
        if (info.count == m_step)
            m_work();
    }
    void progressDone(const PProgressInfo &) override {}

private:
    const int m_step;
    const std::function<void()> m_work;
};

/// Notes what a progress shows.
class NotingDisplay : public ProgressDisplayI
{
public:
    explicit NotingDisplay(QList<PProgressInfo> *shown)
        : m_shown(shown)
    {
    }
    void showProgress(const QList<PProgressInfo> &running) override { m_shown->append(running); }
    bool acceptsInput(const QWidget *) const override { return false; }

private:
    QList<PProgressInfo> *m_shown;
};

/// Notes at which step of a progress something came to the log window.
class LoggedAt : public PMessageSink
{
public:
    explicit LoggedAt(const CancelAfter *observer)
        : m_observer(observer)
    {
    }
    PMsgReply show(const QString &, PMsgDlgModes) override { return PMsgReply::Ok; }
    void logToWindow(const QString &) override { counts.append(m_observer->last.count); }

    QList<qint64> counts;

private:
    const CancelAfter *m_observer;
};

} // namespace

class tst_LineReassignment : public QObject, private SilentTableEditor
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QDir::setSearchPaths("bitmaps", {":/hostbitmaps"}); }
    void init() { begin(); }
    void cleanup() { end(); }

    void remap_data();
    void remap();
    void remapTakesChangedTables();
    void remapWithoutRelease();
    void remapWithUnreadableTarget();
    void remapCancelled();
    void remapWalksCombinations();
    void remapShowsItsProgress();
    void remapStepsAfterTheWork();
    void remapInAWidgetThatGoes();
};

void tst_LineReassignment::remap_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("targetLine");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("marker");

    QTest::newRow("confirmed survives") << 2 << 4 << "0:1>4/2"
                                        << "M";
    QTest::newRow("confirmed expiry survives") << 2 << -1 << "0:1>-1/2"
                                               << "NC";
    QTest::newRow("mapped is worked out afresh") << 1 << 1 << "0:1>3/1"
                                                 << "-";
    QTest::newRow("proposal is worked out afresh") << 0 << 1 << "0:1>3/1"
                                                   << "-";
}

void tst_LineReassignment::remap()
{
    QFETCH(int, state);
    QFETCH(int, targetLine);
    f->catalog.write("new/a.prj", "D,k:n\nM10,7\nM9,66\nM8,5\nM20,1\n");
    f->mapping = mappingOf("old/a.prj", {"new/a.prj"});
    enter(f->mapping, 0, 1, targetLine, PRJMAPPING::CheckState(state));
    f->load();
    f->widget->onRemapLinesClicked();
    QCOMPARE(f->published.size(), 1);
    // Line 2 fails its check; line 3 passes, but is not certain of a line confirmed for another
    // one.
    const bool isClaimed = targetLine == 1 && state == PRJMAPPING::Verified;
    QTEST(entries().section(' ', 0, 0), "expected");
    QCOMPARE(entries().section(' ', 1), QString(isClaimed ? "0:2>2/0 0:3>1/0" : "0:2>2/0 0:3>1/1"));
    QTEST(f->states().section(' ', 0, 0), "marker");
    QCOMPARE(f->states().section(' ', 1), QString(isClaimed ? "C C" : "C -"));
}

void tst_LineReassignment::remapTakesChangedTables()
{
    f->catalog.write("old/a.prj", "D,k:n\nZZ,4711\nM9,6\nM10,7\n");
    f->mapping = mappingOf("old/a.prj", {"new/a.prj"});
    enter(f->mapping, 0, 1, 1, Mapped);
    f->load();
    f->widget->onRemapLinesClicked();
    QCOMPARE(f->states(), QString("N C -"));
    QCOMPARE(entries(), QString("0:2>2/0 0:3>1/1 -:1>-1/0"));
}

void tst_LineReassignment::remapWithoutRelease()
{
    f->withRelease = false;
    f->load();
    f->widget->onRemapLinesClicked();
    QCOMPARE(f->published.size(), 0);
}

void tst_LineReassignment::remapWithUnreadableTarget()
{
    f->mapping = mappingOf("old/a.prj", {"new/a.prj", "new/gone.prj"});
    enter(f->mapping, 0, 1, 2, ToCheck);
    enter(f->mapping, 1, 2, 7, Mapped);
    enter(f->mapping, 1, 3, 8, Verified);
    f->load();
    const QString before = entries();
    f->widget->onRemapLinesClicked();
    QCOMPARE(entries(), before);
    QVERIFY(f->current().getMappingState().testFlag(PRJMAPPING::StateTableError));
    QVERIFY2(m_messages->logged().join('\n').contains("new/gone.prj"), "not told");
}

void tst_LineReassignment::remapCancelled()
{
    f->mapping = mappingOf("old/a.prj", {"new/a.prj"});
    enter(f->mapping, 0, 2, 1, Verified);
    enter(f->mapping, 0, 3, 2, Mapped);
    f->load();
    {
        const CancelAfter observer(0);
        f->widget->onRemapLinesClicked();
        QCOMPARE(observer.last.text, QString("Zeilen werden neu zugewiesen"));
        QVERIFY(observer.last.cancellable);
    }
    QCOMPARE(f->published.size(), 1);
    QVERIFY(entries().contains("0:2>1/2"));
    QVERIFY(entries().contains("0:3>2/1")); // not reached
}

void tst_LineReassignment::remapWalksCombinations()
{
    f->catalog.write("old/a.prj", "D,L:r\nM8,10;20\n");
    f->catalog.write("new/a.prj", "D,L:n\nM8,10\n");
    f->catalog.write("new/b.prj", "D,L:n\nM8,20\n");
    f->mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addCondition(f->mapping, 0, "L .LT. 15");
    addCondition(f->mapping, 1, "L .GT. 15");
    ProjectMappingWidget project(nullptr);
    f->widget->setProjectMappingWidget(&project);
    project.loadSourceProject(f->mapping, f->read("old/a.prj"), CatalogMappingC());
    f->load();
    f->widget->onRemapLinesClicked();
    // Both combinations are found; the last one holds the line.
    QCOMPARE(entries().section('/', 0, 0), QString("1:1>1"));
    f->widget->setProjectMappingWidget(nullptr);
}

void tst_LineReassignment::remapShowsItsProgress()
{
    f->load();
    QList<PProgressInfo> shown;
    DefaultObserverDelegate::setDisplay(std::make_shared<NotingDisplay>(&shown));
    DefaultObserverDelegate::setTimes(0, 0);
    f->widget->onRemapLinesClicked();
    DefaultObserverDelegate::setTimes(500, 100);
    DefaultObserverDelegate::setDisplay(nullptr);
    QVERIFY(!shown.isEmpty());
    for (const PProgressInfo &info : std::as_const(shown)) {
        QVERIFY(info.cancellable);
        QCOMPARE(info.total, qint64(3));
    }
    QCOMPARE(shown.last().text, QString("Zeilen werden neu zugewiesen"));
}

void tst_LineReassignment::remapStepsAfterTheWork()
{
    // The first line's work comes to a table that cannot be read any more, and says so.
    f->catalog.write("new/torn.prj", "k:n\n5\n");
    f->mapping = mappingOf("old/a.prj", {"new/torn.prj"});
    f->load();
    CancelAfter observer(1000);
    observer.atStart = [this] {
        QFile::remove(f->catalog.file("new/torn.csv"));
    };
    const auto sink = std::make_shared<LoggedAt>(&observer);
    {
        const PMessageSinkScope scope(sink);
        f->widget->onRemapLinesClicked();
    }
    QCOMPARE(observer.last.count, qint64(3));
    QCOMPARE(sink->counts.value(0, -1), qint64(0));
}

void tst_LineReassignment::remapInAWidgetThatGoes()
{
    f->load();
    const QPointer<QWidget> widget = f->widget.get();
    const AtStep closing(1, [this] { f->widget.reset(); });
    f->widget->onRemapLinesClicked();
    QVERIFY(!widget);
    QCOMPARE(f->published.size(), 0);
}

QTEST_MAIN(tst_LineReassignment)
#include "tst_LineReassignment.moc"
