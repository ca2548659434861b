#include "../support/EnglishTexts.h"
#include "../support/TestCatalog.h"

#include <core/parallel/WorkerPool.h>
#include <core/progress/PProgress.h>
#include <core/progress/PProgressObserverBase.h>
#include <release/assign/ReleaseMappingBuilder.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using VelkRelease::ReleaseMappingBuilder;
using Outcome = ReleaseMappingBuilder::Outcome;

namespace {

const QByteArray Bolts = "size,s,k;M3,5.5,2;M4,7,2.8;M5,8,3.5";
const QByteArray Nuts = "size,s,m;M3,5.5,2.4;M4,7,3.2;M5,8,4.7";

/// Two releases in a directory of their own.
struct Releases
{
    QTemporaryDir directory;
    TestCatalog source{directory.filePath("r1/old")};
    TestCatalog target{directory.filePath("r2/new")};

    [[nodiscard]] ReleaseMappingBuilder::Input input() const
    {
        ReleaseMappingBuilder::Input input;
        input.sourceRoot = directory.filePath("r1");
        input.targetRoot = directory.filePath("r2/");
        input.sourceCatalog = "old";
        input.targetCatalog = "new";
        return input;
    }
};

/// "source: target target", one for each mapping.
QStringList told(const ReleaseMappingC &release)
{
    QStringList texts;
    for (const PrjMappingC &mapping : release.getMappingList()) {
        QString text = mapping.getSourcePath() + ':';
        for (const PrjMappingTargetC &target : mapping.getTargets())
            text += ' ' + target.getTargetPath();
        texts << text;
    }
    return texts;
}

/// What is learned, with one thread and with four; "differs" if that is not the same.
QString learnedOnce(const Releases &releases)
{
    QStringList found;
    for (const int threads : {1, 4}) {
        WorkerPool::instance().setThreads(threads);
        ReleaseMappingBuilder builder(releases.input());
        QStringList texts;
        if (builder.build() != Outcome::Complete)
            texts << "not complete";
        for (const LearnedReplacement &learned : builder.release().getLearned()) {
            QString change = learned.variable + ' ' + learned.before + ' ' + learned.after;
            if (learned.isNumeric())
                change = '*' + learned.factor + '+' + learned.offset;
            texts << QStringLiteral("%1 %2 of %3")
                         .arg(change, QString::number(learned.supports),
                              QString::number(learned.cases));
        }
        found << texts.join("; ");
    }
    WorkerPool::instance().setThreads(0);
    return found[0] == found[1] ? found[0] : QStringLiteral("differs");
}

} // namespace

class tst_ReleaseMappingBuilder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mapsEachOldProject();
    void linesOfOtherProjects_data();
    void linesOfOtherProjects();
    void namesakes_data();
    void namesakes();
    void dissolvedTable();
    void reworkedTable_data();
    void reworkedTable();
    void fullTables_data();
    void fullTables();
    void recordsVersionsAndDates();
    void givenDatesWin();
    void datesCompareInUtc();
    void targetsAreValidAndWithoutLines();
    void brokenSourceTable();
    void brokenTargetTable();
    void wrongCells();
    void tableReferences_data();
    void tableReferences();
    void missingTableFile();
    void projectWithoutTable();
    void missingCatalog_data();
    void missingCatalog();
    void noDate();
    void emptyCatalog();
    void learnsFromItsProjects_data();
    void learnsFromItsProjects();
    void learnsNumbersOfItsProjects_data();
    void learnsNumbersOfItsProjects();
    void learnsWhereColumnsChanged_data();
    void learnsWhereColumnsChanged();
    void learnsFromOneTargetOnly();
    void cancelled();
    void buildsTwice();
};

void tst_ReleaseMappingBuilder::mapsEachOldProject()
{
    Releases releases;
    releases.source.add("b/bolt", Bolts);
    releases.source.add("a/nut", Nuts);
    releases.source.add("a/gone", "x,y;1,2");
    releases.source.add("c/ring", "d1,d2;10,20;12,24;14,28;16,32");
    releases.source.add("c/empty", "d1,d2");
    releases.target.add("b/bolt", Bolts);
    releases.target.add("z/hexnut", Nuts);
    releases.target.add("c/ring-small", "d1,d2;10,20;12,24");
    releases.target.add("c/ring-large", "d1,d2;14,28;16,32");
    releases.target.add("c/new", "t;1");

    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Complete);
    QCOMPARE(builder.messages(), QStringList());
    QCOMPARE(told(builder.release()),
             QStringList({"old/a/gone.prj:", "old/a/nut.prj: new/z/hexnut.prj",
                          "old/b/bolt.prj: new/b/bolt.prj", "old/c/empty.prj:",
                          "old/c/ring.prj: new/c/ring-large.prj new/c/ring-small.prj"}));
    QCOMPARE(builder.counts().same, 1);
    QCOMPARE(builder.counts().moved, 1);
    QCOMPARE(builder.counts().several, 1);
    QCOMPARE(builder.counts().gone, 2);
    QCOMPARE(builder.counts().unreadable, 0);
}

void tst_ReleaseMappingBuilder::linesOfOtherProjects_data()
{
    QTest::addColumn<QByteArray>("before"); // the second table of the old release
    QTest::addColumn<QString>("expected");  // what the first one becomes
    QTest::newRow("moved") << QByteArray("size,s,k;M4,8,1.8")
                           << "old/a/bolt.prj: new/a/bolt.prj "
                              "new/a/stud.prj";
    QTest::newRow("was there before")
        << QByteArray("size,s,k;M3,5.5,2;M4,8,1.8") << "old/a/bolt.prj: new/a/bolt.prj";
}

void tst_ReleaseMappingBuilder::linesOfOtherProjects()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, expected);
    Releases releases;
    releases.source.add("a/bolt", Bolts);
    releases.source.add("a/stud", before);
    releases.target.add("a/bolt", "size,s,k;M4,7,2.8;M5,8,3.5");
    releases.target.add("a/stud", "size,s,k;M3,5.5,2;M4,8,1.8");
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Complete);
    QCOMPARE(told(builder.release()), QStringList({expected, "old/a/stud.prj: new/a/stud.prj"}));
}

void tst_ReleaseMappingBuilder::namesakes_data()
{
    QTest::addColumn<QByteArray>("other"); // the table of the same name elsewhere
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing in common")
        << QByteArray("size,s,k;X3,25.5,22;X4,27,22.8") << "old/b/bolt.prj:";
    QTest::newRow("a line in common")
        << QByteArray("size,s,k;M3,5.5,2;X4,27,22.8") << "old/b/bolt.prj: new/a/bolt.prj";
}

/// What has only its name in common with a table is not taken over by it if another project stood
/// where that table stands.
void tst_ReleaseMappingBuilder::namesakes()
{
    QFETCH(QByteArray, other);
    QFETCH(QString, expected);
    Releases releases;
    releases.source.add("a/bolt", Bolts);
    releases.source.add("b/bolt", other);
    releases.target.add("a/bolt", Bolts);
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Complete);
    QCOMPARE(told(builder.release()), QStringList({"old/a/bolt.prj: new/a/bolt.prj", expected}));
    // A project that moved, though all of its values changed.
    Releases moved;
    moved.source.add("b/bolt", other);
    moved.target.add("a/bolt", Bolts);
    ReleaseMappingBuilder again(moved.input());
    QCOMPARE(again.build(), Outcome::Complete);
    QCOMPARE(told(again.release()), QStringList{"old/b/bolt.prj: new/a/bolt.prj"});
}

/// A table whose lines stand in one that had them before, and, one variable renamed, in a new one.
void tst_ReleaseMappingBuilder::dissolvedTable()
{
    const QByteArray pitches = "size,p;M1,3;M2,4;M3,5;M4,7";
    Releases releases;
    releases.source.add("a/pitch", pitches);
    releases.source.add("a/tap", "size,p;M1,3;M2,4;M3,5;M4,7;M6,8");
    releases.target.add("a/tap", "size,p;M1,3;M2,4;M3,5;M4,7;M6,8");
    releases.target.add("b/threads", "size,coarse,fine;M1,3,1;M2,4,1;M3,5,2;M4,7,;M5,8,;M6,8,");
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Complete);
    QCOMPARE(told(builder.release()),
             QStringList({"old/a/pitch.prj: new/b/threads.prj", "old/a/tap.prj: new/a/tap.prj"}));
}

void tst_ReleaseMappingBuilder::reworkedTable_data()
{
    QTest::addColumn<QByteArray>("more"); // lines of the table that has some like it
    QTest::addColumn<QString>("expected");
    QTest::newRow("no room") << QByteArray() << "old/a/pitch.prj: new/a/threads.prj";
    QTest::newRow("room for half of its lines")
        << QByteArray(";M8,20;M9,22") << "old/a/pitch.prj: new/b/tap.prj";
}

/// A table whose one variable was reworded, and whose other one has another name: it is told by the
/// values of that, and not by the table that only has some lines like it and had them before.
void tst_ReleaseMappingBuilder::reworkedTable()
{
    QFETCH(QByteArray, more);
    QFETCH(QString, expected);
    Releases releases;
    releases.source.add("a/pitch", "size,p;M1,3;M2,4;M3,5;M4,7");
    releases.source.add("b/tap", "size,p;M1,3;M2,4;M3,8;M4,9");
    releases.target.add("a/threads", "size,coarse;X1,3;X2,4;X3,5;X4,7;X5,8");
    releases.target.add("b/tap", "size,p;M1,3;M2,4;M3,8;M4,9" + more);
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Complete);
    QCOMPARE(told(builder.release()), QStringList({expected, "old/b/tap.prj: new/b/tap.prj"}));
}

void tst_ReleaseMappingBuilder::fullTables_data()
{
    using Tables = QList<QPair<QString, QByteArray>>;
    QTest::addColumn<Tables>("before"); // beside a/pitch
    QTest::addColumn<Tables>("after");
    QTest::addColumn<QString>("expected"); // what a/pitch becomes
    // a/pitch has the lines 1 to 6.
    const QByteArray most = "size,p;M1,3;M2,4;M3,5;M4,7;M5,8;M7,9";
    const QByteArray some = "size,p;M2,4;M3,5;M4,7;M9,9";
    const QByteArray others = ";M11,20;M12,21;M13,22;M14,23;M15,24;M16,25";
    const Tables tap{{"b/tap", most}};

    QTest::newRow("nobody's table")
        << tap << Tables{{"b/tap", most}, {"c/rod", some}} << "old/a/pitch.prj: new/c/rod.prj";
    QTest::newRow("no other table") << tap << tap << "old/a/pitch.prj: new/b/tap.prj";
    QTest::newRow("the other has less than half of the lines")
        << tap << Tables{{"b/tap", most}, {"c/rod", "size,p;M2,4;M3,6"}}
        << "old/a/pitch.prj: new/b/tap.prj";
    QTest::newRow("room for both")
        << tap << Tables{{"b/tap", most + others}, {"c/rod", some + others + others}}
        << "old/a/pitch.prj: new/b/tap.prj";
    QTest::newRow("parts of a table that was split")
        << Tables{{"b/tap", most + others}}
        << Tables{{"b/tap-a", most}, {"b/tap-b", "size,p" + others}, {"c/rod", some}}
        << "old/a/pitch.prj: new/c/rod.prj";
    QTest::newRow("a nearer name became it")
        << Tables{{"b/tapl", most}} << Tables{{"b/ta", most}, {"c/rod", some}}
        << "old/a/pitch.prj: new/c/rod.prj";
    const QByteArray half = "size,p;M2,4;M3,5;M4,7;M9,10";
    const QByteArray columns = "size,q;N1,3;N2,4;N3,5;N4,7;N5,8;N6,9";
    const QByteArray nut = "d,m;1,2;2,3";
    QTest::newRow("one with its columns in the folder")
        << Tables{{"a/nut", nut}, {"b/tap", most}}
        << Tables{{"a/nut", nut}, {"a/thread", columns}, {"b/tap", most}, {"c/rod", half}}
        << "old/a/pitch.prj: new/a/thread.prj";
    QTest::newRow("one with its columns in a folder that others left")
        << Tables{{"a/nut", nut}, {"b/tap", most}}
        << Tables{{"a/thread", columns}, {"b/tap", most}, {"c/nut", nut}, {"c/rod", half}}
        << "old/a/pitch.prj: new/c/rod.prj";
    QTest::newRow("no name is nearer")
        << Tables{{"b/lam", most}} << Tables{{"b/pitc", most}, {"c/rod", some}}
        << "old/a/pitch.prj: new/b/pitc.prj";
}

/// A table that is full of the lines of the project that became it is nothing that another one
/// became, even if it has most of its lines.
void tst_ReleaseMappingBuilder::fullTables()
{
    using Tables = QList<QPair<QString, QByteArray>>;
    QFETCH(Tables, before);
    QFETCH(Tables, after);
    Releases releases;
    releases.source.add("a/pitch", "size,p;M1,3;M2,4;M3,5;M4,7;M5,8;M6,9");
    for (const auto &[path, table] : before)
        releases.source.add(path, table);
    for (const auto &[path, table] : after)
        releases.target.add(path, table);
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Complete);
    const QStringList all = told(builder.release());
    QFETCH(QString, expected);
    QVERIFY2(all.contains(expected), qPrintable(all.join('\n')));
}

void tst_ReleaseMappingBuilder::recordsVersionsAndDates()
{
    Releases releases;
    releases.source.add("a/bolt", Bolts, {}, "2021-03-01T08:00:00Z", "2021-02-01T07:00:00Z");
    releases.source.add("a/nut", Nuts, {}, "2020-01-01T00:00:00Z");
    releases.target.add("a/bolt", Bolts, {}, "2024-06-30T23:59:58Z", "2024-06-01T01:02:03Z");

    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Complete);
    const ReleaseMappingC &release = builder.release();
    QCOMPARE(release.getSourceDate(), "2021-03-01T08:00:00Z");
    QCOMPARE(release.getTargetDate(), "2024-06-30T23:59:58Z");
    const PrjMappingC bolt =
        release.findMapping("old/a/bolt.prj", "v210301080000", "v210201070000");
    QVERIFY(bolt.isValid());
    QCOMPARE(bolt.findTarget(0).getTargetVersion(), "v240630235958");
    QCOMPARE(bolt.findTarget(0).getTabVersion(), "v240601010203");
    QVERIFY(release.findMapping("old/a/nut.prj", "v200101000000", "").isValid());
}

void tst_ReleaseMappingBuilder::givenDatesWin()
{
    Releases releases;
    releases.source.add("a/bolt", Bolts, {}, "2021-03-01T08:00:00Z");
    releases.target.add("a/bolt", Bolts, {}, {});
    ReleaseMappingBuilder::Input input = releases.input();
    input.sourceDate = "2000-01-01T00:00:00Z";
    input.targetDate = "2001-01-01T00:00:00Z";
    ReleaseMappingBuilder builder(input);
    QCOMPARE(builder.build(), Outcome::Complete);
    QCOMPARE(builder.release().getSourceDate(), "2000-01-01T00:00:00Z");
    QCOMPARE(builder.release().getTargetDate(), "2001-01-01T00:00:00Z");
}

void tst_ReleaseMappingBuilder::datesCompareInUtc()
{
    Releases releases;
    releases.source.add("a/bolt", Bolts, {}, "2021-03-01T23:30:00-02:00");
    releases.source.add("a/nut", Nuts, {}, "2021-03-02T01:00:00");
    releases.target.add("a/bolt", Bolts);
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Complete);
    QCOMPARE(builder.release().getSourceDate(), "2021-03-02T01:30:00Z");
}

void tst_ReleaseMappingBuilder::targetsAreValidAndWithoutLines()
{
    Releases releases;
    releases.source.add("a/bolt", Bolts);
    releases.target.add("a/bolt", Bolts);
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Complete);
    const PrjMappingC mapping = builder.release().mappingAt(0);
    QCOMPARE(mapping.countTargets(), 1);
    QVERIFY(mapping.findTarget(0).isValid());
    QCOMPARE(mapping.findTarget(0).countLines(), 0);
    QCOMPARE(mapping.getMappingState(), PRJMAPPING::MappingState(PRJMAPPING::StateIncomplete));
}

void tst_ReleaseMappingBuilder::brokenSourceTable()
{
    Releases releases;
    releases.source.add("a/bolt", "size,s;\"M3,5");
    releases.source.add("a/nut", Nuts);
    releases.target.add("a/bolt", Bolts);
    releases.target.add("a/nut", Nuts);
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Incomplete);
    QCOMPARE(builder.messages().size(), 1);
    QVERIFY(builder.messages().first().contains("bolt.csv"));
    QCOMPARE(told(builder.release()),
             QStringList({"old/a/bolt.prj: new/a/bolt.prj", "old/a/nut.prj: new/a/nut.prj"}));
    const auto state = [&builder](int i) {
        return builder.release().mappingAt(i).getMappingState();
    };
    QVERIFY(state(0).testFlag(PRJMAPPING::StateTableError));
    QVERIFY(!state(1).testFlag(PRJMAPPING::StateTableError));
    QCOMPARE(builder.release().mappingAt(0).getSourceVersion(), "v220501100000");
    QCOMPARE(builder.counts().unreadable, 1);
    QCOMPARE(builder.counts().same, 1);
}

void tst_ReleaseMappingBuilder::brokenTargetTable()
{
    Releases releases;
    releases.source.add("a/bolt", Bolts);
    releases.target.add("a/bolt", "size,s;\"M3,5");
    releases.target.add("b/copy", Bolts);
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Incomplete);
    QCOMPARE(builder.messages().size(), 1);
    QCOMPARE(told(builder.release()), QStringList("old/a/bolt.prj: new/a/bolt.prj new/b/copy.prj"));
    QVERIFY(!builder.release().getMappingState().testFlag(PRJMAPPING::StateTableError));
}

void tst_ReleaseMappingBuilder::wrongCells()
{
    Releases releases;
    releases.source.add("a/bolt", "size,L;M3,10..");
    releases.source.writeFile("a/bolt.json", R"({"fields":[{"name":"L","kind":"range"}]})");
    releases.target.add("a/bolt", "size,L;M3,10");
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), ReleaseMappingBuilder::Outcome::Complete);
    QCOMPARE(builder.messages().size(), 1);
    QVERIFY2(builder.messages().first().contains("bolt.csv: row 2"),
             qPrintable(builder.messages().first()));
    QCOMPARE(builder.counts().unreadable, 0);
}

void tst_ReleaseMappingBuilder::tableReferences_data()
{
    QTest::addColumn<QByteArray>("reference");
    QTest::newRow("beside the project") << QByteArray("bolt.json");
    QTest::newRow("backslashes") << QByteArray(R"(..\a\bolt.json)");
    QTest::newRow("from the catalog root") << QByteArray("old/a/bolt.json");
}

void tst_ReleaseMappingBuilder::tableReferences()
{
    QFETCH(QByteArray, reference);
    Releases releases;
    releases.source.add("a/bolt", "size,s;M3,5.5");
    releases.source.writeFile(
        "a/bolt.prj", "[PROJECT]\nDATE = 2022-05-01T10:00:00Z\nSACHM = " + reference + '\n');
    releases.target.add("a/bolt", "size,s;M3,5.5");
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), ReleaseMappingBuilder::Outcome::Complete);
    QCOMPARE(builder.messages(), QStringList());
    QCOMPARE(builder.counts().same, 1);
}

void tst_ReleaseMappingBuilder::missingTableFile()
{
    Releases releases;
    releases.source.add("a/bolt", Bolts);
    QVERIFY(QFile::remove(releases.directory.filePath("r1/old/a/bolt.json")));
    releases.target.add("a/bolt", Bolts);
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Incomplete);
    QVERIFY(builder.messages().first().contains("bolt.json"));
    QVERIFY(builder.release().getMappingState().testFlag(PRJMAPPING::StateTableError));
}

void tst_ReleaseMappingBuilder::projectWithoutTable()
{
    Releases releases;
    releases.source.addWithoutTable("a/bolt");
    releases.target.addWithoutTable("b/bolt");
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Complete);
    QCOMPARE(told(builder.release()), QStringList("old/a/bolt.prj: new/b/bolt.prj"));
    QCOMPARE(builder.release().mappingAt(0).getTabVersion(), QString());
}

void tst_ReleaseMappingBuilder::missingCatalog_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("message");
    QTest::newRow("old") << "nothing"
                         << "new"
                         << "/r1/nothing: there is no such catalog";
    QTest::newRow("new") << "old"
                         << "nothing"
                         << "/r2/nothing: there is no such catalog";
}

void tst_ReleaseMappingBuilder::missingCatalog()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    QFETCH(QString, message);
    Releases releases;
    releases.source.add("a/bolt", Bolts);
    releases.target.add("a/bolt", Bolts);
    ReleaseMappingBuilder::Input input = releases.input();
    input.sourceCatalog = source;
    input.targetCatalog = target;
    ReleaseMappingBuilder builder(input);
    QCOMPARE(builder.build(), Outcome::Unreadable);
    QCOMPARE(builder.messages(), QStringList(releases.directory.path() + message));
    QCOMPARE(builder.release().countMappings(), 0);
}

void tst_ReleaseMappingBuilder::noDate()
{
    Releases releases;
    releases.source.add("a/bolt", Bolts, {}, {});
    releases.target.add("a/bolt", Bolts, {}, "yesterday");
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Unreadable);
    QCOMPARE(builder.messages(),
             QStringList({releases.directory.filePath("r1/old") + ": no project has a date",
                          releases.directory.filePath("r2/new") + ": no project has a date"}));
}

void tst_ReleaseMappingBuilder::emptyCatalog()
{
    Releases releases;
    releases.target.add("a/bolt", Bolts);
    ReleaseMappingBuilder::Input input = releases.input();
    input.sourceDate = "2000-01-01T00:00:00Z";
    ReleaseMappingBuilder builder(input);
    QCOMPARE(builder.build(), Outcome::Complete);
    QCOMPARE(builder.release().countMappings(), 0);
}

void tst_ReleaseMappingBuilder::learnsFromItsProjects_data()
{
    QTest::addColumn<int>("projects");
    QTest::addColumn<int>("staying"); // of the lines of the first, those that kept the old value
    QTest::addColumn<QString>("learned");
    QTest::newRow("one project") << 1 << 0 << "";
    QTest::newRow("two") << 2 << 0 << "coat zn A2K 8 of 8";
    QTest::newRow("nine") << 9 << 0 << "coat zn A2K 36 of 36";
    QTest::newRow("one of three contradicts") << 3 << 6 << "coat zn A2K 8 of 12";
    QTest::newRow("one of two contradicts") << 2 << 6 << "";
    QTest::newRow("one in half of its lines") << 2 << 3 << "coat zn A2K 6 of 8";
}

/// In each of the projects the coat of six lines got another name; one line is as it was, and one
/// is another altogether.
void tst_ReleaseMappingBuilder::learnsFromItsProjects()
{
    QFETCH(int, projects);
    QFETCH(int, staying);
    Releases releases;
    for (int project = 0; project < projects; ++project) {
        QByteArray before = "size,s,coat;M90,91,none;M92,93,red";
        QByteArray after = "size,s,coat;M90,91,none;M94,95,blue";
        for (int line = 0; line < 6; ++line) {
            const bool stays = project == 0 && line < staying;
            const QByteArray size = ";M" + QByteArray::number(line + 1) + ',' +
                                    QByteArray::number(7 * line + 20 * project);
            before += size + ", zn";
            after += size + (stays ? ",zn" : ",A2K");
        }
        releases.source.add("a/bolt" + QString::number(project), before);
        releases.target.add("a/bolt" + QString::number(project), after);
    }
    QTEST(learnedOnce(releases), "learned");
}

void tst_ReleaseMappingBuilder::learnsNumbersOfItsProjects_data()
{
    QTest::addColumn<QString>("coats"); // of each project's lines, old>new
    QTest::addColumn<QString>("learned");
    const auto row = [](const char *name, const char *coats, const char *learned) {
        QTest::newRow(name) << QString(coats) << QString(learned);
    };
    row("factor", "1>25.4,2>50.8|3>76.2", "*25.4+0 3 of 3");
    row("rounded factor", "1>0.03937008|3>0.1181102", "*0.03937+0 2 of 2");
    row("factor in texts", "M1x9>M25.4x9|M3x8>M76.2x8", "*25.4+0 2 of 2");
    row("factor of zero", "0>0,1>25.4|3>76.2", "*25.4+0 2 of 2");
    row("factor, numbers that stay", "1>25.4|3>76.2|5>5,6>6", "");
    row("difference", "1>5|7>11", "*1+4 2 of 2");
    row("in one project", "1>25.4,2>50.8|5>6", "");
    row("a project counts as four lines", "1>25.4,2>50.8,3>76.2,4>101.6,5>127,6>152.4|7>177.8",
        "*25.4+0 5 of 5");
    row("numbers that stay in some", "1>25.4,2>50.8|3>76.2|8>8", "*25.4+0 3 of 4");
    row("no number", "1>25.4|3>76.2|x>x,y>y", "*25.4+0 2 of 2");
    row("neither", "1>5|7>14", "");
}

/// Each line is as it was but for its coat, and no two projects have the same coats.
void tst_ReleaseMappingBuilder::learnsNumbersOfItsProjects()
{
    QFETCH(QString, coats);
    Releases releases;
    int line = 0;
    int project = 0;
    for (const QString &its : coats.split('|')) {
        QByteArray before = "size,s,coat";
        QByteArray after = before;
        for (const QString &coat : its.split(',')) {
            ++line;
            const QByteArray size =
                ";M" + QByteArray::number(line) + ',' + QByteArray::number(7 * line) + ',';
            before += size + coat.section('>', 0, 0).toUtf8();
            after += size + coat.section('>', 1, 1).toUtf8();
        }
        const QString name = "a/bolt" + QString::number(++project);
        releases.source.add(name, before);
        releases.target.add(name, after);
    }
    QTEST(learnedOnce(releases), "learned");
}

/// Where nearly every line has another value in some variables, the others tell which it is.
void tst_ReleaseMappingBuilder::learnsWhereColumnsChanged_data()
{
    QTest::addColumn<QByteArray>("others"); // of the second new line of each project
    QTest::addColumn<QString>("learned");
    QTest::newRow("others stay") << QByteArray("M2,12,22,32") << "coat zn A2K 4 of 4; *2+0 4 of 4";
    QTest::newRow("one line is like another") << QByteArray("M1,11,21,31") << "";
    QTest::newRow("one line is another")
        << QByteArray("M8,12,22,32") << "coat zn A2K 2 of 2; *2+0 2 of 2";
}

void tst_ReleaseMappingBuilder::learnsWhereColumnsChanged()
{
    QFETCH(QByteArray, others);
    Releases releases;
    int number = 100;
    for (const char *name : {"a/bolt", "a/nut"}) {
        const auto next = [&](int times) {
            return ',' + QByteArray::number(times * number) + ',';
        };
        QByteArray before = "size,s,k,d,l,coat;M1,11,21,31" + next(1) + "zn";
        QByteArray after = "size,s,k,d,l,coat;M1,11,21,31" + next(2) + "A2K";
        number += 7;
        before += ";M2,12,22,32" + next(1) + "zn";
        after += ';' + others + next(2) + "A2K";
        number += 13;
        releases.source.add(name, before);
        releases.target.add(name, after);
    }
    QTEST(learnedOnce(releases), "learned");
}

/// Numbers are written with a point; where two tables can take the lines over, none says how
/// values change.
void tst_ReleaseMappingBuilder::learnsFromOneTargetOnly()
{
    Releases releases;
    const QByteArray fields =
        R"({"fields": [{"name": "k", "type": "number", "kind": "plain", "decimalChar": ","}]})";
    for (const char *name : {"a/bolt", "a/nut", "a/pin"}) {
        releases.source.add(name, "size,s,k;M3,5,\"2,5\";M4,7,\"2,5\"");
        const QByteArray half = "size,s,k;M3,5,\"2,75\"";
        const QByteArray rest = "size,s,k;M4,7,\"2,75\"";
        if (name == QByteArray("a/pin")) {
            releases.target.add("b/pin-1", half);
            releases.target.add("b/pin-2", rest);
            releases.target.writeFile("b/pin-1.json", fields);
            releases.target.writeFile("b/pin-2.json", fields);
        } else {
            releases.target.add(name, half + rest.mid(rest.indexOf(';')));
            releases.target.writeFile(QString(name) + ".json", fields);
        }
        releases.source.writeFile(QString(name) + ".json", fields);
    }
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Complete);
    QCOMPARE(builder.release().mappingAt(2).countTargets(), 2);
    const QList<LearnedReplacement> learned{{"k", {}, {}, 4, 4, "1", "0.25"},
                                            {"k", {}, {}, 4, 4, "1.1", "0"},
                                            {"k", "2.5", "2.75", 4, 4}};
    QCOMPARE(builder.release().getLearned(), learned);
}

void tst_ReleaseMappingBuilder::cancelled()
{
    Releases releases;
    releases.source.add("a/bolt", Bolts);
    releases.target.add("a/bolt", Bolts);
    PProgress outer(0, 1, 1.0, true);
    outer.requestCancel();
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Cancelled);
    QCOMPARE(builder.release().countMappings(), 0);
}

void tst_ReleaseMappingBuilder::buildsTwice()
{
    Releases releases;
    releases.source.add("a/bolt", "size,s;\"M3,5");
    releases.target.add("a/bolt", Bolts);
    ReleaseMappingBuilder builder(releases.input());
    QCOMPARE(builder.build(), Outcome::Incomplete);
    releases.source.add("a/bolt", Bolts);
    QCOMPARE(builder.build(), Outcome::Complete);
    QCOMPARE(builder.messages(), QStringList());
    QCOMPARE(builder.release().countMappings(), 1);
    QCOMPARE(builder.counts().unreadable, 0);
}

QTEST_GUILESS_MAIN(tst_ReleaseMappingBuilder)
#include "tst_ReleaseMappingBuilder.moc"
