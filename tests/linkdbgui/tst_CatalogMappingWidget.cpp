#include "CatalogEditor.h"
#include "SingleNode.h"

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
    void conflictsHearLast();
    void parentIsNotUsed();
    void destruction();

    void statistics();
    void statisticsOfASmallHandler();

    void updateFromTheProjects();
    void updateFromTheTable();
    void updateRepaints();
    void updateLeavesTheFilter();
    void updateInvalidatesNodes();

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
    QTest::newRow("place holder in the name") << false << "cat/%1.prj"
                                              << "svn://cat/trunk/catalog/%1.prj";
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
    // What stands last in each gets the room.
    for (const QSplitter *const each : {splitter, upper, lower}) {
        const QSizePolicy first = each->widget(0)->sizePolicy();
        const QSizePolicy last = each->widget(1)->sizePolicy();
        const bool isVertical = each->orientation() == Qt::Vertical;
        QCOMPARE(isVertical ? first.verticalStretch() : first.horizontalStretch(), 0);
        QCOMPARE(isVertical ? last.verticalStretch() : last.horizontalStretch(), 1);
    }
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

/// The strip of the conflicts hears of a change when the handler and both columns have it.
void tst_CatalogMappingWidget::conflictsHearLast()
{
    const QString path = QStringLiteral("old/dir/a.prj");
    Editor editor;
    editor.widget->setConflictedLocalChanges(changeOf(path, 1));
    QSignalSpy changed(editor.conflicts, SIGNAL(conflictsChanged(PrjMappingC)));
    // Only a strip that knows the project has a change to accept in it.
    const auto accept = [&editor] {
        QMetaObject::invokeMethod(editor.conflicts, "onTargetLineConflictAccepted", Q_ARG(int, 1));
    };
    bool asked = false;
    editor.handler->onUpdate = [&] {
        if (!std::exchange(asked, true))
            accept();
    };
    for (QObject *const column :
         {static_cast<QObject *>(editor.project), static_cast<QObject *>(editor.table)}) {
        asked = false;
        QMetaObject::invokeMethod(editor.conflicts, "onMappingUpdated",
                                  Q_ARG(PrjMappingC, PrjMappingC()));
        changed.clear();
        QMetaObject::invokeMethod(column, "projectMappingUpdated",
                                  Q_ARG(PrjMappingC, editor.stored(path)));
        QVERIFY(asked);
        QCOMPARE(changed.size(), 0);
        accept();
        QCOMPARE(changed.size(), 1);
    }
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
