#include "OpenReason.h"

#include "TargetFaults.h"

#include <core/message/PStringMessageImpl.h>
#include <core/parallel/WorkerPool.h>
#include <core/text/PPathName.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/mapper/TargetTable.h>
#include <geomcore/mapper/TargetTables.h>
#include <geomcore/table/ContentRef.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/readProjectTable.h>
#include <release/assign/conditionVariables.h>
#include <release/assign/LinePart.h>
#include <release/text/releaseText.h>

#include <algorithm>
#include <map>

namespace VelkRelease {

namespace {

/// An open line as the mapping has it.
struct OpenEntry
{
    int line = -1;
    int target = -1;
    int targetLine = -1; ///< -1: none
    bool conflict = false;
};

/// Of several entries of a line a conflict counts first, then one with a target line.
int rankOf(const OpenEntry &entry)
{
    return entry.conflict ? 0 : entry.targetLine != -1 ? 1 : 2;
}

std::vector<OpenEntry> openEntries(const PrjMappingC &mapping)
{
    std::vector<OpenEntry> entries;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const LineCounts &counts = mapping.targetAt(i).lineCounts();
        if (counts.conflicts() + counts.unverified() + counts.unmapped() == 0)
            continue;
        for (const LineTable::Iterator &entry : mapping.targetAt(i).lines()) {
            const bool settled = entry.state() == PRJMAPPING::Verified ||
                                 (entry.state() == PRJMAPPING::Mapped && entry.targetLine() != -1);
            if (!settled || entry.conflict())
                entries.push_back({entry.sourceLine(), i, entry.targetLine(), entry.conflict()});
        }
    }
    std::stable_sort(entries.begin(), entries.end(), [](const OpenEntry &a, const OpenEntry &b) {
        return a.line != b.line ? a.line < b.line : rankOf(a) < rankOf(b);
    });
    const auto again =
        std::unique(entries.begin(), entries.end(),
                    [](const OpenEntry &a, const OpenEntry &b) { return a.line == b.line; });
    entries.erase(again, entries.end());
    return entries;
}

constexpr CheckModeFlags equalityCheck = CheckModeFlags(CheckValues) | CheckConditions;

/// Looks at the tables of one project.
class ReasonFinder
{
public:
    ReasonFinder(const PrjMappingC &mapping, const ReleaseMappingC &release,
                 const OpenReasonOptions &options, QStringList &errors);

    [[nodiscard]] OpenReason reasonOf(const OpenEntry &entry);

private:
    void openTargets(const PrjMappingC &mapping, QStringList &errors);
    [[nodiscard]] std::vector<TargetFaults *> targetsFor(const OpenEntry &entry,
                                                         const VKTab::LineView &view);
    [[nodiscard]] OpenReason reasonOfValues(const OpenEntry &entry, const VKTab::LineView &view);

    VKTab::ContentRef m_table;
    std::unique_ptr<LinePart> m_part;
    std::map<int, TargetFaults> m_targets; ///< by index, without the not-found target
    bool m_faultyCondition = false;
};

ReasonFinder::ReasonFinder(const PrjMappingC &mapping, const ReleaseMappingC &release,
                           const OpenReasonOptions &options, QStringList &errors)
{
    PStringMessageImpl messages(PMsgReply::Cancel, false);
    const QString path = mapping.getSourcePath();
    const QString file = (PPathName(options.sourceRoot) + PPathName(path)).native();
    const VKTab::ProjectTable read = VKTab::readProjectTable(
        file, m_table, {.catalogPath = path, .allLines = true, .tells = false});
    for (const VKTab::TableError &error : read.errors)
        errors << error.toString();
    if (read) {
        openTargets(mapping, errors);
        m_part = std::make_unique<LinePart>(path, mapping.getSourceVersion(),
                                            LinePart::catalogOf(mapping, release), m_table,
                                            conditionVariables(mapping), false, options.cancelled);
        if (!m_part->isUsable())
            m_part.reset();
    } else if (errors.isEmpty()) {
        errors << path + ": " + releaseText("die Tabelle des Projekts ist nicht lesbar");
    }
    messages.deactivate();
}

void ReasonFinder::openTargets(const PrjMappingC &mapping, QStringList &errors)
{
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC &target = mapping.targetAt(i);
        const QString path = target.getTargetPath();
        if (path.isEmpty())
            continue;
        const PPathName file =
            IndexTreeC::instance()->compatiblePathToResolvedPath(PPathName(path));
        VKTab::TableErrorList faults;
        const auto table = Mapper::TargetTables::instance().open(file.native(), &faults);
        if (!table && !faults.isEmpty())
            errors << faults.first().toString();
        const auto added =
            m_targets.emplace(i, TargetFaults(target, m_table.getTableData(), table));
        m_faultyCondition = m_faultyCondition || added.first->second.hasFaultyCondition();
    }
}

/// The target that has the line, or all that may have it.
std::vector<TargetFaults *> ReasonFinder::targetsFor(const OpenEntry &entry,
                                                     const VKTab::LineView &view)
{
    std::vector<TargetFaults *> targets;
    for (auto &[index, faults] : m_targets) {
        if (entry.targetLine != -1 && index != entry.target)
            continue;
        if (faults.takes(view))
            targets.push_back(&faults);
    }
    return targets;
}

OpenReason ReasonFinder::reasonOf(const OpenEntry &entry)
{
    if (!m_part)
        return OpenReason::Unreadable;
    const auto own = m_targets.find(entry.target);
    if (entry.targetLine != -1 && own != m_targets.end() && !own->second.isReadable())
        return OpenReason::Unreadable;
    const VKTab::LineView view(m_table, VKTab::LineId(entry.line));
    if (!view.isValid())
        return OpenReason::Unreadable;
    const std::vector<TargetFaults *> targets = targetsFor(entry, view);
    if (std::ranges::any_of(targets, [](const TargetFaults *at) { return !at->isReadable(); }))
        return OpenReason::Unreadable;
    if (std::ranges::any_of(targets, [&](TargetFaults *at) { return at->formulaFails(view); }))
        return OpenReason::FormulaFails;
    if (targets.empty())
        return m_faultyCondition ? OpenReason::FormulaFails : OpenReason::NoTarget;
    if (std::ranges::all_of(targets, [&](TargetFaults *at) { return at->lacksColumns(view); }))
        return OpenReason::ColumnMissing;
    return reasonOfValues(entry, view);
}

/// A line without assignment is looked at as if it had the line that would be proposed.
OpenReason ReasonFinder::reasonOfValues(const OpenEntry &entry, const VKTab::LineView &view)
{
    PrjMapperC &mapper = m_part->mapper();
    if (entry.targetLine == -1) {
        const PrjMapperLineC proposed = mapper.createLine(entry.line, view, false);
        if (!proposed.isFound() || !mapper.addLine(proposed))
            return OpenReason::TooUnlike;
    }
    const PrjMapperLineC line = mapper.findLine(entry.line, view);
    if (!mapper.hasEqualValues(line, view))
        return OpenReason::TooUnlike;
    return mapper.passesCheck(line, view, equalityCheck) ? OpenReason::Unconfirmed
                                                         : OpenReason::EqualLines;
}

bool isCancelled(const OpenReasonOptions &options)
{
    return options.cancelled && options.cancelled->load(std::memory_order_relaxed);
}

} // namespace

QString openReasonKey(OpenReason reason)
{
    static constexpr std::array<const char *, OpenReasonCount> keys = {
        "clash",  "colleague", "unreadable", "formula",     "noTarget",
        "column", "equal",     "unlike",     "unconfirmed",
    };
    return QString::fromLatin1(keys[size_t(reason)]);
}

OpenReasonCounts ProjectOpenReasons::counts() const
{
    OpenReasonCounts counts{};
    for (const OpenLineReason &line : lines)
        ++counts[size_t(line.reason)];
    return counts;
}

ProjectOpenReasons openReasons(const PrjMappingC &mapping, const ReleaseMappingC &release,
                               const OpenReasonOptions &options)
{
    ProjectOpenReasons result;
    const std::vector<OpenEntry> entries = openEntries(mapping);
    result.lines.reserve(entries.size());
    const bool isOthers = options.isOthers && options.isOthers(mapping.getSourcePath());
    std::unique_ptr<ReasonFinder> finder; // reads the tables only if a line needs them
    for (const OpenEntry &entry : entries) {
        if (isCancelled(options))
            break;
        if (entry.conflict || isOthers) {
            result.lines.push_back(
                {entry.line, entry.conflict ? OpenReason::Clash : OpenReason::Colleague});
            continue;
        }
        if (!finder)
            finder = std::make_unique<ReasonFinder>(mapping, release, options, result.errors);
        result.lines.push_back({entry.line, finder->reasonOf(entry)});
    }
    return result;
}

std::optional<std::vector<ProjectOpenReasons>> openReasons(const ReleaseMappingC &release,
                                                           const OpenReasonOptions &options,
                                                           const std::function<void(int)> &tell)
{
    std::vector<ProjectOpenReasons> projects(size_t(release.countMappings()));
    const bool done = WorkerPool::instance().run(
        release.countMappings(),
        [&](int i) {
            if (!isCancelled(options))
                projects[size_t(i)] = openReasons(release.mappingAt(i), release, options);
        },
        [&](int steps) {
            if (tell)
                tell(steps);
            return !isCancelled(options);
        });
    if (!done || isCancelled(options))
        return std::nullopt;
    return projects;
}

} // namespace VelkRelease
