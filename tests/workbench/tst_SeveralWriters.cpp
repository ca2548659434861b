// Several programs at once on one mapping file, each a process of its own.
#include "SessionFixture.h"

#include <core/files/EditLock.h>
#include <geomcore/records/MappingFile.h>
#include <workbench/session/document/MappingDocument.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

using OpenResult = MappingDocument::OpenResult;

const QString Date = QStringLiteral("2022-01-01");

/// Opens a file as soon as nobody else edits it.
bool openForEditing(MappingDocument &document, const QString &file)
{
    QElapsedTimer patience;
    patience.start();
    while (!patience.hasExpired(60000)) {
        if (document.open({file, {}, {}, {}, {}}) == OpenResult::Opened)
            return true;
        document.close();
        QThread::msleep(1);
    }
    return false;
}

void confirm(MappingDocument &document, const QString &path, int line)
{
    document.updateMapping(SessionFixture::withState(document.mapping(projectId(path)), {line}, 2));
    document.finishStep();
}

/// Confirms the ten lines of a project one by one, each in a session of its own.
int confirmAll(const QString &file, const QString &path)
{
    for (int line = 1; line <= 10; ++line) {
        MappingDocument document;
        if (!openForEditing(document, file))
            return 2;
        confirm(document, path, line);
        if (document.save().result != SaveResult::Saved)
            return 3;
    }
    return 0;
}

/// Confirms a line and stays until it is told to save.
int editUntilTold(const QString &file, const QString &path)
{
    MappingDocument document;
    if (document.open({file, {}, {}, {}, {}}) != OpenResult::Opened)
        return 2;
    confirm(document, path, 1);
    std::puts("ready");
    std::fflush(stdout);
    (void)std::getchar();
    return document.save().result == SaveResult::Saved ? 0 : 3;
}

/// Writes another file over the mapping file, round and round: all or nothing is to be seen of it.
int saveRoundAndRound(const QString &file, const QString &path)
{
    for (int round = 0; round < 20; ++round) {
        MappingDocument document;
        if (document.openNew(SessionFixture::sampleRelease(), file + path) != OpenResult::Opened)
            return 2;
        confirm(document, QStringLiteral("cat/a.prj"), 1 + round % 10);
        const SaveResult result = document.saveAs(file).result;
        if (result != SaveResult::Saved && result != SaveResult::Busy)
            return 3;
        document.close();
        QFile::remove(file + path);
    }
    return 0;
}

} // namespace

class tst_SeveralWriters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingIsLost();
    void theSecondReadsOnly();
    void whoSavesOverAnother();

private:
    [[nodiscard]] std::unique_ptr<QProcess> start(const QString &deed, const QString &what) const;

    std::unique_ptr<SessionFixture> m_files;
    QString m_file;
};

void tst_SeveralWriters::init()
{
    m_files = std::make_unique<SessionFixture>();
    m_file = m_files->write();
}

std::unique_ptr<QProcess> tst_SeveralWriters::start(const QString &deed, const QString &what) const
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QCoreApplication::applicationFilePath(), {deed, m_file, what});
    return process;
}

void tst_SeveralWriters::nothingIsLost()
{
    const QStringList projects{"cat/a.prj", "cat/screws/b.prj", "cat/screws/c.prj"};
    std::vector<std::unique_ptr<QProcess>> writers;
    for (const QString &project : projects)
        writers.push_back(start(QStringLiteral("--confirm"), project));
    for (const auto &writer : writers) {
        QVERIFY(writer->waitForFinished(120000));
        QCOMPARE(writer->exitStatus(), QProcess::NormalExit);
        QCOMPARE(writer->exitCode(), 0);
    }
    MappingFile mappings;
    QVERIFY(mappings.read(m_file));
    for (const QString &project : projects) {
        const PrjMappingC mapping =
            mappings.release(Date).findMapping(project, SessionFixture::Version, QString());
        QCOMPARE(mapping.lineCounts().verified(), 10);
    }
    QVERIFY(!QFile::exists(EditLock::lockFile(m_file)));
}

void tst_SeveralWriters::theSecondReadsOnly()
{
    const std::unique_ptr<QProcess> first =
        start(QStringLiteral("--edit"), QStringLiteral("cat/a.prj"));
    QVERIFY(first->waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(first->canReadLine(), 30000);
    MappingDocument second;
    QCOMPARE(second.open({m_file, {}, {}, {}, {}}), OpenResult::OpenedReadOnly);
    QCOMPARE(second.readOnlyReason(), MappingDocument::ReadOnlyReason::HeldByOther);
    QCOMPARE(second.lockOwner().process, first->processId());
    QVERIFY(second.readOnlyText().contains(QString::number(first->processId())));
    confirm(second, QStringLiteral("cat/screws/b.prj"), 1);
    QCOMPARE(second.save().result, SaveResult::ReadOnly);
    QCOMPARE(second.counts().verified(), 0);
    // Nor may another file be saved over it.
    MappingDocument third;
    QCOMPARE(third.openNew(SessionFixture::sampleRelease(), m_files->path("new.json")),
             OpenResult::Opened);
    QCOMPARE(third.saveAs(m_file).result, SaveResult::Busy);
    first->write("\n");
    QVERIFY(first->waitForFinished(30000));
    QCOMPARE(first->exitCode(), 0);
    QCOMPARE(second.open({m_file, {}, {}, {}, {}}), OpenResult::Opened);
    QCOMPARE(second.counts().verified(), 1);
}

void tst_SeveralWriters::whoSavesOverAnother()
{
    std::vector<std::unique_ptr<QProcess>> writers;
    for (const char *const name : {".one", ".two", ".three"})
        writers.push_back(start(QStringLiteral("--save-as"), QString::fromLatin1(name)));
    const auto isRunning = [](const auto &writer) {
        return writer->state() != QProcess::NotRunning;
    };
    QElapsedTimer patience;
    patience.start();
    int reads = 0;
    while (std::any_of(writers.begin(), writers.end(), isRunning)) {
        QVERIFY(!patience.hasExpired(120000));
        MappingFile mappings;
        QVERIFY(mappings.read(m_file));
        QCOMPARE(mappings.release(Date).countMappings(), 3);
        ++reads;
        QTest::qWait(1);
    }
    QVERIFY(reads > 1);
    for (const auto &writer : writers)
        QCOMPARE(writer->exitCode(), 0);
    QVERIFY(!QFile::exists(EditLock::lockFile(m_file)));
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString deed = arguments.value(1);
    if (deed == u"--confirm")
        return confirmAll(arguments.value(2), arguments.value(3));
    if (deed == u"--edit")
        return editUntilTold(arguments.value(2), arguments.value(3));
    if (deed == u"--save-as")
        return saveRoundAndRound(arguments.value(2), arguments.value(3));
    tst_SeveralWriters test;
    return QTest::qExec(&test, arguments);
}

#include "tst_SeveralWriters.moc"
