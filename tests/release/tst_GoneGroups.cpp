#include "../support/TestCatalog.h"

#include <release/pattern/DifferencePatterns.h>

#include <QTest>

#include <set>

using namespace VelkRelease;
using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;
using Place = DifferencePatterns::Place;

namespace {

const GoneGroup::Words goneWords{"folder %1", "project %1", "table %1", "%1 lost %2", "unlike %1"};

QStringList goneTextsOf(const DifferencePatterns &patterns)
{
    QStringList texts;
    for (const int pattern : patterns.rankedGone())
        texts << QString("%1%2|%3")
                     .arg(patterns.isDoubtful(pattern) ? "? " : "",
                          patterns.gone(pattern)->text(goneWords))
                     .arg(patterns.numbers(pattern).lines);
    return texts;
}

/// Projects as "PATH", then their lines: "assigned", "table" for one that has a line in the second
/// target, which is not there any more, "conflict", else the values that no new line has, "A=x
/// B=y", and "?" for doubt.
struct GoneRelease
{
    explicit GoneRelease(const QList<QStringList> &projects)
    {
        for (const QStringList &project : projects) {
            PrjMappingC mapping = mappingOf(project.front(), {"new/a.prj", "new/dropped.prj", ""});
            DifferencePatterns::Read read;
            for (int line = 1; line < project.size(); ++line)
                add(mapping, read, line, project[line].split(' ', Qt::SkipEmptyParts));
            release.addMapping(mapping);
            reads.push_back(std::move(read));
        }
    }

    ReleaseMappingC release;
    std::vector<DifferencePatterns::Read> reads;

private:
    static void add(PrjMappingC &mapping, DifferencePatterns::Read &read, int line,
                    QStringList signs)
    {
        if (signs.contains("assigned")) {
            enter(mapping, 0, line, line, Mapped);
            return;
        }
        OpenPair pair{line, -1, -1, signs.removeAll("?") > 0 ? 0.5 : 1.0, {}, true, {}};
        pair.gone.emplace();
        if (signs.contains("conflict")) {
            enter(mapping, 2, line, -1, ToCheck);
            mapping.changeTarget(
                2, [line](PrjMappingTargetC &target) { target.setLineConflicted(line, true); });
            return;
        }
        if (signs.contains("table")) {
            enter(mapping, 1, line, 7, ToCheck);
            pair.target = 1;
            pair.targetLine = 7;
            pair.gone->isTableGone = true;
            signs.clear();
        } else {
            enter(mapping, 2, line, -1, ToCheck);
        }
        for (const QString &word : signs)
            pair.gone->lost.push_back({word.section('=', 0, 0), word.section('=', 1)});
        read.pairs.push_back(std::move(pair));
    }
};

} // namespace

/// Open lines without successor among the patterns of a release.
class tst_GoneGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goneGroups_data();
    void goneGroups();
    void goneLinesFollowDecisions();
};

void tst_GoneGroups::goneGroups_data()
{
    QTest::addColumn<QList<QStringList>>("projects");
    QTest::addColumn<QStringList>("groups");
    using Projects = QList<QStringList>;
    const QStringList other{"cat/z.prj", "assigned"};
    QTest::newRow("value of two lines")
        << Projects{{"cat/a.prj", "assigned", "W=x", "W=x"}} << QStringList{"W lost x|2"};
    QTest::newRow("one line's value is no group")
        << Projects{{"cat/a.prj", "assigned", "W=x", "W=y"}} << QStringList{"unlike cat|2"};
    QTest::newRow("value over projects")
        << Projects{{"cat/a.prj", "assigned", "W=x"}, {"cat/b/c.prj", "assigned", "W=x"}}
        << QStringList{"W lost x|2"};
    QTest::newRow("another variable is another value")
        << Projects{{"cat/a.prj", "assigned", "W=x", "V=x"}} << QStringList{"unlike cat|2"};
    QTest::newRow("value that most lines lost")
        << Projects{{"cat/a.prj", "assigned", "V=1 W=x", "V=1 W=x", "V=2 W=x"}}
        << QStringList{"W lost x|3"};
    QTest::newRow("first variable of two alike")
        << Projects{{"cat/a.prj", "assigned", "V=1 W=x", "V=1 W=x"}} << QStringList{"V lost 1|2"};
    QTest::newRow("value that stands for one line alone")
        << Projects{{"cat/a.prj", "assigned", "V=1", "V=1", "V=1 W=x", "W=x"}}
        << QStringList{"V lost 1|3", "unlike cat|1"};
    QTest::newRow("whole project, whatever its values")
        << Projects{{"cat/a.prj", "W=x", "W=x", "?"}, other}
        << QStringList{"project cat/a.prj|2", "? project cat/a.prj|1"};
    QTest::newRow("whole folder is the largest one")
        << Projects{{"cat/f/a.prj", ""}, {"cat/f/g/b.prj", ""}, {"cat/f/g/c.prj", ""}, other}
        << QStringList{"folder cat/f|3"};
    QTest::newRow("folder of one project")
        << Projects{{"cat/f/a.prj", ""}, other} << QStringList{"project cat/f/a.prj|1"};
    QTest::newRow("one assigned line saves the folder")
        << Projects{{"cat/f/a.prj", ""}, {"cat/f/b.prj", "", "assigned"}, other}
        << QStringList{"project cat/f/a.prj|1", "unlike cat/f|1"};
    QTest::newRow("a conflict saves the project")
        << Projects{{"cat/a.prj", "", "conflict"}, other} << QStringList{"unlike cat|1"};
    QTest::newRow("backslashes part folders")
        << Projects{{"cat\\f\\a.prj", ""}, {"cat/f/b.prj", ""}, other}
        << QStringList{"folder cat/f|2"};
    QTest::newRow("lines of a vanished project")
        << Projects{{"cat/a.prj", "table", "table", "W=x", "W=x"}}
        << QStringList{"table new/dropped.prj|2", "W lost x|2"};
    QTest::newRow("doubt is kept apart")
        << Projects{{"cat/a.prj", "assigned", "W=x", "W=x ?", "W=x", "?", ""}}
        << QStringList{"W lost x|2", "? W lost x|1", "? unlike cat|1", "unlike cat|1"};
}

/// Each line is in one group, and its values count nowhere else.
void tst_GoneGroups::goneGroups()
{
    QFETCH(QList<QStringList>, projects);
    QFETCH(QStringList, groups);
    const GoneRelease made(projects);
    const DifferencePatterns found(made.release, made.reads);
    QCOMPARE(goneTextsOf(found), groups);
    QVERIFY(found.ranked().empty());
    QCOMPARE(found.openLines(), 0);
    int lines = 0;
    std::set<Place> places;
    for (const int pattern : found.rankedGone()) {
        lines += found.numbers(pattern).lines;
        for (const Place &place : found.places(pattern))
            QVERIFY(places.insert(place).second);
    }
    int read = 0;
    for (const DifferencePatterns::Read &each : made.reads)
        read += int(each.pairs.size());
    QCOMPARE(lines, read);
    QCOMPARE(int(places.size()), read);
    QCOMPARE(found.goneLines(), read);
    QVERIFY(found.leastSure().empty());
}

void tst_GoneGroups::goneLinesFollowDecisions()
{
    const GoneRelease made({{"cat/a.prj", "assigned", "W=x", "W=x", "W=y", "table"}});
    DifferencePatterns found(made.release, made.reads);
    const QStringList all{"W lost x|2", "unlike cat|1", "table new/dropped.prj|1"};
    QCOMPARE(goneTextsOf(found), all);
    const PrjMappingC before = made.release.mappingAt(0);
    // Confirmed; a target line by hand; a proposal into another project.
    PrjMappingC mapping = before;
    enter(mapping, 2, 2, -1, Verified);
    found.setMapping(0, mapping);
    QCOMPARE(goneTextsOf(found),
             (QStringList{"W lost x|1", "unlike cat|1", "table new/dropped.prj|1"}));
    mapping.changeTarget(2, [](PrjMappingTargetC &target) { target.removeLineId(3); });
    enter(mapping, 0, 3, 3, Verified);
    mapping.changeTarget(1, [](PrjMappingTargetC &target) { target.removeLineId(5); });
    enter(mapping, 0, 5, 5, ToCheck);
    found.setMapping(0, mapping);
    QCOMPARE(goneTextsOf(found), QStringList{"unlike cat|1"});
    QCOMPARE(found.goneLines(), 1);
    QCOMPARE(found.openLines(), 1);
    QCOMPARE(found.pendingLines(), 1);
    // Without a proposal again: it has to be looked at anew.
    mapping.changeTarget(0, [](PrjMappingTargetC &target) { target.removeLineId(5); });
    enter(mapping, 2, 5, -1, ToCheck);
    found.setMapping(0, mapping);
    QCOMPARE(found.goneLines(), 2);
    QCOMPARE(found.openLines(), 0);
    const auto pending = found.pending();
    QCOMPARE(pending.size(), 1U);
    QCOMPARE(pending[0].second, (std::vector<OpenProposal>{{5, -1, -1}}));
    OpenPair read{5, -1, -1, 1, {}, true, {}};
    read.gone = GoneSigns{false, {{"W", "x"}}};
    found.add(0, {read});
    QCOMPARE(goneTextsOf(found), (QStringList{"W lost x|1", "unlike cat|1"}));
    // Undone: that its target is not there any more is not known before it was looked at again.
    found.setMapping(0, before);
    QCOMPARE(found.goneLines(), 3);
    QCOMPARE(found.openLines(), 1);
    QCOMPARE(found.pendingLines(), 1);
    read = made.reads[0].pairs.back();
    found.add(0, {read});
    QCOMPARE(goneTextsOf(found), all);
}

QTEST_GUILESS_MAIN(tst_GoneGroups)
#include "tst_GoneGroups.moc"
