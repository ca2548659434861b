#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/ReleaseMappingC.h>

#include <QStringList>

#include <atomic>
#include <functional>
#include <optional>
#include <vector>

namespace VelkRelease {

/// Assigns the lines of all or some projects of a release, several projects at once. The result
/// does not depend on the number of jobs.
class VELKRELEASE_EXPORT ReleaseAssigner
{
public:
    /// What is told after each project and every tenth of a second, on the thread that runs the
    /// assigner.
    struct Progress
    {
        int projects = 0; ///< done so far
        int totalProjects = 0;
        LineCounts counts; ///< of the projects done so far
    };

    /// \a sourceRoot holds the old release's catalog directory. Target projects are looked up
    /// below the catalog root of the index tree.
    explicit ReleaseAssigner(const QString &sourceRoot);

    /// Only the projects with these source paths; all if empty.
    void setProjects(const QStringList &sourcePaths);
    /// Only one of several shares of the projects, by their positions in the release. What depends
    /// on several projects at once, doubtSharedTargetLines(), is left for when all are together.
    void setShare(const QList<int> &positions);
    /// Works out anew what nobody has confirmed.
    void setForce(bool force);
    void setObserver(std::function<void(const Progress &)> observer);

    /// Works on \a release in place, with the threads of WorkerPool. When \a cancelled becomes
    /// true, projects that are not done stay as they are. False if a project's table, or that of
    /// one of its targets, could not be read: such a project is marked with StateTableError. It
    /// keeps its lines if the table is its own, and with force in any case. False also if a
    /// target's condition does not parse.
    bool run(ReleaseMappingC &release, const std::atomic<bool> &cancelled);

    /// Positions of the projects that are done, ascending.
    [[nodiscard]] const QList<int> &donePositions() const { return m_done; }
    /// Positions of the projects to assign, ascending.
    [[nodiscard]] QList<int> chosenPositions(const ReleaseMappingC &release) const;
    /// What could not be read, tables and conditions, in the release's order.
    [[nodiscard]] const QStringList &errors() const { return m_errors; }
    /// Chosen source paths that the release does not have.
    [[nodiscard]] QStringList unknownProjects(const ReleaseMappingC &release) const;
    /// Directories of catalogs that the chosen projects lie in, or have targets in, and that are
    /// not there.
    [[nodiscard]] QStringList missingCatalogs(const ReleaseMappingC &release,
                                              const QString &targetRoot) const;

private:
    struct Outcome
    {
        PrjMappingC mapping;
        QStringList errors;
        bool isDone = false;
        bool hasFaultyCondition = false;
    };
    [[nodiscard]] Outcome assign(const PrjMappingC &mapping, const ReleaseMappingC &head,
                                 const std::atomic<bool> &cancelled) const;
    [[nodiscard]] bool take(const std::vector<Outcome> &outcomes, ReleaseMappingC &release);

    QString m_sourceRoot;
    QStringList m_projects;
    std::optional<QList<int>> m_share;
    QList<int> m_done;
    bool m_force = false;
    std::function<void(const Progress &)> m_observer;
    QStringList m_errors;
};

} // namespace VelkRelease
