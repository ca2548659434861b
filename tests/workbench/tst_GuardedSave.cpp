#include "../support/SizeLimit.h"
#include "AsNobody.h"
#include "SaveFixture.h"

#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/file/GuardedSave.h>

#include <geomcore/records/MappingFile.h>

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QSignalSpy>
#include <QTest>

#include <cerrno>
#include <sys/stat.h>

/// Saving a file that others may have changed, and what is kept of it.
class tst_GuardedSave : public QObject, protected SaveFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { clear(); }

    void savesAndKeepsTheFormerFile();
    void keepsThreeFormerFiles();
    void savingTellsThatNothingIsChangedAnyMore();
    void savesANewFile();
    void keepsOtherReleasesByteForByte();
    void foreignChanges_data();
    void foreignChanges();
    void sameContentWithAnotherTimeIsNoChange();
    void sameSizeAndTimeWithOtherContentIsAChange_data();
    void sameSizeAndTimeWithOtherContentIsAChange();
    void knownFileIsNotReadAgain();
    void aFileThatIsGoneIsAChange();
    void unreadableFilesAreKept_data();
    void unreadableFilesAreKept();
    void somebodyIsSaving();
    void aLostReleaseIsAFailure();
    void otherReleasesComeFromTheBackup();
    void keepsTheRightsOfTheFile();
    void aFullDisk();
    void readOnlyFile();
    void readOnlyFolder();
    void savesUnderAnotherName();
    void savesIntoAnotherMappingFile();
    void doesNotSaveIntoAFileThatIsBeingEdited();
    void linksStayLinks();
};

void tst_GuardedSave::savesAndKeepsTheFormerFile()
{
    const QByteArray before = SessionFixture::content(m_file);
    openAndChange();
    QSignalSpy saved(m_document.get(), &MappingDocument::saved);
    const SaveOutcome outcome = m_document->save();
    QCOMPARE(outcome.result, SaveResult::Saved);
    QVERIFY(outcome.text.isEmpty());
    QCOMPARE(saved.size(), 1);
    QCOMPARE(outcome.backupFile, m_file + QStringLiteral(".bak"));
    QCOMPARE(SessionFixture::content(outcome.backupFile), before);
    MappingFile now;
    QVERIFY(now.read(m_file));
    QCOMPARE(SessionFixture::bytes(now.release(Date)),
             SessionFixture::bytes(m_document->release()));
    // A second time: what was written is what the file is known by.
    m_document->updateMapping(
        SessionFixture::withState(m_document->mapping(firstProject()), {3}, 2));
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    m_document->close();
    QCOMPARE(names(),
             QStringList({QStringLiteral("release.json"), QStringLiteral("release.json.bak"),
                          QStringLiteral("release.json.bak.2"),
                          QStringLiteral("release.json.journal")}));
    QCOMPARE(SessionFixture::content(m_file + QStringLiteral(".bak.2")), before);
}

void tst_GuardedSave::keepsThreeFormerFiles()
{
    QList<QByteArray> versions{SessionFixture::content(m_file)};
    openAndChange();
    for (int line = 3; line < 8; ++line) {
        m_document->updateMapping(
            SessionFixture::withState(m_document->mapping(firstProject()), {line}, 2));
        QCOMPARE(m_document->save().result, SaveResult::Saved);
        versions.prepend(SessionFixture::content(m_file));
    }
    m_document->close();
    QCOMPARE(GuardedSave::Backups, 3);
    for (int age = 1; age <= 3; ++age)
        QCOMPARE(SessionFixture::content(GuardedSave::backupFile(m_file, age)), versions.at(age));
    QVERIFY(!QFile::exists(GuardedSave::backupFile(m_file, 4)));
    // What stands in the way of an older one stops nothing.
    QVERIFY(QFile::remove(GuardedSave::backupFile(m_file, 2)));
    QVERIFY(QDir().mkdir(GuardedSave::backupFile(m_file, 2)));
    openAndChange();
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    QCOMPARE(SessionFixture::content(GuardedSave::backupFile(m_file)), versions.first());
}

void tst_GuardedSave::savingTellsThatNothingIsChangedAnyMore()
{
    openAndChange();
    QSignalSpy modified(m_document.get(), &MappingDocument::modifiedChanged);
    QSignalSpy saved(m_document.get(), &MappingDocument::saved);
    QVERIFY(m_document->isModified());
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    QCOMPARE(modified.size(), 1);
    QVERIFY(!modified.first().first().toBool());
    QVERIFY(!m_document->isModified());
    QCOMPARE(saved.size(), 1);
}

void tst_GuardedSave::savesANewFile()
{
    QVERIFY(QFile::remove(m_file));
    m_document->openNew(SessionFixture::sampleRelease(), m_file);
    const SaveOutcome outcome = m_document->save();
    QCOMPARE(outcome.result, SaveResult::Saved);
    QVERIFY(outcome.backupFile.isEmpty());
    QVERIFY(!QFile::exists(m_file + QStringLiteral(".bak")));
}

void tst_GuardedSave::keepsOtherReleasesByteForByte()
{
    m_files->addRelease(m_file, SessionFixture::sampleRelease(QStringLiteral("2020-01-01")));
    openAndChange();
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    MappingFile now;
    QVERIFY(now.read(m_file));
    QCOMPARE(now.sourceDates(), QStringList({Date, QStringLiteral("2020-01-01")}));
    QCOMPARE(SessionFixture::bytes(now.release(QStringLiteral("2020-01-01"))),
             SessionFixture::bytes(SessionFixture::sampleRelease(QStringLiteral("2020-01-01"))));
}

void tst_GuardedSave::foreignChanges_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<bool>("onlyOthers");
    QTest::addColumn<QString>("part");
    QTest::newRow("another release") << QStringLiteral("2024-01-01") << true
                                     << QStringLiteral("dieser Stand (2022-01-01) aber nicht");
    QTest::newRow("this release") << Date << false
                                  << QStringLiteral("auch dieser Stand (2022-01-01)");
}

void tst_GuardedSave::foreignChanges()
{
    QFETCH(QString, date);
    QFETCH(bool, onlyOthers);
    QFETCH(QString, part);
    openAndChange();
    ReleaseMappingC theirs = SessionFixture::sampleRelease(date);
    theirs.addMapping(SessionFixture::plainMapping(QStringLiteral("cat/theirs.prj"), 2));
    m_files->addRelease(m_file, theirs);
    const QByteArray foreign = SessionFixture::content(m_file);

    const SaveOutcome outcome = m_document->save();
    QCOMPARE(outcome.result, SaveResult::ForeignChange);
    QCOMPARE(outcome.onlyOtherReleases, onlyOthers);
    QVERIFY2(outcome.text.contains(part), qPrintable(outcome.text));
    QVERIFY(outcome.text.startsWith(m_file));
    QCOMPARE(SessionFixture::content(m_file), foreign);
    QVERIFY(m_document->isModified());

    SaveOptions options;
    options.overForeignChange = true;
    QCOMPARE(m_document->save(options).result, SaveResult::Saved);
    QCOMPARE(SessionFixture::content(m_file + QStringLiteral(".bak")), foreign);
    MappingFile now;
    QVERIFY(now.read(m_file));
    QCOMPARE(SessionFixture::bytes(now.release(Date)),
             SessionFixture::bytes(m_document->release()));
    if (onlyOthers)
        QCOMPARE(SessionFixture::bytes(now.release(date)), SessionFixture::bytes(theirs));
}

void tst_GuardedSave::sameContentWithAnotherTimeIsNoChange()
{
    openAndChange();
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTimeUtc().addDays(-3),
                             QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(m_document->save().result, SaveResult::Saved);
}

void tst_GuardedSave::sameSizeAndTimeWithOtherContentIsAChange_data()
{
    QTest::addColumn<bool>("saved");
    QTest::newRow("since it was opened") << false;
    QTest::newRow("since it was saved") << true;
}

void tst_GuardedSave::sameSizeAndTimeWithOtherContentIsAChange()
{
    QFETCH(bool, saved);
    QTest::qWait(50); // the file has its time for itself
    openAndChange();
    if (saved) {
        QCOMPARE(m_document->save().result, SaveResult::Saved);
        QTest::qWait(50);
        m_document->updateMapping(
            SessionFixture::withState(m_document->mapping(firstProject()), {1}, 1));
        m_document->finishStep();
    }
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QDateTime time = file.fileTime(QFileDevice::FileModificationTime);
    const QByteArray other = SessionFixture::content(m_file).replace("2026-01-01", "2027-01-01");
    QCOMPARE(file.write(other), other.size());
    file.flush();
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(m_document->save().result, SaveResult::ForeignChange);
}

void tst_GuardedSave::knownFileIsNotReadAgain()
{
    QTest::qWait(50);
    const FileContent read = FileContent::of(m_file);
    QVERIFY(!read.identity.isEmpty());
    FileState known = read.state;
    known.hash = "what was read";
    const auto hash = [&] {
        return FileContent::withoutBytes(m_file, known, read.identity).state.hash;
    };
    QCOMPARE(hash(), known.hash);
    QCOMPARE(FileContent::withoutBytes(m_file, known, {}).state.hash, read.state.hash);
    QFile file(m_file);
    const QFileDevice::Permissions rights = file.permissions();
    QVERIFY(file.setPermissions(rights | QFileDevice::ExeOwner));
    QVERIFY(file.setPermissions(rights));
    QCOMPARE(hash(), read.state.hash); // whatever was done to it
    // A file that was just written may get another content at the same time.
    QVERIFY(file.open(QIODevice::ReadWrite));
    QCOMPARE(file.write(read.bytes), read.bytes.size());
    file.close();
    QVERIFY(FileContent::of(m_file).identity.isEmpty());
}

void tst_GuardedSave::aFileThatIsGoneIsAChange()
{
    openAndChange();
    QVERIFY(QFile::remove(m_file));
    const SaveOutcome outcome = m_document->save();
    QCOMPARE(outcome.result, SaveResult::ForeignChange);
    QVERIFY(outcome.text.contains(QStringLiteral("gelöscht oder umbenannt")));
    QVERIFY(!QFile::exists(m_file));
    SaveOptions options;
    options.overForeignChange = true;
    QCOMPARE(m_document->save(options).result, SaveResult::Saved);
}

void tst_GuardedSave::unreadableFilesAreKept_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("cut") << QByteArray("{\"2022-01-01\":{\"sour");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no object") << QByteArray("[1,2]");
    QTest::newRow("binary") << QByteArray("\x01\x02\xff", 3);
}

void tst_GuardedSave::unreadableFilesAreKept()
{
    QFETCH(QByteArray, content);
    openAndChange();
    SessionFixture::setContent(m_file, content);
    SaveOutcome outcome = m_document->save();
    QCOMPARE(outcome.result, SaveResult::Unreadable);
    QVERIFY(outcome.text.contains(QStringLiteral("keine lesbare Mapping-Datei")));
    QCOMPARE(SessionFixture::content(m_file), content);

    SaveOptions options;
    options.overUnreadable = true;
    outcome = m_document->save(options);
    QCOMPARE(outcome.result, SaveResult::Saved);
    QVERIFY2(outcome.keptFile.startsWith(m_file + QStringLiteral(".unlesbar-")),
             qPrintable(outcome.keptFile));
    QCOMPARE(SessionFixture::content(outcome.keptFile), content);
    QCOMPARE(MappingDocument::sourceDates(m_file), QStringList(Date));
}

void tst_GuardedSave::somebodyIsSaving()
{
    openAndChange();
    const QByteArray before = SessionFixture::content(m_file);
    QLockFile other(GuardedSave::lockFile(m_file));
    QVERIFY(other.tryLock(0));
    const SaveOutcome outcome = m_document->save();
    QCOMPARE(outcome.result, SaveResult::Busy);
    QVERIFY(outcome.text.contains(QStringLiteral("von einem anderen Programm gespeichert")));
    QCOMPARE(SessionFixture::content(m_file), before);
    other.unlock();
    QCOMPARE(m_document->save().result, SaveResult::Saved);
}

void tst_GuardedSave::aLostReleaseIsAFailure()
{
    const ReleaseMappingC other = SessionFixture::sampleRelease(QStringLiteral("2020-01-01"));
    m_files->addRelease(m_file, other);
    const QByteArray before = SessionFixture::content(m_file);
    for (const bool keepOther : {false, true}) {
        const SaveOutcome outcome = saveWith([&](const QString &copy) {
            MappingFile file;
            file.setRelease(changedRelease());
            ReleaseMappingC changed = other;
            changed.setTargetDate(QStringLiteral("2021-01-01"));
            if (keepOther)
                file.setRelease(changed);
            return file.write(copy);
        });
        QCOMPARE(outcome.result, SaveResult::WriteFailed);
        QVERIFY2(outcome.text.contains(QStringLiteral("fehlt der Stand 2020-01-01")),
                 qPrintable(outcome.text));
        QCOMPARE(SessionFixture::content(m_file), before);
    }
}

void tst_GuardedSave::otherReleasesComeFromTheBackup()
{
    const ReleaseMappingC other = SessionFixture::sampleRelease(QStringLiteral("2020-01-01"));
    m_files->addRelease(m_file, other);
    openAndChange();
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    const QByteArray backup = SessionFixture::content(GuardedSave::backupFile(m_file));
    SessionFixture::setContent(m_file, SessionFixture::content(m_file).chopped(100));

    SaveOutcome outcome = m_document->save();
    QCOMPARE(outcome.result, SaveResult::Unreadable);
    QCOMPARE(outcome.fromBackup, QStringList(QStringLiteral("2020-01-01")));
    QVERIFY2(outcome.text.contains(QStringLiteral("release.json.bak: 2020-01-01.")),
             qPrintable(outcome.text));
    SaveOptions options;
    options.overUnreadable = true;
    options.overForeignChange = true;
    outcome = m_document->save(options);
    QCOMPARE(outcome.result, SaveResult::Saved);
    MappingFile now;
    QVERIFY(now.read(m_file));
    QCOMPARE(now.sourceDates(), QStringList({Date, QStringLiteral("2020-01-01")}));
    QCOMPARE(SessionFixture::bytes(now.release(QStringLiteral("2020-01-01"))),
             SessionFixture::bytes(other));
    QCOMPARE(SessionFixture::bytes(now.release(Date)),
             SessionFixture::bytes(m_document->release()));
    // What cannot be read does not take the place of what can.
    QCOMPARE(SessionFixture::content(GuardedSave::backupFile(m_file)), backup);
    QVERIFY(QFile::exists(outcome.keptFile));
}

void tst_GuardedSave::keepsTheRightsOfTheFile()
{
    for (const int rights : {0640, 0604, 0666}) {
        QCOMPARE(::chmod(qPrintable(m_file), mode_t(rights)), 0);
        QCOMPARE(saveWith(commitTo).result, SaveResult::Saved);
        struct stat found
        {
        };
        QCOMPARE(::stat(qPrintable(m_file), &found), 0);
        QCOMPARE(int(found.st_mode & 07777), rights);
    }
}

void tst_GuardedSave::aFullDisk()
{
    openAndChange();
    const QByteArray before = SessionFixture::content(m_file);
    m_document->updateMapping(SessionFixture::plainMapping(QStringLiteral("cat/large.prj"), 2000));
    m_document->finishStep();
    SaveOutcome outcome;
    {
        // The backup has room, the new file has not.
        const SizeLimit limit(before.size() + 100);
        outcome = m_document->save();
    }
    QCOMPARE(outcome.result, SaveResult::WriteFailed);
    QCOMPARE(SessionFixture::content(m_file), before);
    QVERIFY(m_document->isModified());
    QCOMPARE(m_document->save().result, SaveResult::Saved);
}

void tst_GuardedSave::readOnlyFile()
{
    const QByteArray before = SessionFixture::content(m_file);
    QFile::setPermissions(m_file, QFile::Permissions(0x4444));
    QFile::setPermissions(m_files->path(QString()), QFile::Permissions(0x7777));
    {
        const AsNobody nobody;
        QVERIFY(!nobody.failed());
        openAndChange();
        QVERIFY(!m_document->isReadOnly());
        const SaveOutcome outcome = m_document->save();
        QCOMPARE(outcome.result, SaveResult::WriteFailed);
        QVERIFY2(outcome.text.contains(QStringLiteral("Schreibrechte")), qPrintable(outcome.text));
        QVERIFY(!QFile::exists(m_file + QStringLiteral(".bak")));
        QVERIFY(m_document->isModified());
        m_document->close();
    }
    QCOMPARE(SessionFixture::content(m_file), before);
}

void tst_GuardedSave::readOnlyFolder()
{
    const QString folder = m_files->path(QStringLiteral("locked"));
    QVERIFY(QDir().mkpath(folder));
    const QString file = folder + QStringLiteral("/release.json");
    QVERIFY(QFile::copy(m_file, file));
    // The folder above must be open to anybody, too.
    QFile::setPermissions(m_files->path(QString()), QFile::Permissions(0x7755));
    QFile::setPermissions(file, QFile::Permissions(0x6644));
    QFile::setPermissions(folder, QFile::Permissions(0x5555));
    {
        const AsNobody nobody;
        QVERIFY(!nobody.failed());
        QCOMPARE(m_document->open({file, {}, {}, {}, {}}),
                 MappingDocument::OpenResult::OpenedReadOnly);
        QCOMPARE(m_document->readOnlyReason(), MappingDocument::ReadOnlyReason::NotWritable);
        QVERIFY(m_document->readOnlyText().contains(QStringLiteral("nicht beschreibbar")));
        const SaveOutcome outcome = m_document->save();
        QCOMPARE(outcome.result, SaveResult::ReadOnly);
        QVERIFY(outcome.text.contains(QStringLiteral("unter einem anderen Namen")));
        const QString other = folder + QStringLiteral("/other.json");
        const SaveOutcome elsewhere = m_document->saveAs(other);
        QCOMPARE(elsewhere.result, SaveResult::WriteFailed);
        QVERIFY(elsewhere.text.contains(QStringLiteral("einen anderen Ordner")));
        QVERIFY(m_document->openNew(SessionFixture::sampleRelease(), other) ==
                MappingDocument::OpenResult::Unreadable);
        QCOMPARE(m_document->errorText(), elsewhere.text);
    }
    QFile::setPermissions(folder, QFile::Permissions(0x7755));
    QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList(QStringLiteral("release.json")));
}

void tst_GuardedSave::savesUnderAnotherName()
{
    openAndChange();
    const QByteArray before = SessionFixture::content(m_file);
    const QString other = m_files->path(QStringLiteral("other.json"));
    QCOMPARE(m_document->saveAs(other).result, SaveResult::Saved);
    QCOMPARE(m_document->mappingFile(), other);
    QVERIFY(!m_document->isModified());
    QCOMPARE(SessionFixture::content(m_file), before);
    QVERIFY(!QFile::exists(m_file + QStringLiteral(".edit")));
    QVERIFY(QFile::exists(other + QStringLiteral(".edit")));
    // Later saving goes to the new file.
    m_document->undo();
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    QCOMPARE(SessionFixture::content(m_file), before);
    MappingFile now;
    QVERIFY(now.read(other));
    QCOMPARE(SessionFixture::bytes(now.release(Date)),
             SessionFixture::bytes(SessionFixture::sampleRelease()));
    // A document that was read only can be edited from now on.
    MappingDocument reader;
    reader.open({other, {}, {}, MappingDocument::Access::ReadOnly, {}});
    QCOMPARE(reader.saveAs(m_files->path(QStringLiteral("third.json"))).result, SaveResult::Saved);
    QVERIFY(!reader.isReadOnly());
    reader.updateMapping(SessionFixture::withState(reader.mapping(firstProject()), {1}, 2));
    QCOMPARE(reader.save().result, SaveResult::Saved);
}

void tst_GuardedSave::savesIntoAnotherMappingFile()
{
    const QString other = m_files->path(QStringLiteral("other.json"));
    m_files->addRelease(other, SessionFixture::sampleRelease(QStringLiteral("2020-01-01")));
    openAndChange();
    QCOMPARE(m_document->saveAs(other).result, SaveResult::Saved);
    QCOMPARE(MappingDocument::sourceDates(other),
             QStringList({QStringLiteral("2020-01-01"), Date}));
}

void tst_GuardedSave::doesNotSaveIntoAFileThatIsBeingEdited()
{
    const QString other = m_files->path(QStringLiteral("other.json"));
    m_files->addRelease(other, SessionFixture::sampleRelease());
    const QByteArray before = SessionFixture::content(other);
    MappingDocument theirs;
    theirs.open({other, {}, {}, {}, {}});
    openAndChange();
    const SaveOutcome outcome = m_document->saveAs(other);
    QCOMPARE(outcome.result, SaveResult::Busy);
    QVERIFY2(outcome.text.contains(QStringLiteral("bearbeitet")), qPrintable(outcome.text));
    QCOMPARE(SessionFixture::content(other), before);
    QCOMPARE(m_document->mappingFile(), m_file);
    QCOMPARE(m_document->save().result, SaveResult::Saved);
}

void tst_GuardedSave::linksStayLinks()
{
    const QString link = m_files->path(QStringLiteral("link.json"));
    QVERIFY(QFile::link(m_file, link));
    QCOMPARE(m_document->open({link, {}, {}, {}, {}}), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->mappingFile(), m_file);
    MappingDocument second;
    QCOMPARE(second.open({m_file, {}, {}, {}, {}}), MappingDocument::OpenResult::OpenedReadOnly);
    second.close();
    m_document->updateMapping(
        SessionFixture::withState(m_document->mapping(firstProject()), {1}, 2));
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    QVERIFY(QFileInfo(link).isSymLink());
}

QTEST_GUILESS_MAIN(tst_GuardedSave)

#include "tst_GuardedSave.moc"
