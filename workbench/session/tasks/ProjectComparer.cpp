#include "ProjectComparer.h"

#include "assignmentOf.h"

#include <geomcore/records/LineTable.h>
#include <release/pattern/CommonChanges.h>

#include <algorithm>

using VelkRelease::LineComparer;
using VelkRelease::OpenPair;

namespace {

bool isConfirmed(const PrjMappingC &mapping, int line)
{
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const LineTable::Iterator entry = mapping.targetAt(i).lines().find(line);
        if (entry && entry.state() == PRJMAPPING::Verified)
            return true;
    }
    return false;
}

} // namespace

ProjectComparer::ProjectComparer(const ProjectId &project, const PrjMappingC &mapping,
                                 const ReleaseMappingC &head, const QString &sourceRoot)
    : m_project(project)
    , m_mapping(mapping)
    , m_head(head)
    , m_sourceRoot(sourceRoot)
{
}

ProjectComparer::~ProjectComparer() = default;

void ProjectComparer::openTables()
{
    if (!m_comparer)
        m_comparer = std::make_unique<LineComparer>(m_sourceRoot, m_mapping, m_head, &m_ended);
}

LineExplanation ProjectComparer::explain(int line, const PrjMappingC &current)
{
    const std::lock_guard lock(m_mutex);
    openTables();
    LineExplanation explanation;
    explanation.line = {m_project, line};
    explanation.isConfirmed = isConfirmed(current, line);
    explanation.errors = m_comparer->errors();
    explanation.isRead = m_comparer->hasLine(line);
    if (!explanation.isRead)
        return explanation;
    explanation.designation = m_comparer->designation(line);
    explanation.candidates = m_comparer->candidates(line);
    const auto [target, targetLine] = assignmentOf(current, line);
    explanation.assigned = assignmentOf(m_mapping, line) == std::pair(target, targetLine)
                               ? m_comparer->assigned(line)
                               : pairOf(explanation.candidates, line, target, targetLine);
    return explanation;
}

LinePairs ProjectComparer::pair(const QList<int> &lines, const PrjMappingC &current,
                                const std::atomic<bool> &cancelled)
{
    const std::lock_guard lock(m_mutex);
    openTables();
    LinePairs pairs;
    pairs.project = m_project;
    pairs.lines = lines;
    std::vector<OpenPair> compared;
    for (const int line : lines.first(std::min(lines.size(), qsizetype(LinePairs::MaxLines)))) {
        if (cancelled)
            break;
        const auto [target, targetLine] = assignmentOf(current, line);
        OpenPair pair{line, target, targetLine, 0, {}, false, {}};
        if (targetLine != -1) {
            for (const ComparedVariableC &variable :
                 m_comparer->compared(line, target, targetLine)) {
                pair.comparable = true;
                if (variable.outcome != ComparedVariableC::Equal)
                    pair.values.push_back({variable.name, variable.oldValue, variable.newValue});
            }
        }
        LinePairs::Row row{line, m_comparer->designation(line), {}, -1, {}};
        if (pair.comparable) {
            row.targetPath = current.targetAt(target).getTargetPath();
            row.targetLine = targetLine;
            compared.push_back(std::move(pair));
        }
        pairs.rows.push_back(std::move(row));
    }
    const auto changes =
        VelkRelease::CommonChanges::of(compared, m_project.path, m_head.getReplacements());
    auto next = changes.ofPairs.begin();
    for (LinePairs::Row &row : pairs.rows) {
        if (row.targetLine != -1)
            row.changes = *next++;
    }
    pairs.common = changes.common;
    return pairs;
}

std::optional<LineComparer::Pair> ProjectComparer::pairOf(const LineCandidatesC &candidates,
                                                          int line, int target, int targetLine)
{
    if (targetLine == -1)
        return std::nullopt;
    LineComparer::Pair pair{
        target, targetLine, 0, {}, m_comparer->compared(line, target, targetLine, true)};
    for (const LineCandidateC &candidate : candidates.candidates) {
        if (candidate.targetIndex == target && candidate.lineId.value(0) == targetLine) {
            pair.probability = candidate.probability;
            pair.reason = candidate.explanation;
        }
    }
    return pair;
}
