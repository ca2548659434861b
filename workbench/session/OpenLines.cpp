#include "OpenLines.h"

#include "MappingDocument.h"
#include "ProjectOrder.h"

#include <geomcore/table/Content.h>
#include <mapping/data/CatalogMappingHandlerI.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace {

constexpr qint64 BeforeAll = std::numeric_limits<qint64>::min();
constexpr qint64 BehindAll = std::numeric_limits<qint64>::max();

bool isOpen(const LineTable::Iterator &entry, OpenLines::Kinds kinds)
{
    if (entry.targetLine() == -1)
        return entry.state() != PRJMAPPING::Verified && kinds.testFlag(OpenLines::NotFound);
    if (entry.state() == PRJMAPPING::Mapped)
        return kinds.testFlag(OpenLines::Proposed);
    return entry.state() != PRJMAPPING::Verified && kinds.testFlag(OpenLines::ToCheck);
}

/// The first open line behind a line.
std::optional<int> firstBehind(const LineTable &table, qint64 line, OpenLines::Kinds kinds)
{
    const qint64 from = line == BeforeAll ? line : line + 1;
    for (LineTable::Iterator at = table.lowerBound(from); at != table.end(); ++at) {
        if (isOpen(*at, kinds))
            return at->sourceLine();
    }
    return std::nullopt;
}

/// The last open line before a line.
std::optional<int> lastBefore(const LineTable &table, qint64 line, OpenLines::Kinds kinds)
{
    for (LineTable::Iterator at = table.lowerBound(line); at != table.begin();) {
        --at;
        if (isOpen(*at, kinds))
            return at->sourceLine();
    }
    return std::nullopt;
}

QString simplified(const QString &text)
{
    return text.simplified().toCaseFolded();
}

} // namespace

OpenLines::OpenLines(MappingDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_lastCount(count())
{
    connect(document, &MappingDocument::countsChanged, this, &OpenLines::noteCount);
    connect(document, &MappingDocument::opened, this, &OpenLines::dropOrder);
    connect(document, &MappingDocument::closed, this, &OpenLines::dropOrder);
    connect(document, &MappingDocument::releaseReplaced, this, &OpenLines::dropOrder);
}

OpenLines::~OpenLines() = default;

void OpenLines::setKinds(Kinds kinds)
{
    m_kinds = kinds;
    noteCount();
}

void OpenLines::dropOrder()
{
    m_order.reset();
    noteCount();
}

void OpenLines::noteCount()
{
    const int now = count();
    if (std::exchange(m_lastCount, now) != now)
        Q_EMIT countChanged(now);
}

int OpenLines::countIn(const LineCounts &counts) const
{
    return (m_kinds.testFlag(ToCheck) ? counts.unverified() : 0) +
           (m_kinds.testFlag(NotFound) ? counts.unmapped() : 0) +
           (m_kinds.testFlag(Proposed) ? counts.assigned() : 0);
}

int OpenLines::count() const
{
    return countIn(m_document->counts());
}

int OpenLines::count(const ProjectId &project) const
{
    return countIn(m_document->mapping(project).lineCounts());
}

int OpenLines::projectCount() const
{
    const ReleaseMappingC release = m_document->release();
    int result = 0;
    for (int i = 0; i < release.countMappings(); ++i)
        result += countIn(release.mappingAt(i).lineCounts()) > 0 ? 1 : 0;
    return result;
}

const ProjectOrder &OpenLines::order() const
{
    if (!m_order)
        m_order = std::make_unique<ProjectOrder>(
            m_document->handler() ? m_document->handler()->getRootStructureNode() : nullptr);
    return *m_order;
}

LineRef OpenLines::next(const LineRef &from) const
{
    return seek(from, true);
}

LineRef OpenLines::previous(const LineRef &from) const
{
    return seek(from, false);
}

/// Looks into the rest of the line's project, then into the others, at last into the project's
/// beginning.
LineRef OpenLines::seek(const LineRef &from, bool forward) const
{
    const int size = order().size();
    const qint64 atFirst = forward ? BeforeAll : BehindAll;
    const int position = order().positionOf(from.project);
    const int start = position >= 0 ? position : (forward ? 0 : size - 1);
    const bool inside = position >= 0 && from.line >= 0;
    for (int step = 0; step <= size && size > 0; ++step) {
        const int at = ((forward ? start + step : start - step) % size + size) % size;
        LineRef found = lineAt(at, step == 0 && inside ? qint64(from.line) : atFirst, forward);
        if (found.isValid())
            return found;
    }
    return LineRef();
}

LineRef OpenLines::lineAt(int position, qint64 from, bool forward) const
{
    const ProjectId &project = order().at(position);
    const PrjMappingC mapping = m_document->mapping(project);
    std::optional<int> best;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC &target = mapping.targetAt(i);
        if (countIn(target.lineCounts()) == 0)
            continue;
        const std::optional<int> line = forward ? firstBehind(target.lines(), from, m_kinds)
                                                : lastBefore(target.lines(), from, m_kinds);
        if (line && (!best || (forward ? *line < *best : *line > *best)))
            best = line;
    }
    return best ? LineRef{ProjectId::of(mapping), *best} : LineRef();
}

bool OpenLines::wraps(const LineRef &from, const LineRef &to, bool forward) const
{
    if (!from.isValid() || !to.isValid())
        return false;
    const auto place = [this](const LineRef &line) {
        return std::pair(order().positionOf(line.project), line.line);
    };
    return forward ? place(to) <= place(from) : place(to) >= place(from);
}

LineRef OpenLines::lineByNumber(const ProjectId &project, int number) const
{
    const PrjMappingC mapping = m_document->mapping(project);
    for (int i = 0; i < mapping.countTargets(); ++i) {
        if (mapping.targetAt(i).containsLine(number))
            return {ProjectId::of(mapping), number};
    }
    return LineRef();
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
