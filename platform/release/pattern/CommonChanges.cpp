#include "CommonChanges.h"

#include "ChangeFamilies.h"

namespace VelkRelease {

CommonChanges CommonChanges::of(const std::vector<OpenPair> &pairs, const QString &sourcePath,
                                const QList<AgreedReplacement> &agreed)
{
    ChangeFamilies families(agreed);
    families.count(pairs);
    CommonChanges result;
    result.ofPairs.reserve(pairs.size());
    for (const OpenPair &pair : pairs)
        result.ofPairs.push_back(families.changesOf(pair, sourcePath));
    if (pairs.empty())
        return result;
    result.common = result.ofPairs.front();
    for (const QList<ValueChange> &changes : result.ofPairs)
        result.common.removeIf(
            [&changes](const ValueChange &change) { return !changes.contains(change); });
    return result;
}

} // namespace VelkRelease
