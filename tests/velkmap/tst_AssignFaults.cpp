#include "../support/EnglishTexts.h"
#include "../support/TestCatalog.h"

#include <core/files/EditLock.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/project/CatalogPlaces.h>
#include <geomcore/records/MappingFile.h>
#include <geomcore/table/ContentRef.h>
#include <geomcore/table/readProjectTable.h>
#include <release/assign/assignProjectLines.h>
#include <tools/velkmap/Commands.h>
#include <tools/velkmap/InterruptGuard.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <csignal>

using velkmap::ExitStatus;

// What is there must outlive tables that cannot be read, others who write, and Ctrl+C. Two
// projects: "both" with lines in two targets, "other" beside it.
class tst_AssignFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void unreadableTargets_data();
    void unreadableTargets();
    void faultyCondition_data();
    void faultyCondition();
    void targetElsewhere_data();
    void targetElsewhere();
    void tableElsewhere();
    void linesThatTwoProjectsClaim();
    void entriesOfLinesThatAreGone_data();
    void entriesOfLinesThatAreGone();
    void missingCatalog_data();
    void missingCatalog();
    void catalogsOfOtherProjects();
    void lockedFile();
    void ownLockGoes();
    void sums();
    void hardlyAnyTarget();
    void cancelledInsideAProject();
    void interruptsAsk();

private:
    ExitStatus run(const QStringList &arguments);
    ExitStatus assign(const QStringList &more = {})
    {
        return run(QStringList{"assign", "--mapping", path("m.json"), "--source", path("r1"),
                               "--target", path("r2")} +
                   more);
    }
    [[nodiscard]] QString path(const QString &name) const { return m_dir->filePath(name); }
    [[nodiscard]] QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] PrjMappingC mapping(const QString &project) const;
    void change(const PrjMappingC &mapping) const;
    [[nodiscard]] QStringList linesOf(const QString &project) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_out;
    QString m_err;
};

ExitStatus tst_AssignFaults::run(const QStringList &arguments)
{
    m_out.clear();
    m_err.clear();
    QTextStream out(&m_out);
    QTextStream err(&m_err);
    return velkmap::run(arguments, out, err);
}

void tst_AssignFaults::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    TestCatalog old(path("r1/cat"));
    old.add("both", "key,a,b;k1,1,2;k2,3,4;k3,5,6;k4,7,8", {"key"});
    old.add("other", "key,a,b;o1,11,12;o2,13,14", {"key"});
    TestCatalog now(path("r2/cat"));
    now.add("first", "key,a,b;k1,1,2;k2,3,4", {"key"});
    now.add("second", "key,a,b;k3,5,6;k4,7,8", {"key"});
    now.add("other", "key,a,b;o1,11,12;o2,13,14", {"key"});
    QCOMPARE(run({"create", "--source", path("r1"), "--target", path("r2"), "--catalog", "cat",
                  "--mapping", path("m.json")}),
             ExitStatus::Done);
    QCOMPARE(mapping("cat/both.prj").countTargets(), 2);
    QCOMPARE(assign(), ExitStatus::Done);
    QCOMPARE(mapping("cat/both.prj").lineCounts().lines(), 4);
    QCOMPARE(mapping("cat/both.prj").lineCounts().notFound(), 0);
}

PrjMappingC tst_AssignFaults::mapping(const QString &project) const
{
    MappingFile file;
    if (!file.read(path("m.json")))
        return {};
    for (const PrjMappingC &mapping : file.releases().value(0).getMappingList()) {
        if (mapping.getSourcePath() == project)
            return mapping;
    }
    return {};
}

void tst_AssignFaults::change(const PrjMappingC &mapping) const
{
    MappingFile file;
    QVERIFY(file.read(path("m.json")));
    ReleaseMappingC release = file.releases().value(0);
    release.addMapping(mapping);
    file.setRelease(release);
    QVERIFY(file.write(path("m.json")));
}

QStringList tst_AssignFaults::linesOf(const QString &project) const
{
    QStringList lines;
    const QList<PrjMappingTargetC> targets = mapping(project).getTargets();
    for (const PrjMappingTargetC &target : targets) {
        for (const LineTable::Iterator &line : target.lines())
            lines << QStringLiteral("%1:%2>%3")
                         .arg(target.getTargetPath(), QString::number(line.sourceLine()),
                              QString::number(line.line().getTargetLineId()));
    }
    return lines;
}

void tst_AssignFaults::unreadableTargets_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<bool>("force");
    for (const bool force : {false, true}) {
        const QByteArray how = force ? ", with force" : "";
        QTest::newRow("no project" + how) << "second.prj" << force;
        QTest::newRow("no descriptor" + how) << "second.json" << force;
        QTest::newRow("no lines" + how) << "second.csv" << force;
        QTest::newRow("lines that are no UTF-8" + how) << "" << force;
    }
}

void tst_AssignFaults::unreadableTargets()
{
    QFETCH(QString, fault);
    QFETCH(bool, force);
    const QStringList before = linesOf("cat/both.prj");
    if (fault.isEmpty())
        TestCatalog(path("r2/cat")).writeFile("second.csv", "key,a,b\nk3,\xff,6\n");
    else
        QVERIFY(QFile::remove(path("r2/cat/" + fault)));
    QCOMPARE(assign(force ? QStringList{"--force"} : QStringList()), ExitStatus::InputUnreadable);
    QVERIFY2(m_err.contains("cat/second.prj"), qPrintable(m_err));
    if (fault.isEmpty()) // the cause is told too
        QVERIFY2(m_err.contains("the bytes are no UTF-8"), qPrintable(m_err));
    QCOMPARE(linesOf("cat/both.prj"), before);
    QVERIFY(mapping("cat/both.prj").getMappingState().testFlag(PRJMAPPING::StateTableError));
    QCOMPARE(linesOf("cat/other.prj").size(), 2);
    QVERIFY(!mapping("cat/other.prj").getMappingState().testFlag(PRJMAPPING::StateTableError));
}

void tst_AssignFaults::faultyCondition_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<ExitStatus>("status");
    QTest::addColumn<QString>("told");
    QTest::newRow("parses") << "a .EQ. 5" << ExitStatus::Done << "";
    QTest::newRow("does not parse")
        << "a .EQ." << ExitStatus::InputUnreadable
        << "velkmap assign: cat/both.prj: the condition \"a .EQ.\" of cat/second.prj does not "
           "parse; nothing that was assigned is sure\n";
    QTest::newRow("long") << QString(300, 'x') + " .EQ." << ExitStatus::InputUnreadable
                          << "velkmap assign: cat/both.prj: the condition \"" + QString(200, 'x') +
                                 "...\" of cat/second.prj does not parse; nothing that was "
                                 "assigned is sure\n";
}

void tst_AssignFaults::faultyCondition()
{
    QFETCH(QString, condition);
    PrjMappingC changed = mapping("cat/both.prj");
    PrjMappingTargetC target = changed.findTarget(1);
    QCOMPARE(target.getTargetPath(), "cat/second.prj");
    target.addCondition(VarsetConditionC::fromText(condition));
    changed.updateTarget(1, target);
    change(changed);
    QTEST(assign(), "status");
    QTEST(m_err, "told");
    QVERIFY(!mapping("cat/both.prj").getMappingState().testFlag(PRJMAPPING::StateTableError));
    QCOMPARE(mapping("cat/both.prj").lineCounts().lines(), 4);
}

void tst_AssignFaults::targetElsewhere_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("absolute") << "%1/second.prj";
    QTest::newRow("by a variable") << "$VELK_TEST_PLACE/second.prj";
}

// A mapping names no file of the machine beside the catalogs, unless that is allowed.
void tst_AssignFaults::targetElsewhere()
{
    QFETCH(QString, target);
    const QString directory = path("out/x");
    target.replace("%1", directory);
    qputenv("VELK_TEST_PLACE", directory.toUtf8());
    const auto unset = qScopeGuard([] { qunsetenv("VELK_TEST_PLACE"); });
    // Where a catalog is made, it may be read.
    TestCatalog(path("made")).add("second", "key,a,b;k3,5,6;k4,7,8", {"key"});
    QVERIFY(QDir().mkpath(path("out")));
    QVERIFY(QDir().rename(path("made"), directory));
    PrjMappingC changed = mapping("cat/both.prj");
    changed.addTarget(target, "v1");
    change(changed);
    QCOMPARE(assign(), ExitStatus::InputUnreadable);
    QVERIFY2(m_err.contains(directory + "/second.prj\" lies outside of the catalogs; move it "
                                        "there, or allow its directory"),
             qPrintable(m_err));
    QCOMPARE(assign({"--allow", directory}), ExitStatus::Done);
    QCOMPARE(m_err, QString());
    // The last call decides.
    QCOMPARE(assign({"--allow", path("r1")}), ExitStatus::InputUnreadable);
}

void tst_AssignFaults::tableElsewhere()
{
    QVERIFY(QDir().mkpath(path("out")));
    QVERIFY(QFile::rename(path("r1/cat/other.csv"), path("out/other.csv")));
    QFile descriptor(path("r1/cat/other.json"));
    QVERIFY(descriptor.open(QIODevice::ReadWrite));
    QJsonObject json = QJsonDocument::fromJson(descriptor.readAll()).object();
    json.insert("path", "../../out/other.csv");
    descriptor.resize(0);
    descriptor.write(QJsonDocument(json).toJson());
    descriptor.close();
    QCOMPARE(assign(), ExitStatus::InputUnreadable);
    QVERIFY2(m_err.contains("lies outside of"), qPrintable(m_err));
    const QString current = QDir::currentPath();
    const auto back = qScopeGuard([&current] { QDir::setCurrent(current); });
    QVERIFY(QDir::setCurrent(path("r1")));
    QCOMPARE(assign({"--allow", path("nothing"), "--allow", "../out"}), ExitStatus::Done);
    const QStringList create{"create",    "--source", path("r1"),  "--target",      path("r2"),
                             "--catalog", "cat",      "--mapping", path("new.json")};
    QCOMPARE(run(create), ExitStatus::InputUnreadable);
    QCOMPARE(run(create + QStringList{"--replace", "--allow", "../out"}), ExitStatus::Done);
}

void tst_AssignFaults::linesThatTwoProjectsClaim()
{
    const auto mapped = [this] {
        return mapping("cat/other.prj").lineCounts().mapped();
    };
    QCOMPARE(mapped(), 2);
    TestCatalog(path("r1/cat")).add("twin", "key,a,b;o1,11,12;o2,13,14", {"key"});
    PrjMappingC twin;
    twin.setSourcePath("cat/twin.prj");
    twin.setSourceVersion("v1");
    twin.addTarget("cat/other.prj", "v1");
    PrjMappingTargetC target = twin.findTarget(0);
    target.addLineId(1, 1, PRJMAPPING::Verified, {});
    twin.updateTarget(0, target);
    change(twin);
    QCOMPARE(assign(), ExitStatus::Done);
    QCOMPARE(mapped(), 0);
    QCOMPARE(mapping("cat/other.prj").lineCounts().toCheck(), 2);
}

void tst_AssignFaults::entriesOfLinesThatAreGone_data()
{
    QTest::addColumn<QString>("jobs");
    QTest::newRow("one thread") << "1";
    QTest::newRow("in parts") << "3";
}

// A confirmed entry stays, though the table has no such line any more.
void tst_AssignFaults::entriesOfLinesThatAreGone()
{
    QFETCH(QString, jobs);
    QByteArray table = "key,a,b";
    for (int i = 0; i < 9000; ++i) {
        const QByteArray number = QByteArray::number(i);
        table += ";n" + number + ',' + number + ",x" + number;
    }
    TestCatalog(path("r1/cat")).add("big", table, {"key"});
    TestCatalog(path("r2/cat")).add("big", table, {"key"});
    PrjMappingC big;
    big.setSourcePath("cat/big.prj");
    big.setSourceVersion("v1");
    big.addTarget("cat/big.prj", "v1");
    PrjMappingTargetC target = big.findTarget(0);
    target.addLineId(20000, 7, PRJMAPPING::Verified, {});
    target.addLineId(0, 8, PRJMAPPING::Verified, {});
    big.updateTarget(0, target);
    change(big);
    QCOMPARE(assign({"--project", "cat/big.prj", "--jobs", jobs}), ExitStatus::Done);
    const PrjMappingTargetC now = mapping("cat/big.prj").findTarget(0);
    QCOMPARE(now.countLines(), 9002);
    QCOMPARE(now.getMappedLine(20000).getTargetLineId(), 7);
    QCOMPARE(now.getMappedLine(0).getTargetLineId(), 8);
    QCOMPARE(now.getMappedLine(9000).getTargetLineId(), 9000);
}

void tst_AssignFaults::missingCatalog_data()
{
    QTest::addColumn<QString>("gone");
    QTest::newRow("of the targets") << "r2/cat";
    QTest::newRow("of the source") << "r1/cat";
}

void tst_AssignFaults::missingCatalog()
{
    QFETCH(QString, gone);
    QVERIFY(QDir().rename(path(gone), path("elsewhere")));
    const QByteArray before = content("m.json");
    for (const QStringList &more : {QStringList(), QStringList{"--force"}}) {
        QCOMPARE(assign(more), ExitStatus::InputUnreadable);
        QVERIFY2(m_err.contains(path(gone)), qPrintable(m_err));
        QCOMPARE(content("m.json"), before);
    }
}

void tst_AssignFaults::catalogsOfOtherProjects()
{
    MappingFile file;
    QVERIFY(file.read(path("m.json")));
    ReleaseMappingC release = file.releases().value(0);
    PrjMappingC elsewhere;
    elsewhere.setSourcePath("gone/a.prj");
    elsewhere.setSourceVersion("v1");
    release.addMapping(elsewhere);
    file.setRelease(release);
    QVERIFY(file.write(path("m.json")));
    QCOMPARE(assign({"--project", "cat/other.prj"}), ExitStatus::Done);
    QCOMPARE(assign(), ExitStatus::InputUnreadable);
    QVERIFY2(m_err.contains(path("r1/gone")), qPrintable(m_err));
}

void tst_AssignFaults::lockedFile()
{
    const QByteArray before = content("m.json");
    QVERIFY(QFile::link(path("m.json"), path("link.json")));
    EditLock lock;
    QCOMPARE(lock.take(path("m.json")), EditLock::Taken);
    QCOMPARE(assign({"--force"}), ExitStatus::ResultUnwritable);
    QVERIFY2(m_err.contains(QString("process %1").arg(QCoreApplication::applicationPid())),
             qPrintable(m_err));
    for (const char *name : {"m.json", "link.json"}) {
        QCOMPARE(run({"create", "--replace", "--source", path("r1"), "--target", path("r2"),
                      "--catalog", "cat", "--mapping", path(name)}),
                 ExitStatus::ResultUnwritable);
        QVERIFY2(m_err.contains(name), qPrintable(m_err));
    }
    QCOMPARE(content("m.json"), before);
    QCOMPARE(run({"stats", "--mapping", path("m.json")}), ExitStatus::Done);
}

void tst_AssignFaults::ownLockGoes()
{
    QCOMPARE(assign(), ExitStatus::Done);
    QVERIFY(!QFile::exists(EditLock::lockFile(path("m.json"))));
}

void tst_AssignFaults::sums()
{
    QCOMPARE(assign(), ExitStatus::Done);
    QCOMPARE(m_out, QString("2 of 2 projects with 6 lines: 2 mapped, 4 to check, 0 confirmed, 0 "
                            "without target\n"));
    QCOMPARE(m_err, QString());
    MappingFile file;
    QVERIFY(file.read(path("m.json")));
    ReleaseMappingC release = file.releases().value(0);
    PrjMappingC changed = mapping("cat/both.prj");
    PrjMappingTargetC target = changed.findTarget(0);
    target.addLineId(1, 1, PRJMAPPING::Verified, {});
    target.addLineId(2, 2, PRJMAPPING::ToCheck, {});
    changed.updateTarget(0, target);
    PrjMappingTargetC none;
    none.setValid(true);
    none.addLineId(9, -1, PRJMAPPING::Verified, {});
    changed.addTarget(none);
    release.addMapping(changed);
    file.setRelease(release);
    QVERIFY(file.write(path("m.json")));
    QVERIFY(QFile::remove(path("r1/cat/both.prj"))); // its lines stay
    QCOMPARE(assign(), ExitStatus::InputUnreadable);
    QCOMPARE(m_out, QString("2 of 2 projects with 7 lines: 2 mapped, 3 to check, 1 confirmed, 1 "
                            "without target\n"));
}

void tst_AssignFaults::hardlyAnyTarget()
{
    for (const char *name : {"first", "second"})
        TestCatalog(path("r2/cat")).add(name, "key,c;zzz,quite another text", {"key"});
    QCOMPARE(assign({"--force", "--project", "cat/both.prj"}), ExitStatus::Done);
    QVERIFY2(m_out.contains("4 without target"), qPrintable(m_out));
    QVERIFY2(m_err.contains("more than half of the lines have no target"), qPrintable(m_err));
    TestCatalog(path("r3/cat")).add("first", "key,c;zzz,quite another text", {"key"});
    QCOMPARE(run({"create", "--source", path("r1"), "--target", path("r3"), "--catalog", "cat",
                  "--mapping", path("other.json")}),
             ExitStatus::Done);
    QVERIFY2(m_err.contains("more than half of the projects have no target"), qPrintable(m_err));
}

void tst_AssignFaults::cancelledInsideAProject()
{
    IndexTreeC::instance()->setCatalogRoot(path("r2"));
    VKTab::ContentRef table;
    QVERIFY(VKTab::readProjectTable(path("r1/cat/both.prj"), table));
    const PrjMappingC before = mapping("cat/both.prj");
    PrjMappingC now = before;
    const std::atomic<bool> cancelled{true};
    const VelkRelease::AssignmentOutcome outcome = VelkRelease::assignProjectLines(
        "cat/both.prj", now, table, ReleaseMappingC(), {}, true, &cancelled);
    QVERIFY(outcome.isLeft);
    QVERIFY(outcome.unreadableTargets.isEmpty());
    QCOMPARE(now.lineCounts(), before.lineCounts());
    QCOMPARE(int(now.getMappingState()), int(before.getMappingState()));
}

void tst_AssignFaults::interruptsAsk()
{
    {
        const velkmap::InterruptGuard guard;
        QVERIFY(!velkmap::InterruptGuard::isRequested());
        QCOMPARE(std::raise(SIGINT), 0);
        QVERIFY(velkmap::InterruptGuard::isRequested());
        QCOMPARE(std::raise(SIGINT), 0);
        QCOMPARE(std::raise(SIGTERM), 0);
    }
    const velkmap::InterruptGuard guard;
    QVERIFY(!velkmap::InterruptGuard::isRequested());
}

QTEST_GUILESS_MAIN(tst_AssignFaults)
#include "tst_AssignFaults.moc"
