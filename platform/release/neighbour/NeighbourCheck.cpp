#include "NeighbourCheck.h"

#include "NeighbourSearch.h"

#include <algorithm>
#include <map>
#include <memory>

namespace VelkRelease {

namespace {

/// One line alone has no neighbour. Of a few what is expected says more than what they show.
constexpr int FewestPairs = 2;

class TargetCheck
{
public:
    TargetCheck(const NeighbourLines &lines, const NeighbourValues &values, int target)
        : m_lines(lines)
        , m_target(target)
        , m_order(lines, target)
        , m_likeness(values, target, m_order.rowCount(), m_order.pairs())
        , m_search(m_order, m_likeness)
    {
    }

    [[nodiscard]] std::vector<NeighbourFinding> run()
    {
        std::vector<NeighbourFinding> findings;
        if (m_order.count() < FewestPairs)
            return findings;
        for (const NeighbourSearch::Change &change : m_search.run())
            findings.push_back(findingOf(change));
        return findings;
    }

    /// A line without a target that stands among those of this one.
    void addSkipped(int index, std::vector<NeighbourFinding> &findings)
    {
        if (m_order.count() < FewestPairs)
            return;
        const int position = m_order.positionOf(index);
        const NeighbourSearch::Skipped skipped = m_search.skipped(index, position);
        if (skipped.row < 0)
            return;
        const NeighbourFinding::Repair own{m_lines.lines[std::size_t(index)].line, m_target,
                                           lineOfRow(skipped.row)};
        if (skipped.moves.empty()) {
            findings.push_back({NeighbourFinding::Skipped, own.line, own.line, 0, {own}});
            return;
        }
        const bool isLast = skipped.moves.back().first < position;
        NeighbourFinding finding =
            findingOf({NeighbourFinding::Shifted, skipped.moves, 0, skipped.steps});
        finding.repairs.insert(isLast ? finding.repairs.end() : finding.repairs.begin(), own);
        (isLast ? finding.lastLine : finding.firstLine) = own.line;
        findings.push_back(std::move(finding));
    }

private:
    [[nodiscard]] int lineOfRow(int row) const
    {
        return m_lines.rows[std::size_t(m_target)][std::size_t(row)];
    }
    [[nodiscard]] int lineAt(int position) const
    {
        return m_lines.lines[std::size_t(m_order.indexAt(position))].line;
    }
    [[nodiscard]] NeighbourFinding findingOf(const NeighbourSearch::Change &change) const
    {
        NeighbourFinding finding;
        finding.kind = change.kind;
        finding.firstLine = lineAt(change.moves.front().first);
        finding.lastLine = lineAt(change.moves.back().first);
        finding.steps = change.steps;
        finding.repairs.reserve(change.moves.size());
        for (const auto &[position, row] : change.moves) {
            finding.repairs.push_back({lineAt(position), m_target, row < 0 ? -1 : lineOfRow(row)});
        }
        return finding;
    }

    const NeighbourLines &m_lines;
    const int m_target;
    TargetOrder m_order;
    PairLikeness m_likeness;
    NeighbourSearch m_search;
};

} // namespace

std::vector<NeighbourFinding> checkNeighbours(const NeighbourLines &lines,
                                              const NeighbourValues &values)
{
    std::vector<NeighbourFinding> findings;
    std::vector<std::unique_ptr<TargetCheck>> checks(lines.rows.size());
    for (std::size_t i = 0; i < checks.size(); ++i) {
        if (lines.rows[i].empty())
            continue;
        checks[i] = std::make_unique<TargetCheck>(lines, values, int(i));
        const std::vector<NeighbourFinding> some = checks[i]->run();
        findings.insert(findings.end(), some.begin(), some.end());
    }
    // Of the line before; of the first lines that of the one behind.
    const auto first =
        std::find_if(lines.lines.begin(), lines.lines.end(),
                     [](const NeighbourLines::Line &line) { return line.target >= 0; });
    int target = first == lines.lines.end() ? -1 : first->target;
    for (std::size_t i = 0; i < lines.lines.size(); ++i) {
        const NeighbourLines::Line &line = lines.lines[i];
        if (line.target >= 0)
            target = line.target;
        else if (!line.gone && target >= 0 && checks[std::size_t(target)])
            checks[std::size_t(target)]->addSkipped(int(i), findings);
    }
    std::map<int, std::size_t> placeOf;
    for (std::size_t i = 0; i < lines.lines.size(); ++i)
        placeOf.emplace(lines.lines[i].line, i);
    std::stable_sort(findings.begin(), findings.end(),
                     [&](const NeighbourFinding &a, const NeighbourFinding &b) {
                         return placeOf[a.firstLine] < placeOf[b.firstLine];
                     });
    return findings;
}

} // namespace VelkRelease
