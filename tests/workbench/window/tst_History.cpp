#include "ModalScript.h"
#include "WindowFixture.h"

#include <core/config/PConfigService.h>
#include <release/history/DecisionHistory.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/history/HistoryDialog.h>
#include <workbench/window/history/HistoryModel.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/ReasonDialog.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTreeView>

using VelkRelease::DecisionHistory;

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");
const QString din125 = QStringLiteral("standardparts/washers/din125.prj");

} // namespace

/// Who decided what, when and why, in the window.
class tst_History : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void model();
    void reasonsOfTheFirm();
    void needsAReason();
    void showsDecisions();
    void savesWhatIsShown();
    void outlivesTheProgram();
    void followsTheLanguage();

private:
    /// Confirms a line as the user does.
    static void confirm(WindowFixture &fixture, const QString &path, int line)
    {
        QVERIFY(fixture.window->editor()->selectProject(path));
        QVERIFY(fixture.window->editor()->selectLine(line));
        const int before = fixture.confirmedLines();
        fixture.press(Qt::Key_V);
        QTRY_COMPARE(fixture.confirmedLines(), before + 1);
    }
    static void giveReason(const WindowFixture &fixture, const QString &reason, int place = 0)
    {
        ModalScript script;
        script.then([&reason, place](QWidget *dialog) {
            dialog->findChild<QComboBox *>("lines")->setCurrentIndex(place);
            auto *box = dialog->findChild<QComboBox *>("reason");
            box->lineEdit()->selectAll();
            QTest::keyClicks(box->lineEdit(), reason);
            QTest::keyClick(box->lineEdit(), Qt::Key_Return);
        });
        fixture.action("giveReason")->trigger();
        QVERIFY(script.isDone());
    }
    static HistoryDialog *show(const WindowFixture &fixture)
    {
        fixture.action("showHistory")->trigger();
        return fixture.window->findChild<HistoryDialog *>();
    }
    static QStringList shown(const HistoryDialog *dialog)
    {
        const QAbstractItemModel *const decisions =
            dialog->findChild<QTreeView *>("decisions")->model();
        QStringList rows;
        for (int row = 0; row < decisions->rowCount(); ++row)
            rows.append(decisions->index(row, HistoryModel::Line).data().toString() + ' ' +
                        decisions->index(row, HistoryModel::Reason).data().toString());
        return rows;
    }
};

void tst_History::model()
{
    HistoryModel model;
    const QAbstractItemModelTester tester(&model);
    HistoryModel::Decision first;
    first.time = QDateTime(QDate(2026, 11, 1), QTime(10, 0), Qt::UTC);
    first.author = "anna";
    first.path = "a.prj";
    first.line = 3;
    first.former = {{"n.prj", 4, 1, {}, false}};
    first.next = {{QString(), -1, 2, {}, false}};
    first.action = "x";
    first.reason = "y";
    HistoryModel::Decision second = first;
    second.author = "bert";
    second.isSaved = true;
    model.setDecisions({first, second});
    const auto row = [&model](int number) {
        QStringList cells;
        for (int column = HistoryModel::Author; column < model.columnCount(); ++column)
            cells.append(model.index(number, column).data().toString());
        return cells.join('|');
    };
    QCOMPARE(row(0), "bert|a.prj|3|n.prj:4|kein Nachfolger|x|y");
    QCOMPARE(row(1), "anna|a.prj|3|n.prj:4|kein Nachfolger|x (nicht gespeichert)|y");
    QCOMPARE(model.index(0, HistoryModel::Time).data().toString(),
             QLocale().toString(first.time.toLocalTime(), QLocale::ShortFormat));
    QCOMPARE(model.headerData(HistoryModel::Former, Qt::Horizontal, Qt::DisplayRole), "Bisher");
    model.setDecisions({});
    QCOMPARE(model.rowCount(), 0);
}

void tst_History::reasonsOfTheFirm()
{
    QCOMPARE(ReasonDialog::reasons().size(), 5);
    QCOMPARE(ReasonDialog::reasons().first(), "eingestellt");
    const WindowFixture fixture;
    QFile file(fixture.directory.filePath("reasons.cfg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[REASONS]\nfirst=sold out\nempty=\nsecond=made by others\n");
    file.close();
    PConfigService::setDirectories(PStringList(QStringList(fixture.directory.path())));
    QCOMPARE(ReasonDialog::reasons(), QStringList({"sold out", "made by others"}));
    const ReasonDialog dialog(QStringList{"x"}, QString(), nullptr);
    QCOMPARE(dialog.reason(), "sold out");
    PConfigService::setDirectories(PStringList(QStringList("$TORMEVA_SETUP")));
}

void tst_History::needsAReason()
{
    const ReasonDialog dialog(QStringList{"x"}, "as before", nullptr);
    QCOMPARE(dialog.reason(), "as before");
    dialog.findChild<QComboBox *>("reason")->setCurrentText("  ");
    QVERIFY(!dialog.findChild<QPushButton *>("ok")->isEnabled());
    dialog.findChild<QComboBox *>("reason")->setCurrentText(" a ");
    QVERIFY(dialog.findChild<QPushButton *>("ok")->isEnabled());
    QCOMPARE(dialog.reason(), "a");
}

void tst_History::showsDecisions()
{
    WindowFixture fixture;
    QVERIFY(!fixture.action("showHistory")->isEnabled());
    QVERIFY(!fixture.action("giveReason")->isEnabled());
    fixture.open(fixture.mappingFile());
    confirm(fixture, din125, 4);
    confirm(fixture, din933, 3);
    giveReason(fixture, "it must be");
    confirm(fixture, din933, 7);
    QVERIFY(fixture.window->editor()->selectLine(7));
    // What was decided last is what is selected: it is offered once.
    int offered = 0;
    ModalScript script;
    script.then([&offered](QWidget *dialog) {
        offered = dialog->findChild<QComboBox *>("lines")->count();
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    fixture.action("giveReason")->trigger();
    QCOMPARE(offered, 1);
    HistoryDialog *const dialog = show(fixture);
    auto *scope = dialog->findChild<QComboBox *>("scope");
    QCOMPARE(shown(dialog), QStringList{"7 "});
    QVERIFY(fixture.window->editor()->selectLine(3));
    QTRY_COMPARE(shown(dialog), QStringList{"3 it must be"});
    scope->setCurrentIndex(HistoryDialog::OfProject);
    QCOMPARE(shown(dialog), QStringList({"7 ", "3 it must be"}));
    scope->setCurrentIndex(HistoryDialog::OfAll);
    QCOMPARE(shown(dialog), QStringList({"7 ", "3 it must be", "4 "}));
    QTest::keyClicks(dialog->findChild<QLineEdit *>("search"), "MUST");
    QCOMPARE(shown(dialog), QStringList{"3 it must be"});
    const auto *const sum = dialog->findChild<QLabel *>("sum");
    QCOMPARE(sum->text(), "Entscheidungen: 1");
    QCOMPARE(sum->textFormat(), Qt::PlainText); // it may name files
    dialog->findChild<QLineEdit *>("search")->clear();
    // What is given while it is open: for the last decision first, else for what is selected.
    giveReason(fixture, "for sure");
    QCOMPARE(shown(dialog), QStringList({"7 for sure", "3 it must be", "4 "}));
    giveReason(fixture, "I said so", 1);
    QCOMPARE(shown(dialog), QStringList({"7 for sure", "3 I said so", "4 "}));
    auto *decisions = dialog->findChild<QTreeView *>("decisions");
    Q_EMIT decisions->activated(decisions->model()->index(2, 0));
    QCOMPARE(fixture.window->editor()->currentPath(), din125);
    QCOMPARE(fixture.window->editor()->currentLine(), 4);
    fixture.window->desk()->document()->undo();
    QTest::mouseClick(dialog->findChild<QPushButton *>("reload"), Qt::LeftButton);
    QCOMPARE(shown(dialog).size(), 4);
}

void tst_History::savesWhatIsShown()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    confirm(fixture, din933, 3);
    const HistoryDialog *const dialog = show(fixture);
    dialog->findChild<QComboBox *>("scope")->setCurrentIndex(HistoryDialog::OfAll);
    const QString file = fixture.directory.filePath("history.csv");
    ModalScript script;
    script.then([&file](QWidget *widget) {
        auto *chooser = qobject_cast<QFileDialog *>(widget);
        QVERIFY(chooser);
        chooser->findChild<QLineEdit *>()->setText(file);
        QMetaObject::invokeMethod(chooser, "accept");
    });
    QTest::mouseClick(dialog->findChild<QPushButton *>("save"), Qt::LeftButton);
    QVERIFY(script.isDone());
    QFile saved(file);
    QVERIFY(saved.open(QIODevice::ReadOnly));
    const QByteArrayList rows = saved.readAll().split('\n');
    QCOMPARE(rows.size(), 3);
    QCOMPARE(rows.at(0) + '\n', DecisionHistory::csvHeader());
    QVERIFY2(rows.at(1).contains("," + din933.toUtf8() + ","), rows.at(1).constData());
}

void tst_History::outlivesTheProgram()
{
    WindowFixture fixture;
    const QString file = fixture.mappingFile();
    fixture.open(file);
    confirm(fixture, din933, 3);
    giveReason(fixture, "it must be");
    QCOMPARE(fixture.window->desk()->document()->save().result, SaveResult::Saved);
    fixture.closeWindow();
    DecisionHistory history;
    QString error;
    QVERIFY2(history.read(file, &error), qPrintable(error));
    QCOMPARE(history.decisions().size(), 1);
    const DecisionHistory::Decision &decision = history.decisions().first();
    QCOMPARE(decision.path, din933);
    QCOMPARE(decision.reason, "it must be");
    QVERIFY(decision.isSaved);
    QVERIFY(!decision.author.isEmpty());
    QVERIFY(!decision.next.isEmpty());
    QVERIFY(decision.next.first().target.endsWith(".prj"));
    QCOMPARE(decision.next.first().state, 2);
    fixture.makeWindow();
    fixture.open(file);
    QVERIFY(fixture.window->editor()->selectProject(din933));
    QVERIFY(fixture.window->editor()->selectLine(3));
    QCOMPARE(shown(show(fixture)), QStringList{"3 it must be"});
}

void tst_History::followsTheLanguage()
{
    const WindowFixture fixture;
    const QAction *const action = fixture.action("showHistory");
    QCOMPARE(action->text(), "&Verlauf der Entscheidungen...");
    QEvent event(QEvent::LanguageChange);
    fixture.action("showHistory")->setText("old");
    QCoreApplication::sendEvent(fixture.window.get(), &event);
    QCOMPARE(action->text(), "&Verlauf der Entscheidungen...");
}

QTEST_MAIN(tst_History)
#include "tst_History.moc"
