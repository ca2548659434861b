#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcoregui/table/VkTableView.h>
#include <gui/application/PCommandKeys.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <workbench/locator/LocatorDialog.h>
#include <workbench/locator/LocatorModel.h>
#include <workbench/locator/LocatorSearch.h>
#include <workbench/session/tasks/OpenLines.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/settings/KeyedActions.h>
#include <workbench/window/settings/KeysDialog.h>
#include <workbench/window/settings/WorkbenchActions.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QHeaderView>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTreeView>
#include <QTreeWidget>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

ReleaseMappingC releaseOf(const QStringList &paths)
{
    ReleaseMappingC release;
    release.setSourceDate(QStringLiteral("2023-01-31"));
    for (const QString &path : paths) {
        PrjMappingTargetC target;
        target.setValid(true);
        target.addLineId(12, 3, PRJMAPPING::ToCheck, QString());
        PrjMappingC mapping;
        mapping.setSourcePath(path);
        mapping.setSourceVersion(QStringLiteral("v1"));
        mapping.addTarget(target);
        release.addMapping(mapping);
    }
    return release;
}

} // namespace

/// The locator and the list of keys, by real keys.
class tst_Locator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void searchFinds_data();
    void searchFinds();
    void linesLeaveRoom();
    void linesOfATable();
    void laterSearchOvertakes();
    void manyProjects();
    void goesToAProject();
    void goesToALine();
    void goesToALineOfAnotherProject();
    void runsACommand();
    void openSettings();
    void withoutADocument();
    void escapeLeavesEverything();
    void enterBeforeTheHits();
    void everyCommandHasAName();
    void standardKeysDoNotClash();
    void keysOfLines();
    void keysOfTables();
    void keysByTheDialog();
    void clashesAreTold();
    void keyFieldIsLeftBackwards();
    void keyNamesAreDifferent();
    void keysAreFiltered();

private:
    void start();
    [[nodiscard]] LocatorDialog *locate(const QString &words) const;
    [[nodiscard]] static QStringList rows(const LocatorDialog *dialog);

    std::unique_ptr<WindowFixture> m_fixture;
};

void tst_Locator::cleanup()
{
    m_fixture.reset();
    PCommandKeys::instance().setChoice({});
}

void tst_Locator::start()
{
    m_fixture = std::make_unique<WindowFixture>();
    m_fixture->open(m_fixture->mappingFile());
}

/// The hits are there when it returns.
LocatorDialog *tst_Locator::locate(const QString &words) const
{
    m_fixture->press(Qt::Key_K, Qt::ControlModifier);
    auto *const dialog = m_fixture->window->findChild<LocatorDialog *>();
    if (!dialog)
        return nullptr;
    QSignalSpy found(dialog->findChild<LocatorModel *>(), &QAbstractItemModel::modelReset);
    QTest::keyClicks(dialog->findChild<QLineEdit *>("locatorInput"), words);
    // One for each key that was not overtaken; the last one counts.
    const auto *const note = dialog->findChild<QLabel *>("locatorNote");
    const bool isThere = QTest::qWaitFor(
        [&] { return found.wait(50) ? false : !found.isEmpty() && !note->text().isEmpty(); });
    return isThere ? dialog : nullptr;
}

QStringList tst_Locator::rows(const LocatorDialog *dialog)
{
    QStringList rows;
    const auto *const model = dialog->findChild<LocatorModel *>();
    for (int row = 0; row < model->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model->columnCount(); ++column)
            cells << model->index(row, column).data().toString();
        rows << cells.join('|');
    }
    return rows;
}

void tst_Locator::searchFinds_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("found");
    QTest::newRow("project") << "c b"
                             << "P a/b/c.prj";
    QTest::newRow("kinds") << "save"
                           << "P a/saved.prj, C save, S savecopy";
    QTest::newRow("better ones first") << "copy"
                                       << "S savecopy";
    QTest::newRow("line of a project") << "c.prj 12"
                                       << "L a/b/c.prj 12";
    QTest::newRow("line that is not there") << "c.prj 13"
                                            << "";
    QTest::newRow("number of a line") << "7"
                                      << "L here.prj 7, L here.prj 17";
    QTest::newRow("name of a line") << "m8"
                                    << "L here.prj 7";
    QTest::newRow("not there") << "zzz"
                               << "";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_Locator::searchFinds()
{
    const ProjectId here{"here.prj", "v1", {}};
    LocatorSearch search;
    search.setRelease(releaseOf({"a/b/c.prj", "a/saved.prj", "here.prj"}));
    search.setItems({{.kind = LocatorItem::Command, .title = "save", .id = "save"},
                     {.kind = LocatorItem::Setting, .title = "savecopy", .id = "copy"},
                     {.kind = LocatorItem::Line, .title = "17 M10", .line = {here, 17}},
                     {.kind = LocatorItem::Line, .title = "7 M8", .line = {here, 7}}});
    QSignalSpy found(&search, &LocatorSearch::found);
    QFETCH(QString, words);
    search.find(words);
    QVERIFY(found.wait());
    const auto hits = found.at(0).at(0).value<LocatorHits>();
    QCOMPARE(hits.words, words);
    QCOMPARE(hits.count, int(hits.items.size()));
    QStringList texts;
    for (const LocatorItem &item : hits.items) {
        const char *const kinds[]{"L ", "P ", "C ", "S "};
        QString text =
            kinds[item.kind] + (item.line.project.isValid() ? item.line.project.path : item.title);
        if (item.line.line >= 0)
            text += ' ' + QString::number(item.line.line);
        texts << text;
    }
    QTEST(texts.join(", "), "found");
}

/// A table whose lines all have the word in their names.
void tst_Locator::linesLeaveRoom()
{
    LocatorSearch search;
    search.setRelease(releaseOf({"a/din933.prj"}));
    QList<LocatorItem> items;
    for (int line = 1; line <= 80; ++line)
        items << LocatorItem{.kind = LocatorItem::Line,
                             .title = QStringLiteral("%1 DIN 933").arg(line),
                             .line = {{"here.prj", {}, {}}, line}};
    search.setItems(items);
    QSignalSpy found(&search, &LocatorSearch::found);
    search.find("933");
    QVERIFY(found.wait());
    const auto hits = found.at(0).at(0).value<LocatorHits>();
    QCOMPARE(hits.count, 81);
    QCOMPARE(hits.items.size(), LocatorSearch::Limit);
    QCOMPARE(hits.items.at(9).kind, LocatorItem::Line);
    QCOMPARE(hits.items.at(10).kind, LocatorItem::Project);
    QCOMPARE(hits.items.at(11).line.line, 11);
}

/// They may be many: taken in once, and not by the thread of the window.
void tst_Locator::linesOfATable()
{
    LocatorSearch search;
    int times = 0;
    const QThread *thread = nullptr;
    search.setItems({{.kind = LocatorItem::Command, .title = "m8 save", .id = "save"}}, [&] {
        ++times;
        thread = QThread::currentThread();
        return LocatorLines{.project = {"here.prj", "v1", {}},
                            .numbers = {7, 17, 70},
                            .names = {"M8 longest of all", "M10", "M8 long"}};
    });
    QCOMPARE(times, 0);
    QSignalSpy found(&search, &LocatorSearch::found);
    search.find("m8");
    QVERIFY(found.wait());
    const auto linesAt = [&](int at) {
        QList<int> lines;
        for (const LocatorItem &item : found.at(at).at(0).value<LocatorHits>().items) {
            if (item.kind == LocatorItem::Line)
                lines += item.line.line;
        }
        return lines;
    };
    QCOMPARE(linesAt(0), (QList<int>{70, 7}));
    QCOMPARE(found.at(0).at(0).value<LocatorHits>().count, 3);
    search.find("7");
    QVERIFY(found.wait());
    // The line of that number first, however long its name.
    QCOMPARE(linesAt(1), (QList<int>{7, 70, 17}));
    search.find("07");
    QVERIFY(found.wait());
    QVERIFY(linesAt(2).isEmpty());
    QCOMPARE(times, 1);
    QVERIFY(thread != QThread::currentThread());
}

void tst_Locator::laterSearchOvertakes()
{
    LocatorSearch search;
    QStringList paths;
    for (int i = 0; i < 5000; ++i)
        paths << QStringLiteral("part_%1.prj").arg(i);
    search.setRelease(releaseOf(paths));
    QSignalSpy found(&search, &LocatorSearch::found);
    for (const char *words : {"p", "pa", "par", "part_1"})
        search.find(words);
    QVERIFY(found.wait());
    QVERIFY(!found.wait(100));
    QCOMPARE(found.size(), 1);
    const auto hits = found.at(0).at(0).value<LocatorHits>();
    QCOMPARE(hits.words, QString("part_1"));
    QCOMPARE(hits.items.size(), LocatorSearch::Limit);
    QCOMPARE(hits.count, 1111);
    QCOMPARE(hits.items.at(0).title, QString("part_1.prj"));
    // The same paths again keep what was made of them, another release does not.
    search.setRelease(releaseOf({"new.prj"}));
    search.find("new");
    QVERIFY(found.wait());
    QCOMPARE(found.last().at(0).value<LocatorHits>().count, 1);
}

/// The window is free while it is sought.
void tst_Locator::manyProjects()
{
    auto search = std::make_unique<LocatorSearch>();
    ReleaseMappingC release;
    for (int i = 0; i < 20000; ++i) {
        PrjMappingC mapping;
        mapping.setSourcePath(QStringLiteral("catalog/part_%1.prj").arg(i));
        release.appendMapping(mapping);
    }
    search->setRelease(release);
    QSignalSpy found(search.get(), &LocatorSearch::found);
    search->find("part");
    QVERIFY(found.isEmpty()); // comes by the event loop alone
    search->find("cat 1999");
    QVERIFY(found.wait());
    QCOMPARE(found.at(0).at(0).value<LocatorHits>().count, 12);
    search->find("part");
    search.reset(); // while it seeks
    QCOMPARE(found.size(), 1);
}

void tst_Locator::goesToAProject()
{
    start();
    LocatorDialog *const dialog = locate("933 scr");
    QVERIFY(dialog);
    const QAbstractItemModelTester tester(dialog->findChild<LocatorModel *>());
    QCOMPARE(rows(dialog).value(0), QString("din933.prj|standardparts/screws|Projekt"));
    QTest::keyClick(dialog->findChild<QLineEdit *>("locatorInput"), Qt::Key_Return);
    QTRY_COMPARE(m_fixture->window->editor()->currentPath(), din933);
    QTRY_VERIFY(!m_fixture->window->findChild<LocatorDialog *>());
    // Its first line that needs a decision has the keys.
    QTRY_COMPARE(m_fixture->window->editor()->currentLine(), 1);
    QTRY_VERIFY(
        m_fixture->window->editor()->editor()->isAncestorOf(m_fixture->window->focusWidget()));
    EditorArea *const editor = m_fixture->window->editor();
    QVERIFY(editor->showProject("standardparts/screws/iso4014.prj"));
    QVERIFY(!editor->updatesEnabled()); // painted in a turn of its own
    QTRY_VERIFY(editor->updatesEnabled());
    const OpenLines::Shown rows = m_fixture->window->editor()->shown();
    const PrjMappingC shown = m_fixture->window->editor()->editor()->currentProject();
    const std::vector<int> open =
        OpenLines::linesOf(shown, OpenLines::Kinds(OpenLines::NeedDecision));
    QVERIFY(!open.empty() && open.front() != rows.lineAt(0));
    QCOMPARE(m_fixture->window->editor()->currentLine(), open.front());
}

void tst_Locator::goesToALine()
{
    start();
    QVERIFY(m_fixture->window->editor()->selectProject(din933));
    LocatorDialog *const dialog = locate("7");
    QVERIFY(dialog);
    const QStringList shown = rows(dialog);
    QVERIFY2(shown.value(0).startsWith("Zeile 7 ") && shown.value(0).endsWith(din933 + "|Zeile"),
             qPrintable(shown.value(0)));
    // Down, up and a page lead through the list; the field keeps the keys.
    auto *const input = dialog->findChild<QLineEdit *>("locatorInput");
    const auto *const list = dialog->findChild<QTreeView *>("locatorList");
    QTest::keyClick(input, Qt::Key_Down);
    QCOMPARE(list->currentIndex().row(), 1);
    QTest::keyClick(input, Qt::Key_PageDown);
    QCOMPARE(list->currentIndex().row(), 11);
    QTest::keyClick(input, Qt::Key_PageUp);
    QTest::keyClick(input, Qt::Key_Up);
    QTest::keyClick(input, Qt::Key_Up);
    QCOMPARE(list->currentIndex().row(), 0);
    QVERIFY(input->hasFocus());
    QTest::keyClick(input, Qt::Key_Return);
    QTRY_COMPARE(m_fixture->window->editor()->currentLine(), 7);
}

void tst_Locator::goesToALineOfAnotherProject()
{
    start();
    QVERIFY(m_fixture->window->editor()->selectProject("standardparts/screws/iso4014.prj"));
    LocatorDialog *const dialog = locate("din933 12");
    QVERIFY(dialog);
    QCOMPARE(rows(dialog).value(0), "Zeile 12|" + din933 + "|Zeile");
    // The list takes the keys too.
    auto *const list = dialog->findChild<QTreeView *>("locatorList");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Enter);
    QTRY_COMPARE(m_fixture->window->editor()->currentLine(), 12);
    QCOMPARE(m_fixture->window->editor()->currentPath(), din933);
}

void tst_Locator::runsACommand()
{
    start();
    LocatorDialog *const dialog = locate("meldungen");
    QVERIFY(dialog);
    QVERIFY2(rows(dialog).value(0).endsWith("|Befehl"), qPrintable(rows(dialog).join('\n')));
    const QAction *const log = m_fixture->action("viewLog");
    QVERIFY(!log->isChecked());
    QTest::mouseClick(dialog->findChild<QTreeView *>("locatorList")->viewport(), Qt::LeftButton, {},
                      QPoint(20, 5));
    QTRY_VERIFY(log->isChecked());
    // With its key; what cannot be done now cannot be chosen.
    LocatorDialog *const other = locate("wiederhol");
    QVERIFY(other);
    QCOMPARE(rows(other).value(0), QString("Wiederholen|Ctrl+Shift+Z|Befehl"));
    QTest::keyClick(other->findChild<QLineEdit *>("locatorInput"), Qt::Key_Return);
    QVERIFY(other->isVisible());
}

void tst_Locator::openSettings()
{
    start();
    LocatorDialog *const dialog = locate("schriftg");
    QVERIFY(dialog);
    QCOMPARE(rows(dialog).value(0), QString("Schriftgröße||Einstellung"));
    QString focus;
    ModalScript user;
    user.then([&focus](QWidget *settings) {
        if (QTest::qWaitForWindowActive(settings) && settings->focusWidget())
            focus = settings->objectName() + '/' + settings->focusWidget()->objectName();
        QTest::keyClick(settings, Qt::Key_Escape);
    });
    // The script would take the locator for its dialog.
    dialog->setWindowModality(Qt::NonModal);
    QTest::keyClick(dialog->findChild<QLineEdit *>("locatorInput"), Qt::Key_Return);
    QTRY_VERIFY(user.isDone());
    QCOMPARE(focus, QString("SettingsDialog/font"));
}

void tst_Locator::withoutADocument()
{
    m_fixture = std::make_unique<WindowFixture>();
    LocatorDialog *dialog = locate("din933");
    QVERIFY(dialog);
    QVERIFY(rows(dialog).isEmpty());
    QCOMPARE(dialog->findChild<QLabel *>("locatorNote")->text(), QString("Nichts gefunden"));
    auto *const input = dialog->findChild<QLineEdit *>("locatorInput");
    QTest::keyClick(input, Qt::Key_Return);
    QVERIFY(dialog->isVisible());
    input->clear();
    QTRY_VERIFY(dialog->findChild<QLabel *>("locatorNote")->text().startsWith("Teile der Wörter"));
}

void tst_Locator::escapeLeavesEverything()
{
    start();
    QVERIFY(m_fixture->window->editor()->selectProject(din933));
    LocatorDialog *const dialog = locate("iso");
    QVERIFY(dialog);
    QVERIFY(!rows(dialog).isEmpty());
    QTest::keyClick(dialog->findChild<QLineEdit *>("locatorInput"), Qt::Key_Escape);
    QTRY_VERIFY(!m_fixture->window->findChild<LocatorDialog *>());
    QCOMPARE(m_fixture->window->editor()->currentPath(), din933);
}

void tst_Locator::enterBeforeTheHits()
{
    start();
    m_fixture->press(Qt::Key_K, Qt::ControlModifier);
    auto *const input = m_fixture->window->findChild<QLineEdit *>("locatorInput");
    QVERIFY(input);
    QTest::keyClicks(input, "din933 12");
    QTest::keyClick(input, Qt::Key_Return);
    QTRY_COMPARE(m_fixture->window->editor()->currentLine(), 12);
    QCOMPARE(m_fixture->window->editor()->currentPath(), din933);
}

void tst_Locator::everyCommandHasAName()
{
    start();
    const KeyedActions *const names = m_fixture->window->keyedActions();
    QStringList seen;
    for (const PCommandKeys::Command &command : PCommandKeys::instance().commands()) {
        const QString name = names->nameOf(command.id);
        QVERIFY2(!name.isEmpty() && name != command.id, qPrintable(command.id));
        seen << command.id;
    }
    QVERIFY(seen.size() > WorkbenchActions::CommandCount + 14 + 10);
    for (const char *id : {"lineConfirm", "lineRemove", "lineRemoveConfirm", "tableFind", "goNext",
                           "stateToCheck", "LinkDbLogin", "viewLog"})
        QVERIFY2(seen.contains(id), id);
    QCOMPARE(KeyedActions::plain("&Öffnen..."), QString("Öffnen"));
    QCOMPARE(KeyedActions::plain("a && b …"), QString("a & b"));
}

void tst_Locator::standardKeysDoNotClash()
{
    start();
    const PCommandKeys &keys = PCommandKeys::instance();
    for (const PCommandKeys::Command &command : keys.commands()) {
        for (const QKeySequence &key : command.standard) {
            const auto clashes = keys.clashesOf({{command.id, key}});
            QVERIFY2(clashes.isEmpty(), qPrintable(command.id + ' ' + key.toString()));
        }
    }
}

void tst_Locator::keysOfLines()
{
    start();
    QVERIFY(m_fixture->window->editor()->goTo({{din933, {}, {}}, 3}) ||
            (m_fixture->window->editor()->selectProject(din933) &&
             m_fixture->window->editor()->selectLine(3)));
    const auto button = [this](const char *name) {
        return m_fixture->window->findChild<QPushButton *>(QLatin1String(name));
    };
    QVERIFY(button("btnRemoveLine")->toolTip().endsWith("(x)"));
    WorkbenchSettings::Values values = m_fixture->settings->values();
    values.keys = {{"lineRemove", QKeySequence("F12")}, {"lineRemoveConfirm", QKeySequence()}};
    m_fixture->settings->setValues(values);
    QCOMPARE(button("btnRemoveLine")->shortcut(), QKeySequence("F12"));
    QVERIFY2(button("btnRemoveLine")->toolTip().endsWith("(F12)"),
             qPrintable(button("btnRemoveLine")->toolTip()));

    QVERIFY(button("btnRemoveVerifyLine")->shortcut().isEmpty());
    QVERIFY(!button("btnRemoveVerifyLine")->toolTip().contains('('));
    const MappingDocument *const document = m_fixture->window->desk()->document();
    QVERIFY(!document->canUndo());
    m_fixture->press(Qt::Key_X);
    QVERIFY(!document->canUndo());
    m_fixture->press(Qt::Key_F12);
    QVERIFY(document->canUndo());
    // It stays so in an editor that is made anew, and goes back.
    m_fixture->window->editor()->rebuild();
    QCOMPARE(button("btnRemoveLine")->shortcut(), QKeySequence("F12"));
    values.keys.clear();
    m_fixture->settings->setValues(values);
    QCOMPARE(button("btnRemoveLine")->shortcut(), QKeySequence("X"));
    QVERIFY(button("btnRemoveLine")->toolTip().endsWith("(x)"));
    QVERIFY(button("btnRemoveVerifyLine")->toolTip().endsWith("(STRG + x)"));
}

void tst_Locator::keysOfTables()
{
    start();
    QVERIFY(m_fixture->window->editor()->selectProject(din933));
    QVERIFY(m_fixture->window->editor()->selectLine(3));
    WorkbenchSettings::Values values = m_fixture->settings->values();
    values.keys = {{"tableFind", QKeySequence("F12")}};
    m_fixture->settings->setValues(values);
    auto *const table = m_fixture->window->findChild<VkTableView *>("sourceView");
    QVERIFY(table);
    QTest::keyClick(table->focusProxy(), Qt::Key_F, Qt::ControlModifier);
    const auto findBar = [table] {
        const QLineEdit *shown = nullptr;
        for (const QLineEdit *edit : table->findChildren<QLineEdit *>())
            shown = edit->isVisible() ? edit : shown;
        return shown;
    };
    QVERIFY(!findBar());
    QTest::keyClick(table->focusProxy(), Qt::Key_F12);
    QVERIFY(findBar());
}

void tst_Locator::keysByTheDialog()
{
    start();
    ModalScript user;
    user.then([](QWidget *dialog) {
        auto *const list = dialog->findChild<QTreeWidget *>("keysList");
        const auto found = list->findItems("Einstellungen", Qt::MatchExactly);
        list->setCurrentItem(found.value(0));
        auto *const edit = dialog->findChild<QKeySequenceEdit *>("key");
        QTest::keyClick(edit, Qt::Key_F12);
        QApplication::processEvents();
        QTest::mouseClick(dialog->findChild<QPushButton *>("ok"), Qt::LeftButton);
    });
    m_fixture->press(Qt::Key_F1, Qt::ControlModifier);
    QVERIFY(user.isDone());
    const PCommandKeys::Choice chosen{{"settings", QKeySequence("F12")}};
    QCOMPARE(m_fixture->settings->values().keys, chosen);
    QCOMPARE(m_fixture->action("settings")->shortcut(), QKeySequence("F12"));
    user.then([](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    m_fixture->press(Qt::Key_F12);
    QVERIFY(user.isDone());
}

void tst_Locator::clashesAreTold()
{
    start();
    KeysDialog dialog(
        {}, [this](const QString &id) { return m_fixture->window->keyedActions()->nameOf(id); },
        nullptr);
    dialog.show();
    auto *const list = dialog.findChild<QTreeWidget *>("keysList");
    auto *const edit = dialog.findChild<QKeySequenceEdit *>("key");
    const auto *const problem = dialog.findChild<QLabel *>("keysProblem");
    const auto *const ok = dialog.findChild<QPushButton *>("ok");
    const auto select = [&](const QString &name) {
        const auto items = list->findItems(name, Qt::MatchExactly);
        list->setCurrentItem(items.value(0));
        return items.size() == 1;
    };
    const auto shownKey = [&](const QString &name) {
        return list->findItems(name, Qt::MatchExactly).value(0)->text(2);
    };
    QVERIFY(select("Gehe zu Zeile"));
    QCOMPARE(edit->keySequence(), QKeySequence("Ctrl+G"));
    // A standard key gives way, which is told.
    QTest::keyClick(edit, Qt::Key_V);
    QApplication::processEvents();
    QCOMPARE(
        problem->text(),
        QString(
            "„Zeile bestätigen oder gewählte Zeile zuordnen“ hat die Taste V dann nicht mehr."));
    QVERIFY(ok->isEnabled());
    QCOMPARE(shownKey("Gehe zu Zeile"), QString("V"));
    QCOMPARE(shownKey("Zeile bestätigen oder gewählte Zeile zuordnen"), QString());
    QVERIFY(select("Zeile bestätigen oder gewählte Zeile zuordnen"));
    QCOMPARE(problem->text(), QString("Die Taste V hat jetzt „Gehe zu Zeile“."));
    // A chosen one does not.
    QTest::keyClick(edit, Qt::Key_V);
    QApplication::processEvents();
    QVERIFY2(problem->text().startsWith("Die Taste V hätten „") &&
                 problem->text().contains("„Gehe zu Zeile“"),
             qPrintable(problem->text()));
    QVERIFY(!ok->isEnabled());
    QTest::mouseClick(dialog.findChild<QPushButton *>("standardKey"), Qt::LeftButton);
    QVERIFY(ok->isEnabled());
    // Keys that fields need.
    QTest::keyClick(edit, Qt::Key_Down);
    QApplication::processEvents();
    QCOMPARE(problem->text(), QString("Die Taste Down brauchen Felder und Listen selbst."));
    QVERIFY(!ok->isEnabled());
    QTest::mouseClick(dialog.findChild<QPushButton *>("noKey"), Qt::LeftButton);
    QVERIFY(ok->isEnabled());
    const PCommandKeys::Choice chosen{{"goLine", QKeySequence("V")}};
    QCOMPARE(dialog.choice(), chosen);
}

/// Shift goes down before Tab does; the key that stands there is not forgotten for that.
void tst_Locator::keyFieldIsLeftBackwards()
{
    start();
    KeysDialog dialog(
        {}, [this](const QString &id) { return m_fixture->window->keyedActions()->nameOf(id); },
        nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *const list = dialog.findChild<QTreeWidget *>("keysList");
    auto *const edit = dialog.findChild<QKeySequenceEdit *>("key");
    list->setCurrentItem(list->findItems("Gehe zu Zeile", Qt::MatchExactly).value(0));
    edit->setFocus();
    QTest::keyPress(edit, Qt::Key_Shift, Qt::ShiftModifier);
    QTest::keyClick(edit, Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyRelease(list, Qt::Key_Shift);
    QApplication::processEvents();
    QVERIFY(!edit->hasFocus());
    QCOMPARE(edit->keySequence(), QKeySequence("Ctrl+G"));
    QVERIFY(dialog.choice().isEmpty());
    // Enter on a button presses that one.
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_F12);
    QApplication::processEvents();
    QCOMPARE(dialog.choice().value("goLine"), QKeySequence("F12"));
    auto *const standard = dialog.findChild<QPushButton *>("standardKey");
    standard->setFocus();
    QTest::keyClick(standard, Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.choice().isEmpty());
}

/// Each name says by itself what the command does.
void tst_Locator::keyNamesAreDifferent()
{
    start();
    QStringList names;
    const QList<PCommandKeys::Command> &commands = PCommandKeys::instance().commands();
    for (const PCommandKeys::Command &command : commands)
        names << m_fixture->window->keyedActions()->nameOf(command.id);
    const qsizetype all = names.size();
    QVERIFY(names.contains("Zustand: Ausgelaufen"));
    QVERIFY(names.contains("Gemeinsame Kopie: Aktualisieren"));
    QVERIFY(names.contains("Rückgängig"));
    names.removeDuplicates();
    QCOMPARE(names.size(), all);
}

void tst_Locator::keysAreFiltered()
{
    start();
    KeysDialog dialog(
        {}, [this](const QString &id) { return m_fixture->window->keyedActions()->nameOf(id); },
        nullptr);
    dialog.show();
    const auto *const list = dialog.findChild<QTreeWidget *>("keysList");
    const auto shown = [list] {
        QStringList names;
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            if (!list->topLevelItem(i)->isHidden())
                names << list->topLevelItem(i)->text(0);
        }
        return names;
    };
    QVERIFY(shown().size() > 50);
    // Places and keys have the room that they need, names the rest.
    const QHeaderView *const header = list->header();
    for (const int column : {1, 2}) {
        const QAbstractItemView *const view = list;
        QCOMPARE(header->sectionSize(column),
                 std::max(view->sizeHintForColumn(column), header->sectionSizeHint(column)));
    }
    auto *const filter = dialog.findChild<QLineEdit *>("keysFilter");
    QTest::keyClicks(filter, "zeile gehe");
    QCOMPARE(shown(), QStringList{"Gehe zu Zeile"});
    QCOMPARE(list->currentItem()->text(0), QString("Gehe zu Zeile"));
    filter->clear();
    QTest::keyClicks(filter, "ctrl+g");
    QCOMPARE(shown(), QStringList{"Gehe zu Zeile"});
    // No key goes to a command that is not in sight.
    QTest::keyClicks(filter, "xyz");
    QCOMPARE(shown(), QStringList());
    QVERIFY(!list->currentItem());
    QVERIFY(!dialog.findChild<QKeySequenceEdit *>("key")->isEnabled());
    QCOMPARE(dialog.findChild<QLabel *>("keysTitle")->text(), QString("Nichts gefunden"));
    filter->clear();
    QTest::keyClicks(filter, "zeile gehe");
    QCOMPARE(list->currentItem()->text(0), QString("Gehe zu Zeile"));
    // Escape is no key for commands.
    auto *const edit = dialog.findChild<QKeySequenceEdit *>("key");
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

QTEST_MAIN(tst_Locator)
#include "tst_Locator.moc"
