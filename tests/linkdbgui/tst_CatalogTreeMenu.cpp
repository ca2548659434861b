// What the tree's menu reaches, and what the editor hands on to its parts.
#include "CatalogEditor.h"
#include "SingleNode.h"

#include <mapping/project/TableLineSelectionDialog.h>

#include <core/config/PConfigService.h>
#include <geomcoregui/table/VkTableView.h>

#include <QPointer>
#include <QPushButton>
#include <QSplitter>

#include <boost/make_shared.hpp>

namespace {

const QString a = QStringLiteral("old/dir/a.prj");
const QString b = QStringLiteral("old/dir/b.prj");
const QString verifyAll = QStringLiteral("Alle Zuordnungen bestätigen");

/// Calls a function while a message is open.
class CallingSink : public PMessageSink
{
public:
    PMsgReply show(const QString & /*text*/, PMsgDlgModes /*mode*/) override
    {
        duringShow();
        return {};
    }
    void logToWindow(const QString & /*text*/) override {}

    std::function<void()> duringShow;
};

void chooseFromMenu()
{
    QTimer::singleShot(0, qApp, [] {
        QWidget *const menu = QApplication::activePopupWidget();
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
}

} // namespace

class tst_CatalogTreeMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anotherProjectStaysOutOfTheColumns();
    void statesOfAllNodesAreDropped();
    void statesAreRepainted();
    void widgetGoesWhileTheMenuIsOpen();
    void directoriesWithoutTheKey();
    void handlerWithoutRoot();
    void targetProjectsAreOpened();
    void linesAreAssigned();
    void columnsAreLoadedInOrder();
    void tablesGetTheRoom();
};

void tst_CatalogTreeMenu::anotherProjectStaysOutOfTheColumns()
{
    const Editor editor;
    editor.show();
    editor.click(a);
    const QString before = entriesOf(editor.project->mapping());
    QCOMPARE(editor.contextMenu(b, true), verifyAll);
    QCOMPARE(editor.handler->updates.size(), 1);
    QCOMPARE(editor.project->mapping().getSourcePath(), a);
    QCOMPARE(entriesOf(editor.project->mapping()), before);
    QCOMPARE(editor.table->sourcePath(), a);
}

void tst_CatalogTreeMenu::statesOfAllNodesAreDropped()
{
    const auto root = boost::make_shared<SingleNode>(0, QString(), PrjMappingC());
    const auto folder = boost::make_shared<SingleNode>(3, QString(), PrjMappingC());
    const auto project =
        boost::make_shared<SingleNode>(2, QString(), mappingOf("p.prj", {"t.prj"}));
    folder->children.append(project);
    root->children.append(folder);
    CatalogMappingWidget widget(QString(), new SingleHandler(root), nullptr, nullptr);
    auto *const tree = widget.findChild<QTreeView *>("treeView");
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    chooseFromMenu();
    QVERIFY(QMetaObject::invokeMethod(
        widget.findChild<QObject *>("CatalogMappingWidgetPrivate"), "onTreeContextMenuRequested",
        Q_ARG(QPoint, tree->visualRect(tree->model()->index(0, 0)).center())));
    QCOMPARE(project->invalidated, 1);
    QCOMPARE(folder->invalidated, 2); // with all below it, and on the way up
}

void tst_CatalogTreeMenu::statesAreRepainted()
{
    const Editor editor;
    editor.show();
    PaintCounter tree(editor.tree->viewport());
    // The menu that goes has the tree painted too.
    editor.handler->onUpdate = [&tree] {
        QTest::qWait(20);
        tree.count = 0;
    };
    QCOMPARE(editor.contextMenu(b, true), verifyAll);
    QTRY_VERIFY(tree.count > 0);
}

void tst_CatalogTreeMenu::widgetGoesWhileTheMenuIsOpen()
{
    Editor editor;
    editor.show();
    const QPoint place = editor.begin(b);
    QTimer::singleShot(0, qApp, [&] {
        QWidget *const menu = QApplication::activePopupWidget();
        editor.widget.reset();
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QMetaObject::invokeMethod(editor.owner, "onTreeContextMenuRequested", Q_ARG(QPoint, place));
    QVERIFY(!editor.widget);
    QVERIFY(!editor.calls.contains("updateMapping"));
}

void tst_CatalogTreeMenu::directoriesWithoutTheKey()
{
    const QTemporaryDir directory;
    QFile file(directory.filePath("pproject.cfg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[CatalogMappingWidget]\nOther=true\n");
    file.close();
    PConfigService::setDirectories({directory.path()});
    const Editor editor;
    editor.show();
    QCOMPARE(editor.contextMenu("old/dir", true), QString());
    QCOMPARE(editor.contextMenu(b, false), verifyAll);
    PConfigService::setDirectories({});
}

void tst_CatalogTreeMenu::handlerWithoutRoot()
{
    CatalogMappingWidget widget(QString(), new SingleHandler(nullptr), nullptr, nullptr);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    widget.hideTree();
    QVERIFY(!widget.currentProject().isValid());
    widget.showMapping(mappingOf("p.prj", {"t.prj"}));
    QVERIFY(!widget.selectProject("p.prj"));
}

void tst_CatalogTreeMenu::targetProjectsAreOpened()
{
    const Editor editor;
    editor.show();
    editor.click(a);
    QTest::mouseClick(targetPanels(editor.project).first()->findChild<QPushButton *>("openButton"),
                      Qt::LeftButton);
    QCOMPARE(editor.calls.last(), QStringLiteral("open new/a.prj"));
}

void tst_CatalogTreeMenu::linesAreAssigned()
{
    ReleaseMappingC release;
    PrjMappingC mapping = mappingOf(a, {"new/a.prj", ""});
    enter(mapping, 1, 2, -1, PRJMAPPING::ToCheck);
    release.addMapping(mapping);
    const Editor editor(release);
    editor.show();
    editor.click(a);
    QVERIFY(editor.widget->selectLine(2));
    bool came = false;
    QTimer::singleShot(0, editor.widget.get(), [&] {
        if (auto *const dialog =
                qobject_cast<TableLineSelectionDialog *>(QApplication::activeModalWidget())) {
            came = true;
            dialog->reject();
        }
    });
    QTest::mouseClick(targetPanels(editor.project).first()->assignButton, Qt::LeftButton);
    QVERIFY(came);
}

void tst_CatalogTreeMenu::columnsAreLoadedInOrder()
{
    ReleaseMappingC release = sampleRelease();
    PrjMappingC missing = mappingOf(b, {"new/gone.prj"});
    missing.setSourceVersion("v1");
    release.addMapping(missing);
    Editor editor(release);
    editor.show();
    MappingChange change;
    change.type = 5;
    change.removedMapping = missing;
    editor.widget->setConflictedLocalChanges({{{"2024", b}, change}});
    const auto sink = std::make_shared<CallingSink>();
    const PMessageSinkScope scope(sink);
    QString table;
    QString project;
    QString conflicts;
    sink->duringShow = [&] {
        table = editor.table->sourcePath();
        project = editor.project->sourcePath();
        conflicts = editor.conflicts->findChild<QLabel *>("messageLabel")->text();
    };
    editor.click(b);
    QCOMPARE(table, b);
    QCOMPARE(project, b);
    QCOMPARE(conflicts, QString());
    QVERIFY(!editor.conflicts->findChild<QLabel *>("messageLabel")->text().isEmpty());
}

void tst_CatalogTreeMenu::tablesGetTheRoom()
{
    const Editor editor;
    editor.show();
    const auto sizes = [&](const char *name) {
        return editor.widget->findChild<QSplitter *>(name)->sizes();
    };
    const QList<int> conflicts = sizes("conflictSplitter");
    const QList<int> columns = sizes("editorSplitter");
    const QList<int> panes = sizes("catalogSplitter");
    editor.widget->resize(1600, 1200);
    QCoreApplication::processEvents();
    QCOMPARE(sizes("conflictSplitter").first(), conflicts.first());
    QCOMPARE(sizes("editorSplitter").first(), columns.first());
    QCOMPARE(sizes("catalogSplitter").first(), panes.first());
    QVERIFY(sizes("editorSplitter").last() > columns.last());
}

QTEST_MAIN(tst_CatalogTreeMenu)
#include "tst_CatalogTreeMenu.moc"
