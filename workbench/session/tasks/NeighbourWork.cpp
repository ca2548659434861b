#include "NeighbourWork.h"

#include "assignmentOf.h"

#include <core/parallel/WorkerPool.h>
#include <workbench/session/document/MappingDocument.h>

#include <algorithm>

using VelkRelease::NeighbourFinding;

namespace {

bool isTouched(const NeighbourFinding &finding, const PrjMappingC &before, const PrjMappingC &after)
{
    return std::any_of(finding.repairs.begin(), finding.repairs.end(), [&](const auto &repair) {
        return assignmentOf(before, repair.line) != assignmentOf(after, repair.line);
    });
}

} // namespace

NeighbourWork::NeighbourWork(MappingDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    connect(document, &MappingDocument::mappingChanged, this, &NeighbourWork::onMappingChanged);
    connect(document, &MappingDocument::releaseReplaced, this, &NeighbourWork::restart);
    connect(document, &MappingDocument::aboutToClose, this, &NeighbourWork::stop);
}

NeighbourWork::~NeighbourWork()
{
    for (const std::shared_ptr<Job> &job : m_jobs)
        job->cancelled = true;
    m_jobs.clear(); // waits for their ends
}

void NeighbourWork::setWanted(bool wanted)
{
    if (m_wanted == wanted)
        return;
    m_wanted = wanted;
    if (wanted)
        restart();
    else
        stop();
}

void NeighbourWork::stop()
{
    if (m_job)
        m_job->cancelled = true;
    m_job.reset();
    m_pending.clear();
    m_projects.clear();
    Q_EMIT changed();
}

void NeighbourWork::restart()
{
    stop();
    if (!m_wanted || !m_document->isOpen())
        return;
    m_projects.resize(std::size_t(m_document->release().countMappings()));
    for (int i = 0; i < int(m_projects.size()); ++i)
        m_pending.insert(m_pending.end(), i);
    readPending();
}

void NeighbourWork::onMappingChanged(const ProjectId &project)
{
    if (!m_wanted)
        return;
    const int position =
        m_document->release().findPosition(project.path, project.version, project.tabVersion);
    if (position < 0)
        return;
    if (std::size_t(position) >= m_projects.size())
        m_projects.resize(std::size_t(position) + 1);
    Project &known = m_projects[std::size_t(position)];
    const PrjMappingC mapping = m_document->mapping(project);
    std::erase_if(known.findings, [&](const NeighbourFinding &finding) {
        return isTouched(finding, known.mapping, mapping);
    });
    m_pending.insert(position);
    readPending();
    Q_EMIT changed();
}

void NeighbourWork::readPending()
{
    std::erase_if(m_jobs,
                  [this](const std::shared_ptr<Job> &job) { return job->done && job != m_job; });
    if (m_job || m_pending.empty())
        return;
    const auto job = std::make_shared<Job>();
    m_job = job;
    m_jobs.push_back(job);
    const std::vector<int> positions(m_pending.begin(), m_pending.end());
    m_pending.clear();
    const ReleaseMappingC release = m_document->release();
    const QString sourceRoot = m_document->catalogRoots().source;
    // The thread ends before its job goes, for that is where it is joined.
    job->thread = std::jthread([this, at = job.get(), positions, release, sourceRoot] {
        const auto read = std::make_shared<Read>(positions.size());
        (void)WorkerPool::instance().run(
            int(positions.size()),
            [&](int i) {
                if (at->cancelled)
                    return;
                auto &[position, project] = (*read)[std::size_t(i)];
                position = positions[std::size_t(i)];
                project.mapping = release.mappingAt(position);
                QStringList errors;
                project.findings =
                    VelkRelease::readNeighbours(sourceRoot, project.mapping, release,
                                                project.checkedLines, errors, &at->cancelled);
            },
            [at](int) { return !at->cancelled.load(); });
        QMetaObject::invokeMethod(
            this,
            [this, at, read] {
                if (m_job.get() == at)
                    take(*read);
            },
            Qt::QueuedConnection);
        at->done = true;
    });
    Q_EMIT changed();
}

void NeighbourWork::take(const Read &read)
{
    m_job.reset();
    for (const auto &[position, project] : read) {
        if (std::size_t(position) >= m_projects.size())
            continue;
        // What was decided meanwhile is looked at next.
        Project &known = m_projects[std::size_t(position)];
        known = project;
        if (m_pending.contains(position)) {
            const PrjMappingC now = m_document->release().mappingAt(position);
            std::erase_if(known.findings, [&](const NeighbourFinding &finding) {
                return isTouched(finding, known.mapping, now);
            });
        }
    }
    readPending();
    Q_EMIT changed();
}

std::vector<NeighbourWork::Place> NeighbourWork::places() const
{
    std::vector<Place> places;
    for (std::size_t i = 0; i < m_projects.size(); ++i) {
        for (const NeighbourFinding &finding : m_projects[i].findings)
            places.push_back({int(i), finding});
    }
    return places;
}

int NeighbourWork::checkedLines() const
{
    int sum = 0;
    for (const Project &project : m_projects)
        sum += project.checkedLines;
    return sum;
}

ProjectId NeighbourWork::projectAt(int position) const
{
    const PrjMappingC mapping = m_document->release().mappingAt(position);
    return mapping.isValid() ? ProjectId::of(mapping) : ProjectId();
}
