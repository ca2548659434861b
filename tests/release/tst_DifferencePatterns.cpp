#include "../support/TestCatalog.h"

#include <core/parallel/WorkerPool.h>
#include <release/pattern/CellParts.h>
#include <release/pattern/DifferencePatterns.h>
#include <release/pattern/LineComparer.h>
#include <release/pattern/ReplacementEvidence.h>

#include <QScopeGuard>
#include <QTest>

using namespace VelkRelease;
using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;
using Place = DifferencePatterns::Place;

namespace {

const ValueChange::Words words{"near",     "other",   "wording",     "added",   "missing",
                               "spelling", "project", "another one", "changed", "one or more"};

QString textOf(const DifferencePatterns &patterns, int pattern)
{
    QStringList texts;
    for (const ValueChange &change : patterns.changes(pattern))
        texts << change.text(words);
    const DifferencePatterns::Numbers numbers = patterns.numbers(pattern);
    return QString("%1|%2 lines, %3 projects, %4 exceptions")
        .arg(patterns.isComparable(pattern) ? texts.join("; ") : "?")
        .arg(numbers.lines)
        .arg(numbers.projects)
        .arg(numbers.exceptions);
}

QStringList textsOf(const DifferencePatterns &patterns)
{
    QStringList texts;
    for (const int pattern : patterns.ranked())
        texts << textOf(patterns, pattern);
    return texts;
}

/// A pair whose values are written "NAME=old>new".
OpenPair pairOf(int line, const QStringList &values, double probability = 0.9)
{
    OpenPair pair{line, 0, line, probability, {}, true, {}};
    for (const QString &value : values) {
        const qsizetype equals = value.indexOf('=');
        const qsizetype arrow = value.indexOf('>');
        pair.values.push_back(
            {value.left(equals), value.mid(equals + 1, arrow - equals - 1), value.mid(arrow + 1)});
    }
    return pair;
}

/// A mapping whose lines 1 to \a lines are proposals for the line of the same number.
PrjMappingC proposed(const QString &path, int lines)
{
    PrjMappingC mapping = mappingOf(path, {"new/a.prj", ""});
    for (int line = 1; line <= lines; ++line)
        enter(mapping, 0, line, line, ToCheck);
    return mapping;
}

ReleaseMappingC releaseOf(const QList<PrjMappingC> &mappings)
{
    ReleaseMappingC release;
    for (const PrjMappingC &mapping : mappings)
        release.addMapping(mapping);
    return release;
}

} // namespace

class tst_DifferencePatterns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts_data();
    void parts();
    void openLines();
    void families_data();
    void families();
    void agreedReplacementIsAFamily();
    void linesAndExceptionsAddUp();
    void linesInDoubtAreTheirOwn();
    void namesOfProjectsAreADifference();
    void longListIsShortened_data();
    void longListIsShortened();
    void lineOfUsualChangesIsAnException();
    void decisionsTakeLinesOut();
    void otherProposalIsPending();
    void leastSureFirst();
    void readFromTables();
    void evidenceOfAReplacement();
    void appliedReplacement_data();
    void appliedReplacement();
    void sameForAnyNumberOfJobs();
};

void tst_DifferencePatterns::parts_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QStringList>("parts");
    const auto row = [](const char *name, const char *before, const char *after,
                        const QStringList &parts) {
        QTest::newRow(name) << QString::fromUtf8(before) << QString::fromUtf8(after) << parts;
    };
    row("equal", "M8", "M8", {});
    row("token", "M8 x 20", "M8 x 25", {"20>25"});
    row("zero in a code", "S07B", "S7B", {"07>7"});
    row("grade of steel", "St37-2", "S235JR", {"St37-2>S235JR"});
    row("two places", "M8 x 20 A2", "M10 x 20 A4", {"8>10", "2>4"});
    row("neighbours are one place", "DIN 933 - M8", "ISO 4017 - M8", {"DIN 933>ISO 4017"});
    row("inserted", "M8 x 20", "M8 x 20 A2", {">A2"});
    row("removed in between", "bolt, hex, M8", "bolt, M8", {"hex,>"});
    row("decimal number", "1.5 mm", "2,5 mm", {"1.5>2,5"});
    row("blanks only", "M8 x 20", "M8x20", {"M8 x 20>M8x20"});
    row("all different", "a.b.c.d.e", "v.w.x.y.z", {"a.b.c.d.e>v.w.x.y.z"});
}

void tst_DifferencePatterns::parts()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QStringList, parts);
    QStringList found;
    for (const CellPart &part : differingParts(before, after)) {
        found << part.before + '>' + part.after;
        QCOMPARE(before.mid(part.beforeAt, part.before.size()), part.before);
        QCOMPARE(after.mid(part.afterAt, part.after.size()), part.after);
    }
    QCOMPARE(found, parts);
}

void tst_DifferencePatterns::openLines()
{
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj", ""});
    enter(mapping, 0, 1, 11, ToCheck);
    enter(mapping, 0, 2, 12, Mapped);
    enter(mapping, 0, 3, 13, Verified);
    enter(mapping, 2, 4, -1, ToCheck);
    enter(mapping, 1, 5, 15, ToCheck);
    // In two targets: the first counts, and a conflict wants a decision of its own.
    enter(mapping, 1, 1, 21, ToCheck);
    enter(mapping, 0, 6, 16, ToCheck);
    mapping.changeTarget(0, [](PrjMappingTargetC &target) { target.setLineConflicted(6, true); });
    enter(mapping, 1, 6, 26, ToCheck);
    const std::vector<OpenProposal> expected{{1, 0, 11}, {5, 1, 15}};
    QCOMPARE(openProposals(mapping), expected);
    QCOMPARE(openProposal(mapping, 5), expected[1]);
    QCOMPARE(openProposal(mapping, 1), expected[0]);
    QCOMPARE(openProposal(mapping, 6).line, -1);
    QCOMPARE(openProposal(mapping, 4).line, -1);
    QCOMPARE(openProposal(mapping, 99).line, -1);
}

void tst_DifferencePatterns::families_data()
{
    QTest::addColumn<QStringList>("values"); // one for each line
    QTest::addColumn<QStringList>("patterns");
    QTest::newRow("replaced token") << QStringList{"W=St37-2 A>S235JR A", "W=St37-2 B>S235JR B"}
                                    << QStringList{"W: St37-2 → S235JR|2 lines"};
    QTest::newRow("once is no family")
        << QStringList{"W=St37-2>S235JR"} << QStringList{"W: wording|1 lines"};
    QTest::newRow("factor") << QStringList{"L=10>5", "L=20>10", "L=30>15"}
                            << QStringList{"L: × 0.5|3 lines"};
    QTest::newRow("factor within designations")
        << QStringList{"N=M8 x 10>M8 x 5", "N=M8 x 20>M8 x 10"} << QStringList{"N: × 0.5|2 lines"};
    QTest::newRow("another unit, rounded")
        << QStringList{"L=1>0.03937008", "L=5>0.1968504", "L=7>0.2755906", "L=12.7>0.5"}
        << QStringList{"L: × 0.0393701|4 lines"};
    QTest::newRow("millimetres of inches")
        << QStringList{"L=1.5>38.1", "L=0.0313>0.79502"} << QStringList{"L: × 25.4|2 lines"};
    QTest::newRow("too few digits for a unit")
        << QStringList{"L=26>1", "L=50>2"} << QStringList{"L: other|2 lines"};
    QTest::newRow("added number") << QStringList{"L=10>12.5", "L=20>22.5", "L=7>9.5"}
                                  << QStringList{"L: + 2.5|3 lines"};
    QTest::newRow("subtracted number")
        << QStringList{"L=10>8", "L=20>18", "L=7>5"} << QStringList{"L: − 2|3 lines"};
    QTest::newRow("measured anew, with chance differences alike")
        << QStringList{"R=10>10.1", "R=20>20.1", "R=30>30.2", "R=40>40.2", "R=50>50.3"}
        << QStringList{"R: near|5 lines"};
    QTest::newRow("one value replaced is no number map")
        << QStringList{"L=10>5", "L=10>5"} << QStringList{"L: 10 → 5|2 lines"};
    QTest::newRow("near and other number")
        << QStringList{"L=10>11", "L=10>100"} << QStringList{"L: near|1 lines", "L: other|1 lines"};
    QTest::newRow("value added, value missing")
        << QStringList{"L=>7", "L=8>"} << QStringList{"L: added|1 lines", "L: missing|1 lines"};
    QTest::newRow("remark reworded alike")
        << QStringList{"R=as before>new wording here", "R=as before>new wording here"}
        << QStringList{"R: as before → new wording here|2 lines"};
    QTest::newRow("remarks reworded each its way")
        << QStringList{"R=one thing>it became x", "R=another matter>that is y now"}
        << QStringList{"R: wording|2 lines"};
    QTest::newRow("measured anew, some alike by chance")
        << QStringList{"V=0>48", "V=0>48", "V=0>50", "V=0>14", "V=0>7"}
        << QStringList{"V: other|5 lines"};
    QTest::newRow("most of one value become another")
        << QStringList{"V=0>48", "V=0>48", "V=3>50"}
        << QStringList{"V: 0 → 48|2 lines", "V: other|1 lines"};
    QTest::newRow("added number, rounded")
        << QStringList{"L=6.16>6.21", "L=9.23>9.28", "L=6.1595>6.21", "L=6.1595>6.22"}
        << QStringList{"L: + 0.05|3 lines", "L: near|1 lines"};
    QTest::newRow("blanks and capitals alone")
        << QStringList{"D=M8>M 8", "D=M10>m10", "D=M12>M 14"}
        << QStringList{"D: spelling|2 lines", "D: wording|1 lines"};
    QTest::newRow("capitals in one of two places")
        << QStringList{"D=PENTAX F 3>Pentax f/ 3", "D=PENTAX F 4>Pentax f/ 4"}
        << QStringList{"D: PENTAX F → Pentax f/|2 lines"};
    QTest::newRow("another variable is another family")
        << QStringList{"A=x>y", "B=x>y"} << QStringList{"A: wording|1 lines", "B: wording|1 lines"};
}

void tst_DifferencePatterns::families()
{
    QFETCH(QStringList, values);
    QFETCH(QStringList, patterns);
    DifferencePatterns::Read read;
    for (int line = 1; line <= values.size(); ++line)
        read.pairs.push_back(pairOf(line, {values[line - 1]}));
    const DifferencePatterns found(releaseOf({proposed("a.prj", int(values.size()))}), {read});
    QStringList texts;
    for (const QString &text : textsOf(found))
        texts << text.left(text.indexOf(','));
    QCOMPARE(texts, patterns);
}

void tst_DifferencePatterns::agreedReplacementIsAFamily()
{
    ReleaseMappingC release = releaseOf({proposed("cat/x/a.prj", 4), proposed("cat/y/b.prj", 1)});
    release.setReplacements(
        {{{}, "W", "St37-2", "S235JR", {}, {}}, {"cat/x", "L", {}, {}, "2", "1"}});
    const DifferencePatterns found(release,
                                   {{{pairOf(1, {"W=St37-2>S235JR"}), pairOf(2, {"L=10>21"}),
                                      pairOf(3, {"L=10>22"}), pairOf(4, {"L=10.04>21.1"})},
                                     {}},
                                    {{pairOf(1, {"L=20>41"})}, {}}});
    // With one supporter each: without the agreement none would be a family. The second one is
    // outside of its folder. What it makes of 10.04 is rounded.
    QStringList texts;
    for (int i = 0; i < found.count(); ++i) {
        for (const DifferencePatterns::Place &place : found.places(i))
            texts << QString("%1:%2 %3%4")
                         .arg(place.project)
                         .arg(place.line)
                         .arg(found.changes(i).first().text(words))
                         .arg(found.changes(i).first().agreed ? ", agreed" : "");
    }
    QCOMPARE(texts, (QStringList{"0:1 W: St37-2 → S235JR, agreed", "0:2 L: × 2 + 1, agreed",
                                 "0:4 L: × 2 + 1, agreed", "0:3 L: other", "1:1 L: other"}));
}

void tst_DifferencePatterns::linesAndExceptionsAddUp()
{
    const QString steel = "W=St37>S235";
    const DifferencePatterns found(
        releaseOf({proposed("a.prj", 4), proposed("b.prj", 4)}),
        {{{pairOf(1, {steel}, 0.92), pairOf(2, {steel}, 0.94), pairOf(3, {steel, "L=1>900"}),
           pairOf(4, {})},
          {}},
         {{pairOf(1, {steel}, 0.96), pairOf(2, {"R=x>", steel}), pairOf(3, {"L=1>900", steel}),
           OpenPair{4, 0, 4, 0, {}, false, {}}},
          {"b.prj: no table"}}});
    QCOMPARE(textsOf(found), (QStringList{"W: St37 → S235|3 lines, 2 projects, 3 exceptions",
                                          "W: St37 → S235; L: 1 → 900|2 lines, 2 projects, 0 "
                                          "exceptions",
                                          "|1 lines, 1 projects, 0 exceptions",
                                          "R: missing; W: St37 → S235|1 lines, 1 projects, 0 "
                                          "exceptions",
                                          "?|1 lines, 1 projects, 0 exceptions"}));
    QCOMPARE(found.openLines(), 8);
    QCOMPARE(found.errors(), QStringList{"b.prj: no table"});
    const int first = found.ranked().front();
    QVERIFY(qAbs(found.numbers(first).probability - 0.94) < 1e-12);
    QCOMPARE(found.places(first), (std::vector<Place>{{0, 1}, {0, 2}, {1, 1}}));
    QCOMPARE(found.places(first, 2), (std::vector<Place>{{0, 1}, {0, 2}}));
    QCOMPARE(found.exceptions(first), (std::vector<Place>{{0, 3}, {1, 2}, {1, 3}}));
    QCOMPARE(found.exceptions(first, 1), (std::vector<Place>{{0, 3}}));
    QCOMPARE(found.lines(first, 0), (std::vector<int>{1, 2}));
    QCOMPARE(found.lines(first, 7), std::vector<int>());
    QCOMPARE(found.patternOf({0, 2}), first);
    QCOMPARE(found.patternOf({0, 9}), -1);
    QCOMPARE(found.patternOf({-1, 1}), -1);
}

/// Equal changes do not make a doubtful line one of those that nobody looks at.
void tst_DifferencePatterns::linesInDoubtAreTheirOwn()
{
    const DifferencePatterns found(
        releaseOf({proposed("a.prj", 6)}),
        {{{pairOf(1, {}, 0.995), pairOf(2, {}, 0.9), pairOf(3, {}, 0.5), pairOf(4, {"L=1>900"}, 1),
           pairOf(5, {"L=1>900"}, 0), OpenPair{6, 0, 6, 0, {}, false, {}}},
          {}}});
    QStringList texts;
    for (int i = 0; i < found.count(); ++i)
        texts << (found.isDoubtful(i) ? "? " : "") + textOf(found, i);
    // One is no exception of the other.
    QCOMPARE(texts, (QStringList{"|2 lines, 1 projects, 0 exceptions",
                                 "? |1 lines, 1 projects, 0 exceptions",
                                 "L: 1 → 900|1 lines, 1 projects, 0 exceptions",
                                 "? L: 1 → 900|1 lines, 1 projects, 0 exceptions",
                                 "?|1 lines, 1 projects, 0 exceptions"}));
}

/// What there is to look at where nothing else differs. Other differences say more than the name.
void tst_DifferencePatterns::namesOfProjectsAreADifference()
{
    QList<PrjMappingC> mappings;
    std::vector<DifferencePatterns::Read> reads;
    const auto add = [&](const QString &source, const QString &target, const QStringList &values) {
        PrjMappingC mapping = mappingOf(source, {target});
        enter(mapping, 0, 1, 1, ToCheck);
        mappings << mapping;
        reads.push_back({{pairOf(1, values)}, {}});
    };
    add("cat/a/iso4014head.prj", "cat/b/ISO4014def.prj", {});
    add("cat/a/iso4017head.prj", "cat/b/ISO4017def.prj", {});
    add("cat/a/pins.prj", "cat/b/bolts.prj", {});
    add("cat/a/keys.prj", "cat/b/rings.prj", {});
    add("cat/a/DIN 931.prj", "cat/b/din931.prj", {});
    add("cat/a/nuts.prj", "cat/b/ISO4032head.prj", {"W=a>b"});
    reads.push_back({{OpenPair{1, 0, 1, 1, {}, false, {}}}, {}});
    mappings << mappingOf("cat/a/unread.prj", {"cat/b/other.prj"});
    const DifferencePatterns found(releaseOf(mappings), reads);
    QStringList texts;
    for (const QString &text : textsOf(found))
        texts << text.left(text.indexOf(','));
    QCOMPARE(texts, (QStringList{"project: head \u2192 def|2 lines", "project: another one|2 lines",
                                 "|1 lines", "W: wording|1 lines", "?|1 lines"}));
}

void tst_DifferencePatterns::longListIsShortened_data()
{
    QTest::addColumn<QList<QStringList>>("kinds"); // count, then values; "?" for doubt
    QTest::addColumn<QStringList>("patterns");
    using Kinds = QList<QStringList>;
    const QStringList many{"60", "A=x%1>y%1%2"};
    const QString most = "A: wording|60 lines";
    QTest::newRow("small family has many lines without its name")
        << Kinds{many, {"3", "A=p>q"}} << QStringList{"A: wording|63 lines"};
    QTest::newRow("family of five keeps its name")
        << Kinds{many, {"5", "A=p>q"}} << QStringList{most, "A: p \u2192 q|5 lines"};
    QTest::newRow("lines of usual changes are one pattern, by all of these")
        << Kinds{many,
                 {"10", "B=1%1>900%2"},
                 {"2", "A=x%1>y%1%2", "B=1%1>900%2"},
                 {"10", "C=>v%1"},
                 {"1", "C=>v%1", "A=x%1>y%1%2"}}
        << QStringList{most, "B: other|10 lines", "C: added|10 lines",
                       "A: wording; B: other; C: added; one or more|3 lines"};
    QTest::newRow("blanks and capitals are usual in any line")
        << Kinds{many,
                 {"1", "B=M %1>m%1"},
                 {"1", "B=M %1>m%1", "A=x%1>y%1%2"},
                 {"1", "D=4>", "B=M %1>m%1"}}
        << QStringList{most, "B: spelling; A: wording; one or more|2 lines",
                       "D: missing; B: spelling|1 lines"};
    QTest::newRow("family without its name where few lines have nothing else")
        << Kinds{many, {"4", "A=p>q"}, {"3", "A=p>q", "D=%1>"}}
        << QStringList{"A: wording|64 lines", "A: p \u2192 q; D: missing|3 lines"};
    QTest::newRow("nobody else is shown so")
        << Kinds{many, {"10", "B=1%1>900%2"}, {"2", "A=x%1>y%1%2", "B=1%1>900%2"}}
        << QStringList{most, "B: other|10 lines", "A: wording; B: other|2 lines"};
    QTest::newRow("unusual ones by the columns")
        << Kinds{many, {"2", "D=v%1>"}, {"1", "D=1>90%2"}, {"1", "D=>3", "A=x%1>y%1%2"}}
        << QStringList{most, "D: changed|3 lines", "D: added; A: wording|1 lines"};
    QTest::newRow("doubt is kept apart")
        << Kinds{many, {"1", "A=x%1>y%1%2", "?"}, {"1", "D=>3", "?"}, {"1", "D=4>", "?"}}
        << QStringList{most, "A: wording|1 lines", "D: added|1 lines", "D: missing|1 lines"};
    QTest::newRow("few lines are shown as they are")
        << Kinds{{"40", "A=x%1>y%1%2"}, {"2", "A=p>q"}, {"1", "D=>3"}, {"1", "D=4>"}}
        << QStringList{"A: wording|40 lines", "A: p \u2192 q|2 lines", "D: added|1 lines",
                       "D: missing|1 lines"};
}

void tst_DifferencePatterns::longListIsShortened()
{
    QFETCH(QList<QStringList>, kinds);
    QFETCH(QStringList, patterns);
    DifferencePatterns::Read read;
    for (const QStringList &kind : std::as_const(kinds)) {
        for (int i = 0; i < kind.front().toInt(); ++i) {
            const int line = int(read.pairs.size()) + 1;
            QStringList values = kind.mid(1);
            const bool doubt = values.removeAll("?") > 0;
            for (QString &value : values)
                value.replace("%1", QString::number(line)).replace("%2", QString::number(line * 7));
            read.pairs.push_back(pairOf(line, values, doubt ? 0.5 : 0.95));
        }
    }
    const int lines = int(read.pairs.size());
    DifferencePatterns found(releaseOf({proposed("a.prj", lines)}), {read});
    QStringList texts;
    for (const QString &text : textsOf(found))
        texts << text.left(text.indexOf(','));
    QCOMPARE(texts, patterns);
    QCOMPARE(found.openLines(), lines);
    // Whatever a line is shown by, it has all of its changes.
    for (const OpenPair &pair : read.pairs)
        QCOMPARE(found.changesAt({0, pair.line}).size(), qsizetype(pair.values.size()));
    // What is read anew is shown as before.
    PrjMappingC mapping = proposed("a.prj", lines);
    enter(mapping, 0, lines, lines + 1, ToCheck);
    found.setMapping(0, mapping);
    OpenPair again = read.pairs.back();
    again.targetLine = lines + 1;
    found.add(0, {again});
    texts.clear();
    for (const QString &text : textsOf(found))
        texts << text.left(text.indexOf(','));
    QCOMPARE(texts, patterns);
}

/// Of the patterns all of whose changes it has, not of others that it is listed with.
void tst_DifferencePatterns::lineOfUsualChangesIsAnException()
{
    DifferencePatterns::Read read;
    const auto add = [&](int count, const QStringList &values) {
        for (int i = 0; i < count; ++i) {
            const int line = int(read.pairs.size()) + 1;
            QStringList own = values;
            for (QString &value : own)
                value.replace("%1", QString::number(line));
            read.pairs.push_back(pairOf(line, own, 0.95));
        }
    };
    add(60, {"A=x%1>y9%1"});
    add(10, {"B=1>900%1"});
    add(10, {"C=>v%1"});
    add(2, {"A=x%1>y9%1", "B=1>900%1"}); // 81 and 82
    add(1, {"B=1>900%1", "C=>v%1"});
    PrjMappingC mapping = proposed("a.prj", 83);
    DifferencePatterns found(releaseOf({mapping}), {read});
    QCOMPARE(textsOf(found),
             (QStringList{"A: wording|60 lines, 1 projects, 2 exceptions",
                          "B: other|10 lines, 1 projects, 3 exceptions",
                          "C: added|10 lines, 1 projects, 1 exceptions",
                          "B: other; A: wording; C: added; one or more|3 lines, 1 projects, 0 "
                          "exceptions"}));
    const std::vector<int> ranked = found.ranked();
    QCOMPARE(found.exceptions(ranked[0]), (std::vector<Place>{{0, 81}, {0, 82}}));
    QCOMPARE(found.places(ranked[3]), (std::vector<Place>{{0, 81}, {0, 82}, {0, 83}}));
    QCOMPARE(found.patternOf({0, 82}), ranked[3]);
    QCOMPARE(found.leastSure().size(), 83U);
    QCOMPARE(found.openLines(), 83);
    enter(mapping, 0, 82, 82, Verified);
    found.setMapping(0, mapping);
    QCOMPARE(found.numbers(ranked[3]).lines, 2);
    QCOMPARE(found.numbers(ranked[0]).exceptions, 1);
}

void tst_DifferencePatterns::decisionsTakeLinesOut()
{
    PrjMappingC mapping = proposed("a.prj", 3);
    const PrjMappingC before = mapping;
    const QString steel = "W=St37>S235";
    DifferencePatterns found(releaseOf({mapping}),
                             {{{pairOf(1, {steel}), pairOf(2, {steel}), pairOf(3, {steel})}, {}}});
    enter(mapping, 0, 2, 2, Verified);
    found.setMapping(0, mapping);
    QCOMPARE(found.places(0), (std::vector<Place>{{0, 1}, {0, 3}}));
    // The name of the family stays, though one line alone would not make it.
    enter(mapping, 0, 1, 1, Verified);
    found.setMapping(0, mapping);
    QCOMPARE(textsOf(found), QStringList{"W: St37 → S235|1 lines, 1 projects, 0 exceptions"});
    mapping.changeTarget(0, [](PrjMappingTargetC &target) { target.removeLineId(3); });
    found.setMapping(0, mapping);
    QCOMPARE(textsOf(found), QStringList());
    QCOMPARE(found.openLines(), 0);
    // Undone.
    found.setMapping(0, before);
    QCOMPARE(textsOf(found), QStringList{"W: St37 → S235|3 lines, 1 projects, 0 exceptions"});
    QCOMPARE(found.pendingLines(), 0);
}

void tst_DifferencePatterns::otherProposalIsPending()
{
    PrjMappingC mapping = proposed("a.prj", 2);
    DifferencePatterns found(releaseOf({mapping}),
                             {{{pairOf(1, {"W=a>b"}), pairOf(2, {"W=a>b"})}, {}}});
    enter(mapping, 0, 2, 7, ToCheck);
    found.setMapping(0, mapping);
    QCOMPARE(found.pendingLines(), 1);
    QCOMPARE(found.openLines(), 2);
    QCOMPARE(found.patternOf({0, 2}), -1);
    const auto pending = found.pending();
    QCOMPARE(pending.size(), 1U);
    QCOMPARE(pending[0].second, (std::vector<OpenProposal>{{2, 0, 7}}));
    // What was read of a proposal that is gone again does not count.
    found.add(0, {pairOf(2, {"W=a>b"})});
    QCOMPARE(found.pendingLines(), 1);
    OpenPair read = pairOf(2, {"W=a>c"});
    read.targetLine = 7;
    found.add(0, {read});
    QCOMPARE(found.pendingLines(), 0);
    QCOMPARE(textsOf(found), (QStringList{"W: a → b|1 lines, 1 projects, 0 exceptions",
                                          "W: wording|1 lines, 1 projects, 0 exceptions"}));
    // A project that came later.
    found.setMapping(2, proposed("c.prj", 1));
    QCOMPARE(found.pendingLines(), 1);
    QCOMPARE(found.pending()[0].first, 2);
}

void tst_DifferencePatterns::leastSureFirst()
{
    const DifferencePatterns found(releaseOf({proposed("a.prj", 2), proposed("b.prj", 2)}),
                                   {{{pairOf(1, {"W=a>b"}, 0.9), pairOf(2, {"L=1>"}, 0.5)}, {}},
                                    {{pairOf(1, {"W=a>b"}, 0.6), pairOf(2, {"W=a>b"}, 0.5)}, {}}});
    QCOMPARE(found.leastSure(), (std::vector<Place>{{0, 2}, {1, 2}, {1, 1}, {0, 1}}));
    QCOMPARE(found.probability({1, 1}), std::optional(0.6));
    QCOMPARE(found.probability({1, 9}), std::nullopt);
}

namespace {

/// Two projects whose material and lengths changed, below the process's catalog root.
struct Example
{
    Example()
    {
        IndexTreeC::instance()->setCatalogRoot(catalog.root());
        QByteArray old = "Name,W,L:n\n";
        QByteArray now = old;
        PrjMappingC first = mappingOf("old/a.prj", {"new/a.prj"});
        for (int line = 1; line <= 20; ++line) {
            const QByteArray name = "N" + QByteArray::number(line);
            old += name + ",St37-2," + QByteArray::number(line * 10) + '\n';
            now +=
                name + ",S235JR," + QByteArray::number(line % 4 == 0 ? line * 5 : line * 10) + '\n';
            enter(first, 0, line, line, ToCheck);
        }
        catalog.write("old/a.prj", old);
        catalog.write("new/a.prj", now);
        PrjMappingC lost = mappingOf("old/lost.prj", {"new/a.prj"});
        enter(lost, 0, 1, 1, ToCheck);
        release = releaseOf({first, lost});
    }

    const TestCatalog catalog;
    ReleaseMappingC release;
};

} // namespace

void tst_DifferencePatterns::readFromTables()
{
    const Example example;
    const std::atomic<bool> cancelled = false;
    int told = 0;
    const auto found =
        DifferencePatterns::compute(example.catalog.root(), example.release, cancelled, {},
                                    [&](int projects) { told = projects; });
    QVERIFY(found);
    QCOMPARE(told, 2);
    QCOMPARE(textsOf(*found), (QStringList{"W: St37-2 → S235JR|15 lines, 1 projects, 5 exceptions",
                                           "W: St37-2 → S235JR; L: × 0.5|5 lines, 1 projects, 0 "
                                           "exceptions",
                                           "?|1 lines, 1 projects, 0 exceptions"}));
    QVERIFY(!found->errors().isEmpty());
    LineComparer comparer(example.catalog.root(), example.release.mappingAt(0), example.release);
    QVERIFY(comparer.isValid());
    QVERIFY(comparer.hasLine(20) && !comparer.hasLine(21));
    QVERIFY(!comparer.assigned(21));
    QCOMPARE(comparer.assigned(4)->variables.size(), 3);
    const std::atomic<bool> ended = true;
    QVERIFY(!DifferencePatterns::compute(example.catalog.root(), example.release, ended));
    const auto some = DifferencePatterns::compute(example.catalog.root(), example.release,
                                                  cancelled, [](int i) { return i == 1; });
    QCOMPARE(some->openLines(), 1);
}

void tst_DifferencePatterns::evidenceOfAReplacement()
{
    Example example;
    const std::atomic<bool> cancelled = false;
    const auto evidence = [&](const AgreedReplacement &replacement) {
        const auto found =
            replacementEvidence(example.catalog.root(), example.release, replacement, cancelled);
        return std::pair(found->supports, found->counterExamples);
    };
    QCOMPARE(evidence({{}, "W", "St37-2", "S235JR", {}, {}}), std::pair(20, 0));
    QCOMPARE(evidence({{}, "W", "St37", "S235", {}, {}}), std::pair(0, 20));
    QCOMPARE(evidence({{}, "W", "St", "S", {}, {}}), std::pair(0, 20));
    QCOMPARE(evidence({{}, "W", "t37-2", "S235JR", {}, {}}), std::pair(0, 0));
    QCOMPARE(evidence({"old/b", "W", "St37-2", "S235JR", {}, {}}), std::pair(0, 0));
    QCOMPARE(evidence({{}, "L", {}, {}, "0.5", "0"}), std::pair(5, 15));
    // A factor with as many digits as one writes: the new values are rounded.
    QCOMPARE(evidence({{}, "L", {}, {}, "0.5001", "0"}), std::pair(5, 15));
    const auto found = replacementEvidence(example.catalog.root(), example.release,
                                           {{}, "L", {}, {}, "0.5", "0"}, cancelled);
    QCOMPARE(found->examples.front(), (ReplacementEvidence::Example{"old/a.prj", 1, "10", "10"}));
    const std::atomic<bool> ended = true;
    QVERIFY(!replacementEvidence(example.catalog.root(), example.release, {}, ended));
}

void tst_DifferencePatterns::appliedReplacement_data()
{
    QTest::addColumn<AgreedReplacement>("replacement");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("result");
    const auto text = [](const char *before, const char *after) {
        return AgreedReplacement{{}, "W", before, after, {}, {}};
    };
    const auto number = [](const char *factor, const char *offset) {
        return AgreedReplacement{{}, "L", {}, {}, factor, offset};
    };
    QTest::newRow("whole value") << text("St37-2", "S235JR") << "St37-2"
                                 << "S235JR";
    QTest::newRow("token") << text("St37-2", "S235JR") << "St37-2 zn"
                           << "S235JR zn";
    QTest::newRow("each place") << text("A", "BA") << "A 2 A"
                                << "BA 2 BA";
    QTest::newRow("not in a word") << text("t37", "235") << "St37"
                                   << "St37";
    QTest::newRow("not in a number") << text("37", "40") << "137 St37"
                                     << "137 St40";
    QTest::newRow("to nothing") << text(" zn", "") << "St37 zn"
                                << "St37";
    QTest::newRow("from nothing") << text("", "x") << "St37"
                                  << "St37";
    QTest::newRow("case counts") << text("fp", "FKM") << "FP"
                                 << "FP";
    QTest::newRow("factor") << number("0.1", "0") << "70"
                            << "7";
    QTest::newRow("factor and offset") << number("2", "1") << "10.5"
                                       << "22";
    QTest::newRow("no number") << number("2", "1") << "10 mm"
                               << "10 mm";
    QTest::newRow("no value") << number("2", "1") << ""
                              << "";
}

void tst_DifferencePatterns::appliedReplacement()
{
    QFETCH(AgreedReplacement, replacement);
    QFETCH(QString, value);
    QTEST(replacement.applied(value), "result");
}

void tst_DifferencePatterns::sameForAnyNumberOfJobs()
{
    const Example example;
    const std::atomic<bool> cancelled = false;
    const auto guard = qScopeGuard([] { WorkerPool::instance().setThreads(0); });
    QStringList first;
    for (const int jobs : {1, 2, 5}) {
        WorkerPool::instance().setThreads(jobs);
        const auto found =
            DifferencePatterns::compute(example.catalog.root(), example.release, cancelled);
        if (first.isEmpty())
            first = textsOf(*found);
        QCOMPARE(textsOf(*found), first);
    }
}

QTEST_GUILESS_MAIN(tst_DifferencePatterns)
#include "tst_DifferencePatterns.moc"
