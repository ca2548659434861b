#include "KnownLines.h"

#include "LineCells.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>

namespace VelkRelease {

namespace {

/// A variable with so many of its values in the new table was changed in some lines, not as a
/// whole: it tells the lines apart as before.
constexpr double MostStay = 0.5;

} // namespace

int KnownLines::variable(size_t place) const
{
    return tables.source->variables()[size_t(match->sourceColumns()[place])];
}

void KnownLines::findPairs()
{
    for (const TableMatch::NearPair &found : match->nearPairs())
        pairs.push_back({found.sourceRow, found.targetRow, {found.differing}});
    std::vector<size_t> staying;
    for (size_t place = 0; place < match->sourceColumns().size(); ++place) {
        if (match->valueShare(place) >= MostStay)
            staying.push_back(place);
    }
    if (staying.size() + 1 >= match->sourceColumns().size()) // near pairs say it all
        return;
    std::vector<char> isKnown(size_t(tables.source->rowCount()), 0);
    for (const Pair &pair : pairs)
        isKnown[size_t(pair.sourceRow)] = 1;
    for (const auto &[sourceRow, targetRow] : match->pairsBy(staying)) {
        if (isKnown[size_t(sourceRow)] || match->isEqual(sourceRow))
            continue;
        Pair pair{sourceRow, targetRow, {}};
        for (size_t place = 0; place < match->sourceColumns().size(); ++place) {
            if (tables.source->cell(sourceRow, match->sourceColumns()[place]) !=
                tables.target->cell(targetRow, match->targetColumns()[place]))
                pair.differing.push_back(place);
        }
        pairs.push_back(std::move(pair));
    }
    std::ranges::sort(pairs, {}, &Pair::sourceRow);
}

std::vector<KnownLines> KnownLines::of(const std::vector<Tables> &projects)
{
    std::vector<KnownLines> known(projects.size());
    WorkerPool::instance().run(int(projects.size()), [&](int i) {
        KnownLines &lines = known[size_t(i)];
        lines.tables = projects[size_t(i)];
        const auto &[source, target] = lines.tables;
        if (!source || !target || std::max(source->rowCount(), target->rowCount()) > MostLines)
            return;
        lines.match.emplace(*source, *target);
        lines.findPairs();
    });
    return known;
}

} // namespace VelkRelease
