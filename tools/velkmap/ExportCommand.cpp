#include "ExportCommand.h"

#include "CatalogRoots.h"
#include "CommandLine.h"
#include "ReleaseFile.h"

#include <core/files/DurableFile.h>
#include <core/parallel/WorkerPool.h>
#include <release/pattern/OpenPairs.h>

#include <QTextStream>

#include <algorithm>
#include <vector>

namespace velkmap {

namespace {

QByteArray cell(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    if (std::ranges::none_of(bytes,
                             [](char c) { return c == ',' || c == '"' || c == '\n' || c == '\r'; }))
        return bytes;
    bytes.replace("\"", "\"\"");
    return '"' + bytes + '"';
}

struct Row
{
    int sourceLine;
    int target;
    PrjMappingTargetLineC entry;
};

std::vector<Row> rowsOf(const QList<PrjMappingTargetC> &targets)
{
    std::vector<Row> rows;
    for (int i = 0; i < targets.size(); ++i) {
        for (const LineTable::Iterator &line : targets.at(i).lines())
            rows.push_back({line.sourceLine(), i, line.line()});
    }
    std::ranges::stable_sort(rows, {}, &Row::sourceLine);
    return rows;
}

QByteArray reasonCells(const Row &row, const QHash<int, LineReason> &reasons)
{
    const auto reason = row.entry.getState() == PRJMAPPING::ToCheck && !row.entry.getConflict() &&
                                row.entry.getTargetLineId() != -1
                            ? reasons.constFind(row.sourceLine)
                            : reasons.cend();
    if (reason == reasons.cend())
        return ",,";
    return ',' + QByteArray::number(reason->probability, 'f', 4) + ',' + cell(reason->reason);
}

void appendMapping(QByteArray &out, const PrjMappingC &mapping,
                   const QHash<int, LineReason> *reasons)
{
    const QList<PrjMappingTargetC> targets = mapping.getTargets();
    QList<QByteArray> paths;
    for (const PrjMappingTargetC &target : targets)
        paths << cell(target.getTargetPath());
    const QByteArray source =
        cell(mapping.getSourcePath()) + ',' + cell(mapping.getSourceVersion());
    for (const Row &row : rowsOf(targets)) {
        const int targetLine = row.entry.getTargetLineId();
        out += source + ',' + QByteArray::number(row.sourceLine) + ',' +
               (targetLine == -1 ? QByteArray() : paths.at(row.target)) + ',' +
               QByteArray::number(targetLine) + ',' +
               QByteArray::number(int(row.entry.getState())) + ',' +
               (row.entry.getConflict() ? '1' : '0') + ',' + cell(row.entry.getExtended()) +
               (reasons ? reasonCells(row, *reasons) : QByteArray()) + '\n';
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

ExitStatus save(const QString &path, const QByteArray &rows, QTextStream &err)
{
    QString cause;
    if (DurableFile::write(path, rows, &cause))
        return ExitStatus::Done;
    err << "velkmap export: " << path << " could not be written: " << cause << '\n';
    return ExitStatus::ResultUnwritable;
}

} // namespace

QByteArray exportedRows(const ReleaseMappingC &release, const LineReasons *reasons)
{
    QByteArray out = "source_path,source_version,source_line,target_path,target_line,state,"
                     "conflict,extended";
    out += reasons ? ",probability,reason\n" : "\n";
    for (int i = 0; i < release.countMappings(); ++i)
        appendMapping(out, release.mappingAt(i), reasons ? &(*reasons)[size_t(i)] : nullptr);
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
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    ReleaseFile file;
    if (const auto failed = file.read(line, err))
        return *failed;
    if (!line.isSet("reasons"))
        return save(line.value("csv"), exportedRows(file.release()), err);
    CatalogRoots roots;
    if (const auto failed = roots.take(line, "export", err))
        return *failed;
    QStringList errors;
    const LineReasons reasons = reasonsOf(file.release(), roots.source(), errors);
    for (const QString &error : std::as_const(errors))
        err << "velkmap export: " << error << '\n';
    const ExitStatus saved = save(line.value("csv"), exportedRows(file.release(), &reasons), err);
    return saved == ExitStatus::Done && !errors.isEmpty() ? ExitStatus::InputUnreadable : saved;
}

} // namespace velkmap
