#include "ReviewFixture.h"

#include <workbench/review/NeighbourDock.h>
#include <workbench/session/journal/JournalReader.h>
#include <workbench/session/journal/JournalReplay.h>
#include <workbench/window/review/NeighbourCommands.h>

#include <core/json/PJsonValue.h>
#include <geomcore/records/MappingFile.h>
#include <release/decide/LineEdits.h>
#include <release/history/SampleHistory.h>

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QHeaderView>
#include <QListWidget>
#include <QSet>
#include <QSpinBox>
#include <QTreeView>

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

class tst_ReviewSamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void acceptedBySample();
    void firstWrongOneSplits();
    void selectedLinesBySample();
    void agreedReplacement();
    void replacementsOfAllPatterns();
    void neighboursAreMendedInOneStep();
};

void tst_ReviewSamples::acceptedBySample()
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
                 "59 von 59 richtig, mit 95 % Sicherheit weniger als 5,0 % falsch"),
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

void tst_ReviewSamples::firstWrongOneSplits()
{
    ReviewFixture fixture;
    fixture.choose("kein Unterschied");
    const int confirmed = fixture.confirmedLines();
    const ReviewWork *const work = fixture.review()->work();
    const std::vector<ReviewCommands::Place> all =
        work->patterns().places(fixture.review()->dock()->chosen());
    ModalScript script;
    draw(script, 20);
    fixture.press(Qt::Key_T, Qt::ControlModifier);
    fixture.press(Qt::Key_Plus);
    const int right = 1;
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
    // One pattern falls apart by projects; that of the wrong line may have had no other.
    QSet<int> projects;
    for (const ReviewCommands::Place &place : all) {
        if (work->lineAt(place) != wrong)
            projects.insert(place.project);
    }
    QVERIFY(projects.size() > 1);
    QVERIFY2(parts.size() == projects.size(), qPrintable(parts.join('\n')));
    QCOMPARE(parts.filter("dort war die falsche").size(),
             projects.contains(work->placeOf(wrong).project) ? 1 : 0);
    const std::vector<ReviewCommands::Place> rest = fixture.review()->lines();
    QVERIFY(!rest.empty());
    for (const ReviewCommands::Place &place : rest)
        QVERIFY(fixture.review()->work()->lineAt(place) != wrong);
    QVERIFY2(parts[1].startsWith(fixture.here().project.path), qPrintable(parts[1]));
    const PJsonValue note = recordsOf(*fixture.document(), "sample").first().value("note");
    QCOMPARE(note.value("judged").toInt(), right + 1);
    QCOMPARE(note.value("right").toInt(), right);
    QVERIFY(!note.contains("bound"));
    QString error;
    const auto samples = VelkRelease::readJudgedSamples(fixture.document()->mappingFile(), &error);
    QVERIFY(samples && samples->size() == 1);
    QVERIFY(!samples->front().bound);
    QCOMPARE(samples->front().drawn.size(), right + 1);
}

void tst_ReviewSamples::selectedLinesBySample()
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

void tst_ReviewSamples::agreedReplacement()
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
    // Withdrawn, and agreed to for the directory alone.
    fixture.waitForPatterns();
    fixture.choose("Werkstoff: FP → FKM");
    script.then([](QWidget *dialog) {
        QCOMPARE(dialog->findChild<QListWidget *>("ReplacementList")->count(), 1);
        QTest::mouseClick(dialog->findChild<QPushButton *>("withdrawButton"), Qt::LeftButton);
        auto *const folders = dialog->findChild<QComboBox *>("ReplacementFolder");
        folders->setCurrentIndex(folders->findData("standardparts/seals"));
        QTest::mouseClick(dialog->findChild<QPushButton *>("agreeButton"), Qt::LeftButton);
        QTest::mouseClick(dialog->findChild<QPushButton *>("acceptButton"), Qt::LeftButton);
    });
    fixture.press(Qt::Key_E, Qt::ControlModifier);
    QVERIFY(script.isDone());
    QCOMPARE(fixture.document()->release().getReplacements(),
             (QList<AgreedReplacement>{{"standardparts/seals", "Werkstoff", "FP", "FKM", {}, {}}}));
    script.then([](QWidget *dialog) {
        QTest::mouseClick(dialog->findChild<QPushButton *>("withdrawButton"), Qt::LeftButton);
        QTest::mouseClick(dialog->findChild<QPushButton *>("acceptButton"), Qt::LeftButton);
    });
    fixture.press(Qt::Key_E, Qt::ControlModifier);
    QVERIFY(script.isDone());
    QVERIFY(fixture.document()->release().getReplacements().isEmpty());
}

/// Without a chosen pattern what all of them have to offer, once each; before there are patterns a
/// word instead.
void tst_ReviewSamples::replacementsOfAllPatterns()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    ModalScript script;
    QStringList before;
    script.then([&before](QWidget *dialog) {
        before = {QString::number(dialog->findChild<QListWidget *>("ReplacementList")->count()),
                  dialog->findChild<QLabel *>("ReplacementEvidence")->text()};
        QVERIFY(!dialog->findChild<QPushButton *>("evidenceButton")->isEnabled());
        dialog->close();
    });
    fixture.press(Qt::Key_E, Qt::ControlModifier);
    QVERIFY(script.isDone());
    QCOMPARE(before, QStringList({"0", "Keine ist vereinbart. Ist die Liste der Unterschiede "
                                       "offen, werden deren Ersetzungen hier angeboten."}));
    fixture.press(Qt::Key_F7);
    QVERIFY(
        QTest::qWaitFor([&] { return fixture.window->review()->work()->hasPatterns(); }, 20'000));
    QVERIFY(QTest::qWaitFor([&] { return !fixture.window->review()->work()->isReading(); }, 20000));
    QStringList offered;
    QString said = QStringLiteral("not asked");
    script.then([&](QWidget *dialog) {
        const auto *const list = dialog->findChild<QListWidget *>("ReplacementList");
        for (int row = 0; row < list->count(); ++row)
            offered += list->item(row)->text();
        said = dialog->findChild<QLabel *>("ReplacementEvidence")->text();
        QVERIFY(dialog->findChild<QPushButton *>("evidenceButton")->isEnabled());
        dialog->close();
    });
    fixture.press(Qt::Key_E, Qt::ControlModifier);
    QVERIFY(script.isDone());
    QVERIFY2(offered.contains("Werkstoff: FP → FKM"), qPrintable(offered.join(u'\n')));
    QVERIFY2(offered.contains("s: − 1"), qPrintable(offered.join(u'\n')));
    QCOMPARE(QSet<QString>(offered.begin(), offered.end()).size(), offered.size());
    QCOMPARE(said, QString());
}

void tst_ReviewSamples::neighboursAreMendedInOneStep()
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
    // Also in a narrow list all of it can be read.
    QDockWidget *const dock = fixture.window->neighbours()->dock();
    fixture.window->resizeDocks({dock}, {10}, Qt::Horizontal);
    QTRY_COMPARE(list->header()->length(), list->viewport()->width());
    for (int column = 0; column < list->model()->columnCount(); ++column) {
        const QModelIndex index = list->model()->index(row, column);
        const int wanted = list->fontMetrics().horizontalAdvance(index.data().toString());
        list->scrollTo(index);
        const QRect place = list->visualRect(index);
        QVERIFY(place.height() / list->fontMetrics().height() * place.width() >= wanted);
    }
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

QTEST_MAIN(tst_ReviewSamples)
#include "tst_ReviewSamples.moc"
