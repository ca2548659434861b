#include "../support/SizeLimit.h"
#include "SaveFixture.h"

#include <workbench/session/file/OwnFile.h>

#include <QFile>

#include <cerrno>
#include <sys/stat.h>

/// Whatever fails while a file is saved: the former one is there, whole, and it is told.
class tst_SaveFailures : public QObject, protected SaveFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { clear(); }

    void failuresAreUndone_data();
    void failuresAreUndone();
    void whatIsWrittenRightAndDamagedIsNoticed_data();
    void whatIsWrittenRightAndDamagedIsNoticed();
    void aFailedNewFileIsRemoved();
    void theFileIsNeverOpenedForWriting();
    void aFullDiskIsTold();
    void whatStandsInTheWay_data();
    void whatStandsInTheWay();
    void aPipeIsNoMappingFile();
    void theFolderIsGone();
    void anUnfinishedCopyIsOfNoConsequence();
    void aChangeWhileWriting();
};

void tst_SaveFailures::failuresAreUndone_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("part");
    QTest::newRow("says that it failed")
        << QByteArray("{\"2022") << false << QStringLiteral("nicht vollständig geschrieben");
    QTest::newRow("half a file") << QByteArray("{\"2022") << true << QStringLiteral("nicht lesbar");
    QTest::newRow("another content")
        << QByteArray("{\"2022-01-01\":{\"sourceDate\":\"2022-01-01\",\"targetDate\":\"\"}}")
        << true << QStringLiteral("enthält nicht, was gespeichert werden sollte");
    QTest::newRow("nothing") << QByteArray() << true << QStringLiteral("nicht lesbar");
}

void tst_SaveFailures::failuresAreUndone()
{
    QFETCH(QByteArray, written);
    QFETCH(bool, result);
    QFETCH(QString, part);
    const QByteArray before = SessionFixture::content(m_file);
    const SaveOutcome outcome = saveWith([&](const QString &copy) {
        SessionFixture::setContent(copy, written);
        return result;
    });
    QCOMPARE(outcome.result, SaveResult::WriteFailed);
    QVERIFY2(outcome.text.contains(part), qPrintable(outcome.text));
    QVERIFY(outcome.text.startsWith(m_file + QStringLiteral(" wurde nicht gespeichert:")));
    QVERIFY(outcome.text.contains(QStringLiteral("Die Datei ist unverändert")));
    QCOMPARE(SessionFixture::content(m_file), before);
    QCOMPARE(names(), QStringList(QStringLiteral("release.json")));
}

void tst_SaveFailures::whatIsWrittenRightAndDamagedIsNoticed_data()
{
    QTest::addColumn<QByteArray>("former");
    QTest::addColumn<QByteArray>("damaged");
    QTest::addColumn<QString>("part");
    QTest::newRow("nothing") << QByteArray("[1,") << QByteArray("[1,") << QString();
    QTest::newRow("another form") << QByteArray("[1,") << QByteArray("[1 ,") << QString();
    QTest::newRow("another number") << QByteArray("[1,") << QByteArray("[2,")
                                    << QStringLiteral("enthält nicht, was gespeichert");
    QTest::newRow("of the same size in another place")
        << QByteArray("\"2022-01-01\": {") << QByteArray("\"2022-01-02\": {")
        << QStringLiteral("enthält nicht, was gespeichert");
    QTest::newRow("no JSON") << QByteArray("[1,") << QByteArray("[,,")
                             << QStringLiteral("nicht lesbar");
    QTest::newRow("another release") << QByteArray("2020-01-01\",\n  \"targetDate\": \"2")
                                     << QByteArray("2020-01-01\",\n  \"targetDate\": \"3")
                                     << QStringLiteral("fehlt der Stand 2020-01-01");
    QTest::newRow("something behind")
        << QByteArray("\n }\n}\n") << QByteArray("\n }\n}\n}") << QStringLiteral("nicht lesbar");
    QTest::newRow("cut off") << QByteArray("\n }\n}\n") << QByteArray("\n }\n")
                             << QStringLiteral("nicht lesbar");
}

/// By the document's own way, of which it is known what was written.
void tst_SaveFailures::whatIsWrittenRightAndDamagedIsNoticed()
{
    QFETCH(QByteArray, former);
    QFETCH(QByteArray, damaged);
    QFETCH(QString, part);
    m_files->addRelease(m_file, SessionFixture::sampleRelease(QStringLiteral("2020-01-01")));
    const QByteArray before = SessionFixture::content(m_file);
    const ReleaseMappingC release = changedRelease();
    GuardedSave guard(m_file, {FileState::of(m_file), SessionFixture::sampleRelease()});
    QByteArray written;
    const SaveOutcome outcome =
        guard.run(release,
                  [&](const QString &copy) {
                      const bool done =
                          ReleaseMappingHandler(release, {}, copy).commitModifications();
                      written = SessionFixture::content(copy);
                      const qsizetype at = written.indexOf(former);
                      written = at < 0 ? QByteArray() : written.replace(at, former.size(), damaged);
                      SessionFixture::setContent(copy, written);
                      return done;
                  },
                  {});
    QVERIFY(!written.isEmpty());
    QVERIFY2(part.isEmpty() == outcome.text.isEmpty() && outcome.text.contains(part),
             qPrintable(outcome.text));
    QCOMPARE(SessionFixture::content(m_file), part.isEmpty() ? written : before);
    if (part.isEmpty())
        QVERIFY(guard.saved().state.sameContent(FileState::of(m_file)));
}

void tst_SaveFailures::aFailedNewFileIsRemoved()
{
    QVERIFY(QFile::remove(m_file));
    const SaveOutcome outcome = saveWith([&](const QString &copy) {
        SessionFixture::setContent(copy, "{");
        return false;
    });
    QCOMPARE(outcome.result, SaveResult::WriteFailed);
    QVERIFY(!QFile::exists(m_file));
    QVERIFY(names().isEmpty());
}

/// Whatever happens while it is being written, the file is there whole.
void tst_SaveFailures::theFileIsNeverOpenedForWriting()
{
    m_files->addRelease(m_file, SessionFixture::sampleRelease(QStringLiteral("2020-01-01")));
    const QByteArray before = SessionFixture::content(m_file);
    QFile former(m_file);
    QVERIFY(former.open(QIODevice::ReadOnly));
    const SaveOutcome outcome = saveWith([&](const QString &copy) {
        return SessionFixture::content(m_file) == before && commitTo(copy) &&
               SessionFixture::content(m_file) == before;
    });
    QCOMPARE(outcome.result, SaveResult::Saved);
    // Another file has taken its place.
    QCOMPARE(former.readAll(), before);
    QVERIFY(SessionFixture::content(m_file) != before);
    QCOMPARE(SessionFixture::content(outcome.backupFile), before);
}

void tst_SaveFailures::aFullDiskIsTold()
{
    const QByteArray before = SessionFixture::content(m_file);
    SessionFixture::setContent(GuardedSave::backupFile(m_file), "former");
    SaveOutcome outcome;
    {
        const SizeLimit limit(before.size() / 2);
        outcome = saveWith(commitTo);
    }
    QCOMPARE(outcome.result, SaveResult::WriteFailed);
    QVERIFY2(outcome.text.contains(OwnFile::causeOf(EFBIG)), qPrintable(outcome.text));
    QCOMPARE(OwnFile::causeOf(ENOSPC), QStringLiteral("der Datenträger ist voll"));
    QCOMPARE(SessionFixture::content(m_file), before);
    QCOMPARE(SessionFixture::content(GuardedSave::backupFile(m_file)), QByteArray("former"));
    QCOMPARE(names(),
             QStringList({QStringLiteral("release.json"), QStringLiteral("release.json.bak")}));
}

void tst_SaveFailures::whatStandsInTheWay_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("thing");
    for (const char *suffix : {".lock", ".neu", ".bak", ".bak.part"}) {
        for (const char *thing : {"link", "dangling", "pipe", "folder"})
            QTest::addRow("%s at %s", thing, suffix)
                << QString::fromLatin1(suffix) << QString::fromLatin1(thing);
    }
}

/// Nothing of ours is written through a link or into a pipe, and nobody waits for one.
void tst_SaveFailures::whatStandsInTheWay()
{
    QFETCH(QString, suffix);
    QFETCH(QString, thing);
    const QByteArray before = SessionFixture::content(m_file);
    const QString victim = m_files->path(QStringLiteral("victim"));
    if (thing != u"dangling")
        SessionFixture::setContent(victim, "precious");
    const QString name = m_file + suffix;
    if (thing == u"pipe")
        QCOMPARE(::mkfifo(qPrintable(name), 0600), 0);
    else if (thing == u"folder")
        QVERIFY(QDir().mkpath(name + QStringLiteral("/full")));
    else
        QVERIFY(QFile::link(victim, name));
    SaveOutcome outcome = saveWith(commitTo);
    QVERIFY(outcome.result == SaveResult::WriteFailed ||
            outcome.result == SaveResult::BackupFailed);
    QVERIFY2(outcome.text.contains(QStringLiteral("gewöhnliche Datei")), qPrintable(outcome.text));
    QCOMPARE(SessionFixture::content(m_file), before);
    QCOMPARE(QFile::exists(victim), thing != u"dangling");
    if (thing != u"dangling")
        QCOMPARE(SessionFixture::content(victim), QByteArray("precious"));
    QCOMPARE(OwnFile::place(name), OwnFile::Place::Other);
    QVERIFY(QFile::remove(name) || QDir(name).removeRecursively());
    outcome = saveWith(commitTo);
    QVERIFY2(outcome.result == SaveResult::Saved, qPrintable(outcome.text));
}

void tst_SaveFailures::aPipeIsNoMappingFile()
{
    QVERIFY(QFile::remove(m_file));
    QCOMPARE(::mkfifo(qPrintable(m_file), 0600), 0);
    QCOMPARE(saveWith(commitTo).result, SaveResult::WriteFailed);
    QCOMPARE(OwnFile::place(m_file), OwnFile::Place::Other);
}

void tst_SaveFailures::theFolderIsGone()
{
    const QString folder = m_files->path(QStringLiteral("gone"));
    QVERIFY(QDir().mkpath(folder));
    m_file = folder + QStringLiteral("/release.json");
    const SaveOutcome outcome = saveWith(
        [&](const QString &copy) { return QDir(folder).removeRecursively() && commitTo(copy); });
    QCOMPARE(outcome.result, SaveResult::WriteFailed);
    QVERIFY2(outcome.text.contains(OwnFile::causeOf(ENOENT)), qPrintable(outcome.text));
    QCOMPARE(saveWith(commitTo).result, SaveResult::WriteFailed);
}

/// A program that was killed while it was writing.
void tst_SaveFailures::anUnfinishedCopyIsOfNoConsequence()
{
    SessionFixture::setContent(GuardedSave::copyFile(m_file), "{\"2022-01-01\":{\"sou");
    SessionFixture::setContent(GuardedSave::backupFile(m_file) + QStringLiteral(".part"), "{");
    QCOMPARE(saveWith(commitTo).result, SaveResult::Saved);
    QCOMPARE(names(),
             QStringList({QStringLiteral("release.json"), QStringLiteral("release.json.bak")}));
}

void tst_SaveFailures::aChangeWhileWriting()
{
    QByteArray theirs;
    const SaveOutcome outcome = saveWith([&](const QString &copy) {
        m_files->addRelease(m_file, SessionFixture::sampleRelease(QStringLiteral("2030-01-01")));
        theirs = SessionFixture::content(m_file);
        return commitTo(copy);
    });
    QCOMPARE(outcome.result, SaveResult::ForeignChange);
    QVERIFY2(outcome.text.contains(QStringLiteral("während")), qPrintable(outcome.text));
    QCOMPARE(SessionFixture::content(m_file), theirs);
    QVERIFY(!names().contains(QStringLiteral("release.json.neu")));
}

QTEST_GUILESS_MAIN(tst_SaveFailures)
#include "tst_SaveFailures.moc"
