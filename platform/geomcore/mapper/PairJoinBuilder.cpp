#include "PairJoinBuilder.h"

#include "BoundTarget.h"
#include "CertaintyRules.h"
#include "ExactSearch.h"
#include "SourceTable.h"
#include "TargetTable.h"

#include <core/parallel/WorkerPool.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/LineIndex.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>
#include <geomcore/table/ValueRangeIterator.h>
#include <geomcore/value/ResolveRangeOptionsC.h>

#include <algorithm>
#include <atomic>

namespace Mapper {

using VKTab::LineIndex;
using VKTab::LineView;

namespace {

/// Equal rows of one line that are counted as claimed by it.
constexpr int MaxClaimed = 16;
/// A line with so many combinations is not certain: there may be more than are walked.
constexpr int MaxCombinations = 100'000;
/// Rows that a thread looks up in one go: a multiple of what a word of a set holds.
constexpr int RowsAStep = 16384;
/// Of these, as many as are looked at again while their bytes are at hand.
constexpr int RowsAtHand = 256;
/// Equal rows that are stepped over in search of the next one to pair off.
constexpr int MaxSteps = 1000;

LineInput inputOf(const SourceTable &source, int row, const LineView &view)
{
    LineInput input;
    input.lineId = source.data()->lineNumber(row);
    input.row = row;
    input.view = &view;
    return input;
}

} // namespace

PairJoinBuilder::PairJoinBuilder(const SourceTable &source, const BoundTarget &target,
                                 const QStringList &ranges)
    : m_source(source)
    , m_target(target)
    , m_ranges(ranges)
    , m_join(
          std::make_shared<PairJoin>(source.data()->rowCount(), target.table()->data().rowCount()))
{
}

std::shared_ptr<const PairJoin> PairJoinBuilder::build()
{
    if (m_target.variables().empty() && m_ranges.isEmpty())
        return m_join;
    const bool simple =
        m_ranges.isEmpty() && m_source.content().isPlain() && !m_target.plainColumns().empty();
    const bool done =
        simple ? joinInPlace(*m_target.table()->exactSearch(m_target.variables())->onlyIndex())
               : joinLineByLine();
    if (!done)
        return nullptr;
    pairOff();
    computeAgreement();
    return m_join;
}

bool PairJoinBuilder::joinInPlace(const LineIndex &index)
{
    const int rows = m_source.data()->rowCount();
    const std::vector<VKTab::CellKey> noValues(index.keys().size());
    const int blank = index.find(noValues); // a line without any value equals nothing
    m_join->m_undisputed = VKTab::LineSet(rows, false);
    m_join->m_knowsAll = m_target.conditions().isEmpty();
    std::atomic<int> lines = 0;
    std::atomic<int> hits = 0;
    const int steps = (rows + RowsAStep - 1) / RowsAStep;
    const auto join = [&](int step) {
        LineIndex::Probe probe(index, *m_source.data(), m_target.plainColumns());
        PartOfJoin part{probe, index, blank};
        const int end = std::min(rows, (step + 1) * RowsAStep);
        for (int row = step * RowsAStep; row < end; row += RowsAtHand)
            joinRows(row, std::min(RowsAtHand, end - row), part);
        lines += part.lines;
        hits += part.hits;
    };
    if (!WorkerPool::instance().run(steps, join, [&](int) { return !m_source.isCanceled(); }))
        return false;
    m_lines = lines;
    m_hits = hits;
    WorkerPool::instance().run(steps, [&](int step) {
        for (int row = step * RowsAStep; row < std::min(rows, (step + 1) * RowsAStep); ++row) {
            if (m_join->isUndisputed(row) && m_join->claims(m_join->hit(row)) > 1)
                m_join->m_undisputed.remove(row);
        }
    });
    return true;
}

/// Touches nothing but what belongs to these rows, and claims.
void PairJoinBuilder::joinRows(int first, int count, PartOfJoin &part)
{
    const bool conditional = !m_target.conditions().isEmpty();
    const bool alone = WorkerPool::instance().threads() < 2;
    part.probe.find(first, std::span(m_join->m_hits).subspan(size_t(first), size_t(count)));
    for (int row = first; row < first + count; ++row) {
        int &hit = m_join->m_hits[size_t(row)];
        const bool holds =
            !conditional || m_target.conditions().holds(LineView(*m_source.data(), row));
        part.lines += holds ? 1 : 0;
        if (!holds || hit < 0 || hit == part.blank) {
            hit = -1;
            continue;
        }
        ++part.hits;
        if (!part.index.isUnique(hit))
            m_join->m_several.insert(row);
        else if (m_target.textsAreStored() && m_target.hasSameTexts(row, hit))
            m_join->m_undisputed.insert(row);
        if (alone)
            claim(hit);
        else
            claimBesideOthers(hit);
    }
}

bool PairJoinBuilder::joinLineByLine()
{
    const int count = m_ranges.isEmpty() ? 0 : m_source.data()->rowCount();
    for (VKTab::LineSet *rows : {&m_join->m_divided, &m_join->m_taken, &m_join->m_refused})
        *rows = VKTab::LineSet(count, false);
    m_claimedBy.resize(size_t(m_target.table()->data().rowCount()));
    for (int row = 0; row < m_source.data()->rowCount(); ++row) {
        joinLine(row);
        if (m_source.isCanceled())
            return false;
    }
    return true;
}

void PairJoinBuilder::joinLine(int row)
{
    const int before = m_lines;
    bool taken = false;
    joinView(row, LineView(m_source.content(), m_source.data()->lineId(row)), taken);
    if (!m_ranges.isEmpty() && joinCombinations(row) == 0)
        (taken ? m_join->m_taken : m_join->m_refused).insert(row);
    m_lines = std::min(m_lines, before + 1); // however many combinations
    m_hits += m_join->m_hits[size_t(row)] >= 0 ? 1 : 0;
}

int PairJoinBuilder::joinCombinations(int row)
{
    VKTab::Line line = m_source.content().getLine(m_source.data()->lineId(row), true);
    const VKTab::ResolveRangeOptionsC options;
    VKTab::ValueRangeIterator combinations(m_source.content(), line, options);
    combinations.setVariablesToResolve(m_ranges);
    int count = 0;
    while (combinations.next()) {
        if (++count == MaxCombinations) {
            m_join->m_divided.insert(row);
            break;
        }
        if (m_source.isCanceled())
            break;
        bool taken = false;
        const int hit = joinView(row, LineView(line), taken);
        (taken ? m_join->m_taken : m_join->m_refused).insert(row);
        if (hit >= 0 && hit != m_join->m_hits[size_t(row)])
            m_join->m_divided.insert(row);
    }
    return count;
}

int PairJoinBuilder::joinView(int row, const LineView &view, bool &taken)
{
    const LineInput input = inputOf(m_source, row, view);
    taken = m_target.conditionsHold(input);
    if (!taken)
        return -1;
    ++m_lines;
    m_target.takeValues(input, m_values);
    const std::vector<int> rows = m_target.equalRows(m_values, MaxClaimed + 1);
    if (rows.empty())
        return -1;
    const BoundTarget::Hit hit = m_target.findEqual(m_values);
    if (m_join->m_hits[size_t(row)] < 0) {
        m_join->m_hits[size_t(row)] = hit.row;
        if (hit.several)
            m_join->m_several.insert(row);
    }
    claimRows(row, rows);
    return hit.row;
}

void PairJoinBuilder::claimRows(int row, const std::vector<int> &rows)
{
    const bool first = m_values.search->onlyIndex() != nullptr;
    const size_t count = first ? 1 : std::min(rows.size(), size_t(MaxClaimed));
    for (size_t i = 0; i < count; ++i) {
        int &claimedBy = m_claimedBy[size_t(rows[i])];
        if (claimedBy != row + 1)
            claim(rows[i]);
        claimedBy = row + 1;
    }
    if (!first && rows.size() > count)
        m_join->m_claimsKnownTo = std::min(m_join->m_claimsKnownTo, rows[count - 1]);
}

void PairJoinBuilder::claim(int targetRow)
{
    quint8 &claims = m_join->m_claims[size_t(targetRow)];
    claims = quint8(std::min(claims + 1, 2));
}

void PairJoinBuilder::claimBesideOthers(int targetRow)
{
    const std::atomic_ref claims(m_join->m_claims[size_t(targetRow)]);
    quint8 known = claims.load(std::memory_order_relaxed);
    while (known < 2 && !claims.compare_exchange_weak(known, quint8(known + 1))) {
    }
}

void PairJoinBuilder::pairOff()
{
    if (m_join->m_several.count() == 0 ||
        !m_target.table()->exactSearch(m_target.variables())->onlyIndex())
        return;
    findOutnumbered();
    int last = -1;
    for (int row = 0; row < int(m_join->m_hits.size()); ++row) {
        int &hit = m_join->m_hits[size_t(row)];
        if (hit >= 0 && m_join->isSeveral(row) && m_join->claims(hit) > 1)
            hit = nextEqual(hit, last);
        last = hit >= 0 ? hit : last;
    }
}

/// Before lines are paired off: each has the first of its equal rows.
void PairJoinBuilder::findOutnumbered()
{
    const LineIndex &index = *m_target.table()->exactSearch(m_target.variables())->onlyIndex();
    std::vector<int> lines(m_join->m_claims.size(), 0);
    bool keepsDoubles = false;
    for (int row = 0; row < int(m_join->m_hits.size()); ++row) {
        const int hit = m_join->hit(row);
        if (hit < 0 || m_join->claims(hit) < 2)
            continue;
        ++lines[size_t(hit)];
        keepsDoubles = keepsDoubles || m_join->isSeveral(row);
    }
    if (!keepsDoubles)
        return;
    for (size_t first = 0; first < lines.size(); ++first) {
        for (int row = int(first); row >= 0 && lines[first] > 0; row = index.nextOf(row))
            lines[first] -= isProposable(row) ? 1 : 0;
    }
    m_join->m_outnumbered = VKTab::LineSet(int(m_join->m_hits.size()), false);
    for (int row = 0; row < int(m_join->m_hits.size()); ++row) {
        if (m_join->hit(row) >= 0 && lines[size_t(m_join->hit(row))] > 0)
            m_join->m_outnumbered.insert(row);
    }
}

bool PairJoinBuilder::isProposable(int row) const
{
    return !m_target.shownOnly() || m_target.table()->isShown(row);
}

int PairJoinBuilder::nextEqual(int first, int after)
{
    const LineIndex &index = *m_target.table()->exactSearch(m_target.variables())->onlyIndex();
    int &lastPaired = m_lastOfRing.try_emplace(first, -1).first->second;
    int row = lastPaired >= 0 && lastPaired <= after ? lastPaired : first;
    for (int steps = 0; row >= 0 && steps < MaxSteps; ++steps) {
        if (row > after && isProposable(row))
            return lastPaired = row;
        row = index.nextOf(row);
    }
    return lastPaired = first;
}

void PairJoinBuilder::computeAgreement()
{
    int expected = std::min(m_lines, m_target.table()->data().rowCount());
    int hits = m_hits;
    if (hits < EnoughAgreement * expected && m_target.identity().isValid())
        countKnown(expected, hits);
    m_join->m_agreement = expected == 0 ? 1 : std::min(1.0, double(hits) / expected);
}

void PairJoinBuilder::countKnown(int &lines, int &hits) const
{
    int known = 0;
    int hitsAmongThem = 0;
    TargetValues values;
    for (int row = 0; row < m_source.data()->rowCount(); ++row) {
        const LineView view(m_source.content(), m_source.data()->lineId(row));
        const LineInput input = inputOf(m_source, row, view);
        if (!m_target.conditionsHold(input))
            continue;
        m_target.takeValues(input, values);
        if (m_target.identity().rows(input, values, 1).empty())
            continue;
        ++known;
        hitsAmongThem += m_join->hit(row) >= 0 ? 1 : 0;
    }
    if (known == 0) // what identifies lines here does not there
        return;
    lines = known;
    hits = hitsAmongThem;
}

} // namespace Mapper
