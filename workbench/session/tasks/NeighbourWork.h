#pragma once

#include <release/neighbour/ReleaseNeighbours.h>
#include <workbench/session/common/SessionTypes.h>

#include <QObject>

#include <list>
#include <memory>
#include <set>
#include <thread>

class MappingDocument;

/// Keeps up to date where the assignments of neighbouring lines of the open document do not fit
/// each other. Tables are read on other threads; a change makes its project be looked at anew, and
/// findings whose lines it touched go at once. GUI thread.
class NeighbourWork : public QObject
{
    Q_OBJECT

public:
    using Place = VelkRelease::ReleaseNeighbours::Place;

    /// \a document must live as long.
    explicit NeighbourWork(MappingDocument *document, QObject *parent = nullptr);
    ~NeighbourWork() override;

    /// Works only while it is wanted, and looks at everything when it begins to be.
    void setWanted(bool wanted);
    /// Catalogs and tables may be others.
    void restart();

    /// Some projects are still to be looked at.
    [[nodiscard]] bool isReading() const { return m_job != nullptr; }
    /// In the order of the release and of the tables.
    [[nodiscard]] std::vector<Place> places() const;
    /// Assigned lines of the projects that were looked at.
    [[nodiscard]] int checkedLines() const;
    [[nodiscard]] ProjectId projectAt(int position) const;

Q_SIGNALS:
    /// Findings, their number or isReading().
    void changed();

private:
    struct Project
    {
        PrjMappingC mapping; ///< that was looked at
        std::vector<VelkRelease::NeighbourFinding> findings;
        int checkedLines = 0;
    };
    using Read = std::vector<std::pair<int, Project>>;
    struct Job
    {
        std::atomic<bool> cancelled = false;
        std::atomic<bool> done = false;
        std::jthread thread;
    };

    void stop();
    void onMappingChanged(const ProjectId &project);
    void readPending();
    void take(const Read &read);

    MappingDocument *const m_document;
    bool m_wanted = false;
    std::vector<Project> m_projects;
    std::set<int> m_pending;
    std::shared_ptr<Job> m_job;
    std::list<std::shared_ptr<Job>> m_jobs; ///< those that have not ended
};
