#include "CellChange.h"

#include "CellValues.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <optional>

namespace Plan {

namespace {

std::uint64_t mixed(std::uint64_t hash, std::uint64_t value)
{
    hash = (hash ^ value) * 0x9e3779b97f4a7c15ULL;
    return hash ^ (hash >> 29);
}

std::uint64_t hashOf(std::span<const int> tokens, size_t begin, size_t end)
{
    std::uint64_t hash = 0x51ed270b;
    for (size_t i = begin; i < end; ++i)
        hash = mixed(hash, std::uint64_t(tokens[i]) + 1);
    return hash;
}

/// The power of ten that makes a number one of four digits before the point.
double scaleOf(double number)
{
    static const auto powers = [] {
        std::array<double, 24> all{};
        for (size_t i = 0; i < all.size(); ++i)
            all[i] = std::pow(10.0, double(i) - 8);
        return all;
    }();
    static const auto scales = [] {
        std::array<double, 24> all{};
        for (size_t i = 0; i < all.size(); ++i)
            all[i] = std::pow(10.0, 3 - (double(i) - 8));
        return all;
    }();
    // Measures have such sizes; a search in a few powers is faster than a logarithm.
    if (number < powers.front() || number >= powers.back())
        return std::pow(10.0, 3 - std::floor(std::log10(number)));
    const auto above = std::upper_bound(powers.begin(), powers.end(), number);
    return scales[size_t(above - powers.begin()) - 1];
}

std::uint64_t roundedBits(double number)
{
    return number == 0 ? 0 : std::bit_cast<std::uint64_t>(roundedChange(number));
}

/// The factor between all tokens that differ, if these are numbers and have one in common.
std::optional<double> commonFactor(const CellValues &values, std::span<const int> a,
                                   std::span<const int> b)
{
    std::optional<double> factor;
    for (size_t i = 0; i < a.size(); ++i) {
        if (a[i] == b[i])
            continue;
        if (!values.isNumberToken(a[i]) || !values.isNumberToken(b[i]))
            return std::nullopt;
        const double number = values.tokenNumber(a[i]);
        const double other = values.tokenNumber(b[i]);
        if (number == 0 || other == 0)
            return std::nullopt;
        if (!factor)
            factor = other / number;
        else if (std::abs(other / number / *factor - 1) > 1e-3)
            return std::nullopt;
    }
    return factor;
}

} // namespace

std::uint64_t keyOf(std::uint64_t a, std::uint64_t b, std::uint64_t c, std::uint64_t d)
{
    const std::uint64_t key = mixed(mixed(mixed(mixed(0xcbf29ce484222325ULL, a), b), c), d);
    return key == 0 ? 1 : key;
}

double roundedChange(double number)
{
    if (number == 0)
        return 0;
    const double scale = scaleOf(std::abs(number));
    return std::round(number * scale) / scale;
}

std::uint64_t keyOfFactor(int variable, double factor)
{
    return keyOf(std::uint64_t(variable), 3, roundedBits(factor), 0);
}

std::uint64_t keyOfOffset(int variable, double offset)
{
    return keyOf(std::uint64_t(variable), 4, roundedBits(offset), 0);
}

CellChange changeBetween(const CellValues &values, int variable, int oldValue, int newValue)
{
    const auto v = std::uint64_t(variable);
    const std::span<const int> a = values.value(oldValue).tokens;
    const std::span<const int> b = values.value(newValue).tokens;
    CellChange change;
    change.keys[CellChange::Whole] = keyOf(v, 1, std::uint64_t(oldValue), std::uint64_t(newValue));
    size_t begin = 0;
    while (begin < a.size() && begin < b.size() && a[begin] == b[begin])
        ++begin;
    size_t end = 0;
    while (end + begin < a.size() && end + begin < b.size() &&
           a[a.size() - 1 - end] == b[b.size() - 1 - end])
        ++end;
    change.middleBegin = int(begin);
    change.middleEnd = int(a.size() - end);
    if (begin > 0 || end > 0) {
        change.keys[CellChange::Middle] =
            keyOf(v, 2, hashOf(a, begin, a.size() - end), hashOf(b, begin, b.size() - end));
    }
    if (a.size() != b.size())
        return change;
    if (const auto factor = commonFactor(values, a, b)) {
        change.factor = *factor;
        change.keys[CellChange::Factor] = keyOfFactor(variable, *factor);
    }
    if (begin + end + 1 == a.size() && values.isNumberToken(a[begin]) &&
        values.isNumberToken(b[begin])) {
        change.offset = values.tokenNumber(b[begin]) - values.tokenNumber(a[begin]);
        change.keys[CellChange::Offset] = keyOfOffset(variable, change.offset);
    }
    return change;
}

} // namespace Plan
