#include "../support/EnglishTexts.h"
#include "../support/TestCatalog.h"

#include <geomcore/records/MappingFile.h>
#include <release/chain/carryDecisions.h>
#include <release/history/CarriedHistory.h>
#include <release/history/JournalRow.h>
#include <tools/velkmap/Commands.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

using namespace PRJMAPPING;
using velkmap::ExitStatus;

namespace {

ReleaseMappingC releaseOf(const QString &from, const QString &to, const PrjMappingC &mapping)
{
    ReleaseMappingC release;
    release.setSourceDate(from);
    release.setTargetDate(to);
    release.addMapping(mapping);
    return release;
}

} // namespace

/// Decisions on the lines of an old release, made for an earlier new one, in the mapping to a later
/// one.
class tst_CarriedDecisions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void lines_data();
    void lines();
    void conditionsLeaveNothingCertain();
    void sharedTargetLinesAreProposed();
    void missingTargetIsAdded();
    void otherVersionsStay();
    void numbersAddUp();
    void command();
    void commandNotesIt();
    void commandListsAndRefuses();

private:
    ExitStatus run(const QStringList &arguments)
    {
        m_out.clear();
        m_err.clear();
        QTextStream out(&m_out);
        QTextStream err(&m_err);
        return velkmap::run(arguments, out, err);
    }
    ExitStatus assign(const QStringList &more)
    {
        return run(QStringList{"assign", "--mapping", path("now.json"), "--source", path("r0"),
                               "--target", path("r2")} +
                   more);
    }
    [[nodiscard]] QString path(const QString &name) const { return m_dir->filePath(name); }
    void writeCatalogs();
    [[nodiscard]] PrjMappingC result() const
    {
        MappingFile file;
        return file.read(path("now.json")) ? file.releases().value(0).mappingAt(0) : PrjMappingC();
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_out;
    QString m_err;
};

void tst_CarriedDecisions::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
}

void tst_CarriedDecisions::lines_data()
{
    QTest::addColumn<int>("before"); // state of the line that leads to the earlier release
    QTest::addColumn<int>("next");   // state of that line on the way to the later one
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("expected");
    const QString open = "-:1>-1/0";
    QTest::newRow("confirmed, then certain") << 2 << 1 << open << "0:1>21/1";
    QTest::newRow("confirmed, then confirmed") << 2 << 2 << open << "0:1>21/1";
    QTest::newRow("confirmed, then to be checked") << 2 << 0 << open << "0:1>21/0";
    QTest::newRow("nobody confirmed it") << 1 << 1 << open << open;
    QTest::newRow("to be checked") << 0 << 1 << open << open;
    QTest::newRow("nothing is known of the line now") << 2 << 1 << ""
                                                      << "0:1>21/1";
    QTest::newRow("another proposal") << 2 << 1 << "0:1>30/0"
                                      << "0:1>21/1";
    QTest::newRow("the same proposal") << 2 << 0 << "0:1>21/0"
                                       << "0:1>21/0";
    QTest::newRow("certain now") << 2 << 1 << "0:1>30/1"
                                 << "0:1>30/1";
    QTest::newRow("confirmed now") << 2 << 1 << "0:1>30/2"
                                   << "0:1>30/2";
    QTest::newRow("confirmed as expired now") << 2 << 1 << "-:1>-1/2"
                                              << "-:1>-1/2";
    QTest::newRow("expired in between") << -2 << 1 << open << open;
    QTest::newRow("conflict now") << 2 << 1 << "0:1>30/0!"
                                  << "0:1>30/0";
    QTest::newRow("range text now") << 2 << 1 << "0:1>30/0:text"
                                    << "0:1>30/0";
    QTest::newRow("conflict before") << 12 << 1 << open << open;
}

void tst_CarriedDecisions::lines()
{
    QFETCH(int, before);
    QFETCH(int, next);
    QFETCH(QString, now);
    QFETCH(QString, expected);
    PrjMappingC former = mappingOf("a/x.prj", {"b/y.prj", ""});
    if (before < 0)
        enter(former, 1, 1, -1, Verified);
    else
        enter(former, 0, 1, 11, CheckState(before % 10));
    if (before >= 10)
        former.changeTarget(0,
                            [](PrjMappingTargetC &target) { target.setLineConflicted(1, true); });
    PrjMappingC following = mappingOf("b/y.prj", {"c/z.prj"});
    enter(following, 0, 11, 21, CheckState(next));
    PrjMappingC mapping = mappingOf("a/x.prj", {"c/z.prj", ""});
    if (now.startsWith('0'))
        enter(mapping, 0, 1, now.mid(4, 2).toInt(), CheckState(now.mid(7, 1).toInt()),
              now.section(':', 2));
    else if (!now.isEmpty())
        enter(mapping, 1, 1, -1, CheckState(now.right(1).toInt()));
    if (now.endsWith('!'))
        mapping.changeTarget(0,
                             [](PrjMappingTargetC &target) { target.setLineConflicted(1, true); });
    ReleaseMappingC release = releaseOf("2022", "2024", mapping);
    const auto carried = VelkRelease::carryDecisions(release, releaseOf("2022", "2023", former),
                                                     releaseOf("2023", "2024", following))
                             .lines;
    QCOMPARE(entriesOf(release.mappingAt(0)), expected);
    const bool changes = expected.contains(">21/");
    QCOMPARE(carried.size(), changes ? 1U : 0U);
    if (changes) {
        const VelkRelease::CarriedLine line{"a/x.prj", "v1", 1,
                                            "c/z.prj", 21,   expected.endsWith("/1")};
        QVERIFY(carried.front() == line);
        QCOMPARE(release.mappingAt(0).getNotFoundTarget(), -1); // nothing is left in it
    }
}

void tst_CarriedDecisions::conditionsLeaveNothingCertain()
{
    PrjMappingC former = mappingOf("a/x.prj", {"b/y.prj"});
    enter(former, 0, 1, 11, Verified);
    PrjMappingC following = mappingOf("b/y.prj", {"c/z.prj"});
    enter(following, 0, 11, 21, Mapped);
    PrjMappingC mapping = mappingOf("a/x.prj", {"c/z.prj"});
    addCondition(mapping, 0, "L .GT. 5");
    ReleaseMappingC release = releaseOf("2022", "2024", mapping);
    (void)VelkRelease::carryDecisions(release, releaseOf("2022", "2023", former),
                                      releaseOf("2023", "2024", following));
    QCOMPARE(entriesOf(release.mappingAt(0)), QString("0:1>21/0"));
}

void tst_CarriedDecisions::sharedTargetLinesAreProposed()
{
    PrjMappingC former = mappingOf("a/x.prj", {"b/y.prj"});
    enter(former, 0, 1, 11, Verified);
    enter(former, 0, 2, 12, Verified);
    enter(former, 0, 3, 12, Verified);
    PrjMappingC following = mappingOf("b/y.prj", {"c/z.prj"});
    enter(following, 0, 11, 21, Mapped);
    enter(following, 0, 12, 22, Mapped);
    PrjMappingC mapping = mappingOf("a/x.prj", {"c/z.prj"});
    enter(mapping, 0, 7, 21, Mapped);
    ReleaseMappingC release = releaseOf("2022", "2024", mapping);
    (void)VelkRelease::carryDecisions(release, releaseOf("2022", "2023", former),
                                      releaseOf("2023", "2024", following));
    QCOMPARE(entriesOf(release.mappingAt(0)), QString("0:1>21/0 0:2>22/0 0:3>22/0 0:7>21/1"));
}

void tst_CarriedDecisions::missingTargetIsAdded()
{
    PrjMappingC former = mappingOf("a/x.prj", {"b/y.prj"});
    enter(former, 0, 1, 11, Verified);
    PrjMappingC following = mappingOf("b/y.prj", {"c/other.prj"});
    enter(following, 0, 11, 21, Mapped);
    PrjMappingC mapping = mappingOf("a/x.prj", {"c/z.prj", ""});
    enter(mapping, 1, 1, -1, ToCheck);
    enter(mapping, 1, 2, -1, ToCheck);
    ReleaseMappingC release = releaseOf("2022", "2024", mapping);
    (void)VelkRelease::carryDecisions(release, releaseOf("2022", "2023", former),
                                      releaseOf("2023", "2024", following));
    const PrjMappingC result = release.mappingAt(0);
    QCOMPARE(result.countTargets(), 3);
    QCOMPARE(result.targetAt(1).getTargetPath(), QString("c/other.prj"));
    QVERIFY(result.targetAt(1).isValid());
    QCOMPARE(entriesOf(result), QString("1:1>21/1 -:2>-1/0"));
}

void tst_CarriedDecisions::otherVersionsStay()
{
    PrjMappingC former = mappingOf("a/x.prj", {"b/y.prj"});
    former.setSourceVersion("v0");
    enter(former, 0, 1, 11, Verified);
    PrjMappingC following = mappingOf("b/y.prj", {"c/z.prj"});
    enter(following, 0, 11, 21, Mapped);
    ReleaseMappingC release = releaseOf("2022", "2024", mappingOf("a/x.prj", {"c/z.prj"}));
    QVERIFY(VelkRelease::carryDecisions(release, releaseOf("2022", "2023", former),
                                        releaseOf("2023", "2024", following))
                .lines.empty());
    QCOMPARE(entriesOf(release.mappingAt(0)), QString());
}

/// A line of each kind, and one that is not confirmed.
void tst_CarriedDecisions::numbersAddUp()
{
    PrjMappingC former = mappingOf("a/x.prj", {"b/y.prj", ""});
    for (const int line : {1, 2, 3, 4, 5, 6})
        enter(former, 0, line, 10 + line, line == 6 ? Mapped : Verified, line == 5 ? "{L=1}" : "");
    enter(former, 1, 7, -1, Verified);
    enter(former, 0, 8, 18, Verified);
    former.changeTarget(0, [](PrjMappingTargetC &target) { target.setLineConflicted(8, true); });
    PrjMappingC unknown = mappingOf("a/other.prj", {"b/y.prj"});
    enter(unknown, 0, 1, 19, Verified);
    PrjMappingC following = mappingOf("b/y.prj", {"c/z.prj"});
    for (const int line : {11, 12, 13, 15, 16, 18, 19})
        enter(following, 0, line, 10 + line, Mapped);
    PrjMappingC mapping = mappingOf("a/x.prj", {"c/z.prj"});
    enter(mapping, 0, 3, 40, Mapped);
    ReleaseMappingC release = releaseOf("2022", "2024", mapping);
    ReleaseMappingC before = releaseOf("2022", "2023", former);
    before.addMapping(unknown);
    const VelkRelease::CarryOutcome outcome =
        VelkRelease::carryDecisions(release, before, releaseOf("2023", "2024", following));
    QCOMPARE(outcome.confirmed, 8);
    QCOMPARE(outcome.lines.size(), 3U); // 1, 2 and 5
    QCOMPARE(outcome.settled, 1);       // 3
    QCOMPARE(outcome.unfollowed, 1);    // 4
    QCOMPARE(outcome.clashing, 1);      // 8
    QCOMPARE(outcome.expired, 1);       // 7
    QCOMPARE(outcome.unknown, 1);
}

/// Two lines that got wholly other names in the earlier release; one changed once more.
void tst_CarriedDecisions::writeCatalogs()
{
    const TestCatalog old(path("r0"));
    old.add("cat/a", "Name;alpha;beta;gamma", {}, "2022-05-01T10:00:00Z");
    const TestCatalog earlier(path("r1"));
    earlier.add("cat/a", "Name;erste;zweite;gamma", {}, "2023-05-01T10:00:00Z");
    const TestCatalog later(path("r2"));
    later.add("cat/a", "Name;gamma;zweite;erste", {}, "2024-05-01T10:00:00Z");
    const auto create = [this](const QString &target, const QString &mapping) {
        return run({"create", "--source", path("r0"), "--target", path(target), "--catalog", "cat",
                    "--mapping", path(mapping)});
    };
    QCOMPARE(create("r1", "former.json"), ExitStatus::Done);
    QCOMPARE(create("r2", "now.json"), ExitStatus::Done);
    MappingFile file;
    QVERIFY(file.read(path("former.json")));
    ReleaseMappingC former = file.releases().value(0);
    PrjMappingC mapping = former.mappingAt(0);
    QCOMPARE(mapping.countTargets(), 1);
    enter(mapping, 0, 1, 1, Verified);
    enter(mapping, 0, 2, 2, Verified);
    former.addMapping(mapping);
    file.setRelease(former);
    QVERIFY(file.write(path("former.json")));
}

void tst_CarriedDecisions::command()
{
    writeCatalogs();
    QCOMPARE(assign({}), ExitStatus::Done);
    QCOMPARE(entriesOf(result()), QString("0:3>1/1 -:1>-1/0 -:2>-1/0"));
    QCOMPARE(assign({"--former", path("former.json"), "--former-target", path("r1"), "--carried",
                     path("carried.csv")}),
             ExitStatus::Done);
    QCOMPARE(m_err, QString());
    QVERIFY2(!m_out.contains("do not"), qPrintable(m_out));
    QVERIFY2(m_out.contains("2 lines take over what was confirmed for 2023"), qPrintable(m_out));
    QVERIFY2(m_out.contains(": 2 assigned, 0 proposed\n"), qPrintable(m_out));
    QVERIFY2(m_out.contains("3 lines: 3 mapped"), qPrintable(m_out));
    QCOMPARE(entriesOf(result()), QString("0:1>3/1 0:2>2/1 0:3>1/1"));
    QFile list(path("carried.csv"));
    QVERIFY(list.open(QIODevice::ReadOnly));
    QCOMPARE(list.readAll(),
             QByteArray("source project,source line,target project,target line,state\n"
                        "cat/a.prj,1,cat/a.prj,3,assigned\ncat/a.prj,2,cat/a.prj,2,assigned\n"));
}

/// For the editor's marks and for who asks, whatever stands in the file's own journal.
void tst_CarriedDecisions::commandNotesIt()
{
    writeCatalogs();
    QCOMPARE(assign({}), ExitStatus::Done);
    const QByteArray crashed = VelkRelease::JournalRow::frame(R"({"kind":"opened","user":"anna"})");
    QFile journal(path("now.json.journal"));
    QVERIFY(journal.open(QIODevice::ReadWrite) && journal.write(crashed) == crashed.size());
    journal.close();
    QVERIFY(QFile::link(path("now.json"), path("link.json")));
    const QStringList arguments{
        "assign",   "--mapping", path("link.json"),   "--source",        path("r0"), "--target",
        path("r2"), "--former",  path("former.json"), "--former-target", path("r1")};
    QCOMPARE(run(arguments), ExitStatus::Done);
    QCOMPARE(m_err, QString());
    QVERIFY(journal.open(QIODevice::ReadOnly));
    QCOMPARE(journal.readAll(), crashed);

    QString error;
    const auto steps = VelkRelease::readCarriedSteps(path("now.json"), &error);
    QVERIFY2(steps, qPrintable(error));
    QCOMPARE(steps->size(), 1U);
    QCOMPARE(steps->front().former, path("former.json"));
    QCOMPARE(steps->front().formerTarget, "2023-05-01T10:00:00Z");
    const QDate today = QDateTime::currentDateTimeUtc().date();
    QVERIFY(qAbs(steps->front().time.date().daysTo(today)) <= 1);
    MappingFile file;
    QVERIFY(file.read(path("now.json")));
    const ReleaseMappingC release = file.releases().value(0);
    const VelkRelease::CarriedLines lines(*steps, release.getSourceDate());
    QCOMPARE(lines.linesOf(release.mappingAt(0)), (std::vector<int>{1, 2}));

    QCOMPARE(run({"history", "--mapping", path("now.json")}), ExitStatus::Done);
    const QString row = " cat/a.prj:%1: nothing -> cat/a.prj:%2 (Decisions taken over from "
                        "former.json: 2)\n";
    QVERIFY2(m_out.contains(row.arg("1", "3")) && m_out.contains(row.arg("2", "2")),
             qPrintable(m_out));
    // Nothing more to take over, nothing more to note.
    QCOMPARE(run(arguments), ExitStatus::Done);
    QCOMPARE(VelkRelease::readCarriedSteps(path("now.json"), &error)->size(), 1U);
}

void tst_CarriedDecisions::commandListsAndRefuses()
{
    writeCatalogs();
    const QStringList former{"--former", path("former.json"), "--former-target", path("r1")};
    QCOMPARE(assign({"--former", path("former.json")}), ExitStatus::WrongUsage);
    QCOMPARE(assign({"--carried", path("c.csv")}), ExitStatus::WrongUsage);
    QCOMPARE(assign({"--former-target", path("r1")}), ExitStatus::WrongUsage);
    QCOMPARE(assign(former + QStringList{"--shard", "1/2", "--out", path("part")}),
             ExitStatus::WrongUsage);
    QCOMPARE(assign({"--former", path("none.json"), "--former-target", path("r1")}),
             ExitStatus::InputUnreadable);
    QCOMPARE(assign({"--former", path("former.json"), "--former-target", path("none")}),
             ExitStatus::InputUnreadable);
    QCOMPARE(assign({"--former", path("now.json"), "--former-target", path("r2")}),
             ExitStatus::InputUnreadable);
    QVERIFY2(m_err.contains("to another release than"), qPrintable(m_err));
    QCOMPARE(assign(former + QStringList{"--carried", path("none/c.csv")}),
             ExitStatus::ResultUnwritable);
    // What was carried over is certain now.
    QCOMPARE(assign(former), ExitStatus::Done);
    QVERIFY2(m_out.contains("2 of 2 confirmed lines do not: 2 are settled already, 0 have no line "
                            "to follow, 0 were confirmed as expired, 0 are of unknown projects, 0 "
                            "were in conflict"),
             qPrintable(m_out));
    QCOMPARE(entriesOf(result()), QString("0:1>3/1 0:2>2/1 0:3>1/1"));
}

QTEST_GUILESS_MAIN(tst_CarriedDecisions)
#include "tst_CarriedDecisions.moc"
