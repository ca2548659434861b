#include "CatalogEditor.h"

#include <geomcore/table/FilterByLineId.h>
#include <geomcore/table/SignalConnect.h>
#include <geomcore/table/TabOptions.h>
#include <geomcoregui/table/VkTableView.h>

#include <QAbstractItemModel>
#include <QClipboard>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QSplitter>

namespace {

const QString a = QStringLiteral("old/dir/a.prj");
const QString b = QStringLiteral("old/dir/b.prj");

QStringList signalsOf(const QMetaObject &meta)
{
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names += QString::fromLatin1(meta.method(i).methodSignature());
    return names;
}

/// What came of the columns' signals.
struct Announcements
{
    explicit Announcements(const Editor &editor)
        : table(editor.table, SIGNAL(projectMappingUpdated(PrjMappingC)))
        , project(editor.project, SIGNAL(projectMappingUpdated(PrjMappingC)))
        , conflicts(editor.conflicts, SIGNAL(conflictsChanged(PrjMappingC)))
    {
    }
    [[nodiscard]] qsizetype count() const
    {
        return table.size() + project.size() + conflicts.size();
    }

    QSignalSpy table;
    QSignalSpy project;
    QSignalSpy conflicts;
};

/// As the document does it when it undoes a step: the handler has it before the editor hears of it.
void changeBehind(const Editor &editor, const PrjMappingC &mapping)
{
    editor.handler->ReleaseMappingHandler::updateMapping(mapping);
    editor.widget->showMapping(mapping);
}

} // namespace

class tst_CatalogMappingSeam : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void signalsStandBesideTheWidget();
    void tellsTheProject();
    void tellsTheLines();
    void selectsAProjectPastTheFilter();
    void bringsASelectedProjectIntoView();
    void selectsAProjectByVersion();
    void selectsALinePastTheFilter_data();
    void selectsALinePastTheFilter();
    void focusesTheLines();
    void changesTheTableThatHasTheKeys();
    void tellsDecisions_data();
    void tellsDecisions();
    void showsAMappingSilently();
    void showsAMappingOfAnotherProject();
    void opensTheProjectAnewForOtherTargets();
    void openingAnewKeepsThePlaceInTheTable();
    void tellsReassignment();
    void tellsCopiedConditions();
    void filtersOpenProjects();
    void filtersProjectsForAHost();
    void treeShowsWhatIsOpen();
    void tablesKeepLines();
    void showsOnlyLinesForAHost();
    void preferredRangesOfBothTables();
    void opensDirectories();
    void keepsPaneSizes();
    void givesPanes();
    void leavesItsTreeModel();

public Q_SLOTS:
    void noteDecision();

private:
    std::function<void()> m_onDecision;
};

void tst_CatalogMappingSeam::signalsStandBesideTheWidget()
{
    const Editor editor;
    QCOMPARE(signalsOf(*editor.widget->notifier()->metaObject()),
             QStringList({"currentProjectChanged()", "selectedLinesChanged()",
                          "onlyOpenProjectsChanged(bool)", "linesReassigned()", "linesDecided()",
                          "conditionCopied(QString)"}));
    QCOMPARE(signalsOf(CatalogMappingWidget::staticMetaObject), QStringList());
}

void tst_CatalogMappingSeam::tellsTheProject()
{
    const Editor editor;
    editor.show();
    QSignalSpy changed(editor.widget->notifier(), SIGNAL(currentProjectChanged()));
    QVERIFY(!editor.widget->currentProject().isValid());
    QVERIFY(!editor.widget->sourceTable().isValid());
    editor.click(a);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(editor.widget->currentProject().getSourcePath(), a);
    QCOMPARE(editor.widget->sourceTable().getLineIdList().size(), 3);
    editor.click("old/dir/gone.prj");
    QCOMPARE(changed.size(), 2);
    QCOMPARE(editor.widget->currentProject().getSourcePath(), QStringLiteral("old/dir/gone.prj"));
    QVERIFY(!editor.widget->sourceTable().isValid());
    editor.click("old/dir");
    QCOMPARE(changed.size(), 3);
    QVERIFY(!editor.widget->currentProject().isValid());
}

void tst_CatalogMappingSeam::tellsTheLines()
{
    const Editor editor;
    editor.show();
    QVERIFY(!editor.widget->selectLine(2));
    QVERIFY(editor.widget->selectProject(a));
    QSignalSpy changed(editor.widget->notifier(), SIGNAL(selectedLinesChanged()));
    QCOMPARE(editor.widget->currentLine(), -1);
    QVERIFY(editor.widget->selectLine(2));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(editor.widget->selectedLines(), QList<int>{2});
    QCOMPARE(editor.widget->currentLine(), 2);
    QVERIFY(!editor.widget->selectLine(4));
    QCOMPARE(editor.widget->currentLine(), 2);
    editor.table->sourceView()->grid()->selectAll();
    QCOMPARE(editor.widget->selectedLines(), (QList<int>{1, 2, 3}));
    QCOMPARE(editor.widget->currentLine(), -1);
    changed.clear();
    QVERIFY(editor.widget->selectLine(2)); // the current one of them
    QCOMPARE(editor.widget->selectedLines(), QList<int>{2});
    QCOMPARE(editor.widget->currentLine(), 2);
    QVERIFY(!changed.isEmpty());
}

void tst_CatalogMappingSeam::selectsAProjectPastTheFilter()
{
    const Editor editor;
    editor.show();
    editor.widget->setOnlyOpenProjects(true);
    QVERIFY(!editor.row("old/done/c.prj").isValid());
    QVERIFY(editor.widget->selectProject(b));
    QVERIFY(editor.widget->onlyOpenProjects());
    QVERIFY(editor.widget->selectProject("old/done/c.prj"));
    QVERIFY(!editor.widget->onlyOpenProjects());
    QCOMPARE(editor.widget->currentProject().getSourcePath(), QStringLiteral("old/done/c.prj"));
    QVERIFY(editor.tree->isExpanded(editor.row("old/done")));
    QVERIFY(!editor.widget->selectProject("old/dir/none.prj"));
    QVERIFY(!editor.widget->selectProject(QString()));
}

void tst_CatalogMappingSeam::bringsASelectedProjectIntoView()
{
    ReleaseMappingC release;
    release.setSourceDate("2024");
    const auto path = [](int number) {
        return QStringLiteral("old/dir/p%1.prj").arg(number, 3, 10, QLatin1Char('0'));
    };
    for (int number = 0; number < 200; ++number)
        release.addMapping(verifiedMapping(path(number)));
    const Editor editor(release);
    editor.show();
    const auto isInView = [&](int number) {
        return editor.tree->viewport()->rect().contains(
            editor.tree->visualRect(editor.row(path(number))).center());
    };
    QVERIFY(!isInView(199));
    QVERIFY(editor.widget->selectProject(path(199)));
    QVERIFY(isInView(199));
    // Also one that is selected already.
    editor.tree->scrollToTop();
    QVERIFY(!isInView(199));
    QVERIFY(editor.widget->selectProject(path(199)));
    QVERIFY(isInView(199));
}

void tst_CatalogMappingSeam::selectsAProjectByVersion()
{
    ReleaseMappingC release = sampleRelease();
    PrjMappingC later = mixedMapping(a);
    later.setSourceVersion("v2");
    release.addMapping(later);
    const Editor editor(release);
    QVERIFY(editor.widget->selectProject(a, "v2"));
    QCOMPARE(editor.widget->currentProject().getSourceVersion(), QStringLiteral("v2"));
    QVERIFY(editor.widget->selectProject(a, "v1"));
    QCOMPARE(editor.widget->currentProject().getSourceVersion(), QStringLiteral("v1"));
    QVERIFY(!editor.widget->selectProject(a, "v3"));
}

void tst_CatalogMappingSeam::selectsALinePastTheFilter_data()
{
    QTest::addColumn<bool>("byBox");
    QTest::newRow("by state") << true;
    QTest::newRow("from the menu") << false;
}

void tst_CatalogMappingSeam::selectsALinePastTheFilter()
{
    QFETCH(bool, byBox);
    const Editor editor;
    editor.show();
    QVERIFY(editor.widget->selectProject(a));
    QVERIFY(editor.widget->selectLine(1));
    VKTab::ContentRef table = editor.widget->sourceTable();
    if (byBox) {
        editor.check("chkFilterSource");
    } else {
        table.setFilter(VKTab::FilterByLineId({{1, VKTab::TabFilterData()}}, true));
        table.invalidate(VKTab::Content::InvalidateFilter, true);
    }
    QVERIFY(!table.isLineVisible(VKTab::LineId(3)));
    QVERIFY(editor.widget->selectLine(3));
    QVERIFY(table.isLineVisible(VKTab::LineId(3)));
    QVERIFY(!editor.box("chkFilterSource")->isChecked());
    QCOMPARE(editor.widget->currentLine(), 3);
}

void tst_CatalogMappingSeam::focusesTheLines()
{
    const Editor editor;
    editor.show();
    QVERIFY(editor.widget->selectProject(a));
    editor.widget->focusLines();
    QCOMPARE(editor.widget->focusWidget(), editor.table->sourceView()->grid());
}

void tst_CatalogMappingSeam::changesTheTableThatHasTheKeys()
{
    const Editor editor;
    editor.show();
    QVERIFY(editor.widget->selectProject(a));
    QVERIFY(editor.widget->selectLine(1));
    editor.tree->setFocus();
    const QWidget *const source = editor.table->sourceView()->grid();
    QAbstractItemView *const target = editor.table->targetView()->grid();
    editor.widget->focusOtherTable();
    QCOMPARE(editor.widget->focusWidget(), source);
    editor.widget->focusOtherTable();
    QCOMPARE(editor.widget->focusWidget(), target);
    QVERIFY(target->currentIndex().isValid()); // the arrow keys begin there
    editor.widget->focusOtherTable();
    QCOMPARE(editor.widget->focusWidget(), source);
    QCOMPARE(editor.widget->currentLine(), 1);
}

void tst_CatalogMappingSeam::tellsDecisions_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("confirm") << "btnMapLine";
    QTest::newRow("remove") << "btnRemoveLine";
    QTest::newRow("expired") << "btnRemoveVerifyLine";
}

void tst_CatalogMappingSeam::tellsDecisions()
{
    QFETCH(QString, button);
    const Editor editor;
    editor.show();
    QVERIFY(editor.widget->selectProject(a));
    QVERIFY(editor.widget->selectLine(1));
    const Announcements announced(editor);
    qsizetype before = -1;
    connect(editor.widget->notifier(), SIGNAL(linesDecided()), this, SLOT(noteDecision()));
    m_onDecision = [&] {
        before = announced.count();
    };
    QTest::mouseClick(editor.widget->findChild<QPushButton *>(button), Qt::LeftButton);
    QVERIFY(before > 0); // everybody has heard of it then
    QCOMPARE(before, announced.count());
    QCOMPARE(editor.widget->currentLine(), 1);
}

void tst_CatalogMappingSeam::noteDecision()
{
    m_onDecision();
}

void tst_CatalogMappingSeam::showsAMappingSilently()
{
    const Editor editor;
    editor.show();
    editor.click(a);
    QVERIFY(editor.widget->selectLine(1));
    const VKTab::ContentRef table = editor.widget->sourceTable();
    const QString before = editor.statistics->text();
    const Announcements announced(editor);
    PrjMappingC changed = editor.stored(a);
    changed.verifyAll();
    changeBehind(editor, changed);
    QCOMPARE(announced.count(), 0);
    QVERIFY(!editor.calls.contains("updateMapping"));
    QCOMPARE(table.getLine(VKTab::LineId(1), false)
                 .getLineKeyValue(QStringLiteral("CatalogMapper"))
                 .toString(),
             QStringLiteral("M"));
    QCOMPARE(editor.project->mapping().getMappingState(), changed.getMappingState());
    QVERIFY(editor.statistics->text() != before);
    QVERIFY(editor.widget->sourceTable() == table);
    QCOMPARE(editor.widget->currentLine(), 1);
}

void tst_CatalogMappingSeam::showsAMappingOfAnotherProject()
{
    const Editor editor;
    editor.show();
    editor.click(a);
    const QString before = editor.statistics->text();
    PrjMappingC changed = editor.stored(b);
    changed.verifyAll();
    changeBehind(editor, changed);
    QCOMPARE(editor.project->mapping().getSourcePath(), a);
    QCOMPARE(editor.widget->currentProject().getSourcePath(), a);
    QVERIFY(editor.statistics->text() != before);
    QVERIFY(!editor.calls.contains("updateMapping"));
}

void tst_CatalogMappingSeam::opensTheProjectAnewForOtherTargets()
{
    const Editor editor;
    editor.show();
    editor.click(a);
    QVERIFY(editor.widget->selectLine(2));
    QCOMPARE(panelPaths(editor.project), QStringLiteral("new/a.prj"));
    const Announcements announced(editor);
    PrjMappingC changed = editor.stored(a);
    PrjMappingTargetC added;
    added.setTargetPath("new/a.prj");
    added.setValid(true);
    changed.insertTarget(1, added);
    changeBehind(editor, changed);
    QCOMPARE(panelPaths(editor.project), QStringLiteral("new/a.prj new/a.prj"));
    QCOMPARE(editor.widget->currentLine(), 2);
    QCOMPARE(announced.count(), 0);
    QVERIFY(!editor.calls.contains("updateMapping"));
}

void tst_CatalogMappingSeam::openingAnewKeepsThePlaceInTheTable()
{
    const Editor editor;
    QByteArray table = "D,k:n\n";
    for (int line = 1; line <= 300; ++line)
        table += 'M' + QByteArray::number(line) + ",1\n";
    editor.catalog.write(a, table);
    editor.show();
    editor.click(a);
    auto *const source = editor.table->findChild<VkTableView *>("sourceView");
    source->setVerticalScrollPos(120);
    const int place = source->getVerticalScrollPos();
    QVERIFY(place > 0);
    PrjMappingC changed = editor.stored(a);
    PrjMappingTargetC added;
    added.setTargetPath("new/a.prj");
    added.setValid(true);
    changed.insertTarget(1, added);
    changeBehind(editor, changed);
    QCOMPARE(editor.widget->currentLine(), -1);
    QCOMPARE(source->getVerticalScrollPos(), place);
}

void tst_CatalogMappingSeam::tellsReassignment()
{
    const Editor editor;
    editor.show();
    editor.click(a);
    QStringList order;
    connect(editor.table, &PrjMappingWidgetBase::projectMappingUpdated, this,
            [&] { order += "published"; });
    QSignalSpy reassigned(editor.widget->notifier(), SIGNAL(linesReassigned()));
    QTest::mouseClick(editor.project->findChild<QPushButton *>("remapLinesButton"), Qt::LeftButton);
    QCOMPARE(reassigned.size(), 1);
    QCOMPARE(order, QStringList{"published"});
}

void tst_CatalogMappingSeam::tellsCopiedConditions()
{
    const Editor editor;
    editor.show();
    QSignalSpy copied(editor.widget->notifier(), SIGNAL(conditionCopied(QString)));
    editor.click(a);
    auto *const button = editor.widget->findChild<QPushButton *>("btnCondition");
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(copied.size(), 0); // no line is selected
    QVERIFY(editor.widget->selectLine(2));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(copied.size(), 1);
    const QString text = copied.first().first().toString();
    QVERIFY2(text.contains("k .EQ. 6") && text.contains("D .EQ. 'M9'"), qPrintable(text));
    QCOMPARE(QGuiApplication::clipboard()->text(), text);
}

void tst_CatalogMappingSeam::filtersProjectsForAHost()
{
    const Editor editor;
    editor.show();
    const QString all = editor.shownProjects();
    editor.widget->setProjectFilter(
        [](const PrjMappingC &mapping) { return mapping.getSourcePath() == b; });
    QCOMPARE(editor.shownProjects(), QStringLiteral("b.prj"));
    QVERIFY(!editor.widget->selectProject(a)); // the host's filter is the host's
    QVERIFY(editor.widget->selectProject(b));
    editor.widget->setOnlyOpenProjects(true);
    QCOMPARE(editor.shownProjects(), QStringLiteral("b.prj"));
    editor.widget->setOnlyOpenProjects(false);
    editor.widget->setProjectFilter({});
    QCOMPARE(editor.shownProjects(), all);
}

/// The project that is open is selected in the tree again as soon as no filter hides it, and is not
/// opened a second time.
void tst_CatalogMappingSeam::treeShowsWhatIsOpen()
{
    const Editor editor;
    editor.show();
    QVERIFY(editor.widget->selectProject(a));
    QVERIFY(editor.widget->selectLine(2));
    const auto *const tree = editor.widget->findChild<QTreeView *>();
    const QString row = tree->currentIndex().data().toString();
    const QSignalSpy opened(editor.widget->notifier(), SIGNAL(currentProjectChanged()));
    editor.widget->setProjectFilter(
        [](const PrjMappingC &mapping) { return mapping.getSourcePath() == b; });
    QVERIFY(tree->selectionModel()->selectedIndexes().isEmpty());
    editor.widget->setProjectFilter({});
    const QModelIndexList selected = tree->selectionModel()->selectedIndexes();
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.first().data().toString(), row);
    QVERIFY(!tree->visualRect(selected.first()).isEmpty());
    QCOMPARE(opened.size(), 0);
    QCOMPARE(editor.widget->currentLine(), 2);
}

/// In a low window the panel of the targets gives way, and comes back with the room.
void tst_CatalogMappingSeam::tablesKeepLines()
{
    const Editor editor;
    editor.widget->resize(900, 800);
    editor.show();
    QVERIFY(editor.widget->selectProject(a));
    auto *const splitter = editor.widget->findChild<QSplitter *>("editorSplitter");
    QVERIFY(QTest::qWaitForWindowExposed(editor.widget.get()));
    QTest::qWait(20); // what the splitter has to tell
    const int above = splitter->sizes().value(0);
    const auto *const tables = splitter->widget(1);
    const int enough = tables->minimumSizeHint().height() + 3 * tables->fontMetrics().height();
    editor.widget->resize(900, enough + 160);
    QTRY_VERIFY(splitter->sizes().value(1) >= enough);
    QVERIFY(splitter->sizes().value(0) > 0 && splitter->sizes().value(0) < above);
    const QByteArray low = editor.widget->saveState();
    editor.widget->resize(900, 800);
    QTRY_COMPARE(splitter->sizes().value(0), above);
    // The same after a restart.
    const Editor next;
    next.widget->resize(900, 800);
    next.show();
    QVERIFY(next.widget->restoreState(low));
    const auto *const other = next.widget->findChild<QSplitter *>("editorSplitter");
    QTRY_VERIFY(other->sizes().value(0) > above - 40);
}

void tst_CatalogMappingSeam::showsOnlyLinesForAHost()
{
    const Editor editor;
    editor.show();
    editor.widget->showOnlyLines({1}); // without a project
    editor.widget->showAllLines();
    editor.click(a);
    editor.check("chkFilterSource");
    editor.widget->showOnlyLines({1, 3});
    QVERIFY(!editor.box("chkFilterSource")->isChecked());
    QCOMPARE(editor.widget->shownLineCount(), 2);
    QCOMPARE(editor.widget->shownLine(0), 1);
    QCOMPARE(editor.widget->shownLine(1), 3);
    QVERIFY(editor.widget->linesAreFiltered());
    const auto *const empty =
        editor.widget->findChild<QWidget *>("sourceView")->findChild<QLabel *>("emptyTable");
    editor.widget->showOnlyLines({});
    QCOMPARE(editor.widget->shownLineCount(), 0);
    QVERIFY(!empty->isVisible()); // the host gave no reason
    editor.widget->showOnlyLines({}, "because");
    QVERIFY(empty->isVisible());
    QCOMPARE(empty->text(), "because");
    editor.widget->showOnlyLines({2}, "because");
    QVERIFY(!empty->isVisible());
    editor.widget->showOnlyLines({}, "because");
    editor.widget->showAllLines();
    QVERIFY(!empty->isVisible());
    QCOMPARE(editor.widget->shownLineCount(), 3);
    QVERIFY(!editor.widget->linesAreFiltered());
    editor.widget->showOnlyLines({2});
    editor.click(b);
    QCOMPARE(editor.widget->shownLineCount(), 3);
}

void tst_CatalogMappingSeam::filtersOpenProjects()
{
    const Editor editor;
    editor.show();
    QSignalSpy changed(editor.widget->notifier(), SIGNAL(onlyOpenProjectsChanged(bool)));
    editor.widget->setOnlyOpenProjects(true);
    QVERIFY(editor.box("checkToCheck")->isChecked());
    editor.check("checkToCheck");
    QVERIFY(!editor.widget->onlyOpenProjects());
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed.at(0).first().toBool(), true);
    QCOMPARE(changed.at(1).first().toBool(), false);
}

void tst_CatalogMappingSeam::preferredRangesOfBothTables()
{
    const Editor editor;
    editor.show();
    editor.widget->setOnlyPreferredRanges(true); // there is no table
    editor.click(a);
    QVERIFY(editor.widget->selectLine(2));
    const VKTab::ContentRef target = editor.table->targetView()->getTable();
    QVERIFY(target.isValid());
    int invalidated = 0;
    const boost::signals2::scoped_connection connection =
        target.signalConnect().connectSignalInvalidated(
            [&](const VKTab::Content &, VKTab::Content::InvalidateFlags) { ++invalidated; });
    editor.widget->setOnlyPreferredRanges(true);
    QVERIFY(editor.widget->sourceTable().getOptions()->getShowOnlyPrefRanges());
    QVERIFY(target.getOptions()->getShowOnlyPrefRanges());
    QCOMPARE(invalidated, 1);
}

void tst_CatalogMappingSeam::opensDirectories()
{
    const Editor editor;
    QCOMPARE(editor.widget->expandedDirectories(), QStringList());
    editor.widget->expandDirectories({});
    QCOMPARE(editor.widget->expandedDirectories(), QStringList{"old"}); // alone at the top
    editor.widget->expandDirectories({"old/done", "old/none"});
    QCOMPARE(editor.widget->expandedDirectories(), (QStringList{"old", "old/done"}));
}

void tst_CatalogMappingSeam::keepsPaneSizes()
{
    const Editor editor;
    editor.show();
    auto *const splitter = editor.widget->findChild<QSplitter *>("catalogSplitter");
    QVERIFY(!editor.widget->restoreState(QByteArray()));
    const QList<int> standard = splitter->sizes();
    QVERIFY(standard.first() > 100 && standard.first() < standard.last() / 2); // a narrow tree
    const auto shares = [&](const char *name) {
        return editor.widget->findChild<QSplitter *>(QLatin1String(name))->sizes();
    };
    QVERIFY(shares("conflictSplitter").first() < shares("conflictSplitter").last() / 4);
    QVERIFY(shares("editorSplitter").first() < shares("editorSplitter").last());
    splitter->setSizes({700, 700});
    const QList<int> wide = splitter->sizes();
    QVERIFY(wide != standard);
    const QByteArray state = editor.widget->saveState();
    QVERIFY(!editor.widget->restoreState("no state"));
    QCOMPARE(splitter->sizes(), standard);
    QVERIFY(editor.widget->restoreState(state));
    QCOMPARE(splitter->sizes(), wide);
}

void tst_CatalogMappingSeam::givesPanes()
{
    using Pane = CatalogMappingWidget::Pane;
    const Editor editor;
    editor.show();
    QCOMPARE(editor.widget->pane(Pane::Tree), editor.tree);
    QCOMPARE(editor.widget->pane(Pane::Targets), editor.project);
    QCOMPARE(editor.widget->pane(Pane::Lines), editor.table);
    editor.widget->hideTree();
    QVERIFY(!editor.widget->pane(Pane::Tree));
}

void tst_CatalogMappingSeam::leavesItsTreeModel()
{
    Editor editor;
    const QPointer<QAbstractItemModel> model(editor.widget->treeModel());
    QCOMPARE(model->index(0, 0).data().toString(), QStringLiteral("old"));
    editor.widget.reset();
    QVERIFY(model);
    delete model;
}

QTEST_MAIN(tst_CatalogMappingSeam)
#include "tst_CatalogMappingSeam.moc"
