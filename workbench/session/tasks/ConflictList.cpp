#include "ConflictList.h"

#include "OpenLines.h"

#include <release/merge/ClashGroups.h>
#include <release/merge/setStanding.h>
#include <workbench/session/document/MappingDocument.h>

#include <QHash>

#include <algorithm>

using VelkRelease::MergeClash;

namespace {

/// Source paths and versions are what clashes name; the mappings have a table version beside.
bool isOf(const ConflictEntry &entry, const ProjectId &project)
{
    return entry.line.project.path == project.path && entry.line.project.version == project.version;
}

bool isInConflict(const PrjMappingC &mapping, int line)
{
    for (int i = 0; i < mapping.countTargets(); ++i) {
        if (mapping.targetAt(i).getLineConflicted(line))
            return true;
    }
    return false;
}

} // namespace

ConflictList::ConflictList(MappingDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    connect(document, &MappingDocument::opened, this, &ConflictList::fill);
    connect(document, &MappingDocument::releaseReplaced, this, &ConflictList::fill);
    connect(document, &MappingDocument::closed, this, &ConflictList::fill);
    connect(document, &MappingDocument::mappingChanged, this, &ConflictList::follow);
    fill();
}

ConflictList::~ConflictList() = default;

PrjMappingC ConflictList::mappingOf(const ProjectId &project) const
{
    return m_document->release().findMapping(project.path, project.version, QString());
}

void ConflictList::fill()
{
    Q_EMIT aboutToReset();
    m_entries.clear();
    QHash<QPair<QString, QString>, QList<MergeClash>> known;
    if (m_document->isOpen()) {
        for (const MergeClash &clash : m_document->mergeState().lineClashes())
            known[{clash.sourcePath, clash.sourceVersion}].append(clash);
    }
    // Without conflicts, and without any that were settled, no mapping needs a look.
    const bool mayHaveAny = !known.isEmpty() || m_document->counts().conflicts() > 0;
    const ReleaseMappingC release =
        m_document->isOpen() && mayHaveAny ? m_document->release() : ReleaseMappingC();
    QList<MergeClash> clashes;
    for (int i = 0; i < release.countMappings(); ++i) {
        const PrjMappingC &mapping = release.mappingAt(i);
        const ProjectId project = ProjectId::of(mapping);
        QList<MergeClash> lines = known.take({project.path, project.version});
        const qsizetype withSides = lines.size();
        const auto isKnown = [&](int line) {
            return std::ranges::binary_search(lines.cbegin(), lines.cbegin() + withSides, line, {},
                                              &MergeClash::line);
        };
        if (mapping.getContainsConflicts()) {
            for (const int line : OpenLines::linesOf(mapping, OpenLines::Conflict)) {
                if (isKnown(line))
                    continue;
                MergeClash clash;
                clash.sourcePath = project.path;
                clash.sourceVersion = project.version;
                clash.line = line;
                clash.theirs = VelkRelease::standingOf(mapping, line);
                lines.append(clash);
            }
        }
        for (qsizetype at = 0; at < lines.size(); ++at) {
            ConflictEntry entry{{project, lines[at].line}, lines[at], at < withSides};
            entry.outcome = outcomeOf(entry, mapping);
            m_entries.push_back(entry);
        }
        std::sort(m_entries.end() - lines.size(), m_entries.end(),
                  [](const auto &a, const auto &b) { return a.line.line < b.line.line; });
    }
    clashes.reserve(count());
    for (const ConflictEntry &entry : m_entries)
        clashes += entry.clash;
    const auto groups = VelkRelease::groupClashes(clashes);
    for (int group = 0; group < int(groups.size()); ++group) {
        for (const int place : groups[group].clashes)
            m_entries[size_t(place)].group = group;
    }
    m_open = int(std::ranges::count(m_entries, ConflictEntry::Open, &ConflictEntry::outcome));
    Q_EMIT reset();
}

ConflictEntry::Outcome ConflictList::outcomeOf(const ConflictEntry &entry,
                                               const PrjMappingC &mapping) const
{
    if (isInConflict(mapping, entry.line.line))
        return ConflictEntry::Open;
    const VelkRelease::LineStanding now = VelkRelease::standingOf(mapping, entry.line.line);
    if (now == entry.clash.theirs)
        return ConflictEntry::Theirs;
    return entry.isKnown && now == entry.clash.ours ? ConflictEntry::Ours : ConflictEntry::Anew;
}

void ConflictList::follow(const ProjectId &project)
{
    const auto first = std::ranges::find_if(
        m_entries, [&](const ConflictEntry &entry) { return isOf(entry, project); });
    if (first == m_entries.end())
        return;
    const auto end = std::find_if(
        first, m_entries.end(), [&](const ConflictEntry &entry) { return !isOf(entry, project); });
    const PrjMappingC mapping = mappingOf(project);
    for (auto entry = first; entry != end; ++entry) {
        m_open -= entry->outcome == ConflictEntry::Open;
        entry->outcome = outcomeOf(*entry, mapping);
        m_open += entry->outcome == ConflictEntry::Open;
    }
    Q_EMIT entriesChanged(int(first - m_entries.begin()), int(end - m_entries.begin()) - 1);
}

int ConflictList::placeOf(const LineRef &line) const
{
    const auto found = std::ranges::find_if(m_entries, [&](const ConflictEntry &entry) {
        return entry.line.line == line.line && isOf(entry, line.project);
    });
    return found == m_entries.end() ? -1 : int(found - m_entries.begin());
}

int ConflictList::nextOpen(int place) const
{
    for (int step = 1; step <= count(); ++step) {
        const int next = (place + step) % count();
        if (at(next).outcome == ConflictEntry::Open)
            return next;
    }
    return -1;
}

std::vector<int> ConflictList::openAlike(int place) const
{
    std::vector<int> alike;
    for (int other = 0; other < count(); ++other) {
        if (at(other).group == at(place).group && at(other).outcome == ConflictEntry::Open)
            alike.push_back(other);
    }
    return alike;
}

void ConflictList::settle(const std::vector<int> &places, MergeState::Side side)
{
    QList<MergeClash> clashes;
    clashes.reserve(qsizetype(places.size()));
    for (const int place : places) {
        clashes += at(place).clash;
        if (!at(place).isKnown)
            clashes.last().ours = clashes.last().theirs;
    }
    m_document->settle(clashes, side);
}
