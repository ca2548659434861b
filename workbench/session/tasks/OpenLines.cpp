#include "OpenLines.h"

#include <geomcore/table/Content.h>
#include <mapping/data/CatalogMappingHandlerI.h>
#include <release/review/LineFilter.h>
#include <workbench/session/common/ProjectOrder.h>
#include <workbench/session/document/MappingDocument.h>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <utility>

namespace {

constexpr qint64 BeforeAll = std::numeric_limits<qint64>::min();
constexpr qint64 BehindAll = std::numeric_limits<qint64>::max();

constexpr std::array SearchOrder{OpenLines::Conflict, OpenLines::ToCheck,   OpenLines::NotFound,
                                 OpenLines::Proposed, OpenLines::Confirmed, OpenLines::Expired};

OpenLines::Kind kindOfEntry(int targetLine, PRJMAPPING::CheckState state, bool conflict)
{
    return OpenLines::Kind(1U << unsigned(VelkRelease::lineState(targetLine, state, conflict)));
}

OpenLines::Kind kindOfEntry(const LineTable::Iterator &entry)
{
    return kindOfEntry(entry.targetLine(), entry.state(), entry.conflict());
}

bool isOpen(const LineTable::Iterator &entry, OpenLines::Kind kind)
{
    return kindOfEntry(entry) == kind;
}

int countKind(const LineCounts &counts, OpenLines::Kind kind)
{
    switch (kind) {
    case OpenLines::Conflict:
        return counts.conflicts();
    case OpenLines::ToCheck:
        return counts.unverified() - counts.unverifiedConflicts();
    case OpenLines::NotFound:
        return counts.unmapped() - counts.unmappedConflicts();
    case OpenLines::Proposed:
        return counts.assigned() - counts.assignedConflicts();
    case OpenLines::Expired:
        return counts.expired() - counts.expiredConflicts();
    case OpenLines::Confirmed:
        break;
    }
    return counts.verified() - counts.verifiedConflicts() -
           (counts.expired() - counts.expiredConflicts());
}

int countKinds(const LineCounts &counts, OpenLines::Kinds kinds)
{
    int sum = 0;
    for (const OpenLines::Kind kind : SearchOrder)
        sum += kinds.testFlag(kind) ? countKind(counts, kind) : 0;
    return sum;
}

/// The first open line behind a line.
std::optional<int> firstBehind(const LineTable &table, qint64 line, OpenLines::Kind kind)
{
    const qint64 from = line == BeforeAll ? line : line + 1;
    for (LineTable::Iterator at = table.lowerBound(from); at != table.end(); ++at) {
        if (isOpen(*at, kind))
            return at->sourceLine();
    }
    return std::nullopt;
}

/// The last open line before a line.
std::optional<int> lastBefore(const LineTable &table, qint64 line, OpenLines::Kind kind)
{
    for (LineTable::Iterator at = table.lowerBound(line); at != table.begin();) {
        --at;
        if (isOpen(*at, kind))
            return at->sourceLine();
    }
    return std::nullopt;
}

QString simplified(const QString &text)
{
    return text.simplified().toCaseFolded();
}

} // namespace

int OpenLines::Shown::firstOf(const std::vector<int> &lines) const
{
    int first = rows;
    for (const int line : lines) {
        if (const int row = rowOf(line); row >= 0)
            first = std::min(first, row);
    }
    return lineAt(first < rows ? first : 0);
}

OpenLines::OpenLines(MappingDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_lastCount(count())
{
    connect(document, &MappingDocument::countsChanged, this, &OpenLines::noteCount);
    connect(document, &MappingDocument::opened, this, &OpenLines::noteCount);
    connect(document, &MappingDocument::closed, this, &OpenLines::noteCount);
    connect(document, &MappingDocument::releaseReplaced, this, &OpenLines::noteCount);
}

OpenLines::~OpenLines() = default;

void OpenLines::setKinds(Kinds kinds)
{
    m_kinds = kinds;
    noteCount();
}

void OpenLines::noteCount()
{
    const int now = count();
    if (std::exchange(m_lastCount, now) != now)
        Q_EMIT countChanged(now);
}

int OpenLines::count() const
{
    return countKinds(m_document->counts(), m_kinds);
}

int OpenLines::count(const ProjectId &project) const
{
    return countOf(m_document->mapping(project), m_kinds);
}

int OpenLines::countOf(Kind kind) const
{
    return countKind(m_document->counts(), kind);
}

int OpenLines::countIn(const Shown &shown) const
{
    int lines = 0;
    for (int row = 0; row < shown.rows; ++row) {
        const std::optional<Kind> kind = kindOf({shown.project, shown.lineAt(row)});
        lines += kind && m_kinds.testFlag(*kind) ? 1 : 0;
    }
    return lines;
}

int OpenLines::projectCount() const
{
    return int(std::ranges::count_if(order().lines(), [this](const LineCounts &lines) {
        return countKinds(lines, m_kinds) > 0;
    }));
}

int OpenLines::placeOf(const LineRef &line, Kind kind) const
{
    const int before = order().placeOf(m_document->release(), line.project);
    int place = 0;
    for (int i = 0; i < before; ++i)
        place += countKind(order().linesAt(i), kind);
    const PrjMappingC mapping = m_document->mapping(line.project);
    std::optional<int> at;
    while ((at = lineIn(mapping, kind, at, true)) && *at <= line.line)
        ++place;
    return place;
}

std::optional<OpenLines::Kind> OpenLines::kindOf(const LineRef &line) const
{
    const PrjMappingC mapping = m_document->mapping(line.project);
    std::optional<Kind> first;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC &target = mapping.targetAt(i);
        if (!target.containsLine(line.line))
            continue;
        const PrjMappingTargetLineC entry = target.getMappedLine(line.line);
        const Kind kind =
            kindOfEntry(entry.getTargetLineId(), entry.getState(), entry.getConflict());
        if (!first || kind < *first)
            first = kind;
    }
    return first;
}

std::vector<int> OpenLines::linesOf(const PrjMappingC &mapping, Kinds kinds)
{
    std::vector<std::pair<int, Kind>> entries;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const LineTable::Iterator &entry : mapping.targetAt(i).lines())
            entries.emplace_back(entry.sourceLine(), kindOfEntry(entry));
    }
    // The first kind of several is a line's own.
    std::sort(entries.begin(), entries.end());
    std::vector<int> lines;
    std::optional<int> before;
    for (const auto &[line, kind] : entries) {
        if (std::exchange(before, line) != line && kinds.testFlag(kind))
            lines.push_back(line);
    }
    return lines;
}

int OpenLines::countOf(const PrjMappingC &mapping, Kinds kinds)
{
    return countKinds(mapping.lineCounts(), kinds);
}

const ProjectOrder &OpenLines::order() const
{
    return m_document->projects();
}

OpenLines::Found OpenLines::next(const LineRef &from, const Shown &shown,
                                 std::optional<Kind> among) const
{
    return seek(from, shown, among, true);
}

OpenLines::Found OpenLines::previous(const LineRef &from, const Shown &shown,
                                     std::optional<Kind> among) const
{
    return seek(from, shown, among, false);
}

OpenLines::Found OpenLines::beyond(const ProjectId &project, const Shown &shown, Kind among,
                                   bool forward) const
{
    const int end = forward ? std::numeric_limits<int>::max() : 0;
    return seek({project, end}, shown, among, forward);
}

ProjectId OpenLines::nextProject(const ProjectId &from, bool forward) const
{
    const ReleaseMappingC release = m_document->release();
    const std::optional<int> next =
        order().next(order().placeOf(release, from), forward,
                     [this](int place) { return countKinds(order().linesAt(place), m_kinds) > 0; });
    return next ? ProjectId::of(release.mappingAt(order().positionAt(*next))) : ProjectId();
}

/// The kind of a line that no search has led to, or one that comes before it and that the rest of
/// its project has: whoever opens a project whose first line has no target goes through its lines
/// to check first.
std::optional<OpenLines::Kind> OpenLines::kindFrom(const LineRef &from, const QList<Kind> &kinds,
                                                   const Shown &shown, bool forward) const
{
    const std::optional<Kind> own = kindOf(from);
    if (!own || !kinds.contains(*own))
        return own;
    const PrjMappingC mapping = m_document->mapping(from.project);
    const auto isBehind = [&](Kind kind) {
        return (from.project == shown.project ? shownLine(shown, kind, from.line, forward)
                                              : lineIn(mapping, kind, from.line, forward))
            .has_value();
    };
    return *std::find_if(kinds.begin(), kinds.end(),
                         [&](Kind kind) { return kind == *own || isBehind(kind); });
}

/// Behind a line of a kind: the rest of the kind, then the kinds that follow. From elsewhere: the
/// first kind of which there are any.
OpenLines::Found OpenLines::seek(const LineRef &from, const Shown &shown, std::optional<Kind> among,
                                 bool forward) const
{
    QList<Kind> kinds;
    for (const Kind kind : SearchOrder) {
        if (m_kinds.testFlag(kind))
            kinds += kind;
    }
    if (!among)
        among = kindFrom(from, kinds, shown, forward);
    const qsizetype start = among ? kinds.indexOf(*among) : -1;
    Found found;
    if (start >= 0)
        found = seekKind(kinds[start], from, shown, forward, false);
    const qsizetype size = kinds.size();
    for (qsizetype step = 1; step <= size && !found.line.isValid(); ++step) {
        if (start < 0) {
            found = seekKind(kinds[step - 1], from, shown, forward, true);
            continue;
        }
        const qsizetype at = forward ? start + step : start - step;
        found = seekKind(kinds[(at + size) % size], LineRef(), shown, forward, false);
        found.wrapped = at < 0 || at >= size;
    }
    return found;
}

/// With \a round also what stands before the line, at last.
OpenLines::Found OpenLines::seekKind(Kind kind, const LineRef &from, const Shown &shown,
                                     bool forward, bool round) const
{
    const int size = order().size();
    if (countOf(kind) == 0 || size == 0)
        return {};
    const ReleaseMappingC release = m_document->release();
    const int shownAt = order().placeOf(release, shown.project);
    const bool within = shown.isFiltered && shownAt >= 0;
    const int fromAt = order().placeOf(release, from.project);
    const int start = within && fromAt != shownAt ? shownAt
                      : fromAt >= 0               ? fromAt
                      : forward                   ? 0
                                                  : size - 1;
    for (int step = 0; step <= size; ++step) {
        const int at = forward ? start + step : start - step;
        const bool wrapped = at < 0 || at >= size || step == size;
        const int place = ((at % size) + size) % size;
        if (wrapped && !round)
            break;
        if ((within && place != shownAt) || countKind(order().linesAt(place), kind) == 0)
            continue;
        const bool inside = step == 0 && fromAt == place && from.line >= 0;
        const std::optional<int> behind = inside ? std::optional(from.line) : std::nullopt;
        const PrjMappingC mapping = release.mappingAt(order().positionAt(place));
        const std::optional<int> line = place == shownAt ? shownLine(shown, kind, behind, forward)
                                                         : lineIn(mapping, kind, behind, forward);
        if (line)
            return {{ProjectId::of(mapping), *line}, kind, wrapped && fromAt >= 0};
    }
    return {};
}

std::optional<int> OpenLines::lineIn(const PrjMappingC &mapping, Kind kind, std::optional<int> from,
                                     bool forward)
{
    const qint64 start = from ? qint64(*from) : forward ? BeforeAll : BehindAll;
    std::optional<int> best;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC &target = mapping.targetAt(i);
        if (countKind(target.lineCounts(), kind) == 0)
            continue;
        const std::optional<int> line = forward ? firstBehind(target.lines(), start, kind)
                                                : lastBefore(target.lines(), start, kind);
        if (line && (!best || (forward ? *line < *best : *line > *best)))
            best = line;
    }
    return best;
}

/// In the order of the rows; a line without a row stands before the first one.
std::optional<int> OpenLines::shownLine(const Shown &shown, Kind kind, std::optional<int> from,
                                        bool forward) const
{
    const int row = from ? shown.rowOf(*from) : -1;
    const int step = forward ? 1 : -1;
    for (int at = forward ? row + 1 : (row < 0 ? shown.rows : row) - 1; at >= 0 && at < shown.rows;
         at += step) {
        const int line = shown.lineAt(at);
        if (kindOf({shown.project, line}) == kind)
            return line;
    }
    return std::nullopt;
}

QList<int> OpenLines::linesByText(const VKTab::Content &table, const QString &text)
{
    const QString wanted = simplified(text);
    if (wanted.isEmpty())
        return {};
    QList<int> numbers;
    QList<int> whole;
    QList<int> beginning;
    QList<int> part;
    for (const VKTab::LineId &id : table.getLineIdList()) {
        const int line = id.value(0);
        if (wanted == QString::number(line))
            numbers += line;
        const QString designation = simplified(
            table.getLine(id, false).getValue(VKTab::LineI::NormDesignation, {}).toString());
        if (designation == wanted)
            whole += line;
        else if (designation.startsWith(wanted))
            beginning += line;
        else if (designation.contains(wanted))
            part += line;
    }
    for (const QList<int> &found : {numbers, whole, beginning, part}) {
        if (!found.isEmpty())
            return found;
    }
    return {};
}
