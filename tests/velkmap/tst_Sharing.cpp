#include "../support/SubversionServer.h"

#include <geomcore/records/MappingFile.h>
#include <release/history/JournalRow.h>
#include <release/share/SharedMapping.h>
#include <TestPaths.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using VelkRelease::Participant;
using VelkRelease::ShareAnswer;
using VelkRelease::SharedMapping;

namespace {

const QString Bolts = QStringLiteral("parts/bolts/a.prj");
const QString Nuts = QStringLiteral("parts/nuts/n.prj");

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

/// Two modellers, each with his mapping file and a process of his own for every command, and the
/// copy that they share.
class tst_Sharing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void twoModellers_data() { places(); }
    void twoModellers();
    void historyComesAlong_data() { places(); }
    void historyComesAlong();
    void bothDecideOneLine_data() { places(); }
    void bothDecideOneLine();
    void publishingAtOneTime_data() { places(); }
    void publishingAtOneTime();
    void dividedByFolders_data() { places(); }
    void dividedByFolders();
    void whoHasItOpen_data() { places(); }
    void whoHasItOpen();
    void goneWhilePublishing_data() { places(); }
    void goneWhilePublishing();
    void wrongBeginnings();
    void leftInTheWorkingCopy();
    void unreadable();
    void killedAtAnyMoment_data() { places(); }
    void killedAtAnyMoment();
    void stopped();

private:
    static void places();
    void begin();
    /// Exit status; what was said is in m_said.
    int velkmap(const QStringList &arguments);
    [[nodiscard]] QString mine(const QString &who) const { return m_dir->filePath(who + ".json"); }
    [[nodiscard]] QString shared(const QString &who) const;
    void decide(const QString &who, const QString &path, int line, int target) const;
    [[nodiscard]] static int lineIn(const QString &file, const QString &path, int line);
    [[nodiscard]] static QByteArray bytes(const QString &file);
    void svn(const QStringList &arguments) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<SubversionServer> m_server;
    QString m_said;
};

void tst_Sharing::places()
{
    QTest::addColumn<bool>("repository");
    QTest::newRow("folder") << false;
    QTest::newRow("repository") << true;
}

void tst_Sharing::init()
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

void tst_Sharing::svn(const QStringList &arguments) const
{
    QProcess process;
    process.start("svn", arguments + QStringList{"--non-interactive"});
    QVERIFY(process.waitForFinished(20000));
    QVERIFY2(process.exitCode() == 0, process.readAllStandardError().constData());
}

QString tst_Sharing::shared(const QString &who) const
{
    return m_server ? m_dir->filePath(who + "-copy/m.json") : m_dir->filePath("share/m.json");
}

/// Anna publishes, Ben gets his file.
void tst_Sharing::begin()
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

int tst_Sharing::velkmap(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(VELK_BINARY_DIR "/bin/velkmap", arguments);
    if (!process.waitForFinished(60000))
        return -1;
    m_said = QString::fromUtf8(process.readAll());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2;
}

void tst_Sharing::decide(const QString &who, const QString &path, int line, int target) const
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

/// Negative if it is in conflict; 0: no such file, line or mapping.
int tst_Sharing::lineIn(const QString &name, const QString &path, int line)
{
    MappingFile file;
    if (!file.read(name) || file.releases().isEmpty())
        return 0;
    const PrjMappingTargetC target =
        file.releases().first().findMapping(path, "v1", QString()).findTarget(0);
    const int id = target.getMappedLine(line).getTargetLineId();
    return target.getLineConflicted(line) ? -id : id;
}

QByteArray tst_Sharing::bytes(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

void tst_Sharing::twoModellers()
{
    begin();
    decide("anna", Bolts, 1, 5);
    decide("ben", Bolts, 2, 6);
    decide("ben", Nuts, 1, 7);
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna"), "--message", "first"}), 0);
    // Ben has not seen that.
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben")}), 4);
    QVERIFY2(m_said.contains("velkmap update first"), qPrintable(m_said));
    QCOMPARE(velkmap({"share", "--mapping", mine("ben")}), 0);
    QVERIFY2(m_said.contains("something to update, something to publish"), qPrintable(m_said));
    QCOMPARE(velkmap({"update", "--mapping", mine("ben")}), 0);
    QVERIFY2(m_said.contains("1 changes of theirs"), qPrintable(m_said));
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben")}), 0);
    QCOMPARE(velkmap({"update", "--mapping", mine("anna")}), 0);
    for (const QString who : {"anna", "ben"}) {
        QCOMPARE(lineIn(mine(who), Bolts, 1), 5);
        QCOMPARE(lineIn(mine(who), Bolts, 2), 6);
        QCOMPARE(lineIn(mine(who), Nuts, 1), 7);
    }
    QCOMPARE(bytes(mine("anna")), bytes(mine("ben")));
    QCOMPARE(bytes(shared("anna")), bytes(mine("ben")));
    QCOMPARE(velkmap({"update", "--mapping", mine("anna")}), 0);
    QCOMPARE(m_said, QString()); // nothing is new
}

/// Each one's own, and those of others only once.
void tst_Sharing::historyComesAlong()
{
    begin();
    const auto note = [this](const QString &who, int line) {
        QFile journal(mine(who) + ".journal");
        QVERIFY(journal.open(QIODevice::WriteOnly | QIODevice::Append));
        for (const char *record :
             {R"({"kind":"opened","time":"2026-11-0%1T09:00:00.000Z","user":"%2"})",
              R"({"kind":"change","step":1,"project":["parts/bolts/a.prj","v1","",""],"targets":)"
              R"([{"at":[0,0],"path":"n.prj","lines":[[%1,1,0,1,2]]}]})",
              R"({"kind":"step","time":"2026-11-0%1T10:00:00.000Z","step":1,"text":"ok"})",
              R"({"kind":"closed","modified":false})"})
            journal.write(VelkRelease::JournalRow::frame(
                QString(record).replace("%1", QString::number(line)).replace("%2", who).toUtf8()));
    };
    const auto history = [this](const QString &who) {
        (void)velkmap({"history", "--mapping", mine(who)});
        return m_said.count("2026-11-01T10:00:00Z anna parts/bolts/a.prj:1: n.prj:1") * 10 +
               m_said.count("2026-11-02T10:00:00Z ben parts/bolts/a.prj:2: n.prj:1");
    };
    decide("anna", Bolts, 1, 5);
    note("anna", 1);
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 0);
    decide("ben", Bolts, 2, 6);
    note("ben", 2);
    QCOMPARE(history("ben"), 1);
    QCOMPARE(velkmap({"update", "--mapping", mine("ben")}), 0);
    QCOMPARE(history("ben"), 11);
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben")}), 0);
    QCOMPARE(velkmap({"update", "--mapping", mine("anna")}), 0);
    QCOMPARE(history("anna"), 11);
    // Notes of another kind disturb nobody.
    QVERIFY(velkmap({"share", "--mapping", mine("anna")}) == 0);
    QVERIFY2(!m_said.contains("verlauf"), qPrintable(m_said));
}

void tst_Sharing::bothDecideOneLine()
{
    begin();
    decide("anna", Bolts, 1, 5);
    decide("ben", Bolts, 1, 6);
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 0);
    const QString report = m_dir->filePath("report.json");
    QCOMPARE(velkmap({"update", "--mapping", mine("ben"), "--report", report}), 4);
    QVERIFY(bytes(report).contains("\"clashes\""));
    QCOMPARE(lineIn(mine("ben"), Bolts, 1), -5);
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben")}), 4);
    QVERIFY2(m_said.contains("lines are in conflict in " + Bolts), qPrintable(m_said));
    decide("ben", Bolts, 1, 6); // settled
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben")}), 0);
    QCOMPARE(velkmap({"update", "--mapping", mine("anna")}), 0);
    QCOMPARE(lineIn(mine("anna"), Bolts, 1), 6);
}

/// One of them is first, the other one is told.
void tst_Sharing::publishingAtOneTime()
{
    begin();
    decide("anna", Bolts, 1, 5);
    decide("ben", Bolts, 2, 6);
    QProcess anna;
    QProcess ben;
    anna.start(VELK_BINARY_DIR "/bin/velkmap", {"publish", "--mapping", mine("anna")});
    ben.start(VELK_BINARY_DIR "/bin/velkmap", {"publish", "--mapping", mine("ben")});
    QVERIFY(anna.waitForFinished(60000) && ben.waitForFinished(60000));
    const QList<int> status{anna.exitCode(), ben.exitCode()};
    QVERIFY2(status == QList<int>({0, 4}) || status == QList<int>({4, 0}),
             (anna.readAllStandardError() + ben.readAllStandardError()).constData());
    const QString late = anna.exitCode() == 0 ? "ben" : "anna";
    QCOMPARE(velkmap({"update", "--mapping", mine(late)}), 0);
    QCOMPARE(velkmap({"publish", "--mapping", mine(late)}), 0);
    QCOMPARE(lineIn(shared(late), Bolts, 1), 5);
    QCOMPARE(lineIn(shared(late), Bolts, 2), 6);
}

void tst_Sharing::dividedByFolders()
{
    begin();
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--folders", "parts/bolts/"}), 0);
    QVERIFY2(m_said.contains("folders parts/bolts\n"), qPrintable(m_said));
    for (const QString folder : {"parts", "parts/bolts", "parts/nuts,parts/bolts/long"}) {
        QCOMPARE(velkmap({"share", "--mapping", mine("ben"), "--folders", folder}), 4);
        QVERIFY2(m_said.contains("the folder is taken: "), qPrintable(m_said));
    }
    QCOMPARE(velkmap({"share", "--mapping", mine("ben"), "--folders", "parts/nuts,parts/bolts2"}),
             0);
    decide("ben", Nuts, 1, 7);
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben")}), 0);
    decide("ben", Bolts, 1, 7);
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben")}), 4);
    QVERIFY2(m_said.contains("in folders of others") && m_said.contains(": parts/bolts;"),
             qPrintable(m_said));
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben"), "--into-others"}), 0);
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--folders", ""}), 0);
    QCOMPARE(velkmap({"share", "--mapping", mine("ben"), "--folders", "parts"}), 0);
}

void tst_Sharing::whoHasItOpen()
{
    begin();
    SharedMapping anna(mine("anna"));
    QVERIFY(anna.announce(true).isDone());
    SharedMapping ben(mine("ben"));
    SharedMapping::Status status;
    QVERIFY(ben.status(status).isDone());
    QList<Participant> all = ben.participants();
    QCOMPARE(all.size(), 1);
    QVERIFY(all.first().isOpen && !all.first().isSelf);
    QVERIFY(all.first().seen.secsTo(QDateTime::currentDateTimeUtc()) < 60);
    QCOMPARE(velkmap({"share", "--mapping", mine("ben")}), 0);
    QVERIFY2(m_said.contains(", has it open, last heard of "), qPrintable(m_said));
    QVERIFY(ben.announce(true).isDone());
    QVERIFY(anna.announce(false).isDone());
    QVERIFY(ben.status(status).isDone());
    all = ben.participants();
    QCOMPARE(all.size(), 2);
    for (const Participant &participant : all)
        QCOMPARE(participant.isOpen, participant.isSelf);
}

void tst_Sharing::goneWhilePublishing()
{
    begin();
    decide("anna", Bolts, 1, 5);
    const QByteArray own = bytes(mine("anna"));
    const QString folder = m_dir->filePath("share");
    if (m_server)
        m_server->stop();
    else
        QVERIFY(QDir().rename(folder, folder + "-gone"));
    for (const QString command : {"publish", "update"}) {
        QCOMPARE(velkmap({command, "--mapping", mine("anna")}), 2);
        QVERIFY2(m_said.contains("cannot be reached"), qPrintable(m_said));
    }
    QCOMPARE(bytes(mine("anna")), own);
    if (m_server)
        QVERIFY(m_server->start());
    else
        QVERIFY(QDir().rename(folder + "-gone", folder));
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 0);
    QCOMPARE(lineIn(shared("anna"), Bolts, 1), 5);
    // Somebody removes the shared copy: that is no empty one.
    if (!m_server) {
        QVERIFY(QFile::remove(shared("anna")));
        decide("anna", Bolts, 1, 6);
        QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 2);
        QCOMPARE(velkmap({"update", "--mapping", mine("anna")}), 2);
        QVERIFY(!QFile::exists(shared("anna")));
    }
}

void tst_Sharing::wrongBeginnings()
{
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 1);
    QVERIFY2(m_said.contains("is not shared"), qPrintable(m_said));
    QCOMPARE(velkmap({"update", "--mapping", mine("anna")}), 1);
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", m_dir->filePath("no/m.json")}),
             2);
    QVERIFY(QDir(m_dir->path()).mkdir("share"));
    QCOMPARE(velkmap({"share", "--mapping", mine("ben"), "--with", shared("ben")}), 2);
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", shared("anna")}), 0);
    QVERIFY(QFile::copy(mine("anna"), mine("ben")));
    decide("ben", Bolts, 1, 5);
    const QByteArray own = bytes(mine("ben"));
    QCOMPARE(velkmap({"share", "--mapping", mine("ben"), "--with", shared("ben")}), 4);
    QCOMPARE(bytes(mine("ben")), own);
    QVERIFY(!QFile::exists(SharedMapping::linkFile(mine("ben"))));
}

/// What was written into the working copy by hand, or by a publishing that was broken off.
void tst_Sharing::leftInTheWorkingCopy()
{
    m_server = std::make_unique<SubversionServer>();
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    svn({"checkout", "-q", m_server->url() + "/trunk/catalog", m_dir->filePath("anna-copy")});
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", shared("anna")}), 0);
    QFile file(shared("anna"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("torn") == 4);
    file.close();
    decide("anna", Bolts, 1, 5);
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 0);
    QCOMPARE(lineIn(shared("anna"), Bolts, 1), 5);
    const QStringList kept =
        QDir(m_dir->filePath("anna-copy")).entryList({"m.json.uncommitted*"}, QDir::Files);
    QCOMPARE(kept.size(), 1);
    QCOMPARE(bytes(m_dir->filePath("anna-copy/" + kept.first())), "torn");
}

void tst_Sharing::unreadable()
{
    QVERIFY(QDir(m_dir->path()).mkdir("share"));
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", shared("anna")}), 0);
    const QByteArray own = bytes(mine("anna"));
    QFile file(shared("anna"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("<<<<<<<") == 7);
    file.close();
    QCOMPARE(velkmap({"update", "--mapping", mine("anna")}), 2);
    QVERIFY2(m_said.contains(shared("anna")), qPrintable(m_said));
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 4); // unseen
    QCOMPARE(bytes(mine("anna")), own);
}

/// The shared copy is the former or the new one, and no decision is lost.
void tst_Sharing::killedAtAnyMoment()
{
    begin();
    const int kills = qEnvironmentVariableIntValue("VELK_KILLS") > 0
                          ? qEnvironmentVariableIntValue("VELK_KILLS")
                          : (m_server ? 2 : 8);
    QRandomGenerator random(7);
    int published = 0;
    for (int kill = 1; kill <= kills; ++kill) {
        const QString who = kill % 2 ? "anna" : "ben";
        const QString path = kill % 3 ? Bolts : Nuts;
        // An update is killed, then a publishing.
        for (const QString command : {"update", "publish"}) {
            if (command == "publish") {
                QCOMPARE(velkmap({"update", "--mapping", mine(who)}), 0);
                decide(who, path, 1 + kill % 9, kill);
            }
            QProcess process;
            process.start(VELK_BINARY_DIR "/bin/velkmap", {command, "--mapping", mine(who)});
            QVERIFY(process.waitForStarted());
            QTest::qSleep(random.bounded(m_server ? 400 : 40));
            process.kill();
            QVERIFY(process.waitForFinished());
            MappingFile whole;
            QString error;
            QVERIFY2(whole.read(mine(who), QString(), &error), qPrintable(error));
            QVERIFY2(m_server || whole.read(shared(who), QString(), &error), qPrintable(error));
            if (m_server) // the client may live on for a moment
                svn({"cleanup", m_dir->filePath(who + "-copy")});
        }
        published += lineIn(shared(who), path, 1 + kill % 9) == kill;
        // Whoever goes on comes to the same with everything in it.
        int status = velkmap({"update", "--mapping", mine(who)});
        QVERIFY2(status == 0, qPrintable(m_said));
        status = velkmap({"publish", "--mapping", mine(who)});
        QVERIFY2(status == 0, qPrintable(m_said));
        QCOMPARE(lineIn(shared(who), path, 1 + kill % 9), kill);
        QCOMPARE(lineIn(mine(who), path, 1 + kill % 9), kill);
    }
    qInfo("%d of %d were published before the kill", published, kills);
}

void tst_Sharing::stopped()
{
    QVERIFY(QDir(m_dir->path()).mkdir("share"));
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", shared("anna")}), 0);
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--stop"}), 0);
    QVERIFY(!QFile::exists(SharedMapping::linkFile(mine("anna"))));
    QVERIFY(!QFile::exists(SharedMapping::baseFile(mine("anna"))));
    QVERIFY(QFile::exists(shared("anna")));
    QCOMPARE(velkmap({"publish", "--mapping", mine("anna")}), 1);
}

QTEST_GUILESS_MAIN(tst_Sharing)
#include "tst_Sharing.moc"
