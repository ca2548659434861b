#include "../support/SizeLimit.h"
#include "../support/TestCatalog.h"

#include <geomcore/records/MappingFile.h>
#include <TestPaths.h>
#include <tools/velkmap/Commands.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

using velkmap::ExitStatus;

namespace {

/// A release with a line for each of \a targetLines, numbered from 1, all confirmed in one target;
/// 0: without target.
ReleaseMappingC release(const QString &date, const QList<int> &targetLines)
{
    PrjMappingC mapping;
    mapping.setSourcePath("bolts/a.prj");
    mapping.setSourceVersion("v1");
    PrjMappingTargetC target;
    target.setTargetPath("bolts/b.prj");
    target.setValid(true);
    for (int i = 0; i < targetLines.size(); ++i) {
        if (targetLines[i] != 0)
            target.addLineId(i + 1, targetLines[i], PRJMAPPING::Verified, QString());
    }
    mapping.addTarget(target);
    for (int i = 0; i < targetLines.size(); ++i) {
        if (targetLines[i] == 0) {
            mapping.changeTarget(mapping.ensureNotFoundTarget(), [&](PrjMappingTargetC &none) {
                none.addLineId(i + 1, -1, PRJMAPPING::ToCheck, QString());
            });
        }
    }
    mapping.updateMappingState();
    ReleaseMappingC release;
    release.setSourceDate(date);
    release.setTargetDate("v270101000000");
    release.addMapping(mapping);
    return release;
}

} // namespace

class tst_MergeCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void merges();
    void clashes();
    void sameValues();
    void releasesOfAFile();
    void faults_data();
    void faults();
    void fullDisk();
    void mergeDriver();

private:
    ExitStatus merge(const QStringList &more = {});
    [[nodiscard]] QString path(const QString &name) const { return m_dir->filePath(name); }
    void write(const QString &name, const QList<ReleaseMappingC> &releases) const;
    [[nodiscard]] QByteArray bytes(const QString &name) const;
    [[nodiscard]] QJsonObject report() const;
    [[nodiscard]] int lineOf(const QString &name, int line, bool *conflict = nullptr) const;
    QByteArray git(const QStringList &arguments, int expected = 0) const;

    const QString m_date = QStringLiteral("v260101000000");
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_out;
    QString m_err;
};

void tst_MergeCommand::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    write("base.json", {release(m_date, {1, 2, 0})});
    write("ours.json", {release(m_date, {5, 2, 0})});
    write("theirs.json", {release(m_date, {1, 2, 7})});
}

ExitStatus tst_MergeCommand::merge(const QStringList &more)
{
    m_out.clear();
    m_err.clear();
    QTextStream out(&m_out);
    QTextStream err(&m_err);
    return velkmap::run(QStringList{"merge", "--base", path("base.json"), "--ours",
                                    path("ours.json"), "--theirs", path("theirs.json"), "--out",
                                    path("out.json")} +
                            more,
                        out, err);
}

void tst_MergeCommand::write(const QString &name, const QList<ReleaseMappingC> &releases) const
{
    MappingFile file;
    for (const ReleaseMappingC &release : releases)
        file.setRelease(release);
    QVERIFY(file.write(path(name)));
}

QByteArray tst_MergeCommand::bytes(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

QJsonObject tst_MergeCommand::report() const
{
    return QJsonDocument::fromJson(bytes("report.json"))["releases"].toArray().first().toObject();
}

int tst_MergeCommand::lineOf(const QString &name, int line, bool *conflict) const
{
    MappingFile file;
    if (!file.read(path(name)))
        return -2;
    const PrjMappingC mapping = file.release(m_date).mappingAt(0);
    for (const PrjMappingTargetC &target : mapping.getTargets()) {
        if (!target.containsLine(line))
            continue;
        if (conflict)
            *conflict = target.getLineConflicted(line);
        return target.getMappedLine(line).getTargetLineId();
    }
    return -3;
}

void tst_MergeCommand::merges()
{
    QCOMPARE(merge({"--report", path("report.json")}), ExitStatus::Done);
    write("expected.json", {release(m_date, {5, 2, 7})});
    QCOMPARE(bytes("out.json"), bytes("expected.json"));
    QCOMPARE(m_out, m_date + ": 1 change of theirs, 0 made by both, 0 lines clash in 0 ways, "
                             "other clashes: 0\n");
    QCOMPARE(m_err, QString());
    const QJsonObject told = report();
    QCOMPARE(told["clashes"].toArray().size(), 0);
    QCOMPARE(told["notTaken"].toArray().size(), 0);
    QCOMPARE(told["theirs"].toArray(), QJsonArray({QJsonObject{{"project", "bolts/a.prj"},
                                                               {"type", 1},
                                                               {"line", 3},
                                                               {"targetLine", 7},
                                                               {"state", 2},
                                                               {"target", "bolts/b.prj"}}}));
    QVERIFY(!QFile::exists(path("out.json.lock")));
}

void tst_MergeCommand::clashes()
{
    write("theirs.json", {release(m_date, {6, 0, 7})});
    QCOMPARE(merge({"--report", path("report.json")}), ExitStatus::Clashes);
    bool conflict = false;
    QCOMPARE(lineOf("out.json", 1, &conflict), 6);
    QVERIFY(conflict);
    QCOMPARE(lineOf("out.json", 2, &conflict), -1);
    QVERIFY(!conflict);
    const QJsonObject told = report();
    QCOMPARE(told["clashes"].toArray().size(), 1);
    const QJsonObject clash = told["clashes"].toArray().first().toObject();
    QCOMPARE(clash["kind"].toString(), "line");
    QCOMPARE(clash["line"].toInt(), 1);
    QCOMPARE(clash["base"].toArray().first()["line"].toInt(), 1);
    QCOMPARE(clash["ours"].toArray().first()["line"].toInt(), 5);
    QCOMPARE(clash["theirs"].toArray().first()["line"].toInt(), 6);
    QCOMPARE(told["notTaken"].toArray().first()["targetLine"].toInt(), 5);
    const QJsonObject question = told["questions"].toArray().first().toObject();
    QCOMPARE(question["lines"].toArray(), QJsonArray({1}));
    QCOMPARE(question["ours"]["kind"].toString(), "confirmed");
}

void tst_MergeCommand::sameValues()
{
    TestCatalog(path("new")).write("bolts/b.prj", "D,L,Id\n1,1.0,5\n1,1,6\n1,2,7\n");
    TestCatalog(path("new")).writeFile("bolts/b.json", R"({"name": "b", "lineIdField": "Id",
        "fields": [{"name": "D"}, {"name": "L", "type": "number"}, {"name": "Id"}]})");
    write("theirs.json", {release(m_date, {6, 2, 0})});
    QCOMPARE(merge(), ExitStatus::Clashes);
    QCOMPARE(merge({"--target", path("new"), "--report", path("report.json")}), ExitStatus::Done);
    QCOMPARE(lineOf("out.json", 1), 6);
    QCOMPARE(report()["settled"].toArray().first()["reason"].toString(), "sameValues");
    write("theirs.json", {release(m_date, {7, 2, 0})});
    QCOMPARE(merge({"--target", path("new")}), ExitStatus::Clashes);
    QCOMPARE(merge({"--target", path("nowhere")}), ExitStatus::Clashes);
}

void tst_MergeCommand::releasesOfAFile()
{
    const ReleaseMappingC a = release("a", {1});
    const ReleaseMappingC b = release("b", {1});
    const ReleaseMappingC c = release("c", {1});
    const ReleaseMappingC d = release("d", {1});
    const ReleaseMappingC changed = release("b", {2});
    write("base.json", {a, b, c});
    write("ours.json", {a, changed, d, c});
    write("theirs.json", {b, c});
    QCOMPARE(merge(), ExitStatus::Done);
    write("expected.json", {changed, d, c});
    QCOMPARE(bytes("out.json"), bytes("expected.json"));
    write("theirs.json", {a, c});
    QCOMPARE(merge({"--report", path("report.json")}), ExitStatus::Clashes);
    write("expected.json", {a, changed, d, c});
    QCOMPARE(bytes("out.json"), bytes("expected.json"));
    QVERIFY(m_out.endsWith("b: removed by one side, changed by the other; it stays\n"));
    QVERIFY(bytes("report.json").contains("\"removedByOneSide\": true"));
    write("base.json", {});
    write("theirs.json", {});
    QFile::resize(path("base.json"), 0);
    QCOMPARE(merge(), ExitStatus::Done);
    QCOMPARE(bytes("out.json"), bytes("ours.json"));
}

void tst_MergeCommand::faults_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("status");
    QTest::newRow("no JSON") << "theirs.json" << QByteArray("{\"a\": ") << 2;
    QTest::newRow("marks of a merge") << "ours.json" << QByteArray("<<<<<<< HEAD\n{}\n") << 2;
    QTest::newRow("missing") << "base.json" << QByteArray() << 2;
}

void tst_MergeCommand::faults()
{
    QFETCH(const QString, file);
    QFETCH(const QByteArray, content);
    QFETCH(const int, status);
    write("out.json", {release(m_date, {9})});
    const QByteArray before = bytes("out.json");
    QFile changed(path(file));
    QVERIFY(content.isEmpty() ? changed.remove()
                              : changed.open(QIODevice::WriteOnly) && changed.write(content) > 0);
    changed.close();
    QCOMPARE(int(merge()), status);
    QVERIFY2(m_err.contains(file) && m_err.contains("nothing was written"), qPrintable(m_err));
    QCOMPARE(bytes("out.json"), before);
}

void tst_MergeCommand::fullDisk()
{
    const QByteArray ours = bytes("ours.json");
    const SizeLimit limit(100);
    QCOMPARE(merge({"--out", path("ours.json")}), ExitStatus::ResultUnwritable);
    QCOMPARE(bytes("ours.json"), ours);
}

QByteArray tst_MergeCommand::git(const QStringList &arguments, int expected) const
{
    QProcess process;
    process.setWorkingDirectory(path("repository"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", m_dir->path());
    environment.insert("GIT_CONFIG_NOSYSTEM", "1");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("git",
                  QStringList{"-c", "user.name=t", "-c", "user.email=t@example.org"} + arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != expected)
        return "failed: " + process.readAll();
    return process.readAll();
}

void tst_MergeCommand::mergeDriver()
{
    if (QStandardPaths::findExecutable("git").isEmpty())
        QFAIL("there is no git");
    QVERIFY(QDir(m_dir->path()).mkdir("repository"));
    const auto commit = [&](const ReleaseMappingC &release) {
        write("repository/bolts.json", {release});
        return !git({"add", "."}).startsWith("failed") &&
               !git({"commit", "-q", "-m", "x"}).startsWith("failed");
    };
    QVERIFY(!git({"init", "-q", "-b", "main"}).startsWith("failed"));
    QVERIFY(!git({"config", "merge.velkmap.driver",
                  QStringLiteral(VELK_BINARY_DIR "/bin/velkmap merge --base %O --ours %A --theirs "
                                                 "%B --out %A")})
                 .startsWith("failed"));
    QFile attributes(path("repository/.gitattributes"));
    QVERIFY(attributes.open(QIODevice::WriteOnly) &&
            attributes.write("*.json merge=velkmap\n") > 0);
    attributes.close();
    QVERIFY(commit(release(m_date, {1, 2, 0})));
    QVERIFY(!git({"checkout", "-q", "-b", "theirs"}).startsWith("failed"));
    QVERIFY(commit(release(m_date, {1, 2, 7})));
    QVERIFY(!git({"checkout", "-q", "main"}).startsWith("failed"));
    QVERIFY(commit(release(m_date, {5, 2, 0})));
    const QByteArray done = git({"merge", "-q", "--no-edit", "theirs"});
    QVERIFY2(!done.startsWith("failed"), done.constData());
    QCOMPARE(lineOf("repository/bolts.json", 1), 5);
    QCOMPARE(lineOf("repository/bolts.json", 3), 7);

    QVERIFY(!git({"checkout", "-q", "theirs"}).startsWith("failed"));
    QVERIFY(commit(release(m_date, {8, 2, 7})));
    QVERIFY(!git({"checkout", "-q", "main"}).startsWith("failed"));
    QVERIFY(git({"merge", "-q", "--no-edit", "theirs"}, 1).contains("CONFLICT"));
    bool conflict = false;
    QCOMPARE(lineOf("repository/bolts.json", 1, &conflict), 8);
    QVERIFY(conflict);
    QCOMPARE(git({"status", "--porcelain"}), QByteArray("UU bolts.json\n"));
}

QTEST_GUILESS_MAIN(tst_MergeCommand)
#include "tst_MergeCommand.moc"
