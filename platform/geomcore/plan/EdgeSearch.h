#pragma once

#include "CandidateLists.h"
#include "EdgeLists.h"
#include "PairEvidence.h"
#include "PlaceEvidence.h"

#include <memory>
#include <vector>

namespace Plan {

/// Finds for an open line the rows that it may have become, with what they weigh by what is known.
class EdgeSearch
{
public:
    /// Lines with a candidate that is so probable are looked for only just where their neighbours
    /// put them.
    static constexpr double Certain = 0.9999;
    /// Candidates that are so far behind the best one of their line, or behind having none, are not
    /// looked at further: what is learned later hardly moves a weight so far.
    static constexpr double FarBehind = 25;
    [[nodiscard]] static bool isFound(std::span<const PlanEdge> edges);

    /// Where rows are looked up.
    struct Rows
    {
        std::vector<std::unique_ptr<CandidateLists>> lists; ///< By target; in the first round,
        std::vector<LineLists<int>> kept; ///< after it what was kept, by target and open line.

        /// From now on only rows of \a edges are looked at.
        void keep(const EdgeLists &edges, size_t targets);
    };
    /// What pairs have added to the changes that were learned, by line.
    struct Learned
    {
        int node = 0;
        double weight = 0;
    };
    /// All of it stays where it is, and as it is.
    struct Known
    {
        const PlanTables &tables;
        const std::vector<int> &nodeOffsets; ///< By target.
        const Rows &rows;
        const std::vector<PlaceEvidence> &places; ///< By target.
        const PairEvidence &evidence;
        const LineLists<Learned> &learned;
        std::vector<double> priors; ///< By target: what any pair weighs.
        bool withKeys = true;
        bool keepsBest = true; ///< Of each line, however unlikely it is.
    };
    explicit EdgeSearch(Known known)
        : m_known(std::move(known))
    {
    }
    /// The rows that some lines are compared with. All are looked up before the first is compared:
    /// what is known of them is far apart, and comes while others are compared.
    class LookedUp
    {
    public:
        void clear();

    private:
        friend class EdgeSearch;
        /// Of a line in one target.
        struct Part
        {
            size_t line = 0;
            size_t target = 0;
            size_t firstRow = 0;
            size_t rowCount = 0;
        };
        [[nodiscard]] std::span<const int> rowsOf(const Part &part) const
        {
            return std::span(m_rows).subspan(part.firstRow, part.rowCount);
        }
        std::vector<Part> m_parts; ///< Line by line, in the order in which they were asked for.
        std::vector<int> m_rows;
        size_t m_next = 0; ///< Of the parts, the first that is not yet compared.
    };
    /// Looks up the rows of a line. \a isFound: it was so in the round before.
    void lookUp(size_t line, bool isFound, LookedUp &rows) const;
    /// Adds the edges of the next line that was looked up, the best first.
    void find(size_t line, LookedUp &rows, EdgeLists::Block &out) const;

private:
    /// An edge with what it weighs at most; of that the rest is sure, what no variable says.
    struct Candidate
    {
        PlanEdge edge;
        double rest = 0;
        size_t firstPart = 0; ///< Of what its variables give at most.
    };
    /// Those of a line, the rows of one target after those of another.
    struct Candidates
    {
        std::vector<Candidate> all;
        std::vector<PairEvidence::Part> parts;
        std::vector<int> rows;    ///< Of the target that is looked at,
        std::vector<double> most; ///< and what their variables give at most.
    };
    void findCandidates(size_t line, LookedUp &rows, Candidates &found) const;
    static void addAround(const std::vector<int> &openRows, int place, int around, size_t known,
                          std::vector<int> &rows);
    /// The rows to look at, each once.
    void findRows(size_t target, size_t line, bool isFound, std::vector<int> &rows) const;
    /// Those that have something in common with the line; true if one is far ahead of all others.
    [[nodiscard]] bool findLike(size_t target, size_t line, bool isFound,
                                std::vector<int> &rows) const;
    /// What the parts behind this one will ask for.
    void fetchAhead(const LookedUp &rows, size_t part) const;
    void compare(const LookedUp::Part &part, const LookedUp &rows, Candidates &found) const;

    const Known m_known;
};

/// What the pair has added.
[[nodiscard]] double ownWeight(const LineLists<EdgeSearch::Learned> &learned, size_t line,
                               int node);

} // namespace Plan
