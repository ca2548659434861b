#include "MergeCase.h"

#include <release/merge/ClashGroups.h>
#include <release/merge/mergeReleases.h>

#include <QTest>

using MergeCase::release;
using MergeCase::text;
using MergeCase::texts;
using VelkRelease::mergeReleases;
using VelkRelease::MergeResult;
using VelkRelease::MergeSettled;

class tst_mergeReleases : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void merges_data();
    void merges();
    void unchangedSide_data();
    void unchangedSide();
    void localChange();
    void settledLines();
    void stateFlags();
    void dates();
    void learned_data();
    void learned();
    void replacements_data();
    void replacements();
    void groups();
    void mirrored();
};

void tst_mergeReleases::merges_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("ours");
    QTest::addColumn<QString>("theirs");
    QTest::addColumn<QString>("merged");
    QTest::addColumn<QString>("clashes");
    QTest::addColumn<QString>("local");
    QTest::addColumn<QString>("online");

    const auto row = [](const char *name, const char *base, const char *ours, const char *theirs,
                        const char *merged, const char *clashes = "", const char *local = "",
                        const char *online = "") {
        QTest::newRow(name) << base << ours << theirs << merged << clashes << local << online;
    };
    row("lines of both", "p: a(1>1,2>2,3>3)", "p: a(1>1v,2>2,3>3)", "p: a(1>1,2>2,3>9v)",
        "p: a(1>1v,2>2,3>9v)", "", "", "p 0 3 a>9v");
    row("one line, differently", "p: a(1>1c)", "p: a(1>2v)", "p: a(1>3v)", "p: a(1>3v!)",
        "p line 1: a>1c | a>2v | a>3v", "p 0 1 a>2v", "p 0 1 a>3v");
    row("one line, to two targets", "p: a() b() -(1>xc)", "p: a(1>5v) b()", "p: a() b(1>6v)",
        "p: a() b(1>6v!)", "p line 1: ->xc | a>5v | b>6v", "p 0 1 a>5v", "p 0 1 b>6v");
    row("one line, equally", "p: a(1>1c)", "p: a(1>2v)", "p: a(1>2v)", "p: a(1>2v)", "", "",
        "p 0 1 a>2v");
    row("confirmed and reassigned alike", "p: a(1>1c)", "p: a(1>2)", "p: a(1>2v)", "p: a(1>2v)", "",
        "", "p 0 1 a>2v");
    row("the more careful state", "p: a(1>1)", "p: a(1>2)", "p: a(1>2c)", "p: a(1>2c)", "", "",
        "p 0 1 a>2c");
    row("text of one, state of the other", "p: a(1>1c)", "p: a(1>1c*{L=1}->2)", "p: a(1>1v)",
        "p: a(1>1v*{L=1}->2)", "", "", "p 0 1 a>1v");
    row("two texts", "p: a(1>1)", "p: a(1>1*A)", "p: a(1>1*B)", "p: a(1>1!*B)",
        "p line 1: a>1 | a>1*A | a>1*B", "p 0 1 a>1*A", "p 0 1 a>1*B");
    row("their text only", "p: a(1>1)", "p: a(1>1,2>2)", "p: a(1>1*B)", "p: a(1>1*B,2>2)", "", "",
        "p 11 1 a>1*B");
    row("newly assigned, removed", "p: a(1>1,3>3) -(2>xc)", "p: a(1>1,3>4) -(2>xc)",
        "p: a(2>2,3>3) -(1>x)", "p: a(2>2,3>4) -(1>x)", "", "", "p 1 2 a>2,p 2 1 ->x");
    row("expired against assigned", "p: a(1>1c)", "p: a() -(1>xv)", "p: a(1>2v)", "p: a(1>2v!)",
        "p line 1: a>1c | ->xv | a>2v", "p 0 1 ->xv", "p 0 1 a>2v");
    row("their line is gone altogether", "p: a(1>1)", "p: a(1>2v)", "p: a()", "p: a() -(1>xc!)",
        "p line 1: a>1 | a>2v | ?", "p 0 1 a>2v", "p 0 1 ->xc");
    row("entries in two targets", "p: a(1>1) b(1>9)", "p: a(1>1*A) b(1>9)", "p: a(1>1) b(1>9*B)",
        "p: a(1>1*A) b(1>9*B)", "", "", "p 11 1 a>1");
    row("targets of both", "p: a(1>1)", "p: a(1>1) c(2>2)", "p: b(3>3) a(1>1)",
        "p: b(3>3) a(1>1) c(2>2)", "", "", "p 1 3 b>3,p 4 b");
    row("two new targets at one place", "p: a()", "p: a() c()", "p: a() b()", "p: a() b() c()", "",
        "", "p 4 b");
    row("the same new target", "p: a()", "p: a() b(1>1)", "p: a() b(1>1)", "p: a() b(1>1)", "", "",
        "p 1 1 b>1,p 4 b");
    row("without target stays last", "p: a() -(1>xc)", "p: a() -(1>xc,2>xc)", "p: a() b() -(1>xc)",
        "p: a() b() -(1>xc,2>xc)", "", "", "p 4 b");
    row("removed target", "p: a(1>1) b(2>2)", "p: a(1>1v) b(2>2)", "p: a(1>1) -(2>xc)",
        "p: a(1>1v) -(2>xc)", "", "", "p 2 2 ->xc,p 3 b");
    row("we decided in what they removed", "p: a(1>1) b() -(2>xc)", "p: a(1>1) b(2>2v)",
        "p: a(1>1) -(2>xc)", "p: a(1>1) b(2>2v)", "p target removed b by theirs", "", "p 3 b");
    row("they decided in what we removed", "p: a(1>1) b() -(2>xc)", "p: a(1>1) -(2>xc)",
        "p: a(1>1) b(2>2v)", "p: a(1>1) b(2>2v)", "p target removed b by ours", "p 3 b",
        "p 1 2 b>2v");
    row("order of one", "p: a() b() c()", "p: b() a() c()", "p: a() b() c() d()",
        "p: b() a() c() d()", "", "", "p 4 d");
    row("two orders", "p: a() b() c()", "p: b() a() c()", "p: a() c() b()", "p: a() c() b()",
        "p order", "p 7", "p 7");
    row("conditions of one", "p: a[X.EQ.1]()", "p: a[X.EQ.2]()", "p: a[X.EQ.1](1>1)",
        "p: a[X.EQ.2](1>1)", "", "", "p 1 1 a>1");
    row("two conditions", "p: a[X.EQ.1]()", "p: a[X.EQ.2]()", "p: a[X.EQ.3]()", "p: a[X.EQ.3]()",
        "p conditions a", "p 9 a", "p 9 a");
    row("versions of a target", "p: a@v1()", "p: a@v2()", "p: a@v1(1>1)", "p: a@v2(1>1)", "", "",
        "p 1 1 a>1");
    row("two versions of a target", "p: a@v1()", "p: a@v2()", "p: a@v3()", "p: a@v3()",
        "p target version a", "p 13 a", "p 13 a");
    row("one path twice", "p: a[X.EQ.1]() a[X.EQ.2]()", "p: a[X.EQ.1](1>1) a[X.EQ.2]()",
        "p: a[X.EQ.2](2>2)", "p: a[X.EQ.1](1>1) a[X.EQ.2](2>2)", "p target removed a by theirs", "",
        "p 1 2 a>2,p 3 a");
    row("projects of both", "p: a()", "p: a(); q: a()", "p: a(); r: a()", "p: a(); q: a(); r: a()",
        "", "", "r 6");
    row("removed project", "p: a(); q: a(1>1)", "p: a(1>1); q: a(1>1)", "p: a()", "p: a(1>1)", "",
        "", "q 5");
    row("we changed what they removed", "p: a(); q: a(1>1)", "p: a(); q: a(1>1v)", "p: a()",
        "p: a(); q: a(1>1v)", "q removed by theirs", "", "q 5");
    row("they changed what we removed", "p: a(); q: a(1>1)", "p: a()", "p: a(); q: a(1>1v)",
        "p: a(); q: a(1>1v)", "q removed by ours", "q 5", "q 0 1 a>1v");
    row("new version of a project", "p@v1: a(1>1)", "p@v2: a(1>1)", "p@v1: a(1>1v)",
        "p@v2: a(1>1v)", "", "", "p 0 1 a>1v");
    row("two new versions of a project", "p@v1: a()", "p@v2: a()", "p@v3: a()", "p@v3: a()",
        "p version", "p 12", "p 12");
    row("two versions beside one another", "p@v1: a(1>1); p@v2: a(1>1)",
        "p@v1: a(1>1); p@v2: a(1>1v)", "p@v1: a(1>1v); p@v2: a(1>1)",
        "p@v1: a(1>1v); p@v2: a(1>1v)", "", "", "p 0 1 a>1v");
    row("conflict marks", "p: a(1>1!,2>2)", "p: a(1>1,2>2)", "p: a(1>1v!,2>2!)", "p: a(1>1v,2>2!)",
        "", "", "p 0 1 a>1v!,p 0 2 a>2!");
}

void tst_mergeReleases::merges()
{
    QFETCH(const QString, base);
    QFETCH(const QString, ours);
    QFETCH(const QString, theirs);
    QFETCH(const QString, merged);
    QFETCH(const QString, clashes);
    QFETCH(const QString, local);
    QFETCH(const QString, online);

    const MergeResult result = mergeReleases(release(base), release(ours), release(theirs));
    QCOMPARE(text(result.release), merged);
    QCOMPARE(texts(result.clashes).join(','), clashes);
    QCOMPARE(texts(result.local).join(','), local);
    QCOMPARE(texts(result.online).join(','), online);
    for (const PrjMappingC &mapping : result.release.getMappingList()) {
        PrjMappingC updated = mapping;
        updated.updateMappingState();
        QCOMPARE(mapping.getMappingState(), updated.getMappingState());
    }
}

void tst_mergeReleases::unchangedSide_data()
{
    merges_data();
}

void tst_mergeReleases::unchangedSide()
{
    QFETCH(const QString, base);
    QFETCH(const QString, ours);
    QFETCH(const QString, theirs);
    for (const QString &side : {ours, theirs}) {
        MergeResult result = mergeReleases(release(base), release(side), release(base));
        QCOMPARE(text(result.release), text(release(side)));
        QCOMPARE(texts(result.clashes) + texts(result.local) + texts(result.online), QStringList());
        result = mergeReleases(release(base), release(base), release(side));
        QCOMPARE(text(result.release), text(release(side)));
        QCOMPARE(texts(result.clashes) + texts(result.local), QStringList());
    }
}

void tst_mergeReleases::localChange()
{
    VelkRelease::MergeOptions options;
    options.author = "anna";
    options.time = "2024-02-03T10:00:00Z";
    const MergeResult result =
        mergeReleases(release("p: a(1>1c*A) b()"), release("p: a(1>2v*B) b()"),
                      release("p: a() b(1>3v)"), options);
    QCOMPARE(result.local.size(), 1);
    QCOMPARE(result.local.firstKey(), (QPair<QString, QString>("2023-01-01", "p")));
    const MappingChange change = result.local.first();
    QCOMPARE(change.text1, "anna");
    QCOMPARE(change.text2, "2024-02-03T10:00:00Z");
    QCOMPARE(change.text3, "A");
    QCOMPARE(change.text4, "B");
    QCOMPARE(change.targetLine, change.otherTargetLine);
    QCOMPARE(change.targetLine.getTargetLineId(), 2);
    QCOMPARE(change.target.getTargetPath(), "a");
    QCOMPARE(change.otherTarget.getTargetPath(), "b");
    QCOMPARE(text(change.otherMapping), "p: a() b(1>3v)");
    QVERIFY(!change.flag);
}

void tst_mergeReleases::settledLines()
{
    VelkRelease::MergeOptions options;
    QStringList asked;
    options.sameLines = [&](const QString &target, int line, int other) {
        asked << QStringLiteral("%1 %2 %3").arg(target).arg(line).arg(other);
        return line == 2 && other == 3;
    };
    const MergeResult result = mergeReleases(release("p: a(1>1c,2>1c,3>1c,4>1c,5>1c)"),
                                             release("p: a(1>2v,2>5v,3>7v,4>1c*T,5>xv)"),
                                             release("p: a(1>3,2>6v,3>7v,4>1v,5>6v)"), options);
    QCOMPARE(text(result.release), "p: a(1>3v,2>6v!,3>7v,4>1v*T,5>6v!)");
    QCOMPARE(asked, QStringList({"a 2 3", "a 5 6"}));
    QStringList settled;
    for (const MergeSettled &entry : result.settled)
        settled << QStringLiteral("%1 %2 ").arg(entry.line).arg(int(entry.reason)) +
                       text(entry.ours) + " " + text(entry.theirs);
    QCOMPARE(settled, QStringList({"1 1 a>2v a>3", "3 0 a>7v a>7v", "4 2 a>1c*T a>1v"}));
}

void tst_mergeReleases::stateFlags()
{
    using namespace PRJMAPPING;
    const auto with = [](const QString &cases, MappingState state) {
        ReleaseMappingC changed = release(cases);
        PrjMappingC mapping = changed.mappingAt(0);
        mapping.setMappingState(mapping.getMappingState() | state);
        changed.addMapping(mapping);
        return changed;
    };
    const MergeResult result = mergeReleases(with("p: a(1>1,2>2)", StateTableError | StateReserved),
                                             with("p: a(1>1v,2>2)", StateTableError | StateUsable),
                                             with("p: a(1>1,2>2v)", StateReserved));
    QCOMPARE(result.release.mappingAt(0).getMappingState(), StateUsable | StateVerified);
    QCOMPARE(texts(result.online), QStringList({"p 0 2 a>2v", "p 8"}));
    QVERIFY(result.clashes.isEmpty());
}

void tst_mergeReleases::dates()
{
    const auto dated = [](const char *date) {
        ReleaseMappingC changed = release("p: a()");
        changed.setTargetDate(date);
        return changed;
    };
    QCOMPARE(mergeReleases(dated("1"), dated("2"), dated("1")).release.getTargetDate(), "2");
    const MergeResult result = mergeReleases(dated("1"), dated("2"), dated("3"));
    QCOMPARE(result.release.getTargetDate(), "3");
    QCOMPARE(texts(result.clashes), QStringList({" date"}));
}

void tst_mergeReleases::learned_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<int>("ours");
    QTest::addColumn<int>("theirs");
    QTest::addColumn<int>("merged");
    QTest::newRow("the same") << 1 << 1 << 1 << 1;
    QTest::newRow("we created it anew") << 1 << 2 << 1 << 2;
    QTest::newRow("they did") << 1 << 1 << 2 << 2;
    QTest::newRow("both did") << 1 << 2 << 3 << 3;
}

void tst_mergeReleases::learned()
{
    const auto release = [](int supports) {
        ReleaseMappingC made;
        made.setLearned({{"A", "7", "8", supports, 9}});
        return made;
    };
    QFETCH(int, base);
    QFETCH(int, ours);
    QFETCH(int, theirs);
    const MergeResult result =
        VelkRelease::mergeReleases(release(base), release(ours), release(theirs));
    QTEST(result.release.getLearned().value(0).supports, "merged");
}

void tst_mergeReleases::replacements_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("ours");
    QTest::addColumn<QString>("theirs");
    QTest::addColumn<QString>("merged");
    QTest::newRow("nobody changed them") << "ab"
                                         << "ab"
                                         << "ab"
                                         << "ab";
    QTest::newRow("we agreed") << "a"
                               << "ab"
                               << "a"
                               << "ab";
    QTest::newRow("they agreed") << "a"
                                 << "a"
                                 << "ab"
                                 << "ab";
    QTest::newRow("both agreed") << "a"
                                 << "abc"
                                 << "adc"
                                 << "adcb";
    QTest::newRow("we withdrew") << "ab"
                                 << "b"
                                 << "ab"
                                 << "b";
    QTest::newRow("they withdrew") << "ab"
                                   << "ab"
                                   << "b"
                                   << "b";
    QTest::newRow("another order") << "ab"
                                   << "ab"
                                   << "ba"
                                   << "ba";
}

void tst_mergeReleases::replacements()
{
    const auto agreed = [](const QString &values) {
        QList<AgreedReplacement> replacements;
        for (const QChar value : values)
            replacements.append({"f", "D", value, value.toUpper(), {}, {}});
        ReleaseMappingC changed = release("p: a()");
        changed.setReplacements(replacements);
        return changed;
    };
    QFETCH(QString, base);
    QFETCH(QString, ours);
    QFETCH(QString, theirs);
    QFETCH(QString, merged);
    const MergeResult result = mergeReleases(agreed(base), agreed(ours), agreed(theirs));
    QCOMPARE(result.release.getReplacements(), agreed(merged).getReplacements());
    QVERIFY(result.clashes.isEmpty());
}

void tst_mergeReleases::groups()
{
    const MergeResult result = mergeReleases(release("p: a(1>1c,2>2c,3>3c,4>4c); q: a(1>1c)"),
                                             release("p: a(1>5v,2>6v,4>7v) -(3>xv); q: a(1>2v)"),
                                             release("p: a(4>4) b(1>5,2>6,3>7); q: a(1>5)"));
    QStringList groups;
    for (const auto &group : VelkRelease::groupClashes(result.clashes)) {
        QString line = group.sourcePath + QStringLiteral(" %1%2 %3%4:")
                                              .arg(int(group.ours.kind))
                                              .arg(group.ours.target)
                                              .arg(int(group.theirs.kind))
                                              .arg(group.theirs.target);
        for (const int clash : group.clashes)
            line += QStringLiteral(" %1").arg(result.clashes[clash].line);
        groups << line;
    }
    QCOMPARE(groups, QStringList({"p 2a 0b: 1 2", "p 4 0b: 3", "p 2a 0a: 4", "q 2a 0a: 1"}));
}

void tst_mergeReleases::mirrored()
{
    const QString base = "p: a(1>1c,2>2c) b(3>3)";
    const QString one = "p: a(1>5v,2>2v) b(3>4) d()";
    const QString other = "p: a(1>6v,2>2c) c() b(3>4v)";
    const MergeResult here = mergeReleases(release(base), release(one), release(other));
    const MergeResult there = mergeReleases(release(base), release(other), release(one));
    QCOMPARE(text(here.release), "p: a(1>6v!,2>2v) c() b(3>4v) d()");
    QCOMPARE(text(there.release), "p: a(1>5v!,2>2v) c() b(3>4v) d()");
}

QTEST_GUILESS_MAIN(tst_mergeReleases)
#include "tst_mergeReleases.moc"
