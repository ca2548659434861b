#include "ReleaseReport.h"

#include <core/message/PStringMessageImpl.h>
#include <core/parallel/WorkerPool.h>
#include <core/text/PPathName.h>
#include <geomcore/records/LineTable.h>
#include <geomcore/table/ContentRef.h>
#include <geomcore/table/readProjectTable.h>

#include <algorithm>
#include <map>

namespace VelkRelease {

namespace {

/// What of a project is told line by line.
struct ToldLines
{
    std::vector<ReleaseReport::OpenLine> open;
    std::vector<ReleaseReport::GoneLine> gone;
};

std::vector<int> goneLinesOf(const PrjMappingC &mapping)
{
    std::vector<int> lines;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC &target = mapping.targetAt(i);
        if (target.lineCounts().expired() == 0)
            continue;
        for (const LineTable::Iterator &entry : target.lines()) {
            if (entry.targetLine() == -1 && entry.state() == PRJMAPPING::Verified &&
                !entry.conflict())
                lines.push_back(entry.sourceLine());
        }
    }
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
}

/// The designations of lines of one project; reads its table at the first need.
class Designations
{
public:
    Designations(const QString &sourceRoot, const QString &path)
        : m_sourceRoot(sourceRoot)
        , m_path(path)
    {
    }

    [[nodiscard]] QString of(int line)
    {
        if (!m_isTried)
            read();
        const VKTab::LineId id(line);
        if (!m_isRead || !m_table.getLine(id, false).isValid())
            return {};
        return m_table.getLine(id, false)
            .getValue(VKTab::LineI::NormDesignation, {})
            .toString()
            .simplified();
    }

private:
    /// What is wrong with the table is told by whoever looked for reasons.
    void read()
    {
        m_isTried = true;
        PStringMessageImpl messages(PMsgReply::Cancel, false);
        const QString file = (PPathName(m_sourceRoot) + PPathName(m_path)).native();
        m_isRead = bool(VKTab::readProjectTable(
            file, m_table, {.catalogPath = m_path, .allLines = true, .tells = false}));
        messages.deactivate();
    }

    QString m_sourceRoot;
    QString m_path;
    VKTab::ContentRef m_table;
    bool m_isTried = false;
    bool m_isRead = false;
};

ToldLines toldLines(int project, const PrjMappingC &mapping, const ProjectOpenReasons &reasons,
                    const OpenReasonOptions &options)
{
    ToldLines told;
    Designations designations(options.sourceRoot, mapping.getSourcePath());
    told.open.reserve(reasons.lines.size());
    for (const OpenLineReason &line : reasons.lines) {
        if (options.cancelled && options.cancelled->load(std::memory_order_relaxed))
            return told;
        told.open.push_back({project, line.line, line.reason, designations.of(line.line)});
    }
    for (const int line : goneLinesOf(mapping))
        told.gone.push_back({project, line, designations.of(line)});
    return told;
}

void addTo(ReleaseReport::Part &sum, const ReleaseReport::Part &part)
{
    sum.numbers.add(part.numbers);
    for (size_t i = 0; i < sum.reasons.size(); ++i)
        sum.reasons[i] += part.reasons[i];
    sum.hasTableError = sum.hasTableError || part.hasTableError;
}

void makeFolders(ReleaseReport &report)
{
    std::map<QString, ReleaseReport::Part> folders;
    for (const ReleaseReport::Part &project : report.projects) {
        addTo(report.total, project);
        for (qsizetype slash = project.path.indexOf(u'/'); slash >= 0;
             slash = project.path.indexOf(u'/', slash + 1)) {
            ReleaseReport::Part &folder = folders[project.path.left(slash)];
            folder.path = project.path.left(slash);
            addTo(folder, project);
        }
    }
    report.folders.reserve(folders.size());
    for (auto &[path, folder] : folders)
        report.folders.push_back(std::move(folder));
}

ReleaseReport::Part partOf(const PrjMappingC &mapping, const ProjectOpenReasons &reasons)
{
    return {mapping.getSourcePath(), ReportNumbers::of(mapping.lineCounts()), reasons.counts(),
            mapping.getMappingState().testFlag(PRJMAPPING::StateTableError)};
}

} // namespace

QString ReleaseReport::placeText(int project, int line) const
{
    return projects[size_t(project)].path + u':' + QString::number(line);
}

std::optional<ReleaseReport> makeReleaseReport(const ReleaseMappingC &release,
                                               const OpenReasonOptions &options,
                                               const std::function<void(int, int)> &tell)
{
    const int count = release.countMappings();
    const auto tellStep = [&](int step) {
        return [&tell, step, count](int done) {
            if (tell)
                tell(step * count + done, 3 * count);
        };
    };
    const auto reasons = openReasons(release, options, tellStep(0));
    if (!reasons)
        return std::nullopt;
    const std::atomic<bool> never = false;
    auto patterns = DifferencePatterns::compute(options.sourceRoot, release,
                                                options.cancelled ? *options.cancelled : never, {},
                                                tellStep(1));
    if (!patterns)
        return std::nullopt;
    ReleaseReport report;
    report.sourceDate = release.getSourceDate();
    report.targetDate = release.getTargetDate();
    report.patterns = std::move(*patterns);
    std::vector<ToldLines> told(reasons->size());
    const bool done = WorkerPool::instance().run(
        count,
        [&](int i) {
            told[size_t(i)] = toldLines(i, release.mappingAt(i), (*reasons)[size_t(i)], options);
        },
        [&](int steps) {
            tellStep(2)(steps);
            return !options.cancelled || !options.cancelled->load(std::memory_order_relaxed);
        });
    if (!done || (options.cancelled && options.cancelled->load()))
        return std::nullopt;
    report.projects.reserve(told.size());
    for (int i = 0; i < count; ++i) {
        report.projects.push_back(partOf(release.mappingAt(i), (*reasons)[size_t(i)]));
        const ToldLines &lines = told[size_t(i)];
        report.openLines.insert(report.openLines.end(), lines.open.begin(), lines.open.end());
        report.goneLines.insert(report.goneLines.end(), lines.gone.begin(), lines.gone.end());
        report.errors += (*reasons)[size_t(i)].errors;
    }
    report.errors.removeDuplicates();
    makeFolders(report);
    return report;
}

} // namespace VelkRelease
