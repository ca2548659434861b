#include "ModalScript.h"
#include "WindowFixture.h"
#include <core/text/countText.h>

#include <core/plugin/PTranslateManager.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/editor/LineCommands.h>
#include <workbench/window/editor/LineStateFilter.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/settings/KeyedActions.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");
const QString mixed = QStringLiteral("standardparts/bearings/din625.prj");
const QString equal = QStringLiteral("standardparts/screws/iso10642.prj");

/// Clicks the switch in the tool bar.
void click(const WindowFixture &fixture, const char *name)
{
    const auto *const bar = fixture.window->findChild<QToolBar *>("statesToolBar");
    auto *const button = qobject_cast<QToolButton *>(bar->widgetForAction(fixture.action(name)));
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
    QCoreApplication::processEvents();
}

/// "3, 7": the lines that the table shows.
QString shownLines(const WindowFixture &fixture)
{
    QStringList lines;
    for (const int line : fixture.window->editor()->shownLines())
        lines += QString::number(line);
    return lines.join(QStringLiteral(", "));
}

QString linesOf(const WindowFixture &fixture, const QString &path, OpenLines::Kinds kinds)
{
    const ReleaseMappingC release = fixture.window->desk()->document()->release();
    QStringList lines;
    for (int i = 0; i < release.countMappings(); ++i) {
        if (release.mappingAt(i).getSourcePath() != path)
            continue;
        for (const int line : OpenLines::linesOf(release.mappingAt(i), kinds))
            lines += QString::number(line);
    }
    return lines.join(QStringLiteral(", "));
}

/// Projects that the tree shows.
int projectCount(const QAbstractItemModel *tree, const QModelIndex &parent = {})
{
    int count = 0;
    for (int row = 0; row < tree->rowCount(parent); ++row) {
        const QModelIndex index = tree->index(row, 0, parent);
        count += index.data().toString().endsWith(QLatin1String(".prj")) ? 1 : 0;
        count += projectCount(tree, index);
    }
    return count;
}

int projectCount(const WindowFixture &fixture)
{
    return projectCount(fixture.window->editor()->findChild<QTreeView *>("treeView")->model());
}

/// What a switch says of the release as it is.
QString counted(const WindowFixture &fixture, const char *name, OpenLines::Kind kind, int less = 0)
{
    return QStringLiteral("%1: %2").arg(
        QString::fromUtf8(name),
        countText(fixture.window->lines()->openLines().countOf(kind) - less));
}

} // namespace

class tst_LineStateFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void switches();
    void numbersAreThoseOfTheRelease();
    void linesAndProjectsOfAState();
    void severalStates();
    void otherProjectsAreFilteredToo();
    void theNextLineIsOfThatState();
    void decidedLinesCanBeWalkedToo();
    void givesWayToAProjectThatItHides();
    void staysWhenTheEditorIsMadeAnew();
    void goesWithTheDocument();
    void anEmptyTableIsTold();
    void whatIsToldOfATableGoesWithIt_data();
    void whatIsToldOfATableGoesWithIt();
    void whatIsToldOfATableGoesWithTheFilter();
    void namesItselfInQuestions();
    void columnFiltersStillHoldTheWalk();
    void english();
};

void tst_LineStateFilter::switches()
{
    LineStateFilter filter(nullptr);
    QSignalSpy changed(&filter, &LineStateFilter::kindsChanged);
    QStringList names;
    for (const QAction *const action : filter.actions()) {
        names += action->objectName();
        QVERIFY(action->isCheckable());
        QVERIFY(!action->isEnabled());
        QVERIFY(!action->icon().isNull());
        QVERIFY(!action->toolTip().isEmpty());
        QCOMPARE(action->statusTip(), action->toolTip());
    }
    QCOMPARE(names, QStringList({"stateConflict", "stateToCheck", "stateNotFound", "stateProposed",
                                 "stateConfirmed", "stateExpired"}));
    QCOMPARE(filter.actions()[1]->text(), QStringLiteral("Zu prüfen"));
    filter.setDocumentOpen(true);
    QLocale::setDefault(QLocale(QLocale::German));
    filter.setCounts([](OpenLines::Kind kind) { return 1000 * int(kind); });
    QStringList texts;
    int kind = 1;
    for (QAction *const action : filter.actions()) {
        QVERIFY(action->isEnabled());
        texts += action->text();
        action->setChecked(true);
        QCOMPARE(changed.takeFirst().first().value<OpenLines::Kinds>(),
                 OpenLines::Kinds(2 * kind - 1));
        kind *= 2;
    }
    QCOMPARE(texts,
             QStringList({"Konflikt: 1.000", "Zu prüfen: 2.000", "Ohne Ziel: 4.000",
                          "Automatisch: 8.000", "Bestätigt: 16.000", "Ausgelaufen: 32.000"}));
    filter.clear();
    QCOMPARE(changed.size(), 1);
    QVERIFY(!changed.takeFirst().first().value<OpenLines::Kinds>());
    filter.clear();
    QCOMPARE(changed.size(), 0);
    QCOMPARE(LineStateFilter::names(OpenLines::Conflict | OpenLines::Expired),
             QStringLiteral("Konflikt, Ausgelaufen"));
}

void tst_LineStateFilter::numbersAreThoseOfTheRelease()
{
    WindowFixture fixture;
    QVERIFY(!fixture.action("stateToCheck")->isEnabled());
    QCOMPARE(fixture.action("stateToCheck")->text(), QStringLiteral("Zu prüfen"));
    fixture.open(fixture.mappingFile());
    const QString toCheck = counted(fixture, "Zu prüfen", OpenLines::ToCheck);
    const QString oneLess = counted(fixture, "Zu prüfen", OpenLines::ToCheck, 1);
    QTRY_COMPARE(fixture.action("stateToCheck")->text(), toCheck);
    QCOMPARE(fixture.action("stateNotFound")->text(),
             counted(fixture, "Ohne Ziel", OpenLines::NotFound));
    QCOMPARE(fixture.action("stateConfirmed")->text(), QStringLiteral("Bestätigt: 0"));
    // Where commands are listed, numbers are no part of a name.
    QCOMPARE(fixture.window->keyedActions()->nameOf("stateConfirmed"),
             QStringLiteral("Zustand: Bestätigt"));
    QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
    fixture.press(Qt::Key_V);
    QTRY_COMPARE(fixture.action("stateToCheck")->text(), oneLess);
    QCOMPARE(fixture.action("stateConfirmed")->text(), QStringLiteral("Bestätigt: 1"));
    const auto *const menu = fixture.window->findChild<QMenu *>("statesMenu");
    QCOMPARE(menu->actions().size(), 6);
    QCOMPARE(menu->title(), QStringLiteral("Nur &Zeilen"));
    fixture.window->desk()->document()->undo();
    QTRY_COMPARE(fixture.action("stateToCheck")->text(), toCheck);
}

void tst_LineStateFilter::linesAndProjectsOfAState()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    EditorArea *const editor = fixture.window->editor();
    QVERIFY(editor->selectProject(mixed));
    const QString all = shownLines(fixture);
    const int projects = projectCount(fixture);
    editor->findChild<QCheckBox *>("chkFilterSource")->setChecked(true);
    click(fixture, "stateToCheck");
    QCOMPARE(editor->lineKinds(), OpenLines::Kinds(OpenLines::ToCheck));
    QVERIFY(!editor->findChild<QCheckBox *>("chkFilterSource")->isChecked());
    const QString toCheck = linesOf(fixture, mixed, OpenLines::ToCheck);
    QVERIFY(!toCheck.isEmpty() && toCheck != all);
    QCOMPARE(shownLines(fixture), toCheck);
    const ReleaseMappingC release = fixture.window->desk()->document()->release();
    int expected = 0;
    for (int i = 0; i < release.countMappings(); ++i)
        expected += OpenLines::countOf(release.mappingAt(i), OpenLines::ToCheck) > 0 ? 1 : 0;
    QVERIFY(expected < projects);
    QCOMPARE(projectCount(fixture), expected);
    // Lines that were decided stay until the choice is made anew.
    QVERIFY(editor->selectLine(toCheck.section(',', 0, 0).toInt()));
    fixture.press(Qt::Key_V);
    QCOMPARE(shownLines(fixture), toCheck);
    // The counter tells of them, too.
    const auto *const counter = fixture.window->findChild<QLabel *>("statusOpen");
    const int left = fixture.window->lines()->openLines().countOf(OpenLines::ToCheck);
    QTRY_COMPARE(
        counter->text(),
        QString("Filter: <a href=\"next\">%1 Zeilen</a> in %2 Projekten").arg(left).arg(expected));
    click(fixture, "stateToCheck");
    QTRY_VERIFY(counter->text().startsWith("Offen: "));
    QCOMPARE(shownLines(fixture), all);
    QCOMPARE(projectCount(fixture), projects);
    click(fixture, "stateToCheck");
    QCOMPARE(shownLines(fixture), toCheck.section(", ", 1));
}

void tst_LineStateFilter::severalStates()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    QVERIFY(fixture.window->editor()->selectProject(mixed));
    click(fixture, "stateToCheck");
    click(fixture, "stateNotFound");
    QCOMPARE(shownLines(fixture),
             linesOf(fixture, mixed, OpenLines::ToCheck | OpenLines::NotFound));
    click(fixture, "stateToCheck");
    QCOMPARE(shownLines(fixture), linesOf(fixture, mixed, OpenLines::NotFound));
}

void tst_LineStateFilter::otherProjectsAreFilteredToo()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    click(fixture, "stateProposed");
    QVERIFY(fixture.window->editor()->selectProject(equal));
    QCOMPARE(shownLines(fixture), linesOf(fixture, equal, OpenLines::Proposed));
    QVERIFY(!shownLines(fixture).isEmpty());
    const QString sibling = QStringLiteral("standardparts/bearings/din711.prj");
    QVERIFY(fixture.window->editor()->selectProject(sibling));
    QCOMPARE(shownLines(fixture), linesOf(fixture, sibling, OpenLines::Proposed));
}

void tst_LineStateFilter::theNextLineIsOfThatState()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    EditorArea *const editor = fixture.window->editor();
    const MappingDocument &document = *fixture.window->desk()->document();
    const int all = fixture.window->lines()->openLines().countOf(OpenLines::NotFound);
    click(fixture, "stateNotFound");
    QSet<QString> seen;
    QSet<QString> projects;
    for (int i = 0; i < all; ++i) {
        fixture.press(Qt::Key_F8);
        const LineRef at{editor->currentProject(), editor->currentLine()};
        QVERIFY(OpenLines(fixture.window->desk()->document()).kindOf(at) == OpenLines::NotFound);
        QVERIFY(fixture.window->editor()->shownLines().contains(at.line));
        seen.insert(QStringLiteral("%1 %2").arg(at.project.path, QString::number(at.line)));
        projects.insert(at.project.path);
    }
    QCOMPARE(seen.size(), all);
    QVERIFY(projects.size() > 1);
    QVERIFY(!document.isModified());
    fixture.press(Qt::Key_F8);
    QCOMPARE(fixture.window->status()->note(),
             QStringLiteral("Am Ende angekommen, weiter von vorn"));
    click(fixture, "stateNotFound");
    fixture.press(Qt::Key_F8);
    fixture.press(Qt::Key_F8, Qt::ShiftModifier);
    QVERIFY(fixture.window->lines()->openLines().kinds().testFlag(OpenLines::ToCheck));
}

void tst_LineStateFilter::decidedLinesCanBeWalkedToo()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    EditorArea *const editor = fixture.window->editor();
    QVERIFY(editor->goTo({{din933, {}, {}}, 3}));
    fixture.press(Qt::Key_V);
    QVERIFY(editor->selectProject(equal));
    click(fixture, "stateConfirmed");
    QCOMPARE(shownLines(fixture), QString());
    fixture.press(Qt::Key_F8);
    QCOMPARE(editor->currentPath(), din933);
    QCOMPARE(editor->currentLine(), 3);
    QCOMPARE(shownLines(fixture), QStringLiteral("3"));
    click(fixture, "stateConfirmed");
    click(fixture, "stateConflict");
    fixture.press(Qt::Key_F8);
    QCOMPARE(fixture.window->status()->note(),
             QStringLiteral("Keine Zeile ist in einem der gewählten Zustände"));
}

void tst_LineStateFilter::givesWayToAProjectThatItHides()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    EditorArea *const editor = fixture.window->editor();
    click(fixture, "stateToCheck");
    const int projects = projectCount(fixture);
    QVERIFY(!editor->selectProject("standardparts/no/such.prj"));
    QVERIFY(fixture.action("stateToCheck")->isChecked());
    QCOMPARE(projectCount(fixture), projects);
    QVERIFY(linesOf(fixture, equal, OpenLines::ToCheck).isEmpty());
    QVERIFY(editor->selectProject(equal));
    QCOMPARE(editor->currentPath(), equal);
    QVERIFY(!fixture.action("stateToCheck")->isChecked());
    QVERIFY(!editor->lineKinds());
    QCOMPARE(fixture.window->editor()->shownLines().size(), editor->sourceTable().getLineCount());
}

void tst_LineStateFilter::staysWhenTheEditorIsMadeAnew()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    EditorArea *const editor = fixture.window->editor();
    QVERIFY(editor->selectProject(din933));
    click(fixture, "stateToCheck");
    const QString lines = shownLines(fixture);
    const int projects = projectCount(fixture);
    fixture.press(Qt::Key_F5);
    QCOMPARE(editor->currentPath(), din933);
    QCOMPARE(shownLines(fixture), lines);
    QCOMPARE(projectCount(fixture), projects);
}

void tst_LineStateFilter::goesWithTheDocument()
{
    WindowFixture fixture;
    const QString file = fixture.mappingFile();
    fixture.open(file);
    click(fixture, "stateToCheck");
    QVERIFY(fixture.window->desk()->close());
    QVERIFY(!fixture.action("stateToCheck")->isChecked());
    QVERIFY(!fixture.action("stateToCheck")->isEnabled());
    // The choice is kept for the next one.
    fixture.open(file);
    QVERIFY(fixture.action("stateToCheck")->isChecked());
    QVERIFY(fixture.window->editor()->selectProject(equal));
    QVERIFY(!fixture.window->editor()->shownLines().isEmpty());
}

void tst_LineStateFilter::anEmptyTableIsTold()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    QVERIFY(fixture.window->editor()->selectProject(equal));
    click(fixture, "stateToCheck");
    QCOMPARE(shownLines(fixture), QString());
    QCOMPARE(fixture.window->status()->note(),
             QStringLiteral("Hier ist keine solche Zeile. F8 geht zur nächsten."));
    click(fixture, "stateToCheck");
    QCOMPARE(fixture.window->status()->note(), QString());
    QVERIFY(fixture.window->editor()->selectProject(din933));
    click(fixture, "stateToCheck");
    QCOMPARE(fixture.window->status()->note(), QString());
}

/// It is said of a table, as long as that is so.
void tst_LineStateFilter::whatIsToldOfATableGoesWithIt_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("isStill");
    QTest::newRow("to the next one") << Qt::Key_F8 << false;
    QTest::newRow("in the table") << Qt::Key_Down << true;
}

void tst_LineStateFilter::whatIsToldOfATableGoesWithIt()
{
    QFETCH(Qt::Key, key);
    QFETCH(bool, isStill);
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    QVERIFY(fixture.window->editor()->selectProject(equal));
    click(fixture, "stateNotFound");
    const QString told = fixture.window->status()->note();
    QVERIFY2(told.startsWith("Hier ist keine"), qPrintable(told));
    fixture.window->editor()->focusLines();
    fixture.press(key);
    QCOMPARE(fixture.window->editor()->currentPath() == equal, isStill);
    QCOMPARE(fixture.window->status()->note() == told, isStill);
}

void tst_LineStateFilter::whatIsToldOfATableGoesWithTheFilter()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    QVERIFY(fixture.window->editor()->selectProject(equal));
    click(fixture, "stateToCheck");
    QVERIFY(fixture.window->status()->note().startsWith("Hier ist keine"));
    fixture.press(Qt::Key_L, Qt::ControlModifier);
    auto *const lift = fixture.window->findChild<QPushButton *>("FilterClear");
    QTest::mouseClick(lift, Qt::LeftButton);
    QVERIFY(!fixture.action("stateToCheck")->isChecked());
    QCOMPARE(fixture.window->status()->note(), QString());
    // What was said since stays.
    click(fixture, "stateToCheck");
    fixture.window->status()->showNote("something else");
    click(fixture, "stateToCheck");
    QCOMPARE(fixture.window->status()->note(), QStringLiteral("something else"));
}

void tst_LineStateFilter::namesItselfInQuestions()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    QVERIFY(fixture.window->editor()->selectProject(din933));
    click(fixture, "stateToCheck");
    const QString shown = QStringLiteral("des Projekts: %1 von %2.")
                              .arg(fixture.window->editor()->shownLines().size())
                              .arg(fixture.window->editor()->sourceTable().getLineCount());
    QString details;
    ModalScript script;
    script.then([&](QWidget *dialog) {
        details = dialog->property("informativeText").toString();
        dialog->close();
    });
    fixture.action("linesConfirm")->trigger();
    QVERIFY(script.isDone());
    QVERIFY2(details.contains(shown) && details.contains("Filter: Zu prüfen."),
             qPrintable(details));
}

void tst_LineStateFilter::columnFiltersStillHoldTheWalk()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    EditorArea *const editor = fixture.window->editor();
    QVERIFY(editor->selectProject(din933));
    click(fixture, "stateToCheck");
    QVERIFY(!editor->shown().isFiltered);
    VkTableModel *const model = fixture.sourceView()->model();
    const int column = model->statusColumnCount();
    const QString first = model->index(0, column).data().toString();
    model->setQuickFilter(model->variable(column).getVarId(), "=" + first);
    QVERIFY(editor->shown().isFiltered);
}

void tst_LineStateFilter::english()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    WorkbenchSettings::Values values = fixture.settings->values();
    values.language = "en";
    fixture.settings->setValues(values);
    QTRY_COMPARE(fixture.action("stateToCheck")->text(),
                 counted(fixture, "To check", OpenLines::ToCheck));
    QCOMPARE(fixture.window->findChild<QMenu *>("statesMenu")->title(),
             QStringLiteral("Only &lines"));
    QCOMPARE(fixture.window->findChild<QToolBar *>("statesToolBar")->windowTitle(),
             QStringLiteral("States of the lines"));
}

QTEST_MAIN(tst_LineStateFilter)
#include "tst_LineStateFilter.moc"
