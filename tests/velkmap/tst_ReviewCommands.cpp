#include "../support/TestCatalog.h"

#include <geomcore/records/MappingFile.h>
#include <tools/velkmap/Commands.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <rapidjson/document.h>
#include <rapidjson/schema.h>
#include <TestPaths.h>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;
using velkmap::ExitStatus;

/// The commands that look at a mapping and at the tables of both releases.
class tst_ReviewCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void review();
    void reviewOfOneProject();
    void reviewAsJson();
    void goneLines();
    void neighbours();
    void agreedReplacements();
    void unreadableTable();
    void explain();
    void explainAsJson();
    void explainUnassignedLine();
    void explainRanges_data();
    void explainRanges();
    void exportWithReasons();
    void wrongUsage_data();
    void wrongUsage();
    void rootsFromTheEnvironment();
    void nothingIsChanged();

private:
    ExitStatus run(const QStringList &arguments);
    [[nodiscard]] QStringList places() const;
    [[nodiscard]] static bool fitsSchema(const QByteArray &json);
    void writeMapping(const QList<AgreedReplacement> &replacements = {}) const;
    [[nodiscard]] QString path(const QString &name) const { return m_directory->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_out;
    QString m_err;
};

void tst_ReviewCommands::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    const TestCatalog old(path("r1"));
    old.write("cat/a.prj", "Name,W,L:n\nN1,St37,10\nN2,St37,20\nN3,St37,30\nN4,St37,40\n");
    old.write("cat/b.prj", "Name,W\nP1,St37\nP2,Brass\n");
    const TestCatalog now(path("r2"));
    now.write("cat/a.prj", "Name,W,L:n\nN1,S235,10\nN2,S235,20\nN3,S235,15\nN4,St37,40\n");
    now.write("cat/b.prj", "Name,W\nP1,S235\nP2,CuZn\n");
    writeMapping();
}

void tst_ReviewCommands::writeMapping(const QList<AgreedReplacement> &replacements) const
{
    PrjMappingC first = mappingOf("cat/a.prj", {"cat/a.prj", ""});
    enter(first, 0, 1, 1, ToCheck);
    enter(first, 0, 2, 2, ToCheck);
    enter(first, 0, 3, 3, ToCheck);
    enter(first, 0, 4, 4, Mapped);
    PrjMappingC second = mappingOf("cat/b.prj", {"cat/b.prj", ""});
    enter(second, 0, 1, 1, ToCheck);
    enter(second, 1, 2, -1, ToCheck);
    ReleaseMappingC release;
    release.setSourceDate("2021-01-01T00:00:00Z");
    release.setTargetDate("2022-01-01T00:00:00Z");
    release.setReplacements(replacements);
    release.addMapping(first);
    release.addMapping(second);
    MappingFile file;
    file.setRelease(release);
    QVERIFY(file.write(path("m.json")));
}

ExitStatus tst_ReviewCommands::run(const QStringList &arguments)
{
    m_out.clear();
    m_err.clear();
    QTextStream out(&m_out);
    QTextStream err(&m_err);
    return velkmap::run(arguments, out, err);
}

QStringList tst_ReviewCommands::places() const
{
    return {"--mapping", path("m.json"), "--source", path("r1"), "--target", path("r2")};
}

void tst_ReviewCommands::review()
{
    QCOMPARE(run(QStringList("review") + places()), ExitStatus::Done);
    QCOMPARE(m_err, QString());
    const QStringList rows = m_out.split('\n');
    QCOMPARE(rows.size(), 12);
    QCOMPARE(rows[0], "     lines  projects  probability  exceptions  differences");
    QVERIFY2(rows[1].startsWith("         3         2 "), qPrintable(rows[1]));
    QVERIFY2(rows[1].endsWith("           1  W: St37 → S235"), qPrintable(rows[1]));
    QCOMPARE(rows[2].trimmed(), "cat/a.prj:1, cat/a.prj:2, cat/b.prj:1");
    QVERIFY2(rows[3].endsWith("           0  W: St37 → S235; L: other number"),
             qPrintable(rows[3]));
    QCOMPARE(rows[4].trimmed(), "cat/a.prj:3");
    QCOMPARE(rows[5], "     lines  projects  probability  exceptions  without a successor");
    QVERIFY2(rows[6].startsWith("         1         1 ") &&
                 rows[6].contains("no similar line: cat"),
             qPrintable(rows[6]));
    QCOMPARE(rows[7].trimmed(), "cat/b.prj:2");
    QCOMPARE(rows[8], "4 open lines with a proposal differ in 2 ways");
    QCOMPARE(rows[9], "1 open line has no successor, in 1 group");
    QCOMPARE(rows[10],
             "5 assigned lines were looked at beside their neighbours, 0 places do not fit");
}

void tst_ReviewCommands::reviewOfOneProject()
{
    QCOMPARE(run(QStringList("review") + places() + QStringList{"--project", "cat/b.prj"}),
             ExitStatus::Done);
    // A single line makes no family.
    QVERIFY2(m_out.contains("W: other wording"), qPrintable(m_out));
    QVERIFY(m_out.contains(
        "\n1 open line with a proposal differs in 1 way\n1 open line has no successor, "));
}

void tst_ReviewCommands::reviewAsJson()
{
    QCOMPARE(run(QStringList("review") + places() + QStringList{"--json"}), ExitStatus::Done);
    const QJsonObject all = QJsonDocument::fromJson(m_out.toUtf8()).object();
    QCOMPARE(all["openLines"].toInt(), 4);
    QCOMPARE(all["sourceDate"].toString(), "2021-01-01T00:00:00Z");
    const QJsonArray patterns = all["patterns"].toArray();
    QCOMPARE(patterns.size(), 2);
    int lines = 0;
    for (const QJsonValue &pattern : patterns)
        lines += pattern["lines"].toInt();
    QCOMPARE(lines, 4);
    const QJsonObject first = patterns[0].toObject();
    QCOMPARE(first["exceptions"].toInt(), 1);
    QCOMPARE(first["examples"].toArray().size(), 3);
    QVERIFY(first["probability"].isDouble());
    const QJsonObject change = first["changes"][0].toObject();
    QCOMPARE(change["variable"].toString(), "W");
    QCOMPARE(change["kind"].toString(), "replacement");
    QCOMPARE(change["before"].toString(), "St37");
    QCOMPARE(change["after"].toString(), "S235");
    QCOMPARE(change["agreed"].toBool(), false);
    QCOMPARE(all["agreed"].toArray().size(), 0);
    QCOMPARE(all["goneLines"].toInt(), 1);
    const QJsonObject gone = all["gone"][0].toObject();
    QCOMPARE(gone["kind"].toString(), "unlike");
    QCOMPARE(gone["place"].toString(), "cat");
    QCOMPARE(gone["examples"][0].toString(), "cat/b.prj:2");
    QVERIFY(fitsSchema(m_out.toUtf8()));
    QVERIFY(!fitsSchema(m_out.toUtf8().replace("\"unlike\"", "\"other\"")));
}

/// All groups of lines without a successor, by the tables.
void tst_ReviewCommands::goneLines()
{
    const TestCatalog old(path("r1"));
    const TestCatalog now(path("r2"));
    old.write("cat/c.prj", "Name,W,L:n\nN1,St37,10\nN2,CuZn,20\nN3,CuZn,30\nN4,CuZn,40.0\n");
    now.write("cat/c.prj", "Name,W,L:n\nN1,St37,10\nN8,St37,40\n");
    old.write("cat/d.prj", "Name\nN1\nN2\n");
    for (const char *name : {"cat/e/a.prj", "cat/e/b.prj", "cat/f.prj"})
        old.write(name, "Name\nN1\n");
    PrjMappingC part = mappingOf("cat/c.prj", {"cat/c.prj", ""});
    enter(part, 0, 1, 1, Mapped);
    for (const int line : {2, 3, 4})
        enter(part, 1, line, -1, ToCheck);
    PrjMappingC vanished = mappingOf("cat/d.prj", {"cat/dropped.prj"});
    enter(vanished, 0, 1, 1, ToCheck);
    enter(vanished, 0, 2, 2, ToCheck);
    ReleaseMappingC release;
    release.setSourceDate("2021-01-01T00:00:00Z");
    release.setTargetDate("2022-01-01T00:00:00Z");
    release.addMapping(part);
    release.addMapping(vanished);
    for (const char *name : {"cat/e/a.prj", "cat/e/b.prj", "cat/f.prj"}) {
        PrjMappingC whole = mappingOf(name, {""});
        enter(whole, 0, 1, -1, ToCheck);
        release.addMapping(whole);
    }
    MappingFile file;
    file.setRelease(release);
    QVERIFY(file.write(path("m.json")));
    (void)run(QStringList("review") + places() + QStringList{"--json"});
    QVERIFY2(fitsSchema(m_out.toUtf8()), qPrintable(m_out));
    const QJsonObject all = QJsonDocument::fromJson(m_out.toUtf8()).object();
    QCOMPARE(all["openLines"].toInt(), 0);
    QCOMPARE(all["goneLines"].toInt(), 8);
    QStringList groups;
    const QJsonArray gone = all["gone"].toArray();
    for (const QJsonValue &group : gone)
        groups << group["text"].toString().remove("in doubt: ") + '|' +
                      QString::number(group["lines"].toInt());
    QCOMPARE(groups, (QStringList{"W: CuZn is gone|3", "target project is gone: cat/dropped.prj|2",
                                  "whole folder without target: cat/e|2",
                                  "whole project without target: cat/f.prj|1"}));
}

/// What the command prints is described for machines.
bool tst_ReviewCommands::fitsSchema(const QByteArray &json)
{
    QFile file(QStringLiteral(VELK_SOURCE_DIR "/docs/schema/review.schema.json"));
    rapidjson::Document schema;
    if (!file.open(QIODevice::ReadOnly) || schema.Parse(file.readAll().constData()).HasParseError())
        return false;
    const rapidjson::SchemaDocument compiled(schema);
    rapidjson::Document document;
    document.Parse(json.constData());
    rapidjson::SchemaValidator validator(compiled);
    return !document.HasParseError() && document.Accept(validator);
}

void tst_ReviewCommands::neighbours()
{
    QByteArray table = "Name,L:n\n";
    PrjMappingC mapping = mappingOf("cat/c.prj", {"cat/c.prj"});
    for (int line = 1; line <= 30; ++line) {
        table += "N" + QByteArray::number(line) + ',' + QByteArray::number(line * line) + '\n';
        // Five lines were confirmed one line too far down, two the other way round.
        const int shifted = line >= 10 && line < 15 ? line + 1 : line;
        enter(mapping, 0, line, line == 20 ? 21 : line == 21 ? 20 : shifted, Verified);
    }
    for (const char *release : {"r1", "r2"})
        TestCatalog(path(release)).write("cat/c.prj", table);
    MappingFile file;
    QVERIFY(file.read(path("m.json")));
    ReleaseMappingC release = file.releases().last();
    release.addMapping(mapping);
    file.setRelease(release);
    QVERIFY(file.write(path("m.json")));
    QCOMPARE(run(QStringList("review") + places()), ExitStatus::Done);
    const QStringList rows = m_out.split('\n');
    QCOMPARE(rows[10], "cat/c.prj: lines 10 to 14 are shifted, 1 line too far down; mended: "
                       "10 → 10, 11 → 11, 12 → 12, ...");
    QCOMPARE(rows[11], "cat/c.prj: lines 20 and 21 are swapped; mended: 20 → 20, 21 → 21");
    QCOMPARE(rows[12],
             "35 assigned lines were looked at beside their neighbours, 2 places do not fit");
    QCOMPARE(run(QStringList("review") + places() + QStringList{"--json"}), ExitStatus::Done);
    const QJsonObject all = QJsonDocument::fromJson(m_out.toUtf8()).object();
    QCOMPARE(all["checkedLines"].toInt(), 35);
    const QJsonArray findings = all["neighbours"].toArray();
    QCOMPARE(findings.size(), 2);
    QCOMPARE(findings[0]["project"].toString(), "cat/c.prj");
    QCOMPARE(findings[0]["kind"].toString(), "shifted");
    QCOMPARE(findings[0]["firstLine"].toInt(), 10);
    QCOMPARE(findings[0]["lastLine"].toInt(), 14);
    QCOMPARE(findings[0]["steps"].toInt(), 1);
    QCOMPARE(findings[0]["repairs"].toArray().size(), 5);
    QCOMPARE(findings[0]["repairs"][0]["targetPath"].toString(), "cat/c.prj");
    QCOMPARE(findings[0]["repairs"][0]["targetLine"].toInt(), 10);
    QCOMPARE(findings[1]["kind"].toString(), "swapped");
    // Of the projects that are asked for.
    QCOMPARE(run(QStringList("review") + places() + QStringList{"--project", "cat/b.prj"}),
             ExitStatus::Done);
    QVERIFY2(m_out.endsWith(" were looked at beside their neighbours, 0 places do not fit\n") &&
                 !m_out.contains("cat/c.prj"),
             qPrintable(m_out));
}

void tst_ReviewCommands::agreedReplacements()
{
    writeMapping({{"cat/a.prj", "W", "St37", "S235", {}, {}}});
    QCOMPARE(run(QStringList("review") + places()), ExitStatus::Done);
    QVERIFY2(
        m_out.contains("agreed in cat/a.prj: W: St37 → S235, 3 lines support it, 1 does not\n"),
        qPrintable(m_out));
    QCOMPARE(run(QStringList("review") + places() + QStringList{"--json"}), ExitStatus::Done);
    const QJsonObject agreed =
        QJsonDocument::fromJson(m_out.toUtf8())["agreed"].toArray()[0].toObject();
    QCOMPARE(agreed["supports"].toInt(), 3);
    QCOMPARE(agreed["counterExamples"].toInt(), 1);
    QCOMPARE(agreed["folder"].toString(), "cat/a.prj");
}

void tst_ReviewCommands::unreadableTable()
{
    QVERIFY(QFile::remove(path("r1/cat/b.csv")));
    QCOMPARE(run(QStringList("review") + places()), ExitStatus::InputUnreadable);
    QVERIFY(m_err.startsWith("velkmap review: "));
    QVERIFY2(m_out.contains("cannot be compared"), qPrintable(m_out));
    QVERIFY(m_out.contains("4 open lines with a proposal differ in 3 ways\n"));
    QCOMPARE(run(QStringList("explain") + places() + QStringList{"--line", "cat/b.prj:1"}),
             ExitStatus::InputUnreadable);
    QCOMPARE(
        run(QStringList("export") + places() + QStringList{"--reasons", "--csv", path("e.csv")}),
        ExitStatus::InputUnreadable);
    QVERIFY(QFile::exists(path("e.csv")));
}

void tst_ReviewCommands::explain()
{
    QCOMPARE(run(QStringList("explain") + places() + QStringList{"--line", "cat/a.prj:3"}),
             ExitStatus::Done);
    QCOMPARE(m_err, QString());
    QVERIFY2(m_out.startsWith("cat/a.prj:3"), qPrintable(m_out));
    QVERIFY2(m_out.contains("\nassigned to cat/a.prj:3, to check"), qPrintable(m_out));
    QVERIFY2(m_out.contains("W: St37 → S235  (alike in 2 other lines)\n"), qPrintable(m_out));
    QVERIFY2(m_out.contains("  equal     Name: N3\n"), qPrintable(m_out));
    // Different ones first.
    QVERIFY(m_out.indexOf("L: 30 → 15") < m_out.indexOf("Name: N3"));
    QVERIFY2(m_out.contains("\ncandidates\n"), qPrintable(m_out));
    QVERIFY2(m_out.contains("  no successor\n"), qPrintable(m_out));
}

void tst_ReviewCommands::explainAsJson()
{
    QCOMPARE(
        run(QStringList("explain") + places() + QStringList{"--line", "cat/a.prj:1", "--json"}),
        ExitStatus::Done);
    const QJsonObject all = QJsonDocument::fromJson(m_out.toUtf8()).object();
    QCOMPARE(all["sourcePath"].toString(), "cat/a.prj");
    QCOMPARE(all["sourceLine"].toInt(), 1);
    QCOMPARE(all["targetPath"].toString(), "cat/a.prj");
    QCOMPARE(all["targetLine"].toInt(), 1);
    QCOMPARE(all["state"].toInt(), 0);
    const QJsonArray variables = all["variables"].toArray();
    QCOMPARE(variables.size(), 3);
    QCOMPARE(variables[1]["name"].toString(), "W");
    QCOMPARE(variables[1]["old"].toString(), "St37");
    QCOMPARE(variables[1]["new"].toString(), "S235");
    QVERIFY(all["noSuccessor"].isDouble());
    QVERIFY(all["candidates"].isArray());
}

void tst_ReviewCommands::explainRanges_data()
{
    QTest::addColumn<QString>("texts");
    QTest::addColumn<QString>("said");
    QTest::newRow("not divided") << ""
                                 << "";
    QTest::newRow("all") << "{L=10} -> 1\n{L=20} -> 2\n{L=30} -> 2"
                         << "values of L: 3 of 3 have a new line\n";
    QTest::newRow("gaps") << "{L=20} -> 1"
                          << "values of L: 1 of 3 have a new line\n  missing   10 | 30\n";
    QTest::newRow("several") << "{L=10} -> 1\n{L=10} -> 2\n{L=20} -> 1\n{L=30} -> 1"
                             << "values of L: 3 of 3 have a new line\n  several   10\n";
    QTest::newRow("unknown")
        << "{L=10} -> 1\n{L=99} -> 1"
        << "values of L: 1 of 3 have a new line\n  missing   20 | 30\n  unknown   {L=99}\n";
}

void tst_ReviewCommands::explainRanges()
{
    QFETCH(const QString, texts);
    QFETCH(const QString, said);
    TestCatalog(path("r1")).write("cat/a.prj", "Name,L:r\nN1,10;20;30\n");
    PrjMappingC mapping = mappingOf("cat/a.prj", {"cat/a.prj"});
    mapping.changeTarget(
        0, [&](PrjMappingTargetC &target) { target.addLineId(1, 1, ToCheck, texts); });
    ReleaseMappingC release;
    release.setSourceDate("2021-01-01T00:00:00Z");
    release.setTargetDate("2022-01-01T00:00:00Z");
    release.addMapping(mapping);
    MappingFile file;
    file.setRelease(release);
    QVERIFY(file.write(path("m.json")));
    const QStringList command = QStringList("explain") + places() + QStringList("--line");
    QCOMPARE(run(command + QStringList("cat/a.prj:1")), ExitStatus::Done);
    const qsizetype from = m_out.indexOf("values of ");
    QCOMPARE(from < 0 ? QString() : m_out.mid(from, m_out.indexOf("candidates\n") - from), said);
    QCOMPARE(run(command + QStringList{"cat/a.prj:1", "--json"}), ExitStatus::Done);
    const QJsonObject ranges =
        QJsonDocument::fromJson(m_out.toUtf8()).object()["ranges"].toObject();
    QCOMPARE(ranges.isEmpty(), said.isEmpty());
    QCOMPARE(ranges["missing"].toArray().size(), said.count("missing") * 2);
    QCOMPARE(ranges["several"].toArray().size(), said.count("several"));
    QCOMPARE(ranges["unknown"].toArray().size(), said.count("unknown"));
}

void tst_ReviewCommands::explainUnassignedLine()
{
    QCOMPARE(run(QStringList("explain") + places() + QStringList{"--line", "cat/b.prj:2"}),
             ExitStatus::Done);
    QVERIFY2(m_out.contains("\nnot assigned\ncandidates\n"), qPrintable(m_out));
}

void tst_ReviewCommands::exportWithReasons()
{
    QCOMPARE(
        run(QStringList("export") + places() + QStringList{"--reasons", "--csv", path("e.csv")}),
        ExitStatus::Done);
    QFile file(path("e.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> rows = file.readAll().split('\n');
    QCOMPARE(rows[0], "source_path,source_version,source_line,target_path,target_line,state,"
                      "conflict,extended,probability,reason");
    QVERIFY2(rows[1].startsWith("cat/a.prj,v1,1,cat/a.prj,1,0,0,,0."), rows[1].constData());
    // Sure lines and lines without target say nothing.
    QCOMPARE(rows[4], "cat/a.prj,v1,4,cat/a.prj,4,1,0,,,");
    QCOMPARE(rows[6], "cat/b.prj,v1,2,,-1,0,0,,,");
    // Without the option the columns are as they were.
    QCOMPARE(run({"export", "--mapping", path("m.json"), "--csv", path("f.csv")}),
             ExitStatus::Done);
    QFile plain(path("f.csv"));
    QVERIFY(plain.open(QIODevice::ReadOnly));
    QVERIFY(plain.readLine().endsWith(",extended\n"));
}

void tst_ReviewCommands::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("line without number")
        << QStringList{"explain", "--line", "cat/a.prj"} << "--line needs PATH:LINE, not cat/a.prj";
    QTest::newRow("line without path")
        << QStringList{"explain", "--line", ":3"} << "--line needs PATH:LINE, not :3";
    QTest::newRow("unknown line") << QStringList{"explain", "--line", "cat/a.prj:99"}
                                  << "cat/a.prj has no line 99";
    QTest::newRow("unknown project") << QStringList{"explain", "--line", "cat/x.prj:1"}
                                     << "the mapping has no project cat/x.prj";
    QTest::newRow("no line") << QStringList{"explain"} << "--line is missing";
    QTest::newRow("unknown project of a review") << QStringList{"review", "--project", "cat/x.prj"}
                                                 << "the mapping has no project cat/x.prj";
}

void tst_ReviewCommands::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    QCOMPARE(run(arguments + places()), ExitStatus::WrongUsage);
    QVERIFY2(m_err.contains(error), qPrintable(m_err));
    QCOMPARE(m_out, QString());
}

void tst_ReviewCommands::rootsFromTheEnvironment()
{
    const QByteArray before = qgetenv("TORMEVA_DATA");
    const auto guard = qScopeGuard([&] { qputenv("TORMEVA_DATA", before); });
    qputenv("TORMEVA_DATA", path("nowhere").toUtf8());
    QCOMPARE(run({"review", "--mapping", path("m.json")}), ExitStatus::InputUnreadable);
    QVERIFY2(m_err.contains("--source and --target tell where the catalogs are"),
             qPrintable(m_err));
    QVERIFY(QDir(path("data")).mkpath("."));
    QVERIFY(QDir().rename(path("r1"), path("data/23d-libs")));
    qputenv("TORMEVA_DATA", path("data").toUtf8());
    QCOMPARE(run({"review", "--mapping", path("m.json"), "--target", path("r2")}),
             ExitStatus::Done);
    QVERIFY(m_out.contains("4 open lines with a proposal differ in 2 ways\n"));
}

void tst_ReviewCommands::nothingIsChanged()
{
    const auto bytes = [this] {
        QFile file(path("m.json"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray before = bytes();
    QVERIFY(!before.isEmpty());
    QCOMPARE(run(QStringList("review") + places()), ExitStatus::Done);
    QCOMPARE(run(QStringList("explain") + places() + QStringList{"--line", "cat/a.prj:3"}),
             ExitStatus::Done);
    QCOMPARE(bytes(), before);
}

QTEST_GUILESS_MAIN(tst_ReviewCommands)
#include "tst_ReviewCommands.moc"
