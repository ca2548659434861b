#include "MergeState.h"

#include <algorithm>

using VelkRelease::MergeClash;

namespace {

bool isMarked(const PrjMappingC &mapping, int line)
{
    for (int i = 0; i < mapping.countTargets(); ++i) {
        if (mapping.targetAt(i).getLineConflicted(line))
            return true;
    }
    return false;
}

bool isOpenClash(const ReleaseMappingC &release, const MergeClash &clash)
{
    return clash.kind == MergeClash::Line &&
           isMarked(release.findMapping(clash.sourcePath, clash.sourceVersion, QString()),
                    clash.line);
}

} // namespace

MergeState::MergeState(const VelkRelease::MergeResult &result)
    : m_local(result.local)
    , m_online(result.online)
    , m_clashes(result.clashes)
{
}

QList<MergeClash> MergeState::openClashes(const ReleaseMappingC &release) const
{
    QList<MergeClash> open;
    std::ranges::copy_if(m_clashes, std::back_inserter(open),
                         [&](const MergeClash &clash) { return isOpenClash(release, clash); });
    return open;
}

MergeClash MergeState::clashOf(const ReleaseMappingC &release, const QString &sourcePath,
                               int line) const
{
    const auto found = std::ranges::find_if(m_clashes, [&](const MergeClash &clash) {
        return clash.line == line && clash.sourcePath == sourcePath && isOpenClash(release, clash);
    });
    return found == m_clashes.end() ? MergeClash() : *found;
}

MappingChangeMap MergeState::localChanges(const ReleaseMappingC &release) const
{
    MappingChangeMap left;
    // entered from the back, so that each key gives them in the same order
    for (auto change = m_local.end(); change != m_local.begin();) {
        --change;
        const bool isLine = change->type >= 0 && change->type <= 2;
        if (!isLine || clashOf(release, change.key().second, change->lineId).line != 0)
            left.insert(change.key(), *change);
    }
    return left;
}

QList<MergeClash> MergeState::lineClashes() const
{
    QList<MergeClash> lines;
    std::ranges::copy_if(m_clashes, std::back_inserter(lines),
                         [](const MergeClash &clash) { return clash.kind == MergeClash::Line; });
    return lines;
}

VelkRelease::LineStanding MergeState::standing(const MergeClash &clash, Side side)
{
    switch (side) {
    case Side::Ours:
        return clash.ours;
    case Side::Theirs:
        return clash.theirs;
    case Side::Neither:
        break;
    }
    return {};
}

QString MergeState::text(const VelkRelease::MergeResult &result)
{
    const auto lines = int(std::ranges::count(result.clashes, MergeClash::Line, &MergeClash::kind));
    QStringList parts{tr("%Ln Änderung(en) übernommen.", nullptr, int(result.online.size()))};
    if (!result.settled.isEmpty())
        parts << tr("%Ln Zeile(n) haben beide gleich entschieden.", nullptr,
                    int(result.settled.size()));
    if (lines > 0)
        parts << tr("%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.", nullptr,
                    lines);
    if (lines < result.clashes.size())
        parts << tr("%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.", nullptr,
                    int(result.clashes.size()) - lines);
    return parts.join(u' ');
}
