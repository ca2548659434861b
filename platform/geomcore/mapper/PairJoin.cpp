#include "PairJoin.h"

#include "SimilarCandidates.h"

#include <algorithm>

namespace Mapper {

namespace {

/// Rows around a row that are looked at before all are.
constexpr int AtHand = 64;

} // namespace

PairJoin::PairJoin(int sourceRows, int targetRows)
    : m_hits(size_t(sourceRows), -1)
    , m_several(sourceRows, false)
    , m_claims(size_t(targetRows), 0)
    , m_claimsKnownTo(targetRows)
{
}

PairJoin::~PairJoin() = default;

std::shared_ptr<const SimilarCandidates> PairJoin::freeCandidates(const TargetTable &table) const
{
    std::call_once(m_freeOnce, [&] {
        VKTab::LineSet free(int(m_claims.size()), true);
        for (int hit : m_hits) {
            if (hit >= 0)
                free.remove(hit);
        }
        std::vector<int> rows;
        free.forEach([&](int row) { rows.push_back(row); });
        m_free = std::make_shared<SimilarCandidates>(table, std::move(rows));
    });
    return m_free;
}

PairJoin::Neighbours PairJoin::neighbours(int sourceRow) const
{
    const int from = std::max(0, sourceRow - AtHand);
    const int to = std::min(sourceRows(), sourceRow + AtHand + 1);
    Neighbours near{sourceRow - 1, sourceRow + 1};
    while (near.above >= from && hit(near.above) < 0)
        --near.above;
    while (near.below < to && hit(near.below) < 0)
        ++near.below;
    if ((near.above >= from || from == 0) && (near.below < to || to == sourceRows()))
        return near;
    std::call_once(m_once, [this] { findNeighbours(); });
    return {m_above[size_t(sourceRow)], m_below[size_t(sourceRow)]};
}

void PairJoin::findNeighbours() const
{
    const int count = int(m_hits.size());
    m_above.resize(m_hits.size());
    m_below.resize(m_hits.size());
    for (int row = 0, last = -1; row < count; ++row) {
        m_above[size_t(row)] = last;
        last = hit(row) >= 0 ? row : last;
    }
    for (int row = count - 1, next = count; row >= 0; --row) {
        m_below[size_t(row)] = next;
        next = hit(row) >= 0 ? row : next;
    }
}

} // namespace Mapper
