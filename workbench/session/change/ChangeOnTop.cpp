#include "ChangeOnTop.h"

#include <geomcore/records/sameTargetHead.h>

#include <algorithm>

using TargetPair = MappingDifference::TargetPair;

namespace {

/// Two valid mappings.
class TargetChanges
{
public:
    TargetChanges(const PrjMappingC &now, const MappingDifference &change);
    [[nodiscard]] ChangeOnTop run();

private:
    struct Place
    {
        int at = -1; ///< among the targets that are there now; -1: none
        PrjMappingTargetC target;
        bool stays = true;
    };
    [[nodiscard]] Place place(const TargetPair &pair);
    [[nodiscard]] int find(const TargetPair &pair) const;
    [[nodiscard]] bool isTaken(const QString &path) const;
    void changeHead(const TargetPair &pair, Place &place);
    void changeLines(const TargetPair &pair, PrjMappingTargetC &target);
    void changeLine(const LineDifference &line, PrjMappingTargetC &target);
    void remove(const TargetPair &pair, Place &place);
    [[nodiscard]] bool hasOldTargets() const;
    [[nodiscard]] bool reorders() const;
    [[nodiscard]] QList<PrjMappingTargetC> asNoted() const;
    [[nodiscard]] QList<PrjMappingTargetC> asTheyStand() const;
    void finish(QList<PrjMappingTargetC> targets, bool isAsNoted);

    const PrjMappingC &m_now;
    const MappingDifference &m_change;
    std::vector<Place> m_places; ///< of the change's targets
    QSet<int> m_marked;          ///< lines that came into conflict since
    ChangeOnTop m_done;
};

QString pathBefore(const TargetPair &pair)
{
    return pair.headDiffers ? pair.headBefore.path : pair.path;
}

/// The target of lines without target, which went meanwhile.
PrjMappingTargetC emptyRest()
{
    PrjMappingC mapping;
    return mapping.targetAt(mapping.ensureNotFoundTarget());
}

TargetChanges::TargetChanges(const PrjMappingC &now, const MappingDifference &change)
    : m_now(now)
    , m_change(change)
{
}

ChangeOnTop TargetChanges::run()
{
    m_places.reserve(m_change.targets.size());
    for (const TargetPair &pair : m_change.targets)
        m_places.push_back(place(pair));
    const bool isAsBefore = hasOldTargets();
    if (!isAsBefore && reorders())
        m_done.targetsBlock = true;
    if (m_done.fits())
        finish(isAsBefore ? asNoted() : asTheyStand(), isAsBefore);
    return m_done;
}

TargetChanges::Place TargetChanges::place(const TargetPair &pair)
{
    Place place;
    place.at = find(pair);
    if (place.at >= 0)
        place.target = m_now.targetAt(place.at);
    else if (pair.before >= 0 && pathBefore(pair).isEmpty())
        place.target = emptyRest();
    else if (pair.before >= 0 && !pair.headDiffers && pair.lines.empty())
        place.stays = false; // it went meanwhile, and nothing is to be done with it
    else if (pair.before >= 0)
        m_done.targetsBlock = true;
    changeHead(pair, place);
    changeLines(pair, place.target);
    if (pair.after < 0)
        remove(pair, place);
    return place;
}

/// Of several targets of one path the one that stood as far in front.
int TargetChanges::find(const TargetPair &pair) const
{
    const bool isNew = pair.before < 0;
    const QString path = isNew ? pair.headAfter.path : pathBefore(pair);
    if (isNew && !path.isEmpty())
        return -1;
    auto skip = std::ranges::count_if(m_change.targets, [&](const TargetPair &other) {
        return !isNew && other.before >= 0 && other.before < pair.before &&
               pathBefore(other) == path;
    });
    for (int at = 0; at < m_now.countTargets(); ++at) {
        if (m_now.targetAt(at).getTargetPath() == path && skip-- == 0)
            return at;
    }
    return -1;
}

/// Somebody else added a target of this path.
bool TargetChanges::isTaken(const QString &path) const
{
    const auto known = std::ranges::count_if(m_change.targets, [&path](const TargetPair &pair) {
        return pair.before >= 0 && pathBefore(pair) == path;
    });
    int there = 0;
    for (int at = 0; at < m_now.countTargets(); ++at)
        there += m_now.targetAt(at).getTargetPath() == path ? 1 : 0;
    return there > known;
}

void TargetChanges::changeHead(const TargetPair &pair, Place &place)
{
    if (!pair.headDiffers)
        return;
    if (pair.before < 0) {
        if (!pair.headAfter.path.isEmpty() && isTaken(pair.headAfter.path))
            m_done.targetsBlock = true;
        if (place.at < 0)
            pair.headAfter.applyTo(place.target);
        return;
    }
    if (!pair.headBefore.path.isEmpty() && TargetHead::of(place.target) != pair.headBefore)
        m_done.targetsBlock = true;
    else if (pair.after >= 0)
        pair.headAfter.applyTo(place.target);
}

void TargetChanges::changeLines(const TargetPair &pair, PrjMappingTargetC &target)
{
    for (const LineDifference &line : pair.lines)
        changeLine(line, target);
}

void TargetChanges::changeLine(const LineDifference &line, PrjMappingTargetC &target)
{
    const bool isThere = target.containsLine(line.line);
    const PrjMappingTargetLineC now = target.getMappedLine(line.line);
    const bool settles =
        line.inBefore && line.inAfter && line.before.getConflict() != line.after.getConflict();
    const bool isAsBefore =
        isThere == line.inBefore &&
        (!isThere || (now.getTargetLineId() == line.before.getTargetLineId() &&
                      now.getState() == line.before.getState() &&
                      now.getExtended() == line.before.getExtended() &&
                      (!settles || now.getConflict() == line.before.getConflict())));
    if (!isAsBefore) {
        m_done.blockedLines.insert(line.line);
        return;
    }
    if (isThere && now.getConflict() && !line.before.getConflict())
        m_marked.insert(line.line);
    if (line.inAfter)
        target.setMappedLine(line.line, line.after);
    else
        target.removeLineId(line.line);
}

/// A target goes with its lines, not with those that came later.
void TargetChanges::remove(const TargetPair &pair, Place &place)
{
    place.stays = pathBefore(pair).isEmpty() && place.target.countLines() > 0;
    if (place.stays)
        return;
    for (const LineTable::Iterator &line : place.target.lines())
        m_done.blockedLines.insert(line.sourceLine());
}

bool TargetChanges::hasOldTargets() const
{
    int known = 0;
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        if (m_change.targets[i].before != m_places[i].at)
            return false;
        known += m_places[i].at >= 0 ? 1 : 0;
    }
    return known == m_now.countTargets();
}

/// The targets that stay come in another order.
bool TargetChanges::reorders() const
{
    int last = -1;
    for (const TargetPair &pair : m_change.targets) { // in the order of the targets after
        if (pair.before < 0 || pair.after < 0)
            continue;
        if (pair.before < last)
            return true;
        last = pair.before;
    }
    return false;
}

QList<PrjMappingTargetC> TargetChanges::asNoted() const
{
    QList<PrjMappingTargetC> targets;
    for (const Place &place : m_places) {
        if (place.stays)
            targets.append(place.target);
    }
    return targets;
}

QList<PrjMappingTargetC> TargetChanges::asTheyStand() const
{
    QList<PrjMappingTargetC> targets = m_now.getTargets();
    QList<int> gone;
    for (const Place &place : m_places) {
        if (place.at >= 0)
            targets[place.at] = place.target;
        if (place.at >= 0 && !place.stays)
            gone.append(place.at);
    }
    std::ranges::sort(gone, std::greater<>());
    for (const int at : std::as_const(gone))
        targets.removeAt(at);
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        if (m_places[i].at >= 0 || !m_places[i].stays || m_change.targets[i].after < 0)
            continue;
        const auto rest = std::ranges::find_if(
            targets, [](const PrjMappingTargetC &target) { return target.isNotFoundTarget(); });
        const qsizetype end = m_places[i].target.isNotFoundTarget()
                                  ? targets.size()
                                  : qsizetype(rest - targets.begin());
        targets.insert(qMin(qsizetype(m_change.targets[i].after), end), m_places[i].target);
    }
    return targets;
}

void TargetChanges::finish(QList<PrjMappingTargetC> targets, bool isAsNoted)
{
    const bool wantsRest =
        isAsNoted && std::ranges::any_of(m_change.targets, [](const TargetPair &pair) {
            return pair.after >= 0 &&
                   (pair.headDiffers ? pair.headAfter.path : pair.path).isEmpty();
        });
    if (!wantsRest)
        targets.removeIf([](const PrjMappingTargetC &target) {
            return target.isNotFoundTarget() && target.countLines() == 0;
        });
    for (PrjMappingTargetC &target : targets) {
        for (const int line : std::as_const(m_marked))
            target.setLineConflicted(line, true);
    }
    m_done.result = m_now;
    m_done.result.setTabVersion(m_change.tabVersionAfter);
    m_done.result.setTargets(targets);
    const int changed = m_change.stateBefore.toInt() ^ m_change.stateAfter.toInt();
    const int state =
        (m_now.getMappingState().toInt() & ~changed) | (m_change.stateAfter.toInt() & changed);
    m_done.result.setMappingState(PRJMAPPING::MappingState::fromInt(state));
    m_done.result.updateMappingState();
}

/// The project goes if it is still what it was.
ChangeOnTop removal(const PrjMappingC &now, const MappingDifference &change)
{
    ChangeOnTop done;
    const std::optional<PrjMappingC> known = change.reversed().applied(PrjMappingC());
    if (known && sameMapping(*known, now))
        return done;
    done.targetsBlock = true;
    if (!known)
        return done;
    const MappingDifference since = MappingDifference::between(*known, now);
    for (const TargetPair &pair : since.targets) {
        for (const LineDifference &line : pair.lines)
            done.blockedLines.insert(line.line);
    }
    return done;
}

} // namespace

ChangeOnTop ChangeOnTop::apply(const PrjMappingC &now, const MappingDifference &change)
{
    ChangeOnTop done;
    done.targetsBlock = now.isValid() != change.validBefore ||
                        (now.isValid() && now.getTabVersion() != change.project.tabVersion);
    if (done.targetsBlock)
        return done;
    if (!change.validBefore) {
        const std::optional<PrjMappingC> made = change.applied(PrjMappingC());
        done.targetsBlock = !made;
        done.result = made.value_or(PrjMappingC());
        return done;
    }
    return change.validAfter ? TargetChanges(now, change).run() : removal(now, change);
}
