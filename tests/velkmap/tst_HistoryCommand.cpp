#include "../support/EnglishTexts.h"

#include <release/history/DecisionHistory.h>
#include <release/history/JournalRow.h>
#include <tools/velkmap/Commands.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <sys/stat.h>

using velkmap::ExitStatus;
using VelkRelease::DecisionHistory;

namespace {

QByteArray rows(const QStringList &records)
{
    QByteArray bytes;
    for (const QString &record : records)
        bytes += VelkRelease::JournalRow::frame(record.toUtf8());
    return bytes;
}

QString opened(const QString &user, const QString &time, const QString &date = "20220101")
{
    return QString(R"({"kind":"opened","time":"2026-11-%1Z","user":"%2","host":"ws1",)"
                   R"("sourceDate":"%3","targetDate":"20230101"})")
        .arg(time, user, date);
}

/// \a targets as in the journal.
QString change(int step, const QString &targets)
{
    return QString(R"({"kind":"change","step":%1,"project":["cat/a.prj","v1","t","t"],)"
                   R"("known":[true,true],"state":[0,0],"count":3,"targets":[%2]})")
        .arg(QString::number(step), targets);
}

QString step(int number, const QString &time, const QString &text, const QString &origin = "edit")
{
    return QString(R"({"kind":"step","time":"2026-11-%2Z","step":%1,"origin":"%4","text":"%3"})")
        .arg(QString::number(number), time, text, origin);
}

QString ended(const char *kind, bool modified = false)
{
    return QString(R"({"kind":"%1","time":"2026-11-01T12:00:00.000Z","modified":%2})")
        .arg(QLatin1String(kind), modified ? "true" : "false");
}

QString reason(const QString &time, const QString &lines, const QString &text)
{
    return QString(R"({"kind":"reason","time":"2026-11-%1Z","note":{"project":"cat/a.prj",)"
                   R"("version":"v1","lines":[%2],"reason":"%3"}})")
        .arg(time, lines, text);
}

const QString toBolt = R"({"at":[0,0],"path":"new/bolt.prj","lines":[[17,16,0,17,2]]})";

} // namespace

/// What the journals of a mapping file tell of who decided what, and the command that prints it.
class tst_HistoryCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingIsThere();
    void tells_data();
    void tells();
    void reasonsGoToTheirDecisions();
    void discardedIsNotTold();
    void severalFiles();
    void damage();
    void prints();
    void wrongUsage_data();
    void wrongUsage();
    void mergeTakesBothAlong();

private:
    struct Result
    {
        ExitStatus status;
        QString out;
        QString err;
    };
    static Result run(const QStringList &arguments)
    {
        Result result;
        QTextStream out(&result.out);
        QTextStream err(&result.err);
        result.status = velkmap::run(arguments, out, err);
        return result;
    }
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    [[nodiscard]] QStringList told(const QString &name = "m.json") const
    {
        DecisionHistory history;
        QString error;
        if (!history.read(path(name), &error))
            return {error};
        QStringList lines;
        for (const DecisionHistory::Decision &each : history.decisions())
            lines.append(QString("%1 %2: %3 -> %4 %5 %6%7")
                             .arg(each.author, QString::number(each.line),
                                  DecisionHistory::text(each.former),
                                  DecisionHistory::text(each.next), each.action, each.reason,
                                  each.isSaved ? "" : "?"));
        return lines;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_HistoryCommand::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    write("m.json", "{}");
}

void tst_HistoryCommand::nothingIsThere()
{
    QCOMPARE(told(), QStringList());
    const Result result = run({"history", "--mapping", path("m.json")});
    QCOMPARE(result.status, ExitStatus::Done);
    QCOMPARE(result.out + result.err, "");
    QCOMPARE(run({"history", "--mapping", path("no.json")}).status, ExitStatus::InputUnreadable);
}

void tst_HistoryCommand::tells_data()
{
    QTest::addColumn<QStringList>("records");
    QTest::addColumn<QStringList>("expected");
    const QString time = "01T10:00:00.000";
    QTest::newRow("confirmed") << QStringList{change(1, toBolt), step(1, time, "ok")}
                               << QStringList{"anna 17: new/bolt.prj:16 -> new/bolt.prj:17 ok ?"};
    QTest::newRow("from one target to another")
        << QStringList{change(1, R"({"at":[0,0],"path":"new/a.prj","lines":[[5,[4,1,"",false],)"
                                 R"(null]]},{"at":[1,1],"path":"new/b.prj","lines":[[5,null,)"
                                 R"([9,2,"{L=1} -> 10",false]]]})"),
                       step(1, time, "x")}
        << QStringList{"anna 5: new/a.prj:4 -> new/b.prj:9 {L=1} -> 10 x ?"};
    QTest::newRow("no successor")
        << QStringList{change(1, R"({"at":[0,0],"path":"new/a.prj","lines":[[5,[4,1,"",false],)"
                                 R"(null]]},{"at":[2,2],"path":"","lines":[[5,null,[-1,2,"",)"
                                 R"(false]]]})"),
                       step(1, time, "x")}
        << QStringList{"anna 5: new/a.prj:4 -> - x ?"};
    QTest::newRow("several changes of one step")
        << QStringList{change(1, toBolt),
                       change(1, R"({"at":[0,0],"path":"new/bolt.prj","lines":[[17,17,2,3,2],)"
                                 R"([2,1,0,1,2]]})"),
                       step(1, time, "x")}
        << QStringList{"anna 2: new/bolt.prj:1 -> new/bolt.prj:1 x ?",
                       "anna 17: new/bolt.prj:16 -> new/bolt.prj:3 x ?"};
    QTest::newRow("there and back in one step")
        << QStringList{change(1, toBolt),
                       change(1, R"({"at":[0,0],"path":"new/bolt.prj","lines":[[17,17,2,16,0]]})"),
                       step(1, time, "x")}
        << QStringList();
    QTest::newRow("another target in its place")
        << QStringList{change(1, R"({"at":[0,0],"before":{"path":"new/a.prj"},"after":)"
                                 R"({"path":"new/c.prj"},"lines":[[5,4,1,4,2]]})"),
                       step(1, time, "x")}
        << QStringList{"anna 5: new/a.prj:4 -> new/c.prj:4 x ?"};
    QTest::newRow("marks are none")
        << QStringList{change(1, toBolt),
                       change(2, R"({"at":[0,0],"path":"n","lines":[[3,1,0,1,2]]})"),
                       step(2, time, "x")}
        << QStringList{"anna 3: n:1 -> n:1 x ?"};
    QTest::newRow("saved") << QStringList{change(1, toBolt), step(1, time, "ok"), ended("saved"),
                                          change(2, toBolt), step(2, time, "again")}
                           << QStringList{"anna 17: new/bolt.prj:16 -> new/bolt.prj:17 ok ",
                                          "anna 17: new/bolt.prj:16 -> new/bolt.prj:17 again ?"};
    QTest::newRow("records of no sense")
        << QStringList{R"({"kind":"change","project":5,"targets":[{"lines":[7,[]]}]})",
                       step(0, time, "x"), R"({"kind":"reason"})", "[1]"}
        << QStringList();
}

void tst_HistoryCommand::tells()
{
    QFETCH(QStringList, records);
    write("m.json.journal", rows(QStringList{opened("anna", "01T09:00:00.000")} + records));
    QTEST(told(), "expected");
}

void tst_HistoryCommand::reasonsGoToTheirDecisions()
{
    write("m.json.journal",
          rows({opened("anna", "01T09:00:00.000"), reason("01T09:30:00.000", "17", "before all"),
                change(1, toBolt), step(1, "01T10:00:00.000", "ok"),
                reason("01T10:01:00.000", "17, 18", "merged into"), ended("closed"),
                opened("bert", "02T09:00:00.000"), reason("02T10:00:00.000", "17", "I doubt it"),
                ended("closed", true)}));
    QCOMPARE(told(), QStringList({"anna 17:  ->   before all",
                                  "anna 17: new/bolt.prj:16 -> new/bolt.prj:17 ok merged into",
                                  "anna 18:  ->   merged into", "bert 17:  ->   I doubt it"}));
}

void tst_HistoryCommand::discardedIsNotTold()
{
    write("m.json.journal",
          rows({opened("anna", "01T09:00:00.000"), change(1, toBolt),
                step(1, "01T10:00:00.000", "kept"), ended("saved"), change(2, toBolt),
                step(2, "01T11:00:00.000", "discarded"), ended("closed", true)}));
    QCOMPARE(told(), QStringList{"anna 17: new/bolt.prj:16 -> new/bolt.prj:17 kept "});
}

/// By their time, whatever the order of the files; copies of a session count once.
void tst_HistoryCommand::severalFiles()
{
    const QStringList first{opened("anna", "01T09:00:00.000"), change(1, toBolt),
                            step(1, "01T10:00:00.000", "first"), ended("closed")};
    const QStringList second{opened("bert", "02T09:00:00.000"), change(1, toBolt),
                             step(1, "02T10:00:00.000", "second"), ended("closed")};
    write("m.json.journal", rows(second));
    write("m.json.journal.alt-20261101-120000Z", rows(first));
    write("m.json.verlauf", rows(first + second.mid(0, 3)));
    write("m.json.journalx", "not one");
    const QStringList both{"anna 17: new/bolt.prj:16 -> new/bolt.prj:17 first ",
                           "bert 17: new/bolt.prj:16 -> new/bolt.prj:17 second "};
    QCOMPARE(told(), both);
    // Another copy takes over what it does not have, once.
    write("other.json.journal", rows(second));
    QString error;
    for (int i = 0; i < 2; ++i)
        QVERIFY2(DecisionHistory::adopt(path("m.json"), path("other.json"), &error),
                 qPrintable(error));
    QCOMPARE(told("other.json"), both);
    QFile adopted(DecisionHistory::adoptedFile(path("other.json")));
    QVERIFY(adopted.open(QIODevice::ReadOnly));
    QCOMPARE(adopted.readAll(), rows(first));
}

void tst_HistoryCommand::damage()
{
    const QByteArray good = rows({opened("anna", "01T09:00:00.000"), change(1, toBolt),
                                  step(1, "01T10:00:00.000", "ok"), ended("saved")});
    write("m.json.journal", good + "deadbeef {\"kind\":\"closed\"}\n" + good.left(30));
    QCOMPARE(told(), QStringList{"anna 17: new/bolt.prj:16 -> new/bolt.prj:17 ok "});
    const Result result = run({"history", "--mapping", path("m.json")});
    QCOMPARE(result.status, ExitStatus::Done);
    QCOMPARE(result.err, "velkmap history: rows of the journal that cannot be read: 2\n");
    // What a killed program left of a row does not take the next one along.
    write("o.json.verlauf", good.left(30));
    QString error;
    QVERIFY(DecisionHistory::adopt(path("m.json"), path("o.json"), &error));
    QCOMPARE(told("o.json"), told());
    QVERIFY(QFile::remove(path("m.json.journal")));
    QCOMPARE(::mkfifo(qPrintable(path("m.json.journal")), 0600), 0);
    QVERIFY(told().first().contains("it is no regular file"));
    QCOMPARE(run({"history", "--mapping", path("m.json")}).status, ExitStatus::InputUnreadable);
}

void tst_HistoryCommand::prints()
{
    write("m.json.journal",
          rows({opened("anna", "01T09:00:00.000"), change(1, toBolt),
                step(1, "01T10:00:00.000", "1 line, confirmed"), ended("saved"),
                change(2, R"({"at":[0,0],"path":"","lines":[[3,null,[-1,2,"",false]]]})"),
                step(2, "01T11:00:00.000", "x", "undo"),
                reason("01T11:01:00.000", "3", "a \\\"b\\\"")}));
    const QStringList command{"history", "--mapping", path("m.json")};
    QCOMPARE(run(command).out,
             "2026-11-01T10:00:00Z anna cat/a.prj:17: new/bolt.prj:16 -> new/bolt.prj:17 (1 line, "
             "confirmed)\n"
             "2026-11-01T11:00:00Z anna cat/a.prj:3: nothing -> - (x), reason: a \"b\", not "
             "saved\n");
    const QString csv = run(command + QStringList{"--csv"}).out;
    QCOMPARE(csv,
             "time,author,host,release,project,version,line,former,former_state,next,next_state,"
             "action,origin,reason,saved\n"
             "2026-11-01T10:00:00.000Z,anna,ws1,20220101,cat/a.prj,v1,17,new/bolt.prj:16,toCheck,"
             "new/bolt.prj:17,verified,\"1 line, confirmed\",edit,,1\n"
             "2026-11-01T11:00:00.000Z,anna,ws1,20220101,cat/a.prj,v1,3,,,-,verified,x,undo,"
             "\"a \"\"b\"\"\",0\n");
    const auto count = [&](const QStringList &more) {
        return run(command + more).out.count('\n');
    };
    QCOMPARE(count({"--project", "cat/a.prj"}), 2);
    QCOMPARE(count({"--project", "cat/a.prj", "--line", "3"}), 1);
    QCOMPARE(count({"--project", "cat/b.prj"}), 0);
    QCOMPARE(count({"--release", "20220101"}), 2);
    QCOMPARE(count({"--release", "20210101"}), 0);
}

void tst_HistoryCommand::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("no file") << QStringList{};
    QTest::newRow("line alone") << QStringList{"--mapping", "m", "--line", "3"};
    QTest::newRow("no number") << QStringList{"--mapping", "m", "--project", "p", "--line", "x"};
}

void tst_HistoryCommand::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QCOMPARE(run(QStringList{"history"} + arguments).status, ExitStatus::WrongUsage);
}

void tst_HistoryCommand::mergeTakesBothAlong()
{
    for (const char *name : {"base.json", "ours.json", "theirs.json"})
        write(name, "");
    const auto session = [](const QString &user, const QString &time) {
        return rows({opened(user, time), change(1, toBolt), step(1, time, user), ended("closed")});
    };
    write("ours.json.journal", session("anna", "01T09:00:00.000"));
    write("theirs.json.journal", session("bert", "02T09:00:00.000"));
    const QStringList both{"anna 17: new/bolt.prj:16 -> new/bolt.prj:17 anna ",
                           "bert 17: new/bolt.prj:16 -> new/bolt.prj:17 bert "};
    for (const char *out : {"out.json", "ours.json"}) {
        const Result result =
            run({"merge", "--base", path("base.json"), "--ours", path("ours.json"), "--theirs",
                 path("theirs.json"), "--out", path(out)});
        QVERIFY2(result.status == ExitStatus::Done, qPrintable(result.err));
        QCOMPARE(told(out), both);
    }
    // The merged file stands without them.
    QVERIFY(QFile::remove(path("theirs.json.journal")));
    QCOMPARE(::mkfifo(qPrintable(path("theirs.json.journal")), 0600), 0);
    const Result result = run({"merge", "--base", path("base.json"), "--ours", path("base.json"),
                               "--theirs", path("theirs.json"), "--out", path("out2.json")});
    QCOMPARE(result.status, ExitStatus::Done);
    QVERIFY2(result.err.contains("is not taken along"), qPrintable(result.err));
}

QTEST_GUILESS_MAIN(tst_HistoryCommand)
#include "tst_HistoryCommand.moc"
