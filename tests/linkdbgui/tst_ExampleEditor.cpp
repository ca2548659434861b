#include "EditorFixture.h"

#include <mapping/project/remapProjectLines.h>
#include <mapping/view/CatalogMappingWidget.h>

#include <geomcore/records/MappingFile.h>
#include <geomcore/table/Reader.h>
#include <geomcoregui/table/VkTableView.h>
#include <TestPaths.h>

#include <QPushButton>
#include <QRandomGenerator>
#include <QTreeView>

namespace {

const QString Examples = QStringLiteral(VELK_SOURCE_DIR "/examples");

/// A mapping of a project of the first release to one of the second, with proposals for its lines.
PrjMappingC proposedMapping(const QString &source, const QStringList &targets)
{
    PrjMappingC mapping = mappingOf(source, targets);
    const refHandle<PrjClass> project(new PrjClass(false, false, false));
    project->read(Examples + "/release-1/" + source, PrjClass::ReadAll);
    VKTab::ContentRef table;
    VKTab::Reader().readByProject(project, table, true);
    remapProjectLines(source, mapping, table, ReleaseMappingC(), {}, false);
    return mapping;
}

QModelIndex findRow(const QAbstractItemModel &model, const QString &text,
                    const QModelIndex &parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (index.data().toString() == text)
            return index;
        if (const QModelIndex below = findRow(model, text, index); below.isValid())
            return below;
    }
    return {};
}

const QString Nuts = QStringLiteral("standardparts/nuts/din985.prj");
const QString Screws = QStringLiteral("standardparts/screws/iso7380.prj");

/// The editor with a release of three projects of the example catalog.
struct Editor
{
    Editor()
    {
        ReleaseMappingC release;
        release.setSourceDate("2024-01-01");
        release.setTargetDate("2025-01-01");
        release.addMapping(proposedMapping(Nuts, {"standardparts/nuts/iso10511.prj"}));
        release.addMapping(
            proposedMapping("standardparts/nuts/iso4032.prj", {"standardparts/nuts/iso4032.prj"}));
        release.addMapping(proposedMapping(
            Screws, {"standardparts/screws/iso7380-1.prj", "standardparts/screws/iso7380-2.prj"}));
        handler = new NotingHandler(release, nullptr, file());
        widget = std::make_unique<CatalogMappingWidget>(Examples + "/release-1", handler, nullptr,
                                                        nullptr);
        tree = widget->findChild<QTreeView *>("treeView");
        source = widget->findChild<VkTableView *>("sourceView");
        target = widget->findChild<VkTableView *>("targetView");
        widget->resize(1600, 1000);
        widget->show();
        QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
        tree->expandAll();
    }
    [[nodiscard]] QString file() const { return directory.filePath("mapping.json"); }
    void open(const QString &project) const
    {
        const QModelIndex row = findRow(*tree->model(), project.section('/', -1));
        tree->scrollTo(row);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                          tree->visualRect(row).center());
    }
    static void clickLine(const VkTableView *view, int row)
    {
        QAbstractItemView *const grid = view->grid();
        const QModelIndex cell = grid->model()->index(row, grid->model()->columnCount() - 1);
        grid->scrollTo(cell);
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier,
                          grid->visualRect(cell).center());
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(source->grid(), key, modifiers);
    }
    void click(const char *button) const
    {
        QTest::mouseClick(widget->findChild<QPushButton *>(QLatin1String(button)), Qt::LeftButton);
    }
    [[nodiscard]] PrjMappingC stored(const QString &project) const
    {
        return handler->getCatalogMapping().lastRelease().findMapping(project, "v1", QString());
    }
    /// "target:line/state" of a source line, "-" for the not-found target.
    [[nodiscard]] QString entry(const QString &project, int line) const
    {
        const QStringList entries = entriesOf(stored(project)).split(' ');
        const QString key = QStringLiteral(":%1>").arg(line);
        for (const QString &entry : entries)
            if (entry.contains(key))
                return QString(entry).replace(key, ":");
        return {};
    }

    LocalCatalogs local{Examples + "/release-2"};
    MessageCapture messages;
    QTemporaryDir directory;
    NotingHandler *handler = nullptr;
    std::unique_ptr<CatalogMappingWidget> widget;
    QTreeView *tree = nullptr;
    VkTableView *source = nullptr;
    VkTableView *target = nullptr;
};

} // namespace

/// The editor on the example catalog, by mouse and keyboard.
class tst_ExampleEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void confirmByKeyboard();
    void confirmLineByLine();
    void changeByMouse();
    void removeAndExpire();
    void confirmAll();
    void assignAgain();
    void orderOfTargets();
    void walkAllProjects();
    void saved();
    void randomSteps_data();
    void randomSteps();
};

void tst_ExampleEditor::confirmByKeyboard()
{
    const Editor editor;
    editor.tree->setCurrentIndex(editor.tree->model()->index(0, 0));
    editor.tree->setFocus();
    while (editor.tree->currentIndex().data() != "din985.prj")
        QTest::keyClick(editor.tree, Qt::Key_Down);
    QVERIFY(editor.source->getTable().isValid());
    editor.source->grid()->setFocus();
    editor.key(Qt::Key_Home, Qt::ControlModifier);
    editor.key(Qt::Key_Down);
    QCOMPARE(editor.source->getSelectedLines(), QList<VKTab::LineId>({VKTab::LineId(2)}));
    QVERIFY(editor.target->getTable().isValid());
    QCOMPARE(editor.target->getSelectedLines().size(), 1);
    QCOMPARE(editor.entry(Nuts, 2), QStringLiteral("0:2/0"));
    editor.key(Qt::Key_V);
    QCOMPARE(editor.handler->updates.size(), 1);
    QCOMPARE(editor.entry(Nuts, 2), QStringLiteral("0:2/2"));
    QCOMPARE(editor.handler->countVerified(), 1);
    QVERIFY(editor.widget->findChild<QLabel *>("statisticsLabel")->text().endsWith(" / 1"));
    QCOMPARE(editor.messages->texts(), QStringList());
}

void tst_ExampleEditor::confirmLineByLine()
{
    const Editor editor;
    editor.open(Nuts);
    editor.source->grid()->setFocus();
    editor.key(Qt::Key_Home, Qt::ControlModifier);
    for (int line = 1; line <= 10; ++line) {
        editor.key(Qt::Key_V);
        editor.key(Qt::Key_Down);
    }
    QCOMPARE(editor.handler->countVerified(), 10);
    const PRJMAPPING::MappingState state = editor.stored(Nuts).getMappingState();
    QCOMPARE(state & ~PRJMAPPING::MappingState(PRJMAPPING::StateUsable),
             PRJMAPPING::MappingState(PRJMAPPING::StateVerified));
}

void tst_ExampleEditor::changeByMouse()
{
    const Editor editor;
    editor.open(Nuts);
    Editor::clickLine(editor.source, 4);
    QCOMPARE(editor.entry(Nuts, 5), QStringLiteral("0:5/0"));
    Editor::clickLine(editor.target, 6);
    editor.click("btnMapLine");
    QCOMPARE(editor.entry(Nuts, 5), QStringLiteral("0:7/2"));
    QCOMPARE(editor.target->getSelectedLines(), QList<VKTab::LineId>({VKTab::LineId(7)}));
    // The line keeps it when another one was looked at.
    Editor::clickLine(editor.source, 1);
    QCOMPARE(editor.target->getSelectedLines(), QList<VKTab::LineId>({VKTab::LineId(2)}));
    Editor::clickLine(editor.source, 4);
    QCOMPARE(editor.target->getSelectedLines(), QList<VKTab::LineId>({VKTab::LineId(7)}));
}

void tst_ExampleEditor::removeAndExpire()
{
    const Editor editor;
    editor.open(Nuts);
    Editor::clickLine(editor.source, 4);
    editor.key(Qt::Key_X);
    QCOMPARE(editor.entry(Nuts, 5), QStringLiteral("-:-1/1"));
    QVERIFY(!editor.target->getTable().isValid());
    // Only a line without assignment may be assigned to another project by hand.
    const auto *const assign =
        targetPanels(editor.widget->findChild<QWidget *>("projectWidget")).first()->assignButton;
    QVERIFY(assign->isEnabled());
    Editor::clickLine(editor.source, 1);
    QVERIFY(!assign->isEnabled());
    editor.key(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(editor.entry(Nuts, 2), QStringLiteral("-:-1/2"));
    QCOMPARE(editor.handler->countVerified(), 1);
}

void tst_ExampleEditor::confirmAll()
{
    const Editor editor;
    editor.open(Screws);
    editor.click("btnVerifyAll");
    QCOMPARE(editor.handler->updates.size(), 1);
    QCOMPARE(editor.handler->countVerified(), editor.stored(Screws).lineCounts().lines());
}

void tst_ExampleEditor::assignAgain()
{
    const Editor editor;
    editor.open(Nuts);
    Editor::clickLine(editor.source, 4);
    editor.key(Qt::Key_X);
    Editor::clickLine(editor.source, 1);
    editor.key(Qt::Key_V);
    editor.click("remapLinesButton");
    // What was removed is proposed again, what was confirmed stays.
    QCOMPARE(editor.entry(Nuts, 5), QStringLiteral("0:5/0"));
    QCOMPARE(editor.entry(Nuts, 2), QStringLiteral("0:2/2"));
}

void tst_ExampleEditor::orderOfTargets()
{
    const Editor editor;
    editor.open(Screws);
    const auto *const projects = editor.widget->findChild<QWidget *>("projectWidget");
    QCOMPARE(panelPaths(projects), QStringLiteral("standardparts/screws/iso7380-1.prj "
                                                  "standardparts/screws/iso7380-2.prj"));
    QTest::mouseClick(targetPanels(projects).last()->upButton, Qt::LeftButton);
    QCOMPARE(editor.handler->updates.size(), 1);
    QCOMPARE(editor.stored(Screws).findTarget(0).getTargetPath(),
             QStringLiteral("standardparts/screws/iso7380-2.prj"));
    // The tables have it too: a confirmed line goes into the target at its new index.
    Editor::clickLine(editor.source, 0);
    const QString before = editor.entry(Screws, 1);
    editor.key(Qt::Key_V);
    QCOMPARE(editor.entry(Screws, 1), before.chopped(1) + '2');
}

void tst_ExampleEditor::walkAllProjects()
{
    const Editor editor;
    editor.tree->setCurrentIndex(editor.tree->model()->index(0, 0));
    editor.tree->setFocus();
    QStringList opened;
    for (int step = 0; step < 6; ++step) {
        if (editor.source->getTable().isValid() && editor.source->isEnabled())
            opened.append(editor.tree->currentIndex().data().toString());
        QTest::keyClick(editor.tree, Qt::Key_Down);
    }
    QCOMPARE(opened, QStringList({"din985.prj", "iso4032.prj", "iso7380.prj"}));
    QCOMPARE(editor.handler->updates.size(), 0);
}

void tst_ExampleEditor::saved()
{
    const Editor editor;
    editor.open(Nuts);
    Editor::clickLine(editor.source, 1);
    editor.key(Qt::Key_V);
    QVERIFY(editor.handler->commitModifications());
    MappingFile file;
    QVERIFY(file.read(editor.file()));
    QCOMPARE(entriesOf(file.release("2024-01-01").findMapping(Nuts, "v1", QString())),
             entriesOf(editor.stored(Nuts)));
}

namespace {

/// Source lines of a mapping with the number of targets that hold each.
QMap<int, int> heldLines(const PrjMappingC &mapping)
{
    QMap<int, int> held;
    const QList<PrjMappingTargetC> targets = mapping.getTargets();
    for (const PrjMappingTargetC &target : targets)
        for (const LineTable::Iterator &line : target.lines())
            ++held[line.sourceLine()];
    return held;
}

void selectAnyLine(const VkTableView *view, QRandomGenerator &random)
{
    VKTab::ContentRef table = view->getTable();
    if (table.isValid() && table.getLineCount() > 0)
        table.setSelection(table.getLineIdList().at(random.bounded(table.getLineCount())), true);
}

void clickAnyPanel(const Editor &editor, const char *button, QRandomGenerator &random)
{
    const QList<TargetMappingWidget *> panels =
        targetPanels(editor.widget->findChild<QWidget *>("projectWidget"));
    if (!panels.isEmpty())
        QTest::mouseClick(panels.at(random.bounded(int(panels.size())))
                              ->findChild<QPushButton *>(QLatin1String(button)),
                          Qt::LeftButton);
}

void takeStep(const Editor &editor, QRandomGenerator &random)
{
    const QStringList projects({Nuts, Screws, "standardparts/nuts/iso4032.prj"});
    switch (random.bounded(12)) {
    case 0:
        return editor.open(projects.at(random.bounded(int(projects.size()))));
    case 1:
    case 2:
    case 3:
        return selectAnyLine(editor.source, random);
    case 4:
        return selectAnyLine(editor.target, random);
    case 5:
    case 6:
        return editor.key(Qt::Key_V);
    case 7:
        return editor.key(Qt::Key_X);
    case 8:
        return editor.key(Qt::Key_X, Qt::ControlModifier);
    case 9:
        return clickAnyPanel(editor, random.bounded(2) ? "upButton" : "downButton", random);
    case 10:
        return random.bounded(4) ? editor.key(Qt::Key_A, Qt::ControlModifier)
                                 : clickAnyPanel(editor, "removeButton", random);
    default:
        return editor.click("remapLinesButton");
    }
}

} // namespace

void tst_ExampleEditor::randomSteps_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 5; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_ExampleEditor::randomSteps()
{
    QFETCH(quint32, seed);
    const Editor editor;
    const ReleaseMappingC first = editor.handler->getCatalogMapping().lastRelease();
    QRandomGenerator random(seed);
    for (int step = 0; step < 100; ++step) {
        takeStep(editor, random);
        // Whatever is done, every line stays in exactly one target, and the counters are right.
        const ReleaseMappingC now = editor.handler->getCatalogMapping().lastRelease();
        LineCounts counts;
        for (int project = 0; project < now.countMappings(); ++project) {
            counts.add(now.mappingAt(project).lineCounts());
            QCOMPARE(heldLines(now.mappingAt(project)), heldLines(first.mappingAt(project)));
        }
        QCOMPARE(editor.handler->countVerified(), counts.verified());
        QCOMPARE(editor.handler->countNotFound(), counts.notFound());
        QCOMPARE(editor.handler->countToCheck(), counts.toCheck());
        QCOMPARE(editor.handler->countMapped(), counts.mapped());
    }
    QVERIFY(!editor.handler->updates.isEmpty());
    QCOMPARE(editor.messages->texts(), QStringList());
}

QTEST_MAIN(tst_ExampleEditor)
#include "tst_ExampleEditor.moc"
