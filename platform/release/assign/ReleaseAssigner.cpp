#include "ReleaseAssigner.h"

#include "assignProjectLines.h"
#include "conditionVariables.h"
#include "SharedTargetLines.h"

#include <core/message/PStringMessageImpl.h>
#include <core/parallel/WorkerPool.h>
#include <core/text/PPathName.h>
#include <geomcore/binding/VarsetConditionI.h>
#include <geomcore/table/ContentRef.h>
#include <geomcore/table/readProjectTable.h>
#include <release/text/releaseText.h>

#include <QFileInfo>
#include <QSet>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace VelkRelease {

namespace {

constexpr std::chrono::milliseconds TellEvery(100);

void setTableError(PrjMappingC &mapping, bool error)
{
    mapping.setMappingState(mapping.getMappingState().setFlag(PRJMAPPING::StateTableError, error));
}

bool hasTableError(const PrjMappingC &mapping)
{
    return mapping.getMappingState().testFlag(PRJMAPPING::StateTableError);
}

QStringList textsOf(const VKTab::TableErrorList &errors)
{
    QStringList texts;
    for (const VKTab::TableError &error : errors)
        texts << error.toString();
    return texts;
}

/// What a project says that was left because of its targets.
QString targetsText(const QString &sourcePath, const AssignmentOutcome &outcome)
{
    const QString text =
        outcome.isLeft ? releaseText("die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts "
                                     "bleiben, wie sie sind")
                       : releaseText("die Tabelle von %1 ist nicht lesbar; was ohne sie "
                                     "zugeordnet wurde, ist nicht sicher");
    return sourcePath + ": " + text.arg(outcome.unreadableTargets.join(", "));
}

/// So much of a condition stands in a message.
constexpr qsizetype MaxShown = 200;

/// One message for each condition that does not parse.
QStringList faultyConditions(const PrjMappingC &mapping)
{
    QStringList texts;
    for (const PrjMappingTargetC &target : mapping.getTargets()) {
        for (const VarsetConditionI *condition : target.getConditions()) {
            if (condition->program())
                continue;
            QString text = condition->getCondition();
            if (text.size() > MaxShown)
                text = text.left(MaxShown) + "...";
            texts << mapping.getSourcePath() + ": " +
                         releaseText("die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet "
                                     "wurde, ist nicht sicher")
                             .arg(text, target.getTargetPath());
        }
    }
    return texts;
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

void ReleaseAssigner::setShare(const QList<int> &positions)
{
    m_share = positions;
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
    if (m_share)
        return *m_share;
    const QSet<QString> chosen(m_projects.begin(), m_projects.end());
    QList<int> positions;
    for (int i = 0; i < release.countMappings(); ++i) {
        if (chosen.isEmpty() || chosen.contains(release.mappingAt(i).getSourcePath()))
            positions << i;
    }
    return positions;
}

QStringList ReleaseAssigner::missingCatalogs(const ReleaseMappingC &release,
                                             const QString &targetRoot) const
{
    QStringList missing;
    const auto look = [&missing](const QString &root, const QString &path) {
        const QString catalog = QString(path).replace(u'\\', u'/').section(u'/', 0, 0);
        if (catalog.isEmpty() || catalog.startsWith(u'$') || catalog.contains(u':'))
            return; // absolute
        const QString directory = (PPathName(root) + PPathName(catalog)).native();
        if (!missing.contains(directory) && !QFileInfo(directory).isDir())
            missing << directory;
    };
    for (const int position : chosenPositions(release)) {
        const PrjMappingC mapping = release.mappingAt(position);
        look(m_sourceRoot, mapping.getSourcePath());
        for (const PrjMappingTargetC &target : mapping.getTargets())
            look(targetRoot, target.getTargetPath());
    }
    return missing;
}

ReleaseAssigner::Outcome ReleaseAssigner::assign(const PrjMappingC &mapping,
                                                 const ReleaseMappingC &head,
                                                 const std::atomic<bool> &cancelled) const
{
    Outcome outcome{mapping, {}, true};
    PStringMessageImpl messages(PMsgReply::Cancel, false);
    const QString sourcePath = mapping.getSourcePath();
    const QString file = (PPathName(m_sourceRoot) + PPathName(sourcePath)).native();
    VKTab::ContentRef table;
    const VKTab::ProjectTable read = VKTab::readProjectTable(
        file, table, {.catalogPath = sourcePath, .allLines = true, .tells = false});
    outcome.errors = textsOf(read.errors);
    setTableError(outcome.mapping, !read);
    if (read) {
        const AssignmentOutcome assigned =
            assignProjectLines(sourcePath, outcome.mapping, table, head,
                               conditionVariables(mapping), m_force, &cancelled);
        outcome.isDone = !assigned.isLeft || !assigned.unreadableTargets.isEmpty();
        if (!assigned.unreadableTargets.isEmpty())
            outcome.errors << targetsText(sourcePath, assigned) << assigned.targetErrors;
        const QStringList faulty = faultyConditions(mapping);
        outcome.hasFaultyCondition = !faulty.isEmpty();
        outcome.errors << faulty;
    }
    messages.deactivate();
    if (!messages.buffer().isEmpty())
        outcome.errors.prepend(messages.buffer());
    if (!read && outcome.errors.isEmpty())
        outcome.errors << sourcePath + ": " +
                              releaseText("die Tabelle des Projekts ist nicht lesbar");
    return outcome;
}

bool ReleaseAssigner::run(ReleaseMappingC &release, const std::atomic<bool> &cancelled)
{
    const QList<int> positions = chosenPositions(release);
    const ReleaseMappingC head = release.head();
    std::vector<Outcome> outcomes;
    for (const int position : positions)
        outcomes.push_back({release.mappingAt(position), {}, false});

    // The pool takes the projects; this thread only tells how far it has come.
    Progress progress{0, int(positions.size()), {}};
    std::mutex mutex;
    std::condition_variable changed;
    bool working = true;
    const auto step = [&](int i) {
        Outcome &outcome = outcomes[std::size_t(i)];
        if (cancelled.load())
            return;
        outcome = assign(outcome.mapping, head, cancelled);
        if (!outcome.isDone)
            return;
        const std::lock_guard lock(mutex);
        progress.projects += 1;
        progress.counts.add(outcome.mapping.lineCounts());
        changed.notify_one();
    };
    std::jthread worker([&] {
        WorkerPool::instance().run(progress.totalProjects, step);
        const std::lock_guard lock(mutex);
        working = false;
        changed.notify_one();
    });
    std::unique_lock lock(mutex);
    for (int told = 0; working || told < progress.projects;) {
        changed.wait_for(lock, TellEvery, [&] { return !working || told < progress.projects; });
        told = progress.projects;
        const Progress copy = progress;
        lock.unlock();
        if (m_observer)
            m_observer(copy);
        lock.lock();
    }
    lock.unlock();
    worker.join();
    const bool allRead = take(outcomes, release);
    m_done.clear();
    for (qsizetype i = 0; i < positions.size(); ++i) {
        if (outcomes[std::size_t(i)].isDone)
            m_done.append(positions[i]);
    }
    if (!m_share)
        doubtSharedTargetLines(release, m_done);
    return allRead;
}

bool ReleaseAssigner::take(const std::vector<Outcome> &outcomes, ReleaseMappingC &release)
{
    m_errors.clear();
    bool allRead = true;
    for (const Outcome &outcome : outcomes) {
        if (!outcome.isDone)
            continue;
        allRead = allRead && !hasTableError(outcome.mapping) && !outcome.hasFaultyCondition;
        m_errors += outcome.errors;
        release.addMapping(outcome.mapping);
    }
    return allRead;
}

} // namespace VelkRelease
