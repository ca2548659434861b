#include "SharingFixture.h"

#include <geomcore/records/MappingFile.h>
#include <release/history/JournalRow.h>
#include <release/share/SharedMapping.h>
#include <TestPaths.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

using VelkRelease::Participant;
using VelkRelease::ShareAnswer;
using VelkRelease::SharedMapping;

/// What two modellers do one after the other and at one time, and what is left when they are
/// killed.
class tst_Sharing : public QObject, private SharingFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setUp(); }
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
    void dividedByPatterns_data();
    void dividedByPatterns();
    void whoHasItOpen_data() { places(); }
    void whoHasItOpen();
    void wrongBeginnings();
    void killedAtAnyMoment_data() { places(); }
    void killedAtAnyMoment();
    void stopped();
};

void tst_Sharing::twoModellers()
{
    begin();
    decide("anna", Bolts, 1, 5);
    decide("ben", Bolts, 2, 6);
    decide("ben", Nuts, 1, 7);
    QCOMPARE(program({"publish", "--mapping", mine("anna"), "--message", "first"}), 0);
    // Ben has not seen that.
    QCOMPARE(program({"publish", "--mapping", mine("ben")}), 4);
    QVERIFY2(m_said.contains("velkmap update first"), qPrintable(m_said));
    QCOMPARE(velkmap({"share", "--mapping", mine("ben")}), 0);
    QVERIFY2(m_said.contains("something to update, something to publish"), qPrintable(m_said));
    QCOMPARE(program({"update", "--mapping", mine("ben")}), 0);
    QVERIFY2(m_said.contains("1 change of theirs"), qPrintable(m_said));
    QCOMPARE(program({"publish", "--mapping", mine("ben")}), 0);
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
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben"), "--into-others"}), 4);
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
    // A project that is gone is a change, too.
    const QByteArray whole = bytes(mine("ben"));
    MappingFile file;
    QVERIFY(file.read(mine("ben")));
    const ReleaseMappingC former = file.releases().first();
    ReleaseMappingC release;
    release.setSourceDate(former.getSourceDate());
    release.setTargetDate(former.getTargetDate());
    release.addMapping(former.findMapping(Nuts, "v1", QString()));
    file.setRelease(release);
    QVERIFY(file.write(mine("ben")));
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben")}), 4);
    QFile again(mine("ben"));
    QVERIFY(again.open(QIODevice::WriteOnly) && again.write(whole) == whole.size());
    again.close();
    decide("ben", Bolts, 1, 7);
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben")}), 4);
    QVERIFY2(m_said.contains("in folders of others") && m_said.contains(": parts/bolts;"),
             qPrintable(m_said));
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben"), "--into-others"}), 0);
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--folders", ""}), 0);
    QCOMPARE(velkmap({"share", "--mapping", mine("ben"), "--folders", "parts"}), 0);
}

void tst_Sharing::dividedByPatterns_data()
{
    QTest::addColumn<QString>("annas");
    QTest::addColumn<QString>("bens");
    QTest::addColumn<bool>("free");
    QTest::addColumn<bool>("boltsAreAnnas");
    QTest::newRow("one level") << "parts/b*"
                               << "parts/n*" << true << true;
    QTest::newRow("both can be") << "parts/b*"
                                 << "parts/*s" << false << true;
    QTest::newRow("a folder of the pattern") << "*/bolts"
                                             << "parts/bolts/long" << false << true;
    QTest::newRow("a folder above") << "*/*/a?prj"
                                    << "parts" << false << true;
    QTest::newRow("of the first folder") << "*ts"
                                         << "parts/nuts" << false << true;
    QTest::newRow("not the whole way") << "pa*bolts"
                                       << "parts/*" << true << false;
    QTest::newRow("one character") << "parts/bolt?/?.prj"
                                   << "parts/bolt?\?/*" << true << true;
    QTest::newRow("a star for nothing") << "parts/*bolts*"
                                        << "parts/bolt" << true << true;
    QTest::newRow("two stars") << "parts/*o*s"
                               << "parts/*ut*" << false << true;
    QTest::newRow("slashes too many") << "/parts//bolts/"
                                      << "parts/bolts" << false << true;
    QTest::newRow("nothing") << "/"
                             << "parts" << true << false;
}

void tst_Sharing::dividedByPatterns()
{
    QFETCH(const QString, annas);
    QFETCH(const QString, bens);
    QFETCH(const bool, free);
    QFETCH(const bool, boltsAreAnnas);
    QVERIFY(QDir(m_dir->path()).mkdir("share"));
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--with", shared("anna")}), 0);
    QCOMPARE(velkmap({"share", "--mapping", mine("ben"), "--with", shared("ben")}), 0);
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--folders", annas}), 0);
    QCOMPARE(velkmap({"share", "--mapping", mine("ben"), "--folders", bens}), free ? 0 : 4);
    // Whoever comes first: it is the same.
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--folders", ""}), 0);
    QCOMPARE(velkmap({"share", "--mapping", mine("ben"), "--folders", bens}), 0);
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--folders", annas}), free ? 0 : 4);
    QCOMPARE(velkmap({"share", "--mapping", mine("ben"), "--folders", ""}), 0);
    QCOMPARE(velkmap({"share", "--mapping", mine("anna"), "--folders", annas}), 0);
    QCOMPARE(SharedMapping(mine("ben")).isInOthersFolder()(Bolts), boltsAreAnnas);
    QCOMPARE(SharedMapping(mine("anna")).isInOthersFolder()(Bolts), false);
    decide("ben", Bolts, 1, 7);
    QCOMPARE(velkmap({"publish", "--mapping", mine("ben")}), boltsAreAnnas ? 4 : 0);
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

/// The shared copy is the former or the new one, and no decision is lost.
void tst_Sharing::killedAtAnyMoment()
{
    begin();
    const int kills = qEnvironmentVariableIntValue("VELK_KILLS") > 0
                          ? qEnvironmentVariableIntValue("VELK_KILLS")
                          : (m_server ? 2 : 6);
    QRandomGenerator random(7);
    QMap<QString, int> told;
    decide("anna", Bolts, 1, 8);
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(program({"publish", "--mapping", mine("anna")}), 0);
    qint64 takes = clock.elapsed();
    int published = 0;
    for (int kill = 1; kill <= kills; ++kill) {
        const QString who = kill % 2 ? "anna" : "ben";
        const QString path = kill % 3 ? Bolts : Nuts;
        // An update is killed, then a publishing.
        for (const QString command : {"update", "publish"}) {
            if (command == "publish") {
                const int status = velkmap({"update", "--mapping", mine(who)});
                QVERIFY2(status == 0, qPrintable(m_said));
                count(told);
                decide(who, path, 1 + kill % 9, kill);
            }
            QVERIFY(killed({command, "--mapping", mine(who)}, random.bounded(int(takes) + 1),
                           random.bounded(2) == 1));
            MappingFile whole;
            QString error;
            QVERIFY2(whole.read(mine(who), QString(), &error), qPrintable(error));
            QVERIFY2(m_server || whole.read(shared(who), QString(), &error), qPrintable(error));
        }
        published += lineIn(shared(who), path, 1 + kill % 9) == kill;
        // Whoever goes on comes to the same with everything in it.
        int status = velkmap({"update", "--mapping", mine(who)});
        QVERIFY2(status == 0, qPrintable(m_said));
        count(told);
        clock.start();
        status = program({"publish", "--mapping", mine(who)});
        takes = clock.elapsed();
        QVERIFY2(status == 0, qPrintable(m_said));
        count(told);
        QCOMPARE(lineIn(shared(who), path, 1 + kill % 9), kill);
        QCOMPARE(lineIn(mine(who), path, 1 + kill % 9), kill);
    }
    qInfo("%d of %d were published before the kill", published, kills);
    for (auto it = told.cbegin(); it != told.cend(); ++it)
        qInfo("%4d %s", it.value(), qPrintable(it.key()));
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
