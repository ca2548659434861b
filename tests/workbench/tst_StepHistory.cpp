#include "RecoveryVictim.h"
#include "SessionFixture.h"

#include <release/history/DecisionHistory.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/history/UndoHistory.h>

#include <geomcore/records/MappingFile.h>

#include <QProcess>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

using State = UndoStep::State;

const QString Path = QStringLiteral("cat/a.prj");
const QString Other = QStringLiteral("cat/screws/b.prj");

} // namespace

/// The steps of a mapping file over its sessions, and taking back any of them.
class tst_StepHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void survivesARestart();
    void ofAnotherProgramRun();
    void whatWasDiscardedIsNotThere();
    void afterACrash();
    void redoSurvivesARestart();
    void tellsWhoAndWhen();
    void othersAreNotUndoneByTheWay();
    void overtakenStepsArePassed();
    void anotherReleaseHasItsOwn();
    void madeAnew();
    void putAsideJournals();
    void middleStepAlone();
    void middleStepWithThoseThatBuildOnIt();
    void branchStaysInTheList();
    void branchThatIsInTheWay();
    void targetsInTheMiddle();
    void projectsInTheMiddle();
    void conflictMarksStay();
    void replacementsAndDates();
    void manySteps();
    void anyOrder();

private:
    MappingDocument &open(const QString &date = {});
    void confirm(const QList<int> &lines, const QString &path = Path, int state = 2);
    void setTarget(int line, int target);
    [[nodiscard]] int targetOf(int line) const;
    [[nodiscard]] int stateOf(int line, const QString &path = Path) const;
    void save() { QCOMPARE(m_document->save().result, SaveResult::Saved); }
    [[nodiscard]] QStringList standing() const;
    bool move(int index) { return m_document->moveSteps(m_document->planStep(index)); }

    std::unique_ptr<SessionFixture> m_files;
    std::unique_ptr<MappingDocument> m_document;
    QString m_file;
};

void tst_StepHistory::init()
{
    m_files = std::make_unique<SessionFixture>();
    m_file = m_files->write();
    open();
}

void tst_StepHistory::cleanup()
{
    m_document.reset();
    m_files.reset();
}

/// As by another start of the program.
MappingDocument &tst_StepHistory::open(const QString &date)
{
    m_document.reset();
    m_document = std::make_unique<MappingDocument>();
    m_document->open({m_file, date, {}, {}, MappingDocument::Recovery::UseRecovered});
    return *m_document;
}

void tst_StepHistory::confirm(const QList<int> &lines, const QString &path, int state)
{
    m_document->updateMapping(
        SessionFixture::withState(m_document->mapping(projectId(path)), lines, state));
    m_document->finishStep();
}

void tst_StepHistory::setTarget(int line, int targetLine)
{
    PrjMappingC mapping = m_document->mapping(projectId(Path));
    PrjMappingTargetC target = mapping.findTarget(0);
    target.addLineId(line, targetLine, PRJMAPPING::Verified, QString());
    mapping.updateTarget(0, target);
    m_document->updateMapping(mapping);
    m_document->finishStep();
}

int tst_StepHistory::targetOf(int line) const
{
    return m_document->mapping(projectId(Path)).findTarget(0).getMappedLine(line).getTargetLineId();
}

int tst_StepHistory::stateOf(int line, const QString &path) const
{
    return m_document->mapping(projectId(path)).findTarget(0).getMappedLine(line).getState();
}

/// "+" counts, "-" was taken back, "!" was overtaken.
QStringList tst_StepHistory::standing() const
{
    QStringList list;
    const UndoHistory &steps = m_document->steps();
    for (int i = 0; i < steps.count(); ++i) {
        const State state = steps.at(i).state;
        list += (state == State::Applied  ? "+ "
                 : state == State::Undone ? "- "
                                          : "! ") +
                steps.at(i).text;
    }
    return list;
}

void tst_StepHistory::survivesARestart()
{
    const QByteArray first = SessionFixture::bytes(m_document->release());
    confirm({1});
    confirm({2, 3});
    save();
    confirm({4}, Other);
    save();
    const QByteArray last = SessionFixture::bytes(m_document->release());
    open();
    QCOMPARE(standing(), QStringList({"+ Zeile 1 → 1 bestätigt in cat/a.prj",
                                      "+ 2 Zeilen bestätigt in cat/a.prj",
                                      "+ Zeile 4 → 4 bestätigt in cat/screws/b.prj"}));
    QVERIFY(!m_document->isModified());
    QVERIFY(!m_document->canRedo());
    QCOMPARE(m_document->undoText(), "Zeile 4 → 4 bestätigt in cat/screws/b.prj");
    QSignalSpy shown(m_document.get(), &MappingDocument::reselectRequested);
    m_document->undo();
    QCOMPARE(shown.size(), 1);
    QCOMPARE(shown.first().first().value<ProjectId>(), projectId(Other));
    m_document->undo();
    m_document->undo();
    QCOMPARE(SessionFixture::bytes(m_document->release()), first);
    QVERIFY(m_document->isModified());
    QVERIFY(!m_document->canUndo());
    m_document->redo();
    m_document->redo();
    m_document->redo();
    QCOMPARE(SessionFixture::bytes(m_document->release()), last);
    QVERIFY(!m_document->isModified());
}

/// The steps were made by another process.
void tst_StepHistory::ofAnotherProgramRun()
{
    m_document.reset();
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(),
                  {"--victim", m_file, "confirm", "more", "undo", "save", "close"});
    QVERIFY(program.waitForReadyRead(30000));
    program.kill();
    QVERIFY(program.waitForFinished());
    open();
    QCOMPARE(standing(), QStringList({"+ 3 Zeilen bestätigt in cat/a.prj",
                                      "- Zeile 5 → 5 bestätigt in cat/a.prj"}));
    m_document->undo();
    QCOMPARE(m_document->counts().verified(), 0);
    QVERIFY(move(1));
    QCOMPARE(m_document->counts().verified(), 1);
}

void tst_StepHistory::whatWasDiscardedIsNotThere()
{
    confirm({1});
    confirm({2});
    m_document->undo();
    save();
    m_document->redo();
    confirm({3});
    open(); // both discarded
    QCOMPARE(standing(), QStringList({"+ Zeile 1 → 1 bestätigt in cat/a.prj",
                                      "- Zeile 2 → 2 bestätigt in cat/a.prj"}));
    QCOMPARE(m_document->redoText(), "Zeile 2 → 2 bestätigt in cat/a.prj");
}

void tst_StepHistory::afterACrash()
{
    confirm({9});
    save();
    m_document.reset();
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(),
                  {"--victim", m_file, "confirm", "save", "more"});
    QVERIFY(program.waitForReadyRead(30000));
    program.kill();
    QVERIFY(program.waitForFinished());
    open();
    QCOMPARE(standing(), QStringList({"+ Zeile 9 → 9 bestätigt in cat/a.prj",
                                      "+ 3 Zeilen bestätigt in cat/a.prj",
                                      "+ Wiederherstellung nach einem Absturz"}));
    m_document->undo();
    m_document->undo();
    QCOMPARE(stateOf(9), 2);
    QCOMPARE(m_document->counts().verified(), 1);
}

void tst_StepHistory::redoSurvivesARestart()
{
    confirm({1});
    confirm({2});
    m_document->undo();
    m_document->undo();
    save();
    open();
    QVERIFY(!m_document->canUndo());
    QCOMPARE(m_document->redoText(), "Zeile 1 → 1 bestätigt in cat/a.prj");
    m_document->redo();
    m_document->redo();
    QCOMPARE(m_document->counts().verified(), 2);
}

void tst_StepHistory::tellsWhoAndWhen()
{
    const QDateTime begin = QDateTime::currentDateTimeUtc().addSecs(-1);
    confirm({1});
    const UndoStep now = m_document->steps().at(0);
    QCOMPARE(now.author, qEnvironmentVariable("USER", now.author));
    QVERIFY(!now.author.isEmpty());
    save();
    open();
    const UndoStep later = m_document->steps().at(0);
    QCOMPARE(later.author, now.author);
    QCOMPARE(later.key, now.key);
    QVERIFY(later.isOwn);
    QVERIFY(later.time >= begin && later.time <= QDateTime::currentDateTimeUtc());
    QCOMPARE(qAbs(later.time.msecsTo(now.time)) < 1000, true);
}

/// Adopted from a copy in which somebody else decided: undo passes them, the list has them.
void tst_StepHistory::othersAreNotUndoneByTheWay()
{
    const QString copy = m_files->path("copy.json");
    QVERIFY(QFile::copy(m_file, copy));
    {
        MappingDocument theirs;
        theirs.open({copy, {}, {}, {}, {}});
        theirs.updateMapping(SessionFixture::withState(theirs.mapping(projectId(Other)), {7}, 2));
        theirs.finishStep();
        QCOMPARE(theirs.save().result, SaveResult::Saved);
    }
    confirm({1});
    save();
    m_document.reset();
    MappingFile file;
    QVERIFY(file.read(m_file));
    ReleaseMappingC release = file.release(QStringLiteral("2022-01-01"));
    release.addMapping(SessionFixture::withState(
        release.findMapping(Other, SessionFixture::Version, QString()), {7}, 2));
    file.setRelease(release);
    QVERIFY(file.write(m_file));
    QString error;
    QVERIFY2(VelkRelease::DecisionHistory::adopt(copy, m_file, &error), qPrintable(error));
    open();
    QCOMPARE(m_document->steps().count(), 2);
    QCOMPARE(m_document->undoText(), "Zeile 1 → 1 bestätigt in cat/a.prj");
    m_document->undo();
    QVERIFY(!m_document->canUndo());
    const int theirs = m_document->steps().at(0).isOwn ? 1 : 0;
    QCOMPARE(stateOf(7, Other), 2);
    QVERIFY(move(theirs));
    QCOMPARE(stateOf(7, Other), 0);
}

/// Another program wrote other decisions into the file.
void tst_StepHistory::overtakenStepsArePassed()
{
    confirm({1});
    confirm({2});
    save();
    m_document.reset();
    MappingFile file;
    QVERIFY(file.read(m_file));
    ReleaseMappingC release = file.release(QStringLiteral("2022-01-01"));
    release.addMapping(SessionFixture::withState(
        release.findMapping(Path, SessionFixture::Version, QString()), {2}, 1));
    file.setRelease(release);
    QVERIFY(file.write(m_file));
    open();
    QCOMPARE(standing(), QStringList({"+ Zeile 1 → 1 bestätigt in cat/a.prj",
                                      "! Zeile 2 → 2 bestätigt in cat/a.prj"}));
    const StepPlan plan = m_document->planStep(1);
    QVERIFY(!plan.fits);
    QVERIFY(plan.inTheWay.isEmpty());
    QVERIFY(!m_document->moveSteps(plan));
    m_document->undo();
    QCOMPARE(stateOf(1), 0);
    QCOMPARE(stateOf(2), 1);
}

void tst_StepHistory::anotherReleaseHasItsOwn()
{
    m_files->addRelease(m_file, SessionFixture::sampleRelease(QStringLiteral("2023-01-01")));
    open(QStringLiteral("2022-01-01"));
    confirm({1});
    save();
    open(QStringLiteral("2023-01-01"));
    QCOMPARE(m_document->steps().count(), 0);
    open(QStringLiteral("2022-01-01"));
    QCOMPARE(m_document->steps().count(), 1);
}

/// A new release of the same date under the same name has no past.
void tst_StepHistory::madeAnew()
{
    confirm({1});
    save();
    SaveOptions over;
    over.overForeignChange = true;
    m_document->openNew(SessionFixture::sampleRelease(), m_file);
    QVERIFY(!m_document->canUndo());
    QCOMPARE(m_document->save(over).result, SaveResult::Saved);
    open();
    QCOMPARE(m_document->steps().count(), 0);
}

void tst_StepHistory::putAsideJournals()
{
    confirm({1});
    save();
    const QString journal = m_document->journalFile();
    m_document.reset();
    QVERIFY(QFile::rename(journal, journal + ".alt-20260101-000000Z"));
    open();
    QCOMPARE(m_document->steps().count(), 1);
    m_document->undo();
    QCOMPARE(stateOf(1), 0);
}

void tst_StepHistory::middleStepAlone()
{
    confirm({1});
    confirm({2});
    confirm({3}, Other);
    const StepPlan plan = m_document->planStep(0);
    QVERIFY(plan.fits);
    QCOMPARE(plan.steps, QList<int>{0});
    QSignalSpy done(m_document.get(), &MappingDocument::stepDone);
    QVERIFY(m_document->moveSteps(plan));
    QCOMPARE(done.first().first().toString(), "Rückgängig: Zeile 1 → 1 bestätigt in cat/a.prj");
    QCOMPARE(stateOf(1), 0);
    QCOMPARE(stateOf(2), 2);
    QCOMPARE(stateOf(3, Other), 2);
    // Redo brings it back, undo goes on with the last that counts.
    QCOMPARE(m_document->redoText(), "Zeile 1 → 1 bestätigt in cat/a.prj");
    QCOMPARE(m_document->undoText(), "Zeile 3 → 3 bestätigt in cat/screws/b.prj");
    m_document->undo();
    m_document->undo();
    QCOMPARE(m_document->counts().verified(), 0);
    QVERIFY(!m_document->isModified());
}

void tst_StepHistory::middleStepWithThoseThatBuildOnIt()
{
    confirm({1});
    setTarget(1, 5);
    confirm({2});
    setTarget(1, 6);
    const StepPlan plan = m_document->planStep(0);
    QVERIFY(plan.fits);
    QCOMPARE(plan.steps, QList<int>({3, 1, 0}));
    QCOMPARE(m_document->planStep(1).steps, QList<int>({3, 1}));
    QVERIFY(m_document->moveSteps(plan));
    QCOMPARE(stateOf(1), 0);
    QCOMPARE(targetOf(1), 1);
    QCOMPARE(stateOf(2), 2);
    // Taken again, it brings those along on which it builds.
    const StepPlan again = m_document->planStep(3);
    QVERIFY(again.fits);
    QCOMPARE(again.steps, QList<int>({0, 1, 3}));
    QVERIFY(m_document->moveSteps(again));
    QCOMPARE(targetOf(1), 6);
}

void tst_StepHistory::branchStaysInTheList()
{
    confirm({1});
    setTarget(2, 7);
    m_document->undo();
    m_document->undo();
    confirm({3});
    QVERIFY(!m_document->canRedo());
    QCOMPARE(standing(), QStringList({"- Zeile 1 → 1 bestätigt in cat/a.prj",
                                      "- Zeile 2 → 7 bestätigt (vorher 2) in cat/a.prj",
                                      "+ Zeile 3 → 3 bestätigt in cat/a.prj"}));
    save();
    open();
    QVERIFY(move(1));
    QCOMPARE(targetOf(2), 7);
    QCOMPARE(stateOf(3), 2);
    QCOMPARE(m_document->undoText(), "Zeile 2 → 7 bestätigt (vorher 2) in cat/a.prj");
    m_document->undo();
    QCOMPARE(targetOf(2), 2);
}

void tst_StepHistory::branchThatIsInTheWay()
{
    setTarget(1, 5);
    m_document->undo();
    setTarget(1, 6);
    const StepPlan plan = m_document->planStep(0);
    QVERIFY(!plan.fits);
    QCOMPARE(plan.inTheWay, QList<int>{1});
    QVERIFY(!m_document->moveSteps(plan));
    QCOMPARE(targetOf(1), 6);
    m_document->undo();
    QVERIFY(move(0));
    QCOMPARE(targetOf(1), 5);
}

/// A target that came is taken back, or not, whatever its place among the others is now.
void tst_StepHistory::targetsInTheMiddle()
{
    const auto add = [this](const QString &path, int at, int line) {
        PrjMappingC mapping = m_document->mapping(projectId(Path));
        PrjMappingTargetC target;
        target.setTargetPath(path);
        target.setValid(true);
        if (line > 0)
            target.addLineId(line, 3, PRJMAPPING::Verified, QString());
        mapping.insertTarget(at, target);
        m_document->updateMapping(mapping);
        m_document->finishStep();
    };
    const auto paths = [this] {
        QStringList list;
        const PrjMappingC mapping = m_document->mapping(projectId(Path));
        for (int i = 0; i < mapping.countTargets(); ++i)
            list += mapping.targetAt(i).getTargetPath();
        return list;
    };
    add("new/u.prj", 0, 20); // 0
    confirm({1}, Other);     // 1
    add("new/v.prj", 0, 0);  // 2
    PrjMappingC mapping = m_document->mapping(projectId(Path));
    PrjMappingTargetC target = mapping.findTarget(2);
    QCOMPARE(target.getTargetPath(), "new/t.prj");
    target.addLineId(2, 9, PRJMAPPING::Verified, QString());
    mapping.updateTarget(2, target);
    m_document->updateMapping(mapping); // 3
    m_document->finishStep();
    QCOMPARE(paths(), QStringList({"new/v.prj", "new/u.prj", "new/t.prj"}));
    QCOMPARE(m_document->planStep(0).steps, QList<int>{0});
    QVERIFY(move(0));
    QCOMPARE(paths(), QStringList({"new/v.prj", "new/t.prj"}));
    QVERIFY(move(2));
    QCOMPARE(paths(), QStringList{"new/t.prj"});
    QCOMPARE(targetOf(2), 9);
    QVERIFY(move(0));
    QCOMPARE(paths(), QStringList({"new/u.prj", "new/t.prj"}));
    QCOMPARE(targetOf(20), 3);
    // A line that came into the target later stands in the way of its going.
    mapping = m_document->mapping(projectId(Path));
    target = mapping.findTarget(0);
    target.addLineId(21, 4, PRJMAPPING::Verified, QString());
    mapping.updateTarget(0, target);
    m_document->updateMapping(mapping); // 4
    m_document->finishStep();
    QCOMPARE(m_document->planStep(0).steps, QList<int>({4, 0}));
}

void tst_StepHistory::projectsInTheMiddle()
{
    m_document->updateMapping(SessionFixture::plainMapping(QStringLiteral("cat/new.prj"), 5));
    m_document->finishStep();
    confirm({1});
    QCOMPARE(m_document->planStep(0).steps, QList<int>{0});
    m_document->updateMapping(
        SessionFixture::withState(m_document->mapping(projectId("cat/new.prj")), {2}, 2));
    m_document->finishStep();
    QCOMPARE(m_document->planStep(0).steps, QList<int>({2, 0}));
    QVERIFY(move(0));
    QVERIFY(!m_document->mapping(projectId("cat/new.prj")).isValid());
    QCOMPARE(stateOf(1), 2);
    QCOMPARE(m_document->counts().lines(), 30);
}

/// Marks are no steps; a step in the middle neither minds nor loses them.
void tst_StepHistory::conflictMarksStay()
{
    confirm({1});
    confirm({2});
    PrjMappingC mapping = m_document->mapping(projectId(Path));
    PrjMappingTargetC target = mapping.findTarget(0);
    target.setLineConflicted(1, true);
    mapping.updateTarget(0, target);
    m_document->updateMapping(mapping);
    m_document->finishStep();
    QVERIFY(move(0));
    QVERIFY(m_document->mapping(projectId(Path)).findTarget(0).getLineConflicted(1));
    QCOMPARE(stateOf(1), 0);
    save();
    open();
    QCOMPARE(m_document->steps().count(), 2); // the mark is none
}

void tst_StepHistory::replacementsAndDates()
{
    m_document->setReplacements({{"cat", "A", "x", "y", {}, {}}}, "Erste");
    confirm({1});
    m_document->setReplacements({}, "Zweite");
    ReleaseMappingC dated = m_document->release();
    dated.setTargetDate(QStringLiteral("2027-01-01"));
    m_document->replaceRelease(dated, "Datum");
    save();
    open();
    QCOMPARE(m_document->planStep(0).steps, QList<int>({2, 0}));
    QVERIFY(move(2));
    QCOMPARE(m_document->release().getReplacements().size(), 1);
    QCOMPARE(m_document->release().getTargetDate(), "2027-01-01");
    QVERIFY(move(3));
    QCOMPARE(m_document->release().getTargetDate(), "2026-01-01");
    QVERIFY(move(0));
    QVERIFY(m_document->release().getReplacements().isEmpty());
    QCOMPARE(stateOf(1), 2);
}

void tst_StepHistory::manySteps()
{
    constexpr int Steps = 2500;
    const QByteArray first = SessionFixture::bytes(m_document->release());
    for (int step = 0; step < Steps; ++step)
        confirm({1 + step % 10}, Path, (step / 10) % 2 == 0 ? 2 : 1);
    QCOMPARE(m_document->steps().count(), Steps);
    save();
    open();
    QCOMPARE(m_document->steps().count(), Steps);
    for (int step = 0; step < Steps; ++step)
        m_document->undo();
    QCOMPARE(SessionFixture::bytes(m_document->release()), first);
}

/// Whatever is taken back and again in whatever order: what counts is what the steps that count
/// did, and nothing else is lost.
void tst_StepHistory::anyOrder()
{
    QRandomGenerator random(7);
    const auto pick = [&random](int below) {
        return int(random.bounded(below));
    };
    for (int round = 0; round < 400; ++round) {
        const int count = m_document->steps().count();
        const int deed = pick(6);
        if (deed < 3 || count == 0) {
            confirm({1 + pick(10), 1 + pick(10)}, pick(2) == 0 ? Path : Other, pick(3));
        } else if (deed == 3) {
            m_document->undo();
        } else if (deed == 4) {
            m_document->redo();
        } else {
            const StepPlan plan = m_document->planStep(pick(count));
            const bool moved = m_document->moveSteps(plan);
            QCOMPARE(moved, plan.fits);
        }
        if (round % 40 == 39) {
            save();
            const QStringList before = standing();
            open();
            QCOMPARE(standing(), before);
        }
    }
    // All of them can be taken back.
    while (m_document->canUndo())
        m_document->undo();
    QVERIFY(!standing().join(u'\n').contains("+ "));
    QCOMPARE(SessionFixture::bytes(m_document->release()),
             SessionFixture::bytes(SessionFixture::sampleRelease()));
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const SessionFixture german;
    if (arguments.value(1) == u"--victim")
        return runVictim(arguments);
    tst_StepHistory test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_StepHistory.moc"
