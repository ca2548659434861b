#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcore/records/MappingFile.h>
#include <release/decide/LineEdits.h>
#include <workbench/review/ConflictDock.h>
#include <workbench/review/ConflictModel.h>
#include <workbench/review/ConflictSidesModel.h>
#include <workbench/review/DifferenceModel.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/review/ConflictCommands.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QLabel>
#include <QTableView>
#include <QTreeView>

namespace {

const QString Screws = QStringLiteral("standardparts/screws/din933.prj");
const QString Seals = QStringLiteral("standardparts/seals/din3760.prj");

/// A workbench whose file somebody else writes too.
class ConflictFixture : public WindowFixture
{
public:
    ConflictFixture() { open(file); }

    const QString file = mappingFile();
    ModalScript script;

    [[nodiscard]] MappingDocument *document() const { return window->desk()->document(); }
    [[nodiscard]] const ConflictList &list() const { return window->conflicts()->list(); }
    [[nodiscard]] ConflictDock *dock() const { return window->conflicts()->dock(); }
    [[nodiscard]] QTreeView *view() const { return window->findChild<QTreeView *>("ConflictView"); }
    [[nodiscard]] QAbstractItemModel *sides() const
    {
        return window->findChild<QTableView *>("ConflictSides")->model();
    }
    [[nodiscard]] QString counter() const
    {
        return window->findChild<QLabel *>("ConflictCounter")->text();
    }
    [[nodiscard]] static PrjMappingC find(const ReleaseMappingC &release, const QString &path)
    {
        for (int i = 0; i < release.countMappings(); ++i) {
            if (release.mappingAt(i).getSourcePath() == path)
                return release.mappingAt(i);
        }
        return {};
    }
    [[nodiscard]] static PrjMappingC decided(const PrjMappingC &mapping, int line, int target)
    {
        VelkRelease::LineEdits edits(mapping);
        if (target < 0)
            edits.expire(line);
        else
            edits.assign(line, 0, target, PRJMAPPING::Verified);
        PrjMappingC changed = edits.mapping();
        changed.updateMappingState();
        return changed;
    }
    void decide(const QString &path, int line, int target) const
    {
        document()->updateMapping(decided(find(document()->release(), path), line, target));
        document()->finishStep();
        QCoreApplication::processEvents();
    }
    void othersDecide(const QString &path, int line, int target) const
    {
        MappingFile stored;
        QVERIFY(stored.read(file));
        ReleaseMappingC release = stored.releases().first();
        release.addMapping(decided(find(release, path), line, target));
        stored.setRelease(release);
        QVERIFY(stored.write(file));
    }
    /// Saves over the foreign change and has it merged.
    void merge()
    {
        script.thenClick("answerRefuse");
        script.thenClick("answerAccept");
        QVERIFY(!window->desk()->save());
        QCoreApplication::processEvents();
    }
    /// "7", "7!" in conflict, "-" without target.
    [[nodiscard]] QString line(const QString &path, int number) const
    {
        const PrjMappingC mapping = find(document()->release(), path);
        for (const PrjMappingTargetC &target : mapping.getTargets()) {
            if (!target.containsLine(number))
                continue;
            const PrjMappingTargetLineC entry = target.getMappedLine(number);
            return (entry.getTargetLineId() == -1 ? QString("-")
                                                  : QString::number(entry.getTargetLineId())) +
                   (entry.getConflict() ? "!" : "");
        }
        return "?";
    }
    [[nodiscard]] LineRef here() const
    {
        return {window->editor()->currentProject(), window->editor()->currentLine()};
    }
    /// The row of the sides that begins so.
    [[nodiscard]] QStringList side(const QString &name) const
    {
        for (int row = 0; row < sides()->rowCount(); ++row) {
            if (sides()->index(row, 0).data().toString() != name)
                continue;
            QStringList cells;
            for (int column = 1; column < sides()->columnCount(); ++column)
                cells << sides()->index(row, column).data().toString();
            return cells;
        }
        return {};
    }
};

} // namespace

/// Lines that two modellers decided differently, settled one by one.
class tst_ConflictWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listOfAllProjects();
    void sidesOfOne();
    void keysDecide();
    void decidedAnew();
    void oneQuestionForMany();
    void oneByOne();
    void undoReopens();
    void decidedInTheEditor();
    void conflictsOfAnotherMerge();
    void savingTellsWhatIsOpen();
    void nothingInConflict();
};

void tst_ConflictWalk::listOfAllProjects()
{
    ConflictFixture fixture;
    const QAbstractItemModelTester tester(fixture.view()->model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QAbstractItemModelTester sides(fixture.sides(),
                                         QAbstractItemModelTester::FailureReportingMode::QtTest);
    fixture.decide(Seals, 2, 5);
    fixture.decide(Screws, 3, 7);
    fixture.othersDecide(Screws, 3, 8);
    fixture.othersDecide(Seals, 2, 6);
    fixture.othersDecide(Seals, 4, 4); // no conflict
    QVERIFY(!fixture.dock()->isVisible());
    fixture.merge();
    QVERIFY(fixture.dock()->isVisible());
    QCOMPARE(fixture.window->focusWidget(), fixture.view());
    QCOMPARE(fixture.list().count(), 2);
    QCOMPARE(fixture.list().openCount(), 2);
    QCOMPARE(fixture.counter(), "2 von 2 Konflikten noch offen.");
    QStringList first;
    for (int column = 0; column < ConflictModel::ColumnCount; ++column)
        first << fixture.view()->model()->index(0, column).data().toString();
    QCOMPARE(first.at(0), Screws);
    QCOMPARE(first.at(1), "3");
    QVERIFY2(first.at(2).endsWith("Zeile 7, bestätigt"), qPrintable(first.at(2)));
    QVERIFY2(first.at(3).endsWith("Zeile 8, bestätigt"), qPrintable(first.at(3)));
    QCOMPARE(first.at(4), "offen");
    // Enter shows the line.
    fixture.press(Qt::Key_Return);
    QCOMPARE(fixture.here().project.path, Screws);
    QCOMPARE(fixture.here().line, 3);
}

void tst_ConflictWalk::sidesOfOne()
{
    ConflictFixture fixture;
    fixture.decide(Screws, 3, 7);
    fixture.othersDecide(Screws, 3, 8);
    const QString before = fixture.line(Screws, 1);
    fixture.merge();
    QVERIFY(before != "?");
    const QStringList state = fixture.side("Zustand");
    QCOMPARE(state.size(), int(ConflictSides::SideCount));
    QCOMPARE(state.mid(2), QStringList({"bestätigt", "bestätigt"}));
    const QStringList target = fixture.side("Zielzeile");
    QVERIFY2(target.at(ConflictSides::Ours).startsWith("7  "), qPrintable(target.join('|')));
    QVERIFY2(target.at(ConflictSides::Theirs).startsWith("8  "), qPrintable(target.join('|')));
    QVERIFY(!target.at(ConflictSides::Source).isEmpty());
    // Rows that differ come first and are marked; values of the target lines follow.
    const QAbstractItemModel &sides = *fixture.sides();
    bool differed = true;
    int different = 0;
    int values = 0;
    for (int row = 0; row < sides.rowCount(); ++row) {
        const QModelIndex ours = sides.index(row, 1 + ConflictSides::Ours);
        const QModelIndex theirs = sides.index(row, 1 + ConflictSides::Theirs);
        const bool differs = ours.data().toString() != theirs.data().toString();
        QVERIFY(differed || !differs);
        differed = differs;
        different += differs;
        values += !sides.index(row, 1).data().toString().isEmpty();
        using Marks = QList<QPair<int, int>>;
        const auto marks = [](const QModelIndex &index) {
            return index.data(DifferenceModel::MarksRole).value<Marks>();
        };
        QCOMPARE(!marks(ours).isEmpty() || !marks(theirs).isEmpty(), differs);
        QCOMPARE(ours.data(DifferenceModel::OutcomeRole).toInt() != ComparedVariableC::Equal,
                 differs);
    }
    QVERIFY(different >= 2);
    QVERIFY(values >= 3);
}

void tst_ConflictWalk::keysDecide()
{
    ConflictFixture fixture;
    for (const int line : {1, 2, 3}) {
        fixture.decide(line == 2 ? Seals : Screws, line, 7);
        fixture.othersDecide(line == 2 ? Seals : Screws, line, line == 3 ? -1 : 8);
    }
    fixture.merge();
    QCOMPARE(fixture.list().openCount(), 3);
    const qsizetype steps = fixture.document()->undoTexts().size();
    fixture.press(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(fixture.line(Screws, 1), "7");
    QCOMPARE(fixture.document()->undoTexts().size(), steps + 1);
    QCOMPARE(fixture.counter(), "2 von 3 Konflikten noch offen.");
    // It goes on to the next one.
    QTRY_COMPARE(fixture.here().line, 3);
    QCOMPARE(fixture.window->status()->note(), "Konflikt 2 von 3, noch 2 offen");
    fixture.press(Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(fixture.line(Screws, 3), "-");
    QCOMPARE(fixture.document()->undoTexts().size(), steps + 2);
    QTRY_COMPARE(fixture.here().project.path, Seals);
    QTest::mouseClick(fixture.window->findChild<QPushButton *>("conflictTheirs"), Qt::LeftButton);
    QCOMPARE(fixture.line(Seals, 2), "8");
    QCOMPARE(fixture.counter(), "Alle Konflikte sind entschieden.");
    QVERIFY(fixture.document()->conflictedProjects().isEmpty());
    fixture.press(Qt::Key_F6, Qt::ControlModifier);
    QCOMPARE(fixture.window->status()->note(), "Alle Konflikte sind entschieden; nun speichern");
    QCOMPARE(fixture.list().at(0).outcome, ConflictEntry::Ours);
    QCOMPARE(fixture.list().at(1).outcome, ConflictEntry::Theirs);
}

void tst_ConflictWalk::decidedAnew()
{
    ConflictFixture fixture;
    fixture.decide(Screws, 1, 7);
    fixture.othersDecide(Screws, 1, 8);
    fixture.merge();
    fixture.press(Qt::Key_3, Qt::ControlModifier);
    QCOMPARE(fixture.line(Screws, 1), "-");
    QCOMPARE(fixture.list().at(0).outcome, ConflictEntry::Anew);
    QTRY_COMPARE(fixture.here().line, 1);
    QCOMPARE(fixture.document()->undoText(), "1 Konflikt: neu zu entscheiden");
}

void tst_ConflictWalk::oneQuestionForMany()
{
    ConflictFixture fixture;
    for (const int line : {1, 2, 3, 4}) {
        fixture.decide(Screws, line, 7);
        fixture.othersDecide(Screws, line, line == 4 ? -1 : 8);
    }
    fixture.merge();
    QCOMPARE(fixture.counter(),
             "4 von 4 Konflikten noch offen. 2 weitere Zeilen widersprechen sich wie diese.");
    fixture.script.texts.clear();
    fixture.script.thenClick("answerCancel");
    fixture.press(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(fixture.list().openCount(), 4);
    const qsizetype steps = fixture.document()->undoTexts().size();
    fixture.script.thenClick("answerAccept");
    fixture.press(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(fixture.list().openCount(), 1);
    QCOMPARE(fixture.line(Screws, 1), "7");
    QCOMPARE(fixture.line(Screws, 3), "7");
    QCOMPARE(fixture.line(Screws, 4), "-!");
    QCOMPARE(fixture.document()->undoTexts().size(), steps + 1);
    QCOMPARE(fixture.script.texts.last(),
             "3 Zeilen von standardparts/screws/din933.prj widersprechen sich in der gleichen "
             "Weise. Gilt die Entscheidung für alle?");
    QTRY_COMPARE(fixture.here().line, 4);
}

/// Who wants them singly is asked once.
void tst_ConflictWalk::oneByOne()
{
    ConflictFixture fixture;
    for (const int line : {1, 2, 3}) {
        fixture.decide(Screws, line, 7);
        fixture.othersDecide(Screws, line, 8);
    }
    fixture.merge();
    fixture.script.thenClick("answerRefuse");
    fixture.press(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(fixture.list().openCount(), 2);
    fixture.press(Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(fixture.list().openCount(), 1);
    QCOMPARE(fixture.line(Screws, 1), "7");
    QCOMPARE(fixture.line(Screws, 2), "8");
    QVERIFY(fixture.script.isDone());
}

void tst_ConflictWalk::undoReopens()
{
    ConflictFixture fixture;
    fixture.decide(Screws, 1, 7);
    fixture.othersDecide(Screws, 1, 8);
    fixture.merge();
    fixture.press(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(fixture.list().openCount(), 0);
    fixture.document()->undo();
    QCOMPARE(fixture.list().openCount(), 1);
    QCOMPARE(fixture.line(Screws, 1), "8!");
    fixture.document()->redo();
    QCOMPARE(fixture.list().openCount(), 0);
    QCOMPARE(fixture.list().at(0).outcome, ConflictEntry::Ours);
}

/// The editor's own key confirms what stands there.
void tst_ConflictWalk::decidedInTheEditor()
{
    ConflictFixture fixture;
    fixture.decide(Screws, 1, 7);
    fixture.othersDecide(Screws, 1, 8);
    fixture.merge();
    fixture.press(Qt::Key_Return);
    fixture.press(Qt::Key_V);
    QTRY_COMPARE(fixture.list().openCount(), 0);
    QCOMPARE(fixture.line(Screws, 1), "8");
    QCOMPARE(fixture.list().at(0).outcome, ConflictEntry::Theirs);
}

/// Lines that the file has in conflict already, as after a merge on the command line.
void tst_ConflictWalk::conflictsOfAnotherMerge()
{
    ConflictFixture fixture;
    MappingFile stored;
    QVERIFY(stored.read(fixture.file));
    ReleaseMappingC release = stored.releases().first();
    PrjMappingC mapping = ConflictFixture::find(release, Screws);
    mapping.changeTarget(0, [](PrjMappingTargetC &target) { target.setLineConflicted(3, true); });
    mapping.updateMappingState();
    release.addMapping(mapping);
    stored.setRelease(release);
    QVERIFY(stored.write(fixture.file));
    fixture.window->desk()->document()->close();
    fixture.open(fixture.file);
    QCOMPARE(fixture.list().openCount(), 1);
    QVERIFY(!fixture.list().at(0).isKnown);
    fixture.press(Qt::Key_F6);
    QVERIFY(fixture.dock()->isVisible());
    const QString stands = fixture.line(Screws, 3);
    QVERIFY(stands.endsWith("!"));
    fixture.press(Qt::Key_1, Qt::ControlModifier);
    QVERIFY(fixture.window->status()->note().startsWith("Die eigene Entscheidung ist nicht"));
    QCOMPARE(fixture.list().openCount(), 1);
    fixture.press(Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(fixture.line(Screws, 3) + "!", stands);
}

void tst_ConflictWalk::savingTellsWhatIsOpen()
{
    ConflictFixture fixture;
    fixture.decide(Screws, 1, 7);
    fixture.decide(Screws, 2, 7);
    fixture.othersDecide(Screws, 1, 8);
    fixture.othersDecide(Screws, 2, 8);
    fixture.merge();
    fixture.dock()->hide();
    QString details;
    fixture.script.texts.clear();
    fixture.script.then([&](QWidget *dialog) {
        fixture.script.note(dialog);
        details = dialog->property("informativeText").toString();
        QTest::mouseClick(dialog->findChild<QPushButton *>("answerRefuse"), Qt::LeftButton);
    });
    QVERIFY(!fixture.window->desk()->save());
    QCOMPARE(fixture.script.texts, QStringList{"Noch 2 Zeilen in Konflikt, in diesen Projekten:"});
    QCOMPARE(details, Screws + ": 2 Zeilen");
    QVERIFY(fixture.dock()->isVisible());
    fixture.script.thenClick("answerAccept"); // all of them
    fixture.press(Qt::Key_1, Qt::ControlModifier);
    QVERIFY(fixture.window->desk()->save());
    MappingFile stored;
    QVERIFY(stored.read(fixture.file));
    QCOMPARE(ConflictFixture::find(stored.releases().first(), Screws)
                 .findTarget(0)
                 .getMappedLine(2)
                 .getTargetLineId(),
             7);
}

void tst_ConflictWalk::nothingInConflict()
{
    ConflictFixture fixture;
    fixture.press(Qt::Key_F6);
    QCOMPARE(fixture.counter(), "Keine Zeile ist in Konflikt.");
    fixture.press(Qt::Key_F6, Qt::ControlModifier);
    QCOMPARE(fixture.window->status()->note(), "Keine Zeile ist in Konflikt");
    fixture.press(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(fixture.window->status()->note(), "Die Zeile ist in keinem Konflikt");
}

QTEST_MAIN(tst_ConflictWalk)
#include "tst_ConflictWalk.moc"
