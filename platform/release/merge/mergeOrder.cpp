#include "mergeOrder.h"

#include <algorithm>
#include <map>
#include <unordered_set>

namespace VelkRelease {

namespace {

using Numbers = std::vector<int>;
using NumberSet = std::unordered_set<int>;

constexpr int Front = -1;

Numbers restricted(const Numbers &list, const NumberSet &to)
{
    Numbers result;
    std::ranges::copy_if(list, std::back_inserter(result),
                         [&](int number) { return to.contains(number); });
    return result;
}

NumberSet commonOf(const OrderInput &input)
{
    const NumberSet ours(input.ours.begin(), input.ours.end());
    const NumberSet theirs(input.theirs.begin(), input.theirs.end());
    NumberSet common;
    for (const int number : input.base) {
        if (ours.contains(number) && theirs.contains(number))
            common.insert(number);
    }
    return common;
}

/// What stands behind each number of \a common, and in front of all.
std::map<int, Numbers> groupsOf(const Numbers &list, const NumberSet &common,
                                const std::function<bool(int)> &stays)
{
    std::map<int, Numbers> groups;
    int anchor = Front;
    for (const int number : list) {
        if (common.contains(number))
            anchor = number;
        else if (stays(number))
            groups[anchor].push_back(number);
    }
    return groups;
}

bool goesFirst(const Numbers &a, const Numbers &b, const std::function<QString(int)> &name)
{
    return !std::lexicographical_compare(b.begin(), b.end(), a.begin(), a.end(),
                                         [&](int x, int y) { return name(x) < name(y); });
}

} // namespace

MergedOrder mergeOrder(const OrderInput &input, const std::function<bool(int)> &stays,
                       const std::function<QString(int)> &name)
{
    const NumberSet common = commonOf(input);
    const Numbers base = restricted(input.base, common);
    const Numbers ours = restricted(input.ours, common);
    const Numbers theirs = restricted(input.theirs, common);
    MergedOrder merged;
    merged.clashes = ours != base && theirs != base && ours != theirs;
    const Numbers &lead = theirs == base ? ours : theirs;

    const auto ourGroups = groupsOf(input.ours, common, stays);
    const auto theirGroups = groupsOf(input.theirs, common, stays);
    NumberSet placed;
    const auto place = [&](int number) {
        if (placed.insert(number).second)
            merged.order.push_back(number);
    };
    const auto placeGroups = [&](int anchor) {
        const auto a = ourGroups.find(anchor);
        const auto b = theirGroups.find(anchor);
        const Numbers first = a == ourGroups.end() ? Numbers() : a->second;
        const Numbers second = b == theirGroups.end() ? Numbers() : b->second;
        const bool inOrder = goesFirst(first, second, name);
        std::ranges::for_each(inOrder ? first : second, place);
        std::ranges::for_each(inOrder ? second : first, place);
    };
    merged.order.reserve(input.ours.size() + input.theirs.size());
    placeGroups(Front);
    for (const int number : lead) {
        if (stays(number))
            place(number);
        placeGroups(number);
    }
    return merged;
}

} // namespace VelkRelease
