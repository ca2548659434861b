#include "RecoveryFixture.h"
#include "RecoveryVictim.h"

#include <workbench/session/document/MappingDocument.h>

#include <geomcore/records/MappingFile.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

const QString Date = QStringLiteral("2022-01-01");

} // namespace

class tst_SessionRecovery : public QObject, private RecoveryFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void bothVersionsAreOffered();
    void theRecoveredVersion_data();
    void theRecoveredVersion();
    void theSavedVersion();
    void nothingToRecover_data();
    void nothingToRecover();
    void lockOfTheDeadIsTakenOver();
    void noOfferWhileTheOtherLives();
    void aTurnThatDidNotEnd();
    void recoveringTwice();
    void anOldAutosaveIsNoOffer();
    void killedWhileSaving_data();
    void killedWhileSaving();
    void aForeignChangeSinceThen();
    void aForeignChangeAndAnAutosave();
    void newReleaseThatWasNeverSaved();
    void newReleaseInAKnownFile_data();
    void newReleaseInAKnownFile();
    void readOnlyDoesNotAsk();
    void theSavedVersionMayBeNewer();
    void otherReleasesComeFromTheBackup();
};

void tst_SessionRecovery::bothVersionsAreOffered()
{
    const QDateTime begin = QDateTime::currentDateTimeUtc().addSecs(-2);
    kill({QStringLiteral("confirm"), QStringLiteral("more")});
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QVERIFY(!m_document->isOpen());
    const RecoveryOffer &offer = m_document->recoveryOffer();
    QVERIFY(offer.isValid());
    QVERIFY(offer.saved.available);
    QCOMPARE(offer.sourceDate, Date);
    QCOMPARE(offer.saved.projects, 3);
    QCOMPARE(offer.saved.counts.verified(), 0);
    QCOMPARE(offer.saved.counts.lines(), 30);
    QCOMPARE(offer.recovered.projects, 3);
    QCOMPARE(offer.recovered.counts.verified(), 4);
    QCOMPARE(offer.recovered.counts.lines(), 30);
    QVERIFY(offer.recovered.time >= begin);
    QVERIFY(offer.recovered.time <= QDateTime::currentDateTimeUtc());
    QVERIFY(offer.saved.time.isValid());
    QCOMPARE(offer.steps, 2);
    QCOMPARE(offer.lastStep, QStringLiteral("Zeile 5 → 5 bestätigt in cat/a.prj"));
    QCOMPARE(offer.changedLines, 4);
    QCOMPARE(offer.changedProjects, 1);
    QCOMPARE(offer.damage, QString());
    QCOMPARE(offer.owner.host, QSysInfo::machineHostName());
    QVERIFY(offer.owner.process > 0);
    // Asking changes nothing.
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
}

void tst_SessionRecovery::theRecoveredVersion_data()
{
    QTest::addColumn<QStringList>("deeds");
    const auto row = [](const char *name, const char *deeds) {
        QTest::newRow(name) << QString::fromLatin1(deeds).split(u' ');
    };
    row("one step", "confirm");
    row("two steps", "confirm more");
    row("undone", "confirm more undo");
    row("redone", "confirm more undo undo redo");
    row("behind an autosave", "confirm autosave more");
    row("up to an autosave", "confirm more autosave");
    row("behind a saving", "confirm save more");
    row("undone behind a saving", "confirm save undo");
    row("targets", "targets confirm");
    row("replaced release", "confirm replace");
    row("replaced release undone", "confirm replace undo targets");
}

void tst_SessionRecovery::theRecoveredVersion()
{
    QFETCH(QStringList, deeds);
    // The same without being killed, elsewhere.
    const SessionFixture elsewhere;
    const QString file = elsewhere.write();
    kill(deeds);
    MappingDocument expected;
    {
        QProcess process;
        const QString mine = std::exchange(m_file, file);
        start(process, deeds + QStringList{QStringLiteral("save"), QStringLiteral("close")});
        process.kill();
        QVERIFY(process.waitForFinished());
        m_file = mine;
    }
    QCOMPARE(expected.open({file, {}, {}, {}, {}}), MappingDocument::OpenResult::Opened);

    const QByteArray saved = SessionFixture::content(m_file);
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QCOMPARE(open(MappingDocument::Recovery::UseRecovered), MappingDocument::OpenResult::Opened);
    QCOMPARE(SessionFixture::bytes(m_document->release()),
             SessionFixture::bytes(expected.release()));
    QVERIFY(m_document->isModified());
    QCOMPARE(SessionFixture::content(m_file), saved);
    QCOMPARE(m_document->undoText(), QStringLiteral("Wiederherstellung nach einem Absturz"));
    // Back to what is in the file and forth again, then for good.
    m_document->undo();
    QVERIFY(!m_document->isModified());
    MappingFile now;
    QVERIFY(now.read(m_file));
    QCOMPARE(SessionFixture::bytes(m_document->release()),
             SessionFixture::bytes(now.release(Date)));
    m_document->redo();
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    m_document->close();
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    QCOMPARE(SessionFixture::bytes(m_document->release()),
             SessionFixture::bytes(expected.release()));
}

void tst_SessionRecovery::theSavedVersion()
{
    kill({QStringLiteral("confirm"), QStringLiteral("autosave")});
    QCOMPARE(open(MappingDocument::Recovery::UseSaved), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->counts().verified(), 0);
    QVERIFY(!m_document->isModified());
    QVERIFY(!m_document->canUndo());
    // What was not taken is kept.
    QCOMPARE(names(QStringLiteral("release.json.journal.alt-*")).size(), 1);
    QCOMPARE(names(QStringLiteral("release.json.autosave.alt-*")).size(), 1);
    m_document->close();
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
}

void tst_SessionRecovery::nothingToRecover_data()
{
    QTest::addColumn<QStringList>("deeds");
    QTest::newRow("nothing done") << QStringList();
    QTest::newRow("saved") << QStringList{QStringLiteral("confirm"), QStringLiteral("save")};
    QTest::newRow("undone") << QStringList{QStringLiteral("confirm"), QStringLiteral("undo")};
    QTest::newRow("undone behind an autosave") << QStringList{
        QStringLiteral("confirm"), QStringLiteral("autosave"), QStringLiteral("undo")};
    QTest::newRow("discarded behind an autosave") << QStringList{
        QStringLiteral("confirm"), QStringLiteral("autosave"), QStringLiteral("close")};
    QTest::newRow("discarded") << QStringList{QStringLiteral("confirm"), QStringLiteral("close")};
}

void tst_SessionRecovery::nothingToRecover()
{
    QFETCH(QStringList, deeds);
    kill(deeds);
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    QVERIFY(!m_document->recoveryOffer().isValid());
    // Only what was undone without saving is worth keeping.
    QCOMPARE(names(QStringLiteral("*.alt-*")).isEmpty(), !deeds.contains(QStringLiteral("undo")));
    m_document->close();
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
}

void tst_SessionRecovery::lockOfTheDeadIsTakenOver()
{
    kill({});
    QVERIFY(QFile::exists(m_file + QStringLiteral(".edit")));
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
}

void tst_SessionRecovery::noOfferWhileTheOtherLives()
{
    QProcess process;
    start(process, {QStringLiteral("confirm")});
    QCOMPARE(open(), MappingDocument::OpenResult::OpenedReadOnly);
    QCOMPARE(m_document->lockOwner().process, process.processId());
    QCOMPARE(m_document->counts().verified(), 0);
    process.kill();
    QVERIFY(process.waitForFinished());
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
}

void tst_SessionRecovery::aTurnThatDidNotEnd()
{
    kill({QStringLiteral("turn")});
    QCOMPARE(open(MappingDocument::Recovery::UseRecovered), MappingDocument::OpenResult::Opened);
    const LineCounts counts = m_document->counts();
    QCOMPARE(counts.lines(), 30);
    QVERIFY(counts.verified() + counts.mapped() > 0);
}

void tst_SessionRecovery::recoveringTwice()
{
    kill({QStringLiteral("confirm")});
    {
        // The program that recovers is killed as well.
        MappingDocument first;
        QCOMPARE(first.open({m_file, {}, {}, {}, MappingDocument::Recovery::UseRecovered}),
                 MappingDocument::OpenResult::Opened);
        QFile::copy(first.journalFile(), m_files->path(QStringLiteral("j")));
        QFile::copy(first.autosaveFile(), m_files->path(QStringLiteral("a")));
    }
    for (const bool withJournal : {true, false}) {
        QFile::remove(m_file + QStringLiteral(".journal"));
        QFile::remove(m_file + QStringLiteral(".autosave"));
        if (withJournal)
            QFile::copy(m_files->path(QStringLiteral("j")), m_file + QStringLiteral(".journal"));
        else
            QFile::copy(m_files->path(QStringLiteral("a")), m_file + QStringLiteral(".autosave"));
        QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
        QCOMPARE(m_document->recoveryOffer().recovered.counts.verified(), 3);
    }
}

void tst_SessionRecovery::anOldAutosaveIsNoOffer()
{
    // Left by a session of which nothing else is there, and saved over since.
    ReleaseMappingC release = SessionFixture::sampleRelease();
    release.addMapping(SessionFixture::withState(release.mappingAt(0), {1}, 2));
    const QString side = m_file + QStringLiteral(".autosave");
    m_files->addRelease(side, release);
    QFile file(side);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTimeUtc().addDays(-1),
                             QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    QCOMPARE(names(QStringLiteral("release.json.autosave.alt-*")).size(), 1);
}

void tst_SessionRecovery::killedWhileSaving_data()
{
    QTest::addColumn<int>("left"); ///< percent of the file
    QTest::newRow("nothing written") << 0;
    QTest::newRow("half written") << 50;
    QTest::newRow("all written") << 100;
}

void tst_SessionRecovery::killedWhileSaving()
{
    QFETCH(int, left);
    const QByteArray before = SessionFixture::content(m_file);
    kill({QStringLiteral("confirm")});
    // The backup was made, the file was being written.
    SessionFixture::setContent(m_file + QStringLiteral(".bak"), before);
    MappingFile written;
    QVERIFY(written.read(m_file));
    ReleaseMappingC release = written.release(Date);
    release.addMapping(SessionFixture::withState(
        release.findMapping(QStringLiteral("cat/a.prj"), SessionFixture::Version, QString()),
        {1, 2, 3}, 2));
    written.setRelease(release);
    const QByteArray bytes = written.toByteArray();
    SessionFixture::setContent(m_file, bytes.left(bytes.size() * left / 100));
    if (left == 100) {
        QCOMPARE(open(), MappingDocument::OpenResult::Opened);
        QCOMPARE(m_document->counts().verified(), 3);
        return;
    }
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QVERIFY(!m_document->recoveryOffer().saved.available);
    QCOMPARE(m_document->recoveryOffer().recovered.counts.verified(), 3);
    // Choosing what is not there loses nothing.
    QCOMPARE(open(MappingDocument::Recovery::UseSaved), MappingDocument::OpenResult::Unreadable);
    QCOMPARE(open(MappingDocument::Recovery::UseRecovered), MappingDocument::OpenResult::Opened);
    QCOMPARE(SessionFixture::bytes(m_document->release()), SessionFixture::bytes(release));
    QVERIFY(m_document->isModified());
    SaveOptions options;
    options.overUnreadable = true;
    QCOMPARE(m_document->save(options).result, SaveResult::Saved);
}

void tst_SessionRecovery::aForeignChangeSinceThen()
{
    kill({QStringLiteral("confirm")});
    // Another release in the same file does no harm, another state of this one does.
    m_files->addRelease(m_file, SessionFixture::sampleRelease(QStringLiteral("2024-01-01")));
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QCOMPARE(m_document->recoveryOffer().recovered.counts.verified(), 3);
    QCOMPARE(m_document->recoveryOffer().damage, QString());
    ReleaseMappingC theirs = SessionFixture::sampleRelease();
    theirs.addMapping(SessionFixture::withState(theirs.mappingAt(0), {2}, 1));
    m_files->addRelease(m_file, theirs);
    QSignalSpy problems(m_document.get(), &MappingDocument::problemOccurred);
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    QCOMPARE(problems.size(), 1);
    QVERIFY(problems.first().first().toString().contains(
        QStringLiteral("passt nicht zur Mapping-Datei")));
    QCOMPARE(names(QStringLiteral("release.json.journal.alt-*")).size(), 1);
}

void tst_SessionRecovery::aForeignChangeAndAnAutosave()
{
    kill({QStringLiteral("confirm"), QStringLiteral("autosave")});
    ReleaseMappingC theirs = SessionFixture::sampleRelease();
    theirs.addMapping(SessionFixture::withState(theirs.mappingAt(0), {2}, 1));
    m_files->addRelease(m_file, theirs);
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QCOMPARE(m_document->recoveryOffer().saved.counts.mapped(), 1);
    QCOMPARE(m_document->recoveryOffer().recovered.counts.verified(), 3);
    QCOMPARE(open(MappingDocument::Recovery::UseRecovered), MappingDocument::OpenResult::Opened);
    // Their work is not saved over without a question.
    const SaveOutcome outcome = m_document->save();
    QCOMPARE(outcome.result, SaveResult::ForeignChange);
    QVERIFY(!outcome.onlyOtherReleases);
    m_document->undo();
    QCOMPARE(SessionFixture::bytes(m_document->release()), SessionFixture::bytes(theirs));
}

void tst_SessionRecovery::newReleaseThatWasNeverSaved()
{
    const QString file = m_files->path(QStringLiteral("new.json"));
    {
        MappingDocument document;
        document.openNew(SessionFixture::sampleRelease(), file);
        QFile::copy(file + QStringLiteral(".autosave"), m_files->path(QStringLiteral("a")));
    }
    QVERIFY(!QFile::exists(file));
    QFile::rename(m_files->path(QStringLiteral("a")), file + QStringLiteral(".autosave"));
    QCOMPARE(m_document->open({file, {}, {}, {}, {}}),
             MappingDocument::OpenResult::RecoveryPending);
    QVERIFY(!m_document->recoveryOffer().saved.available);
    QCOMPARE(m_document->open({file, {}, {}, {}, MappingDocument::Recovery::UseRecovered}),
             MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->counts().lines(), 30);
    QVERIFY(m_document->isModified());
    QCOMPARE(m_document->save().result, SaveResult::Saved);
}

void tst_SessionRecovery::newReleaseInAKnownFile_data()
{
    QTest::addColumn<QStringList>("deeds");
    QTest::addColumn<int>("verified");
    QTest::newRow("untouched") << QStringList{QStringLiteral("new")} << 0;
    QTest::newRow("edited") << QStringList{QStringLiteral("new"), QStringLiteral("confirm")} << 3;
}

void tst_SessionRecovery::newReleaseInAKnownFile()
{
    QFETCH(QStringList, deeds);
    QFETCH(int, verified);
    kill(deeds);
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QCOMPARE(m_document->recoveryOffer().sourceDate, QStringLiteral("2024-01-01"));
    QVERIFY(!m_document->recoveryOffer().saved.available);
    QCOMPARE(open(MappingDocument::Recovery::UseRecovered), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->release().getSourceDate(), QStringLiteral("2024-01-01"));
    QCOMPARE(m_document->counts().verified(), verified);
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    QCOMPARE(MappingDocument::sourceDates(m_file),
             QStringList({Date, QStringLiteral("2024-01-01")}));
}

void tst_SessionRecovery::readOnlyDoesNotAsk()
{
    kill({QStringLiteral("confirm")});
    QCOMPARE(m_document->open({m_file, {}, {}, MappingDocument::Access::ReadOnly, {}}),
             MappingDocument::OpenResult::OpenedReadOnly);
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
}

/// The journal could not be written any more, saving went well, then the program was killed.
void tst_SessionRecovery::theSavedVersionMayBeNewer()
{
    kill({QStringLiteral("confirm")});
    QVERIFY(QFile::copy(m_file, m_file + QStringLiteral(".bak")));
    ReleaseMappingC saved = SessionFixture::sampleRelease();
    saved.addMapping(SessionFixture::withState(saved.mappingAt(0), {1, 2, 3, 4, 5}, 2));
    QTest::qWait(20);
    m_files->addRelease(m_file, saved);
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QCOMPARE(m_document->recoveryOffer().saved.counts.verified(), 5);
    QCOMPARE(m_document->recoveryOffer().recovered.counts.verified(), 3);
    QVERIFY(m_document->recoveryOffer().savedIsNewer);
    // Not so in the usual case.
    m_files->addRelease(m_file, SessionFixture::sampleRelease());
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QVERIFY(!m_document->recoveryOffer().savedIsNewer);
}

/// The file is torn, as an earlier version of the program could leave it.
void tst_SessionRecovery::otherReleasesComeFromTheBackup()
{
    const ReleaseMappingC other = SessionFixture::sampleRelease(QStringLiteral("2020-01-01"));
    m_files->addRelease(m_file, other);
    QCOMPARE(m_document->open({m_file, Date, {}, {}, {}}), MappingDocument::OpenResult::Opened);
    m_document->updateMapping(
        SessionFixture::withState(m_document->mapping(projectId("cat/a.prj")), {1}, 2));
    m_document->finishStep();
    const QByteArray journal = SessionFixture::content(m_document->journalFile());
    const QString journalFile = m_document->journalFile();
    m_document->close();
    SessionFixture::setContent(journalFile, journal);
    QVERIFY(QFile::copy(m_file, m_file + QStringLiteral(".bak")));
    SessionFixture::setContent(m_file, SessionFixture::content(m_file).left(300));

    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QCOMPARE(open(MappingDocument::Recovery::UseRecovered), MappingDocument::OpenResult::Opened);
    SaveOptions options;
    options.overUnreadable = true;
    QCOMPARE(m_document->save(options).result, SaveResult::Saved);
    MappingFile now;
    QVERIFY(now.read(m_file));
    QCOMPARE(SessionFixture::bytes(now.release(QStringLiteral("2020-01-01"))),
             SessionFixture::bytes(other));
    QCOMPARE(now.release(Date).mappingAt(0).lineCounts().verified(), 1);
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--victim"))
        return runVictim(arguments);
    tst_SessionRecovery test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_SessionRecovery.moc"
