#include "ReviewFixture.h"

#include <workbench/window/message/LogWindow.h>
#include <workbench/window/message/ReasonDialog.h>
#include <workbench/window/review/ReviewCommands.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <core/json/PJsonValue.h>
#include <release/history/DecisionHistory.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QComboBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QThread>

#include <functional>

class tst_Review : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAddUp();
    void readsTheCatalogsOfTheFile();
    void differencesCanBeRead();
    void choosingFiltersTreeAndTable();
    void confirmsAllInOneStep();
    void confirmsLinesWithoutSuccessor();
    void asksForLinesInDoubt();
    void staysWhereTheUserWants();
    void lastLineLeadsToTheNextPattern();
    void takesTheShownLineOut();
    void walksThePattern();
    void leastSureFirst();
    void differencesOfTheLineInSight();
    void severalLinesAsPairs();
    void differencesComeToTheFront();
    void candidateByKey();
    void explanationFollowsDecisions();
    void followsTheDocument();
    void isPaintedInATurnOfItsOwn_data();
    void isPaintedInATurnOfItsOwn();
};

namespace {

/// Counts the pictures of all that is in a widget, whenever it came there.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(const QWidget *widget)
        : m_widget(widget)
    {
        qApp->installEventFilter(this);
    }
    int count = 0;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        count += event->type() == QEvent::Paint &&
                         m_widget->isAncestorOf(qobject_cast<QWidget *>(object))
                     ? 1
                     : 0;
        return false;
    }

private:
    const QWidget *const m_widget;
};

} // namespace

void tst_Review::numbersAddUp()
{
    ReviewFixture fixture;
    const QAbstractItemModelTester tester(fixture.list()->model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    const int open = fixture.window->lines()->openLines().countOf(OpenLines::ToCheck);
    QVERIFY(open > 0);
    const auto &patterns = fixture.review()->work()->patterns();
    const int gone = fixture.window->lines()->openLines().countOf(OpenLines::NotFound);
    QVERIFY(gone > 0);
    QCOMPARE(fixture.model()->lineCount(), open + gone);
    QCOMPARE(fixture.model()->rowCount(),
             int(patterns.ranked().size() + patterns.rankedGone().size()));
    QVERIFY2(fixture.sum().contains(QString("%1 offene Zeilen mit Vorschlag in %2 Mustern\n"
                                            "%3 offene Zeilen ohne Nachfolger in %4 Mustern")
                                        .arg(open)
                                        .arg(patterns.ranked().size())
                                        .arg(gone)
                                        .arg(patterns.rankedGone().size())),
             qPrintable(fixture.sum()));
    // The keys are with the list.
    QCOMPARE(QApplication::focusWidget(), fixture.list());
    fixture.press(Qt::Key_Down);
    QCOMPARE(fixture.list()->currentIndex().row(), 1);
}

/// The list was open at the last end of the program; the file is opened for the first time, so
/// where its catalogs lie is not known as soon as the file is read.
void tst_Review::readsTheCatalogsOfTheFile()
{
    WindowFixture fixture;
    fixture.window->findChild<QDockWidget *>("PatternDock")->show();
    QApplication::processEvents();
    fixture.open(fixture.mappingFile());
    const ReviewWork *const work = fixture.window->review()->work();
    QVERIFY(work->isWanted());
    QTRY_VERIFY_WITH_TIMEOUT(work->hasPatterns() && !work->isReading(), 20'000);
    QVERIFY(work->patterns().ranked().size() > 5);
    QVERIFY(work->patterns().rankedGone().size() > 5);
}

/// In a narrow dock too.
void tst_Review::differencesCanBeRead()
{
    ReviewFixture fixture;
    auto *const dock = fixture.window->findChild<QDockWidget *>("PatternDock");
    const QTreeView *const list = fixture.list();
    const QHeaderView *const header = list->header();
    const int letters = list->fontMetrics().averageCharWidth();
    fixture.window->resizeDocks({dock}, {10}, Qt::Horizontal);
    QTRY_VERIFY(list->viewport()->width() < 60 * letters);
    QTRY_VERIFY(header->sectionSize(PatternModel::Changes) >= 24 * letters);
    // As a whole: in lines one below the other.
    const auto longest = [&] {
        QModelIndex found = list->model()->index(0, PatternModel::Changes);
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex index = list->model()->index(row, PatternModel::Changes);
            found = index.data().toString().size() > found.data().toString().size() ? index : found;
        }
        return found;
    }();
    const auto linesOf = [&](const QModelIndex &index) {
        fixture.list()->scrollTo(index);
        return list->visualRect(index).height() / list->fontMetrics().height();
    };
    const int wanted = list->fontMetrics().horizontalAdvance(longest.data().toString());
    QVERIFY(wanted > 24 * letters);
    QTRY_VERIFY(linesOf(longest) * header->sectionSize(PatternModel::Changes) >= wanted);
    dock->setFloating(true);
    dock->resize(120 * letters, 400);
    QTRY_COMPARE(header->length(), list->viewport()->width());
    dock->resize(wanted + 80 * letters, 400);
    QTRY_COMPARE(linesOf(longest), 1);
}

void tst_Review::choosingFiltersTreeAndTable()
{
    ReviewFixture fixture;
    fixture.choose("Werkstoff: FP → FKM");
    QCOMPARE(fixture.here().project.path, seals);
    const int lines = fixture.linesIn(fixture.rowOf("Werkstoff: FP"));
    QCOMPARE(fixture.window->editor()->shownLines().size(), lines);
    QVERIFY(fixture.sum().contains(QString("Gewählt: %1 Zeilen").arg(lines)));
    // Another project gives way, and everything is shown again.
    QVERIFY(fixture.window->editor()->selectProject(din933));
    QCoreApplication::processEvents();
    QCOMPARE(fixture.review()->dock()->chosen(), -1);
    QVERIFY(!fixture.window->editor()->editor()->linesAreFiltered());
    // Escape does the same.
    fixture.choose("Werkstoff: FP → FKM");
    fixture.list()->setFocus();
    fixture.press(Qt::Key_Escape);
    QCOMPARE(fixture.review()->dock()->chosen(), -1);
    QVERIFY(!fixture.window->editor()->editor()->linesAreFiltered());
}

void tst_Review::confirmsAllInOneStep()
{
    ReviewFixture fixture;
    fixture.choose("Kz: ");
    const int pattern = fixture.review()->dock()->chosen();
    const int lines = fixture.linesIn(fixture.model()->rowOf(pattern));
    const int next = fixture.model()->patternAt(fixture.model()->rowOf(pattern) + 1);
    const int open = fixture.model()->lineCount();
    const int confirmed = fixture.confirmedLines();
    // The number was told: no question, and the next pattern follows.
    QVERIFY(fixture.sum().contains(QString("Gewählt: %1 Zeilen in 1 Projekt").arg(lines)));
    ModalScript script;
    fixture.press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(script.texts.isEmpty());
    QCOMPARE(fixture.confirmedLines(), confirmed + lines);
    QCOMPARE(fixture.model()->rowOf(pattern), -1);
    QCOMPARE(fixture.model()->lineCount(), open - lines);
    QCOMPARE(fixture.review()->dock()->chosen(), next);
    QCOMPARE(fixture.review()->work()->patterns().patternOf(
                 fixture.review()->work()->placeOf(fixture.here())),
             next);
    // One step takes all of them back.
    QCOMPARE(fixture.document()->undoTexts().size(), 1);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.confirmedLines(), confirmed);
    QCOMPARE(fixture.model()->lineCount(), open);
    QVERIFY(fixture.model()->rowOf(pattern) >= 0);
}

/// No successor: with a reason, in one step, and the journal says who, why and for which lines.
void tst_Review::confirmsLinesWithoutSuccessor()
{
    ReviewFixture fixture;
    const QString washers = QStringLiteral("standardparts/washers/din127.prj");
    fixture.choose("ganzes Projekt ohne Ziel: " + washers);
    QCOMPARE(fixture.here().project.path, washers);
    const int pattern = fixture.review()->dock()->chosen();
    const int lines = fixture.linesIn(fixture.model()->rowOf(pattern));
    const int confirmed = fixture.confirmedLines();
    // Nothing without a reason.
    ModalScript script;
    script.then([&script](QWidget *dialog) {
        script.note(dialog);
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    fixture.press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(script.seen, QStringList{"ReasonDialog"});
    QCOMPARE(fixture.confirmedLines(), confirmed);
    QVERIFY(!fixture.document()->canUndo());
    QString told;
    script.then([&told](QWidget *dialog) {
        told = dialog->findChild<QComboBox *>("lines")->currentText();
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Down);
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    });
    fixture.press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY2(told.startsWith(QString("%1 Zeilen in 1 Projekt").arg(lines)), qPrintable(told));
    QCOMPARE(fixture.confirmedLines(), confirmed + lines);
    QCOMPARE(fixture.model()->rowOf(pattern), -1);
    QVERIFY(fixture.review()->dock()->chosen() >= 0);
    const QString reason = ReasonDialog::reasons().at(1);
    QVERIFY2(fixture.document()->undoText().contains(
                 QString("%1 Zeilen als ausgelaufen bestätigt").arg(lines)) &&
                 fixture.document()->undoText().contains(reason),
             qPrintable(fixture.document()->undoText()));
    VelkRelease::DecisionHistory history;
    QString error;
    QVERIFY2(history.read(fixture.document()->mappingFile(), &error), qPrintable(error));
    const auto decisions = history.of(washers, -1);
    QCOMPARE(decisions.size(), lines);
    for (const VelkRelease::DecisionHistory::Decision &decision : decisions) {
        QCOMPARE(decision.reason, reason);
        QVERIFY(!decision.author.isEmpty());
    }
    // One step takes all of them back.
    QCOMPARE(fixture.document()->undoTexts().size(), 1);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.confirmedLines(), confirmed);
    QCOMPARE(fixture.linesIn(fixture.model()->rowOf(pattern)), lines);
}

/// Nobody confirms by one key what the program is not sure of.
void tst_Review::asksForLinesInDoubt()
{
    ReviewFixture fixture;
    fixture.choose("unsicher: kein Unterschied");
    const int pattern = fixture.review()->dock()->chosen();
    const int lines = fixture.linesIn(fixture.model()->rowOf(pattern));
    QVERIFY(lines > 0);
    const int confirmed = fixture.confirmedLines();
    ModalScript script;
    script.thenClick("answerCancel");
    fixture.press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(script.isDone());
    QCOMPARE(fixture.confirmedLines(), confirmed);
    QCOMPARE(fixture.review()->dock()->chosen(), pattern);
    script.thenClick("answerAccept");
    fixture.press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(script.isDone());
    QVERIFY2(script.texts.last().startsWith(QString("%1 Zeilen in ").arg(lines)),
             qPrintable(script.texts.last()));
    QCOMPARE(fixture.confirmedLines(), confirmed + lines);
}

void tst_Review::staysWhereTheUserWants()
{
    ReviewFixture fixture;
    WorkbenchSettings::Values values = fixture.settings->values();
    values.goesOn = false;
    fixture.settings->setValues(values);
    fixture.choose("Werkstoff: FP → FKM");
    fixture.press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(fixture.review()->dock()->chosen(), -1);
    QVERIFY(!fixture.window->editor()->editor()->linesAreFiltered());
}

/// The last line of a pattern leads on as its confirmation does.
void tst_Review::lastLineLeadsToTheNextPattern()
{
    ReviewFixture fixture;
    fixture.choose("d3: + 0.1");
    const int next = fixture.model()->patternAt(fixture.rowOf("d3: + 0.1") + 1);
    QCOMPARE(fixture.review()->lines().size(), 2U);
    fixture.press(Qt::Key_V);
    fixture.press(Qt::Key_V);
    QCOMPARE(fixture.review()->dock()->chosen(), next);
    QCOMPARE(fixture.rowOf("d3: + 0.1"), -1);
}

void tst_Review::takesTheShownLineOut()
{
    ReviewFixture fixture;
    fixture.choose("Werkstoff: FP → FKM");
    const int lines = int(fixture.review()->lines().size());
    const LineRef out = fixture.here();
    const int confirmed = fixture.confirmedLines();
    fixture.press(Qt::Key_D, Qt::ControlModifier);
    QVERIFY(fixture.here() != out);
    QCOMPARE(fixture.review()->lines().size(), size_t(lines - 1));
    QVERIFY2(fixture.sum().contains("1 davon herausgenommen"), qPrintable(fixture.sum()));
    QVERIFY(!fixture.window->editor()->shownLines().contains(out.line));
    fixture.press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(fixture.confirmedLines(), confirmed + lines - 1);
    // It is still open and in its pattern.
    QCOMPARE(fixture.linesIn(fixture.rowOf("Werkstoff: FP")), 1);
}

void tst_Review::walksThePattern()
{
    ReviewFixture fixture;
    fixture.choose("Werkstoff: FP → FKM");
    const std::vector<ReviewCommands::Place> lines = fixture.review()->lines();
    QVERIFY(lines.size() > 2);
    QCOMPARE(fixture.here().line, lines[0].line);
    fixture.press(Qt::Key_F9);
    QCOMPARE(fixture.here().line, lines[1].line);
    fixture.press(Qt::Key_F9, Qt::ShiftModifier);
    fixture.press(Qt::Key_F9, Qt::ShiftModifier);
    QCOMPARE(fixture.here().line, lines.back().line);
    // A decided line is left behind, within the pattern.
    fixture.press(Qt::Key_F9);
    fixture.press(Qt::Key_V);
    QCOMPARE(fixture.here().line, lines[1].line);
    fixture.press(Qt::Key_F9);
    fixture.press(Qt::Key_F9, Qt::ShiftModifier);
    QCOMPARE(fixture.here().line, lines[1].line);
    const int chosen = fixture.review()->dock()->chosen();
    fixture.press(Qt::Key_F9, Qt::ControlModifier);
    QVERIFY(fixture.review()->dock()->chosen() != chosen);
}

void tst_Review::leastSureFirst()
{
    ReviewFixture fixture;
    fixture.press(Qt::Key_U, Qt::ControlModifier);
    QVERIFY(fixture.action("reviewLeastSure")->isChecked());
    const ReviewWork *const work = fixture.review()->work();
    const auto order = work->patterns().leastSure();
    fixture.press(Qt::Key_F8);
    QCOMPARE(work->placeOf(fixture.here()), order[0]);
    fixture.press(Qt::Key_F8);
    QCOMPARE(work->placeOf(fixture.here()), order[1]);
    fixture.press(Qt::Key_F8, Qt::ShiftModifier);
    QCOMPARE(work->placeOf(fixture.here()), order[0]);
    fixture.press(Qt::Key_U, Qt::ControlModifier);
    QVERIFY(!fixture.action("reviewLeastSure")->isChecked());
}

void tst_Review::differencesOfTheLineInSight()
{
    ReviewFixture fixture;
    fixture.press(Qt::Key_F7, Qt::ShiftModifier);
    fixture.choose("Werkstoff: FP → FKM");
    fixture.explain();
    const QAbstractItemModel *const table =
        fixture.window->findChild<QTableView *>("DifferenceTable")->model();
    QCOMPARE(table->index(0, 0).data().toString(), "Werkstoff");
    QVERIFY(table->index(0, 1).data().toString().contains("FP"));
    QVERIFY(table->index(0, 2).data().toString().contains("FKM"));
    QVERIFY(table->rowCount() > 3);
    const QString head = fixture.window->findChild<QLabel *>("DifferenceHead")->text();
    QVERIFY2(head.startsWith(seals + ':' + QString::number(fixture.here().line)), qPrintable(head));
    // Another line is explained as soon as it is in sight.
    fixture.press(Qt::Key_F9);
    QVERIFY(QTest::qWaitFor(
        [&] {
            return fixture.window->findChild<QLabel *>("DifferenceHead")
                ->text()
                .startsWith(seals + ':' + QString::number(fixture.here().line));
        },
        10000));
}

/// Behind another one of its tabs nobody sees it.
void tst_Review::differencesComeToTheFront()
{
    ReviewFixture fixture;
    fixture.press(Qt::Key_F7, Qt::ShiftModifier);
    auto *const panel = static_cast<QDockWidget *>(fixture.review()->panel());
    LogWindow *const log = fixture.window->log();
    log->show();
    fixture.window->tabifyDockWidget(log, panel);
    log->raise();
    QTRY_VERIFY(panel->visibleRegion().isEmpty());
    fixture.press(Qt::Key_F7, Qt::ShiftModifier);
    QTRY_VERIFY(!panel->visibleRegion().isEmpty());
    fixture.press(Qt::Key_F7, Qt::ShiftModifier);
    QVERIFY(panel->isHidden());
    QTRY_VERIFY(!log->visibleRegion().isEmpty());
    fixture.press(Qt::Key_F7, Qt::ShiftModifier);
    QTRY_VERIFY(!panel->visibleRegion().isEmpty());
    // By the menu, too.
    log->hide();
    QTest::qWait(20);
    log->toggleViewAction()->trigger();
    QTRY_VERIFY(!log->visibleRegion().isEmpty());
}

void tst_Review::candidateByKey()
{
    ReviewFixture fixture;
    fixture.press(Qt::Key_F7, Qt::ShiftModifier);
    fixture.choose("Werkstoff: FP → FKM");
    fixture.explain();
    const LineRef line = fixture.here();
    const LineCandidateC candidate = *fixture.review()->panel()->candidate(1);
    const int confirmed = fixture.confirmedLines();
    fixture.press(Qt::Key_1);
    QCOMPARE(fixture.confirmedLines(), confirmed + 1);
    const PrjMappingTargetLineC entry = fixture.document()
                                            ->mapping(line.project)
                                            .findTarget(candidate.targetIndex)
                                            .getMappedLine(line.line);
    QCOMPARE(entry.getTargetLineId(), candidate.lineId.value(0));
    QCOMPARE(entry.getState(), PRJMAPPING::Verified);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.confirmedLines(), confirmed);
    // A key without candidate changes nothing.
    fixture.explain();
    fixture.press(Qt::Key_5);
    QCOMPARE(fixture.confirmedLines(), confirmed);
}

void tst_Review::severalLinesAsPairs()
{
    ReviewFixture fixture;
    fixture.press(Qt::Key_F7, Qt::ShiftModifier);
    auto *const table = fixture.window->findChild<QTableView *>("PairTable");
    const QAbstractItemModelTester tester(table->model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 54}));
    QVERIFY(table->isHidden());
    fixture.press(Qt::Key_Down, Qt::ShiftModifier);
    fixture.press(Qt::Key_Down, Qt::ShiftModifier);
    QVERIFY(QTest::qWaitFor([&] { return table->model()->rowCount() == 3; }, 20000));
    QVERIFY(table->isVisible());
    QVERIFY(!fixture.window->findChild<QTableView *>("DifferenceTable")->isVisible());
    const auto head = [&] {
        return fixture.window->findChild<QLabel *>("DifferenceHead")->text();
    };
    QCOMPARE(head(), din933 + ": 3 Zeilen\nGemeinsam: s: 17 → 16; e: 18.9 → 17.77");
    QVERIFY(table->model()->index(0, 0).data().toString().startsWith("54  "));
    QVERIFY(table->model()->index(2, 1).data().toString().contains(".prj:"));
    // Nothing besides what all have.
    QCOMPARE(table->model()->index(1, 2).data().toString(), QString());
    // One line again.
    fixture.press(Qt::Key_Down);
    QVERIFY(QTest::qWaitFor([&] { return table->isHidden(); }, 20000));
    fixture.explain();
    QVERIFY2(head().startsWith(din933 + ":57"), qPrintable(head()));
}

/// The table is not worked out anew for the line that comes next, only when the user pauses.
void tst_Review::explanationFollowsDecisions()
{
    ReviewFixture fixture;
    fixture.press(Qt::Key_F7, Qt::ShiftModifier);
    fixture.choose("Werkstoff: FP → FKM");
    fixture.explain();
    const LineRef line = fixture.here();
    const auto head = [&] {
        return fixture.window->findChild<QLabel *>("DifferenceHead")->text();
    };
    const auto tells = [&](const LineRef &ref, const QString &what) {
        return head().startsWith(ref.project.path + ':' + QString::number(ref.line)) &&
               head().contains(what);
    };
    QVERIFY2(tells(line, "ersetzt"), qPrintable(head()));
    QSignalSpy explained(fixture.review()->work(), &ReviewWork::explained);
    fixture.press(Qt::Key_V);
    const LineRef next = fixture.here();
    QVERIFY(next != line);
    QVERIFY(QTest::qWaitFor([&] { return tells(next, "ersetzt"); }, 10000));
    // The decided line says so, with what it was decided on.
    const auto told = explained.size();
    QVERIFY(fixture.window->editor()->goTo(line));
    QVERIFY(QTest::qWaitFor([&] { return tells(line, "Bestätigt."); }, 20000));
    QVERIFY(explained.size() > told);
    const QAbstractItemModel *const table =
        fixture.window->findChild<QTableView *>("DifferenceTable")->model();
    QCOMPARE(table->index(0, 0).data().toString(), "Werkstoff");
    // Undone, it is a proposal again.
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(fixture.window->editor()->goTo(line));
    QVERIFY(QTest::qWaitFor([&] { return tells(line, "ersetzt"); }, 20000));
}

void tst_Review::followsTheDocument()
{
    ReviewFixture fixture;
    QVERIFY(fixture.model()->rowCount() > 0);
    fixture.document()->close();
    QCoreApplication::processEvents();
    QCOMPARE(fixture.model()->rowCount(), 0);
    fixture.open(fixture.mappingFile("n.json"));
    fixture.waitForPatterns();
    QVERIFY(fixture.model()->rowCount() > 0);
    // Closed while it reads.
    fixture.review()->work()->readAnew();
    fixture.closeWindow();
}

void tst_Review::isPaintedInATurnOfItsOwn_data()
{
    QTest::addColumn<std::function<void(ReviewFixture &)>>("act");
    using Act = std::function<void(ReviewFixture &)>;
    QTest::newRow("undo") << Act([](ReviewFixture &fixture) {
        fixture.action("editUndo")->trigger();
        // It is shown a little later, or before anything else is.
        QVERIFY(fixture.window->editor()->goTo(fixture.here()));
    });
    QTest::newRow("pattern") << Act([](ReviewFixture &fixture) {
        const QModelIndex pattern = fixture.model()->index(1, 0);
        Q_EMIT fixture.list()->doubleClicked(pattern);
    });
    QTest::newRow("differences") << Act(
        [](ReviewFixture &fixture) { fixture.action("reviewDifferences")->trigger(); });
    QTest::newRow("another release") << Act([](ReviewFixture &fixture) {
        const LineRef here = fixture.here();
        MappingDocument *const document = fixture.window->desk()->document();
        ReleaseMappingC changed = document->release();
        changed.setTargetDate(QStringLiteral("2031-01-01"));
        document->replaceRelease(changed, QStringLiteral("..."));
        QCOMPARE(document->release().getTargetDate(), QStringLiteral("2031-01-01"));
        QCOMPARE(fixture.here(), here); // it is whole at once
    });
}

void tst_Review::isPaintedInATurnOfItsOwn()
{
    QFETCH(std::function<void(ReviewFixture &)>, act);
    ReviewFixture fixture;
    fixture.action("goNext")->trigger();
    fixture.window->findChild<QPushButton *>("btnMapLine")->click();
    EditorArea *const editor = fixture.window->editor();
    PaintCounter pictures(editor);
    // Nothing of the step before may still be on its way.
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.review()->work()->isReading(), 20'000);
    do {
        pictures.count = 0;
        QTest::qWait(150);
    } while (pictures.count > 0);
    act(fixture);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(pictures.count, 0);
    QTRY_VERIFY(pictures.count > 0);
    // However long the turn takes.
    editor->paintLater();
    QThread::msleep(10);
    QCoreApplication::processEvents();
    QVERIFY(!editor->updatesEnabled());
    QTRY_VERIFY(editor->updatesEnabled());
}

QTEST_MAIN(tst_Review)
#include "tst_Review.moc"
