#include "matchThree.h"

#include <QHash>

#include <algorithm>

namespace VelkRelease {

namespace {

/// For each element of one list its partner in another, -1: none yet.
using Partners = std::vector<int>;

void matchKeys(const QStringList &keys, const QStringList &otherKeys, Partners &partners,
               std::vector<bool> &taken)
{
    QHash<QString, std::vector<int>> waiting; // the last one first
    for (qsizetype i = otherKeys.size() - 1; i >= 0; --i) {
        if (!taken[size_t(i)])
            waiting[otherKeys[i]].push_back(int(i));
    }
    for (qsizetype i = 0; i < keys.size(); ++i) {
        if (partners[size_t(i)] != -1)
            continue;
        const auto found = waiting.find(keys[i]);
        if (found == waiting.end() || found->empty())
            continue;
        partners[size_t(i)] = found->back();
        taken[size_t(found->back())] = true;
        found->pop_back();
    }
}

Partners partnersOf(const MatchKeys &list, const MatchKeys &other)
{
    Partners partners(size_t(list.exact.size()), -1);
    if (list.exact == other.exact) { // nearly always
        for (size_t i = 0; i < partners.size(); ++i)
            partners[i] = int(i);
        return partners;
    }
    std::vector<bool> taken(size_t(other.exact.size()), false);
    matchKeys(list.exact, other.exact, partners, taken);
    matchKeys(list.loose, other.loose, partners, taken);
    return partners;
}

/// The elements of a list that no element of the base belongs to.
std::vector<int> leftOf(const MatchKeys &list, const Partners &ofBase, MatchKeys &left)
{
    std::vector<bool> taken(size_t(list.exact.size()), false);
    for (const int at : ofBase) {
        if (at != -1)
            taken[size_t(at)] = true;
    }
    std::vector<int> places;
    for (int i = 0; i < list.exact.size(); ++i) {
        if (taken[size_t(i)])
            continue;
        places.push_back(i);
        left.exact << list.exact[i];
        left.loose << list.loose[i];
    }
    return places;
}

} // namespace

std::vector<ThreePlaces> matchThree(const MatchKeys &base, const MatchKeys &ours,
                                    const MatchKeys &theirs)
{
    const Partners inOurs = partnersOf(base, ours);
    const Partners inTheirs = partnersOf(base, theirs);
    std::vector<ThreePlaces> result;
    result.reserve(inOurs.size());
    for (size_t i = 0; i < inOurs.size(); ++i)
        result.push_back({int(i), inOurs[i], inTheirs[i]});

    MatchKeys leftInOurs;
    MatchKeys leftInTheirs;
    const std::vector<int> ourPlaces = leftOf(ours, inOurs, leftInOurs);
    const std::vector<int> theirPlaces = leftOf(theirs, inTheirs, leftInTheirs);
    const Partners both = partnersOf(leftInOurs, leftInTheirs);
    std::vector<bool> taken(theirPlaces.size(), false);
    for (size_t i = 0; i < ourPlaces.size(); ++i) {
        if (both[i] != -1)
            taken[size_t(both[i])] = true;
        result.push_back({-1, ourPlaces[i], both[i] == -1 ? -1 : theirPlaces[size_t(both[i])]});
    }
    for (size_t i = 0; i < theirPlaces.size(); ++i) {
        if (!taken[i])
            result.push_back({-1, -1, theirPlaces[i]});
    }
    return result;
}

} // namespace VelkRelease
