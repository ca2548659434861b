#include <mapping/project/remapProjectLines.h>

#include "../support/TestCatalog.h"

#include <core/progress/PProgressObserverBase.h>
#include <geomcore/table/FileLayer.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/TableData.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <gui/progress/ProgressDisplayI.h>

#include <QTest>

#include <boost/make_shared.hpp>

#include <thread>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

namespace {

/// Notes what a progress tells.
class Recorder : public PProgressObserverBase
{
public:
    Recorder() { activate(Thread); }
    ~Recorder() override { deactivate(); }
    void progressStarted(const PProgressInfo &info) override { note(info); }
    void progressChanged(const PProgressInfo &info) override { note(info); }
    void progressText(const PProgressInfo &info) override { note(info); }
    void progressDone(const PProgressInfo &info) override
    {
        note(info);
        ++ended;
    }

    PProgressInfo last;
    QStringList texts;
    bool cancellable = false;
    int ended = 0;

private:
    void note(const PProgressInfo &info)
    {
        last = info;
        cancellable = cancellable || info.cancellable;
        if (!info.text.isEmpty() && !texts.contains(info.text))
            texts.append(info.text);
    }
};

const QByteArray lines = "D,k:n\nM8,5\nM9,6\nM10,7\n";

} // namespace

class tst_remapProjectLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void assignsAllLines();
    void force_data();
    void force();
    void notFoundTargetIsEmptied();
    void notFoundTargetStaysWithLines();
    void confirmedExpiryStays();
    void earlyStop();
    void otherSourcePath();
    void emptyTable();
    void datesOfTheRelease();
    void targetsKeepOrderAndContents();
    void orderOfTargetsMatters();
    void hiddenLinesCount();
    void conditionsMoveLines();
    void existingEntryIsCheckedWithItsConditions();
    void internalVariablesAreNotCompared();
    void decimalCommaInCombinations();
    void firstCombinationSettles();
    void laterCombinationIsTried();
    void rangeThatNoConditionReadsIsNotWalked();
    void rangeNotNamedIsNotWalked();
    void conditionNamesAreCaseSensitive();
    void lineWithoutCombination();
    void addedLayerTakesPartInCombinations();
    void changedCell();
    void unreadableTarget();
    void stateIsRefreshed();
    void progress();
    void progressIsShown();
    void severalThreads();

private:
    /// Re-assigns "cat/a.prj" and gives what entriesOf tells.
    QString remap(const QStringList &conditionVariables = {}, bool force = false);
    /// Writes the table of a project.
    void write(const QString &project, const QByteArray &table) const
    {
        m_catalog->write(project, table);
    }

    std::unique_ptr<TestCatalog> m_catalog;
    PrjMappingC m_mapping;
};

void tst_remapProjectLines::init()
{
    m_catalog = std::make_unique<TestCatalog>();
    IndexTreeC::instance()->setCatalogRoot(PPathName(m_catalog->root()));
    write("cat/a.prj", lines);
    write("new/a.prj", lines);
    m_mapping = mappingOf("cat/a.prj", {"new/a.prj"});
}

QString tst_remapProjectLines::remap(const QStringList &conditionVariables, bool force)
{
    VKTab::Content table = m_catalog->read("cat/a.prj");
    remapProjectLines("cat/a.prj", m_mapping, table, ReleaseMappingC(), conditionVariables, force);
    return entriesOf(m_mapping);
}

void tst_remapProjectLines::assignsAllLines()
{
    write("new/a.prj", "D,k:n\nM10,7\nM9,66\nM8,5\n");
    QCOMPARE(remap(), "0:1>3/1 0:2>2/0 0:3>1/1");
    QCOMPARE(m_mapping.getNotFoundTarget(), -1);
}

void tst_remapProjectLines::force_data()
{
    QTest::addColumn<bool>("force");
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("targetLine");
    QTest::addColumn<QString>("expected");

    QTest::newRow("mapped stays without force") << false << 1 << 2 << "0:1>2/1";
    QTest::newRow("mapped goes with force") << true << 1 << 2 << "0:1>1/1";
    QTest::newRow("verified stays without force") << false << 2 << 2 << "0:1>2/2";
    QTest::newRow("verified stays with force") << true << 2 << 2 << "0:1>2/2";
    QTest::newRow("a proposal stays without force") << false << 0 << 2 << "0:1>2/0";
    QTest::newRow("a proposal goes with force") << true << 0 << 2 << "0:1>1/1";
    QTest::newRow("a good proposal is promoted") << false << 0 << 1 << "0:1>1/1";
    QTest::newRow("an unknown state stays without force") << false << 3 << 2 << "0:1>2/3";
    QTest::newRow("an unknown state goes with force") << true << 3 << 2 << "0:1>1/1";
}

void tst_remapProjectLines::force()
{
    QFETCH(bool, force);
    QFETCH(int, state);
    QFETCH(int, targetLine);
    enter(m_mapping, 0, 1, targetLine, PRJMAPPING::CheckState(state));
    const QString entries = remap({}, force);
    QTEST(entries.section(u' ', 0, 0), "expected");
}

void tst_remapProjectLines::notFoundTargetIsEmptied()
{
    m_mapping.addTarget(QString(), QString());
    enter(m_mapping, 1, 1, -1, ToCheck);
    enter(m_mapping, 1, 2, -1, Mapped);
    enter(m_mapping, 1, 77, -1, Mapped);
    QCOMPARE(remap(), "0:1>1/1 0:2>2/1 0:3>3/1");
    QCOMPARE(m_mapping.getNotFoundTarget(), -1);
    QCOMPARE(m_mapping.countTargets(), 1);
}

void tst_remapProjectLines::notFoundTargetStaysWithLines()
{
    write("new/a.prj", "D,k:n\nM8,5\nX1,1000\nX2,2000\nX3,3000\n");
    QCOMPARE(remap(), "0:1>1/1 -:2>-1/0 -:3>-1/0");
    QCOMPARE(m_mapping.getNotFoundTarget(), 1);
}

void tst_remapProjectLines::confirmedExpiryStays()
{
    m_mapping.addTarget(QString(), QString());
    enter(m_mapping, 1, 1, -1, Verified);
    QCOMPARE(remap({}, true), "0:2>2/1 0:3>3/1 -:1>-1/2");
}

void tst_remapProjectLines::earlyStop()
{
    PrjMappingC unnamed = mappingOf(QString(), {"new/a.prj", ""});
    enter(unnamed, 1, 1, -1, ToCheck);
    enter(unnamed, 1, 2, -1, Verified);
    VKTab::Content table = m_catalog->read("cat/a.prj");
    Recorder recorder;
    remapProjectLines(QString(), unnamed, table, ReleaseMappingC(), {}, true);
    QCOMPARE(int(unnamed.getMappingState()), 1);
    QCOMPARE(entriesOf(unnamed), "-:2>-1/2");
    QCOMPARE(recorder.ended, 0);
}

void tst_remapProjectLines::otherSourcePath()
{
    VKTab::Content table = m_catalog->read("cat/a.prj");
    remapProjectLines("cat/b.prj", m_mapping, table, ReleaseMappingC(), {}, true);
    QCOMPARE(int(m_mapping.getMappingState()), 1);
    QCOMPARE(entriesOf(m_mapping), "");
}

void tst_remapProjectLines::emptyTable()
{
    write("cat/a.prj", "D,k:n\n");
    enter(m_mapping, 0, 7, 1, Mapped);
    m_mapping.addTarget(QString(), QString());
    Recorder recorder;
    QCOMPARE(remap(), "0:7>1/1");
    QCOMPARE(m_mapping.countTargets(), 1);
    QCOMPARE(recorder.last.total, 0);
    QCOMPARE(recorder.ended, 1);
}

void tst_remapProjectLines::datesOfTheRelease()
{
    // The release's own mappings play no part.
    ReleaseMappingC release;
    PrjMappingC other = mappingOf("cat/a.prj", {"new/x.prj"});
    release.addMapping(other);
    VKTab::Content table = m_catalog->read("cat/a.prj");
    remapProjectLines("cat/a.prj", m_mapping, table, release, {}, false);
    QCOMPARE(m_mapping.findTarget(0).getTargetPath(), "new/a.prj");
    QCOMPARE(entriesOf(m_mapping), "0:1>1/1 0:2>2/1 0:3>3/1");
}

void tst_remapProjectLines::targetsKeepOrderAndContents()
{
    m_mapping = mappingOf("cat/a.prj", {"new/x.prj", "new/a.prj"});
    addCondition(m_mapping, 0, "k .GT. 100");
    addRename(m_mapping, 1, "k", "k");
    PrjMappingTargetC target = m_mapping.findTarget(1);
    target.setTargetVersion("v240101000000");
    target.setTabVersion("v240102000000");
    m_mapping.updateTarget(1, target);
    QCOMPARE(remap(), "1:1>1/1 1:2>2/1 1:3>3/1");
    QCOMPARE(m_mapping.findTarget(0).getTargetPath(), "new/x.prj");
    QCOMPARE(m_mapping.findTarget(0).getConditions().size(), 1);
    QCOMPARE(m_mapping.findTarget(1).getVarsetModifier().size(), 1);
    QCOMPARE(m_mapping.findTarget(1).getTargetVersion(), "v240101000000");
    QCOMPARE(m_mapping.findTarget(1).getTabVersion(), "v240102000000");
}

void tst_remapProjectLines::orderOfTargetsMatters()
{
    write("new/b/a.prj", lines);
    m_mapping = mappingOf("cat/a.prj", {"new/b/a.prj", "new/a.prj"});
    QCOMPARE(remap(), "0:1>1/0 0:2>2/0 0:3>3/0");
    m_mapping = mappingOf("cat/a.prj", {"new/a.prj", "new/b/a.prj"});
    remap();
    QCOMPARE(m_mapping.findTarget(0).countLines(), 3);
}

void tst_remapProjectLines::hiddenLinesCount()
{
    m_catalog->write("new/a.prj", lines, [](VKTab::TableDescriptor &table) {
        table.filterConditions.append({"PRJLINECOND", "k .GT. 5", {}});
        table.filterConditions.append({"BYPRJ", "k .LT. 7", {}});
    });
    QCOMPARE(remap(), "0:1>1/1 0:2>2/1 0:3>3/1");
}

void tst_remapProjectLines::conditionsMoveLines()
{
    write("new/b/a.prj", lines);
    m_mapping = mappingOf("cat/a.prj", {"new/a.prj", "new/b/a.prj"});
    addCondition(m_mapping, 0, "k .LT. 6");
    addCondition(m_mapping, 1, "k .GE. 6");
    enter(m_mapping, 1, 1, 1, Mapped); // its condition does not hold any more
    QCOMPARE(remap({"k"}), "1:1>1/1 1:2>2/1 1:3>3/1");
    QCOMPARE(remap({"k"}, true), "0:1>1/1 1:2>2/1 1:3>3/1");
}

void tst_remapProjectLines::existingEntryIsCheckedWithItsConditions()
{
    enter(m_mapping, 0, 1, 1, ToCheck);
    enter(m_mapping, 0, 2, 2, ToCheck);
    addCondition(m_mapping, 0, "k .GT. 5");
    QCOMPARE(remap(), "0:1>1/0 0:2>2/1 0:3>3/1");
}

void tst_remapProjectLines::internalVariablesAreNotCompared()
{
    write("cat/a.prj", "D,L:r,no:i\nM8,10;20,1\n");
    write("new/a.prj", "D,L:n,no:n\nM8,20,2\n");
    addCondition(m_mapping, 0, "L .GT. 15");
    QCOMPARE(remap({"L"}), "0:1>1/1");
}

void tst_remapProjectLines::decimalCommaInCombinations()
{
    m_catalog->write("cat/a.prj", "D,L:r\nM8,\"1,5;2,5\"\n",
                     [](VKTab::TableDescriptor &table) { table.fields[1].decimalChar = ','; });
    write("new/a.prj", "D,L:n\nM8,2.50\n");
    addCondition(m_mapping, 0, "L .GT. 2");
    QCOMPARE(remap({"L"}), "0:1>1/1");
}

void tst_remapProjectLines::firstCombinationSettles()
{
    write("cat/a.prj", "D,L:r\nM8,20;10\n");
    write("new/a.prj", "D,L:n\nM8,10\nM8,20\n");
    addCondition(m_mapping, 0, "L .GT. 0");
    QCOMPARE(remap({"L"}), "0:1>2/0"); // the other value belongs to line 1
}

void tst_remapProjectLines::laterCombinationIsTried()
{
    write("cat/a.prj", "D,L:r\nM8,30;20;10\n");
    write("new/a.prj", "D,L:n\nM8,10\nM9,30\n");
    addCondition(m_mapping, 0, "L .GT. 0");
    QCOMPARE(remap({"L"}), "0:1>1/1");
}

void tst_remapProjectLines::rangeThatNoConditionReadsIsNotWalked()
{
    write("cat/a.prj", "D,L:r\nM8,10;20\n");
    write("new/a.prj", "D,L:r\nM8,10;20;30\n");
    QCOMPARE(remap(), "0:1>1/1");
    write("new/a.prj", "D,L:n\nM8,20\n");
    QCOMPARE(remap({}, true), "0:1>1/0");
}

void tst_remapProjectLines::rangeNotNamedIsNotWalked()
{
    write("cat/a.prj", "D,L:r\nM8,10;20\n");
    write("new/a.prj", "D,L:n\nM8,20\n");
    addCondition(m_mapping, 0, "L .GT. 15");
    QCOMPARE(remap({}), "-:1>-1/0");
    QCOMPARE(remap({"L"}), "0:1>1/1");
}

void tst_remapProjectLines::conditionNamesAreCaseSensitive()
{
    write("cat/a.prj", "D,L:r\nM8,10;20\n");
    write("new/a.prj", "D,L:n\nM8,20\n");
    addCondition(m_mapping, 0, "L .GT. 15");
    QCOMPARE(remap({"l"}), "-:1>-1/0");
}

void tst_remapProjectLines::lineWithoutCombination()
{
    write("cat/a.prj", "D,L:r\nM8,10;20\nM9,\nM10,30\n");
    write("new/a.prj", "D,L:r\nM8,20\nM9,\nM10,30\n");
    addCondition(m_mapping, 0, "D .NE. 'x'");
    addCondition(m_mapping, 0, "L .NE. 10");
    QCOMPARE(remap({"L"}), "0:1>1/1 0:3>3/1 -:2>-1/0");
}

void tst_remapProjectLines::addedLayerTakesPartInCombinations()
{
    // A column of an added layer belongs to the values of a combination, as the line shows it.
    class NumberLayer : public VKTab::BaseLayer
    {
    public:
        NumberLayer()
            : BaseLayer(VKTab::registerLayerType("NumberLayer"))
        {
            VKTab::Var var(VKTab::VarTypePlain);
            var.setVarId(VKTab::VarId(getLayerIdOffset(getLayerType())));
            var.setVarSource(getLayerType());
            var.setName("number");
            addVar(var);
        }
        boost::shared_ptr<VKTab::LayerI> clone() const override
        {
            return boost::make_shared<NumberLayer>();
        }
        VKTab::Value getValue(const VKTab::VarId &, const VKTab::LineId &line,
                              const VKTab::LineI &) const override
        {
            return line.value(0);
        }
        VKTab::Value getValue(const VKTab::VarId &, const VKTab::LineId &line) const override
        {
            return line.value(0);
        }
    };
    write("cat/a.prj", "D,L:r\nM8,10;20\n");
    write("new/a.prj", "D,L:n,number:n\nM8,20,2\nM8,20,1\n");
    addCondition(m_mapping, 0, "L .GT. 15");
    VKTab::Content table = m_catalog->read("cat/a.prj");
    table.addLayer(NumberLayer());
    remapProjectLines("cat/a.prj", m_mapping, table, ReleaseMappingC(), {"L"}, false);
    QCOMPARE(entriesOf(m_mapping).section(u'/', 0, 0), "0:1>2");
}

void tst_remapProjectLines::changedCell()
{
    VKTab::Content table = m_catalog->read("cat/a.prj");
    const VKTab::Var k = table.getVar(u"k");
    QVERIFY(table.getModifyLayer()->setValue(k.getVarId(), VKTab::LineId(1), VKTab::Value("7")));
    QVERIFY(table.getModifyLayer()->setValue(table.getVar(u"D").getVarId(), VKTab::LineId(1),
                                             VKTab::Value("M10")));
    remapProjectLines("cat/a.prj", m_mapping, table, ReleaseMappingC(), {}, false);
    QCOMPARE(entriesOf(m_mapping), "0:1>3/0 0:2>2/1 0:3>3/0");
}

void tst_remapProjectLines::unreadableTarget()
{
    m_mapping = mappingOf("cat/a.prj", {"new/a.prj", "new/gone.prj"});
    enter(m_mapping, 0, 1, 2, ToCheck);
    enter(m_mapping, 1, 2, 7, Mapped);
    enter(m_mapping, 1, 3, 8, Verified);
    const QString before = entriesOf(m_mapping);
    QCOMPARE(remap({}, true), before);
    QVERIFY(m_mapping.getMappingState().testFlag(PRJMAPPING::StateTableError));
    write("new/gone.prj", lines);
    QVERIFY(remap({}, true) != before);
    QVERIFY(!m_mapping.getMappingState().testFlag(PRJMAPPING::StateTableError));
}

void tst_remapProjectLines::stateIsRefreshed()
{
    m_mapping.setMappingState(PRJMAPPING::StateTableError | PRJMAPPING::StateVerified);
    remap();
    QCOMPARE(int(m_mapping.getMappingState()), 0x003); // usable, assigned by the program only
    write("new/a.prj", "D,k:n\nM8,5\nX1,1000\nX2,2000\nX3,3000\n");
    remap({}, true);
    QCOMPARE(int(m_mapping.getMappingState()), 0x103);
}

void tst_remapProjectLines::progress()
{
    Recorder recorder;
    remap();
    QCOMPARE(recorder.texts, QStringList{"Zeilen werden neu zugewiesen"});
    QCOMPARE(recorder.last.total, 3);
    QCOMPARE(recorder.last.count, 3);
    QCOMPARE(recorder.ended, 1);
    QVERIFY(!recorder.cancellable);
}

void tst_remapProjectLines::progressIsShown()
{
    struct Display : ProgressDisplayI
    {
        void showProgress(const QList<PProgressInfo> &running) override { shown += running; }
        bool acceptsInput(const QWidget *) const override { return false; }
        QList<PProgressInfo> shown;
    };
    const auto display = std::make_shared<Display>();
    DefaultObserverDelegate::setDisplay(display);
    DefaultObserverDelegate::setTimes(0, 0);
    remap();
    DefaultObserverDelegate::setTimes(500, 100);
    DefaultObserverDelegate::setDisplay(nullptr);
    QVERIFY(!display->shown.isEmpty());
    QCOMPARE(display->shown.last().text, "Zeilen werden neu zugewiesen");
}

void tst_remapProjectLines::severalThreads()
{
    QByteArray many = "D,k:n,l:n\n";
    for (int i = 0; i < 500; ++i)
        many += "M" + QByteArray::number(i) + "," + QByteArray::number(i % 50) + "," +
                QByteArray::number(i % 7) + "\n";
    write("cat/a.prj", many);
    write("new/a.prj", many);
    const VKTab::Content table = m_catalog->read("cat/a.prj");
    std::vector<PrjMappingC> mappings(4, m_mapping);
    std::vector<std::thread> threads;
    for (PrjMappingC &mapping : mappings) {
        threads.emplace_back([&mapping, table = VKTab::Content(table)]() mutable {
            remapProjectLines("cat/a.prj", mapping, table, ReleaseMappingC(), {}, true);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    for (const PrjMappingC &mapping : mappings) {
        QCOMPARE(mapping.lineCounts().mapped(), 500);
        QCOMPARE(entriesOf(mapping), entriesOf(mappings.front()));
    }
}

QTEST_MAIN(tst_remapProjectLines)
#include "tst_remapProjectLines.moc"
