#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcoregui/table/VkTableView.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <workbench/review/CandidateModel.h>
#include <workbench/review/DifferencePanel.h>
#include <workbench/review/NeighbourDock.h>
#include <workbench/review/PatternDock.h>
#include <workbench/review/PatternModel.h>
#include <workbench/session/JournalReader.h>
#include <workbench/session/JournalReplay.h>
#include <workbench/session/MappingDocument.h>
#include <workbench/window/DocumentDesk.h>
#include <workbench/window/EditorArea.h>
#include <workbench/window/LineCommands.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/NeighbourCommands.h>
#include <workbench/window/ReasonDialog.h>
#include <workbench/window/ReviewCommands.h>
#include <workbench/window/StatusArea.h>
#include <workbench/window/WorkbenchSettings.h>

#include <core/json/PJsonValue.h>
#include <geomcore/records/MappingFile.h>
#include <release/decide/LineEdits.h>
#include <release/history/DecisionHistory.h>
#include <release/history/SampleHistory.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <QTreeView>

namespace {

const QString seals = QStringLiteral("standardparts/seals/din3760.prj");
const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

/// A workbench with the list of patterns open and read.
class ReviewFixture : public WindowFixture
{
public:
    ReviewFixture()
    {
        open(mappingFile());
        press(Qt::Key_F7);
        waitForPatterns();
    }

    void waitForPatterns() const
    {
        QVERIFY(QTest::qWaitFor([this] { return review()->work()->hasPatterns(); }, 20000));
        QCoreApplication::processEvents();
    }
    [[nodiscard]] ReviewCommands *review() const { return window->review(); }
    [[nodiscard]] MappingDocument *document() const { return window->desk()->document(); }
    [[nodiscard]] QTreeView *list() const { return window->findChild<QTreeView *>("PatternList"); }
    [[nodiscard]] const PatternModel *model() const
    {
        return static_cast<const PatternModel *>(list()->model());
    }
    /// The row whose text begins so.
    [[nodiscard]] int rowOf(const QString &text) const
    {
        for (int row = 0; row < model()->rowCount(); ++row) {
            if (model()->index(row, 0).data().toString().startsWith(text))
                return row;
        }
        return -1;
    }
    void choose(const QString &text)
    {
        const int row = rowOf(text);
        QVERIFY2(row >= 0, qPrintable(text));
        list()->setFocus();
        list()->setCurrentIndex(model()->index(row, 0));
        press(Qt::Key_Return);
    }
    [[nodiscard]] int linesIn(int row) const
    {
        return model()->index(row, PatternModel::Lines).data(PatternModel::ValueRole).toInt();
    }
    [[nodiscard]] QString sum() const { return window->findChild<QLabel *>("PatternSum")->text(); }
    [[nodiscard]] LineRef here() const
    {
        return {window->editor()->currentProject(), window->editor()->currentLine()};
    }
    void explain() const
    {
        QVERIFY(QTest::qWaitFor(
            [this] {
                return window->findChild<QTreeView *>("CandidateList")->model()->rowCount() > 0;
            },
            10000));
    }
};

} // namespace

class tst_Review : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAddUp();
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
    void candidateByKey();
    void explanationFollowsDecisions();
    void acceptedBySample();
    void firstWrongOneSplits();
    void selectedLinesBySample();
    void agreedReplacement();
    void followsTheDocument();
    void neighboursAreMendedInOneStep();
};

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

namespace {

/// Draws that many lines.
void draw(ModalScript &script, int count)
{
    script.then([count](QWidget *dialog) {
        auto *const box = dialog->findChild<QSpinBox *>();
        box->selectAll();
        QTest::keyClicks(box, QString::number(count));
        QTest::keyClick(box, Qt::Key_Return);
    });
}

/// The records of a kind in the journal.
QList<PJsonValue> recordsOf(const MappingDocument &document, const char *kind)
{
    JournalReader reader;
    QString error;
    QList<PJsonValue> records;
    if (!reader.read(document.journalFile(), &error))
        return records;
    for (const QByteArray &row : reader.sessions().last().records) {
        if (JournalReader::isKind(row, kind))
            records += JournalReader::parse(row);
    }
    return records;
}

} // namespace

void tst_Review::acceptedBySample()
{
    ReviewFixture fixture;
    fixture.choose("Werkstoff: FP → FKM");
    const int lines = int(fixture.review()->lines().size());
    const int confirmed = fixture.confirmedLines();
    ModalScript script;
    draw(script, 59);
    fixture.press(Qt::Key_T, Qt::ControlModifier);
    QVERIFY(script.isDone());
    QVERIFY(fixture.review()->sample());
    QCOMPARE(fixture.review()->sample()->drawn().size(), 59U);
    script.thenClick("answerAccept");
    for (int i = 0; i < 59; ++i)
        fixture.press(Qt::Key_Plus);
    QVERIFY(script.isDone());
    QCOMPARE(fixture.confirmedLines(), confirmed + lines);
    QVERIFY2(fixture.document()->undoText().contains(
                 "59 von 59 richtig, mit 95 % Sicherheit weniger als 5.0 % falsch"),
             qPrintable(fixture.document()->undoText()));
    const QList<PJsonValue> records = recordsOf(*fixture.document(), "sample");
    QCOMPARE(records.size(), 1);
    const PJsonValue note = records.first().value("note");
    QCOMPARE(note.value("drawn").size(), 59);
    QVERIFY(note.value("drawn").at(0).toText().startsWith(seals + ':'));
    QCOMPARE(note.value("right").toInt(), 59);
    QCOMPARE(note.value("lines").toInt(), lines);
    QVERIFY(!note.value("judge").toText().isEmpty());
    QVERIFY(note.value("bound").toText().startsWith("0.049"));
    QVERIFY(!records.first().value("time").toText().isEmpty());
    // As a report reads it.
    QString error;
    const auto samples = VelkRelease::readJudgedSamples(fixture.document()->mappingFile(), &error);
    QVERIFY2(samples, qPrintable(error));
    QCOMPARE(samples->size(), 1U);
    QCOMPARE(samples->front().release, fixture.document()->release().getSourceDate());
    QCOMPARE(samples->front().judge, note.value("judge").toText());
    QCOMPARE(samples->front().lines, lines);
    QCOMPARE(samples->front().drawn.size(), 59);
    QCOMPARE(samples->front().drawn.first(), note.value("drawn").at(0).toText());
    QCOMPARE(samples->front().judged, 59);
    QCOMPARE(samples->front().right, 59);
    QCOMPARE(samples->front().certainty, 0.95);
    QVERIFY(std::abs(samples->front().bound.value() - 0.04951) < 1e-4);
    QVERIFY(samples->front().time.isValid());
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.confirmedLines(), confirmed);
}

void tst_Review::firstWrongOneSplits()
{
    ReviewFixture fixture;
    fixture.choose("kein Unterschied");
    const int confirmed = fixture.confirmedLines();
    ModalScript script;
    draw(script, 20);
    fixture.press(Qt::Key_T, Qt::ControlModifier);
    fixture.press(Qt::Key_Plus);
    const LineRef wrong = fixture.here();
    QStringList parts;
    script.then([&parts](QWidget *dialog) {
        auto *const list = dialog->findChild<QListView *>();
        for (int row = 0; row < list->model()->rowCount(); ++row)
            parts << list->model()->index(row, 0).data().toString();
        list->setFocus();
        list->setCurrentIndex(list->model()->index(1, 0));
        QTest::keyClick(list, Qt::Key_Return);
    });
    fixture.press(Qt::Key_Minus);
    QVERIFY(script.isDone());
    QVERIFY(!fixture.review()->sample());
    QCOMPARE(fixture.confirmedLines(), confirmed);
    // One pattern falls apart by projects.
    QVERIFY2(parts.size() > 2, qPrintable(parts.join('\n')));
    QCOMPARE(parts.filter("dort war die falsche").size(), 1);
    const std::vector<ReviewCommands::Place> rest = fixture.review()->lines();
    QVERIFY(!rest.empty());
    for (const ReviewCommands::Place &place : rest)
        QVERIFY(fixture.review()->work()->lineAt(place) != wrong);
    QVERIFY2(parts[1].startsWith(fixture.here().project.path), qPrintable(parts[1]));
    const PJsonValue note = recordsOf(*fixture.document(), "sample").first().value("note");
    QCOMPARE(note.value("judged").toInt(), 2);
    QCOMPARE(note.value("right").toInt(), 1);
    QVERIFY(!note.contains("bound"));
    QString error;
    const auto samples = VelkRelease::readJudgedSamples(fixture.document()->mappingFile(), &error);
    QVERIFY(samples && samples->size() == 1);
    QVERIFY(!samples->front().bound);
    QCOMPARE(samples->front().drawn.size(), 2);
}

void tst_Review::selectedLinesBySample()
{
    ReviewFixture fixture;
    QVERIFY(fixture.window->editor()->selectProject(din933));
    fixture.sourceView()->setFocus();
    fixture.press(Qt::Key_A, Qt::ControlModifier);
    ModalScript script;
    draw(script, 2);
    fixture.press(Qt::Key_T, Qt::ControlModifier);
    QVERIFY(fixture.review()->sample());
    QCOMPARE(fixture.review()->sample()->drawn().size(), 2U);
    QVERIFY(fixture.review()->sample()->lines().size() > 40);
    // Who looks elsewhere judges nothing.
    fixture.window->editor()->selectLine(1);
    const int judged = fixture.review()->sample()->judged();
    if (fixture.review()->work()->placeOf(fixture.here()) !=
        fixture.review()->sample()->current()) {
        fixture.press(Qt::Key_Plus);
        QCOMPARE(fixture.review()->sample()->judged(), judged);
    }
}

void tst_Review::agreedReplacement()
{
    ReviewFixture fixture;
    fixture.choose("Werkstoff: FP → FKM");
    ModalScript script;
    QString evidence;
    script.then([&evidence](QWidget *dialog) {
        auto *const list = dialog->findChild<QListWidget *>("ReplacementList");
        QCOMPARE(list->count(), 1);
        QTest::mouseClick(dialog->findChild<QPushButton *>("evidenceButton"), Qt::LeftButton);
        evidence = dialog->findChild<QLabel *>("ReplacementEvidence")->text();
        QTest::mouseClick(dialog->findChild<QPushButton *>("agreeButton"), Qt::LeftButton);
        QTest::mouseClick(dialog->findChild<QPushButton *>("acceptButton"), Qt::LeftButton);
    });
    fixture.press(Qt::Key_E, Qt::ControlModifier);
    QVERIFY(script.isDone());
    QVERIFY2(evidence.startsWith("69 Zeilen dafür, "), qPrintable(evidence));
    const QList<AgreedReplacement> agreed = fixture.document()->release().getReplacements();
    QCOMPARE(agreed, (QList<AgreedReplacement>{{{}, "Werkstoff", "FP", "FKM", {}, {}}}));
    fixture.waitForPatterns();
    QVERIFY(QTest::qWaitFor([&] { return !fixture.review()->work()->isReading(); }, 20000));
    const int pattern = fixture.model()->patternAt(fixture.rowOf("Werkstoff: FP → FKM"));
    QVERIFY(fixture.review()->work()->patterns().changes(pattern).first().agreed);
    // Kept in the file, in the journal, and one step of undo.
    QVERIFY(fixture.document()->save().result == SaveResult::Saved);
    MappingFile file;
    QVERIFY(file.read(fixture.document()->mappingFile()));
    QCOMPARE(file.releases().last().getReplacements(), agreed);
    JournalReader reader;
    QVERIFY(reader.read(fixture.document()->journalFile(), nullptr));
    const JournalReplay replay = JournalReplay::run(reader.sessions().last(), ReleaseMappingC(), 0,
                                                    JournalReplay::Extent::Unbroken);
    QCOMPARE(replay.release.getReplacements(), agreed);
    fixture.document()->undo();
    QVERIFY(fixture.document()->release().getReplacements().isEmpty());
    fixture.document()->redo();
    QCOMPARE(fixture.document()->release().getReplacements(), agreed);
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

void tst_Review::neighboursAreMendedInOneStep()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    MappingDocument *const document = fixture.window->desk()->document();
    const NeighbourWork *const work = fixture.window->neighbours()->work();
    const auto isChecked = [&] {
        return !work->isReading() && work->checkedLines() > 0;
    };
    QVERIFY(fixture.window->neighbours()->dock()->isHidden());
    fixture.press(Qt::Key_F7, Qt::ControlModifier);
    auto *const list = fixture.window->findChild<QTreeView *>("NeighbourList");
    const QAbstractItemModelTester tester(list->model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(QApplication::focusWidget(), list);
    QVERIFY(QTest::qWaitFor(isChecked, 20000));
    const int before = list->model()->rowCount();
    // Ten lines of a project are moved one line on.
    QVERIFY(fixture.window->editor()->selectProject(din933));
    const ProjectId project = fixture.window->editor()->currentProject();
    const PrjMappingC right = document->mapping(project);
    VelkRelease::LineEdits edits(right);
    const LineTable &lines = right.targetAt(0).lines();
    LineTable::Iterator entry = lines.begin();
    std::advance(entry, 10);
    const int first = entry.sourceLine();
    int last = first;
    for (int i = 0; i < 10; ++i) {
        last = entry.sourceLine();
        const LineTable::Iterator next = std::next(entry);
        edits.assign(last, 0, next.targetLine(), PRJMAPPING::Verified);
        entry = next;
    }
    document->updateMapping(edits.mapping());
    QVERIFY(QTest::qWaitFor([&] { return list->model()->rowCount() > before; }, 20000));
    QVERIFY(QTest::qWaitFor(isChecked, 20000));
    const QString text = QString("Zeilen %1 bis %2 sind um 1 verschoben").arg(first).arg(last);
    int row = 0;
    while (row < list->model()->rowCount() && list->model()->index(row, 0).data() != text)
        ++row;
    QVERIFY2(row < list->model()->rowCount(), qPrintable(text));
    QVERIFY2(fixture.window->findChild<QLabel *>("NeighbourSum")
                 ->text()
                 .endsWith(QString("%1 Fundstelle%2").arg(before + 1).arg(before == 0 ? "" : "n")),
             qPrintable(fixture.window->findChild<QLabel *>("NeighbourSum")->text()));
    list->setFocus();
    list->setCurrentIndex(list->model()->index(row, 0));
    fixture.press(Qt::Key_Return);
    QCOMPARE(fixture.window->editor()->currentLine(), first);
    const PrjMappingC shifted = document->mapping(project);
    const int steps = int(document->undoTexts().size());
    fixture.press(Qt::Key_M, Qt::ControlModifier);
    QCOMPARE(document->mapping(project).targetAt(0).getMappedLine(first).getTargetLineId(),
             right.targetAt(0).getMappedLine(first).getTargetLineId());
    QCOMPARE(document->mapping(project).targetAt(0).getMappedLine(last).getTargetLineId(),
             right.targetAt(0).getMappedLine(last).getTargetLineId());
    // Gone at once, and a single step.
    QCOMPARE(list->model()->rowCount(), before);
    QCOMPARE(document->undoTexts().size(), steps + 1);
    QVERIFY2(document->undoText().startsWith("Behoben: " + text), qPrintable(document->undoText()));
    QVERIFY(QTest::qWaitFor(isChecked, 20000));
    QCOMPARE(list->model()->rowCount(), before);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(LineTable::isSame(document->mapping(project).targetAt(0).lines(),
                              shifted.targetAt(0).lines()));
    QVERIFY(QTest::qWaitFor([&] { return list->model()->rowCount() == before + 1; }, 20000));
    // Closed while it looks.
    document->close();
    QCOMPARE(list->model()->rowCount(), 0);
}

QTEST_MAIN(tst_Review)
#include "tst_Review.moc"
