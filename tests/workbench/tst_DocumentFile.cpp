#include "AsNobody.h"
#include "SessionFixture.h"

#include <workbench/session/document/DocumentFile.h>
#include <workbench/session/file/GuardedSave.h>

#include <geomcore/records/MappingFile.h>

#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <memory>
#include <unistd.h>

namespace {

using Access = MappingDocument::Access;
using OpenResult = MappingDocument::OpenResult;
using ReadOnlyReason = MappingDocument::ReadOnlyReason;

/// The sample with the first lines of its first project confirmed.
ReleaseMappingC confirmed(const QList<int> &lines)
{
    ReleaseMappingC release = SessionFixture::sampleRelease();
    release.addMapping(SessionFixture::withState(release.mappingAt(0), lines, 2));
    return release;
}

ReleaseMappingC releaseIn(const QString &file, const QString &date = QStringLiteral("2022-01-01"))
{
    MappingFile mappings;
    return mappings.read(file) ? mappings.release(date) : ReleaseMappingC();
}

} // namespace

class tst_DocumentFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void readsTheLastRelease();
    void readsWhatWasReadBefore();
    void cannotRead_data();
    void cannotRead();
    void aBackupIsNamedIfThereIsOne();
    void lacksTheRelease();
    void tellsThatAFileIsOld();
    void datesOfAFile_data();
    void datesOfAFile();
    void textOfARelease();

    void holdsTheLock();
    void readsOnlyAtWill();
    void readsOnlyBesideAnother();
    void readsOnlyWithoutRights();
    void readsOnlyWithALinkForItsLock();
    void changesItsFile();
    void takesALostLockAgain();

    void hardLinksAreTold();
    void workThatCannotBeReachedIsTold();

    void saves();
    void keepsWhatIsKnownIfSavingFails();
    void savesUnderAnotherName();
    void doesNotSaveIntoAFileThatIsBeingEdited();
    void staysAtItsFileIfAnotherIsNotWritten();
    void doesNotSaveWithoutRights();
    void sideFile();
    void sideFileThatCannotBeWritten();

private:
    [[nodiscard]] DocumentFile::Reading read(const QString &date = QString()) const
    {
        return DocumentFile::read(m_file, date, nullptr);
    }

    std::unique_ptr<SessionFixture> m_files;
    QString m_file;
};

void tst_DocumentFile::init()
{
    m_files = std::make_unique<SessionFixture>();
    m_file = m_files->write();
}

void tst_DocumentFile::readsTheLastRelease()
{
    m_files->addRelease(m_file, SessionFixture::sampleRelease(QStringLiteral("2024-01-01")));
    const DocumentFile::Reading last = read();
    QCOMPARE(last.result, OpenResult::Opened);
    QCOMPARE(last.date, QStringLiteral("2024-01-01"));
    QCOMPARE(SessionFixture::bytes(last.release.value()),
             SessionFixture::bytes(SessionFixture::sampleRelease(QStringLiteral("2024-01-01"))));
    QCOMPARE(last.content.bytes, SessionFixture::content(m_file));
    QCOMPARE(last.errorText, QString());
    const DocumentFile::Reading first = read(QStringLiteral("2022-01-01"));
    QCOMPARE(first.date, QStringLiteral("2022-01-01"));
    QCOMPARE(first.release->getSourceDate(), QStringLiteral("2022-01-01"));
    // Another one that cannot be read does not count.
    SessionFixture::setContent(m_file,
                               SessionFixture::content(m_file).replace(0, 1, "{\"2020\": 7,"));
    QCOMPARE(read().date, QStringLiteral("2024-01-01"));
    QCOMPARE(read().release->countMappings(), last.release->countMappings());
}

void tst_DocumentFile::readsWhatWasReadBefore()
{
    const auto content = std::make_shared<const FileContent>(FileContent::of(m_file));
    QVERIFY(QFile::remove(m_file));
    const DocumentFile::Reading reading = DocumentFile::read(m_file, QString(), content);
    QCOMPARE(reading.result, OpenResult::Opened);
    QCOMPARE(reading.release->countMappings(), 3);
}

void tst_DocumentFile::cannotRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray("");
    QTest::newRow("no JSON") << QByteArray("{ no");
    QTest::newRow("no object") << QByteArray("[1]");
    QTest::newRow("a release that is none") << QByteArray("{\"2022-01-01\": 7}");
}

void tst_DocumentFile::cannotRead()
{
    QFETCH(QByteArray, content);
    SessionFixture::setContent(m_file, content);
    const DocumentFile::Reading reading = read();
    QCOMPARE(reading.result, OpenResult::Unreadable);
    QVERIFY(!reading.release);
    QVERIFY2(reading.errorText.startsWith("Die Mapping-Datei " + m_file +
                                          " kann nicht gelesen werden (") &&
                 reading.errorText.endsWith(").\nBitte eine andere Datei wählen."),
             qPrintable(reading.errorText));
}

void tst_DocumentFile::aBackupIsNamedIfThereIsOne()
{
    QVERIFY(QFile::rename(m_file, GuardedSave::backupFile(m_file)));
    const QString name = QFileInfo(GuardedSave::backupFile(m_file)).fileName();
    const DocumentFile::Reading reading = read();
    QCOMPARE(reading.result, OpenResult::Unreadable);
    QVERIFY2(reading.errorText.endsWith("oder die Sicherungskopie " + name + " zurückkopieren."),
             qPrintable(reading.errorText));
}

void tst_DocumentFile::lacksTheRelease()
{
    const DocumentFile::Reading other = read(QStringLiteral("2020-01-01"));
    QCOMPARE(other.result, OpenResult::NoRelease);
    QCOMPARE(other.errorText,
             m_file + " enthält keinen Stand 2020-01-01. Vorhanden sind: 2022-01-01");
    SessionFixture::setContent(m_file, "{}");
    QCOMPARE(read().result, OpenResult::NoRelease);
    QCOMPARE(read().errorText, m_file + " enthält keinen Stand.");
}

void tst_DocumentFile::tellsThatAFileIsOld()
{
    const DocumentFile::Reading reading = read();
    QVERIFY(!DocumentFile::isOld(m_file, reading));
    SessionFixture::setContent(m_file, SessionFixture::content(m_file) + ' ');
    QVERIFY(DocumentFile::isOld(m_file, reading));
}

void tst_DocumentFile::datesOfAFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("dates");
    QTest::addColumn<QString>("fault");
    QTest::newRow("in the order of the file")
        << QByteArray(R"({"2024":{},"2022":{}})") << QStringList{"2024", "2022"} << QString();
    QTest::newRow("none") << QByteArray("{}") << QStringList() << QString();
    QTest::newRow("no object") << QByteArray("[]") << QStringList()
                               << "Eine Mapping-Datei muss ein Objekt enthalten.";
    QTest::newRow("no JSON") << QByteArray("{\"2024\":") << QStringList() << "Zeile 1, Spalte 9: ";
}

void tst_DocumentFile::datesOfAFile()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, fault);
    SessionFixture::setContent(m_file, content);
    QString error;
    QTEST(DocumentFile::datesIn(FileContent::of(m_file), &error), "dates");
    QVERIFY2(error.contains(fault) && error.isEmpty() == fault.isEmpty(), qPrintable(error));
    QTEST(DocumentFile::datesIn(FileContent::of(m_file), nullptr), "dates");
    QVERIFY(DocumentFile::datesIn(FileContent::of(m_files->path("gone.json")), &error).isEmpty());
    QVERIFY(!error.isEmpty());
}

void tst_DocumentFile::textOfARelease()
{
    const QString other = m_files->path(QStringLiteral("other.json"));
    SessionFixture::setContent(other, DocumentFile::textOf(confirmed({1})));
    QCOMPARE(SessionFixture::bytes(releaseIn(other)), SessionFixture::bytes(confirmed({1})));
}

void tst_DocumentFile::holdsTheLock()
{
    DocumentFile file;
    QVERIFY(!file.isEditable());
    file.moveTo(m_file, Access::ReadWrite);
    QVERIFY(file.isEditable());
    QCOMPARE(file.path(), m_file);
    QCOMPARE(file.readOnly(), ReadOnlyReason::None);
    QCOMPARE(file.readOnlyText(), QString());
    QCOMPARE(file.warning(), QString());
    EditLock other;
    QCOMPARE(other.take(m_file), EditLock::HeldByOther);
    file.setKnown({FileState::of(m_file), confirmed({1})});
    file.leave();
    QVERIFY(!file.isEditable());
    QCOMPARE(file.path(), QString());
    QVERIFY(!file.known().exists);
    QCOMPARE(other.take(m_file), EditLock::Taken);
}

void tst_DocumentFile::readsOnlyAtWill()
{
    DocumentFile file;
    file.moveTo(m_file, Access::ReadOnly);
    QVERIFY(!file.isEditable());
    QCOMPARE(file.readOnly(), ReadOnlyReason::Wanted);
    QCOMPARE(file.readOnlyText(), m_file + " ist nur zum Lesen geöffnet.");
    EditLock other;
    QCOMPARE(other.take(m_file), EditLock::Taken);
}

void tst_DocumentFile::readsOnlyBesideAnother()
{
    EditLock other;
    QCOMPARE(other.take(m_file), EditLock::Taken);
    DocumentFile file;
    file.moveTo(m_file, Access::ReadWrite);
    QVERIFY(!file.isEditable());
    QCOMPARE(file.readOnly(), ReadOnlyReason::HeldByOther);
    QCOMPARE(file.otherOwner().process, EditLock::self().process);
    QCOMPARE(file.readOnlyText(), m_file + " wird gerade von " + ownerText(EditLock::self()) +
                                      " bearbeitet und ist deshalb nur zum Lesen geöffnet.");
    QVERIFY(file.cannotMakeText().contains("Bitte einen anderen Namen wählen."));
    other.release();
    file.moveTo(m_file, Access::ReadWrite);
    QVERIFY(file.isEditable());
    QVERIFY(file.otherOwner().user.isEmpty());
}

void tst_DocumentFile::readsOnlyWithoutRights()
{
    QFile::setPermissions(m_files->path(QString()), QFile::Permissions(0x5555));
    {
        const AsNobody nobody;
        QVERIFY(!nobody.failed());
        DocumentFile file;
        file.moveTo(m_file, Access::ReadWrite);
        QCOMPARE(file.readOnly(), ReadOnlyReason::NotWritable);
        QVERIFY2(file.readOnlyText().startsWith("Der Ordner von " + m_file +
                                                " ist nicht beschreibbar ("),
                 qPrintable(file.readOnlyText()));
        QVERIFY(file.cannotMakeText().contains("Bitte einen anderen Ordner wählen."));
    }
    QFile::setPermissions(m_files->path(QString()), QFile::Permissions(0x7755));
}

void tst_DocumentFile::readsOnlyWithALinkForItsLock()
{
    const QString elsewhere = m_files->path(QStringLiteral("elsewhere"));
    QVERIFY(QFile::link(elsewhere, EditLock::lockFile(m_file)));
    DocumentFile file;
    file.moveTo(m_file, Access::ReadWrite);
    QCOMPARE(file.readOnly(), ReadOnlyReason::NotWritable);
    QVERIFY(!QFile::exists(elsewhere));
}

void tst_DocumentFile::changesItsFile()
{
    const QString other = m_files->path(QStringLiteral("other.json"));
    DocumentFile file;
    file.moveTo(m_file, Access::ReadWrite);
    file.moveTo(other, Access::ReadWrite);
    QCOMPARE(file.path(), other);
    EditLock lock;
    QCOMPARE(lock.take(m_file), EditLock::Taken);
    QCOMPARE(lock.take(other), EditLock::HeldByOther);
}

void tst_DocumentFile::takesALostLockAgain()
{
    DocumentFile file;
    QVERIFY(file.renewLock()); // there is none to be lost
    file.moveTo(m_file, Access::ReadWrite);
    QVERIFY(file.renewLock());
    QVERIFY(QFile::remove(EditLock::lockFile(m_file)));
    QVERIFY(file.renewLock());
    QVERIFY(QFile::exists(EditLock::lockFile(m_file)));
    // Somebody else was faster.
    QVERIFY(QFile::remove(EditLock::lockFile(m_file)));
    EditLock other;
    QCOMPARE(other.take(m_file), EditLock::Taken);
    QVERIFY(!file.renewLock());
}

void tst_DocumentFile::hardLinksAreTold()
{
    const QString second = m_files->path(QStringLiteral("second.json"));
    QCOMPARE(::link(QFile::encodeName(m_file).constData(), QFile::encodeName(second).constData()),
             0);
    DocumentFile file;
    file.moveTo(m_file, Access::ReadWrite);
    QVERIFY2(file.warning().startsWith(m_file + " hat noch einen anderen Namen (harter Link)"),
             qPrintable(file.warning()));
    file.moveTo(m_file, Access::ReadOnly);
    QCOMPARE(file.warning(), QString());
    // The backup is our own doing.
    QVERIFY(QFile::rename(second, GuardedSave::backupFile(m_file)));
    file.moveTo(m_file, Access::ReadWrite);
    QCOMPARE(file.warning(), QString());
}

void tst_DocumentFile::workThatCannotBeReachedIsTold()
{
    {
        DocumentFile writer;
        writer.moveTo(m_file, Access::ReadWrite);
        QString error;
        QVERIFY(writer.autosave(confirmed({1}), &error));
    }
    QVERIFY(QFile::link(m_files->path(QStringLiteral("x")), EditLock::lockFile(m_file)));
    DocumentFile file;
    file.moveTo(m_file, Access::ReadWrite);
    QVERIFY2(
        file.warning().startsWith("Zu " + m_file + " gibt es Arbeit, die nicht gespeichert wurde."),
        qPrintable(file.warning()));
    QVERIFY(file.findRecovery(FileContent::of(m_file)).offer().isValid());
    file.removeAutosave();
    QCOMPARE(file.warning(), QString());
}

void tst_DocumentFile::saves()
{
    DocumentFile file;
    file.moveTo(m_file, Access::ReadWrite);
    const DocumentFile::Reading reading = read();
    file.setKnown(reading.known());
    const SaveOutcome outcome = file.save(confirmed({1, 2}), QStringLiteral("root"), {});
    QCOMPARE(outcome.result, SaveResult::Saved);
    QCOMPARE(SessionFixture::bytes(releaseIn(m_file)), SessionFixture::bytes(confirmed({1, 2})));
    QCOMPARE(file.known().hash, FileState::of(m_file).hash);
    // What is known is what was saved: the next one meets no foreign change.
    QCOMPARE(file.save(confirmed({1}), QStringLiteral("root"), {}).result, SaveResult::Saved);
    QCOMPARE(SessionFixture::bytes(releaseIn(m_file)), SessionFixture::bytes(confirmed({1})));
}

void tst_DocumentFile::keepsWhatIsKnownIfSavingFails()
{
    DocumentFile file;
    file.moveTo(m_file, Access::ReadWrite);
    const DocumentFile::Reading reading = read();
    file.setKnown(reading.known());
    MappingFile foreign;
    foreign.setRelease(confirmed({9}));
    QVERIFY(foreign.write(m_file));
    for (int i = 0; i < 2; ++i)
        QCOMPARE(file.save(confirmed({1}), QString(), {}).result, SaveResult::ForeignChange);
    QCOMPARE(file.known().hash, reading.content.state.hash);
    SaveOptions over;
    over.overForeignChange = true;
    QCOMPARE(file.save(confirmed({1}), QString(), over).result, SaveResult::Saved);
    QCOMPARE(SessionFixture::bytes(releaseIn(m_file)), SessionFixture::bytes(confirmed({1})));
}

void tst_DocumentFile::savesUnderAnotherName()
{
    const QString other = m_files->path(QStringLiteral("other.json"));
    m_files->addRelease(other, SessionFixture::sampleRelease(QStringLiteral("2020-01-01")));
    DocumentFile file;
    file.moveTo(m_file, Access::ReadWrite);
    QCOMPARE(file.saveAs(other, confirmed({3}), QString(), {}).result, SaveResult::Saved);
    QCOMPARE(file.path(), other);
    QVERIFY(file.isEditable());
    QCOMPARE(file.known().hash, FileState::of(other).hash);
    QCOMPARE(SessionFixture::bytes(releaseIn(other)), SessionFixture::bytes(confirmed({3})));
    QCOMPARE(releaseIn(other, QStringLiteral("2020-01-01")).countMappings(), 3);
    QCOMPARE(SessionFixture::bytes(releaseIn(m_file)),
             SessionFixture::bytes(SessionFixture::sampleRelease()));
    EditLock lock;
    QCOMPARE(lock.take(other), EditLock::HeldByOther);
    QCOMPARE(lock.take(m_file), EditLock::Taken);
}

void tst_DocumentFile::doesNotSaveIntoAFileThatIsBeingEdited()
{
    const QString other = m_files->path(QStringLiteral("other.json"));
    EditLock lock;
    QCOMPARE(lock.take(other), EditLock::Taken);
    DocumentFile file;
    file.moveTo(m_file, Access::ReadWrite);
    const SaveOutcome outcome = file.saveAs(other, confirmed({3}), QString(), {});
    QCOMPARE(outcome.result, SaveResult::Busy);
    QCOMPARE(outcome.text, other + " wird gerade von " + ownerText(EditLock::self()) +
                               " bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen "
                               "Namen wählen.");
    QVERIFY(!QFile::exists(other));
    QCOMPARE(file.path(), m_file);
    QVERIFY(file.isEditable());
}

void tst_DocumentFile::staysAtItsFileIfAnotherIsNotWritten()
{
    const QString other = m_files->path(QStringLiteral("other.json"));
    SessionFixture::setContent(other, "{ no");
    DocumentFile file;
    file.moveTo(m_file, Access::ReadWrite);
    const QByteArray known = file.known().hash;
    QCOMPARE(file.saveAs(other, confirmed({3}), QString(), {}).result, SaveResult::Unreadable);
    QCOMPARE(file.path(), m_file);
    QVERIFY(file.isEditable());
    QCOMPARE(file.known().hash, known);
    QCOMPARE(SessionFixture::content(other), QByteArray("{ no"));
    EditLock lock;
    QCOMPARE(lock.take(other), EditLock::Taken);
}

void tst_DocumentFile::doesNotSaveWithoutRights()
{
    const QString folder = m_files->path(QStringLiteral("closed"));
    QVERIFY(QDir().mkpath(folder));
    DocumentFile file;
    file.moveTo(m_file, Access::ReadWrite);
    QFile::setPermissions(folder, QFile::Permissions(0x5555));
    {
        const AsNobody nobody;
        QVERIFY(!nobody.failed());
        const SaveOutcome outcome =
            file.saveAs(folder + "/other.json", confirmed({3}), QString(), {});
        QCOMPARE(outcome.result, SaveResult::WriteFailed);
        QVERIFY2(outcome.text.startsWith("Im Ordner von " + folder +
                                         "/other.json kann nichts angelegt werden ("),
                 qPrintable(outcome.text));
    }
    QFile::setPermissions(folder, QFile::Permissions(0x7755));
    QCOMPARE(file.path(), m_file);
}

void tst_DocumentFile::sideFile()
{
    DocumentFile file;
    file.moveTo(m_file, Access::ReadWrite);
    const QByteArray before = SessionFixture::content(m_file);
    QString error;
    const std::optional<QByteArray> hash = file.autosave(confirmed({4}), &error);
    const QString side = SessionRecovery::autosaveFile(m_file);
    QCOMPARE(hash.value(), FileState::of(side).hash);
    QCOMPARE(SessionFixture::bytes(releaseIn(side)), SessionFixture::bytes(confirmed({4})));
    QCOMPARE(SessionFixture::content(m_file), before);
    file.removeAutosave();
    QVERIFY(!QFile::exists(side));
}

void tst_DocumentFile::sideFileThatCannotBeWritten()
{
    QVERIFY(QDir().mkpath(SessionRecovery::autosaveFile(m_file)));
    DocumentFile file;
    file.moveTo(m_file, Access::ReadWrite);
    QString error;
    QVERIFY(!file.autosave(confirmed({4}), &error));
    QVERIFY(!error.isEmpty());
}

QTEST_GUILESS_MAIN(tst_DocumentFile)
#include "tst_DocumentFile.moc"
