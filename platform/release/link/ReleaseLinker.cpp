#include "ReleaseLinker.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace VelkRelease {

namespace {

constexpr std::chrono::milliseconds lookEvery{100};

} // namespace

/// What the writers share during a run.
class ReleaseLinker::Work
{
public:
    Work(ReleaseLinker &linker, const ReleaseMappingC &release,
         const std::atomic<bool> &interrupted)
        : m_linker(linker)
        , m_release(release)
        , m_interrupted(interrupted)
    {
    }

    void run(std::vector<PRefPtr<PLinkDbC>> connections);

private:
    void write(const PRefPtr<PLinkDbC> &linkDb);
    void done(int position, const Project &project);

    ReleaseLinker &m_linker;
    const ReleaseMappingC &m_release;
    const std::atomic<bool> &m_interrupted;
    std::atomic<int> m_next = 0;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    Progress m_progress;
    size_t m_ended = 0;
};

void ReleaseLinker::Work::done(int position, const Project &project)
{
    const std::lock_guard lock(m_mutex);
    m_linker.m_projects[position] = project;
    ++m_progress.projects;
    m_progress.links += project.links;
}

void ReleaseLinker::Work::write(const PRefPtr<PLinkDbC> &linkDb)
{
    LinkWriter writer(linkDb, m_interrupted);
    for (int i = m_next++; i < m_release.countMappings() && !m_interrupted; i = m_next++) {
        const PrjMappingC mapping = m_release.mappingAt(i);
        const LineLinks links = LineLinks::of(m_release, mapping);
        const auto outcome = m_linker.m_dryRun ? writer.compare(links) : writer.write(links);
        done(i, {mapping.getSourcePath(), mapping.getSourceVersion(), qint64(links.links.size()),
                 outcome, writer.problem()});
    }
    const std::lock_guard lock(m_mutex);
    ++m_ended;
    m_changed.notify_all();
}

void ReleaseLinker::Work::run(std::vector<PRefPtr<PLinkDbC>> connections)
{
    m_progress.totalProjects = m_release.countMappings();
    std::vector<std::jthread> threads;
    threads.reserve(connections.size());
    for (const PRefPtr<PLinkDbC> &connection : connections)
        threads.emplace_back([this, connection] { write(connection); });
    std::unique_lock lock(m_mutex);
    bool ended = false;
    while (!ended) {
        ended = m_changed.wait_for(lock, lookEvery, [&] { return m_ended == threads.size(); });
        const Progress progress = m_progress;
        lock.unlock();
        if (m_linker.m_observer)
            m_linker.m_observer(progress);
        lock.lock();
    }
}

ReleaseLinker::ReleaseLinker(const LinkDbSettings &settings, const QString &password)
    : m_settings(settings)
    , m_password(password)
{
}

bool ReleaseLinker::run(const ReleaseMappingC &release, const std::atomic<bool> &interrupted)
{
    m_problem.clear();
    m_projects.clear();
    for (int i = 0; i < release.countMappings(); ++i) {
        const PrjMappingC mapping = release.mappingAt(i);
        m_projects.append({mapping.getSourcePath(),
                           mapping.getSourceVersion(),
                           0,
                           LinkWriter::Outcome::Interrupted,
                           {}});
    }
    const bool several = m_settings.kind == LinkDbSettings::Kind::PostgreSQL;
    const int writers = std::clamp(several ? m_writers : 1, 1, std::max(1, int(m_projects.size())));
    LinkDbSettings settings = m_settings;
    settings.readOnly = m_dryRun;
    std::vector<PRefPtr<PLinkDbC>> connections;
    connections.reserve(size_t(writers));
    for (int i = 0; i < writers; ++i) {
        const PRefPtr<PLinkDbC> connection(new PLinkDbC);
        if (!connection->open(settings, m_password)) {
            m_problem = connection->lastError().text;
            return false;
        }
        connections.push_back(connection);
    }
    Work(*this, release, interrupted).run(std::move(connections));
    return count(LinkWriter::Outcome::Failed) == 0;
}

int ReleaseLinker::count(LinkWriter::Outcome outcome) const
{
    return int(std::ranges::count(m_projects, outcome, &Project::outcome));
}

qint64 ReleaseLinker::links(LinkWriter::Outcome outcome) const
{
    qint64 sum = 0;
    for (const Project &project : m_projects)
        sum += project.outcome == outcome ? project.links : 0;
    return sum;
}

} // namespace VelkRelease
