#include "SilentTableEditor.h"

#include <mapping/project/ProjectMappingWidget.h>

#include <core/message/PScriptedMessageSink.h>
#include <geomcore/table/Line.h>

#include <QDir>
#include <QLineEdit>
#include <QTest>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;
using VKTab::LineId;

class tst_LineMappingActions : public QObject, private SilentTableEditor
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QDir::setSearchPaths("bitmaps", {":/hostbitmaps"}); }
    void init() { begin(); }
    void cleanup() { end(); }

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

private:
    void conflict(int line)
    {
        PrjMappingTargetC target = f->mapping.findTarget(0);
        target.setLineConflicted(line, true);
        f->mapping.updateTarget(0, target);
    }
};

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

QTEST_MAIN(tst_LineMappingActions)
#include "tst_LineMappingActions.moc"
