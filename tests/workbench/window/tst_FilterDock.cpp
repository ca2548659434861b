#include "WindowFixture.h"

#include <workbench/review/FilterDock.h>
#include <workbench/review/PatternText.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/tasks/FilterWork.h>
#include <workbench/session/tasks/OpenLines.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/editor/FilterCommands.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <mapping/view/CatalogMappingWidget.h>

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

using VelkRelease::LineFilter;
using VelkRelease::LineTrait;

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

/// Digits are grouped as in the tool bar; -1 for any other sign between them.
int numberIn(const QString &text)
{
    bool isNumber = false;
    const int number = QLocale().toInt(text, &isNumber);
    return isNumber ? number : -1;
}

} // namespace

/// The filter over all lines of a release, by keys and mouse.
class tst_FilterDock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kindsBearTheWordsOfThePatternList_data();
    void kindsBearTheWordsOfThePatternList();
    void cleanup();

    void reasonsWithNumbers();
    void treeTableAndCounterFollow();
    void combinedAndNot();
    void rowsKeepTheirPlaces();
    void rowsGoWithTheRelease();
    void statesAreTheSwitches();
    void nothingFits();
    void givesWay();
    void walksTheFilter();
    void byWhom();
    void isKept();

private:
    static FilterCommands *filters(const WindowFixture &fixture)
    {
        return fixture.window->filters();
    }
    static void show(WindowFixture &fixture)
    {
        fixture.open(fixture.mappingFile());
        fixture.press(Qt::Key_L, Qt::ControlModifier);
        QTRY_VERIFY(filters(fixture)->work()->isKnown());
    }
    static QTreeWidget *list(const WindowFixture &fixture)
    {
        return fixture.window->findChild<QTreeWidget *>("FilterList");
    }
    static QTreeWidgetItem *item(const WindowFixture &fixture, LineTrait trait, const QString &text)
    {
        QTreeWidgetItem *const group = list(fixture)->topLevelItem(int(trait));
        for (int i = 0; i < group->childCount(); ++i) {
            if (group->child(i)->text(0) == text)
                return group->child(i);
        }
        return nullptr;
    }
    /// By keyboard.
    static void tick(const WindowFixture &fixture, LineTrait trait, const QString &text)
    {
        QTreeWidgetItem *const found = item(fixture, trait, text);
        QVERIFY2(found, qPrintable(text));
        list(fixture)->setFocus();
        list(fixture)->setCurrentItem(found);
        QTest::keyClick(list(fixture), Qt::Key_Space);
        QCoreApplication::processEvents();
    }
    static int number(const WindowFixture &fixture, LineTrait trait, const QString &text)
    {
        const QTreeWidgetItem *const found = item(fixture, trait, text);
        return found ? numberIn(found->text(1)) : -1;
    }
    static QString counter(const WindowFixture &fixture)
    {
        return fixture.window->status()->findChild<QLabel *>("statusOpen")->text();
    }
    /// All lines of the release that the filter accepts.
    static int hits(const WindowFixture &fixture)
    {
        return filters(fixture)->work()->numbers().lines;
    }

    /// One window, its filter empty, for all tests that decide nothing: opening one takes a second.
    WindowFixture &untouched()
    {
        if (!m_untouched) {
            m_untouched = std::make_unique<WindowFixture>();
            show(*m_untouched);
        }
        return *m_untouched;
    }
    /// Two windows would take each other's keys.
    WindowFixture &anew()
    {
        m_untouched.reset();
        m_own = std::make_unique<WindowFixture>();
        show(*m_own);
        return *m_own;
    }

    std::unique_ptr<WindowFixture> m_untouched;
    std::unique_ptr<WindowFixture> m_own;
};

void tst_FilterDock::cleanup()
{
    m_own.reset();
    if (m_untouched)
        filters(*m_untouched)->work()->setFilter({});
}

void tst_FilterDock::reasonsWithNumbers()
{
    WindowFixture &fixture = untouched();
    QCOMPARE(fixture.window->findChild<QLabel *>("FilterSum")->text(), "Kein Filter: alle Zeilen");
    // All open lines have one reason.
    const OpenLines open(fixture.window->desk()->document());
    int sum = 0;
    const QTreeWidgetItem *const reasons = list(fixture)->topLevelItem(int(LineTrait::Reason));
    for (int i = 1; i < reasons->childCount(); ++i) {
        if (reasons->child(i)->text(0) != "(nichts davon)")
            sum += numberIn(reasons->child(i)->text(1));
    }
    QCOMPARE(sum, open.count());
    QCOMPARE(number(fixture, LineTrait::State, "Zu prüfen"), open.countOf(OpenLines::ToCheck));
    QCOMPARE(number(fixture, LineTrait::State, "Ohne Ziel"), open.countOf(OpenLines::NotFound));
    QVERIFY(number(fixture, LineTrait::State, "Automatisch") > 1000);
}

void tst_FilterDock::treeTableAndCounterFollow()
{
    WindowFixture &fixture = untouched();
    const int unlike = number(fixture, LineTrait::Reason, "zu unähnlich");
    QVERIFY(unlike > 0);
    tick(fixture, LineTrait::Reason, "zu unähnlich");
    QCOMPARE(hits(fixture), unlike);
    const FilterWork::Numbers numbers = filters(fixture)->work()->numbers();
    QTRY_VERIFY2(
        counter(fixture).startsWith("Filter: ") &&
            counter(fixture).contains(QStringLiteral(">%1 Zeilen<").arg(unlike)) &&
            counter(fixture).contains(QStringLiteral("in %1 Projekten").arg(numbers.projects)),
        qPrintable(counter(fixture)));
    // The projects that are shown are those that have any, with their lines alone.
    const auto chosen = filters(fixture)->work()->lines();
    for (auto project = chosen.cbegin(); project != chosen.cend(); ++project) {
        QVERIFY(fixture.window->editor()->selectProject(project.key().path));
        QList<int> shown = fixture.window->editor()->shownLines();
        std::ranges::sort(shown);
        QCOMPARE(std::vector<int>(shown.begin(), shown.end()), project.value());
    }
    QTest::mouseClick(fixture.window->findChild<QPushButton *>("FilterClear"), Qt::LeftButton);
    QTRY_VERIFY(counter(fixture).startsWith("Offen: "));
    QVERIFY(!fixture.window->editor()->editor()->linesAreFiltered());
}

void tst_FilterDock::combinedAndNot()
{
    WindowFixture &fixture = untouched();
    tick(fixture, LineTrait::State, "Zu prüfen");
    const int toCheck = hits(fixture);
    const QTreeWidgetItem *const columns = list(fixture)->topLevelItem(int(LineTrait::Column));
    QVERIFY(columns->childCount() > 1);
    const QString column = columns->child(1)->text(0);
    const int differing = number(fixture, LineTrait::Column, column);
    QVERIFY(differing > 0 && differing < toCheck);
    tick(fixture, LineTrait::Column, column);
    QCOMPARE(hits(fixture), differing);
    tick(fixture, LineTrait::Column, "nicht die gewählten");
    QCOMPARE(hits(fixture), toCheck - differing);
}

void tst_FilterDock::walksTheFilter()
{
    WindowFixture &fixture = anew();
    tick(fixture, LineTrait::Reason, "zu unähnlich");
    tick(fixture, LineTrait::Column, "h"); // few lines, of two projects
    QCOMPARE(filters(fixture)->work()->numbers().projects, 2);
    const int lines = hits(fixture);
    QSet<QPair<QString, int>> seen;
    for (int i = 0; i < lines; ++i) {
        fixture.press(Qt::Key_F8);
        const EditorArea *const editor = fixture.window->editor();
        QVERIFY(
            filters(fixture)->work()->accepts({editor->currentProject(), editor->currentLine()}));
        seen.insert({editor->currentPath(), editor->currentLine()});
    }
    QCOMPARE(seen.size(), lines);
    // A decision takes its line out, and leads to the next one.
    const LineRef first{fixture.window->editor()->currentProject(),
                        fixture.window->editor()->currentLine()};
    fixture.press(Qt::Key_X, Qt::ControlModifier);
    QTRY_COMPARE(hits(fixture), lines - 1);
    QVERIFY(!filters(fixture)->work()->accepts(first));
    fixture.press(Qt::Key_F8, Qt::ShiftModifier);
    const EditorArea *const editor = fixture.window->editor();
    QVERIFY(filters(fixture)->work()->accepts({editor->currentProject(), editor->currentLine()}));
}

void tst_FilterDock::byWhom()
{
    WindowFixture &fixture = anew();
    QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
    fixture.press(Qt::Key_V);
    QTRY_COMPARE(fixture.confirmedLines(), 1);
    const QTreeWidgetItem *const authors = list(fixture)->topLevelItem(int(LineTrait::Author));
    QTRY_COMPARE(authors->childCount(), 3); // "not", nobody, and who
    const QString self = authors->child(1)->text(0) == "niemand" ? authors->child(2)->text(0)
                                                                 : authors->child(1)->text(0);
    tick(fixture, LineTrait::Author, self);
    QCOMPARE(hits(fixture), 1);
    QVERIFY(fixture.window->editor()->selectProject(din933));
    QCOMPARE(fixture.window->editor()->shownLines(), QList<int>{3});
}

/// One choice in two places.
/// A tick leaves all rows where they are, those too that have no line any more, and the keys go on
/// from where the mouse was.
void tst_FilterDock::rowsKeepTheirPlaces()
{
    WindowFixture &fixture = untouched();
    const auto texts = [&] {
        QStringList rows;
        for (QTreeWidgetItemIterator row(list(fixture)); *row; ++row)
            rows << (*row)->text(0);
        return rows;
    };
    const QStringList before = texts();
    QTreeWidgetItem *const notFound = item(fixture, LineTrait::State, "Ohne Ziel");
    const QRect place = list(fixture)->visualItemRect(notFound);
    QTest::mouseClick(list(fixture)->viewport(), Qt::LeftButton, {},
                      QPoint(place.left() + 10, place.center().y()));
    QTRY_VERIFY(hits(fixture) > 0);
    QCOMPARE(notFound->checkState(0), Qt::Checked);
    QCOMPARE(texts(), before);
    QCOMPARE(number(fixture, LineTrait::Difference, "(nichts davon)"), hits(fixture));
    QVERIFY(list(fixture)->currentItem() == notFound);
}

/// Who worked on a file that is closed, and what differs in it, says nothing of the next one.
void tst_FilterDock::rowsGoWithTheRelease()
{
    const WindowFixture &fixture = anew();
    const auto rowsOf = [&](LineTrait trait) {
        return list(fixture)->topLevelItem(int(trait))->childCount();
    };
    QVERIFY(item(fixture, LineTrait::Difference, "(nichts davon)"));
    const int states = rowsOf(LineTrait::State);
    QVERIFY(rowsOf(LineTrait::Author) > 1);
    fixture.action("fileClose")->trigger();
    QVERIFY(!filters(fixture)->work()->isKnown());
    QTRY_VERIFY(!item(fixture, LineTrait::Difference, "(nichts davon)"));
    QCOMPARE(rowsOf(LineTrait::Author), 1); // "not"
    QCOMPARE(rowsOf(LineTrait::State), states);
}

void tst_FilterDock::statesAreTheSwitches()
{
    WindowFixture &fixture = anew();
    fixture.action("stateNotFound")->trigger();
    QCOMPARE(item(fixture, LineTrait::State, "Ohne Ziel")->checkState(0), Qt::Checked);
    tick(fixture, LineTrait::State, "Ohne Ziel");
    QVERIFY(!fixture.action("stateNotFound")->isChecked());
    tick(fixture, LineTrait::State, "Zu prüfen");
    QVERIFY(fixture.action("stateToCheck")->isChecked());
    QCOMPARE(fixture.window->editor()->lineKinds(), OpenLines::Kinds(OpenLines::ToCheck));
    tick(fixture, LineTrait::State, "nicht die gewählten");
    QVERIFY(!fixture.action("stateToCheck")->isChecked());
    QCOMPARE(fixture.window->editor()->lineKinds(), OpenLines::Kinds());
    QVERIFY(fixture.window->editor()->editor()->linesAreFiltered() ||
            fixture.window->editor()->currentPath().isEmpty());
}

void tst_FilterDock::nothingFits()
{
    WindowFixture &fixture = untouched();
    QVERIFY(fixture.window->editor()->selectProject(din933));
    LineFilter filter;
    filter.of(LineTrait::Author) = {{"nobody of this name"}, false};
    filters(fixture)->work()->setFilter(filter);
    QVERIFY(fixture.window->editor()->shownLines().isEmpty());
    QTRY_COMPARE(counter(fixture), "Filter: keine Zeile");
    // The empty table says why and what to do.
    const auto *const empty =
        fixture.window->findChild<QWidget *>("sourceView")->findChild<QLabel *>("emptyTable");
    QVERIFY(empty->isVisible() && empty->height() > empty->sizeHint().height() / 2);
    QCOMPARE(empty->text(),
             QString("Keine Zeile dieses Projekts ist im Filter.\n„Filter über alle Zeilen (%1)“ "
                     "öffnen und „Filter aufheben“ wählen, um wieder alle Zeilen zu sehen.")
                 .arg(QKeySequence("Ctrl+L").toString(QKeySequence::NativeText)));
    const auto *const emptyTree = fixture.window->findChild<QLabel *>("emptyTree");
    QVERIFY(emptyTree->isVisible());
    QVERIFY2(emptyTree->text().startsWith("Kein Projekt hat eine Zeile im Filter.\n„Filter über "
                                          "alle Zeilen (") &&
                 emptyTree->text().contains("„Filter aufheben“ wählen"),
             qPrintable(emptyTree->text()));
    fixture.press(Qt::Key_F8);
    QCOMPARE(fixture.window->status()->note(), "Keine Zeile ist mehr im Filter");
    // It can be taken away where it stands.
    tick(fixture, LineTrait::Author, "nobody of this name");
    QVERIFY(!fixture.window->editor()->shownLines().isEmpty());
    QVERIFY(!empty->isVisible());
    QVERIFY(!emptyTree->isVisible());
}

void tst_FilterDock::isKept()
{
    WindowFixture &fixture = anew();
    tick(fixture, LineTrait::Reason, "zu unähnlich");
    const int lines = hits(fixture);
    const QString file = fixture.window->desk()->document()->mappingFile();
    fixture.closeWindow();
    fixture.makeWindow();
    fixture.open(file);
    QTRY_VERIFY(filters(fixture)->work()->isActive());
    QCOMPARE(hits(fixture), lines);
    QTRY_VERIFY(counter(fixture).startsWith("Filter: "));
}

/// A project without such a line is wanted all the same.
void tst_FilterDock::givesWay()
{
    WindowFixture &fixture = untouched();
    LineFilter filter;
    filter.of(LineTrait::Author) = {{"nobody of this name"}, false};
    filters(fixture)->work()->setFilter(filter);
    QVERIFY(fixture.window->editor()->selectProject(din933));
    QVERIFY(filters(fixture)->work()->filter().isEmpty());
    QVERIFY(!fixture.window->editor()->shownLines().isEmpty());
    QCOMPARE(fixture.window->status()->note(),
             "Der Filter ist aufgehoben: das Projekt hat keine Zeile darin");
}

void tst_FilterDock::kindsBearTheWordsOfThePatternList_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("German") << "de";
    QTest::newRow("English") << "en";
    QTest::newRow("Finnish") << "fi";
}

/// One thing has one word.
void tst_FilterDock::kindsBearTheWordsOfThePatternList()
{
    QFETCH(QString, language);
    const WindowFixture fixture;
    WorkbenchSettings::Values values = fixture.settings->values();
    values.language = language;
    fixture.settings->setValues(values);
    const auto text = [](const char *value) {
        return FilterDock::valueText(VelkRelease::LineTrait::Difference, value);
    };
    const VelkRelease::ValueChange::Words words = PatternText::words();
    QCOMPARE(text("nearNumber"), words.nearNumber);
    QCOMPARE(text("otherNumber"), words.otherNumber);
    QCOMPARE(text("wording"), words.wording);
    QCOMPARE(text("notation"), words.notation);
    QCOMPARE(text("added"), words.added);
    QCOMPARE(text("missing"), words.missing);
    QCOMPARE(text("incomparable"), PatternText::incomparable());
    QVERIFY(!text("replacement").isEmpty() && text("numberMap") != text("replacement"));
}

QTEST_MAIN(tst_FilterDock)
#include "tst_FilterDock.moc"
