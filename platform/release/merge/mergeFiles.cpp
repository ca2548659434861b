#include "mergeFiles.h"

#include "mergeOrder.h"
#include "mergeReleases.h"

#include <core/json/PJsonValue.h>

#include <algorithm>
#include <optional>

namespace VelkRelease {

namespace {

bool sameRelease(const ReleaseMappingC &a, const ReleaseMappingC &b)
{
    PJsonValue first;
    PJsonValue second;
    a.toJson(first, false);
    b.toJson(second, false);
    return first.toByteArray(true) == second.toByteArray(true);
}

/// What the file has of a date; none if it has nothing.
std::optional<ReleaseMappingC> releaseOf(const MappingFile &file, const QString &date)
{
    return file.contains(date) ? std::optional(file.release(date)) : std::nullopt;
}

std::vector<int> numbersOf(const MappingFile &file, QStringList &dates)
{
    std::vector<int> numbers;
    for (const QString &date : file.sourceDates()) {
        if (!dates.contains(date))
            dates << date;
        numbers.push_back(int(dates.indexOf(date)));
    }
    return numbers;
}

MergeResult unmerged(const ReleaseMappingC &release)
{
    MergeResult result;
    result.release = release;
    return result;
}

} // namespace

bool MergedFile::clashes() const
{
    return !keptDates.isEmpty() ||
           std::ranges::any_of(releases, [](const auto &r) { return !r.clashes.isEmpty(); });
}

MergedFile mergeFiles(const MappingFile &base, const MappingFile &ours, const MappingFile &theirs,
                      const MergeOptions &options)
{
    QStringList dates;
    OrderInput input;
    input.base = numbersOf(base, dates);
    input.ours = numbersOf(ours, dates);
    input.theirs = numbersOf(theirs, dates);

    MergedFile merged;
    QList<std::optional<MergeResult>> results;
    for (const QString &date : dates) {
        const auto b = releaseOf(base, date);
        const auto o = releaseOf(ours, date);
        const auto t = releaseOf(theirs, date);
        std::optional<MergeResult> result;
        if (o && t) {
            ReleaseMappingC empty;
            empty.setTargetDate(o->getTargetDate());
            result = mergeReleases(b.value_or(empty), *o, *t, options);
        } else if (const auto &left = o ? o : t; left && (!b || !sameRelease(*b, *left))) {
            result = unmerged(*left);
            if (b)
                merged.keptDates << date;
        }
        results << result;
    }
    const auto stays = [&](int number) {
        return results[number].has_value();
    };
    const auto name = [&](int number) {
        return dates[number];
    };
    for (const int number : mergeOrder(input, stays, name).order) {
        merged.file.setRelease(results[number]->release);
        merged.releases << *results[number];
    }
    return merged;
}

} // namespace VelkRelease
