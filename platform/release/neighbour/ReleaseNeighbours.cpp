#include "ReleaseNeighbours.h"

#include <geomcore/records/LineTable.h>
#include <release/assign/ParallelSteps.h>
#include <release/decide/LineEdits.h>
#include <release/pattern/LineComparer.h>

#include <QHash>

namespace VelkRelease {

namespace {

/// The program is sure of every line, or no line is assigned.
bool isSure(const PrjMappingC &mapping)
{
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC &target = mapping.targetAt(i);
        if (target.getTargetPath().isEmpty())
            continue;
        for (const LineTable::Iterator &entry : target.lines()) {
            if (entry.targetLine() != -1 && entry.state() != PRJMAPPING::Mapped)
                return false;
        }
    }
    return true;
}

/// A project and its targets as they are checked.
class ProjectTables
{
public:
    ProjectTables(LineComparer &comparer, const PrjMappingC &mapping)
        : m_comparer(comparer)
    {
        std::vector<QHash<int, int>> rowOf(std::size_t(mapping.countTargets()));
        m_lines.rows.resize(rowOf.size());
        for (int i = 0; i < mapping.countTargets(); ++i) {
            const PrjMappingTargetC &target = mapping.targetAt(i);
            if (target.getTargetPath().isEmpty() || target.lines().isEmpty())
                continue;
            m_lines.rows[std::size_t(i)] = comparer.targetLines(i);
            int row = 0;
            for (const int line : m_lines.rows[std::size_t(i)])
                rowOf[std::size_t(i)].insert(line, row++);
        }
        const std::vector<int> lines = comparer.lines();
        m_lines.lines.reserve(lines.size());
        for (const int line : lines)
            m_lines.lines.push_back(standing(mapping, line, rowOf));
    }

    [[nodiscard]] const NeighbourLines &lines() const { return m_lines; }
    [[nodiscard]] NeighbourValues values()
    {
        return {[this](int index, int target) { return lineValues(index, target); },
                [this](int target, int row) {
                    return rowValues(target, row);
                }};
    }

private:
    static NeighbourLines::Line standing(const PrjMappingC &mapping, int line,
                                         const std::vector<QHash<int, int>> &rowOf)
    {
        NeighbourLines::Line found{line, -1, -1, false};
        for (int i = 0; i < mapping.countTargets(); ++i) {
            const LineTable::Iterator entry = mapping.targetAt(i).lines().find(line);
            if (!entry)
                continue;
            found.gone =
                found.gone || (entry.targetLine() == -1 && entry.state() == PRJMAPPING::Verified);
            const int row = rowOf[std::size_t(i)].value(entry.targetLine(), -1);
            if (row < 0 || found.target >= 0)
                continue;
            found.target = i;
            found.row = row;
        }
        return found;
    }

    QStringList lineValues(int index, int target)
    {
        const NeighbourLines::Line &line = m_lines.lines[std::size_t(index)];
        const int row = line.target == target ? line.row : 0;
        const QList<ComparedVariableC> variables = m_comparer.compared(
            line.line, target, m_lines.rows[std::size_t(target)][std::size_t(row)]);
        QStringList before;
        QStringList after;
        for (const ComparedVariableC &variable : variables) {
            before += variable.oldValue;
            after += variable.newValue;
        }
        m_rowValues.insert({target, row}, after);
        return before;
    }
    QStringList rowValues(int target, int row)
    {
        const auto known = m_rowValues.constFind({target, row});
        if (known != m_rowValues.cend())
            return *known;
        QStringList after;
        for (const ComparedVariableC &variable :
             m_comparer.compared(m_lines.lines.front().line, target,
                                 m_lines.rows[std::size_t(target)][std::size_t(row)]))
            after += variable.newValue;
        return after;
    }

    LineComparer &m_comparer;
    NeighbourLines m_lines;
    QHash<std::pair<int, int>, QStringList> m_rowValues; ///< of rows that lines have
};

} // namespace

std::vector<NeighbourFinding> readNeighbours(const QString &sourceRoot, const PrjMappingC &mapping,
                                             const ReleaseMappingC &release, int &checkedLines,
                                             QStringList &errors,
                                             const std::atomic<bool> *cancelled)
{
    if (isSure(mapping))
        return {};
    LineComparer comparer(sourceRoot, mapping, release, cancelled);
    errors << comparer.errors();
    if (!comparer.isValid())
        return {};
    ProjectTables tables(comparer, mapping);
    for (const NeighbourLines::Line &line : tables.lines().lines)
        checkedLines += line.row >= 0 ? 1 : 0;
    return checkNeighbours(tables.lines(), tables.values());
}

std::optional<ReleaseNeighbours> ReleaseNeighbours::compute(const QString &sourceRoot,
                                                            const ReleaseMappingC &release,
                                                            const std::atomic<bool> &cancelled,
                                                            const std::function<bool(int)> &wanted,
                                                            const std::function<void(int)> &tell)
{
    struct Read
    {
        std::vector<NeighbourFinding> findings;
        int lines = 0;
        QStringList errors;
    };
    std::vector<Read> reads(std::size_t(release.countMappings()));
    const bool done = runParallelSteps(
        release.countMappings(),
        [&](int i) {
            if (wanted && !wanted(i))
                return;
            Read &read = reads[std::size_t(i)];
            read.findings = readNeighbours(sourceRoot, release.mappingAt(i), release, read.lines,
                                           read.errors, &cancelled);
        },
        cancelled, tell);
    if (!done)
        return std::nullopt;
    ReleaseNeighbours neighbours;
    for (std::size_t i = 0; i < reads.size(); ++i) {
        for (const NeighbourFinding &finding : reads[i].findings)
            neighbours.places.push_back({int(i), finding});
        neighbours.checkedLines += reads[i].lines;
        neighbours.errors += reads[i].errors;
    }
    return neighbours;
}

PrjMappingC mended(const PrjMappingC &mapping, const NeighbourFinding &finding)
{
    LineEdits edits(mapping);
    for (const NeighbourFinding::Repair &repair : finding.repairs) {
        const LineEdits::Standing standing = edits.standing(repair.line);
        edits.remove(repair.line);
        if (repair.targetLine != -1)
            edits.assign(repair.line, repair.target, repair.targetLine,
                         standing.verified ? PRJMAPPING::Verified : PRJMAPPING::ToCheck);
    }
    return edits.mapping();
}

} // namespace VelkRelease
