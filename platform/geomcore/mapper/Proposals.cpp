#include "Proposals.h"

#include "ExactSearch.h"
#include "PairJoin.h"
#include "SimilarityRules.h"
#include "SimilaritySearch.h"
#include "TargetTable.h"

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/TableData.h>

namespace Mapper {

namespace {

/// Lines of the same identity that are compared.
constexpr int MaxSameIdentity = 64;

/// The row that continues the order of the settled neighbours; -1 if these do not fit together.
int rowInOrder(const PairJoin &join, int sourceRow, int targetRows)
{
    const PairJoin::Neighbours near = join.neighbours(sourceRow);
    const int above = near.above < 0 ? -1 : join.hit(near.above);
    const bool last = near.below >= join.sourceRows();
    const int below = last ? targetRows : join.hit(near.below);
    return below - above == near.below - near.above ? above + (sourceRow - near.above) : -1;
}

} // namespace

bool enoughCompared(int compared, int values)
{
    return compared > 0 && (compared == values || (compared >= 2 && 2 * compared >= values));
}

int countValues(const LineInput &line, const SourceTable &source)
{
    if (line.view)
        return source.countValues(*line.view);
    int count = 0;
    for (const MapVarValueC &value : *line.varset)
        count += value.getValue().toString().trimmed().isEmpty() ? 0 : 1;
    return count;
}

Proposals::Proposals(const TargetSet &targets, const std::vector<const BoundTarget *> &open)
    : m_targets(targets)
    , m_open(open)
{
}

Proposal Proposals::find(const LineInput &line) const
{
    for (Rule rule : {&Proposals::byIdentity, &Proposals::byOrder, &Proposals::bySimilarity}) {
        const Proposal proposal = firstOf(rule, line);
        if (proposal.target)
            return proposal;
    }
    return {};
}

Proposal Proposals::firstOf(Rule rule, const LineInput &line) const
{
    TargetValues values;
    for (const BoundTarget *target : m_open) {
        target->takeValues(line, values);
        if (values.search->variables().empty())
            continue;
        const int row = (this->*rule)(*target, line, values);
        if (row >= 0)
            return {target, row};
    }
    return {};
}

int Proposals::byIdentity(const BoundTarget &target, const LineInput &line,
                          const TargetValues &values) const
{
    std::vector<int> rows = target.identity().rows(line, values, MaxSameIdentity);
    if (target.shownOnly())
        std::erase_if(rows, [&](int row) { return !target.table()->isShown(row); });
    if (rows.empty())
        return -1;
    const SimilaritySearch::Result result =
        target.similarity(line, values).best(values.texts, rows);
    const bool connected = m_targets.rank(target) != NameRank::Other;
    return connected || result.best >= SimilarThreshold ? result.row : -1;
}

int Proposals::byOrder(const BoundTarget &target, const LineInput &line,
                       const TargetValues &values) const
{
    const PairJoin *join = line.row >= 0 ? target.join() : nullptr;
    if (!join)
        return -1;
    const int row = rowInOrder(*join, line.row, target.table()->data().rowCount());
    if (row < 0 || (target.shownOnly() && !target.table()->isShown(row)))
        return -1;
    const SimilaritySearch search = target.similarity(line, values);
    const double score = search.similarity(values.texts, row) + OrderWeight;
    if (score < SimilarThreshold)
        return -1;
    const SimilaritySearch::Result result = search.find(values.texts, row, target.shownOnly());
    const double other = result.row == row ? result.second : result.best;
    return score - other >= ClearMargin ? row : -1;
}

int Proposals::bySimilarity(const BoundTarget &target, const LineInput &line,
                            const TargetValues &values) const
{
    const int compared = values.texts.countValues();
    if (compared < 2 || !enoughCompared(compared, countValues(line, m_targets.source())))
        return -1;
    const SimilaritySearch::Result result =
        target.similarity(line, values).find(values.texts, -1, target.shownOnly());
    const bool clear =
        result.best >= SimilarThreshold && result.best - result.second >= ClearMargin;
    return clear ? result.row : -1;
}

} // namespace Mapper
