#include "CatalogEditor.h"
#include "SingleNode.h"

#include <core/config/PConfigService.h>
#include <geomcoregui/table/VkTableView.h>

#include <boost/make_shared.hpp>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

class tst_CatalogOpening : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void selectProject();
    void selectDirectory();
    void selectProjectWithoutFile();
    void selectProjectByKeyboard();
    void emptySelectionChangesNothing();
    void severalRowsChangeNothing();
    void handlerIsAskedAtEachSelection();
    void leadingComponents_data();
    void leadingComponents();
    void tableRelativeToTheCatalog();
    void emptyPath();
    void nodeOfType3();
};

void tst_CatalogOpening::init()
{
    PConfigService::setDirectories({});
}

void tst_CatalogOpening::selectProject()
{
    const Editor editor;
    editor.show();
    editor.click("old/dir/a.prj");
    QCOMPARE(editor.enabled(), QStringLiteral("CTP"));
    QCOMPARE(editor.table->sourcePath(), QStringLiteral("old/dir/a.prj"));
    QCOMPARE(editor.project->sourcePath(), QStringLiteral("old/dir/a.prj"));
    QCOMPARE(panelPaths(editor.project), QStringLiteral("new/a.prj"));
    const auto *const source = editor.table->findChild<VkTableView *>("sourceView");
    QCOMPARE(source->getTable().getLineIdList().size(), 3);
    QCOMPARE(editor.handler->updates.size(), 0);
    QVERIFY(!editor.conflicts->isVisible());
}

void tst_CatalogOpening::selectDirectory()
{
    const Editor editor;
    editor.show();
    editor.click("old/dir/a.prj");
    editor.click("old/dir");
    QCOMPARE(editor.enabled(), QString());
    // What was shown stays.
    QCOMPARE(editor.table->sourcePath(), QStringLiteral("old/dir/a.prj"));
    editor.click("old/dir/b.prj");
    QCOMPARE(editor.enabled(), QStringLiteral("CTP"));
    QCOMPARE(editor.table->sourcePath(), QStringLiteral("old/dir/b.prj"));
}

void tst_CatalogOpening::selectProjectWithoutFile()
{
    const Editor editor;
    editor.show();
    editor.click("old/dir/a.prj");
    editor.click("old/dir/gone.prj");
    QCOMPARE(editor.enabled(), QString());
    QCOMPARE(editor.messages->texts(), QStringList());
    QCOMPARE(editor.table->sourcePath(), QStringLiteral("old/dir/a.prj"));
}

void tst_CatalogOpening::selectProjectByKeyboard()
{
    const Editor editor;
    editor.show();
    editor.click("old/dir");
    QTest::keyClick(editor.tree, Qt::Key_Down);
    QCOMPARE(editor.table->sourcePath(), QStringLiteral("old/dir/a.prj"));
    QTest::keyClick(editor.tree, Qt::Key_Down);
    QCOMPARE(editor.table->sourcePath(), QStringLiteral("old/dir/b.prj"));
}

void tst_CatalogOpening::emptySelectionChangesNothing()
{
    const Editor editor;
    editor.show();
    editor.click("old/dir/a.prj");
    editor.tree->clearSelection();
    QCOMPARE(editor.enabled(), QStringLiteral("CTP"));
}

void tst_CatalogOpening::severalRowsChangeNothing()
{
    const Editor editor;
    editor.show();
    editor.tree->setSelectionMode(QAbstractItemView::MultiSelection);
    editor.tree->selectionModel()->select(
        QItemSelection(editor.row("old/dir/a.prj"), editor.row("old/dir/b.prj")),
        QItemSelectionModel::Select);
    QCOMPARE(editor.enabled(), QString());
    QCOMPARE(editor.table->sourcePath(), QString());
}

void tst_CatalogOpening::handlerIsAskedAtEachSelection()
{
    Editor editor;
    editor.show();
    editor.calls.clear();
    editor.click("old/dir/a.prj");
    QCOMPARE(editor.calls, QStringList("getCatalogMapping"));
    editor.calls.clear();
    editor.click("old/dir");
    QCOMPARE(editor.calls, QStringList());
}

void tst_CatalogOpening::leadingComponents_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("sourcePath");
    QTest::newRow("none") << 0 << "one/two/a.prj"
                          << "one/two/a.prj";
    QTest::newRow("one") << 1 << "two/a.prj"
                         << "one/two/a.prj";
    QTest::newRow("two") << 2 << "a.prj"
                         << "one/two/a.prj";
    QTest::newRow("more than there are") << 5 << "a.prj"
                                         << "one/two/a.prj";
    QTest::newRow("two of one") << 2 << "a.prj"
                                << "one/a.prj";
    QTest::newRow("without any") << 2 << "a.prj"
                                 << "a.prj";
    QTest::newRow("negative") << -1 << "one/a.prj"
                              << "one/a.prj";
}

void tst_CatalogOpening::leadingComponents()
{
    QFETCH(int, count);
    QFETCH(QString, file);
    QFETCH(QString, sourcePath);
    ReleaseMappingC release;
    release.addMapping(mappingOf(sourcePath, {}));
    const Editor editor(release);
    editor.catalog.write(file, lines);
    editor.widget->setOptions(count);
    editor.show();
    editor.click(sourcePath);
    QCOMPARE(editor.enabled(), QStringLiteral("CTP"));
    QCOMPARE(editor.table->sourcePath(), sourcePath);
}

void tst_CatalogOpening::tableRelativeToTheCatalog()
{
    const Editor editor;
    editor.catalog.write("old/tables/t.prj", "D\nM1\n");
    // Beginning with the catalog's name a reference is relative to the catalog root.
    editor.catalog.writeFile("old/dir/a.prj", "[PROJECT]\nSACHM=old/tables/t.json\n");
    editor.show();
    editor.click("old/dir/a.prj");
    QCOMPARE(editor.enabled(), QStringLiteral("CTP"));
    const auto *const source = editor.table->findChild<VkTableView *>("sourceView");
    QCOMPARE(source->getTable().getLineIdList().size(), 1);
}

void tst_CatalogOpening::emptyPath()
{
    // Even if there is a project where an empty path leads to.
    const TestCatalog catalog;
    catalog.write("a.prj", lines);
    auto *const handler =
        new SingleHandler(boost::make_shared<SingleNode>(2, "", mappingOf("a.prj", {})));
    CatalogMappingWidget widget(catalog.file("a.prj"), handler, nullptr, nullptr);
    widget.hideTree();
    QVERIFY(!widget.findChild<QWidget *>("tableWidget")->isEnabled());
    QVERIFY(!widget.findChild<QWidget *>("projectWidget")->isEnabled());
    QVERIFY(!widget.findChild<QWidget *>("conflictWidget")->isEnabled());
}

void tst_CatalogOpening::nodeOfType3()
{
    // The tree shows it as a project, yet it is none to be opened.
    const TestCatalog catalog;
    catalog.write("a.prj", lines);
    auto *const handler =
        new SingleHandler(boost::make_shared<SingleNode>(3, "a.prj", mappingOf("a.prj", {})));
    CatalogMappingWidget widget(catalog.root(), handler, nullptr, nullptr);
    widget.hideTree();
    QVERIFY(!widget.findChild<QWidget *>("tableWidget")->isEnabled());
}

QTEST_MAIN(tst_CatalogOpening)
#include "tst_CatalogOpening.moc"
