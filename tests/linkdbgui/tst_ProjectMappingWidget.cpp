#include "ProjectEditor.h"

#include <QScrollArea>
#include <QVBoxLayout>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

class tst_ProjectMappingWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void layout();
    void metaObject();
    void remapButtonAsksForRemapping();
    void panelForEachTargetWithPath();
    void onlyNotFoundTarget();
    void missingTargetIsTold();
    void missingTargetOfARepository();
    void loadChangesNothing();
    void loadReplacesPanels();
    void moveButtons();
    void moveUp();
    void moveDown();
    void moveAssignsAnew();
    void moveWithoutRelease();
    void moveDownOntoNotFoundTarget();
    void addTarget();
    void addTargetWithoutRelease();
    void addSameTargetTwice();
    void addFirstTargetTwice();
    void addTargetCancelled();
    void removeFirstTarget();
    void removeLastTarget();
    void removeAcceptsConflicts();
    void openTarget();
    void assignEnabled();
    void updatedMappingIsTakenOver();
    void conditionsAreShown();
    void deleteCondition();
    void deleteConditionWithoutRelease();
    void mappingsAreShown();
    void deleteMapping();
    void brokenFormulaIsLogged();
    void panelAfterRemoval();
    void variablesAreThoseOfTheListPosition();
    void notFoundTargetInTheMiddle();
};

void tst_ProjectMappingWidget::initTestCase()
{
    // The dialog of the platform cannot be driven.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void tst_ProjectMappingWidget::layout()
{
    const WarningCapture warnings;
    const ProjectMappingWidget widget(nullptr);
    auto *const main = qobject_cast<QVBoxLayout *>(widget.layout());
    QVERIFY(main);
    QCOMPARE(main->contentsMargins(), QMargins());
    QCOMPARE(main->count(), 2);
    QLayout *const row = main->itemAt(0)->layout();
    QVERIFY(qobject_cast<QHBoxLayout *>(row));
    QCOMPARE(row->count(), 4);
    const auto *const add = qobject_cast<QPushButton *>(row->itemAt(0)->widget());
    QCOMPARE(add->text(), QStringLiteral("Zielprojekt hinzufügen"));
    QVERIFY(!add->icon().isNull());
    const QSpacerItem *const gap = row->itemAt(1)->spacerItem();
    QCOMPARE(gap->sizeHint(), QSize(20, 0));
    QCOMPARE(gap->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
    const auto *const remap = qobject_cast<QPushButton *>(row->itemAt(2)->widget());
    QCOMPARE(remap->text(), QStringLiteral("Zeilen erneut zuweisen"));
    QVERIFY(!remap->icon().isNull());
    QCOMPARE(row->itemAt(3)->spacerItem()->sizePolicy(),
             QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    const auto *const area = qobject_cast<QScrollArea *>(main->itemAt(1)->widget());
    QVERIFY(area->widgetResizable());
    QCOMPARE(area->widget()->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    QVERIFY(qobject_cast<QVBoxLayout *>(area->widget()->layout()));
    QCOMPARE(warnings.list(), QStringList());
}

void tst_ProjectMappingWidget::metaObject()
{
    const QMetaObject &base = PrjMappingWidgetBase::staticMetaObject;
    QStringList methods;
    for (int method = base.methodOffset(); method < base.methodCount(); ++method)
        methods.append(QString::fromLatin1(base.method(method).methodSignature()) + u'/' +
                       QString::fromLatin1(base.method(method).parameterNames().join(',')));
    QCOMPARE(methods, QStringList({"projectMappingUpdated(PrjMappingC)/mapping",
                                   "targetLineConflictAccepted(int)/", "remapLinesClicked()/",
                                   "onProjectMappingUpdated(PrjMappingC)/mapping"}));
    QCOMPARE(base.superClass()->className(), "QWidget");
    const QMetaObject &own = ProjectMappingWidget::staticMetaObject;
    QCOMPARE(own.superClass(), &base);
    QCOMPARE(own.methodCount(), own.methodOffset());
}

void tst_ProjectMappingWidget::remapButtonAsksForRemapping()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    const QSignalSpy clicked(&editor.widget, SIGNAL(remapLinesClicked()));
    QTest::mouseClick(editor.widget.findChild<QPushButton *>("remapLinesButton"), Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(editor.updates.count(), 0);
}

void tst_ProjectMappingWidget::panelForEachTargetWithPath()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/b.prj", "new/a.prj", ""}));
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/b.prj new/a.prj"));
    QCOMPARE(editor.widget.sourcePath(), QStringLiteral("old/a.prj"));
    QCOMPARE(editor.messages->texts(), QStringList());
}

void tst_ProjectMappingWidget::onlyNotFoundTarget()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {""}));
    QCOMPARE(panelPaths(&editor.widget), QString());
}

void tst_ProjectMappingWidget::missingTargetIsTold()
{
    Editor editor;
    const PrjMappingC mapping = mappingOf("old/a.prj", {"new/gone.prj", "new/a.prj"});
    editor.load(mapping);
    const QString text = QStringLiteral("Das Zielprojekt new/gone.prj existiert nicht mehr");
    QCOMPARE(editor.messages->texts(), QStringList(text));
    QCOMPARE(panelPaths(&editor.widget),
             QStringLiteral("new/gone.prj <b>(Konnte nicht gefunden werden)</b> new/a.prj"));
    editor.load(mapping);
    QCOMPARE(editor.messages->texts(), QStringList({text, text}));
    QCOMPARE(editor.updates.count(), 0);
}

void tst_ProjectMappingWidget::missingTargetOfARepository()
{
    // An address is no file, so it is not found either.
    Editor editor;
    editor.widget.setRemoteViewerMode(true);
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    QCOMPARE(editor.messages->texts(),
             QStringList("Das Zielprojekt new/a.prj existiert nicht mehr"));
    QCOMPARE(panelPaths(&editor.widget),
             QStringLiteral("new/a.prj <b>(Konnte nicht gefunden werden)</b>"));
}

void tst_ProjectMappingWidget::loadChangesNothing()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    editor.load(mapping);
    QCOMPARE(editor.updates.count(), 0);
    // What is announced next still has no line.
    editor.click(0, "downButton");
    QCOMPARE(editor.updates.count(), 1);
}

void tst_ProjectMappingWidget::loadReplacesPanels()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"}));
    const QPointer<TargetMappingWidget> former = editor.panel(0);
    editor.load(mappingOf("old/b.prj", {"new/c.prj"}));
    QVERIFY(!former);
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/c.prj"));
    QCOMPARE(editor.widget.sourcePath(), QStringLiteral("old/b.prj"));
}

void tst_ProjectMappingWidget::moveButtons()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj", "new/b.prj", "new/c.prj", ""}));
    QCOMPARE(editor.places(), QStringLiteral("0v 1^v 2^"));
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    QCOMPARE(editor.places(), QStringLiteral("0"));
}

void tst_ProjectMappingWidget::moveUp()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj", "new/b.prj", "new/c.prj", ""}));
    editor.click(2, "upButton");
    QCOMPARE(editor.updates.count(), 1);
    QCOMPARE(targetPaths(editor.announced()).section(' ', 0, 2),
             QStringLiteral("new/a.prj new/c.prj new/b.prj"));
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/a.prj new/c.prj new/b.prj"));
    QCOMPARE(editor.places(), QStringLiteral("0v 1^v 2^"));
    editor.click(1, "upButton");
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/c.prj new/a.prj new/b.prj"));
    QCOMPARE(editor.places(), QStringLiteral("0v 1^v 2^"));
}

void tst_ProjectMappingWidget::moveDown()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj", "new/b.prj", ""}));
    editor.click(0, "downButton");
    QCOMPARE(editor.updates.count(), 1);
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/b.prj new/a.prj"));
    QCOMPARE(editor.places(), QStringLiteral("0v 1^"));
}

void tst_ProjectMappingWidget::moveAssignsAnew()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    enter(mapping, 0, 1, 1, Mapped);
    enter(mapping, 0, 2, 2, Verified);
    editor.load(mapping);
    editor.click(1, "upButton");
    // new/b.prj comes first now and has every line; what was confirmed stays.
    QCOMPARE(entriesOf(editor.announced()), QStringLiteral("0:1>1/0 0:3>3/0 1:2>2/2"));
}

void tst_ProjectMappingWidget::moveWithoutRelease()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    enter(mapping, 0, 1, 1, Mapped);
    editor.load(mapping, CatalogMappingC());
    editor.click(1, "upButton");
    QCOMPARE(editor.updates.count(), 1);
    QCOMPARE(entriesOf(editor.announced()), QStringLiteral("1:1>1/1"));
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/b.prj new/a.prj"));
}

void tst_ProjectMappingWidget::moveDownOntoNotFoundTarget()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj", ""}));
    QVERIFY(!editor.button(0, "downButton")->isEnabled());
    QVERIFY(QMetaObject::invokeMethod(editor.panel(0), "onMoveTargetDown"));
    // Only the button prevents it: the records are exchanged, nobody is told.
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(editor.places(), QStringLiteral("0"));
    QVERIFY(QMetaObject::invokeMethod(editor.panel(0), "onMoveTargetUp"));
    QCOMPARE(editor.updates.count(), 0);
}

void tst_ProjectMappingWidget::addTarget()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", ""});
    enter(mapping, 0, 1, 1, Mapped);
    enter(mapping, 1, 3, -1, ToCheck);
    editor.load(mapping);
    QString preselected;
    editor.answerProjectDialog("new/b.prj", &preselected);
    QTest::mouseClick(editor.widget.findChild<QPushButton *>("addTargetButton"), Qt::LeftButton);
    QCOMPARE(preselected, QStringLiteral("old")); // the catalog of the source project
    QCOMPARE(editor.updates.count(), 1);
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/a.prj new/b.prj"));
    QCOMPARE(editor.places(), QStringLiteral("0v 1^"));
    // The line that no target had went to the new one, and the not-found target is gone.
    QCOMPARE(targetPaths(editor.announced()), QStringLiteral("new/a.prj new/b.prj"));
    QCOMPARE(entriesOf(editor.announced()), QStringLiteral("0:1>1/1 0:2>2/0 1:3>3/0"));
    const PrjMappingTargetC target = editor.announced().findTarget(1);
    QVERIFY(target.isValid());
}

void tst_ProjectMappingWidget::addTargetWithoutRelease()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", ""});
    enter(mapping, 1, 3, -1, ToCheck);
    editor.load(mapping, CatalogMappingC());
    editor.answerProjectDialog("new/b.prj");
    QTest::mouseClick(editor.widget.findChild<QPushButton *>("addTargetButton"), Qt::LeftButton);
    QCOMPARE(editor.updates.count(), 1);
    QCOMPARE(targetPaths(editor.announced()), QStringLiteral("new/a.prj new/b.prj -"));
    QCOMPARE(entriesOf(editor.announced()), QStringLiteral("-:3>-1/0"));
}

void tst_ProjectMappingWidget::addSameTargetTwice()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/b.prj", "new/a.prj", "new/b.prj", "new/c.prj"}),
                CatalogMappingC());
    editor.answerProjectDialog("new/b.prj");
    QTest::mouseClick(editor.widget.findChild<QPushButton *>("addTargetButton"), Qt::LeftButton);
    // In the place of its last occurrence, which stays.
    QCOMPARE(targetPaths(editor.announced()),
             QStringLiteral("new/b.prj new/a.prj new/b.prj new/b.prj new/c.prj"));
    QCOMPARE(panelPaths(&editor.widget),
             QStringLiteral("new/b.prj new/a.prj new/b.prj new/b.prj new/c.prj"));
    QCOMPARE(editor.places(), QStringLiteral("0v 1^v 2^v 3^v 4^"));
}

void tst_ProjectMappingWidget::addFirstTargetTwice()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/b.prj", "new/a.prj"});
    addCondition(mapping, 0, "k .LT. 9");
    editor.load(mapping, CatalogMappingC());
    editor.answerProjectDialog("new/b.prj");
    QTest::mouseClick(editor.widget.findChild<QPushButton *>("addTargetButton"), Qt::LeftButton);
    QCOMPARE(targetPaths(editor.announced()), QStringLiteral("new/b.prj new/b.prj new/a.prj"));
    QVERIFY(editor.announced().findTarget(0).getConditions().isEmpty()); // the new one
    QCOMPARE(editor.announced().findTarget(1).getConditions().size(), 1);
}

void tst_ProjectMappingWidget::addTargetCancelled()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    editor.answerProjectDialog(QString());
    QTest::mouseClick(editor.widget.findChild<QPushButton *>("addTargetButton"), Qt::LeftButton);
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/a.prj"));
}

void tst_ProjectMappingWidget::removeFirstTarget()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj", ""});
    enter(mapping, 0, 1, 1, Verified);
    enter(mapping, 1, 2, 2, Mapped);
    enter(mapping, 2, 3, -1, Verified);
    editor.load(mapping);
    editor.click(0, "removeButton");
    QCOMPARE(editor.updates.count(), 1);
    QCOMPARE(targetPaths(editor.announced()), QStringLiteral("new/b.prj -"));
    // The line of the removed target is open again, confirmed or not; the others stay.
    QCOMPARE(entriesOf(editor.announced()), QStringLiteral("0:2>2/1 -:1>-1/0 -:3>-1/2"));
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/b.prj"));
    QCOMPARE(editor.places(), QStringLiteral("0"));
    QCOMPARE(editor.accepted.count(), 0);
}

void tst_ProjectMappingWidget::removeLastTarget()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    enter(mapping, 0, 1, 1, Mapped);
    enter(mapping, 0, 2, 2, Verified);
    editor.load(mapping);
    editor.click(0, "removeButton");
    QCOMPARE(targetPaths(editor.announced()), QStringLiteral("-"));
    // Every line of the table, one that no target knew included.
    QCOMPARE(entriesOf(editor.announced()), QStringLiteral("-:1>-1/0 -:2>-1/0 -:3>-1/0"));
    QVERIFY(editor.announced().getMappingState().testFlag(PRJMAPPING::StateUnmapped));
    QCOMPARE(panelPaths(&editor.widget), QString());
}

void tst_ProjectMappingWidget::removeAcceptsConflicts()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    enter(mapping, 0, 1, 1, Mapped);
    enter(mapping, 0, 2, 2, Mapped);
    enter(mapping, 1, 3, 3, Mapped);
    for (const auto &[target, line] : {std::pair(0, 2), std::pair(1, 3)}) {
        PrjMappingTargetC changed = mapping.findTarget(target);
        changed.setLineConflicted(line, true);
        mapping.updateTarget(target, changed);
    }
    editor.load(mapping);
    editor.click(0, "removeButton");
    QCOMPARE(editor.accepted.count(), 1);
    QCOMPARE(editor.accepted.first().first().toInt(), 2);
}

void tst_ProjectMappingWidget::openTarget()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"}));
    editor.click(1, "openButton");
    QCOMPARE(editor.calls, QStringList("open new/b.prj"));
    editor.widget.setApplicationHandler(nullptr);
    editor.click(1, "openButton");
    QCOMPARE(editor.calls.size(), 1);
}

void tst_ProjectMappingWidget::assignEnabled()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"}), CatalogMappingC());
    QVERIFY(!editor.button(0, "assignButton")->isEnabled());
    editor.widget.setAssignEnabled(true);
    QVERIFY(editor.button(0, "assignButton")->isEnabled());
    QVERIFY(editor.button(1, "assignButton")->isEnabled());
    // Panels that come later take it over.
    editor.answerProjectDialog("new/c.prj");
    QTest::mouseClick(editor.widget.findChild<QPushButton *>("addTargetButton"), Qt::LeftButton);
    QVERIFY(editor.button(2, "assignButton")->isEnabled());
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    QVERIFY(editor.button(0, "assignButton")->isEnabled());
    editor.widget.setAssignEnabled(false);
    QVERIFY(!editor.button(0, "assignButton")->isEnabled());
}

void tst_ProjectMappingWidget::updatedMappingIsTakenOver()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    editor.load(mapping, CatalogMappingC());
    const QPointer<TargetMappingWidget> former = editor.panel(0);
    enter(mapping, 0, 1, 1, Verified);
    editor.widget.onProjectMappingUpdated(mapping);
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(editor.panel(0), former.data());
    // What is done next is done to that mapping.
    editor.click(1, "upButton");
    QCOMPARE(entriesOf(editor.announced()), QStringLiteral("1:1>1/2"));
}

void tst_ProjectMappingWidget::conditionsAreShown()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addCondition(mapping, 0, "D .EQ. 'M8'");
    addCondition(mapping, 0, "k .GT. 5 .AND. D .EQ. 'M9'");
    addCondition(mapping, 1, "k .LT. 9");
    editor.load(mapping);
    const auto *const view = editor.panel(0)->findChild<QTableView *>("conditionView");
    QCOMPARE(view->model()->rowCount(), 2);
    QCOMPARE(view->model()->headerData(1, Qt::Horizontal).toString(),
             QStringLiteral("Bedingungen"));
    QCOMPARE(view->model()->index(1, 1).data().toString(),
             QStringLiteral("k .GT. 5 .AND. D .EQ. 'M9'"));
    QCOMPARE(editor.panel(0)->conditionVariables, QStringList({"D", "k"}));
    QCOMPARE(editor.widget.collectConditionVariables(), QStringList({"D", "k"}));
    editor.click(0, "downButton");
    // By the list of panels, which keeps the order in which they were made.
    QCOMPARE(editor.widget.collectConditionVariables(), QStringList({"D", "k"}));
}

void tst_ProjectMappingWidget::deleteCondition()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(mapping, 0, "D .EQ. 'M8'");
    addCondition(mapping, 0, "k .LT. 9");
    enter(mapping, 0, 1, 1, Mapped);
    editor.load(mapping);
    auto *const view = editor.panel(0)->findChild<QTableView *>("conditionView");
    clickDelete(view, 0);
    QCOMPARE(view->model()->rowCount(), 1);
    QCOMPARE(editor.updates.count(), 1);
    QCOMPARE(editor.announced().findTarget(0).getConditions().size(), 1);
    QCOMPARE(editor.panel(0)->conditionVariables, QStringList("k"));
    // Lines without assignment find the target now, an assigned line keeps what it has.
    QCOMPARE(entriesOf(editor.announced()), QStringLiteral("0:1>1/1 0:2>2/1 -:3>-1/0"));
}

void tst_ProjectMappingWidget::deleteConditionWithoutRelease()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(mapping, 0, "D .EQ. 'M8'");
    editor.load(mapping, CatalogMappingC());
    clickDelete(editor.panel(0)->findChild<QTableView *>("conditionView"), 0);
    QCOMPARE(editor.updates.count(), 1);
    QCOMPARE(editor.announced().findTarget(0).getConditions().size(), 0);
}

void tst_ProjectMappingWidget::mappingsAreShown()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "D");
    addRename(mapping, 0, "", "k");
    addFormula(mapping, 0, "k = k + 1");
    editor.load(mapping);
    const auto *const model = editor.panel(0)->findChild<QTableView *>("variableView")->model();
    QStringList rows;
    for (int row = 0; row < model->rowCount(); ++row)
        rows.append(model->index(row, 1).data().toString() + '|' +
                    model->index(row, 2).data().toString());
    QCOMPARE(rows, QStringList({"D|k", "k|<Variable ignorieren>", "k|k = k + 1"}));
    QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Zielvariable"));
    QCOMPARE(model->headerData(2, Qt::Horizontal).toString(), QStringLiteral("Variablenzuordnung"));
}

void tst_ProjectMappingWidget::deleteMapping()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "D");
    addRename(mapping, 0, "", "k");
    addFormula(mapping, 0, "k = k + 1");
    editor.load(mapping);
    clickDelete(editor.panel(0)->findChild<QTableView *>("variableView"), 0);
    QCOMPARE(editor.updates.count(), 1);
    QCOMPARE(editor.announced().findTarget(0).getVarsetModifier().size(), 2);
    // No line is assigned: that takes the button.
    QCOMPARE(entriesOf(editor.announced()), QString());
    const QHash<QString, MapVarValueC> varset =
        editor.announced().findTarget(0).updateVarset({{"k", MapVarValueC()}});
    QVERIFY(varset.contains("k"));
}

void tst_ProjectMappingWidget::brokenFormulaIsLogged()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addFormula(mapping, 0, "gone = k + 1");
    editor.load(mapping);
    QVERIFY(editor.messages->logged().contains(QStringLiteral("gone = k + 1 enthält Fehler!")));
    QCOMPARE(editor.panel(0)->findChild<QTableView *>("variableView")->model()->rowCount(), 0);
}

void tst_ProjectMappingWidget::panelAfterRemoval()
{
    // The panel whose slot is running goes when the event loop runs, and is out of sight at once.
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"}));
    const QPointer<TargetMappingWidget> removed = editor.panel(0);
    editor.click(0, "removeButton");
    QVERIFY(removed && removed->isHidden() && !removed->parent());
    QCoreApplication::sendPostedEvents(removed, QEvent::DeferredDelete);
    QVERIFY(!removed);
}

void tst_ProjectMappingWidget::variablesAreThoseOfTheListPosition()
{
    Editor editor;
    editor.catalog.write("old/a.prj", "D,L:r\nM8,\"10;20\"\n");
    editor.catalog.write("new/a.prj", "D,L:n\nM1,5\n");
    editor.catalog.write("new/b.prj", "D,L:n\nM8,20\n");
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addCondition(mapping, 1, "L .EQ. 20");
    editor.load(mapping);
    editor.click(1, "upButton");
    QCOMPARE(editor.announced().findTarget(0).countLines(), 1);
    // Now new/a.prj has index 1, yet the second panel in the list is that of new/b.prj, so the
    // values of L are still walked.
    editor.click(1, "upButton");
    QCOMPARE(targetPaths(editor.announced()), QStringLiteral("new/a.prj new/b.prj"));
    QCOMPARE(editor.announced().findTarget(1).countLines(), 1);
}

void tst_ProjectMappingWidget::notFoundTargetInTheMiddle()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"", "new/a.prj", "new/b.prj"});
    enter(mapping, 0, 3, -1, Verified);
    addCondition(mapping, 2, "k .GT. 1");
    editor.load(mapping);
    QCOMPARE(editor.places(), QStringLiteral("1^ 2^"));
    editor.click(1, "upButton");
    QCOMPARE(targetPaths(editor.announced()), QStringLiteral("- new/b.prj new/a.prj"));
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/b.prj new/a.prj"));
    // Upwards there is no panel to change places with.
    const auto updates = editor.updates.count();
    editor.click(0, "upButton");
    QCOMPARE(editor.updates.count(), updates);
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/b.prj new/a.prj"));
    // Behind the last one, where no panel stands at that index.
    editor.load(mapping, CatalogMappingC());
    editor.answerProjectDialog("new/c.prj");
    QTest::mouseClick(editor.widget.findChild<QPushButton *>("addTargetButton"), Qt::LeftButton);
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/a.prj new/b.prj new/c.prj"));
    clickDelete(editor.panel(1)->findChild<QTableView *>("conditionView"), 0);
    QCOMPARE(editor.announced().findTarget(2).getConditions().size(), 0);
}

QTEST_MAIN(tst_ProjectMappingWidget)
#include "tst_ProjectMappingWidget.moc"
