#include "OpenPairs.h"

#include "LineComparer.h"

#include <geomcore/records/LineTable.h>

#include <algorithm>

namespace VelkRelease {

namespace {

/// What several targets say of one line.
enum class Say : quint8 {
    Conflict, ///< wants a decision of its own
    Proposal,
    Nothing,
};

Say sayOf(int targetLine, PRJMAPPING::CheckState state, bool conflict)
{
    if (conflict)
        return Say::Conflict;
    const bool proposed =
        targetLine != -1 && state != PRJMAPPING::Mapped && state != PRJMAPPING::Verified;
    return proposed ? Say::Proposal : Say::Nothing;
}

struct Entry
{
    OpenProposal proposal;
    Say say;
};

} // namespace

std::vector<OpenProposal> openProposals(const PrjMappingC &mapping)
{
    std::vector<Entry> entries;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC &target = mapping.targetAt(i);
        if (target.lineCounts().unverified() == 0 && target.lineCounts().conflicts() == 0)
            continue;
        for (const LineTable::Iterator &entry : target.lines()) {
            const Say say = sayOf(entry.targetLine(), entry.state(), entry.conflict());
            if (say != Say::Nothing)
                entries.push_back({{entry.sourceLine(), i, entry.targetLine()}, say});
        }
    }
    std::stable_sort(entries.begin(), entries.end(), [](const Entry &a, const Entry &b) {
        return a.proposal.line != b.proposal.line ? a.proposal.line < b.proposal.line
                                                  : a.say < b.say;
    });
    std::vector<OpenProposal> proposals;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const bool first = i == 0 || entries[i].proposal.line != entries[i - 1].proposal.line;
        if (first && entries[i].say == Say::Proposal)
            proposals.push_back(entries[i].proposal);
    }
    return proposals;
}

OpenProposal openProposal(const PrjMappingC &mapping, int line)
{
    OpenProposal proposal;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const LineTable &lines = mapping.targetAt(i).lines();
        const LineTable::Iterator entry = lines.find(line);
        if (!entry)
            continue;
        const Say say = sayOf(entry.targetLine(), entry.state(), entry.conflict());
        if (say == Say::Conflict)
            return {};
        if (say == Say::Proposal && proposal.line < 0)
            proposal = {line, i, entry.targetLine()};
    }
    return proposal;
}

std::vector<OpenPair> readOpenPairs(const QString &sourceRoot, const PrjMappingC &mapping,
                                    const ReleaseMappingC &release,
                                    const std::vector<OpenProposal> &lines, QStringList &errors,
                                    const std::atomic<bool> *cancelled)
{
    std::vector<OpenPair> pairs;
    if (lines.empty())
        return pairs;
    LineComparer comparer(sourceRoot, mapping, release, cancelled);
    errors << comparer.errors();
    pairs.reserve(lines.size());
    for (const OpenProposal &line : lines) {
        if (cancelled && cancelled->load(std::memory_order_relaxed))
            break;
        OpenPair pair{line.line, line.target, line.targetLine, 0, {}, false, {}};
        const auto read = comparer.assigned(line.line);
        if (read && read->target == line.target && read->targetLine == line.targetLine) {
            pair.comparable = true;
            pair.probability = read->probability;
            pair.reason = read->reason;
            for (const ComparedVariableC &variable : read->variables) {
                if (variable.outcome != ComparedVariableC::Equal)
                    pair.values.push_back({variable.name, variable.oldValue, variable.newValue});
            }
        }
        pairs.push_back(std::move(pair));
    }
    return pairs;
}

} // namespace VelkRelease
