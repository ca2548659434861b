#pragma once

#include "LineExplanations.h"

#include <geomcore/records/ReleaseMappingC.h>

#include <atomic>
#include <memory>
#include <mutex>

/// Compares lines of one project with what they may belong to; reads the tables once for all that
/// are asked for. Several threads may ask, one after the other gets its answer.
class ProjectComparer
{
public:
    /// Candidates and probabilities are those of \a mapping, in a release with that \a head.
    ProjectComparer(const ProjectId &project, const PrjMappingC &mapping,
                    const ReleaseMappingC &head, const QString &sourceRoot);
    ~ProjectComparer();

    [[nodiscard]] const ProjectId &project() const { return m_project; }
    [[nodiscard]] const PrjMappingC &mapping() const { return m_mapping; }
    /// Nobody waits for an answer any more.
    void end() { m_ended = true; }

    /// \a current: the mapping as it is now, with other lines perhaps.
    [[nodiscard]] LineExplanation explain(int line, const PrjMappingC &current);
    /// As above; the lines that are compared before \a cancelled.
    [[nodiscard]] LinePairs pair(const QList<int> &lines, const PrjMappingC &current,
                                 const std::atomic<bool> &cancelled);

private:
    void openTables();
    /// Of a line that has gone elsewhere since.
    [[nodiscard]] std::optional<VelkRelease::LineComparer::Pair>
    pairOf(const LineCandidatesC &candidates, int line, int target, int targetLine);

    const ProjectId m_project;
    const PrjMappingC m_mapping;
    const ReleaseMappingC m_head;
    const QString m_sourceRoot;
    std::mutex m_mutex;
    std::atomic<bool> m_ended = false;
    std::unique_ptr<VelkRelease::LineComparer> m_comparer;
};
