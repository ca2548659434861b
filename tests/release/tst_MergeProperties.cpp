#include "MergeCase.h"

#include <release/merge/mergeReleases.h>

#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/records/sameTargetHead.h>

#include <QTest>

#include <random>
#include <set>

using VelkRelease::LineStanding;
using VelkRelease::MergeClash;
using VelkRelease::mergeReleases;
using VelkRelease::MergeResult;

namespace {

/// VELK_MERGE_CASES says how many for a long run.
int caseCount()
{
    const int wanted = qEnvironmentVariableIntValue("VELK_MERGE_CASES");
    return wanted > 0 ? wanted : 20'000;
}

const int Cases = caseCount();
constexpr int Lines = 5;

/// What a user can do, at random, always the same for a seed.
class RandomUser
{
public:
    explicit RandomUser(quint32 seed)
        : m_random(seed)
    {
    }
    [[nodiscard]] int below(int limit) { return int(m_random() % quint32(limit)); }

    [[nodiscard]] PrjMappingC edited(PrjMappingC mapping)
    {
        for (int edits = below(4); edits > 0; --edits)
            edit(mapping);
        mapping.updateMappingState();
        return mapping;
    }

private:
    void edit(PrjMappingC &mapping)
    {
        const int line = 1 + below(Lines);
        const int target = below(mapping.countTargets());
        switch (below(10)) {
        case 0: // a new target
            mapping.insertTarget(target, newTarget());
            break;
        case 1: // a target goes, its lines have none any more
            removeTarget(mapping, target);
            break;
        case 2:
            setCondition(mapping, target);
            break;
        case 3:
            if (!mapping.targetAt(target).isNotFoundTarget()) {
                mapping.changeTarget(target, [&](PrjMappingTargetC &changed) {
                    changed.setTargetVersion(QString(QChar(u'0' + below(3))));
                });
            }
            break;
        case 4:
            expire(mapping, line);
            break;
        default:
            assign(mapping, target, line);
        }
    }
    [[nodiscard]] PrjMappingTargetC newTarget()
    {
        PrjMappingTargetC target;
        target.setValid(true);
        target.setTargetPath(QString(QChar(u'a' + below(6))));
        return target;
    }
    static void forget(PrjMappingC &mapping, int line)
    {
        for (int i = 0; i < mapping.countTargets(); ++i)
            mapping.changeTarget(i, [&](PrjMappingTargetC &target) { target.removeLineId(line); });
    }
    static void enterNotFound(PrjMappingC &mapping, int line, PRJMAPPING::CheckState state)
    {
        mapping.changeTarget(mapping.ensureNotFoundTarget(), [&](PrjMappingTargetC &target) {
            target.addLineId(line, -1, state, QString());
        });
    }
    void removeTarget(PrjMappingC &mapping, int target)
    {
        if (mapping.targetAt(target).isNotFoundTarget() || mapping.countTargets() < 3)
            return;
        const LineTable lines = mapping.targetAt(target).lines();
        mapping.removeTarget(target);
        for (const auto &entry : lines)
            enterNotFound(mapping, entry.sourceLine(), PRJMAPPING::ToCheck);
    }
    void setCondition(PrjMappingC &mapping, int target)
    {
        if (mapping.targetAt(target).isNotFoundTarget())
            return;
        mapping.changeTarget(target, [&](PrjMappingTargetC &changed) {
            PrjMappingTargetC rule;
            rule.addCondition(
                VarsetConditionC::fromText(QStringLiteral("X .EQ. %1").arg(below(3))));
            changed.takeConditions(rule);
        });
    }
    void expire(PrjMappingC &mapping, int line)
    {
        forget(mapping, line);
        enterNotFound(mapping, line, below(2) ? PRJMAPPING::Verified : PRJMAPPING::Mapped);
    }
    void assign(PrjMappingC &mapping, int target, int line)
    {
        if (mapping.targetAt(target).isNotFoundTarget())
            return;
        forget(mapping, line);
        mapping.changeTarget(target, [&](PrjMappingTargetC &changed) {
            changed.addLineId(line, 1 + below(3), PRJMAPPING::CheckState(below(3)),
                              below(4) ? QString() : QStringLiteral("T%1").arg(below(2)));
        });
    }

    std::minstd_rand m_random;
};

LineStanding standing(const PrjMappingC &mapping, int line)
{
    LineStanding result;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC &target = mapping.targetAt(i);
        if (const auto found = target.lines().find(line))
            result.append({target.getTargetPath(), found->line()});
    }
    std::ranges::sort(result, {}, [](const auto &entry) { return entry.target; });
    return result;
}

/// Whether a result has what a side decided: its target lines, its text if that is new, and a state
/// that is one of both sides' or the careful one.
bool holds(const LineStanding &result, const LineStanding &decided, const LineStanding &other)
{
    if (result.size() != decided.size())
        return false;
    for (qsizetype i = 0; i < result.size(); ++i) {
        const PrjMappingTargetLineC &now = result[i].line;
        const PrjMappingTargetLineC &wanted = decided[i].line;
        const bool fine =
            result[i].target == decided[i].target &&
            now.getTargetLineId() == wanted.getTargetLineId() &&
            (now.getState() == wanted.getState() || now.getState() == PRJMAPPING::ToCheck ||
             (i < other.size() && now.getState() == other[i].line.getState())) &&
            (now.getExtended() == wanted.getExtended() ||
             (i < other.size() && now.getExtended() == other[i].line.getExtended()));
        if (!fine)
            return false;
    }
    return true;
}

bool hasTargetTwice(const PrjMappingC &mapping)
{
    std::set<QString> paths;
    for (const PrjMappingTargetC &target : mapping.getTargets())
        paths.insert(target.getTargetPath());
    return int(paths.size()) < mapping.countTargets();
}

ReleaseMappingC releaseOf(const PrjMappingC &mapping)
{
    ReleaseMappingC release;
    release.setSourceDate("d");
    release.appendMapping(mapping);
    return release;
}

std::set<int> clashingLines(const QList<MergeClash> &clashes)
{
    std::set<int> lines;
    for (const MergeClash &clash : clashes) {
        if (clash.kind == MergeClash::Line)
            lines.insert(clash.line);
    }
    return lines;
}

std::set<int> toldLines(const MappingChangeMap &changes)
{
    std::set<int> lines;
    for (const MappingChange &change : changes) {
        if (change.type <= 2 || change.type == 11)
            lines.insert(change.lineId);
    }
    return lines;
}

/// A clash without what depends on the side.
QStringList mirrorable(const QList<MergeClash> &clashes, bool exchanged)
{
    QStringList result;
    for (MergeClash clash : clashes) {
        if (exchanged) {
            std::swap(clash.ours, clash.theirs);
            clash.removedByOurs = !clash.removedByOurs;
        }
        for (LineStanding *standing : {&clash.base, &clash.ours, &clash.theirs})
            std::ranges::sort(*standing, {}, [](const auto &entry) { return entry.target; });
        result << MergeCase::texts({clash});
    }
    result.sort();
    return result;
}

struct Case
{
    PrjMappingC base;
    PrjMappingC ours;
    PrjMappingC theirs;
};

Case caseOf(int number)
{
    RandomUser user{quint32(number)};
    Case made;
    made.base.setSourcePath("p");
    made.base.addTarget("a", QString());
    made.base.addTarget("b", QString());
    for (int edits = 0; edits < 3; ++edits)
        made.base = user.edited(made.base);
    made.ours = user.edited(made.base);
    made.theirs = user.edited(made.base);
    return made;
}

QString described(int number, const Case &made, const MergeResult &result)
{
    return QStringLiteral("case %1\nbase   %2\nours   %3\ntheirs %4\nmerged %5\n%6")
        .arg(QString::number(number), MergeCase::text(made.base), MergeCase::text(made.ours),
             MergeCase::text(made.theirs), MergeCase::text(result.release),
             MergeCase::texts(result.clashes).join('\n'));
}

} // namespace

/// Two users change one project at random.
class tst_MergeProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsLost();
    void exchangedSides();
    void unchangedSides();
    void unchangedRelease();
};

void tst_MergeProperties::nothingIsLost()
{
    int clashes = 0;
    for (int number = 0; number < Cases; ++number) {
        const Case made = caseOf(number);
        const MergeResult result =
            mergeReleases(releaseOf(made.base), releaseOf(made.ours), releaseOf(made.theirs));
        const PrjMappingC merged = result.release.mappingAt(0);
        const std::set<int> clashing = clashingLines(result.clashes);
        const std::set<int> local = toldLines(result.local);
        const std::set<int> online = toldLines(result.online);
        clashes += int(clashing.size());
        bool fine = local == clashing;
        for (int line = 1; line <= Lines; ++line) {
            const LineStanding base = standing(made.base, line);
            const LineStanding ours = standing(made.ours, line);
            const LineStanding theirs = standing(made.theirs, line);
            const LineStanding now = standing(merged, line);
            const bool byOurs = ours != base;
            const bool byTheirs = theirs != base;
            fine &= !byOurs || clashing.contains(line) || holds(now, ours, theirs);
            fine &= !byTheirs || (online.contains(line) && (holds(now, theirs, ours) ||
                                                            (theirs.isEmpty() && !now.isEmpty())));
            fine &= byOurs || byTheirs || now == base;
            fine &= clashing.contains(line) ==
                    std::ranges::any_of(now, [](const auto &e) { return e.line.getConflict(); });
        }
        if (!fine)
            QFAIL(qPrintable(described(number, made, result)));
    }
    QVERIFY(clashes > Cases / 10); // they are no rarity here
}

void tst_MergeProperties::exchangedSides()
{
    for (int number = 0; number < Cases / 4; ++number) {
        const Case made = caseOf(number);
        const MergeResult here =
            mergeReleases(releaseOf(made.base), releaseOf(made.ours), releaseOf(made.theirs));
        const MergeResult there =
            mergeReleases(releaseOf(made.base), releaseOf(made.theirs), releaseOf(made.ours));
        const std::set<int> clashing = clashingLines(here.clashes);
        bool fine = mirrorable(here.clashes, false) == mirrorable(there.clashes, true);
        for (int line = 1; line <= Lines; ++line) {
            fine &= clashing.contains(line) || standing(here.release.mappingAt(0), line) ==
                                                   standing(there.release.mappingAt(0), line);
        }
        if (here.clashes.isEmpty() && !hasTargetTwice(here.release.mappingAt(0)))
            fine &= sameMapping(here.release.mappingAt(0), there.release.mappingAt(0));
        if (!fine) {
            QFAIL(qPrintable(described(number, made, here) + "\nexchanged\n" +
                             described(number, made, there)));
        }
    }
}

void tst_MergeProperties::unchangedSides()
{
    for (int number = 0; number < Cases / 4; ++number) {
        const Case made = caseOf(number);
        const ReleaseMappingC base = releaseOf(made.base);
        const ReleaseMappingC side = releaseOf(made.ours);
        for (const MergeResult &result :
             {mergeReleases(base, side, base), mergeReleases(base, base, side),
              mergeReleases(base, side, side)}) {
            if (!sameMapping(result.release.mappingAt(0), made.ours) || !result.clashes.isEmpty() ||
                !result.local.isEmpty())
                QFAIL(qPrintable(described(number, made, result)));
        }
    }
}

/// Bytes, not only records: projects that come, go and change places.
void tst_MergeProperties::unchangedRelease()
{
    const auto bytes = [](const ReleaseMappingC &release) {
        PJsonValue json;
        release.toJson(json, false);
        return json.toByteArray(false);
    };
    const ReleaseMappingC base = MergeCase::release("p: a(1>1); q: b(); r: c() -(2>xc); s: d()");
    for (const char *side :
         {"p: a(1>1)", "", "s: d(); q: b(); x: a()", "x: a(); p: a(1>1); p@v2: b(); q: b()",
          "r: c() c()", "q: b[X.EQ.1](1>xv)"}) {
        const ReleaseMappingC changed = MergeCase::release(side);
        QCOMPARE(bytes(mergeReleases(base, changed, base).release), bytes(changed));
        QCOMPARE(bytes(mergeReleases(base, base, changed).release), bytes(changed));
        QCOMPARE(bytes(mergeReleases(base, changed, changed).release), bytes(changed));
    }
}

QTEST_GUILESS_MAIN(tst_MergeProperties)
#include "tst_MergeProperties.moc"
