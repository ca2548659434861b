#include "ExportCommand.h"

#include "CatalogRoots.h"
#include "CommandLine.h"
#include "LinkDbOption.h"
#include "ReleaseFile.h"

#include <core/files/DurableFile.h>
#include <core/parallel/WorkerPool.h>
#include <geomcore/csv/csvCell.h>
#include <geomcore/erp/LinkDbErpNumbers.h>
#include <geomcore/records/MappingRows.h>
#include <release/pattern/OpenPairs.h>

#include <QTextStream>

namespace velkmap {

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

LineReasons reasonsOf(const ReleaseMappingC &release, const QString &sourceRoot,
                      QStringList &errors)
{
    LineReasons reasons(size_t(release.countMappings()));
    std::vector<QStringList> texts(reasons.size());
    WorkerPool::instance().run(release.countMappings(), [&](int i) {
        const PrjMappingC mapping = release.mappingAt(i);
        for (const VelkRelease::OpenPair &pair :
             VelkRelease::readOpenPairs(sourceRoot, mapping, release,
                                        VelkRelease::openProposals(mapping), texts[size_t(i)])) {
            if (pair.comparable)
                reasons[size_t(i)].insert(pair.line, {pair.probability, pair.reason});
        }
    });
    for (const QStringList &some : texts)
        errors += some;
    return reasons;
}

/// Nothing if the link database cannot be read; then the message says why.
std::optional<LineNumbers> numbersOf(const ReleaseMappingC &release, QTextStream &err)
{
    LinkDbErpNumbers source;
    LineNumbers numbers(size_t(release.countMappings()));
    for (int i = 0; i < release.countMappings(); ++i) {
        QString error;
        const auto read = source.numbersOf(release.mappingAt(i).getSourcePath(), {}, &error);
        if (!read) {
            err << "velkmap export: " << error << '\n';
            return std::nullopt;
        }
        for (auto each = read->cbegin(); each != read->cend(); ++each)
            numbers[size_t(i)].insert(each.key().value(0), erpNumberText(each.value()));
    }
    return numbers;
}

ExitStatus save(const QString &path, const QByteArray &rows, QTextStream &err)
{
    QString cause;
    if (DurableFile::write(path, rows, &cause))
        return ExitStatus::Done;
    err << "velkmap export: " << path << " could not be written: " << cause << '\n';
    return ExitStatus::ResultUnwritable;
}

} // namespace

QByteArray exportedRows(const ReleaseMappingC &release, const LineReasons *reasons,
                        const LineNumbers *numbers)
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

ExitStatus runExport(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("export",
                     "Writes a release mapping as a CSV file with one row a source line. State is\n"
                     "0 to be checked, 1 assigned by the program, 2 confirmed; a line without\n"
                     "target has an empty target path and target line -1.");
    ReleaseFile::addOptions(line);
    line.addRequired("csv", "FILE", "The file to write.");
    line.addFlag("reasons", "Adds the columns probability and reason for lines to be checked; "
                            "the catalogs are read for it.");
    CatalogRoots::addOptions(line);
    LinkDbOption::add(line, " Given, the column\nerp_number has the numbers of the source lines.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    ReleaseFile file;
    if (const auto failed = file.read(line, err))
        return *failed;
    LinkDbOption linkDb;
    if (const auto failed = linkDb.open(line, err))
        return *failed;
    std::optional<LineNumbers> numbers;
    if (line.isSet("linkdb")) {
        numbers = numbersOf(file.release(), err);
        if (!numbers)
            return ExitStatus::InputUnreadable;
    }
    const LineNumbers *const withNumbers = numbers ? &*numbers : nullptr;
    if (!line.isSet("reasons"))
        return save(line.value("csv"), exportedRows(file.release(), nullptr, withNumbers), err);
    CatalogRoots roots;
    if (const auto failed = roots.take(line, "export", err))
        return *failed;
    QStringList errors;
    const LineReasons reasons = reasonsOf(file.release(), roots.source(), errors);
    for (const QString &error : std::as_const(errors))
        err << "velkmap export: " << error << '\n';
    const ExitStatus saved =
        save(line.value("csv"), exportedRows(file.release(), &reasons, withNumbers), err);
    return saved == ExitStatus::Done && !errors.isEmpty() ? ExitStatus::InputUnreadable : saved;
}

} // namespace velkmap
