#include "ReleaseAssigner.h"

#include "assignProjectLines.h"

#include <core/message/PStringMessageImpl.h>
#include <core/parallel/WorkerPool.h>
#include <core/text/PPathName.h>
#include <geomcore/binding/VarsetConditionI.h>
#include <geomcore/project/PrjClass.h>
#include <geomcore/table/ContentRef.h>
#include <geomcore/table/FileLayer.h>
#include <geomcore/table/Reader.h>

#include <QSet>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace VelkRelease {

namespace {

// Names that any condition of any target reads: their value ranges are walked value by value.
QStringList conditionVariables(const PrjMappingC &mapping)
{
    QStringList names;
    for (const PrjMappingTargetC &target : mapping.getTargets()) {
        for (const VarsetConditionI *condition : target.getConditions())
            names += condition->usedVariables();
    }
    names.removeDuplicates();
    return names;
}

// The table of a source project without the project's own filters: every line is to be assigned.
VKTab::ContentRef readTable(const QString &path, QStringList &errors)
{
    refHandle<PrjClass> project(new PrjClass(false, false, false));
    project->read(PPathName(path).native(), 7);
    VKTab::ContentRef table;
    VKTab::Reader reader;
    const int result = reader.readByProject(project, table, false);
    for (const VKTab::TableError &error : reader.errors())
        errors << error.toString();
    if (result != 1)
        return {};
    if (const auto layer = table.getFileLayer()) {
        layer->removeFilterCondition("PRJLINECOND");
        layer->removeFilterCondition("BYPRJ");
        table.invalidate(VKTab::Content::InvalidateFilter, true);
    }
    return table;
}

void setTableError(PrjMappingC &mapping, bool error)
{
    mapping.setMappingState(mapping.getMappingState().setFlag(PRJMAPPING::StateTableError, error));
}

} // namespace

ReleaseAssigner::ReleaseAssigner(const QString &sourceRoot)
    : m_sourceRoot(sourceRoot)
{
}

void ReleaseAssigner::setProjects(const QStringList &sourcePaths)
{
    m_projects = sourcePaths;
}

void ReleaseAssigner::setForce(bool force)
{
    m_force = force;
}

void ReleaseAssigner::setObserver(std::function<void(const Progress &)> observer)
{
    m_observer = std::move(observer);
}

QStringList ReleaseAssigner::unknownProjects(const ReleaseMappingC &release) const
{
    QSet<QString> unknown(m_projects.begin(), m_projects.end());
    for (int i = 0; i < release.countMappings() && !unknown.isEmpty(); ++i)
        unknown.remove(release.mappingAt(i).getSourcePath());
    QStringList names = unknown.values();
    names.sort();
    return names;
}

QList<int> ReleaseAssigner::chosenPositions(const ReleaseMappingC &release) const
{
    const QSet<QString> chosen(m_projects.begin(), m_projects.end());
    QList<int> positions;
    for (int i = 0; i < release.countMappings(); ++i) {
        if (chosen.isEmpty() || chosen.contains(release.mappingAt(i).getSourcePath()))
            positions << i;
    }
    return positions;
}

ReleaseAssigner::Outcome ReleaseAssigner::assign(const PrjMappingC &mapping,
                                                 const ReleaseMappingC &dates) const
{
    Outcome outcome{mapping, {}};
    PStringMessageImpl messages(PMsgReply::Cancel, false);
    const QString sourcePath = mapping.getSourcePath();
    VKTab::ContentRef table =
        readTable((PPathName(m_sourceRoot) + PPathName(sourcePath)).native(), outcome.errors);
    setTableError(outcome.mapping, !table.isValid());
    if (table.isValid()) {
        assignProjectLines(sourcePath, outcome.mapping, table, dates, conditionVariables(mapping),
                           m_force);
    }
    messages.deactivate();
    if (!messages.buffer().isEmpty())
        outcome.errors << messages.buffer();
    if (!table.isValid() && outcome.errors.isEmpty())
        outcome.errors << sourcePath + ": the project's table could not be read";
    return outcome;
}

bool ReleaseAssigner::run(ReleaseMappingC &release, const std::atomic<bool> &cancelled)
{
    const QList<int> positions = chosenPositions(release);
    const auto total = int(positions.size());
    std::vector<PrjMappingC> mappings;
    mappings.reserve(std::size_t(total));
    for (const int position : positions)
        mappings.push_back(release.mappingAt(position));
    ReleaseMappingC dates;
    dates.setSourceDate(release.getSourceDate());
    dates.setTargetDate(release.getTargetDate());

    // The pool takes the projects; this thread only tells how far it has come.
    std::vector<Outcome> outcomes(mappings.size());
    std::vector<char> done(mappings.size(), 0);
    std::mutex mutex;
    std::condition_variable changed;
    Progress progress{0, total, 0};
    bool working = true;
    const auto work = [&](int i) {
        if (cancelled.load())
            return;
        Outcome outcome = assign(mappings[std::size_t(i)], dates);
        const std::lock_guard lock(mutex);
        progress.projects += 1;
        progress.lines += outcome.mapping.lineCounts().lines();
        outcomes[std::size_t(i)] = std::move(outcome);
        done[std::size_t(i)] = 1;
        changed.notify_one();
    };
    std::thread worker([&] {
        WorkerPool::instance().run(total, work);
        const std::lock_guard lock(mutex);
        working = false;
        changed.notify_one();
    });
    {
        std::unique_lock lock(mutex);
        for (int told = 0; working || told < progress.projects;) {
            changed.wait(lock, [&] { return !working || told < progress.projects; });
            told = progress.projects;
            const Progress copy = progress;
            lock.unlock();
            if (m_observer && told > 0)
                m_observer(copy);
            lock.lock();
        }
    }
    worker.join();

    m_errors.clear();
    bool allRead = true;
    for (int i = 0; i < total; ++i) {
        Outcome &outcome = outcomes[std::size_t(i)];
        if (!done[std::size_t(i)])
            continue;
        allRead =
            allRead && !outcome.mapping.getMappingState().testFlag(PRJMAPPING::StateTableError);
        m_errors += outcome.errors;
        release.addMapping(outcome.mapping);
    }
    return allRead;
}

} // namespace VelkRelease
