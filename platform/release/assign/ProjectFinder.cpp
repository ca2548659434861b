#include "ProjectFinder.h"

#include "LineCells.h"
#include "ProjectName.h"
#include "ReleaseIndex.h"
#include "RuleProposals.h"
#include "TableMatch.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>
#include <optional>
#include <tuple>

namespace VelkRelease {

namespace {

/// So many tables are compared line by line.
constexpr int Compared = 64;
/// So many projects of kind 3 that hold half of the lines, and of kind 4, are given.
constexpr size_t MaxSimilar = 4;
/// So many projects of kind 3 are given.
constexpr size_t MaxParts = 8;

/// So much more often a table has the lines that moved there than those that did not.
constexpr double ReceivedMore = 4;

/// Least share of a project's values that a table has to have where no line shows the way.
constexpr double LeastColumns = 0.5;
/// Tables with so much of the best one's share are as good.
constexpr double AsGood = 0.9;

struct Candidate
{
    int table = 0;
    double likeness = 0;
    TableMatch match;
    double score = 0;
    std::shared_ptr<const LineCells> renamed; ///< What match compares, if not the lines themselves.

    [[nodiscard]] auto rank() const { return std::tuple(-score, -likeness, table); }
};
using Candidates = std::vector<Candidate>;

/// One search.
class Search
{
public:
    Search(const ReleaseIndex &index, const QString &projectPath, const LineCells &cells,
           bool isFolderKept = true)
        : m_index(index)
        , m_path(projectPath)
        , m_name(foldedName(projectPath))
        , m_cells(cells)
        , m_isFolderKept(isFolderKept)
        , m_allRows(size_t(cells.rowCount()))
    {
        std::iota(m_allRows.begin(), m_allRows.end(), 0);
    }

    std::vector<int> run()
    {
        addNamed();
        const bool named = !m_found.empty();
        m_rest = m_allRows;
        for (const int table : m_found)
            takeFound(TableMatch(m_cells, m_index.table(table)));
        if (!m_rest.empty())
            searchRest(named);
        return m_found;
    }

    std::vector<int> runWithRoom(const ProjectFinder::HasRoom &hasRoom);

private:
    [[nodiscard]] Candidate candidate(int table) const
    {
        return {table, nameLikeness(m_name, m_index.name(table)),
                TableMatch(m_cells, m_index.table(table)), 0, nullptr};
    }

    /// The same table, if it is related under the new names of some variables.
    [[nodiscard]] std::optional<Candidate> renamedCandidate(const Candidate &former) const;

    /// Takes the lines that this table has out of the rest.
    void takeFound(const TableMatch &match)
    {
        std::erase_if(m_rest, [&match](int row) {
            return match.isEqual(row) || match.isHeld(row) || match.hasKey(row);
        });
    }

    /// Whether a table has lines of the rest much more often than those that others have, equal or
    /// nearly so: one that has both alike has standard lines by itself, and nothing moved there.
    [[nodiscard]] bool receives(Candidate candidate) const
    {
        if (m_rest.size() == m_allRows.size())
            return true;
        candidate.match.findNearLines();
        const int rest = int(m_rest.size());
        const int others = m_cells.rowCount() - rest;
        const int ofRest = candidate.match.heldCount(m_rest);
        const int ofOthers = candidate.match.heldCount(m_allRows) - ofRest;
        return (ofRest + 0.5) / (rest + 1) >= ReceivedMore * (ofOthers + 0.5) / (others + 1);
    }

    void add(const Candidate &found)
    {
        m_found.push_back(found.table);
        takeFound(found.match);
    }

    void addNamed();
    [[nodiscard]] bool arePartsOfOne(const Candidates &parts) const;
    [[nodiscard]] Candidates partsByName() const;
    [[nodiscard]] Candidates ranked(const std::vector<int> &tables) const;
    void searchRest(bool named);
    [[nodiscard]] Candidates related(bool named,
                                     const ProjectFinder::HasRoom &hasRoom = nullptr) const;
    void addSimilar(Candidates &candidates);
    [[nodiscard]] double chanceOf(const Candidate &candidate) const;
    void addParts(Candidates &candidates);
    [[nodiscard]] std::vector<int> byColumns(const ProjectFinder::HasRoom &hasRoom,
                                             double leastScore) const;
    /// Whether a table lies in the folder of the project, if that tells anything.
    [[nodiscard]] bool isNear(int table) const
    {
        return m_isFolderKept && folderInCatalog(m_index.path(table)) == folderInCatalog(m_path);
    }
    void addOnlyHolders(Candidates &candidates);

    const ReleaseIndex &m_index;
    const QString m_path;
    const QString m_name;
    const LineCells &m_cells;
    const bool m_isFolderKept;
    std::vector<int> m_allRows;
    std::vector<int> m_rest;
    std::vector<int> m_found;
};

void Search::addNamed()
{
    if (const int same = m_index.withPath(pathInCatalog(m_path)); same >= 0) {
        m_found = {same};
        return;
    }
    const Candidates candidates = ranked(m_index.withName(m_name));
    if (candidates.empty()) {
        for (const Candidate &part : partsByName())
            m_found.push_back(part.table);
    }
    for (const Candidate &named : candidates) {
        if (m_found.empty() || named.match.anyFound())
            m_found.push_back(named.table);
    }
}

/// Several tables, all of the same variables, of which the project had some.
bool Search::arePartsOfOne(const Candidates &parts) const
{
    return parts.size() > 1 && std::ranges::all_of(parts, [&](const Candidate &part) {
               return part.match.commonCount() > 0 &&
                      m_index.table(part.table).variables() ==
                          m_index.table(parts.front().table).variables();
           });
}

Candidates Search::partsByName() const
{
    Candidates parts = ranked(m_index.withNameBegin(m_name));
    if (parts.size() > MaxParts)
        parts.erase(parts.begin() + MaxParts, parts.end());
    std::vector<int> rest = m_allRows;
    for (const Candidate &part : parts)
        std::erase_if(rest, [&part](int row) { return part.match.isHeld(row); });
    if (2 * rest.size() <= m_allRows.size() || arePartsOfOne(parts))
        return parts;
    const QString folder = folderInCatalog(m_path);
    std::erase_if(parts, [&](const Candidate &part) {
        return folderInCatalog(m_index.path(part.table)) != folder || !part.match.hasVariables();
    });
    return parts;
}

Candidates Search::ranked(const std::vector<int> &tables) const
{
    Candidates candidates;
    for (const int table : tables) {
        candidates.push_back(candidate(table));
        candidates.back().score = candidates.back().match.score(m_allRows);
    }
    std::ranges::sort(candidates, {}, &Candidate::rank);
    return candidates;
}

void Search::searchRest(bool named)
{
    Candidates candidates = related(named);
    if (!named) {
        addSimilar(candidates);
        addParts(candidates);
    }
    addOnlyHolders(candidates);
}

/// Tables that share enough variables. If none of them has all lines, near lines count too, unless
/// the project was found by its name: then others matter for equal lines alone, and under no
/// other names of variables.
Candidates Search::related(bool named, const ProjectFinder::HasRoom &hasRoom) const
{
    Candidates candidates;
    bool complete = named;
    for (const int table : m_index.holders(m_cells, m_rest, Compared)) {
        if (std::ranges::count(m_found, table) || (hasRoom && !hasRoom(table)))
            continue;
        Candidate related = candidate(table);
        if (!related.match.isRelated()) {
            auto renamed = named ? std::nullopt : renamedCandidate(related);
            if (!renamed)
                continue;
            related = std::move(*renamed);
        }
        complete = complete || related.match.heldCount(m_rest) == int(m_rest.size());
        candidates.push_back(std::move(related));
    }
    if (!complete)
        std::ranges::for_each(candidates, [](Candidate &c) { c.match.findNearLines(); });
    return candidates;
}

std::optional<Candidate> Search::renamedCandidate(const Candidate &former) const
{
    const LineCells &target = m_index.table(former.table);
    const bool isNear = this->isNear(former.table);
    if ((former.match.commonCount() == 0 && !isNear) ||
        former.match.commonCount() == int(m_cells.variables().size()))
        return std::nullopt;
    const auto lines =
        std::make_shared<const LineCells>(RuleProposals::renamed(m_cells, {&target, isNear}));
    Candidate renamed{former.table, former.likeness, TableMatch(*lines, target), 0, lines};
    const bool isTaken = isNear ? renamed.match.hasVariables() : renamed.match.isRelated();
    return isTaken ? std::optional(std::move(renamed)) : std::nullopt;
}

void Search::addSimilar(Candidates &candidates)
{
    for (Candidate &similar : candidates)
        similar.score = similar.match.score(m_allRows);
    std::ranges::sort(candidates, {}, &Candidate::rank);
    std::vector<const Candidate *> similar;
    for (const Candidate &candidate : candidates) {
        if (2 * candidate.match.heldCount(m_allRows) >= m_cells.rowCount())
            similar.push_back(&candidate);
    }
    if (similar.empty())
        return;
    const double best = similar.front()->score;
    const double least = best * (1 - chanceOf(*similar.front()));
    const auto end = std::ranges::partition_point(
        similar, [least](const Candidate *c) { return c->score >= least; });
    std::stable_sort(similar.begin(), end, [](const Candidate *a, const Candidate *b) {
        return a->likeness > b->likeness;
    });
    for (const Candidate *candidate : similar) {
        if (m_found.size() < MaxSimilar && candidate->score >= best / 2)
            add(*candidate);
    }
}

/// By which part of itself the number of lines that a table holds may differ by chance from that of
/// another one which was as good: one standard deviation of the difference, as both may be another.
/// Nothing if it holds all.
double Search::chanceOf(const Candidate &candidate) const
{
    const double count = m_cells.rowCount();
    const double share = candidate.match.heldCount(m_allRows) / count;
    return std::sqrt(2 * (1 - share) / (share * count));
}

void Search::addParts(Candidates &candidates)
{
    while (!m_rest.empty() && m_found.size() < MaxParts) {
        for (Candidate &part : candidates)
            part.score = part.match.heldCount(m_rest) + part.match.score(m_rest);
        const auto best = std::ranges::min_element(candidates, {}, &Candidate::rank);
        const int held = best != candidates.end() ? best->match.heldCount(m_rest) : 0;
        if (held < 2 || 8 * held < m_cells.rowCount())
            return;
        add(*best);
    }
}

std::vector<int> Search::runWithRoom(const ProjectFinder::HasRoom &hasRoom)
{
    m_rest = m_allRows;
    Candidates candidates = related(false, hasRoom);
    addSimilar(candidates);
    addParts(candidates);
    if (2 * m_rest.size() > m_allRows.size())
        return byColumns(hasRoom, 0);
    if (std::ranges::any_of(m_found, [this](int table) { return isNear(table); }))
        return m_found;
    // Standard sizes stand in tables of other folders as well.
    double best = 0;
    for (const Candidate &found : candidates) {
        if (std::ranges::count(m_found, found.table))
            best = std::max(best, found.match.columnShares().ofValues);
    }
    std::vector<int> columns = byColumns(hasRoom, best * AsGood);
    return !columns.empty() && isNear(columns.front()) ? columns : m_found;
}

std::vector<int> Search::byColumns(const ProjectFinder::HasRoom &hasRoom, double leastScore) const
{
    const QString folder = folderInCatalog(m_path);
    std::vector<int> tables = m_index.holders(m_cells, m_allRows, Compared);
    for (const int table : m_index.inFolder(folder, Compared)) {
        if (!std::ranges::count(tables, table))
            tables.push_back(table);
    }
    std::erase_if(tables, [&](int table) { return !hasRoom(table); });
    Candidates candidates;
    for (const int table : tables) {
        Candidate found = candidate(table);
        if (!found.match.isRelated()) {
            auto renamed = renamedCandidate(found);
            if (!renamed)
                continue;
            found = std::move(*renamed);
        }
        const TableMatch::ColumnShares shares = found.match.columnShares();
        found.score = shares.ofValues;
        if (shares.ofColumns >= LeastColumns && found.score >= leastScore)
            candidates.push_back(std::move(found));
    }
    std::ranges::sort(candidates, {}, &Candidate::rank);
    const double best = candidates.empty() ? 0 : candidates.front().score;
    const double least =
        best < LeastColumns ? best * AsGood : std::max(best * AsGood, LeastColumns);
    std::erase_if(candidates, [least](const Candidate &c) { return c.score < least; });
    if (std::ranges::any_of(candidates, [this](const Candidate &c) { return isNear(c.table); }))
        std::erase_if(candidates, [this](const Candidate &c) { return !isNear(c.table); });
    std::vector<int> found;
    for (size_t i = 0; i < candidates.size() && i < MaxSimilar; ++i)
        found.push_back(candidates[i].table);
    return found;
}

void Search::addOnlyHolders(Candidates &candidates)
{
    const auto given = [this](const Candidate &c) {
        return std::ranges::count(m_found, c.table);
    };
    std::erase_if(candidates, given);
    for (Candidate &holder : candidates)
        holder.score = 0;
    for (const int row : m_rest) {
        const auto holds = [row](const Candidate &c) {
            return c.match.isEqual(row) && c.match.isHeld(row);
        };
        if (std::ranges::count_if(candidates, holds) == 1)
            ++std::ranges::find_if(candidates, holds)->score;
    }
    std::ranges::sort(candidates, {}, &Candidate::rank);
    std::erase_if(candidates, [](const Candidate &c) { return c.score == 0; });
    if (!m_found.empty())
        std::erase_if(candidates, [this](const Candidate &c) { return !receives(c); });
    for (size_t i = 0; i < candidates.size() && i < MaxSimilar; ++i)
        m_found.push_back(candidates[i].table);
}

} // namespace

std::vector<int> ProjectFinder::find(const QString &projectPath, const LineCells &cells) const
{
    return Search(m_index, projectPath, cells).run();
}

std::vector<int> ProjectFinder::findWithRoom(const QString &projectPath, const LineCells &cells,
                                             const HasRoom &hasRoom, bool isFolderKept) const
{
    return Search(m_index, projectPath, cells, isFolderKept).runWithRoom(hasRoom);
}

} // namespace VelkRelease
