#include "ReleaseMappingBuilder.h"

#include "CatalogReader.h"
#include "LineCells.h"
#include "ParallelSteps.h"
#include "ProjectFinder.h"
#include "ProjectName.h"
#include "ReleaseDate.h"
#include "ReleaseIndex.h"
#include "VariableNames.h"

#include <core/parallel/WorkerPool.h>
#include <core/progress/PProgress.h>
#include <geomcore/table/TableData.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace VelkRelease {

namespace {

/// What remains of a project after reading.
struct ReadProject
{
    CatalogProject project; ///< Without its table.
    LineCells cells;
};

} // namespace

/// One run of build().
class ReleaseMappingBuilder::Work
{
public:
    explicit Work(ReleaseMappingBuilder &builder)
        : m_builder(builder)
        , m_input(builder.m_input)
        , m_source(m_input.sourceRoot, m_input.sourceCatalog)
        , m_target(m_input.targetRoot, m_input.targetCatalog)
    {
    }

    Outcome run();

private:
    [[nodiscard]] bool exists(const CatalogReader &catalog);
    [[nodiscard]] bool read();
    [[nodiscard]] ReadProject readProject(const CatalogReader &catalog, const QString &path);
    [[nodiscard]] QString newestDate(const CatalogReader &catalog,
                                     const std::vector<ReadProject> &projects);
    [[nodiscard]] bool setDates();
    void takeMessages();
    [[nodiscard]] PrjMappingC mappingOf(const ReadProject &source) const;
    void addTargets(PrjMappingC &mapping, const std::vector<int> &tables) const;
    void count(const PrjMappingC &mapping);

    ReleaseMappingBuilder &m_builder;
    const Input &m_input;
    const CatalogReader m_source;
    const CatalogReader m_target;
    VariableNames m_names;
    std::vector<ReadProject> m_sources;
    std::vector<ReadProject> m_targets; ///< The index numbers them alike.
    ReleaseIndex m_index;
    ReleaseMappingC m_release;
    bool m_allRead = true;
};

ReleaseMappingBuilder::Outcome ReleaseMappingBuilder::Work::run()
{
    if (!exists(m_source) || !exists(m_target))
        return Outcome::Unreadable;
    if (!read())
        return Outcome::Cancelled;
    takeMessages();
    if (!setDates())
        return Outcome::Unreadable;
    for (ReadProject &target : m_targets)
        m_index.add(target.project.path, std::move(target.cells));
    m_index.finish();
    std::vector<PrjMappingC> mappings(m_sources.size());
    WorkerPool::instance().run(int(m_sources.size()), [&](int i) {
        mappings[size_t(i)] = mappingOf(m_sources[size_t(i)]);
    });
    for (const PrjMappingC &mapping : mappings) {
        count(mapping);
        m_release.addMapping(mapping);
    }
    m_builder.m_release = m_release;
    return m_allRead ? Outcome::Complete : Outcome::Incomplete;
}

bool ReleaseMappingBuilder::Work::exists(const CatalogReader &catalog)
{
    if (catalog.exists())
        return true;
    m_builder.m_messages << catalog.directory() + ": there is no such catalog";
    return false;
}

bool ReleaseMappingBuilder::Work::read()
{
    const QStringList sources = m_source.projectPaths();
    const QStringList targets = m_target.projectPaths();
    m_sources.resize(size_t(sources.size()));
    m_targets.resize(size_t(targets.size()));
    const int count = int(sources.size() + targets.size());
    PProgress progress(0, count, 1.0, true, false);
    progress.setText(m_input.progressText);
    const auto step = [&](int i) {
        if (i < sources.size())
            m_sources[size_t(i)] = readProject(m_source, sources[i]);
        else
            m_targets[size_t(i - sources.size())] =
                readProject(m_target, targets[i - sources.size()]);
    };
    return runParallelSteps(count, step, progress);
}

ReadProject ReleaseMappingBuilder::Work::readProject(const CatalogReader &catalog,
                                                     const QString &path)
{
    ReadProject read;
    read.project = catalog.read(path);
    if (read.project.table)
        read.cells = LineCells(*read.project.table, m_names);
    read.project.table.reset();
    return read;
}

PrjMappingC ReleaseMappingBuilder::Work::mappingOf(const ReadProject &source) const
{
    PrjMappingC mapping;
    mapping.setSourcePath(source.project.path);
    mapping.setSourceVersion(source.project.version);
    mapping.setTabVersion(source.project.tableVersion);
    addTargets(mapping, ProjectFinder(m_index).find(source.project.path, source.cells));
    mapping.updateMappingState();
    if (!source.project.errors.isEmpty())
        mapping.setMappingState(mapping.getMappingState() | PRJMAPPING::StateTableError);
    return mapping;
}

void ReleaseMappingBuilder::Work::addTargets(PrjMappingC &mapping,
                                             const std::vector<int> &tables) const
{
    for (const int table : tables) {
        const CatalogProject &project = m_targets[size_t(table)].project;
        PrjMappingTargetC target;
        target.setTargetPath(project.path);
        target.setTargetVersion(project.version);
        target.setTabVersion(project.tableVersion);
        target.setValid(true);
        mapping.addTarget(target);
    }
}

void ReleaseMappingBuilder::Work::count(const PrjMappingC &mapping)
{
    Counts &counts = m_builder.m_counts;
    const int targets = mapping.countTargets();
    const QString path = pathInCatalog(mapping.getSourcePath());
    if (mapping.getMappingState().testFlag(PRJMAPPING::StateTableError))
        ++counts.unreadable;
    else if (targets == 0)
        ++counts.gone;
    else if (pathInCatalog(mapping.findTarget(0).getTargetPath()) == path)
        ++counts.same;
    else
        ++(targets == 1 ? counts.moved : counts.several);
}

void ReleaseMappingBuilder::Work::takeMessages()
{
    for (const auto *projects : {&m_sources, &m_targets}) {
        for (const ReadProject &read : *projects) {
            m_builder.m_messages << read.project.errors << read.project.warnings;
            m_allRead = m_allRead && read.project.errors.isEmpty();
        }
    }
}

bool ReleaseMappingBuilder::Work::setDates()
{
    m_release.setSourceDate(m_input.sourceDate.isEmpty() ? newestDate(m_source, m_sources)
                                                         : m_input.sourceDate);
    m_release.setTargetDate(m_input.targetDate.isEmpty() ? newestDate(m_target, m_targets)
                                                         : m_input.targetDate);
    return !m_release.getSourceDate().isEmpty() && !m_release.getTargetDate().isEmpty();
}

QString ReleaseMappingBuilder::Work::newestDate(const CatalogReader &catalog,
                                                const std::vector<ReadProject> &projects)
{
    QString newest;
    for (const ReadProject &read : projects)
        newest = std::max(newest, dateInUtc(read.project.date));
    if (newest.isEmpty())
        m_builder.m_messages << catalog.directory() + ": no project has a date";
    return newest;
}

ReleaseMappingBuilder::Outcome ReleaseMappingBuilder::build()
{
    m_release = ReleaseMappingC();
    m_counts = Counts();
    m_messages.clear();
    return Work(*this).run();
}

} // namespace VelkRelease
