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

bool isOpen(const LineTable::Row &row, OpenLines::Kinds kinds)
{
    if (row.targetLine == -1)
        return row.state() != PRJMAPPING::Verified && kinds.testFlag(OpenLines::NotFound);
    if (row.state() == PRJMAPPING::Mapped)
        return kinds.testFlag(OpenLines::Proposed);
    return row.state() != PRJMAPPING::Verified && kinds.testFlag(OpenLines::ToCheck);
}

/// The first open row behind a line.
std::optional<int> firstBehind(const LineTable &table, qint64 line, OpenLines::Kinds kinds)
{
    for (const LineTable::ChunkRef &chunk : table.chunks()) {
        if (chunk.chunk->pages.back().page->rows.back().sourceLine <= line)
            continue;
        for (const LineTable::PageRef &page : chunk.chunk->pages) {
            if (page.page->rows.back().sourceLine <= line)
                continue;
            for (const LineTable::Row &row : page.page->rows) {
                if (row.sourceLine > line && isOpen(row, kinds))
                    return row.sourceLine;
            }
        }
    }
    return std::nullopt;
}

/// The last open row before a line.
std::optional<int> lastBefore(const LineTable &table, qint64 line, OpenLines::Kinds kinds)
{
    const auto &chunks = table.chunks();
    for (auto chunk = chunks.rbegin(); chunk != chunks.rend(); ++chunk) {
        if (chunk->firstLine >= line)
            continue;
        const auto &pages = chunk->chunk->pages;
        for (auto page = pages.rbegin(); page != pages.rend(); ++page) {
            if (page->firstLine >= line)
                continue;
            const auto &rows = page->page->rows;
            for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
                if (row->sourceLine < line && isOpen(*row, kinds))
                    return row->sourceLine;
            }
        }
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
