#include "OpenPairs.h"

#include "LineComparer.h"

#include <core/text/PPathName.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/records/LineTable.h>
#include <geomcore/repository/RepositoryAddress.h>

#include <QFileInfo>
#include <QSet>

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

/// Which targets of a mapping are there at all.
class TargetsThere
{
public:
    explicit TargetsThere(const PrjMappingC &mapping)
    {
        for (int i = 0; i < mapping.countTargets(); ++i) {
            const QString path = mapping.targetAt(i).getTargetPath();
            if (path.isEmpty())
                continue;
            m_any = true;
            if (isGone(path)) {
                m_gone.insert(i);
                m_gonePaths.append(path);
            }
        }
    }

    [[nodiscard]] bool haveAny() const { return m_any; }
    [[nodiscard]] bool isGone(int target) const { return m_gone.contains(target); }
    /// All of these are not there any more.
    [[nodiscard]] bool areGone(const QStringList &paths) const
    {
        return std::all_of(paths.begin(), paths.end(),
                           [this](const QString &path) { return m_gonePaths.contains(path); });
    }

private:
    /// Its catalog is there, but not the project. What a repository has is not on the disk.
    [[nodiscard]] static bool isGone(const QString &path)
    {
        const auto tree = IndexTreeC::instance();
        const auto nativeOf = [&tree](const QString &compatible) {
            return tree->compatiblePathToResolvedPath(PPathName(compatible)).native();
        };
        const QString catalog =
            QString(path).replace(u'\\', u'/').section(u'/', 0, 0, QString::SectionSkipEmpty);
        return !RepositoryAddress::of(path).isValid() && QFileInfo(nativeOf(catalog)).isDir() &&
               !QFileInfo::exists(nativeOf(path));
    }

    bool m_any = false;
    QSet<int> m_gone;
    QStringList m_gonePaths;
};

/// A line of a table that cannot be read, or whose targets cannot, may be there all the same.
void readGone(OpenPair &pair, LineComparer *comparer, const TargetsThere &targets)
{
    pair.gone.emplace();
    pair.comparable = !comparer || comparer->hasLine(pair.line);
    if (!pair.comparable || (comparer && !targets.areGone(comparer->unreadableTargets())))
        return;
    pair.probability = 1;
    if (!comparer)
        return;
    const LineCandidatesC candidates = comparer->candidates(pair.line);
    pair.probability = candidates.noSuccessor;
    pair.reason = candidates.explanation;
    pair.gone->lost = comparer->lostValues(pair.line);
}

void readProposal(OpenPair &pair, LineComparer &comparer)
{
    const auto read = comparer.assigned(pair.line);
    if (!read || read->target != pair.target || read->targetLine != pair.targetLine)
        return;
    pair.comparable = true;
    pair.probability = read->probability;
    pair.reason = read->reason;
    for (const ComparedVariableC &variable : read->variables) {
        if (variable.outcome != ComparedVariableC::Equal)
            pair.values.push_back({variable.name, variable.oldValue, variable.newValue});
    }
}

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

bool isWithoutProposal(const PrjMappingC &mapping, int line)
{
    bool known = false;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const LineTable::Iterator entry = mapping.targetAt(i).lines().find(line);
        if (!entry)
            continue;
        if (entry.targetLine() != -1 || entry.conflict() || entry.state() == PRJMAPPING::Verified)
            return false;
        known = true;
    }
    return known;
}

std::vector<int> linesWithoutProposal(const PrjMappingC &mapping)
{
    std::vector<int> lines;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const LineTable::Iterator &entry : mapping.targetAt(i).lines()) {
            if (entry.targetLine() == -1 && isWithoutProposal(mapping, entry.sourceLine()))
                lines.push_back(entry.sourceLine());
        }
    }
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
}

std::vector<OpenPair> readOpenPairs(const QString &sourceRoot, const PrjMappingC &mapping,
                                    const ReleaseMappingC &release,
                                    const std::vector<OpenProposal> &lines, QStringList &errors,
                                    const std::atomic<bool> *cancelled)
{
    std::vector<OpenPair> pairs;
    if (lines.empty())
        return pairs;
    pairs.reserve(lines.size());
    const TargetsThere targets(mapping);
    std::optional<LineComparer> comparer;
    if (targets.haveAny()) {
        comparer.emplace(sourceRoot, mapping, release, cancelled);
        errors << comparer->errors();
    }
    for (const OpenProposal &line : lines) {
        if (cancelled && cancelled->load(std::memory_order_relaxed))
            break;
        OpenPair pair{line.line, line.target, line.targetLine, 0, {}, false, {}};
        if (line.targetLine == -1)
            readGone(pair, comparer ? &*comparer : nullptr, targets);
        else if (targets.isGone(line.target))
            pair.gone = GoneSigns{true, {}};
        else if (comparer)
            readProposal(pair, *comparer);
        pairs.push_back(std::move(pair));
    }
    return pairs;
}

} // namespace VelkRelease
