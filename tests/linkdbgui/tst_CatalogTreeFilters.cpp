#include "CatalogEditor.h"
#include "SingleNode.h"

#include <mapping/view/CatalogFilterModel.h>
#include <mapping/view/CatalogStructureModel.h>

#include <core/config/PConfigService.h>
#include <geomcoregui/table/VkTableView.h>

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

#include <boost/make_shared.hpp>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

class tst_CatalogTreeFilters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void filterToCheck();
    void filtersExcludeEachOther();
    void filtersKeepTheirChecks();
    void filterByTarget();
    void filterByNoTarget();
    void tellsWhyItIsEmpty();

    void menuOfAProject();
    void menuOfAProjectCancelled();
    void menuOfADirectoryIsNotAllowed();
    void menuOfADirectory();
    void menuBesideTheRows();
    void menuOfTheShownProject();
    void menuOfAnInvalidMapping();
    void menuByTheKindOfTheNode_data();
    void menuByTheKindOfTheNode();
};

void tst_CatalogTreeFilters::init()
{
    PConfigService::setDirectories({});
}

void tst_CatalogTreeFilters::filterToCheck()
{
    const Editor editor;
    editor.show();
    const auto *const filter = qobject_cast<CatalogFilterModel *>(editor.tree->model());
    QCOMPARE(editor.shownProjects(), QStringLiteral("a.prj b.prj gone.prj c.prj"));
    editor.check("checkToCheck");
    QVERIFY(filter->filterToCheck && !filter->filterTarget && !filter->filterNoTarget);
    QCOMPARE(editor.shownProjects(), QStringLiteral("a.prj b.prj gone.prj"));
    QVERIFY(editor.box("checkTarget")->isEnabled() && editor.box("checkNoTarget")->isEnabled());
    editor.check("checkToCheck");
    QVERIFY(!filter->filterToCheck);
    QVERIFY(!editor.box("checkTarget")->isEnabled() && !editor.box("checkNoTarget")->isEnabled());
    QCOMPARE(editor.shownProjects(), QStringLiteral("a.prj b.prj gone.prj c.prj"));
}

void tst_CatalogTreeFilters::filtersExcludeEachOther()
{
    const Editor editor;
    editor.show();
    const auto *const filter = qobject_cast<CatalogFilterModel *>(editor.tree->model());
    editor.check("checkToCheck");
    editor.check("checkTarget");
    QVERIFY(filter->filterTarget && !filter->filterNoTarget);
    editor.check("checkNoTarget");
    QVERIFY(!editor.box("checkTarget")->isChecked() && editor.box("checkNoTarget")->isChecked());
    QVERIFY(!filter->filterTarget && filter->filterNoTarget);
    editor.check("checkTarget");
    QVERIFY(editor.box("checkTarget")->isChecked() && !editor.box("checkNoTarget")->isChecked());
    QVERIFY(filter->filterTarget && !filter->filterNoTarget);
    editor.check("checkTarget");
    QVERIFY(!filter->filterTarget && !filter->filterNoTarget && filter->filterToCheck);
}

void tst_CatalogTreeFilters::filtersKeepTheirChecks()
{
    const Editor editor;
    editor.show();
    const auto *const filter = qobject_cast<CatalogFilterModel *>(editor.tree->model());
    editor.check("checkToCheck");
    editor.check("checkNoTarget");
    editor.check("checkToCheck");
    QVERIFY(!editor.box("checkNoTarget")->isEnabled() && editor.box("checkNoTarget")->isChecked());
    QVERIFY(!filter->filterToCheck && filter->filterNoTarget);
    QCOMPARE(editor.shownProjects(), QStringLiteral("a.prj b.prj gone.prj c.prj"));
    editor.check("checkToCheck");
    QVERIFY(filter->filterToCheck && filter->filterNoTarget);
}

namespace {

/// One project with a line without target, one whose lines all have one.
ReleaseMappingC filterRelease()
{
    ReleaseMappingC release;
    release.addMapping(mixedMapping("old/dir/a.prj"));
    PrjMappingC mapping = mappingOf("old/dir/b.prj", {"new/a.prj"});
    enter(mapping, 0, 1, 1, ToCheck);
    release.addMapping(mapping);
    return release;
}

} // namespace

void tst_CatalogTreeFilters::filterByTarget()
{
    const Editor editor(filterRelease());
    editor.show();
    editor.check("checkToCheck");
    QCOMPARE(editor.shownProjects(), QStringLiteral("a.prj b.prj"));
    editor.check("checkTarget");
    QCOMPARE(editor.shownProjects(), QStringLiteral("b.prj"));
}

void tst_CatalogTreeFilters::filterByNoTarget()
{
    const Editor editor(filterRelease());
    editor.show();
    editor.check("checkToCheck");
    editor.check("checkNoTarget");
    QCOMPARE(editor.shownProjects(), QStringLiteral("a.prj"));
}

void tst_CatalogTreeFilters::tellsWhyItIsEmpty()
{
    const Editor editor;
    editor.show();
    const auto *const empty = editor.tree->findChild<QLabel *>("emptyTree");
    const auto onlyComplete = [](const PrjMappingC &mapping) {
        return mapping.getSourcePath().endsWith("c.prj");
    };
    editor.widget->setProjectFilter(onlyComplete, "None for the host.");
    QCOMPARE(editor.shownProjects(), QStringLiteral("c.prj"));
    QVERIFY(!empty->isVisible());
    editor.check("checkToCheck");
    QCOMPARE(editor.shownProjects(), QString());
    QVERIFY(empty->isVisible());
    QCOMPARE(empty->geometry(), editor.tree->viewport()->geometry());
    const QString unfinished =
        QStringLiteral(
            "Kein Projekt passt zur Auswahl unter dem Baum.\n„%1“ ausschalten, um wieder "
            "alle Projekte zu sehen.")
            .arg(editor.box("checkToCheck")->text());
    QCOMPARE(empty->text(), "None for the host.\n\n" + unfinished);
    editor.check("checkToCheck");
    QVERIFY(!empty->isVisible());
    editor.widget->setProjectFilter([](const PrjMappingC &) { return false; }, "None.");
    QVERIFY(empty->isVisible());
    QCOMPARE(empty->text(), QStringLiteral("None."));
    editor.widget->setProjectFilter({});
    QVERIFY(!empty->isVisible());
}

void tst_CatalogTreeFilters::menuOfAProject()
{
    Editor editor;
    editor.show();
    editor.tree->selectionModel()->clear();
    editor.calls.clear();
    const int before = editor.row("old/dir").data(CatalogStructureModel::MappingStateRole).toInt();
    const QPoint place = editor.begin("old/dir/b.prj");
    QCOMPARE(editor.contextMenu("old/dir/b.prj", true),
             QStringLiteral("Alle Zuordnungen bestätigen"));
    QCOMPARE(editor.menuPlace, editor.tree->viewport()->mapToGlobal(place));
    QCOMPARE(editor.calls, QStringList("updateMapping"));
    QCOMPARE(entriesOf(editor.stored("old/dir/b.prj")),
             QStringLiteral("0:1>1/2 0:2>2/2 0:3>3/2 -:4>-1/2"));
    // The numbers follow with the next announced change only.
    QCOMPARE(editor.statistics->text(), QStringLiteral("Übersicht : 13 / 3 / 3 / 3 / 4"));
    QCOMPARE(editor.handler->countVerified(), 7);
    QVERIFY(before & PRJMAPPING::StateUnmapped);

    // The directories above look again.
    QCOMPARE(editor.contextMenu("old/dir/a.prj", true),
             QStringLiteral("Alle Zuordnungen bestätigen"));
    QCOMPARE(editor.contextMenu("old/dir/gone.prj", true),
             QStringLiteral("Alle Zuordnungen bestätigen"));
    for (const char *const directory : {"old/dir", "old"})
        QCOMPARE(editor.row(directory).data(CatalogStructureModel::MappingStateRole).toInt(),
                 PRJMAPPING::StateVerified | PRJMAPPING::StateUsable);
}

void tst_CatalogTreeFilters::menuOfAProjectCancelled()
{
    const Editor editor;
    editor.show();
    QCOMPARE(editor.contextMenu("old/dir/b.prj", false),
             QStringLiteral("Alle Zuordnungen bestätigen"));
    QCOMPARE(editor.handler->updates.size(), 0);
}

void tst_CatalogTreeFilters::menuOfADirectoryIsNotAllowed()
{
    const QTemporaryDir directory;
    QFile file(directory.filePath("pproject.cfg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[CatalogMappingWidget]\nAllowVerifyAllOnDir=false\n");
    file.close();
    for (const QString &path : {QString(), directory.path()}) {
        PConfigService::setDirectories(path.isEmpty() ? PStringList() : PStringList({path}));
        const Editor editor;
        editor.show();
        QCOMPARE(editor.contextMenu("old/dir", true), QString());
        QCOMPARE(editor.handler->updates.size(), 0);
    }
}

void tst_CatalogTreeFilters::menuOfADirectory()
{
    const QTemporaryDir directory;
    QFile file(directory.filePath("pproject.cfg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[CatalogMappingWidget]\nAllowVerifyAllOnDir=true\n");
    file.close();
    PConfigService::setDirectories({directory.path()});
    const Editor editor;
    editor.show();
    QCOMPARE(editor.contextMenu("old", true), QStringLiteral("Alle Zuordnungen bestätigen"));
    QStringList paths;
    for (const PrjMappingC &mapping : std::as_const(editor.handler->updates))
        paths.append(mapping.getSourcePath());
    QCOMPARE(paths,
             QStringList({"old/dir/a.prj", "old/dir/b.prj", "old/dir/gone.prj", "old/done/c.prj"}));
    QCOMPARE(editor.row("old/dir").data(CatalogStructureModel::MappingStateRole).toInt(),
             PRJMAPPING::StateVerified | PRJMAPPING::StateUsable);
}

void tst_CatalogTreeFilters::menuBesideTheRows()
{
    const Editor editor;
    editor.show();
    QCOMPARE(editor.contextMenu(QPoint(20, editor.tree->viewport()->height() - 5), true),
             QString());
}

void tst_CatalogTreeFilters::menuOfTheShownProject()
{
    const Editor editor;
    editor.show();
    editor.click("old/dir/b.prj");
    const QSignalSpy fromTable(editor.table, SIGNAL(projectMappingUpdated(PrjMappingC)));
    const QSignalSpy acceptances(editor.table, SIGNAL(targetLineConflictAccepted(int)));
    QCOMPARE(editor.contextMenu("old/dir/b.prj", true),
             QStringLiteral("Alle Zuordnungen bestätigen"));
    QCOMPARE(editor.handler->updates.size(), 1);
    QCOMPARE(fromTable.count() + acceptances.count(), 0);
    // Both columns have it: removing the target takes the confirmed lines of this mapping.
    auto *const source = editor.table->findChild<VkTableView *>("sourceView");
    QCOMPARE(source->getTable().getLine(VKTab::LineId(1), false).getLineKeyValue("CatalogMapper"),
             QVariant("M"));
    QTest::mouseClick(
        targetPanels(editor.project).first()->findChild<QPushButton *>("removeButton"),
        Qt::LeftButton);
    QCOMPARE(entriesOf(editor.stored("old/dir/b.prj")),
             QStringLiteral("-:1>-1/0 -:2>-1/0 -:3>-1/0 -:4>-1/2"));
}

void tst_CatalogTreeFilters::menuOfAnInvalidMapping()
{
    const auto root = boost::make_shared<SingleNode>(0, "", PrjMappingC());
    const auto project = boost::make_shared<SingleNode>(2, "a.prj", PrjMappingC());
    root->children.append(project);
    auto *const handler = new SingleHandler(root);
    CatalogMappingWidget widget(QString(), handler, nullptr, nullptr);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    auto *const tree = widget.findChild<QTreeView *>("treeView");
    QTimer::singleShot(0, &widget, [] {
        QWidget *const menu = QApplication::activePopupWidget();
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    const QPoint place = tree->visualRect(tree->model()->index(0, 0)).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, tree->viewport()->mapToGlobal(place));
    QApplication::sendEvent(tree->viewport(), &event);
    QCOMPARE(handler->updates.size(), 0);
    QCOMPARE(project->invalidated, 1);
}

void tst_CatalogTreeFilters::menuByTheKindOfTheNode_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("menu");
    QTest::addColumn<QString>("verified");
    QTest::newRow("root") << 0 << false << "";
    QTest::newRow("directory") << 1 << false << "";
    QTest::newRow("project") << 2 << true << "own.prj";
    // Takes the way of a directory, and is not kept from it.
    QTest::newRow("type 3") << 3 << true << "below.prj";
}

void tst_CatalogTreeFilters::menuByTheKindOfTheNode()
{
    QFETCH(int, type);
    QFETCH(bool, menu);
    const auto root = boost::make_shared<SingleNode>(0, "", PrjMappingC());
    const auto node = boost::make_shared<SingleNode>(type, "", mappingOf("own.prj", {"t.prj"}));
    node->children.append(boost::make_shared<SingleNode>(2, "", mappingOf("below.prj", {"t.prj"})));
    root->children.append(node);
    auto *const handler = new SingleHandler(root);
    CatalogMappingWidget widget(QString(), handler, nullptr, nullptr);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    auto *const tree = widget.findChild<QTreeView *>("treeView");
    bool shown = false;
    QTimer::singleShot(0, &widget, [&shown] {
        QWidget *const popup = QApplication::activePopupWidget();
        shown = popup != nullptr;
        if (!shown)
            return;
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Return);
    });
    const QPoint place = tree->visualRect(tree->model()->index(0, 0)).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, tree->viewport()->mapToGlobal(place));
    QApplication::sendEvent(tree->viewport(), &event);
    QCoreApplication::processEvents();
    QCOMPARE(shown, menu);
    QStringList paths;
    for (const PrjMappingC &mapping : std::as_const(handler->updates))
        paths.append(mapping.getSourcePath());
    QTEST(paths.join(' '), "verified");
}

QTEST_MAIN(tst_CatalogTreeFilters)
#include "tst_CatalogTreeFilters.moc"
