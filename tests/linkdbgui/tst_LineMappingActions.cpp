#include "TableEditorFixture.h"

#include <mapping/project/ProjectMappingWidget.h>

#include <core/message/PScriptedMessageSink.h>
#include <core/progress/PProgressObserverBase.h>
#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/Line.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <gui/progress/ProgressDisplayI.h>

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTest>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;
using VKTab::LineId;

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

/// What line 1 shows.
QString shownValue(const VKTab::Content &table, QStringView name)
{
    return table.getLine(LineId(1), false).getValue(table.getVar(name), {}).toString();
}

constexpr const char *confirmText = "Zuordnung bestätigen";
constexpr const char *removeText = "Zuordnung dieser Zeile aufheben";
constexpr const char *removeVerifyText = "Zuordnung dieser Zeile aufheben und bestätigen";

} // namespace

class tst_LineMappingActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QDir::setSearchPaths("bitmaps", {":/hostbitmaps"}); }
    void init();
    void cleanup();

    void confirmByKey();
    void keyActsAtOnce();
    void lettersBelongToFields();
    void confirmStates_data();
    void confirmStates();
    void changeTheTargetLine();
    void mapUnassignedLine();
    void mapLineWithProposal();
    void mapWithoutTargetTable();
    void mapSeveralLines();
    void mapWithoutSelection();
    void withoutRelease();
    void assignedLineIsGone();
    void extendedTextStaysOnConfirm();
    void extendedTextGoesOnChange();
    void onlyOwnCombinationTakesTheChosenLine();
    void rangesThatNoConditionReadsAreNotWalked();
    void rangesAreWalkedInTableOrder();
    void conflictIsAcceptedBeforeTheChange();

    void removeByKey();
    void removeMakesTheNotFoundTarget();
    void removeKeepsTheNotFoundTarget();
    void removeWithoutAssignment();
    void removeSeveralLines();
    void removeAnnouncesNoConflict();
    void removeAndVerifyByKey();
    void removeAndVerifyNotFound();

    void verifyAll();
    void verifyAllWithoutTable();
    void receiversDoNotChangeWhatIsPublished();
    void receiverClosesTheWidget_data();
    void receiverClosesTheWidget();

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

    void sourceMenu();
    void sourceMenuIcons();
    void sourceMenuWithAnotherTargetLine();
    void sourceMenuWithoutTarget();
    void sourceMenuOfSeveralLines();
    void sourceMenuRowsAct();
    void targetMenu();
    void menusBesideLines();
    void menusOfHeaders();

    void iconOfPassingLine();
    void iconOfFailingLine();
    void iconLeavesHiddenRangesAlone();
    void iconOfUnknownKey();

private:
    [[nodiscard]] QString entries() const { return entriesOf(f->current()); }
    void conflict(int line)
    {
        PrjMappingTargetC target = f->mapping.findTarget(0);
        target.setLineConflicted(line, true);
        f->mapping.updateTarget(0, target);
    }

    /// A line whose condition does not hold for 20, with columns hidden as wanted.
    void loadFailingLine(const TestCatalog::Edit &edit = {},
                         const QString &condition = "L .LT. 15");

    std::unique_ptr<TableEditorFixture> f;
    std::shared_ptr<PScriptedMessageSink> m_messages;
    std::unique_ptr<PMessageSinkScope> m_scope;
};

void tst_LineMappingActions::cleanup()
{
    f.reset();
    m_scope.reset();
    QCOMPARE(m_messages->texts(), QStringList()); // no action shows a message
}

void tst_LineMappingActions::init()
{
    m_messages = std::make_shared<PScriptedMessageSink>();
    m_scope = std::make_unique<PMessageSinkScope>(m_messages);
    f = std::make_unique<TableEditorFixture>();
    f->catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\nM10,7\n");
    f->catalog.write("new/a.prj", "D,k:n\nM10,7\nM9,66\nM8,5\n");
    enter(f->mapping, 0, 1, 3, Mapped);
    enter(f->mapping, 0, 2, 2, ToCheck);
}

void tst_LineMappingActions::confirmByKey()
{
    f->load();
    QCOMPARE(f->states(), QString("- C N"));
    f->select(2);
    QCOMPARE(f->targetTable().getSelection(), LineId(2));
    f->press(Qt::Key_V);
    QCOMPARE(f->published.size(), 1);
    QCOMPARE(entries(), QString("0:1>3/1 0:2>2/2"));
    QCOMPARE(f->states(), QString("- M N"));
    QCOMPARE(f->current().getMappingState(),
             PRJMAPPING::StateVerified | PRJMAPPING::StateIncomplete);
    QCOMPARE(f->accepted, QList<int>());
}

void tst_LineMappingActions::keyActsAtOnce()
{
    f->load();
    f->select(1);
    f->press(Qt::Key_V);
    f->press(Qt::Key_Down);
    f->press(Qt::Key_V);
    QCOMPARE(entries(), QString("0:1>3/2 0:2>2/2"));
    QCOMPARE(f->published.size(), 2);
}

void tst_LineMappingActions::lettersBelongToFields()
{
    f->load();
    f->select(1);
    f->source->showFindBar();
    auto *const field = f->source->findChild<QLineEdit *>();
    QVERIFY(field && field->hasFocus());
    f->press(Qt::Key_V);
    f->press(Qt::Key_X);
    QCOMPARE(field->text(), QString("vx"));
    field->selectAll();
    f->press(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(field->text(), QString());
    QCOMPARE(f->published.size(), 0);
}

void tst_LineMappingActions::confirmStates_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("to check") << 0;
    QTest::newRow("mapped") << 1;
    QTest::newRow("verified") << 2;
    QTest::newRow("unknown") << 3;
}

void tst_LineMappingActions::confirmStates()
{
    QFETCH(int, state);
    enter(f->mapping, 0, 1, 3, PRJMAPPING::CheckState(state));
    f->load();
    f->select(1);
    QTest::mouseClick(f->button("btnMapLine"), Qt::LeftButton);
    QCOMPARE(entries(), QString("0:1>3/2 0:2>2/0"));
    QCOMPARE(f->published.size(), 1);
}

void tst_LineMappingActions::changeTheTargetLine()
{
    f->load();
    f->select(2);
    f->click(f->target, 1);
    f->press(Qt::Key_V);
    QCOMPARE(entries(), QString("0:1>3/1 0:2>1/2"));
    QCOMPARE(f->states(), QString("- M N"));
    QCOMPARE(f->targetTable().getSelection(), LineId(1));
    QCOMPARE(TableEditorFixture::status(f->targetTable(), 1, "TargetMapping"), QString("C"));
    QCOMPARE(TableEditorFixture::status(f->targetTable(), 2, "TargetMapping"), QString());
}

void tst_LineMappingActions::mapUnassignedLine()
{
    // No target holds the line and none has an equal one: no history, so nothing happens.
    f->catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\nZZ,4711\n");
    f->load();
    f->select(3);
    QVERIFY(!f->targetTable().isValid());
    f->press(Qt::Key_V);
    QCOMPARE(f->published.size(), 0);
}

void tst_LineMappingActions::mapLineWithProposal()
{
    f->load();
    f->select(3);
    QCOMPARE(f->targetTable().getSelection(), LineId(1));
    f->press(Qt::Key_V);
    QCOMPARE(entries(), QString("0:1>3/1 0:2>2/0 0:3>1/2"));
    QCOMPARE(f->states(), QString("- C M"));
}

void tst_LineMappingActions::mapWithoutTargetTable()
{
    f->mapping = mappingOf("old/a.prj", {"new/gone.prj"});
    enter(f->mapping, 0, 1, 7, Mapped);
    f->load();
    f->select(1);
    QVERIFY(!f->targetTable().isValid());
    f->press(Qt::Key_V);
    QCOMPARE(entries(), QString("0:1>7/2"));
}

void tst_LineMappingActions::mapSeveralLines()
{
    f->load();
    f->select(1);
    f->click(f->source, 2, Qt::ShiftModifier);
    QVERIFY(!f->targetTable().isValid());
    f->press(Qt::Key_V);
    QCOMPARE(f->published.size(), 2); // once for each line
    QCOMPARE(entriesOf(f->published.first()), QString("0:1>3/2 0:2>2/0"));
    QCOMPARE(entries(), QString("0:1>3/2 0:2>2/2"));
    QCOMPARE(f->source->getSelectedLineCount(), 2);
}

void tst_LineMappingActions::mapWithoutSelection()
{
    f->load();
    f->press(Qt::Key_V);
    QCOMPARE(f->published.size(), 0);
}

void tst_LineMappingActions::withoutRelease()
{
    f->withRelease = false;
    f->load();
    f->select(1);
    f->press(Qt::Key_V);
    f->press(Qt::Key_X);
    QCOMPARE(f->published.size(), 0);
    QVERIFY(!f->targetTable().isValid());
}

void tst_LineMappingActions::assignedLineIsGone()
{
    enter(f->mapping, 0, 2, 99, Mapped);
    f->load();
    f->select(2);
    QVERIFY(f->targetTable().isValid());
    QVERIFY(!f->targetTable().getSelection().isValid());
    QCOMPARE(f->button("btnMapLine")->toolTip(), QString("Zuordnung bestätigen (v)"));
    f->press(Qt::Key_V);
    QCOMPARE(entries(), QString("0:1>3/1 0:2>-1/2"));
    QCOMPARE(f->states(), QString("- NC N"));
}

void tst_LineMappingActions::extendedTextStaysOnConfirm()
{
    enter(f->mapping, 0, 2, 2, ToCheck, "{k=6} -> 1");
    f->load();
    f->select(2);
    f->press(Qt::Key_V);
    QCOMPARE(entries(), QString("0:1>3/1 0:2>2/2"));
    QCOMPARE(f->current().findTarget(0).getMappedLine(2).getExtended(), QString("{k=6} -> 1"));
}

void tst_LineMappingActions::extendedTextGoesOnChange()
{
    enter(f->mapping, 0, 2, 2, ToCheck, "{k=6} -> 1");
    f->load();
    f->select(2);
    f->click(f->target, 1);
    QVERIFY(!f->button("btnMapLine")->isEnabled());
    f->press(Qt::Key_V);
    QCOMPARE(f->published.size(), 0);
    QMetaObject::invokeMethod(f->button("btnMapLine"), "clicked");
    QCOMPARE(entries(), QString("0:1>3/1 0:2>1/2"));
    QCOMPARE(f->current().findTarget(0).getMappedLine(2).getExtended(), QString());
}

void tst_LineMappingActions::onlyOwnCombinationTakesTheChosenLine()
{
    f->catalog.write("old/a.prj", "D,L:r\nM8,10;20\n");
    f->catalog.write("new/a.prj", "D,L:n\nM8,10\nM8,20\nM8,30\n");
    f->mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(f->mapping, 0, "L .LT. 50");
    enter(f->mapping, 0, 1, 1, Mapped);
    ProjectMappingWidget project(nullptr);
    f->widget->setProjectMappingWidget(&project);
    project.loadSourceProject(f->mapping, f->read("old/a.prj"), CatalogMappingC());
    QCOMPARE(project.collectConditionVariables(), QStringList("L"));
    f->load();
    f->select(1);
    QCOMPARE(f->targetTable().getSelection(), LineId(1));
    f->click(f->target, 3);
    QMetaObject::invokeMethod(f->button("btnMapLine"), "clicked");
    // Neither combination has the line's own values, the text of the range: both keep their line.
    QCOMPARE(f->published.size(), 2);
    QCOMPARE(entries(), QString("0:1>1/2"));

    // A line that stores one of the values: that combination alone takes the chosen line.
    VKTab::Line line = f->sourceTable().getLine(LineId(1), false);
    line.putValue(f->sourceTable().getVar(u"L").getVarId(), VKTab::Value("20"));
    QVERIFY(line.apply());
    f->published.clear();
    f->click(f->target, 2);
    QMetaObject::invokeMethod(f->button("btnMapLine"), "clicked");
    QCOMPARE(f->published.size(), 2);
    QCOMPARE(entriesOf(f->published.first()), QString("0:1>1/2"));
    QCOMPARE(entries(), QString("0:1>2/2"));
    f->widget->setProjectMappingWidget(nullptr);
}

void tst_LineMappingActions::rangesThatNoConditionReadsAreNotWalked()
{
    f->catalog.write("old/a.prj", "D,L:r\nM8,10;20\n");
    f->catalog.write("new/a.prj", "D,L:n\nM8,10\nM8,20\n");
    f->mapping = mappingOf("old/a.prj", {"new/a.prj"});
    enter(f->mapping, 0, 1, 1, Mapped);
    f->load();
    f->select(1);
    f->click(f->target, 2);
    f->press(Qt::Key_V);
    QCOMPARE(f->published.size(), 1);
    QCOMPARE(entries(), QString("0:1>2/2"));
}

void tst_LineMappingActions::rangesAreWalkedInTableOrder()
{
    f->catalog.write("old/a.prj", "D,Z:r,A:r\nM8,1;2,1;2\n");
    f->catalog.write("new/a.prj", "D,Z:n,A:n\nM8,1,1\n");
    f->catalog.write("new/b.prj", "D,Z:n,A:n\nM8,2,1\n");
    f->mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addCondition(f->mapping, 0, "A .GE. Z");
    addCondition(f->mapping, 1, "A .LT. Z");
    for (const int target : {0, 1})
        enter(f->mapping, target, 1, 1, Mapped);
    ProjectMappingWidget project(nullptr);
    f->widget->setProjectMappingWidget(&project);
    project.loadSourceProject(f->mapping, f->read("old/a.prj"), CatalogMappingC());
    f->load();
    f->select(1);
    f->press(Qt::Key_V);
    QStringList states;
    for (const PrjMappingC &mapping : f->published)
        states.append(entriesOf(mapping));
    // Z = 1 with both of A first.
    QCOMPARE(states, QStringList({"0:1>1/2 1:1>1/1", "0:1>1/2 1:1>1/1", "0:1>1/2 1:1>1/2",
                                  "0:1>1/2 1:1>1/2"}));
    f->widget->setProjectMappingWidget(nullptr);
}

void tst_LineMappingActions::conflictIsAcceptedBeforeTheChange()
{
    conflict(2);
    f->load();
    QCOMPARE(f->states(), QString("- Conflicted N"));
    f->select(1);
    f->press(Qt::Key_V);
    QCOMPARE(f->order, QStringList("published"));
    f->order.clear();
    f->select(2);
    f->press(Qt::Key_V);
    QCOMPARE(f->order, QStringList({"accepted 2", "published"}));
    QVERIFY(!f->current().findTarget(0).getLineConflicted(2));
    QCOMPARE(f->states(), QString("M M N"));
}

void tst_LineMappingActions::removeByKey()
{
    f->load();
    f->select(1);
    f->press(Qt::Key_X);
    QCOMPARE(f->published.size(), 1);
    QCOMPARE(entries(), QString("0:2>2/0 -:1>-1/1"));
    QCOMPARE(f->states(), QString("N C N"));
    QVERIFY(!f->targetTable().isValid());
    QVERIFY(!f->button("btnRemoveLine")->isEnabled());
    QCOMPARE(f->label("targetPathLabel")->text(), QString());
}

void tst_LineMappingActions::removeMakesTheNotFoundTarget()
{
    f->load();
    QCOMPARE(f->mapping.getNotFoundTarget(), -1);
    f->select(1);
    f->press(Qt::Key_X);
    QCOMPARE(f->current().getNotFoundTarget(), 1);
    QCOMPARE(f->current().countTargets(), 2);
    QVERIFY(f->current().findTarget(1).isValid());
    QVERIFY(f->current().getMappingState().testFlag(PRJMAPPING::StateUnmapped));
}

void tst_LineMappingActions::removeKeepsTheNotFoundTarget()
{
    f->mapping.addTarget("", "");
    enter(f->mapping, 1, 3, -1, Verified);
    f->load();
    f->select(1);
    f->press(Qt::Key_X);
    QCOMPARE(f->current().countTargets(), 2);
    QCOMPARE(entries(), QString("0:2>2/0 -:1>-1/1 -:3>-1/2"));
    QCOMPARE(f->states(), QString("N C NC"));
}

void tst_LineMappingActions::removeWithoutAssignment()
{
    f->mapping.addTarget("", "");
    enter(f->mapping, 1, 3, -1, ToCheck);
    f->load();
    f->select(3);
    QVERIFY(!f->button("btnRemoveLine")->isEnabled());
    f->press(Qt::Key_X);
    QMetaObject::invokeMethod(f->button("btnRemoveLine"), "clicked");
    QCOMPARE(f->published.size(), 0);
    QCOMPARE(f->states(), QString("- C N"));
}

void tst_LineMappingActions::removeSeveralLines()
{
    f->mapping.addTarget("", "");
    enter(f->mapping, 1, 3, -1, ToCheck);
    f->load();
    f->select(1);
    f->click(f->source, 3, Qt::ShiftModifier);
    QVERIFY(f->button("btnRemoveLine")->isEnabled());
    f->press(Qt::Key_X);
    QCOMPARE(f->published.size(), 2); // line 3 has no assignment
    QCOMPARE(entries(), QString("-:1>-1/1 -:2>-1/1 -:3>-1/0"));
}

void tst_LineMappingActions::removeAnnouncesNoConflict()
{
    conflict(2);
    f->load();
    f->select(2);
    f->press(Qt::Key_X);
    QCOMPARE(f->order, QStringList("published")); // the flag went with the entry
    QCOMPARE(f->states(), QString("- N N"));
}

void tst_LineMappingActions::removeAndVerifyByKey()
{
    f->load();
    f->select(1);
    f->press(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(entries(), QString("0:2>2/0 -:1>-1/2"));
    QCOMPARE(f->states(), QString("NC C N"));
    QCOMPARE(f->published.size(), 2); // the removal, then its confirmation
    QCOMPARE(entriesOf(f->published.first()), QString("0:2>2/0 -:1>-1/1"));
}

void tst_LineMappingActions::removeAndVerifyNotFound()
{
    f->mapping.addTarget("", "");
    enter(f->mapping, 1, 3, -1, ToCheck);
    f->load();
    f->select(3);
    QVERIFY(!f->button("btnRemoveVerifyLine")->isEnabled());
    QMetaObject::invokeMethod(f->button("btnRemoveVerifyLine"), "clicked");
    QCOMPARE(f->published.size(), 1);
    QCOMPARE(f->states(), QString("- C NC"));
}

void tst_LineMappingActions::verifyAll()
{
    f->mapping.addTarget("", "");
    enter(f->mapping, 1, 3, -1, ToCheck);
    enter(f->mapping, 0, 2, 2, ToCheck, "{k=6} -> 1");
    conflict(2);
    f->load();
    QTest::mouseClick(f->button("btnVerifyAll"), Qt::LeftButton);
    QCOMPARE(f->order, QStringList({"accepted 1", "accepted 2", "accepted 3", "published"}));
    QCOMPARE(entries(), QString("0:1>3/2 0:2>2/2 -:3>-1/2"));
    QCOMPARE(f->current().findTarget(0).getMappedLine(2).getExtended(), QString("{k=6} -> 1"));
    // verifyAll keeps the flag; the conflict widget takes it away.
    QCOMPARE(f->states(), QString("M Conflicted NC"));
}

void tst_LineMappingActions::verifyAllWithoutTable()
{
    QTest::mouseClick(f->button("btnVerifyAll"), Qt::LeftButton);
    QVERIFY(f->order.isEmpty());
}

void tst_LineMappingActions::receiversDoNotChangeWhatIsPublished()
{
    f->load();
    // As the strip of conflicts does when it takes a mark away.
    connect(f->widget.get(), &TableMappingWidget::projectMappingUpdated, f->widget.get(),
            [this] { f->widget->onProjectMappingUpdated(mappingOf("old/a.prj", {})); });
    f->button("btnVerifyAll")->click();
    QCOMPARE(f->states(), QString("M M N"));
    f->select(1);
    f->widget->onRemapLinesClicked();
    QCOMPARE(f->states(), QString("M M -"));
}

void tst_LineMappingActions::receiverClosesTheWidget_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("accepting");

    for (const char *const name :
         {"btnMapLine", "btnRemoveLine", "btnRemoveVerifyLine", "btnVerifyAll"})
        QTest::addRow("%s, at the change", name) << name << false;
    for (const char *const name : {"btnMapLine", "btnVerifyAll"})
        QTest::addRow("%s, at an accepted conflict", name) << name << true;
}

void tst_LineMappingActions::receiverClosesTheWidget()
{
    QFETCH(QString, button);
    QFETCH(bool, accepting);
    conflict(1);
    conflict(2);
    f->load();
    f->select(1);
    f->click(f->source, 2, Qt::ShiftModifier);
    const auto close = [this] {
        f->widget.reset();
    };
    if (accepting)
        connect(f->widget.get(), &TableMappingWidget::targetLineConflictAccepted, this, close);
    else
        connect(f->widget.get(), &TableMappingWidget::projectMappingUpdated, this, close);
    f->button(button.toLatin1())->click();
    QVERIFY(!f->widget);
    QCOMPARE(f->published.size(), accepting ? 0 : 1);
}

void tst_LineMappingActions::remap_data()
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

void tst_LineMappingActions::remap()
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

void tst_LineMappingActions::remapTakesChangedTables()
{
    f->catalog.write("old/a.prj", "D,k:n\nZZ,4711\nM9,6\nM10,7\n");
    f->mapping = mappingOf("old/a.prj", {"new/a.prj"});
    enter(f->mapping, 0, 1, 1, Mapped);
    f->load();
    f->widget->onRemapLinesClicked();
    QCOMPARE(f->states(), QString("N C -"));
    QCOMPARE(entries(), QString("0:2>2/0 0:3>1/1 -:1>-1/0"));
}

void tst_LineMappingActions::remapWithoutRelease()
{
    f->withRelease = false;
    f->load();
    f->widget->onRemapLinesClicked();
    QCOMPARE(f->published.size(), 0);
}

void tst_LineMappingActions::remapWithUnreadableTarget()
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

void tst_LineMappingActions::remapCancelled()
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

void tst_LineMappingActions::remapWalksCombinations()
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

void tst_LineMappingActions::remapShowsItsProgress()
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

void tst_LineMappingActions::remapStepsAfterTheWork()
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

void tst_LineMappingActions::remapInAWidgetThatGoes()
{
    f->load();
    const QPointer<QWidget> widget = f->widget.get();
    const AtStep closing(1, [this] { f->widget.reset(); });
    f->widget->onRemapLinesClicked();
    QVERIFY(!widget);
    QCOMPARE(f->published.size(), 0);
}

void tst_LineMappingActions::sourceMenuIcons()
{
    f->load();
    f->select(2);
    QMenu *const menu = f->openMenu(f->source, 2);
    QVERIFY(menu);
    const QStringList icons = {":/bitmaps/confirm_mapping.png",
                               "bitmaps:indextree/state_deleted.png", ":/bitmaps/remove_verify.png",
                               ":/toolicons/actionFormatAlgorithm_16.png",
                               ":/toolicons/actionFormatRanges_16.png"};
    for (int i = 0; i < icons.size(); ++i) {
        const QImage image = QIcon(icons.at(i)).pixmap(16).toImage();
        QVERIFY(!image.isNull());
        QCOMPARE(menu->actions().at(i)->icon().pixmap(16).toImage(), image);
    }
    menu->close();
}

void tst_LineMappingActions::sourceMenu()
{
    f->load();
    f->select(2);
    QMenu *const menu = f->openMenu(f->source, 2);
    QVERIFY(menu);
    const QStringList texts = {
        confirmText, removeText, removeVerifyText,
        "Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren",
        "Aufgelöste Wertebereiche für diese Zeile zuordnen"};
    for (int i = 0; i < texts.size(); ++i) {
        QCOMPARE(menu->actions().at(i)->text(), texts.at(i));
        QVERIFY(menu->actions().at(i)->isEnabled());
        QCOMPARE(menu->actions().at(i)->parent(), menu);
    }
    menu->close();
}

void tst_LineMappingActions::sourceMenuWithAnotherTargetLine()
{
    f->load();
    f->select(2);
    f->click(f->target, 1);
    QMenu *const menu = f->openMenu(f->source, 2);
    QVERIFY(menu);
    QVERIFY(!menu->actions().at(0)->isEnabled());
    QVERIFY(menu->actions().at(1)->isEnabled());
    QVERIFY(!menu->actions().at(2)->isEnabled());
    menu->close();
}

void tst_LineMappingActions::sourceMenuWithoutTarget()
{
    f->catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\nZZ,4711\n");
    f->load();
    f->select(3);
    QMenu *const menu = f->openMenu(f->source, 3);
    QVERIFY(menu);
    QVERIFY(menu->actions().at(0)->isEnabled());
    QVERIFY(!menu->actions().at(1)->isEnabled());
    QVERIFY(menu->actions().at(2)->isEnabled());
    menu->close();
}

void tst_LineMappingActions::sourceMenuOfSeveralLines()
{
    f->load();
    f->select(1);
    f->click(f->source, 2, Qt::ControlModifier);
    QVERIFY(!f->openMenu(f->source, 2));
}

void tst_LineMappingActions::sourceMenuRowsAct()
{
    f->load();
    f->select(2);
    QMenu *menu = f->openMenu(f->source, 2);
    QVERIFY(menu);
    TableEditorFixture::rowOf(menu, confirmText)->trigger();
    menu->close();
    QCOMPARE(entries(), QString("0:1>3/1 0:2>2/2"));
    menu = f->openMenu(f->source, 2);
    QVERIFY(menu);
    TableEditorFixture::rowOf(menu, removeText)->trigger();
    menu->close();
    QCOMPARE(entries(), QString("0:1>3/1 -:2>-1/1"));
    f->select(1);
    menu = f->openMenu(f->source, 1);
    QVERIFY(menu);
    TableEditorFixture::rowOf(menu, removeVerifyText)->trigger();
    menu->close();
    QCOMPARE(entries(), QString("-:1>-1/2 -:2>-1/1"));
}

void tst_LineMappingActions::targetMenu()
{
    f->load();
    f->select(2);
    QMenu *const menu = f->openMenu(f->target, 2);
    QVERIFY(menu);
    QCOMPARE(menu->actions().at(0)->text(),
             QString("Nur Zeilen anzeigen, die mehrfach zugeordnet sind"));
    QCOMPARE(menu->actions().at(1)->text(),
             QString("Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind"));
    QVERIFY(menu->actions().at(0)->icon().isNull());
    QVERIFY(menu->actions().at(1)->icon().isNull());
    QVERIFY(menu->actions().at(2)->isSeparator());
    menu->close();
}

void tst_LineMappingActions::menusBesideLines()
{
    f->load();
    f->select(2);
    for (VkTableView *const view : {f->source, f->target}) {
        QMenu *const menu = f->openMenu(view, 99);
        QVERIFY(menu);
        QCOMPARE(menu->actions().first()->objectName(), QString("copy"));
        menu->close();
    }
}

void tst_LineMappingActions::menusOfHeaders()
{
    // A view may be asked for the menu of a header while a row is known.
    struct Asking : VkTableView
    {
        using VkTableView::askPopupShow;
    };
    f->load();
    f->select(2);
    for (VkTableView *const view : {f->source, f->target}) {
        QMenu menu;
        QVERIFY((view->*(&Asking::askPopupShow))(&menu, VkTableViewBase::PopupHeader, 2));
        QVERIFY(menu.isEmpty());
        QVERIFY((view->*(&Asking::askPopupShow))(&menu, VkTableViewBase::PopupCells, 2));
        QVERIFY(!menu.isEmpty());
    }
}

void tst_LineMappingActions::iconOfPassingLine()
{
    f->catalog.write("old/a.prj", "D,k:r\nM8,5;6\nM9,6\nM10,7\n");
    enter(f->mapping, 0, 1, 3, ToCheck);
    f->catalog.write("new/a.prj", "D,k:r\nM10,7\nM9,66\nM8,5;6\n");
    f->load();
    f->clickIcon(f->source, 1, "CatalogMapper");
    QVERIFY(f->sourceTable().isPlain());
    QCOMPARE(f->published.size(), 0);
}

void tst_LineMappingActions::loadFailingLine(const TestCatalog::Edit &edit,
                                             const QString &condition)
{
    f->catalog.write("old/a.prj", "D,E,L:r,H:r\nM8,x,10;20,1;2\nM9,x,10,1\n", edit);
    f->catalog.write("new/a.prj", "D,E,L:r,H:r\nM8,x,10;20,1;2\nM9,x,10,1\n");
    f->mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(f->mapping, 0, condition);
    enter(f->mapping, 0, 1, 1, ToCheck);
    f->load();
}

void tst_LineMappingActions::iconOfFailingLine()
{
    loadFailingLine(); // the condition reads L; with 20 it does not hold
    QCOMPARE(shownValue(f->sourceTable(), u"L"), QString("10;20"));
    f->clickIcon(f->source, 1, "CatalogMapper");
    QCOMPARE(shownValue(f->sourceTable(), u"L"), QString("20"));
    QCOMPARE(f->published.size(), 0);
}

void tst_LineMappingActions::iconLeavesHiddenRangesAlone()
{
    loadFailingLine([](auto &table) { table.fields[3].hidden = true; }, "L .LT. 15 .AND. H .LT. 5");
    f->clickIcon(f->source, 1, "CatalogMapper");
    QCOMPARE(shownValue(f->sourceTable(), u"L"), QString("20"));
    QCOMPARE(shownValue(f->sourceTable(), u"H"), QString("1;2"));
}

void tst_LineMappingActions::iconOfUnknownKey()
{
    loadFailingLine();
    f->sourceTable().getModifyLayer()->setLineKeyValue(1, "TargetMapping", "C");
    QCoreApplication::processEvents(); // the column comes into view
    f->clickIcon(f->source, 1, "TargetMapping");
    QCOMPARE(shownValue(f->sourceTable(), u"L"), QString("10;20"));
    f->clickIcon(f->source, 1, "CatalogMapper");
    QCOMPARE(shownValue(f->sourceTable(), u"L"), QString("20"));
}

QTEST_MAIN(tst_LineMappingActions)
#include "tst_LineMappingActions.moc"
