#include "MappingDifference.h"

#include <algorithm>
#include <utility>

using TargetPair = MappingDifference::TargetPair;

namespace {

/// For each target after the index of its counterpart before, or -1.
std::vector<int> pairTargets(const PrjMappingC &before, const PrjMappingC &after)
{
    std::vector<int> partner(std::size_t(after.countTargets()), -1);
    std::vector<bool> taken(std::size_t(before.countTargets()), false);
    for (int a = 0; a < after.countTargets(); ++a) {
        const QString path = after.targetAt(a).getTargetPath();
        // Nearly always the target of the same index.
        for (int step = 0; step <= before.countTargets(); ++step) {
            const int b = step == 0 ? a : step - 1;
            if (b >= before.countTargets() || taken[std::size_t(b)] ||
                before.targetAt(b).getTargetPath() != path)
                continue;
            taken[std::size_t(b)] = true;
            partner[std::size_t(a)] = b;
            break;
        }
    }
    return partner;
}

TargetPair makePair(const PrjMappingC &before, int b, const PrjMappingC &after, int a)
{
    static const PrjMappingTargetC none;
    const PrjMappingTargetC &targetBefore = b >= 0 ? before.targetAt(b) : none;
    const PrjMappingTargetC &targetAfter = a >= 0 ? after.targetAt(a) : none;
    TargetPair pair;
    pair.before = b;
    pair.after = a;
    pair.headDiffers = b < 0 || a < 0 || !TargetHead::equal(targetBefore, targetAfter);
    if (pair.headDiffers) {
        pair.headBefore = TargetHead::of(targetBefore);
        pair.headAfter = TargetHead::of(targetAfter);
    } else {
        pair.path = targetAfter.getTargetPath();
    }
    if (b >= 0 && a >= 0 && targetBefore.getVarsetModifier() != targetAfter.getVarsetModifier()) {
        const TargetHead head = TargetHead::of(targetAfter);
        if (head.modifiers == TargetHead::of(targetBefore).modifiers)
            pair.stillIgnored = head.ignored();
    }
    pair.lines = LineTable::differences(targetBefore.lines(), targetAfter.lines());
    return pair;
}

bool applyLines(PrjMappingTargetC &target, const std::vector<LineDifference> &lines)
{
    for (const LineDifference &line : lines) {
        const bool known = target.containsLine(line.line);
        if (known != line.inBefore || (known && !(target.getMappedLine(line.line) == line.before)))
            return false;
        if (line.inAfter)
            target.setMappedLine(line.line, line.after);
        else
            target.removeLineId(line.line);
    }
    return true;
}

/// Makes the target after of the one before; false if that is another one than noted.
bool applyPair(const TargetPair &pair, PrjMappingTargetC &target)
{
    if (pair.headDiffers) {
        if (pair.before >= 0 && TargetHead::of(target) != pair.headBefore)
            return false;
        pair.headAfter.applyTo(target);
    }
    return applyLines(target, pair.lines);
}

bool marksConflict(const LineDifference &line)
{
    return line.inBefore && line.inAfter && !line.before.getConflict() &&
           line.after.getConflict() &&
           line.before.getTargetLineId() == line.after.getTargetLineId() &&
           line.before.getState() == line.after.getState() &&
           line.before.getExtended() == line.after.getExtended();
}

} // namespace

MappingDifference MappingDifference::between(const PrjMappingC &before, const PrjMappingC &after)
{
    MappingDifference result;
    result.project = ProjectId::of(before.isValid() ? before : after);
    result.tabVersionAfter = (after.isValid() ? after : before).getTabVersion();
    result.validBefore = before.isValid();
    result.validAfter = after.isValid();
    result.stateBefore = before.getMappingState();
    result.stateAfter = after.getMappingState();
    const std::vector<int> partner = pairTargets(before, after);
    result.targets.reserve(partner.size());
    for (int a = 0; a < after.countTargets(); ++a)
        result.targets.push_back(makePair(before, partner[std::size_t(a)], after, a));
    for (int b = 0; b < before.countTargets(); ++b) {
        if (std::find(partner.begin(), partner.end(), b) == partner.end())
            result.targets.push_back(makePair(before, b, after, -1));
    }
    return result;
}

bool MappingDifference::isEmpty() const
{
    return validBefore == validAfter && stateBefore == stateAfter &&
           project.tabVersion == tabVersionAfter && keepsTargets() &&
           std::all_of(targets.begin(), targets.end(), [](const TargetPair &pair) {
               return !pair.headDiffers && pair.lines.empty();
           });
}

bool MappingDifference::keepsTargets() const
{
    return std::all_of(targets.begin(), targets.end(), [](const TargetPair &pair) {
        return pair.before == pair.after && pair.before >= 0;
    });
}

bool MappingDifference::onlyMarksConflicts() const
{
    if (!validBefore || !validAfter || !keepsTargets() || isEmpty())
        return false;
    bool any = false;
    for (const TargetPair &pair : targets) {
        if (pair.headDiffers || !std::all_of(pair.lines.begin(), pair.lines.end(), marksConflict))
            return false;
        any = any || !pair.lines.empty();
    }
    return any;
}

int MappingDifference::firstLine() const
{
    int first = -1;
    for (const TargetPair &target : targets) {
        if (!target.lines.empty() && (first < 0 || target.lines.front().line < first))
            first = target.lines.front().line;
    }
    return first;
}

std::optional<PrjMappingC> MappingDifference::applied(const PrjMappingC &before) const
{
    if (before.isValid() != validBefore ||
        (validBefore && before.getTabVersion() != project.tabVersion))
        return std::nullopt;
    if (!validAfter)
        return PrjMappingC();
    PrjMappingC after;
    after.setSourcePath(project.path);
    after.setSourceVersion(project.version);
    after.setTabVersion(tabVersionAfter);
    int used = 0;
    for (const TargetPair &pair : targets) {
        used += pair.before >= 0 ? 1 : 0;
        if (pair.before >= before.countTargets())
            return std::nullopt;
        if (pair.after < 0)
            continue;
        PrjMappingTargetC target = before.findTarget(pair.before);
        if (!applyPair(pair, target))
            return std::nullopt;
        after.addTarget(target);
    }
    if (used != before.countTargets())
        return std::nullopt;
    after.setMappingState(stateAfter);
    return after;
}

MappingDifference MappingDifference::reversed() const
{
    MappingDifference result = *this;
    std::swap(result.project.tabVersion, result.tabVersionAfter);
    std::swap(result.validBefore, result.validAfter);
    std::swap(result.stateBefore, result.stateAfter);
    for (TargetPair &pair : result.targets) {
        std::swap(pair.before, pair.after);
        std::swap(pair.headBefore, pair.headAfter);
        pair.stillIgnored.clear();
        for (LineDifference &line : pair.lines) {
            std::swap(line.inBefore, line.inAfter);
            std::swap(line.before, line.after);
        }
    }
    std::ranges::sort(result.targets, [](const TargetPair &a, const TargetPair &b) {
        const bool isGone = a.after < 0;
        if (isGone != (b.after < 0))
            return !isGone;
        return isGone ? a.before < b.before : a.after < b.after;
    });
    return result;
}
