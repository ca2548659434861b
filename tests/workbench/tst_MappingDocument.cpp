#include "../support/SizeLimit.h"
#include "SessionDocument.h"

#include <workbench/session/journal/JournalReader.h>

#include <geomcore/records/MappingFile.h>
#include <mapping/data/CatalogMappingHandlerI.h>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Handler = std::unique_ptr<CatalogMappingHandlerI>;

const QString Path = QStringLiteral("cat/a.prj");

} // namespace

class tst_MappingDocument : public QObject, private SessionDocument
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void opensARelease();
    void opensTheLastReleaseUnlessAskedForAnother();
    void refusesWhatItCannotRead_data();
    void refusesWhatItCannotRead();
    void staysOpenIfAnotherCannotBeRead();
    void survivesItsFolder();
    void whatStandsInTheWay_data();
    void whatStandsInTheWay();
    void aHardLinkIsTold();
    void readsAFileOnce();
    void handlerGoesTheDocumentsWay();
    void theEditorHearsOfTheHostsChanges();
    void handlerOutlivesTheDocument();
    void secondEditorReadsOnly();
    void readOnlyRefusesChanges();
    void locksGoWithTheDocument();
    void rememberedRoots();
    void newReleaseIsModified();
    void journalTellsWhatHappened();
    void journalCostsWhatChanged();
    void aFullDiskIsTold();
    void autosaves();
};

void tst_MappingDocument::opensARelease()
{
    QSignalSpy opened(m_document.get(), &MappingDocument::opened);
    QCOMPARE(m_document->open({m_file, {}, {}, {}, {}}), MappingDocument::OpenResult::Opened);
    QCOMPARE(opened.size(), 1);
    QVERIFY(m_document->isOpen());
    QVERIFY(!m_document->isReadOnly());
    QVERIFY(!m_document->isModified());
    QCOMPARE(m_document->mappingFile(), m_file);
    QCOMPARE(m_document->rootName(), QStringLiteral("2022-01-01 → 2026-01-01"));
    QCOMPARE(m_document->release().countMappings(), 3);
    QCOMPARE(m_document->counts().lines(), 30);
    QCOMPARE(m_document->counts().toCheck(), 30);
    QVERIFY(m_document->conflictedProjects().isEmpty());
    QVERIFY(QFile::exists(m_document->journalFile()));
    QVERIFY(!QFile::exists(m_document->autosaveFile()));
    m_document->close();
    QVERIFY(!m_document->isOpen());
    QCOMPARE(m_document->rootName(), QString());
    QCOMPARE(m_document->counts().lines(), 0);
}

void tst_MappingDocument::opensTheLastReleaseUnlessAskedForAnother()
{
    m_files->addRelease(m_file, SessionFixture::sampleRelease(QStringLiteral("2024-01-01")));
    QCOMPARE(MappingDocument::sourceDates(m_file),
             QStringList({QStringLiteral("2022-01-01"), QStringLiteral("2024-01-01")}));
    open();
    QCOMPARE(m_document->release().getSourceDate(), QStringLiteral("2024-01-01"));
    QCOMPARE(
        m_document->open({m_file, QStringLiteral("2022-01-01"), QStringLiteral("Wurzel"), {}, {}}),
        MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->release().getSourceDate(), QStringLiteral("2022-01-01"));
    QCOMPARE(m_document->rootName(), QStringLiteral("Wurzel"));
}

void tst_MappingDocument::refusesWhatItCannotRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("date");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("part");
    const int unreadable = int(MappingDocument::OpenResult::Unreadable);
    const int noRelease = int(MappingDocument::OpenResult::NoRelease);
    QTest::newRow("no JSON") << QByteArray("{\"2022") << QString() << unreadable
                             << QStringLiteral("(Zeile 1, Spalte 7");
    QTest::newRow("no file") << QByteArray() << QString() << unreadable
                             << QStringLiteral("nicht mehr da");
    QTest::newRow("no release") << QByteArray("{}") << QString() << noRelease
                                << QStringLiteral("enthält keinen Stand.");
    QTest::newRow("other release")
        << QByteArray("{\"2020\":{\"sourceDate\":\"2020\",\"targetDate\":\"2021\"}}")
        << QStringLiteral("2022") << noRelease << QStringLiteral("Vorhanden sind: 2020");
    QTest::newRow("release that is none")
        << QByteArray("{\"2020\":{\"sourceDate\":7}}") << QStringLiteral("2020") << unreadable
        << QStringLiteral("\"2020\": sourceDate muss ein Text sein");
}

void tst_MappingDocument::refusesWhatItCannotRead()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, date);
    QFETCH(int, result);
    QFETCH(QString, part);
    if (content.isEmpty())
        QVERIFY(QFile::remove(m_file));
    else
        SessionFixture::setContent(m_file, content);
    QCOMPARE(int(m_document->open({m_file, date, {}, {}, {}})), result);
    QVERIFY2(m_document->errorText().contains(part), qPrintable(m_document->errorText()));
    QVERIFY(!m_document->isOpen());
    QVERIFY(!QFile::exists(m_file + QStringLiteral(".edit")));
    // A backup is named if there is one.
    QVERIFY(!m_document->errorText().contains(QStringLiteral("release.json.bak")));
    SessionFixture::setContent(m_file + QStringLiteral(".bak"), "{}");
    QCOMPARE(int(m_document->open({m_file, date, {}, {}, {}})), result);
    QCOMPARE(m_document->errorText().contains(QStringLiteral("release.json.bak")),
             result == int(MappingDocument::OpenResult::Unreadable));
}

void tst_MappingDocument::staysOpenIfAnotherCannotBeRead()
{
    QCOMPARE(m_document->open({m_file, {}, {}, {}, {}}), MappingDocument::OpenResult::Opened);
    m_document->updateMapping(SessionFixture::withState(
        m_document->mapping(projectId(QStringLiteral("cat/a.prj"))), {1}, 2));
    const QString other = m_files->path(QStringLiteral("other.json"));
    SessionFixture::setContent(other, "{\"2022");
    QSignalSpy closing(m_document.get(), &MappingDocument::aboutToClose);
    QCOMPARE(m_document->open({other, {}, {}, {}, {}}), MappingDocument::OpenResult::Unreadable);
    QVERIFY(m_document->errorText().contains(other));
    QCOMPARE(m_document->mappingFile(), m_file);
    QVERIFY(m_document->isModified());
    QCOMPARE(closing.size(), 0);
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    m_files->addRelease(m_files->path(QStringLiteral("third.json")),
                        SessionFixture::sampleRelease());
    QCOMPARE(m_document->open({m_files->path(QStringLiteral("third.json")), {}, {}, {}, {}}),
             MappingDocument::OpenResult::Opened);
    QCOMPARE(closing.size(), 1);
}

/// Journal and lock went with the folder; saving makes them anew.
void tst_MappingDocument::survivesItsFolder()
{
    const QString folder = m_files->path(QStringLiteral("folder"));
    QVERIFY(QDir().mkpath(folder));
    const QString file = folder + QStringLiteral("/m.json");
    m_files->addRelease(file, SessionFixture::sampleRelease());
    QCOMPARE(m_document->open({file, {}, {}, {}, {}}), MappingDocument::OpenResult::Opened);
    const auto confirm = [this](int line) {
        m_document->updateMapping(SessionFixture::withState(
            m_document->mapping(projectId(QStringLiteral("cat/a.prj"))), {line}, 2));
        m_document->finishStep();
    };
    confirm(1);
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(QDir().mkpath(folder));
    SaveOptions options;
    options.overForeignChange = true;
    QCOMPARE(m_document->save(options).result, SaveResult::Saved);
    confirm(2);
    QVERIFY(SessionFixture::content(m_document->journalFile()).contains("\"step\":2"));
    QVERIFY(QFile::exists(file + QStringLiteral(".edit")));
    MappingDocument second;
    QCOMPARE(second.open({file, {}, {}, {}, {}}), MappingDocument::OpenResult::OpenedReadOnly);
}

void tst_MappingDocument::whatStandsInTheWay_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("thing");
    for (const char *suffix : {".edit", ".journal", ".autosave"}) {
        for (const char *thing : {"link", "pipe", "folder"})
            QTest::addRow("%s at %s", thing, suffix)
                << QString::fromLatin1(suffix) << QString::fromLatin1(thing);
    }
}

/// Told, not followed, not waited for, and never a reason to lose the file.
void tst_MappingDocument::whatStandsInTheWay()
{
    QFETCH(QString, suffix);
    QFETCH(QString, thing);
    const QString victim = m_files->path(QStringLiteral("victim"));
    SessionFixture::setContent(victim, "precious");
    const QString name = m_file + suffix;
    if (thing == u"pipe")
        QCOMPARE(::mkfifo(qPrintable(name), 0600), 0);
    else if (thing == u"folder")
        QVERIFY(QDir().mkpath(name));
    else
        QVERIFY(QFile::link(victim, name));
    QSignalSpy problems(m_document.get(), &MappingDocument::problemOccurred);
    const bool isLock = suffix == u".edit";
    QCOMPARE(m_document->open({m_file, {}, {}, {}, {}}),
             isLock ? MappingDocument::OpenResult::OpenedReadOnly
                    : MappingDocument::OpenResult::Opened);
    if (isLock)
        QVERIFY2(m_document->readOnlyText().contains(QStringLiteral("gewöhnliche Datei")),
                 qPrintable(m_document->readOnlyText()));
    m_document->updateMapping(SessionFixture::withState(
        m_document->mapping(projectId(QStringLiteral("cat/a.prj"))), {1}, 2));
    m_document->finishStep();
    m_document->autosave();
    QCOMPARE(m_document->save().result, isLock ? SaveResult::ReadOnly : SaveResult::Saved);
    QCoreApplication::processEvents();
    QVERIFY(problems.size() >= 1);
    m_document->close();
    QCOMPARE(SessionFixture::content(victim), QByteArray("precious"));
    QCOMPARE(m_document->open({m_file, {}, {}, MappingDocument::Access::ReadOnly, {}}),
             MappingDocument::OpenResult::OpenedReadOnly);
    QCOMPARE(m_document->counts().verified(), isLock ? 0 : 1);
}

void tst_MappingDocument::aHardLinkIsTold()
{
    QCOMPARE(::link(qPrintable(m_file), qPrintable(m_files->path(QStringLiteral("b.json")))), 0);
    QSignalSpy problems(m_document.get(), &MappingDocument::problemOccurred);
    QCOMPARE(m_document->open({m_file, {}, {}, {}, {}}), MappingDocument::OpenResult::Opened);
    QCOMPARE(problems.size(), 1);
    QVERIFY(problems.first().first().toString().contains(QStringLiteral("harter Link")));
}

void tst_MappingDocument::readsAFileOnce()
{
    const auto content = std::make_shared<const FileContent>(FileContent::of(m_file));
    QCOMPARE(MappingDocument::sourceDates(*content), QStringList(QStringLiteral("2022-01-01")));
    MappingDocument::OpenRequest request;
    request.mappingFile = m_file;
    request.content = content;
    QCOMPARE(m_document->open(request), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->counts().lines(), 30);
    m_document->close();
    // What was read before is not believed if the file is another one now.
    ReleaseMappingC other = SessionFixture::sampleRelease();
    other.addMapping(SessionFixture::plainMapping(QStringLiteral("cat/new.prj"), 4));
    m_files->addRelease(m_file, other);
    QCOMPARE(m_document->open(request), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->counts().lines(), 34);
}

void tst_MappingDocument::handlerGoesTheDocumentsWay()
{
    open();
    const Handler handler(m_document->createHandler());
    QCOMPARE(handler->countLines(), 30);
    QCOMPARE(handler->countToCheck(), 30);
    const PrjMappingC confirmed =
        SessionFixture::withState(m_document->mapping(projectId(Path)), {1, 2}, 2);
    handler->updateMapping(confirmed);
    QCOMPARE(handler->countVerified(), 2);
    QVERIFY(m_document->isModified());
    QCOMPARE(SessionFixture::bytes(handler->getCatalogMapping().lastRelease()),
             SessionFixture::bytes(m_document->release()));
    QCOMPARE(handler->getRootStructureNode(), m_document->handler()->getRootStructureNode());
    QVERIFY(handler->commitModifications());
    QVERIFY(!m_document->isModified());
    MappingFile saved;
    QVERIFY(saved.read(m_file));
    QCOMPARE(SessionFixture::bytes(saved.releases().first()),
             SessionFixture::bytes(m_document->release()));
}

void tst_MappingDocument::theEditorHearsOfTheHostsChanges()
{
    open();
    const Handler handler(m_document->createHandler());
    QSignalSpy reselect(m_document.get(), &MappingDocument::reselectRequested);
    handler->updateMapping(SessionFixture::withState(m_document->mapping(projectId(Path)), {1}, 2));
    m_document->finishStep();
    QCOMPARE(reselect.size(), 0);
    for (const char *path : {"cat/a.prj", "cat/screws/b.prj", "cat/a.prj"})
        m_document->updateMapping(SessionFixture::withState(
            m_document->mapping(projectId(QString::fromLatin1(path))), {4}, 2));
    QCOMPARE(reselect.size(), 0);
    m_document->finishStep();
    QCOMPARE(reselect.size(), 2);
    QCOMPARE(reselect[0].first().value<ProjectId>(), projectId(Path));
    QCOMPARE(reselect[1].first().value<ProjectId>(), projectId(QStringLiteral("cat/screws/b.prj")));
}

void tst_MappingDocument::handlerOutlivesTheDocument()
{
    open();
    const Handler handler(m_document->createHandler());
    const PrjMappingC confirmed =
        SessionFixture::withState(m_document->mapping(projectId(Path)), {1}, 2);
    m_document.reset();
    handler->updateMapping(confirmed);
    QCOMPARE(handler->countVerified(), 0);
    QVERIFY(!handler->commitModifications());
}

void tst_MappingDocument::secondEditorReadsOnly()
{
    open();
    MappingDocument second;
    QCOMPARE(second.open({m_file, {}, {}, {}, {}}), MappingDocument::OpenResult::OpenedReadOnly);
    QCOMPARE(second.readOnlyReason(), MappingDocument::ReadOnlyReason::HeldByOther);
    QCOMPARE(second.lockOwner().process, QCoreApplication::applicationPid());
    QCOMPARE(second.lockOwner().host, QSysInfo::machineHostName());
    QVERIFY(!second.lockOwner().user.isEmpty());
    QVERIFY2(second.readOnlyText().contains(ownerText(second.lockOwner())),
             qPrintable(second.readOnlyText()));
    QCOMPARE(second.release().countMappings(), 3);
    QCOMPARE(second.save().result, SaveResult::ReadOnly);
    QVERIFY(!m_document->isReadOnly());
}

void tst_MappingDocument::readOnlyRefusesChanges()
{
    open(MappingDocument::Access::ReadOnly);
    QVERIFY(m_document->isReadOnly());
    QVERIFY(!QFile::exists(m_document->journalFile()));
    QSignalSpy problems(m_document.get(), &MappingDocument::problemOccurred);
    const PrjMappingC mapping = m_document->mapping(projectId(Path));
    m_document->updateMapping(SessionFixture::withState(mapping, {1}, 2));
    m_document->updateMapping(SessionFixture::withState(mapping, {2}, 2));
    QSignalSpy reselect(m_document.get(), &MappingDocument::reselectRequested);
    QCOMPARE(problems.size(), 0); // not in the middle of the editor's work
    QCoreApplication::processEvents();
    QCOMPARE(reselect.size(), 1); // so that the editor shows what is stored
    QCOMPARE(reselect.first().first().value<ProjectId>(), projectId(Path));
    QCOMPARE(problems.size(), 1);
    QVERIFY(problems.first().first().toString().contains(QStringLiteral("nicht übernommen")));
    QCOMPARE(m_document->counts().verified(), 0);
    QVERIFY(!m_document->isModified());
}

void tst_MappingDocument::locksGoWithTheDocument()
{
    open();
    QVERIFY(QFile::exists(m_file + QStringLiteral(".edit")));
    m_document->close();
    QVERIFY(!QFile::exists(m_file + QStringLiteral(".edit")));
    QVERIFY(!m_document->isOpen());
    QVERIFY(m_document->handler() == nullptr);
    QVERIFY(m_document->createHandler() == nullptr);
    open();
    QVERIFY(!m_document->isReadOnly());
}

void tst_MappingDocument::rememberedRoots()
{
    QSettings settings(m_files->path(QStringLiteral("settings.ini")), QSettings::IniFormat);
    const CatalogRoots roots{QStringLiteral("/old/catalogs"), QStringLiteral("/new, with comma")};
    {
        MappingDocument document(&settings);
        document.open({m_file, {}, {}, {}, {}});
        QCOMPARE(document.catalogRoots(), CatalogRoots());
        document.setCatalogRoots(roots);
    }
    MappingDocument document(&settings);
    document.open({m_file, {}, {}, {}, {}});
    QCOMPARE(document.catalogRoots(), roots);
    document.close();
    QCOMPARE(document.catalogRoots(), CatalogRoots());
}

void tst_MappingDocument::newReleaseIsModified()
{
    const QString file = m_files->path(QStringLiteral("new.json"));
    QCOMPARE(m_document->openNew(SessionFixture::sampleRelease(), file),
             MappingDocument::OpenResult::Opened);
    QVERIFY(m_document->isModified());
    QVERIFY(!QFile::exists(file));
    QVERIFY(QFile::exists(m_document->autosaveFile()));
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    QVERIFY(!m_document->isModified());
    QVERIFY(!QFile::exists(m_document->autosaveFile()));
    QCOMPARE(MappingDocument::sourceDates(file), QStringList(QStringLiteral("2022-01-01")));
    // A release of this date that is in the file already is somebody else's work.
    MappingDocument other;
    m_document->close();
    other.openNew(SessionFixture::sampleRelease(), file);
    QCOMPARE(other.save().result, SaveResult::ForeignChange);
}

void tst_MappingDocument::journalTellsWhatHappened()
{
    open();
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {1}, 2));
    m_document->undo();
    m_document->redo();
    const QString journal = m_document->journalFile();
    m_document->close();
    JournalReader reader;
    QVERIFY(reader.read(journal));
    QCOMPARE(reader.sessions().size(), 1);
    const JournalReader::Session &session = reader.sessions().first();
    QVERIFY(session.closed);
    QVERIFY(session.gaps.isEmpty());
    QCOMPARE(session.sourceDate, QStringLiteral("2022-01-01"));
    QCOMPARE(session.owner.process, QCoreApplication::applicationPid());
    QStringList told;
    for (const JournalReader::Step &step : JournalReader::steps(session))
        told += step.origin + u'|' + step.text;
    QCOMPARE(told,
             QStringList({QStringLiteral("edit|Zeile 1 → 1 bestätigt in cat/a.prj"),
                          QStringLiteral("undo|Rückgängig: Zeile 1 → 1 bestätigt in cat/a.prj"),
                          QStringLiteral("redo|Wiederholt: Zeile 1 → 1 bestätigt in cat/a.prj")}));
    // The next session goes on in the same file.
    open();
    QVERIFY(reader.read(journal));
    QCOMPARE(reader.sessions().size(), 2);
}

void tst_MappingDocument::journalCostsWhatChanged()
{
    ReleaseMappingC large = SessionFixture::sampleRelease();
    large.addMapping(SessionFixture::plainMapping(QStringLiteral("cat/large.prj"), 50000));
    m_files->addRelease(m_file, large);
    open();
    const qint64 before = QFile(m_document->journalFile()).size();
    change(SessionFixture::withState(
        m_document->mapping(projectId(QStringLiteral("cat/large.prj"))), {25000}, 2));
    const qint64 oneLine = QFile(m_document->journalFile()).size() - before;
    QVERIFY2(oneLine < 1000, qPrintable(QString::number(oneLine)));
}

void tst_MappingDocument::aFullDiskIsTold()
{
    open();
    QSignalSpy problems(m_document.get(), &MappingDocument::problemOccurred);
    {
        const SizeLimit limit(QFile(m_document->journalFile()).size() + 20);
        change(SessionFixture::withState(m_document->mapping(projectId(Path)), {1}, 2));
        change(SessionFixture::withState(m_document->mapping(projectId(Path)), {2}, 2));
        QCOMPARE(problems.size(), 1); // not for every change
        QVERIFY(problems[0].first().toString().contains(m_document->journalFile()));
        m_document->autosave();
        QCOMPARE(problems.size(), 2);
        QVERIFY(problems[1].first().toString().contains(
            QStringLiteral("automatische Sicherung ist nicht gelungen")));
        QVERIFY(!QFile::exists(m_document->autosaveFile()));
        QVERIFY(!m_document->lastAutosave().isValid());
    }
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {3}, 2));
    JournalReader reader;
    QVERIFY(reader.read(m_document->journalFile()));
    QCOMPARE(JournalReader::steps(reader.sessions().first()).size(), 3);
    QVERIFY(reader.sessions().first().gaps.isEmpty());
}

void tst_MappingDocument::autosaves()
{
    open();
    QSignalSpy done(m_document.get(), &MappingDocument::autosaved);
    m_document->autosave(); // nothing to save
    QCOMPARE(done.size(), 0);
    m_document->setAutosaveInterval(1);
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {1}, 2));
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, 30000);
    QCOMPARE(done.first().first().toString(), m_document->autosaveFile());
    MappingFile side;
    QVERIFY(side.read(m_document->autosaveFile()));
    QCOMPARE(SessionFixture::bytes(side.releases().first()),
             SessionFixture::bytes(m_document->release()));
    QVERIFY(m_document->lastAutosave().isValid());
    // Another opening goes on with the interval.
    m_document->close();
    open();
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {5}, 2));
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 2, 30000);
    done.removeLast();
    m_document->setAutosaveInterval(0);
    m_document->autosave(); // nothing new
    QCOMPARE(done.size(), 1);
    change(SessionFixture::withState(m_document->mapping(projectId(Path)), {2}, 2));
    m_document->autosave();
    QCOMPARE(done.size(), 2);
    QVERIFY(m_document->isModified());
}

QTEST_GUILESS_MAIN(tst_MappingDocument)

#include "tst_MappingDocument.moc"
