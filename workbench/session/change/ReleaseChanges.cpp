#include "ReleaseChanges.h"

bool applyChange(ReleaseMappingC &release, const MappingDifference &difference)
{
    const ProjectId &id = difference.project;
    PrjMappingC before = release.findMapping(id.path, id.version, id.tabVersion);
    if (!difference.validBefore)
        before = PrjMappingC();
    const std::optional<PrjMappingC> after = difference.applied(before);
    if (!after)
        return false;
    if (!difference.validAfter ||
        (difference.validBefore && id.tabVersion != after->getTabVersion()))
        release = withoutMapping(release, id);
    if (difference.validAfter)
        release.addMapping(*after);
    return true;
}

ReleaseMappingC withoutMapping(const ReleaseMappingC &release, const ProjectId &project)
{
    ReleaseMappingC result = release;
    result.clearMappings();
    bool found = false;
    for (int i = 0; i < release.countMappings(); ++i) {
        const PrjMappingC mapping = release.mappingAt(i);
        if (!found && ProjectId::of(mapping) == project)
            found = true;
        else
            result.appendMapping(mapping);
    }
    return result;
}

std::vector<MappingDifference> releaseDifferences(const ReleaseMappingC &before,
                                                  const ReleaseMappingC &after)
{
    std::vector<MappingDifference> result;
    const auto add = [&result](const PrjMappingC &from, const PrjMappingC &to) {
        MappingDifference difference = MappingDifference::between(from, to);
        if (!difference.isEmpty())
            result.push_back(std::move(difference));
    };
    const auto counterpart = [](const ReleaseMappingC &release, const PrjMappingC &mapping) {
        const PrjMappingC found = release.findMapping(
            mapping.getSourcePath(), mapping.getSourceVersion(), mapping.getTabVersion());
        return found.getTabVersion() == mapping.getTabVersion() ? found : PrjMappingC();
    };
    const auto isShared = [&](int i) {
        return i < before.countMappings() && i < after.countMappings() &&
               before.sharesMapping(after, i);
    };
    for (int i = 0; i < after.countMappings(); ++i) {
        if (isShared(i))
            continue;
        const PrjMappingC mapping = after.mappingAt(i);
        add(counterpart(before, mapping), mapping);
    }
    for (int i = 0; i < before.countMappings(); ++i) {
        if (isShared(i))
            continue;
        const PrjMappingC mapping = before.mappingAt(i);
        if (!counterpart(after, mapping).isValid())
            add(mapping, PrjMappingC());
    }
    return result;
}

LineCounts countLines(const ReleaseMappingC &release)
{
    LineCounts counts;
    for (int i = 0; i < release.countMappings(); ++i)
        counts.add(release.mappingAt(i).lineCounts());
    return counts;
}
