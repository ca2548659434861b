#include "../support/SizeLimit.h"
#include "SessionDocument.h"

#include <workbench/session/change/ReleaseChanges.h>
#include <workbench/session/history/UndoHistory.h>

#include <mapping/data/CatalogMappingHandlerI.h>

#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Handler = std::unique_ptr<CatalogMappingHandlerI>;

const QString Path = QStringLiteral("cat/a.prj");

} // namespace

class tst_MappingDocumentSteps : public QObject, private SessionDocument
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void oneTurnIsOneStep();
    void eachTurnIsAStep();
    void explicitStepsKeepTogether();
    void explicitStepsBeginAnew();
    void undoAndRedo();
    void undoForgetsWhatWasUndoneAtTheNextChange();
    void oldStepsKeepOnlyWhatTheyChanged();
    void undoReachesTheSavedState();
    void nothingChangedIsNoStep();
    void changesThatCancelOutAreNoStep();
    void addedProjectCanBeUndone();
    void tableVersionCanBeUndone();
    void directoriesShowUndoneStates();
    void markingConflictsIsNoStep();
    void loopRunsWhileAReleaseIsReplaced_data();
    void loopRunsWhileAReleaseIsReplaced();
    void replacesTheRelease();
    void countsFollowEveryChange();
};

void tst_MappingDocumentSteps::oneTurnIsOneStep()
{
    open();
    QSignalSpy done(m_document.get(), &MappingDocument::stepDone);
    PrjMappingC mapping = m_document->mapping(projectId(Path));
    for (int line = 1; line <= 3; ++line) {
        mapping = SessionFixture::withState(mapping, {line}, 2);
        m_document->updateMapping(mapping);
    }
    QVERIFY(!m_document->canUndo());
    QVERIFY(m_document->isModified());
    QCoreApplication::processEvents();
    QCOMPARE(m_document->undoTexts(),
             QStringList(QStringLiteral("3 Zeilen bestätigt in cat/a.prj")));
    QCOMPARE(done.size(), 1);
    QCOMPARE(done.first().at(0).toString(), QStringLiteral("3 Zeilen bestätigt in cat/a.prj"));
    QCOMPARE(done.first().at(1).toInt(), 3);
}

void tst_MappingDocumentSteps::eachTurnIsAStep()
{
    open();
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {1}, 2));
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {2}, 2));
    QCOMPARE(m_document->undoTexts().size(), 2);
}

void tst_MappingDocumentSteps::explicitStepsKeepTogether()
{
    open();
    m_document->beginStep(QStringLiteral("Alles"));
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {1}, 2));
    m_document->beginStep(QStringLiteral("innen"));
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {2}, 2));
    m_document->endStep();
    QVERIFY(!m_document->canUndo());
    m_document->undo();
    QCOMPARE(m_document->counts().verified(), 2);
    m_document->endStep();
    QCOMPARE(m_document->undoTexts(), QStringList(QStringLiteral("Alles")));
    m_document->undo();
    QCOMPARE(m_document->counts().verified(), 0);
}

/// What was done by hand in the same turn stays a step of its own.
void tst_MappingDocumentSteps::explicitStepsBeginAnew()
{
    open();
    m_document->updateMapping(
        SessionFixture::withState(m_document->mapping(projectId(Path)), {1}, 2));
    m_document->beginStep(QStringLiteral("Alles"));
    m_document->updateMapping(
        SessionFixture::withState(m_document->mapping(projectId(Path)), {2}, 2));
    m_document->endStep();
    QCOMPARE(m_document->undoTexts().size(), 2);
    QCOMPARE(m_document->undoTexts().last(), QStringLiteral("Alles"));
    m_document->undo();
    QCOMPARE(m_document->counts().verified(), 1);
}

void tst_MappingDocumentSteps::undoAndRedo()
{
    open();
    const QByteArray before = SessionFixture::bytes(m_document->release());
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {1, 2, 3}, 2));
    const QByteArray after = SessionFixture::bytes(m_document->release());
    QSignalSpy reselect(m_document.get(), &MappingDocument::reselectRequested);
    QSignalSpy done(m_document.get(), &MappingDocument::stepDone);
    QSignalSpy modified(m_document.get(), &MappingDocument::modifiedChanged);

    m_document->undo();
    QCOMPARE(SessionFixture::bytes(m_document->release()), before);
    QCOMPARE(reselect.size(), 1);
    QCOMPARE(reselect.first().first().value<ProjectId>(), projectId(Path));
    QCOMPARE(done.first().at(0).toString(),
             QStringLiteral("Rückgängig: 3 Zeilen bestätigt in cat/a.prj"));
    QCOMPARE(modified.size(), 1);
    QVERIFY(!m_document->isModified());
    QVERIFY(!m_document->canUndo());
    QVERIFY(m_document->canRedo());

    m_document->redo();
    QCOMPARE(SessionFixture::bytes(m_document->release()), after);
    QCOMPARE(done.last().at(0).toString(),
             QStringLiteral("Wiederholt: 3 Zeilen bestätigt in cat/a.prj"));
    QVERIFY(m_document->isModified());
    QVERIFY(m_document->canUndo());
    QVERIFY(!m_document->canRedo());
    m_document->redo();
    QCOMPARE(done.size(), 2);
}

void tst_MappingDocumentSteps::undoForgetsWhatWasUndoneAtTheNextChange()
{
    open();
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {1}, 2));
    m_document->undo();
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {2}, 2));
    QVERIFY(!m_document->canRedo());
    QCOMPARE(m_document->undoTexts().size(), 1);
}

void tst_MappingDocumentSteps::oldStepsKeepOnlyWhatTheyChanged()
{
    open();
    const QByteArray before = SessionFixture::bytes(m_document->release());
    m_document->setKeptStates(2);
    for (int line = 1; line <= 4; ++line)
        change(SessionFixture::withState(m_document->mapping(projectId(Path)), {line}, 2));
    QVERIFY(m_document->steps().at(1).changes.isEmpty());
    QVERIFY(!m_document->steps().at(2).changes.isEmpty());
    const QByteArray after = SessionFixture::bytes(m_document->release());
    while (m_document->canUndo())
        m_document->undo();
    QCOMPARE(SessionFixture::bytes(m_document->release()), before);
    QVERIFY(!m_document->isModified());
    while (m_document->canRedo())
        m_document->redo();
    QCOMPARE(SessionFixture::bytes(m_document->release()), after);
}

void tst_MappingDocumentSteps::undoReachesTheSavedState()
{
    open();
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {1}, 2));
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    QVERIFY(!m_document->isModified());
    m_document->undo();
    QVERIFY(m_document->isModified());
    m_document->redo();
    QVERIFY(!m_document->isModified());
    m_document->undo();
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {5}, 2));
    QVERIFY(m_document->isModified());
    m_document->undo();
    QVERIFY(m_document->isModified()); // the saved state was undone and forgotten
}

void tst_MappingDocumentSteps::nothingChangedIsNoStep()
{
    open();
    const qint64 size = QFile(m_document->journalFile()).size();
    QSignalSpy done(m_document.get(), &MappingDocument::stepDone);
    change(m_document->mapping(projectId(Path)));
    QVERIFY(!m_document->canUndo());
    QVERIFY(!m_document->isModified());
    QCOMPARE(done.size(), 0);
    QCOMPARE(QFile(m_document->journalFile()).size(), size);
}

void tst_MappingDocumentSteps::changesThatCancelOutAreNoStep()
{
    open();
    const PrjMappingC mapping = m_document->mapping(projectId(Path));
    m_document->updateMapping(SessionFixture::withState(mapping, {1}, 2));
    change(mapping);
    QVERIFY(!m_document->canUndo());
    QVERIFY(!m_document->isModified());
}

void tst_MappingDocumentSteps::addedProjectCanBeUndone()
{
    open();
    const QByteArray before = SessionFixture::bytes(m_document->release());
    QSignalSpy replaced(m_document.get(), &MappingDocument::releaseReplaced);
    change(SessionFixture::plainMapping(QStringLiteral("cat/new.prj"), 5));
    QCOMPARE(m_document->undoText(), QStringLiteral("Projekt hinzugefügt (5 Zeilen zugeordnet) in "
                                                    "cat/new.prj"));
    QCOMPARE(m_document->counts().lines(), 35);
    const QByteArray after = SessionFixture::bytes(m_document->release());
    m_document->undo();
    QCOMPARE(SessionFixture::bytes(m_document->release()), before);
    QCOMPARE(m_document->counts().lines(), 30);
    QCOMPARE(replaced.size(), 1);
    m_document->redo();
    QCOMPARE(SessionFixture::bytes(m_document->release()), after);
    QCOMPARE(m_document->counts().lines(), 35);
}

void tst_MappingDocumentSteps::tableVersionCanBeUndone()
{
    open();
    const QByteArray before = SessionFixture::bytes(m_document->release());
    PrjMappingC mapping = m_document->mapping(projectId(Path));
    mapping.setTabVersion(QString()); // matches any, so the stored one is replaced
    change(mapping);
    QCOMPARE(m_document->release().countMappings(), 3);
    m_document->undo();
    QCOMPARE(m_document->release().countMappings(), 3);
    QCOMPARE(m_document->mapping(projectId(Path)).getTabVersion(), QStringLiteral("t1"));
    QCOMPARE(countLines(m_document->release()), m_document->counts());
    Q_UNUSED(before)
}

void tst_MappingDocumentSteps::directoriesShowUndoneStates()
{
    open();
    const auto root = m_document->handler()->getRootStructureNode();
    const auto screws = root->getChildren().first()->getChildren().first();
    QCOMPARE(screws->getName(), QStringLiteral("screws"));
    QVERIFY(!screws->getMappingState().testFlag(PRJMAPPING::StateVerified));
    const QString path = QStringLiteral("cat/screws/b.prj");
    change(SessionFixture::withState(m_document->mapping(projectId(path)), {1}, 2));
    screws->invalidateState(); // as the editor does after its own change
    QVERIFY(screws->getMappingState().testFlag(PRJMAPPING::StateVerified));
    m_document->undo();
    QVERIFY(!screws->getMappingState().testFlag(PRJMAPPING::StateVerified));
    m_document->redo();
    QVERIFY(screws->getMappingState().testFlag(PRJMAPPING::StateVerified));
}

void tst_MappingDocumentSteps::markingConflictsIsNoStep()
{
    open();
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {1}, 2));
    const auto marked = [this](int line) {
        PrjMappingC mapping = m_document->mapping(projectId(Path));
        PrjMappingTargetC target = mapping.findTarget(0);
        target.setLineConflicted(line, true);
        mapping.updateTarget(0, target);
        return mapping;
    };
    change(marked(3)); // known by what it does
    change(marked(4));
    QCOMPARE(m_document->undoTexts(),
             QStringList(QStringLiteral("Zeile 1 → 1 bestätigt in cat/a.prj")));
    m_document->undo();
    const PrjMappingTargetC target = m_document->mapping(projectId(Path)).findTarget(0);
    QCOMPARE(m_document->conflictedProjects(), QList<ProjectId>{projectId(Path)});
    QVERIFY(target.getLineConflicted(3));
    QVERIFY(target.getLineConflicted(4));
    QCOMPARE(target.getMappedLine(1).getState(), PRJMAPPING::ToCheck);
    QVERIFY(m_document->isModified());
}

/// A large one is worked through beside the loop, in which nothing may change it.
void tst_MappingDocumentSteps::loopRunsWhileAReleaseIsReplaced_data()
{
    QTest::addColumn<bool>("byUndo");
    QTest::newRow("replaced") << false;
    QTest::newRow("undone") << true;
}

void tst_MappingDocumentSteps::loopRunsWhileAReleaseIsReplaced()
{
    QFETCH(bool, byUndo);
    open();
    const ReleaseMappingC small = m_document->release();
    ReleaseMappingC large = small;
    for (int i = 0; i < 50000; ++i)
        large.addMapping(
            SessionFixture::plainMapping(QStringLiteral("cat/d%1/p%2.prj").arg(i % 7).arg(i), 1));
    if (byUndo) {
        m_document->replaceRelease(large, QStringLiteral("..."));
        m_document->replaceRelease(small, QStringLiteral("..."));
    }
    QSignalSpy replaced(m_document.get(), &MappingDocument::releaseReplaced);
    QSignalSpy problems(m_document.get(), &MappingDocument::problemOccurred);
    const QString journal = m_document->journalFile();
    const qint64 size = QFileInfo(journal).size();
    bool isServed = false;
    qint64 sizeWhenServed = 0;
    const auto changesIn = [](const QString &file) {
        return SessionFixture::content(file).count("\"kind\":\"change\"");
    };
    const auto written = changesIn(journal);
    qsizetype writtenWhenShown = 0;
    connect(m_document.get(), &MappingDocument::releaseReplaced, this,
            [&] { writtenWhenShown = changesIn(journal) - written; });
    QTimer::singleShot(0, this, [&] {
        isServed = replaced.isEmpty();
        sizeWhenServed = QFileInfo(journal).size();
        m_document->updateMapping(
            SessionFixture::withState(m_document->mapping(projectId(Path)), {1}, 2));
    });
    if (byUndo)
        m_document->undo();
    else
        m_document->replaceRelease(large, QStringLiteral("..."));
    QVERIFY(isServed);
    QCOMPARE(sizeWhenServed, size); // not even compared yet
    QCOMPARE(writtenWhenShown, 50000);
    QCOMPARE(replaced.size(), 1);
    QCOMPARE(SessionFixture::bytes(m_document->mapping(projectId(Path))),
             SessionFixture::bytes(large.findMapping(Path, projectId(Path).version, QString())));
    QTRY_COMPARE(problems.size(), 1); // the change was refused, and that is told
    QCOMPARE(m_document->release().countMappings(), large.countMappings());
}

void tst_MappingDocumentSteps::replacesTheRelease()
{
    open();
    const QByteArray before = SessionFixture::bytes(m_document->release());
    ReleaseMappingC other = SessionFixture::sampleRelease();
    other.clearMappings();
    other.setTargetDate(QStringLiteral("2027-01-01"));
    other.addMapping(SessionFixture::plainMapping(QStringLiteral("cat/x.prj"), 4, 1));
    QSignalSpy replaced(m_document.get(), &MappingDocument::releaseReplaced);
    const Handler old(m_document->createHandler());
    m_document->replaceRelease(other, QStringLiteral("Zuordnung neu erstellt"));
    QCOMPARE(replaced.size(), 1);
    QCOMPARE(m_document->undoText(), QStringLiteral("Zuordnung neu erstellt"));
    QCOMPARE(SessionFixture::bytes(m_document->release()), SessionFixture::bytes(other));
    QCOMPARE(m_document->counts().mapped(), 4);
    // What the editor of the former tree still sends goes nowhere.
    old->updateMapping(SessionFixture::plainMapping(Path, 2));
    QCOMPARE(m_document->counts().lines(), 4);
    m_document->undo();
    QCOMPARE(SessionFixture::bytes(m_document->release()), before);
    QCOMPARE(m_document->counts().lines(), 30);
}

void tst_MappingDocumentSteps::countsFollowEveryChange()
{
    open();
    QSignalSpy counts(m_document.get(), &MappingDocument::countsChanged);
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {1, 2}, 2));
    QCOMPARE(counts.size(), 1);
    QCOMPARE(m_document->counts(), countLines(m_document->release()));
    change(SessionFixture::plainMapping(Path, 3, 1));
    QCOMPARE(m_document->counts(), countLines(m_document->release()));
    m_document->undo();
    QCOMPARE(m_document->counts(), countLines(m_document->release()));
    QCOMPARE(m_document->counts().verified(), 2);
}

QTEST_GUILESS_MAIN(tst_MappingDocumentSteps)

#include "tst_MappingDocumentSteps.moc"
