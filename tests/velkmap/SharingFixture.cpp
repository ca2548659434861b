#include "SharingFixture.h"

#include <geomcore/records/MappingFile.h>
#include <TestPaths.h>
#include <tools/velkmap/Commands.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <QTextStream>

#include <csignal>
#include <unistd.h>

namespace {

PrjMappingC project(const QString &path, int lines)
{
    PrjMappingC mapping;
    mapping.setSourcePath(path);
    mapping.setSourceVersion("v1");
    PrjMappingTargetC target;
    target.setTargetPath("new/" + path);
    target.setValid(true);
    for (int line = 1; line <= lines; ++line)
        target.addLineId(line, line, PRJMAPPING::ToCheck, QString());
    mapping.addTarget(target);
    mapping.updateMappingState();
    return mapping;
}

} // namespace

void SharingFixture::places()
{
    QTest::addColumn<bool>("repository");
    QTest::newRow("folder") << false;
    QTest::newRow("repository") << true;
}

void SharingFixture::setUp()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_server.reset();
    MappingFile file;
    ReleaseMappingC release;
    release.setSourceDate("v260101000000");
    release.setTargetDate("v270101000000");
    release.addMapping(project(Bolts, 9));
    release.addMapping(project(Nuts, 9));
    file.setRelease(release);
    QVERIFY(file.write(mine("anna")));
}

void SharingFixture::svn(const QStringList &arguments) const
{
    QProcess process;
    process.start("svn", arguments + QStringList{"--non-interactive"});
    QVERIFY(process.waitForFinished(20000));
    QVERIFY2(process.exitCode() == 0, process.readAllStandardError().constData());
}

QString SharingFixture::shared(const QString &who) const
{
    return m_server ? m_dir->filePath(who + "-copy/m.json") : m_dir->filePath("share/m.json");
}

void SharingFixture::begin()
{
    QFETCH(bool, repository);
    if (repository) {
        m_server = std::make_unique<SubversionServer>();
        QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
        for (const QString who : {"anna", "ben"})
            svn({"checkout", "-q", m_server->url() + "/trunk/catalog",
                 m_dir->filePath(who + "-copy")});
    } else {
        QVERIFY(QDir(m_dir->path()).mkdir("share"));
    }
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", shared("anna")}), 0);
    QCOMPARE(velkmap({"share", "--mapping", mine("ben"), "--with", shared("ben")}), 0);
    QCOMPARE(bytes(mine("ben")), bytes(mine("anna")));
    QVERIFY2(m_said.contains("nothing to update, nothing to publish"), qPrintable(m_said));
}

int SharingFixture::velkmap(const QStringList &arguments)
{
    m_said.clear();
    QTextStream said(&m_said);
    return int(velkmap::run(arguments, said, said));
}

int SharingFixture::program(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(VELK_BINARY_DIR "/bin/velkmap", arguments);
    if (!process.waitForFinished(60000))
        return -1;
    m_said = QString::fromUtf8(process.readAll());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2;
}

bool SharingFixture::killed(const QStringList &arguments, int afterMs, bool withChildren)
{
    QProcess process;
    process.setChildProcessModifier([] { (void)setpgid(0, 0); });
    process.start(VELK_BINARY_DIR "/bin/velkmap", arguments);
    if (!process.waitForStarted())
        return false;
    const auto id = pid_t(process.processId());
    QTest::qSleep(afterMs);
    (void)kill(withChildren ? -id : id, SIGKILL);
    return process.waitForFinished();
}

void SharingFixture::count(QMap<QString, int> &told) const
{
    for (const QString &line : m_said.split(u'\n')) {
        if (line.startsWith("velkmap "))
            ++told[line.section(": ", 1).section(" /", 0, 0)];
    }
}

void SharingFixture::decide(const QString &who, const QString &path, int line, int target) const
{
    MappingFile file;
    QVERIFY(file.read(mine(who)));
    ReleaseMappingC release = file.releases().first();
    PrjMappingC mapping = release.findMapping(path, "v1", QString());
    mapping.changeTarget(0, [&](PrjMappingTargetC &to) {
        to.addLineId(line, target, PRJMAPPING::Verified, QString());
    });
    mapping.updateMappingState();
    release.addMapping(mapping);
    file.setRelease(release);
    QVERIFY(file.write(mine(who)));
}

int SharingFixture::lineIn(const QString &name, const QString &path, int line)
{
    MappingFile file;
    if (!file.read(name) || file.releases().isEmpty())
        return 0;
    const PrjMappingTargetC target =
        file.releases().first().findMapping(path, "v1", QString()).findTarget(0);
    const int id = target.getMappedLine(line).getTargetLineId();
    return target.getLineConflicted(line) ? -id : id;
}

QByteArray SharingFixture::bytes(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}
