// What the column of targets does when targets come, go and move, and what others do meanwhile.
#include "ProjectEditor.h"

#include <mapping/project/chooseTargetProject.h>

#include <geomcore/project/CipVersionMgmtC.h>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;

namespace {

/// Calls a function while a message is open.
class CallingSink : public PMessageSink
{
public:
    PMsgReply show(const QString & /*text*/, PMsgDlgModes /*mode*/) override
    {
        ++shown;
        if (const auto call = std::exchange(duringShow, {}))
            call();
        return {};
    }
    void logToWindow(const QString & /*text*/) override {}

    int shown = 0;
    std::function<void()> duringShow;
};

/// Line 3 is without target, and new/b.prj has it.
PrjMappingC notFoundFirst()
{
    PrjMappingC mapping = mappingOf("old/a.prj", {"", "new/a.prj", "new/b.prj"});
    enter(mapping, 0, 3, -1, ToCheck);
    return mapping;
}

} // namespace

class tst_ProjectMappingTargets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptiedNotFoundTargetBeforeOthers();
    void addBehindAnEmptiedNotFoundTarget();
    void conditionGoesBehindAnEmptiedNotFoundTarget();
    void fewerTargetsFromOutside();
    void dialogWithoutParent();
    void widgetGoesWhileTheDialogIsOpen();
    void anotherProjectWhileTheDialogIsOpen();
    void widgetGoesWhileAMessageIsOpen();
    void anotherProjectWhileAMessageIsOpen();

    void acceptsBeforeItRemoves();
    void removesThePanelOfTheIndex();
    void removalWithoutPanel();
    void announcesBeforeItLaysOut();
    void variablesOfTheListPositionAtAChange();
    void addedTargetWalksAllVariables();
    void addedTargetHasVersions();
};

void tst_ProjectMappingTargets::emptiedNotFoundTargetBeforeOthers()
{
    Editor editor;
    editor.load(notFoundFirst());
    editor.click(1, "upButton");
    QCOMPARE(targetPaths(editor.announced()), QStringLiteral("new/b.prj new/a.prj"));
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/b.prj new/a.prj"));
    QCOMPARE(editor.places(), QStringLiteral("0v 1^"));
    editor.click(1, "upButton");
    QCOMPARE(targetPaths(editor.announced()), QStringLiteral("new/a.prj new/b.prj"));
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/a.prj new/b.prj"));
}

void tst_ProjectMappingTargets::addBehindAnEmptiedNotFoundTarget()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"", "new/a.prj"});
    enter(mapping, 0, 3, -1, ToCheck);
    editor.load(mapping);
    editor.answerProjectDialog("new/b.prj");
    QTest::mouseClick(editor.widget.findChild<QPushButton *>("addTargetButton"), Qt::LeftButton);
    QCOMPARE(targetPaths(editor.announced()), QStringLiteral("new/a.prj new/b.prj"));
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/a.prj new/b.prj"));
    QCOMPARE(editor.places(), QStringLiteral("0v 1^"));
}

void tst_ProjectMappingTargets::conditionGoesBehindAnEmptiedNotFoundTarget()
{
    Editor editor;
    PrjMappingC mapping = notFoundFirst();
    addCondition(mapping, 2, "k .EQ. 1");
    editor.load(mapping);
    clickDelete(editor.panel(1)->findChild<QTableView *>("conditionView"), 0);
    QCOMPARE(targetPaths(editor.announced()), QStringLiteral("new/a.prj new/b.prj"));
    QCOMPARE(editor.places(), QStringLiteral("0v 1^"));
}

void tst_ProjectMappingTargets::fewerTargetsFromOutside()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj", "new/b.prj", "new/c.prj"}));
    editor.widget.onProjectMappingUpdated(mappingOf("old/a.prj", {"new/a.prj"}));
    editor.click(2, "upButton");
    editor.click(1, "downButton");
    editor.click(1, "upButton");
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(targetPaths(editor.widget.mapping()), QStringLiteral("new/a.prj"));
}

void tst_ProjectMappingTargets::dialogWithoutParent()
{
    const Catalog catalog;
    const QPointer<QWidget> parent(new QWidget);
    QTimer::singleShot(0, parent, [&] { delete parent; });
    QCOMPARE(chooseTargetProject(parent, "old/a.prj"), QString());
    QVERIFY(!parent);
}

void tst_ProjectMappingTargets::widgetGoesWhileTheDialogIsOpen()
{
    const Catalog catalog;
    const PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    const QPointer<ProjectMappingWidget> widget(new ProjectMappingWidget(nullptr));
    widget->loadSourceProject(mapping, catalog.catalog.read("old/a.prj"), catalogOf(mapping));
    QTimer::singleShot(0, widget, [&] { delete widget; });
    widget->findChild<QPushButton *>("addTargetButton")->click();
    QVERIFY(!widget);
}

void tst_ProjectMappingTargets::anotherProjectWhileTheDialogIsOpen()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    const PrjMappingC other = mappingOf("old/b.prj", {"new/c.prj"});
    QTimer::singleShot(0, &editor.widget, [&] {
        editor.widget.loadSourceProject(other, editor.catalog.read("old/a.prj"), catalogOf(other));
    });
    editor.answerProjectDialog("new/b.prj");
    editor.widget.findChild<QPushButton *>("addTargetButton")->click();
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/c.prj"));
}

void tst_ProjectMappingTargets::widgetGoesWhileAMessageIsOpen()
{
    const Catalog catalog;
    const auto sink = std::make_shared<CallingSink>();
    const PMessageSinkScope scope(sink);
    const QPointer<ProjectMappingWidget> widget(new ProjectMappingWidget(nullptr));
    sink->duringShow = [&] {
        delete widget;
    };
    const PrjMappingC mapping = mappingOf("old/a.prj", {"new/gone.prj", "new/away.prj"});
    widget->loadSourceProject(mapping, catalog.catalog.read("old/a.prj"), catalogOf(mapping));
    QVERIFY(!widget);
    QCOMPARE(sink->shown, 1);
}

void tst_ProjectMappingTargets::anotherProjectWhileAMessageIsOpen()
{
    Editor editor;
    const auto sink = std::make_shared<CallingSink>();
    const PMessageSinkScope scope(sink);
    const PrjMappingC other = mappingOf("old/b.prj", {"new/c.prj"});
    sink->duringShow = [&] {
        editor.widget.loadSourceProject(other, editor.catalog.read("old/a.prj"), catalogOf(other));
    };
    editor.load(mappingOf("old/a.prj", {"new/gone.prj", "new/a.prj"}));
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/c.prj"));
    QCOMPARE(editor.widget.sourcePath(), QStringLiteral("old/b.prj"));
}

void tst_ProjectMappingTargets::acceptsBeforeItRemoves()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    enter(mapping, 0, 1, 1, Mapped);
    PrjMappingTargetC target = mapping.findTarget(0);
    target.setLineConflicted(1, true);
    mapping.updateTarget(0, target);
    editor.load(mapping);
    int targets = 0;
    connect(&editor.widget, &PrjMappingWidgetBase::targetLineConflictAccepted, this,
            [&] { targets = editor.widget.mapping().countTargets(); });
    editor.click(0, "removeButton");
    QCOMPARE(targets, 2);
}

void tst_ProjectMappingTargets::removesThePanelOfTheIndex()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj", "new/b.prj", "new/c.prj"}));
    // Now the second panel in the list stands first.
    editor.click(1, "upButton");
    editor.click(0, "removeButton");
    QCOMPARE(targetPaths(editor.announced()).section(' ', 0, 1),
             QStringLiteral("new/a.prj new/c.prj"));
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/a.prj new/c.prj"));
    QCOMPARE(editor.places(), QStringLiteral("0v 1^"));
}

void tst_ProjectMappingTargets::removalWithoutPanel()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"}));
    const QPointer<TargetMappingWidget> removed = editor.panel(1);
    editor.click(1, "removeButton");
    QCOMPARE(editor.updates.count(), 1);
    QVERIFY(removed);
    QVERIFY(QMetaObject::invokeMethod(removed, "onRemoveTargetClicked"));
    QCOMPARE(editor.updates.count(), 1);
}

void tst_ProjectMappingTargets::announcesBeforeItLaysOut()
{
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"}));
    QString atThatTime;
    connect(&editor.widget, &PrjMappingWidgetBase::projectMappingUpdated, this,
            [&] { atThatTime = panelPaths(&editor.widget); });
    editor.click(1, "upButton");
    QCOMPARE(atThatTime, QStringLiteral("new/a.prj new/b.prj"));
    QCOMPARE(panelPaths(&editor.widget), QStringLiteral("new/b.prj new/a.prj"));
}

void tst_ProjectMappingTargets::variablesOfTheListPositionAtAChange()
{
    Editor editor;
    editor.catalog.write("old/a.prj", "D,L:r\nM8,\"10;20\"\n");
    editor.catalog.write("new/a.prj", "D,L:n\nM1,5\n");
    editor.catalog.write("new/b.prj", "D,L:n\nM8,20\n");
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addCondition(mapping, 0, "D .EQ. 'M8'");
    addCondition(mapping, 1, "L .EQ. 20");
    editor.load(mapping);
    clickDelete(editor.panel(0)->findChild<QTableView *>("conditionView"), 0);
    // Of the first panel alone, whose conditions read no range.
    QCOMPARE(editor.announced().findTarget(1).countLines(), 0);
}

void tst_ProjectMappingTargets::addedTargetWalksAllVariables()
{
    Editor editor;
    editor.catalog.write("old/a.prj", "D,L:r\nM8,\"10;20\"\n");
    editor.catalog.write("new/a.prj", "D,L:n\nM1,5\n");
    editor.catalog.write("new/b.prj", "D,L:n\nM1,7\n");
    editor.catalog.write("new/c.prj", "D,L:n\nM8,20\n");
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addCondition(mapping, 1, "L .EQ. 3");
    editor.load(mapping);
    editor.answerProjectDialog("new/c.prj");
    QTest::mouseClick(editor.widget.findChild<QPushButton *>("addTargetButton"), Qt::LeftButton);
    QCOMPARE(editor.announced().findTarget(2).countLines(), 1);
}

void tst_ProjectMappingTargets::addedTargetHasVersions()
{
    Editor editor;
    const QString projectDate = QStringLiteral("2024-05-06T07:08:09Z");
    const QString tableDate = QStringLiteral("2023-01-02T03:04:05Z");
    editor.catalog.write("new/d.prj", lines,
                         [&](VKTab::TableDescriptor &table) { table.finalDate = tableDate; });
    editor.catalog.writeFile("new/d.prj",
                             "[PROJECT]\nSACHM=d.json\nDATE=" + projectDate.toLatin1() + "\n");
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}), CatalogMappingC());
    editor.answerProjectDialog("new/d.prj");
    QTest::mouseClick(editor.widget.findChild<QPushButton *>("addTargetButton"), Qt::LeftButton);
    const PrjMappingTargetC target = editor.announced().findTarget(1);
    QCOMPARE(target.getTargetVersion(),
             QString(CipVersionMgmtC::MakeVersionFromDate(projectDate, QString())));
    QCOMPARE(target.getTabVersion(),
             QString(CipVersionMgmtC::MakeVersionFromDate(tableDate, QString())));
    QVERIFY(target.getTargetVersion() != target.getTabVersion());
}

QTEST_MAIN(tst_ProjectMappingTargets)
#include "tst_ProjectMappingTargets.moc"
