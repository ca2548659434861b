#include "ReleaseMappingBuilder.h"

#include "CatalogReader.h"
#include "KnownLines.h"
#include "learnedReplacements.h"
#include "LineCells.h"
#include "ParallelSteps.h"
#include "ProjectFinder.h"
#include "ProjectName.h"
#include "ReleaseDate.h"
#include "ReleaseIndex.h"
#include "RuleProposals.h"
#include "SharedChanges.h"
#include "sharedNumbers.h"
#include "TableRoom.h"
#include "TargetOwners.h"
#include "VariableNames.h"

#include <core/parallel/WorkerPool.h>
#include <core/progress/PProgress.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetVarMappingC.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>
#include <release/decide/CommonValues.h>
#include <release/text/releaseText.h>

#include <algorithm>
#include <memory>
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
    /// By source project: the tables that can take over its lines.
    [[nodiscard]] std::vector<std::vector<int>> findTables() const;
    [[nodiscard]] PrjMappingC mappingOf(const ReadProject &source,
                                        const std::vector<int> &tables) const;
    void addTargets(PrjMappingC &mapping, const std::vector<int> &tables) const;
    void proposeRules(const ReadProject &source, PrjMappingC &mapping,
                      const std::vector<int> &tables) const;
    /// For each target; empty without a split.
    [[nodiscard]] QStringList conditionsOf(const ReadProject &source,
                                           const RuleProposals::Split &split) const;
    void count(const PrjMappingC &mapping);
    void learn(const std::vector<std::vector<int>> &tables);

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
    const std::vector<std::vector<int>> tables = findTables();
    std::vector<PrjMappingC> mappings(m_sources.size());
    WorkerPool::instance().run(int(m_sources.size()), [&](int i) {
        mappings[size_t(i)] = mappingOf(m_sources[size_t(i)], tables[size_t(i)]);
    });
    for (const PrjMappingC &mapping : mappings) {
        count(mapping);
        m_release.addMapping(mapping);
    }
    learn(tables);
    m_builder.m_release = m_release;
    return m_allRead ? Outcome::Complete : Outcome::Incomplete;
}

bool ReleaseMappingBuilder::Work::exists(const CatalogReader &catalog)
{
    if (catalog.exists())
        return true;
    m_builder.m_messages << catalog.directory() + ": " +
                                releaseText("diesen Katalog gibt es nicht");
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

std::vector<std::vector<int>> ReleaseMappingBuilder::Work::findTables() const
{
    const int count = int(m_sources.size());
    std::vector<std::vector<int>> found(m_sources.size());
    WorkerPool::instance().run(count, [&](int i) {
        const ReadProject &source = m_sources[size_t(i)];
        found[size_t(i)] = ProjectFinder(m_index).find(source.project.path, source.cells);
    });
    std::vector<TargetOwners::Table> sources;
    sources.reserve(m_sources.size());
    for (const ReadProject &source : m_sources)
        sources.push_back(
            {foldedName(source.project.path), pathInCatalog(source.project.path), &source.cells});
    std::vector<TargetOwners::Table> targets;
    targets.reserve(size_t(m_index.count()));
    for (int i = 0; i < m_index.count(); ++i)
        targets.push_back({m_index.name(i), pathInCatalog(m_index.path(i)), &m_index.table(i)});
    const TargetOwners owners(sources, targets, found);
    std::vector<std::vector<int>> kept(m_sources.size());
    WorkerPool::instance().run(count, [&](int i) { kept[size_t(i)] = owners.withoutOthers(i); });
    // What other projects became has no room for one of another name.
    const TableRoom room(sources, targets, kept);
    WorkerPool::instance().run(count, [&](int i) {
        std::vector<int> &tables = kept[size_t(i)];
        if (!room.isMissing(i, tables))
            return;
        const auto hasRoom = [&](int table) {
            return room.isThere(i, table);
        };
        const ReadProject &source = m_sources[size_t(i)];
        std::vector<int> better = ProjectFinder(m_index).findWithRoom(
            source.project.path, source.cells, hasRoom, room.isFolderKept(i));
        if (better.empty())
            return;
        for (const int table : tables) {
            if (hasRoom(table) && !std::ranges::count(better, table))
                better.push_back(table);
        }
        tables = std::move(better);
    });
    return kept;
}

PrjMappingC ReleaseMappingBuilder::Work::mappingOf(const ReadProject &source,
                                                   const std::vector<int> &tables) const
{
    PrjMappingC mapping;
    mapping.setSourcePath(source.project.path);
    mapping.setSourceVersion(source.project.version);
    mapping.setTabVersion(source.project.tableVersion);
    addTargets(mapping, tables);
    proposeRules(source, mapping, tables);
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

void ReleaseMappingBuilder::Work::proposeRules(const ReadProject &source, PrjMappingC &mapping,
                                               const std::vector<int> &tables) const
{
    const QString folder = folderInCatalog(source.project.path);
    std::vector<RuleProposals::Target> targets;
    targets.reserve(tables.size());
    for (const int table : tables)
        targets.push_back({&m_index.table(table), folderInCatalog(m_index.path(table)) == folder});
    const RuleProposals proposals(source.cells, targets);
    const RuleProposals::Split split = proposals.split();
    const QStringList conditions = conditionsOf(source, split);
    for (int target = 0; target < int(tables.size()); ++target) {
        const std::vector<RuleProposals::Rename> &renames = proposals.renames(target);
        const QString condition = conditions.value(target);
        if (renames.empty() && condition.isEmpty())
            continue;
        mapping.changeTarget(target, [&](PrjMappingTargetC &changed) {
            for (const RuleProposals::Rename &rename : renames)
                changed.addModifier(
                    std::make_unique<VarsetVarMappingC>(m_names.nameOf(rename.source),
                                                        m_names.nameOf(rename.target))
                        .release());
            if (!condition.isEmpty())
                changed.addCondition(VarsetConditionC::fromText(condition));
            changed.setProposedRules(true);
        });
    }
}

QStringList ReleaseMappingBuilder::Work::conditionsOf(const ReadProject &source,
                                                      const RuleProposals::Split &split) const
{
    QStringList conditions;
    if (split.variable < 0)
        return conditions;
    const auto table = m_source.read(source.project.path).table;
    const QString name = m_names.nameOf(split.variable);
    const int column = table ? table->columnOf(name) : -1;
    if (column < 0)
        return conditions;
    const bool numeric = table->descriptor().fields[column].isNumeric();
    for (const std::vector<int> &rows : split.rows) {
        QStringList clauses;
        for (const int row : rows) {
            const QString value = VKTab::LineView(*table, row).value(column).toString();
            clauses += equalsClause(name, value, numeric);
        }
        conditions += clauses.join(QStringLiteral(" .OR. "));
        const std::unique_ptr<VarsetConditionC> condition(
            VarsetConditionC::fromText(conditions.last()));
        if (!condition->error().isEmpty()) // a name that the formula language does not have
            return {};
    }
    return conditions;
}

void ReleaseMappingBuilder::Work::count(const PrjMappingC &mapping)
{
    Counts &counts = m_builder.m_counts;
    const int targets = mapping.countTargets();
    const QString path = pathInCatalog(mapping.getSourcePath());
    for (int i = 0; i < targets; ++i) {
        if (mapping.targetAt(i).hasProposedRules()) {
            ++counts.proposed;
            break;
        }
    }
    if (mapping.getMappingState().testFlag(PRJMAPPING::StateTableError))
        ++counts.unreadable;
    else if (targets == 0)
        ++counts.gone;
    else if (pathInCatalog(mapping.findTarget(0).getTargetPath()) == path)
        ++counts.same;
    else
        ++(targets == 1 ? counts.moved : counts.several);
}

void ReleaseMappingBuilder::Work::learn(const std::vector<std::vector<int>> &tables)
{
    std::vector<KnownLines::Tables> projects(m_sources.size());
    for (size_t i = 0; i < tables.size(); ++i) {
        if (tables[i].size() == 1)
            projects[i] = {&m_sources[i].cells, &m_index.table(tables[i].front())};
    }
    const ReadTable source = [&](int i) {
        return m_source.read(m_sources[size_t(i)].project.path).table;
    };
    const ReadTable target = [&](int i) {
        return m_target.read(m_index.path(tables[size_t(i)].front())).table;
    };
    const std::vector<KnownLines> lines = KnownLines::of(projects);
    m_release.setLearned(
        mostSupported(learnedReplacements(SharedChanges::of(lines), m_names, source, target) +
                      sharedNumbers(lines, m_names, source, target)));
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
        m_builder.m_messages << catalog.directory() + ": " +
                                    releaseText("kein Projekt hat ein Datum");
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
