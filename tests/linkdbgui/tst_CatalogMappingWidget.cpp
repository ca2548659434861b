#include "CatalogEditor.h"

#include <mapping/view/CatalogFilterModel.h>
#include <mapping/view/CatalogStructureDelegate.h>
#include <mapping/view/CatalogStructureModel.h>

#include <core/config/PConfigService.h>
#include <geomcoregui/table/VkTableView.h>

#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QSplitter>
#include <QVBoxLayout>

#include <boost/make_shared.hpp>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

namespace {

/// A node without children, as a host may give one.
class SingleNode : public CatalogStructureNodeI
{
public:
    SingleNode(int type, const QString &path, const PrjMappingC &mapping)
        : m_type(type)
        , m_path(path)
        , m_mapping(mapping)
    {
    }
    int getNodeType() const override { return m_type; }
    QString getName() const override { return QStringLiteral("single.prj"); }
    QString getPath() const override { return m_path; }
    PRJMAPPING::MappingState getMappingState() const override { return {}; }
    PrjMappingC getMapping() const override { return m_mapping; }
    bool hasConflicts() const override { return false; }
    QList<boost::shared_ptr<CatalogStructureNodeI>> getChildren() const override
    {
        return children;
    }
    void invalidateState() override { ++invalidated; }

    QList<boost::shared_ptr<CatalogStructureNodeI>> children;
    int invalidated = 0;

private:
    int m_type;
    QString m_path;
    PrjMappingC m_mapping;
};

/// A handler that overrides nothing that it need not.
class SingleHandler : public CatalogMappingHandlerI
{
public:
    explicit SingleHandler(const boost::shared_ptr<CatalogStructureNodeI> &root)
        : m_root(root)
    {
    }
    boost::shared_ptr<CatalogStructureNodeI> getRootStructureNode() const override
    {
        return m_root;
    }
    CatalogMappingC getCatalogMapping() const override { return {}; }
    void updateMapping(const PrjMappingC &mapping) override { updates.append(mapping); }
    bool commitModifications() override { return true; }

    QList<PrjMappingC> updates;

private:
    boost::shared_ptr<CatalogStructureNodeI> m_root;
};

/// Counts paint events of a widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *watched) { watched->installEventFilter(this); }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

QLayout *layoutAt(const QLayout *layout, int place)
{
    return layout->itemAt(place)->layout();
}

} // namespace

class tst_CatalogMappingWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void buildTargetPath_data();
    void buildTargetPath();

    void layoutOfTheTree();
    void layoutOfTheEditors();
    void editorsAreDisabledAtFirst();
    void metaObject();
    void orderOfTheHandlersCalls();
    void connections_data();
    void connections();
    void noConnectionWarns();
    void orderOfTheReceivers();
    void parentIsNotUsed();
    void destruction();

    void statistics();
    void statisticsOfASmallHandler();

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

    void updateFromTheProjects();
    void updateFromTheTable();
    void updateRepaints();
    void updateLeavesTheFilter();
    void updateInvalidatesNodes();

    void filterToCheck();
    void filtersExcludeEachOther();
    void filtersKeepTheirChecks();
    void filterByTarget();
    void filterByNoTarget();

    void menuOfAProject();
    void menuOfAProjectCancelled();
    void menuOfADirectoryIsNotAllowed();
    void menuOfADirectory();
    void menuBesideTheRows();
    void menuOfTheShownProject();
    void menuOfAnInvalidMapping();
    void menuByTheKindOfTheNode_data();
    void menuByTheKindOfTheNode();

    void hideTree();
    void hideTreeOfOneProject();
    void hideStatistics();
    void remoteViewerMode();

    void conflictsAreMarkedAtTheSecondCall_data();
    void conflictsAreMarkedAtTheSecondCall();
    void conflictsAreMarkedOnce();
    void acceptedConflict();
};

void tst_CatalogMappingWidget::init()
{
    PConfigService::setDirectories({});
}

void tst_CatalogMappingWidget::buildTargetPath_data()
{
    QTest::addColumn<bool>("local");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("built");
    QTest::newRow("local") << true << "cat/dir/a.prj"
                           << "$TORMEVA_DATA/23d-libs/cat/dir/a.prj";
    QTest::newRow("local with slash") << true << "/cat/a.prj"
                                      << "$TORMEVA_DATA/23d-libs/cat/a.prj";
    QTest::newRow("local without slash") << true << "a.prj"
                                         << "$TORMEVA_DATA/23d-libs/a.prj";
    QTest::newRow("local and empty") << true << ""
                                     << "";
    QTest::newRow("repository") << false << "cat/dir/a.prj"
                                << "svn://cat/trunk/catalog/dir/a.prj";
    QTest::newRow("repository with slash") << false << "/cat/a.prj"
                                           << "svn:///trunk/catalog/cat/a.prj";
    QTest::newRow("repository without slash") << false << "a.prj"
                                              << "";
    QTest::newRow("repository and empty") << false << ""
                                          << "";
    QTest::newRow("place holder") << false << "c%1t/%2.prj"
                                  << "svn://c%1t/trunk/catalog/%2.prj";
}

void tst_CatalogMappingWidget::buildTargetPath()
{
    QFETCH(bool, local);
    QFETCH(QString, path);
    QTEST(CatalogMappingWidget::buildTargetPath(local, path), "built");
}

void tst_CatalogMappingWidget::layoutOfTheTree()
{
    const Editor editor;
    auto *const outer = qobject_cast<QVBoxLayout *>(editor.widget->layout());
    QCOMPARE(outer->count(), 1);
    auto *const splitter = qobject_cast<QSplitter *>(outer->itemAt(0)->widget());
    QCOMPARE(splitter->orientation(), Qt::Horizontal);
    QCOMPARE(splitter->count(), 2);
    auto *const pane = qobject_cast<QVBoxLayout *>(splitter->widget(0)->layout());
    QCOMPARE(pane->contentsMargins(), QMargins());
    QCOMPARE(pane->count(), 4);
    QCOMPARE(pane->itemAt(0)->widget(), editor.tree);
    QCOMPARE(pane->itemAt(1)->widget(), editor.box("checkToCheck"));
    QCOMPARE(pane->itemAt(3)->widget(), editor.statistics);
    auto *const rows = qobject_cast<QVBoxLayout *>(layoutAt(pane, 2));
    QCOMPARE(rows->contentsMargins(), QMargins());
    QCOMPARE(rows->count(), 2);
    const char *const names[] = {"checkTarget", "checkNoTarget"};
    for (int place = 0; place < 2; ++place) {
        auto *const row = qobject_cast<QHBoxLayout *>(layoutAt(rows, place));
        QCOMPARE(row->contentsMargins(), QMargins());
        QCOMPARE(row->count(), 2);
        QCOMPARE(row->itemAt(0)->spacerItem()->sizeHint(), QSize(20, 1));
        QCOMPARE(row->itemAt(0)->spacerItem()->sizePolicy(),
                 QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
        QCOMPARE(row->itemAt(1)->widget(), editor.box(names[place]));
        QVERIFY(!editor.box(names[place])->isEnabled());
    }
    QCOMPARE(editor.box("checkToCheck")->text(),
             QStringLiteral("Zeige nur Projekte mit unvollständigen Mappings"));
    QVERIFY(editor.box("checkToCheck")->isEnabled());
    QCOMPARE(editor.box("checkTarget")->text(),
             QStringLiteral("Zeige nur Projekte mit zugeordneten Zeilen"));
    QCOMPARE(editor.box("checkNoTarget")->text(),
             QStringLiteral("Zeige nur Projekte mit nicht zugeordneten Zeilen"));

    QVERIFY(editor.tree->isHeaderHidden());
    QVERIFY(editor.tree->uniformRowHeights());
    QCOMPARE(editor.tree->contextMenuPolicy(), Qt::CustomContextMenu);
    auto *const filter = qobject_cast<CatalogFilterModel *>(editor.tree->model());
    QVERIFY(filter);
    QVERIFY(!filter->dynamicSortFilter());
    QCOMPARE(filter->parent(), editor.widget.get());
    QVERIFY(qobject_cast<CatalogStructureModel *>(filter->sourceModel()));
    QVERIFY(!filter->sourceModel()->parent());
    auto *const delegate = qobject_cast<CatalogStructureDelegate *>(editor.tree->itemDelegate());
    QVERIFY(delegate);
    QCOMPARE(delegate->parent(), editor.tree);
}

void tst_CatalogMappingWidget::layoutOfTheEditors()
{
    const Editor editor;
    auto *const splitter = editor.widget->findChild<QSplitter *>("catalogSplitter");
    auto *const pane = qobject_cast<QVBoxLayout *>(splitter->widget(1)->layout());
    QCOMPARE(pane->contentsMargins(), QMargins());
    QCOMPARE(pane->count(), 1);
    auto *const upper = qobject_cast<QSplitter *>(pane->itemAt(0)->widget());
    QCOMPARE(upper->orientation(), Qt::Vertical);
    QCOMPARE(upper->count(), 2);
    QCOMPARE(upper->widget(0), editor.conflicts);
    auto *const lower = qobject_cast<QSplitter *>(upper->widget(1));
    QCOMPARE(lower->orientation(), Qt::Vertical);
    QCOMPARE(lower->count(), 2);
    QCOMPARE(lower->widget(0), editor.project);
    QCOMPARE(lower->widget(1), editor.table);
}

void tst_CatalogMappingWidget::editorsAreDisabledAtFirst()
{
    const Editor editor;
    editor.show();
    QCOMPARE(editor.enabled(), QString());
    // The strip of the conflicts has nothing to tell yet, but it is there.
    QVERIFY(editor.conflicts->isVisible());
}

void tst_CatalogMappingWidget::metaObject()
{
    const QMetaObject &meta = CatalogMappingWidget::staticMetaObject;
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    const Editor editor;
    const QMetaObject *const slotsMeta = editor.owner->metaObject();
    QStringList slotNames;
    for (int method = slotsMeta->methodOffset(); method < slotsMeta->methodCount(); ++method)
        slotNames.append(QString::fromLatin1(slotsMeta->method(method).methodSignature()));
    QCOMPARE(slotNames,
             QStringList({"onTreeSelectionChanged(QItemSelection,QItemSelection)",
                          "onProjectMappingUpdated(PrjMappingC)",
                          "onTreeContextMenuRequested(QPoint)", "onFilterToCheckChanged(int)",
                          "onFilterTargetChanged(int)", "onFilterNoTargetChanged(int)"}));
}

void tst_CatalogMappingWidget::orderOfTheHandlersCalls()
{
    const Editor editor;
    QCOMPARE(editor.calls,
             QStringList({"countLines", "countMapped", "countNotFound", "countToCheck",
                          "countVerified", "getRootStructureNode", "getCatalogMapping"}));
}

void tst_CatalogMappingWidget::connections_data()
{
    QTest::addColumn<QString>("sender");
    QTest::addColumn<QString>("signalName");
    QTest::addColumn<QString>("receiver");
    QTest::addColumn<QString>("slotName");
    const auto add = [](const char *sender, const char *signal, const char *receiver,
                        const char *slot) {
        QTest::addRow("%s %s to %s", sender, signal, receiver)
            << sender << signal << receiver << slot;
    };
    const char *const owner = "CatalogMappingWidgetPrivate";
    const char *const updated = "projectMappingUpdated(const PrjMappingC&)";
    const char *const onUpdated = "onProjectMappingUpdated(const PrjMappingC&)";
    const char *const changed = "conflictsChanged(const PrjMappingC&)";
    const char *const accepted = "targetLineConflictAccepted(const int&)";
    add("treeView", "customContextMenuRequested(const QPoint&)", owner,
        "onTreeContextMenuRequested(const QPoint&)");
    add("checkToCheck", "stateChanged(int)", owner, "onFilterToCheckChanged(int)");
    add("checkTarget", "stateChanged(int)", owner, "onFilterTargetChanged(int)");
    add("checkNoTarget", "stateChanged(int)", owner, "onFilterNoTargetChanged(int)");
    add("selectionModel", "selectionChanged(const QItemSelection&, const QItemSelection&)", owner,
        "onTreeSelectionChanged(const QItemSelection&, const QItemSelection&)");
    add("projectWidget", updated, "tableWidget", onUpdated);
    add("tableWidget", updated, "projectWidget", onUpdated);
    add("projectWidget", updated, owner, onUpdated);
    add("tableWidget", updated, owner, onUpdated);
    add("conflictWidget", "targetLineConflict(const QString&, const int&)", "tableWidget",
        "onTargetLineConflict(const QString&, const int&)");
    add("conflictWidget", changed, owner, onUpdated);
    add("conflictWidget", changed, "tableWidget", onUpdated);
    add("conflictWidget", changed, "projectWidget", onUpdated);
    add("projectWidget", updated, "conflictWidget", "onMappingUpdated(const PrjMappingC&)");
    add("projectWidget", accepted, "conflictWidget", "onTargetLineConflictAccepted(const int&)");
    add("tableWidget", updated, "conflictWidget", "onMappingUpdated(const PrjMappingC&)");
    add("tableWidget", accepted, "conflictWidget", "onTargetLineConflictAccepted(const int&)");
    add("projectWidget", "remapLinesClicked()", "tableWidget", "onRemapLinesClicked()");
}

void tst_CatalogMappingWidget::connections()
{
    QFETCH(QString, sender);
    QFETCH(QString, signalName);
    QFETCH(QString, receiver);
    QFETCH(QString, slotName);
    const Editor editor;
    const auto find = [&editor](const QString &name) {
        return name == "selectionModel" ? static_cast<QObject *>(editor.tree->selectionModel())
                                        : editor.widget->findChild<QObject *>(name);
    };
    const QByteArray signal = '2' + signalName.toLatin1();
    const QByteArray slot = '1' + slotName.toLatin1();
    // There is one such connection: the first call finds it, the second one does not.
    QVERIFY(QObject::disconnect(find(sender), signal, find(receiver), slot));
    QVERIFY(!QObject::disconnect(find(sender), signal, find(receiver), slot));
}

void tst_CatalogMappingWidget::noConnectionWarns()
{
    const WarningCapture warnings;
    const Editor editor;
    QCOMPARE(warnings.list(), QStringList());
}

void tst_CatalogMappingWidget::orderOfTheReceivers()
{
    Editor editor;
    QStringList paths;
    editor.handler->onUpdate = [&] {
        paths = QStringList({editor.table->sourcePath(), editor.project->sourcePath()});
    };
    // The other column has the mapping before the handler gets it.
    Q_EMIT editor.project->projectMappingUpdated(mappingOf("x/1.prj", {}));
    QCOMPARE(paths, QStringList({"x/1.prj", ""}));
    Q_EMIT editor.table->projectMappingUpdated(mappingOf("x/2.prj", {}));
    QCOMPARE(paths, QStringList({"x/1.prj", "x/2.prj"}));
    // Of a conflict the handler hears first.
    Q_EMIT editor.conflicts->conflictsChanged(mappingOf("x/3.prj", {}));
    QCOMPARE(paths, QStringList({"x/1.prj", "x/2.prj"}));
    QCOMPARE(editor.table->sourcePath(), QStringLiteral("x/3.prj"));
    QCOMPARE(editor.project->sourcePath(), QStringLiteral("x/3.prj"));
    QCOMPARE(editor.handler->updates.size(), 3);
}

void tst_CatalogMappingWidget::parentIsNotUsed()
{
    QWidget parent;
    const CatalogMappingWidget widget(QString(), new NotingHandler(ReleaseMappingC()), nullptr,
                                      &parent);
    QVERIFY(!widget.parent());
    QVERIFY(widget.isWindow());
}

void tst_CatalogMappingWidget::destruction()
{
    Editor editor;
    editor.show();
    editor.click("old/dir/a.prj");
    const QPointer<CatalogFilterModel> filter =
        qobject_cast<CatalogFilterModel *>(editor.tree->model());
    const QPointer<QAbstractItemModel> model = filter->sourceModel();
    editor.calls.clear();
    editor.widget.reset();
    QCOMPARE(editor.calls, QStringList({"~handler", "~application"}));
    QVERIFY(!filter);
    QVERIFY(model);
    // Its nodes outlive the handler.
    QCOMPARE(model->index(0, 0).data().toString(), QStringLiteral("old"));
}

void tst_CatalogMappingWidget::statistics()
{
    const Editor editor;
    QCOMPARE(editor.statistics->text(), QStringLiteral("Übersicht : 13 / 3 / 3 / 3 / 4"));
    QCOMPARE(editor.statistics->toolTip(), QStringLiteral("Gesamtanzahl Zeilen : 13\n"
                                                          "Automatisch zugeordnete Zeilen : 3\n"
                                                          "Nicht gefundene Zeilen : 3\n"
                                                          "Zu überprüfende Zuordnungen : 3\n"
                                                          "Bestätigte Zuordnungen : 4"));
}

void tst_CatalogMappingWidget::statisticsOfASmallHandler()
{
    const CatalogMappingWidget widget(
        QString(), new SingleHandler(boost::make_shared<SingleNode>(0, "", PrjMappingC())), nullptr,
        nullptr);
    QCOMPARE(widget.findChild<QLabel *>("statisticsLabel")->text(),
             QStringLiteral("Übersicht : 0 / 0 / 0 / 0 / 0"));
}

void tst_CatalogMappingWidget::selectProject()
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

void tst_CatalogMappingWidget::selectDirectory()
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

void tst_CatalogMappingWidget::selectProjectWithoutFile()
{
    const Editor editor;
    editor.show();
    editor.click("old/dir/a.prj");
    editor.click("old/dir/gone.prj");
    QCOMPARE(editor.enabled(), QString());
    QCOMPARE(editor.messages->texts(), QStringList());
    QCOMPARE(editor.table->sourcePath(), QStringLiteral("old/dir/a.prj"));
}

void tst_CatalogMappingWidget::selectProjectByKeyboard()
{
    const Editor editor;
    editor.show();
    editor.click("old/dir");
    QTest::keyClick(editor.tree, Qt::Key_Down);
    QCOMPARE(editor.table->sourcePath(), QStringLiteral("old/dir/a.prj"));
    QTest::keyClick(editor.tree, Qt::Key_Down);
    QCOMPARE(editor.table->sourcePath(), QStringLiteral("old/dir/b.prj"));
}

void tst_CatalogMappingWidget::emptySelectionChangesNothing()
{
    const Editor editor;
    editor.show();
    editor.click("old/dir/a.prj");
    editor.tree->clearSelection();
    QCOMPARE(editor.enabled(), QStringLiteral("CTP"));
}

void tst_CatalogMappingWidget::severalRowsChangeNothing()
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

void tst_CatalogMappingWidget::handlerIsAskedAtEachSelection()
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

void tst_CatalogMappingWidget::leadingComponents_data()
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

void tst_CatalogMappingWidget::leadingComponents()
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

void tst_CatalogMappingWidget::tableRelativeToTheCatalog()
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

void tst_CatalogMappingWidget::emptyPath()
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

void tst_CatalogMappingWidget::nodeOfType3()
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

void tst_CatalogMappingWidget::updateFromTheProjects()
{
    Editor editor;
    editor.show();
    editor.click("old/dir/a.prj");
    editor.calls.clear();
    QTest::mouseClick(
        targetPanels(editor.project).first()->findChild<QPushButton *>("removeButton"),
        Qt::LeftButton);
    QCOMPARE(editor.calls,
             QStringList({"updateMapping", "getCatalogMapping", "countLines", "countMapped",
                          "countNotFound", "countToCheck", "countVerified"}));
    QCOMPARE(entriesOf(editor.stored("old/dir/a.prj")),
             QStringLiteral("-:1>-1/0 -:2>-1/0 -:3>-1/0 -:4>-1/0"));
    QCOMPARE(editor.statistics->text(), QStringLiteral("Übersicht : 13 / 2 / 6 / 2 / 3"));
}

void tst_CatalogMappingWidget::updateFromTheTable()
{
    Editor editor;
    editor.show();
    editor.click("old/dir/a.prj");
    auto *const source = editor.table->findChild<VkTableView *>("sourceView");
    source->getTable().setSelection(VKTab::LineId(1), true);
    QTest::keyClick(source->grid(), Qt::Key_V);
    QCOMPARE(editor.handler->updates.size(), 1);
    QCOMPARE(editor.stored("old/dir/a.prj").findTarget(0).getMappedLine(1).getState(), Verified);
    QCOMPARE(editor.statistics->text(), QStringLiteral("Übersicht : 13 / 3 / 3 / 2 / 5"));
    // The other column has it: what is done there next keeps it.
    QTest::keyClick(source->grid(), Qt::Key_X);
    QCOMPARE(entriesOf(editor.stored("old/dir/a.prj")),
             QStringLiteral("0:2>2/1 0:3>3/2 -:1>-1/1 -:4>-1/0"));
}

void tst_CatalogMappingWidget::updateRepaints()
{
    const Editor editor;
    editor.show();
    editor.click("old/dir/a.prj");
    const auto *const source = editor.table->findChild<VkTableView *>("sourceView");
    const auto *const target = editor.table->findChild<VkTableView *>("targetView");
    QTest::qWait(0);
    const PaintCounter tree(editor.tree->viewport());
    const PaintCounter sourceLines(source->grid()->viewport());
    const PaintCounter targetLines(target->grid()->viewport());
    Q_EMIT editor.project->projectMappingUpdated(editor.stored("old/dir/a.prj"));
    QTRY_VERIFY(tree.count > 0 && sourceLines.count > 0 && targetLines.count > 0);
}

void tst_CatalogMappingWidget::updateLeavesTheFilter()
{
    const Editor editor;
    editor.show();
    editor.check("checkToCheck");
    QCOMPARE(editor.shownProjects(), QStringLiteral("a.prj b.prj gone.prj"));
    Q_EMIT editor.table->projectMappingUpdated(verifiedMapping("old/dir/b.prj"));
    QCOMPARE(editor.shownProjects(), QStringLiteral("a.prj b.prj gone.prj"));
    // The next change of a box takes it away.
    editor.check("checkTarget");
    editor.check("checkTarget");
    QCOMPARE(editor.shownProjects(), QStringLiteral("a.prj gone.prj"));
}

void tst_CatalogMappingWidget::updateInvalidatesNodes()
{
    const Editor editor;
    editor.show();
    const int verifiedOnly = PRJMAPPING::StateVerified | PRJMAPPING::StateUsable;
    const auto state = [&editor] {
        return editor.row("old/done").data(CatalogStructureModel::MappingStateRole).toInt();
    };
    QCOMPARE(state(), verifiedOnly);
    Q_EMIT editor.table->projectMappingUpdated(mixedMapping("old/done/c.prj"));
    QVERIFY(state() & PRJMAPPING::StateUnmapped);
}

void tst_CatalogMappingWidget::filterToCheck()
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

void tst_CatalogMappingWidget::filtersExcludeEachOther()
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

void tst_CatalogMappingWidget::filtersKeepTheirChecks()
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

void tst_CatalogMappingWidget::filterByTarget()
{
    const Editor editor(filterRelease());
    editor.show();
    editor.check("checkToCheck");
    QCOMPARE(editor.shownProjects(), QStringLiteral("a.prj b.prj"));
    editor.check("checkTarget");
    QCOMPARE(editor.shownProjects(), QStringLiteral("b.prj"));
}

void tst_CatalogMappingWidget::filterByNoTarget()
{
    const Editor editor(filterRelease());
    editor.show();
    editor.check("checkToCheck");
    editor.check("checkNoTarget");
    QCOMPARE(editor.shownProjects(), QStringLiteral("a.prj"));
}

void tst_CatalogMappingWidget::menuOfAProject()
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

void tst_CatalogMappingWidget::menuOfAProjectCancelled()
{
    const Editor editor;
    editor.show();
    QCOMPARE(editor.contextMenu("old/dir/b.prj", false),
             QStringLiteral("Alle Zuordnungen bestätigen"));
    QCOMPARE(editor.handler->updates.size(), 0);
}

void tst_CatalogMappingWidget::menuOfADirectoryIsNotAllowed()
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

void tst_CatalogMappingWidget::menuOfADirectory()
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

void tst_CatalogMappingWidget::menuBesideTheRows()
{
    const Editor editor;
    editor.show();
    QCOMPARE(editor.contextMenu(QPoint(20, editor.tree->viewport()->height() - 5), true),
             QString());
}

void tst_CatalogMappingWidget::menuOfTheShownProject()
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

void tst_CatalogMappingWidget::menuOfAnInvalidMapping()
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

void tst_CatalogMappingWidget::menuByTheKindOfTheNode_data()
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

void tst_CatalogMappingWidget::menuByTheKindOfTheNode()
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

void tst_CatalogMappingWidget::hideTree()
{
    const Editor editor;
    editor.show();
    editor.click("old/dir/a.prj");
    editor.widget->hideTree();
    QVERIFY(!editor.tree->isVisible());
    QVERIFY(editor.box("checkToCheck")->isVisible());
    QVERIFY(editor.statistics->isVisible());
    // The root is no project.
    QCOMPARE(editor.enabled(), QString());
}

void tst_CatalogMappingWidget::hideTreeOfOneProject()
{
    const TestCatalog catalog;
    catalog.write("a.prj", lines);
    const PrjMappingC mapping = mappingOf("a.prj", {});
    auto *const handler = new SingleHandler(boost::make_shared<SingleNode>(2, "a.prj", mapping));
    CatalogMappingWidget widget(catalog.root(), handler, nullptr, nullptr);
    widget.hideTree();
    QVERIFY(widget.findChild<QWidget *>("tableWidget")->isEnabled());
    QCOMPARE(widget.findChild<TableMappingWidget *>("tableWidget")->sourcePath(),
             QStringLiteral("a.prj"));
}

void tst_CatalogMappingWidget::hideStatistics()
{
    const Editor editor;
    editor.show();
    editor.widget->hideStatistics();
    QVERIFY(!editor.statistics->isVisible());
    QVERIFY(editor.tree->isVisible());
}

void tst_CatalogMappingWidget::remoteViewerMode()
{
    const Editor editor;
    editor.widget->setRemoteViewerMode(true);
    editor.show();
    editor.click("old/dir/a.prj");
    // The project column looks in the repository, the table column in the local catalogs.
    QCOMPARE(panelPaths(editor.project),
             QStringLiteral("new/a.prj <b>(Konnte nicht gefunden werden)</b>"));
    const auto *const source = editor.table->findChild<VkTableView *>("sourceView");
    source->getTable().setSelection(VKTab::LineId(1), true);
    QVERIFY(editor.table->findChild<VkTableView *>("targetView")->getTable().isValid());
    editor.widget->setRemoteViewerMode(false);
    editor.click("old/dir/b.prj");
    QCOMPARE(panelPaths(editor.project), QStringLiteral("new/a.prj"));
}

namespace {

MappingChangeMap changeOf(const QString &path, int lineId, int type = 0,
                          const QString &date = QStringLiteral("2024"))
{
    MappingChange change;
    change.type = type;
    change.lineId = lineId;
    MappingChangeMap changes;
    changes.insert({date, path}, change);
    return changes;
}

} // namespace

void tst_CatalogMappingWidget::conflictsAreMarkedAtTheSecondCall_data()
{
    QTest::addColumn<bool>("localFirst");
    QTest::newRow("local changes first") << true;
    QTest::newRow("online changes first") << false;
}

void tst_CatalogMappingWidget::conflictsAreMarkedAtTheSecondCall()
{
    QFETCH(bool, localFirst);
    const Editor editor;
    const auto set = [&editor](bool local) {
        if (local)
            editor.widget->setConflictedLocalChanges(changeOf("old/dir/b.prj", 2));
        else
            editor.widget->setConflictedOnlineChanges(changeOf("old/dir/b.prj", 3));
    };
    set(localFirst);
    QCOMPARE(editor.handler->updates.size(), 0);
    QVERIFY(!editor.widget->hasConflicts());
    set(!localFirst);
    QCOMPARE(editor.handler->updates.size(), 1);
    QVERIFY(editor.widget->hasConflicts());
    const PrjMappingTargetC target = editor.stored("old/dir/b.prj").findTarget(0);
    QVERIFY(target.getLineConflicted(2) && !target.getLineConflicted(3));
    QVERIFY(!editor.stored("old/dir/a.prj").getContainsConflicts());
    QVERIFY(editor.row("old/dir/b.prj").data(CatalogStructureModel::ConflictRole).toBool());
    QVERIFY(editor.row("old").data(CatalogStructureModel::ConflictRole).toBool());
    QVERIFY(!editor.row("old/done").data(CatalogStructureModel::ConflictRole).toBool());
    // Both editors have taken the mapping, open or not.
    QCOMPARE(editor.table->sourcePath(), QStringLiteral("old/dir/b.prj"));
    QCOMPARE(editor.project->sourcePath(), QStringLiteral("old/dir/b.prj"));
}

void tst_CatalogMappingWidget::conflictsAreMarkedOnce()
{
    const Editor editor;
    editor.widget->setConflictedLocalChanges(changeOf("old/dir/b.prj", 2));
    editor.widget->setConflictedOnlineChanges({});
    QCOMPARE(editor.handler->updates.size(), 0);
    editor.widget->setConflictedOnlineChanges(changeOf("old/dir/b.prj", 2));
    QCOMPARE(editor.handler->updates.size(), 1);
    editor.widget->setConflictedLocalChanges(changeOf("old/dir/a.prj", 2));
    editor.widget->setConflictedOnlineChanges(changeOf("old/dir/a.prj", 2));
    QCOMPARE(editor.handler->updates.size(), 1);
    QVERIFY(!editor.stored("old/dir/a.prj").getContainsConflicts());
}

void tst_CatalogMappingWidget::acceptedConflict()
{
    const Editor editor;
    editor.widget->setConflictedLocalChanges(changeOf("old/dir/b.prj", 2));
    editor.widget->setConflictedOnlineChanges(changeOf("old/dir/b.prj", 2));
    editor.show();
    editor.click("old/dir/b.prj");
    QVERIFY(editor.conflicts->isVisible());
    auto *const source = editor.table->findChild<VkTableView *>("sourceView");
    QCOMPARE(source->getTable().getLine(VKTab::LineId(2), false).getLineKeyValue("CatalogMapper"),
             QVariant("Conflicted"));
    source->getTable().setSelection(VKTab::LineId(2), true);
    QTest::keyClick(source->grid(), Qt::Key_V);
    QVERIFY(!editor.widget->hasConflicts());
    QVERIFY(!editor.stored("old/dir/b.prj").getContainsConflicts());
    QCOMPARE(editor.stored("old/dir/b.prj").findTarget(0).getMappedLine(2).getState(), Verified);
}

QTEST_MAIN(tst_CatalogMappingWidget)
#include "tst_CatalogMappingWidget.moc"
