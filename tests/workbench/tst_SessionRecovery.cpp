#include "SessionFixture.h"

#include <workbench/session/JournalReader.h>
#include <workbench/session/JournalText.h>
#include <workbench/session/MappingDocument.h>
#include <workbench/session/SessionRecovery.h>

#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/records/MappingFile.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <unistd.h>

namespace {

const QString Date = QStringLiteral("2022-01-01");

ProjectId id(const char *path)
{
    return {QString::fromLatin1(path), SessionFixture::Version, QStringLiteral("t1")};
}

/// What the program does that is killed then.
class Victim
{
public:
    explicit Victim(const QString &file)
        : m_file(file)
    {
        m_document.open({file, {}, {}, {}, {}});
    }

    bool run(const QString &deed)
    {
        if (deed == u"confirm")
            confirm({1, 2, 3});
        else if (deed == u"more")
            confirm({5});
        else if (deed == u"undo")
            m_document.undo();
        else if (deed == u"redo")
            m_document.redo();
        else if (deed == u"autosave")
            m_document.autosave();
        else if (deed == u"save")
            return m_document.save().result == SaveResult::Saved;
        else if (deed == u"close")
            m_document.close();
        else if (deed == u"targets")
            changeTargets();
        else if (deed == u"replace")
            replace();
        else if (deed == u"new")
            m_document.openNew(SessionFixture::sampleRelease(QStringLiteral("2024-01-01")), m_file);
        else if (deed == u"turn")
            changeWithoutEnd();
        else
            return false;
        return true;
    }

private:
    void confirm(const QList<int> &lines)
    {
        m_document.updateMapping(
            SessionFixture::withState(m_document.mapping(id("cat/a.prj")), lines, 2));
        QCoreApplication::processEvents();
    }

    void changeTargets()
    {
        PrjMappingC mapping = m_document.mapping(id("cat/screws/b.prj"));
        PrjMappingTargetC target;
        target.setTargetPath(QStringLiteral("new/ü.prj"));
        target.setValid(true);
        target.addCondition(VarsetConditionC::fromText(QStringLiteral("A.EQ.'x'")));
        target.addLineId(4, 7, PRJMAPPING::Verified, QStringLiteral("{L=1} -> 2"));
        mapping.insertTarget(0, target);
        m_document.updateMapping(mapping);
        QCoreApplication::processEvents();
    }

    void replace()
    {
        ReleaseMappingC release = m_document.release();
        release.clearMappings();
        release.setTargetDate(QStringLiteral("2027-01-01"));
        release.addMapping(SessionFixture::plainMapping(QStringLiteral("cat/x.prj"), 7, 1));
        m_document.replaceRelease(release, QStringLiteral("Neu"));
    }

    /// A long action in one turn of the event loop, which does not come round.
    void changeWithoutEnd()
    {
        for (int round = 0; round < 60; ++round) {
            for (int line = 1; line <= 10; ++line)
                m_document.updateMapping(SessionFixture::withState(
                    m_document.mapping(id("cat/a.prj")), {line}, round % 2 == 0 ? 2 : 1));
        }
    }

    const QString m_file;
    MappingDocument m_document;
};

int runVictim(const QStringList &arguments)
{
    Victim victim(arguments.value(2));
    for (const QString &deed : arguments.mid(3)) {
        if (!victim.run(deed))
            return 1;
    }
    std::puts("ready");
    std::fflush(stdout);
    while (true)
        ::pause();
}

} // namespace

class tst_SessionRecovery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

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
    void damagedJournals_data();
    void damagedJournals();
    void damageAnywhere_data();
    void damageAnywhere();
    void autosaveBehindTheDamage();
    void autosaveWithoutJournal();
    void anOldAutosaveIsNoOffer();
    void killedWhileSaving_data();
    void killedWhileSaving();
    void aForeignChangeSinceThen();
    void aForeignChangeAndAnAutosave();
    void newReleaseThatWasNeverSaved();
    void newReleaseInAKnownFile_data();
    void newReleaseInAKnownFile();
    void readOnlyDoesNotAsk();
    void aDamagedOpeningHidesNothing_data();
    void aDamagedOpeningHidesNothing();
    void damageBehindTheLastSession();
    void laterChangesAreOfferedApart();
    void anUnreadableJournalIsTold();
    void theSavedVersionMayBeNewer();
    void otherReleasesComeFromTheBackup();

private:
    void kill(const QStringList &deeds);
    void start(QProcess &process, const QStringList &deeds) const;
    [[nodiscard]] MappingDocument::OpenResult
    open(MappingDocument::Recovery recovery = MappingDocument::Recovery::Ask);
    [[nodiscard]] QStringList names(const QString &filter) const;

    std::unique_ptr<SessionFixture> m_files;
    std::unique_ptr<MappingDocument> m_document;
    QString m_file;
};

void tst_SessionRecovery::init()
{
    m_files = std::make_unique<SessionFixture>();
    m_document = std::make_unique<MappingDocument>();
    m_file = m_files->write();
}

void tst_SessionRecovery::cleanup()
{
    m_document.reset();
    m_files.reset();
}

void tst_SessionRecovery::start(QProcess &process, const QStringList &deeds) const
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
                  QStringList{QStringLiteral("--victim"), m_file} + deeds);
    QVERIFY(process.waitForStarted());
    QVERIFY(process.waitForReadyRead());
    QCOMPARE(process.readAllStandardOutput(), QByteArray("ready\n"));
}

/// Another program does these things and is killed.
void tst_SessionRecovery::kill(const QStringList &deeds)
{
    QProcess process;
    start(process, deeds);
    process.kill();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
}

MappingDocument::OpenResult tst_SessionRecovery::open(MappingDocument::Recovery recovery)
{
    return m_document->open({m_file, {}, {}, {}, recovery});
}

QStringList tst_SessionRecovery::names(const QString &filter) const
{
    return QDir(m_files->path(QString())).entryList({filter}, QDir::Files, QDir::Name);
}

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

void tst_SessionRecovery::damagedJournals_data()
{
    QTest::addColumn<QByteArray>("pattern"); ///< of the rows from which on damage is done
    QTest::addColumn<bool>("cut");
    QTest::addColumn<int>("verified");
    QTest::addColumn<QString>("damage");
    QTest::newRow("last row cut") << QByteArray("\"step\":2,\"origin\"") << true << 4
                                  << QStringLiteral("Die letzte Änderung kann fehlen.");
    QTest::newRow("second change cut") << QByteArray("\"change\",\"step\":2") << true << 3
                                       << QStringLiteral("Die letzte Änderung kann fehlen.");
    QTest::newRow("second change wrong") << QByteArray("\"change\",\"step\":2") << false << 3
                                         << QStringLiteral("Die letzte Änderung kann fehlen.");
    QTest::newRow("first change wrong") << QByteArray("\"change\",\"step\":1") << false << 1
                                        << QStringLiteral("passen noch 1 Änderungen");
}

void tst_SessionRecovery::damagedJournals()
{
    QFETCH(QByteArray, pattern);
    QFETCH(bool, cut);
    QFETCH(int, verified);
    QFETCH(QString, damage);
    kill({QStringLiteral("confirm"), QStringLiteral("more")});
    const QString journal = m_file + QStringLiteral(".journal");
    QByteArray bytes = SessionFixture::content(journal);
    const qsizetype at = bytes.indexOf(pattern);
    QVERIFY(at > 0);
    if (cut)
        bytes.truncate(at + 5);
    else
        bytes[at + 1] = char(bytes[at + 1] ^ 1);
    SessionFixture::setContent(journal, bytes);
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QCOMPARE(m_document->recoveryOffer().recovered.counts.verified(), verified);
    QVERIFY2(m_document->recoveryOffer().damage.contains(damage),
             qPrintable(m_document->recoveryOffer().damage));
    QCOMPARE(open(MappingDocument::Recovery::UseRecovered), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->counts().verified(), verified);
    QCOMPARE(names(QStringLiteral("release.json.journal.alt-*")).size(), 1);
}

void tst_SessionRecovery::damageAnywhere_data()
{
    QTest::addColumn<bool>("cut");
    QTest::newRow("cut off") << true;
    QTest::newRow("one bit") << false;
}

/// Wherever a journal is damaged, what is recovered is a state that once was: the last one before
/// the damage.
void tst_SessionRecovery::damageAnywhere()
{
    QFETCH(bool, cut);
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    const QString journal = m_document->journalFile();
    QList<QByteArray> states{SessionFixture::bytes(m_document->release())};
    QList<qsizetype> ends{SessionFixture::content(journal).size()};
    for (int line = 1; line <= 6; ++line) {
        PrjMappingC mapping = SessionFixture::withState(
            m_document->mapping(id(line % 2 == 0 ? "cat/a.prj" : "cat/screws/b.prj")), {line}, 2);
        if (line == 4)
            mapping.addTarget(QStringLiteral("new/u.prj"), QString());
        m_document->updateMapping(mapping);
        m_document->finishStep();
        states += SessionFixture::bytes(m_document->release());
        ends += SessionFixture::content(journal).size();
    }
    const QByteArray whole = SessionFixture::content(journal);
    const SessionFixture elsewhere;
    const QString file = elsewhere.write();
    for (qsizetype at = ends.first(); at < whole.size(); at += 7) {
        QByteArray damaged = cut ? whole.left(at) : whole;
        if (!cut)
            damaged[at] = char(damaged[at] ^ 4);
        SessionFixture::setContent(file + QStringLiteral(".journal"), damaged);
        const SessionRecovery recovery(file);
        // The change stands before the row that ends its step, so it may be one further.
        const auto step = std::upper_bound(ends.begin(), ends.end(), at) - ends.begin() - 1;
        const QByteArray found = recovery.offer().isValid()
                                     ? SessionFixture::bytes(recovery.recoveredRelease())
                                     : states.first();
        // With nothing before it, what is behind it and fits.
        const bool later = recovery.offer().laterChanges > 0 && !recovery.offer().further.available;
        QVERIFY2(found == states[step] || found == states[step + 1] ||
                     (later && step == 0 && recovery.offer().recovered.counts.verified() > 0),
                 qPrintable(QStringLiteral("damaged at %1").arg(at)));
        if (recovery.offer().isValid() && !cut)
            QVERIFY(!recovery.offer().damage.isEmpty());
    }
}

void tst_SessionRecovery::autosaveBehindTheDamage()
{
    kill({QStringLiteral("confirm"), QStringLiteral("autosave"), QStringLiteral("more")});
    const QString journal = m_file + QStringLiteral(".journal");
    QByteArray bytes = SessionFixture::content(journal);
    bytes.replace("\"change\",\"step\":1", "\"chance\",\"step\":1");
    SessionFixture::setContent(journal, bytes);
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QCOMPARE(m_document->recoveryOffer().recovered.counts.verified(), 4);
    QCOMPARE(m_document->recoveryOffer().damage, QString());
}

void tst_SessionRecovery::autosaveWithoutJournal()
{
    kill({QStringLiteral("confirm"), QStringLiteral("autosave"), QStringLiteral("more")});
    SessionFixture::setContent(m_file + QStringLiteral(".journal"), QByteArray(3000, '\xf0'));
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QCOMPARE(m_document->recoveryOffer().recovered.counts.verified(), 3);
    QVERIFY(m_document->recoveryOffer().recovered.time.isValid());
    QCOMPARE(open(MappingDocument::Recovery::UseRecovered), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->counts().verified(), 3);
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
        QStringLiteral("passt nicht zur Zuordnungsdatei")));
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

void tst_SessionRecovery::aDamagedOpeningHidesNothing_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"one bit", "cut", "merged", "gone", "zeros"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

/// The row that opens the last session cannot be read; the one before was closed.
void tst_SessionRecovery::aDamagedOpeningHidesNothing()
{
    QFETCH(QString, how);
    m_files->addRelease(m_file, SessionFixture::sampleRelease(QStringLiteral("2020-01-01")));
    QCOMPARE(m_document->open({m_file, Date, {}, {}, {}}), MappingDocument::OpenResult::Opened);
    m_document->close();
    const QString journal = m_file + QStringLiteral(".journal");
    const QByteArray before = SessionFixture::content(journal);
    QCOMPARE(m_document->open({m_file, Date, {}, {}, {}}), MappingDocument::OpenResult::Opened);
    m_document->updateMapping(
        SessionFixture::withState(m_document->mapping(id("cat/a.prj")), {1, 2}, 2));
    m_document->finishStep();
    QByteArray now = SessionFixture::content(journal);
    m_document->close();
    const qsizetype end = now.indexOf('\n', before.size()) + 1;
    if (how == u"one bit")
        now[before.size() + 30] = char(now[before.size() + 30] ^ 1);
    else if (how == u"cut")
        now.remove(before.size() + 20, 40);
    else if (how == u"merged")
        now.insert(before.size(), now.mid(before.size(), 20));
    else if (how == u"gone")
        now.remove(before.size(), end - before.size());
    else
        now.replace(before.size(), 16, QByteArray(16, '\0'));
    SessionFixture::setContent(journal, now);

    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    const RecoveryOffer &offer = m_document->recoveryOffer();
    QCOMPARE(offer.sourceDate, Date);
    QCOMPARE(offer.recovered.counts.verified(), 2);
    QCOMPARE(offer.damage.isEmpty(), how == u"gone");
    QCOMPARE(open(MappingDocument::Recovery::UseRecovered), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->counts().verified(), 2);
    QCOMPARE(m_document->release().getSourceDate(), Date);
}

void tst_SessionRecovery::damageBehindTheLastSession()
{
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    const QString journal = m_document->journalFile();
    m_document->close();
    SessionFixture::setContent(journal, SessionFixture::content(journal) + "half a row");
    QSignalSpy problems(m_document.get(), &MappingDocument::problemOccurred);
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    QCOMPARE(problems.size(), 1);
    QVERIFY2(problems.first().first().toString().contains(
                 QStringLiteral("Hinter der letzten abgeschlossenen Sitzung")),
             qPrintable(problems.first().first().toString()));
    QCOMPARE(names(QStringLiteral("release.json.journal.alt-*")).size(), 1);
}

void tst_SessionRecovery::laterChangesAreOfferedApart()
{
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    for (int line = 1; line <= 10; ++line) {
        for (const char *path : {"cat/a.prj", "cat/screws/b.prj"}) {
            m_document->updateMapping(
                SessionFixture::withState(m_document->mapping(id(path)), {line}, 2));
            m_document->finishStep();
        }
    }
    const QString journal = m_document->journalFile();
    QByteArray bytes = SessionFixture::content(journal);
    m_document->close();
    const qsizetype second = bytes.indexOf("\"change\",\"step\":2");
    bytes[second + 2] = char(bytes[second + 2] ^ 1);
    SessionFixture::setContent(journal, bytes);

    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    const RecoveryOffer &offer = m_document->recoveryOffer();
    QCOMPARE(offer.recovered.counts.verified(), 1);
    QVERIFY(offer.further.available);
    QCOMPARE(offer.further.counts.verified(), 19);
    QCOMPARE(offer.laterChanges, 18);
    QCOMPARE(offer.lostChanges, 0);
    QVERIFY2(offer.damage.contains(QStringLiteral("passen noch 18 Änderungen")),
             qPrintable(offer.damage));
    QCOMPARE(open(MappingDocument::Recovery::UseFurther), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->counts().verified(), 19);
    m_document->undo();
    QCOMPARE(m_document->counts().verified(), 0);
}

void tst_SessionRecovery::anUnreadableJournalIsTold()
{
    QVERIFY(QDir().mkpath(m_file + QStringLiteral(".journal")));
    QSignalSpy problems(m_document.get(), &MappingDocument::problemOccurred);
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    QVERIFY(problems.size() >= 1);
    QStringList texts;
    for (const QList<QVariant> &problem : problems)
        texts += problem.first().toString();
    QVERIFY2(texts.join(u' ').contains(QStringLiteral("gewöhnliche Datei")),
             qPrintable(texts.join(u' ')));
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
        SessionFixture::withState(m_document->mapping(id("cat/a.prj")), {1}, 2));
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
