#include "MappingTable.h"

#include <geomcore/csv/csvCell.h>
#include <geomcore/records/MappingRows.h>
#include <release/assign/ParallelSteps.h>
#include <release/pattern/OpenPairs.h>

namespace VelkRelease {

namespace {

QByteArray reasonCells(const MappingRow &row, const QHash<int, LineReason> &reasons)
{
    const auto reason = row.entry.getState() == PRJMAPPING::ToCheck && !row.entry.getConflict() &&
                                row.entry.getTargetLineId() != -1
                            ? reasons.constFind(row.sourceLine)
                            : reasons.cend();
    if (reason == reasons.cend())
        return ",,";
    return ',' + QByteArray::number(reason->probability, 'f', 4) + ',' + csvCell(reason->reason);
}

void appendMapping(QByteArray &out, const PrjMappingC &mapping,
                   const QHash<int, LineReason> *reasons, const QHash<int, QString> *numbers)
{
    const QList<PrjMappingTargetC> targets = mapping.getTargets();
    QList<QByteArray> paths;
    for (const PrjMappingTargetC &target : targets)
        paths << csvCell(target.getTargetPath());
    const QByteArray source =
        csvCell(mapping.getSourcePath()) + ',' + csvCell(mapping.getSourceVersion());
    for (const MappingRow &row : mappingRows(mapping)) {
        const int targetLine = row.entry.getTargetLineId();
        out += source + ',' + QByteArray::number(row.sourceLine) + ',' +
               (targetLine == -1 ? QByteArray() : paths.at(row.target)) + ',' +
               QByteArray::number(targetLine) + ',' +
               QByteArray::number(int(row.entry.getState())) + ',' +
               (row.entry.getConflict() ? '1' : '0') + ',' + csvCell(row.entry.getExtended()) +
               (reasons ? reasonCells(row, *reasons) : QByteArray()) +
               (numbers ? ',' + csvCell(numbers->value(row.sourceLine)) : QByteArray()) + '\n';
    }
}

} // namespace

QByteArray mappingTable(const ReleaseMappingC &release, const LineReasonColumn *reasons,
                        const LineNumberColumn *numbers)
{
    QByteArray out = "source_path,source_version,source_line,target_path,target_line,state,"
                     "conflict,extended";
    out += reasons ? ",probability,reason" : "";
    out += numbers ? ",erp_number\n" : "\n";
    for (int i = 0; i < release.countMappings(); ++i)
        appendMapping(out, release.mappingAt(i), reasons ? &(*reasons)[size_t(i)] : nullptr,
                      numbers ? &(*numbers)[size_t(i)] : nullptr);
    return out;
}

std::optional<LineReasonColumn> lineReasons(const ReleaseMappingC &release,
                                            const QString &sourceRoot, QStringList &errors,
                                            const std::atomic<bool> &cancelled,
                                            const std::function<void(int)> &tell)
{
    LineReasonColumn reasons(size_t(release.countMappings()));
    std::vector<QStringList> texts(reasons.size());
    const bool done = runParallelSteps(
        release.countMappings(),
        [&](int i) {
            const PrjMappingC mapping = release.mappingAt(i);
            for (const OpenPair &pair :
                 readOpenPairs(sourceRoot, mapping, release, openProposals(mapping),
                               texts[size_t(i)], &cancelled)) {
                if (pair.comparable)
                    reasons[size_t(i)].insert(pair.line, {pair.probability, pair.reason});
            }
        },
        cancelled, tell);
    if (!done)
        return std::nullopt;
    for (const QStringList &some : texts)
        errors += some;
    return reasons;
}

} // namespace VelkRelease
