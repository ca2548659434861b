#include "SessionFixture.h"

#include <workbench/session/history/StepRecorder.h>
#include <workbench/session/journal/JournalReader.h>

#include <core/files/EditLock.h>
#include <core/json/PJsonValue.h>

#include <QFile>
#include <QTest>

#include <memory>

namespace {

using Kind = StepRecorder::Finished::Kind;
using Origin = StepRecorder::Origin;

const StepRecorder::Opening opening{"2022-01-01", "2026-01-01", "abc"};

PrjMappingC project(const char *path, const QList<int> &confirmed = {})
{
    return SessionFixture::withState(SessionFixture::plainMapping(QString::fromLatin1(path), 5),
                                     confirmed, 2);
}

PrjMappingC marked(const PrjMappingC &mapping, int line)
{
    PrjMappingC result = mapping;
    PrjMappingTargetC target = result.findTarget(0);
    target.setLineConflicted(line, true);
    result.updateTarget(0, target);
    return result;
}

ReleaseMappingC releaseOf(const QList<PrjMappingC> &mappings)
{
    ReleaseMappingC release;
    release.setSourceDate(opening.sourceDate);
    release.setTargetDate(opening.targetDate);
    for (const PrjMappingC &mapping : mappings)
        release.addMapping(mapping);
    return release;
}

QStringList pathsOf(const QList<ProjectId> &projects)
{
    QStringList paths;
    for (const ProjectId &id : projects)
        paths += id.path;
    return paths;
}

} // namespace

class tst_StepRecorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void nothingIsNoStep();
    void oneStepOfOneProject();
    void changesOfAProjectAreOne();
    void projectsComeInTheOrderOfTheirChanges();
    void whatCancelsOutIsNoStep();
    void whatTheHostChangedIsTold();
    void nestedStepsEndWithTheOutermost();
    void cutNesting();
    void theGivenTextCounts();
    void marksAreNoStep();
    void marksBesideAChangeAreAStep();
    void aReleaseIsReplaced();
    void aComparisonIsCarriedAlong_data();
    void aComparisonIsCarriedAlong();
    void singleChangesGoIntoTheReplacement();
    void aNewProjectGoesOutOfTheReplacement();
    void numbersOfSteps();
    void savedAndAutosaved();
    void resetForgets();

    void journalOfASession();
    void journalOfMoves_data();
    void journalOfMoves();
    void journalOfAReplacedRelease();
    void journalThatIsMadeAnew();
    void journalThatCannotBeOpened();
    void withoutAJournal();

private:
    /// The part of the journal that was written last.
    [[nodiscard]] JournalReader::Session session() const;
    /// "change 1, step 1": kinds and steps of its records.
    [[nodiscard]] QString records() const;
    void openJournal() { QVERIFY(m_steps->openJournal(m_path, opening)); }
    /// As a document does: into the journal first.
    void noteRelease(const ReleaseMappingC &before, const ReleaseMappingC &after)
    {
        m_steps->noteRelease(before, journalRelease(before, after, m_steps->nextNumber()));
    }
    ReleaseComparison journalRelease(const ReleaseMappingC &before, const ReleaseMappingC &after,
                                     int step)
    {
        const auto compared = ReleaseComparison::of(before, after, step);
        for (const QByteArray &rows : compared.rows)
            m_steps->journalRows(rows);
        return compared;
    }

    std::unique_ptr<SessionFixture> m_files;
    std::unique_ptr<StepRecorder> m_steps;
    QString m_path;
};

void tst_StepRecorder::init()
{
    m_steps = std::make_unique<StepRecorder>();
    m_files = std::make_unique<SessionFixture>();
    m_path = m_files->path(QStringLiteral("m.json.journal"));
}

JournalReader::Session tst_StepRecorder::session() const
{
    JournalReader reader;
    return reader.read(m_path) ? reader.sessions().value(reader.sessions().size() - 1)
                               : JournalReader::Session();
}

QString tst_StepRecorder::records() const
{
    QStringList texts;
    for (const QByteArray &record : session().records) {
        const PJsonValue json = JournalReader::parse(record);
        texts += json.value(QStringLiteral("kind")).toText() + u' ' +
                 QString::number(json.value(QStringLiteral("step")).toInt());
    }
    return texts.join(QStringLiteral(", "));
}

void tst_StepRecorder::nothingIsNoStep()
{
    openJournal();
    QVERIFY(!m_steps->hasChanges());
    const StepRecorder::Finished done = m_steps->finish(ReleaseMappingC());
    QCOMPARE(done.kind, Kind::Nothing);
    QVERIFY(done.changed.isEmpty());
    QVERIFY(!m_steps->history().canUndo());
    QCOMPARE(m_steps->number(), 0);
    QCOMPARE(records(), QString());
}

void tst_StepRecorder::oneStepOfOneProject()
{
    openJournal();
    const PrjMappingC after = project("a.prj", {2, 3});
    m_steps->note(project("a.prj"), after, true);
    QVERIFY(m_steps->hasChanges());
    QVERIFY(!m_steps->history().canUndo());
    const StepRecorder::Finished done = m_steps->finish(releaseOf({after}));
    QCOMPARE(done.kind, Kind::Step);
    QCOMPARE(done.step.text, QStringLiteral("2 Zeilen bestätigt in a.prj"));
    QCOMPARE(done.step.lines, std::optional(2));
    QCOMPARE(done.step.changes.size(), 1);
    QVERIFY(!done.step.releaseBefore);
    QCOMPARE(pathsOf(done.changed), QStringList{"a.prj"});
    QVERIFY(done.behindEditor.isEmpty());
    QVERIFY(!m_steps->hasChanges());
    QVERIFY(m_steps->history().canUndo());
    QCOMPARE(m_steps->history().undoStep().text, done.step.text);
    QCOMPARE(records(), QStringLiteral("change 1, step 1"));
}

void tst_StepRecorder::changesOfAProjectAreOne()
{
    const PrjMappingC before = project("a.prj");
    const PrjMappingC other = project("b.prj");
    m_steps->note(before, project("a.prj", {1}), true);
    m_steps->note(other, project("b.prj", {1}), true);
    m_steps->note(project("a.prj", {1}), project("a.prj", {1, 2}), true);
    const StepRecorder::Finished done = m_steps->finish(ReleaseMappingC());
    QCOMPARE(done.step.changes.size(), 2);
    QCOMPARE(SessionFixture::bytes(done.step.changes[0].before), SessionFixture::bytes(before));
    QCOMPARE(SessionFixture::bytes(done.step.changes[0].after),
             SessionFixture::bytes(project("a.prj", {1, 2})));
    QCOMPARE(done.step.lines, std::optional(3));
}

void tst_StepRecorder::projectsComeInTheOrderOfTheirChanges()
{
    for (const char *const path : {"c.prj", "a.prj", "b.prj", "a.prj"})
        m_steps->note(project(path), project(path, {1}), true);
    QCOMPARE(pathsOf(m_steps->finish(ReleaseMappingC()).changed),
             QStringList({"c.prj", "a.prj", "b.prj"}));
}

void tst_StepRecorder::whatCancelsOutIsNoStep()
{
    openJournal();
    m_steps->note(project("a.prj"), project("a.prj", {1}), true);
    m_steps->note(project("a.prj", {1}), project("a.prj"), true);
    QCOMPARE(m_steps->finish(ReleaseMappingC()).kind, Kind::Nothing);
    QVERIFY(!m_steps->history().canUndo());
    QVERIFY(m_steps->history().isClean());
    QVERIFY(m_steps->closeJournal(false));
    QCOMPARE(records(), QStringLiteral("change 1, change 1"));
}

void tst_StepRecorder::whatTheHostChangedIsTold()
{
    m_steps->note(project("a.prj"), project("a.prj", {1}), true);
    m_steps->note(project("b.prj"), project("b.prj", {1}), false);
    m_steps->note(project("c.prj"), project("c.prj", {1}), true);
    m_steps->note(project("c.prj", {1}), project("c.prj", {1, 2}), false);
    QCOMPARE(pathsOf(m_steps->finish(ReleaseMappingC()).behindEditor),
             QStringList({"b.prj", "c.prj"}));
    m_steps->note(project("b.prj", {1}), project("b.prj"), true);
    QVERIFY(m_steps->finish(ReleaseMappingC()).behindEditor.isEmpty());
}

void tst_StepRecorder::nestedStepsEndWithTheOutermost()
{
    QVERIFY(!m_steps->isNested());
    QVERIFY(!m_steps->end()); // there was no beginning
    m_steps->begin(QStringLiteral("outer"));
    m_steps->begin(QStringLiteral("inner"));
    QVERIFY(m_steps->isNested());
    m_steps->note(project("a.prj"), project("a.prj", {1}), true);
    QVERIFY(!m_steps->end());
    QVERIFY(m_steps->isNested());
    QVERIFY(m_steps->end());
    QVERIFY(!m_steps->isNested());
    QCOMPARE(m_steps->finish(ReleaseMappingC()).step.text, QStringLiteral("outer"));
}

void tst_StepRecorder::cutNesting()
{
    m_steps->begin(QString());
    m_steps->begin(QString());
    m_steps->cutNesting();
    QVERIFY(!m_steps->isNested());
    QVERIFY(!m_steps->end());
}

void tst_StepRecorder::theGivenTextCounts()
{
    m_steps->begin(QString());
    m_steps->note(project("a.prj"), project("a.prj", {1, 4}), true);
    QVERIFY(m_steps->end());
    QCOMPARE(m_steps->finish(ReleaseMappingC()).step.text,
             QStringLiteral("2 Zeilen bestätigt in a.prj"));
    m_steps->begin(QStringLiteral("by the host"));
    m_steps->note(project("a.prj", {1, 4}), project("a.prj"), true);
    QVERIFY(m_steps->end());
    QCOMPARE(m_steps->finish(ReleaseMappingC()).step.text, QStringLiteral("by the host"));
    // The text was that step's.
    m_steps->note(project("a.prj"), project("a.prj", {1, 4}), true);
    QCOMPARE(m_steps->finish(ReleaseMappingC()).step.text,
             QStringLiteral("2 Zeilen bestätigt in a.prj"));
}

void tst_StepRecorder::marksAreNoStep()
{
    openJournal();
    m_steps->note(project("a.prj"), marked(project("a.prj"), 1), true);
    const StepRecorder::Finished done = m_steps->finish(ReleaseMappingC());
    QCOMPARE(done.kind, Kind::ConflictsMarked);
    QCOMPARE(pathsOf(done.changed), QStringList{"a.prj"});
    QVERIFY(!m_steps->history().canUndo());
    // There is something to save, and no undo leads back.
    QVERIFY(!m_steps->history().isClean());
    QVERIFY(m_steps->closeJournal(true));
    QCOMPARE(records(), QStringLiteral("change 1"));
}

void tst_StepRecorder::marksBesideAChangeAreAStep()
{
    m_steps->note(project("a.prj"), marked(project("a.prj", {1}), 3), true);
    QCOMPARE(m_steps->finish(ReleaseMappingC()).kind, Kind::Step);
}

void tst_StepRecorder::aReleaseIsReplaced()
{
    const ReleaseMappingC before = releaseOf({project("a.prj"), project("b.prj")});
    const ReleaseMappingC after = releaseOf({project("a.prj", {1}), project("b.prj")});
    m_steps->begin(QStringLiteral("all"));
    noteRelease(before, after);
    QVERIFY(m_steps->end());
    const StepRecorder::Finished done = m_steps->finish(after);
    QCOMPARE(done.kind, Kind::Step);
    QVERIFY(done.step.changes.isEmpty());
    QCOMPARE(done.step.lines, std::optional(1));
    QCOMPARE(SessionFixture::bytes(*done.step.releaseBefore), SessionFixture::bytes(before));
    QCOMPARE(SessionFixture::bytes(*done.step.releaseAfter), SessionFixture::bytes(after));
}

/// The comparison is worked out once, before; only if the step goes on it does not tell all.
void tst_StepRecorder::aComparisonIsCarriedAlong_data()
{
    QTest::addColumn<bool>("goesOn");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("lines");
    QTest::newRow("alone") << false << QStringLiteral("compared") << 77;
    QTest::newRow("goes on") << true << QStringLiteral("2 Zeilen bestätigt in a.prj") << 2;
}

void tst_StepRecorder::aComparisonIsCarriedAlong()
{
    QFETCH(bool, goesOn);
    const ReleaseMappingC before = releaseOf({project("a.prj")});
    const PrjMappingC middle = project("a.prj", {1});
    const PrjMappingC last = project("a.prj", {1, 2});
    m_steps->noteRelease(before, {{}, 77, QStringLiteral("compared")});
    if (goesOn)
        m_steps->note(middle, last, true);
    const UndoStep step = m_steps->finish(releaseOf({goesOn ? last : middle})).step;
    QTEST(step.text, "text");
    QTEST(step.lines.value_or(0), "lines");
}

void tst_StepRecorder::singleChangesGoIntoTheReplacement()
{
    const PrjMappingC first = project("a.prj", {1});
    m_steps->begin(QString());
    m_steps->note(project("a.prj"), first, true);
    const ReleaseMappingC middle = releaseOf({first});
    const ReleaseMappingC last = releaseOf({project("a.prj", {1, 2})});
    noteRelease(middle, last);
    noteRelease(last, releaseOf({project("a.prj", {1, 2, 3})}));
    QVERIFY(m_steps->end());
    const StepRecorder::Finished done = m_steps->finish(releaseOf({project("a.prj", {1, 2, 3})}));
    QCOMPARE(SessionFixture::bytes(*done.step.releaseBefore),
             SessionFixture::bytes(releaseOf({project("a.prj")})));
    QCOMPARE(done.step.lines, std::optional(3));
}

void tst_StepRecorder::aNewProjectGoesOutOfTheReplacement()
{
    const PrjMappingC added = project("b.prj");
    m_steps->begin(QString());
    m_steps->note(PrjMappingC(), added, false);
    const ReleaseMappingC with = releaseOf({project("a.prj"), added});
    noteRelease(with, releaseOf({project("a.prj", {1}), added}));
    QVERIFY(m_steps->end());
    const StepRecorder::Finished done = m_steps->finish(with);
    QCOMPARE(SessionFixture::bytes(*done.step.releaseBefore),
             SessionFixture::bytes(releaseOf({project("a.prj")})));
}

void tst_StepRecorder::numbersOfSteps()
{
    m_steps->note(project("a.prj"), project("a.prj", {1}), true);
    m_steps->note(project("a.prj", {1}), project("a.prj", {1, 2}), true);
    QCOMPARE(m_steps->number(), 1);
    (void)m_steps->finish(ReleaseMappingC());
    QCOMPARE(m_steps->number(), 1);
    m_steps->beginMove();
    QCOMPARE(m_steps->number(), 2);
    m_steps->note(project("a.prj"), project("a.prj", {1}), true);
    QCOMPARE(m_steps->number(), 3);
}

void tst_StepRecorder::savedAndAutosaved()
{
    openJournal();
    m_steps->note(project("a.prj"), project("a.prj", {1}), true);
    (void)m_steps->finish(ReleaseMappingC());
    QVERIFY(!m_steps->history().isClean());
    QVERIFY(!m_steps->isAutosaved());
    m_steps->noteAutosaved("a1");
    QVERIFY(m_steps->isAutosaved());
    QVERIFY(!m_steps->history().isClean());
    m_steps->note(project("a.prj", {1}), project("a.prj", {1, 2}), true);
    QVERIFY(!m_steps->isAutosaved());
    (void)m_steps->finish(ReleaseMappingC());
    m_steps->noteSaved("b2");
    QVERIFY(m_steps->history().isClean());
    QCOMPARE(records(), QStringLiteral("change 1, step 1, autosaved 1, change 2, step 2, saved 2"));
    const QList<QByteArray> all = session().records;
    QCOMPARE(JournalReader::parse(all[2]).value(QStringLiteral("fileHash")).toText(),
             QStringLiteral("a1"));
    QCOMPARE(JournalReader::parse(all[5]).value(QStringLiteral("fileHash")).toText(),
             QStringLiteral("b2"));
}

void tst_StepRecorder::resetForgets()
{
    m_steps->begin(QStringLiteral("text"));
    m_steps->note(project("a.prj"), project("a.prj", {1}), true);
    QVERIFY(m_steps->end());
    (void)m_steps->finish(ReleaseMappingC());
    m_steps->noteAutosaved("a");
    m_steps->begin(QString());
    m_steps->note(project("a.prj"), project("a.prj", {1}), true);
    m_steps->reset();
    QVERIFY(!m_steps->isNested());
    QVERIFY(!m_steps->hasChanges());
    QVERIFY(!m_steps->history().canUndo());
    QVERIFY(m_steps->history().isClean());
    QVERIFY(!m_steps->isAutosaved());
    QCOMPARE(m_steps->number(), 0);
}

void tst_StepRecorder::journalOfASession()
{
    openJournal();
    QVERIFY(m_steps->isJournaling());
    QCOMPARE(m_steps->journal().path(), m_path);
    // It is on the disk before anything else happens.
    QCOMPARE(session().sourceDate, opening.sourceDate);
    QCOMPARE(session().targetDate, opening.targetDate);
    QCOMPARE(session().fileHash, opening.fileHash);
    QCOMPARE(session().owner.process, EditLock::self().process);
    QCOMPARE(session().owner.user, EditLock::self().user);
    QCOMPARE(session().owner.host, EditLock::self().host);
    QVERIFY(!session().closed);
    QVERIFY(m_steps->closeJournal(true));
    QVERIFY(session().closed);
    QVERIFY(!m_steps->isJournaling());
    QVERIFY(!m_steps->closeJournal(true));
    QVERIFY(SessionFixture::content(m_path).contains("\"modified\":true"));
}

void tst_StepRecorder::journalOfMoves_data()
{
    QTest::addColumn<int>("origin");
    QTest::addColumn<QString>("name");
    QTest::newRow("edit") << int(Origin::Edit) << "edit";
    QTest::newRow("undo") << int(Origin::Undo) << "undo";
    QTest::newRow("redo") << int(Origin::Redo) << "redo";
    QTest::newRow("recovery") << int(Origin::Recovery) << "recover";
}

void tst_StepRecorder::journalOfMoves()
{
    QFETCH(int, origin);
    QFETCH(QString, name);
    openJournal();
    m_steps->beginMove();
    m_steps->journal(MappingDifference::between(project("a.prj", {1}), project("a.prj")));
    m_steps->journal(
        MappingDifference::between(project("a.prj"), project("a.prj"))); // nothing to be written
    m_steps->journalStep(QStringLiteral("what"), Origin(origin));
    QCOMPARE(records(), QStringLiteral("change 1, step 1"));
    const QList<JournalReader::Step> steps = JournalReader::steps(session());
    QCOMPARE(steps.size(), 1);
    QCOMPARE(steps.first().origin, name);
    QCOMPARE(steps.first().text, QStringLiteral("what"));
    QCOMPARE(steps.first().number, 1);
}

void tst_StepRecorder::journalOfAReplacedRelease()
{
    openJournal();
    const ReleaseMappingC before = releaseOf({project("a.prj"), project("b.prj")});
    ReleaseMappingC after = releaseOf({project("a.prj", {1}), project("b.prj", {2})});
    noteRelease(before, after);
    (void)m_steps->finish(after);
    QCOMPARE(records(), QStringLiteral("change 1, change 1, step 1"));
    const ReleaseMappingC former = after;
    after.setTargetDate(QStringLiteral("2027-01-01"));
    (void)journalRelease(former, after, m_steps->number());
    m_steps->noteSaved("c");
    QCOMPARE(records(), QStringLiteral("change 1, change 1, step 1, targetDate 0, saved 1"));
    const PJsonValue date = JournalReader::parse(session().records[3]);
    QCOMPARE(date.value(QStringLiteral("before")).toText(), opening.targetDate);
    QCOMPARE(date.value(QStringLiteral("after")).toText(), QStringLiteral("2027-01-01"));
}

void tst_StepRecorder::journalThatIsMadeAnew()
{
    openJournal();
    QVERIFY(m_steps->renewJournal(opening)); // it is in its place
    JournalReader reader;
    QVERIFY(reader.read(m_path));
    QCOMPARE(reader.sessions().size(), 1);
    QVERIFY(QFile::remove(m_path));
    QVERIFY(m_steps->renewJournal({"2022-01-01", "2026-01-01", "later"}));
    QCOMPARE(session().fileHash, QByteArray("later"));
    QCOMPARE(m_steps->journal().path(), m_path);
    m_steps->journalStep(QStringLiteral("x"), Origin::Edit);
    QCOMPARE(records(), QStringLiteral("step 0"));
}

void tst_StepRecorder::journalThatCannotBeOpened()
{
    QVERIFY(!m_steps->openJournal(m_files->path(QString()), opening));
    QVERIFY(!m_steps->journal().errorText().isEmpty());
    QVERIFY(!m_steps->isJournaling());
}

void tst_StepRecorder::withoutAJournal()
{
    m_steps->note(project("a.prj"), project("a.prj", {1}), true);
    QCOMPARE(m_steps->finish(ReleaseMappingC()).kind, Kind::Step);
    m_steps->noteSaved("x");
    QVERIFY(m_steps->history().isClean());
    QVERIFY(!m_steps->closeJournal(false));
    QVERIFY(!QFile::exists(m_path));
}

QTEST_GUILESS_MAIN(tst_StepRecorder)
#include "tst_StepRecorder.moc"
